// How long the Organizer takes to show the task list of a member the user clicks, over a log of
// 10,000 tasks of 50 members, headless: the log read from the start, the entries built and
// sorted into the list. The window tests check what the list holds; this measures how long it
// takes.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>
#include <cstdlib>

#include "large_log.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/working_files.h"
#include "platform/controls.h"
#include "platform/qt_platform.h"
#include "platform/window_registry.h"

namespace {

using namespace orrivane;

// The machine's own platform, but a message box ends the run: nothing here asks a question, so
// a message means the benchmark no longer measures what it says.
class BenchPlatform : public platform::QtPlatform {
 public:
  int Message_Box(const std::string& text, int, int, const std::string& title) override {
    std::fprintf(stderr, "a benchmark met a message box: [%s] %s\n", title.c_str(), text.c_str());
    std::abort();
  }
};

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

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  platform::Application app(argc, argv);
  BenchPlatform bench_machine;
  platform::Install(&bench_machine);
  // The program reads and writes its working files in the current folder.
  QTemporaryDir folder;
  QDir::setCurrent(folder.path());

  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  Unload_All_Windows();
  platform::Install(nullptr);
  return 0;
}
