// holidays: the find-a-holiday window's list, one holiday over a range of years ("By Holiday")
// or every holiday of each year ("Display All By Year"), with that window's checks.
#include <string>

#include "cli/command_error.h"
#include "cli/commands.h"
#include "core/value.h"
#include "holidays/holiday_rules.h"

namespace orrivane::cli {

namespace {

// Each list line straight to the output, as the window adds it to its list.
class Line_Printer : public holidays::Holiday_Receiver {
 public:
  explicit Line_Printer(Output& out) : out_(out) {}
  void Add_List_Line(std::string line) override { out_.Line(line); }

 private:
  Output& out_;
};

// The year boxes: the first year, and the last when a range is asked for (otherwise empty, as
// the window's unticked range box leaves it out).
struct Year_Boxes {
  Value from;
  Value to;
  bool range_of_years;
};

Year_Boxes Year_Boxes_Of(const Arguments& arguments) {
  const bool range = arguments.operands.size() > 1;
  return {Value(arguments.operands[0]), range ? Value(arguments.operands[1]) : Value(std::string()), range};
}

void By_Holiday(const std::string& name, Year_Boxes years, Output& out) {
  // The window offers the names of its list; an empty name is a holiday not chosen.
  if (!name.empty() && !holidays::Holiday_Number(name)) {
    throw Command_Error("Unknown Holiday", Quoted(name) + " is no holiday of the list.");
  }
  Line_Printer printer(out);
  const holidays::Holiday_Answer answer =
      holidays::Display_Holiday_II(name, years.from, years.to, holidays::kFindAHolidayCaller,
                                   {.by_holiday = true, .range_of_years = years.range_of_years}, printer);
  if (answer.error_code != holidays::kHolidayNoError) {
    throw Command_Error(holidays::Holiday_Error_Message(answer.error_code, name));
  }
}

void All_By_Year(const Year_Boxes& years, Output& out) {
  const holidays::All_Holidays_Years checked =
      holidays::Check_Years_For_All_Holidays(years.from, years.to, years.range_of_years);
  if (checked.error_code != holidays::kHolidayNoError) {
    throw Command_Error(holidays::All_Holidays_Error_Message(checked.error_code));
  }
  Line_Printer printer(out);
  holidays::Display_All_Holidays_For_Years(checked.from, checked.to, printer);
}

}  // namespace

void Run_Holidays(const Arguments& arguments, Command_Context& context) {
  const Year_Boxes years = Year_Boxes_Of(arguments);
  if (const std::optional<std::string_view> name = arguments.Value_Of("--holiday")) {
    By_Holiday(std::string(*name), years, context.out);
  } else {
    All_By_Year(years, context.out);
  }
}

}  // namespace orrivane::cli
