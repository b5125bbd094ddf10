#pragma once
// The calendar engine: the month and weekday vocabulary, the leap rules, validity of dates, the
// weekday and the 42-cell layout of a month in either calendar style, and the conversion
// between the styles. Whole-number arithmetic from the base year 2000, no date type.
#include <string>

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

}  // namespace orrivane::engine
