#pragma once
// Which reminders fall due over a range of minutes, worked out from their comparison numbers
// instead of one minute after the other: a one-off hits one number, a series an arithmetic
// progression cut to its first and last moments. The answers are those of the tick's own test
// (Is_Task_Reminder_Due, and the non-task half's comparison), for each calendar minute of the
// range, without the suppression by the minute of the hour, which belongs to a running timer.
//
// A calendar minute and its comparison number: the number grows with the minute, one a minute
// within a year, but jumps at the start of some years (two days at January 1, 2200, a day after
// each century year that is no leap year from then on, and so on before 1900), so a number in
// such a gap belongs to no calendar minute and is never seen by a tick.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <optional>
#include <unordered_map>
#include <vector>

#include "organizer/schedule_record.h"
#include "reminders/non_task_reminders.h"

namespace orrivane::reminders {

// A minute of the Gregorian calendar.
struct CalendarMinute {
  std::int64_t Year = 0;
  int Month = 0;  // 1 to 12
  int Day = 0;
  int Hour = 0;  // 0 to 23
  int Minute = 0;
  friend bool operator==(const CalendarMinute&, const CalendarMinute&) = default;
};

// The comparison numbers of calendar minutes and back, each year's numbers asked of
// Timer_Comparison_Date once and kept.
class ComparisonCalendar {
 public:
  std::int64_t Number_Of(const CalendarMinute& minute);
  // The minute whose number this is; nothing for a number in a gap between two years.
  std::optional<CalendarMinute> Minute_Of(std::int64_t number);
  // The smallest number at least `number` that belongs to a minute of the years 1 to
  // 1,000,000; nothing when there is none.
  std::optional<std::int64_t> Next_Minute_Number(std::int64_t number);

 private:
  // The numbers of 0:00 on the first of each month, and of the minute after the year's last.
  struct YearNumbers {
    std::int64_t month_start[13];
  };
  const YearNumbers& Year(std::int64_t year);
  // The year whose numbers run from its first minute's to the next year's first minute's.
  std::int64_t Year_Holding(std::int64_t number, std::int64_t first_year, std::int64_t last_year);
  std::unordered_map<std::int64_t, YearNumbers> years_;
};

// The numbers at which a reminder hits: anchor + k x step for any whole k, from low to high.
// A step of 0 is a series of period 0, whose every number from low to high is the failure 11.
struct ReminderHits {
  std::int64_t anchor = 0;
  std::int64_t low = 1;
  std::int64_t high = 0;  // low above high: no hit at all
  std::uint64_t step = 1;
};

// The hits of a record of TRemin.tmp, read as Is_Task_Reminder_Due reads it (its failures
// too): a one-off its one number; a series of kind 2 from its first moment forward, of kind 3
// from its last backward, by its period, within both; any other kind none.
ReminderHits Task_Reminder_Hits(const organizer::ScheduleRecord& record);

// The hits of a moment that fires once.
ReminderHits One_Off_Hits(std::int64_t number);

// Whether `number` is one of `hits`: within low and high and a whole number of steps from the
// anchor. A step of 0 there is the failure 11, as the timer's division by it is.
bool Is_Hit(const ReminderHits& hits, std::int64_t number);

// Hands `visit` each number of `hits` from `from` to `to`, in ascending order, for as long as
// it answers true.
template <class Visit>
void For_Each_Hit(const ReminderHits& hits, std::int64_t from, std::int64_t to, Visit visit);

// ---- The due reminders over a range ------------------------------------------------------------

enum class ReminderSource { kTask, kNote };

// A reminder due at a minute: the index of its record among the task reminders or among the
// non-task reminders given.
struct DueReminder {
  std::int64_t Minutes = 0;  // the comparison number of the minute
  ReminderSource Source = ReminderSource::kTask;
  std::size_t Index = 0;
};

// The reminders to test: the task reminders (TRemin.tmp's records, in order) and the non-task
// reminders (NTRemin.dat's records, in order), with the failure that ended the reading of the
// latter, if one did, after its complete records.
struct ReminderFiles {
  std::vector<organizer::ScheduleRecord> Tasks;
  std::vector<NonTaskReminderRecord> Notes;
  std::exception_ptr Notes_Failure;
};

// Every reminder due at each calendar minute from the one numbered `from` to the one numbered
// `to` (both minutes' numbers), ordered by minute, then the tasks in file order, then the
// non-task reminders in file order. A failure that the tick would meet at one of these
// minutes is thrown instead, the one it would meet first: a record it cannot read at the
// first minute, a series of period 0 at the first minute within its range.
std::vector<DueReminder> Due_Reminders(const ReminderFiles& files, std::int64_t from, std::int64_t to,
                                       ComparisonCalendar& calendar);

// ---- Implementation of the template ----------------------------------------------------------

namespace detail {
// The first number of `hits` at or above `from`, or nothing when none lies up to `to`.
std::optional<std::int64_t> First_Hit(const ReminderHits& hits, std::int64_t from, std::int64_t to);
}  // namespace detail

template <class Visit>
void For_Each_Hit(const ReminderHits& hits, std::int64_t from, std::int64_t to, Visit visit) {
  const std::int64_t top = std::min(to, hits.high);
  std::optional<std::int64_t> hit = detail::First_Hit(hits, from, to);
  if (!hit) return;
  for (std::int64_t n = *hit;; n += static_cast<std::int64_t>(hits.step)) {
    if (!visit(n)) return;
    if (static_cast<std::uint64_t>(top - n) < hits.step) return;
  }
}

}  // namespace orrivane::reminders
