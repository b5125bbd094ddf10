// The month and weekday vocabulary, the leap rules and the validity of a day in its month.
#include <gtest/gtest.h>

#include "engine/calendar_engine.h"

namespace orrivane::engine {
namespace {

TEST(DefineMonth, ThirteenIsJanuaryAndZeroIsDecember) {
  EXPECT_EQ(Define_Month(13, "Get Month Name"), Value("January"));
  EXPECT_EQ(Define_Month(0, "Get Max Days"), Value(31));
  EXPECT_EQ(Define_Month(0, "Get Month Name"), Value("December"));
}

TEST(DefineMonth, MisspelledFrenchFebruaryIsTheAcceptedFormAndTheAccentedOneMatchesNothing) {
  EXPECT_EQ(Define_Month("fevier", "Get Month Number"), Value(2));
  EXPECT_TRUE(Define_Month("f\xC3\xA9vrier", "Get Month Number").is_empty());
  EXPECT_TRUE(Define_Month("d\xC3\xA9" "cembre", "Get Month Number").is_empty());
  EXPECT_EQ(Define_Month("decembre", "Get Month Number"), Value(12));
  EXPECT_EQ(Define_Month("juliet", "Get Month Name"), Value("July"));
  EXPECT_EQ(Define_Month("augusto", "Get Month Name"), Value("August"));
  EXPECT_EQ(Define_Month("aout", "Get Month Name"), Value("August"));
}

TEST(DefineMonth, MayIsItsOwnThreeLetterName) {
  EXPECT_EQ(Define_Month("May", "Get Three Letter Month Name"), Value("May"));
  EXPECT_EQ(Define_Month("September", "Get Three Letter Month Name"), Value("Sep"));
}

TEST(DefineMonth, BaseWeekdaysOfTheYear2000InBothStyles) {
  EXPECT_EQ(Define_Month("Jan", "Get Base Date Weekday Greg 2000"), Value(7));
  EXPECT_EQ(Define_Month("Jan", "Get Base Date Weekday Jul 2000"), Value(6));
}

TEST(DefineMonth, ComparisonIsExactAndNumericTextsMatchByValue) {
  EXPECT_TRUE(Define_Month("january", "Get Month Number").is_empty());
  EXPECT_TRUE(Define_Month("JANUARY", "Get Month Number").is_empty());
  EXPECT_EQ(Define_Month("7", "Get Month Name"), Value("July"));
  EXPECT_EQ(Define_Month("07", "Get Month Name"), Value("July"));
  EXPECT_TRUE(Define_Month("Julyy", "Get Month Name").is_empty());
}

TEST(DefineMonth, UnknownVerbAnswersEmptyAndLeapVerbsAnswerLengths) {
  EXPECT_TRUE(Define_Month("March", "Get Something").is_empty());
  EXPECT_EQ(Define_Month("February", "Get Max Days"), Value(28));
  EXPECT_EQ(Define_Month("February", "Get Max Days Leap Year"), Value(29));
  EXPECT_EQ(Define_Month("February", "After Leap Date?"), Value(0));
  EXPECT_EQ(Define_Month("March", "After Leap Date?"), Value(1));
}

TEST(DefineWeekday, FrenchThursdayAndNoEighthDay) {
  EXPECT_EQ(Define_Weekday("juedi", "Get Weekday Name"), Value("Thursday"));
  EXPECT_TRUE(Define_Weekday(8, "Get Weekday Name").is_empty());
  EXPECT_EQ(Define_Weekday("Satur", "Get Weekday Number"), Value(7));
  EXPECT_EQ(Define_Weekday(1, "Get Weekday Name"), Value("Sunday"));
}

TEST(NumericToTextMonth, TwoDigitTextsAndNumbersUpToTwelve) {
  EXPECT_EQ(Numeric_To_Text_Month("07"), "July");
  EXPECT_EQ(Numeric_To_Text_Month(13), "");
  EXPECT_EQ(Numeric_To_Text_Month(12), "December");
  EXPECT_EQ(Numeric_To_Text_Month("3"), "March");
  EXPECT_EQ(Numeric_To_Text_Month("xx"), "");
}

TEST(IsItALeapYear, CenturyYearsDifferByStyle) {
  EXPECT_FALSE(Is_It_A_Leap_Year(1900, "Gregorian"));
  EXPECT_TRUE(Is_It_A_Leap_Year(1900, "Julian"));
  EXPECT_TRUE(Is_It_A_Leap_Year(2000, "Gregorian"));
  EXPECT_TRUE(Is_It_A_Leap_Year(2000, "Julian"));
  EXPECT_TRUE(Is_It_A_Leap_Year(0, "Gregorian"));
  EXPECT_TRUE(Is_It_A_Leap_Year(0, "Julian"));
  EXPECT_TRUE(Is_It_A_Leap_Year(1000000, "Gregorian"));
  EXPECT_TRUE(Is_It_A_Leap_Year(1000000, "Julian"));
  EXPECT_FALSE(Is_It_A_Leap_Year(2023, "Julian"));
}

TEST(IsItAValidDate, TwentyNinthOfFebruary1900DependsOnTheStyle) {
  EXPECT_EQ(Is_It_A_Valid_Date("February", 29, 1900, "Gregorian"), Value(0));
  EXPECT_EQ(Is_It_A_Valid_Date("February", 29, 1900, "Julian"), Value(1));
}

TEST(IsItAValidDate, GetMaxDaysAnswersTheLengthOfTheMonth) {
  EXPECT_EQ(Is_It_A_Valid_Date("February", "Get Max Days", 2024, "Gregorian"), Value(29));
  EXPECT_EQ(Is_It_A_Valid_Date("February", "Get Max Days", 2023, "Gregorian"), Value(28));
}

TEST(IsItAValidDate, DayZeroIsInvalidAndTheCalendarChangeIsUnknownHere) {
  EXPECT_EQ(Is_It_A_Valid_Date("June", 0, 2000, "Gregorian"), Value(0));
  EXPECT_EQ(Is_It_A_Valid_Date("October", 5, 1582, "Gregorian"), Value(1));
  EXPECT_EQ(Is_It_A_Valid_Date("October", 5, 1582, "Julian"), Value(1));
}

}  // namespace
}  // namespace orrivane::engine
