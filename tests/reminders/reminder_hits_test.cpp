// The reminders due over a range, worked out from their numbers, against the tick's own tests
// run minute after minute over the same range.
#include "reminders/reminder_hits.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "core/runtime_failure.h"
#include "core/temp_folder.h"
#include "engine/month_steps.h"
#include "engine/vocabulary.h"
#include "reminders/reminder_comparison.h"
#include "reminders/reminder_samples.h"
#include "reminders/reminder_tick.h"
#include "support/failure_of.h"

namespace orrivane::reminders {
namespace {

using organizer::ScheduleRecord;
using samples::Message_At;
using samples::Task_With_Reminder;
using testing::Failure_Of;
using testing::TempFolder;

// The minute after, by the Gregorian calendar, stepped here on its own.
CalendarMinute Next(CalendarMinute m) {
  if (++m.Minute < 60) return m;
  m.Minute = 0;
  if (++m.Hour < 24) return m;
  m.Hour = 0;
  const bool leap = engine::Is_Leap_Year(m.Year, engine::CalendarStyle::Gregorian);
  if (++m.Day <= engine::Days_In_Month(m.Month, leap)) return m;
  m.Day = 1;
  if (++m.Month <= 12) return m;
  m.Month = 1;
  ++m.Year;
  return m;
}

// The clock's reading of the minute: "3/5/2001" and "2:05:00 PM".
TickMoment Tick_At(const CalendarMinute& m) {
  const int hour12 = m.Hour % 12 == 0 ? 12 : m.Hour % 12;
  const std::string time = std::to_string(hour12) + ":" + (m.Minute < 10 ? "0" : "") + std::to_string(m.Minute) +
                           ":00 " + (m.Hour < 12 ? "AM" : "PM");
  const std::string date = std::to_string(m.Month) + "/" + std::to_string(m.Day) + "/" + std::to_string(m.Year);
  return Tick_Moment(date, time, {});
}

ScheduleRecord Series(int number, int kind, const std::string& first_date, const std::string& first_time,
                      const std::string& last_date, const std::string& last_time, int minutes) {
  ScheduleRecord r = Task_With_Reminder(number, "Series " + std::to_string(number), first_date, first_time);
  r.Date_String[1] = last_date;
  r.Time_String[1] = last_time;
  r.Reminder_Interval = kind;
  r.Interval_Days = std::to_string(minutes / 1440);
  r.Interval_Hours = std::to_string(minutes % 1440 / 60);
  r.Interval_Minutes = std::to_string(minutes % 60);
  return r;
}

// What the tick finds due, minute after minute from `from` to `to`: the task half's test of
// each record, and the non-task half over the file at `notes_path`, its window told back as the
// indices of its reminders.
std::vector<DueReminder> Tick_By_Tick(const ReminderFiles& files, const std::string& notes_path, CalendarMinute from,
                                      const CalendarMinute& to) {
  std::vector<DueReminder> due;
  const ScheduleRecord last_task = files.Tasks.empty() ? ScheduleRecord{} : files.Tasks.back();
  for (CalendarMinute m = from;; m = Next(m)) {
    const TickMoment moment = Tick_At(m);
    for (std::size_t i = 0; i < files.Tasks.size(); ++i) {
      if (Is_Task_Reminder_Due(files.Tasks[i], moment.Current_Minutes)) {
        due.push_back({moment.Current_Minutes, ReminderSource::kTask, i});
      }
    }
    ReminderMinute fresh;
    const std::optional<NonTaskReminderFilling> window =
        Non_Task_Reminder_Half(notes_path, moment, false, fresh, last_task);
    for (std::size_t i = 0; window && i < files.Notes.size(); ++i) {
      const std::string entry = files.Notes[i].NT_Record_Number.text() + " - " + files.Notes[i].NT_Title.text();
      const bool listed = std::find(window->Reminder_List.begin(), window->Reminder_List.end(), entry) !=
                          window->Reminder_List.end();
      if (listed || window->Caption == "Reminder: " + files.Notes[i].NT_Title.text()) {
        due.push_back({moment.Current_Minutes, ReminderSource::kNote, i});
      }
    }
    if (m == to) return due;
  }
}

// A task's start or finish: month, date, century, year, hour and minute.
using Field = Value ScheduleRecord::*;
using MomentFields = std::array<Field, 6>;
constexpr MomentFields kStart{&ScheduleRecord::Start_Month,   &ScheduleRecord::Start_Date,
                              &ScheduleRecord::Start_Century, &ScheduleRecord::Start_Year,
                              &ScheduleRecord::Start_Hour,    &ScheduleRecord::Start_Minute};
constexpr MomentFields kFinish{&ScheduleRecord::Finish_Month,   &ScheduleRecord::Finish_Date,
                               &ScheduleRecord::Finish_Century, &ScheduleRecord::Finish_Year,
                               &ScheduleRecord::Finish_Hour,    &ScheduleRecord::Finish_Minute};
void Set_Moment(ScheduleRecord& r, const MomentFields& fields, const std::array<Value, 6>& values) {
  for (std::size_t i = 0; i < fields.size(); ++i) r.*fields[i] = values[i];
}

struct DueCase {
  std::vector<ScheduleRecord> tasks;
  std::vector<NonTaskReminderRecord> notes;
  CalendarMinute from;
  CalendarMinute to;
};

class DueReminders : public ::testing::Test {
 protected:
  // Both ways over the case; answers the due reminders found.
  std::vector<DueReminder> Both_Ways(const DueCase& c) {
    samples::Write_Messages(notes(), c.notes);
    ReminderFiles files{c.tasks, c.notes, nullptr};
    const std::vector<DueReminder> expected = Tick_By_Tick(files, notes(), c.from, c.to);
    ComparisonCalendar calendar;
    const std::vector<DueReminder> found =
        Due_Reminders(files, calendar.Number_Of(c.from), calendar.Number_Of(c.to), calendar);
    EXPECT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < std::min(found.size(), expected.size()); ++i) {
      EXPECT_EQ(found[i].Minutes, expected[i].Minutes) << i;
      EXPECT_EQ(found[i].Source, expected[i].Source) << i;
      EXPECT_EQ(found[i].Index, expected[i].Index) << i;
    }
    return found;
  }
  std::string notes() const { return folder.file("NTRemin.dat"); }
  TempFolder folder;
};

TEST_F(DueReminders, AgreeWithTheTickAcrossMidnightAndTheEndOfAMonth) {
  DueCase c;
  c.tasks = {Task_With_Reminder(1, "Late", "February 28, 2001", "23:59"),
             Task_With_Reminder(2, "Early", "March 1, 2001", "00:00"),
             Series(3, 2, "February 28, 2001", "22:10", "March 1, 2001", "01:30", 7),
             Series(4, 3, "February 28, 2001", "21:00", "March 1, 2001", "00:53", 45),
             Series(5, 2, "February 27, 2001", "08:00", "March 3, 2001", "08:00", 60),
             Series(6, 2, "February 28, 2001", "23:00", "February 28, 2001", "23:58", 29),  // its last is no hit
             Series(7, 3, "March 1, 2001", "00:01", "March 1, 2001", "00:01", 5)};
  ScheduleRecord tied = Task_With_Reminder(8, "Tied", "Before The Start Time of Task", "By 0 Days, 1 Hrs, 15 Min");
  Set_Moment(tied, kStart, {"March", "01", 20, 1, "01", "10"});
  c.tasks.push_back(tied);  // 23:55 the day before
  c.notes = {Message_At(4, "Backup", "", "00:00, March 1, 2001"), Message_At(5, "Off", "", "00:00, March 1, 2001", 0),
             Message_At(9, "Midnight", "", "23:59, February 28, 2001")};
  c.from = {2001, 2, 28, 22, 0};
  c.to = {2001, 3, 1, 2, 0};
  EXPECT_GT(Both_Ways(c).size(), 20u);
}

TEST_F(DueReminders, AgreeWithTheTickAcrossTheJumpOfTheYear2200) {
  DueCase c;
  c.tasks = {Series(1, 2, "December 31, 2199", "22:03", "January 1, 2200", "01:30", 7),
             Series(2, 3, "December 31, 2199", "23:00", "January 1, 2200", "00:30", 11),
             Task_With_Reminder(3, "Turn", "January 1, 2200", "00:00"),
             Series(4, 2, "December 31, 2200", "23:00", "January 1, 2201", "01:00", 13)};
  c.notes = {Message_At(1, "Last", "", "23:59, December 31, 2199")};
  c.from = {2199, 12, 31, 22, 0};
  c.to = {2200, 1, 1, 2, 0};
  EXPECT_GT(Both_Ways(c).size(), 20u);
  c.from = {2200, 12, 31, 22, 0};
  c.to = {2201, 1, 1, 2, 0};
  EXPECT_GT(Both_Ways(c).size(), 5u);
}

TEST_F(DueReminders, LeaveOutANumberOfNoMinuteAndAnOneMinuteRange) {
  // January 1, 2200, 0:00 less one minute is a number that no minute has.
  DueCase c;
  const std::int64_t gap = 157785120;
  ComparisonCalendar calendar;
  EXPECT_FALSE(calendar.Minute_Of(gap));
  EXPECT_EQ(calendar.Minute_Of(157788000), (CalendarMinute{2200, 1, 1, 0, 0}));
  EXPECT_EQ(calendar.Minute_Of(157785119), (CalendarMinute{2199, 12, 31, 23, 59}));
  c.tasks = {Series(1, 2, "December 31, 2199", "23:59", "January 1, 2200", "00:00", 1)};
  c.from = c.to = {2200, 1, 1, 0, 0};
  EXPECT_EQ(Both_Ways(c).size(), 1u);
}

TEST_F(DueReminders, APeriodOfZeroFailsAtTheFirstMinuteWithinItsRangeOnly) {
  ReminderFiles files;
  files.Tasks = {Task_With_Reminder(1, "Fine", "March 5, 2001", "10:00"),
                 Series(2, 2, "March 5, 2001", "10:30", "March 5, 2001", "11:00", 0)};
  ComparisonCalendar calendar;
  const auto number = [&](int hour, int minute) { return calendar.Number_Of({2001, 3, 5, hour, minute}); };
  EXPECT_EQ(Due_Reminders(files, number(9, 0), number(10, 29), calendar).size(), 1u);
  EXPECT_EQ(Failure_Of([&] { Due_Reminders(files, number(9, 0), number(10, 30), calendar); }), kDivisionByZero);
  EXPECT_EQ(Failure_Of([&] { Is_Task_Reminder_Due(files.Tasks[1], number(10, 30)); }), kDivisionByZero);
  // Within the jump of 2200 the tick never looks, so it never divides: a series from the minute
  // after the last of 2199 to the minute before the first of 2200, as the count has them.
  ScheduleRecord gap = Series(3, 2, "After The Finish Time Of Task", "By 0 Days, 0 Hrs, 1 Min",
                              "Before The Start Time of Task", "By 0 Days, 0 Hrs, 1 Min", 0);
  Set_Moment(gap, kFinish, {"December", "31", 21, 99, "23", "59"});
  Set_Moment(gap, kStart, {"January", "01", 22, 0, "00", "00"});
  files.Tasks = {gap};
  const std::int64_t before = calendar.Number_Of({2199, 12, 31, 23, 59});
  const std::int64_t after = calendar.Number_Of({2200, 1, 1, 0, 0});
  EXPECT_EQ(Failure_Of([&] { Is_Task_Reminder_Due(gap, before); }), 0);
  EXPECT_EQ(Failure_Of([&] { Is_Task_Reminder_Due(gap, after); }), 0);
  EXPECT_EQ(Failure_Of([&] { Is_Task_Reminder_Due(gap, before + 1); }), kDivisionByZero);
  EXPECT_EQ(Failure_Of([&] { Due_Reminders(files, before, after, calendar); }), 0);
}

TEST_F(DueReminders, AnUnreadableRecordFailsAsTheTickWould) {
  ReminderFiles files;
  files.Tasks = {Task_With_Reminder(1, "Broken", "March 5, 2001", "1000")};
  ComparisonCalendar calendar;
  const std::int64_t at = calendar.Number_Of({2001, 3, 5, 10, 0});
  const int expected = Failure_Of([&] { Is_Task_Reminder_Due(files.Tasks[0], at); });
  EXPECT_NE(expected, 0);
  EXPECT_EQ(Failure_Of([&] { Due_Reminders(files, at, at, calendar); }), expected);
}

TEST(ComparisonCalendar, NumbersAreTheTicksAndMinutesComeBack) {
  ComparisonCalendar calendar;
  for (const std::int64_t year : {1LL, 1582LL, 1800LL, 1801LL, 1899LL, 1900LL, 2000LL, 2100LL, 2199LL, 2200LL, 2201LL,
                                  9999LL, 1000000LL}) {
    for (const CalendarMinute m : {CalendarMinute{year, 1, 1, 0, 0}, CalendarMinute{year, 2, 28, 23, 59},
                                   CalendarMinute{year, 7, 15, 12, 30}, CalendarMinute{year, 12, 31, 23, 59}}) {
      const std::int64_t number = calendar.Number_Of(m);
      EXPECT_EQ(number, Tick_At(m).Current_Minutes) << year;
      EXPECT_EQ(calendar.Minute_Of(number), m) << year;
    }
  }
  // After a century year that the count takes for a leap year, a day of numbers belongs to no minute.
  const std::int64_t new_year_1801 = calendar.Number_Of({1801, 1, 1, 0, 0});
  EXPECT_EQ(new_year_1801 - calendar.Number_Of({1800, 12, 31, 23, 59}), 1 + 24 * 60);
  EXPECT_FALSE(calendar.Minute_Of(new_year_1801 - 1));
  EXPECT_EQ(calendar.Next_Minute_Number(new_year_1801 - 100), new_year_1801);
  EXPECT_EQ(calendar.Next_Minute_Number(new_year_1801), new_year_1801);
  EXPECT_EQ(calendar.Next_Minute_Number(calendar.Number_Of({1000000, 12, 31, 23, 59}) + 1), std::nullopt);
}

TEST(ReminderHits, ASeriesIsAProgressionCutToItsMoments) {
  const ScheduleRecord forward = Series(1, 2, "March 5, 2001", "10:00", "March 5, 2001", "11:00", 25);
  const ReminderHits hits = Task_Reminder_Hits(forward);
  std::vector<std::int64_t> numbers;
  For_Each_Hit(hits, 0, 1'000'000'000, [&](std::int64_t n) {
    numbers.push_back(n);
    return true;
  });
  const std::int64_t ten = Timer_Comparison_Date("March 5, 2001", "10:00", kOutputStyleDate, {});
  EXPECT_EQ(numbers, (std::vector<std::int64_t>{ten, ten + 25, ten + 50}));
  const ReminderHits backward = Task_Reminder_Hits(Series(1, 3, "March 5, 2001", "10:00", "March 5, 2001", "11:00", 25));
  numbers.clear();
  For_Each_Hit(backward, ten + 11, ten + 60, [&](std::int64_t n) {
    numbers.push_back(n);
    return true;
  });
  EXPECT_EQ(numbers, (std::vector<std::int64_t>{ten + 35, ten + 60}));
}

}  // namespace
}  // namespace orrivane::reminders
