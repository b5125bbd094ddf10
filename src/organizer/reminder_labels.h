#pragma once
// How a task's reminder is described in words (frmTaskInformation's lblMethod and lblInterval),
// and the keeper of the eight reminder values of the record being shown or edited.
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/value.h"
#include "organizer/schedule_record.h"

namespace orrivane::organizer {

// The two texts of a reminder: its method and its interval.
struct ReminderLabels {
  std::string Method;
  std::string Interval;
  friend bool operator==(const ReminderLabels&, const ReminderLabels&) = default;
};

// The interval in words, each count added to 0: days, hours and minutes joined with ", ", a
// count of 0 left out ("1 Day, 1 Hr, 5 Min", "5 Min"). Beyond 9 days the hours and minutes are
// dropped, and "More than " leads the days when they weren't 0 ("More than 10 Days").
std::string Reminder_Interval_Text(const Value& Interval_Days, const Value& Interval_Hours,
                                   const Value& Interval_Minutes);

// The captions of the three kinds of reminder as lblMethod shows them. The second abbreviates its
// middle word to fit the label; the window has always shown it so.
inline constexpr std::string_view kOnlyOneReminderMethod = "Only One Reminder";
inline constexpr std::string_view kSeriesFromSpecifiedTimeMethod = "Series-From Spec. Time";
inline constexpr std::string_view kSeriesToSpecifiedTimeMethod = "Series-To Specified Time";

// The texts for the kind of reminder `Value_` (a Reminder_Interval): the caption of the kind
// (one reminder only, a series from the first moment, a series up to the last), with "No
// Interval In Effect" for the first kind and the interval in words for the two series. Another
// kind has no texts, and the labels keep theirs.
std::optional<ReminderLabels> Set_Reminder_Labels(const Value& Value_, const Value& Interval_Days,
                                                  const Value& Interval_Hours, const Value& Interval_Minutes);

// Fields 21 to 28 of a record, in the order of ReminderVariables::kNames.
template <class Record>
constexpr auto Reminder_Fields_Of(Record& record) {
  return std::array{&record.Date_String[0],   &record.Time_String[0], &record.Date_String[1],
                    &record.Time_String[1],   &record.Reminder_Interval, &record.Interval_Days,
                    &record.Interval_Hours,   &record.Interval_Minutes};
}

// The keeper procedure Store_Reminder_Variables of a window that edits a task: "Put" stores the
// value under one of the eight names, and every verb answers what is stored under the name. A
// name that isn't one of the eight stores nothing and answers empty.
class ReminderVariables {
 public:
  static constexpr std::array<std::string_view, 8> kNames{
      "Date_String(0)", "Time_String(0)", "Date_String(1)",  "Time_String(1)",
      "Reminder_Interval", "Interval_Days", "Interval_Hours", "Interval_Minutes",
  };

  Value Store(std::string_view name, std::string_view verb, const Value& value = {});

  // "Put" of fields 21 to 28 of a record.
  void Put_Fields_Of(const ScheduleRecord& record);

 private:
  std::array<Value, kNames.size()> values_{};
};

}  // namespace orrivane::organizer
