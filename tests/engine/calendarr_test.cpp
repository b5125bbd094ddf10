// Calendarr: the weekday, leap flag and validity of a date, its messages, the 42 cells of its
// month, and the field check of "Find The Weekday Of A Date".
#include <gtest/gtest.h>

#include "core/runtime_failure.h"
#include "engine/calendar_engine.h"

namespace orrivane::engine {
namespace {

constexpr auto kGregorian = CalendarStyle::Gregorian;
constexpr auto kJulian = CalendarStyle::Julian;

CalendarrDate Date(const std::string& month, std::int64_t date, std::int64_t year, CalendarStyle style) {
  return Calendarr_Date_From_Year(month, date, year, style);
}

const std::string kGregorianStartText =
    "For the Gregorian Calendar, please make sure the \rdate entered is on or after October 15, 1582.";

TEST(Calendarr, FirstOfJanuary2000IsASaturdayNewStyleAndAFridayOldStyle) {
  const CalendarrResult gregorian = Calendarr_Compute(Date("January", 1, 2000, kGregorian));
  EXPECT_EQ(gregorian.weekday, 7);
  EXPECT_TRUE(gregorian.leap_flag);
  EXPECT_TRUE(gregorian.valid);
  EXPECT_EQ(gregorian.error_code, 0);
  EXPECT_TRUE(gregorian.message.empty());
  const CalendarrResult julian = Calendarr_Compute(Date("January", 1, 2000, kJulian));
  EXPECT_EQ(julian.weekday, 6);
  EXPECT_TRUE(julian.leap_flag);
  EXPECT_TRUE(julian.valid);
}

TEST(Calendarr, TwentyNinthOfFebruary1900IsCodeTwoNewStyleAndATuesdayOldStyle) {
  const CalendarrResult gregorian = Calendarr_Compute(Date("February", 29, 1900, kGregorian));
  EXPECT_EQ(gregorian.weekday, 0);
  EXPECT_FALSE(gregorian.valid);
  EXPECT_FALSE(gregorian.leap_flag);
  EXPECT_EQ(gregorian.error_code, 2);
  EXPECT_EQ(gregorian.message.title, "Invalid Date");
  EXPECT_EQ(gregorian.message.text, "February of 1900 only has 28 days in it.");
  const CalendarrResult julian = Calendarr_Compute(Date("February", 29, 1900, kJulian));
  EXPECT_TRUE(julian.valid);
  EXPECT_TRUE(julian.leap_flag);
  EXPECT_EQ(julian.weekday, 3);
}

TEST(Calendarr, TwentyNinthOfFebruary2000IsValidInBothStyles) {
  EXPECT_EQ(Calendarr_Compute(Date("February", 29, 2000, kGregorian)).error_code, 0);
  EXPECT_EQ(Calendarr_Compute(Date("February", 29, 2000, kJulian)).error_code, 0);
  EXPECT_EQ(Calendarr_Compute(Date("February", 29, 2000, kGregorian)).weekday, 3);  // a Tuesday
}

TEST(Calendarr, TheGregorianCalendarStartsOnTheFifteenthOfOctober1582) {
  const CalendarrResult fourteenth = Calendarr_Compute(Date("October", 14, 1582, kGregorian));
  EXPECT_EQ(fourteenth.error_code, 1);
  EXPECT_EQ(fourteenth.weekday, 0);
  EXPECT_EQ(fourteenth.message.title, "Invalid Date");
  EXPECT_EQ(fourteenth.message.text, kGregorianStartText);
  const CalendarrResult fifteenth = Calendarr_Compute(Date("October", 15, 1582, kGregorian));
  EXPECT_TRUE(fifteenth.valid);
  EXPECT_EQ(fifteenth.weekday, 6);
  const CalendarrResult julian = Calendarr_Compute(Date("October", 14, 1582, kJulian));
  EXPECT_TRUE(julian.valid);
  EXPECT_EQ(julian.error_code, 0);
  EXPECT_EQ(julian.weekday, 1);  // 14 October 1582 O.S. was 24 October N.S., a Sunday
}

TEST(Calendarr, OtherMonthsOf1582FailExceptNovemberAndDecember) {
  EXPECT_EQ(Calendarr_Compute(Date("September", 30, 1582, kGregorian)).error_code, 1);
  EXPECT_EQ(Calendarr_Compute(Date("November", 1, 1582, kGregorian)).error_code, 0);
  EXPECT_EQ(Calendarr_Compute(Date("December", 1, 1582, kGregorian)).error_code, 0);
  EXPECT_EQ(Calendarr_Compute(Date("September", 30, 1582, kJulian)).error_code, 0);
}

TEST(Calendarr, ThirtyFirstOfSeptember1700IsCodeThree) {
  const CalendarrResult result = Calendarr_Compute(Date("September", 31, 1700, kGregorian));
  EXPECT_EQ(result.error_code, 3);
  EXPECT_FALSE(result.valid);
  EXPECT_EQ(result.message.title, "Invalid Date");
  EXPECT_EQ(result.message.text, "September does not have 31 days in it!");
}

TEST(Calendarr, CodeOneTakesPrecedenceOverADayTheMonthDoesNotHave) {
  const CalendarrResult result = Calendarr_Compute(Date("February", 30, 1500, kGregorian));
  EXPECT_EQ(result.error_code, 1);
  EXPECT_EQ(result.message.text, kGregorianStartText);
  EXPECT_EQ(Calendarr_Compute(Date("February", 29, 1500, kGregorian)).error_code, 1);
  // In the Julian style the take-back leaves the day check to speak.
  EXPECT_EQ(Calendarr_Compute(Date("February", 30, 1500, kJulian)).error_code, 3);
  EXPECT_EQ(Calendarr_Compute(Date("February", 29, 1501, kJulian)).error_code, 2);
}

TEST(Calendarr, FirstOfJanuaryOfTheYearZeroIsJulianOnly) {
  const CalendarrResult julian = Calendarr_Compute(Date("January", 1, 0, kJulian));
  EXPECT_TRUE(julian.valid);
  EXPECT_EQ(julian.weekday, 5);  // a Thursday, 366 days before the Saturday 1 January 1
  EXPECT_TRUE(julian.leap_flag);
  EXPECT_EQ(Calendarr_Compute(Date("January", 1, 0, kGregorian)).error_code, 1);
}

TEST(Calendarr, LastDayOfTheYearOneMillionComputesInBothStyles) {
  const CalendarrDate gregorian = Date("December", 31, 1000000, kGregorian);
  EXPECT_EQ(gregorian.century, 10000);
  const CalendarrResult g = Calendarr_Compute(gregorian);
  EXPECT_TRUE(g.valid);
  EXPECT_TRUE(g.leap_flag);
  EXPECT_EQ(g.weekday, 1);  // a Sunday
  const CalendarrResult j = Calendarr_Compute(Date("December", 31, 1000000, kJulian));
  EXPECT_TRUE(j.valid);
  EXPECT_TRUE(j.leap_flag);
  EXPECT_EQ(j.weekday, 2);  // a Monday
  // The century is not limited to two digits, nor the year to a million.
  EXPECT_TRUE(Calendarr_Compute({"March", 1, 123456789012LL, 34, kGregorian}).valid);
}

TEST(Calendarr, AMonthThatIsNotAFullEnglishNameHasNoDays) {
  const CalendarrResult result = Calendarr_Compute(Date("Jan", 1, 2000, kGregorian));
  EXPECT_EQ(result.error_code, 3);
  EXPECT_EQ(result.message.text, "Jan does not have 1 days in it!");
}

TEST(Calendarr, OutlandishInputsFailWithOverflowRatherThanWrapping) {
  EXPECT_THROW(Calendarr_Compute({"March", 1, 9'000'000'000'000'000'000LL, 0, kGregorian}), RuntimeFailure);
  EXPECT_THROW(Calendarr_Compute({"March", -9'000'000'000'000'000'000LL, 20, 0, kGregorian}), RuntimeFailure);
}

TEST(CalendarrMessage, EachCodeHasItsTitleAndText) {
  const CalendarrDate date = Date("April", 31, 2024, kGregorian);
  EXPECT_EQ(Calendarr_Message(1, date).text, kGregorianStartText);
  EXPECT_EQ(Calendarr_Message(2, date).text, "February of 2024 only has 28 days in it.");
  EXPECT_EQ(Calendarr_Message(3, date).text, "April does not have 31 days in it!");
  for (int code = 1; code <= 3; ++code) {
    EXPECT_EQ(Calendarr_Message(code, date).title, "Invalid Date");
    EXPECT_EQ(Calendarr_Message(code, date).buttons, vbOKOnly);
    EXPECT_EQ(Calendarr_Message(code, date).icon, vbExclamation);
  }
  EXPECT_TRUE(Calendarr_Message(0, date).empty());
  EXPECT_TRUE(Calendarr_Message(4, date).empty());
  EXPECT_STREQ(kCarriageReturn, "\r");
}

TEST(CalendarrSystemDate, MonthDayAndYearAreCutFromTheClockText) {
  const CalendarrDate short_date = Calendarr_Date_From_System_Date("3/5/2001");
  EXPECT_EQ(short_date.month, "March");
  EXPECT_EQ(short_date.date, 5);
  EXPECT_EQ(short_date.year(), 2001);
  EXPECT_EQ(short_date.century, 20);
  EXPECT_EQ(short_date.two_digit_year, 1);
  EXPECT_EQ(short_date.style, kGregorian);
  const CalendarrDate long_date = Calendarr_Date_From_System_Date("12/25/1999");
  EXPECT_EQ(long_date.month, "December");
  EXPECT_EQ(long_date.date, 25);
  EXPECT_EQ(long_date.year(), 1999);
  EXPECT_EQ(Calendarr_Date_From_System_Date("10/1/2000").month, "October");
  EXPECT_EQ(Calendarr_Date_From_System_Date("10/1/2000").date, 1);
  EXPECT_EQ(Calendarr_Date_From_System_Date("1/31/2024").date, 31);
}

// ---- The grid ------------------------------------------------------------------------------

std::string Captions(const MonthGrid& grid, int from, int to) {
  std::string out;
  for (int cell = from; cell <= to; ++cell) out += grid[static_cast<std::size_t>(cell)].caption + " ";
  return out;
}

TEST(CalendarrGrid, ColoursAreTheTwoSystemColoursAndRed) {
  EXPECT_EQ(colours::kGrayText, 0x80000011u);
  EXPECT_EQ(colours::kButtonText, 0x80000012u);
  EXPECT_EQ(colours::kRed, 255u);
}

TEST(CalendarrGrid, TwentyEightDayMonthStartingOnSundayFillsFourRowsAndTwoGreyRows) {
  // 1 February 2015 was a Sunday, and 2015 is a common year.
  const auto grid = Calendarr_Month_Grid(Date("February", 10, 2015, kGregorian));
  ASSERT_TRUE(grid.has_value());
  for (int cell = 0; cell <= 27; ++cell) {
    EXPECT_EQ((*grid)[cell].caption, std::to_string(cell + 1));
    EXPECT_EQ((*grid)[cell].colour, cell == 9 ? colours::kRed : colours::kButtonText);
  }
  for (int cell = 28; cell <= 41; ++cell) {
    EXPECT_EQ((*grid)[cell].caption, std::to_string(cell - 27));
    EXPECT_EQ((*grid)[cell].colour, colours::kGrayText);
  }
}

TEST(CalendarrGrid, ThirtyOneDayMonthStartingOnSaturdayLeavesFiveGreyCells) {
  // 1 January 2000 was a Saturday.
  const auto grid = Calendarr_Month_Grid(Date("January", 1, 2000, kGregorian));
  ASSERT_TRUE(grid.has_value());
  EXPECT_EQ(Captions(*grid, 0, 5), "26 27 28 29 30 31 ");
  for (int cell = 0; cell <= 5; ++cell) EXPECT_EQ((*grid)[cell].colour, colours::kGrayText);
  EXPECT_EQ((*grid)[6].caption, "1");
  EXPECT_EQ((*grid)[6].colour, colours::kRed);
  for (int cell = 7; cell <= 36; ++cell) {
    EXPECT_EQ((*grid)[cell].caption, std::to_string(cell - 5));
    EXPECT_EQ((*grid)[cell].colour, colours::kButtonText);
  }
  EXPECT_EQ(Captions(*grid, 37, 41), "1 2 3 4 5 ");
  for (int cell = 37; cell <= 41; ++cell) EXPECT_EQ((*grid)[cell].colour, colours::kGrayText);
}

TEST(CalendarrGrid, MarchAfterACommonFebruaryShowsTwentyEightAsTheLastDayBefore) {
  // 1 March 1900 (Gregorian, a common year) was a Thursday: Sunday to Wednesday are 25 to 28.
  const auto common = Calendarr_Month_Grid(Date("March", 1, 1900, kGregorian));
  ASSERT_TRUE(common.has_value());
  EXPECT_EQ(Captions(*common, 0, 4), "25 26 27 28 1 ");
  // The same March in the Julian style follows a February of 29 days.
  const auto julian = Calendarr_Month_Grid(Date("March", 1, 1900, kJulian));
  ASSERT_TRUE(julian.has_value());
  const int first = Calendarr_Compute(Date("March", 1, 1900, kJulian)).weekday - 1;
  EXPECT_EQ((*julian)[first - 1].caption, "29");
}

TEST(CalendarrGrid, FebruaryOfALeapYearHasTwentyNineDays) {
  const auto grid = Calendarr_Month_Grid(Date("February", 29, 2024, kGregorian));
  ASSERT_TRUE(grid.has_value());
  // 1 February 2024 was a Thursday: cell 4; the 29th in cell 32, red; 1 March in cell 33.
  EXPECT_EQ((*grid)[4].caption, "1");
  EXPECT_EQ((*grid)[32].caption, "29");
  EXPECT_EQ((*grid)[32].colour, colours::kRed);
  EXPECT_EQ((*grid)[33].caption, "1");
  EXPECT_EQ((*grid)[33].colour, colours::kGrayText);
}

TEST(CalendarrGrid, OctoberOf1582RunsThirtyOneDaysUnbroken) {
  const auto grid = Calendarr_Month_Grid(Date("October", 15, 1582, kGregorian));
  ASSERT_TRUE(grid.has_value());
  EXPECT_EQ((*grid)[5].caption, "1");  // 1 October 1582 in its proleptic place, a Friday
  for (int d = 1; d <= 31; ++d) EXPECT_EQ((*grid)[4 + d].caption, std::to_string(d));
  EXPECT_EQ((*grid)[19].colour, colours::kRed);
}

TEST(CalendarrGrid, AnInvalidDateDrawsNothing) {
  EXPECT_FALSE(Calendarr_Month_Grid(Date("October", 14, 1582, kGregorian)).has_value());
  EXPECT_FALSE(Calendarr_Month_Grid(Date("February", 29, 1900, kGregorian)).has_value());
  EXPECT_FALSE(Calendarr_Month_Grid(Date("April", 31, 2000, kJulian)).has_value());
}

TEST(DrawMonthCells, GreyBeforeOwnDaysThenGreyAfter) {
  const MonthGrid grid = Draw_Month_Cells(4, 30, 31, 0);
  EXPECT_EQ(Captions(grid, 0, 3), "29 30 31 1 ");
  EXPECT_EQ(grid[2].colour, colours::kGrayText);
  EXPECT_EQ(grid[3].colour, colours::kButtonText);
  EXPECT_EQ(grid[32].caption, "30");
  EXPECT_EQ(Captions(grid, 33, 41), "1 2 3 4 5 6 7 8 9 ");
  for (const CalendarCell& cell : grid) EXPECT_NE(cell.colour, colours::kRed);
}

TEST(DrawMonthCells, AFirstColumnOutsideTheWeekIsASubscriptFailure) {
  EXPECT_THROW(Draw_Month_Cells(0, 31, 30, 1), RuntimeFailure);
  EXPECT_THROW(Draw_Month_Cells(8, 31, 30, 1), RuntimeFailure);
  EXPECT_THROW(Draw_Month_Cells(7, 37, 30, 1), RuntimeFailure);
}

// ---- The field check -----------------------------------------------------------------------

FindADateFields Good_Fields() {
  return {.ComboCalendar = "Gregorian (New Style)", .ComboMonths = "March", .ComboDate = "05",
          .ComboCentury = "19", .ComboYear = "99"};
}

TEST(FieldCheck, AllFieldsFineAnswersZeroAndShowsNothing) {
  const FieldCheckResult result = Form1_Field_Validation_Check_Status(Good_Fields());
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error_count, 0);
  EXPECT_TRUE(result.message.empty());
  FindADateFields julian = Good_Fields();
  julian.ComboCalendar = "Julian (Old Style)";
  EXPECT_EQ(Form1_Field_Validation_Check_Status(julian).status, 0);
}

TEST(FieldCheck, AllFiveEmptyCountFiveAndShowOnlyTheGeneralMessage) {
  const FieldCheckResult result = Form1_Field_Validation_Check_Status({});
  EXPECT_EQ(result.error_count, 5);
  EXPECT_EQ(result.status, 6);
  EXPECT_EQ(result.message.title, "Invalid Field Entries");
  EXPECT_EQ(result.message.text, "Some fields were omitted or contain invalid selections.");
}

TEST(FieldCheck, EachSingleErrorShowsItsOwnMessage) {
  struct Case {
    void (*spoil)(FindADateFields&);
    int status;
    const char* title;
    const char* text;
  };
  const Case cases[] = {
      {[](FindADateFields& f) { f.ComboCalendar = ""; }, 1, "Invalid Calendar Selection",
       "A calendar style must be selected."},
      {[](FindADateFields& f) { f.ComboCalendar = "Gregorian"; }, 2, "Invalid Calendar Selection",
       "That is not a valid entry."},
      {[](FindADateFields& f) { f.ComboMonths = ""; }, 3, "No Month Selected", "A month must be selected."},
      {[](FindADateFields& f) { f.ComboYear = ""; }, 4, "No Year Selected", "A year must be selected."},
      {[](FindADateFields& f) { f.ComboDate = ""; }, 5, "No Date Selected", "A date must be selected."},
      {[](FindADateFields& f) { f.ComboCentury = "abc"; }, 6, "Invalid Century Entry",
       "A value from 0 to 1000 must be entered in the Century field."},
      {[](FindADateFields& f) { f.ComboCentury = "1001"; }, 6, "Invalid Century Entry",
       "A value from 0 to 1000 must be entered in the Century field."},
      {[](FindADateFields& f) { f.ComboCentury = "-1"; }, 6, "Invalid Century Entry",
       "A value from 0 to 1000 must be entered in the Century field."},
      {[](FindADateFields& f) { f.ComboCentury = ""; }, 6, "Invalid Century Entry",
       "A value from 0 to 1000 must be entered in the Century field."},
      {[](FindADateFields& f) { f.ComboCentury = "1e999"; }, 6, "Invalid Century Entry",
       "A value from 0 to 1000 must be entered in the Century field."},
  };
  for (const Case& c : cases) {
    FindADateFields fields = Good_Fields();
    c.spoil(fields);
    const FieldCheckResult result = Form1_Field_Validation_Check_Status(fields);
    EXPECT_EQ(result.status, c.status) << c.text;
    EXPECT_EQ(result.error_count, 1) << c.text;
    EXPECT_EQ(result.message.title, c.title);
    EXPECT_EQ(result.message.text, c.text);
  }
}

TEST(FieldCheck, CenturyOneThousandIsAcceptedAndZeroToo) {
  FindADateFields fields = Good_Fields();
  fields.ComboCentury = "1000";
  fields.ComboYear = "00";
  EXPECT_EQ(Form1_Field_Validation_Check_Status(fields).status, 0);
  fields.ComboCentury = "00";
  EXPECT_EQ(Form1_Field_Validation_Check_Status(fields).status, 0);
}

TEST(FieldCheck, WithTwoErrorsTheStatusIsTheLastOneSet) {
  FindADateFields fields = Good_Fields();
  fields.ComboMonths = "";
  fields.ComboDate = "";
  const FieldCheckResult result = Form1_Field_Validation_Check_Status(fields);
  EXPECT_EQ(result.status, 5);
  EXPECT_EQ(result.error_count, 2);
  EXPECT_EQ(result.message.title, "Invalid Field Entries");
}

TEST(FieldCheck, TheUnreachedStatusSevenStandsInTheTable) {
  EXPECT_EQ(Field_Validation_Message(7).text, "The Century field must contain only numbers.");
  EXPECT_TRUE(Field_Validation_Message(0).empty());
  for (int status : {1, 2, 3, 4, 5, 6, 7, kGeneralFieldStatus}) {
    EXPECT_EQ(Field_Validation_Message(status).buttons, vbOKOnly) << status;
    EXPECT_EQ(Field_Validation_Message(status).icon, vbExclamation) << status;
  }
  EXPECT_TRUE(Field_Validation_Message(8).empty());
}

}  // namespace
}  // namespace orrivane::engine
