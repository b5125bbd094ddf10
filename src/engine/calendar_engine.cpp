#include "engine/calendar_engine.h"

#include <array>
#include <cmath>
#include <string_view>

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

}  // namespace orrivane::engine
