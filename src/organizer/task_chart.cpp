#include "organizer/task_chart.h"

#include <algorithm>
#include <tuple>
#include <unordered_set>
#include <utility>

#include "engine/vocabulary.h"
#include "organizer/log_file.h"

namespace orrivane::organizer {

namespace {

constexpr int kHoursPerPeriod = kChartColumns * kMinutesPerColumn / 60;
constexpr int kLastColumn = kChartColumns - 1;

std::int64_t Year_Of(const MomentFields& moment) { return 100 * moment.century.whole() + moment.year.whole(); }

// Year, month number, date and hour, in the order they are compared.
using HourOfDay = std::tuple<std::int64_t, std::int64_t, std::int64_t, std::int64_t>;

// The month's number as Define_Month answers it, 0 for no month; a full English name, the form the
// log holds, is looked up directly.
std::int64_t Month_Number_Of(const Value& month) {
  if (month.is_text()) {
    if (const int number = engine::Full_Month_Number(month.text()); number != 0) return number;
  }
  const Value number = engine::Define_Month(month, "Get Month Number");
  return number.is_empty() ? 0 : number.whole();
}

HourOfDay Hour_Of(const MomentFields& moment) {
  return {Year_Of(moment), Month_Number_Of(moment.month), moment.date.whole(), moment.hour.whole()};
}

// The in-view test over the moment's hour of day, worked out once for both tests of a task. The
// same day by number is implied by the same month name, and is the cheaper test, so it comes first.
bool In_View(const MomentFields& moment, const HourOfDay& hour_of_day, const ChartView& view) {
  const auto& [year, month, date, hour] = hour_of_day;
  const TimePeriod& period = kTimePeriods[static_cast<std::size_t>(view.period)];
  return year == view.year && month == view.month && date == view.date && hour >= period.first_hour &&
         hour <= period.last_hour && moment.month.text() == engine::Full_Month_Name(view.month);
}

bool Within(const HourOfDay& start, const HourOfDay& finish, const ChartView& view) {
  const TimePeriod& period = kTimePeriods[static_cast<std::size_t>(view.period)];
  return start < HourOfDay{view.year, view.month, view.date, period.first_hour} &&
         finish > HourOfDay{view.year, view.month, view.date, period.last_hour};
}

int Cell_Of(const MomentFields& moment, int row) {
  return Chart_Cell(row, Chart_Column(moment.hour.whole(), moment.minute.whole()));
}

// A task, not a marker record: its Record_Number is above -1.
bool Is_Task(const ScheduleRecord& record) { return record.Record_Number.number() > -1; }

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

MomentFields Start_Of(const ScheduleRecord& task) {
  return {task.Start_Month, task.Start_Date, task.Start_Century, task.Start_Year, task.Start_Hour, task.Start_Minute};
}

MomentFields Finish_Of(const ScheduleRecord& task) {
  return {task.Finish_Month,   task.Finish_Date, task.Finish_Century,
          task.Finish_Year,    task.Finish_Hour, task.Finish_Minute};
}

bool Moment_In_View(const MomentFields& moment, const ChartView& view) { return In_View(moment, Hour_Of(moment), view); }

bool Period_Within_Task(const MomentFields& start, const MomentFields& finish, const ChartView& view) {
  return Within(Hour_Of(start), Hour_Of(finish), view);
}

int Chart_Column(std::int64_t hour, std::int64_t minute) {
  const std::int64_t column = kChartColumns / kHoursPerPeriod * (hour % kHoursPerPeriod) + minute / kMinutesPerColumn;
  return static_cast<int>(std::min<std::int64_t>(column, kLastColumn));
}

std::optional<TaskCells> Cells_Of_Task(const ScheduleRecord& task, const ChartView& view, int row) {
  const MomentFields start = Start_Of(task);
  const MomentFields finish = Finish_Of(task);
  const HourOfDay start_hour = Hour_Of(start);
  const HourOfDay finish_hour = Hour_Of(finish);
  const bool start_in_view = In_View(start, start_hour, view);
  const bool finish_in_view = In_View(finish, finish_hour, view);
  if (!start_in_view && !finish_in_view && !Within(start_hour, finish_hour, view)) return std::nullopt;
  return TaskCells{start_in_view ? Cell_Of(start, row) : Chart_Cell(row, 0),
                   finish_in_view ? Cell_Of(finish, row) : Chart_Cell(row, kLastColumn)};
}

// ---- The painting pass ------------------------------------------------------------------------

ChartLog Read_Chart_Log(const std::string& log_path, const ChartView& view) {
  ChartLog log;
  std::unordered_set<std::string> seen;
  For_Each_Record(log_path, [&](const ScheduleRecord& record) {
    if (std::string member = record.Person_Name.text(); seen.insert(member).second) log.members.push_back(std::move(member));
    // Whether a task paints does not depend on its row: the rows are settled after the reading.
    if (Is_Task(record) && Cells_Of_Task(record, view, 0)) log.tasks.push_back(record);
  });
  return log;
}

std::vector<PaintedTask> Tasks_To_Paint(std::span<const ScheduleRecord> tasks, const ChartView& view,
                                        std::span<const std::string> row_captions) {
  std::vector<PaintedTask> painted;
  for (const ScheduleRecord& task : tasks) {
    if (!Is_Task(task)) continue;
    const std::optional<int> row = Row_Of(task, row_captions);
    if (!row) continue;
    const std::optional<TaskCells> cells = Cells_Of_Task(task, view, *row);
    if (!cells) continue;
    painted.push_back({*row, cells->first, cells->last, task.Color_Code, task.Record_Number});
  }
  return painted;
}

std::vector<PaintedTask> Tasks_To_Paint(const std::string& log_path, const ChartView& view,
                                        std::span<const std::string> row_captions) {
  return Tasks_To_Paint(Read_Chart_Log(log_path, view).tasks, view, row_captions);
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
