// batch: one command a line from standard input, each answer (or error line) followed by one
// empty line on standard output, to the end of the input.
#include <iostream>
#include <string>
#include <string_view>

#include "cli/command_error.h"
#include "cli/commands.h"
#include "cli/shell_words.h"

namespace orrivane::cli {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// The answers wait in the output buffer while more input is at hand, and go out before the
// tool would sit waiting for a line: fast on a file, prompt in a dialogue through pipes.
bool Next_Line(std::istream& in, Output& out, std::string& line) {
  if (in.rdbuf()->in_avail() <= 0) out.Flush();
  if (!std::getline(in, line)) return false;
  if (!line.empty() && line.back() == '\r') line.pop_back();  // a line ended by CR LF
  return true;
}

// `words` is the room for the line's words, kept from line to line.
void Run_Line(const std::string& line, Shell_Words& words, Command_Context& context) {
  std::optional<std::string> error;
  if (!Split_Shell_Words(line, words)) {
    error = Error_Line("Usage", "the line ends inside quotes or after a backslash.");
  } else if (words.words.empty()) {
    return;  // nothing but blanks or a comment
  } else {
    error = Run_Command_In_Place(words.words, context);
  }
  if (error) context.out.Line(*error);
  context.out.Line("");
}

}  // namespace

void Run_Batch(const Arguments&, Command_Context& context) {
  if (context.in_batch) throw Command_Error("Usage", "batch does not run inside batch.");
  std::istream& in = std::cin;
  Output& out = context.out;
  Command_Context batch{out, true};
  std::string line;
  Shell_Words words;
  if (!Next_Line(in, out, line)) return;
  // A byte-order mark, which some editors put at the start of a text file, is no command.
  if (line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
  // Once the answers cannot be written, the rest would be answered to nobody.
  do {
    Run_Line(line, words, batch);
  } while (!out.Write_Failure() && Next_Line(in, out, line));
}

}  // namespace orrivane::cli
