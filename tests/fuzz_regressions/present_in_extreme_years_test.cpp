// The present as a selection of the Find Time Length window, in the smallest year a 64-bit
// whole number holds: its century times 100 lies beyond that range.
#include <gtest/gtest.h>

#include "elapsed/time_selection.h"
#include "fuzz_regressions/fuzz_input.h"

namespace orrivane::fuzz_regressions {
namespace {

TEST(FuzzRegression, ThePresentInTheSmallestYearSplitsIntoCenturyAndYearInCentury) {
  const std::vector<std::string> w = Fuzz_Input_Words("present_in_the_smallest_year.txt");
  ASSERT_EQ(w.size(), 6u);
  const elapsed::Time_Selection now = elapsed::Selection_At(w[1], Whole(w[2]), Whole(w[3]), Whole(w[4]), Whole(w[5]));
  // -9223372036854775808 = -92233720368547759 x 100 + 92
  EXPECT_EQ(now.Century, "-92233720368547759");
  EXPECT_EQ(now.Year_In_Century, "92");
  EXPECT_EQ(now.Month, "March");
  EXPECT_EQ(now.Date, "5");
}

TEST(FuzzRegression, TheYearInCenturyOfNegativeYearsCountsUpFromTheCenturysStart) {
  EXPECT_EQ(elapsed::Selection_At("March", 5, -1, 0, 0).Year_In_Century, "99");
  EXPECT_EQ(elapsed::Selection_At("March", 5, -100, 0, 0).Year_In_Century, "0");
  EXPECT_EQ(elapsed::Selection_At("March", 5, 2001, 0, 0).Year_In_Century, "1");
}

}  // namespace
}  // namespace orrivane::fuzz_regressions
