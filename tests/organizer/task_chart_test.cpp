// The task chart: the rows and the scroll bar over them, which cells a task paints in a view,
// and the pass over the log that hands the tasks to paint in file order.
#include "organizer/task_chart.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/runtime_failure.h"
#include "organizer/chart_samples.h"
#include "organizer/log_file.h"
#include "organizer/log_samples.h"

namespace orrivane::organizer {
namespace {

using samples::At;
using samples::Chart_Task;
using samples::Moment_Task;

constexpr int kEarlyMorning = 0, kMorning = 1, kAfternoon = 2, kEvening = 3;
constexpr unsigned kBlue = 0xFF0000;
constexpr unsigned kGreen = 0x00FF00;

// ---- The scroll bar and the rows -----------------------------------------------------------------

TEST(Chart_Scroll_Bar, TenMembersDisableIt) {
  EXPECT_EQ(Chart_Scroll_Bar(10, 0, kScreenChartRows), (ChartScrollBar{false, std::nullopt, 0}));
}

TEST(Chart_Scroll_Bar, ElevenMembersEnableItWithMaximumZero) {
  EXPECT_EQ(Chart_Scroll_Bar(11, 0, kScreenChartRows), (ChartScrollBar{true, 0, 0}));
}

TEST(Chart_Scroll_Bar, TwelveMembersGiveMaximumOne) {
  EXPECT_EQ(Chart_Scroll_Bar(12, 1, kScreenChartRows), (ChartScrollBar{true, 1, 1}));
}

TEST(Chart_Scroll_Bar, AFirstRowMemberBeyondTheMaximumIsPulledBack) {
  // Twenty members scrolled to the ninth; eight of them deleted.
  EXPECT_EQ(Chart_Scroll_Bar(12, 9, kScreenChartRows), (ChartScrollBar{true, 1, 1}));
}

TEST(Chart_Scroll_Bar, FewerMembersThanRowsLeaveTheFirstRowMemberAsItWas) {
  EXPECT_EQ(Chart_Scroll_Bar(5, 2, kScreenChartRows).first_row_member, 2);
}

TEST(Chart_Scroll_Bar, ThePrintedChartHasItsOwnRowCount) {
  EXPECT_EQ(Chart_Scroll_Bar(40, 20, kPrintChartRows), (ChartScrollBar{true, 8, 8}));
}

TEST(Rows_Filled, AtMostTheRowsAndNotBeyondTheList) {
  EXPECT_EQ(Rows_Filled(3, 0, kScreenChartRows), 3);
  EXPECT_EQ(Rows_Filled(50, 10, kScreenChartRows), 11);
  EXPECT_EQ(Rows_Filled(12, 5, kScreenChartRows), 7);
  EXPECT_EQ(Rows_Filled(0, 0, kScreenChartRows), 0);
  EXPECT_EQ(Rows_Filled(50, 10, kPrintChartRows), 32);
}

// ---- Columns ----------------------------------------------------------------------------------

TEST(Chart_Column, SixColumnsAnHourTenMinutesEach) {
  EXPECT_EQ(Chart_Column(0, 0), 0);
  EXPECT_EQ(Chart_Column(18, 10), 1);
  EXPECT_EQ(Chart_Column(17, 30), 33);
  EXPECT_EQ(Chart_Column(23, 55), 35);
}

TEST(Chart_Column, Minute59IsTheLastOfItsHour) {
  EXPECT_EQ(Chart_Column(6, 59), 5);
  EXPECT_EQ(Chart_Column(9, 59), 23);
}

TEST(Chart_Column, NeverBeyondTheLastColumn) { EXPECT_EQ(Chart_Column(5, 99), 35); }

// ---- One task in the view ---------------------------------------------------------------------

TEST(Cells_Of_Task, AMomentFillsOneCell) {
  const ScheduleRecord task = Moment_Task(1, "Anna", {"March", 5, 2001, 14, 30}, kBlue);
  EXPECT_EQ(Cells_Of_Task(task, {kAfternoon, 3, 5, 2001}, 2), (TaskCells{Chart_Cell(2, 15), Chart_Cell(2, 15)}));
  EXPECT_EQ(Cells_Of_Task(task, {kMorning, 3, 5, 2001}, 2), std::nullopt);
  EXPECT_EQ(Cells_Of_Task(task, {kAfternoon, 3, 6, 2001}, 2), std::nullopt);
  EXPECT_EQ(Cells_Of_Task(task, {kAfternoon, 4, 5, 2001}, 2), std::nullopt);
  EXPECT_EQ(Cells_Of_Task(task, {kAfternoon, 3, 5, 1901}, 2), std::nullopt);
}

TEST(Cells_Of_Task, AcrossMidnight) {
  const ScheduleRecord task = Chart_Task(1, "Anna", {"March", 4, 2001, 23, 55}, {"March", 5, 2001, 0, 15}, kBlue);
  EXPECT_EQ(Cells_Of_Task(task, {kEvening, 3, 4, 2001}, 0), (TaskCells{35, 35}));
  EXPECT_EQ(Cells_Of_Task(task, {kEarlyMorning, 3, 5, 2001}, 0), (TaskCells{0, 1}));
  EXPECT_EQ(Cells_Of_Task(task, {kAfternoon, 3, 4, 2001}, 0), std::nullopt);
  EXPECT_EQ(Cells_Of_Task(task, {kMorning, 3, 5, 2001}, 0), std::nullopt);
}

TEST(Cells_Of_Task, AThreeDayTaskFillsEveryPeriodOfTheMiddleDay) {
  const ScheduleRecord task = Chart_Task(1, "Anna", {"March", 4, 2001, 10, 0}, {"March", 6, 2001, 15, 0}, kBlue);
  for (int period = 0; period < kPeriodCount; ++period) {
    EXPECT_EQ(Cells_Of_Task(task, {period, 3, 5, 2001}, 3), (TaskCells{Chart_Cell(3, 0), Chart_Cell(3, 35)}));
  }
  EXPECT_EQ(Cells_Of_Task(task, {kMorning, 3, 4, 2001}, 3), (TaskCells{Chart_Cell(3, 24), Chart_Cell(3, 35)}));
  EXPECT_EQ(Cells_Of_Task(task, {kAfternoon, 3, 4, 2001}, 3), (TaskCells{Chart_Cell(3, 0), Chart_Cell(3, 35)}));
  EXPECT_EQ(Cells_Of_Task(task, {kEarlyMorning, 3, 4, 2001}, 3), std::nullopt);
  EXPECT_EQ(Cells_Of_Task(task, {kAfternoon, 3, 6, 2001}, 3), (TaskCells{Chart_Cell(3, 0), Chart_Cell(3, 18)}));
  EXPECT_EQ(Cells_Of_Task(task, {kEvening, 3, 6, 2001}, 3), std::nullopt);
}

TEST(Cells_Of_Task, FromHalfPastFiveToTenPastSix) {
  const ScheduleRecord task = Chart_Task(1, "Anna", {"March", 5, 2001, 17, 30}, {"March", 5, 2001, 18, 10}, kBlue);
  EXPECT_EQ(Cells_Of_Task(task, {kAfternoon, 3, 5, 2001}, 0), (TaskCells{33, 35}));
  EXPECT_EQ(Cells_Of_Task(task, {kEvening, 3, 5, 2001}, 0), (TaskCells{0, 1}));
}

TEST(Cells_Of_Task, TheWholePeriodRuleComparesMonthsByNumber) {
  // By name "April" would come before "March"; by number April comes after it.
  const ScheduleRecord task = Chart_Task(1, "Anna", {"January", 20, 2001, 9, 0}, {"April", 5, 2001, 9, 0}, kBlue);
  EXPECT_EQ(Cells_Of_Task(task, {kMorning, 3, 1, 2001}, 0), (TaskCells{0, 35}));
}

TEST(Cells_Of_Task, TheWholePeriodRuleComparesYearsWithTheirCentury) {
  const ScheduleRecord task = Chart_Task(1, "Anna", {"December", 31, 1999, 22, 0}, {"January", 2, 2000, 1, 0}, kBlue);
  EXPECT_EQ(Cells_Of_Task(task, {kMorning, 1, 1, 2000}, 0), (TaskCells{0, 35}));
  EXPECT_EQ(Cells_Of_Task(task, {kMorning, 1, 1, 1900}, 0), std::nullopt);
}

TEST(Cells_Of_Task, TheWholePeriodRuleIgnoresMinutes) {
  // Start at the last minute of the hour before the period, finish at the first of the hour
  // after: the period lies within the task.
  const ScheduleRecord task = Chart_Task(1, "Anna", {"March", 5, 2001, 5, 59}, {"March", 5, 2001, 12, 0}, kBlue);
  EXPECT_EQ(Cells_Of_Task(task, {kMorning, 3, 5, 2001}, 0), (TaskCells{0, 35}));
}

TEST(Cells_Of_Task, AStartInTheLastHourOfThePeriodPaintsToTheEndOfTheRow) {
  // From 5:00 to 5:50 the day after: the first day's early morning from the start to the end of
  // the row, the second day's from the start of the row to the finish.
  const ScheduleRecord task = Chart_Task(1, "Anna", {"March", 5, 2001, 5, 0}, {"March", 6, 2001, 5, 50}, kBlue);
  EXPECT_EQ(Cells_Of_Task(task, {kEarlyMorning, 3, 6, 2001}, 0), (TaskCells{0, 35}));
  EXPECT_EQ(Cells_Of_Task(task, {kEarlyMorning, 3, 5, 2001}, 0), (TaskCells{30, 35}));
}

TEST(Cells_Of_Task, TheMonthNameOfTheInViewTestIsComparedExactly) {
  const ScheduleRecord task = Moment_Task(1, "Anna", {"Mar", 5, 2001, 14, 30}, kBlue);
  EXPECT_EQ(Cells_Of_Task(task, {kAfternoon, 3, 5, 2001}, 0), std::nullopt);
}

// ---- The painting pass ------------------------------------------------------------------------

class Tasks_To_Paint_Test : public ::testing::Test {
 protected:
  std::string Log() const { return folder_.file("Schedule.tmp"); }
  void Add(const ScheduleRecord& record) const { Append_Record(Log(), record); }
  void Add_Member(const std::string& name) const { Generate_Person_Marker_Record(Log(), name); }

