// One tick of the reminder timer over 10,000 task reminders and 1,000 reminders of no task: it
// reads both files whole on the window thread every five seconds, so it has to stay well within
// a frame (16 ms).
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "large_log.h"
#include "core/sequential_file.h"
#include "organizer/log_file.h"
#include "organizer/schedule_record.h"
#include "reminders/non_task_reminders.h"
#include "reminders/reminder_tick.h"

namespace orrivane {
namespace {

constexpr int kMessages = 1'000;

struct ReminderFiles {
  std::string tasks;
  std::string messages;
};

const ReminderFiles& Files() {
  static const ReminderFiles files = [] {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "orrivane-reminder-tick-bench";
    std::filesystem::create_directories(folder);
    ReminderFiles f{(folder / "TRemin.tmp").string(), (folder / "NTRemin.dat").string()};
    bench::Write_Large_Task_Reminder_File(f.tasks);
    Empty_File(f.messages);
    for (int n = 1; n <= kMessages; ++n) {
      reminders::Append_Non_Task_Reminder(
          f.messages, {n, n % 2, "Title " + std::to_string(n), "Message number " + std::to_string(n),
                       std::to_string(10 + n % 12) + ":" + std::to_string(10 + n % 50) + ", March " +
                           std::to_string(1 + n % 28) + ", 2001"});
    }
    return f;
  }();
  return files;
}

// Whole ticks at one moment, each as the first of its minute.
void Run_Ticks(benchmark::State& state, const std::string& date, const std::string& time) {
  const ReminderFiles& files = Files();
  organizer::ScheduleRecord current;
  for (auto _ : state) {
    reminders::ReminderMinute last_task, last_message;
    const reminders::TickMoment moment = reminders::Tick_Moment(date, time, current);
    const reminders::TaskReminderHalf tasks =
        reminders::Task_Reminder_Half(files.tasks, moment, last_task, current);
    const auto messages =
        reminders::Non_Task_Reminder_Half(files.messages, moment, tasks.Show_Reminder, last_message, current);
    benchmark::DoNotOptimize(tasks);
    benchmark::DoNotOptimize(messages);
  }
}

// A tick at a moment when nothing is due, the common case.
void BM_TickWithNothingDue(benchmark::State& state) { Run_Ticks(state, "3/5/2001", "2:07:05 AM"); }
BENCHMARK(BM_TickWithNothingDue)->Unit(benchmark::kMillisecond);

// A tick at which 60 reminders tied to their tasks fall due and the list of the window is filled.
void BM_TickWithTasksDue(benchmark::State& state) { Run_Ticks(state, "4/4/2001", "1:45:05 AM"); }
BENCHMARK(BM_TickWithTasksDue)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orrivane

namespace orrivane {
namespace {

// For comparison: reading TRemin.tmp alone, record by record, as every tick does.
void BM_ReadTaskReminderFile(benchmark::State& state) {
  const ReminderFiles& files = Files();
  for (auto _ : state) {
    organizer::ScheduleRecord record;
    organizer::LogReader file(files.tasks);
    int records = 0;
    while (file.Next(record)) ++records;
    benchmark::DoNotOptimize(records);
  }
}
BENCHMARK(BM_ReadTaskReminderFile)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orrivane
