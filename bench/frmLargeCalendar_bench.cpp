// How long a month step of the large calendar takes with the tasks of a member shown in its day
// cells, over a log of 10,000 tasks of 50 members, headless: both calendar windows redrawn, the
// log read from the start and the 42 day lists filled. The window tests check what the lists
// hold; this measures how long it takes.
#include <benchmark/benchmark.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>

#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "calendar/frmSelectMonth.h"
#include "large_log.h"
#include "organizer/working_files.h"
#include "platform/window_registry.h"
#include "window_bench.h"

namespace {

using namespace orrivane;

frmLargeCalendar& Large() { return Window<frmLargeCalendar>(); }

// Starts the program, writes the large log into the working copy (the start empties it) and
// shows the tasks of one member, once.
void Start_With_Large_Log() {
  if (Large().isVisible()) return;
  Window<Form1>().show();
  QCoreApplication::processEvents();
  bench::Write_Large_Log(organizer::kScheduleFile);
  Large().cboShowTaskListFor->setCurrentText(QString::fromStdString(bench::Member(7)));
  frmSelectMonth& chooser = Window<frmSelectMonth>();  // March 2001, where the log's tasks are
  chooser.ComboMonths->setCurrentText("March");
  chooser.txtYear->setText("2001");
  chooser.cmdDisplay_Click();
}

int Lists_Shown() {
  int shown = 0;
  for (const QComboBox* list : Large().cboAppointments) shown += list->isVisibleTo(&Large());
  return shown;
}

// Next month and back: two steps, each with its task lists.
void BM_MonthStepWithTasks(benchmark::State& state) {
  Start_With_Large_Log();
  for (auto _ : state) {
    Window<Form1>().Display_Next_Month_On_Calendar();
    Window<Form1>().Display_Prior_Month_On_Calendar();
  }
  state.counters["steps"] = benchmark::Counter(2.0 * static_cast<double>(state.iterations()));
  state.counters["lists"] = static_cast<double>(Lists_Shown());
}
BENCHMARK(BM_MonthStepWithTasks)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) { return orrivane::bench::Run_Window_Benchmarks(argc, argv); }
