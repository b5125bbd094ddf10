#pragma once
// The engine's table of the twelve months, shared by its modules. Callers outside the engine ask
// through Define_Month and the typed functions of vocabulary.h and month_steps.h.
#include <array>

#include "core/runtime_failure.h"

namespace orrivane::engine::month_table {

struct MonthRow {
  int number;
  int other_number;  // 13 for January, 0 for December, else the number again
  const char* full_name;
  const char* three_letter;
  const char* spanish;
  const char* french;
  int max_days;
  int max_days_leap;
  int base_weekday_greg_2000;
  int base_weekday_jul_2000;
  int after_leap_date;
};

// The whole vocabulary of months; the misspelled forms are accepted as they stand.
inline constexpr std::array<MonthRow, 12> kMonths{{
    {1, 13, "January", "Jan", "enero", "janvier", 31, 31, 7, 6, 0},
    {2, 2, "February", "Feb", "febrero", "fevier", 28, 29, 3, 2, 0},
    {3, 3, "March", "Mar", "marzo", "mars", 31, 31, 4, 3, 1},
    {4, 4, "April", "Apr", "abril", "avril", 30, 30, 7, 6, 1},
    {5, 5, "May", "May", "mayo", "mai", 31, 31, 2, 1, 1},
    {6, 6, "June", "Jun", "junio", "juin", 30, 30, 5, 4, 1},
    {7, 7, "July", "Jul", "julio", "juliet", 31, 31, 7, 6, 1},
    {8, 8, "August", "Aug", "augusto", "aout", 31, 31, 3, 2, 1},
    {9, 9, "September", "Sep", "septiembre", "septembre", 30, 30, 6, 5, 1},
    {10, 10, "October", "Oct", "octubre", "octobre", 31, 31, 1, 7, 1},
    {11, 11, "November", "Nov", "noviembre", "novembre", 30, 30, 4, 3, 1},
    {12, 0, "December", "Dec", "diciembre", "decembre", 31, 31, 6, 5, 1},
}};

// The row of a month 1 to 12, or of 13 (January) or 0 (December) as Define_Month reads them;
// any other number is Subscript out of range (9), as an index outside an array is.
constexpr const MonthRow& Row(int month) {
  for (const MonthRow& row : kMonths) {
    if (month == row.number || month == row.other_number) return row;
  }
  throw RuntimeFailure(kSubscriptOutOfRange);
}

constexpr int Length(int month, bool leap) { return leap ? Row(month).max_days_leap : Row(month).max_days; }

// The day of the year on which a month 1 to 12 begins: 1 for January, 32 for February...
constexpr int First_Day_Of_Year(int month, bool leap) {
  int day = 1;
  for (int before = 1; before < month; ++before) day += Length(before, leap);
  return day;
}

static_assert(First_Day_Of_Year(3, false) == 60 && First_Day_Of_Year(3, true) == 61);
static_assert(First_Day_Of_Year(12, false) == 335 && First_Day_Of_Year(12, true) == 336);

}  // namespace orrivane::engine::month_table
