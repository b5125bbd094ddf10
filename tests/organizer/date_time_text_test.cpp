#include "organizer/date_time_text.h"

#include <gtest/gtest.h>

#include <string>

#include "core/runtime_failure.h"
#include "support/failure_of.h"

namespace orrivane::organizer {
namespace {

using orrivane::testing::Failure_Of;

::testing::AssertionResult Is_Text(const Value& v, const std::string& text) {
  if (v.is_text() && v.text() == text) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "expected the text \"" << text << "\", got "
                                       << (v.is_text() ? "the text " : v.is_number() ? "the number " : "empty ")
                                       << v.text();
}

::testing::AssertionResult Is_Number(const Value& v, double number) {
  if (v.is_number() && v.number() == number) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "expected the number " << number << ", got "
                                       << (v.is_text() ? "the text " : v.is_number() ? "the number " : "empty ")
                                       << v.text();
}

// ---- System time --------------------------------------------------------------------------

TEST(Parse_System_Time, TakesTheFourParts) {
  EXPECT_TRUE(Is_Text(Parse_System_Time("2:05:09 PM", "Hour"), "2"));
  EXPECT_TRUE(Is_Text(Parse_System_Time("2:05:09 PM", "Minute"), "05"));
  EXPECT_TRUE(Is_Text(Parse_System_Time("2:05:09 PM", "Second"), "09"));
  EXPECT_TRUE(Is_Text(Parse_System_Time("2:05:09 PM", "Time Of Day"), "PM"));
}

TEST(Parse_System_Time, MidnightGivesTwelveAndItsPartsAndBecomesZeroOnTheTwentyFourHourClock) {
  const Value time("12:00:00 AM");
  EXPECT_TRUE(Is_Text(Parse_System_Time(time, "Hour"), "12"));
  EXPECT_TRUE(Is_Text(Parse_System_Time(time, "Minute"), "00"));
  EXPECT_TRUE(Is_Text(Parse_System_Time(time, "Second"), "00"));
  EXPECT_TRUE(Is_Text(Parse_System_Time(time, "Time Of Day"), "AM"));
  EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time(Parse_System_Time(time, "Hour"),
                                                      Parse_System_Time(time, "Time Of Day")),
                        0));
}

TEST(Parse_System_Time, AnUnknownPartIsEmpty) {
  EXPECT_TRUE(Parse_System_Time("2:05:09 PM", "hour").is_empty());
  EXPECT_TRUE(Parse_System_Time("2:05:09 PM", "").is_empty());
}

TEST(Parse_System_Time, CutsAtTheFirstSeparatorOnly) {
  EXPECT_TRUE(Is_Text(Parse_System_Time("1:2:3 A M", "Time Of Day"), "A M"));
  EXPECT_TRUE(Is_Text(Parse_System_Time("1:2:3:4 PM", "Second"), "3:4"));
}

TEST(Parse_System_Time, AMissingSeparatorIsAnInvalidProcedureCallForEveryPart) {
  EXPECT_EQ(Failure_Of([] { Parse_System_Time("14:05", "Hour"); }), kInvalidProcedureCall);
  EXPECT_EQ(Failure_Of([] { Parse_System_Time("2:05:09PM", "Hour"); }), kInvalidProcedureCall);
  EXPECT_EQ(Failure_Of([] { Parse_System_Time("", "Hour"); }), kInvalidProcedureCall);
}

TEST(Parse_System_Time, ANumberHasNoSeparatorAndFails) {
  EXPECT_EQ(Failure_Of([] { Parse_System_Time(Value(1405), "Hour"); }), kInvalidProcedureCall);
}

// ---- Output times -------------------------------------------------------------------------

TEST(Parse_Output_Style_12h_Time, TakesTheThreeParts) {
  EXPECT_TRUE(Is_Text(Parse_Output_Style_12h_Time("2:05 PM", "Hour"), "2"));
  EXPECT_TRUE(Is_Text(Parse_Output_Style_12h_Time("2:05 PM", "Minute"), "05"));
  EXPECT_TRUE(Is_Text(Parse_Output_Style_12h_Time("2:05 PM", "Time Of Day"), "PM"));
  EXPECT_TRUE(Parse_Output_Style_12h_Time("2:05 PM", "Second").is_empty());
}

