// Deleting a task or a group member from the Organizer: its two buttons and their questions, both
// working files after each delete byte for byte, the lists and labels tidied by where the delete
// came from, the flag of the reminders, and the log never lost to a stop in the middle.
#include <QComboBox>
#include <QDir>
#include <QTest>
#include <functional>
#include <string>
#include <vector>

#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "organizer/log_delete.h"
#include "organizer/multipurpose_delete_source.h"
#include "organizer/new_task_window_test.h"
#include "organizer/organizer_callers.h"
#include "organizer/set_reminder_window_test.h"
#include "organizer/task_window_test.h"
#include "reminders/frmReminderWindow.h"
#include "reminders/in_use_flags.h"
#include "support/golden.h"

namespace orrivane {
namespace {

using controls::Caption;
using organizer::Make_Person_Marker;
using organizer::ScheduleRecord;
using testing::GoldenCase;

constexpr char kTaskQuestion[] = "Confirm Event Delete";
constexpr char kMemberQuestion[] = "Confirm Entity Delete";

// The program started on the afternoon of March 5, 2001, with its calendars drawn and its working
// files emptied before a test writes its log, as the tests of setting a reminder start it.
using StartedTaskWindowTest = testing::SetReminderWindowTest;

class DeleteTest : public StartedTaskWindowTest {
 protected:
  // Anna has three tasks on March 5, 2001; Ben has his marker and one task; Cleo stands only in
  // her one task. All have reminders on.
  void SetUp() override {
    StartedTaskWindowTest::SetUp();
    Write_Log({Make_Person_Marker("Anna"), Dentist(), Task_At(2, "Anna", 2001, "March", "05", "09", "00", "Gym"),
               Task_At(3, "Anna", 2001, "March", "05", "08", "15", "Breakfast"), Make_Person_Marker("Ben"),
               Task_At(4, "Ben", 2001, "March", "05", "16", "00", "Tennis"),
               Task_At(5, "Cleo", 2001, "March", "06", "12", "00", "Lunch")});
    Write_Reminders();
    Open_Organizer();
  }
  void TearDown() override {
    organizer::Multi_Purpose_Delete_Source() = {};
    StartedTaskWindowTest::TearDown();
  }

  static ScheduleRecord Dentist() { return Task_At(1, "Anna", 2001, "March", "05", "14", "30", "Dentist"); }

  // TRemin.tmp as every writer of the log keeps it: the log's records with reminders on.
  void Write_Reminders() {
    std::vector<ScheduleRecord> reminders;
    organizer::For_Each_Record(organizer::kScheduleFile, [&](const ScheduleRecord& record) {
      if (record.Reminder_Status == Value(1)) reminders.push_back(record);
    });
    organizer::samples::Write_Log(organizer::kTaskReminderFile, reminders);
  }
  // Task_At's records have reminders on; these lose theirs.
  void Switch_Reminders_Off(const std::vector<int>& numbers) {
    std::vector<ScheduleRecord> log = organizer::samples::Read_Log(organizer::kScheduleFile);
    for (ScheduleRecord& record : log) {
      for (int number : numbers) {
        if (record.Record_Number == Value(number)) record.Reminder_Status = 0;
      }
    }
    Write_Log(log);
    Write_Reminders();
  }

  QListWidget* Tasks() { return organizer().lstScheduleList; }
  QListWidget* Members() { return organizer().lstListOfPeople; }
  std::vector<int> Log_Numbers(const char* file) {
    std::vector<int> numbers;
    organizer::For_Each_Record(file, [&](const ScheduleRecord& record) {
      numbers.push_back(static_cast<int>(record.Record_Number.whole()));
    });
    return numbers;
  }
  std::vector<std::string> Log_Members() {
    std::vector<std::string> members;
    organizer::For_Each_Member(organizer::kScheduleFile, [&](const std::string& member) { members.push_back(member); });
    return members;
  }

