#pragma once
// The inputs by which fuzzing found a fault, kept under tests/data/fuzz/ in the form their fuzz
// target reads (a command word and its operands), so that each can also be given to the target
// again. A test here reads the input and makes the call the target made.
#include <cstdint>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace orrivane::fuzz_regressions {

inline std::string Fuzz_Input(const std::string& name) {
  std::ifstream in(std::string(ORRIVANE_TEST_DATA) + "/fuzz/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// The blank-separated words of an input's first line: the command word, then its operands.
inline std::vector<std::string> Fuzz_Input_Words(const std::string& name) {
  const std::string input = Fuzz_Input(name);
  std::istringstream line(input.substr(0, input.find('\n')));
  return {std::istream_iterator<std::string>(line), std::istream_iterator<std::string>()};
}

inline std::int64_t Whole(const std::string& word) { return std::stoll(word); }

}  // namespace orrivane::fuzz_regressions
