#pragma once
// Calendarr: the weekday of any date of either style from the base year 2000, its validity with
// the message of its error code, and the 42 cells of its month; and the field check that runs
// before it for "Find The Weekday Of A Date".
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/message.h"
#include "engine/month_cells.h"
#include "engine/vocabulary.h"

namespace orrivane::engine {

// ---- Weekday, validity and layout of a date (Calendarr) --------------------------------------

// The date Calendarr works on, as its caller fetched it. The year is century * 100 +
// two-digit year; the century may be any size (|century| up to 10^15), the two-digit year is
// meant to be 0 to 99. The month is a full English name: any other text leaves Calendarr's month
// table empty (base weekday 0, 0 days), so that any date of it fails with code 3.
struct CalendarrDate {
  std::string month;
  std::int64_t date = 0;
  std::int64_t century = 0;
  std::int64_t two_digit_year = 0;
  CalendarStyle style = CalendarStyle::Gregorian;
  // Overflow (6) for fields whose year lies beyond 64 bits.
  std::int64_t year() const;
};

// The same date from a whole year, split into century (quotient by 100) and two-digit year.
CalendarrDate Calendarr_Date_From_Year(std::string month, std::int64_t date, std::int64_t year, CalendarStyle style);

// Today's date from the system date text "3/5/2001" (month/day/year): the year is the last four
// characters, the month the first one or two, the day the one or two before the last five;
// style Gregorian. A text that is not of that shape fails as the program's text functions fail.
CalendarrDate Calendarr_Date_From_System_Date(std::string_view system_date);

struct CalendarrResult {
  int weekday = 0;         // 1 (Sunday) to 7 (Saturday); 0 when the date is invalid
  bool leap_flag = false;  // whether the year has a 29 February in the date's style
  int error_code = 0;      // 0, or 1 (before 15 October 1582, Gregorian), 2 (29 February), 3 (no such day)
  bool valid = true;       // the validity word: "Yes" (true) or "no"
  Message message;         // the box to show for the error code; empty when it is 0
};

// Weekday, leap flag and validity of the date, with the message of its error code. Only
// dates after the day count of their month are refused (date 0 or below is not checked).
CalendarrResult Calendarr_Compute(const CalendarrDate& date);

// The weekday arithmetic alone, from the base year 2000, whatever the validity: for the twelve
// months and every year from 0 on, the true weekday 1 to 7 of the proleptic calendar of the style.
int Calendarr_Weekday(const CalendarrDate& date);

// Title and text of Calendarr's error codes 1 to 3 for this date; empty for any other code.
Message Calendarr_Message(int error_code, const CalendarrDate& date);

// The 42 cells of the date's month with the date in red, as Calendarr draws them; nothing when
// the date is invalid (the month on show then stays).
std::optional<MonthGrid> Calendarr_Month_Grid(const CalendarrDate& date);

// ---- Field check of "Find The Weekday Of A Date" ----------------------------------------------

// The texts of the five combo boxes of frmFindADate.
struct FindADateFields {
  std::string ComboCalendar;
  std::string ComboMonths;
  std::string ComboDate;
  std::string ComboCentury;
  std::string ComboYear;
};

struct FieldCheckResult {
  int status = 0;       // 0 when every field is fine, else the last status set (1 to 6)
  int error_count = 0;  // how many errors were found
  Message message;      // the status's message for one error, the general one for more
};

// Form1_Field_Validation_Check_Status over the five texts: style, month, year, date, century
// (a number from 0 to 1000), in that order.
FieldCheckResult Form1_Field_Validation_Check_Status(const FindADateFields& fields);

// The message of a field-check status 1 to 7 (7 is in the table but never reached); with
// kGeneralFieldStatus, "Invalid Field Entries"; empty for anything else.
inline constexpr int kGeneralFieldStatus = -1;
Message Field_Validation_Message(int status);

}  // namespace orrivane::engine