  // The user clicks a task of a member and then Delete Selected Record, and answers.
  void Delete_Task(const std::string& member, const ScheduleRecord& task, int answer = vbYes) {
    Choose_Member(member);
    Click_Entry(Tasks(), organizer::Task_List_Entry(task));
    machine().Answer_Next(answer, kTaskQuestion);
    ASSERT_TRUE(Trigger(organizer(), "cmdDeleteSelectedRecord"));
  }
  // The user clicks a member and then Delete, and answers.
  void Delete_Member(const std::string& member, int answer = vbYes) {
    Choose_Member(member);
    machine().Answer_Next(answer, kMemberQuestion);
    ASSERT_TRUE(Trigger(organizer(), "cmdDelete"));
  }

  // The members on the chart's rows, from the top.
  std::vector<std::string> Row_Names() {
    std::vector<std::string> names;
    for (const QLabel* row : organizer().lblChartGroupMemberName) {
      if (!Caption(row).empty()) names.push_back(Caption(row));
    }
    return names;
  }

  // From a list with the focus, Tab is pressed `tabs` times to come to a delete button, which the
  // key presses.
  void Tab_To_Delete_And_Press(int tabs, QWidget* button, Qt::Key key) {
    for (int tab = 0; tab < tabs; ++tab) Press_Keys(organizer(), QKeySequence(Qt::Key_Tab));
    ASSERT_EQ(QApplication::focusWidget(), button);
    Press_Keys(organizer(), QKeySequence(key));
    EXPECT_EQ(machine().Unanswered(), 0u);
  }

  // The user presses a delete button and answers Yes; the failure told ends the program, and both
  // working files stand as they were.
  void Expect_Delete_To_End_The_Program(QPushButton* button, const char* question, const std::string& failure) {
    const std::string log = Read_File(organizer::kScheduleFile);
    const std::string reminders = Read_File(organizer::kTaskReminderFile);
    machine().Answer_Next(vbYes, question);
    machine().Answer_Next(vbOK, "Orrivane");
    Until_The_End([&] { Click(button); });
    EXPECT_EQ(machine().Messages().back().text, failure);
    EXPECT_EQ(Read_File(organizer::kScheduleFile), log);
    EXPECT_EQ(Read_File(organizer::kTaskReminderFile), reminders);
  }

