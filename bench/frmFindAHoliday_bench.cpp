// How fast the find-a-holiday window fills its list, opens a list file of the whole reach of
// years, and removes a line from and clears such a list, driven as the user drives it (typing,
// clicking), headless; and what each costs the program in memory. The window tests check what
// these requests give; this measures how long they take.
//
// Memory counters, in MB: rss_growth is what the program holds more after the action than
// before it, peak_growth the most it held more while acting, peak the program's whole peak.
#include <benchmark/benchmark.h>

#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QListView>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "holidays/frmFindAHoliday.h"
#include "holidays/holiday_list_file.h"
#include "holidays/holiday_rules.h"
#include "platform/window_registry.h"
#include "shell/frmOpenFile.h"
#include "window_bench.h"

namespace {

using namespace orrivane;

using bench::machine;

frmFindAHoliday& Find() { return Window<frmFindAHoliday>(); }

// ---- Memory, as the system counts it for this process ------------------------------------------

constexpr double kKilobytesPerMegabyte = 1024.0;
constexpr double kBytesPerMegabyte = 1024.0 * kKilobytesPerMegabyte;

// A "VmRSS:" or "VmHWM:" figure of /proc/self/status, in MB.
double Status_Megabytes(const std::string& field) {
  std::ifstream status("/proc/self/status");
  std::string name;
  while (status >> name) {
    double kilobytes = 0;
    if (name == field && status >> kilobytes) return kilobytes / kKilobytesPerMegabyte;
    status.ignore(1 << 12, '\n');
  }
  return 0;
}

// Takes the resident size before an action, and the peak from there on.
class Memory_Watch {
 public:
  Memory_Watch() {
    // Writing 5 sets the peak back to the present size.
    std::ofstream("/proc/self/clear_refs") << "5";
    before_ = Status_Megabytes("VmRSS:");
  }
  void Report(benchmark::State& state) const {
    const double peak = Status_Megabytes("VmHWM:");
    state.counters["rss_growth_MB"] = Status_Megabytes("VmRSS:") - before_;
    state.counters["peak_growth_MB"] = peak - before_;
    state.counters["peak_MB"] = peak;
  }

 private:
  double before_ = 0;
};

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

// Runs `action` at each iteration on an emptied list, until the list has been laid out and
// painted, and tells what the last time cost in memory.
template <class Action>
void Each_Time_Into_An_Empty_List(benchmark::State& state, Action action) {
  for (auto _ : state) {
    state.PauseTiming();
    Clear_List();
    const Memory_Watch memory;
    state.ResumeTiming();
    action();
    QCoreApplication::processEvents();
    state.PauseTiming();
    memory.Report(state);
    state.ResumeTiming();
  }
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
  const std::int64_t yields_before = machine->yields;
  Each_Time_Into_An_Empty_List(state, [] { Ask_All_By_Year("1583", QString::number(holidays::kHolidayYearLimit)); });
  const std::int64_t yields = (machine->yields - yields_before) / state.iterations();
  Report_Lines(state);
  state.counters["yields"] = static_cast<double>(yields);
}
BENCHMARK(BM_DisplayAllByYear_Whole_Reach)->Unit(benchmark::kSecond)->Iterations(1);

// ---- A list file -----------------------------------------------------------------------------

// Every holiday from 1583 to the last year as a list file, written once (about 107 MB).
class Record_Writer : public holidays::Holiday_Receiver {
 public:
  explicit Record_Writer(holidays::Holiday_List_Writer& writer) : writer_(writer) {}
  void Add_List_Line(std::string line) override { writer_.Write_Record(line); }

 private:
  holidays::Holiday_List_Writer& writer_;
};

const QString kWholeReachFile = "WholeReach.dte";

void Write_Whole_Reach_File() {
  if (QFile::exists(kWholeReachFile)) return;
  holidays::Holiday_List_Writer writer(kWholeReachFile.toStdString());
  Record_Writer records(writer);
  holidays::Display_All_Holidays_For_Years(1583, holidays::kHolidayYearLimit, records);
  writer.Close();
}

// File > Open File..., the file chosen in the open window and opened with its button.
void Open_List_File(const QString& name) {
  QTimer::singleShot(0, [name] {
    frmOpenFile& open = Window<frmOpenFile>();
    const auto found = open.filFileOpen->findItems(name, Qt::MatchExactly);
    if (found.size() != 1) {
      std::fprintf(stderr, "the open window does not offer %s\n", qPrintable(name));
      std::abort();
    }
    open.filFileOpen->setCurrentItem(found.front());
    Click(open.cmdOpen);
  });
  Find().menu->Action("mnuOpenFile")->trigger();
}

// Opening the list file of the whole reach, in place of a list of one line.
void BM_Open_Whole_Reach_File(benchmark::State& state) {
  Open_Window();
  Write_Whole_Reach_File();
  Each_Time_Into_An_Empty_List(state, [] { Open_List_File(kWholeReachFile); });
  Report_Lines(state);
  state.counters["file_MB"] = static_cast<double>(QFileInfo(kWholeReachFile).size()) / kBytesPerMegabyte;
}
BENCHMARK(BM_Open_Whole_Reach_File)->Unit(benchmark::kSecond)->Iterations(1);

// A list file of one line of 50 MB and a line of a holiday: opening it, choosing the long line
// and painting the list.
const QString kLongLineFile = "LongLine.dte";
constexpr std::size_t kLongLineLength = 50 << 20;

void Write_Long_Line_File() {
  if (QFile::exists(kLongLineFile)) return;
  holidays::Holiday_List_Writer writer(kLongLineFile.toStdString());
  writer.Write_Record(std::string(kLongLineLength, 'x'));
  writer.Write_Record("Easter, Sunday, April 20, 2003");
  writer.Close();
}

void BM_Open_And_Select_Long_Line(benchmark::State& state) {
  Open_Window();
  Write_Long_Line_File();
  Each_Time_Into_An_Empty_List(state, [] {
    Open_List_File(kLongLineFile);
    QListView* list = Find().lstListHolidayDates;
    const QModelIndex first = Find().lstListHolidayDates_Lines->index(0);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(10, list->visualRect(first).center().y()));
    list->viewport()->repaint();
  });
  state.counters["selected"] = Find().List_Index();
}
BENCHMARK(BM_Open_And_Select_Long_Line)->Unit(benchmark::kMillisecond)->Iterations(1);

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
