// Changing a task: the record rebuilt from what the task information window holds, the save
// that writes it in its own place in the log and keeps the list of task reminders equal to the
// log's reminders, a failure between the copies of a rewrite, and the checks of the times and
// identity windows.
#include "organizer/task_edit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "core/runtime_failure.h"
#include "organizer/log_file.h"
#include "organizer/log_samples.h"
#include "organizer/task_list.h"

namespace orrivane::organizer {
namespace {

using namespace samples;

// What the window holds of a record it shows: its labels, the status caption, the keeper's
// reminder values, and the range flag the times window left (empty when it wasn't visited).
TaskInformation Shown(const ScheduleRecord& r, const Value& range_flag = {}) {
  TaskInformation task;
  task.Record_Number = r.Record_Number.text();
  task.Task_Name = r.Task_Name.text();
  task.Task_Description = r.Task_Description.text();
  task.Task_Comments = r.Task_Comments.text();
  task.Person_Name = r.Person_Name.text();
  task.From = {Task_Date_Label(r.Start_Month, r.Start_Date, r.Start_Century, r.Start_Year),
               Task_Time_Label(r.Start_Hour, r.Start_Minute)};
  task.To = {Task_Date_Label(r.Finish_Month, r.Finish_Date, r.Finish_Century, r.Finish_Year),
             Task_Time_Label(r.Finish_Hour, r.Finish_Minute)};
  task.Time_Range_Flag = range_flag;
  task.Color_Code = r.Color_Code;
  task.Status = std::string(r.Reminder_Status == Value(1) ? kReminderOn : kReminderOff);
  const auto fields = Reminder_Fields_Of(r);
  for (std::size_t i = 0; i < fields.size(); ++i) task.Reminder[i] = *fields[i];
  return task;
}

// ---- The record rebuilt -------------------------------------------------------------------------

TEST(Generate_Parsed_Elements, TakesBothLabelPairsApart) {
  const ParsedElements parsed = Generate_Parsed_Elements({"March 05, 2001", "14:30"}, {"December 31, 1999", "09:05"});
  EXPECT_EQ(parsed.From.Month.text(), "March");
  EXPECT_EQ(parsed.From.Date.text(), "05");
  EXPECT_EQ(parsed.From.Year.text(), "2001");
  EXPECT_EQ(parsed.From.Hour.text(), "14");
  EXPECT_EQ(parsed.From.Minute.text(), "30");
  EXPECT_EQ(parsed.To.Month.text(), "December");
  EXPECT_EQ(parsed.To.Date.text(), "31");
  EXPECT_EQ(parsed.To.Year.text(), "1999");
  EXPECT_EQ(parsed.To.Hour.text(), "09");
  EXPECT_EQ(parsed.To.Minute.text(), "05");
}

TEST(Build_Edited_Record, AnUnchangedTaskComesBackFieldByField) {
  EXPECT_TRUE(Same_Record(Build_Edited_Record(1, Shown(Dentist_Task(), 0)), Dentist_Task()));
}

TEST(Build_Edited_Record, TheCenturyAndYearComeFromTheFullYear) {
  TaskInformation task = Shown(Dentist_Task(), 1);
  task.From = {"October 15, 1582", "00:00"};
  task.To = {"January 01, 2100", "23:59"};
  const ScheduleRecord record = Build_Edited_Record(1, task);
  EXPECT_EQ(Kind(record.Start_Century), "number");
  EXPECT_EQ(record.Start_Century, Value(15));
  EXPECT_EQ(record.Start_Year, Value(82));
  EXPECT_EQ(record.Finish_Century, Value(21));
  EXPECT_EQ(record.Finish_Year, Value(0));
  EXPECT_EQ(Kind(record.Start_Date), "text");
  EXPECT_EQ(record.Finish_Date.text(), "01");
  EXPECT_EQ(record.Finish_Hour.text(), "23");
  EXPECT_EQ(record.Time_Range_Flag, Value(1));
}

TEST(Build_Edited_Record, FieldOneIsTheOneGivenAndTheStatusCaptionGivesFieldTwenty) {
  TaskInformation task = Shown(Dentist_Task());
  task.Record_Number = "7";
  task.Status = "OFF";
  const ScheduleRecord record = Build_Edited_Record(4, task);
  EXPECT_EQ(record.Record_Number, Value(4));
  EXPECT_EQ(record.Reminder_Status, Value(0));
  task.Status = "ON";
  EXPECT_EQ(Build_Edited_Record(4, task).Reminder_Status, Value(1));
}

TEST(Build_Edited_Record, AnEmptyRangeFlagMakesTheFourthLineEmpty) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  Write_Log(path, {Build_Edited_Record(1, Shown(Dentist_Task()))});
  std::string expected = kDentistBytes;
  expected.replace(expected.find("\r\n0\r\n"), 5, "\r\n\r\n");
  EXPECT_EQ(Read_Bytes(path), expected);
}

TEST(Swapped_Status, OnAndOffChangePlaces) {
  EXPECT_EQ(Swapped_Status("ON"), "OFF");
  EXPECT_EQ(Swapped_Status("OFF"), "ON");
  EXPECT_TRUE(Is_Reminder_On("ON"));
  EXPECT_FALSE(Is_Reminder_On("OFF"));
  EXPECT_FALSE(Is_Reminder_On("on"));
}

// ---- The place of the record --------------------------------------------------------------------

class Save_Test : public ::testing::Test {
 protected:
  void Write(const std::vector<ScheduleRecord>& log, const std::vector<ScheduleRecord>& reminders) {
    Write_Log(files_.Log, log);
    Write_Log(files_.Reminders, reminders);
  }
  std::string Bytes_Of(const std::vector<ScheduleRecord>& records) {
    const std::string expected = folder_.file("expected.tmp");
    Write_Log(expected, records);
    return Read_Bytes(expected);
  }
  bool Exists(const std::string& path) const { return std::filesystem::exists(path); }

