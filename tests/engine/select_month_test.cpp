// frmSelectMonth's weekday of the first of a month: the closed form of its Gregorian
// correction against the year-by-year loop it replaces, and the layouts it draws.
#include <gtest/gtest.h>

#include <random>

#include "engine/calendar_engine.h"
#include "engine/reference_calendar.h"

namespace orrivane::engine {
namespace {

// One year's part of frmSelectMonth's loop: the test on the loop year v, by side of 2000 and
// by month (January and February, or the others). Modulo truncates, as in the program.
int Loop_Step(bool january_or_february, std::int64_t year, std::int64_t v) {
  if (year < 2000) {
    if (january_or_february) return (v % 100 == 0 && v % 400 != 0) ? -1 : 0;
    return (v % 100 == 99 && v % 400 != 399) ? -1 : 0;
  }
  if (january_or_february) return (v % 100 == 1 && v % 400 != 1) ? 1 : 0;
  return (v % 100 == 0 && v % 400 != 0) ? 1 : 0;
}

// The loop itself: over the years from 2000 +- 1 to the year, stepping towards it.
std::int64_t Loop_Correction(bool january_or_february, std::int64_t year) {
  std::int64_t correction = 0;
  if (year < 2000) {
    for (std::int64_t v = 1999; v >= year; --v) correction += Loop_Step(january_or_february, year, v);
  } else if (year > 2000) {
    for (std::int64_t v = 2001; v <= year; ++v) correction += Loop_Step(january_or_february, year, v);
  }
  return correction;
}

TEST(SelectMonthCorrection, ClosedFormEqualsTheLoopRunAfreshForEveryYearUpTo6000) {
  for (int after_leap_date : {0, 1}) {
    for (std::int64_t year = -400; year <= 6000; ++year) {
      ASSERT_EQ(Select_Month_Gregorian_Correction(after_leap_date, year), Loop_Correction(after_leap_date == 0, year))
          << "year " << year << ", after leap date " << after_leap_date;
    }
  }
}

TEST(SelectMonthCorrection, ClosedFormEqualsTheLoopRunAfreshForRandomYearsUpToOneMillion) {
  std::mt19937_64 random(400);
  std::uniform_int_distribution<std::int64_t> years(6000, 1'000'000);
  for (int i = 0; i < 60; ++i) {
    const std::int64_t year = years(random);
    for (int after_leap_date : {0, 1}) {
      ASSERT_EQ(Select_Month_Gregorian_Correction(after_leap_date, year), Loop_Correction(after_leap_date == 0, year))
          << year;
    }
  }
  for (int after_leap_date : {0, 1}) {
    EXPECT_EQ(Select_Month_Gregorian_Correction(after_leap_date, 1'000'000), Loop_Correction(after_leap_date == 0, 1'000'000));
  }
}

TEST(SelectMonthCorrection, ClosedFormEqualsTheLoopForEveryYearFromZeroToOneMillion) {
  // The loop for a year is the loop for the year one step nearer to 2000 plus one more step, so
  // that walking outwards from 2000 with a running sum runs every year's loop in one pass.
  for (int after_leap_date : {0, 1}) {
    const bool january_or_february = after_leap_date == 0;
    std::int64_t correction = 0;
    for (std::int64_t year = 2001; year <= 1'000'001; ++year) {
      correction += Loop_Step(january_or_february, year, year);
      if (Select_Month_Gregorian_Correction(after_leap_date, year) != correction) {
        ASSERT_EQ(Select_Month_Gregorian_Correction(after_leap_date, year), correction) << year;
      }
    }
    correction = 0;
    for (std::int64_t year = 1999; year >= 0; --year) {
      correction += Loop_Step(january_or_february, year, year);
      if (Select_Month_Gregorian_Correction(after_leap_date, year) != correction) {
        ASSERT_EQ(Select_Month_Gregorian_Correction(after_leap_date, year), correction) << year;
      }
    }
    EXPECT_EQ(Select_Month_Gregorian_Correction(after_leap_date, 2000), 0);
  }
}

TEST(SelectMonthCorrection, KnownCounts) {
  // 2100, 2200, 2300 are common Gregorian century years; 2400 is not.
  EXPECT_EQ(Select_Month_Gregorian_Correction(1, 2400), 3);
  EXPECT_EQ(Select_Month_Gregorian_Correction(0, 2400), 3);  // 2101, 2201, 2301
  EXPECT_EQ(Select_Month_Gregorian_Correction(0, 2100), 0);  // its own 29 February is not yet due
  EXPECT_EQ(Select_Month_Gregorian_Correction(1, 2100), 1);
  EXPECT_EQ(Select_Month_Gregorian_Correction(0, 1900), -1);
  EXPECT_EQ(Select_Month_Gregorian_Correction(1, 1900), 0);
  EXPECT_EQ(Select_Month_Gregorian_Correction(1, 1899), -1);
}

TEST(SelectMonthFirstWeekday, AgreesWithTheTrueWeekdayInBothStylesUpToTheYearOneMillion) {
  // Every month of the years 0 to 3000 is checked with the grids; here the years beyond.
  for (CalendarStyle style : {CalendarStyle::Gregorian, CalendarStyle::Julian}) {
    for (std::int64_t year = 3000; year <= 1'000'000; year += 331) {
      for (int month = 1; month <= 12; ++month) {
        const std::int64_t day_number = style == CalendarStyle::Julian
                                            ? reference::Julian_Day_Number(year, month, 1)
                                            : reference::Gregorian_Day_Number(year, month, 1);
        ASSERT_EQ(Select_Month_First_Weekday(Value(reference::Month_Name(month)), year, style),
                  reference::Weekday_Of_Day_Number(day_number))
            << reference::Month_Name(month) << " " << year << " " << Calendar_Style_Name(style);
      }
    }
  }
}

TEST(SelectMonthFirstWeekday, AgreesWithCalendarr) {
  for (CalendarStyle style : {CalendarStyle::Gregorian, CalendarStyle::Julian}) {
    for (std::int64_t year = 1583; year <= 2100; ++year) {
      for (int month = 1; month <= 12; ++month) {
        const std::string name = reference::Month_Name(month);
        ASSERT_EQ(Select_Month_First_Weekday(Value(name), year, style),
                  Calendarr_Compute(Calendarr_Date_From_Year(name, 1, year, style)).weekday);
      }
    }
  }
}

TEST(SelectMonthGrid, October1582HasThirtyOneDaysInARowWithTheFirstInCellFive) {
  const MonthGrid grid = Select_Month_Grid(Value("October"), 1582, CalendarStyle::Gregorian);
  EXPECT_EQ(grid[4].caption, "30");
  EXPECT_EQ(grid[4].colour, colours::kGrayText);
  for (int day = 1; day <= 31; ++day) {
    EXPECT_EQ(grid[4 + day].caption, std::to_string(day));
    EXPECT_EQ(grid[4 + day].colour, colours::kButtonText);
  }
  EXPECT_EQ(grid[36].caption, "1");
}

TEST(SelectMonthGrid, JanuaryOfTheYearZeroJulianAndMonthsOfTheYearOneMillion) {
  const MonthGrid zero = Select_Month_Grid(Value("January"), 0, CalendarStyle::Julian);
  EXPECT_EQ(zero[4].caption, "1");  // a Thursday
  EXPECT_EQ(zero[3].caption, "31");
  const MonthGrid million = Select_Month_Grid(Value("December"), 1'000'000, CalendarStyle::Gregorian);
  EXPECT_EQ(million[5].caption, "1");  // 1 December 1000000 is a Friday
  EXPECT_EQ(million[35].caption, "31");
}

TEST(SelectMonthGrid, DecemberOf1999AndJanuaryOf2000) {
  EXPECT_EQ(Select_Month_Grid(Value("December"), 1999, CalendarStyle::Gregorian)[3].caption, "1");
  const MonthGrid january = Select_Month_Grid(Value("January"), 2000, CalendarStyle::Gregorian);
  EXPECT_EQ(january[6].caption, "1");
  EXPECT_EQ(january[5].caption, "31");  // the month before January is December
}

TEST(SelectMonthGrid, TheMonthBeforeMarchOfACommonYearHasTwentyEightDays) {
  // 1 March 2023 was a Wednesday: 26, 27, 28 of February stand before it.
  const MonthGrid march = Select_Month_Grid(Value("March"), 2023, CalendarStyle::Gregorian);
  EXPECT_EQ(march[2].caption, "28");
  EXPECT_EQ(march[3].caption, "1");
  const MonthGrid leap = Select_Month_Grid(Value("March"), 2024, CalendarStyle::Gregorian);
  EXPECT_EQ(leap[4].caption, "29");  // 1 March 2024 was a Friday
  EXPECT_EQ(leap[5].caption, "1");
}

}  // namespace
}  // namespace orrivane::engine
