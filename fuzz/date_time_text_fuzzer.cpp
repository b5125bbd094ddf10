// The date and time texts and what converts them: the Organizer's parsers and converters, the
// month and weekday vocabulary, the system date of the calendar, the moment texts and the box
// checks of the Find Time Length window, the entry checks of the month and date windows.
//
// One command a line; operands between bars where they may hold blanks:
//   time|TEXT                 the three time parsers, every part
//   date|TEXT                 the two date parsers, the system date, the moment text
//   format|MONTH|DATE|YEAR    Convert_To_Date_Format, and the date parser on its answer
//   hour|HOUR|DAY HALF        the 12/24-hour converters, with the hour as text and as number
//   month|TEXT                Define_Month and Define_Weekday with every verb, style names
//   leap|YEAR|STYLE           the leap rule and a month's length for a year written as text
//   selection|M|D|C|Y|H|MI|M|D|C|Y|H|MI|STYLE   the two sides of Find Time Length
//   select_month|MONTH|YEAR|STYLE              View Month On Calendar's entry check
//   find_a_date|STYLE|MONTH|DATE|CENTURY|YEAR  Find The Weekday Of A Date's field check
#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "calendar/select_month_check.h"
#include "elapsed/date_difference.h"
#include "elapsed/time_selection.h"
#include "engine/calendar_engine.h"
#include "fuzz_harness.h"
#include "organizer/date_time_text.h"

