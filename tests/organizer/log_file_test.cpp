// The log as a file: reading record by record, appending, numbering, copying and the rewrite
// in place through the scratch file.
#include "organizer/log_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/runtime_failure.h"
#include "organizer/log_samples.h"

namespace orrivane::organizer {
namespace {

using namespace samples;

// ---- The working files --------------------------------------------------------------------

TEST(Working_Files, EachKeepsItsExactName) {
  EXPECT_STREQ(kScheduleFile, "Schedule.tmp");
  EXPECT_STREQ(kScheduleScratchFile, "Schedule1.tmp");
  EXPECT_STREQ(kTaskReminderFile, "TRemin.tmp");
  EXPECT_STREQ(kTaskReminderScratchFile, "TRemin1.tmp");
  EXPECT_STREQ(kNonTaskReminderFile, "NTRemin.dat");
  EXPECT_STREQ(kNonTaskReminderScratchFile, "NTRemin.tmp");
}

// ---- Reading record by record ---------------------------------------------------------------

std::vector<ScheduleRecord> Records_Read_One_By_One(const std::string& path) {
  LogReader log(path);
  std::vector<ScheduleRecord> records;
  ScheduleRecord record;
  while (log.Next(record)) records.push_back(record);
  return records;
}

TEST(LogReader, ReadsMarkersInBothArrangementsAndTasksOneByOne) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  Write_Bytes(path, kBenMarker28Lines + kDentistBytes + kBenMarker8Lines);
  const auto records = Records_Read_One_By_One(path);
  ASSERT_EQ(records.size(), 3u);
  EXPECT_TRUE(Same_Record(records[0], Make_Person_Marker("Ben")));
  EXPECT_TRUE(Same_Record(records[1], Dentist_Task()));
  EXPECT_TRUE(Same_Record(records[2], Make_Person_Marker("Ben")));
}

TEST(LogReader, AnEmptyLogHasNoRecordAndTheEndLeavesTheRecordAlone) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  Write_Bytes(path, "");
  LogReader log(path);
  ScheduleRecord record = Dentist_Task();
  EXPECT_FALSE(log.Next(record));
  EXPECT_TRUE(Same_Record(record, Dentist_Task()));
}

TEST(LogReader, ATruncatedRecordIsInputPastEndOfFileAndKeepsTheFieldsReadBeforeIt) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  Write_Bytes(path, kBenMarker8Lines + kDentistBytes.substr(0, kDentistBytes.find("16711680")));
  LogReader log(path);
  ScheduleRecord record;
  ASSERT_TRUE(log.Next(record));
  EXPECT_TRUE(Is_Person_Marker(record));
  EXPECT_EQ(Failure_Of([&] { log.Next(record); }), kInputPastEndOfFile);
  EXPECT_EQ(record.Task_Name.text(), "Dentist");
  EXPECT_EQ(record.Person_Name.text(), "Ben");  // not reached: the marker's name stays
}

TEST(LogReader, AMissingLogIsFileNotFound) {
  TempFolder folder;
  EXPECT_EQ(Failure_Of([&] { LogReader log(folder.file("none.tmp")); }), kFileNotFound);
}

TEST(For_Each_Record, VisitsEveryRecordInTheOrderOfTheFile) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  Write_Log(path, {Task(3, "Anna", 0), Make_Person_Marker("Ben"), Task(1, "Ben", 1)});
  std::vector<std::string> seen;
  For_Each_Record(path, [&](const ScheduleRecord& record) { seen.push_back(record.Task_Name.text()); });
  EXPECT_EQ(seen, (std::vector<std::string>{"Task 3", "-1", "Task 1"}));
}

TEST(For_Each_Member, GivesEachNameOnceAtItsFirstAppearanceMarkersAndTasksAlike) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  Write_Log(path, {Task(1, "Cleo", 0), Make_Person_Marker("Anna"), Task(2, "Anna", 0), Task(3, "Cleo", 0),
                   Task(4, "anna", 0), Make_Person_Marker("Ben")});
  std::vector<std::string> names;
  For_Each_Member(path, [&](const std::string& name) { names.push_back(name); });
  EXPECT_EQ(names, (std::vector<std::string>{"Cleo", "Anna", "anna", "Ben"}));
}

TEST(For_Each_Member, GivesTheNamesBeforeATruncatedRecordAndThenFails) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  Write_Bytes(path, kBenMarker8Lines + kDentistBytes.substr(0, kDentistBytes.find("16711680")));
  std::vector<std::string> names;
  EXPECT_EQ(Failure_Of([&] { For_Each_Member(path, [&](const std::string& name) { names.push_back(name); }); }),
            kInputPastEndOfFile);
  EXPECT_EQ(names, std::vector<std::string>{"Ben"});
}

