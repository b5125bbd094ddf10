// The entry of a non-task reminder: the moment on its label, the date check, the record and the
// messages of adding and updating, and the list to choose from.
#include "reminders/non_task_entry.h"

#include <gtest/gtest.h>

#include "core/runtime_failure.h"
#include "core/temp_folder.h"
#include "reminders/reminder_samples.h"
#include "support/failure_of.h"

namespace orrivane::reminders {
namespace {

using testing::Failure_Of;
using testing::TempFolder;

constexpr char kLabel[] = "2:30 PM, March 5, 2001";

// ---- The label's moment ---------------------------------------------------------------------------

TEST(PresentNonTaskMoment, TheClockReadingInTheLabelsForm) {
  EXPECT_EQ(Present_Non_Task_Moment("3/5/2001", "2:05:09 PM"), "2:05 PM, March 5, 2001");
  EXPECT_EQ(Present_Non_Task_Moment("12/31/1999", "12:00:59 AM"), "12:00 AM, December 31, 1999");
  EXPECT_EQ(Present_Non_Task_Moment("10/15/2024", "11:59:00 PM"), "11:59 PM, October 15, 2024");
}

TEST(ChangeFullString, TheHourComesFromTheTwentyFourHourClock) {
  EXPECT_EQ(Change_Full_String(kLabel, "Hour", "17"), "5:30 PM, March 5, 2001");
  EXPECT_EQ(Change_Full_String(kLabel, "Hour", "00"), "12:30 AM, March 5, 2001");
  EXPECT_EQ(Change_Full_String(kLabel, "Hour", "12"), "12:30 PM, March 5, 2001");
  EXPECT_EQ(Change_Full_String(kLabel, "Hour", "09"), "9:30 AM, March 5, 2001");
  EXPECT_EQ(Change_Full_String(kLabel, "Hour", "23"), "11:30 PM, March 5, 2001");
}

TEST(ChangeFullString, TheMinuteStandsAsChosen) {
  EXPECT_EQ(Change_Full_String(kLabel, "Minute", "05"), "2:05 PM, March 5, 2001");
  EXPECT_EQ(Change_Full_String("12:00 AM, March 5, 2001", "Minute", "59"), "12:59 AM, March 5, 2001");
}

TEST(ChangeFullString, TheMonthByItsName) {
  EXPECT_EQ(Change_Full_String(kLabel, "Month", "Feb"), "2:30 PM, February 5, 2001");
  EXPECT_EQ(Change_Full_String(kLabel, "Month", "Dec"), "2:30 PM, December 5, 2001");
}

TEST(ChangeFullString, TheDayLosesItsLeadingZero) {
  EXPECT_EQ(Change_Full_String(kLabel, "Date", "09"), "2:30 PM, March 9, 2001");
  EXPECT_EQ(Change_Full_String(kLabel, "Date", "10"), "2:30 PM, March 10, 2001");
  EXPECT_EQ(Change_Full_String(kLabel, "Date", "31"), "2:30 PM, March 31, 2001");
}

TEST(ChangeFullString, TheYearWithinItsCenturyAndTheCentury) {
  EXPECT_EQ(Change_Full_String(kLabel, "Year", "99"), "2:30 PM, March 5, 2099");
  EXPECT_EQ(Change_Full_String(kLabel, "Year", "00"), "2:30 PM, March 5, 2000");
  EXPECT_EQ(Change_Full_String(kLabel, "Century", "19"), "2:30 PM, March 5, 1901");
  EXPECT_EQ(Change_Full_String(kLabel, "Century", "21"), "2:30 PM, March 5, 2101");
  EXPECT_EQ(Change_Full_String("2:30 PM, March 5, 1999", "Century", "21"), "2:30 PM, March 5, 2199");
}

TEST(ChangeFullString, ADateNoCalendarHasMayStandOnTheLabel) {
  const std::string february = Change_Full_String(kLabel, "Month", "Feb");
  EXPECT_EQ(Change_Full_String(february, "Date", "31"), "2:30 PM, February 31, 2001");
}

TEST(ChangeFullString, ChangingTheTimeLeavesTheDateAsItStands) {
  EXPECT_EQ(Change_Full_String("2:30 PM, February 31, 2001", "Hour", "08"), "8:30 AM, February 31, 2001");
}

TEST(ChangeFullString, AnUnknownPartRewritesTheDateUnchanged) {
  EXPECT_EQ(Change_Full_String(kLabel, "Second", "17"), kLabel);
  EXPECT_EQ(Change_Full_String(kLabel, "hour", "17"), kLabel);  // parts are compared with case
}

TEST(ChangeFullString, ALabelWithoutItsSeparatorsIsInvalidProcedureCall) {
  EXPECT_EQ(Failure_Of([] { Change_Full_String("2:30 PM March 5 2001", "Hour", "17"); }), kInvalidProcedureCall);
}

// ---- Adding ---------------------------------------------------------------------------------------

TEST(NonTaskDateMessage, AnExistingDateHasNone) {
  EXPECT_TRUE(Non_Task_Date_Message(kLabel).empty());
  EXPECT_TRUE(Non_Task_Date_Message("2:30 PM, February 29, 2000").empty());
  EXPECT_TRUE(Non_Task_Date_Message("2:30 PM, December 31, 2199").empty());
}

TEST(NonTaskDateMessage, FebruaryNamesTheSelectedYear) {
  const Message message = Non_Task_Date_Message("2:30 PM, February 31, 2001");
  EXPECT_EQ(message.title, "Invalid Date");
  EXPECT_EQ(message.text, "February only has 28 days in it for the selected year.");
  EXPECT_EQ(message.icon, vbExclamation);
  EXPECT_EQ(message.buttons, vbOKOnly);
  EXPECT_EQ(Non_Task_Date_Message("2:30 PM, February 30, 2000").text,
            "February only has 29 days in it for the selected year.");
  // 1900 is no leap year in the Gregorian calendar.
  EXPECT_EQ(Non_Task_Date_Message("2:30 PM, February 29, 1900").text,
            "February only has 28 days in it for the selected year.");
}

TEST(NonTaskDateMessage, OtherMonthsTellTheirLength) {
  const Message message = Non_Task_Date_Message("2:30 PM, April 31, 2001");
  EXPECT_EQ(message.title, "Invalid Date");
  EXPECT_EQ(message.text, "April only has 30 days in it.");
  EXPECT_EQ(message.icon, vbExclamation);
  EXPECT_EQ(Non_Task_Date_Message("2:30 PM, June 31, 2001").text, "June only has 30 days in it.");
}

NonTaskEntry Entry(const std::string& title, const std::string& message = "", int status = 1,
                   const std::string& label = kLabel) {
  return {status, title, message, label};
}

TEST(NonTaskReminderOf, TheRecordInTheFilesForm) {
  const NonTaskReminderRecord r = Non_Task_Reminder_Of(3, Entry("Bank", "Call."));
  EXPECT_EQ(r.NT_Record_Number, Value(3));
  EXPECT_EQ(r.NT_Status, Value(1));
  EXPECT_EQ(r.NT_Title.text(), "Bank");
  EXPECT_EQ(r.NT_Message.text(), "Call.");
  EXPECT_EQ(r.NT_Time_String.text(), "14:30, March 5, 2001");
}

TEST(NonTaskReminderOf, ATitleOfBlanksIsStoredAsMessage) {
  EXPECT_EQ(Non_Task_Reminder_Of(1, Entry("")).NT_Title.text(), "Message");
  EXPECT_EQ(Non_Task_Reminder_Of(1, Entry("   ")).NT_Title.text(), "Message");
  EXPECT_EQ(Non_Task_Reminder_Of(1, Entry("  Bank ")).NT_Title.text(), "  Bank ");  // as typed
}

TEST(SaveNonTaskReminder, AddingAppendsUnderTheNextNumberAndCreatesTheFile) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  const std::string scratch = folder.file("NTRemin.tmp");
  EXPECT_EQ(Save_Non_Task_Reminder(path, scratch, kAddCaption, {}, Entry("", "Call the bank about the loan.", 1,
                                                                           "9:05 AM, March 5, 2001")),
            Non_Task_Saved_Message(kAddCaption));
  EXPECT_EQ(Save_Non_Task_Reminder(path, scratch, kAddCaption, {}, Entry("Backup", "", 0)),
            Non_Task_Saved_Message(kAddCaption));
  EXPECT_EQ(testing::Read_Bytes(path),
            "1\r\n1\r\n\"Message\"\r\n\"Call the bank about the loan.\"\r\n\"09:05, March 5, 2001\"\r\n"
            "2\r\n0\r\n\"Backup\"\r\n\"\"\r\n\"14:30, March 5, 2001\"\r\n");
}

TEST(SaveNonTaskReminder, UpdatingKeepsThePlaceAndTheNumberOfTheSelectedRecord) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  const std::string scratch = folder.file("NTRemin.tmp");
  samples::Write_Messages(path, {samples::Message_At(1, "A", "", "09:05, March 5, 2001"),
                                 samples::Message_At(2, "B", "", "09:05, March 5, 2001"),
                                 samples::Message_At(3, "C", "", "09:05, March 5, 2001")});
  EXPECT_EQ(Save_Non_Task_Reminder(path, scratch, kUpdateCaption, "2", Entry(" ", "Changed", 0)),
            Non_Task_Saved_Message(kUpdateCaption));
  EXPECT_EQ(Non_Task_List_Items(path), (std::vector<std::string>{"1 - A, 9:05 AM, March 5, 2001",
                                                                 "2 - Message, 2:30 PM, March 5, 2001",
                                                                 "3 - C, 9:05 AM, March 5, 2001"}));
  EXPECT_EQ(Find_Non_Task_Reminder(path, 2).NT_Status, Value(0));
  EXPECT_FALSE(File_Exists(scratch));
}

