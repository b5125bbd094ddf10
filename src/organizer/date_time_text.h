#pragma once
// Dates and times as the Organizer and the reminders carry them: as text, taken apart by
// searching for separators. Nothing here validates.
//
//   system time          2:05:09 PM      hour ":" minute ":" second " " day half
//   12-hour output time  2:05 PM         hour ":" minute " " day half
//   24-hour output time  14:05           hour ":" minute
//   system date          3/5/2001        month "/" day "/" year
//   output date          March 5, 2001   month name " " day "," " " year
//
// Each parser takes the whole text apart, cutting at the first occurrence of each separator,
// before it answers the wanted part as text; a part it doesn't know answers empty. A text
// without an expected separator is the failure 5 (a negative length asked of text::Left):
// callers are responsible for the shape.
#include <string>

#include "core/value.h"

namespace orrivane::organizer {

// Parts "Hour", "Minute", "Second", "Time Of Day".
Value Parse_System_Time(const Value& Time_String, const std::string& Part_Of_Time_String_Returned);

// Parts "Hour", "Minute", "Time Of Day".
Value Parse_Output_Style_12h_Time(const Value& Time_String, const std::string& Part_Of_String_Returned);

// Parts "Hour", "Minute".
Value Parse_Output_Style_24h_Time(const Value& Time_String, const std::string& Part_Of_String_Returned);

// Parts "Year", "Month", "Date" of a system date; "03" stays "03".
Value Parse_Date(const Value& Date_String, const std::string& Part_Of_Date_Returned);

// Parts "Month", "Date", "Year" of an output date. The one character after the comma is
// skipped whatever it is.
Value Parse_Output_Style_Date(const Value& Date_String, const std::string& Part_Of_Date_Returned);

// Month number "/" date "/" year. The month may be its number, "01" to "09", or an English
// (full or three-letter), Spanish or French name spelled exactly as the month table of
// date_time_text.cpp has it; an unknown month leaves the number out, so that the text begins
// with "/". The date and the year are copied as they stand.
Value Convert_To_Date_Format(const Value& Month_, const Value& Date_, const Value& Four_Digit_Year_);

// 12-hour hour and "AM" or "PM" to the 24-hour hour: 12 AM is 0, 1 PM is 13. An hour outside
// 1 to 12 is empty, and with "PM" then 12. The hour is taken as a 16-bit whole number: beyond
// that range the failure 6 (Overflow), a text that is no number the failure 13.
Value Convert_Hour_To_Military_Time(const Value& Hour_To_Convert, const Value& Time_Of_Day);

// 24-hour hour to the 12-hour clock: "Hour" answers 1 to 12, "Time Of Day" "AM" or "PM"; an
// hour outside 0 to 23 or an unknown part answers empty. The hour is taken as for the above.
Value Convert_Hour_From_Military_Time(const Value& Hour_To_Convert, const std::string& Hour_Or_Time_Of_Day);

}  // namespace orrivane::organizer
