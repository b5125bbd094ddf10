#pragma once
// How the holiday list goes to the printer: a heading, then the lines in two columns of 71 a
// page, each full page a print job of its own. Positions are in twips from the page's top left.
#include <cstddef>
#include <string>

#include "core/message.h"

namespace orrivane::holidays {

inline constexpr int kPrintLinesPerColumn = 71;
inline constexpr std::size_t kPrintLinesPerJob = 2 * kPrintLinesPerColumn;
// From this many lines on, the question warns that printing may take a while.
inline constexpr std::size_t kLongPrintList = 170;

// The question asked before a list of `lines` lines is printed: Yes and No with the question icon
// for a long list, else OK and Cancel without an icon.
Message Holiday_List_Print_Question(std::size_t lines);

struct Print_Place {
  std::size_t job = 0;  // the print job, from 0
  int x_twips = 0;
  int y_twips = 0;
};

// The heading of the first job: "Total Holidays Listed: " and the count as the window shows it.
Print_Place Holiday_List_Print_Heading_Place();
std::string Holiday_List_Print_Heading(const std::string& total_caption);

// Where the list line at `index` (from 0) is printed: down the left column at 1000, then down
// the right column at 5500, rows 200 apart from 800; the 143rd line starts the next job.
Print_Place Holiday_List_Print_Place(std::size_t index);

// The number of print jobs of a list: one a full page, and one for an empty list (its heading).
std::size_t Holiday_List_Print_Jobs(std::size_t lines);

}  // namespace orrivane::holidays