TEST(Parse_Output_Style_12h_Time, AMissingSeparatorIsAnInvalidProcedureCall) {
  EXPECT_EQ(Failure_Of([] { Parse_Output_Style_12h_Time("14:05", "Hour"); }), kInvalidProcedureCall);
  EXPECT_EQ(Failure_Of([] { Parse_Output_Style_12h_Time("2 PM", "Time Of Day"); }), kInvalidProcedureCall);
}

TEST(Parse_Output_Style_24h_Time, TakesTheTwoParts) {
  EXPECT_TRUE(Is_Text(Parse_Output_Style_24h_Time("14:05", "Hour"), "14"));
  EXPECT_TRUE(Is_Text(Parse_Output_Style_24h_Time("14:05", "Minute"), "05"));
  EXPECT_TRUE(Parse_Output_Style_24h_Time("14:05", "Time Of Day").is_empty());
}

TEST(Parse_Output_Style_24h_Time, TheMinuteIsAllThatFollowsTheFirstColon) {
  EXPECT_TRUE(Is_Text(Parse_Output_Style_24h_Time("14:05:30", "Minute"), "05:30"));
  EXPECT_TRUE(Is_Text(Parse_Output_Style_24h_Time("14:", "Minute"), ""));
  EXPECT_TRUE(Is_Text(Parse_Output_Style_24h_Time(":05", "Hour"), ""));
}

TEST(Parse_Output_Style_24h_Time, AMissingColonIsAnInvalidProcedureCall) {
  EXPECT_EQ(Failure_Of([] { Parse_Output_Style_24h_Time("N/A", "Minute"); }), kInvalidProcedureCall);
}

// ---- System date --------------------------------------------------------------------------

TEST(Parse_Date, TakesMonthDateAndYear) {
  EXPECT_TRUE(Is_Text(Parse_Date("12/31/1999", "Month"), "12"));
  EXPECT_TRUE(Is_Text(Parse_Date("12/31/1999", "Date"), "31"));
  EXPECT_TRUE(Is_Text(Parse_Date("12/31/1999", "Year"), "1999"));
}

TEST(Parse_Date, KeepsLeadingZeros) {
  EXPECT_TRUE(Is_Text(Parse_Date("03/05/2001", "Month"), "03"));
  EXPECT_TRUE(Is_Text(Parse_Date("03/05/2001", "Date"), "05"));
}

TEST(Parse_Date, TheYearFollowsTheLastSlashAndTheDateTheFirst) {
  EXPECT_TRUE(Is_Text(Parse_Date("1/2/3/4", "Month"), "1"));
  EXPECT_TRUE(Is_Text(Parse_Date("1/2/3/4", "Date"), "2/3"));
  EXPECT_TRUE(Is_Text(Parse_Date("1/2/3/4", "Year"), "4"));
}

TEST(Parse_Date, AnUnknownPartIsEmpty) { EXPECT_TRUE(Parse_Date("3/5/2001", "Day").is_empty()); }

TEST(Parse_Date, FewerThanTwoSlashesIsAnInvalidProcedureCall) {
  EXPECT_EQ(Failure_Of([] { Parse_Date("3/2001", "Year"); }), kInvalidProcedureCall);
  EXPECT_EQ(Failure_Of([] { Parse_Date("2001", "Year"); }), kInvalidProcedureCall);
  EXPECT_EQ(Failure_Of([] { Parse_Date("", "Year"); }), kInvalidProcedureCall);
}

// ---- Output date --------------------------------------------------------------------------

TEST(Parse_Output_Style_Date, TakesMonthDateAndYear) {
  EXPECT_TRUE(Is_Text(Parse_Output_Style_Date("December 31, 1999", "Month"), "December"));
  EXPECT_TRUE(Is_Text(Parse_Output_Style_Date("December 31, 1999", "Date"), "31"));
  EXPECT_TRUE(Is_Text(Parse_Output_Style_Date("December 31, 1999", "Year"), "1999"));
  EXPECT_TRUE(Parse_Output_Style_Date("December 31, 1999", "Weekday").is_empty());
}

