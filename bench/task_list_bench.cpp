// How long the task list of one member takes over a large log: 10,000 tasks of 50 members, each
// member with a marker record, read from the start of the file as the Organizer reads it, with
// and without a date filter; and finding the last task by its number.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <unistd.h>

#include "core/sequential_file.h"
#include "organizer/log_file.h"
#include "organizer/schedule_record.h"
#include "organizer/task_list.h"

namespace {

using namespace orrivane;
using namespace orrivane::organizer;

constexpr int kTasks = 10'000;
constexpr int kMembers = 50;

std::string Member(int i) { return "Member " + std::to_string(i % kMembers); }

// Task n: its member in turn, a day of 2001 and an hour that move with n.
ScheduleRecord Task(int n) {
  static const char* const kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                                        "July",    "August",   "September", "October", "November", "December"};
  const auto two_digits = [](int v) { return (v < 10 ? "0" : "") + std::to_string(v); };
  ScheduleRecord r;
  r.Record_Number = n;
  r.Task_Name = "Task " + std::to_string(n);
  r.Task_Description = "Description";
  r.Task_Comments = "";
  r.Start_Month = r.Finish_Month = kMonths[n % 12];
  r.Start_Date = r.Finish_Date = two_digits(1 + n % 28);
  r.Start_Century = r.Finish_Century = 20;
  r.Start_Year = r.Finish_Year = 1;
  r.Start_Hour = two_digits(n % 24);
  r.Finish_Hour = two_digits(n % 24);
  r.Start_Minute = "00";
  r.Finish_Minute = "50";
  r.Time_Range_Flag = 1;
  r.Color_Code = 16711680;
  r.Person_Name = Member(n);
  r.Reminder_Status = 0;
  r.Date_String[0] = r.Date_String[1] = "March 4, 2001";
  r.Time_String[0] = r.Time_String[1] = "14:30";
  r.Reminder_Interval = 1;
  r.Interval_Days = r.Interval_Hours = r.Interval_Minutes = 0;
  return r;
}

// The log, written once for all benchmarks and removed at the end of the run.
class BenchLog {
 public:
  BenchLog()
      : path_((std::filesystem::temp_directory_path() /
               ("orrivane-task-list-bench-" + std::to_string(::getpid()) + ".tmp"))
                  .string()) {
    SequentialWriter log(path_);
    for (int m = 0; m < kMembers; ++m) Write_Person_Marker_28_Lines(log, Member(m));
    for (int n = 1; n <= kTasks; ++n) Schedule_File("Write", log, Task(n));
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
