// When a task's reminder comes: the boxes' lists, a fixed moment filled in from the clock and
// checked, a moment tied to the task, the period of a series and the messages of setting it.
#include "organizer/reminder_moment.h"

#include <gtest/gtest.h>

#include "support/failure_of.h"

namespace orrivane::organizer {
namespace {

using testing::Failure_Of;

// The clock on March 5, 2001 at 2:05:09 in the afternoon.
constexpr char kToday[] = "3/5/2001";
constexpr char kNow[] = "2:05:09 PM";

ChosenMoment Choose(const MomentEntries& entries) { return Choose_Reminder_Moment(entries, kToday, kNow); }

ChosenMoment Accepted(const char* date, const char* time) { return {{}, date, time}; }

// ---- The lists --------------------------------------------------------------------------------

TEST(Amount_Choices, MinutesHoursAndDaysCountFromZero) {
  const std::vector<std::string> minutes = Amount_Choices(kMinutesBox);
  ASSERT_EQ(minutes.size(), 60u);
  EXPECT_EQ(minutes.front(), "0");
  EXPECT_EQ(minutes[9], "9");
  EXPECT_EQ(minutes.back(), "59");
  EXPECT_EQ(Amount_Choices(kHoursBox).size(), 24u);
  EXPECT_EQ(Amount_Choices(kHoursBox).back(), "23");
  EXPECT_EQ(Amount_Choices(kDaysBox).size(), 100u);
  EXPECT_EQ(Amount_Choices(kDaysBox).back(), "99");
}

TEST(Amount_Choices, HundredsOfDaysGoByHundredsTo1800) {
  const std::vector<std::string> hundreds = Amount_Choices(kHundredsOfDaysBox);
  ASSERT_EQ(hundreds.size(), 19u);
  EXPECT_EQ(hundreds[0], "0");
  EXPECT_EQ(hundreds[1], "100");
  EXPECT_EQ(hundreds[2], "200");
  EXPECT_EQ(hundreds.back(), "1800");
}

TEST(Amount_Choices, AnotherBoxHasNone) {
  EXPECT_TRUE(Amount_Choices(-1).empty());
  EXPECT_TRUE(Amount_Choices(kAmountBoxes).empty());
}

TEST(Reminder_Boxes, CenturiesOfAFixedMomentAre19To21) {
  EXPECT_EQ(Two_Digit_Texts(kReminderCenturyRange), (std::vector<std::string>{"19", "20", "21"}));
  EXPECT_EQ(Two_Digit_Texts(kHourBoxRange).back(), "23");
  EXPECT_EQ(Two_Digit_Texts(kMinuteBoxRange).front(), "00");
  EXPECT_EQ(Two_Digit_Texts(kMinuteBoxRange).back(), "59");
}

// ---- The present --------------------------------------------------------------------------------

TEST(Present_Moment_Entries, TheClockAsTheBoxesWouldHoldIt) {
  EXPECT_EQ(Present_Moment_Entries(kToday, kNow), (MomentEntries{"March", "5", "20", "1", "14", "05"}));
}

TEST(Present_Moment_Entries, AMorningHourOfOneDigitGetsAZero) {
  EXPECT_EQ(Present_Moment_Entries("12/31/1999", "9:07:00 AM"),
            (MomentEntries{"December", "31", "19", "99", "09", "07"}));
  EXPECT_EQ(Present_Moment_Entries("1/1/2100", "12:00:59 AM").Hour, "00");
  EXPECT_EQ(Present_Moment_Entries("1/1/2100", "12:30:00 PM").Hour, "12");
}

// ---- Filling in ---------------------------------------------------------------------------------

TEST(Choose_Reminder_Moment, EveryBoxEmptyGivesThePresent) {
  EXPECT_EQ(Choose({}), Accepted("March 5, 2001", "14:05"));
}

TEST(Choose_Reminder_Moment, AnEmptyMinuteUnderAChosenHourIsFull) {
  EXPECT_EQ(Choose({"", "", "", "", "09", ""}), Accepted("March 5, 2001", "09:00"));
}

TEST(Choose_Reminder_Moment, AnEmptyHourTakesThePresentHourBesideAChosenMinute) {
  EXPECT_EQ(Choose({"", "", "", "", "", "45"}), Accepted("March 5, 2001", "14:45"));
}

TEST(Choose_Reminder_Moment, MonthAndDayAreFilledEachByItself) {
  EXPECT_EQ(Choose({"July", "", "", "", "", ""}).Date, "July 5, 2001");
  EXPECT_EQ(Choose({"", "20", "", "", "", ""}).Date, "March 20, 2001");
}

TEST(Choose_Reminder_Moment, AnEmptyCenturyTakesThePresentOneBesideAChosenYear) {
  EXPECT_EQ(Choose({"May", "01", "", "07", "", ""}).Date, "May 1, 2007");
}

TEST(Choose_Reminder_Moment, AChosenCenturyWithAnEmptyYearIsItsYearNought) {
  EXPECT_EQ(Choose({"May", "01", "21", "", "", ""}).Date, "May 1, 2100");
  EXPECT_EQ(Choose({"May", "01", "19", "", "", ""}).Date, "May 1, 1900");
}

TEST(Choose_Reminder_Moment, TheDayLosesItsLeadingZeroOnly) {
  EXPECT_EQ(Choose({"April", "09", "20", "02", "23", "59"}), Accepted("April 9, 2002", "23:59"));
  EXPECT_EQ(Choose({"April", "10", "20", "02", "00", "00"}), Accepted("April 10, 2002", "00:00"));
  EXPECT_EQ(Choose({"April", "7", "20", "02", "00", "00"}).Date, "April 7, 2002");
}

TEST(Choose_Reminder_Moment, TheBoxesAreReadOnceFromOneClockReading) {
  // Just before midnight at the end of a year, the date and the time come from the same moment.
  EXPECT_EQ(Choose_Reminder_Moment({}, "12/31/2001", "11:59:59 PM"), Accepted("December 31, 2001", "23:59"));
}

// ---- The day's check ----------------------------------------------------------------------------

TEST(Choose_Reminder_Moment, February30Of2001IsRefusedNamingTheYear) {
  const ChosenMoment refused = Choose({"February", "30", "20", "01", "10", "00"});
  EXPECT_EQ(refused.refusal,
            Exclamation_Message("Invalid Date", "February of 2001 only has 28 days in it."));
  EXPECT_EQ(refused.Date, "");
  EXPECT_EQ(refused.Time, "");
}

TEST(Choose_Reminder_Moment, April31IsRefusedWithoutTheYear) {
  EXPECT_EQ(Choose({"April", "31", "", "", "", ""}).refusal,
            Exclamation_Message("Invalid Date", "April only has 30 days in it."));
}

TEST(Choose_Reminder_Moment, TheYearIsTestedInTheGregorianStyle) {
  EXPECT_EQ(Choose({"February", "29", "20", "00", "", ""}).Date, "February 29, 2000");
  EXPECT_EQ(Choose({"February", "29", "19", "00", "", ""}).refusal.text,
            "February of 1900 only has 28 days in it.");
  EXPECT_EQ(Choose({"February", "29", "21", "00", "", ""}).refusal.text,
            "February of 2100 only has 28 days in it.");
}

TEST(Choose_Reminder_Moment, DayNoughtIsNoDay) {
  EXPECT_EQ(Choose({"March", "00", "", "", "", ""}).refusal.text, "March only has 31 days in it.");
}

TEST(Choose_Reminder_Moment, AFebruaryFilledInFromTheClockIsCheckedInItsYear) {
  EXPECT_EQ(Choose_Reminder_Moment({"", "29", "", "", "", ""}, "2/1/2004", kNow).Date, "February 29, 2004");
  EXPECT_EQ(Choose_Reminder_Moment({"", "29", "", "", "", ""}, "2/1/2005", kNow).refusal.text,
            "February of 2005 only has 28 days in it.");
}

TEST(Choose_Reminder_Moment, ATypedYearThatIsNoNumberIsNotCaught) {
  EXPECT_EQ(Failure_Of([] { Choose({"March", "05", "20", "x1", "", ""}); }), kTypeMismatch);
}

// ---- A moment tied to the task ------------------------------------------------------------------

TEST(Time_Amount_Caption, BeforeAndAfterTakeADistance) {
  EXPECT_TRUE(Takes_Time_Amount("Before"));
  EXPECT_TRUE(Takes_Time_Amount("After"));
  EXPECT_FALSE(Takes_Time_Amount("At"));
  EXPECT_FALSE(Takes_Time_Amount(""));
  EXPECT_EQ(Time_Amount_Caption("Before"), "Amount of Time Before:");
  EXPECT_EQ(Time_Amount_Caption("After"), "Amount of Time After:");
  EXPECT_EQ(Time_Amount_Caption("At"), "");
}

TEST(Task_Tied_Date_Text, RelationTheAnchor) {
  EXPECT_EQ(Task_Tied_Date_Text("At", "Start Time of Task"), "At The Start Time of Task");
  EXPECT_EQ(Task_Tied_Date_Text("Before", "Finish Time Of Task"), "Before The Finish Time Of Task");
}

TEST(Task_Tied_Date_Text, NothingChosenLeavesItsPlaceEmpty) {
  EXPECT_EQ(Task_Tied_Date_Text("After", ""), "After The ");
  EXPECT_EQ(Task_Tied_Date_Text("", "Start Time of Task"), " The Start Time of Task");
}

TEST(Task_Tied_Time_Text, AtHasNoDistance) {
  EXPECT_EQ(Task_Tied_Time_Text("At", std::nullopt), "N/A");
  EXPECT_EQ(Task_Tied_Time_Text("At", AmountTexts{"5", "5", "5", "100"}), "N/A");
}

TEST(Task_Tied_Time_Text, DaysAreTheHundredsAndTheDaysSummed) {
  EXPECT_EQ(Task_Tied_Time_Text("Before", AmountTexts{"30", "3", "2", "0"}), "By 2 Days, 3 Hrs, 30 Min");
  EXPECT_EQ(Task_Tied_Time_Text("After", AmountTexts{"59", "23", "99", "1800"}), "By 1899 Days, 23 Hrs, 59 Min");
}

TEST(Task_Tied_Time_Text, EmptyBoxesCountNought) {
  EXPECT_EQ(Task_Tied_Time_Text("Before", AmountTexts{"", "", "1", ""}), "By 1 Days, 0 Hrs, 0 Min");
}

TEST(Task_Tied_Time_Text, BeforeByNothingIsAtInAllButName) {
  EXPECT_EQ(Task_Tied_Time_Text("Before", AmountTexts{"0", "0", "0", "0"}), "By 0 Days, 0 Hrs, 0 Min");
  EXPECT_EQ(Task_Tied_Time_Text("Before", std::nullopt), "By 0 Days, 0 Hrs, 0 Min");
}

TEST(Task_Tied_Time_Text, NoRelationGivesNoText) {
  EXPECT_EQ(Task_Tied_Time_Text("", std::nullopt), std::nullopt);
  EXPECT_EQ(Task_Tied_Time_Text("", AmountTexts{"1", "1", "1", "100"}), std::nullopt);
}

TEST(Task_Tied_Time_Text, ATypedAmountThatIsNoNumberIsNotCaught) {
  EXPECT_EQ(Failure_Of([] { Task_Tied_Time_Text("After", AmountTexts{"ten", "", "", ""}); }), kTypeMismatch);
}

// ---- The period of a series ---------------------------------------------------------------------

TEST(Count_Text, TheNumberOfTheBoxAsText) {
  EXPECT_EQ(Count_Text("30"), "30");
  EXPECT_EQ(Count_Text("05"), "5");
  EXPECT_EQ(Count_Text(""), "0");
}

TEST(Interval_Days_Text, FiftyAnd1800Are1850) { EXPECT_EQ(Interval_Days_Text("50", "1800"), "1850"); }

TEST(Interval_Days_Text, AnEmptyBoxCountsNought) {
  EXPECT_EQ(Interval_Days_Text("", "100"), "100");
  EXPECT_EQ(Interval_Days_Text("7", ""), "7");
  EXPECT_EQ(Interval_Days_Text("", ""), "0");
}

TEST(Lacks_Interval, ASeriesWithEveryCountAtNoughtLacksIt) {
  EXPECT_TRUE(Lacks_Interval(kSeriesFromFirstMoment, "0", "0", "0"));
  EXPECT_TRUE(Lacks_Interval(kSeriesToLastMoment, "0", "00", ""));
  EXPECT_FALSE(Lacks_Interval(kSeriesFromFirstMoment, "0", "0", "1"));
  EXPECT_FALSE(Lacks_Interval(kSeriesToLastMoment, "30", "0", "0"));
  EXPECT_FALSE(Lacks_Interval(kSeriesToLastMoment, "0", "2", "0"));
}

TEST(Lacks_Interval, ASingleReminderNeedsNone) { EXPECT_FALSE(Lacks_Interval(kOnlyOneReminder, "0", "0", "0")); }

// ---- Messages -----------------------------------------------------------------------------------

TEST(Set_Reminder_Message, TheSeriesWithoutAPeriod) {
  EXPECT_EQ(Set_Reminder_Message(kNoIntervalChosen),
            Exclamation_Message("No Reminder Interval Selected",
                                "You have choosen to be reminded intermittently about the current task. Please "
                                "specify how often you would like the reminders to occur."));
}

TEST(Set_Reminder_Message, SetHasNoIcon) {
  EXPECT_EQ(Set_Reminder_Message(kReminderSet),
            (Message{"Reminder Set", "Reminder has been set.", vbOKOnly, vbNoIcon}));
}

TEST(Set_Reminder_Message, AnotherCodeIsEmpty) { EXPECT_TRUE(Set_Reminder_Message(0).empty()); }

}  // namespace
}  // namespace orrivane::organizer
