// Month arithmetic: the length of a month in a style against an independent day count over whole
// centuries, the month before and after, the steps of the calendar windows at the limits of the
// calendar, and the months of the side calendars.
#include <gtest/gtest.h>

#include "engine/calendar_engine.h"
#include "engine/reference_calendar.h"
#include "support/failure_of.h"

namespace orrivane::engine {
namespace {

using testing::Failure_Of;

constexpr CalendarStyle kGregorian = CalendarStyle::Gregorian;
constexpr CalendarStyle kJulian = CalendarStyle::Julian;

// The day number of the first of a month in a style, from the reference formulas alone.
std::int64_t First_Day_Number(YearMonth month, CalendarStyle style) {
  return style == kJulian ? reference::Julian_Day_Number(month.year, month.month, 1)
                          : reference::Gregorian_Day_Number(month.year, month.month, 1);
}

// The length of a month as the days between its first and the first of the month after, the
// month after found without the engine.
int Independent_Length(YearMonth month, CalendarStyle style) {
  const YearMonth after = month.month == 12 ? YearMonth{month.year + 1, 1} : YearMonth{month.year, month.month + 1};
  return static_cast<int>(First_Day_Number(after, style) - First_Day_Number(month, style));
}

// Whole centuries around the calendar change, the base year 2000 and the last year.
constexpr std::int64_t kSweeps[][2] = {{0, 2400}, {999'600, 1'000'100}};

TEST(DaysInMonth, AgreesWithAnIndependentDayCountOverWholeCenturiesInBothStyles) {
  for (const auto& sweep : kSweeps) {
    for (std::int64_t year = sweep[0]; year <= sweep[1]; ++year) {
      for (int month = 1; month <= 12; ++month) {
        for (CalendarStyle style : {kGregorian, kJulian}) {
          ASSERT_EQ(Days_In_Month({year, month}, style), Independent_Length({year, month}, style))
              << month << "/" << year << " " << Calendar_Style_Name(style);
        }
      }
    }
  }
}

TEST(DaysInMonth, AgreesWithTheLengthIsItAValidDateAnswers) {
  for (std::int64_t year = 1500; year <= 2100; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (CalendarStyle style : {kGregorian, kJulian}) {
        ASSERT_EQ(Value(Days_In_Month({year, month}, style)),
                  Is_It_A_Valid_Date(month, "Get Max Days", year, Calendar_Style_Name(style)))
            << month << "/" << year << " " << Calendar_Style_Name(style);
      }
    }
  }
}

TEST(DaysInMonth, FebruaryOf1900IsTwentyEightDaysGregorianAndTwentyNineJulian) {
  EXPECT_EQ(Days_In_Month({1900, 2}, kGregorian), 28);
  EXPECT_EQ(Days_In_Month({1900, 2}, kJulian), 29);
  EXPECT_EQ(Days_In_Month({2000, 2}, kGregorian), 29);
  EXPECT_EQ(Days_In_Month({1'000'000, 2}, kGregorian), 29);
  EXPECT_EQ(Days_In_Month({0, 2}, kJulian), 29);
}

TEST(DaysInMonth, ThirteenIsJanuaryAndZeroDecemberAndOtherNumbersAreOutOfRange) {
  EXPECT_EQ(Days_In_Month(13, false), 31);
  EXPECT_EQ(Days_In_Month(0, true), 31);
  EXPECT_EQ(Days_In_Month(2, true), 29);
  EXPECT_EQ(Failure_Of([] { Days_In_Month(14, false); }), kSubscriptOutOfRange);
  EXPECT_EQ(Failure_Of([] { Days_In_Month(-1, false); }), kSubscriptOutOfRange);
}

TEST(LeapYears, TheTypedRuleAgreesWithIsItALeapYearAndTheReference) {
  for (std::int64_t year = -800; year <= 4000; ++year) {
    ASSERT_EQ(Is_Leap_Year(year, kGregorian), Is_It_A_Leap_Year(year, "Gregorian")) << year;
    ASSERT_EQ(Is_Leap_Year(year, kJulian), Is_It_A_Leap_Year(year, "Julian")) << year;
    if (year >= 0) {
      ASSERT_EQ(Is_Leap_Year(year, kGregorian), reference::Gregorian_Leap(year)) << year;
      ASSERT_EQ(Is_Leap_Year(year, kJulian), reference::Julian_Leap(year)) << year;
    }
  }
}

TEST(CalendarStyleOf, OnlyJulianIsTheJulianStyle) {
  EXPECT_EQ(Calendar_Style_Of("Julian"), kJulian);
  EXPECT_EQ(Calendar_Style_Of("Gregorian"), kGregorian);
  EXPECT_EQ(Calendar_Style_Of(""), kGregorian);
  EXPECT_EQ(Calendar_Style_Of("Julian (Old Style)"), kGregorian);
  EXPECT_EQ(Calendar_Style_Of("julian"), kGregorian);
}

TEST(MonthNames, FullNamesBothWays) {
  for (int month = 1; month <= 12; ++month) {
    EXPECT_EQ(Full_Month_Name(month), reference::Month_Name(month));
    EXPECT_EQ(Full_Month_Number(Full_Month_Name(month)), month);
  }
  EXPECT_EQ(Full_Month_Name(13), "January");
  EXPECT_EQ(Full_Month_Name(0), "December");
  EXPECT_EQ(Failure_Of([] { Full_Month_Name(14); }), kSubscriptOutOfRange);
  EXPECT_EQ(Full_Month_Number("Oct"), 0);
  EXPECT_EQ(Full_Month_Number("october"), 0);
  EXPECT_EQ(Full_Month_Number("Novemeber"), 0);
  EXPECT_EQ(Full_Month_Number(""), 0);
}

TEST(MonthNeighbours, TheYearTurnsBetweenDecemberAndJanuary) {
  EXPECT_EQ(Month_After({1999, 12}), (YearMonth{2000, 1}));
  EXPECT_EQ(Month_Before({2000, 1}), (YearMonth{1999, 12}));
  EXPECT_EQ(Month_After({2000, 2}), (YearMonth{2000, 3}));
  EXPECT_EQ(Month_Before({0, 1}), (YearMonth{-1, 12}));
}

TEST(MonthNeighbours, EachMonthStartsWhereTheOneBeforeEnds) {
  for (CalendarStyle style : {kGregorian, kJulian}) {
    for (YearMonth month{1500, 1}; month.year <= 2500; month = Month_After(month)) {
      const YearMonth after = Month_After(month);
      ASSERT_EQ(Month_Before(after), month);
      ASSERT_EQ(First_Day_Number(after, style), First_Day_Number(month, style) + Days_In_Month(month, style))
          << month.month << "/" << month.year;
    }
  }
}

TEST(CalendarLimits, TheGregorianCalendarBeginsOn15October1582) {
  EXPECT_EQ(reference::Gregorian_Day_Number(kFirstGregorianYear, kFirstGregorianMonth, kFirstGregorianDay),
            reference::Julian_Day_Number(1582, 10, 4) + 1);
  EXPECT_TRUE(Is_Before_Gregorian_Start<std::int64_t>(1582, 10, 14));
  EXPECT_FALSE(Is_Before_Gregorian_Start<std::int64_t>(1582, 10, 15));
  EXPECT_TRUE(Is_Before_Gregorian_Start<std::int64_t>(1582, 9, 30));
  EXPECT_FALSE(Is_Before_Gregorian_Start<std::int64_t>(1582, 11, 1));
  EXPECT_TRUE(Is_Before_Gregorian_Start<std::int64_t>(1581, 12, 31));
  EXPECT_FALSE(Is_Before_Gregorian_Start<std::int64_t>(1583, 1, 1));
  EXPECT_TRUE(Is_Before_Gregorian_Start<std::int64_t>(1582, 0, 20));  // no month known
  EXPECT_TRUE(Is_Before_Gregorian_Start(1582.0, 10.0, 14.0));
  EXPECT_FALSE(Is_Before_Gregorian_Start(1582.0, 10.0, 15.0));
  EXPECT_TRUE(Is_Before_Gregorian_Calendar({1582, 9}));
  EXPECT_FALSE(Is_Before_Gregorian_Calendar({1582, 10}));
  EXPECT_TRUE(Is_Before_Gregorian_Calendar({1581, 12}));
  EXPECT_EQ(kLastYear, 1'000'000);
  EXPECT_EQ(kFirstJulianYear, 0);
}

TEST(NextMonthStep, DecemberOfTheLastYearStillStepsAndOnlyTheStepAfterIsRefused) {
  EXPECT_EQ(Next_Month_Step({1999, 12}), (YearMonth{2000, 1}));
  EXPECT_EQ(Next_Month_Step({1'000'000, 11}), (YearMonth{1'000'000, 12}));
  EXPECT_EQ(Next_Month_Step({1'000'000, 12}), (YearMonth{1'000'001, 1}));
  EXPECT_EQ(Next_Month_Step({1'000'001, 1}), std::nullopt);
}

TEST(PriorMonthStep, GregorianStopsAtOctober1582) {
  EXPECT_EQ(Prior_Month_Step({2000, 1}, kGregorian), (YearMonth{1999, 12}));
  EXPECT_EQ(Prior_Month_Step({1583, 1}, kGregorian), (YearMonth{1582, 12}));
  EXPECT_EQ(Prior_Month_Step({1582, 11}, kGregorian), (YearMonth{1582, 10}));
  EXPECT_EQ(Prior_Month_Step({1582, 10}, kGregorian), std::nullopt);
  EXPECT_EQ(Prior_Month_Step({1582, 3}, kGregorian), std::nullopt);
  EXPECT_EQ(Prior_Month_Step({1500, 6}, kGregorian), std::nullopt);
}

TEST(PriorMonthStep, JulianStopsAtDecemberOfTheYear1AndRefusesEveryMonthOfTheYears0And1) {
  EXPECT_EQ(Prior_Month_Step({2, 1}, kJulian), (YearMonth{1, 12}));
  EXPECT_EQ(Prior_Month_Step({2, 2}, kJulian), (YearMonth{2, 1}));
  EXPECT_EQ(Prior_Month_Step({1, 12}, kJulian), std::nullopt);
  EXPECT_EQ(Prior_Month_Step({1, 1}, kJulian), std::nullopt);
  EXPECT_EQ(Prior_Month_Step({0, 6}, kJulian), std::nullopt);
  EXPECT_EQ(Prior_Month_Step({1582, 10}, kJulian), (YearMonth{1582, 9}));
}

TEST(PriorMonthStep, EveryStepBackUndoesAStepForward) {
  for (CalendarStyle style : {kGregorian, kJulian}) {
    for (YearMonth month{1582, 10}; month.year <= 2100; month = Month_After(month)) {
      const std::optional<YearMonth> next = Next_Month_Step(month);
      ASSERT_TRUE(next.has_value());
      ASSERT_EQ(Prior_Month_Step(*next, style), month) << month.month << "/" << month.year;
    }
  }
}

TEST(SideMonths, TheMonthsBesideTheOneOnShowWithTheirLengths) {
  const SideMonths january = Side_Months({2000, 1}, kGregorian);
  EXPECT_EQ(january.before, (YearMonth{1999, 12}));
  EXPECT_EQ(january.before_length, 31);
  EXPECT_EQ(january.before_that_length, 30);
  EXPECT_EQ(january.after, (YearMonth{2000, 2}));
  EXPECT_EQ(january.after_length, 29);

  const SideMonths march = Side_Months({1900, 3}, kGregorian);
  EXPECT_EQ(march.before, (YearMonth{1900, 2}));
  EXPECT_EQ(march.before_length, 28);
  EXPECT_EQ(march.before_that_length, 31);
  EXPECT_EQ(Side_Months({1900, 3}, kJulian).before_length, 29);

  const SideMonths february = Side_Months({2024, 2}, kGregorian);
  EXPECT_EQ(february.before_length, 31);
  EXPECT_EQ(february.before_that_length, 31);  // December 2023
  EXPECT_EQ(february.after, (YearMonth{2024, 3}));
  EXPECT_EQ(february.after_length, 31);
}

TEST(SideMonths, NoLimitsApplyBesideTheFirstAndLastMonths) {
  const SideMonths first = Side_Months({0, 1}, kJulian);
  EXPECT_EQ(first.before, (YearMonth{-1, 12}));
  EXPECT_EQ(first.before_that_length, 30);
  EXPECT_EQ(Side_Months({1'000'000, 12}, kGregorian).after, (YearMonth{1'000'001, 1}));
}

TEST(MonthGridShape, FortyTwoCellsInSixRowsOfSeven) {
  EXPECT_EQ(kGridColumns, 7);
  EXPECT_EQ(kGridRows, 6);
  EXPECT_EQ(kGridCells, 42);
  EXPECT_EQ(kLastGridCell, 41);
}

}  // namespace
}  // namespace orrivane::engine
