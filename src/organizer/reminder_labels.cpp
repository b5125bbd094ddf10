#include "organizer/reminder_labels.h"

#include <algorithm>

namespace orrivane::organizer {

namespace {

// Beyond this many days the hours and minutes of an interval go unsaid.
constexpr double kMostDaysTold = 9;

// A count in words: nothing for 0, the singular for 1, the plural for more.
std::string Count_Text(double count, const char* one, const char* more) {
  if (count == 0) return {};
  return Value(count).text() + (count == 1 ? one : more);
}

// `part`, with ", " before it when something stands before it.
void Join(std::string& joined, const std::string& part) {
  if (part.empty()) return;
  if (!joined.empty()) joined += ", ";
  joined += part;
}

struct KindTexts {
  int kind;
  std::string_view method;
  const char* interval;  // nullptr: the interval in words
};
constexpr KindTexts kKinds[] = {
    {kOnlyOneReminder, kOnlyOneReminderMethod, "No Interval In Effect"},
    {kSeriesFromFirstMoment, kSeriesFromSpecifiedTimeMethod, nullptr},
    {kSeriesToLastMoment, kSeriesToSpecifiedTimeMethod, nullptr},
};

}  // namespace

std::string Reminder_Interval_Text(const Value& Interval_Days, const Value& Interval_Hours,
                                   const Value& Interval_Minutes) {
  const double days = Interval_Days.number();
  const double hours = Interval_Hours.number();
  const double minutes = Interval_Minutes.number();
  std::string day_text = Count_Text(days, " Day", " Days");
  std::string hour_text = Count_Text(hours, " Hr", " Hrs");
  std::string minute_text = Count_Text(minutes, " Min", " Min");
  if (days > kMostDaysTold) {
    if (hours != 0 || minutes != 0) day_text = "More than " + day_text;
    hour_text.clear();
    minute_text.clear();
  }
  std::string joined;
  for (const std::string& part : {day_text, hour_text, minute_text}) Join(joined, part);
  return joined;
}

std::optional<ReminderLabels> Set_Reminder_Labels(const Value& Value_, const Value& Interval_Days,
                                                  const Value& Interval_Hours, const Value& Interval_Minutes) {
  for (const KindTexts& texts : kKinds) {
    if (Value_ != Value(texts.kind)) continue;
    return ReminderLabels{std::string(texts.method), texts.interval != nullptr
                                            ? std::string(texts.interval)
                                            : Reminder_Interval_Text(Interval_Days, Interval_Hours, Interval_Minutes)};
  }
  return std::nullopt;
}

Value ReminderVariables::Store(std::string_view name, std::string_view verb, const Value& value) {
  const auto found = std::find(kNames.begin(), kNames.end(), name);
  if (found == kNames.end()) return {};
  Value& kept = values_[static_cast<std::size_t>(found - kNames.begin())];
  if (verb == "Put") kept = value;
  return kept;
}

void ReminderVariables::Put_Fields_Of(const ScheduleRecord& record) {
  const auto fields = Reminder_Fields_Of(record);
  static_assert(fields.size() == kNames.size());
  for (std::size_t i = 0; i < kNames.size(); ++i) Store(kNames[i], "Put", *fields[i]);
}

}  // namespace orrivane::organizer
