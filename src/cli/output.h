#pragma once
// Buffered line output to a C stream: a batch of a hundred thousand answers must not cost a
// hundred thousand writes.
#include <cstdio>
#include <string>
#include <string_view>

namespace orrivane::cli {

class Output {
 public:
  explicit Output(std::FILE* file) : file_(file) {}
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  ~Output() { Flush(); }

  // The text and a line feed.
  void Line(std::string_view text);
  void Flush();

 private:
  static constexpr std::size_t kFlushAt = 1 << 16;
  std::FILE* file_;
  std::string buffer_;
};

}  // namespace orrivane::cli
