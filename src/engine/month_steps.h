#pragma once
// Month arithmetic: the limits of the calendar, the length of a month in a style, the month
// before and after, the steps of the calendar windows within the limits, and the months of the
// side calendars.
#include <compare>
#include <cstdint>
#include <optional>

#include "engine/vocabulary.h"

namespace orrivane::engine {

// A month of a year, month 1 to 12; ordered by year, then month.
struct YearMonth {
  std::int64_t year = 0;
  int month = 1;
  friend auto operator<=>(const YearMonth&, const YearMonth&) = default;
};

// ---- The limits of the calendar --------------------------------------------------------------

// The Gregorian calendar begins on 15 October 1582; before it only the Julian calendar counts.
inline constexpr std::int64_t kFirstGregorianYear = 1582;
inline constexpr int kFirstGregorianMonth = 10;
inline constexpr int kFirstGregorianDay = 15;
inline constexpr YearMonth kFirstGregorianCalendarMonth{kFirstGregorianYear, kFirstGregorianMonth};
// The Julian calendar reaches back to the year 0 (the program's 1 B.C.).
inline constexpr std::int64_t kFirstJulianYear = 0;
// The last year of the calendar: its months go up to December 1,000,000.
inline constexpr std::int64_t kLastYear = 1'000'000;

// Whether a day lies before 15 October 1582. Month 0 stands for a month the caller does not
// know, which in 1582 lies before October.
template <class Number>
constexpr bool Is_Before_Gregorian_Start(Number year, Number month, Number day) {
  if (year != kFirstGregorianYear) return year < kFirstGregorianYear;
  if (month != kFirstGregorianMonth) return month < kFirstGregorianMonth;
  return day < kFirstGregorianDay;
}

// Whether a month lies before October 1582, the first month of the Gregorian calendar.
constexpr bool Is_Before_Gregorian_Calendar(YearMonth month) { return month < kFirstGregorianCalendarMonth; }

// ---- Lengths and neighbours ------------------------------------------------------------------

// The length of a month 1 to 12 in a common or a leap year; 13 is January and 0 December, as
// Define_Month reads them, and any other number is Subscript out of range (9).
int Days_In_Month(int month, bool leap);
// The length of a month by the leap rule of the style.
int Days_In_Month(YearMonth month, CalendarStyle style);

// The month after and the month before, across the turn of the year; no limits.
constexpr YearMonth Month_After(YearMonth month) {
  return month.month >= 12 ? YearMonth{month.year + 1, 1} : YearMonth{month.year, month.month + 1};
}
constexpr YearMonth Month_Before(YearMonth month) {
  return month.month <= 1 ? YearMonth{month.year - 1, 12} : YearMonth{month.year, month.month - 1};
}

// ---- Stepping the calendar windows -----------------------------------------------------------

// The month after the one on show, or nothing when the year on show lies beyond kLastYear. The
// test is on the month on show, so that December 1,000,000 still steps to January 1,000,001 and
// only the step after that one is refused.
std::optional<YearMonth> Next_Month_Step(YearMonth shown);

// Stepping back in the Julian style looks at the year alone: every month of the years 0 and 1
// refuses, so that December of the year 1 is the earliest month a step reaches. The years 0 and
// 1 are reached by choosing a month.
inline constexpr std::int64_t kFirstJulianYearSteppingBack = 2;

// The month before the one on show, or nothing when the step would leave the calendar: in the
// Gregorian style a month before October 1582, in the Julian style from a year before
// kFirstJulianYearSteppingBack.
std::optional<YearMonth> Prior_Month_Step(YearMonth shown, CalendarStyle style);

// The months beside the one on show, for the side calendars: the month before with its length
// and the length of the month before that, and the month after with its length. Each length is
// taken by the leap rule of the style for the month's own year; no limits apply.
struct SideMonths {
  YearMonth before;
  int before_length = 0;
  int before_that_length = 0;
  YearMonth after;
  int after_length = 0;
};
SideMonths Side_Months(YearMonth shown, CalendarStyle style);

}  // namespace orrivane::engine
