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

// Where the run of characters taken as they stand, from `at` on, ends.
std::size_t Plain_Run_End(std::string_view line, std::size_t at) {
  const char* c = line.data() + at;
  const char* const end = line.data() + line.size();
  while (c != end && !kEndsPlainRun[static_cast<unsigned char>(*c)]) ++c;
  return static_cast<std::size_t>(c - line.data());
}

bool Ends_Word(std::string_view line, std::size_t at) { return at >= line.size() || Is_Separator(line[at]); }

// Inside double quotes a backslash escapes only these; before anything else it stays.
bool Escapable_In_Double_Quotes(char c) { return c == '\\' || c == '"' || c == '$' || c == '`'; }

// Writes the rest of a word, from the quote or backslash at `at` on, into `word`, taking the
// quotes and backslashes out; moves `at` past it. False when a quotation is left open or the
// line ends in a backslash.
bool Unquote_Rest_Of_Word(std::string_view line, std::size_t& at, std::string& word) {
  while (!Ends_Word(line, at)) {
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
    const std::size_t plain_end = Plain_Run_End(line, at);
    word.append(line.substr(at, plain_end - at));
    at = plain_end;
  }
  return true;
}

// Reads one word from `at` on (the first character is not a separator); moves `at` past it.
// Most words are plain from end to end, and are seen where they stand.
bool Read_Word(std::string_view line, std::size_t& at, Shell_Words& into) {
  const std::size_t start = at;
  at = Plain_Run_End(line, at);
  if (Ends_Word(line, at)) {
    into.words.push_back(line.substr(start, at - start));
    return true;
  }
  std::string& unquoted = into.unquoted;
  const std::size_t word_start = unquoted.size();
  unquoted.append(line.substr(start, at - start));
  if (!Unquote_Rest_Of_Word(line, at, unquoted)) return false;
  into.words.push_back(std::string_view(unquoted).substr(word_start));
  return true;
}

}  // namespace

bool Split_Shell_Words(std::string_view line, Shell_Words& into) {
  into.words.clear();
  into.words.reserve(kUsualWords);
  into.unquoted.clear();
  // A word without its quotes is never longer than it is with them, so the room for the whole
  // line never grows, and the views into it stay where they are.
  into.unquoted.reserve(line.size());
  std::size_t at = 0;
  for (;;) {
    while (at < line.size() && Is_Separator(line[at])) ++at;
    if (at >= line.size() || line[at] == '#') return true;
    if (!Read_Word(line, at, into)) return false;
  }
}

std::optional<std::vector<std::string>> Split_Shell_Words(std::string_view line) {
  Shell_Words split;
  if (!Split_Shell_Words(line, split)) return std::nullopt;
  return std::vector<std::string>(split.words.begin(), split.words.end());
}

}  // namespace orrivane::cli
