// Convert with a day far outside its month: the year-by-year walk of the conversion took as many
// rounds as the day has years (about 250 million here, half a minute). Whole runs of years are
// now stepped at once, with the walk's own answer.
#include <gtest/gtest.h>

#include "engine/calendar_engine.h"
#include "fuzz_regressions/fuzz_input.h"

namespace orrivane::fuzz_regressions {
namespace {

engine::CalendarStyle Style(const std::string& word) {
  return word == "Julian" ? engine::CalendarStyle::Julian : engine::CalendarStyle::Gregorian;
}

TEST(FuzzRegression, ADayFarBeforeItsMonthConvertsAtOnce) {
  const std::vector<std::string> w = Fuzz_Input_Words("convert_a_day_far_before_its_month.txt");
  ASSERT_EQ(w.size(), 5u);
  const engine::ConvertResult result = engine::Convert_Compute({w[2], Whole(w[3]), Whole(w[4]), Style(w[1])});
  EXPECT_EQ(result.error_code, 0);
  EXPECT_EQ(result.lblDate2, "May 16, -243298981 O.S.");
  EXPECT_EQ(result.date_string, "5/16/-243298981");
  EXPECT_EQ(result.difference, 69173);
}

TEST(FuzzRegression, ADayFarAfterAnUnknownMonthConvertsAtOnce) {
  const engine::ConvertResult result =
      engine::Convert_Compute({"Foo", 100'000'000'000, 2000, engine::CalendarStyle::Julian});
  EXPECT_EQ(result.error_code, 0);
  EXPECT_EQ(result.lblDate2, "September 27, 273792701 N.S.");
}

}  // namespace
}  // namespace orrivane::fuzz_regressions
