#pragma once
// Convert: a date of one style as the same day of the other, with the day difference between
// the styles and the texts of the conversion window.
#include <cstdint>
#include <string>

#include "core/message.h"
#include "engine/vocabulary.h"

namespace orrivane::engine {

// The date to convert: a full English month name, the day, the year and its style.
struct ConvertDate {
  std::string month;
  std::int64_t date = 0;
  std::int64_t year = 0;
  CalendarStyle style = CalendarStyle::Gregorian;
};

// The largest year Convert takes; beyond it, Overflow (6). Its year-by-year loop runs about
// year / 48,700 rounds: 20 for the year 1,000,000, 44,000 for this one.
inline constexpr std::int64_t kLargestConvertYear = 2'147'483'647;

struct ConvertResult {
  int error_code = 0;  // 0, or 1 (before the calendar change), 2 (29 February), 3 (no such day)
  Message message;     // the box for the error code; empty when it is 0

  // The equivalent date in the other style, as the hidden lblConverted... labels carry it.
  std::string month;            // lblConvertedMonth (empty in the kept 1 January result)
  std::int64_t day = 0;         // lblConvertedDate
  std::int64_t year = 0;        // lblConvertedYear
  std::int64_t century = 0;     // lblConvertedCentury: year / 100, remainder dropped
  std::int64_t two_digit_year = 0;  // lblConverted2DigitYear: the remainder
  CalendarStyle style = CalendarStyle::Julian;  // lblConvertedStyle

  std::int64_t difference = 0;            // the day difference of the source date
  std::int64_t displayed_difference = 0;  // as shown: +1 for 29 February of a Julian century year, no sign

  // The captions of frmDateConversion.
  std::string lblDate1;       // "January 1, 2000 N.S."
  std::string lblEquivalent;  // "Julian Equivalent: " or "Gregorian Equivalent: "
  std::string lblDate2;       // "December 19, 1999 O.S."
  std::string lblDifference;  // "13 day(s)."

  // The silent mode's "Date_String": month number, "/", day, "/", year ("12/19/1999").
  std::string date_string;
};

// Validates the date for conversion and converts it into the other style, with the day
// difference and every text the window and the keeper take. Two results are kept as the steps
// give them: a Gregorian 1 January of the year after a Julian source comes out as an empty month
// and day 2 (22 December 1583 O.S.), and a Gregorian 1 December reached across more than a year
// as 1 January of the year after. A year above kLargestConvertYear fails with Overflow (6).
ConvertResult Convert_Compute(const ConvertDate& date);

// The message of Convert's error codes 1 to 3 (code 1 tells the source style); empty otherwise.
Message Convert_Message(int error_code, const ConvertDate& date);

// The day difference between the styles at the date: (century - 2) - floor(century / 4), one day
// less in January and February of a century year that is not a multiple of 400.
std::int64_t Convert_Day_Difference(const std::string& month, std::int64_t year);

}  // namespace orrivane::engine
