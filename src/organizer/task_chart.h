#pragma once
// The Organizer's task chart: which members stand on its rows, the scroll bar over them, and
// which cells each task of the log paints in the view on show. The same pass serves the screen
// (11 rows) and the printed chart (32 rows): the caller hands in its rows.
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/value.h"
#include "organizer/chart_geometry.h"
#include "organizer/schedule_record.h"
#include "organizer/time_period_selection.h"

namespace orrivane::organizer {

// ---- The rows ---------------------------------------------------------------------------------

// The scroll bar over the rows. With at least as many members as rows it is enabled, its maximum
// is the member count less the rows, and a first row member beyond it is pulled back to it; with
// fewer it is disabled and its maximum and value are left as they were.
struct ChartScrollBar {
  bool enabled = false;
  std::optional<int> maximum;  // nothing: left alone
  int first_row_member = 0;
  friend bool operator==(const ChartScrollBar&, const ChartScrollBar&) = default;
};
ChartScrollBar Chart_Scroll_Bar(int member_count, int first_row_member, int rows);

// How many rows the members fill from the first row member on: at most `rows`, stopping at the
// end of the list.
int Rows_Filled(int member_count, int first_row_member, int rows);

// ---- One task in the view ---------------------------------------------------------------------

// The start or the finish of a task, as its fields stand (task_list.h has a TaskMoment of
// numbers; the chart compares the fields as the program reads them).
struct MomentFields {
  const Value& month;  // the month name
  const Value& date;
  const Value& century;
  const Value& year;
  const Value& hour;
  const Value& minute;
};
MomentFields Start_Of(const ScheduleRecord& task);
MomentFields Finish_Of(const ScheduleRecord& task);

// The moment lies in the view: its hour within the period's hours, its month name the view's,
// its date the view's as a number, and 100 x century + year the view's year.
bool Moment_In_View(const MomentFields& moment, const ChartView& view);

// The whole period lies within the task: its start (year, month by number, date, hour) comes
// before the view's day at the period's first hour and its finish after the view's day at the
// period's last hour. Minutes play no part.
bool Period_Within_Task(const MomentFields& start, const MomentFields& finish, const ChartView& view);

// The column of a time in its period: 6 x (hour mod 6) + whole part of minute / 10, at most 35.
int Chart_Column(std::int64_t hour, std::int64_t minute);

// The cells a task paints on a row, first to last, both included.
struct TaskCells {
  int first;
  int last;
  friend bool operator==(const TaskCells&, const TaskCells&) = default;
};
// Nothing when the task is not in the view. A start outside the view begins the row, a finish
// outside it ends the row.
std::optional<TaskCells> Cells_Of_Task(const ScheduleRecord& task, const ChartView& view, int row);

// ---- The painting pass ------------------------------------------------------------------------

// One reading of the log for a refresh: field 19 of its records, marker records and tasks alike,
// each name at its first appearance, and, in file order, the tasks (records whose Record_Number
// is above -1) that paint in the view, whoever's they are. A refresh reads the log once, through,
// and keeps nothing of it afterwards.
struct ChartLog {
  std::vector<std::string> members;
  std::vector<ScheduleRecord> tasks;
};
ChartLog Read_Chart_Log(const std::string& log_path, const ChartView& view);

// A task to paint: its cells on its row, its colour (field 18, 0xBBGGRR) and record number.
struct PaintedTask {
  int row;
  int first_cell;
  int last_cell;
  Value colour;
  Value record_number;
};

// Every task, in file order, that paints in the view on a row of a member whose name is among
// `row_captions` (one a row, as many as the chart has rows; the first equal caption counts).
// Marker records and tasks of members on no row paint nothing. Tasks are not merged: a later
// task overwrites the cells of an earlier one, so the caller paints them in this order.
std::vector<PaintedTask> Tasks_To_Paint(std::span<const ScheduleRecord> tasks, const ChartView& view,
                                        std::span<const std::string> row_captions);
// The same over the log at `log_path`, read through.
std::vector<PaintedTask> Tasks_To_Paint(const std::string& log_path, const ChartView& view,
                                        std::span<const std::string> row_captions);

// What painting the tasks in order leaves in each of `cell_count` cells: the index in `painted`
// of the last task that paints the cell, kNoTask for a cell no task paints. Each cell is then painted
// once, as the pass in order would leave it.
inline constexpr int kNoTask = -1;
std::vector<int> Cell_Owners(std::span<const PaintedTask> painted, int cell_count);

}  // namespace orrivane::organizer