  // The list of task reminders holds exactly the log's records with their reminder on, each once.
  ::testing::AssertionResult Reminders_Follow_The_Log() {
    std::vector<ScheduleRecord> on;
    for (const ScheduleRecord& record : Read_Log(files_.Log)) {
      if (record.Reminder_Status == Value(1)) on.push_back(record);
    }
    std::vector<ScheduleRecord> reminders = Read_Log(files_.Reminders);
    if (reminders.size() != on.size()) {
      return ::testing::AssertionFailure() << reminders.size() << " reminders for " << on.size() << " in the log";
    }
    for (const ScheduleRecord& record : on) {
      const auto twin = std::find_if(reminders.begin(), reminders.end(),
                                     [&](const ScheduleRecord& r) { return Same_Record(r, record); });
      if (twin == reminders.end()) return ::testing::AssertionFailure() << "no reminder of " << record.Task_Name.text();
      reminders.erase(twin);
    }
    return ::testing::AssertionSuccess();
  }

  TempFolder folder_;
  EditFiles files_{folder_.file("Schedule.tmp"), folder_.file("Schedule1.tmp"), folder_.file("TRemin.tmp"),
                   folder_.file("TRemin1.tmp")};
};

TEST_F(Save_Test, ThePositionIsTheFirstRecordWhoseNumberReadsAsTheCaption) {
  Write({Make_Person_Marker("Anna"), Task(1, "Anna", 0), Task(2, "Anna", 0), Task(2, "Anna", 1)}, {});
  EXPECT_EQ(Record_Position(files_.Log, "1"), 1u);
  EXPECT_EQ(Record_Position(files_.Log, "2"), 2u);
}

TEST_F(Save_Test, ANumberNotInTheLogPointsAtTheLastRecord) {
  Write({Task(1, "Anna", 0), Task(2, "Anna", 0), Make_Person_Marker("Ben")}, {});
  EXPECT_EQ(Record_Position(files_.Log, "9"), 2u);
  EXPECT_EQ(Record_Position(files_.Log, "01"), 2u) << "compared as text";
}

TEST_F(Save_Test, AnEmptyLogHasNoPosition) {
  Write({}, {});
  EXPECT_EQ(Record_Position(files_.Log, "1"), std::nullopt);
}

// ---- Saving -------------------------------------------------------------------------------------

TEST_F(Save_Test, AnUnchangedTaskKeepsItsPlaceAndTheMarkersAroundItComeOutInEightLines) {
  Generate_Person_Marker_Record(files_.Log, "Anna");
  Append_Record(files_.Log, Task(1, "Anna", 0));
  Generate_Person_Marker_Record(files_.Log, "Ben");
  Write_Log(files_.Reminders, {});
  Save_Changes_To_Record(Shown(Task(1, "Anna", 0), 0), files_);
  const std::string expected = Bytes_Of({Make_Person_Marker("Anna"), Task(1, "Anna", 0), Make_Person_Marker("Ben")});
  EXPECT_EQ(Read_Bytes(files_.Log), expected);
  EXPECT_EQ(Read_Bytes(files_.Log_Scratch), expected) << "the scratch file of the log stays";
  EXPECT_EQ(Read_Bytes(files_.Reminders), "");
}

TEST_F(Save_Test, AChangedReminderKeepsItsPlaceInTheReminders) {
  Write({Task(1, "Anna", 1), Task(2, "Anna", 1), Task(3, "Ben", 1)},
        {Task(1, "Anna", 1), Task(2, "Anna", 1), Task(3, "Ben", 1)});
  ScheduleRecord changed = Task(2, "Anna", 1);
  changed.Task_Name = "Dentist again";
  changed.Interval_Minutes = "30";
  changed.Reminder_Interval = 2;
  Save_Changes_To_Record(Shown(changed, 0), files_);
  EXPECT_EQ(Read_Bytes(files_.Log), Bytes_Of({Task(1, "Anna", 1), changed, Task(3, "Ben", 1)}));
  EXPECT_EQ(Read_Bytes(files_.Reminders), Bytes_Of({Task(1, "Anna", 1), changed, Task(3, "Ben", 1)}));
  EXPECT_FALSE(Exists(files_.Reminders_Scratch)) << "deleted at the end";
}

TEST_F(Save_Test, AReminderSwitchedOffLeavesTheReminders) {
  Write({Task(1, "Anna", 1), Task(2, "Anna", 1)}, {Task(1, "Anna", 1), Task(2, "Anna", 1)});
  Save_Changes_To_Record(Shown(Task(1, "Anna", 0), 0), files_);
  EXPECT_EQ(Read_Bytes(files_.Log), Bytes_Of({Task(1, "Anna", 0), Task(2, "Anna", 1)}));
  EXPECT_EQ(Read_Bytes(files_.Reminders), Bytes_Of({Task(2, "Anna", 1)}));
  EXPECT_TRUE(Reminders_Follow_The_Log());
}

TEST_F(Save_Test, AReminderSwitchedOnGoesToTheEnd) {
  Write({Task(1, "Anna", 0), Task(2, "Anna", 1)}, {Task(2, "Anna", 1)});
  Save_Changes_To_Record(Shown(Task(1, "Anna", 1), 0), files_);
  EXPECT_EQ(Read_Bytes(files_.Reminders), Bytes_Of({Task(2, "Anna", 1), Task(1, "Anna", 1)}));
  EXPECT_FALSE(Exists(files_.Reminders_Scratch)) << "an append needs no scratch file";
  EXPECT_TRUE(Reminders_Follow_The_Log());
}

TEST_F(Save_Test, AReminderLeftOffLeavesTheRemindersAlone) {
  Write({Task(1, "Anna", 0), Task(2, "Anna", 1)}, {Task(2, "Anna", 1)});
  const std::string before = Read_Bytes(files_.Reminders);
  Save_Changes_To_Record(Shown(Task(1, "Anna", 0), 1), files_);
  EXPECT_EQ(Read_Bytes(files_.Reminders), before);
}

TEST_F(Save_Test, TheRemindersFindTheRecordByItsNumberAsANumber) {
  ScheduleRecord written_as_text = Task(5, "Anna", 1);
  written_as_text.Record_Number = "05";
  Write({Task(5, "Anna", 1)}, {written_as_text});
  Save_Changes_To_Record(Shown(Task(5, "Anna", 0)), files_);
  EXPECT_EQ(Read_Bytes(files_.Reminders), "");
}

TEST_F(Save_Test, AVanishedRecordReplacesTheLastRecordUnderTheLastRecordsNumber) {
  Write({Task(1, "Anna", 0), Task(3, "Ben", 0)}, {});
  ScheduleRecord vanished = Task(2, "Anna", 0);
  vanished.Task_Name = "Gone";
  const ScheduleRecord saved = Save_Changes_To_Record(Shown(vanished, 0), files_);
  ScheduleRecord expected = vanished;
  expected.Record_Number = 3;
  EXPECT_TRUE(Same_Record(saved, expected));
  EXPECT_EQ(Read_Bytes(files_.Log), Bytes_Of({Task(1, "Anna", 0), expected}));
}

TEST_F(Save_Test, AVanishedRecordWithItsReminderOnIsAppendedUnderTheLastRecordsNumber) {
  Write({Task(1, "Anna", 0), Task(3, "Ben", 0)}, {});
  const ScheduleRecord saved = Save_Changes_To_Record(Shown(Task(2, "Anna", 1), 0), files_);
  EXPECT_EQ(saved.Record_Number, Value(3));
  EXPECT_EQ(Read_Bytes(files_.Reminders), Bytes_Of({saved}));
  EXPECT_TRUE(Reminders_Follow_The_Log());
}

TEST_F(Save_Test, AVanishedRecordAfterAMarkerTakesTheMarkersPlaceAndItsNumber) {
  Write({Task(1, "Anna", 0), Make_Person_Marker("Ben")}, {});
  const ScheduleRecord saved = Save_Changes_To_Record(Shown(Task(2, "Anna", 0), 0), files_);
  EXPECT_EQ(saved.Record_Number, Value(-1));
  EXPECT_EQ(saved.Task_Name, Value("Task 2"));
  EXPECT_EQ(Read_Bytes(files_.Log), Bytes_Of({Task(1, "Anna", 0), saved}));
}

TEST_F(Save_Test, AnEmptyLogIsInputPastEndOfFileAndTouchesNeitherFile) {
  Write({}, {Task(1, "Anna", 1)});
  const std::string reminders = Read_Bytes(files_.Reminders);
  Write_Bytes(files_.Log_Scratch, "left from before");
  EXPECT_EQ(Failure_Of([&] { Save_Changes_To_Record(Shown(Task(1, "Anna", 1), 0), files_); }),
            kInputPastEndOfFile);
  EXPECT_EQ(Read_Bytes(files_.Log), "");
  EXPECT_TRUE(Exists(files_.Log));
  EXPECT_EQ(Read_Bytes(files_.Reminders), reminders);
  EXPECT_EQ(Read_Bytes(files_.Log_Scratch), "") << "opened for output before the reading";
  EXPECT_FALSE(Exists(files_.Reminders_Scratch));
}

// ---- A failure between the two copies -------------------------------------------------------------

class Save_Failure_Test : public Save_Test {
 protected:
  void SetUp() override {
    Generate_Person_Marker_Record(files_.Log, "Anna");
    for (const ScheduleRecord& r : {Task(1, "Anna", 1), Task(2, "Anna", 1), Task(3, "Anna", 0)}) {
      Append_Record(files_.Log, r);
    }
    Write_Log(files_.Reminders, {Task(2, "Anna", 1), Task(1, "Anna", 1)});
    log_before_ = Read_Bytes(files_.Log);
    reminders_before_ = Read_Bytes(files_.Reminders);
  }

