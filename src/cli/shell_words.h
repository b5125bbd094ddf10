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

// The words of the line; nothing when a quotation is left open or the line ends in a backslash.
std::optional<std::vector<std::string>> Split_Shell_Words(std::string_view line);

// The same into `words`, which is emptied first and keeps its room from line to line; false
// where the other answers nothing.
bool Split_Shell_Words(std::string_view line, std::vector<std::string>& words);

}  // namespace orrivane::cli
