#pragma once
// The holidays in the day cells of the large calendar: the short text of every holiday that
// falls on a day on show, for the month on show, for the days of the months before and after
// that show in its first and last rows, and across a change of year.
#include <array>
#include <string>
#include <string_view>

#include "core/value.h"
#include "engine/calendar_engine.h"
#include "holidays/holiday_rules.h"

namespace orrivane::holidays {

using Holiday_Cells = std::array<std::string, engine::kGridCells>;

// The text of each of the 42 cells, worked out through the calendar's holiday table (which is
// emptied and refilled on the way). `date_captions` are the captions of the date cells, the
// only record of the layout: the first day is found by the caption 1 among the cells 0 to 6,
// the first of the next month by the caption 1 among the cells 28 to 41. A Julian month shows
// no holiday, nor does a year that holds none (before 1582, above 100100). Two names are
// shortened for the width of a cell. A date that the rules carry past the grid's end (Easter
// runs into the 40s of April in far years) stands in no cell.
Holiday_Cells Holidays_On_Calendar_Cells(Holiday_Data_Keeper& table, std::string_view CalStyle,
                                         const std::string& month_name, const Value& year,
                                         const Holiday_Cells& date_captions);

// The text a holiday shows in a cell: its name, or the short form of the two long names.
std::string_view Holiday_Cell_Text(std::string_view name);

}  // namespace orrivane::holidays
