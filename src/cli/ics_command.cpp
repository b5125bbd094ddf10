// ics: the log as an iCalendar stream (RFC 5545), written by libical. Each task is an event in
// floating local time; a task's reminder becomes alarms that fire at the minutes the reminder
// timer would fire it, found by the reminders core. iCalendar holds the years 1 to 9999 only:
// what lies beyond is left out, with a warning on standard error.
#include <libical/ical.h>

#include <algorithm>
#include <climits>
#include <cstdio>
#include <ctime>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "engine/month_steps.h"
#include "organizer/log_file.h"
#include "organizer/task_list.h"
#include "reminders/non_task_reminders.h"
#include "reminders/reminder_comparison.h"
#include "reminders/reminder_hits.h"

namespace orrivane::cli {

namespace {

using organizer::ScheduleRecord;
using reminders::CalendarMinute;
using reminders::ComparisonCalendar;
using reminders::ReminderHits;

constexpr std::int64_t kFirstIcalYear = 1;
constexpr std::int64_t kLastIcalYear = 9999;
// A reminder whose hits cannot be told as one repeating alarm gets one alarm a hit, this many
// at most.
constexpr std::size_t kMostAlarms = 1000;
// Beyond this many hits, a repeating alarm's spacing in real time is checked at this many
// instants spread over its span rather than at every hit.
constexpr std::int64_t kMostCheckedHits = 100000;
constexpr std::int64_t kSecondsPerMinute = 60;
constexpr char kProductId[] = "-//Orrivane//orrivane-cal " ORRIVANE_VERSION "//EN";

struct Free_Component {
  void operator()(icalcomponent* component) const { icalcomponent_free(component); }
};
using Component = std::unique_ptr<icalcomponent, Free_Component>;

void Warn(const std::string& text) {
  const std::string line = "warning: " + text + "\n";
  std::fwrite(line.data(), 1, line.size(), stderr);
}

bool Fits_Ical(std::int64_t year) { return year >= kFirstIcalYear && year <= kLastIcalYear; }

// A time property from its content line. libical keeps the years up to 9999 that a content
// line gives it, where a time it is handed field by field must lie before 3001.
icalproperty* Time_Property(const std::string& name, std::int64_t year, int month, int day, int hour, int minute,
                            bool utc) {
  char value[32];
  std::snprintf(value, sizeof value, "%04lld%02d%02dT%02d%02d00%s", static_cast<long long>(year), month, day, hour,
                minute, utc ? "Z" : "");
  icalproperty* property = icalproperty_new_from_string((name + ":" + value).c_str());
  if (property == nullptr) throw std::runtime_error("libical refused the time " + name + ":" + value + ".");
  return property;
}

// A time without a zone: the local time of wherever the calendar is read.
icalproperty* Floating_Property(const std::string& name, const organizer::TaskMoment& m) {
  return Time_Property(name, m.Year, static_cast<int>(m.Month), static_cast<int>(m.Date), static_cast<int>(m.Hour),
                       static_cast<int>(m.Minute), false);
}

std::tm Broken_Down(const CalendarMinute& m) {
  std::tm tm{};
  tm.tm_year = static_cast<int>(m.Year - 1900);
  tm.tm_mon = m.Month - 1;
  tm.tm_mday = m.Day;
  tm.tm_hour = m.Hour;
  tm.tm_min = m.Minute;
  tm.tm_isdst = -1;
  return tm;
}

// The instant at which the local clock shows the minute: the timer reads the local clock.
std::time_t Local_Instant(const CalendarMinute& m) {
  std::tm tm = Broken_Down(m);
  return std::mktime(&tm);
}

// The minute read as if it were universal time: the distance of two such is their calendar
// distance.
std::time_t Calendar_Seconds(const CalendarMinute& m) {
  std::tm tm = Broken_Down(m);
  return timegm(&tm);
}

// An alarm that shows `description` at the instant.
icalcomponent* Alarm_At(std::time_t instant, const std::string& description) {
  icalcomponent* alarm = icalcomponent_new_valarm();
  icalcomponent_add_property(alarm, icalproperty_new_action(ICAL_ACTION_DISPLAY));
  icalcomponent_add_property(alarm, icalproperty_new_description(description.c_str()));
  std::tm utc{};
  gmtime_r(&instant, &utc);
  icalcomponent_add_property(alarm, Time_Property("TRIGGER;VALUE=DATE-TIME", utc.tm_year + 1900LL, utc.tm_mon + 1,
                                                  utc.tm_mday, utc.tm_hour, utc.tm_min, true));
  return alarm;
}

// FNV-1a: a digest of the texts that make a UID stable from one export to the next.
std::string Digest(const std::string& text) {
  std::uint64_t hash = 14695981039346656037ull;
  for (const unsigned char c : text) hash = (hash ^ c) * 1099511628211ull;
  char hex[17];
  std::snprintf(hex, sizeof hex, "%016llx", static_cast<unsigned long long>(hash));
  return hex;
}

// The alarms of a reminder's hits within the years iCalendar holds.
class Alarm_Maker {
 public:
  explicit Alarm_Maker(ComparisonCalendar& calendar)
      : calendar_(calendar),
        lowest_(calendar.Number_Of({kFirstIcalYear, 1, 1, 0, 0})),
        highest_(calendar.Number_Of({kLastIcalYear, 12, 31, 23, 59})),
        last_minute_(calendar.Number_Of({engine::kLastYear, 12, 31, 23, 59})) {}

