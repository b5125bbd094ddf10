#include "organizer/schedule_record.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "core/runtime_failure.h"
#include "core/temp_folder.h"
#include "support/failure_of.h"

namespace orrivane::organizer {
namespace {

using testing::Read_Bytes;
using testing::TempFolder;
using testing::Write_Bytes;

using orrivane::testing::Failure_Of;

std::string Kind(const Value& v) { return v.is_text() ? "text" : v.is_number() ? "number" : "empty"; }

// Field by field, of the same kind and the same text: "05" is not 5 here.
::testing::AssertionResult Same_Record(const ScheduleRecord& a, const ScheduleRecord& b) {
  const auto fa = Fields_In_File_Order(a);
  const auto fb = Fields_In_File_Order(b);
  for (std::size_t i = 0; i < fa.size(); ++i) {
    if (Kind(*fa[i]) != Kind(*fb[i]) || fa[i]->text() != fb[i]->text()) {
      return ::testing::AssertionFailure() << "field " << i + 1 << ": " << Kind(*fa[i]) << " " << fa[i]->text()
                                           << " against " << Kind(*fb[i]) << " " << fb[i]->text();
    }
  }
  return ::testing::AssertionSuccess();
}

// Anna's dentist appointment at 14:30 on March 5, 2001, with one reminder a day before.
ScheduleRecord Dentist_Task() {
  ScheduleRecord r;
  r.Record_Number = 1;
  r.Task_Name = "Dentist";
  r.Task_Description = "Checkup";
  r.Task_Comments = "Bring X-rays";
  r.Start_Month = "March";
  r.Start_Date = "05";
  r.Start_Century = 20;
  r.Start_Year = 1;
  r.Start_Hour = "14";
  r.Start_Minute = "30";
  r.Time_Range_Flag = 0;
  r.Finish_Month = "March";
  r.Finish_Date = "05";
  r.Finish_Century = 20;
  r.Finish_Year = 1;
  r.Finish_Hour = "14";
  r.Finish_Minute = "30";
  r.Color_Code = 16711680;
  r.Person_Name = "Anna";
  r.Reminder_Status = 1;
  r.Date_String[0] = "March 4, 2001";
  r.Time_String[0] = "14:30";
  r.Date_String[1] = "March 4, 2001";
  r.Time_String[1] = "14:30";
  r.Reminder_Interval = 1;
  r.Interval_Days = 0;
  r.Interval_Hours = 0;
  r.Interval_Minutes = 0;
  return r;
}

ScheduleRecord Task(int number, const std::string& person, int reminder_status) {
  ScheduleRecord r = Dentist_Task();
  r.Record_Number = number;
  r.Task_Name = "Task " + std::to_string(number);
  r.Person_Name = person;
  r.Reminder_Status = reminder_status;
  return r;
}

std::string Repeated(const std::string& line, int times) {
  std::string out;
  for (int i = 0; i < times; ++i) out += line;
  return out;
}

const std::string kDentistBytes =
    "1\r\n"
    "\"Dentist\",\"Checkup\",\"Bring X-rays\",\"March\"\r\n"
    "\"05\",20,1,\"14\",\"30\"\r\n"
    "0\r\n"
    "\"March\",\"05\",20,1,\"14\",\"30\"\r\n"
    "16711680,\"Anna\"\r\n"
    "1,\"March 4, 2001\",\"14:30\",\"March 4, 2001\",\"14:30\"\r\n"
    "1,0,0,0\r\n";

const std::string kBenMarker28Lines = Repeated("-1\r\n", 18) + "\"Ben\"\r\n" + Repeated("-1\r\n", 9);

const std::string kBenMarker8Lines =
    "-1\r\n"
    "-1,-1,-1,-1\r\n"
    "-1,-1,-1,-1,-1\r\n"
    "-1\r\n"
    "-1,-1,-1,-1,-1,-1\r\n"
    "-1,\"Ben\"\r\n"
    "-1,-1,-1,-1,-1\r\n"
    "-1,-1,-1,-1\r\n";

// Writes records in the 8-line arrangement.
void Write_Log(const std::string& path, const std::vector<ScheduleRecord>& records) {
  SequentialWriter file(path);
  for (const ScheduleRecord& record : records) Schedule_File("Write", file, record);
}

std::vector<ScheduleRecord> Read_Log(const std::string& path) {
  SequentialReader file(path);
  std::vector<ScheduleRecord> records;
  while (!file.Eof()) {
    ScheduleRecord record;
    Schedule_File("Input", file, record);
    records.push_back(record);
  }
  return records;
}

// ---- The record and its fields ------------------------------------------------------------

TEST(ScheduleRecord, HasTwentyEightDistinctFieldsInTheOrderOfTheFile) {
  ScheduleRecord r;
  const auto fields = Fields_In_File_Order(r);
  EXPECT_EQ(std::set<const Value*>(fields.begin(), fields.end()).size(), 28u);
  EXPECT_EQ(fields[0], &r.Record_Number);
  EXPECT_EQ(fields[3], &r.Task_Comments);
  EXPECT_EQ(fields[10], &r.Time_Range_Flag);
  EXPECT_EQ(fields[18], &r.Person_Name);
  EXPECT_EQ(fields[19], &r.Reminder_Status);
  EXPECT_EQ(fields[20], &r.Date_String[0]);
  EXPECT_EQ(fields[21], &r.Time_String[0]);
  EXPECT_EQ(fields[22], &r.Date_String[1]);
  EXPECT_EQ(fields[23], &r.Time_String[1]);
  EXPECT_EQ(fields[24], &r.Reminder_Interval);
  EXPECT_EQ(fields[27], &r.Interval_Minutes);
}

TEST(ScheduleRecord, StartsWithEveryFieldEmpty) {
  const ScheduleRecord r;
  for (const Value* field : Fields_In_File_Order(r)) EXPECT_TRUE(field->is_empty());
}

// ---- Writing and reading --------------------------------------------------------------------

TEST(Schedule_File, WritesTheDentistTaskAndBensMarkerByteForByte) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  {
    SequentialWriter file(path);
    Schedule_File("Write", file, Dentist_Task());
  }
  Generate_Person_Marker_Record(path, "Ben");
  EXPECT_EQ(Read_Bytes(path), kDentistBytes + kBenMarker28Lines);
}

TEST(Schedule_File, ReadsTheDentistTaskAndBensMarkerBack) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.sdl");
  Write_Bytes(path, kDentistBytes + kBenMarker28Lines);
  const auto records = Read_Log(path);
  ASSERT_EQ(records.size(), 2u);
  EXPECT_TRUE(Same_Record(records[0], Dentist_Task()));
  EXPECT_TRUE(Same_Record(records[1], Make_Person_Marker("Ben")));
}

