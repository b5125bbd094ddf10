// The weekday arithmetic of Calendarr against an independent day count, day by day over the
// years 0 to 3000 and at random up to the year 1,000,000, in both styles.
#include <gtest/gtest.h>

#include <random>

#include "engine/calendar_engine.h"
#include "engine/reference_calendar.h"

namespace orrivane::engine {
namespace {

using reference::Gregorian_Day_Number;
using reference::Julian_Day_Number;
using reference::Month_Length;
using reference::Month_Name;
using reference::Weekday_Of_Day_Number;

int True_Weekday(std::int64_t year, int month, int day, CalendarStyle style) {
  return Weekday_Of_Day_Number(style == CalendarStyle::Julian ? Julian_Day_Number(year, month, day)
                                                              : Gregorian_Day_Number(year, month, day));
}

bool True_Leap(std::int64_t year, CalendarStyle style) {
  return style == CalendarStyle::Julian ? reference::Julian_Leap(year) : reference::Gregorian_Leap(year);
}

bool Before_Gregorian_Calendar(std::int64_t year, int month, int day) {
  return year < 1582 || (year == 1582 && (month < 10 || (month == 10 && day < 15)));
}

// Checks one existing date: the arithmetic, the leap flag and the validity Calendarr answers.
void Check_Date(std::int64_t year, int month, int day, CalendarStyle style) {
  const CalendarrDate date = Calendarr_Date_From_Year(Month_Name(month), day, year, style);
  const int expected = True_Weekday(year, month, day, style);
  const CalendarrResult result = Calendarr_Compute(date);
  const bool before = style == CalendarStyle::Gregorian && Before_Gregorian_Calendar(year, month, day);
  const int expected_code = before ? 1 : 0;
  const int expected_answer = before ? 0 : expected;
  if (Calendarr_Weekday(date) == expected && result.leap_flag == True_Leap(year, style) &&
      result.error_code == expected_code && result.valid == !before && result.weekday == expected_answer) {
    return;  // the quick way; the assertions below tell what differs
  }
  const std::string what = Month_Name(month) + " " + std::to_string(day) + ", " + std::to_string(year) + " " +
                           Calendar_Style_Name(style);
  ASSERT_EQ(Calendarr_Weekday(date), expected) << what;
  ASSERT_EQ(result.leap_flag, True_Leap(year, style)) << what;
  ASSERT_EQ(result.error_code, expected_code) << what;
  ASSERT_EQ(result.valid, !before) << what;
  ASSERT_EQ(result.weekday, expected_answer) << what;
}

// The first day that the month does not have: code 2 for a 29 February, else 3, unless 1.
void Check_Day_After_The_Month(std::int64_t year, int month, CalendarStyle style) {
  const int length = Month_Length(month, True_Leap(year, style));
  const CalendarrResult result = Calendarr_Compute(Calendarr_Date_From_Year(Month_Name(month), length + 1, year, style));
  ASSERT_FALSE(result.valid);
  ASSERT_EQ(result.weekday, 0);
  const bool code_one = style == CalendarStyle::Gregorian && Before_Gregorian_Calendar(year, month, length + 1);
  ASSERT_EQ(result.error_code, code_one ? 1 : (month == 2 && length == 28 ? 2 : 3)) << month << " " << year;
}

class WeekdayProperty : public ::testing::TestWithParam<CalendarStyle> {};

TEST_P(WeekdayProperty, EveryDayOfTheYearsZeroTo3000) {
  const CalendarStyle style = GetParam();
  for (std::int64_t year = 0; year <= 3000; ++year) {
    for (int month = 1; month <= 12; ++month) {
      const int length = Month_Length(month, True_Leap(year, style));
      for (int day = 1; day <= length; ++day) ASSERT_NO_FATAL_FAILURE(Check_Date(year, month, day, style));
      ASSERT_NO_FATAL_FAILURE(Check_Day_After_The_Month(year, month, style));
    }
  }
}

TEST_P(WeekdayProperty, RandomDatesUpToTheYearOneMillion) {
  const CalendarStyle style = GetParam();
  std::mt19937_64 random(20001582);
  std::uniform_int_distribution<std::int64_t> years(0, 1'000'000);
  std::uniform_int_distribution<int> months(1, 12);
  for (int i = 0; i < 200'000; ++i) {
    const std::int64_t year = years(random);
    const int month = months(random);
    const int length = Month_Length(month, True_Leap(year, style));
    const int day = std::uniform_int_distribution<int>(1, length)(random);
    ASSERT_NO_FATAL_FAILURE(Check_Date(year, month, day, style));
  }
}

TEST_P(WeekdayProperty, CenturyYearsAndTheirNeighboursUpToTheYearOneMillion) {
  // The century years are where the corrections of the arithmetic turn.
  const CalendarStyle style = GetParam();
  for (std::int64_t century = 0; century <= 10'000; ++century) {
    for (std::int64_t year : {century * 100 - 1, century * 100, century * 100 + 1}) {
      if (year < 0) continue;
      for (int month : {1, 2, 3, 12}) {
        const int length = Month_Length(month, True_Leap(year, style));
        ASSERT_NO_FATAL_FAILURE(Check_Date(year, month, 1, style));
        ASSERT_NO_FATAL_FAILURE(Check_Date(year, month, length, style));
        ASSERT_NO_FATAL_FAILURE(Check_Day_After_The_Month(year, month, style));
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(BothStyles, WeekdayProperty,
                         ::testing::Values(CalendarStyle::Gregorian, CalendarStyle::Julian),
                         [](const auto& info) { return Calendar_Style_Name(info.param); });

}  // namespace
}  // namespace orrivane::engine
