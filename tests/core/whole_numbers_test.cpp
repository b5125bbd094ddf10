// Floor division of whole numbers of either sign against the floor of the exact quotient.
#include "core/whole_numbers.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orrivane {
namespace {

TEST(FloorDiv, RoundsDownForEverySignOfDividendAndDivisor) {
  for (std::int64_t a = -500; a <= 500; ++a) {
    for (std::int64_t b : {-400, -100, -7, -4, -1, 1, 4, 7, 100, 400}) {
      const auto expected = static_cast<std::int64_t>(std::floor(static_cast<double>(a) / static_cast<double>(b)));
      ASSERT_EQ(Floor_Div(a, b), expected) << a << " / " << b;
    }
  }
}

TEST(FloorDiv, HoldsAtTheEndsOf64Bits) {
  constexpr std::int64_t kLargest = INT64_MAX;
  EXPECT_EQ(Floor_Div(kLargest, 1), kLargest);
  EXPECT_EQ(Floor_Div(-kLargest, 2), -(kLargest / 2) - 1);
  EXPECT_EQ(Floor_Div(kLargest, -2), -(kLargest / 2) - 1);
}

}  // namespace
}  // namespace orrivane
