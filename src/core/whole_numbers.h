#pragma once
// Whole-number helpers the calendar arithmetic is written with.
#include <cstdint>

namespace orrivane {

// The quotient rounded down, also for negative operands (the program's Int() of a quotient);
// C++ division truncates towards zero instead.
constexpr std::int64_t Floor_Div(std::int64_t a, std::int64_t b) noexcept {
  const std::int64_t q = a / b;
  return (a % b != 0 && (a < 0) != (b < 0)) ? q - 1 : q;
}
static_assert(Floor_Div(-1, 4) == -1 && Floor_Div(-4, 4) == -1 && Floor_Div(7, 4) == 1 && Floor_Div(7, -4) == -2);

// How many multiples of n (n > 0) lie from lo to hi, both included; 0 when hi is below lo. The
// multiples below lo are counted without forming lo - 1, which would leave 64 bits for the
// smallest lo.
constexpr std::int64_t Count_Multiples(std::int64_t lo, std::int64_t hi, std::int64_t n) noexcept {
  if (hi < lo) return 0;
  const std::int64_t below_lo = Floor_Div(lo, n) - (lo % n == 0 ? 1 : 0);
  return Floor_Div(hi, n) - below_lo;
}
static_assert(Count_Multiples(1, 400, 100) == 4 && Count_Multiples(-400, -1, 100) == 4);
static_assert(Count_Multiples(0, 0, 4) == 1 && Count_Multiples(1, 3, 4) == 0 && Count_Multiples(5, 4, 4) == 0);

}  // namespace orrivane
