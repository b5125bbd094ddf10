// The file of the reminders that belong to no task, and the texts of their moments.
#include "reminders/non_task_reminders.h"

#include <gtest/gtest.h>

#include "core/runtime_failure.h"
#include "core/temp_folder.h"
#include "reminders/reminder_samples.h"
#include "support/failure_of.h"

namespace orrivane::reminders {
namespace {

using testing::Failure_Of;
using testing::Read_Bytes;
using testing::TempFolder;
using testing::Write_Bytes;

constexpr char kTwoRecords[] =
    "1\r\n1\r\n\"Message\"\r\n\"Call the bank about the loan.\"\r\n\"09:05, March 5, 2001\"\r\n"
    "4\r\n0\r\n\"Backup\"\r\n\"Copy the log to the other disk.\"\r\n\"17:45, December 31, 2001\"\r\n";

TEST(NonTaskReminderFile, RecordsAreWrittenFiveLinesEach) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  Append_Non_Task_Reminder(path, samples::Message_At(1, "Message", "Call the bank about the loan.", "09:05, March 5, 2001"));
  Append_Non_Task_Reminder(path, samples::Message_At(4, "Backup", "Copy the log to the other disk.",
                                                     "17:45, December 31, 2001", 0));
  EXPECT_EQ(Read_Bytes(path), kTwoRecords);
}

TEST(NonTaskReminderFile, RecordsAreReadInFileOrderWhereverTheLinesEnd) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  Write_Bytes(path, "7,1,\"A\",\"line one\r\nline two\",\"14:30, March 5, 2001\"\r\n" + std::string(kTwoRecords));
  NonTaskReminderReader reader(path);
  NonTaskReminderRecord r;
  ASSERT_TRUE(reader.Next(r));
  EXPECT_EQ(r.NT_Record_Number, Value(7));
  EXPECT_EQ(r.NT_Message.text(), "line one\r\nline two");
  ASSERT_TRUE(reader.Next(r));
  EXPECT_EQ(r.NT_Title.text(), "Message");
  ASSERT_TRUE(reader.Next(r));
  EXPECT_EQ(r.NT_Status, Value(0));
  EXPECT_EQ(r.NT_Time_String.text(), "17:45, December 31, 2001");
  EXPECT_FALSE(reader.Next(r));
  EXPECT_EQ(r.NT_Title.text(), "Backup");
}

TEST(NonTaskReminderFile, ATruncatedRecordIsInputPastEndOfFile) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  Write_Bytes(path, std::string(kTwoRecords) + "5\r\n1\r\n\"Cut\"\r\n");
  NonTaskReminderReader reader(path);
  NonTaskReminderRecord r;
  EXPECT_EQ(Failure_Of([&] {
              while (reader.Next(r)) {
              }
            }),
            kInputPastEndOfFile);
  EXPECT_EQ(r.NT_Title.text(), "Cut");
}

TEST(NonTaskReminderFile, AMissingFileIsNoFailureWhereItMayBeMissing) {
  TempFolder folder;
  EXPECT_FALSE(NonTaskReminderReader::Open_If_Present(folder.file("NTRemin.dat")).has_value());
  EXPECT_FALSE(NonTaskReminderReader::Open_If_Present(folder.path()).has_value());
  EXPECT_EQ(Failure_Of([&] { NonTaskReminderReader reader(folder.file("NTRemin.dat")); }), kFileNotFound);
  Write_Bytes(folder.file("NTRemin.dat"), "");
  auto empty = NonTaskReminderReader::Open_If_Present(folder.file("NTRemin.dat"));
  ASSERT_TRUE(empty.has_value());
  NonTaskReminderRecord r;
  EXPECT_FALSE(empty->Next(r));
}

// ---- Numbering ----------------------------------------------------------------------------

TEST(GenerateNTReminRecordNumber, AMissingOrEmptyFileGivesOne) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  EXPECT_EQ(Generate_NTRemin_Record_Number(path), Value(1));
  EXPECT_FALSE(File_Exists(path));  // asking for a number creates nothing
  Write_Bytes(path, "");
  EXPECT_EQ(Generate_NTRemin_Record_Number(path), Value(1));
}

TEST(GenerateNTReminRecordNumber, TheHighestNumberWhereverItStandsAndNoGapFilled) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  Write_Bytes(path, kTwoRecords);
  EXPECT_EQ(Generate_NTRemin_Record_Number(path), Value(5));
  samples::Write_Messages(path, {samples::Message_At(9, "A", "", "09:05, March 5, 2001"),
                                 samples::Message_At(2, "B", "", "09:05, March 5, 2001")});
  EXPECT_EQ(Generate_NTRemin_Record_Number(path), Value(10));
}