// ---- Appending ------------------------------------------------------------------------------

TEST(Append_Record, AppendsInTheEightLineArrangementAndTheFileIsCompleteOnReturn) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  Write_Bytes(path, kBenMarker28Lines);
  Append_Record(path, Dentist_Task());
  EXPECT_EQ(Read_Bytes(path), kBenMarker28Lines + kDentistBytes);
  Append_Record(path, Make_Person_Marker("Ben"));
  const auto records = Records_Read_One_By_One(path);
  ASSERT_EQ(records.size(), 3u);
  EXPECT_TRUE(Same_Record(records[2], Make_Person_Marker("Ben")));
  EXPECT_EQ(Read_Bytes(path), kBenMarker28Lines + kDentistBytes + kBenMarker8Lines);
}

TEST(Append_Record, CreatesAMissingLog) {
  TempFolder folder;
  const std::string path = folder.file("TRemin.tmp");
  Append_Record(path, Dentist_Task());
  EXPECT_EQ(Read_Bytes(path), kDentistBytes);
}

// ---- Person markers -------------------------------------------------------------------------

TEST(Generate_Person_Marker_Record, AppendsToTheLog) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  Write_Bytes(path, kDentistBytes);
  Generate_Person_Marker_Record(path, "Ben");
  Generate_Person_Marker_Record(path, "Cleo");
  EXPECT_EQ(Read_Bytes(path),
            kDentistBytes + kBenMarker28Lines + Repeated("-1\r\n", 18) + "\"Cleo\"\r\n" + Repeated("-1\r\n", 9));
}

TEST(Generate_Person_Marker_Record, CreatesAMissingLog) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  Generate_Person_Marker_Record(path, "Ben");
  EXPECT_EQ(Read_Bytes(path), kBenMarker28Lines);
}

// ---- Record numbers -------------------------------------------------------------------------

class Generate_Record_Number_Test : public ::testing::Test {
 protected:
  Value Next_Number(const std::vector<ScheduleRecord>& log) {
    Write_Log(path_, log);
    return Generate_Record_Number(path_);
  }

  TempFolder folder_;
  std::string path_ = folder_.file("Schedule.tmp");
};

TEST_F(Generate_Record_Number_Test, AnEmptyLogGivesOne) {
  const Value number = Next_Number({});
  EXPECT_TRUE(number.is_number());
  EXPECT_EQ(number.number(), 1);
}

TEST_F(Generate_Record_Number_Test, TasksOneToThreeGiveFour) {
  EXPECT_EQ(Next_Number({Task(1, "Anna", 0), Task(2, "Anna", 0), Task(3, "Ben", 1)}).number(), 4);
}

TEST_F(Generate_Record_Number_Test, DeletingTheLastTaskGivesItsNumberAgain) {
  EXPECT_EQ(Next_Number({Task(1, "Anna", 0), Task(2, "Anna", 0)}).number(), 3);
}

TEST_F(Generate_Record_Number_Test, DeletingAnEarlierTaskDoesNotGiveItsNumberAgain) {
  EXPECT_EQ(Next_Number({Task(1, "Anna", 0), Task(3, "Anna", 0)}).number(), 4);
}

TEST_F(Generate_Record_Number_Test, ALogOfOnlyMarkersGivesOne) {
  EXPECT_EQ(Next_Number({Make_Person_Marker("Anna"), Make_Person_Marker("Ben")}).number(), 1);
}

TEST_F(Generate_Record_Number_Test, MarkersInEitherArrangementNeverCount) {
  Write_Bytes(path_, kBenMarker28Lines + kDentistBytes + kBenMarker8Lines + kBenMarker28Lines);
  EXPECT_EQ(Generate_Record_Number(path_).number(), 2);
}

TEST_F(Generate_Record_Number_Test, TakesTheHighestNumberWhereverItStands) {
  EXPECT_EQ(Next_Number({Task(7, "Anna", 0), Task(2, "Ben", 0), Make_Person_Marker("Cleo")}).number(), 8);
}

TEST_F(Generate_Record_Number_Test, ATaskNumberedZeroGivesOne) { EXPECT_EQ(Next_Number({Task(0, "Anna", 0)}).number(), 1); }

TEST_F(Generate_Record_Number_Test, ANumberStoredAsTextCountsAsItsNumber) {
  ScheduleRecord quoted = Task(5, "Anna", 0);
  quoted.Record_Number = "5";
  EXPECT_EQ(Next_Number({Task(3, "Anna", 0), quoted}).number(), 6);
}

