#include "calendar/month_grid.h"

#include <gtest/gtest.h>

namespace orrivane::calendar {
namespace {

Captions Captions_Of(const Grid& grid) {
  Captions captions;
  for (int i = 0; i < 42; ++i) captions[i] = grid[i].caption;
  return captions;
}

TEST(MonthGrid, TheWeekdayOfTheNextFirstIsReadOffTheLastRows) {
  // December 1999 starts on a Wednesday (4); January 2000 on a Saturday (7).
  const Grid december = engine::Draw_Month_Cells(4, 31, 30, 0);
  EXPECT_EQ(Weekday_Of_First(Captions_Of(december)), 4);
  EXPECT_EQ(Weekday_Of_Next_First(Captions_Of(december)), 7);
}

TEST(MonthGrid, GoingBackAMonthSkipsWholeWeeks) {
  // From January 2000 (Saturday) back over December's 31 days: Wednesday.
  EXPECT_EQ(Weekday_Of_Prior_First(7, 31), 4);
  // Over a February of 28 days the weekday stays.
  EXPECT_EQ(Weekday_Of_Prior_First(3, 28), 3);
  // From a Sunday back over 30 days: Friday.
  EXPECT_EQ(Weekday_Of_Prior_First(1, 30), 6);
}

TEST(MonthGrid, SideCalendarsHideTheDaysOfOtherMonthsInTheBackgroundColour) {
  const Grid side = Fill_Side_Calendar(3, 30, 31);
  EXPECT_EQ(side[2].caption, "31");
  EXPECT_EQ(side[2].colour, colours::kButtonFace);
  EXPECT_EQ(side[3].caption, "1");
  EXPECT_EQ(side[3].colour, colours::kButtonText);
  EXPECT_EQ(side[32].caption, "30");
  EXPECT_EQ(side[33].caption, "1");
  EXPECT_EQ(side[33].colour, colours::kButtonFace);
  for (const auto& cell : side) EXPECT_FALSE(cell.caption.empty());
}

TEST(MonthGrid, TheFirstOfTheMonthBeforeStepsBackOneColumnADay) {
  EXPECT_EQ(Prior_Month_First_Column(6, 31), 3);  // January 2000 back to December 1999
  EXPECT_EQ(Prior_Month_First_Column(0, 28), 0);
}

TEST(MonthGrid, TheFirstOfTheMonthAfterAndTheLastDayBeforeIt) {
  const Grid december = engine::Draw_Month_Cells(4, 31, 30, 0);
  const NextFirst next = Next_Month_First(Captions_Of(december));
  EXPECT_EQ(next.column, 6);
  EXPECT_EQ(next.last_day, "31");
}

TEST(MonthGrid, ColourIndexRunsFrom1To24) {
  EXPECT_EQ(Month_Color_Index(0.0), 1);
  EXPECT_EQ(Month_Color_Index(0.99999), 24);
  EXPECT_EQ(Month_Color_Index(0.5), 13);
}

TEST(MonthGrid, ColourTablesAsSettledWithTheirTwins) {
  EXPECT_EQ(Form1_Month_Color(1), 32768u);
  EXPECT_EQ(Form1_Month_Color(7), Form1_Month_Color(19));
  EXPECT_EQ(Form1_Month_Color(1), Form1_Month_Color(20));
  EXPECT_EQ(Form1_Month_Color(24), 16744576u);
  EXPECT_EQ(Form1_Month_Color(0), 0u);
  EXPECT_EQ(Form1_Month_Color(25), 0u);
  LargeCalendarColors colors;
  ASSERT_TRUE(Large_Calendar_Month_Colors(9, colors));
  EXPECT_EQ(colors.main, 0xFF80FFu);
  EXPECT_EQ(colors.shadow, 0xFEE2FDu);
  EXPECT_FALSE(Large_Calendar_Month_Colors(25, colors));
  ASSERT_TRUE(Large_Calendar_Month_Colors(12, colors));
  EXPECT_EQ(colors.main, 0xFF8080u);
  EXPECT_EQ(colors.shadow, 0xC0C000u);
}

}  // namespace
}  // namespace orrivane::calendar
