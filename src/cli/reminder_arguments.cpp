#include "cli/reminder_arguments.h"

#include <optional>
#include <string_view>

#include "cli/command_error.h"
#include "engine/month_steps.h"
#include "engine/vocabulary.h"

namespace orrivane::cli {

namespace {

constexpr int kMonths = 12;
constexpr int kThreeLetters = 3;
constexpr std::int64_t kFirstYear = 1;

// Reads a text from the front of `rest`, which keeps what follows.
class Cursor {
 public:
  explicit Cursor(std::string_view text) : rest_(text) {}

  bool Literal(std::string_view expected) {
    if (!rest_.starts_with(expected)) return false;
    rest_.remove_prefix(expected.size());
    return true;
  }
  // Digits without a leading zero (a lone "0" included), up to `largest`.
  std::optional<std::int64_t> Plain_Number(std::int64_t largest) {
    const std::size_t length = Digit_Count();
    if (length == 0 || (length > 1 && rest_.front() == '0')) return std::nullopt;
    return Take_Number(length, largest);
  }
  // Exactly `width` digits, up to `largest`.
  std::optional<std::int64_t> Fixed_Number(std::size_t width, std::int64_t largest) {
    if (Digit_Count() != width) return std::nullopt;
    return Take_Number(width, largest);
  }
  // The month whose name (or its first three letters) stands here.
  std::optional<int> Month_Name(bool three_letters) {
    for (int month = 1; month <= kMonths; ++month) {
      std::string name = engine::Full_Month_Name(month);
      if (three_letters) name.resize(kThreeLetters);
      if (Literal(name)) return month;
    }
    return std::nullopt;
  }
  bool At_End() const { return rest_.empty(); }

 private:
  std::size_t Digit_Count() const {
    std::size_t n = 0;
    while (n < rest_.size() && rest_[n] >= '0' && rest_[n] <= '9') ++n;
    return n;
  }
  std::optional<std::int64_t> Take_Number(std::size_t length, std::int64_t largest) {
    std::int64_t value = 0;
    for (std::size_t i = 0; i < length; ++i) {
      value = value * 10 + (rest_[i] - '0');
      if (value > largest) return std::nullopt;
    }
    rest_.remove_prefix(length);
    return value;
  }
  std::string_view rest_;
};

[[noreturn]] void Not_In_Form(const std::string& text, std::string_view form) {
  throw Command_Error("Invalid Argument", Quoted(text) + " is not in the form " + std::string(form) + ".");
}

// The day, once each part was read; a day the month does not have in the Gregorian calendar
// is no date.
Checked_Day Real_Day(const std::string& text, std::optional<int> month, std::optional<std::int64_t> day,
                     std::optional<std::int64_t> year) {
  if (!month || !day || !year || *year < kFirstYear) return {};
  const bool leap = engine::Is_Leap_Year(*year, engine::CalendarStyle::Gregorian);
  if (*day < 1 || *day > engine::Days_In_Month(*month, leap)) {
    throw Command_Error("Invalid Date", Quoted(text) + " is no day of the Gregorian calendar.");
  }
  return {*month, static_cast<int>(*day), *year};
}

constexpr std::int64_t kLargestDay = 31;
constexpr std::int64_t kLastHour = 23;
constexpr std::int64_t kLastMinute = 59;
constexpr std::int64_t kLast12Hour = 12;

// "HH:MM" of the 24-hour clock.
bool Read_24_Hour_Time(Cursor& at) {
  return at.Fixed_Number(2, kLastHour) && at.Literal(":") && at.Fixed_Number(2, kLastMinute);
}

}  // namespace

Checked_Day Reminder_Date_Of(const std::string& text) {
  constexpr std::string_view kForm = "\"March 5, 2001\"";
  Cursor at(text);
  const std::optional<int> month = at.Month_Name(false);
  const std::optional<std::int64_t> day = month && at.Literal(" ") ? at.Plain_Number(kLargestDay) : std::nullopt;
  const std::optional<std::int64_t> year = day && at.Literal(", ") ? at.Plain_Number(engine::kLastYear) : std::nullopt;
  if (!year || !at.At_End()) Not_In_Form(text, kForm);
  const Checked_Day checked = Real_Day(text, month, day, year);
  if (checked.year == 0) Not_In_Form(text, kForm);
  return checked;
}

void Check_Reminder_Time(const std::string& text) {
  Cursor at(text);
  if (!Read_24_Hour_Time(at) || !at.At_End()) Not_In_Form(text, "\"14:30\"");
}

Checked_Day System_Date_Of(const std::string& text) {
  constexpr std::string_view kForm = "\"3/5/2001\"";
  Cursor at(text);
  const std::optional<std::int64_t> month = at.Plain_Number(kMonths);
  const std::optional<std::int64_t> day = month && at.Literal("/") ? at.Plain_Number(kLargestDay) : std::nullopt;
  const std::optional<std::int64_t> year = day && at.Literal("/") ? at.Plain_Number(engine::kLastYear) : std::nullopt;
  if (!year || !at.At_End() || *month < 1) Not_In_Form(text, kForm);
  const Checked_Day checked = Real_Day(text, static_cast<int>(*month), day, year);
  if (checked.year == 0) Not_In_Form(text, kForm);
  return checked;
}

void Check_System_Time(const std::string& text) {
  Cursor at(text);
  const std::optional<std::int64_t> hour = at.Plain_Number(kLast12Hour);
  const bool read = hour && *hour >= 1 && at.Literal(":") && at.Fixed_Number(2, kLastMinute) && at.Literal(":") &&
                    at.Fixed_Number(2, kLastMinute) && at.Literal(" ") && (at.Literal("AM") || at.Literal("PM"));
  if (!read || !at.At_End()) Not_In_Form(text, "\"2:05:09 PM\"");
}

void Check_Filter_Bound(const std::string& text) {
  constexpr std::string_view kForm = "\"14:00, Mar. 5, 2001\"";
  Cursor at(text);
  const bool time = Read_24_Hour_Time(at) && at.Literal(", ");
  const std::optional<int> month = time ? at.Month_Name(true) : std::nullopt;
  const std::optional<std::int64_t> day = month && at.Literal(". ") ? at.Plain_Number(kLargestDay) : std::nullopt;
  const std::optional<std::int64_t> year = day && at.Literal(", ") ? at.Plain_Number(engine::kLastYear) : std::nullopt;
  if (!year || !at.At_End()) Not_In_Form(text, kForm);
  if (Real_Day(text, month, day, year).year == 0) Not_In_Form(text, kForm);
}

}  // namespace orrivane::cli