TEST(SaveNonTaskReminder, AnotherCaptionWritesNothing) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  EXPECT_TRUE(Save_Non_Task_Reminder(path, folder.file("NTRemin.tmp"), "add", {}, Entry("Bank")).empty());
  EXPECT_FALSE(File_Exists(path));
}

TEST(NonTaskSavedMessage, EachModeSaysItsOwn) {
  const Message added = Non_Task_Saved_Message(kAddCaption);
  EXPECT_EQ(added.title, "Reminded Added");
  EXPECT_EQ(added.text, "Reminder has been added.");
  const Message updated = Non_Task_Saved_Message(kUpdateCaption);
  EXPECT_EQ(updated.title, "Changes Saved");
  EXPECT_EQ(updated.text, "Reminder has been updated.");
  EXPECT_TRUE(Non_Task_Saved_Message("add").empty());
  EXPECT_TRUE(Non_Task_Saved_Message("").empty());
}

TEST(NonTaskStatusLook, OnIsBoldRedOffIsPlainBlack) {
  const StatusLook on = Non_Task_Status_Look(true);
  EXPECT_STREQ(on.caption, "ON");
  EXPECT_TRUE(on.bold);
  EXPECT_EQ(on.colour, 255u);
  const StatusLook off = Non_Task_Status_Look(false);
  EXPECT_STREQ(off.caption, "Off");
  EXPECT_FALSE(off.bold);
  EXPECT_EQ(off.colour, 0u);
}

