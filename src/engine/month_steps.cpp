#include "engine/month_steps.h"

#include "engine/month_table.h"

namespace orrivane::engine {

int Days_In_Month(int month, bool leap) { return month_table::Length(month, leap); }

int Days_In_Month(YearMonth month, CalendarStyle style) {
  return Days_In_Month(month.month, Is_Leap_Year(month.year, style));
}

std::optional<YearMonth> Next_Month_Step(YearMonth shown) {
  if (shown.year > kLastYear) return std::nullopt;
  return Month_After(shown);
}

std::optional<YearMonth> Prior_Month_Step(YearMonth shown, CalendarStyle style) {
  const YearMonth before = Month_Before(shown);
  const bool refused =
      style == CalendarStyle::Julian ? shown.year < kFirstJulianYearSteppingBack : Is_Before_Gregorian_Calendar(before);
  if (refused) return std::nullopt;
  return before;
}

SideMonths Side_Months(YearMonth shown, CalendarStyle style) {
  SideMonths side;
  side.before = Month_Before(shown);
  side.before_length = Days_In_Month(side.before, style);
  side.before_that_length = Days_In_Month(Month_Before(side.before), style);
  side.after = Month_After(shown);
  side.after_length = Days_In_Month(side.after, style);
  return side;
}

}  // namespace orrivane::engine
