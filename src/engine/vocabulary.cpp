#include "engine/vocabulary.h"

#include <array>
#include <cmath>

#include "engine/month_table.h"

namespace orrivane::engine {

namespace {

using month_table::kMonths;
using month_table::MonthRow;

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
  return Leap_Rule([&Year](long long by) { return Divisible(Year, by); }, Calendar_Style_Of(CalStyle));
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

int Full_Month_Number(std::string_view name) {
  for (const MonthRow& row : kMonths) {
    if (name == row.full_name) return row.number;
  }
  return 0;
}

std::string Full_Month_Name(int month) { return month_table::Row(month).full_name; }

// ---- Calendar styles ------------------------------------------------------------------------

std::string Calendar_Style_Name(CalendarStyle style) {
  return style == CalendarStyle::Julian ? "Julian" : "Gregorian";
}

std::string Calendar_Style_Label(CalendarStyle style) { return style == CalendarStyle::Julian ? "O.S." : "N.S."; }

std::optional<CalendarStyle> Calendar_Style_From_Text(std::string_view text) {
  if (text == "Gregorian" || text == "Gregorian (New Style)") return CalendarStyle::Gregorian;
  if (text == "Julian" || text == "Julian (Old Style)") return CalendarStyle::Julian;
  return std::nullopt;
}

CalendarStyle Calendar_Style_Of(std::string_view CalStyle) {
  return CalStyle == "Julian" ? CalendarStyle::Julian : CalendarStyle::Gregorian;
}

}  // namespace orrivane::engine
