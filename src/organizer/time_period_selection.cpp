#include "organizer/time_period_selection.h"

#include <algorithm>

#include "core/text.h"
#include "engine/month_steps.h"
#include "engine/vocabulary.h"
#include "organizer/date_time_text.h"

namespace orrivane::organizer {

namespace {

// The parts of a caption "Morning, March 5, 2001", as texts.
struct CaptionParts {
  std::string period;
  std::string month_name;
  std::string date;
  std::string year;
};

// The text before the first comma is the period; the year stands two characters behind the last
// comma; of what lies between, the word behind the last blank is the date and the word before it
// the month name.
CaptionParts Parts_Of_Caption(std::string_view caption) {
  const long long first_comma = text::InStr(caption, ",");
  const long long last_comma = text::InStrRev(caption, ",");
  const std::string between = text::Mid(caption, first_comma + 1, std::max(0LL, last_comma - first_comma - 1));
  const long long last_blank = text::InStrRev(between, " ");
  const std::string before_date = text::Left(between, std::max(0LL, last_blank - 1));
  return {text::Left(caption, std::max(0LL, first_comma - 1)),
          text::Mid(before_date, text::InStrRev(before_date, " ") + 1), text::Mid(between, last_blank + 1),
          text::Mid(caption, last_comma + 2)};
}

std::string Whole_Text(std::int64_t number) { return std::to_string(number); }

struct Day {
  int month;
  std::int64_t date;
  std::int64_t year;
};

// The next day: the month's length in that year, Gregorian style.
Day Day_After(Day day) {
  ++day.date;
  if (day.date > engine::Days_In_Month(day.month, engine::Is_Leap_Year(day.year, engine::CalendarStyle::Gregorian))) {
    day.date = 1;
    ++day.month;
  }
  if (day.month == 13) {
    day.month = 1;
    ++day.year;
  }
  return day;
}

// The day before, where the month before always has its length of a common year: the leap year
// is deliberately not asked, so that February 29 is reached only by stepping forward.
Day Day_Before(Day day) {
  --day.date;
  if (day.date < 1) {
    --day.month;
    if (day.month == 0) {
      day.month = 12;
      --day.year;
    }
    day.date = engine::Days_In_Month(day.month, false);
  }
  return day;
}

bool Step_Refused(PeriodStep step, std::int64_t year) {
  return step == PeriodStep::Earlier ? year < kFirstSteppingYear : year > kLastSteppingYear;
}

// A box's value, added to 0 with failures ignored: nothing for an empty box or one that holds no
// number.
std::optional<double> Box_Number(const std::string& box) { return Parse_Number(box); }

const CodedMessage kSelectionMessages[] = {
    {1, Exclamation_Message("Time Period Not Selected", "Please select a time of day.")},
    {2, Exclamation_Message("No Month Selected", "Please select a month.")},
    {3, Exclamation_Message("No Date Selected", "Please select a date.")},
    {4, Exclamation_Message("Required Fields Unanswered",
                            "Please make sure all required fields contain valid selections.")},
    // The text names the month and its length: Time_Period_Selection_Message writes it.
    {5, Exclamation_Message("Invalid Date Selection", "")},
};
constexpr int kMonthTooShort = 5;

}  // namespace

// ---- The four periods ---------------------------------------------------------------------------

std::optional<int> Period_Named(std::string_view name) {
  for (int period = 0; period < kPeriodCount; ++period) {
    if (kTimePeriods[period].name == name) return period;
  }
  return std::nullopt;
}

int Period_Of_Hour(std::int64_t hour) {
  for (int period = 0; period < kPeriodCount; ++period) {
    if (hour >= kTimePeriods[period].first_hour && hour <= kTimePeriods[period].last_hour) return period;
  }
  return 0;
}

std::array<std::string_view, kPeriodCount> Period_Names() {
  std::array<std::string_view, kPeriodCount> names{};
  std::ranges::transform(kTimePeriods, names.begin(), &TimePeriod::name);
  return names;
}

std::vector<std::string> Two_Digit_Texts(TwoDigitRange range) {
  std::vector<std::string> texts;
  for (int number = range.first; number <= range.last; ++number) texts.push_back(text::Pad_Zero(number, 2));
  return texts;
}

std::vector<std::string> Three_Letter_Month_Texts() {
  std::vector<std::string> months;
  for (int month = 1; month <= 12; ++month) {
    months.push_back(engine::Define_Month(month, "Get Three Letter Month Name").text());
  }
  return months;
}

// ---- The view and its caption -------------------------------------------------------------------

std::string View_Caption(const ChartView& view) {
  return std::string(kTimePeriods[static_cast<std::size_t>(view.period)].name) + ", " +
         engine::Full_Month_Name(view.month) + " " + Whole_Text(view.date) + ", " + Whole_Text(view.year);
}

ChartView View_Of(const DateAndTime& moment) {
  const Value month = Parse_Date(moment.date, "Month").plus_zero();
  const std::string day_half = text::Right(moment.time, 2);
  const std::string hour = text::Left(moment.time, text::InStr(moment.time, ":") - 1);
  const Value hour_24 = Convert_Hour_To_Military_Time(hour, day_half);
  ChartView view;
  view.period = Period_Of_Hour(hour_24.is_empty() ? -1 : hour_24.whole());
  view.month = static_cast<int>(engine::Define_Month(month, "Get Month Number").whole());
  view.date = Parse_Date(moment.date, "Date").whole();
  view.year = Parse_Date(moment.date, "Year").whole();
  return view;
}

std::optional<DateAndTime> Moment_Of_Caption(std::string_view caption) {
  if (caption.empty()) return std::nullopt;
  const CaptionParts parts = Parts_Of_Caption(caption);
  const std::optional<int> period = Period_Named(parts.period);
  const std::string sample_time = period ? std::string(kTimePeriods[static_cast<std::size_t>(*period)].sample_time) : "";
  const std::string month_number = engine::Define_Month(parts.month_name, "Get Month Number").text();
  return DateAndTime{month_number + "/" + parts.date + "/" + parts.year, sample_time};
}

// ---- Earlier and Later --------------------------------------------------------------------------

std::string Swapped_Head(std::string_view head) {
  if (head == kHeadsFromTwelve[0]) return std::string(kHeadsFromSix[0]);
  if (head == kHeadsFromSix[0]) return std::string(kHeadsFromTwelve[0]);
  return std::string(head);
}

std::optional<DateAndTime> Stepped_Moment(std::string_view caption, std::string_view first_head, PeriodStep step) {
  const CaptionParts parts = Parts_Of_Caption(caption);
  Day day{engine::Full_Month_Number(parts.month_name), Value(parts.date).whole(), Value(parts.year).whole()};
  if (Step_Refused(step, day.year)) return std::nullopt;
  const std::optional<int> period = Period_Named(parts.period);
  if (!period) return std::nullopt;  // no view to step from

  constexpr int kLastPeriod = kPeriodCount - 1;
  int next = 0;
  if (step == PeriodStep::Later) {
    next = (*period + 1) % kPeriodCount;
    if (*period == kLastPeriod) day = Day_After(day);
  } else {
    next = (*period + kLastPeriod) % kPeriodCount;
    if (*period == 0) day = Day_Before(day);
  }
  const std::string time = Swapped_Head(first_head) + " " + std::string(kTimePeriods[static_cast<std::size_t>(next)].day_half);
  const Value date = Convert_To_Date_Format(engine::Full_Month_Name(day.month), Value(day.date), Value(day.year));
  return DateAndTime{date.text(), time};
}

// ---- Choosing a period and a date ---------------------------------------------------------------

TimePeriodSelection Check_Time_Period_Selection(const TimePeriodEntries& entries, std::string_view system_date) {
  const std::int64_t present_year = Value(text::Right(system_date, 4)).whole();
  std::optional<double> century = Box_Number(entries.century);
  std::optional<double> year = Box_Number(entries.year);
  const std::optional<double> date = Box_Number(entries.date);
  if (!century) {
    century = static_cast<double>(present_year / 100);
    if (!year) year = static_cast<double>(present_year % 100);
  }

  TimePeriodSelection selection;
  selection.month = entries.month;
  int missing_code = 0;
  int missing = 0;
  for (const auto& [empty, code] : {std::pair{entries.period.empty(), 1}, std::pair{entries.month.empty(), 2},
                                    std::pair{!date.has_value(), 3}}) {
    if (!empty) continue;
    missing_code = code;
    ++missing;
  }

  const std::int64_t four_digit_year = static_cast<std::int64_t>(100 * *century + year.value_or(0));
  const bool leap = engine::Is_It_A_Leap_Year(Value(four_digit_year), "Gregorian");
  const Value length = engine::Define_Month(entries.month, leap ? "Get Max Days Leap Year" : "Get Max Days");
  selection.month_length = static_cast<int>(length.is_empty() ? 0 : length.whole());
  const bool beyond_month = date && !entries.month.empty() && *date > selection.month_length;

  if (missing > 1) {
    selection.code = 4;
  } else if (missing_code != 0) {
    selection.code = missing_code;
  } else if (beyond_month) {
    selection.code = kMonthTooShort;
  }
  if (selection.code != 0) return selection;

  const std::optional<int> period = Period_Named(entries.period);
  selection.selected_time = period ? std::string(kTimePeriods[static_cast<std::size_t>(*period)].sample_time) : "";
  selection.selected_date = engine::Define_Month(entries.month, "Get Month Number").text() + "/" +
                            Number_Text(*date) + "/" + Whole_Text(four_digit_year);
  return selection;
}

Message Time_Period_Selection_Message(const TimePeriodSelection& selection) {
  Message message = Message_Of(kSelectionMessages, selection.code);
  if (selection.code == kMonthTooShort) {
    message.text = selection.month + " only has " + Whole_Text(selection.month_length) +
                   (selection.month == "February" ? " days in it this year." : " days in it.");
  }
  return message;
}

}  // namespace orrivane::organizer
