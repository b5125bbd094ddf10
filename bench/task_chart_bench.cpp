// How long one refresh of the task chart takes over a large log, in the core: the members read
// from the log, the tasks to paint in the view on show, and what the painting leaves in each
// cell. The log has 10,000 tasks of 50 members, read from the file on every pass as the window
// reads it.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <vector>

#include "../tests/organizer/chart_samples.h"
#include "organizer/log_file.h"
#include "organizer/task_chart.h"

namespace {

using namespace orrivane;
using namespace orrivane::organizer;

constexpr int kMembers = 50;
constexpr int kTasks = 10'000;
constexpr int kDaysOfMarch = 31;
constexpr unsigned kColour = 0x00C0FF;

std::string Member(int index) { return "Member " + std::to_string(index); }

// The log: a marker for each member, then tasks spread over March 2001, some of a moment, some
// of hours, some over midnight.
std::string Write_Large_Log() {
  const std::string path = (std::filesystem::temp_directory_path() / "orrivane-task-chart-bench.tmp").string();
  std::filesystem::remove(path);
  for (int member = 0; member < kMembers; ++member) Generate_Person_Marker_Record(path, Member(member));
  for (int task = 0; task < kTasks; ++task) {
    const int day = 1 + (task / kMembers) % (kDaysOfMarch - 1);
    const int hour = (task * 7) % 24;
    const int minute = (task * 13) % 60;
    const int hours_long = task % 4;
    const samples::At start{"March", day, 2001, hour, minute};
    const samples::At finish = hour + hours_long < 24 ? samples::At{"March", day, 2001, hour + hours_long, minute}
                                                      : samples::At{"March", day + 1, 2001, hour + hours_long - 24, 0};
    Append_Record(path, samples::Chart_Task(task + 1, Member(task % kMembers), start, finish, kColour));
  }
  return path;
}

const std::string& Large_Log() {
  static const std::string path = Write_Large_Log();
  return path;
}

std::vector<std::string> Row_Captions(int rows) {
  std::vector<std::string> captions;
  for (int row = 0; row < rows; ++row) captions.push_back(Member(row));
  return captions;
}

const ChartView kAfternoonMarch5{2, 3, 5, 2001};

// What a refresh of the screen does with the log: one reading for the members and the tasks,
// then the tasks of the 11 rows painted.
void BM_Screen_Refresh_Pass(benchmark::State& state) {
  const std::string& path = Large_Log();
  const std::vector<std::string> rows = Row_Captions(kScreenChartRows);
  std::size_t painted = 0;
  for (auto _ : state) {
    const ChartLog log = Read_Chart_Log(path, kAfternoonMarch5);
    const std::vector<PaintedTask> tasks = Tasks_To_Paint(log.tasks, kAfternoonMarch5, rows);
    const std::vector<int> owners = Cell_Owners(tasks, kScreenChartCells);
    benchmark::DoNotOptimize(owners.data());
    painted = tasks.size();
  }
  state.counters["tasks painted"] = static_cast<double>(painted);
}
BENCHMARK(BM_Screen_Refresh_Pass)->Unit(benchmark::kMillisecond);

// The painting pass alone, for the screen's 11 rows and the printed chart's 32.
void BM_Tasks_To_Paint(benchmark::State& state) {
  const std::string& log = Large_Log();
  const auto rows = static_cast<int>(state.range(0));
  const std::vector<std::string> captions = Row_Captions(rows);
  for (auto _ : state) {
    const std::vector<PaintedTask> tasks = Tasks_To_Paint(log, kAfternoonMarch5, captions);
    const std::vector<int> owners = Cell_Owners(tasks, rows * kChartColumns);
    benchmark::DoNotOptimize(owners.data());
  }
}
BENCHMARK(BM_Tasks_To_Paint)->Arg(kScreenChartRows)->Arg(kPrintChartRows)->Unit(benchmark::kMillisecond);

}  // namespace
