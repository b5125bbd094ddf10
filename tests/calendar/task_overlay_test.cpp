#include "calendar/task_overlay.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "core/runtime_failure.h"
#include "core/temp_folder.h"
#include "organizer/log_file.h"
#include "support/failure_of.h"

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

// ---- The tasks of a member, read from the log ------------------------------------------------

organizer::ScheduleRecord Task_Of(const Value& number, const std::string& member, const std::string& month, int date,
                                  int year, const std::string& name = "Dentist") {
  organizer::ScheduleRecord record;
  record.Record_Number = number;
  record.Task_Name = name;
  record.Start_Month = month;
  record.Start_Date = date;
  record.Start_Century = year / 100;
  record.Start_Year = year % 100;
  record.Start_Hour = "14";
  record.Person_Name = member;
  return record;
}

std::vector<std::pair<int, std::string>> Shown(const std::string& log, const std::string& member) {
  std::vector<std::pair<int, std::string>> shown;
  Show_Tasks_On_Grid(log, March2024(), member,
                     [&](const TaskOnGrid& task) { shown.emplace_back(task.cell, task.item); });
  return shown;
}

TEST(TaskOverlay, ShowsTheTasksOfTheChosenMemberInLogOrder) {
  testing::TempFolder folder;
  const std::string log = folder.file("Schedule.tmp");
  organizer::Generate_Person_Marker_Record(log, "Anna");
  for (const organizer::ScheduleRecord& record :
       {Task_Of(1, "Anna", "March", 14, 2024), Task_Of(2, "Ben", "March", 14, 2024),
        Task_Of(3, "Anna", "February", 29, 2024, "Gym"), Task_Of(4, "Anna", "March", 14, 2024, "Gym"),
        Task_Of(5, "Anna", "May", 1, 2024)}) {
    organizer::Append_Record(log, record);
  }
  EXPECT_EQ(Shown(log, "Anna"), (std::vector<std::pair<int, std::string>>{
                                    {18, "14, Dentist, #1"}, {4, "14, Gym, #3"}, {18, "14, Gym, #4"}}));
  EXPECT_EQ(Shown(log, "Ben"), (std::vector<std::pair<int, std::string>>{{18, "14, Dentist, #2"}}));
  EXPECT_TRUE(Shown(log, "anna").empty());
}

TEST(TaskOverlay, RecordsNumberedBelowZeroAreNotShown) {
  testing::TempFolder folder;
  const std::string log = folder.file("Schedule.tmp");
  organizer::Append_Record(log, Task_Of(-1, "Anna", "March", 14, 2024));
  organizer::Append_Record(log, Task_Of(-2, "Anna", "March", 15, 2024));
  organizer::Append_Record(log, Task_Of(0, "Anna", "March", 16, 2024));
  EXPECT_EQ(Shown(log, "Anna"), (std::vector<std::pair<int, std::string>>{{20, "14, Dentist, #0"}}));
}

TEST(TaskOverlay, ATruncatedLogFailsAfterShowingTheTasksBeforeIt) {
  testing::TempFolder folder;
  const std::string log = folder.file("Schedule.tmp");
  organizer::Append_Record(log, Task_Of(1, "Anna", "March", 14, 2024));
  testing::Write_Bytes(log, testing::Read_Bytes(log) + "2\r\n");
  std::vector<int> cells;
  EXPECT_EQ(testing::Failure_Of([&] {
              Show_Tasks_On_Grid(log, March2024(), "Anna", [&](const TaskOnGrid& task) { cells.push_back(task.cell); });
            }),
            kInputPastEndOfFile);
  EXPECT_EQ(cells, std::vector<int>{18});
}

}  // namespace
}  // namespace orrivane::calendar
