// The reminder timer of the main window: ticks every five seconds from the start, at chosen
// moments of the movable clock, over reminder files written here.
#include <QApplication>
#include <QLineEdit>

#include "calendar/frmSelectMonth.h"
#include "platform/qt_platform.h"
#include "reminders/reminder_window_test.h"

namespace orrivane {
namespace {

using organizer::ScheduleRecord;
using reminders::samples::Message_At;
using reminders::samples::Task_With_Reminder;
using reminders::samples::Task_With_Series;
using testing::ReminderWindowTest;

using Times = std::vector<std::string>;

class Form1RemindersTest : public ReminderWindowTest {};

TEST_F(Form1RemindersTest, TheTimerTicksEveryFiveSecondsFromTheStartWhateverWindowStands) {
  Start_At(2001, 3, 5, 14, 29, 0);
  EXPECT_EQ(machine().Running_Timers(), 1u);
  const int readings = machine().Clock_Readings();
  machine().Advance_Seconds(4);
  EXPECT_EQ(machine().Clock_Readings(), readings);
  machine().Advance_Seconds(1);
  // One reading of the clock a tick, so that nothing straddles midnight.
  EXPECT_EQ(machine().Clock_Readings(), readings + 1);
  large().hide();
  machine().Advance_Seconds(10);
  EXPECT_EQ(machine().Clock_Readings(), readings + 3);
}

TEST_F(Form1RemindersTest, AOneOffReminderFiresOnceAtTheFirstTickOfItsMinute) {
  Start_At(2001, 3, 5, 14, 29, 50);
  Write_Task_Reminders({Task_With_Reminder(1, "Dentist", "March 5, 2001", "14:30")});
  machine().Advance_Seconds(5);
  EXPECT_FALSE(tasks().isVisible());
  EXPECT_EQ(machine().Beeps(), 0);
  machine().Advance_Seconds(5);  // 14:30:00
  ASSERT_TRUE(tasks().isVisible());
  EXPECT_EQ(Title(tasks()), "Reminder: Dentist");
  EXPECT_EQ(Text(tasks().lblTaskName), "Dentist");
  EXPECT_EQ(Text(tasks().lblFor), "Anna");
  EXPECT_EQ(Text(tasks().lblStartTime), "2:30 PM, March 5, 2001");
  EXPECT_EQ(Text(tasks().lblEndingTime), "3:45 PM, March 5, 2001");
  EXPECT_EQ(Text(tasks().lblTimeLeft), "This task is scheduled to begin now.");
  EXPECT_EQ(Text(tasks().lblTimeOfMessage), "2:30 PM, March 5, 2001");
  EXPECT_TRUE(tasks().cmdMoreDetails->isEnabled());
  EXPECT_FALSE(tasks().cboTaskList->isVisible());
  EXPECT_TRUE(tasks().lneTaskNameDivider->isVisible());
  // The window of no task comes along as it stood before its first filling, with a second beep.
  ASSERT_TRUE(messages().isVisible());
  EXPECT_EQ(Title(messages()), "Reminder");
  EXPECT_EQ(Text(messages().lblMessage), "");
  EXPECT_EQ(Text(messages().lblDateOfMessage), "");
  EXPECT_EQ(machine().Beeps(), 2);
  Close_Reminders();
  EXPECT_EQ(Task_Windows_Over(55), Times{});
  EXPECT_EQ(machine().Beeps(), 2);
  EXPECT_EQ(Task_Windows_Over(3600), Times{});
}

TEST_F(Form1RemindersTest, TwoTaskRemindersInOneMinuteGiveOneWindowWithAList) {
  Start_At(2001, 3, 5, 13, 59, 55);
  Write_Task_Reminders({Task_With_Reminder(3, "Dentist", "March 5, 2001", "14:00"),
                        Task_With_Reminder(5, "Lunch", "March 5, 2001", "12:00"),
                        Task_With_Reminder(9, "Call", "March 5, 2001", "14:00")});
  machine().Advance_Seconds(5);
  ASSERT_TRUE(tasks().isVisible());
  EXPECT_EQ(Title(tasks()), "2 Reminders");
  EXPECT_TRUE(tasks().cboTaskList->isVisible());
  EXPECT_EQ(Items(tasks().cboTaskList), (std::vector<std::string>{"3 - Dentist", "9 - Call"}));
  EXPECT_EQ(tasks().cboTaskList->currentIndex(), -1);
  EXPECT_FALSE(tasks().lneTaskNameDivider->isVisible());
  EXPECT_EQ(Text(tasks().lblTaskName), "");
  EXPECT_EQ(Text(tasks().lblFor), "N\\A");
  EXPECT_EQ(Text(tasks().lblStartTime), "N\\A");
  EXPECT_EQ(Text(tasks().lblEndingTime), "N\\A");
  EXPECT_EQ(Text(tasks().lblTimeLeft), "Select a task from the list above.");
  EXPECT_EQ(tasks().Store_Task_Record_Numbers("Get Number Of Elements"), Value(2));
  EXPECT_EQ(tasks().Store_Task_Record_Numbers("Get", 2), Value(9));
  // The next tick of the same minute finds them due again and opens nothing.
  Close_Reminders();
  machine().Advance_Seconds(5);
  EXPECT_FALSE(tasks().isVisible());
  EXPECT_EQ(tasks().Store_Task_Record_Numbers("Get Number Of Elements"), Value(2));
  machine().Advance_Seconds(55);
  EXPECT_EQ(tasks().Store_Task_Record_Numbers("Get Number Of Elements"), Value(0));
}

TEST_F(Form1RemindersTest, AReminderAt1005SilencesOneAt1105AndOneAt1005OfTheNextDay) {
  Start_At(2001, 3, 5, 10, 4, 55);
  Write_Task_Reminders({Task_With_Reminder(1, "Ten", "March 5, 2001", "10:05"),
                        Task_With_Reminder(2, "Eleven", "March 5, 2001", "11:05"),
                        Task_With_Reminder(3, "Tomorrow", "March 6, 2001", "10:05")});
  EXPECT_EQ(Task_Windows_Over(2 * 3600), Times{"10:05:00 AM"});
  EXPECT_EQ(Task_Windows_Over(24 * 3600), Times{});
}

TEST_F(Form1RemindersTest, TheRunsFirstReminderAtMinuteZeroIsShown) {
  Start_At(2001, 3, 5, 9, 59, 55);
  Write_Task_Reminders({Task_With_Reminder(1, "Ten", "March 5, 2001", "10:00")});
  EXPECT_EQ(Task_Windows_Over(60), Times{"10:00:00 AM"});
}

TEST_F(Form1RemindersTest, ASeriesCountedForwardFiresAtItsFirstMomentAndEveryPeriod) {
  Start_At(2001, 3, 5, 9, 59, 55);
  Write_Task_Reminders({Task_With_Series(1, 2, "10:00", "11:00", 25)});
  EXPECT_EQ(Task_Windows_Over(2 * 3600), (Times{"10:00:00 AM", "10:25:00 AM", "10:50:00 AM"}));
}

TEST_F(Form1RemindersTest, ASeriesCountedBackwardFiresAtItsLastMomentAndBackByItsPeriod) {
  Start_At(2001, 3, 5, 9, 59, 55);
  Write_Task_Reminders({Task_With_Series(1, 3, "10:00", "11:00", 25)});
  EXPECT_EQ(Task_Windows_Over(2 * 3600), (Times{"10:10:00 AM", "10:35:00 AM", "11:00:00 AM"}));
}

TEST_F(Form1RemindersTest, ASeriesOfWholeHoursShowsOnlyItsFirstHit) {
  Start_At(2001, 3, 5, 9, 59, 55);
  Write_Task_Reminders({Task_With_Series(1, 2, "10:00", "13:00", 60)});
  EXPECT_EQ(Task_Windows_Over(4 * 3600), Times{"10:00:00 AM"});
}

TEST_F(Form1RemindersTest, MomentsTiedToTheTasksStartAndFinish) {
  Start_At(2001, 3, 5, 13, 0, 0);
  ScheduleRecord before = Task_With_Reminder(1, "Before", "Before The Start Time of Task", "By 0 Days, 1 Hrs, 15 Min");
  ScheduleRecord after = Task_With_Reminder(2, "After", "After The Start Time of Task", "By 0 Days, 0 Hrs, 20 Min");
  ScheduleRecord at_finish = Task_With_Reminder(3, "Finish", "At The Finish Time Of Task", "N/A");
  ScheduleRecord after_finish = Task_With_Reminder(4, "Later", "After The Finish Time Of Task", "By 0 Days, 1 Hrs, 1 Min");
  Write_Task_Reminders({before, after, at_finish, after_finish});
  EXPECT_EQ(Task_Windows_Over(4 * 3600), (Times{"1:15:00 PM", "2:50:00 PM", "3:45:00 PM", "4:46:00 PM"}));
}

TEST_F(Form1RemindersTest, ATaskInTheYear5500FiresAndOneIn5501Never) {
  Start_At(5500, 3, 5, 14, 29, 55);
  ScheduleRecord task = Task_With_Reminder(1, "Far", "At The Start Time of Task", "N/A");
  task.Start_Century = task.Finish_Century = 55;
  task.Start_Year = task.Finish_Year = 0;
  Write_Task_Reminders({task});
  EXPECT_EQ(Task_Windows_Over(60), Times{"2:30:00 PM"});
  EXPECT_EQ(Text(tasks().lblTimeLeft), "This task is scheduled to begin now.");
  machine().Set_Now(5501, 3, 5, 14, 29, 55);
  task.Start_Year = task.Finish_Year = 1;
  Write_Task_Reminders({task});
  EXPECT_EQ(Task_Windows_Over(60), Times{});
}

TEST_F(Form1RemindersTest, TheTimeLeftCountsDaysUpTo3000AndYearsBeyond) {
  Start_At(2001, 3, 5, 14, 4, 55);
  ScheduleRecord days = Task_With_Reminder(1, "Days", "March 5, 2001", "14:05");
  days.Start_Month = "May";
  days.Start_Date = "22";
  days.Start_Year = 9;
  days.Start_Hour = "14";
  days.Start_Minute = "05";
  Write_Task_Reminders({days});
  machine().Advance_Seconds(5);
  EXPECT_EQ(Text(tasks().lblTimeLeft), "It will be 3000 days until this task is scheduled to begin.");
  ScheduleRecord years = days;
  years.Start_Date = "25";  // 3001 days and 23 hours 59 minutes after the firing below
  years.Date_String[0] = "March 5, 2001";
  years.Time_String[0] = "14:06";
  Write_Task_Reminders({years});
  machine().Advance_Seconds(60);
  EXPECT_EQ(Text(tasks().lblTimeLeft), "It will be 8 years until this event is scheduled to occur.");
}

TEST_F(Form1RemindersTest, TheNumberJumpsAtTheFirstOf2200AndBothSidesStillFire) {
  Start_At(2199, 12, 31, 23, 58, 55);
  Write_Task_Reminders({Task_With_Reminder(1, "Last", "December 31, 2199", "23:59"),
                        Task_With_Reminder(2, "First", "January 1, 2200", "00:00")});
  EXPECT_EQ(Task_Windows_Over(120), (Times{"11:59:00 PM", "12:00:00 AM"}));
  EXPECT_EQ(Text(tasks().lblTimeOfMessage), "12:00 AM, January 1, 2200");
}

TEST_F(Form1RemindersTest, MidnightOfNewYearFallsBetweenTwoTicksOfOneReadingEach) {
  Start_At(2001, 12, 31, 23, 59, 52);
  Write_Task_Reminders({Task_With_Reminder(1, "Old", "December 31, 2001", "23:59"),
                        Task_With_Reminder(2, "New", "January 1, 2002", "00:00")});
  machine().Advance_Seconds(5);  // 23:59:57
  EXPECT_EQ(Text(tasks().lblTimeOfMessage), "11:59 PM, December 31, 2001");
  Close_Reminders();
  machine().Advance_Seconds(5);  // 00:00:02
  ASSERT_TRUE(tasks().isVisible());
  EXPECT_EQ(Title(tasks()), "Reminder: New");
  EXPECT_EQ(Text(tasks().lblTimeOfMessage), "12:00 AM, January 1, 2002");
}

// ---- Reminders of no task ------------------------------------------------------------------------------

TEST_F(Form1RemindersTest, OneDueMessageOpensItsWindowWithItsTimeInTheMorning) {
  Write_Messages({Message_At(1, "Bank", "Call the bank.", "14:30, March 5, 2001"),
                  Message_At(2, "Off", "Switched off.", "14:30, March 5, 2001", 0)});
  Start_At(2001, 3, 5, 14, 29, 55);
  machine().Advance_Seconds(5);
  EXPECT_FALSE(tasks().isVisible());
  ASSERT_TRUE(messages().isVisible());
  EXPECT_EQ(Title(messages()), "Reminder: Bank");
  EXPECT_EQ(Text(messages().lblMessage), "Call the bank.");
  EXPECT_EQ(Text(messages().lblDateOfMessage), "March 5, 2001");
  EXPECT_EQ(Text(messages().lblTimeOfMessage), "2:30 AM");
  EXPECT_FALSE(messages().cboReminderList->isVisible());
  EXPECT_EQ(messages().lblMessage->font().pointSize(), 12);
  EXPECT_EQ(machine().Beeps(), 1);
  Close_Reminders();
  machine().Advance_Seconds(55);
  EXPECT_FALSE(messages().isVisible());
}

TEST_F(Form1RemindersTest, SeveralDueMessagesTellTheMomentOfTheLastRecord) {
  Write_Messages({Message_At(4, "Backup", "Copy the log.", "14:30, March 5, 2001"),
                  Message_At(2, "Bank", "Call the bank.", "14:30, March 5, 2001"),
                  Message_At(8, "Later", "Not yet.", "17:45, December 31, 2001")});
  Start_At(2001, 3, 5, 14, 29, 55);
  machine().Advance_Seconds(5);
  ASSERT_TRUE(messages().isVisible());
  EXPECT_EQ(Title(messages()), "2 Reminders");
  EXPECT_EQ(Text(messages().lblMessage), "Please select a reminder message from the list.");
  EXPECT_EQ(Items(messages().cboReminderList), (std::vector<std::string>{"4 - Backup", "2 - Bank"}));
  EXPECT_EQ(Text(messages().lblDateOfMessage), "December 31, 2001");
  EXPECT_EQ(Text(messages().lblTimeOfMessage), "5:45 AM");
}

TEST_F(Form1RemindersTest, TheMessageMinuteIsKeptApartFromTheTaskMinute) {
  Write_Messages({Message_At(1, "Ten", "At ten past.", "10:05, March 5, 2001"),
                  Message_At(2, "Eleven", "At eleven past.", "11:05, March 5, 2001")});
  Start_At(2001, 3, 5, 10, 4, 55);
  Write_Task_Reminders({Task_With_Reminder(1, "Task", "March 5, 2001", "10:05")});
  machine().Advance_Seconds(5);
  EXPECT_TRUE(tasks().isVisible());
  EXPECT_EQ(Title(messages()), "Reminder: Ten");
  EXPECT_EQ(machine().Beeps(), 2);
  Close_Reminders();
  machine().Advance_Seconds(3600);
  EXPECT_FALSE(messages().isVisible());
  EXPECT_EQ(machine().Beeps(), 2);
}

// ---- The flags and failures ------------------------------------------------------------------------------

TEST_F(Form1RemindersTest, ATickThatFindsTheTaskFileInUseDoesNothingAtAll) {
  Write_Messages({Message_At(1, "Bank", "Call the bank.", "14:30, March 5, 2001")});
  Start_At(2001, 3, 5, 14, 29, 55);
  Write_Task_Reminders({Task_With_Reminder(1, "Dentist", "March 5, 2001", "14:30")});
  EXPECT_TRUE(main().TRemin_Is_In_Use(true, ""));
  machine().Advance_Seconds(5);
  EXPECT_FALSE(tasks().isVisible());
  EXPECT_FALSE(messages().isVisible());
  EXPECT_TRUE(main().TRemin_Is_In_Use(false, "Evaluate"));
  main().TRemin_Is_In_Use(false, "");
  machine().Advance_Seconds(5);
  EXPECT_TRUE(tasks().isVisible());
  EXPECT_EQ(Title(messages()), "Reminder: Bank");
  EXPECT_FALSE(main().TRemin_Is_In_Use(false, "Evaluate"));
  EXPECT_FALSE(main().NTRemin_Is_In_Use(false, "Evaluate"));
}

TEST_F(Form1RemindersTest, AMessageFileHeldForeverEndsTheProgramInsteadOfWaiting) {
  Start_At(2001, 3, 5, 14, 29, 55);
  main().NTRemin_Is_In_Use(true, "");
  machine().Answer_Next(platform::vbOK, "Orrivane");
  Until_The_End([this] { machine().Advance_Seconds(5); });
  EXPECT_EQ(machine().Messages().back().text, "Run-time error '55':\n\nFile already open");
  EXPECT_FALSE(main().TRemin_Is_In_Use(false, "Evaluate"));
}

TEST_F(Form1RemindersTest, ATruncatedMessageFileEndsTheProgramAndReleasesTheFlag) {
  Write_Messages({Message_At(1, "Bank", "Call the bank.", "14:30, March 5, 2001")});
  Write_File("NTRemin.dat", Read_File("NTRemin.dat") + "2\r\n1\r\n\"Cut\"\r\n");
  Start_At(2001, 3, 5, 14, 29, 55);
  machine().Answer_Next(platform::vbOK, "Orrivane");
  Until_The_End([this] { machine().Advance_Seconds(60); });
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(machine().Messages()[0].text, "Run-time error '62':\n\nInput past end of file");
  EXPECT_EQ(machine().Exit_Code(), 1);
  EXPECT_FALSE(main().NTRemin_Is_In_Use(false, "Evaluate"));
}

TEST_F(Form1RemindersTest, ASeriesWithoutAPeriodEndsTheProgramWithDivisionByZero) {
  Start_At(2001, 3, 5, 10, 29, 55);
  Write_Task_Reminders({Task_With_Series(1, 2, "10:00", "11:00", 0)});
  machine().Answer_Next(platform::vbOK, "Orrivane");
  Until_The_End([this] { machine().Advance_Seconds(60); });
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(machine().Messages()[0].text, "Run-time error '11':\n\nDivision by zero");
  EXPECT_FALSE(main().TRemin_Is_In_Use(false, "Evaluate"));
}

TEST_F(Form1RemindersTest, NoTickRunsWhileAFailureIsBeingTold) {
  Start_At(2001, 3, 5, 14, 29, 55);
  Write_Task_Reminders({Task_With_Reminder(1, "Dentist", "March 5, 2001", "14:30")});
  {
    const platform::FailureBeingTold telling;
    machine().Advance_Seconds(5);
    EXPECT_FALSE(tasks().isVisible());
  }
  machine().Advance_Seconds(5);
  EXPECT_TRUE(tasks().isVisible());
}

// ---- In front of the program's windows --------------------------------------------------------------

TEST_F(Form1RemindersTest, AReminderComesUpWithTheCalendarMinimisedAndTheOrganizerHidden) {
  Start_At(2001, 3, 5, 14, 29, 55);
  Write_Task_Reminders({Task_With_Reminder(1, "Dentist", "March 5, 2001", "14:30")});
  large().showMinimized();
  Process_Events();
  machine().Advance_Seconds(5);
  EXPECT_TRUE(tasks().isVisible());
  EXPECT_TRUE(messages().isVisible());
}

TEST_F(Form1RemindersTest, AReminderLeavesTheKeyboardWithTheWindowTheUserIsTypingIn) {
  Start_At(2001, 3, 5, 14, 29, 55);
  Write_Task_Reminders({Task_With_Reminder(1, "Dentist", "March 5, 2001", "14:30")});
  frmSelectMonth& select = Window<frmSelectMonth>();
  select.show();
  Press_Keys(select, QKeySequence("Tab"));
  select.txtYear->setFocus();
  select.txtYear->clear();
  Press_Keys(QKeySequence("1"));
  Press_Keys(QKeySequence("9"));
  machine().Advance_Seconds(5);
  ASSERT_TRUE(tasks().isVisible());
  EXPECT_EQ(QApplication::activeWindow(), &select);
  Press_Keys(QKeySequence("9"));
  Press_Keys(QKeySequence("9"));
  EXPECT_EQ(select.txtYear->text(), "1999");
}

}  // namespace
}  // namespace orrivane
