#pragma once
// The program's sequential text files: texts between double quotes (no escapes, line breaks
// kept), numbers bare, values separated by one comma, lines ended by CR LF. The reader takes
// the next value whether a comma or a line end follows the last one.
#include <string>
#include <vector>

#include "core/plain_file.h"
#include "core/value.h"

namespace orrivane {

// Joins a folder and a file name with the platform's separator ("\" kept as the program's
// own marker of a folder's end is understood too).
std::string Join_Path(const std::string& directory, const std::string& name);

class SequentialWriter {
 public:
  enum class Mode { Output, Append };
  // Opens for writing; a file that can't be opened, or a name that is no plain file (a folder,
  // a pipe, a device), is the failure 75 (path/file access).
  SequentialWriter(const std::string& path, Mode mode = Mode::Output);

  // One line: the values separated by commas, then CR LF.
  void Write_Line(const std::vector<Value>& values);
  void Close();

  // A value as it stands in the file: "text", 12, or nothing for empty.
  static std::string Format(const Value& value);

 private:
  PlainFile out_;
};

class SequentialReader {
 public:
  // Opens for reading; a file that doesn't exist is the failure 53 (file not found), a
  // name that is no plain file (a folder, a pipe, a device) the failure 75 (path/file access).
  explicit SequentialReader(const std::string& path);
  // Reads from a text held in memory (for tests and for reading what is already loaded).
  static SequentialReader From_Text(std::string content);

  // The next value. Reading past the end is the failure 62 "Input past end of file".
  Value Input();
  bool Eof() const { return pos_ >= data_.size(); }

 private:
  SequentialReader() = default;
  void Skip_Blanks();
  void Skip_Delimiter();

  std::string data_;
  std::size_t pos_ = 0;
};

// True when a plain file exists and can be opened for reading; a folder, a pipe or a device is
// no such file.
bool File_Exists(const std::string& path);
// Opens the file for output and closes it: the file is left empty. A name that is no plain
// file is the failure 75.
void Empty_File(const std::string& path);
// Removes a file, ignoring a failure to.
void Delete_File(const std::string& path);

}  // namespace orrivane
