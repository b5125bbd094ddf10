#include "elapsed/date_difference.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "core/runtime_failure.h"
#include "engine/calendar_engine.h"
#include "support/failure_of.h"

namespace orrivane::elapsed {
namespace {

using orrivane::testing::Failure_Of;

Moment At(long long year, long long month, long long date, long long hour = 0, long long minute = 0) {
  return {minute, hour, date, month, year};
}

const std::vector<std::string>& All_Answers() {
  static const std::vector<std::string> names{
      "Total Years In Years",        "Total Years In Months",      "Total Years In Days",
      "Total Years In Hours",        "Total Years In Minutes",     "Total Months In Months",
      "Remaining Months In Months",  "Remaining Months In Days",   "Remaining Months In Hours",
      "Remaining Months In Minutes", "Total Days In Days",         "Remaining Days In Days",
      "Remaining Days In Hours",     "Remaining Days In Minutes",  "Total Hours In Hours",
      "Remaining Hours In Hours",    "Remaining Hours In Minutes", "Total Minutes In Minutes",
      "Remaining Minutes In Minutes"};
  return names;
}

std::string Answer(const std::string& name, const std::string& style, const Moment& a, const Moment& b) {
  return Date_Difference(name, style, a, b).text();
}

constexpr Ticked_Units kAllTicked{true, true, true, true, true};

Time_Rows Rows(const std::string& style, const Moment& a, const Moment& b, Display_Option option,
               const Ticked_Units& ticked = kAllTicked) {
  const std::optional<Time_Rows> rows = Display_Time_Difference(style, a, b, option, ticked);
  EXPECT_TRUE(rows.has_value());
  return rows.value_or(Time_Rows{});
}

// ---- A reference: day numbers and totals --------------------------------------------------

long long Floor_Div(long long a, long long b) {
  long long q = a / b;
  if ((a % b != 0) && ((a < 0) != (b < 0))) --q;
  return q;
}

bool Reference_Leap(long long year, const std::string& style) {
  const bool fourth = Floor_Div(year, 4) * 4 == year;
  if (style == "Julian") return fourth;
  return fourth && (Floor_Div(year, 100) * 100 != year || Floor_Div(year, 400) * 400 == year);
}

long long Reference_Month_Length(long long month, long long year, const std::string& style) {
  static constexpr int kLengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && Reference_Leap(year, style) ? 29 : kLengths[month - 1];
}

// Days since a fixed origin, from a year that starts in March; linear in the date, so a date
// past the end of its month counts on into the next.
long long Day_Number(long long year, long long month, long long date, const std::string& style) {
  const long long y = month <= 2 ? year - 1 : year;
  const long long shifted_month = (month + 9) % 12;  // March 0 ... February 11
  const long long day_of_year = (153 * shifted_month + 2) / 5 + date - 1;
  long long leap_days = Floor_Div(y, 4);
  if (style != "Julian") leap_days += -Floor_Div(y, 100) + Floor_Div(y, 400);
  return 365 * y + leap_days + day_of_year;
}

struct Reference {
  long long years, months, total_months;
  long long years_in_days, months_in_days, days, total_days;
  long long hours, total_hours, minutes, total_minutes;
};

Reference Reference_Span(const std::string& style, Moment a, Moment b) {
  auto key = [](const Moment& m) { return std::tie(m.Four_Digit_Year, m.Month_Number, m.Date, m.Hour, m.Minute); };
  if (key(a) < key(b)) std::swap(a, b);
  const Moment& l = a;
  const Moment& e = b;
  Reference r{};
  r.total_minutes = (Day_Number(l.Four_Digit_Year, l.Month_Number, l.Date, style) -
                     Day_Number(e.Four_Digit_Year, e.Month_Number, e.Date, style)) *
                        1440 +
                    (l.Hour - e.Hour) * 60 + (l.Minute - e.Minute);
  r.total_hours = r.total_minutes / 60;
  r.minutes = r.total_minutes % 60;
  r.total_days = r.total_hours / 24;
  r.hours = r.total_hours % 24;
  const bool short_of_a_month = std::tie(l.Date, l.Hour, l.Minute) < std::tie(e.Date, e.Hour, e.Minute);
  r.total_months =
      (l.Four_Digit_Year - e.Four_Digit_Year) * 12 + (l.Month_Number - e.Month_Number) - (short_of_a_month ? 1 : 0);
  r.years = r.total_months / 12;
  r.months = r.total_months % 12;
  const long long anniversary_year = e.Four_Digit_Year + r.years;
  const long long month_index = e.Month_Number - 1 + r.months;
  const long long start = Day_Number(e.Four_Digit_Year, e.Month_Number, e.Date, style);
  const long long anniversary = Day_Number(anniversary_year, e.Month_Number, e.Date, style);
  const long long after_months = Day_Number(anniversary_year + month_index / 12, month_index % 12 + 1, e.Date, style);
  r.years_in_days = anniversary - start;
  r.months_in_days = after_months - anniversary;
  r.days = r.total_days - (after_months - start);
  return r;
}

std::string N(long long n) { return std::to_string(n); }

// Every one of the nineteen answers, as the reference has it.
std::vector<std::string> Reference_Answers(const Reference& r) {
  return {N(r.years),
          N(r.years * 12),
          N(r.years_in_days),
          N(r.years_in_days * 24),
          N(r.years_in_days * 1440),
          N(r.total_months),
          N(r.months),
          N(r.months_in_days),
          N(r.months_in_days * 24),
          N(r.months_in_days * 1440),
          N(r.total_days),
          N(r.days),
          N(r.days * 24),
          N(r.days * 1440),
          N(r.total_hours),
          N(r.hours),
          N(r.hours * 60),
          N(r.total_minutes),
          N(r.minutes)};
}

// A remaining row is the span in its unit less what the nearest ticked unit above it covers.
std::string Reference_Remaining_Row(const Reference& r, std::size_t unit, const Ticked_Units& ticked) {
  if (!ticked[unit]) return "N/A";
  if (unit == 0) return N(r.years);
  const long long per_day[] = {0, 0, 1, 24, 1440};
  const long long total[] = {r.years, r.total_months, r.total_days, r.total_hours, r.total_minutes};
  std::size_t above = unit;
  while (above > 0 && !ticked[above - 1]) --above;
  if (above == 0) return N(total[unit]);
  const std::size_t covering = above - 1;
  long long covered = 0;
  if (unit == 1) {
    covered = r.years * 12;
  } else if (covering == 0) {
    covered = r.years_in_days * per_day[unit];
  } else if (covering == 1) {
    covered = (r.years_in_days + r.months_in_days) * per_day[unit];
  } else if (covering == 2) {
    covered = r.total_days * per_day[unit];
  } else {
    covered = r.total_hours * 60;
  }
  return N(total[unit] - covered);
}

// ---- Edge cases ---------------------------------------------------------------------------

TEST(Date_Difference, TwoEqualMomentsGiveZeroInEveryRow) {
  const Moment m = At(2001, 3, 5, 14, 30);
  for (const std::string& name : All_Answers()) EXPECT_EQ(Answer(name, "Gregorian", m, m), "0") << name;
  for (const std::string& row : Rows("Gregorian", m, m, Display_Option::Total)) EXPECT_EQ(row, "0");
  for (const std::string& row : Rows("Gregorian", m, m, Display_Option::Remaining)) EXPECT_EQ(row, "0");
}

TEST(Date_Difference, AMarchStartCountsLeapDaysFromTheNextYear) {
  const Moment later = At(2001, 3, 1);
  const Moment earlier = At(2000, 3, 1);
  EXPECT_EQ(Answer("Total Years In Years", "Gregorian", later, earlier), "1");
  EXPECT_EQ(Answer("Total Years In Days", "Gregorian", later, earlier), "365");
}

TEST(Date_Difference, AFebruaryStartCountsItsOwnYearsLeapDay) {
  const Moment later = At(2001, 2, 1);
  const Moment earlier = At(2000, 2, 1);
  EXPECT_EQ(Answer("Total Years In Years", "Gregorian", later, earlier), "1");
  EXPECT_EQ(Answer("Total Years In Days", "Gregorian", later, earlier), "366");
}

TEST(Date_Difference, TheSingleBorrowOfAShortMonthLeavesANegativeDayRemainder) {
  const Moment earlier = At(2001, 1, 31);
  const Moment later = At(2001, 3, 1);
  EXPECT_EQ(Answer("Remaining Months In Months", "Gregorian", later, earlier), "1");
  EXPECT_EQ(Answer("Remaining Days In Days", "Gregorian", later, earlier), "-2");
  EXPECT_EQ(Answer("Remaining Months In Days", "Gregorian", later, earlier), "31");  // January walked
  EXPECT_EQ(Answer("Total Days In Days", "Gregorian", later, earlier), "29");
  EXPECT_EQ(Answer("Remaining Days In Hours", "Gregorian", later, earlier), "-48");
  EXPECT_EQ(Answer("Remaining Days In Minutes", "Gregorian", later, earlier), "-2880");
}

TEST(Date_Difference, ANegativeDayRemainderStillGivesTrueTotals) {
  const Time_Rows rows = Rows("Gregorian", At(2001, 1, 31), At(2001, 3, 1), Display_Option::Total);
  EXPECT_EQ(rows, (Time_Rows{"0", "1", "29", "696", "41760"}));
}

TEST(Date_Difference, ANegativeDayRemainderShowsInTheRowsWhoseChainLeavesIt) {
  const Moment earlier = At(2001, 1, 31);
  const Moment later = At(2001, 3, 1);
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Remaining), (Time_Rows{"0", "1", "-2", "0", "0"}));
  // Days unticked: the hours take the day remainder, -48, and nothing covers it.
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Remaining, {true, true, false, true, true}),
            (Time_Rows{"0", "1", "N/A", "-48", "0"}));
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Remaining, {true, true, false, false, true}),
            (Time_Rows{"0", "1", "N/A", "N/A", "-2880"}));
  // Months unticked as well: the month's 31 days cover it.
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Remaining, {true, false, false, true, true}),
            (Time_Rows{"0", "N/A", "N/A", "696", "0"}));
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Remaining, {false, false, true, false, true}),
            (Time_Rows{"N/A", "N/A", "29", "N/A", "0"}));
}

