#include "calendar/select_month_check.h"

#include <optional>

#include "core/runtime_failure.h"
#include "core/value.h"

namespace orrivane::calendar {

namespace {

constexpr double kLastYear = 1000000;

// The number the year text stands for; nothing when it is no number (or too large to hold,
// which fails the conversion just the same).
std::optional<double> Year_Number(const std::string& year_text) {
  try {
    return Parse_Number(year_text);
  } catch (const RuntimeFailure&) {
    return std::nullopt;
  }
}

// The Gregorian calendar begins in October 1582.
bool Before_Gregorian_Calendar(const std::string& month, double year) {
  if (year < 1582) return true;
  return year == 1582 && month != "October" && month != "November" && month != "December";
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
  } else if (*year > kLastYear || (*year < 0 && style == "Julian")) {
    error(kYearOutOfRange);
  } else if (style == "Gregorian" && Before_Gregorian_Calendar(month, *year)) {
    error(kBeforeGregorianCalendar);
  }
  if (errors > 1) status = kSeveralEntryErrors;
  return status;
}

engine::EngineMessage Select_Month_Entry_Message(int status) {
  switch (status) {
    case kNoMonthSelected: return {"No Month Selected", "A month must be selected."};
    case kNoYearEntered: return {"No Year Entered", "A year must be entered."};
    case kYearOutOfRange: return {"Invalid Year Entry", "Please enter a value from 1 to 1000000."};
    case kBeforeGregorianCalendar:
      return {"Invalid Month Selection", std::string("For the Gregorian Calendar, please make sure the ") +
                                             engine::kCarriageReturn + "month selected is October 1582 or later."};
    case kYearNotANumber: return {"Invalid Year Entry", "The year must contain only numbers."};
    case kSeveralEntryErrors:
      return {"Error", "Please select a month and enter a valid year in the year field."};
    default: return {};
  }
}

}  // namespace orrivane::calendar
