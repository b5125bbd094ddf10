#include "cli/calendar_arguments.h"

#include <algorithm>

#include "calendar/select_month_check.h"
#include "cli/command_error.h"
#include "core/value.h"

namespace orrivane::cli {

namespace {

constexpr std::int64_t kFirstDate = 1;
constexpr std::int64_t kLastDate = 31;

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
  if (!name) throw Command_Error("Invalid Month Entry", "\"" + month + "\" is no month's number or name.");
  return *name;
}

std::int64_t Date_Of(const std::string& date) {
  const std::optional<std::int64_t> value = Is_All_Digits(date) ? Digits_Up_To(date, kLastDate) : std::nullopt;
  if (!value || *value < kFirstDate) throw Command_Error("Invalid Date Entry", "Please enter a value from 1 to 31.");
  return *value;
}

std::int64_t Year_Of(const std::string& year) {
  const std::optional<std::int64_t> value = Is_All_Digits(year) ? Digits_Up_To(year, engine::kLastYear) : std::nullopt;
  if (!value) throw Command_Error(calendar::Select_Month_Entry_Message(calendar::kYearOutOfRange));
  return *value;
}

}  // namespace orrivane::cli