TEST_F(Generate_Record_Number_Test, AMissingLogIsFileNotFound) {
  EXPECT_EQ(Failure_Of([&] { Generate_Record_Number(folder_.file("none.tmp")); }), kFileNotFound);
}

TEST_F(Generate_Record_Number_Test, ATruncatedLogIsInputPastEndOfFile) {
  Write_Bytes(path_, kDentistBytes + "-1\r\n-1\r\n");
  EXPECT_EQ(Failure_Of([&] { Generate_Record_Number(path_); }), kInputPastEndOfFile);
}

// ---- Copying a log ----------------------------------------------------------------------------

TEST(Copy_Log, CopiesEveryRecordAndNormalisesMarkersToEightLines) {
  TempFolder folder;
  const std::string working = folder.file("Schedule.tmp");
  const std::string saved = folder.file("week.sdl");
  Write_Bytes(working, kDentistBytes + kBenMarker28Lines);
  Copy_Log(working, saved);
  EXPECT_EQ(Read_Bytes(saved), kDentistBytes + kBenMarker8Lines);
}

TEST(Copy_Log, ASavedAndReopenedLogYieldsExactlyTheRecordsWithRemindersOnInLogOrder) {
  TempFolder folder;
  const std::string working = folder.file("Schedule.tmp");
  const std::string reminders = folder.file("TRemin.tmp");
  const std::string saved = folder.file("week.sdl");
  const std::vector<ScheduleRecord> log{Make_Person_Marker("Anna"), Task(1, "Anna", 1), Task(2, "Anna", 0),
                                        Make_Person_Marker("Ben"),  Task(3, "Ben", 1),  Task(4, "Ben", 0),
                                        Task(5, "Anna", 1)};
  {
    SequentialWriter file(working);
    Write_Person_Marker_28_Lines(file, "Anna");
    for (std::size_t i = 1; i < log.size(); ++i) Schedule_File("Write", file, log[i]);
  }
  Write_Bytes(reminders, "stale\r\n");

  Copy_Log(working, saved);                  // Save Log As
  Write_Bytes(working, "other log\r\n");      // the working copy moves on
  Copy_Log(saved, working, reminders);       // Open

  const auto reopened = Read_Log(working);
  ASSERT_EQ(reopened.size(), log.size());
  for (std::size_t i = 0; i < log.size(); ++i) EXPECT_TRUE(Same_Record(reopened[i], log[i])) << "record " << i;
  const auto with_reminders = Read_Log(reminders);
  ASSERT_EQ(with_reminders.size(), 3u);
  EXPECT_TRUE(Same_Record(with_reminders[0], log[1]));
  EXPECT_TRUE(Same_Record(with_reminders[1], log[4]));
  EXPECT_TRUE(Same_Record(with_reminders[2], log[6]));
}

TEST(Copy_Log, WritesTheReminderRecordsInTheSameFormat) {
  TempFolder folder;
  const std::string reminders = folder.file("TRemin.tmp");
  Write_Bytes(folder.file("week.sdl"), kBenMarker28Lines + kDentistBytes);
  Copy_Log(folder.file("week.sdl"), folder.file("Schedule.tmp"), reminders);
  EXPECT_EQ(Read_Bytes(reminders), kDentistBytes);
}

TEST(Copy_Log, AReminderFileWithNothingToHoldIsLeftEmpty) {
  TempFolder folder;
  const std::string reminders = folder.file("TRemin.tmp");
  Write_Bytes(reminders, kDentistBytes);
  Write_Log(folder.file("week.sdl"), {Task(1, "Anna", 0), Make_Person_Marker("Ben")});
  Copy_Log(folder.file("week.sdl"), folder.file("Schedule.tmp"), reminders);
  EXPECT_EQ(Read_Bytes(reminders), "");
}

TEST(Copy_Log, OnlyAStatusOfOneCountsAsAReminder) {
  TempFolder folder;
  ScheduleRecord quoted = Task(4, "Ben", 0);
  quoted.Reminder_Status = "1";  // loose: the text "1" is the number 1
  Write_Log(folder.file("week.sdl"), {Task(1, "Anna", 2), Task(2, "Anna", -1), Task(3, "Anna", 0), quoted});
  Copy_Log(folder.file("week.sdl"), folder.file("Schedule.tmp"), folder.file("TRemin.tmp"));
  const auto with_reminders = Read_Log(folder.file("TRemin.tmp"));
  ASSERT_EQ(with_reminders.size(), 1u);
  EXPECT_TRUE(Same_Record(with_reminders[0], quoted));
}

