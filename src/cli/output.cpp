#include "cli/output.h"

#include <cerrno>
#include <cstring>

namespace orrivane::cli {

void Output::Line(std::string_view text) {
  buffer_.append(text);
  buffer_.push_back('\n');
  if (buffer_.size() >= kFlushAt) Flush();
}

void Output::Text(std::string_view text) {
  buffer_.append(text);
  if (buffer_.size() >= kFlushAt) Flush();
}

void Output::Flush() {
  if (!failure_) {
    errno = 0;
    const bool written = std::fwrite(buffer_.data(), 1, buffer_.size(), file_) == buffer_.size();
    if (std::fflush(file_) != 0 || !written) failure_ = std::strerror(errno != 0 ? errno : EIO);
  }
  buffer_.clear();
}

}  // namespace orrivane::cli
