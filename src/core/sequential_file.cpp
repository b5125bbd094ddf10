#include "core/sequential_file.h"

#include <cstdio>

#include "core/runtime_failure.h"

namespace orrivane {

std::string Join_Path(const std::string& directory, const std::string& name) {
  if (directory.empty()) return name;
  std::string dir = directory;
  if (dir.back() == '\\') dir.pop_back();
  if (!dir.empty() && dir.back() == '/') return dir + name;
  return dir + "/" + name;
}

SequentialWriter::SequentialWriter(const std::string& path, Mode mode)
    : out_(PlainFile::Open(path, mode == Mode::Append ? PlainFile::Access::Append : PlainFile::Access::Write)) {}

std::string SequentialWriter::Format(const Value& value) {
  if (!value.is_text()) return value.text();
  std::string quoted;
  quoted.reserve(value.text().size() + 2);
  quoted += '"';
  quoted += value.text();
  quoted += '"';
  return quoted;
}

void SequentialWriter::Write_Line(const std::vector<Value>& values) {
  std::string line;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (i > 0) line += ',';
    line += Format(values[i]);
  }
  line += "\r\n";
  if (!out_.Write(line)) throw RuntimeFailure(kDeviceIOError);
}

void SequentialWriter::Close() { out_.Close(); }

SequentialReader::SequentialReader(const std::string& path) : data_(Read_Plain_File(path)) {}

SequentialReader SequentialReader::From_Text(std::string content) {
  SequentialReader reader;
  reader.data_ = std::move(content);
  return reader;
}

void SequentialReader::Skip_Blanks() {
  while (pos_ < data_.size() && (data_[pos_] == ' ' || data_[pos_] == '\t')) ++pos_;
}

// Past the comma or the line end that closes a value; anything else before it is dropped.
void SequentialReader::Skip_Delimiter() {
  while (pos_ < data_.size()) {
    const char c = data_[pos_++];
    if (c == ',' || c == '\n') return;
    if (c == '\r') {
      if (pos_ < data_.size() && data_[pos_] == '\n') ++pos_;
      return;
    }
  }
}

Value SequentialReader::Input() {
  Skip_Blanks();
  if (Eof()) throw RuntimeFailure(kInputPastEndOfFile);
  if (data_[pos_] == '"') {
    const std::size_t start = pos_ + 1;
    std::size_t close = data_.find('"', start);
    if (close == std::string::npos) close = data_.size();  // an open quote runs to the end
    std::string text = data_.substr(start, close - start);
    pos_ = close < data_.size() ? close + 1 : close;
    Skip_Delimiter();
    return Value(std::move(text));
  }
  const std::size_t start = pos_;
  while (pos_ < data_.size() && data_[pos_] != ',' && data_[pos_] != '\r' && data_[pos_] != '\n') ++pos_;
  std::string raw = data_.substr(start, pos_ - start);
  Skip_Delimiter();
  while (!raw.empty() && (raw.back() == ' ' || raw.back() == '\t')) raw.pop_back();
  if (raw.empty()) return Value();
  std::optional<double> number;
  try {
    number = Parse_Number(raw);
  } catch (const RuntimeFailure&) {
    throw RuntimeFailure(kOverflow);
  }
  if (number) return Value(*number);
  return Value(std::move(raw));
}

bool File_Exists(const std::string& path) { return PlainFile(path, PlainFile::Access::Read).Is_Open(); }

void Empty_File(const std::string& path) { SequentialWriter(path).Close(); }

void Delete_File(const std::string& path) { std::remove(path.c_str()); }

}  // namespace orrivane
