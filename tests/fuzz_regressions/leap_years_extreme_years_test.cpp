// Count_Leap_Years over ranges that begin at the smallest year a 64-bit whole number holds, where
// the year before the first lies out of that range.
#include <gtest/gtest.h>

#include "elapsed/date_difference.h"
#include "fuzz_regressions/fuzz_input.h"

namespace orrivane::fuzz_regressions {
namespace {

TEST(FuzzRegression, LeapYearsFromTheSmallestYearAreCounted) {
  const std::vector<std::string> w = Fuzz_Input_Words("leap_years_from_the_smallest_year.txt");
  ASSERT_EQ(w.size(), 4u);
  // -2^63 and the two fourth years after it; the last is a century year, 200 past a multiple of 400.
  EXPECT_EQ(elapsed::Count_Leap_Years(Whole(w[1]), Whole(w[2]), w[3]), 2);
  EXPECT_EQ(elapsed::Count_Leap_Years(Whole(w[1]), Whole(w[2]), "Julian"), 3);
}

TEST(FuzzRegression, EveryFourthOfAll64BitYearsIsAJulianLeapYear) {
  EXPECT_EQ(elapsed::Count_Leap_Years(INT64_MIN, INT64_MAX, "Julian"), 4611686018427387904LL);  // 2^62
}

}  // namespace
}  // namespace orrivane::fuzz_regressions
