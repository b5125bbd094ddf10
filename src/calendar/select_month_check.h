#pragma once
// The checks of "View Month On Calendar" before it draws a month: a month must be chosen, and the
// year must be a number in reach of the calendar style. Shared by the window and the command line.
#include <string>

#include "core/message.h"

namespace orrivane::calendar {

// The statuses of the check; 0 when the month can be drawn.
enum Select_Month_Status : int {
  kSelectMonthAccepted = 0,
  kNoMonthSelected = 1,
  kNoYearEntered = 2,
  kYearOutOfRange = 3,           // above 1,000,000, or below 0 in the Julian style
  kBeforeGregorianCalendar = 4,  // before October 1582 in the Gregorian style
  kYearNotANumber = 5,
  kSeveralEntryErrors = 6,
};

// The status of the entries as the window has them: the month's name ("" when none is chosen),
// the text of the year box, and the style, "Gregorian" or "Julian". The year 0 passes in the
// Julian style, whatever the message of status 3 says.
int Select_Month_Entry_Status(const std::string& month, const std::string& year_text, const std::string& style);

// Title and text of a status 1 to 6; empty for 0 or an unknown status.
Message Select_Month_Entry_Message(int status);

}  // namespace orrivane::calendar
