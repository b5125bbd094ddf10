// orrivane-cal batch on 100,000 weekday queries, beside its floor: a plain parser of the same
// input that splits each line at its blanks, looks the month up in a table of the twelve names,
// reads day and year with from_chars, asks the same engine procedure and writes the same
// answers. What batch costs beyond the floor is its own: shell words, the command table, the
// month vocabulary, the checks. Both write to /dev/null through the tool's buffered output, and
// both answers are compared once before the clock starts.
//
// The queries are those of scripts/bench-cli.sh: months by name, days 1 to 28, years 1583 to
// 1,000,000, every other one Julian.
#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>

#include "cli/commands.h"
#include "cli/output.h"
#include "engine/calendar_engine.h"

namespace {

using orrivane::cli::Output;
namespace engine = orrivane::engine;

constexpr int kQueries = 100'000;

constexpr std::array<std::string_view, 12> kMonths{"January", "February", "March",     "April",   "May",      "June",
                                                   "July",    "August",   "September", "October", "November", "December"};
constexpr std::array<std::string_view, 8> kWeekdays{"",          "Sunday",   "Monday", "Tuesday",
                                                    "Wednesday", "Thursday", "Friday", "Saturday"};

std::string Queries() {
  std::string text;
  std::uint64_t seed = 1582;
  auto next = [&seed](std::uint64_t below) {
    seed = seed * 6364136223846793005ULL + 1442695040888963407ULL;
    return (seed >> 33) % below;
  };
  for (int i = 0; i < kQueries; ++i) {
    text += "weekday ";
    if (i % 2 == 1) text += "--julian ";
    text += kMonths[next(12)];
    text += ' ' + std::to_string(1 + next(28)) + ' ' + std::to_string(1583 + next(998'418)) + '\n';
  }
  return text;
}

const std::string& Input() {
  static const std::string input = Queries();
  return input;
}

std::FILE* Nowhere() {
  static std::FILE* null_device = std::fopen("/dev/null", "w");
  return null_device;
}

// ---- The floor ---------------------------------------------------------------------------------

std::int64_t Whole(std::string_view digits) {
  std::int64_t value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

// One query "weekday [--julian] Month D Y", its words cut at single blanks.
void Answer_Plainly(std::string_view line, Output& out) {
  std::array<std::string_view, 5> words{};
  std::size_t count = 0;
  while (!line.empty() && count < words.size()) {
    const std::size_t blank = line.find(' ');
    words[count++] = line.substr(0, blank);
    line = blank == std::string_view::npos ? std::string_view() : line.substr(blank + 1);
  }
  const bool julian = words[1] == "--julian";
  const std::size_t at = julian ? 2 : 1;
  std::size_t month = 0;
  while (month < kMonths.size() && kMonths[month] != words[at]) ++month;
  const engine::CalendarrDate date = engine::Calendarr_Date_From_Year(
      std::string(kMonths[month]), Whole(words[at + 1]), Whole(words[at + 2]),
      julian ? engine::CalendarStyle::Julian : engine::CalendarStyle::Gregorian);
  out.Line(kWeekdays[static_cast<std::size_t>(engine::Calendarr_Compute(date).weekday)]);
  out.Line("");
}

void Plain_Parser(std::istream& in, Output& out) {
  std::string line;
  while (std::getline(in, line)) Answer_Plainly(line, out);
}

// ---- Both, compared ----------------------------------------------------------------------------

// orrivane-cal batch as the tool runs it, with `in` in the place of standard input, which is
// tied to nothing there either.
void Batch(std::istream& in, Output& out) {
  std::cin.tie(nullptr);
  std::streambuf* const standard_input = std::cin.rdbuf(in.rdbuf());
  orrivane::cli::Command_Context context{out};
  orrivane::cli::Run_Command({"batch"}, context);
  std::cin.rdbuf(standard_input);
}

template <class Answerer>
std::string Answers_Of(Answerer answer) {
  char* bytes = nullptr;
  std::size_t size = 0;
  std::FILE* memory = open_memstream(&bytes, &size);
  {
    std::istringstream in(Input());
    Output out(memory);
    answer(in, out);
  }
  std::fclose(memory);
  std::string answers(bytes, size);
  std::free(bytes);
  return answers;
}

bool Same_Answers() {
  static const bool same = Answers_Of(Batch) == Answers_Of(Plain_Parser);
  return same;
}

template <class Answerer>
void Time(benchmark::State& state, Answerer answer) {
  if (!Same_Answers()) {
    state.SkipWithError("batch and the plain parser answer differently");
    return;
  }
  for (auto _ : state) {
    std::istringstream in(Input());
    Output out(Nowhere());
    answer(in, out);
  }
  state.SetItemsProcessed(state.iterations() * kQueries);
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(Input().size()));
}

void BM_Batch_100000_Weekday_Queries(benchmark::State& state) { Time(state, Batch); }
BENCHMARK(BM_Batch_100000_Weekday_Queries)->Unit(benchmark::kMillisecond);

void BM_Plain_Parser_Floor_100000_Weekday_Queries(benchmark::State& state) { Time(state, Plain_Parser); }
BENCHMARK(BM_Plain_Parser_Floor_100000_Weekday_Queries)->Unit(benchmark::kMillisecond);

}  // namespace
