#pragma once
// The calendar engine: the month and weekday vocabulary, the leap rules, validity of dates, the
// weekday and the 42-cell layout of a month in either calendar style, and the conversion
// between the styles. Whole-number arithmetic from the base year 2000, no date type.
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/value.h"

namespace orrivane::engine {

// ---- Month and weekday vocabulary ---------------------------------------------------------

// Turns any accepted form of a month (1 to 12, 13 for January, 0 for December, "07", the
// English, three-letter, Spanish or French name) into the attribute the verb asks for:
// "Get Max Days", "Get Max Days Leap Year", "Get Month Name", "Get Three Letter Month Name",
// "Get Month Number", "Get Base Date Weekday Greg 2000", "Get Base Date Weekday Jul 2000",
// "After Leap Date?". An unknown month or verb answers empty.
Value Define_Month(const Value& Monthh, const std::string& MthAttributeType);

// Turns any accepted form of a weekday into "Get Weekday Name" or "Get Weekday Number".
Value Define_Weekday(const Value& WeekDay, const std::string& WeekDay_Attribute);

// The full month name for 1 to 12 and "01" to "09"; the empty text for anything else.
std::string Numeric_To_Text_Month(const Value& NumericMonth);

// CalStyle is "Gregorian" or "Julian". Takes no notice of 1582.
bool Is_It_A_Leap_Year(const Value& Year, const std::string& CalStyle);

// 1 if the day exists in that month of that year, else 0; with the verb "Get Max Days" in
// place of the day, the length of the month. Knows nothing of 1582.
Value Is_It_A_Valid_Date(const Value& Month_, const Value& Date_, const Value& Year_, const std::string& CalStyle);

// ---- Calendar styles and messages -----------------------------------------------------------

// The two calendar styles. Their texts are "Gregorian" (New Style) and "Julian" (Old Style).
enum class CalendarStyle { Gregorian, Julian };

// "Gregorian" or "Julian", the text the labels and Is_It_A_Leap_Year take.
std::string Calendar_Style_Name(CalendarStyle style);
// "N.S." for Gregorian, "O.S." for Julian.
std::string Calendar_Style_Label(CalendarStyle style);
// Reads "Gregorian", "Julian", "Gregorian (New Style)" or "Julian (Old Style)"; anything else
// (exactly compared, case-sensitive) answers nothing.
std::optional<CalendarStyle> Calendar_Style_From_Text(std::string_view text);

// The carriage return that breaks the text of a message box in two: "\r" (CR, 13), alone, with
// no line feed. The messages below embed it as it stands.
inline constexpr char kCarriageReturn[] = "\r";

// A modal message to show: its title and text (exclamation icon, one OK button). Both empty
// when there is nothing to show.
struct EngineMessage {
  std::string title;
  std::string text;
  bool empty() const { return title.empty() && text.empty(); }
};

// ---- The grid of a month ----------------------------------------------------------------------

// Colours of the grid cells, as the platform encodes them: two system colours and red.
inline constexpr std::uint32_t kGreyTextColour = 0x80000011;    // days of the neighbouring months
inline constexpr std::uint32_t kButtonTextColour = 0x80000012;  // days of the month on show
inline constexpr std::uint32_t kRedColour = 255;                // the selected date

inline constexpr int kGridCells = 42;  // numbered 0 to 41, seven to a row, Sunday first

struct CalendarCell {
  std::string caption;  // the day number as text
  std::uint32_t colour = kGreyTextColour;
};
using MonthGrid = std::array<CalendarCell, kGridCells>;

// Lays out a month from the weekday of its first (first_column, 1 = Sunday ... 7), its length and
// the length of the month before: grey days of the month before, the month's own days, then grey
// 1, 2, 3... to cell 41. The day equal to selected_date is red (pass 0 for no selection). A
// first_column outside 1 to 7 fails with Subscript out of range (9).
MonthGrid Draw_Month_Cells(int first_column, int length, int length_before, std::int64_t selected_date);

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
  EngineMessage message;   // the box to show for the error code; empty when it is 0
};

// Weekday, leap flag and validity of the date, with the message of its error code. Only
// dates after the day count of their month are refused (date 0 or below is not checked).
CalendarrResult Calendarr_Compute(const CalendarrDate& date);

// The weekday arithmetic alone, from the base year 2000, whatever the validity: for the twelve
// months and every year from 0 on, the true weekday 1 to 7 of the proleptic calendar of the style.
int Calendarr_Weekday(const CalendarrDate& date);

