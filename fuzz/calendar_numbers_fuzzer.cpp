// The weekday, layout, conversion, holiday and date-difference procedures with any whole numbers
// for day, month and year, far outside the calendar included. Where a procedure promises a
// true answer beyond the calendar's own years (the weekday from the year 0 on, the minutes
// between two moments), the answer is checked against an independent day count.
//
// One command a line, then whole numbers (a STYLE is the word Julian, Gregorian or any other;
// a MONTH a number, or a word taken as the month's text):
//   weekday STYLE MONTH DAY CENTURY TWO_DIGIT_YEAR   Calendarr: weekday, validity, grid
//   year_date STYLE MONTH DAY YEAR                   the same from a whole year
//   layout FIRST LENGTH LENGTH_BEFORE SELECTED       the 42 cells of a month
//   select STYLE MONTH YEAR                          frmSelectMonth's first weekday and grid
//   convert STYLE MONTH DAY YEAR                     conversion between the styles
//   valid STYLE MONTH DAY YEAR                       vocabulary, leap rule, validity
//   holiday NUMBER YEAR                              one holiday in one year, Easter
//   holidays NUMBER FROM TO RANGE                    the find-a-holiday runs and year checks
//   keeper ELEMENT VERB VALUE FILLS                  the calendar's holiday table keeper
//   elapsed STYLE MIN HOUR DAY MONTH YEAR MIN HOUR DAY MONTH YEAR OPTION TICKS
//   leap_years FIRST LAST STYLE                      Count_Leap_Years
//   now MONTH DAY YEAR HOUR MINUTE                   the present as a Find Time Length selection
#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "elapsed/date_difference.h"
#include "elapsed/time_selection.h"
#include "engine/calendar_engine.h"
#include "engine/reference_calendar.h"
#include "fuzz_harness.h"
#include "holidays/holiday_rules.h"

