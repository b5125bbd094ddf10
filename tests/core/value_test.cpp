#include "core/value.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

#include "core/runtime_failure.h"
#include "support/failure_of.h"

namespace orrivane {
namespace {

using orrivane::testing::Failure_Of;

// ---- Kinds --------------------------------------------------------------------------------

TEST(Value, DefaultIsEmpty) {
  const Value v;
  EXPECT_TRUE(v.is_empty());
  EXPECT_FALSE(v.is_number());
  EXPECT_FALSE(v.is_text());
}

TEST(Value, NumbersAndTextsKeepTheirKind) {
  EXPECT_TRUE(Value(5).is_number());
  EXPECT_TRUE(Value(5L).is_number());
  EXPECT_TRUE(Value(5LL).is_number());
  EXPECT_TRUE(Value(0.5).is_number());
  EXPECT_TRUE(Value("5").is_text());
  EXPECT_TRUE(Value(std::string("5")).is_text());
  EXPECT_TRUE(Value(std::string_view("5")).is_text());
  EXPECT_TRUE(Value("").is_text());
}

// ---- Adding 0 -----------------------------------------------------------------------------

TEST(Value, AddingZeroToATextOfDigitsMakesANumber) {
  EXPECT_EQ(Value("09").number(), 9);
  EXPECT_TRUE(Value("09").plus_zero().is_number());
  EXPECT_EQ(Value("09").plus_zero().text(), "9");
}

TEST(Value, AddingZeroAcceptsBlanksSignsPointsAndExponents) {
  EXPECT_EQ(Value(" 12 ").number(), 12);
  EXPECT_EQ(Value("\t-3").number(), -3);
  EXPECT_EQ(Value("+4").number(), 4);
  EXPECT_EQ(Value("2.5").number(), 2.5);
  EXPECT_EQ(Value(".5").number(), 0.5);
  EXPECT_EQ(Value("5.").number(), 5);
  EXPECT_EQ(Value("1e3").number(), 1000);
  EXPECT_EQ(Value("1E-2").number(), 0.01);
}

TEST(Value, AddingZeroToATextThatIsNoNumberIsATypeMismatch) {
  for (const char* text : {"abc", "", " ", "-", ".", "1e", "1.2.3", "12a", "+-1", "1 2", "0x10"}) {
    EXPECT_EQ(Failure_Of([&] { (void)Value(text).number(); }), kTypeMismatch) << '"' << text << '"';
  }
}

TEST(Value, EmptyCountsAsZero) {
  EXPECT_EQ(Value().number(), 0);
  EXPECT_EQ(Value().whole(), 0);
  EXPECT_TRUE(Value().plus_zero().is_number());
}

TEST(Value, ANumberTooLargeToHoldOverflows) {
  EXPECT_EQ(Failure_Of([] { (void)Value("1e400").number(); }), kOverflow);
  EXPECT_EQ(Failure_Of([] { (void)Value("-1e400").number(); }), kOverflow);
  EXPECT_EQ(Failure_Of([] { (void)Value(std::string(400, '9')).number(); }), kOverflow);
}

TEST(Value, ANumberTooSmallToHoldIsZero) {
  EXPECT_EQ(Value("1e-400").number(), 0);
  EXPECT_EQ(Value("-0.000001e-400").number(), 0);
  EXPECT_EQ(Value("0." + std::string(400, '0') + "1").number(), 0);
}

TEST(Value, ZeroWithAHugeExponentIsZero) { EXPECT_EQ(Value("0e99999999999999999999").number(), 0); }

TEST(ParseNumber, TellsNumbersFromOtherTexts) {
  EXPECT_EQ(Parse_Number("42"), 42.0);
  EXPECT_EQ(Parse_Number("abc"), std::nullopt);
  EXPECT_TRUE(Is_Numeric("  7.25 "));
  EXPECT_FALSE(Is_Numeric(""));
  EXPECT_FALSE(Is_Numeric("March"));
  EXPECT_TRUE(Is_Numeric("1e400"));  // a number, only too large to hold
}

TEST(ParseNumber, WholeNumbersAreExactWithTheirSignAndBlanks) {
  EXPECT_EQ(Parse_Number("05"), 5.0);
  EXPECT_EQ(Parse_Number(" -1 "), -1.0);
  EXPECT_EQ(Parse_Number("+16711680"), 16711680.0);
  EXPECT_EQ(Parse_Number("999999999999999"), 999999999999999.0);
  EXPECT_EQ(Parse_Number("9007199254740993"), 9007199254740992.0);  // 16 digits: the nearest double
  const std::optional<double> minus_zero = Parse_Number("-0");
  ASSERT_TRUE(minus_zero.has_value());
  EXPECT_TRUE(std::signbit(*minus_zero));
  EXPECT_EQ(Parse_Number("-"), std::nullopt);
  EXPECT_EQ(Parse_Number("1 2"), std::nullopt);
}

// ---- Whole numbers --------------------------------------------------------------------------

TEST(Value, WholeRoundsHalfToEven) {
  EXPECT_EQ(Value(0.5).whole(), 0);
  EXPECT_EQ(Value(1.5).whole(), 2);
  EXPECT_EQ(Value(2.5).whole(), 2);
  EXPECT_EQ(Value(3.5).whole(), 4);
  EXPECT_EQ(Value(-2.5).whole(), -2);
  EXPECT_EQ(Value(2.6).whole(), 3);
  EXPECT_EQ(Value("2.5").whole(), 2);
}

TEST(Value, WholeHoldsSixtyFourBits) {
  EXPECT_EQ(Value(-9223372036854775808.0).whole(), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(Value(9007199254740992.0).whole(), 9007199254740992LL);
}

TEST(Value, WholeBeyondSixtyFourBitsOverflows) {
  EXPECT_EQ(Failure_Of([] { (void)Value(9223372036854775808.0).whole(); }), kOverflow);
  EXPECT_EQ(Failure_Of([] { (void)Value(-9.3e18).whole(); }), kOverflow);
  EXPECT_EQ(Failure_Of([] { (void)Value(std::numeric_limits<double>::infinity()).whole(); }), kOverflow);
  EXPECT_EQ(Failure_Of([] { (void)Value(std::numeric_limits<double>::quiet_NaN()).whole(); }), kOverflow);
}

TEST(Value, WholeOfATextThatIsNoNumberIsATypeMismatch) {
  EXPECT_EQ(Failure_Of([] { (void)Value("abc").whole(); }), kTypeMismatch);
}

// ---- Text form ----------------------------------------------------------------------------

TEST(Value, ATextStandsAsItIs) { EXPECT_EQ(Value(" 09 ").text(), " 09 "); }

TEST(Value, EmptyHasNoText) { EXPECT_EQ(Value().text(), ""); }

TEST(NumberText, IsTheShortestDecimal) {
  EXPECT_EQ(Number_Text(16711680), "16711680");
  EXPECT_EQ(Number_Text(-1), "-1");
  EXPECT_EQ(Number_Text(0.5), "0.5");
  EXPECT_EQ(Number_Text(-0.25), "-0.25");
  EXPECT_EQ(Number_Text(0.1), "0.1");
  EXPECT_EQ(Number_Text(20), "20");
  EXPECT_EQ(Number_Text(999999999999999.0), "999999999999999");
  EXPECT_EQ(Number_Text(1e15), "1e+15");
  EXPECT_EQ(Number_Text(1e-5), "1e-05");
}

TEST(NumberText, ZeroHasNoSign) {
  EXPECT_EQ(Number_Text(0.0), "0");
  EXPECT_EQ(Number_Text(-0.0), "0");
}

TEST(NumberText, ReadsBackToTheSameNumber) {
  for (double x : {0.1 + 0.2, 1.0 / 3, 123456.789, 1e300, -4.9e-324, 1e15, 2e20}) {
    EXPECT_EQ(Parse_Number(Number_Text(x)), x) << Number_Text(x);
  }
}

// ---- Comparison -----------------------------------------------------------------------------

TEST(Compare, NumbersCompareByValue) {
  EXPECT_LT(Compare(Value(2), Value(10)), 0);
  EXPECT_GT(Compare(Value(10), Value(2)), 0);
  EXPECT_EQ(Compare(Value(2.0), Value(2)), 0);
}

TEST(Compare, TextsCompareByCharacters) {
  EXPECT_GT(Compare(Value("2"), Value("10")), 0);
  EXPECT_LT(Compare(Value("Anna"), Value("Ben")), 0);
  EXPECT_LT(Compare(Value("Z"), Value("a")), 0);  // case counts, capitals first
  EXPECT_FALSE(Value("09") == Value("9"));
  EXPECT_TRUE(Value("March") == Value("March"));
}

TEST(Compare, ATextAndANumberCompareAsNumbers) {
  EXPECT_TRUE(Value("09") == Value(9));
  EXPECT_TRUE(Value(9) == Value("09"));
  EXPECT_LT(Compare(Value("2"), Value(10)), 0);
  EXPECT_GT(Compare(Value(10), Value("2")), 0);
  EXPECT_TRUE(Value(" -1 ") == Value(-1));
}

TEST(Compare, ATextThatIsNoNumberIsUnequalToEveryNumberAndOrdersAfterIt) {
  EXPECT_FALSE(Value("abc") == Value(1));
  EXPECT_GT(Compare(Value("abc"), Value(1e300)), 0);
  EXPECT_LT(Compare(Value(-5), Value("")), 0);
}

TEST(Compare, AHugeNumberTextOrdersAfterEveryNumber) {
  EXPECT_GT(Compare(Value("1e400"), Value(1e308)), 0);
  EXPECT_LT(Compare(Value(1e308), Value("1e400")), 0);
}

TEST(Compare, EmptyIsZeroNextToANumber) {
  EXPECT_TRUE(Value() == Value(0));
  EXPECT_LT(Compare(Value(), Value(1)), 0);
  EXPECT_GT(Compare(Value(), Value(-1)), 0);
  EXPECT_GT(Compare(Value(1), Value()), 0);
}

TEST(Compare, EmptyIsTheEmptyTextNextToAText) {
  EXPECT_TRUE(Value() == Value(""));
  EXPECT_FALSE(Value() == Value("0"));
  EXPECT_LT(Compare(Value(), Value("a")), 0);
  EXPECT_GT(Compare(Value("a"), Value()), 0);
}

TEST(Compare, EmptyEqualsEmpty) { EXPECT_TRUE(Value() == Value()); }

TEST(Compare, InequalityIsTheOppositeOfEquality) {
  EXPECT_TRUE(Value("09") != Value("9"));
  EXPECT_FALSE(Value("09") != Value(9));
}

}  // namespace
}  // namespace orrivane