TEST(Schedule_File, WritesAMarkerInEightLines) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  Write_Log(path, {Make_Person_Marker("Ben")});
  EXPECT_EQ(Read_Bytes(path), kBenMarker8Lines);
}

TEST(Schedule_File, AMarkerInTwentyEightLinesAndInEightLinesReadTheSame) {
  SequentialReader long_form = SequentialReader::From_Text(kBenMarker28Lines);
  SequentialReader short_form = SequentialReader::From_Text(kBenMarker8Lines);
  ScheduleRecord from_long;
  ScheduleRecord from_short;
  Schedule_File("Input", long_form, from_long);
  Schedule_File("Input", short_form, from_short);
  EXPECT_TRUE(Same_Record(from_long, from_short));
  EXPECT_TRUE(Same_Record(from_long, Make_Person_Marker("Ben")));
  EXPECT_TRUE(long_form.Eof());
  EXPECT_TRUE(short_form.Eof());
}

TEST(Schedule_File, ReadsTwentyEightValuesWhereverTheLinesEnd) {
  std::string one_line;
  for (int i = 1; i <= 28; ++i) one_line += (i > 1 ? "," : "") + std::to_string(i);
  SequentialReader file = SequentialReader::From_Text(one_line + "\r\n99\r\n");
  ScheduleRecord r;
  Schedule_File("Input", file, r);
  const auto fields = Fields_In_File_Order(r);
  for (int i = 0; i < 28; ++i) EXPECT_EQ(fields[i]->number(), i + 1);
  EXPECT_FALSE(file.Eof());
  EXPECT_EQ(file.Input().number(), 99);
}

TEST(Schedule_File, ReadsTheNextRecordFromWhereTheLastEnded) {
  SequentialReader file = SequentialReader::From_Text(kBenMarker28Lines + kDentistBytes + kBenMarker8Lines);
  ScheduleRecord r;
  Schedule_File("Input", file, r);
  EXPECT_TRUE(Is_Person_Marker(r));
  Schedule_File("Input", file, r);
  EXPECT_TRUE(Same_Record(r, Dentist_Task()));
  Schedule_File("Input", file, r);
  EXPECT_TRUE(Same_Record(r, Make_Person_Marker("Ben")));
  EXPECT_TRUE(file.Eof());
}

