#include "calendar/month_grid.h"

namespace orrivane::calendar {

namespace {

using engine::kGridColumns;
using engine::kLastGridCell;
constexpr int kLastColumn = kGridColumns - 1;  // Saturday

}  // namespace

int Weekday_Of_Next_First(const Captions& captions) {
  int found = -1;
  for (int cell = 14; cell <= kLastGridCell; ++cell) {
    if (captions[cell] == "1") found = cell;
  }
  if (found < 0) return 0;
  const int weekday = (found + 1) % kGridColumns;
  return weekday == 0 ? 7 : weekday;
}

int Weekday_Of_First(const Captions& captions) {
  for (int cell = 0; cell < kGridColumns; ++cell) {
    if (captions[cell] == "1") return cell + 1;
  }
  return 0;
}

int Weekday_Of_Prior_First(int first_weekday, int prior_length) {
  int weekday = first_weekday;
  for (int count = prior_length; count >= 22; --count) {
    weekday = weekday - 1 == 0 ? 7 : weekday - 1;
  }
  return weekday;
}

Grid Fill_Side_Calendar(int first_column, int length, int prior_length) {
  Grid grid = engine::Draw_Month_Cells(first_column + 1, length, prior_length, 0);
  for (engine::CalendarCell& cell : grid) {
    if (cell.colour == colours::kGrayText) cell.colour = colours::kButtonFace;
  }
  return grid;
}

int Prior_Month_First_Column(int shown_first_column, int prior_length) {
  int column = shown_first_column;
  for (int day = 0; day < prior_length; ++day) column = column == 0 ? kLastColumn : column - 1;
  return column;
}

NextFirst Next_Month_First(const Captions& captions) {
  NextFirst found;
  int column = 0;
  for (int cell = 28; cell <= kLastGridCell; ++cell) {
    if (captions[cell] == "1") {
      found.column = column;
      found.last_day = captions[cell - 1];
      break;
    }
    column = column == kLastColumn ? 0 : column + 1;
  }
  return found;
}

int Month_Color_Index(double fraction) { return static_cast<int>(fraction * 24) + 1; }

namespace {

// Colour numbers, blue in the high byte. That 7 and 19 agree, and 1 and 20, is as the table was
// settled.
constexpr unsigned kForm1Colors[25] = {0,        32768,    16384,   32896,   49344,   16576, 128,   12632064, 12583104,
                                       16744703, 16711680, 8388608, 4210688, 16448,   192,   8388736, 64,
                                       255,      8421376,  12632064, 32768,   49152,   33023, 12582912, 16744576};

constexpr LargeCalendarColors kLargeColors[25] = {
    {0, 0},
    {0x008000, 0xC0FFC0}, {0x004000, 0x008000}, {0x008080, 0x00C0C0}, {0x00C0C0, 0xC0FFFF},
    {0x0040C0, 0x80C0FF}, {0x000080, 0x8080FF}, {0xC0C000, 0xFFFF80}, {0xC000C0, 0xFFC0FF},
    {0xFF80FF, 0xFEE2FD}, {0xFF0000, 0xFFC0C0}, {0x800000, 0xFF8080}, {0xFF8080, 0xC0C000},
    {0x004040, 0x008080}, {0x0000C0, 0xC0C0FF}, {0x800080, 0xF000FF}, {0x000040, 0x0000C0},
    {0x0000FF, 0xC0C0FF}, {0x808000, 0xFFFF00}, {0xC0C000, 0xFFFF80}, {0x008000, 0x00FF00},
    {0x00C000, 0xC0FFC0}, {0x0080FF, 0xC0E0FF}, {0xC00000, 0xFF8080}, {0xFF8080, 0xFCEBEC},
};

bool In_Table(int index) { return index >= 1 && index <= 24; }

}  // namespace

unsigned Form1_Month_Color(int index) { return In_Table(index) ? kForm1Colors[index] : 0; }

bool Large_Calendar_Month_Colors(int index, LargeCalendarColors& colors) {
  if (!In_Table(index)) return false;
  colors = kLargeColors[index];
  return true;
}

}  // namespace orrivane::calendar