  // Saves `task` with a disk failing at one seam: the failure the program ends with.
  int Fail_At(const TaskInformation& task, bool at_log_seam) {
    RewriteSeams seams;
    const auto fail = [] { throw RuntimeFailure(kDeviceIOError); };
    (at_log_seam ? seams.Log_Scratch_Complete : seams.Reminders_Scratch_Complete) = fail;
    return Failure_Of([&] { Save_Changes_To_Record(task, files_, seams); });
  }

  void Expect_Both_Files_As_Before() {
    EXPECT_EQ(Read_Bytes(files_.Log), log_before_);
    EXPECT_EQ(Read_Bytes(files_.Reminders), reminders_before_);
    EXPECT_TRUE(Reminders_Follow_The_Log());
  }

  std::string log_before_;
  std::string reminders_before_;
};

TEST_F(Save_Failure_Test, AtTheLogsSeamBothFilesStayAsTheyWere) {
  ScheduleRecord changed = Task(1, "Anna", 0);
  changed.Task_Name = "Changed";
  EXPECT_EQ(Fail_At(Shown(changed, 0), true), kDeviceIOError);
  Expect_Both_Files_As_Before();
}

TEST_F(Save_Failure_Test, AtTheRemindersSeamBothFilesStayAsTheyWere) {
  ScheduleRecord changed = Task(2, "Anna", 1);
  changed.Task_Name = "Changed";
  EXPECT_EQ(Fail_At(Shown(changed, 0), false), kDeviceIOError);
  Expect_Both_Files_As_Before();
}

TEST_F(Save_Failure_Test, AReminderSwitchedOnFailingAtTheLogsSeamIsNotAppended) {
  EXPECT_EQ(Fail_At(Shown(Task(3, "Anna", 1), 0), true), kDeviceIOError);
  Expect_Both_Files_As_Before();
}

TEST_F(Save_Failure_Test, WithoutAFailureTheSameSaveWritesBothFilesWhole) {
  ScheduleRecord changed = Task(2, "Anna", 0);
  changed.Task_Name = "Changed";
  bool log_seam = false;
  bool reminders_seam = false;
  Save_Changes_To_Record(Shown(changed, 0), files_, {[&] { log_seam = true; }, [&] { reminders_seam = true; }});
  EXPECT_TRUE(log_seam);
  EXPECT_TRUE(reminders_seam);
  EXPECT_EQ(Read_Bytes(files_.Log),
            Bytes_Of({Make_Person_Marker("Anna"), Task(1, "Anna", 1), changed, Task(3, "Anna", 0)}));
  EXPECT_EQ(Read_Bytes(files_.Reminders), Bytes_Of({Task(1, "Anna", 1)}));
  EXPECT_TRUE(Reminders_Follow_The_Log());
}

// ---- Changing the times ---------------------------------------------------------------------------

const MomentLabels kDentistStart{"March 05, 2001", "14:30"};

TEST(Select_Moment, EmptyBoxesKeepTheMoment) {
  const MomentSelection selection = Select_Moment(kDentistStart, MomentBoxes{"", "", "", "", "", ""});
  ASSERT_TRUE(selection.Labels);
  EXPECT_EQ(*selection.Labels, kDentistStart);
}

TEST(Select_Moment, ASinglePartCanBeChanged) {
  const auto labels_after = [](const MomentBoxes& boxes) { return Select_Moment(kDentistStart, boxes).Labels; };
  EXPECT_EQ(labels_after({"Apr", "", "", "", "", ""}), (MomentLabels{"April 05, 2001", "14:30"}));
  EXPECT_EQ(labels_after({"", "17", "", "", "", ""}), (MomentLabels{"March 17, 2001", "14:30"}));
  EXPECT_EQ(labels_after({"", "", "19", "", "", ""}), (MomentLabels{"March 05, 1901", "14:30"}));
  EXPECT_EQ(labels_after({"", "", "", "99", "", ""}), (MomentLabels{"March 05, 2099", "14:30"}));
  EXPECT_EQ(labels_after({"", "", "", "", "09", ""}), (MomentLabels{"March 05, 2001", "09:30"}));
  EXPECT_EQ(labels_after({"", "", "", "", "", "00"}), (MomentLabels{"March 05, 2001", "14:00"}));
}

TEST(Select_Moment, AllBoxesTogether) {
  EXPECT_EQ(Select_Moment(kDentistStart, {"Dec", "31", "19", "99", "23", "59"}).Labels,
            (MomentLabels{"December 31, 1999", "23:59"}));
}

TEST(Select_Moment, FebruaryTellsThatItIsThisYear) {
  const MomentSelection selection = Select_Moment(kDentistStart, MomentBoxes{"Feb", "29", "", "", "", ""});
  EXPECT_FALSE(selection.Labels);
  EXPECT_EQ(selection.Refusal,
            Exclamation_Message("Invalid Date", "February only has 28 days in it this year."));
}

TEST(Select_Moment, AnotherMonthTellsItsLength) {
  EXPECT_EQ(Select_Moment(kDentistStart, MomentBoxes{"Apr", "31", "", "", "", ""}).Refusal,
            Exclamation_Message("Invalid Date", "April only has 30 days in it."));
}

TEST(Select_Moment, TheYearIsGregorian) {
  EXPECT_TRUE(Select_Moment({"February 01, 2000", "00:00"}, MomentBoxes{"", "29", "", "", "", ""}).Labels);
  EXPECT_EQ(Select_Moment({"February 01, 1900", "00:00"}, MomentBoxes{"", "29", "", "", "", ""}).Refusal.text,
            "February only has 28 days in it this year.");
}

TEST(Finish_Before_Start, AFinishEarlierOnTheSameDayIsRefused) {
  EXPECT_TRUE(Finish_Before_Start(kDentistStart, {"March 05, 2001", "14:29"}));
  EXPECT_TRUE(Finish_Before_Start(kDentistStart, {"March 05, 2001", "13:59"}));
}

TEST(Finish_Before_Start, EqualMomentsAndLaterOnesAreAccepted) {
  EXPECT_FALSE(Finish_Before_Start(kDentistStart, kDentistStart));
  EXPECT_FALSE(Finish_Before_Start(kDentistStart, {"March 05, 2001", "14:31"}));
  EXPECT_FALSE(Finish_Before_Start(kDentistStart, {"January 01, 2002", "00:00"}));
}

TEST(Finish_Before_Start, YearMonthAndDateCountBeforeTheTime) {
  EXPECT_TRUE(Finish_Before_Start({"January 01, 2002", "00:00"}, {"December 31, 2001", "23:59"}));
  EXPECT_TRUE(Finish_Before_Start({"April 01, 2001", "00:00"}, {"March 31, 2001", "23:59"}));
  EXPECT_TRUE(Finish_Before_Start({"March 06, 2001", "00:00"}, {"March 05, 2001", "23:59"}));
}

TEST(Time_Range_Flag_Of, EqualMomentsAreZeroAndOthersOne) {
  EXPECT_EQ(Time_Range_Flag_Of(kDentistStart, kDentistStart), Value(0));
  EXPECT_EQ(Time_Range_Flag_Of(kDentistStart, {"March 05, 2001", "14:31"}), Value(1));
  EXPECT_EQ(Time_Range_Flag_Of(kDentistStart, {"March 06, 2001", "14:30"}), Value(1));
}

// ---- The identity and the messages ------------------------------------------------------------------

TEST(New_Member_Refusal, OnlyAnEmptyNameIsRefused) {
  EXPECT_EQ(New_Member_Refusal(""),
            Exclamation_Message("No Name Entered", "Please enter the name of the new group member."));
  EXPECT_TRUE(New_Member_Refusal(" ").empty());
  EXPECT_TRUE(New_Member_Refusal("Carla").empty());
}

TEST(Task_Edit_Message, TheQuestionsOfSavingAndTheirButtons) {
  EXPECT_EQ(Task_Edit_Message(kConfirmSaveChanges),
            (Message{"Save Changes", "Are you sure you want to save these changes to this record?", vbYesNo,
                     vbQuestion}));
  EXPECT_EQ(Task_Edit_Message(kSaveOnClose),
            (Message{"Save Changes", "Save Changes to this record?", vbYesNoCancel, vbQuestion}));
  EXPECT_EQ(Task_Edit_Message(kSaveOnUnload),
            (Message{"Save Changes", "Save changes to this record?", vbYesNo, vbQuestion}));
  EXPECT_EQ(Task_Edit_Message(kEndingBeforeStarting),
            Exclamation_Message("Invalid Time", "The 'Ending Time' must be at or later than the 'Starting Time'."));
}

}  // namespace
}  // namespace orrivane::organizer
