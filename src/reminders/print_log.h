#pragma once
// Printing the log: the task chart of one period for the selected group members, 32 to a sheet,
// and each selected member's task list, six tasks to a sheet. Here are the choice the print
// frame offers, the chart's moment read back from that choice, which members and tasks go on
// which sheet, what a row of a task list shows, and the name of the print job.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "organizer/chart_geometry.h"
#include "organizer/schedule_record.h"
#include "organizer/time_period_selection.h"

namespace orrivane::reminders {

// ---- The chart's period and date ----------------------------------------------------------------

// What the print frame shows of the chart to print: the period ("Early Morning") and the date in
// the output style ("March 5, 2001").
struct PrintPeriod {
  std::string period;
  std::string date;
  friend bool operator==(const PrintPeriod&, const PrintPeriod&) = default;
};

// The output-style date of a system date: month name, blank, date without a leading zero, comma,
// blank, year. "3/5/2001" and "03/05/2001" are both "March 5, 2001".
std::string Output_Style_Date(const std::string& system_date);

// The period that holds a system time (its 24-hour hour: 0 to 5 "Early Morning", 6 to 11
// "Morning", 12 to 17 "Afternoon", 18 to 23 "Evening") on a system date.
PrintPeriod Print_Period_Of(const organizer::DateAndTime& moment);

// The moment the printed chart shows: the date of the output-style text turned to the system
// form ("March 5, 2001" to "3/5/2001") and the period's sample time. Nothing for a text that
// names no period.
std::optional<organizer::DateAndTime> Print_Chart_Moment(const std::string& output_date, std::string_view period);

// ---- Paging -------------------------------------------------------------------------------------

inline constexpr int kChartRowsPerSheet = organizer::kPrintChartRows;
inline constexpr int kTasksPerSheet = 6;

// A sheet's share of a list: the position of its first item and how many it holds.
struct Sheet {
  int first = 0;
  int count = 0;
  friend bool operator==(const Sheet&, const Sheet&) = default;
};

// The sheets of `items` items, `per_sheet` to a sheet in order, the last holding what is left;
// none for no items.
std::vector<Sheet> Sheets_Of(int items, int per_sheet);

// The tasks of a member, in the order of the log: its records whose Person_Name equals the name
// and whose Record_Number is not -1, so that the marker record prints no row.
std::vector<organizer::ScheduleRecord> Member_Tasks(const std::string& log_path, const std::string& member);

// ---- A task list sheet --------------------------------------------------------------------------

// "Tasklist For: " and the member.
std::string Task_List_Heading(const std::string& member);

// What a row of a task list shows of a task. The dates are month, blank, date as it stands
// (its leading zero kept), comma, blank, 100 x century + year; the times the 12-hour hour, ":",
// the minute as it stands, blank, "AM" or "PM".
struct TaskListRow {
  unsigned colour = 0;  // Color_Code, 0xBBGGRR
  std::string task_name;
  std::string description;
  std::string start_date;
  std::string start_time;
  std::string finish_date;
  std::string finish_time;
  friend bool operator==(const TaskListRow&, const TaskListRow&) = default;
};
TaskListRow Task_List_Row(const organizer::ScheduleRecord& task);

// ---- The print job ------------------------------------------------------------------------------

// The name of one press's print job, which names its file where there is no printer: what it
// holds, with the chart's date and period when it holds the chart (nothing: no chart).
// "Orrivane-log-chart-2001-03-05-Morning", "Orrivane-log-task-lists",
// "Orrivane-log-chart-2001-03-05-Early-Morning-and-task-lists".
std::string Print_Log_Document_Name(const std::optional<organizer::DateAndTime>& chart_moment, bool task_lists);

}  // namespace orrivane::reminders
