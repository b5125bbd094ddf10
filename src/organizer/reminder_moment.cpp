#include "organizer/reminder_moment.h"

#include <span>

#include "core/text.h"
#include "engine/vocabulary.h"
#include "organizer/date_time_text.h"

namespace orrivane::organizer {

namespace {

// The lists of the amount boxes: from 0 to `last` by `step`.
struct AmountList {
  int last;
  int step;
};
constexpr std::array<AmountList, kAmountBoxes> kAmountLists{{
    {59, 1},     // minutes
    {23, 1},     // hours
    {99, 1},     // days
    {1800, 100}, // hundreds of days
}};

constexpr char kGregorian[] = "Gregorian";
constexpr char kFebruary[] = "February";
constexpr char kEmptyMinute[] = "00";
constexpr char kEmptyYear[] = "0";

constexpr char kNotApplicable[] = "N/A";

const CodedMessage kSetReminderMessages[] = {
    {kNoIntervalChosen, Exclamation_Message("No Reminder Interval Selected",
                                            "You have choosen to be reminded intermittently about the current "
                                            "task. Please specify how often you would like the reminders to "
                                            "occur.")},
    {kReminderSet, Message{"Reminder Set", "Reminder has been set."}},
    // The text names the month and its length: Month_Too_Short_Message writes it.
    {kInvalidMomentDate, Exclamation_Message("Invalid Date", "")},
};

// A box's or a label's number, an empty text counting 0.
double Number_Or_Zero(const std::string& text) { return text.empty() ? 0 : Value(text).number(); }


// The blank of a pair of boxes that go together (century and year, hour and minute): an empty
// first one takes the present, and then an empty second one the present too; under a chosen
// first one an empty second one takes `under_chosen`.
void Fill_Pair(std::string& first, std::string& second, const std::string& present_first,
               const std::string& present_second, const char* under_chosen) {
  if (!first.empty()) {
    if (second.empty()) second = under_chosen;
    return;
  }
  first = present_first;
  if (second.empty()) second = present_second;
}

void Fill_Blank(std::string& box, const std::string& present) {
  if (box.empty()) box = present;
}

Message Month_Too_Short_Message(const std::string& month, const Value& year, const Value& days) {
  Message message = Set_Reminder_Message(kInvalidMomentDate);
  const std::string of_year = month == kFebruary ? " of " + year.text() : "";
  message.text = month + of_year + " only has " + days.text() + " days in it.";
  return message;
}

}  // namespace

// ---- The lists of the boxes -----------------------------------------------------------------

std::vector<std::string> Amount_Choices(int index) {
  if (index < 0 || index >= kAmountBoxes) return {};
  const AmountList list = kAmountLists[static_cast<std::size_t>(index)];
  std::vector<std::string> choices;
  for (int amount = 0; amount <= list.last; amount += list.step) choices.push_back(std::to_string(amount));
  return choices;
}

// ---- A fixed moment -----------------------------------------------------------------------------

MomentEntries Present_Moment_Entries(const std::string& system_date, const std::string& system_time) {
  const std::int64_t year = Parse_Date(system_date, "Year").whole();
  const Value hour = Convert_Hour_To_Military_Time(Parse_System_Time(system_time, "Hour"),
                                                   Parse_System_Time(system_time, "Time Of Day"));
  return {engine::Define_Month(Parse_Date(system_date, "Month").plus_zero(), "Get Month Name").text(),
          Parse_Date(system_date, "Date").text(),
          std::to_string(year / 100),
          std::to_string(year % 100),
          text::Pad_Zero(hour.whole(), 2),
          Parse_System_Time(system_time, "Minute").text()};
}

MomentEntries Filled_In_Moment(MomentEntries entries, const MomentEntries& present) {
  Fill_Blank(entries.Month, present.Month);
  Fill_Blank(entries.Date, present.Date);
  Fill_Pair(entries.Century, entries.Year, present.Century, present.Year, kEmptyYear);
  Fill_Pair(entries.Hour, entries.Minute, present.Hour, present.Minute, kEmptyMinute);
  if (entries.Date.size() == 2 && entries.Date.front() == '0') entries.Date.erase(0, 1);
  return entries;
}

ChosenMoment Choose_Reminder_Moment(const MomentEntries& entries, const std::string& system_date,
                                    const std::string& system_time) {
  const MomentEntries moment = Filled_In_Moment(entries, Present_Moment_Entries(system_date, system_time));
  const Value year(Value(moment.Century).number() * 100 + Value(moment.Year).number());
  if (engine::Is_It_A_Valid_Date(moment.Month, moment.Date, year, kGregorian) == Value(0)) {
    const Value days = engine::Is_It_A_Valid_Date(moment.Month, "Get Max Days", year, kGregorian);
    return {Month_Too_Short_Message(moment.Month, year, days), {}, {}};
  }
  return {{}, moment.Month + " " + moment.Date + ", " + year.text(), moment.Hour + ":" + moment.Minute};
}

// ---- A moment tied to the task ------------------------------------------------------------------

bool Takes_Time_Amount(std::string_view when) { return when == kWhenBefore || when == kWhenAfter; }

std::string Time_Amount_Caption(std::string_view when) {
  return Takes_Time_Amount(when) ? "Amount of Time " + std::string(when) + ":" : "";
}

std::string Task_Tied_Date_Text(std::string_view when, std::string_view anchor) {
  return std::string(when) + " The " + std::string(anchor);
}

std::optional<std::string> Task_Tied_Time_Text(std::string_view when, const std::optional<AmountTexts>& amounts) {
  if (when == kWhenAt) return kNotApplicable;
  if (!Takes_Time_Amount(when)) return std::nullopt;
  std::array<double, kAmountBoxes> amount{};
  if (amounts) {
    for (std::size_t box = 0; box < amount.size(); ++box) amount[box] = Number_Or_Zero((*amounts)[box]);
  }
  const double days = amount[kHundredsOfDaysBox] + amount[kDaysBox];
  return "By " + Number_Text(days) + " Days, " + Number_Text(amount[kHoursBox]) + " Hrs, " +
         Number_Text(amount[kMinutesBox]) + " Min";
}

// ---- The period of a series ---------------------------------------------------------------------

std::string Count_Text(const std::string& text) { return Number_Text(Number_Or_Zero(text)); }

std::string Interval_Days_Text(const std::string& days, const std::string& hundreds_of_days) {
  return Number_Text(Number_Or_Zero(days) + Number_Or_Zero(hundreds_of_days));
}

bool Lacks_Interval(int kind, const std::string& minutes, const std::string& hours, const std::string& days) {
  if (kind != kSeriesFromFirstMoment && kind != kSeriesToLastMoment) return false;
  for (const std::string* count : {&minutes, &hours, &days}) {
    if (Number_Or_Zero(*count) != 0) return false;
  }
  return true;
}

// ---- Messages -----------------------------------------------------------------------------------

Message Set_Reminder_Message(int code) { return Message_Of(kSetReminderMessages, code); }

}  // namespace orrivane::organizer
