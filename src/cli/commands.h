#pragma once
// The commands of orrivane-cal: a table of names, usages, options and handlers, the parsing of
// a command's words against its row, and the one place where a command's failure becomes its
// error line.
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/output.h"

namespace orrivane::cli {

// The words of a command after its name, sorted into options and operands.
struct Arguments {
  std::span<const std::string> operands;  // within the words of the command
  std::vector<std::pair<std::string, std::string>> options;  // "--units", "ymd"; flags have ""

  bool Has(std::string_view option) const;
  // The value of the option given last, or nothing.
  const std::string* Value_Of(std::string_view option) const;
};

// What a handler works with: where its answer goes, and whether it runs inside a batch.
struct Command_Context {
  Output& out;
  bool in_batch = false;
};

// Runs one command, its words without the program's name. The answer goes to the context's
// output; a failure comes back as its error line ("error: TITLE: TEXT"), nothing is thrown.
std::optional<std::string> Run_Command(std::vector<std::string> words, Command_Context& context);

// The same on words that the caller keeps (a batch, from line to line); they are reordered.
std::optional<std::string> Run_Command_In_Place(std::vector<std::string>& words, Command_Context& context);

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
