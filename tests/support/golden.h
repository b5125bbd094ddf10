#pragma once
// Golden files: a file checked byte for byte keeps its expected bytes in
// tests/data/golden/<suite>/<case>/expected.<extension>, one folder a case, beside whatever else
// the case needs (what to ask for, a file to read). One parametrised test takes the cases of a
// suite as its data rows:
//
//   class SavedListTest : public ::testing::TestWithParam<GoldenCase> {};
//   TEST_P(SavedListTest, StandsByteForByte) { ... EXPECT_EQ(written, GetParam().Expected()); }
//   INSTANTIATE_TEST_SUITE_P(Golden, SavedListTest, ::testing::ValuesIn(Golden_Cases("saved_list")),
//                            Golden_Case_Name);
//
// A new case is a new folder; it shows in the test list from the next build on.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace orrivane::testing {

struct GoldenCase {
  std::string name;  // the name of its folder
  std::filesystem::path folder;

  // The bytes of a file of the case; fails the test when it cannot be read.
  std::string Bytes(const std::string& file) const {
    std::ifstream in(folder / file, std::ios::binary);
    if (!in) {
      ADD_FAILURE() << "the golden case " << name << " has no file " << file;
      return {};
    }
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }

  // The bytes of the case's one expected.* file.
  std::string Expected() const {
    std::vector<std::string> expected;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      const std::string file = entry.path().filename().string();
      if (file.rfind("expected.", 0) == 0) expected.push_back(file);
    }
    if (expected.size() != 1) {
      ADD_FAILURE() << "the golden case " << name << " needs one expected.* file, not " << expected.size();
      return {};
    }
    return Bytes(expected.front());
  }

  // The lines of a text file of the case, without their line ends.
  std::vector<std::string> Lines(const std::string& file) const {
    std::istringstream text(Bytes(file));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      lines.push_back(line);
    }
    return lines;
  }
};

// The cases of a suite, in the order of their names.
inline std::vector<GoldenCase> Golden_Cases(const std::string& suite) {
  const std::filesystem::path root = std::filesystem::path(ORRIVANE_TEST_DATA) / "golden" / suite;
  std::vector<GoldenCase> cases;
  std::error_code missing;
  for (const auto& entry : std::filesystem::directory_iterator(root, missing)) {
    if (entry.is_directory()) cases.push_back({entry.path().filename().string(), entry.path()});
  }
  std::sort(cases.begin(), cases.end(), [](const GoldenCase& a, const GoldenCase& b) { return a.name < b.name; });
  return cases;
}

// The case of a suite named `name`; fails the test, and answers an empty case, when it is missing.
inline GoldenCase Golden_Case(const std::string& suite, const std::string& name) {
  const std::vector<GoldenCase> cases = Golden_Cases(suite);
  const auto found =
      std::find_if(cases.begin(), cases.end(), [&name](const GoldenCase& golden) { return golden.name == name; });
  if (found == cases.end()) {
    ADD_FAILURE() << "the golden case " << name << " of " << suite << " is missing";
    return {};
  }
  return *found;
}

// The case's folder name as the name of its data row (letters, digits and underscores).
inline std::string Golden_Case_Name(const ::testing::TestParamInfo<GoldenCase>& info) {
  std::string name = info.param.name;
  std::replace_if(name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
}

// Shown in a failing test's message.
inline void PrintTo(const GoldenCase& golden, std::ostream* out) { *out << golden.name; }

}  // namespace orrivane::testing
