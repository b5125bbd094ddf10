#include "calendar/day_description.h"

#include <gtest/gtest.h>

namespace orrivane::calendar {
namespace {

DayOfYear Day(std::int64_t year, std::int64_t month, std::int64_t day, std::int64_t length) {
  return {year, month, day, length};
}

void Expect_Wording(const DayOfYear& date, const DayOfYear& today, const std::string& long_wording,
                    const std::string& short_wording) {
  const DayWording wording = Describe_Day(date, today);
  EXPECT_EQ(wording.long_wording, long_wording);
  EXPECT_EQ(wording.short_wording, short_wording);
}

const DayOfYear kMarch15 = Day(2024, 3, 15, 31);

TEST(DayDescription, TodayYesterdayAndTheDayBefore) {
  Expect_Wording(Day(2024, 3, 15, 31), kMarch15, "Today is:", "Today's Date:");
  Expect_Wording(Day(2024, 3, 14, 31), kMarch15, "Yesterday was:", "Yesterday:");
  Expect_Wording(Day(2024, 3, 13, 31), kMarch15, "The day before yesterday was:", "Two Days Ago:");
}

TEST(DayDescription, TomorrowAndTheDayAfterWhoseShortWordingIsPlainDate) {
  Expect_Wording(Day(2024, 3, 16, 31), kMarch15, "Tomorrow is:", "Tomorrow:");
  Expect_Wording(Day(2024, 3, 17, 31), kMarch15, "The day after tomorrow will be:", "Date:");
}

TEST(DayDescription, FartherDatesOccuredOrWillOccur) {
  Expect_Wording(Day(2024, 3, 12, 31), kMarch15, "This date occured on a:", "Date:");
  Expect_Wording(Day(2024, 3, 18, 31), kMarch15, "This date will occur on a:", "Date:");
  Expect_Wording(Day(2023, 3, 15, 31), kMarch15, "This date occured on a:", "Date:");
  Expect_Wording(Day(2024, 4, 15, 30), kMarch15, "This date will occur on a:", "Date:");
}

TEST(DayDescription, NewYearsEveSeenFromNewYearsDayIsYesterdayButNotTheDayBefore) {
  const DayOfYear january1 = Day(2024, 1, 1, 31);
  Expect_Wording(Day(2023, 12, 31, 31), january1, "Yesterday was:", "Yesterday:");
  Expect_Wording(Day(2023, 12, 30, 31), january1, "This date occured on a:", "Date:");
}

TEST(DayDescription, NewYearsDaySeenFromNewYearsEveIsNeverTomorrow) {
  Expect_Wording(Day(2025, 1, 1, 31), Day(2024, 12, 31, 31), "This date will occur on a:", "Date:");
}

TEST(DayDescription, TheLastOfALeapFebruaryIsYesterdayOnTheFirstOfMarch) {
  Expect_Wording(Day(2024, 2, 29, 29), Day(2024, 3, 1, 31), "Yesterday was:", "Yesterday:");
  Expect_Wording(Day(2024, 2, 28, 29), Day(2024, 3, 1, 31), "This date occured on a:", "Date:");
}

TEST(DayDescription, TheFirstOfNextMonthIsTomorrowOnlyFromTheLastOfThisOne) {
  Expect_Wording(Day(2024, 4, 1, 30), Day(2024, 3, 31, 31), "Tomorrow is:", "Tomorrow:");
  Expect_Wording(Day(2024, 4, 2, 30), Day(2024, 3, 31, 31), "This date will occur on a:", "Date:");
  Expect_Wording(Day(2024, 4, 1, 30), Day(2024, 3, 30, 31), "This date will occur on a:", "Date:");
}

}  // namespace
}  // namespace orrivane::calendar
