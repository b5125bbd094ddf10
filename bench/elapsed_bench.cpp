// The date difference costs the same for a span of a million years as for one day, and the text
// arithmetic works a 100-digit division in microseconds.
#include <benchmark/benchmark.h>

#include <string>

#include "elapsed/date_difference.h"
#include "elapsed/decimal_text.h"

namespace {

using orrivane::elapsed::Calculate;
using orrivane::elapsed::Date_Difference;
using orrivane::elapsed::Moment;

void Span(benchmark::State& state, const Moment& earlier, const Moment& later) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(Date_Difference("Total Minutes In Minutes", "Gregorian", earlier, later));
  }
}

void BM_Date_Difference_One_Day(benchmark::State& state) {
  Span(state, Moment{15, 10, 31, 12, 2000}, Moment{15, 10, 1, 1, 2001});
}
BENCHMARK(BM_Date_Difference_One_Day);

void BM_Date_Difference_A_Million_Years(benchmark::State& state) {
  Span(state, Moment{15, 10, 31, 12, 0}, Moment{45, 22, 30, 11, 1'000'099});
}
BENCHMARK(BM_Date_Difference_A_Million_Years);

// Every row of the window in remaining mode, all units ticked: what one press of Enter costs.
void BM_Display_Time_Difference_A_Million_Years(benchmark::State& state) {
  const Moment earlier{15, 10, 31, 12, 0};
  const Moment later{45, 22, 30, 11, 1'000'099};
  for (auto _ : state) {
    benchmark::DoNotOptimize(orrivane::elapsed::Display_Time_Difference(
        "Gregorian", earlier, later, orrivane::elapsed::Display_Option::Remaining, {true, true, true, true, true}));
  }
}
BENCHMARK(BM_Display_Time_Difference_A_Million_Years);

// `count` random digits 1 to 9 after `lead`.
std::string Digits(std::size_t count, unsigned seed, const std::string& lead = "") {
  std::string text = lead;
  for (std::size_t i = 0; i < count; ++i) {
    seed = seed * 1103515245U + 12345U;
    text += static_cast<char>('1' + (seed >> 16) % 9);
  }
  return text;
}

void Operation(benchmark::State& state, const char* operation, const std::string& a, const std::string& b) {
  for (auto _ : state) benchmark::DoNotOptimize(Calculate(operation, a, b));
}

// The widest products there are: 50 digits by 50, and 99 by 1.
void BM_Multiply_100_Digit_Product(benchmark::State& state) {
  Operation(state, "Multiply", Digits(50, 1), Digits(50, 2));
}
BENCHMARK(BM_Multiply_100_Digit_Product);

void BM_Multiply_99_Digits_By_1(benchmark::State& state) { Operation(state, "Multiply", Digits(98, 3, "1"), "7"); }
BENCHMARK(BM_Multiply_99_Digits_By_1);

// A 99-digit quotient, which the repeated-addition method would need some 10^82 rounds for.
void BM_Divide_100_Digits_By_1_Digit(benchmark::State& state) {
  Operation(state, "Divide -integer", Digits(99, 4, "1"), "7");
}
BENCHMARK(BM_Divide_100_Digits_By_1_Digit);

void BM_Divide_100_Digits_By_50_Digits(benchmark::State& state) {
  Operation(state, "Divide -integer", Digits(99, 5, "1"), Digits(50, 6));
}
BENCHMARK(BM_Divide_100_Digits_By_50_Digits);

void BM_Remainder_100_Digits_By_84_Digits(benchmark::State& state) {
  Operation(state, "Remainder", Digits(99, 7, "1"), Digits(84, 8));
}
BENCHMARK(BM_Remainder_100_Digits_By_84_Digits);

}  // namespace
