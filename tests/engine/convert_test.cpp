// Convert: validation and messages, the day difference, both directions of the conversion with
// the results it keeps, and the texts of the conversion window and of the silent mode.
#include <gtest/gtest.h>

#include "core/runtime_failure.h"
#include "engine/calendar_engine.h"
#include "engine/reference_calendar.h"

namespace orrivane::engine {
namespace {

constexpr auto kGregorian = CalendarStyle::Gregorian;
constexpr auto kJulian = CalendarStyle::Julian;

const std::string kGregorianText =
    "For the Gregorian Calendar, please make sure the \rdate entered is on or after October 15, 1582.";
const std::string kJulianText =
    "To convert a date from Julian to Gregorian, the \rdate entered must be on or after October 5, 1582.";

TEST(Convert, FifteenthOfOctober1582NewStyleIsTheFifthOldStyleTenDaysApart) {
  const ConvertResult result = Convert_Compute({"October", 15, 1582, kGregorian});
  ASSERT_EQ(result.error_code, 0);
  EXPECT_TRUE(result.message.empty());
  EXPECT_EQ(result.month, "October");
  EXPECT_EQ(result.day, 5);
  EXPECT_EQ(result.year, 1582);
  EXPECT_EQ(result.century, 15);
  EXPECT_EQ(result.two_digit_year, 82);
  EXPECT_EQ(result.style, kJulian);
  EXPECT_EQ(result.difference, 10);
  EXPECT_EQ(result.displayed_difference, 10);
  EXPECT_EQ(result.lblDate1, "October 15, 1582 N.S.");
  EXPECT_EQ(result.lblEquivalent, "Julian Equivalent: ");
  EXPECT_EQ(result.lblDate2, "October 5, 1582 O.S.");
  EXPECT_EQ(result.lblDifference, "10 day(s).");
  EXPECT_EQ(result.date_string, "10/5/1582");
}

TEST(Convert, FifthOfOctober1582OldStyleIsTheFifteenthNewStyle) {
  const ConvertResult result = Convert_Compute({"October", 5, 1582, kJulian});
  ASSERT_EQ(result.error_code, 0);
  EXPECT_EQ(result.lblDate1, "October 5, 1582 O.S.");
  EXPECT_EQ(result.lblEquivalent, "Gregorian Equivalent: ");
  EXPECT_EQ(result.lblDate2, "October 15, 1582 N.S.");
  EXPECT_EQ(result.style, kGregorian);
  EXPECT_EQ(result.lblDifference, "10 day(s).");
}

TEST(Convert, BeforeTheCalendarChangeEachStyleHasItsOwnMessage) {
  const ConvertResult julian = Convert_Compute({"October", 4, 1582, kJulian});
  EXPECT_EQ(julian.error_code, 1);
  EXPECT_EQ(julian.message.title, "Invalid Date For Conversion");
  EXPECT_EQ(julian.message.text, kJulianText);
  const ConvertResult gregorian = Convert_Compute({"October", 14, 1582, kGregorian});
  EXPECT_EQ(gregorian.error_code, 1);
  EXPECT_EQ(gregorian.message.title, "Invalid Date");
  EXPECT_EQ(gregorian.message.text, kGregorianText);
  EXPECT_EQ(Convert_Compute({"December", 31, 1581, kJulian}).error_code, 1);
  EXPECT_EQ(Convert_Compute({"September", 30, 1582, kJulian}).error_code, 1);
}

TEST(Convert, November1582IsNotConvertibleInEitherStyleWhileDecemberIs) {
  for (CalendarStyle style : {kGregorian, kJulian}) {
    EXPECT_EQ(Convert_Compute({"November", 15, 1582, style}).error_code, 1);
    EXPECT_EQ(Convert_Compute({"December", 15, 1582, style}).error_code, 0);
  }
  EXPECT_EQ(Convert_Compute({"November", 15, 1582, kJulian}).message.text, kJulianText);
  EXPECT_EQ(Convert_Compute({"December", 15, 1582, kGregorian}).lblDate2, "December 5, 1582 O.S.");
  EXPECT_EQ(Convert_Compute({"December", 15, 1582, kJulian}).lblDate2, "December 25, 1582 N.S.");
  // The month that does pass is spelled "Novemeber", which names no month of the tables.
  EXPECT_EQ(Convert_Compute({"November", 15, 1583, kGregorian}).error_code, 0);
}

TEST(Convert, CodesTwoAndThreeAndThePrecedenceOfOne) {
  const ConvertResult february = Convert_Compute({"February", 29, 1900, kGregorian});
  EXPECT_EQ(february.error_code, 2);
  EXPECT_EQ(february.message.title, "Invalid Date");
  EXPECT_EQ(february.message.text, "February of 1900 only has 28 days in it.");
  const ConvertResult april = Convert_Compute({"April", 31, 2000, kJulian});
  EXPECT_EQ(april.error_code, 3);
  EXPECT_EQ(april.message.title, "Invalid Date");
  EXPECT_EQ(april.message.text, "April does not have 31 days in it!");
  EXPECT_EQ(Convert_Compute({"February", 30, 1900, kJulian}).error_code, 3);
  EXPECT_EQ(Convert_Compute({"February", 30, 1500, kGregorian}).error_code, 1);
  EXPECT_EQ(Convert_Compute({"February", 29, 1500, kJulian}).error_code, 1);
}

TEST(Convert, AnInvalidDateGivesOnlyItsMessageInEitherMode) {
  const ConvertResult result = Convert_Compute({"October", 4, 1582, kJulian});
  EXPECT_TRUE(result.lblDate1.empty());
  EXPECT_TRUE(result.lblDate2.empty());
  EXPECT_TRUE(result.lblDifference.empty());
  EXPECT_TRUE(result.lblEquivalent.empty());
  EXPECT_TRUE(result.date_string.empty());
  EXPECT_TRUE(result.month.empty());
}

TEST(Convert, FirstOfJanuary2000NewStyleIsTheNineteenthOfDecember1999OldStyle) {
  const ConvertResult result = Convert_Compute({"January", 1, 2000, kGregorian});
  EXPECT_EQ(result.lblDate2, "December 19, 1999 O.S.");
  EXPECT_EQ(result.lblDifference, "13 day(s).");
  EXPECT_EQ(result.date_string, "12/19/1999");
  EXPECT_EQ(result.century, 19);
  EXPECT_EQ(result.two_digit_year, 99);
}

TEST(Convert, TwentyNinthOfFebruary1900OldStyleShowsThirteenDaysThoughTheDifferenceIsTwelve) {
  const ConvertResult result = Convert_Compute({"February", 29, 1900, kJulian});
  EXPECT_EQ(result.lblDate2, "March 13, 1900 N.S.");
  EXPECT_EQ(result.difference, 12);
  EXPECT_EQ(result.displayed_difference, 13);
  EXPECT_EQ(result.lblDifference, "13 day(s).");
  // Only the 29th gets the extra day, only in a century year that is no multiple of 400.
  EXPECT_EQ(Convert_Compute({"February", 28, 1900, kJulian}).displayed_difference, 12);
  EXPECT_EQ(Convert_Compute({"February", 29, 2000, kJulian}).displayed_difference, 13);
  EXPECT_EQ(Convert_Compute({"February", 29, 2100, kJulian}).displayed_difference, 14);
  EXPECT_EQ(Convert_Compute({"February", 29, 2100, kJulian}).lblDate2, "March 14, 2100 N.S.");
}

TEST(Convert, TenthOfFebruary1900NewStyleIsTwelveDaysApart) {
  const ConvertResult result = Convert_Compute({"February", 10, 1900, kGregorian});
  EXPECT_EQ(result.lblDate2, "January 29, 1900 O.S.");
  EXPECT_EQ(result.lblDifference, "12 day(s).");
  EXPECT_EQ(Convert_Compute({"March", 1, 1900, kGregorian}).lblDate2, "February 17, 1900 O.S.");
}

TEST(Convert, LastDayOf1999OldStyleIsTheThirteenthOfJanuary2000NewStyle) {
  const ConvertResult result = Convert_Compute({"December", 31, 1999, kJulian});
  EXPECT_EQ(result.lblDate2, "January 13, 2000 N.S.");
  EXPECT_EQ(result.date_string, "1/13/2000");
  EXPECT_EQ(result.century, 20);
  EXPECT_EQ(result.two_digit_year, 0);
}

TEST(Convert, KeptResultAGregorianFirstOfJanuaryOfTheYearAfterHasNoMonthAndDayTwo) {
  const ConvertResult result = Convert_Compute({"December", 22, 1583, kJulian});
  ASSERT_EQ(result.error_code, 0);
  EXPECT_EQ(result.month, "");
  EXPECT_EQ(result.day, 2);
  EXPECT_EQ(result.year, 1584);
  EXPECT_EQ(result.lblDate2, " 2, 1584 N.S.");
  EXPECT_EQ(result.date_string, "/2/1584");
  // The days around it are right.
  EXPECT_EQ(Convert_Compute({"December", 21, 1583, kJulian}).lblDate2, "December 31, 1583 N.S.");
  EXPECT_EQ(Convert_Compute({"December", 23, 1583, kJulian}).lblDate2, "January 2, 1584 N.S.");
}

TEST(Convert, AGregorianFirstOfJanuaryYearsAheadComesFromTheRemainderEqualityAndIsRight) {
  // Only a 1 January of the year right after the source runs past January; one that lies
  // further ahead is reached when the year loop stops on the equality, and comes out right.
  using namespace reference;
  const CivilDate source = Julian_From_Day_Number(Gregorian_Day_Number(1'000'001, 1, 1));
  ASSERT_LE(source.year, 1'000'001 - 2);
  const ConvertResult result = Convert_Compute({Month_Name(source.month), source.day, source.year, kJulian});
  EXPECT_EQ(result.lblDate2, "January 1, 1000001 N.S.");
}

TEST(Convert, KeptResultAGregorianFirstOfDecemberInAVeryLargeYearComesOutAsTheFirstOfJanuaryAfter) {
  using namespace reference;
  const CivilDate source = Julian_From_Day_Number(Gregorian_Day_Number(1'000'000, 12, 1));
  ASSERT_LT(source.year, 1'000'000);  // more than a year apart, so in the later-year branch
  const ConvertResult result = Convert_Compute({Month_Name(source.month), source.day, source.year, kJulian});
  ASSERT_EQ(result.error_code, 0);
  EXPECT_EQ(result.month, "January");
  EXPECT_EQ(result.day, 1);
  EXPECT_EQ(result.year, 1'000'001);
  EXPECT_EQ(result.lblDate2, "January 1, 1000001 N.S.");
  // The day after is right again.
  const ConvertResult next = Convert_Compute({Month_Name(source.month), source.day + 1, source.year, kJulian});
  EXPECT_EQ(next.lblDate2, "December 2, 1000000 N.S.");
}

TEST(Convert, ThirtiethOfDecemberYearsBackComesFromTheRemainderEqualityAndIsRight) {
  // Twenty years apart, every 30 December reached after the year loop stops on the equality of
  // the remainder with a year: the day is set to 30, which is the true day.
  using namespace reference;
  const CivilDate source = Gregorian_From_Day_Number(Julian_Day_Number(999'979, 12, 30));
  ASSERT_GE(source.year, 999'979 + 2);
  const ConvertResult result = Convert_Compute({Month_Name(source.month), source.day, source.year, kGregorian});
  ASSERT_EQ(result.error_code, 0);
  EXPECT_EQ(result.month, "December");
  EXPECT_EQ(result.day, 30);
  EXPECT_EQ(result.year, 999'979);
}

TEST(Convert, TheYearOneMillionIsSevenThousandFourHundredNinetyEightDaysApart) {
  const ConvertResult to_julian = Convert_Compute({"December", 31, 1'000'000, kGregorian});
  EXPECT_EQ(to_julian.difference, 7498);
  EXPECT_EQ(to_julian.lblDate2, "June 21, 999980 O.S.");
  EXPECT_EQ(to_julian.lblDifference, "7498 day(s).");
  EXPECT_EQ(to_julian.century, 9999);
  EXPECT_EQ(to_julian.two_digit_year, 80);
  const ConvertResult to_gregorian = Convert_Compute({"June", 15, 1'000'000, kJulian});
  EXPECT_EQ(to_gregorian.lblDate2, "December 25, 1000020 N.S.");
  EXPECT_EQ(to_gregorian.date_string, "12/25/1000020");
}

TEST(Convert, TheLargestYearConvertsAndABiggerOneOverflows) {
  using namespace reference;
  const ConvertResult result = Convert_Compute({"March", 1, kLargestConvertYear, kGregorian});
  const CivilDate expected = Julian_From_Day_Number(Gregorian_Day_Number(kLargestConvertYear, 3, 1));
  EXPECT_EQ(result.month, Month_Name(expected.month));
  EXPECT_EQ(result.day, expected.day);
  EXPECT_EQ(result.year, expected.year);
  EXPECT_THROW(Convert_Compute({"March", 1, kLargestConvertYear + 1, kGregorian}), RuntimeFailure);
}

TEST(ConvertDayDifference, TheCenturyRuleAndItsJanuaryAndFebruaryStep) {
  EXPECT_EQ(Convert_Day_Difference("October", 1582), 10);
  EXPECT_EQ(Convert_Day_Difference("February", 1700), 10);
  EXPECT_EQ(Convert_Day_Difference("March", 1700), 11);
  EXPECT_EQ(Convert_Day_Difference("January", 2000), 13);
  EXPECT_EQ(Convert_Day_Difference("January", 2100), 13);
  EXPECT_EQ(Convert_Day_Difference("March", 2100), 14);
  EXPECT_EQ(Convert_Day_Difference("December", 1'000'000), 7498);
}

TEST(ConvertMessage, CodeOneTellsTheSourceStyle) {
  EXPECT_EQ(Convert_Message(1, {"May", 1, 1000, kGregorian}).text, kGregorianText);
  EXPECT_EQ(Convert_Message(1, {"May", 1, 1000, kJulian}).title, "Invalid Date For Conversion");
  EXPECT_EQ(Convert_Message(2, {"February", 29, 2023, kJulian}).text, "February of 2023 only has 28 days in it.");
  EXPECT_EQ(Convert_Message(3, {"June", 31, 2023, kJulian}).text, "June does not have 31 days in it!");
  EXPECT_TRUE(Convert_Message(0, {"June", 1, 2023, kJulian}).empty());
  EXPECT_EQ(Convert_Message(1, {"May", 1, 1000, kJulian}).icon, vbExclamation);
  EXPECT_EQ(Convert_Message(1, {"May", 1, 1000, kJulian}).buttons, vbOKOnly);
}

TEST(CalendarStyleTexts, NamesLabelsAndTheFormsAccepted) {
  EXPECT_EQ(Calendar_Style_Name(kGregorian), "Gregorian");
  EXPECT_EQ(Calendar_Style_Name(kJulian), "Julian");
  EXPECT_EQ(Calendar_Style_Label(kGregorian), "N.S.");
  EXPECT_EQ(Calendar_Style_Label(kJulian), "O.S.");
  EXPECT_EQ(Calendar_Style_From_Text("Gregorian (New Style)"), kGregorian);
  EXPECT_EQ(Calendar_Style_From_Text("Julian (Old Style)"), kJulian);
  EXPECT_EQ(Calendar_Style_From_Text("Julian"), kJulian);
  EXPECT_EQ(Calendar_Style_From_Text("Gregorian"), kGregorian);
  EXPECT_FALSE(Calendar_Style_From_Text("julian").has_value());
  EXPECT_FALSE(Calendar_Style_From_Text("GREGORIAN CALENDAR").has_value());
}

}  // namespace
}  // namespace orrivane::engine
