#include "cli/command_error.h"

#include "core/text.h"

namespace orrivane::cli {

std::string Error_Line(const std::string& title, const std::string& text) {
  return text::One_Line("error: " + title + ": " + text);
}

}  // namespace orrivane::cli
