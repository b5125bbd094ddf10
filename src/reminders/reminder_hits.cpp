#include "reminders/reminder_hits.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "core/runtime_failure.h"
#include "engine/month_steps.h"
#include "engine/vocabulary.h"
#include "reminders/reminder_comparison.h"

namespace orrivane::reminders {

namespace {

using organizer::ScheduleRecord;

constexpr int kMonths = 12;
constexpr std::int64_t kMinutesPerHour = 60;
constexpr std::int64_t kMinutesPerDay = 24 * kMinutesPerHour;
// The minutes of an average Gregorian year, rounded up: a first guess at a number's year.
constexpr std::int64_t kAverageYearMinutes = 525950;
constexpr std::int64_t kBaseYear = 1900;
constexpr std::int64_t kFirstYear = 1;

// The most reminders a range may hold: some hundred megabytes of answers.
constexpr std::uint64_t kMostDueReminders = 20'000'000;


// The comparison number of 0:00 on the first of a month, as the tick computes a fixed moment.
std::int64_t First_Of_Month_Number(std::int64_t year, int month) {
  const std::string date = engine::Full_Month_Name(month) + " 1, " + std::to_string(year);
  return Timer_Comparison_Date(Value(date), Value("00:00"), kOutputStyleDate, ScheduleRecord{});
}

int Days_In(std::int64_t year, int month) {
  return engine::Days_In_Month(month, engine::Is_Leap_Year(year, engine::CalendarStyle::Gregorian));
}

// The period of a series in minutes, as the tick takes it. Beyond 64 bits the failure 6.
std::int64_t Series_Interval(const ScheduleRecord& r) {
  return Value(r.Interval_Days.number() * 1440 + r.Interval_Hours.number() * 60 + r.Interval_Minutes.number()).whole();
}

std::uint64_t Magnitude(std::int64_t n) {
  return n < 0 ? 0 - static_cast<std::uint64_t>(n) : static_cast<std::uint64_t>(n);
}

}  // namespace

// ---- Calendar minutes and numbers ------------------------------------------------------------------

const ComparisonCalendar::YearNumbers& ComparisonCalendar::Year(std::int64_t year) {
  const auto found = years_.find(year);
  if (found != years_.end()) return found->second;
  YearNumbers numbers{};
  for (int month = 1; month <= kMonths; ++month) numbers.month_start[month - 1] = First_Of_Month_Number(year, month);
  // Within a year the numbers run on without a gap.
  numbers.month_start[kMonths] = numbers.month_start[kMonths - 1] + Days_In(year, kMonths) * kMinutesPerDay;
  return years_.emplace(year, numbers).first->second;
}

std::int64_t ComparisonCalendar::Number_Of(const CalendarMinute& m) {
  return Year(m.Year).month_start[m.Month - 1] + (m.Day - 1) * kMinutesPerDay + m.Hour * kMinutesPerHour + m.Minute;
}

std::int64_t ComparisonCalendar::Year_Holding(std::int64_t number, std::int64_t first_year, std::int64_t last_year) {
  std::int64_t year = std::clamp(kBaseYear + number / kAverageYearMinutes, first_year, last_year);
  while (year > first_year && Year(year).month_start[0] > number) --year;
  while (year < last_year && Year(year + 1).month_start[0] <= number) ++year;
  return year;
}

std::optional<CalendarMinute> ComparisonCalendar::Minute_Of(std::int64_t number) {
  const std::int64_t year = Year_Holding(number, kFirstYear, engine::kLastYear);
  const YearNumbers& numbers = Year(year);
  if (number < numbers.month_start[0] || number >= numbers.month_start[kMonths]) return std::nullopt;
  const int month = static_cast<int>(std::upper_bound(numbers.month_start, numbers.month_start + kMonths, number) -
                                     numbers.month_start);
  const std::int64_t into_month = number - numbers.month_start[month - 1];
  return CalendarMinute{year, month, static_cast<int>(into_month / kMinutesPerDay) + 1,
                        static_cast<int>(into_month % kMinutesPerDay / kMinutesPerHour),
                        static_cast<int>(into_month % kMinutesPerHour)};
}

std::optional<std::int64_t> ComparisonCalendar::Next_Minute_Number(std::int64_t number) {
  const std::int64_t year = Year_Holding(number, kFirstYear, engine::kLastYear);
  const YearNumbers& numbers = Year(year);
  if (number < numbers.month_start[0]) return numbers.month_start[0];
  if (number < numbers.month_start[kMonths]) return number;
  if (year == engine::kLastYear) return std::nullopt;
  return Year(year + 1).month_start[0];
}

// ---- The hits of one reminder ---------------------------------------------------------------------

ReminderHits One_Off_Hits(std::int64_t number) { return {number, number, number, 1}; }

ReminderHits Task_Reminder_Hits(const ScheduleRecord& record) {
  const std::int64_t first =
      Timer_Comparison_Date(record.Date_String[0], record.Time_String[0], kOutputStyleDate, record);
  if (record.Reminder_Interval == Value(organizer::kOnlyOneReminder)) return One_Off_Hits(first);
  const std::int64_t last =
      Timer_Comparison_Date(record.Date_String[1], record.Time_String[1], kOutputStyleDate, record);
  const bool forward = record.Reminder_Interval == Value(organizer::kSeriesFromFirstMoment);
  if (!forward && record.Reminder_Interval != Value(organizer::kSeriesToLastMoment)) return {};
  // A distance is a multiple of a negative period when it is one of its magnitude.
  return {forward ? first : last, first, last, Magnitude(Series_Interval(record))};
}

bool Is_Hit(const ReminderHits& hits, std::int64_t number) {
  if (number < hits.low || number > hits.high) return false;
  if (hits.step == 0) throw RuntimeFailure(kDivisionByZero);
  return detail::First_Hit(hits, number, number).has_value();
}

std::optional<std::int64_t> detail::First_Hit(const ReminderHits& hits, std::int64_t from, std::int64_t to) {
  const std::int64_t low = std::max(from, hits.low);
  const std::int64_t high = std::min(to, hits.high);
  if (low > high || hits.step == 0) return std::nullopt;
  const __int128 step = hits.step;
  __int128 behind = (static_cast<__int128>(low) - hits.anchor) % step;
  if (behind < 0) behind += step;
  const __int128 hit = behind == 0 ? low : low + (step - behind);
  if (hit > high) return std::nullopt;
  return static_cast<std::int64_t>(hit);
}

// ---- The due reminders over a range ---------------------------------------------------------------

namespace {

// The first failure the tick would meet: at the smallest number, and at the same number the
// one of the record it reads first.
struct FirstFailure {
  std::optional<std::int64_t> at;
  std::exception_ptr failure;

