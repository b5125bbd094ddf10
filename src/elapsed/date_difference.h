#pragma once
// The time between two moments of one calendar style, to the minute. The moments are
// subtracted field by field with borrows, as on paper, which gives whole years and remaining
// months, days, hours and minutes; those pieces are then weighed in smaller units by walking the
// real leap years and months between the moments. Hours and minutes of long spans are kept as
// digit text (see decimal_text.h), so a span of a million years stays exact to the minute.
#include <array>
#include <optional>
#include <string>

#include "core/value.h"

namespace orrivane::elapsed {

// A moment as the Find Time Length window hands it over. The fields must lie in their clock and
// calendar ranges (a field outside them is the failure "Invalid procedure call or argument",
// 5) and the year within a million million of year 0 (else "Overflow", 6); the day need not
// exist in its month, the window checks that before.
struct Moment {
  long long Minute = 0;           // 0 to 59
  long long Hour = 0;             // 0 to 23
  long long Date = 1;             // 1 to 31
  long long Month_Number = 1;     // 1 to 12
  long long Four_Digit_Year = 0;  // the full year number
};

// The pieces of the span from the earlier moment E to the later moment L.
struct Time_Difference {
  long long Years = 0;
  long long Years_In_Months = 0;
  long long Years_In_Days = 0;
  std::string Years_In_Hours = "0";  // through Calculate
  std::string Years_In_Minutes = "0";
  long long Months = 0;  // 0 to 11
  long long Months_In_Days = 0;
  long long Months_In_Hours = 0;
  long long Months_In_Minutes = 0;
  // One borrow of the month before L can leave this negative (January 31 to March 1 of a
  // common year: -2, with one month of 31 days walked); the totals still come out right.
  long long Days = 0;
  long long Days_In_Hours = 0;
  long long Days_In_Minutes = 0;
  long long Hours = 0;  // 0 to 23
  long long Hours_In_Minutes = 0;
  long long Minutes = 0;  // 0 to 59
};

// The pieces, whichever of the two moments is the later. Cal_Style "Julian" or "Gregorian"
// decides leap years and month lengths.
Time_Difference Work_Out_Time_Difference(const std::string& Cal_Style, const Moment& Moment_1, const Moment& Moment_2);

// One of the nineteen answers by name: "Total Years In Years", "Total Years In Months",
// "Total Years In Days", "Total Years In Hours", "Total Years In Minutes",
// "Total Months In Months", "Remaining Months In Months", "Remaining Months In Days",
// "Remaining Months In Hours", "Remaining Months In Minutes", "Total Days In Days",
// "Remaining Days In Days", "Remaining Days In Hours", "Remaining Days In Minutes",
// "Total Hours In Hours", "Remaining Hours In Hours", "Remaining Hours In Minutes",
// "Total Minutes In Minutes", "Remaining Minutes In Minutes". A number, or a text of digits where
// the answer is worked out by Calculate. Any other name answers empty.
Value Time_Difference_Answer(const Time_Difference& Pieces, const std::string& Value_To_Return);

// Work_Out_Time_Difference and Time_Difference_Answer in one call.
Value Date_Difference(const std::string& Value_To_Return, const std::string& Cal_Style, const Moment& Moment_1,
                      const Moment& Moment_2);

// The units of the five result rows, coarse to fine.
enum class Time_Unit { Years, Months, Days, Hours, Minutes };
constexpr std::size_t kTimeUnits = 5;
using Time_Rows = std::array<std::string, kTimeUnits>;  // lblYears to lblMinutes, by Time_Unit
using Ticked_Units = std::array<bool, kTimeUnits>;      // chkYears to chkMinutes, by Time_Unit

inline std::size_t Unit_Index(Time_Unit unit) { return static_cast<std::size_t>(unit); }

// Which of the two display options is set; with neither, nothing changes.
enum class Display_Option { Neither, Total, Remaining };

// The five result rows. Total: each row the whole span in its unit, the ticks unread.
// Remaining: the span distributed over the ticked units, coarse to fine; a ticked row shows its
// own remainder plus what the unticked rows above it would have shown, told in its unit; an
// unticked row shows "N/A". A remaining row may be negative where its chain leaves a negative
// day remainder uncovered. Nothing (no change to the rows) when neither option is set.
std::optional<Time_Rows> Display_Time_Difference(const std::string& Cal_Style, const Moment& Moment_0,
                                                 const Moment& Moment_1, Display_Option Option,
                                                 const Ticked_Units& Ticked);

// Takes apart a moment in its display form "09:05, March 1, 2001": Value_To_Return "Hour",
// "Minute", "Month" (the name), "Date" or "Year" answers that part as it stands; any other
// answers "". A text without its separators fails as the text helpers do (5).
std::string Parse_Out(const std::string& Time_String, const std::string& Value_To_Return);

// The number of leap years from First_Year to Last_Year, both included, under the leap rule of
// Cal_Style; 0 when Last_Year is before First_Year. Counts, it does not walk.
long long Count_Leap_Years(long long First_Year, long long Last_Year, const std::string& Cal_Style);

}  // namespace orrivane::elapsed