TEST(Date_Difference, ANegativeDayRemainderWithHoursAndMinutesInTheSpan) {
  // January 31 20:50 to March 1 06:10: the hour borrow takes the date to 0 first.
  const Moment earlier = At(2001, 1, 31, 20, 50);
  const Moment later = At(2001, 3, 1, 6, 10);
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Total),
            (Time_Rows{"0", "1", "28", std::to_string(28 * 24 + 9), std::to_string((28 * 24 + 9) * 60 + 20)}));
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Remaining), (Time_Rows{"0", "1", "-3", "9", "20"}));
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Remaining, {true, true, false, true, true}),
            (Time_Rows{"0", "1", "N/A", "-63", "20"}));
}

TEST(Date_Difference, ABorrowOfAprilFromMayFirstLeavesNoDays) {
  const Moment earlier = At(2001, 3, 31);
  const Moment later = At(2001, 5, 1);
  EXPECT_EQ(Answer("Remaining Days In Days", "Gregorian", later, earlier), "0");
  EXPECT_EQ(Answer("Remaining Months In Months", "Gregorian", later, earlier), "1");
  EXPECT_EQ(Answer("Remaining Months In Days", "Gregorian", later, earlier), "31");  // March walked
  EXPECT_EQ(Answer("Total Days In Days", "Gregorian", later, earlier), "31");
}

