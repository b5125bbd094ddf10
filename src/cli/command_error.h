#pragma once
// A failure of one command, told as one line "error: TITLE: TEXT". The title and text are those
// of the message box the windows show for the same failure, or the tool's own for its own
// argument checks.
#include <stdexcept>
#include <string>

#include "core/message.h"

namespace orrivane::cli {

class Command_Error : public std::runtime_error {
 public:
  Command_Error(std::string title, std::string text)
      : std::runtime_error(title + ": " + text), title_(std::move(title)), text_(std::move(text)) {}
  explicit Command_Error(const Message& message) : Command_Error(message.title, message.text) {}

  const std::string& title() const { return title_; }
  const std::string& text() const { return text_; }

 private:
  std::string title_;
  std::string text_;
};

// "error: TITLE: TEXT" on one line: the line breaks of a message box become blanks, and runs of
// blanks one blank.
std::string Error_Line(const std::string& title, const std::string& text);

}  // namespace orrivane::cli
