// orrivane-cal: the calendar engine on the command line. One command from the arguments, or
// many from standard input with "batch".
#include <cstdio>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "cli/command_error.h"
#include "cli/commands.h"

namespace {

void Tell(const std::string& error_line) {
  const std::string line = error_line + "\n";
  std::fwrite(line.data(), 1, line.size(), stderr);
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);  // batch flushes its answers itself, before it waits for input
  const std::vector<std::string> words(argv + 1, argv + argc);
  orrivane::cli::Output out(stdout);
  orrivane::cli::Command_Context context{out};
  const std::optional<std::string> error = orrivane::cli::Run_Command(words, context);
  out.Flush();
  if (error) Tell(*error);
  // An answer that did not reach its reader is no answer.
  if (const std::optional<std::string>& failure = out.Write_Failure()) {
    Tell(orrivane::cli::Error_Line("Output Error", "standard output could not be written: " + *failure + "."));
  }
  return error || out.Write_Failure() ? 1 : 0;
}
