#include "organizer/task_chart.h"

#include <algorithm>
#include <tuple>

#include "engine/vocabulary.h"
#include "organizer/log_file.h"

namespace orrivane::organizer {

namespace {

constexpr int kHoursPerPeriod = kChartColumns * kMinutesPerColumn / 60;
constexpr int kLastColumn = kChartColumns - 1;

std::int64_t Year_Of(const TaskMoment& moment) { return 100 * moment.century.whole() + moment.year.whole(); }

// Year, month number, date and hour, in the order they are compared.
using HourOfDay = std::tuple<std::int64_t, std::int64_t, std::int64_t, std::int64_t>;

HourOfDay Hour_Of(const TaskMoment& moment) {
  const Value month = engine::Define_Month(moment.month, "Get Month Number");
  return {Year_Of(moment), month.is_empty() ? 0 : month.whole(), moment.date.whole(), moment.hour.whole()};
}

HourOfDay View_Hour(const ChartView& view, int hour) { return {view.year, view.month, view.date, hour}; }

const TimePeriod& Period_Of(const ChartView& view) { return kTimePeriods[static_cast<std::size_t>(view.period)]; }

int Cell_Of(const TaskMoment& moment, int row) {
  return Chart_Cell(row, Chart_Column(moment.hour.whole(), moment.minute.whole()));
}

// The row whose caption is the task's member, or nothing.
std::optional<int> Row_Of(const ScheduleRecord& task, std::span<const std::string> row_captions) {
  const std::string member = task.Person_Name.text();
  const auto found = std::ranges::find(row_captions, member);
  if (found == row_captions.end()) return std::nullopt;
  return static_cast<int>(found - row_captions.begin());
}

}  // namespace

// ---- The rows ---------------------------------------------------------------------------------

ChartScrollBar Chart_Scroll_Bar(int member_count, int first_row_member, int rows) {
  if (member_count < rows) return {false, std::nullopt, first_row_member};
  const int maximum = member_count - rows;
  return {true, maximum, std::min(first_row_member, maximum)};
}

int Rows_Filled(int member_count, int first_row_member, int rows) {
  return std::clamp(member_count - first_row_member, 0, rows);
}

// ---- One task in the view ---------------------------------------------------------------------

TaskMoment Start_Of(const ScheduleRecord& task) {
  return {task.Start_Month, task.Start_Date, task.Start_Century, task.Start_Year, task.Start_Hour, task.Start_Minute};
}

TaskMoment Finish_Of(const ScheduleRecord& task) {
  return {task.Finish_Month,   task.Finish_Date, task.Finish_Century,
          task.Finish_Year,    task.Finish_Hour, task.Finish_Minute};
}

bool Moment_In_View(const TaskMoment& moment, const ChartView& view) {
  const TimePeriod& period = Period_Of(view);
  const std::int64_t hour = moment.hour.whole();
  return hour >= period.first_hour && hour <= period.last_hour &&
         moment.month.text() == engine::Full_Month_Name(view.month) && moment.date.whole() == view.date &&
         Year_Of(moment) == view.year;
}

bool Period_Within_Task(const TaskMoment& start, const TaskMoment& finish, const ChartView& view) {
  const TimePeriod& period = Period_Of(view);
  return Hour_Of(start) < View_Hour(view, period.first_hour) && Hour_Of(finish) > View_Hour(view, period.last_hour);
}

int Chart_Column(std::int64_t hour, std::int64_t minute) {
  const std::int64_t column = kChartColumns / kHoursPerPeriod * (hour % kHoursPerPeriod) + minute / kMinutesPerColumn;
  return static_cast<int>(std::min<std::int64_t>(column, kLastColumn));
}

std::optional<TaskCells> Cells_Of_Task(const ScheduleRecord& task, const ChartView& view, int row) {
  const TaskMoment start = Start_Of(task);
  const TaskMoment finish = Finish_Of(task);
  const bool start_in_view = Moment_In_View(start, view);
  const bool finish_in_view = Moment_In_View(finish, view);
  if (!start_in_view && !finish_in_view && !Period_Within_Task(start, finish, view)) return std::nullopt;
  return TaskCells{start_in_view ? Cell_Of(start, row) : Chart_Cell(row, 0),
                   finish_in_view ? Cell_Of(finish, row) : Chart_Cell(row, kLastColumn)};
}

// ---- The painting pass ------------------------------------------------------------------------

std::vector<PaintedTask> Tasks_To_Paint(const std::string& log_path, const ChartView& view,
                                        std::span<const std::string> row_captions) {
  std::vector<PaintedTask> painted;
  For_Each_Record(log_path, [&](const ScheduleRecord& record) {
    if (record.Record_Number.number() <= -1) return;
    const std::optional<int> row = Row_Of(record, row_captions);
    if (!row) return;
    const std::optional<TaskCells> cells = Cells_Of_Task(record, view, *row);
    if (!cells) return;
    painted.push_back({*row, cells->first, cells->last, record.Color_Code, record.Record_Number});
  });
  return painted;
}

std::vector<int> Cell_Owners(std::span<const PaintedTask> painted, int cell_count) {
  std::vector<int> owners(static_cast<std::size_t>(cell_count), kNoTask);
  for (std::size_t task = 0; task < painted.size(); ++task) {
    const int last = std::min(painted[task].last_cell, cell_count - 1);
    for (int cell = std::max(painted[task].first_cell, 0); cell <= last; ++cell) {
      owners[static_cast<std::size_t>(cell)] = static_cast<int>(task);
    }
  }
  return owners;
}

}  // namespace orrivane::organizer
