// Convert against an independent day count: New Style to Old Style always gives the true
// equivalent, Old Style to New Style too except the two results it keeps; day by day from the
// calendar change to the year 2200 and at random up to the year 1,000,000.
#include <gtest/gtest.h>

#include <random>

#include "engine/calendar_engine.h"
#include "engine/reference_calendar.h"

namespace orrivane::engine {
namespace {

using namespace reference;

std::string Date_Text(const std::string& month, std::int64_t day, std::int64_t year) {
  return month + " " + std::to_string(day) + ", " + std::to_string(year);
}

// The days by which the two readings of the same month, day and year stand apart.
std::int64_t Reading_Difference(std::int64_t year, int month, int day) {
  return Julian_Day_Number(year, month, day) - Gregorian_Day_Number(year, month, day);
}

void Check_Texts(const ConvertResult& result, const std::string& month, int day, std::int64_t year,
                 CalendarStyle source) {
  const bool julian = source == CalendarStyle::Julian;
  ASSERT_EQ(result.lblDate1, Date_Text(month, day, year) + (julian ? " O.S." : " N.S."));
  ASSERT_EQ(result.lblEquivalent, julian ? "Gregorian Equivalent: " : "Julian Equivalent: ");
  ASSERT_EQ(result.lblDate2, Date_Text(result.month, result.day, result.year) + (julian ? " N.S." : " O.S."));
  ASSERT_EQ(result.lblDifference, std::to_string(result.displayed_difference) + " day(s).");
  ASSERT_EQ(result.style, julian ? CalendarStyle::Gregorian : CalendarStyle::Julian);
  ASSERT_EQ(result.century, result.year / 100);
  ASSERT_EQ(result.two_digit_year, result.year % 100);
  std::string number;  // the month's number, none for the empty month name
  for (int month_number = 1; month_number <= 12; ++month_number) {
    if (result.month == Month_Name(month_number)) number = std::to_string(month_number);
  }
  ASSERT_EQ(result.date_string, number + "/" + std::to_string(result.day) + "/" + std::to_string(result.year));
}

// Every eleventh check also reads all the texts; the others compare the numbers alone, which
// keeps the sweeps quick under the sanitizers.
bool Texts_Due() {
  static unsigned count = 0;
  return ++count % 11 == 0;
}

bool Same(const ConvertResult& result, const CivilDate& expected) {
  return result.day == expected.day && result.year == expected.year && result.month == Month_Name(expected.month);
}

void Check_Gregorian_To_Julian(std::int64_t year, int month, int day) {
  const std::string name = Month_Name(month);
  const ConvertResult result = Convert_Compute({name, day, year, CalendarStyle::Gregorian});
  if (year == 1582 && month == 11) {
    ASSERT_EQ(result.error_code, 1);
    return;
  }
  const CivilDate expected = Julian_From_Day_Number(Gregorian_Day_Number(year, month, day));
  if (result.error_code != 0 || !Same(result, expected)) {
    ASSERT_EQ(result.error_code, 0) << Date_Text(name, day, year);
    ASSERT_EQ(Date_Text(result.month, result.day, result.year),
              Date_Text(Month_Name(expected.month), expected.day, expected.year))
        << "from " << Date_Text(name, day, year) << " N.S.";
  }
  if (result.difference != Reading_Difference(year, month, day) || result.displayed_difference != result.difference) {
    ASSERT_EQ(result.difference, Reading_Difference(year, month, day)) << Date_Text(name, day, year);
    ASSERT_EQ(result.displayed_difference, result.difference) << Date_Text(name, day, year);
  }
  if (Texts_Due()) {
    ASSERT_NO_FATAL_FAILURE(Check_Texts(result, name, day, year, CalendarStyle::Gregorian));
  }
}

struct KeptResults {
  int first_of_january = 0;  // shown as an empty month with day 2
  int first_of_december = 0;  // shown as 1 January of the year after
};

void Check_Julian_To_Gregorian(std::int64_t year, int month, int day, KeptResults& kept) {
  const std::string name = Month_Name(month);
  const ConvertResult result = Convert_Compute({name, day, year, CalendarStyle::Julian});
  if (year == 1582 && month == 11) {
    ASSERT_EQ(result.error_code, 1);
    return;
  }
  ASSERT_EQ(result.error_code, 0) << Date_Text(name, day, year);
  const CivilDate expected = Gregorian_From_Day_Number(Julian_Day_Number(year, month, day));
  if (!Same(result, expected)) {
    const std::string got = Date_Text(result.month, result.day, result.year);
    if (expected.month == 1 && expected.day == 1 && got == Date_Text("", 2, expected.year)) {
      ++kept.first_of_january;
    } else if (expected.month == 12 && expected.day == 1 && got == Date_Text("January", 1, expected.year + 1)) {
      ++kept.first_of_december;
    } else {
      ASSERT_EQ(got, Date_Text(Month_Name(expected.month), expected.day, expected.year))
          << "from " << Date_Text(name, day, year) << " O.S.";
    }
  }
  // The difference of the two readings, shown one more for a 29 February the Gregorian year skips.
  const bool skipped = month == 2 && day == 29 && !Gregorian_Leap(year);
  if (result.difference != Reading_Difference(year, month, day) ||
      result.displayed_difference != result.difference + (skipped ? 1 : 0)) {
    ASSERT_EQ(result.difference, Reading_Difference(year, month, day)) << Date_Text(name, day, year);
    ASSERT_EQ(result.displayed_difference, result.difference + (skipped ? 1 : 0)) << Date_Text(name, day, year);
  }
  if (Texts_Due()) {
    ASSERT_NO_FATAL_FAILURE(Check_Texts(result, name, day, year, CalendarStyle::Julian));
  }
}

TEST(ConvertProperty, EveryGregorianDayFromTheCalendarChangeTo2200) {
  for (std::int64_t jdn = Gregorian_Day_Number(1582, 10, 15); jdn <= Gregorian_Day_Number(2200, 12, 31); ++jdn) {
    const CivilDate date = Gregorian_From_Day_Number(jdn);
    ASSERT_NO_FATAL_FAILURE(Check_Gregorian_To_Julian(date.year, date.month, date.day));
  }
}

TEST(ConvertProperty, EveryJulianDayFromTheCalendarChangeTo2200) {
  KeptResults kept;
  for (std::int64_t jdn = Julian_Day_Number(1582, 10, 5); jdn <= Julian_Day_Number(2200, 12, 31); ++jdn) {
    const CivilDate date = Julian_From_Day_Number(jdn);
    ASSERT_NO_FATAL_FAILURE(Check_Julian_To_Gregorian(date.year, date.month, date.day, kept));
  }
  // Every 1 January N.S. of these years is reached from the December before it.
  EXPECT_EQ(kept.first_of_january, 2201 - 1583 + 1);
  EXPECT_EQ(kept.first_of_december, 0);
}

TEST(ConvertProperty, RandomGregorianDaysUpToTheYearOneMillion) {
  std::mt19937_64 random(15821015);
  std::uniform_int_distribution<std::int64_t> days(Gregorian_Day_Number(1583, 1, 1),
                                                   Gregorian_Day_Number(1'000'000, 12, 31));
  for (int i = 0; i < 100'000; ++i) {
    const CivilDate date = Gregorian_From_Day_Number(days(random));
    ASSERT_NO_FATAL_FAILURE(Check_Gregorian_To_Julian(date.year, date.month, date.day));
  }
}

TEST(ConvertProperty, RandomJulianDaysUpToTheYearOneMillion) {
  std::mt19937_64 random(15821005);
  std::uniform_int_distribution<std::int64_t> days(Julian_Day_Number(1583, 1, 1), Julian_Day_Number(1'000'000, 12, 31));
  KeptResults kept;
  for (int i = 0; i < 100'000; ++i) {
    const CivilDate date = Julian_From_Day_Number(days(random));
    ASSERT_NO_FATAL_FAILURE(Check_Julian_To_Gregorian(date.year, date.month, date.day, kept));
  }
}

TEST(ConvertProperty, YearEndsAndCenturyYearsUpToTheYearOneMillion) {
  // Around the turn of the year and the end of February, where the branches and the kept
  // results lie, for one year in every 97 and every century year.
  KeptResults kept;
  for (std::int64_t year = 1583; year <= 1'000'000; year += (year % 100 == 0 ? 1 : 97)) {
    for (const auto& [month, day] : {std::pair{1, 1}, {1, 2}, {2, 28}, {2, 29}, {3, 1}, {11, 30}, {12, 1},
                                     {12, 2}, {12, 30}, {12, 31}}) {
      if (day <= Month_Length(month, Gregorian_Leap(year))) {
        ASSERT_NO_FATAL_FAILURE(Check_Gregorian_To_Julian(year, month, day));
      }
      if (day <= Month_Length(month, Julian_Leap(year))) {
        ASSERT_NO_FATAL_FAILURE(Check_Julian_To_Gregorian(year, month, day, kept));
      }
    }
  }
  // And every day of the twenty years that end the calendar, in both directions.
  for (std::int64_t jdn = Gregorian_Day_Number(999'980, 1, 1); jdn <= Gregorian_Day_Number(1'000'000, 12, 31); ++jdn) {
    const CivilDate gregorian = Gregorian_From_Day_Number(jdn);
    ASSERT_NO_FATAL_FAILURE(Check_Gregorian_To_Julian(gregorian.year, gregorian.month, gregorian.day));
    const CivilDate julian = Julian_From_Day_Number(jdn);
    ASSERT_NO_FATAL_FAILURE(Check_Julian_To_Gregorian(julian.year, julian.month, julian.day, kept));
  }
  EXPECT_GT(kept.first_of_december, 0);
}

}  // namespace
}  // namespace orrivane::engine
