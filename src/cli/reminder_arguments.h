#pragma once
// The operands of the reminder commands, each read strictly in the one form the program writes
// it: a reminder's date "March 5, 2001" and time "14:30", a system date "3/5/2001" and time
// "2:05:09 PM", and a task list filter's bound "14:00, Mar. 5, 2001". A text that is not in its
// form, or names a day the Gregorian calendar does not have, fails with Command_Error.
#include <cstdint>
#include <string>

namespace orrivane::cli {

// A calendar day checked to exist: the month 1 to 12, the day within it, the year 1 to 1,000,000.
struct Checked_Day {
  int month = 0;
  int day = 0;
  std::int64_t year = 0;
};

// "March 5, 2001": full English month name, blank, day without a leading zero, comma, blank,
// year without leading zeros.
Checked_Day Reminder_Date_Of(const std::string& text);
// "14:30": hour 00 to 23 and minute 00 to 59, two digits each.
void Check_Reminder_Time(const std::string& text);
// "3/5/2001": month, day and year without leading zeros.
Checked_Day System_Date_Of(const std::string& text);
// "2:05:09 PM": hour 1 to 12 without a leading zero, minute and second in two digits, AM or PM.
void Check_System_Time(const std::string& text);
// "14:00, Mar. 5, 2001": hour and minute in two digits, the three-letter month, the day without
// a leading zero, the year without leading zeros.
void Check_Filter_Bound(const std::string& text);

}  // namespace orrivane::cli
