#include "reminders/reminder_comparison.h"

#include <vector>

#include "core/runtime_failure.h"
#include "core/text.h"
#include "core/whole_numbers.h"
#include "engine/calendar_engine.h"
#include "organizer/date_time_text.h"

namespace orrivane::reminders {

namespace {

constexpr std::int64_t kMinutesPerHour = 60;
constexpr std::int64_t kMinutesPerDay = 24 * kMinutesPerHour;
constexpr std::int64_t kBaseYear = 1900;
// Beyond this many days ahead or behind, the sentence counts years.
constexpr std::int64_t kLongestDayCount = 3000;

// A moment taken apart: year, month number, day, 24-hour hour and minute.
struct MomentFields {
  std::int64_t year = 0;
  std::int64_t month = 0;
  std::int64_t day = 0;
  std::int64_t hour = 0;
  std::int64_t minute = 0;
};

// Whole-number arithmetic that ends in the failure 6 (Overflow) where 64 bits don't hold it, as
// the program's arithmetic ends, never in undefined behaviour.
std::int64_t Times(std::int64_t a, std::int64_t b) {
  std::int64_t product;
  if (__builtin_mul_overflow(a, b, &product)) throw RuntimeFailure(kOverflow);
  return product;
}
std::int64_t Plus(std::int64_t a, std::int64_t b) {
  std::int64_t sum;
  if (__builtin_add_overflow(a, b, &sum)) throw RuntimeFailure(kOverflow);
  return sum;
}
std::int64_t Minus(std::int64_t a, std::int64_t b) {
  std::int64_t difference;
  if (__builtin_sub_overflow(a, b, &difference)) throw RuntimeFailure(kOverflow);
  return difference;
}

// A full English name, as the reminders write a month, is looked up at once; every other form
// goes through Define_Month, which answers the same number for that name.
std::int64_t Month_Number(const Value& month) {
  if (month.is_text()) {
    if (const int number = engine::Full_Month_Number(month.text())) return number;
  }
  return engine::Define_Month(month, "Get Month Number").whole();
}

// ---- Moments tied to the task ---------------------------------------------------------------

enum class TaskPoint { kNone, kStart, kFinish };

TaskPoint Tied_Point(std::string_view date) {
  if (date.find("Start") != std::string_view::npos) return TaskPoint::kStart;
  if (date.find("Finish") != std::string_view::npos) return TaskPoint::kFinish;
  return TaskPoint::kNone;
}

MomentFields Start_Fields(const organizer::ScheduleRecord& r) {
  return {Plus(Times(r.Start_Century.whole(), 100), r.Start_Year.whole()), Month_Number(r.Start_Month),
          r.Start_Date.whole(), r.Start_Hour.whole(), r.Start_Minute.whole()};
}

MomentFields Finish_Fields(const organizer::ScheduleRecord& r) {
  return {Plus(Times(r.Finish_Century.whole(), 100), r.Finish_Year.whole()), Month_Number(r.Finish_Month),
          r.Finish_Date.whole(), r.Finish_Hour.whole(), r.Finish_Minute.whole()};
}

// The sign words, tested in this order; the last that stands in the date wins.
struct SignWord {
  std::string_view word;
  int sign;
};
constexpr SignWord kSignWords[] = {{"At", 0}, {"Before", -1}, {"After", 1}};

int Sign_Of(std::string_view date) {
  int sign = 0;
  for (const SignWord& s : kSignWords) {
    if (date.find(s.word) != std::string_view::npos) sign = s.sign;
  }
  return sign;
}

// The words of a text split at each blank; two blanks side by side enclose an empty word.
std::vector<std::string> Split_At_Blanks(const std::string& s) {
  std::vector<std::string> words(1);
  for (const char c : s) {
    if (c == ' ') {
      words.emplace_back();
    } else {
      words.back() += c;
    }
  }
  return words;
}

const std::string& Word(const std::vector<std::string>& words, std::size_t index) {
  if (index >= words.size()) throw RuntimeFailure(kSubscriptOutOfRange);
  return words[index];
}

// "By 2 Days, 3 Hrs, 30 Min": three characters dropped, the first, third and fifth words.
std::int64_t Distance_Minutes(const Value& time) {
  const std::vector<std::string> words = Split_At_Blanks(text::Mid(time.text(), 4));
  const std::int64_t days = Value(Word(words, 0)).whole();
  const std::int64_t hours = Value(Word(words, 2)).whole();
  const std::int64_t minutes = Value(Word(words, 4)).whole();
  return Plus(Plus(Times(days, kMinutesPerDay), Times(hours, kMinutesPerHour)), minutes);
}

// ---- Fixed moments ------------------------------------------------------------------------------

MomentFields System_Date_Fields(const Value& date, const Value& time) {
  using organizer::Parse_Date;
  using organizer::Parse_System_Time;
  const Value hour =
      organizer::Convert_Hour_To_Military_Time(Parse_System_Time(time, "Hour"), Parse_System_Time(time, "Time Of Day"));
  return {Parse_Date(date, "Year").whole(), Parse_Date(date, "Month").whole(), Parse_Date(date, "Date").whole(),
          hour.whole(), Parse_System_Time(time, "Minute").whole()};
}

MomentFields Output_Style_Fields(const Value& date, const Value& time) {
  using organizer::Parse_Output_Style_Date;
  const std::string clock = time.text();
  const long long colon = text::InStr(clock, ":");
  return {Parse_Output_Style_Date(date, "Year").whole(), Month_Number(Parse_Output_Style_Date(date, "Month")),
          Parse_Output_Style_Date(date, "Date").whole(), Value(text::Left(clock, colon - 1)).whole(),
          Value(text::Mid(clock, colon + 1)).whole()};
}

MomentFields Fixed_Fields(const Value& date, const Value& time, std::string_view style) {
  if (style == kSystemDate) return System_Date_Fields(date, time);
  if (style == kOutputStyleDate) return Output_Style_Fields(date, time);
  return {};
}

// ---- The count ----------------------------------------------------------------------------------

// The days taken out again of the leap days counted from 1900 on: 1900 itself, and 2100.
std::int64_t Leap_Correction(std::int64_t year) {
  if (year >= 1901 && year <= 2100) return 1;
  if (year >= 2101 && year <= 2199) return 2;
  return 0;
}

// The days of the months before `month` in `year`; months beyond 13 (which is January) have no
// length, as the month table knows none for them.
std::int64_t Days_Before_Month(std::int64_t year, std::int64_t month) {
  const bool leap = engine::Is_Leap_Year(year, engine::CalendarStyle::Gregorian);
  std::int64_t days = 0;
  for (int m = 1; m < month && m <= 13; ++m) days += engine::Days_In_Month(m, leap);
  return days;
}

std::int64_t Minutes_Since_1900(const MomentFields& f) {
  const std::int64_t years = Minus(f.year, kBaseYear);
  const std::int64_t year_days = Times(years, 365);
  const std::int64_t leap_days = Floor_Div(Minus(years, 1), 4) + 1;
  const std::int64_t days = Plus(Plus(Minus(Plus(year_days, leap_days), Leap_Correction(f.year)),
                                      Days_Before_Month(f.year, f.month)),
                                 Minus(f.day, 1));
  return Plus(Plus(Times(days, kMinutesPerDay), Times(f.hour, kMinutesPerHour)), f.minute);
}

}  // namespace

std::int64_t Timer_Comparison_Date(const Value& Date_String, const Value& Time_String, std::string_view Date_Style,
                                   const organizer::ScheduleRecord& Current_Record) {
  const std::string date = Date_String.text();
  const TaskPoint point = Tied_Point(date);
  if (point == TaskPoint::kNone) return Minutes_Since_1900(Fixed_Fields(Date_String, Time_String, Date_Style));

  const MomentFields fields = point == TaskPoint::kStart ? Start_Fields(Current_Record) : Finish_Fields(Current_Record);
  const int sign = Sign_Of(date);
  const std::int64_t offset = sign == 0 ? 0 : Times(sign, Distance_Minutes(Time_String));
  // Whatever the count would give: a moment so far off never fires.
  if (fields.year > kLastCountedYear) return kMomentBeyondReach;
  return Plus(Minutes_Since_1900(fields), offset);
}

namespace {

std::string Counted(std::int64_t n, const char* unit) {
  return std::to_string(n) + " " + unit + (n == 1 ? "" : "s");
}

// "2 days, 3 hours and, 4 minutes", "1 day and, 5 hours", "1 hour and, 1 minute".
std::string Amount(std::int64_t days, std::int64_t hours, std::int64_t minutes) {
  std::string amount;
  bool written = false;
  if (days > 0) {
    amount += Counted(days, "day");
    written = true;
  }
  if (hours > 0) {
    if (written) amount += std::string(minutes == 0 ? " and" : "") + ", ";
    amount += Counted(hours, "hour");
    written = true;
  }
  if (minutes > 0) {
    if (written) amount += " and, ";
    amount += Counted(minutes, "minute");
  }
  return amount;
}

std::string Years_Sentence(int direction, std::int64_t years) {
  if (direction == 1) return "It will be " + std::to_string(years) + " years until this event is scheduled to occur.";
  if (direction == -1) return "It has been " + std::to_string(years) + " years since this event was expected to occur.";
  return {};
}

}  // namespace

std::string Create_Time_Remaining_String(const Value& From_Century, const Value& From_Two_Digit_Year,
                                         const Value& From_Month, const Value& From_Date, const Value& From_Hour,
                                         const Value& From_Minute, const Value& System_Date_String,
                                         const Value& System_Time_String,
                                         const organizer::ScheduleRecord& Current_Record) {
  const std::int64_t current_year = organizer::Parse_Date(System_Date_String, "Year").whole();
  const std::int64_t now = Timer_Comparison_Date(System_Date_String, System_Time_String, kSystemDate, Current_Record);
  const std::int64_t task_year = Plus(Times(From_Century.whole(), 100), From_Two_Digit_Year.whole());

  int direction = 0;
  std::int64_t days = 0, hours = 0, minutes = 0;
  if (task_year <= kLastCountedYear) {
    const Value task_date(From_Month.text() + " " + From_Date.text() + ", " + std::to_string(task_year));
    const Value task_time(From_Hour.text() + ":" + From_Minute.text());
    const std::int64_t difference =
        Minus(Timer_Comparison_Date(task_date, task_time, kOutputStyleDate, Current_Record), now);
    direction = difference > 0 ? 1 : (difference < 0 ? -1 : 0);
    const std::int64_t distance = direction * difference;
    days = distance / kMinutesPerDay;
    hours = (distance - kMinutesPerDay * days) / kMinutesPerHour;
    minutes = distance - kMinutesPerDay * days - kMinutesPerHour * hours;
  }
  if (task_year > kLastCountedYear || days > kLongestDayCount) {
    return Years_Sentence(direction, direction * Minus(task_year, current_year));
  }
  switch (direction) {
    case -1: return "It has been " + Amount(days, hours, minutes) + " since the scheduled begin time of this task.";
    case 1: return "It will be " + Amount(days, hours, minutes) + " until this task is scheduled to begin.";
    default: return "This task is scheduled to begin now.";
  }
}

}  // namespace orrivane::reminders
