#include "engine/calendarr.h"

#include <array>
#include <utility>

#include "core/runtime_failure.h"
#include "core/text.h"
#include "core/whole_numbers.h"
#include "engine/input_range.h"
#include "engine/invalid_date_messages.h"
#include "engine/month_steps.h"
#include "engine/month_table.h"

namespace orrivane::engine {

// ---- Weekday, validity and layout of a date (Calendarr) --------------------------------------

namespace {

// Calendarr's own view of a month: the weekday of the first in a common year that starts on a
// Sunday, the days with February counted as 29, "after leap date", the days of the month before
// (February again as 29). All of it follows from the month lengths.
struct CalendarrRow {
  int number;  // 1 to 12; 0 for a text that is no full month name
  int base_weekday;
  int days;
  int after_leap_date;
  int days_before;
};

constexpr CalendarrRow Calendarr_Row_Of(int month) {
  using month_table::Length;
  return {month, (month_table::First_Day_Of_Year(month, false) - 1) % 7 + 1, Length(month, true),
          month_table::Row(month).after_leap_date, Length(month == 1 ? 12 : month - 1, true)};
}

constexpr bool Same_Row(const CalendarrRow& a, const CalendarrRow& b) {
  return a.number == b.number && a.base_weekday == b.base_weekday && a.days == b.days &&
         a.after_leap_date == b.after_leap_date && a.days_before == b.days_before;
}
static_assert(Same_Row(Calendarr_Row_Of(1), {1, 1, 31, 0, 31}) && Same_Row(Calendarr_Row_Of(2), {2, 4, 29, 0, 31}));
static_assert(Same_Row(Calendarr_Row_Of(3), {3, 4, 31, 1, 29}) && Same_Row(Calendarr_Row_Of(10), {10, 1, 31, 1, 30}));
static_assert(Same_Row(Calendarr_Row_Of(12), {12, 6, 31, 1, 30}));

constexpr std::array<CalendarrRow, 12> kCalendarrMonths = [] {
  std::array<CalendarrRow, 12> rows{};
  for (int month = 1; month <= 12; ++month) rows[static_cast<std::size_t>(month - 1)] = Calendarr_Row_Of(month);
  return rows;
}();

// Any other month text: all four columns empty.
constexpr CalendarrRow kEmptyCalendarrRow{0, 0, 0, 0, 0};

// The month must arrive as its full English name.
const CalendarrRow& Calendarr_Row(const std::string& month) {
  const int number = Full_Month_Number(month);
  return number == 0 ? kEmptyCalendarrRow : kCalendarrMonths[static_cast<std::size_t>(number - 1)];
}

struct WeekdayAndLeap {
  int weekday;
  bool leap_flag;
};

// The weekday steps from the base year 2000, floors being mathematical and the modulo
// truncating. For |year| <= 10^17 every value below stays within about +-1.3 * 10^17.
WeekdayAndLeap Calendarr_Arithmetic(const CalendarrDate& date) {
  Require_Input_Range(date.century);
  Require_Input_Range(date.two_digit_year);
  Require_Input_Range(date.date);
  const CalendarrRow& row = Calendarr_Row(date.month);
  const std::int64_t year = date.year();
  const std::int64_t century = date.century;
  const bool julian = date.style == CalendarStyle::Julian;

  // 1. Year offset; negative after 2000, as intended.
  const std::int64_t year_offset = (2000 - year + 1) + Floor_Div(2000 - year, 4);
  // 2. The Gregorian common century years since 2000.
  std::int64_t century_correction = 0;
  if (century < 20) {
    century_correction = (century - 19) + Floor_Div((20 - century) - 1, 4);
  } else if (century > 20) {
    century_correction = (century - 20) - Floor_Div(century - 20, 4);
  }
  // 3. The first day of the date's seven-day block: 1, 8, 15, 22 or 29.
  const std::int64_t week_start = Floor_Div(date.date - 1, 7) * 7 + 1;
  // 4. Truncating modulo: -6 to 6.
  std::int64_t shift = (year_offset + ((week_start + 7) - date.date) + century_correction) % 7;
  // 5. Three separate tests, each setting the leap flag.
  bool leap_flag = false;
  if (year % 400 == 0) {
    if (row.after_leap_date == 1) shift -= 1;
    leap_flag = true;
  }
  if (year % 100 == 0 && year % 400 != 0) {
    shift -= 1;
    leap_flag = julian;
  }
  if (year % 4 == 0 && year % 100 != 0) {
    if (row.after_leap_date == 1) shift -= 1;
    leap_flag = true;
  }
  // 6. The days by which the two calendars stand apart in the century.
  if (julian) {
    shift -= (century - 2) - Floor_Div(century, 4);
    if (year % 100 == 0 && year % 400 != 0 && row.after_leap_date == 0) shift += 1;
  }
  // 7. A result of 0 means 7.
  std::int64_t weekday = ((row.base_weekday + 7) - shift) % 7;
  if (weekday == 0) weekday = 7;
  return {static_cast<int>(weekday), leap_flag};
}

}  // namespace

std::int64_t CalendarrDate::year() const {
  std::int64_t hundreds = 0;
  std::int64_t whole = 0;
  if (__builtin_mul_overflow(century, 100, &hundreds) || __builtin_add_overflow(hundreds, two_digit_year, &whole)) {
    throw RuntimeFailure(kOverflow);
  }
  return whole;
}

CalendarrDate Calendarr_Date_From_Year(std::string month, std::int64_t date, std::int64_t year, CalendarStyle style) {
  return {std::move(month), date, year / 100, year % 100, style};
}

CalendarrDate Calendarr_Date_From_System_Date(std::string_view system_date) {
  using namespace text;
  const std::int64_t year = Value(Right(system_date, 4)).whole();
  std::string month = Left(system_date, 2);
  if (Mid(month, 2, 1) == "/") month = Left(month, 1);
  std::string day = Right(Left(system_date, Len(system_date) - 5), 2);
  if (Left(day, 1) == "/") day = Right(day, 1);
  return Calendarr_Date_From_Year(Numeric_To_Text_Month(Value(month)), Value(day).whole(), year,
                                  CalendarStyle::Gregorian);
}

int Calendarr_Weekday(const CalendarrDate& date) { return Calendarr_Arithmetic(date).weekday; }

Message Calendarr_Message(int error_code, const CalendarrDate& date) {
  switch (error_code) {
    case 1: return Gregorian_Start_Message();
    case 2: return February_Message(date.year());
    case 3: return No_Such_Day_Message(date.month, date.date);
    default: return {};
  }
}

CalendarrResult Calendarr_Compute(const CalendarrDate& date) {
  const WeekdayAndLeap computed = Calendarr_Arithmetic(date);
  const CalendarrRow& row = Calendarr_Row(date.month);
  const std::int64_t year = date.year();
  CalendarrResult result;
  result.leap_flag = computed.leap_flag;

  // 1 and 2: before 15 October 1582 the Gregorian calendar does not exist; the Julian one has
  // no lower limit, so that its failure is taken back at once.
  if (date.style == CalendarStyle::Gregorian && Is_Before_Gregorian_Start<std::int64_t>(year, row.number, date.date)) {
    result.valid = false;
    result.error_code = 1;
  }
  // 3 and 4: a day the month does not have; code 1 takes precedence.
  if (date.month == "February" && date.date == 29 && !computed.leap_flag) {
    result.valid = false;
    if (result.error_code != 1) result.error_code = 2;
  } else if (date.date > row.days) {
    result.valid = false;
    if (result.error_code != 1) result.error_code = 3;
  }

  result.weekday = result.valid ? computed.weekday : 0;
  result.message = Calendarr_Message(result.error_code, date);
  return result;
}

std::optional<MonthGrid> Calendarr_Month_Grid(const CalendarrDate& date) {
  const CalendarrResult result = Calendarr_Compute(date);
  if (!result.valid) return std::nullopt;
  const CalendarrRow& row = Calendarr_Row(date.month);
  // 3. February counts 29 days only in a leap year, for itself and as the month before March.
  const int length = (row.days == 29 && !result.leap_flag) ? 28 : row.days;
  const int length_before = (row.days_before == 29 && !result.leap_flag) ? 28 : row.days_before;
  // 4. The weekday of the first, from the date's weekday and its place in its seven-day block.
  const std::int64_t week_start = Floor_Div(date.date - 1, 7) * 7 + 1;
  std::int64_t first_column = ((result.weekday + 7) - (date.date - week_start)) % 7;
  if (first_column == 0) first_column = 7;
  return Draw_Month_Cells(static_cast<int>(first_column), length, length_before, date.date);
}

// ---- Field check of "Find The Weekday Of A Date" ----------------------------------------------

namespace {

const CodedMessage kFieldMessages[] = {
    {1, Exclamation_Message("Invalid Calendar Selection", "A calendar style must be selected.")},
    {2, Exclamation_Message("Invalid Calendar Selection", "That is not a valid entry.")},
    {3, Exclamation_Message("No Month Selected", "A month must be selected.")},
    {4, Exclamation_Message("No Year Selected", "A year must be selected.")},
    {5, Exclamation_Message("No Date Selected", "A date must be selected.")},
    {6, Exclamation_Message("Invalid Century Entry", "A value from 0 to 1000 must be entered in the Century field.")},
    {7, Exclamation_Message("Invalid Century Entry", "The Century field must contain only numbers.")},
    {kGeneralFieldStatus,
     Exclamation_Message("Invalid Field Entries", "Some fields were omitted or contain invalid selections.")},
};

}  // namespace

Message Field_Validation_Message(int status) { return Message_Of(kFieldMessages, status); }

FieldCheckResult Form1_Field_Validation_Check_Status(const FindADateFields& fields) {
  FieldCheckResult result;
  auto error = [&result](int status) {
    result.status = status;
    ++result.error_count;
  };
  if (fields.ComboCalendar.empty()) {
    error(1);
  } else if (fields.ComboCalendar != "Gregorian (New Style)" && fields.ComboCalendar != "Julian (Old Style)") {
    error(2);
  }
  if (fields.ComboMonths.empty()) error(3);
  if (fields.ComboYear.empty()) error(4);
  if (fields.ComboDate.empty()) error(5);
  // The century must convert to a number (one too large to hold does not); if not, it is 0.
  std::optional<double> century;
  try {
    century = Parse_Number(fields.ComboCentury);
  } catch (const RuntimeFailure&) {
    century.reset();
  }
  if (!century) error(6);
  const double value = century.value_or(0);
  if (value < 0 || value > 1000) error(6);

  if (result.error_count == 1) result.message = Field_Validation_Message(result.status);
  if (result.error_count > 1) result.message = Field_Validation_Message(kGeneralFieldStatus);
  return result;
}

}  // namespace orrivane::engine
