#include "holidays/holiday_list_print.h"

namespace orrivane::holidays {

namespace {

constexpr int kHeadingY = 400;
constexpr int kFirstRowY = 800;
constexpr int kRowHeight = 200;
constexpr int kColumnX[2] = {1000, 5500};

}  // namespace

Message Holiday_List_Print_Question(std::size_t lines) {
  if (lines >= kLongPrintList) {
    return {"Print Holiday List", "It may take up to two minutes for printing to start. Proceed?", vbYesNo, vbQuestion};
  }
  return {"Print Holiday List", "To print the holiday list click 'OK', otherwise click 'Cancel'.", vbOKCancel,
          vbNoIcon};
}

Print_Place Holiday_List_Print_Heading_Place() {
  // Only the vertical position is set for the heading; the horizontal one is where a new page
  // starts.
  return {0, 0, kHeadingY};
}

std::string Holiday_List_Print_Heading(const std::string& total_caption) {
  return "Total Holidays Listed: " + total_caption;
}

Print_Place Holiday_List_Print_Place(std::size_t index) {
  const std::size_t column = (index / kPrintLinesPerColumn) % 2;
  const int row = static_cast<int>(index % kPrintLinesPerColumn);
  return {index / kPrintLinesPerJob, kColumnX[column], kFirstRowY + kRowHeight * row};
}

std::size_t Holiday_List_Print_Jobs(std::size_t lines) {
  return lines == 0 ? 1 : (lines + kPrintLinesPerJob - 1) / kPrintLinesPerJob;
}

}  // namespace orrivane::holidays
