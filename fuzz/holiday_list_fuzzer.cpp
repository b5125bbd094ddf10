// The reader of holiday list files (.dte) over any content, and the way each line read goes back
// to the calendar (its month, date and year). The lines read are written as a list again and
// read back: they must come back the same, in the same order.
#include <cstdint>
#include <string>
#include <vector>

#include "fuzz_harness.h"
#include "holidays/holiday_list_file.h"

namespace {

using orrivane::RuntimeFailure;
using orrivane::fuzz::Defined;
using orrivane::fuzz::Expect;
namespace holidays = orrivane::holidays;

std::vector<std::string> Read_List(const std::string& path) {
  std::vector<std::string> lines;
  holidays::Read_Holiday_List_File(path, [&lines](std::string line) { lines.push_back(std::move(line)); });
  return lines;
}

void Check_Saved_List_Reads_The_Same(const std::vector<std::string>& lines) {
  const std::string path = orrivane::fuzz::Scratch_File("saved.dte", "");
  holidays::Holiday_List_Writer writer(path);
  Expect(writer.Is_Open(), "a list file cannot be opened for output");
  for (const std::string& line : lines) writer.Write_Record(line);
  writer.Close();
  Expect(Read_List(path) == lines, "a saved list reads back otherwise");
}

void Open_List(std::string_view content) {
  const std::string path = orrivane::fuzz::Scratch_File("list.dte", content);
  std::vector<std::string> lines;
  try {
    lines = Read_List(path);
  } catch (const RuntimeFailure& failure) {
    // An empty file, or a line too short to cut.
    Expect(failure.number() == orrivane::kInputPastEndOfFile || failure.number() == orrivane::kInvalidProcedureCall,
           "reading a list failed with " + std::to_string(failure.number()));
    return;
  }
  for (const std::string& line : lines) {
    Defined([&] { static_cast<void>(holidays::Date_Of_Holiday_List_Line(line)); });
  }
  static_cast<void>(holidays::Holiday_List_File_Name(content.substr(0, content.find('\n'))));
  Check_Saved_List_Reads_The_Same(lines);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orrivane::fuzz::Guard_Input([&] { Open_List(orrivane::fuzz::As_Text(data, size)); });
}
