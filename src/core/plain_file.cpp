#include "core/plain_file.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/runtime_failure.h"

namespace orrivane {

namespace {

// Pieces of this size keep a long file to few reads and writes.
constexpr std::size_t kPiece = 1 << 16;
constexpr mode_t kNewFileMode = 0666;  // narrowed by the user's umask, as any program's files

int Open_Flags(PlainFile::Access access) {
  // Without O_NONBLOCK opening a pipe waits for its other end; a plain file ignores the flag.
  const int always = O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
  switch (access) {
    case PlainFile::Access::Read: return always | O_RDONLY;
    case PlainFile::Access::Write: return always | O_WRONLY | O_CREAT | O_TRUNC;
    case PlainFile::Access::Append: return always | O_WRONLY | O_CREAT | O_APPEND;
  }
  return always | O_RDONLY;
}

bool Is_Plain(const struct stat& status) { return S_ISREG(status.st_mode); }

// What is there under the name, when it is something other than a plain file: nothing is then
// opened at all, since opening a device may by itself do something.
bool Names_Something_Else(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && !Is_Plain(status);
}

// The failure of an open that the system refused.
int Open_Failure(PlainFile::Access access, int error) {
  // A pipe without a reader refuses a writer that will not wait (ENXIO), and a folder a writer.
  if (error == ENXIO || error == EISDIR) return kPathFileAccessError;
  return access == PlainFile::Access::Read ? kFileNotFound : kPathFileAccessError;
}

}  // namespace

PlainFile::PlainFile(const std::string& path, Access access) {
  if (Names_Something_Else(path)) {
    failure_ = kPathFileAccessError;
    return;
  }
  int descriptor = ::open(path.c_str(), Open_Flags(access), kNewFileMode);
  if (descriptor < 0) {
    failure_ = Open_Failure(access, errno);
    return;
  }
  // What was a plain file a moment ago may have been put in its place since.
  struct stat status {};
  if (::fstat(descriptor, &status) != 0 || !Is_Plain(status)) {
    ::close(descriptor);
    failure_ = kPathFileAccessError;
    return;
  }
  descriptor_ = descriptor;
}

PlainFile PlainFile::Open(const std::string& path, Access access) {
  PlainFile file(path, access);
  if (!file.Is_Open()) throw RuntimeFailure(file.Failure());
  return file;
}

PlainFile::PlainFile(PlainFile&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)),
      failure_(other.failure_),
      write_failed_(other.write_failed_),
      pending_(std::move(other.pending_)) {}

PlainFile& PlainFile::operator=(PlainFile&& other) noexcept {
  if (this != &other) {
    Close();
    descriptor_ = std::exchange(other.descriptor_, -1);
    failure_ = other.failure_;
    write_failed_ = other.write_failed_;
    pending_ = std::move(other.pending_);
  }
  return *this;
}

PlainFile::~PlainFile() { Close(); }

std::string PlainFile::Read_All() {
  std::string data;
  struct stat status {};
  if (::fstat(descriptor_, &status) == 0 && status.st_size > 0) data.reserve(static_cast<std::size_t>(status.st_size));
  char piece[kPiece];
  for (;;) {
    const ssize_t got = ::read(descriptor_, piece, sizeof piece);
    if (got == 0) return data;
    if (got < 0) {
      if (errno == EINTR) continue;
      throw RuntimeFailure(kDeviceIOError);
    }
    data.append(piece, static_cast<std::size_t>(got));
  }
}

bool PlainFile::Flush() {
  std::size_t written = 0;
  while (!write_failed_ && written < pending_.size()) {
    const ssize_t done = ::write(descriptor_, pending_.data() + written, pending_.size() - written);
    if (done < 0 && errno == EINTR) continue;
    if (done <= 0) write_failed_ = true;
    else written += static_cast<std::size_t>(done);
  }
  pending_.clear();
  return !write_failed_;
}

bool PlainFile::Write(std::string_view bytes) {
  pending_.append(bytes);
  if (pending_.size() >= kPiece) Flush();
  return !write_failed_;
}

bool PlainFile::Close() {
  if (!Is_Open()) return true;
  const bool flushed = Flush();
  const bool closed = ::close(std::exchange(descriptor_, -1)) == 0;
  return flushed && closed;
}

std::string Read_Plain_File(const std::string& path) { return PlainFile::Open(path, PlainFile::Access::Read).Read_All(); }

}  // namespace orrivane
