// How long a delete takes over a large log: 10,000 tasks of 50 members with their markers, and
// 10,000 reminders, both files rewritten through their scratch files as the Organizer deletes.
// The files are written anew before each delete, outside the time measured.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <unistd.h>

#include "large_log.h"
#include "organizer/log_delete.h"

namespace {

using namespace orrivane;
using namespace orrivane::organizer;

// The working files of the benchmark, in a folder of its own removed at the end of the run.
class BenchFiles {
 public:
  BenchFiles()
      : folder_(std::filesystem::temp_directory_path() / ("orrivane-log-delete-bench-" + std::to_string(::getpid()))) {
    std::filesystem::create_directories(folder_);
    for (std::size_t i = 0; i < files_.sources.size(); ++i) {
      files_.sources[i] = (folder_ / files_.sources[i]).string();
      files_.scratches[i] = (folder_ / files_.scratches[i]).string();
    }
  }
  ~BenchFiles() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  void Write() const {
    bench::Write_Large_Log(files_.sources[0]);
    bench::Write_Large_Task_Reminder_File(files_.sources[1]);
  }
  const DeleteFiles& files() const { return files_; }

 private:
  std::filesystem::path folder_;
  DeleteFiles files_;
};

void Time_Delete(benchmark::State& state, const RecordTest& drop) {
  const BenchFiles bench_files;
  reminders::InUseFlag flag;
  for (auto _ : state) {
    state.PauseTiming();
    bench_files.Write();
    state.ResumeTiming();
    Drop_From_Log(flag, drop, bench_files.files());
  }
}

void BM_DeleteOneTask(benchmark::State& state) { Time_Delete(state, Is_Task_Numbered(Value(bench::kTasks / 2))); }
BENCHMARK(BM_DeleteOneTask)->Unit(benchmark::kMillisecond);

void BM_DeleteAMemberWithTheirTasks(benchmark::State& state) {
  Time_Delete(state, Is_Record_Of_Member(bench::Member(7)));
}
BENCHMARK(BM_DeleteAMemberWithTheirTasks)->Unit(benchmark::kMillisecond);

}  // namespace