TEST(Date_Difference, AMillionYearsInMinutesComeOutExact) {
  const Moment start = At(0, 1, 1);
  const Moment end = At(1'000'000, 1, 1);
  // Leap years 0 to 999,999: every fourth (250,000), less the centuries 400 does not divide.
  EXPECT_EQ(Answer("Total Minutes In Minutes", "Julian", start, end), "525960000000");
  EXPECT_EQ(Answer("Total Minutes In Minutes", "Gregorian", start, end), "525949200000");
  EXPECT_EQ(Answer("Total Years In Minutes", "Gregorian", start, end), "525949200000");
  EXPECT_EQ(Answer("Total Hours In Hours", "Gregorian", start, end), "8765820000");
  const Moment far = At(1'000'099, 12, 31, 23, 59);
  const Reference r = Reference_Span("Gregorian", At(1582, 10, 15), far);
  EXPECT_EQ(Answer("Total Minutes In Minutes", "Gregorian", At(1582, 10, 15), far), N(r.total_minutes));
}

TEST(Date_Difference, WithEverythingTickedTheRemainingRowsAreTheBreakdown) {
  const Moment earlier = At(1999, 11, 20, 22, 45);
  const Moment later = At(2003, 2, 3, 4, 5);
  const Reference r = Reference_Span("Gregorian", earlier, later);
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Remaining),
            (Time_Rows{N(r.years), N(r.months), N(r.days), N(r.hours), N(r.minutes)}));
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Remaining), (Time_Rows{"3", "2", "13", "5", "20"}));
}

