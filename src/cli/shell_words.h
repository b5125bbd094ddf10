#pragma once
// A command line of the batch input split into words as a POSIX shell splits them, without any
// expansion: blanks and tabs separate words; 'single quotes' keep everything; "double quotes"
// keep everything but \\ \" \$ \` (a backslash before them is dropped); a backslash outside
// quotes keeps the next character; a word that begins with # starts a comment.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orrivane::cli {

// The words of one line as views: a word written as it stands is seen in the line itself, a
// word with quotes or backslashes in `unquoted`, where it is written without them. The views
// hold while the line and this object stand unchanged. Kept from line to line, the two keep
// their room.
struct Shell_Words {
  std::vector<std::string_view> words;
  std::string unquoted;
};

// False when a quotation is left open or the line ends in a backslash.
bool Split_Shell_Words(std::string_view line, Shell_Words& into);

// The words of the line as strings of their own; nothing where the other answers false.
std::optional<std::vector<std::string>> Split_Shell_Words(std::string_view line);

}  // namespace orrivane::cli
