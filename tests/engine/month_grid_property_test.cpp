// The contract of the grid, for every month of a wide range of years in both styles: the first
// of the month in cells 0 to 6 at its weekday, the first of the next month the only "1" of the
// cells 14 to 41 and within 28 to 41, one red cell, and frmSelectMonth's layout in agreement.
#include <gtest/gtest.h>

#include <random>

#include "engine/calendar_engine.h"
#include "engine/reference_calendar.h"

namespace orrivane::engine {
namespace {

using reference::Month_Length;
using reference::Month_Name;

bool True_Leap(std::int64_t year, CalendarStyle style) {
  return style == CalendarStyle::Julian ? reference::Julian_Leap(year) : reference::Gregorian_Leap(year);
}

int True_First_Weekday(std::int64_t year, int month, CalendarStyle style) {
  return reference::Weekday_Of_Day_Number(style == CalendarStyle::Julian
                                              ? reference::Julian_Day_Number(year, month, 1)
                                              : reference::Gregorian_Day_Number(year, month, 1));
}

int Count_Ones(const MonthGrid& grid, int from, int to, int* where) {
  int count = 0;
  for (int cell = from; cell <= to; ++cell) {
    if (grid[cell].caption == "1") {
      ++count;
      *where = cell;
    }
  }
  return count;
}

// Checks a grid of the month against the contract; selected is the red day, or 0 for none.
void Check_Grid(const MonthGrid& grid, std::int64_t year, int month, CalendarStyle style, int selected) {
  const int first_weekday = True_First_Weekday(year, month, style);
  const int length = Month_Length(month, True_Leap(year, style));
  const int length_before = Month_Length(month == 1 ? 12 : month - 1, True_Leap(year, style));
  int first = -1;
  ASSERT_EQ(Count_Ones(grid, 0, 6, &first), 1) << Month_Name(month) << " " << year;
  ASSERT_EQ(first + 1, first_weekday) << Month_Name(month) << " " << year;
  int next = -1;
  ASSERT_EQ(Count_Ones(grid, 14, 41, &next), 1) << Month_Name(month) << " " << year;
  ASSERT_GE(next, 28);
  ASSERT_EQ(next, first + length);
  int red = 0;
  for (int cell = 0; cell < kGridCells; ++cell) {
    const CalendarCell& c = grid[cell];
    int caption = 0;
    std::uint32_t colour = colours::kGrayText;
    if (cell < first) {
      caption = length_before - first + 1 + cell;
    } else if (cell < next) {
      caption = cell - first + 1;
      colour = caption == selected ? colours::kRed : colours::kButtonText;
    } else {
      caption = cell - next + 1;
    }
    if (c.colour != colour || c.caption != std::to_string(caption)) {
      ASSERT_EQ(c.caption, std::to_string(caption)) << "cell " << cell << ", " << Month_Name(month) << " " << year;
      ASSERT_EQ(c.colour, colour) << "cell " << cell << ", " << Month_Name(month) << " " << year;
    }
    if (c.colour == colours::kRed) ++red;
  }
  ASSERT_EQ(red, selected == 0 ? 0 : 1);
}

bool Gregorian_Month_Exists(std::int64_t year, int month) { return year > 1582 || (year == 1582 && month >= 10); }

void Check_Month(std::int64_t year, int month, CalendarStyle style, int selected) {
  const auto grid = Calendarr_Month_Grid(Calendarr_Date_From_Year(Month_Name(month), selected, year, style));
  if (style == CalendarStyle::Gregorian && (!Gregorian_Month_Exists(year, month) ||
                                            (year == 1582 && month == 10 && selected < 15))) {
    ASSERT_FALSE(grid.has_value()) << Month_Name(month) << " " << year;
  } else {
    ASSERT_TRUE(grid.has_value()) << Month_Name(month) << " " << year;
    ASSERT_NO_FATAL_FAILURE(Check_Grid(*grid, year, month, style, selected));
  }
  // frmSelectMonth lays out any month of any year from 0 in the same cells, with no red.
  ASSERT_NO_FATAL_FAILURE(Check_Grid(Select_Month_Grid(Value(Month_Name(month)), year, style), year, month, style, 0));
}

class MonthGridProperty : public ::testing::TestWithParam<CalendarStyle> {};

TEST_P(MonthGridProperty, EveryMonthOfTheYearsZeroTo3000) {
  const CalendarStyle style = GetParam();
  for (std::int64_t year = 0; year <= 3000; ++year) {
    for (int month = 1; month <= 12; ++month) {
      const int length = Month_Length(month, True_Leap(year, style));
      // The selected day walks through the month from year to year, the last day included.
      const int selected = static_cast<int>((year * 12 + month) % length) + 1;
      ASSERT_NO_FATAL_FAILURE(Check_Month(year, month, style, selected));
    }
  }
}

TEST_P(MonthGridProperty, EveryDayOfTheMonthsAroundTheCalendarChangeAndOf2000) {
  const CalendarStyle style = GetParam();
  for (std::int64_t year : {1582, 1583, 1900, 2000}) {
    for (int month = 1; month <= 12; ++month) {
      for (int day = 1; day <= Month_Length(month, True_Leap(year, style)); ++day) {
        ASSERT_NO_FATAL_FAILURE(Check_Month(year, month, style, day));
      }
    }
  }
}

TEST_P(MonthGridProperty, RandomMonthsUpToTheYearOneMillion) {
  const CalendarStyle style = GetParam();
  std::mt19937_64 random(1000000);
  std::uniform_int_distribution<std::int64_t> years(1583, 1'000'000);
  for (int i = 0; i < 20'000; ++i) {
    const std::int64_t year = years(random);
    const int month = std::uniform_int_distribution<int>(1, 12)(random);
    const int day = std::uniform_int_distribution<int>(1, Month_Length(month, True_Leap(year, style)))(random);
    ASSERT_NO_FATAL_FAILURE(Check_Month(year, month, style, day));
  }
  for (int month = 1; month <= 12; ++month) ASSERT_NO_FATAL_FAILURE(Check_Month(1'000'000, month, style, 1));
}

INSTANTIATE_TEST_SUITE_P(BothStyles, MonthGridProperty,
                         ::testing::Values(CalendarStyle::Gregorian, CalendarStyle::Julian),
                         [](const auto& info) { return Calendar_Style_Name(info.param); });

}  // namespace
}  // namespace orrivane::engine