TEST(Date_Difference, WithOnlyMinutesTickedTheWholeSpanIsInMinutes) {
  const Moment earlier = At(1999, 11, 20, 22, 45);
  const Moment later = At(2003, 2, 3, 4, 5);
  const Reference r = Reference_Span("Gregorian", earlier, later);
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Remaining, {false, false, false, false, true}),
            (Time_Rows{"N/A", "N/A", "N/A", "N/A", N(r.total_minutes)}));
}

TEST(Date_Difference, MomentsInReverseOrderGiveTheSameRows) {
  const Moment a = At(1712, 2, 29, 7, 15);
  const Moment b = At(1900, 12, 31, 3, 59);
  for (const std::string& name : All_Answers()) {
    EXPECT_EQ(Answer(name, "Julian", a, b), Answer(name, "Julian", b, a)) << name;
  }
  for (const Display_Option option : {Display_Option::Total, Display_Option::Remaining}) {
    EXPECT_EQ(Rows("Julian", a, b, option, {true, false, true, false, true}),
              Rows("Julian", b, a, option, {true, false, true, false, true}));
  }
}

TEST(Date_Difference, TheHelpExampleOfTheTwoDisplayModes) {
  // "1 year or 13 months or 397 days or 9529 hours or 571,741 minutes"
  const Moment earlier = At(2001, 1, 1, 0, 0);
  const Moment later = At(2002, 2, 2, 1, 1);
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Total), (Time_Rows{"1", "13", "397", "9529", "571741"}));
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Remaining), (Time_Rows{"1", "1", "1", "1", "1"}));
}

TEST(Date_Difference, UnticksFoldCoarserUnitsIntoTheNextTickedOne) {
  const Moment earlier = At(2001, 1, 1, 0, 0);
  const Moment later = At(2002, 2, 2, 1, 1);
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Remaining, {false, true, true, true, true}),
            (Time_Rows{"N/A", "13", "1", "1", "1"}));
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Remaining, {true, false, true, false, true}),
            (Time_Rows{"1", "N/A", "32", "N/A", "61"}));
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Remaining, {false, false, false, false, false}),
            (Time_Rows{"N/A", "N/A", "N/A", "N/A", "N/A"}));
}

TEST(Date_Difference, TheTotalModeReadsNoTicks) {
  const Moment earlier = At(2001, 1, 1, 0, 0);
  const Moment later = At(2002, 2, 2, 1, 1);
  EXPECT_EQ(Rows("Gregorian", earlier, later, Display_Option::Total, {false, false, false, false, false}),
            (Time_Rows{"1", "13", "397", "9529", "571741"}));
}

TEST(Date_Difference, WithNeitherOptionNothingChanges) {
  EXPECT_FALSE(
      Display_Time_Difference("Gregorian", At(2001, 1, 1), At(2002, 1, 1), Display_Option::Neither, kAllTicked));
}

TEST(Date_Difference, HoursAndMinutesOfLongSpansAreTexts) {
  const Moment earlier = At(2001, 1, 1);
  const Moment later = At(2002, 1, 1);
  EXPECT_TRUE(Date_Difference("Total Years In Hours", "Gregorian", earlier, later).is_text());
  EXPECT_TRUE(Date_Difference("Total Minutes In Minutes", "Gregorian", earlier, later).is_text());
  EXPECT_TRUE(Date_Difference("Total Days In Days", "Gregorian", earlier, later).is_number());
}

TEST(Date_Difference, AnUnknownAnswerNameAnswersNothing) {
  EXPECT_TRUE(Date_Difference("Total Weeks In Weeks", "Gregorian", At(2001, 1, 1), At(2002, 1, 1)).is_empty());
}

