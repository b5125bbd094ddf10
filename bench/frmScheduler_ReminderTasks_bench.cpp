// How long the Organizer takes to show the task list of a member the user clicks, over a log of
// 10,000 tasks of 50 members, headless: the log read from the start, the entries built and
// sorted into the list. The window tests check what the list holds; this measures how long it
// takes.
#include <benchmark/benchmark.h>

#include <QListWidget>
#include <QTest>

#include "large_log.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/working_files.h"
#include "platform/controls.h"
#include "platform/window_registry.h"
#include "window_bench.h"

namespace {

using namespace orrivane;

frmScheduler_Reminder& Organizer() { return Window<frmScheduler_Reminder>(); }

// Opens the Organizer over the large log with its members listed, once.
void Open_Organizer() {
  if (Organizer().isVisible()) return;
  bench::Write_Large_Log(organizer::kScheduleFile);
  controls::Show_In_Front(Organizer());
  QCoreApplication::processEvents();
  for (int m = 0; m < bench::kMembers; ++m) {
    const QString member = QString::fromStdString(bench::Member(m));
    if (Organizer().lstListOfPeople->findItems(member, Qt::MatchExactly).isEmpty()) {
      Organizer().lstListOfPeople->addItem(member);
    }
  }
}

void Click_Member(int m) {
  QListWidget* people = Organizer().lstListOfPeople;
  QListWidgetItem* item = people->findItems(QString::fromStdString(bench::Member(m)), Qt::MatchExactly).front();
  people->scrollToItem(item);
  QTest::mouseClick(people->viewport(), Qt::LeftButton, {}, people->visualItemRect(item).center());
}

// Two members clicked in turn, so that each click changes the choice and rebuilds the list.
void BM_ClickAMember(benchmark::State& state) {
  Open_Organizer();
  int next = 0;
  for (auto _ : state) {
    Click_Member(7 + next);
    next = 1 - next;
  }
  state.counters["entries"] = static_cast<double>(Organizer().lstScheduleList->count());
}
BENCHMARK(BM_ClickAMember)->Unit(benchmark::kMillisecond);

// "Show Task\Event List" for the member chosen: the same list built again.
void BM_ShowTaskList(benchmark::State& state) {
  Open_Organizer();
  Click_Member(7);
  for (auto _ : state) {
    QTest::mouseClick(Organizer().cmdShowTaskList, Qt::LeftButton);
  }
  state.counters["entries"] = static_cast<double>(Organizer().lstScheduleList->count());
}
BENCHMARK(BM_ShowTaskList)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) { return orrivane::bench::Run_Window_Benchmarks(argc, argv); }
