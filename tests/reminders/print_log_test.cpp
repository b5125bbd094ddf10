// Printing the log: the period the print frame offers, the chart's moment read back from it, the
// paging of the chart and of the task lists, a task list's rows and the print job's name.
#include "reminders/print_log.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/temp_folder.h"
#include "organizer/chart_samples.h"
#include "organizer/log_file.h"

namespace orrivane::reminders {
namespace {

using organizer::DateAndTime;
using organizer::samples::At;
using organizer::samples::Chart_Task;

// ---- The chart's period and date ----------------------------------------------------------------

TEST(Output_Style_Date, ASystemDateBecomesMonthNameDateAndYear) {
  EXPECT_EQ(Output_Style_Date("3/5/2001"), "March 5, 2001");
  EXPECT_EQ(Output_Style_Date("03/05/2001"), "March 5, 2001");
  EXPECT_EQ(Output_Style_Date("12/31/1999"), "December 31, 1999");
}

TEST(Print_Period_Of, AtFiveFiftyNineTheEarlyMorningAtSixTheMorning) {
  EXPECT_EQ(Print_Period_Of({"3/5/2001", "5:59:59 AM"}), (PrintPeriod{"Early Morning", "March 5, 2001"}));
  EXPECT_EQ(Print_Period_Of({"3/5/2001", "6:00:00 AM"}), (PrintPeriod{"Morning", "March 5, 2001"}));
}

TEST(Print_Period_Of, TheHoursOfEachPeriod) {
  const std::pair<const char*, const char*> cases[] = {
      {"12:00:00 AM", "Early Morning"}, {"11:59:59 AM", "Morning"}, {"12:00:00 PM", "Afternoon"},
      {"5:59:00 PM", "Afternoon"},      {"6:00:00 PM", "Evening"},  {"11:59:59 PM", "Evening"}};
  for (const auto& [time, period] : cases) EXPECT_EQ(Print_Period_Of({"1/1/2024", time}).period, period) << time;
}

TEST(Print_Chart_Moment, TheOutputDateBecomesTheSystemFormWithThePeriodsSampleTime) {
  EXPECT_EQ(Print_Chart_Moment("March 5, 2001", "Morning"), (DateAndTime{"3/5/2001", "7:00:00 AM"}));
  EXPECT_EQ(Print_Chart_Moment("December 31, 1999", "Evening"), (DateAndTime{"12/31/1999", "7:00:00 PM"}));
  EXPECT_EQ(Print_Chart_Moment("January 1, 2024", "Early Morning"), (DateAndTime{"1/1/2024", "1:00:00 AM"}));
  EXPECT_EQ(Print_Chart_Moment("July 4, 1776", "Afternoon"), (DateAndTime{"7/4/1776", "1:00:00 PM"}));
}

TEST(Print_Chart_Moment, ATextThatNamesNoPeriodGivesNothing) {
  EXPECT_EQ(Print_Chart_Moment("March 5, 2001", "morning"), std::nullopt);
  EXPECT_EQ(Print_Chart_Moment("March 5, 2001", ""), std::nullopt);
}

TEST(Print_Chart_Moment, TheViewOfTheMomentIsTheChosenDayAndPeriod) {
  const organizer::ChartView view = organizer::View_Of(*Print_Chart_Moment("February 29, 2000", "Evening"));
  EXPECT_EQ(view, (organizer::ChartView{3, 2, 29, 2000}));
}

// ---- Paging -------------------------------------------------------------------------------------

TEST(Sheets_Of, ThirtyThreeMembersMakeTwoChartSheetsTheSecondWithOneRow) {
  EXPECT_EQ(Sheets_Of(33, kChartRowsPerSheet), (std::vector<Sheet>{{0, 32}, {32, 1}}));
}

TEST(Sheets_Of, ThirtyTwoMembersMakeOneSheet) {
  EXPECT_EQ(Sheets_Of(32, kChartRowsPerSheet), (std::vector<Sheet>{{0, 32}}));
  EXPECT_EQ(Sheets_Of(65, kChartRowsPerSheet), (std::vector<Sheet>{{0, 32}, {32, 32}, {64, 1}}));
}

TEST(Sheets_Of, SixTasksMakeOneSheetSevenTwoTheSecondWithOneRow) {
  EXPECT_EQ(Sheets_Of(6, kTasksPerSheet), (std::vector<Sheet>{{0, 6}}));
  EXPECT_EQ(Sheets_Of(7, kTasksPerSheet), (std::vector<Sheet>{{0, 6}, {6, 1}}));
  EXPECT_EQ(Sheets_Of(1, kTasksPerSheet), (std::vector<Sheet>{{0, 1}}));
}

TEST(Sheets_Of, NothingMakesNoSheet) { EXPECT_TRUE(Sheets_Of(0, kTasksPerSheet).empty()); }

class MemberTasks : public ::testing::Test {
 protected:
  testing::TempFolder folder;
  std::string log = folder.file("Schedule.tmp");
  void Add(const organizer::ScheduleRecord& record) { organizer::Append_Record(log, record); }
  static organizer::ScheduleRecord Task(int number, const std::string& person) {
    return Chart_Task(number, person, {"March", 5, 2001, 9, 0}, {"March", 5, 2001, 10, 30}, 0xFF);
  }
  static std::vector<int> Numbers(const std::vector<organizer::ScheduleRecord>& tasks) {
    std::vector<int> numbers;
    for (const auto& task : tasks) numbers.push_back(static_cast<int>(task.Record_Number.whole()));
    return numbers;
  }
};

TEST_F(MemberTasks, AMembersTasksInTheOrderOfTheLogWithoutItsMarkerRecord) {
  organizer::Generate_Person_Marker_Record(log, "Ann");
  organizer::Generate_Person_Marker_Record(log, "Bob");
  Add(Task(3, "Ann"));
  Add(Task(1, "Bob"));
  Add(Task(2, "Ann"));
  EXPECT_EQ(Numbers(Member_Tasks(log, "Ann")), (std::vector<int>{3, 2}));
  EXPECT_EQ(Numbers(Member_Tasks(log, "Bob")), (std::vector<int>{1}));
}

TEST_F(MemberTasks, AMemberWithOnlyAMarkerRecordHasNoTask) {
  organizer::Generate_Person_Marker_Record(log, "Ann");
  EXPECT_TRUE(Member_Tasks(log, "Ann").empty());
  EXPECT_TRUE(Sheets_Of(static_cast<int>(Member_Tasks(log, "Ann").size()), kTasksPerSheet).empty());
}

TEST_F(MemberTasks, NamesAreComparedExactlyCaseIncluded) {
  Add(Task(1, "Ann"));
  Add(Task(2, "ann"));
  Add(Task(3, "Ann "));
  EXPECT_EQ(Numbers(Member_Tasks(log, "Ann")), (std::vector<int>{1}));
}

// ---- A task list sheet --------------------------------------------------------------------------

TEST(Task_List_Heading, NamesTheMember) { EXPECT_EQ(Task_List_Heading("Ann Lee"), "Tasklist For: Ann Lee"); }

TEST(Task_List_Row, TheDatesKeepTheirLeadingZeroTheTimesAreOnTheTwelveHourClock) {
  organizer::ScheduleRecord task = Chart_Task(7, "Ann", {"March", 5, 2001, 14, 5}, {"March", 6, 2001, 0, 30}, 0x00FF00);
  task.Task_Name = "Dentist";
  task.Task_Description = "Check-up, bring the card";
  EXPECT_EQ(Task_List_Row(task), (TaskListRow{0x00FF00, "Dentist", "Check-up, bring the card", "March 05, 2001",
                                              "2:05 PM", "March 06, 2001", "12:30 AM"}));
}

TEST(Task_List_Row, NoonIsTwelvePmAndTheYearIsCenturyAndYear) {
  const organizer::ScheduleRecord task =
      Chart_Task(1, "Ann", {"January", 31, 1999, 12, 0}, {"December", 1, 2000, 23, 59}, 0xFF);
  const TaskListRow row = Task_List_Row(task);
  EXPECT_EQ(row.start_date, "January 31, 1999");
  EXPECT_EQ(row.start_time, "12:00 PM");
  EXPECT_EQ(row.finish_date, "December 01, 2000");
  EXPECT_EQ(row.finish_time, "11:59 PM");
}

// ---- The print job ------------------------------------------------------------------------------

TEST(Print_Log_Document_Name, TellsWhatThePressHolds) {
  const DateAndTime morning{"3/5/2001", "7:00:00 AM"};
  const DateAndTime early{"12/31/1999", "1:00:00 AM"};
  EXPECT_EQ(Print_Log_Document_Name(morning, false), "Orrivane-log-chart-2001-03-05-Morning");
  EXPECT_EQ(Print_Log_Document_Name(std::nullopt, true), "Orrivane-log-task-lists");
  EXPECT_EQ(Print_Log_Document_Name(early, true), "Orrivane-log-chart-1999-12-31-Early-Morning-and-task-lists");
}

}  // namespace
}  // namespace orrivane::reminders
