#pragma once
// The month and weekday vocabulary, the leap rules of the two calendar styles, the validity of a
// day in its month, and the names of the styles.
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

// 1 to 12 for the full English name of a month, exactly as it stands; 0 for any other text.
int Full_Month_Number(std::string_view name);

// The full English name of a month 1 to 12 (13 January, 0 December); another number is
// Subscript out of range (9).
std::string Full_Month_Name(int month);

// CalStyle is "Gregorian" or "Julian". Takes no notice of 1582.
bool Is_It_A_Leap_Year(const Value& Year, const std::string& CalStyle);

// 1 if the day exists in that month of that year, else 0; with the verb "Get Max Days" in
// place of the day, the length of the month. Knows nothing of 1582.
Value Is_It_A_Valid_Date(const Value& Month_, const Value& Date_, const Value& Year_, const std::string& CalStyle);

// ---- Calendar styles ------------------------------------------------------------------------

// The two calendar styles. Their texts are "Gregorian" (New Style) and "Julian" (Old Style).
enum class CalendarStyle { Gregorian, Julian };

// "Gregorian" or "Julian", the text the labels and Is_It_A_Leap_Year take.
std::string Calendar_Style_Name(CalendarStyle style);
// "N.S." for Gregorian, "O.S." for Julian.
std::string Calendar_Style_Label(CalendarStyle style);
// Reads "Gregorian", "Julian", "Gregorian (New Style)" or "Julian (Old Style)"; anything else
// (exactly compared, case-sensitive) answers nothing.
std::optional<CalendarStyle> Calendar_Style_From_Text(std::string_view text);

// A style text as the procedures that take one read it (Is_It_A_Leap_Year among them): "Julian"
// is the Julian style, any other text the Gregorian.
CalendarStyle Calendar_Style_Of(std::string_view CalStyle);

// The leap rule of a style, over a test whether the year divides by 4, 100 and 400: every 400th
// year in both styles, every other 100th year in the Julian style only, every other 4th year in
// both.
template <class DivisibleBy>
constexpr bool Leap_Rule(DivisibleBy divisible_by, CalendarStyle style) {
  if (divisible_by(400)) return true;
  if (divisible_by(100)) return style == CalendarStyle::Julian;
  return divisible_by(4);
}

// Is_It_A_Leap_Year for a whole year: whether the year has a 29 February in the style.
constexpr bool Is_Leap_Year(std::int64_t year, CalendarStyle style) {
  return Leap_Rule([year](std::int64_t by) { return year % by == 0; }, style);
}

}  // namespace orrivane::engine