  void Meet(std::int64_t number, std::exception_ptr what) {
    if (at && *at <= number) return;
    at = number;
    failure = std::move(what);
  }
};

class RangeCollector {
 public:
  RangeCollector(std::int64_t from, std::int64_t to, ComparisonCalendar& calendar)
      : from_(from), to_(to), calendar_(calendar) {}

  void Add(const ReminderHits& hits, ReminderSource source, std::size_t index) {
    if (hits.step == 0) {
      Add_Division_By_Zero(hits);
      return;
    }
    Count(hits);
    For_Each_Hit(hits, from_, to_, [&](std::int64_t number) {
      if (calendar_.Minute_Of(number)) due_.push_back({number, source, index});
      return true;
    });
  }

  // A record the tick cannot read fails at the range's first minute.
  void Add_Failure(std::exception_ptr failure) { failures_.Meet(from_, std::move(failure)); }

  std::vector<DueReminder> Result() {
    if (failures_.at) std::rethrow_exception(failures_.failure);
    std::stable_sort(due_.begin(), due_.end(), [](const DueReminder& a, const DueReminder& b) {
      if (a.Minutes != b.Minutes) return a.Minutes < b.Minutes;
      if (a.Source != b.Source) return a.Source == ReminderSource::kTask;
      return a.Index < b.Index;
    });
    return std::move(due_);
  }

 private:
  // The hits are counted before they are listed: a list that no memory holds is refused at once
  // rather than after a long wait.
  void Count(const ReminderHits& hits) {
    const std::optional<std::int64_t> first = detail::First_Hit(hits, from_, to_);
    if (!first) return;
    counted_ += static_cast<std::uint64_t>(std::min(to_, hits.high) - *first) / hits.step + 1;
    if (counted_ > kMostDueReminders) {
      throw std::length_error("more than " + std::to_string(kMostDueReminders) +
                              " reminders fall due in the range; ask for a shorter one.");
    }
  }

  // A series of period 0 fails at the first minute of the range that lies within it.
  void Add_Division_By_Zero(const ReminderHits& hits) {
    const std::int64_t low = std::max(from_, hits.low);
    const std::int64_t high = std::min(to_, hits.high);
    if (low > high) return;
    const std::optional<std::int64_t> minute = calendar_.Next_Minute_Number(low);
    if (minute && *minute <= high) failures_.Meet(*minute, std::make_exception_ptr(RuntimeFailure(kDivisionByZero)));
  }

  std::int64_t from_;
  std::int64_t to_;
  ComparisonCalendar& calendar_;
  std::vector<DueReminder> due_;
  std::uint64_t counted_ = 0;
  FirstFailure failures_;
};

// The number of a switched-on non-task reminder's moment, as the non-task half compares it;
// nothing for a reminder that is off. `Current_Record` is the last task record read.
std::optional<std::int64_t> Note_Number(const NonTaskReminderRecord& note, const ScheduleRecord& Current_Record) {
  if (note.NT_Status != Value(1)) return std::nullopt;
  const TimeAndDate cut = Cut_Time_And_Date(note.NT_Time_String.text());
  return Timer_Comparison_Date(Value(cut.date), Value(cut.time), kOutputStyleDate, Current_Record);
}

}  // namespace

std::vector<DueReminder> Due_Reminders(const ReminderFiles& files, std::int64_t from, std::int64_t to,
                                       ComparisonCalendar& calendar) {
  RangeCollector collector(from, to, calendar);
  for (std::size_t i = 0; i < files.Tasks.size(); ++i) {
    try {
      collector.Add(Task_Reminder_Hits(files.Tasks[i]), ReminderSource::kTask, i);
    } catch (...) {
      collector.Add_Failure(std::current_exception());
    }
  }
  // The non-task half reads on in the record the task half read last.
  const ScheduleRecord last_task = files.Tasks.empty() ? ScheduleRecord{} : files.Tasks.back();
  for (std::size_t i = 0; i < files.Notes.size(); ++i) {
    try {
      if (const std::optional<std::int64_t> number = Note_Number(files.Notes[i], last_task)) {
        collector.Add(One_Off_Hits(*number), ReminderSource::kNote, i);
      }
    } catch (...) {
      collector.Add_Failure(std::current_exception());
    }
  }
  if (files.Notes_Failure) collector.Add_Failure(files.Notes_Failure);
  return collector.Result();
}

}  // namespace orrivane::reminders