  bool Scratch_Files_Present() {
    return File_Present(organizer::kScheduleScratchFile) || File_Present(organizer::kTaskReminderScratchFile);
  }
  bool Flag_Held() { return Window<Form1>().TRemin_Is_In_Use(false, "Evaluate"); }
};

// ---- The buttons ------------------------------------------------------------------------------------

TEST_F(DeleteTest, TheButtonsWaitForAClickOnAnEntryOfTheirList) {
  EXPECT_EQ(organizer().cmdDelete->text(), "Delete");
  EXPECT_EQ(organizer().cmdDeleteSelectedRecord->text(), "Delete Selected Record");
  EXPECT_FALSE(organizer().cmdDelete->isEnabled());
  EXPECT_FALSE(organizer().cmdDeleteSelectedRecord->isEnabled());
  Choose_Member("Anna");
  EXPECT_TRUE(organizer().cmdDelete->isEnabled());
  EXPECT_FALSE(organizer().cmdDeleteSelectedRecord->isEnabled());
  Click_Entry(Tasks(), organizer::Task_List_Entry(Dentist()));
  EXPECT_TRUE(organizer().cmdDeleteSelectedRecord->isEnabled());
  // The list shown again has no entry chosen.
  Trigger(organizer(), "cmdShowTaskList");
  EXPECT_FALSE(organizer().cmdDeleteSelectedRecord->isEnabled());
  EXPECT_TRUE(organizer().cmdDelete->isEnabled());
}

TEST_F(DeleteTest, TheButtonsStandInsideTheWindowAndOverlapNothing) {
  QWidget* body = organizer().centralWidget();
  std::vector<QWidget*> controls;
  for (QWidget* control : body->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (control != organizer().lblChartBackground) controls.push_back(control);  // the ground under the cells
  }
  for (const QPushButton* button : {organizer().cmdDelete, organizer().cmdDeleteSelectedRecord}) {
    EXPECT_TRUE(body->rect().contains(button->geometry())) << button->objectName().toStdString();
    EXPECT_GE(button->width(), button->sizeHint().width()) << "the caption fits";
    for (QWidget* other : controls) {
      if (other == button) continue;
      EXPECT_FALSE(button->geometry().intersects(other->geometry()))
          << button->objectName().toStdString() << " " << other->objectName().toStdString();
    }
  }
}

// ---- The questions ----------------------------------------------------------------------------------

TEST_F(DeleteTest, TheQuestionOfATask) {
  Delete_Task("Anna", Dentist());
  Expect_Only_Message(organizer::Delete_Question(organizer::DeleteKind::kTask));
  EXPECT_EQ(machine().Unanswered(), 0u);
}

TEST_F(DeleteTest, TheQuestionOfAMember) {
  Delete_Member("Ben");
  Expect_Only_Message({"Confirm Entity Delete",
                       "You are about to delete an person\\entity from the log. All records for this entity will be "
                       "deleted! Are you sure?",
                       vbYesNo, vbCritical});
}

TEST_F(DeleteTest, NoToEitherQuestionChangesNothing) {
  const std::string log = Read_File(organizer::kScheduleFile);
  const std::string reminders = Read_File(organizer::kTaskReminderFile);
  Delete_Task("Anna", Dentist(), vbNo);
  Delete_Member("Ben", vbNo);
  EXPECT_EQ(Read_File(organizer::kScheduleFile), log);
  EXPECT_EQ(Read_File(organizer::kTaskReminderFile), reminders);
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
  EXPECT_EQ(Entries(Members()), (std::vector<std::string>{"Anna", "Ben", "Cleo"}));
  EXPECT_EQ(Caption(organizer().lblGroupMemberName), "Ben");
  EXPECT_FALSE(Scratch_Files_Present());
}

// ---- Both files, byte for byte -----------------------------------------------------------------------

// Each case holds the working files before, the member (and the task) the user clicks, and both
// files after the delete.
class DeleteGoldenTest : public StartedTaskWindowTest, public ::testing::WithParamInterface<GoldenCase> {};

TEST_P(DeleteGoldenTest, BothWorkingFilesAfterTheDelete) {
  const GoldenCase& golden = GetParam();
  Write_File(organizer::kScheduleFile, golden.Bytes("Schedule.tmp"));
  Write_File(organizer::kTaskReminderFile, golden.Bytes("TRemin.tmp"));
  Open_Organizer();
  const std::vector<std::string> clicks = golden.Lines("delete.txt");
  ASSERT_FALSE(clicks.empty());
  Choose_Member(clicks[0]);
  if (clicks.size() > 1) {
    Click_Entry(organizer().lstScheduleList, clicks[1]);
    machine().Answer_Next(vbYes, kTaskQuestion);
    ASSERT_TRUE(Trigger(organizer(), "cmdDeleteSelectedRecord"));
  } else {
    machine().Answer_Next(vbYes, kMemberQuestion);
    ASSERT_TRUE(Trigger(organizer(), "cmdDelete"));
  }
  EXPECT_EQ(Read_File(organizer::kScheduleFile), golden.Expected());
  EXPECT_EQ(Read_File(organizer::kTaskReminderFile), golden.Bytes("reminders.tmp"));
  EXPECT_FALSE(File_Present(organizer::kScheduleScratchFile));
  EXPECT_FALSE(File_Present(organizer::kTaskReminderScratchFile));
}

INSTANTIATE_TEST_SUITE_P(Golden, DeleteGoldenTest, ::testing::ValuesIn(testing::Golden_Cases("log_delete")),
                         testing::Golden_Case_Name);

// ---- Deleting a task ----------------------------------------------------------------------------------

TEST_F(DeleteTest, ATaskWithAReminderLeavesBothFiles) {
  Delete_Task("Anna", Dentist());
  EXPECT_EQ(Log_Numbers(organizer::kScheduleFile), (std::vector<int>{-1, 2, 3, -1, 4, 5}));
  EXPECT_EQ(Log_Numbers(organizer::kTaskReminderFile), (std::vector<int>{2, 3, 4, 5}));
  EXPECT_FALSE(Scratch_Files_Present());
  EXPECT_FALSE(Flag_Held());
}

TEST_F(DeleteTest, ATaskWithoutAReminderLeavesTheRemindersAsTheyWere) {
  Switch_Reminders_Off({2});
  const std::string reminders = Read_File(organizer::kTaskReminderFile);
  Delete_Task("Anna", Task_At(2, "Anna", 2001, "March", "05", "09", "00", "Gym"));
  EXPECT_EQ(Log_Numbers(organizer::kScheduleFile), (std::vector<int>{-1, 1, 3, -1, 4, 5}));
  EXPECT_EQ(Read_File(organizer::kTaskReminderFile), reminders);
}

TEST_F(DeleteTest, TheEntryLeavesTheListTheOthersStayAndTheLogCountsAsChanged) {
  Delete_Task("Anna", Dentist());
  EXPECT_EQ(Entries(Tasks()), (std::vector<std::string>{"2001, 03Mar 05, 08:15 Breakfast, #3",
                                                        "2001, 03Mar 05, 09:00 Gym, #2"}));
  EXPECT_EQ(Caption(organizer().lblGroupMemberName), "Anna");
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
  EXPECT_FALSE(organizer().cmdDeleteSelectedRecord->isEnabled());
  EXPECT_FALSE(organizer().cmdViewTaskInformation->isEnabled());
  // Another entry is chosen as before.
  Click_Entry(Tasks(), "2001, 03Mar 05, 09:00 Gym, #2");
  EXPECT_TRUE(organizer().cmdDeleteSelectedRecord->isEnabled());
  EXPECT_TRUE(organizer().cmdViewTaskInformation->isEnabled());
}

TEST_F(DeleteTest, TheChartNoLongerPaintsTheTask) {
  const int row = 0;
  ASSERT_EQ(Row_Names().front(), "Anna");
  const int cell = organizer::Chart_Cell(row, 6 * (14 % 6) + 3);  // 14:30
  ASSERT_EQ(organizer().Chart_History_List_Content_Tracker(cell, "Get"), Value(1));
  Delete_Task("Anna", Dentist());
  EXPECT_EQ(organizer().Chart_History_List_Content_Tracker(cell, "Get"), Value(-1));
  EXPECT_FALSE(organizer().lblChartHistoryList[cell]->autoFillBackground());
  EXPECT_EQ(Caption(organizer().lblTimePeriod), "Afternoon, March 5, 2001") << "the view stays";
}

TEST_F(DeleteTest, WithAFilterOnOnlyTheDeletedEntryLeavesTheList) {
  Click_Option(organizer().optDisplayOnlyFilteredTasks);
  controls::Set_Caption(organizer().lblAfterRange, "08:00, Mar. 5, 2001");
  controls::Set_Caption(organizer().lblBeforeRange, "10:00, Mar. 5, 2001");
  Choose_Member("Anna");
  ASSERT_EQ(Entries(Tasks()), (std::vector<std::string>{"2001, 03Mar 05, 08:15 Breakfast, #3",
                                                        "2001, 03Mar 05, 09:00 Gym, #2"}));
  Delete_Task("Anna", Task_At(3, "Anna", 2001, "March", "05", "08", "15", "Breakfast"));
  EXPECT_EQ(Entries(Tasks()), std::vector<std::string>{"2001, 03Mar 05, 09:00 Gym, #2"});
  EXPECT_EQ(Log_Numbers(organizer::kScheduleFile), (std::vector<int>{-1, 1, 2, -1, 4, 5}));
}

TEST_F(DeleteTest, OfTwoTasksOfTheSameNameAndMomentOnlyTheChosenOneGoes) {
  Write_Log({Make_Person_Marker("Anna"), Dentist(), Task_At(6, "Anna", 2001, "March", "05", "14", "30", "Dentist")});
  Write_Reminders();
  Delete_Task("Anna", Task_At(6, "Anna", 2001, "March", "05", "14", "30", "Dentist"));
  EXPECT_EQ(Entries(Tasks()), std::vector<std::string>{"2001, 03Mar 05, 14:30 Dentist, #1"});
  EXPECT_EQ(Log_Numbers(organizer::kScheduleFile), (std::vector<int>{-1, 1}));
  EXPECT_EQ(Log_Numbers(organizer::kTaskReminderFile), std::vector<int>{1});
}

TEST_F(DeleteTest, AMemberWithoutAMarkerGoesFromTheLogWithTheLastOfTheirTasks) {
  Delete_Task("Cleo", Task_At(5, "Cleo", 2001, "March", "06", "12", "00", "Lunch"));
  EXPECT_EQ(Log_Members(), (std::vector<std::string>{"Anna", "Ben"}));
  EXPECT_TRUE(Entries(Tasks()).empty());
}

TEST_F(DeleteTest, TheKeysReachTheButtonFromTheList) {
  Choose_Member("Anna");
  Click_Entry(Tasks(), organizer::Task_List_Entry(Dentist()));
  machine().Answer_Next(vbYes, kTaskQuestion);
  // View Task\Event Information, then Delete Selected Record.
  Tab_To_Delete_And_Press(2, organizer().cmdDeleteSelectedRecord, Qt::Key_Return);
  EXPECT_EQ(Log_Numbers(organizer::kScheduleFile), (std::vector<int>{-1, 2, 3, -1, 4, 5}));
}

// ---- Deleting a member -------------------------------------------------------------------------------

TEST_F(DeleteTest, AMemberWithNoTasksTakesOnlyTheMarker) {
  Write_Log({Make_Person_Marker("Anna"), Dentist(), Make_Person_Marker("Dora")});
  Write_Reminders();
  const std::string reminders = Read_File(organizer::kTaskReminderFile);
  Open_Organizer();
  Delete_Member("Dora");
  EXPECT_EQ(Log_Numbers(organizer::kScheduleFile), (std::vector<int>{-1, 1}));
  EXPECT_EQ(Log_Members(), std::vector<std::string>{"Anna"});
  EXPECT_EQ(Read_File(organizer::kTaskReminderFile), reminders);
}

TEST_F(DeleteTest, AMemberTakesTheirMarkerTasksAndReminders) {
  Delete_Member("Anna");
  EXPECT_EQ(Log_Numbers(organizer::kScheduleFile), (std::vector<int>{-1, 4, 5}));
  EXPECT_EQ(Log_Numbers(organizer::kTaskReminderFile), (std::vector<int>{4, 5}));
  EXPECT_EQ(Log_Members(), (std::vector<std::string>{"Ben", "Cleo"}));
  EXPECT_FALSE(Scratch_Files_Present());
  EXPECT_FALSE(Flag_Held());
}

TEST_F(DeleteTest, TheMemberOnShowLeavesTheListsTheLabelAndTheChart) {
  Click_Entry(Members(), "Anna");
  Click_Entry(Tasks(), organizer::Task_List_Entry(Dentist()));
  machine().Answer_Next(vbYes, kMemberQuestion);
  ASSERT_TRUE(Trigger(organizer(), "cmdDelete"));
  EXPECT_EQ(Entries(Members()), (std::vector<std::string>{"Ben", "Cleo"}));
  EXPECT_TRUE(Members()->selectedItems().isEmpty()) << "no other member is chosen in the deleted one's place";
  EXPECT_TRUE(Entries(Tasks()).empty());
  EXPECT_EQ(Caption(organizer().lblGroupMemberName), "");
  EXPECT_EQ(Row_Names(), (std::vector<std::string>{"Ben", "Cleo"}));
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
  EXPECT_FALSE(organizer().cmdDeleteSelectedRecord->isEnabled());
  EXPECT_FALSE(organizer().cmdViewTaskInformation->isEnabled());
  // The next member is chosen as before.
  Click_Entry(Members(), "Ben");
  EXPECT_EQ(Entries(Tasks()), std::vector<std::string>{"2001, 03Mar 05, 16:00 Tennis, #4"});
}

TEST_F(DeleteTest, TheKeysReachDeleteFromTheMemberList) {
  Choose_Member("Ben");
  machine().Answer_Next(vbYes, kMemberQuestion);
  // Show Task\Event List, the task list, then past the disabled buttons of the task list to Delete.
  Tab_To_Delete_And_Press(3, organizer().cmdDelete, Qt::Key_Space);
  EXPECT_EQ(Log_Members(), (std::vector<std::string>{"Anna", "Cleo"}));
}

// ---- The flag and a stop in the middle -------------------------------------------------------------

TEST_F(DeleteTest, AReminderFileHeldEndsTheProgramInsteadOfWaitingAndTouchesNothing) {
  Choose_Member("Anna");
  Click_Entry(Tasks(), organizer::Task_List_Entry(Dentist()));
  const reminders::FlagHold tick(Window<Form1>().Task_Reminder_Flag());
  Expect_Delete_To_End_The_Program(organizer().cmdDeleteSelectedRecord, kTaskQuestion,
                                   "Run-time error '55':\n\nFile already open");
}

// The scratch file of the reminders can't be written: the stop comes after the log's scratch
// file is complete, and both sources stay as they were, the reminders still those of the log.
TEST_F(DeleteTest, AStopBeforeTheCopyingBackLeavesBothFilesAsTheyWere) {
  ASSERT_TRUE(QDir().mkdir(organizer::kTaskReminderScratchFile));
  Choose_Member("Anna");
  Expect_Delete_To_End_The_Program(organizer().cmdDelete, kMemberQuestion,
                                   "Run-time error '75':\n\nPath/File access error");
  EXPECT_FALSE(Flag_Held());
}

// ---- The multi-purpose window's lists ---------------------------------------------------------------

// The multi-purpose window as the delete procedures see it: its two lists, and its termination,
// which records what the Organizer's lists held at that moment.
class MultiPurposeDeleteTest : public DeleteTest {
 protected:
  void SetUp() override {
    DeleteTest::SetUp();
    organizer::MultiPurposeDeleteSource& source = organizer::Multi_Purpose_Delete_Source();
    source.Tasks = List_Of(other_tasks_);
    source.Members = List_Of(other_members_);
    source.Form_Termination_Routine = [this] {
      terminated_with_.push_back(Entries(Members()).size() + Entries(Tasks()).size());
    };
    other_members_.addItems({"Anna", "Ben", "Cleo"});
  }