  std::vector<PaintedTask> Paint(const ChartView& view, const std::vector<std::string>& rows) const {
    return Tasks_To_Paint(Log(), view, rows);
  }

 private:
  testing::TempFolder folder_;
};

const ChartView kAfternoonMarch5{kAfternoon, 3, 5, 2001};

TEST_F(Tasks_To_Paint_Test, TasksComeInFileOrderWithRowCellsColourAndNumber) {
  Add_Member("Anna");
  Add(Moment_Task(1, "Anna", {"March", 5, 2001, 14, 30}, kBlue));
  Add_Member("Ben");
  Add(Chart_Task(2, "Ben", {"March", 5, 2001, 17, 30}, {"March", 5, 2001, 18, 10}, kGreen));
  const std::vector<PaintedTask> painted = Paint(kAfternoonMarch5, {"Anna", "Ben"});
  ASSERT_EQ(painted.size(), 2u);
  EXPECT_EQ(painted[0].row, 0);
  EXPECT_EQ(painted[0].first_cell, 15);
  EXPECT_EQ(painted[0].last_cell, 15);
  EXPECT_EQ(painted[0].colour, Value(static_cast<double>(kBlue)));
  EXPECT_EQ(painted[0].record_number, Value(1));
  EXPECT_EQ(painted[1].row, 1);
  EXPECT_EQ(painted[1].first_cell, Chart_Cell(1, 33));
  EXPECT_EQ(painted[1].last_cell, Chart_Cell(1, 35));
  EXPECT_EQ(painted[1].colour, Value(static_cast<double>(kGreen)));
  EXPECT_EQ(painted[1].record_number, Value(2));
}

TEST_F(Tasks_To_Paint_Test, MarkersAndMembersOnNoRowPaintNothing) {
  Add_Member("Anna");
  Add_Member("Carl");
  Add(Moment_Task(1, "Carl", {"March", 5, 2001, 14, 30}, kBlue));
  EXPECT_TRUE(Paint(kAfternoonMarch5, {"Anna", ""}).empty());
}

TEST_F(Tasks_To_Paint_Test, TheFirstRowWithTheMembersNameCounts) {
  Add(Moment_Task(1, "Ben", {"March", 5, 2001, 14, 30}, kBlue));
  const std::vector<PaintedTask> painted = Paint(kAfternoonMarch5, {"Anna", "Ben", "Ben"});
  ASSERT_EQ(painted.size(), 1u);
  EXPECT_EQ(painted[0].row, 1);
}

TEST_F(Tasks_To_Paint_Test, TwoTasksInTheSameTenMinutesTheLaterOwnsTheCell) {
  Add(Chart_Task(1, "Anna", {"March", 5, 2001, 14, 0}, {"March", 5, 2001, 14, 35}, kBlue));
  Add(Moment_Task(2, "Anna", {"March", 5, 2001, 14, 22}, kGreen));
  const std::vector<PaintedTask> painted = Paint(kAfternoonMarch5, {"Anna"});
  ASSERT_EQ(painted.size(), 2u);
  const std::vector<int> owners = Cell_Owners(painted, kScreenChartCells);
  EXPECT_EQ(owners[12], 0);
  EXPECT_EQ(owners[13], 0);
  EXPECT_EQ(owners[14], 1);
  EXPECT_EQ(owners[15], 0);
  EXPECT_EQ(owners[16], kNoTask);
  EXPECT_EQ(owners[11], kNoTask);
}

TEST_F(Tasks_To_Paint_Test, ThePrintedChartHasThirtyTwoRows) {
  std::vector<std::string> rows(kPrintChartRows);
  rows[31] = "Zoe";
  Add(Chart_Task(1, "Zoe", {"March", 4, 2001, 0, 0}, {"March", 6, 2001, 0, 0}, kBlue));
  const std::vector<PaintedTask> painted = Paint(kAfternoonMarch5, rows);
  ASSERT_EQ(painted.size(), 1u);
  EXPECT_EQ(painted[0].first_cell, Chart_Cell(31, 0));
  EXPECT_EQ(painted[0].last_cell, kPrintChartCells - 1);
  const std::vector<int> owners = Cell_Owners(painted, kPrintChartCells);
  EXPECT_EQ(owners[kPrintChartCells - 1], 0);
  EXPECT_EQ(owners[Chart_Cell(30, 35)], kNoTask);
}

TEST_F(Tasks_To_Paint_Test, OneReadingGivesTheMembersAtTheirFirstAppearanceAndTheTasksInTheView) {
  Add_Member("Carl");
  Add(Moment_Task(1, "Anna", {"March", 5, 2001, 14, 30}, kBlue));
  Add_Member("Anna");
  Add(Moment_Task(2, "Carl", {"March", 5, 2001, 9, 30}, kBlue));
  Add(Moment_Task(3, "anna", {"March", 5, 2001, 17, 59}, kBlue));
  const ChartLog log = Read_Chart_Log(Log(), kAfternoonMarch5);
  EXPECT_EQ(log.members, (std::vector<std::string>{"Carl", "Anna", "anna"}));
  ASSERT_EQ(log.tasks.size(), 2u);
  EXPECT_EQ(log.tasks[0].Record_Number, Value(1));
  EXPECT_EQ(log.tasks[1].Record_Number, Value(3));
  EXPECT_EQ(Tasks_To_Paint(log.tasks, kAfternoonMarch5, std::vector<std::string>{"anna"}).at(0).last_cell, 35);
}

TEST_F(Tasks_To_Paint_Test, AMissingLogIsFailure53) {
  EXPECT_EQ(testing::Failure_Of([&] { Paint(kAfternoonMarch5, {"Anna"}); }), 53);
}

}  // namespace
}  // namespace orrivane::organizer