TEST(Parse_Output_Style_Date, SkipsTheCharacterAfterTheCommaWhateverItIs) {
  EXPECT_TRUE(Is_Text(Parse_Output_Style_Date("March 5,2001", "Year"), "001"));
  EXPECT_TRUE(Is_Text(Parse_Output_Style_Date("March 5,  2001", "Year"), " 2001"));
  EXPECT_TRUE(Is_Text(Parse_Output_Style_Date("March 5, ", "Year"), ""));
}

TEST(Parse_Output_Style_Date, ACommaAtTheEndIsAnInvalidProcedureCall) {
  EXPECT_EQ(Failure_Of([] { Parse_Output_Style_Date("March 5,", "Month"); }), kInvalidProcedureCall);
}

TEST(Parse_Output_Style_Date, AMissingBlankOrCommaIsAnInvalidProcedureCall) {
  EXPECT_EQ(Failure_Of([] { Parse_Output_Style_Date("March5, 2001", "Month"); }), kInvalidProcedureCall);
  EXPECT_EQ(Failure_Of([] { Parse_Output_Style_Date("March 5 2001", "Month"); }), kInvalidProcedureCall);
  EXPECT_EQ(Failure_Of([] { Parse_Output_Style_Date("3/5/2001", "Year"); }), kInvalidProcedureCall);
}

// ---- Building a system date -----------------------------------------------------------------

TEST(Convert_To_Date_Format, BuildsMonthDateYear) {
  EXPECT_TRUE(Is_Text(Convert_To_Date_Format("March", "05", 2001), "3/05/2001"));
  EXPECT_TRUE(Is_Text(Convert_To_Date_Format(12, 31, 1999), "12/31/1999"));
}

TEST(Convert_To_Date_Format, TakesTheFrenchJanuary) {
  EXPECT_TRUE(Is_Text(Convert_To_Date_Format("janvier", 5, 1999), "1/5/1999"));
}

TEST(Convert_To_Date_Format, HasNoSpanishWordForAugustAndThenBeginsWithASlash) {
  EXPECT_TRUE(Is_Text(Convert_To_Date_Format("agosto", 5, 1999), "/5/1999"));
}

TEST(Convert_To_Date_Format, TakesEveryFormOfItsTable) {
  struct Row {
    const char* forms[6];
    const char* number;
  };
  const Row rows[] = {
      {{"01", "Jan", "January", "enero", "janvier"}, "1"},
      {{"02", "Feb", "February", "fevier", "februaro"}, "2"},
      {{"03", "Mar", "March", "marzo", "mars"}, "3"},
      {{"04", "Apr", "April", "abril", "avril"}, "4"},
      {{"05", "May", "Mayo", "Mai"}, "5"},
      {{"06", "Jun", "June", "junio", "juin"}, "6"},
      {{"07", "Jul", "July", "julio", "juilliet"}, "7"},
      {{"08", "Aug", "August", "aout"}, "8"},
      {{"09", "Sep", "September", "septiembre", "septembre"}, "9"},
      {{"Oct", "October", "octubre", "octobre"}, "10"},
      {{"Nov", "November", "noviembre", "novembre"}, "11"},
      {{"Dec", "December", "diciembre", "decembre"}, "12"},
  };
  for (const Row& row : rows) {
    for (const char* form : row.forms) {
      if (form == nullptr) continue;
      EXPECT_TRUE(Is_Text(Convert_To_Date_Format(form, 1, 2000), std::string(row.number) + "/1/2000")) << form;
    }
  }
}

TEST(Convert_To_Date_Format, TakesTheNumbersOneToTwelve) {
  for (int month = 1; month <= 12; ++month) {
    EXPECT_TRUE(Is_Text(Convert_To_Date_Format(month, 1, 2000), std::to_string(month) + "/1/2000"));
    EXPECT_TRUE(Is_Text(Convert_To_Date_Format(std::to_string(month), 1, 2000), std::to_string(month) + "/1/2000"));
  }
}

