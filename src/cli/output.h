#pragma once
// Buffered line output to a C stream: a batch of a hundred thousand answers must not cost a
// hundred thousand writes. A failure to write (a full disk, a closed standard output) is kept,
// so that the tool can say so and end with a failure instead of claiming an answer nobody got.
#include <cstdio>
#include <optional>
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
  // The text as it stands, its line ends its own.
  void Text(std::string_view text);
  void Flush();

  // Why the output could not be written ("No space left on device"); nothing while it could.
  // After a failure nothing more is written.
  const std::optional<std::string>& Write_Failure() const { return failure_; }

 private:
  static constexpr std::size_t kFlushAt = 1 << 16;
  std::FILE* file_;
  std::string buffer_;
  std::optional<std::string> failure_;
};

}  // namespace orrivane::cli
