#pragma once
// The words that tell how a date stands to today: "Today is:", "Yesterday was:", ... with the
// short wording beside the date. Across a month's end only one day is named, two days ahead is
// plain "Date:", and 1 January seen from 31 December is not "Tomorrow".
#include <cstdint>
#include <string>

namespace orrivane::calendar {

struct DayOfYear {
  std::int64_t year = 0;
  std::int64_t month = 0;  // 1 to 12
  std::int64_t day = 0;
  std::int64_t month_length = 0;  // days of its month, in its year and style
};

struct DayWording {
  std::string long_wording;   // lblDisplayDay
  std::string short_wording;  // lblDate
};

DayWording Describe_Day(const DayOfYear& date, const DayOfYear& today);

}  // namespace orrivane::calendar
