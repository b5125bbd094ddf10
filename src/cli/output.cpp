#include "cli/output.h"

namespace orrivane::cli {

void Output::Line(std::string_view text) {
  buffer_.append(text);
  buffer_.push_back('\n');
  if (buffer_.size() >= kFlushAt) Flush();
}

void Output::Flush() {
  if (!buffer_.empty()) std::fwrite(buffer_.data(), 1, buffer_.size(), file_);
  buffer_.clear();
  std::fflush(file_);
}

}  // namespace orrivane::cli
