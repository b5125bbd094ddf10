#include "calendar/select_month_check.h"

#include <cmath>
#include <optional>

#include "core/runtime_failure.h"
#include "core/value.h"
#include "engine/calendar_engine.h"

namespace orrivane::calendar {

namespace {

// The whole number the year text stands for; nothing when it is no number, a number with a
// fraction (a year is counted in whole years), or too large to hold, which fails the conversion
// just the same.
std::optional<double> Year_Number(const std::string& year_text) {
  std::optional<double> year;
  try {
    year = Parse_Number(year_text);
  } catch (const RuntimeFailure&) {
    return std::nullopt;
  }
  if (year && std::trunc(*year) != *year) return std::nullopt;
  return year;
}

// The Gregorian calendar begins in October 1582; a month that is not chosen lies before it.
bool Before_Gregorian_Calendar(const std::string& month, double year) {
  if (year != engine::kFirstGregorianYear) return year < engine::kFirstGregorianYear;
  return engine::Full_Month_Number(month) < engine::kFirstGregorianMonth;
}

}  // namespace

int Select_Month_Entry_Status(const std::string& month, const std::string& year_text, const std::string& style) {
  int status = kSelectMonthAccepted;
  int errors = 0;
  auto error = [&status, &errors](int found) {
    status = found;
    ++errors;
  };
  if (month.empty()) error(kNoMonthSelected);
  if (year_text.empty()) {
    error(kNoYearEntered);
  } else if (const std::optional<double> year = Year_Number(year_text); !year) {
    error(kYearNotANumber);  // the year tests cannot be made
  } else if (*year > engine::kLastYear || (*year < engine::kFirstJulianYear && style == "Julian")) {
    error(kYearOutOfRange);
  } else if (style == "Gregorian" && Before_Gregorian_Calendar(month, *year)) {
    error(kBeforeGregorianCalendar);
  }
  if (errors > 1) status = kSeveralEntryErrors;
  return status;
}

namespace {

const CodedMessage kEntryMessages[] = {
    {kNoMonthSelected, Exclamation_Message("No Month Selected", "A month must be selected.")},
    {kNoYearEntered, Exclamation_Message("No Year Entered", "A year must be entered.")},
    {kYearOutOfRange, Exclamation_Message("Invalid Year Entry", "Please enter a value from 1 to 1000000.")},
    {kBeforeGregorianCalendar,
     Exclamation_Message("Invalid Month Selection", std::string("For the Gregorian Calendar, please make sure the ") +
                                                        kCarriageReturn + "month selected is October 1582 or later.")},
    {kYearNotANumber, Exclamation_Message("Invalid Year Entry", "The year must contain only numbers.")},
    {kSeveralEntryErrors,
     Exclamation_Message("Error", "Please select a month and enter a valid year in the year field.")},
};

}  // namespace

Message Select_Month_Entry_Message(int status) { return Message_Of(kEntryMessages, status); }

}  // namespace orrivane::calendar
