#include "cli/calendar_arguments.h"

#include <algorithm>

#include "calendar/select_month_check.h"
#include "cli/command_error.h"
#include "core/value.h"
#include "engine/input_range.h"

namespace orrivane::cli {

namespace {

constexpr std::int64_t kFirstDay = 1;
// A day above this is computed with this in its place: far beyond every month, and inside the
// range of the weekday arithmetic.
constexpr std::int64_t kLargestComputedDay = engine::kLargestInput;

// The value of a text of digits, or nothing when it exceeds `largest` (however many digits).
std::optional<std::int64_t> Digits_Up_To(const std::string& digits, std::int64_t largest) {
  std::int64_t value = 0;
  for (char c : digits) {
    value = value * 10 + (c - '0');
    if (value > largest) return std::nullopt;
  }
  return value;
}

}  // namespace

engine::CalendarStyle Style_Of(const Arguments& arguments) {
  return arguments.Has("--julian") ? engine::CalendarStyle::Julian : engine::CalendarStyle::Gregorian;
}

bool Is_All_Digits(const std::string& text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::optional<std::string> Month_Name_Of(const std::string& month) {
  const Value name = engine::Define_Month(Value(month), "Get Month Name");
  if (name.is_empty()) return std::nullopt;
  return name.text();
}

std::string Required_Month_Name(const std::string& month) {
  std::optional<std::string> name = Month_Name_Of(month);
  if (!name) throw Command_Error("Invalid Month Entry", Quoted(month) + " is no month's number or name.");
  return *name;
}

Day Day_Of(const std::string& day) {
  // The date boxes' own refusal, kept for what is no day at all.
  const Command_Error no_day("Invalid Date Entry", "Please enter a value from 1 to 31.");
  if (!Is_All_Digits(day)) throw no_day;
  Day result;
  result.digits = day.substr(std::min(day.find_first_not_of('0'), day.size() - 1));
  result.value = Digits_Up_To(result.digits, kLargestComputedDay).value_or(kLargestComputedDay);
  if (result.value < kFirstDay) throw no_day;
  return result;
}

Message Refusal_Of_Day(Message refusal, const Day& day) {
  const std::string computed = std::to_string(day.value);
  if (computed == day.digits) return refusal;
  const std::size_t at = refusal.text.find(computed);
  if (at != std::string::npos) refusal.text.replace(at, computed.size(), day.digits);
  return refusal;
}

std::int64_t Year_Of(const std::string& year) {
  const std::optional<std::int64_t> value = Is_All_Digits(year) ? Digits_Up_To(year, engine::kLastYear) : std::nullopt;
  if (!value) throw Command_Error(calendar::Select_Month_Entry_Message(calendar::kYearOutOfRange));
  return *value;
}

}  // namespace orrivane::cli
