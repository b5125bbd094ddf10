// How fast the holiday engine fills the find-a-holiday list and the calendar's table.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "holidays/holiday_rules.h"

namespace {

using namespace orrivane::holidays;

// Takes each line as the window would and lets it go, so that only the engine is measured.
class Line_Counter : public Holiday_Receiver {
 public:
  std::int64_t lines = 0;
  std::int64_t bytes = 0;
  void Add_List_Line(std::string line) override {
    ++lines;
    bytes += static_cast<std::int64_t>(line.size());
    benchmark::DoNotOptimize(line.data());
  }
};

void Report(benchmark::State& state, std::int64_t lines) {
  state.counters["lines"] = static_cast<double>(lines);
  state.counters["lines/s"] = benchmark::Counter(static_cast<double>(lines), benchmark::Counter::kIsIterationInvariantRate);
}

// "Display All By Year" from 1583 to 100100: about 2.4 million lines.
void BM_AllHolidays_1583_To_100100(benchmark::State& state) {
  std::int64_t lines = 0;
  for (auto _ : state) {
    Line_Counter counter;
    Display_All_Holidays_For_Years(1583, kHolidayYearLimit, counter);
    lines = counter.lines;
  }
  Report(state, lines);
}
BENCHMARK(BM_AllHolidays_1583_To_100100)->Unit(benchmark::kMillisecond);

// The same request with every line kept, as the list keeps them.
void BM_AllHolidays_1583_To_100100_Kept(benchmark::State& state) {
  std::int64_t lines = 0;
  for (auto _ : state) {
    Holiday_List_Collector list;
    list.lines.reserve(2500000);
    Display_All_Holidays_For_Years(1583, kHolidayYearLimit, list);
    lines = static_cast<std::int64_t>(list.lines.size());
  }
  Report(state, lines);
}
BENCHMARK(BM_AllHolidays_1583_To_100100_Kept)->Unit(benchmark::kMillisecond);

// A range of a thousand years.
void BM_AllHolidays_1000_Years(benchmark::State& state) {
  std::int64_t lines = 0;
  for (auto _ : state) {
    Line_Counter counter;
    Display_All_Holidays_For_Years(2000, 2999, counter);
    lines = counter.lines;
  }
  Report(state, lines);
}
BENCHMARK(BM_AllHolidays_1000_Years)->Unit(benchmark::kMicrosecond);

// One holiday over the whole reach, through the validation of the window's year boxes.
void BM_Easter_1583_To_100100_By_Holiday(benchmark::State& state) {
  std::int64_t lines = 0;
  for (auto _ : state) {
    Line_Counter counter;
    orrivane::Value to = "100100";
    lines = Display_Holiday_II("Easter", "1583", to, kFindAHolidayCaller, {true, true}, counter).lines;
  }
  Report(state, lines);
}
BENCHMARK(BM_Easter_1583_To_100100_By_Holiday)->Unit(benchmark::kMillisecond);

// What every drawing of a month asks: one year into the calendar's table.
void BM_Calendar_Table_One_Year(benchmark::State& state) {
  for (auto _ : state) {
    Holiday_Data_Keeper keeper;
    Holiday_Keeper_Receiver receiver(keeper);
    Display_All_Holidays_For_Selected_Year(2003, kCalendarHolidayTableCaller, receiver);
    benchmark::DoNotOptimize(keeper);
  }
}
BENCHMARK(BM_Calendar_Table_One_Year)->Unit(benchmark::kMicrosecond);

void BM_Easter_Rule(benchmark::State& state) {
  std::int32_t year = 1583;
  for (auto _ : state) {
    benchmark::DoNotOptimize(Easter_Month_And_Date(year));
    year = year == kHolidayYearLimit ? 1583 : year + 1;
  }
}
BENCHMARK(BM_Easter_Rule);

}  // namespace