// Title and text of Calendarr's error codes 1 to 3 for this date; empty for any other code.
EngineMessage Calendarr_Message(int error_code, const CalendarrDate& date);

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
  EngineMessage message;  // the status's message for one error, the general one for more
};

// Form1_Field_Validation_Check_Status over the five texts: style, month, year, date, century
// (a number from 0 to 1000), in that order.
FieldCheckResult Form1_Field_Validation_Check_Status(const FindADateFields& fields);

// The message of a field-check status 1 to 7 (7 is in the table but never reached); with
// kGeneralFieldStatus, "Invalid Field Entries"; empty for anything else.
inline constexpr int kGeneralFieldStatus = -1;
EngineMessage Field_Validation_Message(int status);

// ---- Weekday of the first of a month (frmSelectMonth) -----------------------------------------

// The count of Gregorian century corrections between 2000 and the year, as frmSelectMonth's
// year-by-year loop counts them (negative before 2000), in closed form. after_leap_date is 0 for
// January and February and 1 otherwise. Equal to the loop for every year.
std::int64_t Select_Month_Gregorian_Correction(int after_leap_date, std::int64_t year);

// Weekday 1 to 7 of the first of the month (any form Define_Month accepts) in the year, by
// frmSelectMonth's method from the weekdays of the year 2000. Years from 0 to about 10^15.
int Select_Month_First_Weekday(const Value& month, std::int64_t year, CalendarStyle style);

// The 42 cells of that month as frmSelectMonth draws them: no red cell.
MonthGrid Select_Month_Grid(const Value& month, std::int64_t year, CalendarStyle style);

// ---- Conversion between the styles (Convert) --------------------------------------------------

// The date to convert: a full English month name, the day, the year and its style.
struct ConvertDate {
  std::string month;
  std::int64_t date = 0;
  std::int64_t year = 0;
  CalendarStyle style = CalendarStyle::Gregorian;
};

// The largest year Convert takes; beyond it, Overflow (6). Its year-by-year loop runs about
// year / 48,700 rounds: 20 for the year 1,000,000, 44,000 for this one.
inline constexpr std::int64_t kLargestConvertYear = 2'147'483'647;

struct ConvertResult {
  int error_code = 0;      // 0, or 1 (before the calendar change), 2 (29 February), 3 (no such day)
  EngineMessage message;   // the box for the error code; empty when it is 0

  // The equivalent date in the other style, as the hidden lblConverted... labels carry it.
  std::string month;            // lblConvertedMonth (empty in the kept 1 January result)
  std::int64_t day = 0;         // lblConvertedDate
  std::int64_t year = 0;        // lblConvertedYear
  std::int64_t century = 0;     // lblConvertedCentury: year / 100, remainder dropped
  std::int64_t two_digit_year = 0;  // lblConverted2DigitYear: the remainder
  CalendarStyle style = CalendarStyle::Julian;  // lblConvertedStyle

  std::int64_t difference = 0;            // the day difference of the source date
  std::int64_t displayed_difference = 0;  // as shown: +1 for 29 February of a Julian century year, no sign

  // The captions of frmDateConversion.
  std::string lblDate1;       // "January 1, 2000 N.S."
  std::string lblEquivalent;  // "Julian Equivalent: " or "Gregorian Equivalent: "
  std::string lblDate2;       // "December 19, 1999 O.S."
  std::string lblDifference;  // "13 day(s)."

  // The silent mode's "Date_String": month number, "/", day, "/", year ("12/19/1999").
  std::string date_string;
};

// Validates the date for conversion and converts it into the other style, with the day
// difference and every text the window and the keeper take. Two results are kept as the steps
// give them: a Gregorian 1 January of the year after a Julian source comes out as an empty month
// and day 2 (22 December 1583 O.S.), and a Gregorian 1 December reached across more than a year
// as 1 January of the year after. A year above kLargestConvertYear fails with Overflow (6).
ConvertResult Convert_Compute(const ConvertDate& date);

// The message of Convert's error codes 1 to 3 (code 1 tells the source style); empty otherwise.
EngineMessage Convert_Message(int error_code, const ConvertDate& date);

// The day difference between the styles at the date: (century - 2) - floor(century / 4), one day
// less in January and February of a century year that is not a multiple of 400.
std::int64_t Convert_Day_Difference(const std::string& month, std::int64_t year);

}  // namespace orrivane::engine
