#include "calendar/task_overlay.h"

#include <gtest/gtest.h>

namespace orrivane::calendar {
namespace {

// March 2024: the first on a Friday (cell 5), cell 0 is 25 February, cell 41 is 6 April.
ShownMonth March2024() { return {3, 2024, 5, 25, 6, 31}; }

TEST(TaskOverlay, ADayOfTheMonthOnShowStandsInItsCell) {
  EXPECT_EQ(Task_Cells(March2024(), "March", 1, 2024), std::vector<int>{5});
  EXPECT_EQ(Task_Cells(March2024(), "March", 31, 2024), std::vector<int>{35});
}

TEST(TaskOverlay, ADayOfAnotherYearIsNotShown) {
  EXPECT_TRUE(Task_Cells(March2024(), "March", 14, 2025).empty());
  EXPECT_TRUE(Task_Cells(March2024(), "March", 14, 2100).empty());
}

TEST(TaskOverlay, TheLastDaysOfTheMonthBeforeInTheFirstRow) {
  EXPECT_EQ(Task_Cells(March2024(), "February", 29, 2024), std::vector<int>{4});
  EXPECT_EQ(Task_Cells(March2024(), "February", 25, 2024), std::vector<int>{0});
  EXPECT_TRUE(Task_Cells(March2024(), "February", 24, 2024).empty());
}

TEST(TaskOverlay, TheNextMonthOnlyUpToTheLastCell) {
  EXPECT_EQ(Task_Cells(March2024(), "April", 6, 2024), std::vector<int>{41});
  EXPECT_TRUE(Task_Cells(March2024(), "April", 7, 2024).empty());
}

TEST(TaskOverlay, AcrossTheYearsEnd) {
  // January 2025 starts on a Wednesday (cell 3): cell 0 is 29 December 2024.
  const ShownMonth january{1, 2025, 3, 29, 8, 31};
  EXPECT_EQ(Task_Cells(january, "December", 31, 2024), std::vector<int>{2});
  EXPECT_TRUE(Task_Cells(january, "December", 31, 2025).empty());
  // December 2024 starts on a Sunday: the next month is January of 2025.
  const ShownMonth december{12, 2024, 0, 1, 11, 31};
  EXPECT_EQ(Task_Cells(december, "January", 11, 2025), std::vector<int>{41});
}

TEST(TaskOverlay, AMonthStartingOnASundayTakesPriorDaysFromThe8thAmongItsOwnDays) {
  // September 2024 starts on a Sunday, so cell 0 is its 1st; a task of 20 August lands in cell 19.
  const ShownMonth september{9, 2024, 0, 1, 12, 30};
  EXPECT_EQ(Task_Cells(september, "August", 20, 2024), std::vector<int>{19});
  EXPECT_TRUE(Task_Cells(september, "August", 5, 2024).empty());
}

TEST(TaskOverlay, ItemTellsHourNameAndNumber) { EXPECT_EQ(Task_Item("14", "Dentist", "1"), "14, Dentist, #1"); }

}  // namespace
}  // namespace orrivane::calendar