  organizer::MultiPurposeList List_Of(QListWidget& list) {
    return {[&list] { return list.currentItem() != nullptr ? list.currentItem()->text().toStdString() : ""; },
            [&list](const std::string& entry) {
              for (QListWidgetItem* item : list.findItems(QString::fromStdString(entry), Qt::MatchExactly)) {
                delete list.takeItem(list.row(item));
              }
            }};
  }
  void Choose_Other(QListWidget& list, const std::string& entry) {
    list.setCurrentItem(list.findItems(QString::fromStdString(entry), Qt::MatchExactly).value(0));
  }

  // The member chosen in the window's list, its Delete pressed and the question answered.
  void Delete_Member_There(const std::string& member, int answer = vbYes) {
    Choose_Other(other_members_, member);
    machine().Answer_Next(answer, kMemberQuestion);
    organizer().Delete_A_Group_Member(organizer::kMultiPurposeDelete);
  }

  QListWidget other_tasks_;
  QListWidget other_members_;
  std::vector<std::size_t> terminated_with_;  // the entries of the Organizer's two lists then
};

TEST_F(MultiPurposeDeleteTest, ATaskChosenThereLeavesBothListsBeforeTheWindowIsPutAway) {
  Choose_Member("Anna");  // the Organizer shows Anna's list, with nothing chosen in it
  for (const ScheduleRecord& task : {Dentist(), Task_At(2, "Anna", 2001, "March", "05", "09", "00", "Gym")}) {
    other_tasks_.addItem(QString::fromStdString(organizer::Task_List_Entry(task)));
  }
  Choose_Other(other_tasks_, organizer::Task_List_Entry(Dentist()));
  machine().Answer_Next(vbYes, kTaskQuestion);
  organizer().Delete_A_Selected_Record(organizer::kMultiPurposeDelete1);
  EXPECT_EQ(Log_Numbers(organizer::kScheduleFile), (std::vector<int>{-1, 2, 3, -1, 4, 5}));
  EXPECT_EQ(Log_Numbers(organizer::kTaskReminderFile), (std::vector<int>{2, 3, 4, 5}));
  EXPECT_EQ(Entries(&other_tasks_), std::vector<std::string>{"2001, 03Mar 05, 09:00 Gym, #2"});
  EXPECT_EQ(Entries(Tasks()), (std::vector<std::string>{"2001, 03Mar 05, 08:15 Breakfast, #3",
                                                        "2001, 03Mar 05, 09:00 Gym, #2"}));
  EXPECT_EQ(terminated_with_, std::vector<std::size_t>{3u + 2u});
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
}

TEST_F(MultiPurposeDeleteTest, AMemberChosenThereLeavesBothListsAndTheOneOnShow) {
  Choose_Member("Anna");
  Delete_Member_There("Anna");
  EXPECT_EQ(Log_Members(), (std::vector<std::string>{"Ben", "Cleo"}));
  EXPECT_EQ(Entries(&other_members_), (std::vector<std::string>{"Ben", "Cleo"}));
  EXPECT_EQ(Entries(Members()), (std::vector<std::string>{"Ben", "Cleo"}));
  EXPECT_EQ(Caption(organizer().lblGroupMemberName), "");
  EXPECT_EQ(terminated_with_, std::vector<std::size_t>{2u + 0u});
}

TEST_F(MultiPurposeDeleteTest, AMemberNotOnShowStillEmptiesTheTaskListOnShow) {
  Choose_Member("Anna");
  Delete_Member_There("Ben");
  EXPECT_EQ(Log_Members(), (std::vector<std::string>{"Anna", "Cleo"}));
  EXPECT_TRUE(Entries(Tasks()).empty());
  EXPECT_EQ(Caption(organizer().lblGroupMemberName), "");
}

TEST_F(MultiPurposeDeleteTest, NoThereLeavesTheWindowStanding) {
  Delete_Member_There("Ben", vbNo);
  EXPECT_EQ(Entries(&other_members_), (std::vector<std::string>{"Anna", "Ben", "Cleo"}));
  EXPECT_TRUE(terminated_with_.empty());
  EXPECT_EQ(Log_Members(), (std::vector<std::string>{"Anna", "Ben", "Cleo"}));
}

TEST_F(DeleteTest, TheMultiPurposeOriginsSelectNothingWhileThatWindowIsNotThere) {
  const std::string log = Read_File(organizer::kScheduleFile);
  organizer().Delete_A_Selected_Record(organizer::kMultiPurposeDelete1);
  organizer().Delete_A_Group_Member(organizer::kMultiPurposeDelete);
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(Read_File(organizer::kScheduleFile), log);
}

TEST_F(DeleteTest, AnOriginOfAnotherCaseOrTheOtherProcedureSelectsNothing) {
  Choose_Member("Anna");
  Click_Entry(Tasks(), organizer::Task_List_Entry(Dentist()));
  const std::string log = Read_File(organizer::kScheduleFile);
  for (std::string_view origin : {std::string_view("cmddeleteselectedrecord_click()"), organizer::kCmdDeleteClick,
                                  organizer::kMultiPurposeDelete}) {
    organizer().Delete_A_Selected_Record(origin);
  }
  for (std::string_view origin : {std::string_view("CmdDelete_Click()"), organizer::kCmdDeleteSelectedRecordClick,
                                  organizer::kMultiPurposeDelete1}) {
    organizer().Delete_A_Group_Member(origin);
  }
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(Read_File(organizer::kScheduleFile), log);
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
}

// ---- With the whole program: numbers, reminders and the large calendar -----------------------------

class DeleteInTheProgramTest : public testing::NewTaskWindowTest {
 protected:
  // Tasks of Anna entered in the new-task window, one after the other as it stays open, all at
  // 14:30 on March 5, 2001 with their reminders on at the moment of entry. Her name is typed each
  // time: a new member's name that exists adds no second marker.
  void Enter_Tasks(const std::vector<QString>& names) {
    Open_Entry();
    Enter_Moment(organizer::kTaskStart, "March", "05", "", "", "14", "30");
    for (const QString& name : names) {
      Type(entry().txtNameOfEvent, name);
      New_Member("Anna");
      Click_Indicator(entry().optOn);
      Add();
    }
    machine().Clear_Messages();
  }
  void Enter_Three_Tasks() { Enter_Tasks({"First", "Second", "Third"}); }

