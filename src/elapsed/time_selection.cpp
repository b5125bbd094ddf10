#include "elapsed/time_selection.h"

#include <algorithm>
#include <array>

#include "core/whole_numbers.h"
#include "engine/calendar_engine.h"

namespace orrivane::elapsed {

namespace {

void Fill_Pair(std::string& coarse, std::string& fine, const std::string& now_coarse, const std::string& now_fine,
               const std::string& fine_under_a_choice) {
  if (coarse.empty()) {
    coarse = now_coarse;
    if (fine.empty()) fine = now_fine;
  } else if (fine.empty()) {
    fine = fine_under_a_choice;
  }
}

}  // namespace

Time_Selection Selection_At(const std::string& Month_Name, long long Date, long long Year, long long Hour,
                            long long Minute) {
  const long long century = Floor_Div(Year, 100);
  // The year in the century as a floored remainder: century * 100 leaves the range of long long
  // for the smallest years.
  const long long year_in_century = (Year % 100 + 100) % 100;
  return {Month_Name,           std::to_string(Date),  std::to_string(century), std::to_string(year_in_century),
          std::to_string(Hour), std::to_string(Minute)};
}

void Fill_In_Blanks(Time_Selection& Selection, const Time_Selection& Now) {
  // A blank date under a chosen month is left for the checks to find.
  if (Selection.Month.empty()) {
    Selection.Month = Now.Month;
    if (Selection.Date.empty()) Selection.Date = Now.Date;
  }
  Fill_Pair(Selection.Century, Selection.Year_In_Century, Now.Century, Now.Year_In_Century, "00");
  Fill_Pair(Selection.Hour, Selection.Minute, Now.Hour, Now.Minute, "00");
}

namespace {

constexpr int kSides = 2;

// The boxes are filled before the checks, so an empty century never comes from the window;
// taken as it stands it would be no number, and it is counted as not numeric.
bool Is_All_Digits(const std::string& text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// The year as the window works it out, as a loosely typed number: a century far out of range
// still gives one, and its date is still checked.
Value Year_Of(const Time_Selection& side) {
  return Value(Value(side.Year_In_Century).number() + Value(side.Century).number() * 100);
}

// One group of checks: the code of its last finding, how many it found.
struct Group {
  int code = 0;
  int count = 0;
  void Found(int finding) {
    code = finding;
    ++count;
  }
};

Group Missing_Dates(const std::array<const Time_Selection*, kSides>& sides) {
  Group group;
  for (int s = 0; s < kSides; ++s) {
    if (sides[s]->Date.empty()) group.Found(1 + s);
  }
  if (group.count > 1) group.code = 7;
  return group;
}

Group Bad_Numbers(const std::array<const Time_Selection*, kSides>& sides, bool dates_given,
                  const std::string& Cal_Style, Selection_Check& check) {
  Group group;
  std::array<bool, kSides> numeric{};
  for (int s = 0; s < kSides; ++s) {
    numeric[s] = Is_All_Digits(sides[s]->Century);
    if (!numeric[s]) group.Found(10 + s);
  }
  for (int s = 0; s < kSides; ++s) {
    if (!numeric[s]) continue;
    const double century = Value(sides[s]->Century).number();
    if (century < 0 || century > 10000) group.Found(12 + s);
  }
  for (int s = 0; s < kSides && dates_given; ++s) {
    if (!numeric[s]) continue;
    const Time_Selection& side = *sides[s];
    const Value year = Year_Of(side);
    const Value length = engine::Is_It_A_Valid_Date(side.Month, "Get Max Days", year, Cal_Style);
    if (engine::Is_It_A_Valid_Date(side.Month, side.Date, year, Cal_Style).number() == 0) {
      group.Found(8 + s);
      check.Month_Name = side.Month;
      check.Month_Length = static_cast<long long>(length.number());
    }
  }
  if (group.count > 1) group.code = 14;
  return group;
}

bool Is_Before_Gregorian_Start(const Time_Selection& side) {
  const double year = Year_Of(side).number();
  const double month = engine::Define_Month(side.Month, "Get Month Number").number();
  const double date = Value(side.Date).number();
  return engine::Is_Before_Gregorian_Start(year, month, date);
}

Group Before_Gregorian_Start(const std::array<const Time_Selection*, kSides>& sides) {
  Group group;
  for (int s = 0; s < kSides; ++s) {
    if (Is_Before_Gregorian_Start(*sides[s])) group.Found(15 + s);
  }
  if (group.count > 1) group.code = 17;
  return group;
}

}  // namespace

Selection_Check Check_Time_Selections(const Time_Selection& Time_1, const Time_Selection& Time_2,
                                      const std::string& Cal_Style) {
  const std::array<const Time_Selection*, kSides> sides{&Time_1, &Time_2};
  Selection_Check check;
  const Group missing = Missing_Dates(sides);
  const Group bad = Bad_Numbers(sides, missing.count == 0, Cal_Style, check);
  Group early;
  if (missing.count == 0 && bad.count == 0 && Cal_Style == "Gregorian") early = Before_Gregorian_Start(sides);
  // One message at most, the first group's that found anything.
  check.Code = missing.code != 0 ? missing.code : bad.code != 0 ? bad.code : early.code;
  if (check.Code != 8 && check.Code != 9) {
    check.Month_Name.clear();
    check.Month_Length = 0;
  }
  return check;
}

namespace {

// For 8 and 9 the text is the end of the message, after the month's length.
const CodedMessage kMessages[] = {
    {1, Exclamation_Message("No Date Selected", "'Time 1' month selected without a corresponding date.")},
    {2, Exclamation_Message("No Date Selected", "'Time 2' month selected without a corresponding date.")},
    {7, Exclamation_Message("No Dates Selected", "When a month is selected, a date must also be selected.")},
    {8, Exclamation_Message("Invalid Date", " days in it for the year you selected for 'Time 1'.")},
    {9, Exclamation_Message("Invalid Date", " days in it for the year you selected for 'Time 2'.")},
    {10, Exclamation_Message("Invalid Year", "The year field for 'Time 1' contains non-numeric characters")},
    {11, Exclamation_Message("Invalid Year", "The year field for 'Time 2' contains non-numeric characters")},
    {12,
     Exclamation_Message("Invalid Year", "Please make sure the year value for 'Time 1' is a value from 0 to 10000")},
    {13,
     Exclamation_Message("Invalid Year", "Please make sure the year value for 'Time 2' is a value from 0 to 10000")},
    {14, Exclamation_Message("Invalid Selections Detected", "Please check that all date and time entries are valid.")},
    {15, Exclamation_Message("Invalid Gregorian Date",
                             "Please be sure the date for 'Time 1' falls on or after October 15, 1582")},
    {16, Exclamation_Message("Invalid Gregorian Date",
                             "Please be sure the date for 'Time 2' falls on or after October 15, 1582")},
    {17, Exclamation_Message("Invalid Dates", "Gregorian dates cannot be before October 15, 1582")},
};

// Only February's message says that the length depends on the year.
std::string Invalid_Date_Text(const Selection_Check& check, const std::string& february_ending) {
  const std::string ending = check.Month_Name == "February" ? february_ending : " days in it.";
  return check.Month_Name + " only has " + std::to_string(check.Month_Length) + ending;
}

}  // namespace

Message Find_Time_Length_Message(const Selection_Check& Check) {
  Message message = Message_Of(kMessages, Check.Code);
  if (Check.Code == 8 || Check.Code == 9) message.text = Invalid_Date_Text(Check, message.text);
  return message;
}

long long Selected_Year(const Time_Selection& Selection) { return Year_Of(Selection).whole(); }

Moment Selected_Moment(const Time_Selection& Selection) {
  Moment moment;
  moment.Minute = Value(Selection.Minute).whole();
  moment.Hour = Value(Selection.Hour).whole();
  moment.Date = Value(Selection.Date).whole();
  moment.Month_Number = engine::Define_Month(Selection.Month, "Get Month Number").whole();
  moment.Four_Digit_Year = Selected_Year(Selection);
  return moment;
}

namespace {

std::string Two_Digits(const std::string& text) { return text.size() == 1 ? "0" + text : text; }

}  // namespace

std::string Moment_Text(const Time_Selection& Selection) {
  return Two_Digits(Selection.Hour) + ":" + Two_Digits(Selection.Minute) + ", " + Selection.Month + " " +
         Selection.Date + ", " + std::to_string(Selected_Year(Selection));
}

Moment Moment_Of_Text(const std::string& Time_String) {
  Moment moment;
  moment.Minute = Value(Parse_Out(Time_String, "Minute")).whole();
  moment.Hour = Value(Parse_Out(Time_String, "Hour")).whole();
  moment.Date = Value(Parse_Out(Time_String, "Date")).whole();
  moment.Month_Number = engine::Define_Month(Parse_Out(Time_String, "Month"), "Get Month Number").whole();
  moment.Four_Digit_Year = Value(Parse_Out(Time_String, "Year")).whole();
  return moment;
}

}  // namespace orrivane::elapsed