namespace {

using orrivane::Value;
using orrivane::fuzz::Defined;
using orrivane::fuzz::Expect;
using orrivane::fuzz::Operand;
using Operands = std::span<const std::string_view>;
namespace organizer = orrivane::organizer;
namespace engine = orrivane::engine;
namespace elapsed = orrivane::elapsed;

std::string Text(Operands operands, std::size_t i) { return std::string(Operand(operands, i)); }

// A text, and the number it stands for when it is one: fields come in either form.
std::array<Value, 2> Both_Forms(const std::string& text) {
  std::array<Value, 2> forms{Value(text), Value(text)};
  Defined([&] { forms[1] = Value(text).plus_zero(); });
  return forms;
}

void Time(Operands operands) {
  const Value time(Text(operands, 0));
  for (const char* part : {"Hour", "Minute", "Second", "Time Of Day", "Day"}) {
    Defined([&] { static_cast<void>(organizer::Parse_System_Time(time, part)); });
    Defined([&] { static_cast<void>(organizer::Parse_Output_Style_12h_Time(time, part)); });
    Defined([&] { static_cast<void>(organizer::Parse_Output_Style_24h_Time(time, part)); });
  }
}

void Date(Operands operands) {
  const std::string text = Text(operands, 0);
  for (const char* part : {"Year", "Month", "Date", "Day"}) {
    Defined([&] { static_cast<void>(organizer::Parse_Date(Value(text), part)); });
    Defined([&] { static_cast<void>(organizer::Parse_Output_Style_Date(Value(text), part)); });
  }
  for (const char* part : {"Hour", "Minute", "Month", "Date", "Year", "Second"}) {
    Defined([&] { static_cast<void>(elapsed::Parse_Out(text, part)); });
  }
  Defined([&] { static_cast<void>(engine::Calendarr_Compute(engine::Calendarr_Date_From_System_Date(text))); });
  Defined([&] { static_cast<void>(elapsed::Moment_Of_Text(text)); });
}

// The system date built from the parts gives its date and year back, where they hold no slash.
void Format(Operands operands) {
  const std::string date = Text(operands, 1);
  const std::string year = Text(operands, 2);
  for (const Value& month : Both_Forms(Text(operands, 0))) {
    const Value built = organizer::Convert_To_Date_Format(month, date, year);
    if (date.find('/') != std::string::npos || year.find('/') != std::string::npos) continue;
    Expect(organizer::Parse_Date(built, "Date").text() == date, "the date of " + built.text() + " is not " + date);
    Expect(organizer::Parse_Date(built, "Year").text() == year, "the year of " + built.text() + " is not " + year);
  }
}

// From the 24-hour clock to the 12-hour clock and back gives the hour again.
void Check_Clock_Round_Trip(std::int64_t hour) {
  if (hour < 0 || hour > 23) return;
  const Value twelve = organizer::Convert_Hour_From_Military_Time(Value(hour), "Hour");
  const Value half = organizer::Convert_Hour_From_Military_Time(Value(hour), "Time Of Day");
  const Value back = organizer::Convert_Hour_To_Military_Time(twelve, half);
  Expect(back == Value(hour), "the hour " + std::to_string(hour) + " comes back as " + back.text());
}

void Hour(Operands operands) {
  const std::string half = Text(operands, 1);
  for (const Value& hour : Both_Forms(Text(operands, 0))) {
    Defined([&] { static_cast<void>(organizer::Convert_Hour_To_Military_Time(hour, Value(half))); });
    for (const char* part : {"Hour", "Time Of Day", half.c_str()}) {
      Defined([&] { static_cast<void>(organizer::Convert_Hour_From_Military_Time(hour, part)); });
    }
  }
  Defined([&] { Check_Clock_Round_Trip(Value(Text(operands, 0)).whole()); });
}

constexpr std::array<const char*, 9> kMonthVerbs{
    "Get Max Days",     "Get Max Days Leap Year",          "Get Month Name",
    "Get Three Letter Month Name",                          "Get Month Number",
    "Get Base Date Weekday Greg 2000",                      "Get Base Date Weekday Jul 2000",
    "After Leap Date?", "Get Weekday Name"};

void Month(Operands operands) {
  const std::string text = Text(operands, 0);
  for (const Value& month : Both_Forms(text)) {
    for (const char* verb : kMonthVerbs) static_cast<void>(engine::Define_Month(month, verb));
    static_cast<void>(engine::Define_Weekday(month, "Get Weekday Name"));
    static_cast<void>(engine::Define_Weekday(month, "Get Weekday Number"));
    static_cast<void>(engine::Numeric_To_Text_Month(month));
    for (const char* style : {"Gregorian", "Julian"}) {
      Defined([&] { static_cast<void>(engine::Is_It_A_Leap_Year(month, style)); });
      Defined([&] { static_cast<void>(engine::Is_It_A_Valid_Date(month, "Get Max Days", month, style)); });
      Defined([&] { static_cast<void>(engine::Is_It_A_Valid_Date(month, month, Value(2000), style)); });
    }
  }
  static_cast<void>(engine::Calendar_Style_From_Text(text));
}

// The magnitude of a year written as a whole number (a sign, then digits only); nothing for
// any other text, or for more than 15 digits: up to 10^15 the loose value holds every whole
// number exactly (beyond 2^53 it does not, and a year beyond 64 bits is taken as the loose value
// keeps it: the date checks of Find Time Length still answer for a century far out of range).
std::optional<std::int64_t> Exact_Year_Magnitude(std::string_view text) {
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
  if (text.empty() || text.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
  text.remove_prefix(std::min(text.find_first_not_of('0'), text.size() - 1));
  if (text.size() > 15) return std::nullopt;
  return std::stoll(std::string(text));
}

// Divisibility does not depend on the sign, so the rule can be checked on the magnitude.
void Check_Leap_Rule(const Value& year, const std::string& style, std::int64_t magnitude) {
  const bool expected =
      magnitude % 400 == 0 || (magnitude % 100 == 0 ? style == "Julian" : magnitude % 4 == 0);
  Expect(engine::Is_It_A_Leap_Year(year, style) == expected, "the leap rule is wrong for " + year.text());
}

void Leap(Operands operands) {
  const std::string text = Text(operands, 0);
  const std::string style = Text(operands, 1);
  for (const Value& year : Both_Forms(text)) {
    Defined([&] { static_cast<void>(engine::Is_It_A_Leap_Year(year, style)); });
    Defined([&] { static_cast<void>(engine::Is_It_A_Valid_Date("February", "Get Max Days", year, style)); });
    Defined([&] { static_cast<void>(engine::Is_It_A_Valid_Date("February", 29, year, style)); });
  }
  if (const std::optional<std::int64_t> magnitude = Exact_Year_Magnitude(text)) {
    Check_Leap_Rule(Value(text), style, *magnitude);
  }
}

elapsed::Time_Selection Side(Operands operands, std::size_t first) {
  return {Text(operands, first),     Text(operands, first + 1), Text(operands, first + 2),
          Text(operands, first + 3), Text(operands, first + 4), Text(operands, first + 5)};
}

// What the window does with its two sides: blanks filled, the checks, then the measure.
void Selection(Operands operands) {
  elapsed::Time_Selection one = Side(operands, 0);
  elapsed::Time_Selection two = Side(operands, 6);
  const std::string style = Text(operands, 12);
  const elapsed::Time_Selection now = elapsed::Selection_At("March", 5, 2001, 14, 30);
  elapsed::Fill_In_Blanks(one, now);
  elapsed::Fill_In_Blanks(two, now);
  elapsed::Selection_Check check;
  Defined([&] { check = elapsed::Check_Time_Selections(one, two, style); });
  static_cast<void>(elapsed::Find_Time_Length_Message(check));
  if (check.Code != 0) return;
  Defined([&] {
    const std::string text = elapsed::Moment_Text(one);
    static_cast<void>(elapsed::Moment_Of_Text(text));
    const elapsed::Ticked_Units every{true, true, true, true, true};
    static_cast<void>(elapsed::Display_Time_Difference(style, elapsed::Selected_Moment(one),
                                                       elapsed::Selected_Moment(two),
                                                       elapsed::Display_Option::Remaining, every));
  });
}

void Select_Month(Operands operands) {
  const int status = orrivane::calendar::Select_Month_Entry_Status(Text(operands, 0), Text(operands, 1),
                                                                    Text(operands, 2));
  static_cast<void>(orrivane::calendar::Select_Month_Entry_Message(status));
}

void Find_A_Date(Operands operands) {
  static_cast<void>(engine::Form1_Field_Validation_Check_Status(
      {Text(operands, 0), Text(operands, 1), Text(operands, 2), Text(operands, 3), Text(operands, 4)}));
}

constexpr orrivane::fuzz::Command kCommands[] = {
    {"time", Time},           {"date", Date},
    {"format", Format},       {"hour", Hour},
    {"month", Month},         {"leap", Leap},           {"selection", Selection},
    {"select_month", Select_Month}, {"find_a_date", Find_A_Date},
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orrivane::fuzz::Guard_Input(
      [&] { orrivane::fuzz::Run_Command_Lines(orrivane::fuzz::As_Text(data, size), kCommands); });
}