  void Add(icalcomponent* event, const ReminderHits& hits, const std::string& description, const std::string& what) {
    if (hits.step == 0) {
      Warn(what + ": a series with a period of 0 has no alarms.");
      return;
    }
    // The clock shows no year before 1: only the years after 9999 are lost.
    if (reminders::detail::First_Hit(hits, highest_ + 1, last_minute_)) {
      Warn(what + ": its reminders after the year 9999 are left out.");
    }
    const std::optional<std::int64_t> first = reminders::detail::First_Hit(hits, lowest_, highest_);
    if (!first) return;
    const std::int64_t step = static_cast<std::int64_t>(hits.step);
    const std::int64_t top = std::min(highest_, hits.high);
    const std::int64_t count = (top - *first) / step + 1;
    if (Add_Repeating(event, *first, step, count, description)) return;
    std::size_t made = 0;
    bool dropped = false;
    reminders::For_Each_Hit(hits, lowest_, highest_, [&](std::int64_t number) {
      const std::optional<CalendarMinute> minute = calendar_.Minute_Of(number);
      if (!minute) return true;  // a number no minute has
      dropped = made == kMostAlarms;
      if (dropped) return false;
      icalcomponent_add_component(event, Alarm_At(Local_Instant(*minute), description));
      ++made;
      return true;
    });
    if (dropped) Warn(what + ": only the first " + std::to_string(kMostAlarms) + " reminders are kept.");
  }

 private:
  // One alarm with REPEAT and DURATION, when the hits lie evenly in real time: no gap of the
  // comparison numbers between the first and the last, and the same offset of the local clock
  // at each.
  bool Add_Repeating(icalcomponent* event, std::int64_t first, std::int64_t step, std::int64_t count,
                     const std::string& description) {
    const std::int64_t last = first + (count - 1) * step;
    const std::optional<CalendarMinute> first_minute = calendar_.Minute_Of(first);
    const std::optional<CalendarMinute> last_minute = calendar_.Minute_Of(last);
    if (!first_minute || !last_minute) return false;
    if (Calendar_Seconds(*last_minute) - Calendar_Seconds(*first_minute) != (last - first) * kSecondsPerMinute) {
      return false;
    }
    if (count == 1) {
      icalcomponent_add_component(event, Alarm_At(Local_Instant(*first_minute), description));
      return true;
    }
    if (count - 1 > INT_MAX || step * kSecondsPerMinute > INT_MAX) return false;
    const std::time_t start = Local_Instant(*first_minute);
    const std::int64_t checks = std::min(count, kMostCheckedHits);
    for (std::int64_t i = 0; i < checks; ++i) {
      const std::int64_t k = checks == count ? i : i * (count - 1) / (checks - 1);
      const std::optional<CalendarMinute> minute = calendar_.Minute_Of(first + k * step);
      if (!minute || Local_Instant(*minute) - start != k * step * kSecondsPerMinute) return false;
    }
    icalcomponent* alarm = Alarm_At(start, description);
    icalcomponent_add_property(alarm, icalproperty_new_repeat(static_cast<int>(count - 1)));
    icalcomponent_add_property(
        alarm, icalproperty_new_duration(icaldurationtype_from_int(static_cast<int>(step * kSecondsPerMinute))));
    icalcomponent_add_component(event, alarm);
    return true;
  }

