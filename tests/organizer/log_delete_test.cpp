// Deleting from the log: the questions, the two drop tests, and both files rewritten together
// under the flag of the reminders, never leaving the reminders apart from the log.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/runtime_failure.h"
#include "organizer/log_delete.h"
#include "organizer/log_file.h"
#include "organizer/log_samples.h"

namespace orrivane::organizer {
namespace {

using namespace samples;

// ---- The questions --------------------------------------------------------------------------------

TEST(Delete_Question, OfATask) {
  const Message question = Delete_Question(DeleteKind::kTask);
  EXPECT_EQ(question.title, "Confirm Event Delete");
  EXPECT_EQ(question.text, "Delete the selected task?");
  EXPECT_EQ(question.buttons, vbYesNo);
  EXPECT_EQ(question.icon, vbQuestion);
}

TEST(Delete_Question, OfAMemberWarnsThatAllTheirRecordsGo) {
  const Message question = Delete_Question(DeleteKind::kMember);
  EXPECT_EQ(question.title, "Confirm Entity Delete");
  EXPECT_EQ(question.text,
            "You are about to delete an person\\entity from the log. All records for this entity will be deleted! "
            "Are you sure?");
  EXPECT_EQ(question.buttons, vbYesNo);
  EXPECT_EQ(question.icon, vbCritical);
}

// ---- The drop tests -------------------------------------------------------------------------------

TEST(Is_Task_Numbered, ComparesTheNumbersWithZeroAdded) {
  const ScheduleRecord nine = Task(9, "Anna", 1);
  EXPECT_TRUE(Is_Task_Numbered(Value("9"))(nine));
  EXPECT_TRUE(Is_Task_Numbered(Value("09"))(nine));
  EXPECT_TRUE(Is_Task_Numbered(Value(9))(nine));
  EXPECT_FALSE(Is_Task_Numbered(Value("90"))(nine));
  EXPECT_FALSE(Is_Task_Numbered(Value("1"))(Make_Person_Marker("Anna")));
}

TEST(Is_Task_Numbered, ANumberThatIsNoNumberIsATypeMismatchOnlyWhenARecordIsCompared) {
  const RecordTest test = Is_Task_Numbered(Value("Dentist"));
  EXPECT_EQ(Failure_Of([&] { test(Task(1, "Anna", 1)); }), kTypeMismatch);
}

TEST(Is_Record_Of_Member, TakesTheMarkerAndTheTasksOfExactlyThatName) {
  const RecordTest anna = Is_Record_Of_Member("Anna");
  EXPECT_TRUE(anna(Make_Person_Marker("Anna")));
  EXPECT_TRUE(anna(Task(1, "Anna", 0)));
  EXPECT_FALSE(anna(Task(2, "anna", 0)));
  EXPECT_FALSE(anna(Task(3, "Anna ", 0)));
  EXPECT_FALSE(anna(Make_Person_Marker("Annabel")));
}

// ---- Both files rewritten together ---------------------------------------------------------------

class Drop_From_Log_Test : public ::testing::Test {
 protected:
  // Anna's marker as first written and three tasks of hers, 1 and 3 with reminders; Ben's marker
  // and a task of his with a reminder. The reminders hold exactly the tasks with reminders on.
  void SetUp() override {
    Generate_Person_Marker_Record(files_.sources[0], "Anna");
    for (const ScheduleRecord& record : {Task(1, "Anna", 1), Task(2, "Anna", 0), Task(3, "Anna", 1)}) {
      Append_Record(files_.sources[0], record);
    }
    Generate_Person_Marker_Record(files_.sources[0], "Ben");
    Append_Record(files_.sources[0], Task(4, "Ben", 1));
    Write_Log(files_.sources[1], {Task(1, "Anna", 1), Task(3, "Anna", 1), Task(4, "Ben", 1)});
    log_before_ = Log_Bytes();
    reminders_before_ = Reminder_Bytes();
  }

