#include "calendar/day_description.h"

namespace orrivane::calendar {

namespace {

const DayWording kToday{"Today is:", "Today's Date:"};
const DayWording kYesterday{"Yesterday was:", "Yesterday:"};
const DayWording kTwoDaysAgo{"The day before yesterday was:", "Two Days Ago:"};
const DayWording kTomorrow{"Tomorrow is:", "Tomorrow:"};
const DayWording kTwoDaysAhead{"The day after tomorrow will be:", "Date:"};
const DayWording kPast{"This date occured on a:", "Date:"};
const DayWording kFuture{"This date will occur on a:", "Date:"};

const DayWording* Same_Month_Wording(std::int64_t day, std::int64_t today) {
  if (day == today) return &kToday;
  if (day == today - 1) return &kYesterday;
  if (day == today - 2) return &kTwoDaysAgo;
  if (day == today + 1) return &kTomorrow;
  if (day == today + 2) return &kTwoDaysAhead;
  return nullptr;
}

const DayWording* Named_Day(const DayOfYear& date, const DayOfYear& today) {
  const bool last_of_month = date.day == date.month_length;
  if (date.year == today.year) {
    if (date.month == today.month) return Same_Month_Wording(date.day, today.day);
    if (date.month == today.month - 1 && last_of_month && today.day == 1) return &kYesterday;
    if (date.month == today.month + 1 && date.day == 1 && today.day == today.month_length) return &kTomorrow;
    return nullptr;
  }
  if (date.year == today.year - 1 && date.month == 12 && today.month == 1 && date.day == 31 && today.day == 1) {
    return &kYesterday;
  }
  return nullptr;
}

int Order(const DayOfYear& a, const DayOfYear& b) {
  if (a.year != b.year) return a.year < b.year ? -1 : 1;
  if (a.month != b.month) return a.month < b.month ? -1 : 1;
  if (a.day != b.day) return a.day < b.day ? -1 : 1;
  return 0;
}

}  // namespace

DayWording Describe_Day(const DayOfYear& date, const DayOfYear& today) {
  if (const DayWording* named = Named_Day(date, today)) return *named;
  return Order(date, today) < 0 ? kPast : kFuture;
}

}  // namespace orrivane::calendar
