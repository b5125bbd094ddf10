#pragma once
// A fresh folder for one test's files, removed again at the end of the test. Tests use full
// paths inside it and never change the current folder.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <unistd.h>

namespace orrivane::testing {

class TempFolder {
 public:
  TempFolder() {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = std::string("orrivane-") + info->test_suite_name() + "-" + info->name() + "-" +
                             std::to_string(::getpid());
    path_ = std::filesystem::temp_directory_path() / name;
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  std::string path() const { return path_.string(); }
  std::string file(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

// The bytes of a file, exactly as they stand.
inline std::string Read_Bytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

inline void Write_Bytes(const std::string& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << bytes;
}

}  // namespace orrivane::testing
