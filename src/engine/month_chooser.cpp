#include "engine/month_chooser.h"

#include <algorithm>

#include "core/whole_numbers.h"
#include "engine/input_range.h"

namespace orrivane::engine {

std::int64_t Select_Month_Gregorian_Correction(int after_leap_date, std::int64_t year) {
  Require_Input_Range(year);
  // The loop runs over v from 2000 +- 1 to the year; each case counts the v that pass its test.
  if (year == 2000) return 0;
  if (after_leap_date == 0) {
    if (year < 2000) {
      // v mod 100 = 0 and v mod 400 <> 0, for v from the year to 1999.
      return -(Count_Multiples(year, 1999, 100) - Count_Multiples(year, 1999, 400));
    }
    // v mod 100 = 1 and v mod 400 <> 1, for v from 2001 to the year: v - 1 from 2000 to year - 1.
    return Count_Multiples(2000, year - 1, 100) - Count_Multiples(2000, year - 1, 400);
  }
  if (year < 2000) {
    // v mod 100 = 99 and v mod 400 <> 399, for v from the year to 1999: v + 1 from the year + 1
    // to 2000. The truncating modulo of a negative v is never 99, so v starts at 0 at the least.
    const std::int64_t lo = std::max<std::int64_t>(year, 0) + 1;
    return -(Count_Multiples(lo, 2000, 100) - Count_Multiples(lo, 2000, 400));
  }
  // v mod 100 = 0 and v mod 400 <> 0, for v from 2001 to the year.
  return Count_Multiples(2001, year, 100) - Count_Multiples(2001, year, 400);
}

int Select_Month_First_Weekday(const Value& month, std::int64_t year, CalendarStyle style) {
  Require_Input_Range(year);
  // The month's number stands for it in the lookups below: the same row, found at once.
  const Value number = Define_Month(month, "Get Month Number");
  const bool gregorian = style == CalendarStyle::Gregorian;
  const std::int64_t base =
      Define_Month(number, gregorian ? "Get Base Date Weekday Greg 2000" : "Get Base Date Weekday Jul 2000").whole();
  const int after_leap_date = static_cast<int>(Define_Month(number, "After Leap Date?").whole());
  const std::int64_t years = 2000 - year;
  // Leap days between the year and 2000, as if every fourth year were one.
  const std::int64_t leap_days = after_leap_date == 0 ? Floor_Div(years, 4) : Floor_Div(years - 1, 4) + 1;
  const std::int64_t correction = gregorian ? Select_Month_Gregorian_Correction(after_leap_date, year) : 0;
  const std::int64_t shift = (years + leap_days + correction) % 7;  // truncating: -6 to 6
  std::int64_t first = base - shift;
  if (first < 1) first += 7;
  if (first > 7) first -= 7;
  return static_cast<int>(first);
}

MonthGrid Select_Month_Grid(const Value& month, std::int64_t year, CalendarStyle style) {
  const Value number = Define_Month(month, "Get Month Number");
  auto length_of = [year, style](const Value& month_number) {
    return static_cast<int>(Is_It_A_Valid_Date(month_number, "Get Max Days", year, Calendar_Style_Name(style)).whole());
  };
  // For January the month before is month 0, which is December.
  return Draw_Month_Cells(Select_Month_First_Weekday(number, year, style), length_of(number),
                          length_of(Value(number.whole() - 1)), 0);
}

}  // namespace orrivane::engine
