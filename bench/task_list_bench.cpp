// How long the task list of one member takes over a large log: 10,000 tasks of 50 members, each
// member with a marker record, read from the start of the file as the Organizer reads it, with
// and without a date filter; and finding the last task by its number.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <unistd.h>

#include "large_log.h"
#include "organizer/log_file.h"
#include "organizer/task_list.h"

namespace {

using namespace orrivane;
using namespace orrivane::organizer;
using bench::kTasks;

// The log, written once for all benchmarks and removed at the end of the run.
class BenchLog {
 public:
  BenchLog()
      : path_((std::filesystem::temp_directory_path() /
               ("orrivane-task-list-bench-" + std::to_string(::getpid()) + ".tmp"))
                  .string()) {
    bench::Write_Large_Log(path_);
  }
  ~BenchLog() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

const std::string& Log() {
  static const BenchLog log;
  return log.path();
}

void BM_TaskListOfOneMember(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(Member_Task_Entries(Log(), "Member 7", std::nullopt));
  }
}
BENCHMARK(BM_TaskListOfOneMember)->Unit(benchmark::kMillisecond);

void BM_FilteredTaskListOfOneMember(benchmark::State& state) {
  const TaskFilter filter = Task_Filter_Of("00:00, Mar. 1, 2001", "23:59, Sep. 30, 2001", 1, 1);
  for (auto _ : state) {
    benchmark::DoNotOptimize(Member_Task_Entries(Log(), "Member 7", filter));
  }
}
BENCHMARK(BM_FilteredTaskListOfOneMember)->Unit(benchmark::kMillisecond);

void BM_FindTheLastTask(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(Find_Task_Record(Log(), Value(kTasks)));
  }
}
BENCHMARK(BM_FindTheLastTask)->Unit(benchmark::kMillisecond);

}  // namespace
