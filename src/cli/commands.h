#pragma once
// The commands of orrivane-cal: a table of names, usages, options and handlers, the parsing of
// a command's words against its row, and the one place where a command's failure becomes its
// error line.
#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/output.h"

namespace orrivane::cli {

// The most options a command has.
inline constexpr std::size_t kMostOptions = 4;

// The words of a command after its name, sorted into options and operands. Both are views into
// the words the command was given, and hold while those do.
struct Arguments {
  std::span<const std::string_view> operands;
  // Each option given, once, with the value given last ("--units", "ymd"; a flag has "").
  std::array<std::pair<std::string_view, std::string_view>, kMostOptions> options{};
  std::size_t option_count = 0;

  bool Has(std::string_view option) const;
  // The value of the option given last, or nothing.
  std::optional<std::string_view> Value_Of(std::string_view option) const;
  // Takes an option in; one given again only changes its value.
  void Give(std::string_view option, std::string_view value);
};

// What a handler works with: where its answer goes, and whether it runs inside a batch.
struct Command_Context {
  Output& out;
  bool in_batch = false;
};

// Runs one command, its words without the program's name. The answer goes to the context's
// output; a failure comes back as its error line ("error: TITLE: TEXT"), nothing is thrown.
std::optional<std::string> Run_Command(const std::vector<std::string>& words, Command_Context& context);

// The same on views of the words (a batch's line), which are reordered: operands first.
std::optional<std::string> Run_Command_In_Place(std::vector<std::string_view>& words, Command_Context& context);

// ---- The handlers of the table. Each throws Command_Error (or the core's RuntimeFailure). ----

void Run_Weekday(const Arguments& arguments, Command_Context& context);
void Run_Month(const Arguments& arguments, Command_Context& context);
void Run_Convert(const Arguments& arguments, Command_Context& context);
void Run_Holidays(const Arguments& arguments, Command_Context& context);
void Run_Elapsed(const Arguments& arguments, Command_Context& context);
void Run_Calc(const Arguments& arguments, Command_Context& context);
void Run_Minutes(const Arguments& arguments, Command_Context& context);
void Run_Remaining(const Arguments& arguments, Command_Context& context);
void Run_Due(const Arguments& arguments, Command_Context& context);
void Run_Tasks(const Arguments& arguments, Command_Context& context);
void Run_Ics(const Arguments& arguments, Command_Context& context);
void Run_Batch(const Arguments& arguments, Command_Context& context);
void Run_Help(const Arguments& arguments, Command_Context& context);
void Run_Version(const Arguments& arguments, Command_Context& context);

// The usage line of a command ("orrivane-cal weekday  [--julian] MONTH DAY YEAR").
std::string Usage_Of(std::string_view command);

}  // namespace orrivane::cli
