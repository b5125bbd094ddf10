#pragma once
// A failure of one command, told as one line "error: TITLE: TEXT". The title and text are those
// of the message box the windows show for the same failure, or the tool's own for its own
// argument checks.
#include <stdexcept>
#include <string>
#include <string_view>

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

// A word of the input as an error line shows it: between double quotes, its control characters
// escaped (\t, \n, \r, else \xHH), so that what the user typed can be seen and the error stays
// one line that a terminal shows as it is.
std::string Quoted(std::string_view input);

// "error: TITLE: TEXT" on one line: the line breaks of a message box become blanks, and runs of
// blanks one blank.
std::string Error_Line(const std::string& title, const std::string& text);

}  // namespace orrivane::cli
