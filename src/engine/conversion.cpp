#include "engine/conversion.h"

#include <array>

#include "core/runtime_failure.h"
#include "core/whole_numbers.h"
#include "engine/input_range.h"
#include "engine/invalid_date_messages.h"
#include "engine/month_steps.h"
#include "engine/month_table.h"

namespace orrivane::engine {

namespace {

std::string Text(std::int64_t number) { return std::to_string(number); }

// Convert's four tables for one leap flag, indexed 0 to 12; element 0 is empty and counts as 0.
struct ConvertTables {
  std::array<std::int64_t, 13> days{};
  std::array<std::int64_t, 13> forward{};   // day of the year on which the month starts
  std::array<std::int64_t, 13> backward{};  // one more than the days of the months after it
  std::int64_t year_length = 0;
};

constexpr ConvertTables Convert_Tables(bool leap) {
  ConvertTables tables;
  tables.year_length = month_table::First_Day_Of_Year(12, leap) + month_table::Length(12, leap) - 1;
  for (int month = 1; month <= 12; ++month) {
    const auto k = static_cast<std::size_t>(month);
    tables.days[k] = month_table::Length(month, leap);
    tables.forward[k] = month_table::First_Day_Of_Year(month, leap);
    tables.backward[k] = tables.year_length - (tables.forward[k] + tables.days[k] - 1) + 1;
  }
  return tables;
}

constexpr ConvertTables kCommonYearTables = Convert_Tables(false);
constexpr ConvertTables kLeapYearTables = Convert_Tables(true);
static_assert(kCommonYearTables.year_length == 365 && kLeapYearTables.year_length == 366);
static_assert(kCommonYearTables.backward[1] == 335 && kLeapYearTables.backward[1] == 336);
static_assert(kCommonYearTables.backward[3] == 276 && kLeapYearTables.backward[12] == 1);
static_assert(kCommonYearTables.forward[12] == 335 && kLeapYearTables.forward[3] == 61);

// The tables rebuilt for a year's leap flag by the rule of a style.
const ConvertTables& Tables_For(std::int64_t year, CalendarStyle rule) {
  return Is_Leap_Year(year, rule) ? kLeapYearTables : kCommonYearTables;
}

// The first day of October 1582 that Convert takes in the Julian style: 5 October O.S. is
// 15 October N.S., the first day of the Gregorian calendar.
constexpr std::int64_t kFirstJulianDayConverted = 5;

// The name of a month 1 to 12; the empty element 0 has the empty name.
std::string Convert_Month_Name(std::int64_t month) {
  return month == 0 ? std::string() : month_table::Row(static_cast<int>(month)).full_name;
}

// An element of a table; an index outside 0 to 12 is Subscript out of range (9).
std::int64_t At(const std::array<std::int64_t, 13>& table, std::int64_t k) {
  if (k < 0 || k > 12) throw RuntimeFailure(kSubscriptOutOfRange);
  return table[static_cast<std::size_t>(k)];
}

struct ConvertedDate {
  std::int64_t month;  // 0 to 12
  std::int64_t day;
  std::int64_t year;
};

// A run of consecutive years that has the same number of days wherever it starts.
struct YearBlock {
  std::int64_t years;
  std::int64_t days;
};
constexpr YearBlock kJulianBlock{4, 1461};         // one leap year in any four
constexpr YearBlock kGregorianBlock{400, 146097};  // 97 leap years in any four hundred

// How many whole blocks the year-by-year walks below would step through one year at a time. A
// step is taken while the rest exceeds the position by more than its year's length (at most
// 366) and takes that length off, so every step of a block is taken while `excess`, the rest
// above the position, is at least 367 + 366 x (years - 1). A date far outside its month (the
// walks take any day number) would otherwise cost one round for each of its days / 365 years;
// the blocks give the same year and rest at once, and the walk takes the few years left.
std::int64_t Whole_Blocks_Stepped(std::int64_t excess, const YearBlock& block) {
  const std::int64_t needed = 367 + (block.years - 1) * 366;
  return excess < needed ? 0 : (excess - needed) / block.days + 1;
}

// Gregorian to Julian: the result is earlier than the source.
ConvertedDate Gregorian_To_Julian(std::int64_t month, std::int64_t date, std::int64_t year, std::int64_t difference) {
  const ConvertTables* tables = &Tables_For(year, CalendarStyle::Julian);
  const std::int64_t position = At(tables->forward, month) + date;
  std::int64_t k = month;
  std::int64_t day = 0;
  if (difference < position) {
    // The same year.
    const std::int64_t w = position - difference;
    while (At(tables->forward, k) > w) --k;
    day = w - At(tables->forward, k);
    if (day == 0) {
      --k;
      if (k == 0) {
        k = 12;
        --year;
      }
      day = At(tables->days, k);
    }
    return {k, day, year};
  }
  // An earlier year: step back a year at a time while the rest exceeds a year.
  std::int64_t rest = difference;
  year -= 1;
  const std::int64_t blocks = Whole_Blocks_Stepped(rest - position, kJulianBlock);
  rest -= blocks * kJulianBlock.days;
  year -= blocks * kJulianBlock.years;
  tables = &Tables_For(year, CalendarStyle::Julian);
  while (rest > position + tables->year_length) {
    rest -= tables->year_length;
    --year;
    tables = &Tables_For(year, CalendarStyle::Julian);
  }
  const bool equality = rest == position + tables->year_length;
  const std::int64_t back = rest - (position - 1);
  k = 1;
  while (At(tables->backward, k) > back) ++k;
  day = At(tables->days, k) - ((back - At(tables->backward, k)) + 1);
  if (day == 0 || equality) {
    --k;
    if (k == 0) k = 12;
    day = At(tables->days, k);
    if (k == 12) --year;
    if (equality) day = 30;
  }
  return {k, day, year};
}

// Julian to Gregorian: the result is later than the source.
ConvertedDate Julian_To_Gregorian(std::int64_t month, std::int64_t date, std::int64_t year, std::int64_t difference) {
  const ConvertTables* tables = &Tables_For(year, CalendarStyle::Gregorian);
  const std::int64_t position = At(tables->backward, month) + (At(tables->days, month) - date);
  std::int64_t k = month;
  std::int64_t day = 0;
  if (difference < position) {
    // The same year.
    const std::int64_t w = position - difference;
    while (At(tables->backward, k) > w) ++k;
    day = At(tables->days, k) - (w - At(tables->backward, k));
    if (day == 0) {
      --k;
      if (k == 0) k = 12;
      day = At(tables->days, k);
    }
    return {k, day, year};
  }
  // A later year: step on a year at a time while the rest exceeds a year.
  std::int64_t rest = difference;
  year += 1;
  const std::int64_t blocks = Whole_Blocks_Stepped(rest - position, kGregorianBlock);
  rest -= blocks * kGregorianBlock.days;
  year += blocks * kGregorianBlock.years;
  tables = &Tables_For(year, CalendarStyle::Gregorian);
  while (rest > position + tables->year_length) {
    rest -= tables->year_length;
    ++year;
    tables = &Tables_For(year, CalendarStyle::Gregorian);
  }
  const bool equality = rest == position + tables->year_length;
  const std::int64_t forth = rest - (position - 1);
  k = 12;
  day = (forth - At(tables->forward, k)) + 1;
  // "At least": the walk passes a month's own first day by one. For a 1 January it runs on to
  // the empty element 0 (empty month, day 2); a 1 December comes back as 1 January of the year
  // after, since 12 wraps to 1 below. Both are kept.
  while (At(tables->forward, k) >= forth) {
    --k;
    day = (forth - At(tables->forward, k)) + 1;
  }
  if (day == At(tables->days, k) + 1 || equality) {
    ++k;
    if (k >= 12) k = 1;
    day = 1;
    if (k == 1) ++year;
  }
  return {k, day, year};
}

}  // namespace

std::int64_t Convert_Day_Difference(const std::string& month, std::int64_t year) {
  const std::int64_t century = year / 100;
  std::int64_t difference = (century - 2) - Floor_Div(century, 4);
  // Before the end of February of such a century year the calendars have not parted by the
  // further day.
  if (year % 400 != 0 && year % 100 == 0 && (month == "January" || month == "February")) difference -= 1;
  return difference;
}

Message Convert_Message(int error_code, const ConvertDate& date) {
  switch (error_code) {
    case 1:
      if (date.style == CalendarStyle::Julian) {
        return Exclamation_Message("Invalid Date For Conversion",
                                   std::string("To convert a date from Julian to Gregorian, the ") + kCarriageReturn +
                                       "date entered must be on or after October 5, 1582.");
      }
      return Gregorian_Start_Message();
    case 2: return February_Message(date.year);
    case 3: return No_Such_Day_Message(date.month, date.date);
    default: return {};
  }
}

ConvertResult Convert_Compute(const ConvertDate& date) {
  if (date.year > kLargestConvertYear) throw RuntimeFailure(kOverflow);
  Require_Input_Range(date.date);
  const bool julian = date.style == CalendarStyle::Julian;
  const std::int64_t year = date.year;
  // 0, the empty element, for a text that is no full month name.
  const std::int64_t month = Full_Month_Number(date.month);
  ConvertResult result;

  // Validation, the same in both modes.
  const ConvertTables& source_tables = Tables_For(year, date.style);
  int code = 0;
  if (year < kFirstGregorianYear) code = 1;
  if (year == kFirstGregorianYear) {
    // "Novemeber" is spelled so, and matches no month: November 1582 is not convertible.
    if (date.month == "Novemeber" || date.month == "December") {
    } else if (date.month == "October") {
      if (date.date < (julian ? kFirstJulianDayConverted : kFirstGregorianDay)) code = 1;
    } else {
      code = 1;
    }
  }
  if (month != 0 && date.date > At(source_tables.days, month) && code != 1) code = 3;
  if (date.month == "February" && date.date == 29 && At(source_tables.days, 2) == 28 && code != 1) code = 2;
  if (code != 0) {
    result.error_code = code;
    result.message = Convert_Message(code, date);
    return result;
  }

  result.difference = Convert_Day_Difference(date.month, year);
  const ConvertedDate converted = julian ? Julian_To_Gregorian(month, date.date, year, result.difference)
                                         : Gregorian_To_Julian(month, date.date, year, result.difference);
  result.month = Convert_Month_Name(converted.month);
  result.day = converted.day;
  result.year = converted.year;
  result.century = converted.year / 100;
  result.two_digit_year = converted.year % 100;
  result.style = julian ? CalendarStyle::Gregorian : CalendarStyle::Julian;

  // 29 February of a Julian century year that the Gregorian calendar skips: the step in the
  // difference comes a day later for it.
  std::int64_t shown = result.difference;
  if (julian && year % 400 != 0 && year % 100 == 0 && year > 290 && date.date == 29 && date.month == "February") {
    shown += 1;
  }
  result.displayed_difference = shown < 0 ? -shown : shown;

  result.lblDate1 = date.month + " " + Text(date.date) + ", " + Text(year) + " " + Calendar_Style_Label(date.style);
  result.lblEquivalent = julian ? "Gregorian Equivalent: " : "Julian Equivalent: ";
  result.lblDate2 =
      result.month + " " + Text(result.day) + ", " + Text(result.year) + " " + Calendar_Style_Label(result.style);
  result.lblDifference = Text(result.displayed_difference) + " day(s).";
  // The month number Define_Month gives the name: its index, and nothing for the empty element.
  result.date_string = (converted.month == 0 ? std::string() : Text(converted.month)) + "/" + Text(result.day) + "/" +
                       Text(result.year);
  return result;
}

}  // namespace orrivane::engine
