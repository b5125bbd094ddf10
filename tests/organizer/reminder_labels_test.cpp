// A reminder told in words, and the keeper of the eight reminder values.
#include "organizer/reminder_labels.h"

#include <gtest/gtest.h>

#include "organizer/log_samples.h"

namespace orrivane::organizer {
namespace {

TEST(Reminder_Interval_Text, TenDaysAndTwoHoursAreMoreThanTenDays) {
  EXPECT_EQ(Reminder_Interval_Text(10, 2, 0), "More than 10 Days");
  EXPECT_EQ(Reminder_Interval_Text(10, 0, 1), "More than 10 Days");
}

TEST(Reminder_Interval_Text, TenDaysAloneAreTenDays) { EXPECT_EQ(Reminder_Interval_Text(10, 0, 0), "10 Days"); }

TEST(Reminder_Interval_Text, OneOfEachInTheSingular) {
  EXPECT_EQ(Reminder_Interval_Text(1, 1, 5), "1 Day, 1 Hr, 5 Min");
  EXPECT_EQ(Reminder_Interval_Text(1, 0, 1), "1 Day, 1 Min");
}

TEST(Reminder_Interval_Text, MinutesAloneHaveNoLeadingComma) {
  EXPECT_EQ(Reminder_Interval_Text(0, 0, 5), "5 Min");
  EXPECT_EQ(Reminder_Interval_Text(0, 2, 30), "2 Hrs, 30 Min");
  EXPECT_EQ(Reminder_Interval_Text(0, 1, 0), "1 Hr");
}

TEST(Reminder_Interval_Text, NineDaysStillTellHoursAndMinutes) {
  EXPECT_EQ(Reminder_Interval_Text(9, 23, 59), "9 Days, 23 Hrs, 59 Min");
  EXPECT_EQ(Reminder_Interval_Text(2, 0, 0), "2 Days");
}

TEST(Reminder_Interval_Text, CountsAreAddedToZero) {
  EXPECT_EQ(Reminder_Interval_Text("01", "02", "05"), "1 Day, 2 Hrs, 5 Min");
  EXPECT_EQ(Reminder_Interval_Text("0", Value(), 0), "");
}

TEST(Set_Reminder_Labels, OneReminderHasNoInterval) {
  EXPECT_EQ(Set_Reminder_Labels(1, 3, 4, 5), (ReminderLabels{"Only One Reminder", "No Interval In Effect"}));
}

TEST(Set_Reminder_Labels, SeriesFromAndToTellTheInterval) {
  EXPECT_EQ(Set_Reminder_Labels(2, 0, 0, 5), (ReminderLabels{"Series-From Spec. Time", "5 Min"}));
  EXPECT_EQ(Set_Reminder_Labels(3, 1, 1, 5), (ReminderLabels{"Series-To Specified Time", "1 Day, 1 Hr, 5 Min"}));
  EXPECT_EQ(Set_Reminder_Labels("3", 10, 2, 0), (ReminderLabels{"Series-To Specified Time", "More than 10 Days"}));
}

TEST(Set_Reminder_Labels, AnotherKindHasNoTexts) {
  EXPECT_FALSE(Set_Reminder_Labels(-1, -1, -1, -1).has_value());
  EXPECT_FALSE(Set_Reminder_Labels(0, 1, 0, 0).has_value());
  EXPECT_FALSE(Set_Reminder_Labels(Value(), 1, 0, 0).has_value());
}

TEST(ReminderVariables, PutStoresAndEveryVerbAnswers) {
  ReminderVariables keeper;
  EXPECT_TRUE(keeper.Store("Interval_Days", "Get").is_empty());
  EXPECT_EQ(keeper.Store("Interval_Days", "Put", 4), Value(4));
  EXPECT_EQ(keeper.Store("Interval_Days", "Get"), Value(4));
  EXPECT_EQ(keeper.Store("Interval_Days", "View", 9), Value(4));
  EXPECT_TRUE(keeper.Store("Interval_Weeks", "Put", 2).is_empty());
  EXPECT_TRUE(keeper.Store("Interval_Weeks", "Get").is_empty());
}

TEST(ReminderVariables, HoldsFieldsTwentyOneToTwentyEightOfARecord) {
  ScheduleRecord task = samples::Dentist_Task();
  task.Date_String[1] = "March 6, 2001";
  task.Time_String[1] = "09:00";
  task.Reminder_Interval = 3;
  task.Interval_Days = 1;
  task.Interval_Hours = 2;
  task.Interval_Minutes = "05";
  ReminderVariables keeper;
  keeper.Put_Fields_Of(task);
  EXPECT_EQ(keeper.Store("Date_String(0)", "Get"), Value("March 4, 2001"));
  EXPECT_EQ(keeper.Store("Time_String(0)", "Get"), Value("14:30"));
  EXPECT_EQ(keeper.Store("Date_String(1)", "Get"), Value("March 6, 2001"));
  EXPECT_EQ(keeper.Store("Time_String(1)", "Get"), Value("09:00"));
  EXPECT_EQ(keeper.Store("Reminder_Interval", "Get"), Value(3));
  EXPECT_EQ(keeper.Store("Interval_Days", "Get"), Value(1));
  EXPECT_EQ(keeper.Store("Interval_Hours", "Get"), Value(2));
  EXPECT_TRUE(keeper.Store("Interval_Minutes", "Get").is_text());
  EXPECT_EQ(keeper.Store("Interval_Minutes", "Get").text(), "05");
}

}  // namespace
}  // namespace orrivane::organizer
