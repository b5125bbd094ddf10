#include "engine/calendar_engine.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>

#include "core/runtime_failure.h"
#include "core/text.h"

namespace orrivane::engine {

namespace {

struct MonthRow {
  int number;
  int other_number;  // 13 for January, 0 for December, else the number again
  const char* full_name;
  const char* three_letter;
  const char* spanish;
  const char* french;
  int max_days;
  int max_days_leap;
  int base_weekday_greg_2000;
  int base_weekday_jul_2000;
  int after_leap_date;
};

// The whole vocabulary of months; the misspelled forms are accepted as they stand.
constexpr std::array<MonthRow, 12> kMonths{{
    {1, 13, "January", "Jan", "enero", "janvier", 31, 31, 7, 6, 0},
    {2, 2, "February", "Feb", "febrero", "fevier", 28, 29, 3, 2, 0},
    {3, 3, "March", "Mar", "marzo", "mars", 31, 31, 4, 3, 1},
    {4, 4, "April", "Apr", "abril", "avril", 30, 30, 7, 6, 1},
    {5, 5, "May", "May", "mayo", "mai", 31, 31, 2, 1, 1},
    {6, 6, "June", "Jun", "junio", "juin", 30, 30, 5, 4, 1},
    {7, 7, "July", "Jul", "julio", "juliet", 31, 31, 7, 6, 1},
    {8, 8, "August", "Aug", "augusto", "aout", 31, 31, 3, 2, 1},
    {9, 9, "September", "Sep", "septiembre", "septembre", 30, 30, 6, 5, 1},
    {10, 10, "October", "Oct", "octubre", "octobre", 31, 31, 1, 7, 1},
    {11, 11, "November", "Nov", "noviembre", "novembre", 30, 30, 4, 3, 1},
    {12, 0, "December", "Dec", "diciembre", "decembre", 31, 31, 6, 5, 1},
}};

struct WeekdayRow {
  int number;
  std::array<const char*, 6> forms;  // in the order they are tried; the full name is "name"
  const char* name;
};

constexpr std::array<WeekdayRow, 7> kWeekdays{{
    {1, {"Sun", "Sunday", "domingo", "demanche", nullptr, nullptr}, "Sunday"},
    {2, {"Mon", "Monday", "lunes", "lundi", nullptr, nullptr}, "Monday"},
    {3, {"Tue", "Tues", "Tuesday", "martes", "mardi", nullptr}, "Tuesday"},
    {4, {"Wed", "Wednesday", "miercoles", "mecredi", nullptr, nullptr}, "Wednesday"},
    {5, {"Thu", "Thurs", "Thur", "Thursday", "juevos", "juedi"}, "Thursday"},
    {6, {"Fri", "Friday", "viernes", "vendredi", nullptr, nullptr}, "Friday"},
    {7, {"Sat", "Satur", "Saturday", "sabado", "samedi", nullptr}, "Saturday"},
}};

// A loose value equals a number: by value, a text only when it is a number (never an error).
bool Matches_Number(const Value& v, int number) { return !v.is_empty() && v == Value(number); }

// A loose value equals a name: exactly and case-sensitively, texts only.
bool Matches_Name(const Value& v, const char* name) { return name != nullptr && v.is_text() && v.text() == name; }

const MonthRow* Find_Month(const Value& month) {
  for (const MonthRow& row : kMonths) {
    if (Matches_Number(month, row.number) || Matches_Number(month, row.other_number) ||
        Matches_Name(month, row.full_name) || Matches_Name(month, row.three_letter) ||
        Matches_Name(month, row.spanish) || Matches_Name(month, row.french)) {
      return &row;
    }
  }
  return nullptr;
}

const WeekdayRow* Find_Weekday(const Value& weekday) {
  for (const WeekdayRow& row : kWeekdays) {
    if (Matches_Number(weekday, row.number)) return &row;
    for (const char* form : row.forms) {
      if (Matches_Name(weekday, form)) return &row;
    }
  }
  return nullptr;
}

}  // namespace

Value Define_Month(const Value& Monthh, const std::string& MthAttributeType) {
  const MonthRow* row = Find_Month(Monthh);
  if (row == nullptr) return {};
  const std::string_view verb = MthAttributeType;
  if (verb == "Get Max Days") return row->max_days;
  if (verb == "Get Max Days Leap Year") return row->max_days_leap;
  if (verb == "Get Month Name") return row->full_name;
  if (verb == "Get Three Letter Month Name") return row->three_letter;
  if (verb == "Get Month Number") return row->number;
  if (verb == "Get Base Date Weekday Greg 2000") return row->base_weekday_greg_2000;
  if (verb == "Get Base Date Weekday Jul 2000") return row->base_weekday_jul_2000;
  if (verb == "After Leap Date?") return row->after_leap_date;
  return {};
}

Value Define_Weekday(const Value& WeekDay, const std::string& WeekDay_Attribute) {
  const WeekdayRow* row = Find_Weekday(WeekDay);
  if (row == nullptr) return {};
  if (WeekDay_Attribute == "Get Weekday Name") return row->name;
  if (WeekDay_Attribute == "Get Weekday Number") return row->number;
  return {};
}

std::string Numeric_To_Text_Month(const Value& NumericMonth) {
  static constexpr std::array<const char*, 9> kTwoDigit{"01", "02", "03", "04", "05", "06", "07", "08", "09"};
  for (const MonthRow& row : kMonths) {
    const bool two_digit = row.number <= 9 && Matches_Name(NumericMonth, kTwoDigit[row.number - 1]);
    const bool number = NumericMonth.is_number() && NumericMonth.number() == row.number;
    const bool digits = NumericMonth.is_text() && NumericMonth.text() == std::to_string(row.number);
    if (two_digit || number || digits) return row.full_name;
  }
  return {};
}

namespace {

// The truncating remainder of a loose year (which may be a text of digits).
bool Divisible(const Value& year, long long by) {
  const double y = year.number();
  return std::fmod(y, static_cast<double>(by)) == 0;
}

}  // namespace

bool Is_It_A_Leap_Year(const Value& Year, const std::string& CalStyle) {
  if (Divisible(Year, 400)) return true;
  if (Divisible(Year, 100)) return CalStyle == "Julian";
  return Divisible(Year, 4);
}

Value Is_It_A_Valid_Date(const Value& Month_, const Value& Date_, const Value& Year_, const std::string& CalStyle) {
  const bool asks_length = Date_.is_text() && Date_.text() == "Get Max Days";
  const double date = asks_length ? 0 : Date_.number();
  const Value year = Year_.plus_zero();
  const Value length =
      Define_Month(Month_, Is_It_A_Leap_Year(year, CalStyle) ? "Get Max Days Leap Year" : "Get Max Days");
  if (asks_length) return length;
  return (date < 1 || date > length.number()) ? 0 : 1;
}

// ---- Helpers of the weekday, layout and conversion -------------------------------------------

namespace {

// Floor division of whole numbers, also of negative ones (b > 0).
constexpr std::int64_t Floor_Div(std::int64_t a, std::int64_t b) {
  const std::int64_t q = a / b;
  return (a % b != 0 && a < 0) ? q - 1 : q;
}
static_assert(Floor_Div(-1, 4) == -1 && Floor_Div(-4, 4) == -1 && Floor_Div(7, 4) == 1);

// The magnitude up to which the inputs of the weekday arithmetic are taken: the year is then
// at most about 10^17 and every intermediate value about 1.3 * 10^17, far inside 64 bits.
constexpr std::int64_t kLargestInput = 1'000'000'000'000'000;

void Require_Input_Range(std::int64_t value) {
  if (value > kLargestInput || value < -kLargestInput) throw RuntimeFailure(kOverflow);
}

std::string Text(std::int64_t number) { return std::to_string(number); }

EngineMessage Gregorian_Start_Message() {
  return {"Invalid Date", std::string("For the Gregorian Calendar, please make sure the ") + kCarriageReturn +
                              "date entered is on or after October 15, 1582."};
}

EngineMessage February_Message(std::int64_t year) {
  return {"Invalid Date", "February of " + Text(year) + " only has 28 days in it."};
}

EngineMessage No_Such_Day_Message(const std::string& month, std::int64_t date) {
  return {"Invalid Date", month + " does not have " + Text(date) + " days in it!"};
}

}  // namespace

std::string Calendar_Style_Name(CalendarStyle style) {
  return style == CalendarStyle::Julian ? "Julian" : "Gregorian";
}

std::string Calendar_Style_Label(CalendarStyle style) { return style == CalendarStyle::Julian ? "O.S." : "N.S."; }

std::optional<CalendarStyle> Calendar_Style_From_Text(std::string_view text) {
  if (text == "Gregorian" || text == "Gregorian (New Style)") return CalendarStyle::Gregorian;
  if (text == "Julian" || text == "Julian (Old Style)") return CalendarStyle::Julian;
  return std::nullopt;
}

// ---- The grid of a month ----------------------------------------------------------------------

MonthGrid Draw_Month_Cells(int first_column, int length, int length_before, std::int64_t selected_date) {
  if (first_column < 1 || first_column > 7) throw RuntimeFailure(kSubscriptOutOfRange);
  MonthGrid grid;
  auto put = [&grid](int cell, std::int64_t caption, std::uint32_t colour) {
    if (cell < 0 || cell >= kGridCells) throw RuntimeFailure(kSubscriptOutOfRange);
    grid[static_cast<std::size_t>(cell)] = {Text(caption), colour};
  };
  // The last days of the month before, up to the column before the first; counted in 64 bits, as
  // a length near the smallest int would leave the range of int.
  for (int k = 1; k <= first_column - 1; ++k) {
    put(k - 1, (std::int64_t{length_before} - (first_column - 1)) + k, kGreyTextColour);
  }
  // The month's own days, the selected one red.
  for (int d = 1; d <= length; ++d) {
    put((first_column - 1) + (d - 1), d, d == selected_date ? kRedColour : kButtonTextColour);
  }
  // The first days of the month after, to the last cell.
  int next = 1;
  for (int cell = (first_column - 1) + length; cell < kGridCells; ++cell) put(cell, next++, kGreyTextColour);
  return grid;
}

// ---- Weekday, validity and layout of a date (Calendarr) --------------------------------------

namespace {

// Calendarr's own month table: the weekday of the first in a common year that starts on a
// Sunday, the days with February counted as 29, "after leap date", the days of the month before.
struct CalendarrRow {
  const char* month;
  int base_weekday;
  int days;
  int after_leap_date;
  int days_before;
};

constexpr std::array<CalendarrRow, 12> kCalendarrMonths{{
    {"January", 1, 31, 0, 31},
    {"February", 4, 29, 0, 31},
    {"March", 4, 31, 1, 29},
    {"April", 7, 30, 1, 31},
    {"May", 2, 31, 1, 30},
    {"June", 5, 30, 1, 31},
    {"July", 7, 31, 1, 30},
    {"August", 3, 31, 1, 31},
    {"September", 6, 30, 1, 31},
    {"October", 1, 31, 1, 30},
    {"November", 4, 30, 1, 31},
    {"December", 6, 31, 1, 30},
}};

// Any other month text: all four columns empty.
constexpr CalendarrRow kEmptyCalendarrRow{"", 0, 0, 0, 0};

const CalendarrRow& Calendarr_Row(const std::string& month) {
  for (const CalendarrRow& row : kCalendarrMonths) {
    if (month == row.month) return row;
  }
  return kEmptyCalendarrRow;
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

EngineMessage Calendarr_Message(int error_code, const CalendarrDate& date) {
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
  auto fail_before_gregorian = [&] {
    result.valid = false;
    result.error_code = 1;
    if (date.style == CalendarStyle::Julian) {
      result.valid = true;
      result.error_code = 0;
    }
  };
  if (year == 1582) {
    if (date.month == "November" || date.month == "December") {
    } else if (date.month == "October") {
      if (date.date < 15) fail_before_gregorian();
    } else {
      fail_before_gregorian();
    }
  }
  if (year < 1582) fail_before_gregorian();
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

EngineMessage Field_Validation_Message(int status) {
  switch (status) {
    case 1: return {"Invalid Calendar Selection", "A calendar style must be selected."};
    case 2: return {"Invalid Calendar Selection", "That is not a valid entry."};
    case 3: return {"No Month Selected", "A month must be selected."};
    case 4: return {"No Year Selected", "A year must be selected."};
    case 5: return {"No Date Selected", "A date must be selected."};
    case 6: return {"Invalid Century Entry", "A value from 0 to 1000 must be entered in the Century field."};
    case 7: return {"Invalid Century Entry", "The Century field must contain only numbers."};
    case kGeneralFieldStatus: return {"Invalid Field Entries", "Some fields were omitted or contain invalid selections."};
    default: return {};
  }
}

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

// ---- Weekday of the first of a month (frmSelectMonth) -----------------------------------------

namespace {

// How many whole numbers from lo to hi are multiples of n.
constexpr std::int64_t Count_Multiples(std::int64_t lo, std::int64_t hi, std::int64_t n) {
  return hi < lo ? 0 : Floor_Div(hi, n) - Floor_Div(lo - 1, n);
}

}  // namespace

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
  const char* verb = Is_It_A_Leap_Year(Value(year), Calendar_Style_Name(style)) ? "Get Max Days Leap Year" : "Get Max Days";
  const Value number = Define_Month(month, "Get Month Number");
  const auto length = static_cast<int>(Define_Month(number, verb).whole());
  // For January the month before is month 0, which is December.
  const auto length_before = static_cast<int>(Define_Month(Value(number.whole() - 1), verb).whole());
  return Draw_Month_Cells(Select_Month_First_Weekday(number, year, style), length, length_before, 0);
}

// ---- Conversion between the styles (Convert) --------------------------------------------------

namespace {

// Convert's four tables for one leap flag, indexed 0 to 12; element 0 is empty and counts as 0.
struct ConvertTables {
  std::array<std::int64_t, 13> days;
  std::array<std::int64_t, 13> forward;   // day of the year on which the month starts
  std::array<std::int64_t, 13> backward;  // one more than the days of the months after it
  std::int64_t year_length;
};

constexpr std::array<const char*, 13> kConvertMonthNames{
    "", "January", "February", "March", "April", "May", "June",
    "July", "August", "September", "October", "November", "December"};

constexpr ConvertTables kCommonYearTables{
    {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31},
    {0, 1, 32, 60, 91, 121, 152, 182, 213, 244, 274, 305, 335},
    {0, 335, 307, 276, 246, 215, 185, 154, 123, 93, 62, 32, 1},
    365};

constexpr ConvertTables kLeapYearTables{
    {0, 31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31},
    {0, 1, 32, 61, 92, 122, 153, 183, 214, 245, 275, 306, 336},
    {0, 336, 307, 276, 246, 215, 185, 154, 123, 93, 62, 32, 1},
    366};

// The tables rebuilt for a year's leap flag by the rule of a style.
const ConvertTables& Tables_For(std::int64_t year, CalendarStyle rule) {
  return Is_It_A_Leap_Year(Value(year), Calendar_Style_Name(rule)) ? kLeapYearTables : kCommonYearTables;
}

// An element of a table; an index outside 0 to 12 is Subscript out of range (9).
std::int64_t At(const std::array<std::int64_t, 13>& table, std::int64_t k) {
  if (k < 0 || k > 12) throw RuntimeFailure(kSubscriptOutOfRange);
  return table[static_cast<std::size_t>(k)];
}

// 1 to 12 for a full English month name, 0 (the empty element) for anything else.
std::int64_t Convert_Month_Number(const std::string& month) {
  for (std::size_t k = 1; k < kConvertMonthNames.size(); ++k) {
    if (month == kConvertMonthNames[k]) return static_cast<std::int64_t>(k);
  }
  return 0;
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

EngineMessage Convert_Message(int error_code, const ConvertDate& date) {
  switch (error_code) {
    case 1:
      if (date.style == CalendarStyle::Julian) {
        return {"Invalid Date For Conversion", std::string("To convert a date from Julian to Gregorian, the ") +
                                                   kCarriageReturn + "date entered must be on or after October 5, 1582."};
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
  const std::int64_t month = Convert_Month_Number(date.month);
  ConvertResult result;

  // Validation, the same in both modes.
  const ConvertTables& source_tables = Tables_For(year, date.style);
  int code = 0;
  if (year < 1582) code = 1;
  if (year == 1582) {
    // "Novemeber" is spelled so, and matches no month: November 1582 is not convertible.
    if (date.month == "Novemeber" || date.month == "December") {
    } else if (date.month == "October") {
      if (date.date < (julian ? 5 : 15)) code = 1;
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
  result.month = kConvertMonthNames[static_cast<std::size_t>(converted.month)];
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
