// What a tick of the reminder timer decides, over files written here and chosen clock readings.
#include "reminders/reminder_tick.h"

#include <gtest/gtest.h>

#include "core/runtime_failure.h"
#include "core/temp_folder.h"
#include "reminders/reminder_comparison.h"
#include "reminders/reminder_samples.h"
#include "support/failure_of.h"

namespace orrivane::reminders {
namespace {

using organizer::ScheduleRecord;
using samples::Message_At;
using samples::Task_With_Reminder;
using samples::Task_With_Series;
using samples::Write_Messages;
using samples::Write_Tasks;
using testing::Failure_Of;
using testing::TempFolder;
using Form = NonTaskReminderFilling::Form;

TickMoment At(const std::string& date, const std::string& time) { return Tick_Moment(date, time, {}); }

std::int64_t Minutes(const std::string& time) { return Timer_Comparison_Date("March 5, 2001", time, kOutputStyleDate, {}); }

TEST(TickMoment, TakesTheMinuteAndTheNumberFromOneReading) {
  const TickMoment moment = At("3/5/2001", "2:30:05 PM");
  EXPECT_EQ(moment.Minute.text(), "30");
  EXPECT_EQ(moment.Current_Minutes, 53213190);
}

TEST(ShowInThisMinute, OnlyTheMinuteOfTheHourIsKept) {
  ReminderMinute last;
  EXPECT_TRUE(Show_In_This_Minute(last, Value("00")));  // nothing kept equals no minute
  EXPECT_FALSE(Show_In_This_Minute(last, Value("00")));
  EXPECT_TRUE(Show_In_This_Minute(last, Value("05")));
  EXPECT_FALSE(Show_In_This_Minute(last, Value("05")));  // 11:05 after 10:05, or 10:05 of the next day
  EXPECT_EQ(last->text(), "05");
}

TEST(IsTaskReminderDue, ASingleReminderIsDueInItsMinuteOnly) {
  const ScheduleRecord task = Task_With_Reminder(1, "Dentist", "March 5, 2001", "14:30");
  EXPECT_TRUE(Is_Task_Reminder_Due(task, Minutes("14:30")));
  EXPECT_FALSE(Is_Task_Reminder_Due(task, Minutes("14:29")));
  EXPECT_FALSE(Is_Task_Reminder_Due(task, Minutes("14:31")));
}

std::vector<std::string> Hits(const ScheduleRecord& task) {
  std::vector<std::string> hits;
  for (int m = 9 * 60 + 30; m <= 11 * 60 + 30; ++m) {
    const std::string time = std::to_string(m / 60) + ":" + (m % 60 < 10 ? "0" : "") + std::to_string(m % 60);
    if (Is_Task_Reminder_Due(task, Minutes(time))) hits.push_back(time);
  }
  return hits;
}

TEST(IsTaskReminderDue, ASeriesCountedForwardHitsFromItsFirstMoment) {
  EXPECT_EQ(Hits(Task_With_Series(1, 2, "10:00", "11:00", 25)), (std::vector<std::string>{"10:00", "10:25", "10:50"}));
}

TEST(IsTaskReminderDue, ASeriesCountedBackwardHitsFromItsLastMoment) {
  EXPECT_EQ(Hits(Task_With_Series(1, 3, "10:00", "11:00", 25)), (std::vector<std::string>{"10:10", "10:35", "11:00"}));
}

TEST(IsTaskReminderDue, AnotherKindIsNeverDue) {
  ScheduleRecord task = Task_With_Series(1, 2, "10:00", "11:00", 25);
  task.Reminder_Interval = 4;
  EXPECT_TRUE(Hits(task).empty());
}

TEST(IsTaskReminderDue, ASeriesWithoutAPeriodIsADivisionByZeroWithinItsBounds) {
  const ScheduleRecord task = Task_With_Series(1, 2, "10:00", "11:00", 0);
  EXPECT_FALSE(Is_Task_Reminder_Due(task, Minutes("09:59")));
  EXPECT_FALSE(Is_Task_Reminder_Due(task, Minutes("11:01")));
  EXPECT_EQ(Failure_Of([&] { Is_Task_Reminder_Due(task, Minutes("10:30")); }), kDivisionByZero);
}

TEST(IsTaskReminderDue, ASeriesMayRunFromAFixedMomentToOneTiedToTheTask) {
  ScheduleRecord task = Task_With_Series(1, 2, "13:00", "", 30);
  task.Date_String[1] = "At The Start Time of Task";
  task.Time_String[1] = "N/A";
  EXPECT_TRUE(Is_Task_Reminder_Due(task, Minutes("14:30")));
  EXPECT_FALSE(Is_Task_Reminder_Due(task, Minutes("15:00")));
}

TEST(IsTaskReminderDue, TiedMomentsBeforeAndAfterStartAndFinish) {
  ScheduleRecord task = Task_With_Reminder(1, "Dentist", "Before The Start Time of Task", "By 0 Days, 1 Hrs, 15 Min");
  EXPECT_TRUE(Is_Task_Reminder_Due(task, Minutes("13:15")));
  task.Date_String[0] = "After The Start Time of Task";
  EXPECT_TRUE(Is_Task_Reminder_Due(task, Minutes("15:45")));
  task.Date_String[0] = "Before The Finish Time Of Task";
  EXPECT_TRUE(Is_Task_Reminder_Due(task, Minutes("14:30")));
  task.Date_String[0] = "After The Finish Time Of Task";
  EXPECT_TRUE(Is_Task_Reminder_Due(task, Minutes("17:00")));
  task.Date_String[0] = "At The Finish Time Of Task";
  task.Time_String[0] = "N/A";
  EXPECT_TRUE(Is_Task_Reminder_Due(task, Minutes("15:45")));
}

class TickHalves : public ::testing::Test {
 protected:
  std::string tasks() const { return folder.file("TRemin.tmp"); }
  std::string messages() const { return folder.file("NTRemin.dat"); }
  TaskReminderHalf Task_Half(const std::string& time) {
    return Task_Reminder_Half(tasks(), At("3/5/2001", time), last_task, current);
  }
  std::optional<NonTaskReminderFilling> Message_Half(const std::string& time, bool show) {
    return Non_Task_Reminder_Half(messages(), At("3/5/2001", time), show, last_message, current);
  }

