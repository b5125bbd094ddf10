#include "holidays/holiday_list_file.h"

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

// The next line from `pos`, leaving `pos` behind its end (CR LF, CR or LF).
std::string Next_Line(const std::string& data, std::size_t& pos) {
  if (pos >= data.size()) throw RuntimeFailure(kInputPastEndOfFile);
  const std::size_t end = data.find_first_of("\r\n", pos);
  if (end == std::string::npos) {
    std::string line = data.substr(pos);
    pos = data.size();
    return line;
  }
  std::string line = data.substr(pos, end - pos);
  pos = end + 1;
  if (data[end] == '\r' && pos < data.size() && data[pos] == '\n') ++pos;
  return line;
}

}  // namespace

std::string Holiday_List_File_Name(std::string_view name) {
  std::string full(name);
  if (text::Right(name, 4) != kHolidayListExtension) full += kHolidayListExtension;
  return full;
}

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
  const std::string data = Read_Plain_File(path);
  std::size_t pos = 0;
  do {
    const std::string line = Next_Line(data, pos);
    // Both ends are dropped unseen; a line of one character or none cannot be cut (5).
    add_line(text::Mid(line, 2, text::Len(line) - 2));
  } while (pos < data.size());
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
