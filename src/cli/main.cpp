// orrivane-cal: the calendar engine on the command line. One command from the arguments, or
// many from standard input with "batch".
#include <cstdio>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "cli/commands.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);  // batch flushes its answers itself, before it waits for input
  const std::vector<std::string> words(argv + 1, argv + argc);
  std::optional<std::string> error;
  {
    orrivane::cli::Output out(stdout);
    orrivane::cli::Command_Context context{out};
    error = orrivane::cli::Run_Command(words, context);
  }
  if (!error) return 0;
  const std::string line = *error + "\n";
  std::fwrite(line.data(), 1, line.size(), stderr);
  return 1;
}
