#pragma once
// The method of "View Month On Calendar" (frmSelectMonth): the weekday of the first of a month
// from the weekdays of the year 2000, and the month's grid.
#include <cstdint>

#include "core/value.h"
#include "engine/month_cells.h"
#include "engine/vocabulary.h"

namespace orrivane::engine {

// The count of Gregorian century corrections between 2000 and the year, as frmSelectMonth's
// year-by-year loop counts them (negative before 2000), in closed form. after_leap_date is 0 for
// January and February and 1 otherwise. Equal to the loop for every year.
std::int64_t Select_Month_Gregorian_Correction(int after_leap_date, std::int64_t year);

// Weekday 1 to 7 of the first of the month (any form Define_Month accepts) in the year, by
// frmSelectMonth's method from the weekdays of the year 2000. Years from 0 to about 10^15.
int Select_Month_First_Weekday(const Value& month, std::int64_t year, CalendarStyle style);

// The 42 cells of that month as frmSelectMonth draws them: no red cell.
MonthGrid Select_Month_Grid(const Value& month, std::int64_t year, CalendarStyle style);

}  // namespace orrivane::engine