  ComparisonCalendar& calendar_;
  std::int64_t lowest_;
  std::int64_t highest_;
  std::int64_t last_minute_;
};

icalcomponent* New_Event(const std::string& uid, const std::string& summary, icalproperty* start) {
  icalcomponent* event = icalcomponent_new_vevent();
  icalcomponent_add_property(event, icalproperty_new_uid(uid.c_str()));
  icalcomponent_add_property(
      event, icalproperty_new_dtstamp(icaltime_from_timet_with_zone(std::time(nullptr), 0,
                                                                    icaltimezone_get_utc_timezone())));
  icalcomponent_add_property(event, icalproperty_new_summary(summary.c_str()));
  icalcomponent_add_property(event, start);
  return event;
}

// "task 1 (Dentist)", as a warning names a task.
std::string Task_Label(const ScheduleRecord& task) {
  return "task " + task.Record_Number.text() + " (" + task.Task_Name.text() + ")";
}

// The description and the comments, each where it is not empty, a blank line between.
std::string Description_Of(const ScheduleRecord& task) {
  std::string description = task.Task_Description.text();
  const std::string comments = task.Task_Comments.text();
  if (!description.empty() && !comments.empty()) description += "\n\n";
  return description + comments;
}

void Add_Task(icalcomponent* calendar, const ScheduleRecord& task, Alarm_Maker& alarms) {
  const organizer::TaskMoment start = organizer::Start_Moment(task);
  const organizer::TaskMoment finish = organizer::Finish_Moment(task);
  if (!Fits_Ical(start.Year) || !Fits_Ical(finish.Year)) {
    Warn(Task_Label(task) + ": the year " + std::to_string(Fits_Ical(start.Year) ? finish.Year : start.Year) +
         " lies outside the years 1 to 9999 of iCalendar; the task is left out.");
    return;
  }
  const std::string member = task.Person_Name.text();
  const std::string name = task.Task_Name.text();
  icalcomponent* event =
      New_Event("task-" + task.Record_Number.text() + "-" + Digest(member + "\n" + name) + "@orrivane-cal", name,
                Floating_Property("DTSTART", start));
  icalcomponent_add_component(calendar, event);
  // A task of one moment has no end of its own.
  if (finish > start) icalcomponent_add_property(event, Floating_Property("DTEND", finish));
  const std::string description = Description_Of(task);
  if (!description.empty()) icalcomponent_add_property(event, icalproperty_new_description(description.c_str()));
  icalcomponent_add_property(event, icalproperty_new_categories(member.c_str()));
  if (task.Reminder_Status == Value(1)) alarms.Add(event, reminders::Task_Reminder_Hits(task), name, Task_Label(task));
}

void Add_Note(icalcomponent* calendar, const reminders::NonTaskReminderRecord& note, ComparisonCalendar& days,
              Alarm_Maker& alarms) {
  if (note.NT_Status != Value(1)) return;
  const std::string label = "reminder " + note.NT_Record_Number.text() + " (" + note.NT_Title.text() + ")";
  const reminders::TimeAndDate cut = reminders::Cut_Time_And_Date(note.NT_Time_String.text());
  const std::int64_t number = reminders::Timer_Comparison_Date(Value(cut.date), Value(cut.time),
                                                               reminders::kOutputStyleDate, ScheduleRecord{});
  const std::optional<CalendarMinute> minute = days.Minute_Of(number);
  if (!minute || !Fits_Ical(minute->Year)) {
    Warn(label + ": its moment lies outside the years 1 to 9999 of iCalendar; it is left out.");
    return;
  }
  const std::string title = note.NT_Title.text();
  icalcomponent* event = New_Event(
      "note-" + note.NT_Record_Number.text() + "-" + Digest(title + "\n" + note.NT_Time_String.text()) +
          "@orrivane-cal",
      title, Time_Property("DTSTART", minute->Year, minute->Month, minute->Day, minute->Hour, minute->Minute, false));
  icalcomponent_add_component(calendar, event);
  const std::string message = note.NT_Message.text();
  if (!message.empty()) icalcomponent_add_property(event, icalproperty_new_description(message.c_str()));
  alarms.Add(event, reminders::One_Off_Hits(number), title, label);
}

}  // namespace

void Run_Ics(const Arguments& arguments, Command_Context& context) {
  Component calendar(icalcomponent_new_vcalendar());
  icalcomponent_add_property(calendar.get(), icalproperty_new_version("2.0"));
  icalcomponent_add_property(calendar.get(), icalproperty_new_prodid(kProductId));
  ComparisonCalendar days;
  Alarm_Maker alarms(days);
  // A missing reminder file fails before the log is read.
  const std::optional<std::string_view> notes = arguments.Value_Of("--notes");
  std::optional<reminders::NonTaskReminderReader> notes_file;
  if (notes) notes_file.emplace(std::string(*notes));
  organizer::For_Each_Record(std::string(arguments.operands[0]), [&](const ScheduleRecord& record) {
    // Marker records stand for members, not for events.
    if (record.Record_Number.number() > -1) Add_Task(calendar.get(), record, alarms);
  });
  reminders::NonTaskReminderRecord note;
  while (notes_file && notes_file->Next(note)) Add_Note(calendar.get(), note, days, alarms);
  char* text = icalcomponent_as_ical_string_r(calendar.get());
  context.out.Text(text);
  icalmemory_free_buffer(text);
}

}  // namespace orrivane::cli
