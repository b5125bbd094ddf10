#include "elapsed/time_selection.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <tuple>

#include "core/runtime_failure.h"
#include "support/failure_of.h"

namespace orrivane::elapsed {
namespace {

using orrivane::testing::Failure_Of;

// March 5, 2001, 14:07: the present of these tests.
const Time_Selection kNow = Selection_At("March", 5, 2001, 14, 7);

Time_Selection Chosen(const std::string& month, const std::string& date, const std::string& century,
                      const std::string& year, const std::string& hour = "10", const std::string& minute = "30") {
  return {month, date, century, year, hour, minute};
}

const Time_Selection kGood = Chosen("June", "15", "20", "01");

Message Message_For(int code) {
  Selection_Check check;
  check.Code = code;
  return Find_Time_Length_Message(check);
}

int Code(const Time_Selection& one, const Time_Selection& two, const std::string& style = "Gregorian") {
  return Check_Time_Selections(one, two, style).Code;
}

// ---- Filling blanks -----------------------------------------------------------------------

TEST(Time_Selection, ThePresentSplitsIntoTheSixBoxes) {
  EXPECT_EQ(kNow.Month, "March");
  EXPECT_EQ(kNow.Date, "5");
  EXPECT_EQ(kNow.Century, "20");
  EXPECT_EQ(kNow.Year_In_Century, "1");
  EXPECT_EQ(kNow.Hour, "14");
  EXPECT_EQ(kNow.Minute, "7");
  EXPECT_EQ(Selection_At("May", 1, 1000099, 0, 0).Century, "10000");
}

TEST(Time_Selection, NothingChosenMeasuresFromNowToNow) {
  Time_Selection one;
  Time_Selection two;
  Fill_In_Blanks(one, kNow);
  Fill_In_Blanks(two, kNow);
  EXPECT_EQ(Code(one, two), 0);
  const std::optional<Time_Rows> rows =
      Display_Time_Difference("Gregorian", Selected_Moment(one), Selected_Moment(two), Display_Option::Remaining,
                              {true, true, true, true, true});
  ASSERT_TRUE(rows.has_value());
  for (const std::string& row : *rows) EXPECT_EQ(row, "0");
}

TEST(Time_Selection, AChosenMonthKeepsABlankDateBlank) {
  Time_Selection one{"April", "", "", "", "", ""};
  Fill_In_Blanks(one, kNow);
  EXPECT_EQ(one.Month, "April");
  EXPECT_EQ(one.Date, "");
}

TEST(Time_Selection, AChosenCenturyOrHourMakesTheBlankBelowItZero) {
  Time_Selection one{"", "", "19", "", "08", ""};
  Fill_In_Blanks(one, kNow);
  EXPECT_EQ(one.Month, "March");
  EXPECT_EQ(one.Date, "5");
  EXPECT_EQ(Selected_Year(one), 1900);
  EXPECT_EQ(one.Minute, "00");
  Time_Selection two{"", "", "", "", "", "45"};
  Fill_In_Blanks(two, kNow);
  EXPECT_EQ(Selected_Year(two), 2001);
  EXPECT_EQ(two.Hour, "14");
  EXPECT_EQ(two.Minute, "45");  // chosen without an hour, and kept
}

// ---- Checks and their messages ------------------------------------------------------------

TEST(Time_Selection, AMonthWithoutADateOnOneSideIsCodeOneOrTwo) {
  EXPECT_EQ(Code(Chosen("June", "", "20", "01"), kGood), 1);
  EXPECT_EQ(Code(kGood, Chosen("June", "", "20", "01")), 2);
  EXPECT_EQ(Message_For(1).title, "No Date Selected");
  EXPECT_EQ(Message_For(1).text, "'Time 1' month selected without a corresponding date.");
  EXPECT_EQ(Message_For(2).text, "'Time 2' month selected without a corresponding date.");
}

TEST(Time_Selection, MonthsWithoutDatesOnBothSidesAreCodeSeven) {
  EXPECT_EQ(Code(Chosen("June", "", "20", "01"), Chosen("May", "", "20", "01")), 7);
  EXPECT_EQ(Message_For(7).title, "No Dates Selected");
  EXPECT_EQ(Message_For(7).text, "When a month is selected, a date must also be selected.");
}

TEST(Time_Selection, FebruaryThirtiethOnTheFirstSideNamesTheYear) {
  const Selection_Check check = Check_Time_Selections(Chosen("February", "30", "20", "01"), kGood, "Gregorian");
  EXPECT_EQ(check.Code, 8);
  const Message message = Find_Time_Length_Message(check);
  EXPECT_EQ(message.title, "Invalid Date");
  EXPECT_EQ(message.text, "February only has 28 days in it for the year you selected for 'Time 1'.");
  const Selection_Check leap = Check_Time_Selections(kGood, Chosen("February", "30", "20", "00"), "Gregorian");
  EXPECT_EQ(Find_Time_Length_Message(leap).text,
            "February only has 29 days in it for the year you selected for 'Time 2'.");
}

TEST(Time_Selection, AprilThirtyFirstOnTheSecondSideIsCodeNine) {
  const Selection_Check check = Check_Time_Selections(kGood, Chosen("April", "31", "20", "01"), "Gregorian");
  EXPECT_EQ(check.Code, 9);
  EXPECT_EQ(Find_Time_Length_Message(check).title, "Invalid Date");
  EXPECT_EQ(Find_Time_Length_Message(check).text, "April only has 30 days in it.");
}

TEST(Time_Selection, TwoBadCenturiesAreCodeFourteen) {
  EXPECT_EQ(Code(Chosen("June", "15", "2x", "01"), Chosen("June", "15", "y", "01")), 14);
  EXPECT_EQ(Code(Chosen("June", "15", "2x", "01"), kGood), 10);
  EXPECT_EQ(Code(kGood, Chosen("June", "15", "-1", "01")), 11);
  EXPECT_EQ(Code(Chosen("June", "31", "20", "01"), Chosen("June", "15", "10001", "01")), 14);
  EXPECT_EQ(Message_For(14).title, "Invalid Selections Detected");
  EXPECT_EQ(Message_For(14).text, "Please check that all date and time entries are valid.");
  EXPECT_EQ(Message_For(10).title, "Invalid Year");
  EXPECT_EQ(Message_For(10).text, "The year field for 'Time 1' contains non-numeric characters");
  EXPECT_EQ(Message_For(11).text, "The year field for 'Time 2' contains non-numeric characters");
}

TEST(Time_Selection, OctoberFourteenth1582IsTooEarlyOnlyInTheGregorianStyle) {
  const Time_Selection too_early = Chosen("October", "14", "15", "82");
  EXPECT_EQ(Code(too_early, kGood, "Gregorian"), 15);
  EXPECT_EQ(Code(too_early, kGood, "Julian"), 0);
  EXPECT_EQ(Code(Chosen("October", "15", "15", "82"), kGood, "Gregorian"), 0);
  EXPECT_EQ(Code(kGood, Chosen("September", "30", "15", "82"), "Gregorian"), 16);
  EXPECT_EQ(Code(Chosen("May", "1", "0", "00"), Chosen("December", "31", "15", "81"), "Gregorian"), 17);
  EXPECT_EQ(Message_For(15).title, "Invalid Gregorian Date");
  EXPECT_EQ(Message_For(15).text, "Please be sure the date for 'Time 1' falls on or after October 15, 1582");
  EXPECT_EQ(Message_For(16).text, "Please be sure the date for 'Time 2' falls on or after October 15, 1582");
  EXPECT_EQ(Message_For(17).title, "Invalid Dates");
  EXPECT_EQ(Message_For(17).text, "Gregorian dates cannot be before October 15, 1582");
}

TEST(Time_Selection, CenturyTenThousandIsTheLast) {
  EXPECT_EQ(Code(Chosen("June", "15", "10001", "01"), kGood), 12);
  EXPECT_EQ(Code(kGood, Chosen("June", "15", "10001", "01")), 13);
  EXPECT_EQ(Code(Chosen("December", "31", "10000", "99"), kGood), 0);
  EXPECT_EQ(Code(Chosen("June", "15", "99999999999999999999999", "01"), kGood), 12);
  EXPECT_EQ(Message_For(12).text, "Please make sure the year value for 'Time 1' is a value from 0 to 10000");
  EXPECT_EQ(Message_For(13).text, "Please make sure the year value for 'Time 2' is a value from 0 to 10000");
}

TEST(Time_Selection, MissingDatesComeBeforeBadNumbersAndThoseBeforeEarlyDates) {
  EXPECT_EQ(Code(Chosen("June", "", "20", "01"), Chosen("June", "15", "x", "01")), 1);
  EXPECT_EQ(Code(Chosen("June", "15", "x", "01"), Chosen("June", "15", "10", "01")), 10);
  // With a date missing, no date is checked for existing.
  EXPECT_EQ(Code(Chosen("June", "", "20", "01"), Chosen("June", "31", "20", "01")), 1);
}

TEST(Time_Selection, AnEmptyCenturyCountsAsNotNumeric) { EXPECT_EQ(Code(Chosen("June", "15", "", "01"), kGood), 10); }

TEST(Time_Selection, ANonNumericYearInCenturyFailsWhenUsed) {
  EXPECT_EQ(Failure_Of([] { Check_Time_Selections(Chosen("June", "15", "20", "ab"), kGood, "Gregorian"); }),
            kTypeMismatch);
}

TEST(Time_Selection, CodeZeroAndUnknownCodesHaveNoMessage) {
  EXPECT_EQ(Message_For(0).title, "");
  EXPECT_EQ(Message_For(3).text, "");
  EXPECT_EQ(Check_Time_Selections(kGood, kGood, "Gregorian").Month_Name, "");
}

// ---- The moment text ----------------------------------------------------------------------

TEST(Time_Selection, TheMomentTextPadsOneDigitHoursAndMinutes) {
  EXPECT_EQ(Moment_Text(Chosen("March", "1", "20", "01", "9", "5")), "09:05, March 1, 2001");
  EXPECT_EQ(Moment_Text(Chosen("March", "01", "0", "00", "23", "59")), "23:59, March 01, 0");
  EXPECT_EQ(Moment_Text(Chosen("December", "31", "10000", "99", "00", "00")), "00:00, December 31, 1000099");
}

TEST(Time_Selection, AMomentTextReadsBackAsTheMoment) {
  const Time_Selection chosen = Chosen("February", "29", "16", "00", "7", "3");
  const Moment moment = Moment_Of_Text(Moment_Text(chosen));
  const Moment direct = Selected_Moment(chosen);
  EXPECT_EQ(moment.Minute, 3);
  EXPECT_EQ(moment.Hour, 7);
  EXPECT_EQ(moment.Date, 29);
  EXPECT_EQ(moment.Month_Number, 2);
  EXPECT_EQ(moment.Four_Digit_Year, 1600);
  EXPECT_EQ(std::tie(direct.Minute, direct.Hour, direct.Date, direct.Month_Number, direct.Four_Digit_Year),
            std::tie(moment.Minute, moment.Hour, moment.Date, moment.Month_Number, moment.Four_Digit_Year));
}

}  // namespace
}  // namespace orrivane::elapsed
