// How fast the find-a-holiday window fills its list, and how fast it removes a line from and
// clears a list of the whole reach of years, driven as the user drives it (typing, clicking),
// headless. The window tests check what these requests give; this measures how long they take.
#include <benchmark/benchmark.h>

#include <QLineEdit>
#include <QListView>
#include <QTest>

#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "holidays/frmFindAHoliday.h"
#include "holidays/holiday_rules.h"
#include "platform/window_registry.h"
#include "window_bench.h"

namespace {

using namespace orrivane;

frmFindAHoliday& Find() { return Window<frmFindAHoliday>(); }

// Starts the program and opens the window from the large calendar's menu, once.
void Open_Window() {
  if (Find().isVisible()) return;
  Window<Form1>().show();
  QCoreApplication::processEvents();
  Window<frmLargeCalendar>().menu->Action("mnuFindHolidayDates")->trigger();
  QCoreApplication::processEvents();
}

void Click(QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton); }

void Type(QLineEdit* box, const QString& text) {
  box->clear();
  QTest::keyClicks(box, text);
}

// "Display All By Year" over a range of years, typed and clicked.
void Ask_All_By_Year(const QString& from, const QString& to) {
  if (!Find().optDisplayAllByYear->isChecked()) Click(Find().optDisplayAllByYear);
  Type(Find().txtFromYear, from);
  if (!Find().chkSelectRangeOfYears->isChecked()) Click(Find().chkSelectRangeOfYears);
  Type(Find().txtToYear, to);
  Click(Find().cmdSelect);
}

void Clear_List() {
  if (Find().List_Count() > 0) Click(Find().cmdClear);
}

// The list of every holiday of every year the window answers, about 2.4 million lines.
void List_The_Whole_Reach() {
  Clear_List();
  Ask_All_By_Year("1583", QString::number(holidays::kHolidayYearLimit));
}

void Report_Lines(benchmark::State& state) {
  const auto lines = static_cast<double>(Find().List_Count());
  state.counters["lines"] = lines;
  state.counters["lines/s"] = benchmark::Counter(lines, benchmark::Counter::kIsIterationInvariantRate);
}

// A thousand years come in one batch: 25,000 lines.
void BM_DisplayAllByYear_1000_Years(benchmark::State& state) {
  Open_Window();
  for (auto _ : state) {
    state.PauseTiming();
    Clear_List();
    state.ResumeTiming();
    Ask_All_By_Year("2000", "2999");
  }
  Report_Lines(state);
}
BENCHMARK(BM_DisplayAllByYear_1000_Years)->Unit(benchmark::kMillisecond);

// From 1583 to the last year, yielding to the window system between batches.
void BM_DisplayAllByYear_Whole_Reach(benchmark::State& state) {
  Open_Window();
  std::int64_t yields = 0;
  for (auto _ : state) {
    state.PauseTiming();
    Clear_List();
    const std::int64_t yields_before = bench::Machine().yields;
    state.ResumeTiming();
    Ask_All_By_Year("1583", QString::number(holidays::kHolidayYearLimit));
    yields = bench::Machine().yields - yields_before;
  }
  Report_Lines(state);
  state.counters["yields"] = static_cast<double>(yields);
}
BENCHMARK(BM_DisplayAllByYear_Whole_Reach)->Unit(benchmark::kSecond)->Iterations(1);

// Scrolling to the end of the whole reach, choosing its last line and removing it.
void BM_Remove_Last_Line_Of_Whole_Reach(benchmark::State& state) {
  Open_Window();
  List_The_Whole_Reach();  // before the loop: not measured
  QListView* list = Find().lstListHolidayDates;
  for (auto _ : state) {
    list->scrollToBottom();
    const QModelIndex last = Find().lstListHolidayDates_Lines->index(static_cast<int>(Find().List_Count()) - 1);
    list->scrollTo(last);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(last).center());
    Click(Find().cmdRemoveItem);
    QCoreApplication::processEvents();
  }
  state.counters["lines"] = static_cast<double>(Find().List_Count());
}
BENCHMARK(BM_Remove_Last_Line_Of_Whole_Reach)->Unit(benchmark::kMillisecond)->Iterations(5);

// Clearing the whole reach.
void BM_Clear_Whole_Reach(benchmark::State& state) {
  Open_Window();
  for (auto _ : state) {
    state.PauseTiming();
    List_The_Whole_Reach();
    state.ResumeTiming();
    Click(Find().cmdClear);
  }
}
BENCHMARK(BM_Clear_Whole_Reach)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace

int main(int argc, char** argv) { return orrivane::bench::Run_Window_Benchmarks(argc, argv); }
