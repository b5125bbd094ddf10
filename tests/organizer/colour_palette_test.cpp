// The palette's colours and their places.
#include "organizer/colour_palette.h"

#include <gtest/gtest.h>

namespace orrivane::organizer {
namespace {

TEST(Palette, FiftyColoursWithRedInTheLowByte) {
  EXPECT_EQ(kPalette.size(), 50u);
  EXPECT_EQ(kPalette[0], 0x000000u);
  EXPECT_EQ(kPalette[kLightGreyIndex], 12632256u);
  EXPECT_EQ(kPalette[8], 0x0000FFu);  // red
  EXPECT_EQ(kPalette[24], 0x004000u);
  EXPECT_EQ(kPalette[31], 0xFEE2FDu);
  EXPECT_EQ(kPalette[49], 0x008000u);
}

TEST(Palette, TwoColumnsOf25) {
  EXPECT_EQ(Palette_Column(0), 0);
  EXPECT_EQ(Palette_Row(24), 24);
  EXPECT_EQ(Palette_Column(25), 1);
  EXPECT_EQ(Palette_Row(25), 0);
  EXPECT_EQ(Palette_Column(49), 1);
}

}  // namespace
}  // namespace orrivane::organizer
