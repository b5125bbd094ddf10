#include "cli/shell_words.h"

namespace orrivane::cli {

namespace {

bool Is_Separator(char c) { return c == ' ' || c == '\t'; }

// Inside double quotes a backslash escapes only these; before anything else it stays.
bool Escapable_In_Double_Quotes(char c) { return c == '\\' || c == '"' || c == '$' || c == '`'; }

// Reads one word from `at` on (the first character is not a separator); moves `at` past it.
std::optional<std::string> Read_Word(std::string_view line, std::size_t& at) {
  std::string word;
  while (at < line.size() && !Is_Separator(line[at])) {
    const char c = line[at++];
    if (c == '\'') {
      const std::size_t close = line.find('\'', at);
      if (close == std::string_view::npos) return std::nullopt;
      word.append(line.substr(at, close - at));
      at = close + 1;
    } else if (c == '"') {
      for (;;) {
        if (at >= line.size()) return std::nullopt;
        const char inner = line[at++];
        if (inner == '"') break;
        if (inner == '\\' && at < line.size() && Escapable_In_Double_Quotes(line[at])) {
          word.push_back(line[at++]);
        } else {
          word.push_back(inner);
        }
      }
    } else if (c == '\\') {
      if (at >= line.size()) return std::nullopt;
      word.push_back(line[at++]);
    } else {
      word.push_back(c);
    }
  }
  return word;
}

}  // namespace

std::optional<std::vector<std::string>> Split_Shell_Words(std::string_view line) {
  std::vector<std::string> words;
  std::size_t at = 0;
  for (;;) {
    while (at < line.size() && Is_Separator(line[at])) ++at;
    if (at >= line.size() || line[at] == '#') return words;
    std::optional<std::string> word = Read_Word(line, at);
    if (!word) return std::nullopt;
    words.push_back(std::move(*word));
  }
}

}  // namespace orrivane::cli