  TempFolder folder;
  ReminderMinute last_task;
  ReminderMinute last_message;
  ScheduleRecord current;
};

TEST_F(TickHalves, OneDueTaskFillsTheSingleTaskForm) {
  Write_Tasks(tasks(), {Task_With_Reminder(1, "Dentist", "March 5, 2001", "14:00"),
                        Task_With_Reminder(2, "Lunch", "March 5, 2001", "12:00")});
  const TaskReminderHalf half = Task_Half("2:00:00 PM");
  EXPECT_EQ(half.Due, std::vector<Value>{Value(1)});
  ASSERT_TRUE(half.Show_Reminder);
  ASSERT_TRUE(half.Window.has_value());
  const TaskReminderFilling& w = *half.Window;
  EXPECT_FALSE(w.Several);
  EXPECT_EQ(w.Caption, "Reminder: Dentist");
  EXPECT_EQ(w.Task_Name, "Dentist");
  EXPECT_EQ(w.For, "Anna");
  EXPECT_EQ(w.Start_Time, "2:30 PM, March 5, 2001");
  EXPECT_EQ(w.Ending_Time, "3:45 PM, March 5, 2001");
  EXPECT_EQ(w.Time_Left, "It will be 30 minutes until this task is scheduled to begin.");
  EXPECT_EQ(w.Current_Task_Record_Number, Value(1));
  EXPECT_EQ(w.Time_Of_Message, "2:00 PM, March 5, 2001");
}

TEST_F(TickHalves, TwoDueTasksFillTheSeveralTasksForm) {
  Write_Tasks(tasks(), {Task_With_Reminder(3, "Dentist", "March 5, 2001", "14:00"),
                        Task_With_Reminder(7, "Lunch", "March 5, 2001", "12:00"),
                        Task_With_Reminder(9, "Call", "March 5, 2001", "14:00")});
  const TaskReminderHalf half = Task_Half("2:00:30 PM");
  ASSERT_TRUE(half.Window.has_value());
  const TaskReminderFilling& w = *half.Window;
  EXPECT_TRUE(w.Several);
  EXPECT_EQ(w.Caption, "2 Reminders");
  EXPECT_EQ(w.Task_List, (std::vector<std::string>{"3 - Dentist", "9 - Call"}));
  EXPECT_EQ(w.Task_Name, "");
  EXPECT_EQ(w.For, "N\\A");
  EXPECT_EQ(w.Start_Time, "N\\A");
  EXPECT_EQ(w.Ending_Time, "N\\A");
  EXPECT_EQ(w.Time_Left, "Select a task from the list above.");
}

TEST_F(TickHalves, TheSameMinuteOfTheHourOpensNoSecondWindow) {
  Write_Tasks(tasks(), {Task_With_Reminder(1, "Ten", "March 5, 2001", "10:05"),
                        Task_With_Reminder(2, "Eleven", "March 5, 2001", "11:05")});
  EXPECT_TRUE(Task_Half("10:05:00 AM").Window.has_value());
  EXPECT_FALSE(Task_Half("10:05:05 AM").Window.has_value());
  const TaskReminderHalf eleven = Task_Half("11:05:00 AM");
  EXPECT_EQ(eleven.Due, std::vector<Value>{Value(2)});
  EXPECT_FALSE(eleven.Show_Reminder);
  EXPECT_FALSE(eleven.Window.has_value());
}

TEST_F(TickHalves, TheTaskFileIsReadIntoTheCurrentRecord) {
  Write_Tasks(tasks(), {Task_With_Reminder(1, "Dentist", "March 5, 2001", "14:00"),
                        Task_With_Reminder(2, "Lunch", "March 5, 2001", "12:00")});
  Task_Half("9:00:00 AM");
  EXPECT_EQ(current.Task_Name.text(), "Lunch");
}

TEST_F(TickHalves, OneDueMessageFillsTheSingleMessageForm) {
  Write_Messages(messages(), {Message_At(1, "Bank", "Call the bank.", "14:30, March 5, 2001"),
                              Message_At(2, "Later", "Not yet.", "16:00, March 5, 2001")});
  const auto window = Message_Half("2:30:00 PM", false);
  ASSERT_TRUE(window.has_value());
  EXPECT_EQ(window->form, Form::kSingle);
  EXPECT_EQ(window->Caption, "Reminder: Bank");
  EXPECT_EQ(window->Message, "Call the bank.");
  EXPECT_EQ(window->Date_Of_Message, "March 5, 2001");
  EXPECT_EQ(window->Time_Of_Message, "2:30 AM");
}

TEST_F(TickHalves, SeveralDueMessagesTellTheMomentOfTheLastRecordOfTheFile) {
  Write_Messages(messages(), {Message_At(4, "Backup", "Copy the log.", "14:30, March 5, 2001"),
                              Message_At(2, "Bank", "Call the bank.", "14:30, March 5, 2001"),
                              Message_At(8, "Off", "Switched off.", "17:45, December 31, 2001", 0)});
  const auto window = Message_Half("2:30:00 PM", false);
  ASSERT_TRUE(window.has_value());
  EXPECT_EQ(window->form, Form::kSeveral);
  EXPECT_EQ(window->Caption, "2 Reminders");
  EXPECT_EQ(window->Message, "Please select a reminder message from the list.");
  EXPECT_EQ(window->Reminder_List, (std::vector<std::string>{"4 - Backup", "2 - Bank"}));
  EXPECT_EQ(window->Date_Of_Message, "December 31, 2001");
  EXPECT_EQ(window->Time_Of_Message, "5:45 AM");
}

TEST_F(TickHalves, ATaskWindowBringsTheMessageWindowAlongAsItStands) {
  Write_Messages(messages(), {Message_At(1, "Bank", "Call the bank.", "09:05, March 5, 2001"),
                              Message_At(2, "Off", "Switched off.", "17:45, December 31, 2001", 0)});
  const auto window = Message_Half("2:30:00 PM", true);
  ASSERT_TRUE(window.has_value());
  EXPECT_EQ(window->form, Form::kAsItStands);
  // The plain texts of the last switched-on record.
  EXPECT_EQ(window->Date_Of_Message, "March 5, 2001");
  EXPECT_EQ(window->Time_Of_Message, "09:05");
  EXPECT_FALSE(Message_Half("2:30:00 PM", false).has_value());
}

TEST_F(TickHalves, WithoutAMessageFileTheTaskWindowBringsAnEmptyMoment) {
  const auto window = Message_Half("2:30:00 PM", true);
  ASSERT_TRUE(window.has_value());
  EXPECT_EQ(window->form, Form::kAsItStands);
  EXPECT_EQ(window->Date_Of_Message, "");
  EXPECT_EQ(window->Time_Of_Message, "");
  EXPECT_FALSE(Message_Half("2:30:00 PM", false).has_value());
}

TEST_F(TickHalves, AMessageSwitchedOffNeverFiresAndTheMessageMinuteIsKeptApart) {
  Write_Messages(messages(), {Message_At(1, "Off", "Switched off.", "14:30, March 5, 2001", 0)});
  EXPECT_FALSE(Message_Half("2:30:00 PM", false).has_value());
  Write_Messages(messages(), {Message_At(1, "Bank", "Call the bank.", "14:30, March 5, 2001")});
  last_task = Value("30");
  EXPECT_TRUE(Message_Half("2:30:00 PM", false).has_value());
  // A due message suppressed in its minute takes the task window's company away too.
  EXPECT_FALSE(Message_Half("2:30:05 PM", true).has_value());
}

TEST_F(TickHalves, ATruncatedMessageFileIsInputPastEndOfFile) {
  Write_Messages(messages(), {Message_At(1, "Bank", "Call the bank.", "14:30, March 5, 2001")});
  testing::Write_Bytes(messages(), testing::Read_Bytes(messages()) + "2\r\n1\r\n");
  EXPECT_EQ(Failure_Of([&] { Message_Half("2:30:00 PM", false); }), kInputPastEndOfFile);
}

// ---- The windows' lists ------------------------------------------------------------------------------

TEST(ReminderLists, TheNumberStandsBeforeTheFirstBlank) {
  EXPECT_EQ(Number_Before_First_Blank("12 - Dentist at 3").text(), "12");
  EXPECT_EQ(Failure_Of([] { Number_Before_First_Blank("12"); }), kInvalidProcedureCall);
}

TEST(ReminderLists, TheMomentOfFiringIsReadBackAsSystemTexts) {
  const SystemMoment moment = Moment_Of_Firing("2:05 PM, March 5, 2001");
  EXPECT_EQ(moment.date, "3/5/2001");
  EXPECT_EQ(moment.time, "2:05:00 PM");
}

TEST_F(TickHalves, AChosenTaskIsToldAsOfTheFiring) {
  Write_Tasks(tasks(), {Task_With_Reminder(3, "Dentist", "March 5, 2001", "14:00"),
                        Task_With_Reminder(9, "Call", "March 5, 2001", "14:00")});
  const auto labels = Chosen_Task_Labels(tasks(), "3 - Dentist", "2:00 PM, March 5, 2001", current);
  ASSERT_TRUE(labels.has_value());
  EXPECT_EQ(labels->For, "Anna");
  EXPECT_EQ(labels->Start_Time, "2:30 PM, March 5, 2001");
  EXPECT_EQ(labels->Ending_Time, "3:45 PM, March 5, 2001");
  EXPECT_EQ(labels->Time_Left, "It will be 30 minutes until this task is scheduled to begin.");
  EXPECT_FALSE(Chosen_Task_Labels(tasks(), "5 - Gone", "2:00 PM, March 5, 2001", current).has_value());
}

TEST_F(TickHalves, AChosenMessageIsTheLastOfTheFileWhenItsRecordHasGone) {
  Write_Messages(messages(), {Message_At(4, "Backup", "Copy the log.", "14:30, March 5, 2001"),
                              Message_At(2, "Bank", "Call the bank.", "14:30, March 5, 2001")});
  EXPECT_EQ(Chosen_Non_Task_Message(messages(), "4 - Backup").text(), "Copy the log.");
  EXPECT_EQ(Chosen_Non_Task_Message(messages(), "6 - Gone").text(), "Call the bank.");
  EXPECT_EQ(Failure_Of([&] { Chosen_Non_Task_Message(folder.file("none.dat"), "4 - Backup"); }), kFileNotFound);
}

}  // namespace
}  // namespace orrivane::reminders

