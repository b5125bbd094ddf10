// The multi-purpose window's purposes of the Organizer: adding a group member, choosing one to
// delete, choosing a task to delete or view, reached by the calendar windows' menu keys.
#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

#include "organizer/organizer_callers.h"
#include "reminders/multi_purpose_window_test.h"
#include "support/golden.h"

namespace orrivane {
namespace {

using controls::Caption;
using organizer::Make_Person_Marker;
using testing::Golden_Case_Name;
using testing::Golden_Cases;
using testing::GoldenCase;
using testing::MultiPurposeWindowTest;

class MultiPurposeMembersTest : public MultiPurposeWindowTest {
 protected:
  // Anna has two tasks and her marker, Ben one task and no marker, Cleo only her marker.
  void Write_Sample_Log() {
    Write_Log({Make_Person_Marker("Anna"), Task_At(1, "Anna", 2001, "March", "05", "14", "30", "Dentist"),
               Task_At(2, "Ben", 2001, "March", "05", "09", "00", "Gym"), Make_Person_Marker("Cleo"),
               Task_At(3, "Anna", 2000, "December", "31", "23", "59", "Party")});
  }

  // The user picks an entry of a closed combo box with the arrow keys.
  void Choose_In_Combo(QComboBox* box, const std::string& text) {
    box->setFocus();
    for (int step = 0; step <= box->count() && box->currentText().toStdString() != text; ++step) {
      Press_Keys(form(), QKeySequence(Qt::Key_Down));
    }
    ASSERT_EQ(box->currentText().toStdString(), text);
  }
  void Add_Member_By_Keys(const QString& typed) {
    Press_Keys(large(), QKeySequence("Ctrl+G"));
    ASSERT_TRUE(form().isVisible());
    Type(form().txtNewPerson, typed);
    Press_Keys(form(), QKeySequence(Qt::Key_Return));
  }
  std::vector<std::string> Organizer_Members() { return Entries(organizer().lstListOfPeople); }
};

// ---- The menus of both calendar windows ------------------------------------------------------------

struct MenuKey {
  const char* keys;
  const char* entry;
  const char* caption;
};
const MenuKey kMenuKeys[] = {
    {"Ctrl+I", "mnuTaskEventInfo", "View Task\\Event Information"},
    {"Ctrl+G", "mnuAddNewGroupMember", "Add New Group Member"},
    {"Ctrl+F3", "mnuDeleteATaskEvent", "Delete A Task\\Event"},
    {"Shift+F3", "mnuDeleteGroupMember", "Delete Group Member"},
};

TEST_F(MultiPurposeMembersTest, TheMenuKeysOfBothCalendarWindowsOpenTheirPurpose) {
  for (QWidget* calendar : {static_cast<QWidget*>(&large()), static_cast<QWidget*>(&Window<Form1>())}) {
    if (calendar == &Window<Form1>()) Press_Keys(large(), QKeySequence(Qt::Key_F4));
    ASSERT_TRUE(calendar->isVisible());
    for (const MenuKey& key : kMenuKeys) {
      SCOPED_TRACE(calendar->objectName().toStdString() + " " + key.keys);
      Press_Keys(*calendar, QKeySequence(key.keys));
      ASSERT_TRUE(form().isVisible());
      EXPECT_EQ(form().windowTitle().toStdString(), key.caption);
      form().Form_Termination_Routine();
      ASSERT_TRUE(Trigger(*calendar, key.entry));
      EXPECT_EQ(form().windowTitle().toStdString(), key.caption);
      form().Form_Termination_Routine();
    }
  }
}

// ---- Frame 0: adding a group member -----------------------------------------------------------------

TEST_F(MultiPurposeMembersTest, ANameWithBlanksAroundItIsAddedWithoutThem) {
  Write_Sample_Log();
  Add_Member_By_Keys("  Dora  ");
  EXPECT_FALSE(form().isVisible());
  const std::vector<std::string> members = Organizer_Members();
  EXPECT_NE(std::find(members.begin(), members.end(), "Dora"), members.end());
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
  EXPECT_TRUE(machine().Messages().empty());
}

TEST_F(MultiPurposeMembersTest, TheNewMemberStandsOnTheChartAtOnce) {
  Open_Organizer();
  Add_Member_By_Keys("Dora");
  EXPECT_EQ(Organizer_Members(), std::vector<std::string>{"Dora"});
  EXPECT_EQ(controls::Caption(organizer().lblChartGroupMemberName[0]), "Dora");
}

TEST_F(MultiPurposeMembersTest, AnEmptyNameIsRefusedAndTheWindowStays) {
  Write_Sample_Log();
  const std::string log = Read_File("Schedule.tmp");
  machine().Answer_Next(vbOK, "No Group Member Specified");
  Add_Member_By_Keys("   ");
  Expect_Only_Message(
      Exclamation_Message("No Group Member Specified", "Please enter a name for the new Group Member."));
  EXPECT_TRUE(form().isVisible());
  EXPECT_EQ(Read_File("Schedule.tmp"), log);
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
}

TEST_F(MultiPurposeMembersTest, AnExistingNameClosesTheWindowSilentlyAndMarksTheLogChanged) {
  Write_Sample_Log();
  Open_Organizer();
  const std::string log = Read_File("Schedule.tmp");
  Add_Member_By_Keys("Cleo");
  EXPECT_FALSE(form().isVisible());
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(Read_File("Schedule.tmp"), log);
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
  EXPECT_EQ(Organizer_Members(), (std::vector<std::string>{"Anna", "Ben", "Cleo"}));
}

TEST_F(MultiPurposeMembersTest, ANameDifferingInCaseIsANewMember) {
  Write_Sample_Log();
  Open_Organizer();
  Add_Member_By_Keys("cleo");
  EXPECT_EQ(Organizer_Members(), (std::vector<std::string>{"Anna", "Ben", "Cleo", "cleo"}));
}

TEST_F(MultiPurposeMembersTest, TheNameBoxStartsEmptyEachTime) {
  Press_Keys(large(), QKeySequence("Ctrl+G"));
  Type(form().txtNewPerson, "Half typed");
  Press_Keys(form(), QKeySequence(Qt::Key_Escape));
  Press_Keys(large(), QKeySequence("Ctrl+G"));
  EXPECT_EQ(form().txtNewPerson->text().toStdString(), "");
}

class AddedMemberGoldenTest : public MultiPurposeMembersTest, public ::testing::WithParamInterface<GoldenCase> {};

// The working log after a member is added through the window, byte for byte.
TEST_P(AddedMemberGoldenTest, TheLogStandsByteForByte) {
  Write_File("Schedule.tmp", GetParam().Bytes("input.tmp"));
  Open_Organizer();
  Add_Member_By_Keys(QString::fromStdString(GetParam().Lines("typed.txt").at(0)));
  EXPECT_EQ(Read_File("Schedule.tmp"), GetParam().Expected());
}

INSTANTIATE_TEST_SUITE_P(Golden, AddedMemberGoldenTest, ::testing::ValuesIn(Golden_Cases("add_group_member")),
                         Golden_Case_Name);

// ---- Frame 1: choosing a member to delete -----------------------------------------------------------

TEST_F(MultiPurposeMembersTest, TheMembersOfMarkersAndTasksStandOnceWithDeleteDisabled) {
  Write_Sample_Log();
  Press_Keys(large(), QKeySequence("Shift+F3"));
  EXPECT_EQ(Entries(form().lstListOfPeople), (std::vector<std::string>{"Anna", "Ben", "Cleo"}));
  EXPECT_FALSE(form().cmdDelete->isEnabled());
  Click_Entry(form().lstListOfPeople, "Ben");
  EXPECT_TRUE(form().cmdDelete->isEnabled());
  EXPECT_EQ(form().Chosen_Member(), "Ben");
}

TEST_F(MultiPurposeMembersTest, TheMemberListIsReadAnewAtEachOpening) {
  Write_Sample_Log();
  Press_Keys(large(), QKeySequence("Shift+F3"));
  Click_Entry(form().lstListOfPeople, "Ben");
  Press_Keys(form(), QKeySequence(Qt::Key_Escape));
  Write_Log({Make_Person_Marker("Dora")});
  Press_Keys(large(), QKeySequence("Shift+F3"));
  EXPECT_EQ(Entries(form().lstListOfPeople), std::vector<std::string>{"Dora"});
  EXPECT_FALSE(form().cmdDelete->isEnabled());
}

TEST_F(MultiPurposeMembersTest, DeleteTakesTheChosenMemberOutOfTheLogAndTheLists) {
  Write_Sample_Log();
  Open_Organizer();
  Press_Keys(large(), QKeySequence("Shift+F3"));
  Click_Entry(form().lstListOfPeople, "Anna");
  machine().Answer_Next(vbYes, "Confirm Entity Delete");
  Click(form().cmdDelete);
  EXPECT_FALSE(form().isVisible());
  EXPECT_EQ(Entries(form().lstListOfPeople), (std::vector<std::string>{"Ben", "Cleo"}));
  EXPECT_EQ(Organizer_Members(), (std::vector<std::string>{"Ben", "Cleo"}));
  std::vector<std::string> log_members;
  organizer::For_Each_Member(organizer::kScheduleFile, [&](const std::string& m) { log_members.push_back(m); });
  EXPECT_EQ(log_members, (std::vector<std::string>{"Ben", "Cleo"}));
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
}

TEST_F(MultiPurposeMembersTest, NoToTheQuestionLeavesTheMemberAndTheWindow) {
  Write_Sample_Log();
  const std::string log = Read_File("Schedule.tmp");
  Press_Keys(large(), QKeySequence("Shift+F3"));
  Click_Entry(form().lstListOfPeople, "Ben");
  machine().Answer_Next(vbNo, "Confirm Entity Delete");
  Click(form().cmdDelete);
  EXPECT_TRUE(form().isVisible());
  EXPECT_EQ(Read_File("Schedule.tmp"), log);
}

// ---- Frame 2: choosing a task -------------------------------------------------------------------------

TEST_F(MultiPurposeMembersTest, DeletingATaskFromAnEmptyLogOffersNothing) {
  Press_Keys(large(), QKeySequence("Ctrl+F3"));
  EXPECT_EQ(form().cboListOfPeople->count(), 0);
  EXPECT_EQ(form().cboListOfPeople->currentText().toStdString(), "");
  EXPECT_EQ(form().lstListOfTasks->count(), 0);
  EXPECT_FALSE(form().cmdDelete_1->isEnabled());
}

TEST_F(MultiPurposeMembersTest, ChoosingAMemberListsTheirTasksInTimeOrder) {
  Write_Sample_Log();
  Press_Keys(large(), QKeySequence("Ctrl+I"));
  EXPECT_EQ(Items(form().cboListOfPeople), (std::vector<std::string>{"Anna", "Ben", "Cleo"}));
  EXPECT_EQ(form().cboListOfPeople->currentText().toStdString(), "");
  EXPECT_FALSE(form().cmdDelete_1->isEnabled());
  Choose_In_Combo(form().cboListOfPeople, "Anna");
  EXPECT_EQ(Entries(form().lstListOfTasks),
            (std::vector<std::string>{"2000, 12Dec 31, 23:59 Party, #3", "2001, 03Mar 05, 14:30 Dentist, #1"}));
  EXPECT_FALSE(form().cmdDelete_1->isEnabled());
}

TEST_F(MultiPurposeMembersTest, AMemberWithOnlyAMarkerHasAnEmptyTaskList) {
  Write_Sample_Log();
  Press_Keys(large(), QKeySequence("Ctrl+I"));
  Choose_In_Combo(form().cboListOfPeople, "Cleo");
  EXPECT_EQ(form().lstListOfTasks->count(), 0);
  EXPECT_FALSE(form().cmdDelete_1->isEnabled());
}

TEST_F(MultiPurposeMembersTest, TasksOfTheSameMinuteDifferByNameAndNumber) {
  Write_Log({Task_At(7, "Anna", 2001, "March", "05", "14", "30", "Dentist"),
             Task_At(12, "Anna", 2001, "March", "05", "14", "30", "Dentist"),
             Task_At(9, "Anna", 2001, "March", "05", "14", "30", "Call")});
  Press_Keys(large(), QKeySequence("Ctrl+F3"));
  Choose_In_Combo(form().cboListOfPeople, "Anna");
  EXPECT_EQ(Entries(form().lstListOfTasks),
            (std::vector<std::string>{"2001, 03Mar 05, 14:30 Call, #9", "2001, 03Mar 05, 14:30 Dentist, #12",
                                      "2001, 03Mar 05, 14:30 Dentist, #7"}));
}

TEST_F(MultiPurposeMembersTest, ChoosingATaskEnablesTheButtonAndChoosingAMemberDisablesIt) {
  Write_Sample_Log();
  Press_Keys(large(), QKeySequence("Ctrl+I"));
  Choose_In_Combo(form().cboListOfPeople, "Anna");
  Click_Entry(form().lstListOfTasks, "2001, 03Mar 05, 14:30 Dentist, #1");
  EXPECT_TRUE(form().cmdDelete_1->isEnabled());
  Choose_In_Combo(form().cboListOfPeople, "Ben");
  EXPECT_FALSE(form().cmdDelete_1->isEnabled());
  EXPECT_EQ(Entries(form().lstListOfTasks), std::vector<std::string>{"2001, 03Mar 05, 09:00 Gym, #2"});
}

TEST_F(MultiPurposeMembersTest, ViewShowsTheTaskNamedByTheNumberBehindTheLastHash) {
  Write_Log({Task_At(1, "Anna", 2001, "March", "05", "14", "30", "Dentist"),
             Task_At(2, "Anna", 2001, "March", "06", "10", "00", "Room #1")});
  Press_Keys(large(), QKeySequence("Ctrl+I"));
  Choose_In_Combo(form().cboListOfPeople, "Anna");
  Click_Entry(form().lstListOfTasks, "2001, 03Mar 06, 10:00 Room #1, #2");
  Click(form().cmdDelete_1);
  Process_Events();
  ASSERT_TRUE(information().isVisible());
  EXPECT_EQ(Caption(information().lblTaskName), "Room #1");
  EXPECT_EQ(Caption(information().lblRecordNumber), "2");
}

// Enter presses Delete while the focus stands in the member box: the task leaves both files.
TEST_F(MultiPurposeMembersTest, EnterDeletesTheChosenTaskFromTheLogAndItsReminders) {
  Write_Sample_Log();
  organizer::samples::Write_Log(organizer::kTaskReminderFile,
                                {Task_At(1, "Anna", 2001, "March", "05", "14", "30", "Dentist"),
                                 Task_At(3, "Anna", 2000, "December", "31", "23", "59", "Party")});
  Open_Organizer();
  Press_Keys(large(), QKeySequence("Ctrl+F3"));
  Choose_In_Combo(form().cboListOfPeople, "Anna");
  Click_Entry(form().lstListOfTasks, "2001, 03Mar 05, 14:30 Dentist, #1");
  form().cboListOfPeople->setFocus();
  machine().Answer_Next(vbYes, "Confirm Event Delete");
  Press_Keys(form(), QKeySequence(Qt::Key_Return));
  EXPECT_FALSE(form().isVisible());
  EXPECT_EQ(Entries(form().lstListOfTasks), std::vector<std::string>{"2000, 12Dec 31, 23:59 Party, #3"});
  std::vector<int> numbers;
  organizer::For_Each_Record(organizer::kScheduleFile, [&](const organizer::ScheduleRecord& r) {
    numbers.push_back(static_cast<int>(r.Record_Number.whole()));
  });
  EXPECT_EQ(numbers, (std::vector<int>{-1, 2, -1, 3}));
  std::vector<int> reminders;
  organizer::For_Each_Record(organizer::kTaskReminderFile, [&](const organizer::ScheduleRecord& r) {
    reminders.push_back(static_cast<int>(r.Record_Number.whole()));
  });
  EXPECT_EQ(reminders, std::vector<int>{3});
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
}

TEST_F(MultiPurposeMembersTest, ViewingWithNoTaskChosenShowsNothing) {
  Write_Sample_Log();
  Press_Keys(large(), QKeySequence("Ctrl+I"));
  Choose_In_Combo(form().cboListOfPeople, "Anna");
  organizer().View_Task_Event_Information(organizer::kMultiPurposeDelete1, Value("N\\A"));
  EXPECT_FALSE(information().isVisible());
}

// Enter presses View while the focus stands in the member box; Escape closes.
TEST_F(MultiPurposeMembersTest, EnterViewsTheChosenTaskAndEscapeCloses) {
  Write_Sample_Log();
  Press_Keys(large(), QKeySequence("Ctrl+I"));
  Choose_In_Combo(form().cboListOfPeople, "Ben");
  Click_Entry(form().lstListOfTasks, "2001, 03Mar 05, 09:00 Gym, #2");
  form().cboListOfPeople->setFocus();
  Press_Keys(form(), QKeySequence(Qt::Key_Return));
  Process_Events();
  ASSERT_TRUE(information().isVisible());
  EXPECT_EQ(Caption(information().lblTaskName), "Gym");
  information().hide();
  Press_Keys(form(), QKeySequence(Qt::Key_Escape));
  EXPECT_FALSE(form().isVisible());
}

// A task picked in the list with the arrow keys is viewed with Enter from the list itself.
TEST_F(MultiPurposeMembersTest, EnterInTheTaskListViewsTheTaskPickedWithTheArrowKeys) {
  Write_Sample_Log();
  Press_Keys(large(), QKeySequence("Ctrl+I"));
  Choose_In_Combo(form().cboListOfPeople, "Anna");
  form().lstListOfTasks->setFocus();
  Press_Keys(form(), QKeySequence(Qt::Key_Down));
  Press_Keys(form(), QKeySequence(Qt::Key_Down));
  ASSERT_EQ(form().lstListOfTasks->currentItem()->text().toStdString(), "2001, 03Mar 05, 14:30 Dentist, #1");
  Press_Keys(form(), QKeySequence(Qt::Key_Return));
  Process_Events();
  ASSERT_TRUE(information().isVisible());
  EXPECT_EQ(Caption(information().lblTaskName), "Dentist");
}

// In the open list of the member box Enter chooses the member; it does not press View.
TEST_F(MultiPurposeMembersTest, EnterInTheOpenMemberListChoosesTheMember) {
  Write_Sample_Log();
  Press_Keys(large(), QKeySequence("Ctrl+I"));
  form().cboListOfPeople->setFocus();
  form().cboListOfPeople->showPopup();
  Process_Events();
  QWidget* open_list = QApplication::focusWidget();
  ASSERT_NE(open_list, nullptr);
  QTest::keyClick(open_list, Qt::Key_Down);
  QTest::keyClick(open_list, Qt::Key_Return);
  Process_Events();
  EXPECT_FALSE(information().isVisible());
  EXPECT_FALSE(form().cboListOfPeople->view()->isVisible());
  EXPECT_FALSE(Entries(form().lstListOfTasks).empty());
}

// The name typed for a new member and never added is not added by Enter in another purpose.
TEST_F(MultiPurposeMembersTest, EnterActsOnlyOnTheFrameOnShow) {
  Write_Sample_Log();
  Open_Organizer();
  const std::string log = Read_File("Schedule.tmp");
  Press_Keys(large(), QKeySequence("Ctrl+G"));
  Type(form().txtNewPerson, "Zed");
  Press_Keys(large(), QKeySequence("Ctrl+I"));
  ASSERT_EQ(form().windowTitle().toStdString(), "View Task\\Event Information");
  form().cboListOfPeople->setFocus();
  Press_Keys(form(), QKeySequence(Qt::Key_Return));
  EXPECT_TRUE(form().isVisible());
  EXPECT_EQ(Read_File("Schedule.tmp"), log);
  EXPECT_EQ(Organizer_Members(), (std::vector<std::string>{"Anna", "Ben", "Cleo"}));
  Press_Keys(form(), QKeySequence(Qt::Key_Escape));
  EXPECT_FALSE(form().isVisible());
}

}  // namespace
}  // namespace orrivane
