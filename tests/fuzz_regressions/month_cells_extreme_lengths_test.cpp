// The days of the month before in a grid whose month before has the smallest length an int holds:
// its last days are counted below that length, out of the range of int.
#include <gtest/gtest.h>

#include "engine/calendar_engine.h"
#include "fuzz_regressions/fuzz_input.h"

namespace orrivane::fuzz_regressions {
namespace {

TEST(FuzzRegression, TheLastDaysOfAMonthBeforeOfTheSmallestLengthAreCountedIn64Bits) {
  const std::vector<std::string> w = Fuzz_Input_Words("month_before_of_the_smallest_length.txt");
  ASSERT_EQ(w.size(), 5u);
  const engine::MonthGrid grid = engine::Draw_Month_Cells(static_cast<int>(Whole(w[1])), static_cast<int>(Whole(w[2])),
                                                          static_cast<int>(Whole(w[3])), Whole(w[4]));
  // First column 7: six days of the month before, ending at its length.
  EXPECT_EQ(grid[0].caption, "-2147483653");
  EXPECT_EQ(grid[5].caption, "-2147483648");
  EXPECT_EQ(grid[6].caption, "1");
  EXPECT_EQ(grid[0].colour, colours::kGrayText);
}

}  // namespace
}  // namespace orrivane::fuzz_regressions
