#include "organizer/schedule_record.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "core/runtime_failure.h"
#include "organizer/log_file.h"
#include "organizer/log_samples.h"

namespace orrivane::organizer {
namespace {

using namespace samples;

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

TEST(Write_Person_Marker_28_Lines, WritesOneValueALine) {
  TempFolder folder;
  const std::string path = folder.file("out.tmp");
  {
    SequentialWriter file(path);
    Write_Person_Marker_28_Lines(file, "Ben");
  }
  EXPECT_EQ(Read_Bytes(path), kBenMarker28Lines);
}

}  // namespace
}  // namespace orrivane::organizer
