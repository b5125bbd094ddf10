#pragma once
// The 42-cell month grid: seven columns, Sunday first, cells 0 to 41. The layout of a month
// exists only in the cell captions; these procedures fill cells and read positions back from
// captions, as the calendar windows do.
#include <array>
#include <string>

#include "engine/calendar_engine.h"

namespace orrivane::calendar {

using Grid = engine::MonthGrid;
using Captions = std::array<std::string, engine::kGridCells>;

// Weekday of the first of the month after the one on show, read off the cells 14 to 41: the
// last "1" there wins, as the search runs to the end; 0 when there is none.
int Weekday_Of_Next_First(const Captions& captions);
// Weekday of the first of the month on show: the first "1" among the cells 0 to 6; 0 if none.
int Weekday_Of_First(const Captions& captions);
// The weekday of the first of the month before, going back `prior_length` days from a first
// that falls on `first_weekday` (whole weeks skipped).
int Weekday_Of_Prior_First(int first_weekday, int prior_length);

// The side calendars: the days of the month in the button-text colour from `first_column`
// (0 to 6) on, the other cells in the button-face colour (hidden: the colour of the background
// behind them), those before with the last days of
// the month before, those after with 1, 2, 3 ...
Grid Fill_Side_Calendar(int first_column, int length, int prior_length);

// The column (0 to 6) of the first of the month before the one on show, stepping back one
// column a day from the column of the shown month's first.
int Prior_Month_First_Column(int shown_first_column, int prior_length);

// The first of the month after the one on show, found among the cells 28 to 41 with a column
// counter that runs from 0 and wraps after 6: its column, and the caption of the cell before
// it (the last day of the month on show). Column -1 when no "1" stands there.
struct NextFirst {
  int column = -1;
  std::string last_day;
};
NextFirst Next_Month_First(const Captions& captions);

// The colour index 1 to 24 of the month: the generator seeded with month x year, its fraction
// times 24, cut to a whole number and raised by 1.
int Month_Color_Index(double fraction);

// The colour tables of the two calendar windows (index 1 to 24; 0 when outside the table).
unsigned Form1_Month_Color(int index);
struct LargeCalendarColors {
  unsigned main = 0;
  unsigned shadow = 0;
};
// False when the index is outside the table.
bool Large_Calendar_Month_Colors(int index, LargeCalendarColors& colors);

}  // namespace orrivane::calendar
