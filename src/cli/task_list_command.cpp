// tasks: a member's task list as the Organizer builds it, with or without its date filter.
#include <algorithm>
#include <optional>
#include <string>

#include "cli/commands.h"
#include "cli/reminder_arguments.h"
#include "organizer/task_list.h"

namespace orrivane::cli {

namespace {

constexpr int kBoxOn = 1;
constexpr int kBoxOff = 0;

// A bound given as an option, or the caption of a bound that takes no part.
std::string Bound_Caption(std::optional<std::string_view> bound) {
  if (!bound) return std::string(organizer::kNoDateSelected);
  std::string caption(*bound);
  Check_Filter_Bound(caption);
  return caption;
}

// "Display Only Filtered" when a bound is given, with the check boxes as given (both on when
// neither is); "Display All" otherwise.
std::optional<organizer::TaskFilter> Filter_Of(const Arguments& arguments) {
  const std::optional<std::string_view> after = arguments.Value_Of("--after");
  const std::optional<std::string_view> before = arguments.Value_Of("--before");
  if (!after && !before) return std::nullopt;
  const bool start = arguments.Has("--start");
  const bool finish = arguments.Has("--finish");
  const bool neither = !start && !finish;
  return organizer::Task_Filter_Of(Bound_Caption(after), Bound_Caption(before), start || neither ? kBoxOn : kBoxOff,
                                   finish || neither ? kBoxOn : kBoxOff);
}

}  // namespace

void Run_Tasks(const Arguments& arguments, Command_Context& context) {
  const std::optional<organizer::TaskFilter> filter = Filter_Of(arguments);
  std::vector<std::string> entries =
      organizer::Member_Task_Entries(std::string(arguments.operands[0]), std::string(arguments.operands[1]), filter);
  // The list keeps its entries sorted by their text, byte by byte.
  std::sort(entries.begin(), entries.end());
  for (const std::string& entry : entries) context.out.Line(entry);
}

}  // namespace orrivane::cli
