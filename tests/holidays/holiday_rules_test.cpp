// The holiday engine: first years and eras, the rules against a civil calendar of the test's
// own, the list line, the validation codes and their messages, ranges and the limit.
#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "holidays/holiday_rules.h"

namespace orrivane::holidays {
namespace {

// ---- A civil calendar of the test's own -----------------------------------------------------

// Days since 1970-01-01 of a proleptic Gregorian date (the published days-from-civil algorithm).
std::int64_t Days_From_Civil(std::int64_t y, int m, int d) {
  y -= m <= 2 ? 1 : 0;
  const std::int64_t era = (y >= 0 ? y : y - 399) / 400;
  const std::int64_t yoe = y - era * 400;
  const std::int64_t doy = (153 * (m > 2 ? m - 3 : m + 9) + 2) / 5 + d - 1;
  const std::int64_t doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + doe - 719468;
}

struct Civil {
  std::int64_t year;
  int month;
  int day;
};

Civil Civil_From_Days(std::int64_t z) {
  z += 719468;
  const std::int64_t era = (z >= 0 ? z : z - 146096) / 146097;
  const std::int64_t doe = z - era * 146097;
  const std::int64_t yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const std::int64_t doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const std::int64_t mp = (5 * doy + 2) / 153;
  const int day = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  const int month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  return {yoe + era * 400 + (month <= 2 ? 1 : 0), month, day};
}

// 1 Sunday to 7 Saturday; 1970-01-01 was a Thursday.
int Weekday_Of(std::int64_t y, int m, int d) {
  const std::int64_t z = Days_From_Civil(y, m, d);
  return static_cast<int>(((z + 4) % 7 + 7) % 7) + 1;
}

int Days_In_Month(std::int64_t y, int m) {
  return static_cast<int>(m == 12 ? Days_From_Civil(y + 1, 1, 1) - Days_From_Civil(y, 12, 1)
                                  : Days_From_Civil(y, m + 1, 1) - Days_From_Civil(y, m, 1));
}

int Nth_Weekday(std::int64_t y, int m, int weekday, int nth) {
  return 1 + (weekday - Weekday_Of(y, m, 1) + 7) % 7 + 7 * (nth - 1);
}

int Last_Weekday(std::int64_t y, int m, int weekday, int weeks_before_last = 0) {
  const int last = Days_In_Month(y, m);
  return last - (Weekday_Of(y, m, last) - weekday + 7) % 7 - 7 * weeks_before_last;
}

enum { kSun = 1, kMon, kTue, kWed, kThu, kFri, kSat };

Holiday_Date On(std::int64_t y, int m, int d) { return {m, d, Weekday_Of(y, m, d)}; }

std::optional<Holiday_Date> Easter_Plus(std::int64_t y, int days) {
  const Month_And_Date easter = Easter_Month_And_Date(static_cast<std::int32_t>(y));
  if (easter.date > Days_In_Month(y, easter.month)) return std::nullopt;  // not a real date
  const Civil c = Civil_From_Days(Days_From_Civil(y, easter.month, easter.date) + days);
  return On(c.year, c.month, c.day);
}

// Each holiday and its eras, written as the calendar of the holidays tells them.
std::optional<Holiday_Date> Reference_Date(std::string_view name, std::int64_t y) {
  if (y > 100100) return std::nullopt;
  if (name == "New Years Day" && y >= 1583) return On(y, 1, 1);
  if (name == "Martin Luther King Day" && y >= 1983) return On(y, 1, Nth_Weekday(y, 1, kMon, 3));
  if (name == "Valentine's Day" && y >= 1583) return On(y, 2, 14);
  if (name == "Presidents' Day" && y >= 1971) return On(y, 2, Nth_Weekday(y, 2, kMon, 3));
  if (name == "Mardi Gras" && y >= 1583) return Easter_Plus(y, -47);
  if (name == "Ash Wednesday" && y >= 1583) return Easter_Plus(y, -46);
  if (name == "St. Patricks' Day" && y >= 1583) return On(y, 3, 17);
  if (name == "Palm Sunday" && y >= 1583) return Easter_Plus(y, -7);
  if (name == "Good Friday" && y >= 1583) return Easter_Plus(y, -2);
  if (name == "Easter" && y >= 1583) return Easter_Plus(y, 0);
  if (name == "Mother's Day" && y >= 1907) return On(y, 5, Nth_Weekday(y, 5, kSun, 2));
  if (name == "Ascension Day" && y >= 1583) return Easter_Plus(y, 39);
  if (name == "The Day of Pentecost" && y >= 1583) return Easter_Plus(y, 49);
  if (name == "Memorial Day" && y >= 1868) return On(y, 5, y <= 1970 ? 30 : Last_Weekday(y, 5, kMon));
  if (name == "Father's Day" && y >= 1966) return On(y, 6, Nth_Weekday(y, 6, kSun, 3));
  if (name == "Fourth of July" && y >= 1776) return On(y, 7, 4);
  if (name == "Labor Day" && y >= 1882) return On(y, 9, y <= 1893 ? 5 : Nth_Weekday(y, 9, kMon, 1));
  if (name == "Columbus Day" && y >= 1792) return On(y, 10, y <= 1970 ? 12 : Nth_Weekday(y, 10, kMon, 2));
  if (name == "Halloween" && y >= 1582) return On(y, 10, 31);
  if (name == "Election Day, U.S." && y >= 1845) return On(y, 11, Nth_Weekday(y, 11, kMon, 1) + 1);
  if (name == "Veterans Day" && y >= 1926) {
    return (y >= 1968 && y <= 1977) ? On(y, 10, Nth_Weekday(y, 10, kMon, 4)) : On(y, 11, 11);
  }
  if (name == "Thanksgiving" && y >= 1863) {
    if (y <= 1938) return On(y, 11, Last_Weekday(y, 11, kThu));
    if (y <= 1941) return On(y, 11, Last_Weekday(y, 11, kThu, 1));
    return On(y, 11, Nth_Weekday(y, 11, kThu, 4));
  }
  if (name == "Christmas Eve" && y >= 1582) return On(y, 12, 24);
  if (name == "Christmas Day" && y >= 1582) return On(y, 12, 25);
  if (name == "New Years Eve" && y >= 1582) return On(y, 12, 31);
  return std::nullopt;
}

bool Easter_Is_A_Real_Date(int year) {
  const Month_And_Date easter = Easter_Month_And_Date(year);
  return easter.month == 3 || easter.date <= 30;
}

bool Counts_From_Easter(std::string_view name) {
  for (const std::string_view feast :
       {"Mardi Gras", "Ash Wednesday", "Palm Sunday", "Good Friday", "Easter", "Ascension Day", "The Day of Pentecost"}) {
    if (name == feast) return true;
  }
  return false;
}

// ---- Driving the engine as its two customers do ---------------------------------------------

struct Window_Run {
  Holiday_Answer answer;
  std::vector<std::string> lines;
  Value to_year;
};

Window_Run By_Holiday(std::string_view name, const Value& from, const Value& to = {}, bool range = false) {
  Holiday_List_Collector list;
  Window_Run run;
  run.to_year = to;
  run.answer = Display_Holiday_II(name, from, run.to_year, kFindAHolidayCaller, {true, range}, list);
  run.lines = std::move(list.lines);
  return run;
}

std::string Line_Of(std::string_view name, int year) {
  const Window_Run run = By_Holiday(name, year);
  return run.lines.size() == 1 ? run.lines[0] : "(" + std::to_string(run.lines.size()) + " lines)";
}

std::vector<std::string> All_Of_Year(const Value& year) {
  Holiday_List_Collector list;
  Display_All_Holidays_For_Selected_Year(year, kFindAHolidayCaller, list);
  return list.lines;
}

bool Holds_Holiday(const std::vector<std::string>& lines, std::string_view name) {
  for (const std::string& line : lines) {
    if (line.rfind(std::string(name) + ", ", 0) == 0) return true;
  }
  return false;
}

const std::vector<std::string_view>& Fixed_Order() {
  static const std::vector<std::string_view> order{
      "New Years Day", "Martin Luther King Day", "Valentine's Day", "Presidents' Day", "Mardi Gras",
      "Ash Wednesday", "St. Patricks' Day", "Palm Sunday", "Good Friday", "Easter",
      "Mother's Day", "Ascension Day", "The Day of Pentecost", "Memorial Day", "Father's Day",
      "Fourth of July", "Labor Day", "Columbus Day", "Halloween", "Election Day, U.S.",
      "Veterans Day", "Thanksgiving", "Christmas Eve", "Christmas Day", "New Years Eve"};
  return order;
}

// ---- The edge cases of the holiday rules ----------------------------------------------------

TEST(HolidayRules, HalloweenOf1582YieldsALine) {
  EXPECT_EQ(Line_Of("Halloween", 1582), "Halloween, Sunday, October 31, 1582");
}

TEST(HolidayRules, NewYearsDayOf1582IsRefusedWithFirstYear1583InTheMessage) {
  const Window_Run run = By_Holiday("New Years Day", 1582);
  EXPECT_EQ(run.answer.error_code, kInvalidYear);
  EXPECT_TRUE(run.answer.message_wanted);
  EXPECT_TRUE(run.lines.empty());
  const Message message = Holiday_Error_Message(run.answer.error_code, "New Years Day");
  EXPECT_EQ(message.title, "Invalid Year");
  EXPECT_EQ(message.text,
            "For New Years Day, the year boxes may\rcontain only numeric values from 1583 to 100100.");
  EXPECT_EQ(message.buttons, vbOKOnly);
  EXPECT_EQ(message.icon, vbExclamation);
}

TEST(HolidayRules, OnlyTheLastThreeMonthsOf1582HaveHolidays) {
  EXPECT_EQ(All_Of_Year(1582), (std::vector<std::string>{"Halloween, Sunday, October 31, 1582",
                                                         "Christmas Eve, Friday, December 24, 1582",
                                                         "Christmas Day, Saturday, December 25, 1582",
                                                         "New Years Eve, Friday, December 31, 1582"}));
}

TEST(HolidayRules, EasterOf1583GivesItsLine) {
  EXPECT_EQ(Line_Of("Easter", 1583), "Easter, Sunday, April 10, 1583");
}

TEST(HolidayRules, ThanksgivingFollowsItsThreeEras) {
  EXPECT_EQ(Line_Of("Thanksgiving", 1938), "Thanksgiving, Thursday, November 24, 1938");
  EXPECT_EQ(Line_Of("Thanksgiving", 1939), "Thanksgiving, Thursday, November 23, 1939");
  EXPECT_EQ(Line_Of("Thanksgiving", 1941), "Thanksgiving, Thursday, November 20, 1941");
  EXPECT_EQ(Line_Of("Thanksgiving", 1942), "Thanksgiving, Thursday, November 26, 1942");
}

TEST(HolidayRules, ElectionDayAfterATuesdayFirstOfNovemberIsNovember8) {
  EXPECT_EQ(Weekday_Of(2005, 11, 1), kTue);
  EXPECT_EQ(Line_Of("Election Day, U.S.", 2005), "Election Day, U.S., Tuesday, November 8, 2005");
}

TEST(HolidayRules, VeteransDayOf1971IsTheFourthMondayOfOctober) {
  EXPECT_EQ(Line_Of("Veterans Day", 1971), "Veterans Day, Monday, October 25, 1971");
}

TEST(HolidayRules, ARangeRunningBackwardGivesItsLinesBackward) {
  const Window_Run run = By_Holiday("Easter", 2005, 2003, true);
  EXPECT_EQ(run.answer.error_code, kHolidayNoError);
  EXPECT_EQ(run.answer.lines, 3);
  EXPECT_EQ(run.lines, (std::vector<std::string>{"Easter, Sunday, March 27, 2005", "Easter, Sunday, April 11, 2004",
                                                 "Easter, Sunday, April 20, 2003"}));
}

TEST(HolidayRules, AHolidayBeforeItsFirstYearIsRefusedByNameAndLeftOutOfTheYearList) {
  struct Young {
    std::string_view name;
    int year_before;
    std::string_view message;
  };
  for (const Young& young : {
           Young{"Martin Luther King Day", 1982,
                 "For Martin Luther King Day, the year boxes may\rcontain only numeric values from 1983 to 100100."},
           Young{"Father's Day", 1965,
                 "For Father's Day, the year boxes may\rcontain only numeric values from 1966 to 100100."},
           Young{"Presidents' Day", 1970,
                 "For Presidents' Day, the year boxes may\rcontain only numeric values from 1971 to 100100."},
       }) {
    const Window_Run run = By_Holiday(young.name, young.year_before);
    EXPECT_EQ(run.answer.error_code, kInvalidYear) << young.name;
    EXPECT_TRUE(run.lines.empty()) << young.name;
    EXPECT_EQ(Holiday_Error_Message(run.answer.error_code, young.name).text, young.message);

    const std::vector<std::string> year_before = All_Of_Year(young.year_before);
    const std::vector<std::string> first_year = All_Of_Year(young.year_before + 1);
    EXPECT_FALSE(Holds_Holiday(year_before, young.name)) << young.name;
    EXPECT_TRUE(Holds_Holiday(first_year, young.name)) << young.name;
  }
  EXPECT_EQ(All_Of_Year(1982).size(), 24u);
  EXPECT_EQ(All_Of_Year(1983).size(), 25u);
}

TEST(HolidayRules, AYearAbove100100YieldsNothingInAnyMode) {
  const Window_Run run = By_Holiday("Halloween", 100101);
  EXPECT_EQ(run.answer.error_code, kInvalidYear);
  EXPECT_TRUE(run.lines.empty());
  EXPECT_EQ(Holiday_Error_Message(run.answer.error_code, "Halloween").text,
            "For Halloween, the year boxes may\rcontain only numeric values from 1582 to 100100.");

  EXPECT_TRUE(All_Of_Year(100101).empty());
  EXPECT_EQ(Check_Years_For_All_Holidays(100101, {}, false).error_code, kInvalidYear);
  EXPECT_EQ(All_Holidays_Error_Message(kInvalidYear).text,
            "The year boxes may contain only numeric values\rfrom 1582 to 100100.");

  Holiday_Table_Collector table;
  EXPECT_EQ(Display_All_Holidays_For_Selected_Year(100101, kCalendarHolidayTableCaller, table), 0);
  EXPECT_TRUE(table.entries.empty());
}

TEST(HolidayRules, AnEmptyNameWithAnEmptyYearAsksForAHolidayAndAValidYear) {
  const Window_Run run = By_Holiday("", "");
  EXPECT_EQ(run.answer.error_code, kNoSelectionsMade);
  EXPECT_TRUE(run.answer.message_wanted);
  const Message message = Holiday_Error_Message(run.answer.error_code, "");
  EXPECT_EQ(message.title, "No Selections Made");
  EXPECT_EQ(message.text, "Please specify a holiday and valid year.");
}

// ---- The limit ------------------------------------------------------------------------------

TEST(HolidayLimit, Year100100IsTheLastWithHolidays) {
  EXPECT_EQ(Line_Of("Easter", 100100), "Easter, Sunday, April 25, 100100");
  EXPECT_EQ(All_Of_Year(100100).size(), 25u);
  EXPECT_TRUE(Holiday_Date_In_Year(9, 100100).has_value());
  EXPECT_FALSE(Holiday_Date_In_Year(9, 100101).has_value());
}

TEST(HolidayLimit, ARangeEndingAbove100100IsRefusedWhole) {
  const Window_Run run = By_Holiday("Easter", 100099, 100101, true);
  EXPECT_EQ(run.answer.error_code, kInvalidYear);
  EXPECT_TRUE(run.lines.empty());
}

TEST(HolidayLimit, ARangeEndingAt100100RunsToIt) {
  static constexpr const char* kNames[] = {"", "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
  const Window_Run run = By_Holiday("Christmas Day", 100098, 100100, true);
  ASSERT_EQ(run.lines.size(), 3u);
  EXPECT_EQ(run.lines.back(), std::string("Christmas Day, ") + kNames[Weekday_Of(100100, 12, 25)] + ", December 25, 100100");
}

TEST(HolidayLimit, FarYearsAreRefusedWithoutHarm) {
  for (const Value& year : {Value(1e300), Value(-1e300), Value("1e999"), Value(-2147483649.0), Value(9e18)}) {
    const Window_Run run = By_Holiday("Easter", year);
    EXPECT_EQ(run.answer.error_code, kInvalidYear) << year.text();
    EXPECT_TRUE(run.lines.empty());
  }
  EXPECT_FALSE(Holiday_Date_In_Year(9, INT64_MAX).has_value());
  EXPECT_FALSE(Holiday_Date_In_Year(9, INT64_MIN).has_value());
}

// ---- Validation -----------------------------------------------------------------------------

TEST(HolidayValidation, AnEmptyNameAloneIsNoHolidaySelected) {
  const Window_Run run = By_Holiday("", 2003);
  EXPECT_EQ(run.answer.error_code, kNoHolidaySelected);
  const Message message = Holiday_Error_Message(run.answer.error_code, "");
  EXPECT_EQ(message.title, "No Holiday Selected");
  EXPECT_EQ(message.text, "A holiday must be selected.");
}

TEST(HolidayValidation, AnEmptyFromYearIsNoYearEntered) {
  for (const Value& empty : {Value(), Value("")}) {
    const Window_Run run = By_Holiday("Easter", empty, 2003, true);
    EXPECT_EQ(run.answer.error_code, kNoYearEntered);
    const Message message = Holiday_Error_Message(run.answer.error_code, "Easter");
    EXPECT_EQ(message.title, "No Year Entered");
    EXPECT_EQ(message.text, "A year must be entered in the 'From' box.");
  }
}

TEST(HolidayValidation, AYearBoxThatHoldsNoNumberIsAnInvalidYearAndDeliversNothing) {
  for (const Value& bad : {Value("abc"), Value("20o3"), Value("2003 AD"), Value(" ")}) {
    const Window_Run run = By_Holiday("Easter", bad);
    EXPECT_EQ(run.answer.error_code, kInvalidYear) << bad.text();
    EXPECT_TRUE(run.answer.message_wanted);
    EXPECT_TRUE(run.lines.empty());
  }
  const Window_Run to_box = By_Holiday("Easter", 2003, "later", true);
  EXPECT_EQ(to_box.answer.error_code, kInvalidYear);
  EXPECT_TRUE(to_box.lines.empty());
}

TEST(HolidayValidation, AYearThatIsNoWholeNumberIsAnInvalidYear) {
  EXPECT_EQ(By_Holiday("Easter", "2003.5").answer.error_code, kInvalidYear);
  EXPECT_EQ(By_Holiday("Easter", 2003.5).answer.error_code, kInvalidYear);
  EXPECT_EQ(By_Holiday("Easter", "2003.0").answer.error_code, kHolidayNoError);
}

TEST(HolidayValidation, AnEmptyNameAndAYearThatIsNoNumberAreTwoErrors) {
  EXPECT_EQ(By_Holiday("", "abc").answer.error_code, kNoSelectionsMade);
  EXPECT_EQ(By_Holiday("", 1000).answer.error_code, kNoSelectionsMade);
}

TEST(HolidayValidation, YearTextsCountAsNumbers) {
  EXPECT_EQ(By_Holiday("Easter", "02003").lines, (std::vector<std::string>{"Easter, Sunday, April 20, 2003"}));
  EXPECT_EQ(By_Holiday("Easter", " 2003").lines, (std::vector<std::string>{"Easter, Sunday, April 20, 2003"}));
}

TEST(HolidayValidation, ElectionDayIsCalledElectionDayInTheMessage) {
  EXPECT_EQ(By_Holiday("Election Day, U.S.", 1844).answer.error_code, kInvalidYear);
  EXPECT_EQ(Holiday_Error_Message(kInvalidYear, "Election Day, U.S.").text,
            "For Election Day, the year boxes may\rcontain only numeric values from 1845 to 100100.");
}

TEST(HolidayValidation, ANameTheTableDoesNotKnowKeeps1582AndDeliversNothing) {
  EXPECT_EQ(First_Year_Of_Holiday("Arbor Day"), 1582);
  EXPECT_EQ(By_Holiday("Arbor Day", 1581).answer.error_code, kInvalidYear);
  EXPECT_EQ(Holiday_Error_Message(kInvalidYear, "Arbor Day").text,
            "For Arbor Day, the year boxes may\rcontain only numeric values from 1582 to 100100.");
  const Window_Run run = By_Holiday("Arbor Day", 2003);
  EXPECT_EQ(run.answer.error_code, kHolidayNoError);
  EXPECT_EQ(run.answer.lines, 0);
  EXPECT_TRUE(run.lines.empty());
}

TEST(HolidayValidation, MessagesAreWantedOnlyByTheWindowInByHolidayMode) {
  Holiday_List_Collector list;
  Value to = 1500;
  EXPECT_FALSE(Display_Holiday_II("Easter", 1500, to, kFindAHolidayCaller, {false, false}, list).message_wanted);
  EXPECT_FALSE(Display_Holiday_II("Easter", 1500, to, kCalendarHolidayTableCaller, {true, false}, list).message_wanted);
  EXPECT_FALSE(Display_Holiday_II("Easter", 1500, to, "frmFindAHoliday", {true, false}, list).message_wanted);
  EXPECT_TRUE(list.lines.empty());
}

TEST(HolidayValidation, CodesWithoutAMessageAnswerEmptyTexts) {
  EXPECT_EQ(Holiday_Error_Message(kHolidayNoError, "Easter").title, "");
  EXPECT_EQ(Holiday_Error_Message(4, "Easter").text, "");
  EXPECT_EQ(All_Holidays_Error_Message(kNoHolidaySelected).title, "");
}

// ---- The last year box ----------------------------------------------------------------------

TEST(HolidayToYear, WithoutARangeTheWindowsLastYearBecomesTheFirst) {
  const Window_Run run = By_Holiday("Easter", 2003, "nonsense", false);
  EXPECT_EQ(run.to_year, Value(2003));
  EXPECT_EQ(run.lines.size(), 1u);
}

TEST(HolidayToYear, AnEmptyLastYearBecomesTheFirstEvenWithARange) {
  const Window_Run run = By_Holiday("Easter", "2003", "", true);
  EXPECT_EQ(run.to_year, Value("2003"));
  EXPECT_EQ(run.lines.size(), 1u);
}

TEST(HolidayToYear, WithARangeTheLastYearStands) {
  const Window_Run run = By_Holiday("Easter", 2003, 2005, true);
  EXPECT_EQ(run.to_year, Value(2005));
  EXPECT_EQ(run.lines.size(), 3u);
}

TEST(HolidayToYear, OtherCallersKeepTheirLastYear) {
  Holiday_Table_Collector table;
  Value to;
  const Holiday_Answer answer =
      Display_Holiday_II("Easter", 2003, to, kCalendarHolidayTableCaller, {true, false}, table);
  EXPECT_TRUE(to.is_empty());
  EXPECT_EQ(answer.error_code, kInvalidYear);  // an empty last year is below every first year
  EXPECT_TRUE(table.entries.empty());
}

// ---- Deliveries -----------------------------------------------------------------------------

TEST(HolidayDelivery, TheYearListFollowsTheFixedOrder) {
  const std::vector<std::string> lines = All_Of_Year(2003);
  ASSERT_EQ(lines.size(), 25u);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_EQ(lines[i].rfind(std::string(Fixed_Order()[i]) + ", ", 0), 0u) << lines[i];
    EXPECT_EQ(Holiday_Name(static_cast<int>(i)), Fixed_Order()[i]);
  }
  EXPECT_EQ(lines[9], "Easter, Sunday, April 20, 2003");
  EXPECT_EQ(lines[19], "Election Day, U.S., Tuesday, November 4, 2003");
}

TEST(HolidayDelivery, NamesAreTheProgramsOwnTexts) {
  EXPECT_EQ(Holiday_Number("St. Patricks' Day"), 6);
  EXPECT_EQ(Holiday_Number("New Years Day"), 0);
  EXPECT_EQ(Holiday_Number("New Years Eve"), 24);
  EXPECT_FALSE(Holiday_Number("St. Patrick's Day").has_value());
  EXPECT_FALSE(Holiday_Number("easter").has_value());
  EXPECT_EQ(Holiday_Name(25), "");
  EXPECT_EQ(Holiday_Name(-1), "");
}

TEST(HolidayDelivery, TheLineFillsNoNumberWithZeros) {
  EXPECT_EQ(Line_Of("New Years Day", 2003), "New Years Day, Wednesday, January 1, 2003");
  EXPECT_EQ(Line_Of("Fourth of July", 1776), "Fourth of July, Thursday, July 4, 1776");
  EXPECT_EQ(Holiday_List_Line(6, 2003, {3, 17, 2}), "St. Patricks' Day, Monday, March 17, 2003");
}

TEST(HolidayDelivery, ALineOfAnyDateGivenIsMadeWithoutHarm) {
  EXPECT_EQ(Holiday_List_Line(9, 15675, {4, 49, 1}), "Easter, Sunday, April 49, 15675");
  EXPECT_EQ(Holiday_List_Line(99, 2003, {INT_MIN, INT_MAX, INT_MIN}), ", , April 2147483647, 2003");
}

TEST(HolidayDelivery, TheCalendarGetsNameMonthNameAndDate) {
  Holiday_Table_Collector table;
  Holiday_List_Collector list;
  EXPECT_EQ(Display_All_Holidays_For_Selected_Year(2003, kCalendarHolidayTableCaller, table), 25);
  ASSERT_EQ(table.entries.size(), 25u);
  EXPECT_EQ(table.entries[9].name, "Easter");
  EXPECT_EQ(table.entries[9].month_name, "April");
  EXPECT_EQ(table.entries[9].date, 20);
  EXPECT_EQ(table.entries[19].name, "Election Day, U.S.");
  EXPECT_EQ(table.entries[19].month_name, "November");
  EXPECT_EQ(table.entries[19].date, 4);
  Value to = 2003;
  Display_Holiday_II("Easter", 2003, to, kCalendarHolidayTableCaller, {}, list);
  EXPECT_TRUE(list.lines.empty());  // the calendar's caller text selects the table alone
}

TEST(HolidayDelivery, TheWindowGetsLinesAndNoTableEntries) {
  struct Both : Holiday_Receiver {
    int lines = 0;
    int entries = 0;
    void Add_List_Line(std::string) override { ++lines; }
    void Add_Table_Entry(const Holiday_Table_Entry&) override { ++entries; }
  } both;
  Display_All_Holidays_For_Selected_Year(2003, kFindAHolidayCaller, both);
  EXPECT_EQ(both.lines, 25);
  EXPECT_EQ(both.entries, 0);
}

TEST(HolidayDelivery, AnUnknownCallerSelectsNobody) {
  struct Both : Holiday_Receiver {
    int calls = 0;
    void Add_List_Line(std::string) override { ++calls; }
    void Add_Table_Entry(const Holiday_Table_Entry&) override { ++calls; }
  } both;
  Value to = 2003;
  const Holiday_Answer answer = Display_Holiday_II("Easter", 2003, to, "Display_Holiday(Calling_sub)", {true, false}, both);
  EXPECT_EQ(answer.error_code, kHolidayNoError);
  EXPECT_FALSE(answer.message_wanted);
  EXPECT_EQ(Display_All_Holidays_For_Selected_Year(2003, "Form1", both), 25);
  EXPECT_EQ(both.calls, 0);
}

TEST(HolidayDelivery, TheCalendarTableTakesTwoYearsInTheKeeper) {
  Holiday_Data_Keeper keeper;
  Holiday_Keeper_Receiver receiver(keeper);
  Display_All_Holidays_For_Selected_Year(2003, kCalendarHolidayTableCaller, receiver);
  Display_All_Holidays_For_Selected_Year(2002, kCalendarHolidayTableCaller, receiver);
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Name", 0, "View"), Value("New Years Day"));
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Month", 23, "View"), Value("December"));
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Date", 23, "View"), Value(25));
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Name", 49, "View"), Value("New Years Eve"));
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Month", 50, "View"), Value(""));
}

// ---- "Display All By Year" ------------------------------------------------------------------

TEST(AllHolidaysByYear, TheYearCheckHasTheOneLowerBound1582) {
  EXPECT_EQ(Check_Years_For_All_Holidays(1582, {}, false).error_code, kHolidayNoError);
  EXPECT_EQ(Check_Years_For_All_Holidays(1581, {}, false).error_code, kInvalidYear);
  EXPECT_EQ(Check_Years_For_All_Holidays(2003, 1581, true).error_code, kInvalidYear);
  EXPECT_EQ(Check_Years_For_All_Holidays(2003, 100101, true).error_code, kInvalidYear);
  EXPECT_EQ(Check_Years_For_All_Holidays(2003, 100100, true).to, 100100);
}

TEST(AllHolidaysByYear, AnEmptyFirstYearIsNoYearEntered) {
  EXPECT_EQ(Check_Years_For_All_Holidays("", 2003, true).error_code, kNoYearEntered);
  const Message message = All_Holidays_Error_Message(kNoYearEntered);
  EXPECT_EQ(message.title, "No Year Entered");
  EXPECT_EQ(message.text, "A year must be entered in the 'From' box.");
  EXPECT_EQ(message.icon, vbExclamation);
  EXPECT_TRUE(All_Holidays_Error_Message(kNoHolidaySelected).empty());
  EXPECT_TRUE(All_Holidays_Error_Message(kNoSelectionsMade).empty());
}

TEST(AllHolidaysByYear, AYearBoxThatHoldsNoNumberIsAnInvalidYear) {
  EXPECT_EQ(Check_Years_For_All_Holidays("abc", {}, false).error_code, kInvalidYear);
  EXPECT_EQ(Check_Years_For_All_Holidays(2003, "abc", true).error_code, kInvalidYear);
  EXPECT_EQ(Check_Years_For_All_Holidays("2003.5", {}, false).error_code, kInvalidYear);
  EXPECT_EQ(All_Holidays_Error_Message(kInvalidYear).title, "Invalid Year");
}

TEST(AllHolidaysByYear, WithoutARangeOrWithAnEmptyLastBoxTheLastYearIsTheFirst) {
  const All_Holidays_Years single = Check_Years_For_All_Holidays(2003, "abc", false);
  EXPECT_EQ(single.error_code, kHolidayNoError);
  EXPECT_EQ(single.from, 2003);
  EXPECT_EQ(single.to, 2003);
  const All_Holidays_Years empty_last = Check_Years_For_All_Holidays("2003", "", true);
  EXPECT_EQ(empty_last.to, 2003);
  const All_Holidays_Years range = Check_Years_For_All_Holidays("2005", "2003", true);
  EXPECT_EQ(range.from, 2005);
  EXPECT_EQ(range.to, 2003);
}

TEST(AllHolidaysByYear, ARangeRunsBackwardAndCountsWhatItAdded) {
  Holiday_List_Collector list;
  // 1583 has the fourteen holidays that date from it, 1582 the four of its last months.
  EXPECT_EQ(Display_All_Holidays_For_Years(1583, 1582, list), 14 + 4);
  ASSERT_EQ(list.lines.size(), 18u);
  EXPECT_EQ(list.lines.front(), "New Years Day, Saturday, January 1, 1583");
  EXPECT_EQ(list.lines[13], "New Years Eve, Saturday, December 31, 1583");
  EXPECT_EQ(list.lines[14], "Halloween, Sunday, October 31, 1582");
}

TEST(AllHolidaysByYear, YearsOutOfReachAddNothingAndDoNotHang) {
  Holiday_List_Collector list;
  EXPECT_EQ(Display_All_Holidays_For_Years(INT_MIN, 1582, list), 4);
  EXPECT_EQ(Display_All_Holidays_For_Years(100100, INT_MAX, list), 25);
  EXPECT_EQ(Display_All_Holidays_For_Years(INT_MAX, 100101, list), 0);
  EXPECT_EQ(Display_All_Holidays_For_Years(INT_MIN, INT_MIN, list), 0);
  EXPECT_EQ(Display_All_Holidays_For_Years(1581, INT_MIN, list), 0);
  EXPECT_EQ(list.lines.size(), 29u);
}

// ---- Eras: the year before and the first year of each ---------------------------------------

struct Era_Case {
  std::string_view name;
  int year;
  std::string_view line;  // empty: the holiday does not exist that year
};

class HolidayEras : public ::testing::TestWithParam<Era_Case> {};

TEST_P(HolidayEras, ChangeRuleInTheirFirstYear) {
  const Era_Case& c = GetParam();
  const Window_Run run = By_Holiday(c.name, c.year);
  if (c.line.empty()) {
    EXPECT_EQ(run.answer.error_code, kInvalidYear);
    EXPECT_TRUE(run.lines.empty());
  } else {
    ASSERT_EQ(run.lines.size(), 1u);
    EXPECT_EQ(run.lines[0], c.line);
  }
}

INSTANTIATE_TEST_SUITE_P(
    EveryEraBoundary, HolidayEras,
    ::testing::Values(
        Era_Case{"New Years Day", 1582, ""}, Era_Case{"New Years Day", 1583, "New Years Day, Saturday, January 1, 1583"},
        Era_Case{"Martin Luther King Day", 1982, ""},
        Era_Case{"Martin Luther King Day", 1983, "Martin Luther King Day, Monday, January 17, 1983"},
        Era_Case{"Valentine's Day", 1582, ""},
        Era_Case{"Valentine's Day", 1583, "Valentine's Day, Monday, February 14, 1583"},
        Era_Case{"Presidents' Day", 1970, ""},
        Era_Case{"Presidents' Day", 1971, "Presidents' Day, Monday, February 15, 1971"},
        Era_Case{"Mardi Gras", 1582, ""}, Era_Case{"Mardi Gras", 1583, "Mardi Gras, Tuesday, February 22, 1583"},
        Era_Case{"Ash Wednesday", 1582, ""},
        Era_Case{"Ash Wednesday", 1583, "Ash Wednesday, Wednesday, February 23, 1583"},
        Era_Case{"St. Patricks' Day", 1582, ""},
        Era_Case{"St. Patricks' Day", 1583, "St. Patricks' Day, Thursday, March 17, 1583"},
        Era_Case{"Palm Sunday", 1582, ""}, Era_Case{"Palm Sunday", 1583, "Palm Sunday, Sunday, April 3, 1583"},
        Era_Case{"Good Friday", 1582, ""}, Era_Case{"Good Friday", 1583, "Good Friday, Friday, April 8, 1583"},
        Era_Case{"Easter", 1582, ""}, Era_Case{"Easter", 1583, "Easter, Sunday, April 10, 1583"},
        Era_Case{"Mother's Day", 1906, ""}, Era_Case{"Mother's Day", 1907, "Mother's Day, Sunday, May 12, 1907"},
        Era_Case{"Ascension Day", 1582, ""},
        Era_Case{"Ascension Day", 1583, "Ascension Day, Thursday, May 19, 1583"},
        Era_Case{"The Day of Pentecost", 1582, ""},
        Era_Case{"The Day of Pentecost", 1583, "The Day of Pentecost, Sunday, May 29, 1583"},
        Era_Case{"Memorial Day", 1867, ""}, Era_Case{"Memorial Day", 1868, "Memorial Day, Saturday, May 30, 1868"},
        Era_Case{"Memorial Day", 1970, "Memorial Day, Saturday, May 30, 1970"},
        Era_Case{"Memorial Day", 1971, "Memorial Day, Monday, May 31, 1971"},
        Era_Case{"Father's Day", 1965, ""}, Era_Case{"Father's Day", 1966, "Father's Day, Sunday, June 19, 1966"},
        Era_Case{"Fourth of July", 1775, ""},
        Era_Case{"Fourth of July", 1776, "Fourth of July, Thursday, July 4, 1776"},
        Era_Case{"Labor Day", 1881, ""}, Era_Case{"Labor Day", 1882, "Labor Day, Tuesday, September 5, 1882"},
        Era_Case{"Labor Day", 1893, "Labor Day, Tuesday, September 5, 1893"},
        Era_Case{"Labor Day", 1894, "Labor Day, Monday, September 3, 1894"},
        Era_Case{"Columbus Day", 1791, ""},
        Era_Case{"Columbus Day", 1792, "Columbus Day, Friday, October 12, 1792"},
        Era_Case{"Columbus Day", 1970, "Columbus Day, Monday, October 12, 1970"},
        Era_Case{"Columbus Day", 1971, "Columbus Day, Monday, October 11, 1971"},
        Era_Case{"Halloween", 1581, ""}, Era_Case{"Halloween", 1582, "Halloween, Sunday, October 31, 1582"},
        Era_Case{"Election Day, U.S.", 1844, ""},
        Era_Case{"Election Day, U.S.", 1845, "Election Day, U.S., Tuesday, November 4, 1845"},
        Era_Case{"Veterans Day", 1925, ""}, Era_Case{"Veterans Day", 1926, "Veterans Day, Thursday, November 11, 1926"},
        Era_Case{"Veterans Day", 1967, "Veterans Day, Saturday, November 11, 1967"},
        Era_Case{"Veterans Day", 1968, "Veterans Day, Monday, October 28, 1968"},
        Era_Case{"Veterans Day", 1977, "Veterans Day, Monday, October 24, 1977"},
        Era_Case{"Veterans Day", 1978, "Veterans Day, Saturday, November 11, 1978"},
        Era_Case{"Thanksgiving", 1862, ""}, Era_Case{"Thanksgiving", 1863, "Thanksgiving, Thursday, November 26, 1863"},
        Era_Case{"Thanksgiving", 1938, "Thanksgiving, Thursday, November 24, 1938"},
        Era_Case{"Thanksgiving", 1939, "Thanksgiving, Thursday, November 23, 1939"},
        Era_Case{"Thanksgiving", 1941, "Thanksgiving, Thursday, November 20, 1941"},
        Era_Case{"Thanksgiving", 1942, "Thanksgiving, Thursday, November 26, 1942"},
        Era_Case{"Christmas Eve", 1581, ""},
        Era_Case{"Christmas Eve", 1582, "Christmas Eve, Friday, December 24, 1582"},
        Era_Case{"Christmas Day", 1581, ""},
        Era_Case{"Christmas Day", 1582, "Christmas Day, Saturday, December 25, 1582"},
        Era_Case{"New Years Eve", 1581, ""},
        Era_Case{"New Years Eve", 1582, "New Years Eve, Friday, December 31, 1582"}));

// ---- Every holiday of every year against the test's own calendar ----------------------------

// Every year of the first three 400-year cycles and of the last cycle before the limit, and a
// prime stride between them that meets every place of the 400-year cycle many times over.
std::vector<int> Sample_Years() {
  std::vector<int> years;
  for (int year = 1581; year <= 2800; ++year) years.push_back(year);
  for (int year = 2801; year < kHolidayYearLimit - 400; year += 37) years.push_back(year);
  for (int year = kHolidayYearLimit - 400; year <= kHolidayYearLimit + 1; ++year) years.push_back(year);
  return years;
}

TEST(HolidayReference, EveryHolidayMatchesTheCivilCalendarAcrossTheWholeReach) {
  int compared = 0;
  int mismatches = 0;
  std::string first_mismatch;
  for (const int year : Sample_Years()) {
    for (int holiday = 0; holiday < kHolidayCount; ++holiday) {
      const std::string_view name = Holiday_Name(holiday);
      if (Counts_From_Easter(name) && !Easter_Is_A_Real_Date(year)) continue;
      ++compared;
      if (Holiday_Date_In_Year(holiday, year) == Reference_Date(name, year)) continue;
      if (mismatches++ == 0) first_mismatch = std::string(name) + " " + std::to_string(year);
    }
  }
  EXPECT_EQ(mismatches, 0) << "first: " << first_mismatch;
  EXPECT_GT(compared, 90000);
}

TEST(HolidayReference, NthWeekdayHolidaysFallInTheirWeek) {
  for (int year = 1983; year <= kHolidayYearLimit; year += 7) {
    const Holiday_Date king = *Holiday_Date_In_Year(1, year);
    EXPECT_EQ(king.weekday, kMon);
    EXPECT_GE(king.date, 15);
    EXPECT_LE(king.date, 21);
    const Holiday_Date thanksgiving = *Holiday_Date_In_Year(21, year);
    EXPECT_EQ(thanksgiving.weekday, kThu);
    EXPECT_GE(thanksgiving.date, 22);
    EXPECT_LE(thanksgiving.date, 28);
  }
}

TEST(ElectionDay, IsTheTuesdayAfterTheFirstMondayOfNovember) {
  for (int year = 1845; year <= 3000; ++year) {
    const Holiday_Date election = *Holiday_Date_In_Year(19, year);
    EXPECT_EQ(election.month, 11);
    EXPECT_EQ(election.weekday, kTue);
    EXPECT_EQ(Weekday_Of(year, 11, election.date), kTue) << year;
    EXPECT_EQ(Weekday_Of(year, 11, election.date - 1), kMon) << year;
    EXPECT_GE(election.date, 2) << year;
    EXPECT_LE(election.date, 8) << year;
  }
}

TEST(ElectionDay, AMondayFirstOfNovemberGivesNovember2) {
  EXPECT_EQ(Weekday_Of(2010, 11, 1), kMon);
  EXPECT_EQ(Line_Of("Election Day, U.S.", 2010), "Election Day, U.S., Tuesday, November 2, 2010");
}

TEST(ElectionDay, IsShortenedOnlyInTheMessageNotInTheLine) {
  EXPECT_EQ(Line_Of("Election Day, U.S.", 2003), "Election Day, U.S., Tuesday, November 4, 2003");
}

// ---- Movable feasts where Easter runs past April 30 -----------------------------------------

TEST(MovableFeasts, AnEasterPastApril30IsShownAsTheRuleAnswersIt) {
  // 15675 has the latest Easter within the limit, April 49.
  EXPECT_EQ(Line_Of("Easter", 15675), "Easter, Sunday, April 49, 15675");
  EXPECT_EQ(Line_Of("Good Friday", 15675), "Good Friday, Friday, April 47, 15675");
  EXPECT_EQ(Line_Of("Palm Sunday", 15675), "Palm Sunday, Sunday, April 42, 15675");
}

TEST(MovableFeasts, CountingBackwardFromEasterAtOrPastTheCountStopsAtTheEndOfMarch) {
  // Easter April 49: 47 - 49 is not positive, so nothing is counted.
  EXPECT_EQ(Line_Of("Mardi Gras", 15675), "Mardi Gras, Tuesday, March 31, 15675");
  EXPECT_EQ(Line_Of("Ash Wednesday", 15675), "Ash Wednesday, Wednesday, March 31, 15675");
}

TEST(MovableFeasts, CountingForwardFromALateEasterMatchesTheCivilCalendar) {
  // April 49 is May 19; 39 and 49 days on are June 27 and July 7.
  EXPECT_EQ(Line_Of("Ascension Day", 15675), "Ascension Day, Thursday, June 27, 15675");
  EXPECT_EQ(Line_Of("The Day of Pentecost", 15675), "The Day of Pentecost, Sunday, July 7, 15675");
}

TEST(MovableFeasts, CountingBackwardFromALateEasterShortOfTheCountMatchesTheCivilCalendar) {
  for (int year = 11419; year <= kHolidayYearLimit; ++year) {
    if (Easter_Is_A_Real_Date(year)) continue;
    const Month_And_Date easter = Easter_Month_And_Date(year);
    const Civil real = Civil_From_Days(Days_From_Civil(year, 4, 30) + easter.date - 30);
    for (const auto& [holiday, days] : {std::pair{4, 47}, std::pair{5, 46}}) {
      const Holiday_Date feast = *Holiday_Date_In_Year(holiday, year);
      if (easter.date >= days) {
        ASSERT_EQ(feast.month, 3) << year;
        ASSERT_EQ(feast.date, 31) << year;
      } else {
        const Civil expected = Civil_From_Days(Days_From_Civil(year, real.month, real.day) - days);
        ASSERT_EQ(feast.month, expected.month) << year;
        ASSERT_EQ(feast.date, expected.day) << year;
      }
    }
  }
}

TEST(MovableFeasts, LateEastersOccurOnlyAfter11418) {
  int late = 0;
  for (int year = 1583; year <= kHolidayYearLimit; ++year) {
    if (!Easter_Is_A_Real_Date(year)) {
      ASSERT_GE(year, 11419);
      ++late;
    }
  }
  EXPECT_GT(late, 0);
}

}  // namespace
}  // namespace orrivane::holidays
