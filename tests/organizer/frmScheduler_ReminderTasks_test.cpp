// The Organizer's task list: a member's tasks, the date filter and its options, and the ways to
// a task's information (the list, its button, the large calendar's lists and the chart).
#include <QComboBox>
#include <QTest>

#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "organizer/frmFilterTasksEventsDisplayed.h"
#include "organizer/log_file.h"
#include "organizer/organizer_callers.h"
#include "organizer/task_window_test.h"

namespace orrivane {
namespace {

using controls::Caption;
using organizer::Make_Person_Marker;
using organizer::ScheduleRecord;
using testing::TaskWindowTest;

class frmScheduler_ReminderTasksTest : public TaskWindowTest {
 protected:
  // Anna has three tasks, Ben one and a marker, Cleo only her marker.
  void Write_Sample_Log() {
    Write_Log({Make_Person_Marker("Anna"), Make_Person_Marker("Ben"),
               Task_At(1, "Anna", 2001, "March", "05", "14", "30", "Dentist"),
               Task_At(2, "Ben", 2001, "March", "05", "09", "00", "Gym"),
               Task_At(3, "Anna", 2000, "December", "31", "23", "59", "Party"),
               Task_At(4, "Anna", 2001, "March", "05", "08", "15", "Breakfast"), Make_Person_Marker("Cleo")});
  }
  void SetUp() override {
    TaskWindowTest::SetUp();
    Write_Sample_Log();
    Open_Organizer();
  }

  QListWidget* Tasks() { return organizer().lstScheduleList; }
  // The program's value of a check box: 0 off, 1 on, 2 greyed.
  int Check(QCheckBox* box) {
    return box->checkState() == Qt::Checked ? 1 : box->checkState() == Qt::PartiallyChecked ? 2 : 0;
  }
  void Display_Only_Filtered() { Click_Option(organizer().optDisplayOnlyFilteredTasks); }
  void Display_All() { Click_Option(organizer().optDisplayAll); }
  void Show_Task_List() { Trigger(organizer(), "cmdShowTaskList"); }