TEST(Convert_To_Date_Format, TakesOnlyExactForms) {
  for (const char* form : {"january", "JAN", "Febuary", "February ", "fevrier", "juillet", "mayo", "mai", "May.",
                           "Sept", "Octobre", "13", "0", "", "1.5", "010a"}) {
    EXPECT_TRUE(Is_Text(Convert_To_Date_Format(form, 1, 2000), "/1/2000")) << '"' << form << '"';
  }
}

TEST(Convert_To_Date_Format, ATextOfDigitsCountsAsItsNumber) {
  EXPECT_TRUE(Is_Text(Convert_To_Date_Format("10", 1, 2000), "10/1/2000"));
  EXPECT_TRUE(Is_Text(Convert_To_Date_Format(" 3 ", 1, 2000), "3/1/2000"));
  EXPECT_TRUE(Is_Text(Convert_To_Date_Format("012", 1, 2000), "12/1/2000"));
}

TEST(Convert_To_Date_Format, EmptyAndOtherNumbersMatchNoMonth) {
  EXPECT_TRUE(Is_Text(Convert_To_Date_Format(Value(), 1, 2000), "/1/2000"));
  EXPECT_TRUE(Is_Text(Convert_To_Date_Format(0, 1, 2000), "/1/2000"));
  EXPECT_TRUE(Is_Text(Convert_To_Date_Format(13, 1, 2000), "/1/2000"));
  EXPECT_TRUE(Is_Text(Convert_To_Date_Format(2.5, 1, 2000), "/1/2000"));
}

TEST(Convert_To_Date_Format, CopiesDateAndYearWithoutACheck) {
  EXPECT_TRUE(Is_Text(Convert_To_Date_Format("Feb", "31", "abc"), "2/31/abc"));
  EXPECT_TRUE(Is_Text(Convert_To_Date_Format("Feb", Value(), Value()), "2//"));
  EXPECT_TRUE(Is_Text(Convert_To_Date_Format("Feb", 0.5, -44), "2/0.5/-44"));
}

// ---- 12-hour to 24-hour ---------------------------------------------------------------------

TEST(Convert_Hour_To_Military_Time, MorningHoursStandAndTwelveIsZero) {
  EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time(12, "AM"), 0));
  for (int hour = 1; hour <= 11; ++hour) EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time(hour, "AM"), hour));
}

TEST(Convert_Hour_To_Military_Time, AfternoonHoursGainTwelve) {
  EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time(12, "PM"), 12));
  for (int hour = 1; hour <= 11; ++hour) {
    EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time(hour, "PM"), hour + 12));
  }
}

TEST(Convert_Hour_To_Military_Time, AnHourOutsideTheTableIsEmptyInTheMorningAndTwelveInTheAfternoon) {
  EXPECT_TRUE(Convert_Hour_To_Military_Time(13, "AM").is_empty());
  EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time(13, "PM"), 12));
  EXPECT_TRUE(Convert_Hour_To_Military_Time(0, "AM").is_empty());
  EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time(0, "PM"), 12));
  EXPECT_TRUE(Convert_Hour_To_Military_Time(-1, "AM").is_empty());
}

TEST(Convert_Hour_To_Military_Time, OnlyPmAddsTwelve) {
  EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time(3, "pm"), 3));
  EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time(3, ""), 3));
  EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time(3, Value()), 3));
  EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time(3, 12), 3));
}

TEST(Convert_Hour_To_Military_Time, TakesTheHourAsText) {
  EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time("02", "PM"), 14));
  EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time(Value(), "PM"), 12));  // empty is 0
}

TEST(Convert_Hour_To_Military_Time, RoundsAFractionalHourHalfToEven) {
  EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time(2.5, "AM"), 2));
  EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time(11.5, "AM"), 0));
}

TEST(Convert_Hour_To_Military_Time, AnHourBeyondSixteenBitsOverflows) {
  EXPECT_EQ(Failure_Of([] { Convert_Hour_To_Military_Time(32768, "AM"); }), kOverflow);
  EXPECT_EQ(Failure_Of([] { Convert_Hour_To_Military_Time(-32769, "PM"); }), kOverflow);
  EXPECT_EQ(Failure_Of([] { Convert_Hour_To_Military_Time("1e10", "PM"); }), kOverflow);
  EXPECT_EQ(Failure_Of([] { Convert_Hour_To_Military_Time(32767, "AM"); }), 0);
  EXPECT_EQ(Failure_Of([] { Convert_Hour_To_Military_Time(-32768, "AM"); }), 0);
}

