// A Calendarr date whose century and two-digit year make a year beyond 64 bits: every use of its
// year is the failure Overflow (6), the message of code 2 (which tells the year) included.
#include <gtest/gtest.h>

#include "core/runtime_failure.h"
#include "engine/calendar_engine.h"
#include "fuzz_regressions/fuzz_input.h"
#include "support/failure_of.h"

namespace orrivane::fuzz_regressions {
namespace {

using orrivane::testing::Failure_Of;

engine::CalendarrDate Date_Of_Input() {
  const std::vector<std::string> w = Fuzz_Input_Words("calendarr_year_beyond_64_bits.txt");
  EXPECT_EQ(w.size(), 6u);
  return {w[2], Whole(w[3]), Whole(w[4]), Whole(w[5]), engine::CalendarStyle::Gregorian};
}

TEST(FuzzRegression, AYearBeyond64BitsOverflowsInsteadOfWrappingAround) {
  const engine::CalendarrDate date = Date_Of_Input();
  EXPECT_EQ(Failure_Of([&] { static_cast<void>(date.year()); }), kOverflow);
  EXPECT_EQ(Failure_Of([&] { static_cast<void>(engine::Calendarr_Message(2, date)); }), kOverflow);
  EXPECT_EQ(Failure_Of([&] { static_cast<void>(engine::Calendarr_Compute(date)); }), kOverflow);
}

TEST(FuzzRegression, TheYearsAtTheEdgesOf64BitsStillAddUp) {
  const engine::CalendarrDate highest{"March", 1, 92233720368547758, 7, engine::CalendarStyle::Gregorian};
  EXPECT_EQ(highest.year(), INT64_MAX);
  const engine::CalendarrDate lowest{"March", 1, -92233720368547758, -8, engine::CalendarStyle::Gregorian};
  EXPECT_EQ(lowest.year(), INT64_MIN);
  const engine::CalendarrDate one_more{"March", 1, 92233720368547758, 8, engine::CalendarStyle::Gregorian};
  EXPECT_EQ(Failure_Of([&] { static_cast<void>(one_more.year()); }), kOverflow);
}

}  // namespace
}  // namespace orrivane::fuzz_regressions