  // A click on a cell that no task owns, on a row captioned with `member`, answered with OK.
  void Click_Empty_Cell(int row, int column, const std::string& member) {
    controls::Set_Caption(organizer().lblChartGroupMemberName[static_cast<std::size_t>(row)], member);
    organizer().Chart_History_List_Content_Tracker(organizer::Chart_Cell(row, column), "Put", -1);
    machine().Answer_Next(platform::vbOK, "No Event Scheduled");
    organizer().View_Task_Event_Information(organizer::kLblChartHistoryListClick, organizer::Chart_Cell(row, column));
  }
};

// ---- The list of a member -----------------------------------------------------------------------

TEST_F(frmScheduler_ReminderTasksTest, ClickingAMemberListsTheirTasksSortedAndNamesThem) {
  Choose_Member("Anna");
  EXPECT_EQ(Caption(organizer().lblGroupMemberName), "Anna");
  EXPECT_EQ(Entries(Tasks()), (std::vector<std::string>{"2000, 12Dec 31, 23:59 Party, #3",
                                                        "2001, 03Mar 05, 08:15 Breakfast, #4",
                                                        "2001, 03Mar 05, 14:30 Dentist, #1"}));
  EXPECT_FALSE(organizer().cmdViewTaskInformation->isEnabled());
}

TEST_F(frmScheduler_ReminderTasksTest, AMemberWithNoTaskShowsAnEmptyListWithoutTheirMarker) {
  Choose_Member("Anna");
  Choose_Member("Cleo");
  EXPECT_EQ(Caption(organizer().lblGroupMemberName), "Cleo");
  EXPECT_EQ(Tasks()->count(), 0);
}

TEST_F(frmScheduler_ReminderTasksTest, TheArrowKeysChooseTheNextMember) {
  Choose_Member("Anna");
  Press_Keys(organizer(), QKeySequence(Qt::Key_Down));
  EXPECT_EQ(Caption(organizer().lblGroupMemberName), "Ben");
  EXPECT_EQ(Entries(Tasks()), std::vector<std::string>{"2001, 03Mar 05, 09:00 Gym, #2"});
}

// Tab brings the focus to a list and marks an entry current, which chooses nothing.
TEST_F(frmScheduler_ReminderTasksTest, TheFocusComingToAListByTabChoosesNothing) {
  organizer().cmdShowTaskList->setFocus();
  Press_Keys(organizer(), QKeySequence(Qt::Key_Backtab));
  ASSERT_TRUE(organizer().lstListOfPeople->hasFocus());
  EXPECT_EQ(Caption(organizer().lblGroupMemberName), "");
  Choose_Member("Anna");
  organizer().cmdShowTaskList->setFocus();
  Press_Keys(organizer(), QKeySequence(Qt::Key_Tab));
  ASSERT_TRUE(Tasks()->hasFocus());
  EXPECT_FALSE(organizer().cmdViewTaskInformation->isEnabled());
}

TEST_F(frmScheduler_ReminderTasksTest, TwoTasksDifferingOnlyInTheNumberListTenBeforeNine) {
  Write_Log({Task_At(9, "Anna", 2001, "March", "05", "14", "30"), Task_At(10, "Anna", 2001, "March", "05", "14", "30")});
  Choose_Member("Anna");
  EXPECT_EQ(Entries(Tasks()), (std::vector<std::string>{"2001, 03Mar 05, 14:30 Dentist, #10",
                                                        "2001, 03Mar 05, 14:30 Dentist, #9"}));
}

TEST_F(frmScheduler_ReminderTasksTest, TheListFollowsTheLogOnlyWhenItIsShownAgain) {
  Choose_Member("Anna");
  organizer::Append_Record(organizer::kScheduleFile, Task_At(5, "Anna", 2002, "May", "01", "10", "00", "Late"));
  EXPECT_EQ(Tasks()->count(), 3);
  Show_Task_List();
  EXPECT_EQ(Tasks()->count(), 4);
  EXPECT_EQ(Entries(Tasks()).back(), "2002, 05May 01, 10:00 Late, #5");
}

TEST_F(frmScheduler_ReminderTasksTest, AMemberNewInTheListRebuildsNothing) {
  Choose_Member("Ben");
  organizer::Append_Record(organizer::kScheduleFile, Task_At(5, "Ben", 2002, "May", "01", "10", "00", "Late"));
  organizer().lstListOfPeople->addItem("Aaron");  // sorted in before the chosen member
  organizer().lstListOfPeople->addItem("Zoe");
  EXPECT_EQ(organizer().lstListOfPeople->currentItem()->text().toStdString(), "Ben");
  EXPECT_EQ(Tasks()->count(), 1);
}

TEST_F(frmScheduler_ReminderTasksTest, ChoosingATaskEnablesItsButtonAndTheListDisablesItAgain) {
  Choose_Member("Anna");
  Click_Entry(Tasks(), "2001, 03Mar 05, 14:30 Dentist, #1");
  EXPECT_TRUE(organizer().cmdViewTaskInformation->isEnabled());
  Show_Task_List();
  EXPECT_FALSE(organizer().cmdViewTaskInformation->isEnabled());
  // The keys choose as well.
  Click_Entry(Tasks(), "2000, 12Dec 31, 23:59 Party, #3");
  Show_Task_List();
  Tasks()->setFocus();
  Press_Keys(organizer(), QKeySequence(Qt::Key_Down));
  EXPECT_TRUE(organizer().cmdViewTaskInformation->isEnabled());
}

// ---- Showing a task -----------------------------------------------------------------------------

TEST_F(frmScheduler_ReminderTasksTest, DoubleClickingATaskShowsIt) {
  Choose_Member("Anna");
  Double_Click_Entry(Tasks(), "2001, 03Mar 05, 08:15 Breakfast, #4");
  ASSERT_TRUE(information().isVisible());
  EXPECT_EQ(information().windowTitle().toStdString(), "Task\\Event Information: Breakfast");
  EXPECT_EQ(Caption(information().lblRecordNumber), "4");
}

TEST_F(frmScheduler_ReminderTasksTest, TheViewButtonShowsTheChosenTask) {
  Choose_Member("Anna");
  Click_Entry(Tasks(), "2000, 12Dec 31, 23:59 Party, #3");
  Trigger(organizer(), "cmdViewTaskInformation");
  ASSERT_TRUE(information().isVisible());
  EXPECT_EQ(Caption(information().lblTaskName), "Party");
  EXPECT_EQ(Caption(information().lblFromDate), "December 31, 2000");
}

TEST_F(frmScheduler_ReminderTasksTest, ATaskGoneFromTheLogShowsTheLastRecordRead) {
  Choose_Member("Anna");
  Write_Log({Task_At(1, "Anna", 2001, "March", "05", "14", "30", "Dentist"),
             Task_At(7, "Ben", 2001, "March", "06", "10", "00", "Swim")});
  Double_Click_Entry(Tasks(), "2000, 12Dec 31, 23:59 Party, #3");
  ASSERT_TRUE(information().isVisible());
  EXPECT_EQ(Caption(information().lblTaskName), "Swim");
}

TEST_F(frmScheduler_ReminderTasksTest, AChartCellShowsTheTaskThatOwnsIt) {
  organizer().Chart_History_List_Content_Tracker(organizer::Chart_Cell(1, 4), "Put", 2);
  organizer().View_Task_Event_Information(organizer::kLblChartHistoryListClick, organizer::Chart_Cell(1, 4));
  ASSERT_TRUE(information().isVisible());
  EXPECT_EQ(Caption(information().lblTaskName), "Gym");
  EXPECT_TRUE(machine().Messages().empty());
}

TEST_F(frmScheduler_ReminderTasksTest, AnEmptyCellOnARowWithAMemberNamesThem) {
  Click_Empty_Cell(2, 35, "Ben");
  Expect_Only_Message({"No Event Scheduled",
                       "There is currently no event record available for Ben for this time period.", platform::vbOKOnly,
                       platform::vbNoIcon});
  EXPECT_FALSE(information().isVisible());
}

TEST_F(frmScheduler_ReminderTasksTest, AnEmptyCellOnAnEmptyRowSaysThisPerson) {
  Click_Empty_Cell(10, 0, "");
  Expect_Only_Message({"No Event Scheduled",
                       "There is currently no event record available for this person for this time period.",
                       platform::vbOKOnly, platform::vbNoIcon});
  EXPECT_FALSE(information().isVisible());
}

TEST_F(frmScheduler_ReminderTasksTest, AnOriginNotKnownOrMiscasedSelectsNothing) {
  Choose_Member("Anna");
  Click_Entry(Tasks(), "2001, 03Mar 05, 14:30 Dentist, #1");
  for (const char* origin : {"lstschedulelist_dblclick()", "lstScheduleList_DblClick", "",
                             "frmreminderwindow.cmdMoreDetails_Click()", "frmmultipurposeform.cmdDelete_1_Click()"}) {
    organizer().View_Task_Event_Information(origin, Value("N\\A"));
  }
  EXPECT_FALSE(information().isVisible());
  EXPECT_TRUE(machine().Messages().empty());
}

class LargeCalendarAppointmentsTest : public TaskWindowTest {};

TEST_F(LargeCalendarAppointmentsTest, ChoosingAnItemOfADaysListShowsItsTask) {
  Window<Form1>().show();  // the program starts, with March 2024 on the calendar
  Process_Events();
  Write_Log({Task_At(1, "Anna", 2024, "March", "14", "14", "00", "Dentist"),
             Task_At(2, "Anna", 2024, "March", "14", "12", "00", "Lunch")});
  frmLargeCalendar& large = Window<frmLargeCalendar>();
  large.cboShowTaskListFor_DropDown();
  large.cboShowTaskListFor->setCurrentText("Anna");
  large.Refresh_Calendar_TaskList();
  QComboBox* day = large.cboAppointments[18];
  ASSERT_EQ(day->count(), 2);
  day->setFocus();
  Press_Keys(large, QKeySequence(Qt::Key_Down));
  ASSERT_TRUE(information().isVisible());
  EXPECT_EQ(Caption(information().lblTaskName), "Lunch");
  Press_Keys(large, QKeySequence(Qt::Key_Up));
  EXPECT_EQ(Caption(information().lblTaskName), "Dentist");
}

// ---- The filter ---------------------------------------------------------------------------------

TEST_F(frmScheduler_ReminderTasksTest, DisplayAllGreysTheFilter) {
  EXPECT_TRUE(organizer().optDisplayAll->isChecked());
  EXPECT_EQ(Check(organizer().chkStartTimeDate), 2);
  EXPECT_EQ(Check(organizer().chkFinishTimeDate), 2);
  for (QWidget* control : {static_cast<QWidget*>(organizer().cmdSelect), static_cast<QWidget*>(organizer().lblAfter),
                           static_cast<QWidget*>(organizer().lblBeforeRange),
                           static_cast<QWidget*>(organizer().fraDisplayOnlyTasksEvents)}) {
    EXPECT_FALSE(control->isEnabled()) << control->objectName().toStdString();
  }
}

TEST_F(frmScheduler_ReminderTasksTest, AFreshFilterCoversThePresentHourOfToday) {
  machine().Set_Now(2024, 3, 15, 22, 5, 9);
  Display_Only_Filtered();
  EXPECT_EQ(Check(organizer().chkStartTimeDate), 1);
  EXPECT_EQ(Check(organizer().chkFinishTimeDate), 1);
  for (QWidget* control : {static_cast<QWidget*>(organizer().chkStartTimeDate),
                           static_cast<QWidget*>(organizer().chkFinishTimeDate),
                           static_cast<QWidget*>(organizer().cmdSelect), static_cast<QWidget*>(organizer().lblAfter),
                           static_cast<QWidget*>(organizer().lblAfterRange), static_cast<QWidget*>(organizer().lblBefore),
                           static_cast<QWidget*>(organizer().lblBeforeRange),
                           static_cast<QWidget*>(organizer().fraDisplayOnlyTasksEvents)}) {
    EXPECT_TRUE(control->isEnabled()) << control->objectName().toStdString();
  }
  EXPECT_EQ(Caption(organizer().lblAfterRange), "22:00, Mar. 15, 2024");
  EXPECT_EQ(Caption(organizer().lblBeforeRange), "22:59, Mar. 15, 2024");
}

TEST_F(frmScheduler_ReminderTasksTest, TheMorningHourIsPaddedAndMidnightIsZero) {
  machine().Set_Now(2024, 1, 2, 0, 30, 0);
  Display_Only_Filtered();
  EXPECT_EQ(Caption(organizer().lblAfterRange), "00:00, Jan. 2, 2024");
  EXPECT_EQ(Caption(organizer().lblBeforeRange), "00:59, Jan. 2, 2024");
}

TEST_F(frmScheduler_ReminderTasksTest, BoundsStayInTheirCaptionsThroughDisplayAll) {
  Display_Only_Filtered();
  Display_All();
  EXPECT_EQ(Check(organizer().chkStartTimeDate), 2);
  EXPECT_FALSE(organizer().chkStartTimeDate->isEnabled());
  EXPECT_FALSE(organizer().cmdSelect->isEnabled());
  EXPECT_EQ(Caption(organizer().lblAfterRange), "10:00, Mar. 15, 2024");
  machine().Set_Now(2024, 3, 16, 15, 0, 0);
  Display_Only_Filtered();
  EXPECT_EQ(Caption(organizer().lblAfterRange), "10:00, Mar. 15, 2024");
  EXPECT_EQ(Caption(organizer().lblBeforeRange), "10:59, Mar. 15, 2024");
}

TEST_F(frmScheduler_ReminderTasksTest, AtLeastOneOfStartAndFinishStaysOn) {
  Display_Only_Filtered();
  Click(organizer().chkStartTimeDate);
  EXPECT_EQ(Check(organizer().chkStartTimeDate), 0);
  Click(organizer().chkFinishTimeDate);
  EXPECT_EQ(Check(organizer().chkFinishTimeDate), 1);
  Click(organizer().chkStartTimeDate);
  EXPECT_EQ(Check(organizer().chkStartTimeDate), 1);
  // With the keyboard: the space bar swaps a box.
  organizer().chkFinishTimeDate->setFocus();
  Press_Keys(organizer(), QKeySequence(Qt::Key_Space));
  EXPECT_EQ(Check(organizer().chkFinishTimeDate), 0);
  organizer().chkStartTimeDate->setFocus();
  Press_Keys(organizer(), QKeySequence(Qt::Key_Space));
  EXPECT_EQ(Check(organizer().chkStartTimeDate), 1);
}

TEST_F(frmScheduler_ReminderTasksTest, TheFilterCountsFromTheNextDisplayOfTheList) {
  Choose_Member("Anna");
  Display_Only_Filtered();
  controls::Set_Caption(organizer().lblAfterRange, "No Date Selected");
  controls::Set_Caption(organizer().lblBeforeRange, "08:15, Mar. 5, 2001");
  EXPECT_EQ(Tasks()->count(), 3);
  Show_Task_List();
  EXPECT_EQ(Entries(Tasks()), (std::vector<std::string>{"2000, 12Dec 31, 23:59 Party, #3",
                                                        "2001, 03Mar 05, 08:15 Breakfast, #4"}));
  Display_All();
  Show_Task_List();
  EXPECT_EQ(Tasks()->count(), 3);
}

TEST_F(frmScheduler_ReminderTasksTest, OnlyTheFinishCountsWhenOnlyItsBoxIsOn) {
  ScheduleRecord long_task = Task_At(8, "Anna", 1999, "January", "01", "08", "00", "Project");
  long_task.Finish_Month = "March";
  long_task.Finish_Date = "05";
  long_task.Finish_Century = 20;
  long_task.Finish_Year = 1;
  long_task.Finish_Hour = "14";
  long_task.Finish_Minute = "45";
  organizer::Append_Record(organizer::kScheduleFile, long_task);
  Display_Only_Filtered();
  controls::Set_Caption(organizer().lblAfterRange, "14:00, Mar. 5, 2001");
  controls::Set_Caption(organizer().lblBeforeRange, "14:59, Mar. 5, 2001");
  Click(organizer().chkStartTimeDate);
  Choose_Member("Anna");
  EXPECT_EQ(Entries(Tasks()), (std::vector<std::string>{"1999, 01Jan 01, 08:00 Project, #8",
                                                        "2001, 03Mar 05, 14:30 Dentist, #1"}));
}

TEST_F(frmScheduler_ReminderTasksTest, ChangeOpensTheFilterWindowInFront) {
  Display_Only_Filtered();
  Trigger(organizer(), "cmdSelect");
  Process_Events();
  EXPECT_TRUE(Window<frmFilterTasksEventsDisplayed>().isVisible());
}

}  // namespace
}  // namespace orrivane