TEST(Date_Difference, TheStyleDecidesLeapDaysAndMonthLengths) {
  // 1900 is a leap year only in the Julian style.
  EXPECT_EQ(Answer("Total Days In Days", "Julian", At(1900, 2, 1), At(1900, 3, 1)), "29");
  EXPECT_EQ(Answer("Total Days In Days", "Gregorian", At(1900, 2, 1), At(1900, 3, 1)), "28");
  EXPECT_EQ(Answer("Total Years In Days", "Julian", At(1899, 6, 1), At(1901, 6, 1)), "731");
  EXPECT_EQ(Answer("Total Years In Days", "Gregorian", At(1899, 6, 1), At(1901, 6, 1)), "730");
}

TEST(Date_Difference, FieldsOutsideTheirRangesFailInsteadOfWalkingForever) {
  EXPECT_EQ(Failure_Of([] { Date_Difference("Total Days In Days", "Gregorian", At(2001, 13, 1), At(2001, 1, 1)); }),
            kInvalidProcedureCall);
  EXPECT_EQ(Failure_Of([] { Date_Difference("Total Days In Days", "Gregorian", At(2001, 1, 0), At(2001, 1, 1)); }),
            kInvalidProcedureCall);
  EXPECT_EQ(Failure_Of([] { Date_Difference("Total Days In Days", "Gregorian", At(2001, 1, 1, 24), At(2001, 1, 1)); }),
            kInvalidProcedureCall);
  EXPECT_EQ(
      Failure_Of([] { Date_Difference("Total Days In Days", "Gregorian", At(2001, 1, 1, 0, -1), At(2001, 1, 1)); }),
      kInvalidProcedureCall);
  EXPECT_EQ(Failure_Of(
                [] { Date_Difference("Total Days In Days", "Gregorian", At(2'000'000'000'000LL, 1, 1), At(0, 1, 1)); }),
            kOverflow);
  EXPECT_EQ(Answer("Total Years In Years", "Julian", At(1'000'000'000'000LL, 1, 1), At(-1'000'000'000'000LL, 1, 1)),
            "2000000000000");
}

// ---- Against the reference ----------------------------------------------------------------

class Moments {
 public:
  explicit Moments(unsigned seed) : random_(seed) {}

  long long Between(long long low, long long high) {
    return std::uniform_int_distribution<long long>(low, high)(random_);
  }

  Moment Any(const std::string& style, long long first_year, long long last_year) {
    const long long year = Between(first_year, last_year);
    const long long month = Between(1, 12);
    // Month ends and leap days are where the borrows happen: favour them.
    const long long length = Reference_Month_Length(month, year, style);
    const long long date = Between(0, 2) == 0 ? Between(std::max(1LL, length - 2), length) : Between(1, length);
    return At(year, month, date, Between(0, 23), Between(0, 59));
  }

 private:
  std::mt19937_64 random_;
};

void Expect_Like_The_Reference(const std::string& style, const Moment& a, const Moment& b) {
  const Reference r = Reference_Span(style, a, b);
  const std::vector<std::string> expected = Reference_Answers(r);
  const Time_Difference pieces = Work_Out_Time_Difference(style, a, b);
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(Time_Difference_Answer(pieces, All_Answers()[i]).text(), expected[i])
        << All_Answers()[i] << " " << a.Four_Digit_Year << "-" << a.Month_Number << "-" << a.Date << " "
        << b.Four_Digit_Year << "-" << b.Month_Number << "-" << b.Date << " " << style;
  }
  EXPECT_GE(r.days, -3);
  EXPECT_LE(r.days, 30);
}

TEST(Date_DifferenceProperty, NearbyMomentsMatchTheReference) {
  Moments random(11);
  for (int n = 0; n < 1500; ++n) {
    const std::string style = n % 2 == 0 ? "Gregorian" : "Julian";
    const Moment a = random.Any(style, 1998, 2003);
    const Moment b = random.Any(style, 1998, 2003);
    Expect_Like_The_Reference(style, a, b);
  }
}

TEST(Date_DifferenceProperty, MomentsAcrossTheWholeCalendarMatchTheReference) {
  Moments random(12);
  for (int n = 0; n < 1500; ++n) {
    const std::string style = n % 2 == 0 ? "Gregorian" : "Julian";
    const Moment a = random.Any(style, 0, 1'000'099);
    const Moment b = random.Any(style, 0, 1'000'099);
    Expect_Like_The_Reference(style, a, b);
  }
}