  void Delete_Task_Numbered(int number) {
    controls::Show_In_Front(organizer());
    Process_Events();
    Click_Entry(organizer().lstListOfPeople, "Anna");
    ASSERT_TRUE(Trigger(organizer(), "cmdShowTaskList"));
    for (int i = 0; i < organizer().lstScheduleList->count(); ++i) {
      QListWidgetItem* item = organizer().lstScheduleList->item(i);
      if (organizer::Record_Number_Of_Entry(item->text().toStdString()) == std::to_string(number)) {
        Click_Entry(organizer().lstScheduleList, item->text().toStdString());
        break;
      }
    }
    machine().Answer_Next(vbYes, kTaskQuestion);
    ASSERT_TRUE(Trigger(organizer(), "cmdDeleteSelectedRecord"));
  }
  void Click_Entry(QListWidget* list, const std::string& text) {
    const QList<QListWidgetItem*> found = list->findItems(QString::fromStdString(text), Qt::MatchExactly);
    ASSERT_FALSE(found.isEmpty()) << text;
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(found.front()).center());
  }
  std::vector<int> Numbers() {
    std::vector<int> numbers;
    for (const ScheduleRecord& task : Tasks()) numbers.push_back(static_cast<int>(task.Record_Number.whole()));
    return numbers;
  }
  int Large_Calendar_Items() {
    int items = 0;
    for (const QComboBox* list : large().cboAppointments) items += list->count();
    return items;
  }
};

TEST_F(DeleteInTheProgramTest, TheHighestNumberDeletedIsGivenToTheNextTaskAndAnEarlierOneNever) {
  Enter_Three_Tasks();
  ASSERT_EQ(Numbers(), (std::vector<int>{1, 2, 3}));
  Delete_Task_Numbered(3);
  Enter_Three_Tasks();  // three more: the first of them takes 3 again
  EXPECT_EQ(Numbers(), (std::vector<int>{1, 2, 3, 4, 5}));
  Delete_Task_Numbered(2);
  Enter_Tasks({"Late"});
  EXPECT_EQ(Numbers(), (std::vector<int>{1, 3, 4, 5, 6}));
}

TEST_F(DeleteInTheProgramTest, ADeletedTasksReminderNeverFires) {
  Enter_Three_Tasks();
  Delete_Task_Numbered(1);
  Delete_Task_Numbered(2);
  ASSERT_EQ(Reminders().size(), 1u);
  machine().Advance_Seconds(10);
  EXPECT_TRUE(Window<frmReminderWindow>().isVisible());
  EXPECT_EQ(Window<frmReminderWindow>().windowTitle(), "Reminder: Third");
}

TEST_F(DeleteInTheProgramTest, TheLargeCalendarForgetsADeletedMemberAndADeletedTask) {
  Enter_Three_Tasks();
  large().cboShowTaskListFor_DropDown();
  large().cboShowTaskListFor->setCurrentText("Anna");
  large().Refresh_Calendar_TaskList();
  ASSERT_EQ(Large_Calendar_Items(), 3);
  Delete_Task_Numbered(2);
  EXPECT_EQ(Large_Calendar_Items(), 2);
  EXPECT_EQ(large().cboShowTaskListFor->currentText(), "Anna");

  machine().Answer_Next(vbYes, kMemberQuestion);
  ASSERT_TRUE(Trigger(organizer(), "cmdDelete"));
  EXPECT_EQ(large().cboShowTaskListFor->currentText(), "");
  EXPECT_EQ(large().cboShowTaskListFor->count(), 0);
  EXPECT_EQ(Large_Calendar_Items(), 0);
  EXPECT_TRUE(Tasks().empty());
  EXPECT_TRUE(Reminders().empty());
}

}  // namespace
}  // namespace orrivane
