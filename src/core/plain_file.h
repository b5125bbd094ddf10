#pragma once
// A file the program opens by a name: a fixed one (Schedule.tmp) or one the user chose. Only a
// plain file is opened. A folder, a named pipe, a device or a socket under that name is the
// failure 75 (path/file access), found before anything could wait on it: a pipe opened for
// writing waits for a reader (and for reading, for a writer) for ever, and a device may never
// end. Every file of the program is opened through here.
#include <string>
#include <string_view>

namespace orrivane {

class PlainFile {
 public:
  enum class Access {
    Read,    // from the start
    Write,   // emptied, or made when missing
    Append,  // at the end, or made when missing
  };

  // No file: not open, no failure.
  PlainFile() = default;
  // Opens the file; when it cannot, Is_Open() is false and Failure() tells why as the program's
  // run time numbers it: 75 for what is no plain file and for a file that cannot be written,
  // 53 for a file to read that is not there or cannot be read.
  PlainFile(const std::string& path, Access access);
  // The same, failing with that number when the file cannot be opened.
  static PlainFile Open(const std::string& path, Access access);

  PlainFile(PlainFile&& other) noexcept;
  PlainFile& operator=(PlainFile&& other) noexcept;
  PlainFile(const PlainFile&) = delete;
  PlainFile& operator=(const PlainFile&) = delete;
  // Closes the file; what could not be written then is lost without a word (Close tells it).
  ~PlainFile();

  bool Is_Open() const { return descriptor_ >= 0; }
  int Failure() const { return failure_; }

  // Everything from the present place to the end; a failure to read is the failure 57.
  std::string Read_All();
  // Writes the bytes (held back and written in large pieces); false once a piece could not be
  // written, and from then on.
  bool Write(std::string_view bytes);
  // Writes what is held back and closes the file; false when something could not be written.
  // Closing a file that is not open succeeds.
  bool Close();

 private:
  bool Flush();

  int descriptor_ = -1;
  int failure_ = 0;
  bool write_failed_ = false;
  std::string pending_;
};

// The whole of a plain file: the failure 53 when it is not there, 75 when it is no plain file.
std::string Read_Plain_File(const std::string& path);

}  // namespace orrivane