namespace orrivane::reminders {
namespace {

TEST(RecordNumberList, KeepsTheDueNumbersFromElementOne) {
  RecordNumberList list;
  EXPECT_EQ(list.Store("Get Number Of Elements", {}, {}), Value(0));
  EXPECT_EQ(list.Store("Append", {}, 7), Value(7));
  EXPECT_EQ(list.Store("Append", {}, 9), Value(9));
  EXPECT_EQ(list.Store("Get Number Of Elements", {}, {}), Value(2));
  EXPECT_EQ(list.Store("Get", 2, {}), Value(9));
  EXPECT_EQ(list.Store("Put", 1, 4), Value(4));
  EXPECT_EQ(list.Store("Get", 1, {}), Value(4));
  EXPECT_TRUE(list.Store("Get", 0, {}).is_empty());
  EXPECT_EQ(testing::Failure_Of([&] { list.Store("Get", 3, {}); }), kSubscriptOutOfRange);
  EXPECT_TRUE(list.Store("Count", {}, {}).is_empty());
  EXPECT_EQ(list.Store("Reset", {}, {}).text(), "-");
  EXPECT_EQ(list.Store("Get Number Of Elements", {}, {}), Value(0));
}

}  // namespace
}  // namespace orrivane::reminders

namespace orrivane::reminders {
namespace {

class DuplicateNumbers : public ::testing::Test {
 protected:
  TaskReminderHalf Half(const std::vector<organizer::ScheduleRecord>& records) {
    samples::Write_Tasks(folder.file("TRemin.tmp"), records);
    ReminderMinute last;
    return Task_Reminder_Half(folder.file("TRemin.tmp"), Tick_Moment("3/5/2001", "2:00:00 PM", {}), last, current);
  }
  testing::TempFolder folder;
  organizer::ScheduleRecord current;
};

TEST_F(DuplicateNumbers, TheSingleFormShowsTheFirstRecordOfTheDueNumber) {
  const TaskReminderHalf half = Half({samples::Task_With_Reminder(5, "Earlier", "March 5, 2001", "09:00"),
                                      samples::Task_With_Reminder(5, "Due", "March 5, 2001", "14:00")});
  ASSERT_TRUE(half.Window.has_value());
  EXPECT_EQ(half.Window->Caption, "Reminder: Earlier");
  EXPECT_EQ(current.Task_Name.text(), "Earlier");
}

TEST_F(DuplicateNumbers, TheSeveralFormListsEachRecordOnceForEachEqualDueNumber) {
  const TaskReminderHalf half = Half({samples::Task_With_Reminder(5, "A", "March 5, 2001", "14:00"),
                                      samples::Task_With_Reminder(6, "C", "March 5, 2001", "09:00"),
                                      samples::Task_With_Reminder(5, "B", "March 5, 2001", "14:00")});
  ASSERT_TRUE(half.Window.has_value());
  EXPECT_EQ(half.Window->Caption, "2 Reminders");
  EXPECT_EQ(half.Window->Task_List, (std::vector<std::string>{"5 - A", "5 - A", "5 - B", "5 - B"}));
  EXPECT_EQ(current.Task_Name.text(), "B");
}

TEST_F(DuplicateNumbers, AFileOfPlainNumbersNeedsNoSecondReading) {
  const TaskReminderHalf half = Half({samples::Task_With_Reminder(1, "A", "March 5, 2001", "14:00"),
                                      samples::Task_With_Reminder(2, "C", "March 5, 2001", "09:00"),
                                      samples::Task_With_Reminder(3, "B", "March 5, 2001", "14:00")});
  ASSERT_TRUE(half.Window.has_value());
  EXPECT_EQ(half.Window->Task_List, (std::vector<std::string>{"1 - A", "3 - B"}));
  EXPECT_EQ(current.Task_Name.text(), "B");
}

}  // namespace
}  // namespace orrivane::reminders