TEST(Copy_Log, WithoutAReminderFileWritesNoneAndAnEmptyLogCopiesAsEmpty) {
  TempFolder folder;
  Write_Bytes(folder.file("Schedule.tmp"), "");
  Copy_Log(folder.file("Schedule.tmp"), folder.file("week.sdl"));
  EXPECT_EQ(Read_Bytes(folder.file("week.sdl")), "");
  EXPECT_FALSE(std::filesystem::exists(folder.file("TRemin.tmp")));
}

TEST(Copy_Log, ATruncatedLogStopsWithInputPastEndOfFileKeepingTheRecordsCopiedSoFar) {
  TempFolder folder;
  const std::string truncated = kDentistBytes + kBenMarker28Lines.substr(0, kBenMarker28Lines.find("\"Ben\""));
  Write_Bytes(folder.file("week.sdl"), truncated);
  EXPECT_EQ(Failure_Of([&] {
              Copy_Log(folder.file("week.sdl"), folder.file("Schedule.tmp"), folder.file("TRemin.tmp"));
            }),
            kInputPastEndOfFile);
  EXPECT_EQ(Read_Bytes(folder.file("Schedule.tmp")), kDentistBytes);
  EXPECT_EQ(Read_Bytes(folder.file("TRemin.tmp")), kDentistBytes);
}

TEST(Copy_Log, AMissingSourceIsFileNotFoundAndLeavesTheTargetAlone) {
  TempFolder folder;
  Write_Bytes(folder.file("Schedule.tmp"), kDentistBytes);
  EXPECT_EQ(Failure_Of([&] { Copy_Log(folder.file("none.sdl"), folder.file("Schedule.tmp")); }), kFileNotFound);
  EXPECT_EQ(Read_Bytes(folder.file("Schedule.tmp")), kDentistBytes);
}

// ---- Rewriting in place ---------------------------------------------------------------------

class Rewrite_Log_Test : public ::testing::Test {
 protected:
  // Anna's marker as first written, two tasks of hers, Ben's marker and a task of his.
  void SetUp() override {
    Generate_Person_Marker_Record(source_, "Anna");
    for (const ScheduleRecord& record : {Task(1, "Anna", 1), Task(2, "Anna", 0)}) Append_Record(source_, record);
    Generate_Person_Marker_Record(source_, "Ben");
    Append_Record(source_, Task(3, "Ben", 1));
  }

  static RecordEdit Keep_All() {
    return Drop_Records([](const ScheduleRecord&) { return false; });
  }

  // The records as the writer writes them.
  std::string Bytes_Of(const std::vector<ScheduleRecord>& records) {
    const std::string expected = folder_.file("expected.tmp");
    Write_Log(expected, records);
    return Read_Bytes(expected);
  }

  TempFolder folder_;
  std::string source_ = folder_.file("Schedule.tmp");
  std::string scratch_ = folder_.file("Schedule1.tmp");
};

TEST_F(Rewrite_Log_Test, DropsARecordAndWritesTheOthersBackInTheEightLineArrangement) {
  Rewrite_Log(source_, scratch_, Drop_Records([](const ScheduleRecord& r) { return r.Record_Number == Value(2); }));
  const std::string expected = Bytes_Of(
      {Make_Person_Marker("Anna"), Task(1, "Anna", 1), Make_Person_Marker("Ben"), Task(3, "Ben", 1)});
  EXPECT_EQ(Read_Bytes(source_), expected);
  EXPECT_EQ(Read_Bytes(scratch_), expected);  // left on the disk for the caller
}

TEST_F(Rewrite_Log_Test, KeepingEveryRecordOnlyNormalisesTheMarkers) {
  Rewrite_Log(source_, scratch_, Keep_All());
  EXPECT_EQ(Read_Bytes(source_), Bytes_Of({Make_Person_Marker("Anna"), Task(1, "Anna", 1), Task(2, "Anna", 0),
                                           Make_Person_Marker("Ben"), Task(3, "Ben", 1)}));
}

TEST_F(Rewrite_Log_Test, DroppingAMemberTakesTheMarkerAndEveryTaskOfTheMember) {
  Rewrite_Log(source_, scratch_, Drop_Records([](const ScheduleRecord& r) { return r.Person_Name == Value("Anna"); }));
  EXPECT_EQ(Read_Bytes(source_), Bytes_Of({Make_Person_Marker("Ben"), Task(3, "Ben", 1)}));
}

