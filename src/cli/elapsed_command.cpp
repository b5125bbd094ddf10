// elapsed: the time between two moments as the Find Time Length window measures it, FROM in the
// place of 'Time 1' and TO in the place of 'Time 2', with that window's checks and messages.
#include <algorithm>
#include <array>
#include <string>

#include "cli/calendar_arguments.h"
#include "cli/command_error.h"
#include "cli/commands.h"
#include "core/runtime_failure.h"
#include "elapsed/date_difference.h"
#include "elapsed/time_selection.h"

namespace orrivane::cli {

namespace {

using elapsed::Time_Selection;
using elapsed::Time_Unit;

// The five result rows, coarse to fine: their heading and their letter in --units.
struct Unit_Row {
  Time_Unit unit;
  const char* heading;
  char letter;
};
constexpr std::array<Unit_Row, elapsed::kTimeUnits> kUnitRows{{
    {Time_Unit::Years, "Years", 'y'},
    {Time_Unit::Months, "Months", 'm'},
    {Time_Unit::Days, "Days", 'd'},
    {Time_Unit::Hours, "Hours", 'h'},
    {Time_Unit::Minutes, "Minutes", 'M'},
}};

constexpr char kMomentForm[] = "HH:MM, Month D, YYYY";

// Beyond this many digits a year is far above the window's largest (century 10000, year 99),
// and its double would no longer tell its leap years; see Century_And_Year.
constexpr std::size_t kLongestYear = 15;

const Unit_Row& Row_Of_Letter(char letter) {
  for (const Unit_Row& row : kUnitRows) {
    if (row.letter == letter) return row;
  }
  throw Command_Error("Invalid Units", Quoted(std::string_view(&letter, 1)) + " is none of the letters y, m, d, h, M.");
}

// The ticks of the remaining mode: the letters of --units, every unit when it is not given.
elapsed::Ticked_Units Ticked_Units_Of(std::optional<std::string_view> letters) {
  elapsed::Ticked_Units ticked{};
  ticked.fill(!letters);
  if (!letters) return ticked;
  for (char letter : *letters) ticked[elapsed::Unit_Index(Row_Of_Letter(letter).unit)] = true;
  return ticked;
}

[[noreturn]] void Moment_Error(const std::string& moment) {
  throw Command_Error("Invalid Moment", Quoted(moment) + " is not of the form " + kMomentForm + ".");
}

// An hour or minute as the boxes hold it: one or two digits, up to `largest`.
bool Is_Clock_Field(const std::string& field, int largest) {
  return Is_All_Digits(field) && field.size() <= 2 && std::stoi(field) <= largest;
}

// The year box pair of a written year: century (the year div 100) and year in century (mod 100).
// A year that is not all digits stays whole in the century box, which the checks then find not
// numeric. Leading zeros say nothing. A year longer than kLongestYear digits is far out of range
// whatever its value; its last four digits (which alone decide its leap years) are kept under a
// stand-in century.
void Century_And_Year(std::string year, Time_Selection& selection) {
  if (!Is_All_Digits(year)) {
    selection.Century = year;
    selection.Year_In_Century = "00";
    return;
  }
  year.erase(0, std::min(year.find_first_not_of('0'), year.size() - 1));
  if (year.size() > kLongestYear) year = std::string(kLongestYear - 4, '9') + year.substr(year.size() - 4);
  const std::size_t split = year.size() > 2 ? year.size() - 2 : 0;
  selection.Century = split > 0 ? year.substr(0, split) : "0";
  selection.Year_In_Century = year.substr(split);
}

// A moment in the window's moment text, "09:05, March 1, 2001", taken apart as the window takes
// its labels apart, into the boxes of one side. The text must be of that form exactly; the month
// may be any form of the month vocabulary, and the date any digits (or none).
Time_Selection Selection_Of(std::string_view moment_text) {
  const std::string moment(moment_text);
  std::array<std::string, 5> parts;  // hour, minute, month, date, year
  try {
    static constexpr std::array<const char*, 5> kParts{"Hour", "Minute", "Month", "Date", "Year"};
    for (std::size_t i = 0; i < parts.size(); ++i) parts[i] = elapsed::Parse_Out(moment, kParts[i]);
  } catch (const RuntimeFailure&) {
    Moment_Error(moment);  // a separator is missing
  }
  const auto& [hour, minute, month, date, year] = parts;
  const bool well_formed = hour + ":" + minute + ", " + month + " " + date + ", " + year == moment;
  const bool date_well_formed = date.empty() || Is_All_Digits(date);
  if (!well_formed || !Is_Clock_Field(hour, 23) || !Is_Clock_Field(minute, 59) || !date_well_formed) {
    Moment_Error(moment);
  }
  const std::optional<std::string> month_name = Month_Name_Of(month);
  if (!month_name) Moment_Error(moment);

  Time_Selection selection;
  selection.Month = *month_name;
  selection.Date = date;
  selection.Hour = hour;
  selection.Minute = minute;
  Century_And_Year(year, selection);
  return selection;
}

}  // namespace

void Run_Elapsed(const Arguments& arguments, Command_Context& context) {
  const bool total = arguments.Has("--total");
  const std::optional<std::string_view> units = arguments.Value_Of("--units");
  if (total && units) {
    throw Command_Error("Usage", "--total and --units exclude each other: " + Usage_Of("elapsed"));
  }
  const elapsed::Ticked_Units ticked = Ticked_Units_Of(units);
  const std::string style = engine::Calendar_Style_Name(Style_Of(arguments));
  const Time_Selection time_1 = Selection_Of(arguments.operands[0]);
  const Time_Selection time_2 = Selection_Of(arguments.operands[1]);

  const elapsed::Selection_Check check = elapsed::Check_Time_Selections(time_1, time_2, style);
  if (check.Code != 0) {
    throw Command_Error(elapsed::Find_Time_Length_Message(check));
  }
  const elapsed::Display_Option option = total ? elapsed::Display_Option::Total : elapsed::Display_Option::Remaining;
  const std::optional<elapsed::Time_Rows> rows = elapsed::Display_Time_Difference(
      style, elapsed::Selected_Moment(time_1), elapsed::Selected_Moment(time_2), option, ticked);
  for (const Unit_Row& row : kUnitRows) {
    context.out.Line(std::string(row.heading) + ": " + (*rows)[elapsed::Unit_Index(row.unit)]);
  }
}

}  // namespace orrivane::cli
