#pragma once
// What the fuzz targets share. A target passes when every input either returns or ends in the
// program's own failure, a RuntimeFailure; any other exception, a crash, a sanitizer report, a
// hang or a leak is a finding, and libFuzzer reports it with the input that caused it.
//
// Inputs are kept readable so that seed files can be written by hand: a target either takes the
// whole input as a file's content, or takes it as lines, each line a command word followed by
// its operands (separated by blanks, or by '|' where an operand may hold blanks).
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

#include "core/runtime_failure.h"

namespace orrivane::fuzz {

// Stops the run with a message: libFuzzer takes the abort as a finding and keeps the input.
[[noreturn]] inline void Finding(const std::string& what) {
  std::fprintf(stderr, "\n==== fuzz finding: %s\n", what.c_str());
  std::fflush(stderr);
  std::abort();
}

// A rule of the program that an answer broke: a wrong value that went on silently.
inline void Expect(bool holds, const std::string& what) {
  if (!holds) Finding(what);
}

// Runs one call of the program. Its own failure is a defined end and is swallowed; anything
// else propagates to Guard_Input.
template <class Action>
void Defined(Action&& action) {
  try {
    action();
  } catch (const RuntimeFailure&) {
  }
}

inline std::string_view As_Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// The pieces of a text between separators; an empty text has no piece.
inline std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> pieces;
  while (!text.empty()) {
    const std::size_t at = text.find(separator);
    pieces.push_back(text.substr(0, at));
    text = at == std::string_view::npos ? std::string_view() : text.substr(at + 1);
  }
  return pieces;
}

// The words of a line, blanks and tabs between them.
inline std::vector<std::string_view> Words(std::string_view line) {
  std::vector<std::string_view> words;
  std::size_t at = 0;
  while (at < line.size()) {
    const std::size_t start = line.find_first_not_of(" \t\r", at);
    if (start == std::string_view::npos) break;
    const std::size_t end = std::min(line.find_first_of(" \t\r", start), line.size());
    words.push_back(line.substr(start, end - start));
    at = end;
  }
  return words;
}

// A whole number written in decimal, with an optional sign. Anything after the digits is
// ignored; digits past the 64-bit range saturate, so "-99999999999999999999" is the smallest
// whole number. A word without digits is 0.
inline std::int64_t Whole(std::string_view word) {
  const bool negative = !word.empty() && word.front() == '-';
  if (!word.empty() && (word.front() == '-' || word.front() == '+')) word.remove_prefix(1);
  constexpr std::uint64_t kMagnitudeLimit = std::uint64_t{1} << 63;  // |INT64_MIN|
  std::uint64_t magnitude = 0;
  for (char c : word) {
    if (c < '0' || c > '9') break;
    const auto digit = static_cast<std::uint64_t>(c - '0');
    magnitude = magnitude > (kMagnitudeLimit - digit) / 10 ? kMagnitudeLimit : magnitude * 10 + digit;
  }
  if (negative) return magnitude == kMagnitudeLimit ? std::numeric_limits<std::int64_t>::min()
                                                    : -static_cast<std::int64_t>(magnitude);
  return magnitude >= kMagnitudeLimit ? std::numeric_limits<std::int64_t>::max()
                                      : static_cast<std::int64_t>(magnitude);
}

// The same, clamped into the range of int.
inline int Whole_Int(std::string_view word) {
  const std::int64_t value = Whole(word);
  if (value < std::numeric_limits<int>::min()) return std::numeric_limits<int>::min();
  if (value > std::numeric_limits<int>::max()) return std::numeric_limits<int>::max();
  return static_cast<int>(value);
}

// Operand i of a command line, or the empty text when the line has fewer.
inline std::string_view Operand(std::span<const std::string_view> operands, std::size_t i) {
  return i < operands.size() ? operands[i] : std::string_view();
}

// A command of a line-driven target: its word, and what it does with the words after it.
struct Command {
  std::string_view word;
  void (*run)(std::span<const std::string_view> operands);
};

// Each line of the input runs the command its first word names; a line of an unknown word does
// nothing. The operands are the words after it, or, when the line holds a '|', the pieces
// between the bars (so that an operand may hold blanks or be empty).
inline void Run_Command_Lines(std::string_view input, std::span<const Command> commands) {
  for (std::string_view line : Split(input, '\n')) {
    const std::size_t bar = line.find('|');
    const std::vector<std::string_view> head = Words(line.substr(0, bar));
    if (head.empty()) continue;
    std::vector<std::string_view> operands(head.begin() + 1, head.end());
    if (bar != std::string_view::npos) {
      for (std::string_view piece : Split(line.substr(bar + 1), '|')) operands.push_back(piece);
      if (line.back() == '|') operands.emplace_back();
    }
    for (const Command& command : commands) {
      if (command.word == head.front()) command.run(operands);
    }
  }
}

// Where the scratch folders go: ORRIVANE_FUZZ_SCRATCH when set (scripts/fuzz.sh sets it, and
// removes it afterwards, also after a finding has ended a run in the middle of an input), else
// memory where the system offers it, since every input goes through the folder.
inline std::filesystem::path Scratch_Base() {
  if (const char* chosen = std::getenv("ORRIVANE_FUZZ_SCRATCH")) return chosen;
  std::error_code ignored;
  if (std::filesystem::is_directory("/dev/shm", ignored)) return "/dev/shm";
  return std::filesystem::temp_directory_path();
}

// The scratch folder of the input being run; empty while it has none.
inline std::filesystem::path& Current_Scratch_Folder() {
  static std::filesystem::path folder;
  return folder;
}

// The folder for the files an input must go through, made at its first use. libFuzzer ends its
// process without running exit handlers, so the folder lives for one input only (see
// Guard_Input).
inline const std::filesystem::path& Scratch_Folder() {
  std::filesystem::path& folder = Current_Scratch_Folder();
  if (folder.empty()) {
    std::string pattern = (Scratch_Base() / "orrivane-fuzz-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) Finding("no scratch folder");
    folder = pattern;
  }
  return folder;
}

inline void Remove_Scratch_Folder() {
  std::filesystem::path& folder = Current_Scratch_Folder();
  if (folder.empty()) return;
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
  folder.clear();
}

// The body of LLVMFuzzerTestOneInput: an exception other than RuntimeFailure is named in the
// report instead of ending in an anonymous std::terminate. The files the input went through go
// with it.
template <class Action>
int Guard_Input(Action&& action) {
  try {
    action();
  } catch (const RuntimeFailure&) {
  } catch (const std::exception& other) {
    Finding(std::string("exception ") + typeid(other).name() + ": " + other.what());
  }
  Remove_Scratch_Folder();
  return 0;
}

// Writes the bytes to a file of the scratch folder and answers its path.
inline std::string Scratch_File(const std::string& name, std::string_view content) {
  const std::string path = (Scratch_Folder() / name).string();
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(content.data(), static_cast<std::streamsize>(content.size()));
  if (!out) Finding("cannot write " + path);
  return path;
}

inline std::string Read_File(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

}  // namespace orrivane::fuzz