  std::string Log_Bytes() const { return Read_Bytes(files_.sources[0]); }
  std::string Reminder_Bytes() const { return Read_Bytes(files_.sources[1]); }
  std::string Bytes_Of(const std::vector<ScheduleRecord>& records) const {
    const std::string written = folder_.file("written.tmp");
    Write_Log(written, records);
    return Read_Bytes(written);
  }
  bool Present(const std::string& path) const { return std::filesystem::exists(path); }

  // The reminders stand for exactly the log's tasks with a reminder on, in the log's order.
  void Expect_Reminders_Follow_The_Log() const {
    std::vector<ScheduleRecord> reminders;
    For_Each_Record(files_.sources[0], [&](const ScheduleRecord& record) {
      if (record.Reminder_Status == Value(1)) reminders.push_back(record);
    });
    EXPECT_EQ(Reminder_Bytes(), Bytes_Of(reminders));
  }

  TempFolder folder_;
  DeleteFiles files_{{folder_.file("Schedule.tmp"), folder_.file("TRemin.tmp")},
                     {folder_.file("Schedule1.tmp"), folder_.file("TRemin1.tmp")}};
  reminders::InUseFlag flag_;
  std::string log_before_;
  std::string reminders_before_;
};

TEST_F(Drop_From_Log_Test, ATaskWithAReminderLeavesBothFilesAndTheScratchFilesGo) {
  Drop_From_Log(flag_, Is_Task_Numbered(Value("3")), files_);
  EXPECT_EQ(Log_Bytes(), Bytes_Of({Make_Person_Marker("Anna"), Task(1, "Anna", 1), Task(2, "Anna", 0),
                                   Make_Person_Marker("Ben"), Task(4, "Ben", 1)}));
  EXPECT_EQ(Reminder_Bytes(), Bytes_Of({Task(1, "Anna", 1), Task(4, "Ben", 1)}));
  EXPECT_FALSE(Present(files_.scratches[0]));
  EXPECT_FALSE(Present(files_.scratches[1]));
  EXPECT_FALSE(flag_.Held());
}

TEST_F(Drop_From_Log_Test, ATaskWithoutAReminderLeavesTheRemindersAsTheyWere) {
  Drop_From_Log(flag_, Is_Task_Numbered(Value("2")), files_);
  EXPECT_EQ(Reminder_Bytes(), reminders_before_);
  Expect_Reminders_Follow_The_Log();
}

TEST_F(Drop_From_Log_Test, AMemberTakesTheMarkerTheTasksAndTheirRemindersInOnePass) {
  Drop_From_Log(flag_, Is_Record_Of_Member("Anna"), files_);
  EXPECT_EQ(Log_Bytes(), Bytes_Of({Make_Person_Marker("Ben"), Task(4, "Ben", 1)}));
  EXPECT_EQ(Reminder_Bytes(), Bytes_Of({Task(4, "Ben", 1)}));
}

TEST_F(Drop_From_Log_Test, ANumberNotInTheLogOnlyNormalisesTheMarkers) {
  Drop_From_Log(flag_, Is_Task_Numbered(Value("7")), files_);
  EXPECT_EQ(Log_Bytes(), Bytes_Of({Make_Person_Marker("Anna"), Task(1, "Anna", 1), Task(2, "Anna", 0),
                                   Task(3, "Anna", 1), Make_Person_Marker("Ben"), Task(4, "Ben", 1)}));
  EXPECT_EQ(Reminder_Bytes(), reminders_before_);
}

TEST_F(Drop_From_Log_Test, BothScratchFilesAreCompleteBeforeEitherSourceIsTouchedAndTheFlagIsHeld) {
  std::vector<std::string> completed;
  Drop_From_Log(flag_, Is_Task_Numbered(Value("1")), files_, [&](const std::string& scratch) {
    completed.push_back(scratch);
    EXPECT_TRUE(flag_.Held());
    EXPECT_EQ(Log_Bytes(), log_before_);
    EXPECT_EQ(Reminder_Bytes(), reminders_before_);
  });
  EXPECT_EQ(completed, (std::vector<std::string>{files_.scratches[0], files_.scratches[1]}));
  EXPECT_FALSE(flag_.Held());
}

TEST_F(Drop_From_Log_Test, AHeldFlagIsFileAlreadyOpenAndTouchesNothing) {
  const reminders::FlagHold timer(flag_);
  EXPECT_EQ(Failure_Of([&] { Drop_From_Log(flag_, Is_Task_Numbered(Value("1")), files_); }), kFileAlreadyOpen);
  EXPECT_EQ(Log_Bytes(), log_before_);
  EXPECT_EQ(Reminder_Bytes(), reminders_before_);
  EXPECT_FALSE(Present(files_.scratches[0]));
  EXPECT_TRUE(flag_.Held()) << "the flag stays with its holder";
}

// A stop where either scratch file has just been completed leaves both sources as they were, so
// the reminders still follow the log; the flag is given back, and the next delete goes through.
class Drop_From_Log_Stop_Test : public Drop_From_Log_Test, public ::testing::WithParamInterface<int> {};

TEST_P(Drop_From_Log_Stop_Test, LeavesTheOldContentOfBothFilesAndTheNextDeleteCompletes) {
  const std::string stop_at = files_.scratches[static_cast<std::size_t>(GetParam())];
  const auto stop = [&](const std::string& scratch) {
    if (scratch == stop_at) throw RuntimeFailure(kDeviceIOError);
  };
  EXPECT_EQ(Failure_Of([&] { Drop_From_Log(flag_, Is_Record_Of_Member("Anna"), files_, stop); }), kDeviceIOError);
  EXPECT_EQ(Log_Bytes(), log_before_);
  EXPECT_EQ(Reminder_Bytes(), reminders_before_);
  Expect_Reminders_Follow_The_Log();
  EXPECT_FALSE(flag_.Held());

  Drop_From_Log(flag_, Is_Task_Numbered(Value("4")), files_);
  EXPECT_EQ(Reminder_Bytes(), Bytes_Of({Task(1, "Anna", 1), Task(3, "Anna", 1)}));
  Expect_Reminders_Follow_The_Log();
  EXPECT_FALSE(Present(files_.scratches[0]));
  EXPECT_FALSE(Present(files_.scratches[1]));
}

INSTANTIATE_TEST_SUITE_P(AtEachScratchFile, Drop_From_Log_Stop_Test, ::testing::Values(0, 1));

TEST_F(Drop_From_Log_Test, AMissingReminderFileIsFileNotFoundWithTheLogUntouched) {
  std::filesystem::remove(files_.sources[1]);
  EXPECT_EQ(Failure_Of([&] { Drop_From_Log(flag_, Is_Task_Numbered(Value("1")), files_); }), kFileNotFound);
  EXPECT_EQ(Log_Bytes(), log_before_);
  EXPECT_FALSE(flag_.Held());
}

TEST_F(Drop_From_Log_Test, AScratchFileThatCannotBeWrittenLeavesBothSourcesAlone) {
  std::filesystem::create_directory(files_.scratches[1]);
  EXPECT_EQ(Failure_Of([&] { Drop_From_Log(flag_, Is_Task_Numbered(Value("1")), files_); }), kPathFileAccessError);
  EXPECT_EQ(Log_Bytes(), log_before_);
  EXPECT_EQ(Reminder_Bytes(), reminders_before_);
}

TEST_F(Drop_From_Log_Test, TheLastRecordGoneLeavesEmptyFiles) {
  Write_Log(files_.sources[0], {Task(1, "Anna", 1)});
  Write_Log(files_.sources[1], {Task(1, "Anna", 1)});
  Drop_From_Log(flag_, Is_Task_Numbered(Value("1")), files_);
  EXPECT_EQ(Log_Bytes(), "");
  EXPECT_EQ(Reminder_Bytes(), "");
}

TEST_F(Drop_From_Log_Test, TheHighestNumberDeletedIsGivenOutAgainAndAnEarlierOneIsNot) {
  Drop_From_Log(flag_, Is_Task_Numbered(Value("4")), files_);
  EXPECT_EQ(Generate_Record_Number(files_.sources[0]), Value(4));
  Drop_From_Log(flag_, Is_Task_Numbered(Value("2")), files_);
  EXPECT_EQ(Generate_Record_Number(files_.sources[0]), Value(4));
}

}  // namespace
}  // namespace orrivane::organizer
