// weekday, month and convert: the calendar engine's weekday, month layout and style conversion,
// with the checks and messages of the windows that ask for them.
#include <array>
#include <string>

#include "calendar/select_month_check.h"
#include "cli/calendar_arguments.h"
#include "cli/command_error.h"
#include "cli/commands.h"
#include "core/value.h"
#include "engine/calendar_engine.h"

namespace orrivane::cli {

namespace {

constexpr char kWeekdayHeading[] = " S  M  T  W  T  F  S";

// One row of the grid: each caption right-aligned in two characters, one blank between cells.
std::string Grid_Row(const engine::MonthGrid& grid, int row) {
  std::string line;
  for (int column = 0; column < engine::kGridColumns; ++column) {
    const std::string& caption = grid[static_cast<std::size_t>(row * engine::kGridColumns + column)].caption;
    if (column > 0) line.push_back(' ');
    if (caption.size() < 2) line.append(2 - caption.size(), ' ');
    line.append(caption);
  }
  return line;
}

constexpr int kDaysInWeek = 7;  // weekdays 1 (Sunday) to 7 (Saturday)

// The name of a weekday 1 to 7, as the vocabulary names it, asked once for each.
const std::string& Weekday_Name(int weekday) {
  static const std::array<std::string, kDaysInWeek + 1> kNames = [] {
    std::array<std::string, kDaysInWeek + 1> names;
    for (int day = 1; day <= kDaysInWeek; ++day) {
      names[static_cast<std::size_t>(day)] = engine::Define_Weekday(day, "Get Weekday Name").text();
    }
    return names;
  }();
  return kNames.at(static_cast<std::size_t>(weekday));
}

}  // namespace

// The weekday of a date as the main grid's Calendarr decides it, its message when it refuses.
void Run_Weekday(const Arguments& arguments, Command_Context& context) {
  std::string month = Required_Month_Name(arguments.operands[0]);
  const Day day = Day_Of(arguments.operands[1]);
  const std::int64_t year = Year_Of(arguments.operands[2]);
  const engine::CalendarrDate when =
      engine::Calendarr_Date_From_Year(std::move(month), day.value, year, Style_Of(arguments));
  const engine::CalendarrResult result = engine::Calendarr_Compute(when);
  if (result.error_code != 0) throw Command_Error(Refusal_Of_Day(result.message, day));
  context.out.Line(Weekday_Name(result.weekday));
}

// The month as "View Month On Calendar" draws it, after that window's checks. An empty month is
// a month not chosen; the year is the text of the year box.
void Run_Month(const Arguments& arguments, Command_Context& context) {
  const std::string_view month_text = arguments.operands[0];
  const std::string month = month_text.empty() ? std::string() : Required_Month_Name(month_text);
  const std::string year_text(arguments.operands[1]);  // the text of the year box
  const engine::CalendarStyle style = Style_Of(arguments);
  const int status = calendar::Select_Month_Entry_Status(month, year_text, engine::Calendar_Style_Name(style));
  if (status != calendar::kSelectMonthAccepted) throw Command_Error(calendar::Select_Month_Entry_Message(status));

  const std::int64_t year = Value(year_text).whole();
  const engine::MonthGrid grid = engine::Select_Month_Grid(month, year, style);
  context.out.Line(month + " " + std::to_string(year));
  context.out.Line(kWeekdayHeading);
  for (int row = 0; row < engine::kGridRows; ++row) context.out.Line(Grid_Row(grid, row));
}

// The date in the other style and the days between, as the Date Conversion window shows them.
void Run_Convert(const Arguments& arguments, Command_Context& context) {
  engine::ConvertDate date;
  date.month = Required_Month_Name(arguments.operands[0]);
  const Day day = Day_Of(arguments.operands[1]);
  date.date = day.value;
  date.year = Year_Of(arguments.operands[2]);
  date.style = Style_Of(arguments);
  const engine::ConvertResult result = engine::Convert_Compute(date);
  if (result.error_code != 0) throw Command_Error(Refusal_Of_Day(result.message, day));
  context.out.Line(result.lblDate2 + "\t" + result.lblDifference);
}

}  // namespace orrivane::cli