TEST(GenerateNTReminRecordNumber, ATruncatedRecordIsInputPastEndOfFile) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  Write_Bytes(path, std::string(kTwoRecords) + "5\r\n1\r\n");
  EXPECT_EQ(Failure_Of([&] { Generate_NTRemin_Record_Number(path); }), kInputPastEndOfFile);
}

// Records 1, 2, 3: deleting 3 and adding gives 3 again; deleting 2 and adding gives 4.
TEST(GenerateNTReminRecordNumber, OnlyTheLastNumberIsGivenOutAgainAfterADeletion) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  const std::string scratch = folder.file("NTRemin.tmp");
  const auto three = [&] {
    samples::Write_Messages(path, {samples::Message_At(1, "A", "", "09:05, March 5, 2001"),
                                   samples::Message_At(2, "B", "", "09:05, March 5, 2001"),
                                   samples::Message_At(3, "C", "", "09:05, March 5, 2001")});
  };
  three();
  Drop_Non_Task_Reminder(path, scratch, 3);
  EXPECT_EQ(Generate_NTRemin_Record_Number(path), Value(3));
  three();
  Drop_Non_Task_Reminder(path, scratch, 2);
  EXPECT_EQ(Generate_NTRemin_Record_Number(path), Value(4));
}

// ---- Finding and rewriting ---------------------------------------------------------------------

TEST(FindNonTaskReminder, TheRecordOfTheNumberComparedAsNumbers) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  Write_Bytes(path, kTwoRecords);
  EXPECT_EQ(Find_Non_Task_Reminder(path, "4").NT_Title.text(), "Backup");
  EXPECT_EQ(Find_Non_Task_Reminder(path, 1).NT_Message.text(), "Call the bank about the loan.");
  EXPECT_EQ(Failure_Of([&] { Find_Non_Task_Reminder(path, 2); }), kInputPastEndOfFile);
  EXPECT_EQ(Failure_Of([&] { Find_Non_Task_Reminder(folder.file("none.dat"), 1); }), kFileNotFound);
}

TEST(ReplaceNonTaskReminder, TheRecordKeepsItsPlaceAndItsNumber) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  const std::string scratch = folder.file("NTRemin.tmp");
  Write_Bytes(path, kTwoRecords);
  Replace_Non_Task_Reminder(path, scratch, "1",
                            samples::Message_At(7, "Bank", "Call at nine.", "09:00, March 6, 2001", 0));
  EXPECT_EQ(Read_Bytes(path),
            "1\r\n0\r\n\"Bank\"\r\n\"Call at nine.\"\r\n\"09:00, March 6, 2001\"\r\n"
            "4\r\n0\r\n\"Backup\"\r\n\"Copy the log to the other disk.\"\r\n\"17:45, December 31, 2001\"\r\n");
  EXPECT_FALSE(File_Exists(scratch));
}

TEST(DropNonTaskReminder, TheOthersStandAsTheyWere) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  const std::string scratch = folder.file("NTRemin.tmp");
  Write_Bytes(path, kTwoRecords);
  Drop_Non_Task_Reminder(path, scratch, 1);
  EXPECT_EQ(Read_Bytes(path),
            "4\r\n0\r\n\"Backup\"\r\n\"Copy the log to the other disk.\"\r\n\"17:45, December 31, 2001\"\r\n");
  Drop_Non_Task_Reminder(path, scratch, 99);  // no such record: nothing changes
  EXPECT_EQ(Generate_NTRemin_Record_Number(path), Value(5));
  EXPECT_FALSE(File_Exists(scratch));
}

TEST(DropNonTaskReminder, DeletingTheLastRecordLeavesAnEmptyFile) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  const std::string scratch = folder.file("NTRemin.tmp");
  samples::Write_Messages(path, {samples::Message_At(1, "Only", "", "09:05, March 5, 2001")});
  Drop_Non_Task_Reminder(path, scratch, 1);
  ASSERT_TRUE(File_Exists(path));
  EXPECT_EQ(Read_Bytes(path), "");
}

TEST(RewriteNonTaskReminders, AMissingFileIsCreatedEmpty) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  Drop_Non_Task_Reminder(path, folder.file("NTRemin.tmp"), 1);
  ASSERT_TRUE(File_Exists(path));
  EXPECT_EQ(Read_Bytes(path), "");
}

