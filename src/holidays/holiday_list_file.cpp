#include "holidays/holiday_list_file.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <filesystem>

#include "core/runtime_failure.h"
#include "core/text.h"

namespace orrivane::holidays {

namespace {

constexpr std::string_view kElectionDay = "Election Day, U.S.";
// "Election Day, U.S., ": the name, its comma and the blank behind it.
constexpr long long kElectionDayLength = 20;

// True when the last part of the path, its extension set aside, holds nothing but blanks.
bool Names_No_File(const std::string& path) {
  const std::string name = std::filesystem::path(path).filename().string();
  const std::string stem = text::Ends_With(name, kHolidayListExtension)
                               ? text::Left(name, text::Len(name) - text::Len(kHolidayListExtension))
                               : name;
  return text::Trim(stem).empty();
}

// Texts bigger than a list keeps fail as the count of their bytes overflows.
void Check_Length(std::size_t length) {
  if (length > kLongestTexts) throw RuntimeFailure(kOverflow);
}

// The file's bytes, read at once into the buffer the list will keep.
Holiday_List_Texts Whole_File(const std::string& path) {
  Holiday_List_Texts texts{Read_Plain_File(path), {}};
  Check_Length(texts.text.size());
  return texts;
}

// Finds where each line ends, at its first CR or LF. The next LF is looked for once and kept
// until a line passes it, so that a file of CR alone is not searched to its end at each line.
class Line_Ends {
 public:
  Line_Ends(const char* bytes, std::size_t size) : bytes_(bytes), size_(size), next_lf_(Find('\n', 0, size)) {}
  std::size_t From(std::size_t start) {
    if (next_lf_ < start) next_lf_ = Find('\n', start, size_);
    return Find('\r', start, next_lf_);
  }

 private:
  // Where `c` first stands from `start` on, before `limit`; `limit` when it is not there.
  std::size_t Find(char c, std::size_t start, std::size_t limit) const {
    const void* found = std::memchr(bytes_ + start, c, limit - start);
    return found == nullptr ? limit : static_cast<std::size_t>(static_cast<const char*>(found) - bytes_);
  }

  const char* bytes_;
  std::size_t size_;
  std::size_t next_lf_;
};

// Cuts the records of the file's bytes in place: each line loses its first and last
// characters, unseen, and closes up behind the line before it; its end is noted. A line ends
// at CR LF, CR or LF, and the last may lack its end. Answers 0, or the failure that stopped
// the cut, the lines before it cut already: an empty file is input past its end (62), at least
// one line being read before the first end-of-file test; a line of fewer than two characters
// cannot be cut (5).
int Cut_Records_In_Place(Holiday_List_Texts& texts) {
  char* const bytes = texts.text.data();
  const std::size_t size = texts.text.size();
  // A record that can be cut takes three bytes at least, two characters and a line's end: room
  // for that many ends is reserved, and only the ones written are ever touched.
  constexpr std::size_t kShortestRecord = 3;
  texts.ends.reserve(size / kShortestRecord + 1);
  Line_Ends line_ends(bytes, size);
  std::size_t read = 0;
  std::uint32_t written = 0;
  do {
    if (read >= size) return kInputPastEndOfFile;
    const std::size_t end = line_ends.From(read);
    const std::size_t length = end - read;
    if (length < 2) return kInvalidProcedureCall;
    std::copy(bytes + read + 1, bytes + end - 1, bytes + written);
    written += static_cast<std::uint32_t>(length - 2);
    texts.ends.push_back(written);
    read = end + 1;
    if (end < size && bytes[end] == '\r' && read < size && bytes[read] == '\n') ++read;
  } while (read < size);
  return 0;
}

Holiday_List_Texts Cut_File(const std::string& path, int& failure) {
  Holiday_List_Texts texts = Whole_File(path);
  failure = Cut_Records_In_Place(texts);
  return texts;
}

}  // namespace

std::string Holiday_List_File_Name(std::string_view name) { return text::With_Extension(name, kHolidayListExtension); }

std::string Holiday_List_Record(std::string_view line) {
  std::string record;
  record.reserve(line.size() + 4);
  record.append(1, '"').append(line).append("\"\r\n");
  return record;
}

Message Overwrite_Question() {
  return {"Confirm Overwrite", "A file with this name already exists. Overwrite?", vbYesNo, vbExclamation};
}

Message Invalid_File_Name_Refusal() { return {"Rename", "That file name is invalid.", vbOKOnly, vbCritical}; }

Holiday_List_Writer::Holiday_List_Writer(const std::string& path) {
  if (Names_No_File(path)) return;
  out_ = PlainFile(path, PlainFile::Access::Write);
}

void Holiday_List_Writer::Write_Record(std::string_view line) { out_.Write(Holiday_List_Record(line)); }

void Holiday_List_Writer::Close() {
  if (!out_.Close()) throw RuntimeFailure(kDeviceIOError);
}

void Read_Holiday_List_File(const std::string& path, const std::function<void(std::string)>& add_line) {
  int failure = 0;
  const Holiday_List_Texts texts = Cut_File(path, failure);
  for (std::size_t index = 0; index < texts.Count(); ++index) add_line(std::string(texts.Text(index)));
  if (failure != 0) throw RuntimeFailure(failure);
}

void Read_Holiday_List_File(const std::string& path, Holiday_List& list) {
  int failure = 0;
  list.Append_Texts(Cut_File(path, failure));
  if (failure != 0) throw RuntimeFailure(failure);
}

Holiday_Line_Date Date_Of_Holiday_List_Line(std::string_view line) {
  std::string rest = text::InStr(line, kElectionDay) > 0 ? text::Mid(line, kElectionDayLength + 1)
                                                          : text::Mid(line, text::InStr(line, ",") + 2);
  rest = text::Mid(rest, text::InStr(rest, ",") + 2);  // the weekday
  Holiday_Line_Date date;
  const long long blank = text::InStr(rest, " ");
  date.month = text::Left(rest, blank - 1);
  rest = text::Mid(rest, blank + 1);
  const long long comma = text::InStr(rest, ",");
  date.date = text::Left(rest, comma - 1);
  date.year = text::Mid(rest, comma + 2);
  return date;
}

}  // namespace orrivane::holidays
