// The program's Easter rule: its check values, its verbs, and how it stands to the published
// Gregorian computus.
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "core/runtime_failure.h"
#include "holidays/holiday_rules.h"

namespace orrivane::holidays {
namespace {

// The anonymous Gregorian computus as published, written out here so that the program's rule
// is measured against something it does not share.
Month_And_Date Published_Gregorian_Easter(int year) {
  const int a = year % 19;
  const int b = year / 100;
  const int c = year % 100;
  const int d = b / 4;
  const int e = b % 4;
  const int f = (b + 8) / 25;
  const int g = (b - f + 1) / 3;
  const int h = (19 * a + b - d - g + 15) % 30;
  const int i = c / 4;
  const int k = c % 4;
  const int l = (32 + 2 * e + 2 * i - h - k) % 7;
  const int m = (a + 11 * h + 22 * l) / 451;
  const int month = (h + l - 7 * m + 114) / 31;
  const int day = (h + l - 7 * m + 114) % 31 + 1;
  return {month, day};
}

// The program's rule again, but with a remainder that is never negative: the two part where
// the program's truncating remainder meets a negative dividend.
Month_And_Date Easter_With_Floored_Remainder(int year) {
  const auto floor_div = [](std::int64_t a, std::int64_t b) { return a / b - ((a % b != 0 && a < 0) ? 1 : 0); };
  const auto floor_mod = [&](std::int64_t a, std::int64_t b) { return a - b * floor_div(a, b); };
  const std::int64_t g = year % 19 + 1;
  const std::int64_t c = floor_div(year, 100) + 1;
  const std::int64_t x = floor_div(3 * c, 4) - 12;
  const std::int64_t z = floor_div(8 * c, 25) - 5;
  const std::int64_t d = floor_div(5 * static_cast<std::int64_t>(year), 4) - x - 10;
  std::int64_t e = floor_mod(11 * g + 20 + z - x, 30);
  if ((e == 25 && g > 11) || e == 24) ++e;
  std::int64_t n = 44 - e;
  if (n < 21) n += 30;
  n = n + 7 - floor_mod(d + n, 7);
  return n > 31 ? Month_And_Date{4, static_cast<int>(n - 31)} : Month_And_Date{3, static_cast<int>(n)};
}

Month_And_Date Easter_Of(int year) {
  return {static_cast<int>(Find_Easter(year, "Get Month").number()),
          static_cast<int>(Find_Easter(year, "Get Date").number())};
}

TEST(FindEaster, AnswersTheCheckValues) {
  EXPECT_EQ(Easter_Of(1583), (Month_And_Date{4, 10}));
  EXPECT_EQ(Easter_Of(2000), (Month_And_Date{4, 23}));
  EXPECT_EQ(Easter_Of(2003), (Month_And_Date{4, 20}));
  EXPECT_EQ(Easter_Of(2700), (Month_And_Date{4, 1}));
  EXPECT_EQ(Easter_Of(9000), (Month_And_Date{3, 23}));
  EXPECT_EQ(Easter_Of(100100), (Month_And_Date{4, 25}));
}

TEST(FindEaster, TakesTheYearAsTextOfDigits) {
  EXPECT_EQ(Find_Easter("2003", "Get Month"), Value(4));
  EXPECT_EQ(Find_Easter(" 2003 ", "Get Date"), Value(20));
}

TEST(FindEaster, AnyOtherVerbAnswersEmpty) {
  EXPECT_TRUE(Find_Easter(2003, "Get Year").is_empty());
  EXPECT_TRUE(Find_Easter(2003, "get month").is_empty());
  EXPECT_TRUE(Find_Easter(2003, "").is_empty());
}

TEST(FindEaster, AnswersNumbers) {
  EXPECT_TRUE(Find_Easter(2003, "Get Month").is_number());
  EXPECT_TRUE(Find_Easter(2003, "Get Date").is_number());
}

TEST(FindEaster, ATextThatIsNoNumberIsATypeMismatch) {
  try {
    Find_Easter("Easter", "Get Month");
    FAIL() << "no failure";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number(), kTypeMismatch);
  }
}

TEST(FindEaster, AYearBeyondThirtyTwoBitsIsAnOverflow) {
  EXPECT_NO_THROW(Find_Easter(2147483647.0, "Get Date"));
  EXPECT_NO_THROW(Find_Easter(-2147483648.0, "Get Date"));
  for (const double year : {2147483648.0, -2147483649.0, 1e300}) {
    try {
      Find_Easter(year, "Get Date");
      FAIL() << "no failure for " << year;
    } catch (const RuntimeFailure& failure) {
      EXPECT_EQ(failure.number(), kOverflow);
    }
  }
}

TEST(FindEaster, AlwaysAnswersMarchOrAprilForAnyThirtyTwoBitYear) {
  for (const std::int32_t year : {-2147483647 - 1, -1000000, -1, 0, 1, 1582, 1000000, 2147483647}) {
    const Month_And_Date easter = Easter_Month_And_Date(year);
    EXPECT_TRUE(easter.month == 3 || easter.month == 4) << year;
    EXPECT_GE(easter.date, 1) << year;
  }
}

TEST(FindEaster, AgreesWithThePublishedComputusFrom1583To2705) {
  for (int year = 1583; year <= 2705; ++year) {
    EXPECT_EQ(Easter_Month_And_Date(year), Published_Gregorian_Easter(year)) << year;
  }
}

TEST(FindEaster, PartsFromThePublishedComputusFirstIn2706) {
  // The program's Easter of 2706 is March 25; the published date is April 22.
  EXPECT_EQ(Easter_Month_And_Date(2706), (Month_And_Date{3, 25}));
  EXPECT_EQ(Published_Gregorian_Easter(2706), (Month_And_Date{4, 22}));
}

TEST(FindEaster, PartsFromThePublishedComputusInManyLaterYears) {
  std::vector<int> parting;
  for (int year = 2706; year <= 3000; ++year) {
    if (!(Easter_Month_And_Date(year) == Published_Gregorian_Easter(year))) parting.push_back(year);
  }
  ASSERT_GE(parting.size(), 10u);
  EXPECT_EQ(parting[0], 2706);
  EXPECT_EQ(parting[1], 2708);
  EXPECT_EQ(parting[2], 2711);
}

// The dividend of the remainder in the rule's sixth step.
std::int64_t Epact_Dividend(int year) {
  const std::int64_t g = year % 19 + 1;
  const std::int64_t c = year / 100 + 1;
  return 11 * g + 20 + (8 * c / 25 - 5) - (3 * c / 4 - 12);
}

TEST(FindEaster, MeetsANegativeDividendFirstIn8911) {
  for (int year = 1583; year < 8911; ++year) ASSERT_GE(Epact_Dividend(year), 0) << year;
  EXPECT_LT(Epact_Dividend(8911), 0);
}

TEST(FindEaster, KeepsTheTruncatingRemainderWhichFirstChangesADateIn10203) {
  // A remainder of -1 to -6 lands on the same date as the floored one, since N below 21 gets 30
  // added; the first year whose date the truncation changes is 10203.
  for (int year = 1583; year < 10203; ++year) {
    ASSERT_EQ(Easter_Month_And_Date(year), Easter_With_Floored_Remainder(year)) << year;
  }
  EXPECT_EQ(Easter_Month_And_Date(10203), (Month_And_Date{4, 24}));
  EXPECT_EQ(Easter_With_Floored_Remainder(10203), (Month_And_Date{3, 27}));
}

TEST(FindEaster, AnswersAprilDatesAbove30FirstIn11419) {
  for (int year = 1583; year < 11419; ++year) {
    const Month_And_Date easter = Easter_Month_And_Date(year);
    ASSERT_TRUE(easter.month == 3 ? easter.date >= 22 && easter.date <= 31 : easter.date <= 30) << year;
  }
  const Month_And_Date first = Easter_Month_And_Date(11419);
  EXPECT_EQ(first.month, 4);
  EXPECT_GT(first.date, 30);
}

TEST(FindEaster, RunsUpToApril49WithinTheLimit) {
  int latest = 0;
  for (int year = 1583; year <= kHolidayYearLimit; ++year) {
    const Month_And_Date easter = Easter_Month_And_Date(year);
    if (easter.month == 4 && easter.date > latest) latest = easter.date;
  }
  EXPECT_EQ(latest, 49);
  EXPECT_EQ(Easter_Month_And_Date(15675), (Month_And_Date{4, 49}));
}

TEST(FindEaster, IsAlwaysASundayWhileItIsARealDate) {
  // Zeller's congruence, independent of the program's weekday arithmetic; 1 is Sunday.
  const auto weekday = [](int year, int month, int day) {
    if (month < 3) month += 12, year -= 1;
    const int k = year % 100;
    const int j = year / 100;
    const int h = (day + 13 * (month + 1) / 5 + k + k / 4 + j / 4 + 5 * j) % 7;  // 0 is Saturday
    return (h + 6) % 7 + 1;
  };
  for (int year = 1583; year <= kHolidayYearLimit; ++year) {
    const Month_And_Date easter = Easter_Month_And_Date(year);
    if (easter.month == 4 && easter.date > 30) continue;
    ASSERT_EQ(weekday(year, easter.month, easter.date), 1) << year;
  }
}

}  // namespace
}  // namespace orrivane::holidays
