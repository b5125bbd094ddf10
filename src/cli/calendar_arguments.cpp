#include "cli/calendar_arguments.h"

#include <algorithm>
#include <array>

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
std::optional<std::int64_t> Digits_Up_To(std::string_view digits, std::int64_t largest) {
  std::int64_t value = 0;
  for (char c : digits) {
    value = value * 10 + (c - '0');
    if (value > largest) return std::nullopt;
  }
  return value;
}

// The vocabulary's answer for one month text, once asked.
struct Remembered_Month {
  bool asked = false;
  std::string text;
  std::optional<std::string> name;
};

// Where a text is remembered: by its length and its first and last characters, which tell the
// twelve English month names apart.
constexpr std::size_t kRememberedTexts = 128;
std::size_t Place_Of(std::string_view text) {
  if (text.empty()) return 0;
  const auto front = static_cast<unsigned char>(text.front());
  const auto back = static_cast<unsigned char>(text.back());
  return (text.size() * 131 + front * 31 + back) % kRememberedTexts;
}

// The date boxes' own refusal, kept for what is no day at all.
[[noreturn]] void No_Day() { throw Command_Error("Invalid Date Entry", "Please enter a value from 1 to 31."); }

}  // namespace

engine::CalendarStyle Style_Of(const Arguments& arguments) {
  return arguments.Has("--julian") ? engine::CalendarStyle::Julian : engine::CalendarStyle::Gregorian;
}

bool Is_All_Digits(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

const std::optional<std::string>& Month_Name_Of(std::string_view month) {
  // The vocabulary's answer depends on the text alone, and costs a loose comparison with every
  // form of every month; a batch asks for the same few texts again and again. So the answers
  // are remembered, each in its place, where another text that comes to the same place takes
  // over.
  static std::array<Remembered_Month, kRememberedTexts> remembered;
  Remembered_Month& place = remembered[Place_Of(month)];
  if (!place.asked || place.text != month) {
    const Value name = engine::Define_Month(Value(month), "Get Month Name");
    place = {true, std::string(month), name.is_empty() ? std::nullopt : std::optional<std::string>(name.text())};
  }
  return place.name;
}

const std::string& Required_Month_Name(std::string_view month) {
  const std::optional<std::string>& name = Month_Name_Of(month);
  if (!name) throw Command_Error("Invalid Month Entry", Quoted(month) + " is no month's number or name.");
  return *name;
}

Day Day_Of(std::string_view day) {
  if (!Is_All_Digits(day)) No_Day();
  Day result;
  result.digits = day.substr(std::min(day.find_first_not_of('0'), day.size() - 1));
  result.value = Digits_Up_To(result.digits, kLargestComputedDay).value_or(kLargestComputedDay);
  if (result.value < kFirstDay) No_Day();
  return result;
}

Message Refusal_Of_Day(Message refusal, const Day& day) {
  const std::string computed = std::to_string(day.value);
  if (computed == day.digits) return refusal;
  const std::size_t at = refusal.text.find(computed);
  if (at != std::string::npos) refusal.text.replace(at, computed.size(), std::string(day.digits));
  return refusal;
}

std::int64_t Year_Of(std::string_view year) {
  const std::optional<std::int64_t> value = Is_All_Digits(year) ? Digits_Up_To(year, engine::kLastYear) : std::nullopt;
  if (!value) throw Command_Error(calendar::Select_Month_Entry_Message(calendar::kYearOutOfRange));
  return *value;
}

}  // namespace orrivane::cli
