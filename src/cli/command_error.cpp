#include "cli/command_error.h"

#include "core/text.h"

namespace orrivane::cli {

namespace {

constexpr char kDelete = 0x7f;

bool Is_Control(char c) { return static_cast<unsigned char>(c) < 0x20 || c == kDelete; }

// The escape of a control character: its C name where it has a common one, else its code.
std::string Escape_Of(char c) {
  switch (c) {
    case '\t': return "\\t";
    case '\n': return "\\n";
    case '\r': return "\\r";
    default: {
      static constexpr char kHexDigits[] = "0123456789ABCDEF";
      const auto code = static_cast<unsigned char>(c);
      return {'\\', 'x', kHexDigits[code >> 4], kHexDigits[code & 0xf]};
    }
  }
}

}  // namespace

std::string Quoted(std::string_view input) {
  std::string quoted = "\"";
  for (char c : input) {
    if (Is_Control(c)) {
      quoted += Escape_Of(c);
    } else {
      quoted.push_back(c);
    }
  }
  quoted.push_back('"');
  return quoted;
}

std::string Error_Line(const std::string& title, const std::string& text) {
  return text::One_Line("error: " + title + ": " + text);
}

}  // namespace orrivane::cli
