// The comparison number of a moment and the sentence of the time left to a task.
#include "reminders/reminder_comparison.h"

#include <gtest/gtest.h>

#include "core/runtime_failure.h"
#include "reminders/reminder_samples.h"
#include "support/failure_of.h"

namespace orrivane::reminders {
namespace {

using organizer::ScheduleRecord;
using testing::Failure_Of;

const ScheduleRecord kNoRecord;

std::int64_t Output_Style(const std::string& date, const std::string& time, const ScheduleRecord& r = kNoRecord) {
  return Timer_Comparison_Date(date, time, kOutputStyleDate, r);
}

TEST(TimerComparisonDate, CountsMinutesFromTheFirstOf1900) {
  EXPECT_EQ(Output_Style("January 1, 1900", "00:00"), 0);
  EXPECT_EQ(Output_Style("January 1, 1900", "00:01"), 1);
  EXPECT_EQ(Output_Style("January 2, 1900", "00:00"), 1440);
  EXPECT_EQ(Output_Style("March 5, 2001", "14:30"), 53213190);
  EXPECT_EQ(Output_Style("December 31, 2199", "23:59"), 157785119);
  EXPECT_EQ(Output_Style("January 1, 2200", "00:00"), 157788000);
}

TEST(TimerComparisonDate, CountsTrueGregorianMinutesFrom1900To2199) {
  // 1900 and 2100 have no February 29; 2000 has one.
  EXPECT_EQ(Output_Style("March 1, 1900", "00:00") - Output_Style("February 28, 1900", "00:00"), 1440);
  EXPECT_EQ(Output_Style("January 1, 1901", "00:00") - Output_Style("January 1, 1900", "00:00"), 365 * 1440);
  EXPECT_EQ(Output_Style("January 1, 2001", "00:00") - Output_Style("January 1, 2000", "00:00"), 366 * 1440);
  EXPECT_EQ(Output_Style("March 1, 2100", "00:00") - Output_Style("February 28, 2100", "00:00"), 1440);
  EXPECT_EQ(Output_Style("January 1, 2101", "00:00") - Output_Style("December 31, 2100", "23:59"), 1);
}

TEST(TimerComparisonDate, JumpsTwoDaysAheadOnTheFirstOf2200) {
  EXPECT_EQ(Output_Style("January 1, 2200", "00:00") - Output_Style("December 31, 2199", "23:59"), 2 * 1440 + 1);
  // Century years from then on count as leap years, yet order and equality hold.
  EXPECT_LT(Output_Style("December 31, 2299", "23:59"), Output_Style("January 1, 2300", "00:00"));
  EXPECT_EQ(Output_Style("July 4, 3000", "12:00"), Output_Style("July 4, 3000", "12:00"));
}

TEST(TimerComparisonDate, TheYearOneMillionFitsAndIsExact) {
  EXPECT_EQ(Output_Style("January 1, 1000000", "00:00"), 524960676000);
  EXPECT_EQ(Output_Style("January 1, 1000000", "00:01") - Output_Style("January 1, 1000000", "00:00"), 1);
}

TEST(TimerComparisonDate, ReadsTheSystemClocksTextsWithTheSystemDateVerb) {
  EXPECT_EQ(Timer_Comparison_Date("3/5/2001", "2:30:59 PM", kSystemDate, kNoRecord), 53213190);
  EXPECT_EQ(Timer_Comparison_Date("1/1/1900", "12:00:00 AM", kSystemDate, kNoRecord), 0);
  EXPECT_EQ(Timer_Comparison_Date("1/1/1900", "12:00:00 PM", kSystemDate, kNoRecord), 720);
}

TEST(TimerComparisonDate, AnUnknownVerbReadsNothingOfAFixedMoment) {
  // Year 0, month 0, day 0 at 0:00: 1900 years of 365 days back, 475 leap days, one day more.
  EXPECT_EQ(Timer_Comparison_Date("March 5, 2001", "14:30", "Output Style", kNoRecord), -693976LL * 1440);
}

TEST(TimerComparisonDate, MomentsTiedToTheTaskReadTheCurrentRecord) {
  const ScheduleRecord task = samples::Task_With_Reminder(1, "Dentist", "", "");  // 14:30 to 15:45
  EXPECT_EQ(Output_Style("Before The Start Time of Task", "By 0 Days, 1 Hrs, 15 Min", task),
            Output_Style("March 5, 2001", "13:15"));
  EXPECT_EQ(Output_Style("After The Start Time of Task", "By 1 Days, 0 Hrs, 0 Min", task),
            Output_Style("March 6, 2001", "14:30"));
  EXPECT_EQ(Output_Style("At The Start Time of Task", "N/A", task), Output_Style("March 5, 2001", "14:30"));
  EXPECT_EQ(Output_Style("At The Finish Time Of Task", "N/A", task), Output_Style("March 5, 2001", "15:45"));
  EXPECT_EQ(Output_Style("Before The Finish Time Of Task", "By 2 Days, 3 Hrs, 30 Min", task),
            Output_Style("March 3, 2001", "12:15"));
  // The verb takes no notice of a tied moment.
  EXPECT_EQ(Timer_Comparison_Date("At The Start Time of Task", "N/A", kSystemDate, task), 53213190);
}

TEST(TimerComparisonDate, StartIsTestedBeforeFinishAndTheLastSignWordWins) {
  const ScheduleRecord task = samples::Task_With_Reminder(1, "Dentist", "", "");
  const std::string by = "By 0 Days, 0 Hrs, 10 Min";
  EXPECT_EQ(Output_Style("Finish Start At", "N/A", task), Output_Style("March 5, 2001", "14:30"));
  // At, Before and After are tested in that order, with case.
  EXPECT_EQ(Output_Style("Before At The Start", by, task), Output_Style("March 5, 2001", "14:20"));
  EXPECT_EQ(Output_Style("After At The Start", by, task), Output_Style("March 5, 2001", "14:40"));
  EXPECT_EQ(Output_Style("At Before After The Start", by, task), Output_Style("March 5, 2001", "14:40"));
  EXPECT_EQ(Output_Style("before The Start", by, task), Output_Style("March 5, 2001", "14:30"));
  // "start" in small letters ties nothing: the date is read as a fixed one.
  EXPECT_EQ(Failure_Of([&] { Output_Style("At the start", "N/A", task); }), kInvalidProcedureCall);
}

TEST(TimerComparisonDate, ATiedMomentBeyondTheYear5500IsOutOfReach) {
  ScheduleRecord task = samples::Task_With_Reminder(1, "Far", "", "");
  task.Start_Century = 55;
  task.Start_Year = 0;
  EXPECT_EQ(Output_Style("At The Start Time of Task", "N/A", task), Output_Style("March 5, 5500", "14:30"));
  task.Start_Year = 1;
  EXPECT_EQ(Output_Style("At The Start Time of Task", "N/A", task), kMomentBeyondReach);
  EXPECT_EQ(Output_Style("Before The Start Time of Task", "By 400 Days, 0 Hrs, 0 Min", task), kMomentBeyondReach);
  // A fixed moment in such a year is counted.
  EXPECT_GT(Output_Style("March 5, 5501", "14:30"), 0);
}

TEST(TimerComparisonDate, TextsOfTheWrongShapeFailAsTheProgramsArithmeticDoes) {
  const ScheduleRecord task = samples::Task_With_Reminder(1, "Dentist", "", "");
  EXPECT_EQ(Failure_Of([&] { Output_Style("Before The Start Time of Task", "By 2 Days", task); }),
            kSubscriptOutOfRange);
  EXPECT_EQ(Failure_Of([&] { Output_Style("Before The Start Time of Task", "By x Days, 1 Hrs, 1 Min", task); }),
            kTypeMismatch);
  EXPECT_EQ(Failure_Of([&] { Output_Style("March 5, 2001", "1430"); }), kInvalidProcedureCall);
  EXPECT_EQ(Failure_Of([&] { Output_Style("March 5, 90000000000000000", "14:30"); }), kOverflow);
}

// ---- The time left ----------------------------------------------------------------------------------

std::string Time_Left(const std::string& month, const std::string& date, int century, int year, const std::string& hour,
                      const std::string& minute, const std::string& now_date = "3/5/2001",
                      const std::string& now_time = "2:05:00 PM") {
  return Create_Time_Remaining_String(century, year, month, date, hour, minute, now_date, now_time, kNoRecord);
}

TEST(CreateTimeRemainingString, TheSampleSentencesWithTheirPunctuation) {
  EXPECT_EQ(Time_Left("March", "07", 20, 1, "17", "09"),
            "It will be 2 days, 3 hours and, 4 minutes until this task is scheduled to begin.");
  EXPECT_EQ(Time_Left("March", "06", 20, 1, "19", "05"),
            "It will be 1 day and, 5 hours until this task is scheduled to begin.");
  EXPECT_EQ(Time_Left("March", "05", 20, 1, "13", "04"),
            "It has been 1 hour and, 1 minute since the scheduled begin time of this task.");
}

TEST(CreateTimeRemainingString, EveryCombinationOfTheParts) {
  EXPECT_EQ(Time_Left("March", "07", 20, 1, "14", "05"), "It will be 2 days until this task is scheduled to begin.");
  EXPECT_EQ(Time_Left("March", "06", 20, 1, "14", "06"),
            "It will be 1 day and, 1 minute until this task is scheduled to begin.");
  EXPECT_EQ(Time_Left("March", "05", 20, 1, "16", "05"), "It will be 2 hours until this task is scheduled to begin.");
  EXPECT_EQ(Time_Left("March", "05", 20, 1, "14", "06"), "It will be 1 minute until this task is scheduled to begin.");
  EXPECT_EQ(Time_Left("March", "04", 20, 1, "12", "03"),
            "It has been 1 day, 2 hours and, 2 minutes since the scheduled begin time of this task.");
}

TEST(CreateTimeRemainingString, NoDistanceIsNowAndTheSecondsPlayNoPart) {
  EXPECT_EQ(Time_Left("March", "05", 20, 1, "14", "05"), "This task is scheduled to begin now.");
  EXPECT_EQ(Time_Left("March", "5", 20, 1, "14", "05", "3/5/2001", "2:05:59 PM"), "This task is scheduled to begin now.");
}

TEST(CreateTimeRemainingString, ThreeThousandDaysAreCountedAndOneMoreGivesYears) {
  EXPECT_EQ(Time_Left("May", "22", 20, 9, "14", "05"), "It will be 3000 days until this task is scheduled to begin.");
  EXPECT_EQ(Time_Left("May", "22", 20, 9, "14", "06"),
            "It will be 3000 days and, 1 minute until this task is scheduled to begin.");
  EXPECT_EQ(Time_Left("May", "23", 20, 9, "14", "05"), "It will be 8 years until this event is scheduled to occur.");
  EXPECT_EQ(Time_Left("May", "23", 20, 9, "14", "05", "5/23/2018", "2:05:00 PM"),
            "It has been 9 years since this event was expected to occur.");
}

TEST(CreateTimeRemainingString, ATaskBeyondTheYear5500HasNoSentence) {
  EXPECT_EQ(Time_Left("March", "05", 55, 0, "14", "05"), "It will be 3499 years until this event is scheduled to occur.");
  EXPECT_EQ(Time_Left("March", "05", 55, 1, "14", "05"), "");
  EXPECT_EQ(Time_Left("March", "05", 60, 0, "14", "05"), "");
}

}  // namespace
}  // namespace orrivane::reminders
