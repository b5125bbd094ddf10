#pragma once
// An independent day count for the engine's tests: the Julian Day Number of a date of the
// proleptic Gregorian and of the proleptic Julian calendar, and back, by the classic integer
// formulas (Fliegel and Van Flandern, Richards). Nothing here comes from the engine. Exact for
// every date from the year -4712 on; the tests use the years 0 to 1,000,100.
#include <cstdint>
#include <string>

namespace orrivane::engine::reference {

struct CivilDate {
  std::int64_t year;
  int month;  // 1 to 12
  int day;
  friend bool operator==(const CivilDate&, const CivilDate&) = default;
};

constexpr std::int64_t Gregorian_Day_Number(std::int64_t year, int month, int day) {
  const std::int64_t a = (14 - month) / 12;
  const std::int64_t y = year + 4800 - a;
  const std::int64_t m = month + 12 * a - 3;
  return day + (153 * m + 2) / 5 + 365 * y + y / 4 - y / 100 + y / 400 - 32045;
}

constexpr std::int64_t Julian_Day_Number(std::int64_t year, int month, int day) {
  const std::int64_t a = (14 - month) / 12;
  const std::int64_t y = year + 4800 - a;
  const std::int64_t m = month + 12 * a - 3;
  return day + (153 * m + 2) / 5 + 365 * y + y / 4 - 32083;
}

constexpr CivilDate Gregorian_From_Day_Number(std::int64_t jdn) {
  const std::int64_t a = jdn + 32044;
  const std::int64_t b = (4 * a + 3) / 146097;
  const std::int64_t c = a - 146097 * b / 4;
  const std::int64_t d = (4 * c + 3) / 1461;
  const std::int64_t e = c - 1461 * d / 4;
  const std::int64_t m = (5 * e + 2) / 153;
  return {100 * b + d - 4800 + m / 10, static_cast<int>(m + 3 - 12 * (m / 10)),
          static_cast<int>(e - (153 * m + 2) / 5 + 1)};
}

constexpr CivilDate Julian_From_Day_Number(std::int64_t jdn) {
  const std::int64_t c = jdn + 32082;
  const std::int64_t d = (4 * c + 3) / 1461;
  const std::int64_t e = c - 1461 * d / 4;
  const std::int64_t m = (5 * e + 2) / 153;
  return {d - 4800 + m / 10, static_cast<int>(m + 3 - 12 * (m / 10)), static_cast<int>(e - (153 * m + 2) / 5 + 1)};
}

// 1 (Sunday) to 7 (Saturday); JDN 0 was a Monday.
constexpr int Weekday_Of_Day_Number(std::int64_t jdn) { return static_cast<int>((jdn + 1) % 7) + 1; }

constexpr bool Gregorian_Leap(std::int64_t year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }
constexpr bool Julian_Leap(std::int64_t year) { return year % 4 == 0; }

constexpr int Month_Length(int month, bool leap) {
  constexpr int kLengths[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && leap ? 29 : kLengths[month - 1];
}

inline std::string Month_Name(int month) {
  static const char* const kNames[12] = {"January", "February", "March",     "April",   "May",      "June",
                                         "July",    "August",   "September", "October", "November", "December"};
  return kNames[month - 1];
}

// The anchors every reader of these formulas knows.
static_assert(Gregorian_Day_Number(2000, 1, 1) == 2451545);
static_assert(Weekday_Of_Day_Number(2451545) == 7);  // a Saturday
static_assert(Gregorian_Day_Number(1582, 10, 15) == 2299161);
static_assert(Julian_Day_Number(1582, 10, 4) == 2299160);
static_assert(Julian_Day_Number(-4712, 1, 1) == 0);
static_assert(Gregorian_From_Day_Number(2451545) == CivilDate{2000, 1, 1});
static_assert(Julian_From_Day_Number(2299160) == CivilDate{1582, 10, 4});

}  // namespace orrivane::engine::reference
