#pragma once
// What the Find Time Length window does with its two selections before it measures: blanks
// filled from the present, checks in a fixed order that end in one message code, the texts of
// those messages, and the moment text its labels hold. Shared by the window and the command line.
#include <string>

#include "core/message.h"
#include "elapsed/date_difference.h"

namespace orrivane::elapsed {

// One side's six boxes as texts, as typed or chosen ("" when blank): month name, date "01" to
// "31", century (the year divided by 100), year in century "00" to "99", hour "00" to "23",
// minute "00" to "59".
struct Time_Selection {
  std::string Month;
  std::string Date;
  std::string Century;
  std::string Year_In_Century;
  std::string Hour;
  std::string Minute;
};

// The present as a selection: the month's name, date, Int(year / 100), year mod 100, hour of the
// 24-hour clock and minute. Years before 0 are not the calendar's.
Time_Selection Selection_At(const std::string& Month_Name, long long Date, long long Year, long long Hour,
                            long long Minute);

// Blanks become the present's values: a blank month becomes this month, and then a blank date
// today's date (a blank date under a chosen month stays blank); a blank century becomes this
// century, and then a blank year this year (under a chosen century a blank year is "00"); a blank
// hour becomes this hour, and then a blank minute this minute (under a chosen hour "00").
void Fill_In_Blanks(Time_Selection& Selection, const Time_Selection& Now);

// The outcome of the checks: Code 0 when both selections can be measured, else the one message
// code of the window (see Find_Time_Length_Message). For codes 8 and 9 the month and its length
// that the message names.
struct Selection_Check {
  int Code = 0;
  std::string Month_Name;
  long long Month_Length = 0;
};

// The window's checks, in its order: missing dates (1, 2, or 7 for both); then centuries that are
// not all digits (10, 11), outside 0 to 10000 (12, 13), and, when no date is missing, dates that
// do not exist (8, 9), with 14 for more than one of those; then, only when all that is clear and
// the style is "Gregorian", dates before October 15, 1582 (15, 16, or 17 for both). A year in
// century or a date that is no number is not checked here: the boxes offer fixed lists, and such
// a text fails as a type mismatch (13) when it is used.
Selection_Check Check_Time_Selections(const Time_Selection& Time_1, const Time_Selection& Time_2,
                                      const std::string& Cal_Style);

// The message of a message code of the window; the empty message for 0 or an unknown code.
Message Find_Time_Length_Message(const Selection_Check& Check);

// The full year of a selection: year in century + century x 100.
long long Selected_Year(const Time_Selection& Selection);

// A checked selection as a moment.
Moment Selected_Moment(const Time_Selection& Selection);

// The moment text of lblTime1 and lblTime2: "09:05, March 1, 2001", one-digit hours and minutes
// with a "0" in front, the date as it was typed or chosen.
std::string Moment_Text(const Time_Selection& Selection);

// A moment text taken apart again with Parse_Out, the month by its name.
Moment Moment_Of_Text(const std::string& Time_String);

}  // namespace orrivane::elapsed
