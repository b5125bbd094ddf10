#pragma once
// The holiday list file (".dte") and the list line it keeps.
//
// A file is a frozen list: one record a line, the list line between double quotes, lines ended
// by CR LF, no header, no count, no escaping (a list line holds no double quote). Reading takes
// every line as a record without looking at it: its first and last characters are dropped,
// whatever they are. The list line itself reads name, weekday, month, date and year, and the
// way back to the calendar takes it apart again by its separators.
#include <functional>
#include <string>
#include <string_view>

#include "core/plain_file.h"
#include "holidays/holiday_list.h"
#include "holidays/holiday_rules.h"

namespace orrivane::holidays {

inline constexpr std::string_view kHolidayListPattern = "*.dte";
inline constexpr std::string_view kHolidayListExtension = ".dte";
inline constexpr std::string_view kDefaultHolidayListName = "Holidays.dte";

// The name a list is saved under: ".dte" appended unless the name's last four characters are
// exactly ".dte". Case counts, so "LIST.DTE" becomes "LIST.DTE.dte".
std::string Holiday_List_File_Name(std::string_view name);

// One record: the list line between double quotes, ended by CR LF.
std::string Holiday_List_Record(std::string_view line);

// The questions and refusals of saving a list.
Message Overwrite_Question();         // "Confirm Overwrite", Yes and No
Message Invalid_File_Name_Refusal();  // "Rename": the file cannot be opened for output

// Writes a list record by record.
class Holiday_List_Writer {
 public:
  // Opens the file for output, which empties it. When it cannot be opened, Is_Open() is false.
  // A name that is nothing but blanks in front of its extension names no file and is not
  // opened either.
  explicit Holiday_List_Writer(const std::string& path);

  bool Is_Open() const { return out_.Is_Open(); }
  void Write_Record(std::string_view line);
  void Close();

 private:
  PlainFile out_;
};

// Reads a list file a line at a time to its end and hands each line on with its first and last
// characters cut away. A line ends at CR LF, CR or LF. At least one line is read before the
// first end-of-file test, so an empty file fails with "Input past end of file" (62); a missing
// file fails with 53, a folder, a pipe or a device with 75, and a line of fewer than two
// characters with 5, as the cut fails; the lines handed on before a failure stay handed on.
void Read_Holiday_List_File(const std::string& path, const std::function<void(std::string)>& add_line);
// The same reading into the end of `list`, in one read into the list's own buffer, the lines
// cut there in place; the lines read before a failure stay in the list. A file of more than
// 4 GB is more than a list keeps, and fails with an overflow (6).
void Read_Holiday_List_File(const std::string& path, Holiday_List& list);

// Month, date and year of a list line, as texts: "April", "20", "2003" from the line for Easter
// of 2003. The name is cut away first: "Election Day, U.S." by its length, since it holds a
// comma of its own, any other name up to the first comma and its blank; then the weekday, up to
// the next comma and its blank. A line of another shape fails as the cut fails (5).
struct Holiday_Line_Date {
  std::string month;
  std::string date;
  std::string year;
};
Holiday_Line_Date Date_Of_Holiday_List_Line(std::string_view line);

}  // namespace orrivane::holidays
