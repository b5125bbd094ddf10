// How long the Organizer takes to refresh its chart over a large log, headless, driven as the
// program drives it: a scroll by one row, a step to the next period, and the refresh that other
// windows ask for after an edit. The log has 10,000 tasks of 50 members.
#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include "../tests/organizer/chart_samples.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/log_file.h"
#include "organizer/organizer_callers.h"
#include "platform/controls.h"
#include "platform/window_registry.h"
#include "window_bench.h"

namespace {

using namespace orrivane;

constexpr int kMembers = 50;
constexpr int kTasks = 10'000;
constexpr unsigned kColour = 0x00C0FF;

std::string Member(int index) { return "Member " + std::to_string(index); }

// Tasks of every member on every day of March 2001, in every period of the day.
void Write_Working_Log() {
  organizer::Empty_Working_Log();
  for (int member = 0; member < kMembers; ++member) {
    organizer::Generate_Person_Marker_Record(organizer::kScheduleFile, Member(member));
  }
  for (int task = 0; task < kTasks; ++task) {
    const int day = 1 + (task / kMembers) % 30;
    const int hour = (task * 7) % 23;
    const organizer::samples::At start{"March", day, 2001, hour, (task * 13) % 60};
    const organizer::samples::At finish{"March", day, 2001, hour + 1, 0};
    organizer::Append_Record(organizer::kScheduleFile,
                             organizer::samples::Chart_Task(task + 1, Member(task % kMembers), start, finish, kColour));
  }
}

frmScheduler_Reminder& Organizer() { return Window<frmScheduler_Reminder>(); }

void Open_Organizer() {
  if (Organizer().isVisible()) return;
  Write_Working_Log();
  controls::Show_In_Front(Organizer());
  QCoreApplication::processEvents();
  // The view lives in the period label: a busy afternoon of the log, where every row has tasks.
  controls::Set_Caption(Organizer().lblTimePeriod, "Afternoon, March 5, 2001");
  Organizer().Refresh_Organizer_Screen(organizer::kFormActivate);
}

// The refresh that every edit of the log asks for: the view again, the whole log read again.
void BM_Refresh_After_An_Edit(benchmark::State& state) {
  Open_Organizer();
  for (auto _ : state) Organizer().Refresh_Organizer_Screen(organizer::kAddThisEvent);
}
BENCHMARK(BM_Refresh_After_An_Edit)->Unit(benchmark::kMillisecond);

// A scroll by one row, down and up again: two refreshes an iteration.
void BM_Scroll_Down_And_Up(benchmark::State& state) {
  Open_Organizer();
  for (auto _ : state) {
    Organizer().scrChart->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    Organizer().scrChart->triggerAction(QAbstractSlider::SliderSingleStepSub);
  }
}
BENCHMARK(BM_Scroll_Down_And_Up)->Unit(benchmark::kMillisecond);

// A step to the next period and back: two refreshes an iteration.
void BM_Later_And_Earlier(benchmark::State& state) {
  Open_Organizer();
  for (auto _ : state) {
    Organizer().Move_To_Later_Time_Period();
    Organizer().Move_To_Earlier_Time_Period();
  }
}
BENCHMARK(BM_Later_And_Earlier)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) { return orrivane::bench::Run_Window_Benchmarks(argc, argv); }
