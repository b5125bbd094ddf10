#pragma once
// The grid of a month: 42 cells in six rows of seven, Sunday first, and how a month is laid out
// in them.
#include <array>
#include <cstdint>
#include <string>

#include "core/colours.h"

namespace orrivane::engine {

inline constexpr int kGridColumns = 7;  // a week to a row, Sunday first
inline constexpr int kGridRows = 6;
inline constexpr int kGridCells = kGridColumns * kGridRows;  // numbered 0 to 41
inline constexpr int kLastGridCell = kGridCells - 1;

// A cell's caption and colour: grey text for the days of the neighbouring months, button text
// for the days of the month on show, red for the selected date.
struct CalendarCell {
  std::string caption;  // the day number as text
  std::uint32_t colour = colours::kGrayText;
};
using MonthGrid = std::array<CalendarCell, kGridCells>;

// Lays out a month from the weekday of its first (first_column, 1 = Sunday ... 7), its length and
// the length of the month before: grey days of the month before, the month's own days, then grey
// 1, 2, 3... to cell 41. The day equal to selected_date is red (pass 0 for no selection). A
// first_column outside 1 to 7 fails with Subscript out of range (9).
MonthGrid Draw_Month_Cells(int first_column, int length, int length_before, std::int64_t selected_date);

}  // namespace orrivane::engine
