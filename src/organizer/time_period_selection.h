#pragma once
// The view of the Organizer's task chart: one of four six-hour periods of one day. The view has
// no variable of its own: it lives in the caption of the period label ("Morning, March 5,
// 2001"), and every refresh reads it back from there. Here are the periods, that caption read
// and written, the steps to the period before and after, and the checks of the window in which
// the user chooses a period and a date.
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/message.h"
#include "core/value.h"
#include "organizer/chart_geometry.h"

namespace orrivane::organizer {

// ---- The four periods ---------------------------------------------------------------------------

using ChartHeads = std::array<std::string_view, kChartHeads>;

// The heads of a period, one each half hour, on the 12-hour clock.
inline constexpr ChartHeads kHeadsFromTwelve{"12:00", "12:30", "1:00", "1:30", "2:00", "2:30",
                                             "3:00",  "3:30",  "4:00", "4:30", "5:00", "5:30"};
inline constexpr ChartHeads kHeadsFromSix{"6:00", "6:30", "7:00", "7:30", "8:00",  "8:30",
                                          "9:00", "9:30", "10:00", "10:30", "11:00", "11:30"};

struct TimePeriod {
  std::string_view name;
  int first_hour;  // 24-hour count, both included
  int last_hour;
  const ChartHeads* heads;
  // The moment that stands for the period wherever a time inside it is wanted, as system time.
  std::string_view sample_time;
  std::string_view day_half;  // "AM" or "PM"
};

inline constexpr int kPeriodCount = 4;
inline constexpr std::array<TimePeriod, kPeriodCount> kTimePeriods{{
    {"Early Morning", 0, 5, &kHeadsFromTwelve, "1:00:00 AM", "AM"},
    {"Morning", 6, 11, &kHeadsFromSix, "7:00:00 AM", "AM"},
    {"Afternoon", 12, 17, &kHeadsFromTwelve, "1:00:00 PM", "PM"},
    {"Evening", 18, 23, &kHeadsFromSix, "7:00:00 PM", "PM"},
}};

// The index in kTimePeriods of the period of that name, exactly compared; nothing for another text.
std::optional<int> Period_Named(std::string_view name);

// The period whose hours hold a 24-hour hour. An hour outside 0 to 23 holds none and gives the
// first period, as the program's uninitialised period row did.
int Period_Of_Hour(std::int64_t hour);

// ---- The view and its caption -------------------------------------------------------------------

struct ChartView {
  int period = 0;  // index in kTimePeriods
  int month = 1;   // 1 to 12
  std::int64_t date = 1;
  std::int64_t year = 0;
  friend bool operator==(const ChartView&, const ChartView&) = default;
};

// "Morning, March 5, 2001": period, comma, blank, month name, blank, day without a leading zero,
// comma, blank, year.
std::string View_Caption(const ChartView& view);

// A moment as system texts: the date "3/5/2001" and the time "7:00:00 AM" (or "12:00 PM" after
// a step: only the hour and the day half count).
struct DateAndTime {
  std::string date;
  std::string time;
  friend bool operator==(const DateAndTime&, const DateAndTime&) = default;
};

// The view of a system date and a time: the date taken apart into month, date and year, the
// hour and day half of the time turned to the 24-hour hour, whose range tells the period.
ChartView View_Of(const DateAndTime& moment);

// The view read back from the caption: the period's sample time and the date as month number
// "/" date "/" year. Nothing for an empty caption, which means that no view has been shown.
std::optional<DateAndTime> Moment_Of_Caption(std::string_view caption);

// ---- Earlier and Later --------------------------------------------------------------------------

enum class PeriodStep { Earlier, Later };

// A step starts only from a view inside these years; the view can still reach 1599 and 10000,
// from which the next step in the same direction is refused.
inline constexpr std::int64_t kFirstSteppingYear = 1600;
inline constexpr std::int64_t kLastSteppingYear = 9999;

// The first head swapped: "12:00" becomes "6:00" and "6:00" "12:00" (any other text stays).
std::string Swapped_Head(std::string_view head);

// The moment one period before or after the view of the caption, whose first head is
// `first_head`: the swapped head with the day half of the new period, and the date, moved a day
// when the step crosses midnight. Nothing when the caption's year refuses the step. Stepping back
// over the end of a month always takes the month's length in a common year, so that stepping
// back from March 1 of a leap year lands on February 28.
std::optional<DateAndTime> Stepped_Moment(std::string_view caption, std::string_view first_head, PeriodStep step);

// ---- Choosing a period and a date ---------------------------------------------------------------

// What the boxes of the selection window hold, as text; an empty text is an empty box.
struct TimePeriodEntries {
  std::string period;
  std::string month;  // the full month name
  std::string date;
  std::string century;
  std::string year;
};

// The answer of the selection's checks: code 0 and the moment to show, or the code of the message.
struct TimePeriodSelection {
  int code = 0;
  std::string month;  // for the message of code 5
  int month_length = 0;
  std::string selected_time;  // the period's sample time
  std::string selected_date;  // month number "/" date "/" year
};

// Checks the entries against the present date (a system date text, whose last four characters
// are the present year). An empty century takes the present century, and only then an empty
// year the present year's last two digits; a chosen century with an empty year keeps the year
// empty, which counts as 0. Codes: 1 no period, 2 no month, 3 no date, 4 more than one of them
// missing, 5 a date beyond the month's length in that (Gregorian) year; 4 comes before 1 to 3,
// and those before 5.
TimePeriodSelection Check_Time_Period_Selection(const TimePeriodEntries& entries, std::string_view system_date);

// The message of a refused selection; the empty message for code 0.
Message Time_Period_Selection_Message(const TimePeriodSelection& selection);

// The contents of the selection window's boxes. The date, century and year boxes hold two-digit
// texts, as those of the new-task window do.
std::array<std::string_view, kPeriodCount> Period_Names();
struct TwoDigitRange {
  int first;
  int last;
};
inline constexpr TwoDigitRange kDateBoxRange{1, 31};
inline constexpr TwoDigitRange kCenturyBoxRange{16, 99};
inline constexpr TwoDigitRange kYearBoxRange{0, 99};
// "01" to "31" for the date box.
std::vector<std::string> Two_Digit_Texts(TwoDigitRange range);
// "Jan" to "Dec" for a month box.
std::vector<std::string> Three_Letter_Month_Texts();

}  // namespace orrivane::organizer