namespace {

using orrivane::Value;
using orrivane::fuzz::Defined;
using orrivane::fuzz::Expect;
using orrivane::fuzz::Operand;
using orrivane::fuzz::Whole;
using orrivane::fuzz::Whole_Int;
using Operands = std::span<const std::string_view>;
namespace engine = orrivane::engine;
namespace holidays = orrivane::holidays;
namespace elapsed = orrivane::elapsed;
namespace reference = orrivane::engine::reference;

std::int64_t Number(Operands operands, std::size_t i) { return Whole(Operand(operands, i)); }

std::string Style_Text(Operands operands, std::size_t i) { return std::string(Operand(operands, i)); }

engine::CalendarStyle Style(Operands operands, std::size_t i) {
  return Operand(operands, i) == "Julian" ? engine::CalendarStyle::Julian : engine::CalendarStyle::Gregorian;
}

bool Is_Number_Word(std::string_view word) {
  if (!word.empty() && word.front() == '-') word.remove_prefix(1);
  return !word.empty() && word.front() >= '0' && word.front() <= '9';
}

// The full month name the engine gives a month number (empty for one it doesn't know), or the
// word itself when it is no number.
std::string Month_Name(Operands operands, std::size_t i) {
  const std::string_view word = Operand(operands, i);
  if (!Is_Number_Word(word)) return std::string(word);
  return engine::Define_Month(Value(Whole(word)), "Get Month Name").text();
}

// 1 to 12 for a full month name, 0 for anything else.
int Month_Number(const std::string& name) {
  for (int month = 1; month <= 12; ++month) {
    if (name == reference::Month_Name(month)) return month;
  }
  return 0;
}

bool Is_Leap(engine::CalendarStyle style, std::int64_t year) {
  return style == engine::CalendarStyle::Julian ? reference::Julian_Leap(year) : reference::Gregorian_Leap(year);
}

// The days since a fixed day, of either style; exact for the years -4712 to about 10^16.
std::int64_t Day_Number(engine::CalendarStyle style, std::int64_t year, int month, int day) {
  return style == engine::CalendarStyle::Julian ? reference::Julian_Day_Number(year, month, day)
                                                : reference::Gregorian_Day_Number(year, month, day);
}

// A real date of the style, in the years the reference counts exactly.
bool Is_Reference_Date(engine::CalendarStyle style, std::int64_t year, std::int64_t month, std::int64_t day,
                       std::int64_t lowest_year, std::int64_t highest_year) {
  if (year < lowest_year || year > highest_year || month < 1 || month > 12 || day < 1) return false;
  return day <= reference::Month_Length(static_cast<int>(month), Is_Leap(style, year));
}

// The years the day count of the reference takes without overflow.
constexpr std::int64_t kLargestReferenceYear = 1'000'000'000'000'000;

// Calendarr's weekday is the true one for every real date from the year 0 on.
void Check_Calendarr_Weekday(const engine::CalendarrDate& date) {
  if (date.two_digit_year < 0 || date.two_digit_year > 99) return;
  if (date.century < 0 || date.century > kLargestReferenceYear / 100) return;
  const int month = Month_Number(date.month);
  if (!Is_Reference_Date(date.style, date.year(), month, date.date, 0, kLargestReferenceYear)) return;
  const int expected =
      reference::Weekday_Of_Day_Number(Day_Number(date.style, date.year(), month, static_cast<int>(date.date)));
  const int weekday = engine::Calendarr_Weekday(date);
  Expect(weekday == expected, date.month + " " + std::to_string(date.date) + ", " + std::to_string(date.year()) +
                                  ": weekday " + std::to_string(weekday) + ", not " + std::to_string(expected));
}

void Calendarr(const engine::CalendarrDate& date) {
  Defined([&] { static_cast<void>(engine::Calendarr_Compute(date)); });
  Defined([&] { static_cast<void>(engine::Calendarr_Month_Grid(date)); });
  for (int code = 0; code <= 4; ++code) Defined([&] { static_cast<void>(engine::Calendarr_Message(code, date)); });
  Defined([&] { Check_Calendarr_Weekday(date); });
}

void Weekday(Operands operands) {
  Calendarr({Month_Name(operands, 1), Number(operands, 2), Number(operands, 3), Number(operands, 4),
             Style(operands, 0)});
}

void Year_Date(Operands operands) {
  Calendarr(engine::Calendarr_Date_From_Year(Month_Name(operands, 1), Number(operands, 2), Number(operands, 3),
                                             Style(operands, 0)));
}

void Layout(Operands operands) {
  Defined([&] {
    static_cast<void>(engine::Draw_Month_Cells(Whole_Int(Operand(operands, 0)), Whole_Int(Operand(operands, 1)),
                                               Whole_Int(Operand(operands, 2)), Number(operands, 3)));
  });
}

// frmSelectMonth's first weekday is the true one for every year from 0 to 10^15.
void Check_First_Weekday(const Value& month, std::int64_t year, engine::CalendarStyle style) {
  const int number = static_cast<int>(engine::Define_Month(month, "Get Month Number").number());
  if (number < 1 || year < 0 || year > kLargestReferenceYear) return;
  const int expected = reference::Weekday_Of_Day_Number(Day_Number(style, year, number, 1));
  const int first = engine::Select_Month_First_Weekday(month, year, style);
  Expect(first == expected, "the 1st of month " + std::to_string(number) + " of " + std::to_string(year) +
                                ": weekday " + std::to_string(first) + ", not " + std::to_string(expected));
}

void Select(Operands operands) {
  const engine::CalendarStyle style = Style(operands, 0);
  const Value month = Is_Number_Word(Operand(operands, 1)) ? Value(Number(operands, 1))
                                                           : Value(std::string(Operand(operands, 1)));
  const std::int64_t year = Number(operands, 2);
  for (int after_leap_date = 0; after_leap_date <= 1; ++after_leap_date) {
    Defined([&] { static_cast<void>(engine::Select_Month_Gregorian_Correction(after_leap_date, year)); });
  }
  Defined([&] { static_cast<void>(engine::Select_Month_Grid(month, year, style)); });
  Defined([&] { Check_First_Weekday(month, year, style); });
}

void Convert(Operands operands) {
  const engine::ConvertDate date{Month_Name(operands, 1), Number(operands, 2), Number(operands, 3), Style(operands, 0)};
  Defined([&] { static_cast<void>(engine::Convert_Compute(date)); });
  Defined([&] { static_cast<void>(engine::Convert_Day_Difference(date.month, date.year)); });
  for (int code = 0; code <= 4; ++code) static_cast<void>(engine::Convert_Message(code, date));
}

void Valid(Operands operands) {
  const std::string style = Style_Text(operands, 0);
  const Value month(Number(operands, 1));
  const Value day(Number(operands, 2));
  const Value year(Number(operands, 3));
  for (const char* verb : {"Get Max Days", "Get Max Days Leap Year", "Get Month Name", "Get Three Letter Month Name",
                           "Get Month Number", "Get Base Date Weekday Greg 2000", "Get Base Date Weekday Jul 2000",
                           "After Leap Date?"}) {
    static_cast<void>(engine::Define_Month(month, verb));
  }
  static_cast<void>(engine::Define_Weekday(day, "Get Weekday Name"));
  static_cast<void>(engine::Numeric_To_Text_Month(month));
  Defined([&] { static_cast<void>(engine::Is_It_A_Leap_Year(year, style)); });
  Defined([&] { static_cast<void>(engine::Is_It_A_Valid_Date(month, day, year, style)); });
  Defined([&] { static_cast<void>(engine::Is_It_A_Valid_Date(month, "Get Max Days", year, style)); });
}

void Holiday(Operands operands) {
  const int holiday = Whole_Int(Operand(operands, 0));
  const std::int64_t year = Number(operands, 1);
  static_cast<void>(holidays::First_Year_Of_Holiday(holidays::Holiday_Name(holiday)));
  Defined([&] {
    if (const std::optional<holidays::Holiday_Date> when = holidays::Holiday_Date_In_Year(holiday, year)) {
      static_cast<void>(holidays::Holiday_List_Line(holiday, year, *when));
    }
  });
  Defined([&] { static_cast<void>(holidays::Find_Easter(Value(year), "Get Month")); });
  Defined([&] { static_cast<void>(holidays::Find_Easter(Value(year), "Get Date")); });
  static_cast<void>(holidays::Easter_Month_And_Date(static_cast<std::int32_t>(Whole_Int(Operand(operands, 1)))));
}

// Takes every line and entry and keeps none: long runs cost no memory.
class Discarding_Receiver : public holidays::Holiday_Receiver {
 public:
  void Add_List_Line(std::string line) override { static_cast<void>(line); }
  void Add_Table_Entry(const holidays::Holiday_Table_Entry& entry) override { static_cast<void>(entry); }
};

// The most years a run of holidays takes here. A run does the same for every year, so a longer
// one only slows the search (the whole reach is 2.5 million lines, some ten seconds under the
// sanitizers); runs through the whole reach belong to the holiday tests.
constexpr std::int64_t kLongestRun = 40;

// Within the calendar's reach a last year far from the first is moved near it. Years out of
// reach stay as they are: they are refused or skipped at once.
std::int64_t Near(std::int64_t from, std::int64_t to) {
  constexpr std::int64_t kReach = 10'000'000;
  if (from < -kReach || from > kReach || to < -kReach || to > kReach) return to;
  return to - from > kLongestRun || from - to > kLongestRun ? from + (to - from) % (kLongestRun + 1) : to;
}

// Display_All_Holidays_For_Years walks the years it reaches, 1582 to 100100; a last year that
// would make it walk more of them is moved near the first one reached.
int Short_Walk(int from, int to) {
  const auto reach = [](int year) {
    return std::clamp(year, holidays::kEarliestHolidayYear, holidays::kHolidayYearLimit);
  };
  const int span = reach(to) - reach(from);
  constexpr int kLongest = static_cast<int>(kLongestRun);
  return span > kLongest || span < -kLongest ? reach(from) + span % (kLongest + 1) : to;
}

void Holidays(Operands operands) {
  const std::string name(holidays::Holiday_Name(Whole_Int(Operand(operands, 0))));
  const std::int64_t from = Number(operands, 1);
  const std::int64_t to = Near(from, Number(operands, 2));
  const bool range = Number(operands, 3) % 2 != 0;
  Discarding_Receiver receiver;
  for (const std::string_view caller : {holidays::kFindAHolidayCaller, holidays::kCalendarHolidayTableCaller}) {
    Defined([&] {
      Value to_box(to);
      static_cast<void>(holidays::Display_Holiday_II(name, Value(from), to_box, caller, {true, range}, receiver));
    });
    Defined([&] { static_cast<void>(holidays::Display_All_Holidays_For_Selected_Year(Value(from), caller, receiver)); });
  }
  Defined([&] {
    const holidays::All_Holidays_Years years = holidays::Check_Years_For_All_Holidays(Value(from), Value(to), range);
    static_cast<void>(holidays::All_Holidays_Error_Message(years.error_code));
  });
  static_cast<void>(holidays::Holiday_Error_Message(Whole_Int(Operand(operands, 3)), name));
  const int from_int = Whole_Int(Operand(operands, 1));
  const int to_int = Short_Walk(from_int, Whole_Int(Operand(operands, 2)));
  Defined([&] { static_cast<void>(holidays::Display_All_Holidays_For_Years(from_int, to_int, receiver)); });
}

void Keeper(Operands operands) {
  static constexpr std::array<const char*, 3> kArrays{"Holiday Name", "Holiday Date", "Holiday Month"};
  static constexpr std::array<const char*, 7> kVerbs{"Set Equal To", "Add", "Subtract", "Multiply",
                                                     "Divide",       "View", "Get"};
  holidays::Holiday_Data_Keeper keeper;
  const int element = Whole_Int(Operand(operands, 0));
  const std::int64_t verb = Number(operands, 1);
  const char* first = kVerbs[static_cast<std::size_t>(verb < 0 ? -(verb + 1) : verb) % kVerbs.size()];
  const Value value(Number(operands, 2));
  for (const char* array : kArrays) {
    for (std::size_t i = 0; i < kVerbs.size(); ++i) {
      Defined([&] { static_cast<void>(keeper.Store_Holiday_Data_For_Year(array, element, first, value)); });
      Defined([&] { static_cast<void>(keeper.Store_Holiday_Data_For_Year(array, element, kVerbs[i], value)); });
      Defined([&] { static_cast<void>(keeper.Store_Holiday_Data_For_Year("Other", element, kVerbs[i], value)); });
    }
  }
  holidays::Holiday_Data_Keeper table;
  const std::int64_t fills = std::min<std::int64_t>(Number(operands, 3), 60);
  Defined([&] {
    for (std::int64_t i = 0; i < fills; ++i) holidays::Store_In_First_Free_Entry(table, {"Easter", "April", 20});
  });
}

elapsed::Moment Moment(Operands operands, std::size_t first) {
  return {Number(operands, first), Number(operands, first + 1), Number(operands, first + 2),
          Number(operands, first + 3), Number(operands, first + 4)};
}

constexpr std::array<const char*, 19> kAnswers{
    "Total Years In Years",         "Total Years In Months",      "Total Years In Days",
    "Total Years In Hours",         "Total Years In Minutes",     "Total Months In Months",
    "Remaining Months In Months",   "Remaining Months In Days",   "Remaining Months In Hours",
    "Remaining Months In Minutes",  "Total Days In Days",         "Remaining Days In Days",
    "Remaining Days In Hours",      "Remaining Days In Minutes",  "Total Hours In Hours",
    "Remaining Hours In Hours",     "Remaining Hours In Minutes", "Total Minutes In Minutes",
    "Remaining Minutes In Minutes"};

std::int64_t Minute_Number(engine::CalendarStyle style, const elapsed::Moment& m) {
  return Day_Number(style, m.Four_Digit_Year, static_cast<int>(m.Month_Number), static_cast<int>(m.Date)) * 1440 +
         m.Hour * 60 + m.Minute;
}

bool Is_Reference_Moment(engine::CalendarStyle style, const elapsed::Moment& m) {
  constexpr std::int64_t kFirstYear = -4712;
  constexpr std::int64_t kLastYear = 1'000'000'000'000;  // the moments' reach
  return m.Minute >= 0 && m.Minute <= 59 && m.Hour >= 0 && m.Hour <= 23 &&
         Is_Reference_Date(style, m.Four_Digit_Year, m.Month_Number, m.Date, kFirstYear, kLastYear);
}

// The span of two real moments is exact to the minute, whichever comes first.
void Check_Total_Minutes(const std::string& style_text, const elapsed::Moment& one, const elapsed::Moment& two) {
  const engine::CalendarStyle style = style_text == "Julian" ? engine::CalendarStyle::Julian
                                                             : engine::CalendarStyle::Gregorian;
  if (!Is_Reference_Moment(style, one) || !Is_Reference_Moment(style, two)) return;
  const std::int64_t span = Minute_Number(style, one) - Minute_Number(style, two);
  const std::string expected = std::to_string(span < 0 ? -span : span);
  const std::string minutes = elapsed::Date_Difference("Total Minutes In Minutes", style_text, one, two).text();
  Expect(minutes == expected, "a span of " + expected + " minutes is given as " + minutes);
}

void Elapsed(Operands operands) {
  const std::string style = Style_Text(operands, 0);
  const elapsed::Moment one = Moment(operands, 1);
  const elapsed::Moment two = Moment(operands, 6);
  const auto option = static_cast<elapsed::Display_Option>(static_cast<std::uint64_t>(Number(operands, 11)) % 3);
  const auto ticks = static_cast<std::uint64_t>(Number(operands, 12));
  elapsed::Ticked_Units ticked{};
  for (std::size_t unit = 0; unit < elapsed::kTimeUnits; ++unit) ticked[unit] = (ticks >> unit) & 1;
  Defined([&] {
    const elapsed::Time_Difference pieces = elapsed::Work_Out_Time_Difference(style, one, two);
    for (const char* answer : kAnswers) static_cast<void>(elapsed::Time_Difference_Answer(pieces, answer).text());
  });
  Defined([&] { static_cast<void>(elapsed::Display_Time_Difference(style, one, two, option, ticked)); });
  Defined([&] { Check_Total_Minutes(style, one, two); });
}

// Counted year by year where the range is short enough to walk.
void Leap_Years(Operands operands) {
  const std::int64_t first = Number(operands, 0);
  const std::int64_t last = Number(operands, 1);
  const std::string style = Style_Text(operands, 2);
  const long long count = elapsed::Count_Leap_Years(first, last, style);
  if (last < first) return;
  const std::uint64_t span = static_cast<std::uint64_t>(last) - static_cast<std::uint64_t>(first);
  if (span > 2000) return;
  long long walked = 0;
  for (std::uint64_t step = 0; step <= span; ++step) {
    const auto year = static_cast<std::int64_t>(static_cast<std::uint64_t>(first) + step);
    walked += style == "Julian" ? reference::Julian_Leap(year) : reference::Gregorian_Leap(year);
  }
  Expect(count == walked, "leap years from " + std::to_string(first) + " to " + std::to_string(last) + ": " +
                              std::to_string(count) + ", not " + std::to_string(walked));
}

void Now(Operands operands) {
  static_cast<void>(elapsed::Selection_At(Month_Name(operands, 0), Number(operands, 1), Number(operands, 2),
                                          Number(operands, 3), Number(operands, 4)));
}

constexpr orrivane::fuzz::Command kCommands[] = {
    {"weekday", Weekday}, {"year_date", Year_Date}, {"layout", Layout},   {"select", Select},
    {"convert", Convert}, {"valid", Valid},         {"holiday", Holiday}, {"holidays", Holidays},
    {"keeper", Keeper},   {"elapsed", Elapsed},     {"leap_years", Leap_Years}, {"now", Now},
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orrivane::fuzz::Guard_Input(
      [&] { orrivane::fuzz::Run_Command_Lines(orrivane::fuzz::As_Text(data, size), kCommands); });
}