// ---- Choosing -------------------------------------------------------------------------------------

TEST(NonTaskListItem, NumberTitleAndTheTwelveHourMoment) {
  EXPECT_EQ(Non_Task_List_Item(samples::Message_At(4, "Backup", "", "17:45, December 31, 2001", 0)),
            "4 - Backup, 5:45 PM, December 31, 2001");
  EXPECT_EQ(Non_Task_List_Item(samples::Message_At(1, "Message", "", "00:05, March 5, 2001")),
            "1 - Message, 12:05 AM, March 5, 2001");
}

TEST(NonTaskListItems, EveryRecordInFileOrderAndNoneWithoutAFile) {
  TempFolder folder;
  const std::string path = folder.file("NTRemin.dat");
  EXPECT_TRUE(Non_Task_List_Items(path).empty());
  samples::Write_Messages(path, {samples::Message_At(4, "Backup", "", "17:45, December 31, 2001"),
                                 samples::Message_At(1, "Bank", "", "09:05, March 5, 2001")});
  EXPECT_EQ(Non_Task_List_Items(path),
            (std::vector<std::string>{"4 - Backup, 5:45 PM, December 31, 2001", "1 - Bank, 9:05 AM, March 5, 2001"}));
}

TEST(ChosenNTRecordNumber, TheTextUpToTheFirstBlank) {
  EXPECT_EQ(Chosen_NT_Record_Number("12 - Backup, 5:45 PM, December 31, 2001"), Value(12));
  EXPECT_EQ(Chosen_NT_Record_Number("12 - Backup").text(), "12");
  EXPECT_EQ(Failure_Of([] { Chosen_NT_Record_Number("12"); }), kInvalidProcedureCall);
}

}  // namespace
}  // namespace orrivane::reminders