TEST(RewriteNonTaskReminders, TheSourceStandsWholeUntilTheScratchFileIsComplete) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  const std::string scratch = folder.file("NTRemin.tmp");
  Write_Bytes(path, kTwoRecords);
  struct Stopped {};
  EXPECT_THROW(Rewrite_Non_Task_Reminders(
                   path, scratch, [](const NonTaskReminderRecord&) { return std::optional<NonTaskReminderRecord>(); },
                   [&] {
                     EXPECT_EQ(Read_Bytes(scratch), "");
                     throw Stopped{};
                   }),
               Stopped);
  EXPECT_EQ(Read_Bytes(path), kTwoRecords);
}

TEST(RewriteNonTaskReminders, ATruncatedRecordLeavesTheSourceAlone) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  const std::string cut = std::string(kTwoRecords) + "5\r\n1\r\n";
  Write_Bytes(path, cut);
  EXPECT_EQ(Failure_Of([&] { Drop_Non_Task_Reminder(path, folder.file("NTRemin.tmp"), 1); }), kInputPastEndOfFile);
  EXPECT_EQ(Read_Bytes(path), cut);
}

TEST(RewriteNonTaskReminders, NumbersAreComparedAsNumbers) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  Write_Bytes(path, "\"04\",1,\"Quoted\",\"\",\"09:05, March 5, 2001\"\r\n" + std::string(kTwoRecords));
  Drop_Non_Task_Reminder(path, folder.file("NTRemin.tmp"), 4);
  EXPECT_EQ(Read_Bytes(path), "1\r\n1\r\n\"Message\"\r\n\"Call the bank about the loan.\"\r\n\"09:05, March 5, 2001\"\r\n");
}

TEST(NonTaskReminderTimes, TheMomentIsCutAtItsFirstComma) {
  const TimeAndDate cut = Cut_Time_And_Date("09:05, March 5, 2001");
  EXPECT_EQ(cut.time, "09:05");
  EXPECT_EQ(cut.date, "March 5, 2001");
  EXPECT_EQ(Failure_Of([] { Cut_Time_And_Date("09:05 March 5 2001"); }), kInvalidProcedureCall);
}

TEST(NonTaskReminderTimes, TheDisplayedTimeIsAlwaysInTheMorning) {
  EXPECT_EQ(Displayed_Non_Task_Time("14:30"), "2:30 AM");
  EXPECT_EQ(Displayed_Non_Task_Time("09:05"), "9:05 AM");
  EXPECT_EQ(Displayed_Non_Task_Time("00:00"), "12:00 AM");
  EXPECT_EQ(Displayed_Non_Task_Time("12:00"), "12:00 AM");
}

TEST(NonTaskReminderTimes, TheConvertersGoBothWays) {
  EXPECT_EQ(Cvrt_NTTimeDateStrg_To_24h_Tm("9:05 AM, March 5, 2001"), "09:05, March 5, 2001");
  EXPECT_EQ(Cvrt_NTTimeDateStrg_To_12h_Tm("09:05, March 5, 2001"), "9:05 AM, March 5, 2001");
  EXPECT_EQ(Cvrt_NTTimeDateStrg_To_24h_Tm("2:30 PM, March 5, 2001"), "14:30, March 5, 2001");
  EXPECT_EQ(Cvrt_NTTimeDateStrg_To_12h_Tm("14:30, March 5, 2001"), "2:30 PM, March 5, 2001");
  EXPECT_EQ(Cvrt_NTTimeDateStrg_To_24h_Tm("12:00 AM, March 5, 2001"), "00:00, March 5, 2001");
  EXPECT_EQ(Cvrt_NTTimeDateStrg_To_24h_Tm("12:00 PM, March 5, 2001"), "12:00, March 5, 2001");
  EXPECT_EQ(Cvrt_NTTimeDateStrg_To_12h_Tm("00:00, March 5, 2001"), "12:00 AM, March 5, 2001");
  EXPECT_EQ(Cvrt_NTTimeDateStrg_To_12h_Tm("12:00, March 5, 2001"), "12:00 PM, March 5, 2001");
}

TEST(AdjustMessageFontSize, TheLengthChoosesTheSize) {
  struct Case {
    std::size_t length;
    int points;
  };
  for (const Case c : {Case{0, 14}, Case{12, 14}, Case{13, 12}, Case{30, 12}, Case{31, 10}, Case{65, 10}, Case{66, 8},
                       Case{5000, 8}}) {
    EXPECT_EQ(Message_Font_Size(c.length), c.points) << c.length;
  }
}

}  // namespace
}  // namespace orrivane::reminders