TEST(Date_DifferenceProperty, RemainingRowsMatchTheReferenceForEveryTickPattern) {
  Moments random(13);
  for (int n = 0; n < 100; ++n) {
    const std::string style = n % 2 == 0 ? "Gregorian" : "Julian";
    const Moment a = random.Any(style, 1990, 2010);
    const Moment b = random.Any(style, 1990, 2010);
    const Reference r = Reference_Span(style, a, b);
    for (unsigned pattern = 0; pattern < 32; ++pattern) {
      Ticked_Units ticked{};
      for (std::size_t u = 0; u < kTimeUnits; ++u) ticked[u] = (pattern >> u) & 1U;
      const Time_Rows rows = Rows(style, a, b, Display_Option::Remaining, ticked);
      for (std::size_t u = 0; u < kTimeUnits; ++u) {
        EXPECT_EQ(rows[u], Reference_Remaining_Row(r, u, ticked)) << "unit " << u << " pattern " << pattern;
      }
    }
  }
}

// ---- The leap count -----------------------------------------------------------------------

// Both counts repeat every 400 years, so a band that starts in every year of the cycle and
// reaches lengths beyond it shows them equal for any range.
TEST(Count_Leap_Years, EqualsTheYearByYearCountOverAWideBand) {
  for (const std::string style : {"Gregorian", "Julian", "other"}) {
    constexpr long long kFirst = -2000;
    constexpr long long kLast = 2400;
    std::vector<long long> before{0};  // leap years from kFirst up to the year before each index
    for (long long year = kFirst; year <= kLast; ++year) {
      before.push_back(before.back() + (engine::Is_It_A_Leap_Year(year, style) ? 1 : 0));
    }
    for (long long first = kFirst; first <= kLast; first += 3) {
      for (long long last = first - 1; last <= kLast; last += 7) {
        EXPECT_EQ(Count_Leap_Years(first, last, style), before[last - kFirst + 1] - before[first - kFirst])
            << style << " " << first << " " << last;
      }
    }
  }
}

TEST(Count_Leap_Years, AMillionYearsHoldTheirKnownNumberOfLeapYears) {
  EXPECT_EQ(Count_Leap_Years(0, 999'999, "Julian"), 250'000);
  EXPECT_EQ(Count_Leap_Years(0, 999'999, "Gregorian"), 242'500);
  EXPECT_EQ(Count_Leap_Years(1, 1'000'000, "Gregorian"), 242'500);
  EXPECT_EQ(Count_Leap_Years(-1'000'000, -1, "Gregorian"), 242'500);
}

TEST(Count_Leap_Years, AnEmptyRangeHasNone) {
  EXPECT_EQ(Count_Leap_Years(2000, 1999, "Gregorian"), 0);
  EXPECT_EQ(Count_Leap_Years(2000, 1000, "Julian"), 0);
}

// ---- Parse_Out ----------------------------------------------------------------------------

TEST(Parse_Out, TakesTheMomentTextApart) {
  const std::string moment = "09:05, March 1, 2001";
  EXPECT_EQ(Parse_Out(moment, "Hour"), "09");
  EXPECT_EQ(Parse_Out(moment, "Minute"), "05");
  EXPECT_EQ(Parse_Out(moment, "Month"), "March");
  EXPECT_EQ(Parse_Out(moment, "Date"), "1");
  EXPECT_EQ(Parse_Out(moment, "Year"), "2001");
  EXPECT_EQ(Parse_Out("23:59, December 31, 1000099", "Year"), "1000099");
  EXPECT_EQ(Parse_Out("00:00, February 09, 0", "Date"), "09");
}

TEST(Parse_Out, AnUnknownPartAnswersEmpty) { EXPECT_EQ(Parse_Out("09:05, March 1, 2001", "Second"), ""); }

TEST(Parse_Out, ATextWithoutItsSeparatorsFailsAsAnInvalidCall) {
  EXPECT_EQ(Failure_Of([] { Parse_Out("0905 March 1 2001", "Year"); }), kInvalidProcedureCall);
  EXPECT_EQ(Failure_Of([] { Parse_Out("", "Hour"); }), kInvalidProcedureCall);
}

}  // namespace
}  // namespace orrivane::elapsed