TEST(Schedule_File, WritesAnEmptyFieldAsNothingAndReadsItBackEmpty) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  ScheduleRecord r = Dentist_Task();
  r.Time_Range_Flag = Value();
  r.Task_Description = "";
  Write_Log(path, {r});
  std::string expected = kDentistBytes;
  expected.replace(expected.find("\"Checkup\""), 9, "\"\"");
  expected.replace(expected.find("\r\n0\r\n"), 5, "\r\n\r\n");
  EXPECT_EQ(Read_Bytes(path), expected);
  const auto records = Read_Log(path);
  ASSERT_EQ(records.size(), 1u);
  EXPECT_TRUE(records[0].Time_Range_Flag.is_empty());
  EXPECT_TRUE(Same_Record(records[0], r));
}

TEST(Schedule_File, ALineBreakInsideACommentRoundTrips) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  ScheduleRecord r = Dentist_Task();
  r.Task_Comments = "Bring X-rays\r\nand the card, too";
  Write_Log(path, {r, Make_Person_Marker("Ben")});
  const auto records = Read_Log(path);
  ASSERT_EQ(records.size(), 2u);
  EXPECT_TRUE(Same_Record(records[0], r));
  EXPECT_TRUE(Same_Record(records[1], Make_Person_Marker("Ben")));
}

TEST(Schedule_File, ATruncatedRecordIsInputPastEndOfFile) {
  const std::string truncated = kDentistBytes.substr(0, kDentistBytes.find("16711680"));
  SequentialReader file = SequentialReader::From_Text(truncated);
  ScheduleRecord r;
  EXPECT_EQ(Failure_Of([&] { Schedule_File("Input", file, r); }), kInputPastEndOfFile);
  EXPECT_EQ(r.Task_Name.text(), "Dentist");  // the fields read before the end stay
  EXPECT_TRUE(r.Color_Code.is_empty());
}

TEST(Schedule_File, AnyOtherVerbDoesNothing) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  {
    SequentialWriter file(path);
    for (const char* verb : {"input", "write", "Read", "", "Write "}) Schedule_File(verb, file, Dentist_Task());
  }
  EXPECT_EQ(Read_Bytes(path), "");
  SequentialReader file = SequentialReader::From_Text(kDentistBytes);
  ScheduleRecord r;
  for (const char* verb : {"input", "Read", "", "Input "}) Schedule_File(verb, file, r);
  EXPECT_TRUE(Same_Record(r, ScheduleRecord{}));
  EXPECT_EQ(file.Input().number(), 1);  // nothing was consumed
}

TEST(Schedule_File, TheWrongVerbForTheFileIsABadFileMode) {
  TempFolder folder;
  SequentialWriter out(folder.file("Schedule.tmp"));
  SequentialReader in = SequentialReader::From_Text(kDentistBytes);
  ScheduleRecord r;
  EXPECT_EQ(Failure_Of([&] { Schedule_File("Input", out, r); }), kBadFileMode);
  EXPECT_EQ(Failure_Of([&] { Schedule_File("Write", in, r); }), kBadFileMode);
}

// ---- Person markers -------------------------------------------------------------------------

TEST(Is_Person_Marker, TellsAMarkerByMinusOneInTheFirstField) {
  ScheduleRecord r = Dentist_Task();
  EXPECT_FALSE(Is_Person_Marker(r));
  r.Record_Number = -1;
  EXPECT_TRUE(Is_Person_Marker(r));
  r.Record_Number = "-1";
  EXPECT_TRUE(Is_Person_Marker(r));
  r.Record_Number = 0;
  EXPECT_FALSE(Is_Person_Marker(r));
  r.Record_Number = Value();
  EXPECT_FALSE(Is_Person_Marker(r));
  EXPECT_TRUE(Is_Person_Marker(Make_Person_Marker("Ben")));
}

TEST(Make_Person_Marker, HoldsTheNameAndMinusOneEverywhereElse) {
  const ScheduleRecord marker = Make_Person_Marker("Ben");
  EXPECT_EQ(marker.Person_Name.text(), "Ben");
  EXPECT_TRUE(marker.Person_Name.is_text());
  int minus_ones = 0;
  for (const Value* field : Fields_In_File_Order(marker)) {
    if (field->is_number() && field->number() == -1) ++minus_ones;
  }
  EXPECT_EQ(minus_ones, 27);
}

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

TEST(Write_Person_Marker_28_Lines, WritesOneValueALine) {
  TempFolder folder;
  const std::string path = folder.file("out.tmp");
  {
    SequentialWriter file(path);
    Write_Person_Marker_28_Lines(file, "Ben");
  }
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

}  // namespace
}  // namespace orrivane::organizer