TEST_F(Rewrite_Log_Test, DroppingEveryRecordLeavesAnEmptyLog) {
  Rewrite_Log(source_, scratch_, Drop_Records([](const ScheduleRecord&) { return true; }));
  EXPECT_EQ(Read_Bytes(source_), "");
  EXPECT_TRUE(std::filesystem::exists(source_));
}

TEST_F(Rewrite_Log_Test, AReplacedRecordKeepsItsPlace) {
  ScheduleRecord changed = Task(2, "Anna", 1);
  changed.Task_Name = "Dentist again";
  Rewrite_Log(source_, scratch_, [&](const ScheduleRecord& r) -> std::optional<ScheduleRecord> {
    return r.Record_Number == Value(2) ? changed : r;
  });
  EXPECT_EQ(Read_Bytes(source_), Bytes_Of({Make_Person_Marker("Anna"), Task(1, "Anna", 1), changed,
                                           Make_Person_Marker("Ben"), Task(3, "Ben", 1)}));
}

TEST_F(Rewrite_Log_Test, TheScratchFileIsCompleteAndClosedBeforeTheSourceIsTouched) {
  const std::string before = Read_Bytes(source_);
  std::string scratch_then;
  std::string source_then;
  Rewrite_Log(source_, scratch_, Drop_Records([](const ScheduleRecord& r) { return Is_Person_Marker(r); }), [&] {
    scratch_then = Read_Bytes(scratch_);
    source_then = Read_Bytes(source_);
  });
  const std::string after = Bytes_Of({Task(1, "Anna", 1), Task(2, "Anna", 0), Task(3, "Ben", 1)});
  EXPECT_EQ(scratch_then, after);
  EXPECT_EQ(source_then, before);
  EXPECT_EQ(Read_Bytes(source_), after);
}

TEST_F(Rewrite_Log_Test, AFailureBetweenTheTwoCopiesLeavesTheSourceAsItWas) {
  const std::string before = Read_Bytes(source_);
  const auto drop_task_1 = Drop_Records([](const ScheduleRecord& r) { return r.Record_Number == Value(1); });
  const auto fail = [] { throw RuntimeFailure(kDeviceIOError); };
  EXPECT_EQ(Failure_Of([&] { Rewrite_Log(source_, scratch_, drop_task_1, fail); }), kDeviceIOError);
  EXPECT_EQ(Read_Bytes(source_), before);
  const std::string after =
      Bytes_Of({Make_Person_Marker("Anna"), Task(2, "Anna", 0), Make_Person_Marker("Ben"), Task(3, "Ben", 1)});
  EXPECT_EQ(Read_Bytes(scratch_), after);  // the stale scratch file of an interrupted rewrite

  Rewrite_Log(source_, scratch_, drop_task_1);  // the next rewrite empties it first
  EXPECT_EQ(Read_Bytes(source_), after);
  EXPECT_EQ(Read_Bytes(scratch_), after);
}

TEST_F(Rewrite_Log_Test, ATruncatedSourceStopsTheRewriteBeforeTheSourceIsTouched) {
  const std::string truncated = Read_Bytes(source_) + "4\r\n\"Half a task\"\r\n";
  Write_Bytes(source_, truncated);
  EXPECT_EQ(Failure_Of([&] { Rewrite_Log(source_, scratch_, Keep_All()); }), kInputPastEndOfFile);
  EXPECT_EQ(Read_Bytes(source_), truncated);
}

TEST_F(Rewrite_Log_Test, AMissingSourceIsFileNotFoundAndLeavesTheScratchFileAlone) {
  Write_Bytes(scratch_, "stale\r\n");
  EXPECT_EQ(Failure_Of([&] { Rewrite_Log(folder_.file("none.tmp"), scratch_, Keep_All()); }), kFileNotFound);
  EXPECT_EQ(Read_Bytes(scratch_), "stale\r\n");
}

TEST_F(Rewrite_Log_Test, TheReminderFileIsRewrittenThroughItsOwnScratchFile) {
  const std::string reminders = folder_.file("TRemin.tmp");
  const std::string reminders_scratch = folder_.file("TRemin1.tmp");
  Copy_Log(source_, folder_.file("copy.tmp"), reminders);
  Rewrite_Log(reminders, reminders_scratch,
              Drop_Records([](const ScheduleRecord& r) { return r.Record_Number == Value(1); }));
  EXPECT_EQ(Read_Bytes(reminders), Bytes_Of({Task(3, "Ben", 1)}));
  EXPECT_EQ(Read_Bytes(reminders_scratch), Bytes_Of({Task(3, "Ben", 1)}));
}

}  // namespace
}  // namespace orrivane::organizer
