#include "cli/shell_words.h"

#include <array>

namespace orrivane::cli {

namespace {

bool Is_Separator(char c) { return c == ' ' || c == '\t'; }

// Room for the words of any command of the tool without growing.
constexpr std::size_t kUsualWords = 8;

// The characters that end a run of characters taken as they stand, as a table: the run is
// the most of every line.
constexpr std::array<bool, 256> kEndsPlainRun = [] {
  std::array<bool, 256> ends{};
  for (unsigned char c : std::string_view(" \t'\"\\")) ends[c] = true;
  return ends;
}();
bool Ends_Plain_Run(char c) { return kEndsPlainRun[static_cast<unsigned char>(c)]; }

// Inside double quotes a backslash escapes only these; before anything else it stays.
bool Escapable_In_Double_Quotes(char c) { return c == '\\' || c == '"' || c == '$' || c == '`'; }

// Reads one word from `at` on (the first character is not a separator) into `word`; moves `at`
// past it. False when a quotation is left open or the line ends in a backslash.
bool Read_Word(std::string_view line, std::size_t& at, std::string& word) {
  while (at < line.size() && !Is_Separator(line[at])) {
    // Most words are plain from end to end: taken in one piece.
    std::size_t plain_end = at;
    while (plain_end < line.size() && !Ends_Plain_Run(line[plain_end])) ++plain_end;
    word.append(line.substr(at, plain_end - at));
    at = plain_end;
    if (at >= line.size() || Is_Separator(line[at])) break;
    const char c = line[at++];
    if (c == '\'') {
      const std::size_t close = line.find('\'', at);
      if (close == std::string_view::npos) return false;
      word.append(line.substr(at, close - at));
      at = close + 1;
    } else if (c == '"') {
      for (;;) {
        if (at >= line.size()) return false;
        const char inner = line[at++];
        if (inner == '"') break;
        if (inner == '\\' && at < line.size() && Escapable_In_Double_Quotes(line[at])) {
          word.push_back(line[at++]);
        } else {
          word.push_back(inner);
        }
      }
    } else {  // a backslash
      if (at >= line.size()) return false;
      word.push_back(line[at++]);
    }
  }
  return true;
}

// The room of a word, reusing a string left from an earlier line where there is one.
std::string& Room_For_Word(std::vector<std::string>& words, std::size_t index) {
  if (index == words.size()) return words.emplace_back();
  words[index].clear();
  return words[index];
}

}  // namespace

bool Split_Shell_Words(std::string_view line, std::vector<std::string>& words) {
  words.reserve(kUsualWords);
  std::size_t count = 0;
  std::size_t at = 0;
  bool complete = true;
  for (;;) {
    while (at < line.size() && Is_Separator(line[at])) ++at;
    if (at >= line.size() || line[at] == '#') break;
    if (!Read_Word(line, at, Room_For_Word(words, count++))) {
      complete = false;
      break;
    }
  }
  words.resize(count);
  return complete;
}

std::optional<std::vector<std::string>> Split_Shell_Words(std::string_view line) {
  std::vector<std::string> words;
  if (!Split_Shell_Words(line, words)) return std::nullopt;
  return words;
}

}  // namespace orrivane::cli
