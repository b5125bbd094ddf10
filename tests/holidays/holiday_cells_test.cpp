// The holidays in the cells of the large calendar: the month on show, the days of the months
// before and after in the first and last rows, the change of year, the shortened names, and no
// holiday for a Julian month or a year that has none.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "holidays/holiday_cells.h"
#include "holidays/holiday_rules.h"

namespace orrivane::holidays {
namespace {

// ---- The grid as the calendar draws it, from a civil calendar of the test's own ----------------

constexpr const char* kMonthNames[] = {"",       "January",   "February", "March",    "April",
                                       "May",    "June",      "July",     "August",   "September",
                                       "October", "November", "December"};

bool Leap(std::int64_t y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; }

int Length(std::int64_t y, int m) {
  static constexpr int kDays[] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return m == 2 && Leap(y) ? 29 : kDays[m];
}

// 0 Sunday to 6 Saturday (Zeller's congruence).
int Weekday_Of(std::int64_t y, int m, int d) {
  if (m < 3) m += 12, --y;
  const std::int64_t k = y % 100;
  const std::int64_t j = y / 100;
  const std::int64_t h = (d + 13 * (m + 1) / 5 + k + k / 4 + j / 4 + 5 * j) % 7;
  return static_cast<int>((h + 6) % 7);
}

struct Shown_Day {
  std::int64_t year;
  int month;
  int day;
};

// The 42 days on show for a month, cell by cell.
std::array<Shown_Day, 42> Days_On_Show(std::int64_t year, int month) {
  std::array<Shown_Day, 42> days{};
  const int first = Weekday_Of(year, month, 1);
  const int prior_month = month == 1 ? 12 : month - 1;
  const std::int64_t prior_year = month == 1 ? year - 1 : year;
  const int next_month = month == 12 ? 1 : month + 1;
  const std::int64_t next_year = month == 12 ? year + 1 : year;
  const int prior_length = Length(prior_year, prior_month);
  for (int cell = 0; cell < first; ++cell) days[cell] = {prior_year, prior_month, prior_length - first + 1 + cell};
  for (int d = 1; d <= Length(year, month); ++d) days[first + d - 1] = {year, month, d};
  int next_day = 1;
  for (int cell = first + Length(year, month); cell < 42; ++cell) days[cell] = {next_year, next_month, next_day++};
  return days;
}

Holiday_Cells Captions_Of(const std::array<Shown_Day, 42>& days) {
  Holiday_Cells captions;
  for (int i = 0; i < 42; ++i) captions[i] = std::to_string(days[i].day);
  return captions;
}

Holiday_Cells Cells(Holiday_Data_Keeper& table, std::int64_t year, int month, const char* style = "Gregorian") {
  return Holidays_On_Calendar_Cells(table, style, kMonthNames[month], Value(std::to_string(year)),
                                    Captions_Of(Days_On_Show(year, month)));
}

int Cell_Of(std::int64_t year, int month, int day) { return Weekday_Of(year, month, 1) + day - 1; }

// ---- The edge cases ---------------------------------------------------------------------------

TEST(HolidayCells, January2003ShowsNewYearsDayAndDecembersNewYearsEveInTheFirstRow) {
  Holiday_Data_Keeper table;
  const Holiday_Cells cells = Cells(table, 2003, 1);
  // 1 January 2003 is a Wednesday: December 29 to 31 stand in the cells 0 to 2.
  EXPECT_EQ(cells[2], "New Years Eve");
  EXPECT_EQ(cells[3], "New Years Day");
  EXPECT_EQ(cells[0], "");
  EXPECT_EQ(cells[1], "");
  EXPECT_EQ(cells[Cell_Of(2003, 1, 20)], "M L King Day");
}

TEST(HolidayCells, DecemberShowsTheNextYearsNewYearsDayInTheLastRows) {
  Holiday_Data_Keeper table;
  const Holiday_Cells cells = Cells(table, 2003, 12);
  // 1 December 2003 is a Monday: the 31st stands in cell 31, 1 January 2004 in cell 32.
  EXPECT_EQ(cells[Cell_Of(2003, 12, 24)], "Christmas Eve");
  EXPECT_EQ(cells[Cell_Of(2003, 12, 25)], "Christmas Day");
  EXPECT_EQ(cells[31], "New Years Eve");
  EXPECT_EQ(cells[32], "New Years Day");
  // Both years now stand in the table: 25 of 2003 and 25 of 2004.
  int taken = 0;
  for (int i = 0; i < Holiday_Data_Keeper::kEntries; ++i) {
    taken += !table.Store_Holiday_Data_For_Year("Holiday Month", i, "View").text().empty();
  }
  EXPECT_EQ(taken, 50);
}

TEST(HolidayCells, AHolidayOfTheMonthBeforeStandsInTheFirstRow) {
  // May 2003 begins on a Thursday: April 27 to 30 stand in the cells 0 to 3, and hold none.
  Holiday_Data_Keeper table;
  ASSERT_EQ(Weekday_Of(2003, 5, 1), 4);
  const Holiday_Cells may = Cells(table, 2003, 5);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(may[i], "") << i;
  // November 2003 begins on a Saturday: October 26 to 31 in the cells 0 to 5, Halloween at 31 - 26.
  EXPECT_EQ(Cells(table, 2003, 11)[5], "Halloween");
  // Ascension Day on April 30 (Easter on March 22, as in 2285): May begins on a Friday and
  // April 26 to 30 stand in the cells 0 to 4.
  ASSERT_EQ(*Holiday_Date_In_Year(*Holiday_Number("Ascension Day"), 2285), (Holiday_Date{4, 30, 5}));
  EXPECT_EQ(Cells(table, 2285, 5)[4], "Ascension Day");
}

TEST(HolidayCells, AJulianMonthShowsNoHoliday) {
  Holiday_Data_Keeper table;
  const Holiday_Cells cells = Cells(table, 2003, 12, "Julian");
  for (const std::string& cell : cells) EXPECT_EQ(cell, "");
}

TEST(HolidayCells, NoMonthOfAYearAbove100100ShowsAHoliday) {
  for (int month : {1, 6, 12}) {
    Holiday_Data_Keeper table;
    const Holiday_Cells cells = Cells(table, 100101, month);
    for (int i = 0; i < 42; ++i) {
      // January's first row holds the last days of 100100, which still has holidays.
      if (month == 1 && i < Weekday_Of(100101, 1, 1)) continue;
      EXPECT_EQ(cells[i], "") << month << " " << i;
    }
  }
  Holiday_Data_Keeper table;
  const Holiday_Cells last = Cells(table, 100100, 12);
  EXPECT_EQ(last[Cell_Of(100100, 12, 25)], "Christmas Day");
  // 1 January 100101 has no holiday of its own; the cell shows New Years Day all the same,
  // from the entry of 100100, since the year of an entry is not looked at.
  EXPECT_EQ(last[Cell_Of(100100, 12, 31) + 1], "New Years Day");
}

TEST(HolidayCells, AGregorianMonthOf1582ShowsOnlyTheFourHolidaysOfThatYear) {
  Holiday_Data_Keeper table;
  const Holiday_Cells october = Cells(table, 1582, 10);
  int shown = 0;
  for (const std::string& cell : october) shown += !cell.empty();
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(october[Cell_Of(1582, 10, 31)], "Halloween");
  const Holiday_Cells december = Cells(table, 1582, 12);
  EXPECT_EQ(december[Cell_Of(1582, 12, 24)], "Christmas Eve");
  EXPECT_EQ(december[Cell_Of(1582, 12, 25)], "Christmas Day");
  EXPECT_EQ(december[Cell_Of(1582, 12, 31)], "New Years Eve");
  EXPECT_EQ(december[Cell_Of(1582, 12, 31) + 1], "New Years Day");  // of 1583
}

TEST(HolidayCells, TwoLongNamesAreShortened) {
  EXPECT_EQ(Holiday_Cell_Text("Martin Luther King Day"), "M L King Day");
  EXPECT_EQ(Holiday_Cell_Text("The Day of Pentecost"), "Day of Pentecost");
  EXPECT_EQ(Holiday_Cell_Text("Election Day, U.S."), "Election Day, U.S.");
  Holiday_Data_Keeper table;
  const Holiday_Date pentecost = *Holiday_Date_In_Year(*Holiday_Number("The Day of Pentecost"), 2003);
  EXPECT_EQ(Cells(table, 2003, pentecost.month)[Cell_Of(2003, pentecost.month, pentecost.date)], "Day of Pentecost");
}

TEST(HolidayCells, OfTwoHolidaysOnOneDateTheLaterInTheYearsOrderShows) {
  // Ash Wednesday on Valentine's Day: 2018 (Easter April 1).
  Holiday_Data_Keeper table;
  EXPECT_EQ(Cells(table, 2018, 2)[Cell_Of(2018, 2, 14)], "Ash Wednesday");
}

TEST(HolidayCells, EntriesLeftFromAnEarlierMonthAreCleared) {
  Holiday_Data_Keeper table;
  Cells(table, 2003, 12);
  const Holiday_Cells march = Cells(table, 2003, 3);
  EXPECT_EQ(march[Cell_Of(2003, 3, 17)], "St. Patricks' Day");
  int taken = 0;
  for (int i = 0; i < Holiday_Data_Keeper::kEntries; ++i) {
    taken += !table.Store_Holiday_Data_For_Year("Holiday Month", i, "View").text().empty();
  }
  EXPECT_EQ(taken, 25);
}

// Every cell of every Gregorian month from October 1582 to 2400 shows the holiday that falls on
// the day it stands for, the later one in the year's order where two share a day.
TEST(HolidayCells, EveryCellShowsTheHolidayOfItsDayOverCenturies) {
  Holiday_Data_Keeper table;
  for (std::int64_t year = 1582; year <= 2400; ++year) {
    for (int month = year == 1582 ? 10 : 1; month <= 12; ++month) {
      const std::array<Shown_Day, 42> days = Days_On_Show(year, month);
      const Holiday_Cells cells = Holidays_On_Calendar_Cells(table, "Gregorian", kMonthNames[month],
                                                             Value(year), Captions_Of(days));
      for (int i = 0; i < 42; ++i) {
        std::string expected;
        for (int h = 0; h < kHolidayCount; ++h) {
          const auto when = Holiday_Date_In_Year(h, days[i].year);
          if (when && when->month == days[i].month && when->date == days[i].day) {
            expected = Holiday_Cell_Text(Holiday_Name(h));
          }
        }
        ASSERT_EQ(cells[i], expected) << kMonthNames[month] << " " << year << ", cell " << i;
      }
    }
  }
}

}  // namespace
}  // namespace orrivane::holidays
