// The view of the task chart: the periods, the caption the view lives in, the steps to the period
// before and after, and the checks of the period-and-date choice.
#include "organizer/time_period_selection.h"

#include <gtest/gtest.h>

#include <string>

namespace orrivane::organizer {
namespace {

constexpr int kEarlyMorning = 0, kMorning = 1, kAfternoon = 2, kEvening = 3;

// ---- The periods ------------------------------------------------------------------------------

TEST(Time_Periods, TheTableOfPeriods) {
  const TimePeriod& early = kTimePeriods[kEarlyMorning];
  EXPECT_EQ(early.name, "Early Morning");
  EXPECT_EQ(early.first_hour, 0);
  EXPECT_EQ(early.last_hour, 5);
  EXPECT_EQ(early.sample_time, "1:00:00 AM");
  EXPECT_EQ(kTimePeriods[kMorning].name, "Morning");
  EXPECT_EQ(kTimePeriods[kMorning].sample_time, "7:00:00 AM");
  EXPECT_EQ(kTimePeriods[kAfternoon].name, "Afternoon");
  EXPECT_EQ(kTimePeriods[kAfternoon].sample_time, "1:00:00 PM");
  EXPECT_EQ(kTimePeriods[kEvening].name, "Evening");
  EXPECT_EQ(kTimePeriods[kEvening].first_hour, 18);
  EXPECT_EQ(kTimePeriods[kEvening].last_hour, 23);
  EXPECT_EQ(kTimePeriods[kEvening].sample_time, "7:00:00 PM");
}

TEST(Time_Periods, HeadsEveryHalfHourOnTheTwelveHourClock) {
  EXPECT_EQ((*kTimePeriods[kEarlyMorning].heads)[0], "12:00");
  EXPECT_EQ((*kTimePeriods[kEarlyMorning].heads)[1], "12:30");
  EXPECT_EQ((*kTimePeriods[kEarlyMorning].heads)[2], "1:00");
  EXPECT_EQ((*kTimePeriods[kEarlyMorning].heads)[11], "5:30");
  EXPECT_EQ((*kTimePeriods[kMorning].heads)[0], "6:00");
  EXPECT_EQ((*kTimePeriods[kMorning].heads)[11], "11:30");
  EXPECT_EQ(kTimePeriods[kAfternoon].heads, kTimePeriods[kEarlyMorning].heads);
  EXPECT_EQ(kTimePeriods[kEvening].heads, kTimePeriods[kMorning].heads);
}

TEST(Time_Periods, NamesAreComparedExactly) {
  EXPECT_EQ(Period_Named("Evening"), kEvening);
  EXPECT_EQ(Period_Named("evening"), std::nullopt);
  EXPECT_EQ(Period_Named(""), std::nullopt);
}

TEST(Time_Periods, EachHourBelongsToOnePeriod) {
  for (int hour = 0; hour < 24; ++hour) EXPECT_EQ(Period_Of_Hour(hour), hour / 6) << hour;
}

// ---- The caption ------------------------------------------------------------------------------

TEST(View_Caption, PeriodMonthDayWithoutZeroAndYear) {
  EXPECT_EQ(View_Caption({kMorning, 3, 5, 2001}), "Morning, March 5, 2001");
  EXPECT_EQ(View_Caption({kEarlyMorning, 12, 31, 10000}), "Early Morning, December 31, 10000");
}

TEST(View_Caption, ReadBackAsTheSampleTimeAndASystemDate) {
  EXPECT_EQ(Moment_Of_Caption("Morning, March 5, 2001"), (DateAndTime{"3/5/2001", "7:00:00 AM"}));
  EXPECT_EQ(Moment_Of_Caption("Early Morning, December 31, 1599"), (DateAndTime{"12/31/1599", "1:00:00 AM"}));
}

TEST(View_Caption, EmptyMeansNothingShownYet) { EXPECT_EQ(Moment_Of_Caption(""), std::nullopt); }

TEST(View_Caption, EveryViewReadsBackToItself) {
  for (int period = 0; period < kPeriodCount; ++period) {
    const ChartView view{period, 2, 29, 2000};
    const std::optional<DateAndTime> moment = Moment_Of_Caption(View_Caption(view));
    ASSERT_TRUE(moment.has_value());
    EXPECT_EQ(View_Of(*moment), view) << View_Caption(view);
  }
}

// ---- The view of a date and a time ------------------------------------------------------------

TEST(View_Of, TheHourAndDayHalfTellThePeriod) {
  EXPECT_EQ(View_Of({"3/5/2001", "2:05:09 PM"}), (ChartView{kAfternoon, 3, 5, 2001}));
  EXPECT_EQ(View_Of({"3/5/2001", "12:00:00 AM"}).period, kEarlyMorning);
  EXPECT_EQ(View_Of({"3/5/2001", "5:59:59 AM"}).period, kEarlyMorning);
  EXPECT_EQ(View_Of({"3/5/2001", "6:00:00 AM"}).period, kMorning);
  EXPECT_EQ(View_Of({"3/5/2001", "12:00:00 PM"}).period, kAfternoon);
  EXPECT_EQ(View_Of({"3/5/2001", "11:59:59 PM"}).period, kEvening);
}

TEST(View_Of, ATwoDigitMonthAndDayAreTakenAsNumbers) {
  EXPECT_EQ(View_Of({"03/05/2001", "7:00:00 PM"}), (ChartView{kEvening, 3, 5, 2001}));
}

// ---- Earlier and Later ------------------------------------------------------------------------

// One step from a caption with its first head, as the view it lands on.
std::optional<ChartView> Step(const std::string& caption, const std::string& head, PeriodStep step) {
  const std::optional<DateAndTime> moment = Stepped_Moment(caption, head, step);
  if (!moment) return std::nullopt;
  return View_Of(*moment);
}

TEST(Period_Steps, TheFirstHeadSwaps) {
  EXPECT_EQ(Swapped_Head("12:00"), "6:00");
  EXPECT_EQ(Swapped_Head("6:00"), "12:00");
}

TEST(Period_Steps, LaterWithinADayTakesTheSwappedHeadAndTheNewDayHalf) {
  EXPECT_EQ(Stepped_Moment("Morning, March 5, 2001", "6:00", PeriodStep::Later),
            (DateAndTime{"3/5/2001", "12:00 PM"}));
  EXPECT_EQ(Step("Early Morning, March 5, 2001", "12:00", PeriodStep::Later), (ChartView{kMorning, 3, 5, 2001}));
  EXPECT_EQ(Step("Afternoon, March 5, 2001", "12:00", PeriodStep::Later), (ChartView{kEvening, 3, 5, 2001}));
}

TEST(Period_Steps, EarlierWithinADay) {
  EXPECT_EQ(Stepped_Moment("Evening, March 5, 2001", "6:00", PeriodStep::Earlier),
            (DateAndTime{"3/5/2001", "12:00 PM"}));
  EXPECT_EQ(Step("Morning, March 5, 2001", "6:00", PeriodStep::Earlier), (ChartView{kEarlyMorning, 3, 5, 2001}));
}

TEST(Period_Steps, LaterFromTheEveningOfNewYearsEveGivesTheEarlyMorningOfTheNewYear) {
  EXPECT_EQ(Stepped_Moment("Evening, December 31, 2001", "6:00", PeriodStep::Later),
            (DateAndTime{"1/1/2002", "12:00 AM"}));
  EXPECT_EQ(Step("Evening, December 31, 2001", "6:00", PeriodStep::Later), (ChartView{kEarlyMorning, 1, 1, 2002}));
}

TEST(Period_Steps, EarlierFromMarchFirstOfALeapYearLandsOnFebruary28) {
  EXPECT_EQ(Stepped_Moment("Early Morning, March 1, 2000", "12:00", PeriodStep::Earlier),
            (DateAndTime{"2/28/2000", "6:00 PM"}));
  EXPECT_EQ(Step("Early Morning, March 1, 2000", "12:00", PeriodStep::Earlier), (ChartView{kEvening, 2, 28, 2000}));
}

TEST(Period_Steps, LaterFromFebruary28OfALeapYearReachesFebruary29) {
  EXPECT_EQ(Step("Evening, February 28, 2000", "6:00", PeriodStep::Later), (ChartView{kEarlyMorning, 2, 29, 2000}));
  EXPECT_EQ(Step("Evening, February 29, 2000", "6:00", PeriodStep::Later), (ChartView{kEarlyMorning, 3, 1, 2000}));
  EXPECT_EQ(Step("Evening, February 28, 2001", "6:00", PeriodStep::Later), (ChartView{kEarlyMorning, 3, 1, 2001}));
  EXPECT_EQ(Step("Evening, February 28, 1900", "6:00", PeriodStep::Later), (ChartView{kEarlyMorning, 3, 1, 1900}));
}

TEST(Period_Steps, EarlierOverTheTurnOfMonthAndYear) {
  EXPECT_EQ(Step("Early Morning, January 1, 2000", "12:00", PeriodStep::Earlier),
            (ChartView{kEvening, 12, 31, 1999}));
  EXPECT_EQ(Step("Early Morning, May 1, 2001", "12:00", PeriodStep::Earlier), (ChartView{kEvening, 4, 30, 2001}));
  EXPECT_EQ(Step("Early Morning, March 2, 2000", "12:00", PeriodStep::Earlier), (ChartView{kEvening, 3, 1, 2000}));
}

TEST(Period_Steps, TheViewReaches1599AndThenEarlierIsRefused) {
  EXPECT_EQ(Step("Early Morning, January 1, 1600", "12:00", PeriodStep::Earlier),
            (ChartView{kEvening, 12, 31, 1599}));
  EXPECT_EQ(Stepped_Moment("Evening, December 31, 1599", "6:00", PeriodStep::Earlier), std::nullopt);
  // Later is still open from there.
  EXPECT_EQ(Step("Evening, December 31, 1599", "6:00", PeriodStep::Later), (ChartView{kEarlyMorning, 1, 1, 1600}));
}

TEST(Period_Steps, TheViewReaches10000AndThenLaterIsRefused) {
  EXPECT_EQ(Step("Evening, December 31, 9999", "6:00", PeriodStep::Later), (ChartView{kEarlyMorning, 1, 1, 10000}));
  EXPECT_EQ(Stepped_Moment("Early Morning, January 1, 10000", "12:00", PeriodStep::Later), std::nullopt);
  EXPECT_EQ(Step("Early Morning, January 1, 10000", "12:00", PeriodStep::Earlier),
            (ChartView{kEvening, 12, 31, 9999}));
}

TEST(Period_Steps, AnUnknownPeriodGivesNothingToStepFrom) {
  EXPECT_EQ(Stepped_Moment("Noon, March 5, 2001", "12:00", PeriodStep::Later), std::nullopt);
}

// ---- Choosing a period and a date --------------------------------------------------------------

constexpr std::string_view kToday = "3/5/2001";

TimePeriodSelection Check(const std::string& period, const std::string& month, const std::string& date,
                          const std::string& century = "", const std::string& year = "") {
  return Check_Time_Period_Selection({period, month, date, century, year}, kToday);
}

TEST(Time_Period_Selection, AnAcceptedChoiceGivesTheSampleTimeAndTheDate) {
  const TimePeriodSelection choice = Check("Evening", "March", "05", "19", "99");
  EXPECT_EQ(choice.code, 0);
  EXPECT_EQ(choice.selected_time, "7:00:00 PM");
  EXPECT_EQ(choice.selected_date, "3/5/1999");
  EXPECT_TRUE(Time_Period_Selection_Message(choice).empty());
}

TEST(Time_Period_Selection, EmptyCenturyAndYearAreThePresentYear) {
  EXPECT_EQ(Check("Morning", "December", "31").selected_date, "12/31/2001");
}

TEST(Time_Period_Selection, EmptyCenturyWithAChosenYearTakesThePresentCentury) {
  EXPECT_EQ(Check("Morning", "February", "29", "", "04").selected_date, "2/29/2004");
}

TEST(Time_Period_Selection, AChosenCenturyWithAnEmptyYearKeepsYearZero) {
  EXPECT_EQ(Check("Morning", "February", "29", "20", "").selected_date, "2/29/2000");
  // 1900 is no leap year: the month is too short.
  const TimePeriodSelection refused = Check("Morning", "February", "29", "19", "");
  EXPECT_EQ(refused.code, 5);
  EXPECT_EQ(refused.month_length, 28);
}

TEST(Time_Period_Selection, EachMissingEntryHasItsCode) {
  EXPECT_EQ(Check("", "March", "05").code, 1);
  EXPECT_EQ(Check("Morning", "", "05").code, 2);
  EXPECT_EQ(Check("Morning", "March", "").code, 3);
}

TEST(Time_Period_Selection, MoreThanOneMissingIsCode4) {
  EXPECT_EQ(Check("", "", "05").code, 4);
  EXPECT_EQ(Check("Morning", "", "").code, 4);
  EXPECT_EQ(Check("", "", "").code, 4);
}

TEST(Time_Period_Selection, ADateBeyondTheMonthIsCode5InTheGregorianStyle) {
  EXPECT_EQ(Check("Morning", "February", "29").code, 5);  // 2001
  EXPECT_EQ(Check("Morning", "April", "31").code, 5);
  EXPECT_EQ(Check("Morning", "April", "30").code, 0);
  EXPECT_EQ(Check("Morning", "February", "29", "16", "00").code, 0);  // 1600
}

TEST(Time_Period_Selection, MissingEntriesOutrankAnImpossibleDate) {
  EXPECT_EQ(Check("", "February", "30").code, 1);
}

TEST(Time_Period_Selection, TheFiveMessagesWithTheExclamationIcon) {
  const std::pair<int, Message> expected[] = {
      {1, {"Time Period Not Selected", "Please select a time of day.", vbOKOnly, vbExclamation}},
      {2, {"No Month Selected", "Please select a month.", vbOKOnly, vbExclamation}},
      {3, {"No Date Selected", "Please select a date.", vbOKOnly, vbExclamation}},
      {4,
       {"Required Fields Unanswered", "Please make sure all required fields contain valid selections.", vbOKOnly,
        vbExclamation}},
  };
  for (const auto& [code, message] : expected) {
    TimePeriodSelection selection;
    selection.code = code;
    EXPECT_EQ(Time_Period_Selection_Message(selection), message) << code;
  }
}

TEST(Time_Period_Selection, TheMessageOfAShortMonthSaysThisYearForFebruaryOnly) {
  EXPECT_EQ(Time_Period_Selection_Message(Check("Morning", "February", "30")),
            (Message{"Invalid Date Selection", "February only has 28 days in it this year.", vbOKOnly, vbExclamation}));
  EXPECT_EQ(Time_Period_Selection_Message(Check("Morning", "February", "30", "20", "00")).text,
            "February only has 29 days in it this year.");
  EXPECT_EQ(Time_Period_Selection_Message(Check("Morning", "June", "31")).text, "June only has 30 days in it.");
}

TEST(Time_Period_Selection, TheBoxesHoldTwoDigitTexts) {
  const std::vector<std::string> dates = Two_Digit_Texts(kDateBoxRange);
  ASSERT_EQ(dates.size(), 31u);
  EXPECT_EQ(dates.front(), "01");
  EXPECT_EQ(dates.back(), "31");
  EXPECT_EQ(Two_Digit_Texts(kCenturyBoxRange).front(), "16");
  EXPECT_EQ(Two_Digit_Texts(kYearBoxRange).front(), "00");
  EXPECT_EQ(Two_Digit_Texts(kYearBoxRange).back(), "99");
  const std::vector<std::string> months = Three_Letter_Month_Texts();
  ASSERT_EQ(months.size(), 12u);
  EXPECT_EQ(months.front(), "Jan");
  EXPECT_EQ(months[8], "Sep");
  EXPECT_EQ(months.back(), "Dec");
  const auto names = Period_Names();
  EXPECT_EQ(names[0], "Early Morning");
  EXPECT_EQ(names[3], "Evening");
}

}  // namespace
}  // namespace orrivane::organizer
