#pragma once
// The calendar engine: the month and weekday vocabulary, the leap rules, validity of dates, month
// arithmetic and the limits of the calendar, the weekday and the 42-cell layout of a month in
// either calendar style, and the conversion between the styles. Whole-number arithmetic from the
// base year 2000, no date type. The one header callers include; each module has its own.
#include "engine/calendarr.h"      // Calendarr and the field check of "Find The Weekday Of A Date"
#include "engine/conversion.h"     // Convert
#include "engine/month_cells.h"    // the 42 cells of a month
#include "engine/month_chooser.h"  // the method of "View Month On Calendar"
#include "engine/month_steps.h"    // month arithmetic and the limits of the calendar
#include "engine/vocabulary.h"     // months, weekdays, leap years, validity, calendar styles
