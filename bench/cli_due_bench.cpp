// orrivane-cal due over the whole of 2001, 525,600 minutes, for a log of 10,000 task reminders
// of every kind (fixed one-offs, moments tied to a task's start or finish, series counted
// forward and backward) and 1,000 reminders of no task; and the same files for one minute.
// Each reminder's hits are worked out from its numbers, so the year costs about what reading
// the files and writing the answers cost, not 525,600 passes over them.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "large_log.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "reminders/non_task_reminders.h"

namespace {

using orrivane::organizer::ScheduleRecord;
namespace bench = orrivane::bench;

constexpr int kNotes = 1'000;
constexpr const char* kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                                   "July",    "August",   "September", "October", "November", "December"};

std::string Two_Digits(int v) { return (v < 10 ? "0" : "") + std::to_string(v); }
std::string Date_Of(int n) { return std::string(kMonths[n % 12]) + " " + std::to_string(1 + n % 28) + ", 2001"; }
std::string Time_Of(int n) { return Two_Digits(n % 24) + ":" + Two_Digits(n * 7 % 60); }

// Task n with a reminder of the kind n chooses among five.
ScheduleRecord Reminder_Task(int n) {
  ScheduleRecord r = bench::Task(n);
  r.Reminder_Status = 1;
  r.Date_String[0] = r.Date_String[1] = Date_Of(n);
  r.Time_String[0] = r.Time_String[1] = Time_Of(n);
  switch (n % 5) {
    case 0:  // a fixed one-off
      break;
    case 1:
      r.Date_String[0] = "Before The Start Time of Task";
      r.Time_String[0] = "By 0 Days, " + std::to_string(n % 5) + " Hrs, 15 Min";
      break;
    case 2:
      r.Date_String[0] = "At The Finish Time Of Task";
      r.Time_String[0] = "N/A";
      break;
    default: {  // a series of up to two weeks, every 90 minutes to every 2 days
      static const int kPeriods[] = {90, 360, 1440, 2880};
      const int period = kPeriods[n % 4];
      r.Reminder_Interval = n % 5 == 3 ? 2 : 3;
      const int last_day = std::min(28, 1 + n % 28 + n % 14);
      r.Date_String[1] = std::string(kMonths[n % 12]) + " " + std::to_string(last_day) + ", 2001";
      r.Interval_Days = period / 1440;
      r.Interval_Hours = period % 1440 / 60;
      r.Interval_Minutes = period % 60;
    }
  }
  return r;
}

struct Files {
  std::string log;
  std::string notes;
};

const Files& Reminder_Files() {
  static const Files files = [] {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "orrivane-cli-due-bench";
    std::filesystem::create_directories(folder);
    Files made{(folder / "reminders.sdl").string(), (folder / "NTRemin.dat").string()};
    {
      orrivane::SequentialWriter log(made.log);
      for (int n = 1; n <= bench::kTasks; ++n) orrivane::organizer::Schedule_File("Write", log, Reminder_Task(n));
    }
    orrivane::Empty_File(made.notes);
    for (int n = 1; n <= kNotes; ++n) {
      orrivane::reminders::Append_Non_Task_Reminder(
          made.notes, {n, n % 4 == 0 ? 0 : 1, "Note " + std::to_string(n), "", Time_Of(n * 3) + ", " + Date_Of(n * 5)});
    }
    return made;
  }();
  return files;
}

std::FILE* Nowhere() {
  static std::FILE* null_device = std::fopen("/dev/null", "w");
  return null_device;
}

void Due(benchmark::State& state, std::vector<std::string> range) {
  const Files& files = Reminder_Files();
  std::vector<std::string> words{"due", "--log", files.log, "--notes", files.notes};
  words.insert(words.end(), range.begin(), range.end());
  for (auto _ : state) {
    orrivane::cli::Output out(Nowhere());
    orrivane::cli::Command_Context context{out};
    if (orrivane::cli::Run_Command(words, context)) state.SkipWithError("due failed");
  }
}

void BM_DueOverAYear(benchmark::State& state) {
  Due(state, {"1/1/2001", "12:00:00 AM", "12/31/2001", "11:59:00 PM"});
}
BENCHMARK(BM_DueOverAYear)->Unit(benchmark::kMillisecond);

void BM_DueInOneMinute(benchmark::State& state) { Due(state, {"3/5/2001", "2:30:00 PM"}); }
BENCHMARK(BM_DueInOneMinute)->Unit(benchmark::kMillisecond);

}  // namespace