TEST(Convert_Hour_To_Military_Time, AnHourThatIsNoNumberIsATypeMismatch) {
  EXPECT_EQ(Failure_Of([] { Convert_Hour_To_Military_Time("two", "PM"); }), kTypeMismatch);
}

// ---- 24-hour to 12-hour ---------------------------------------------------------------------

TEST(Convert_Hour_From_Military_Time, MidnightIsTwelveAm) {
  EXPECT_TRUE(Is_Number(Convert_Hour_From_Military_Time(0, "Hour"), 12));
  EXPECT_TRUE(Is_Text(Convert_Hour_From_Military_Time(0, "Time Of Day"), "AM"));
}

TEST(Convert_Hour_From_Military_Time, NoonIsTwelvePm) {
  EXPECT_TRUE(Is_Number(Convert_Hour_From_Military_Time(12, "Hour"), 12));
  EXPECT_TRUE(Is_Text(Convert_Hour_From_Military_Time(12, "Time Of Day"), "PM"));
}

TEST(Convert_Hour_From_Military_Time, FollowsItsTableForEveryHour) {
  for (int hour = 1; hour <= 11; ++hour) {
    EXPECT_TRUE(Is_Number(Convert_Hour_From_Military_Time(hour, "Hour"), hour));
    EXPECT_TRUE(Is_Text(Convert_Hour_From_Military_Time(hour, "Time Of Day"), "AM"));
  }
  for (int hour = 13; hour <= 23; ++hour) {
    EXPECT_TRUE(Is_Number(Convert_Hour_From_Military_Time(hour, "Hour"), hour - 12));
    EXPECT_TRUE(Is_Text(Convert_Hour_From_Military_Time(hour, "Time Of Day"), "PM"));
  }
}

TEST(Convert_Hour_From_Military_Time, AnyOtherHourIsEmpty) {
  for (int hour : {-1, 24, 100, -32768, 32767}) {
    EXPECT_TRUE(Convert_Hour_From_Military_Time(hour, "Hour").is_empty()) << hour;
    EXPECT_TRUE(Convert_Hour_From_Military_Time(hour, "Time Of Day").is_empty()) << hour;
  }
}

TEST(Convert_Hour_From_Military_Time, AnUnknownPartIsEmpty) {
  EXPECT_TRUE(Convert_Hour_From_Military_Time(14, "Minute").is_empty());
  EXPECT_TRUE(Convert_Hour_From_Military_Time(14, "hour").is_empty());
}

TEST(Convert_Hour_From_Military_Time, TakesTheHourAsText) {
  EXPECT_TRUE(Is_Number(Convert_Hour_From_Military_Time("09", "Hour"), 9));
  EXPECT_TRUE(Is_Number(Convert_Hour_From_Military_Time("23", "Hour"), 11));
}

TEST(Convert_Hour_From_Military_Time, AnHourBeyondSixteenBitsOverflowsWhateverThePart) {
  EXPECT_EQ(Failure_Of([] { Convert_Hour_From_Military_Time(40000, "Hour"); }), kOverflow);
  EXPECT_EQ(Failure_Of([] { Convert_Hour_From_Military_Time(40000, "Minute"); }), kOverflow);
  EXPECT_EQ(Failure_Of([] { Convert_Hour_From_Military_Time("x", "Hour"); }), kTypeMismatch);
}

TEST(HourConverters, GoThereAndBackForEveryHourOfTheDay) {
  for (int hour = 0; hour <= 23; ++hour) {
    const Value twelve = Convert_Hour_From_Military_Time(hour, "Hour");
    const Value half = Convert_Hour_From_Military_Time(hour, "Time Of Day");
    EXPECT_TRUE(Is_Number(Convert_Hour_To_Military_Time(twelve, half), hour));
  }
}

}  // namespace
}  // namespace orrivane::organizer
