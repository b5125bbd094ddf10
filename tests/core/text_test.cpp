#include "core/text.h"

#include <gtest/gtest.h>

#include <limits>

#include "core/runtime_failure.h"
#include "support/failure_of.h"

namespace orrivane::text {
namespace {

using orrivane::testing::Failure_Of;

// ---- Left, Right, Mid ---------------------------------------------------------------------

TEST(Left, TakesTheLeftmostCharacters) {
  EXPECT_EQ(Left("14:05", 2), "14");
  EXPECT_EQ(Left("14:05", 0), "");
  EXPECT_EQ(Left("14:05", 99), "14:05");
  EXPECT_EQ(Left("", 3), "");
}

TEST(Left, ANegativeLengthIsAnInvalidProcedureCall) {
  EXPECT_EQ(Failure_Of([] { Left("abc", -1); }), kInvalidProcedureCall);
  EXPECT_EQ(Failure_Of([] { Left("", -1); }), kInvalidProcedureCall);
}

TEST(Right, TakesTheRightmostCharacters) {
  EXPECT_EQ(Right("14:05", 2), "05");
  EXPECT_EQ(Right("14:05", 0), "");
  EXPECT_EQ(Right("14:05", 99), "14:05");
}

TEST(Right, ANegativeLengthIsAnInvalidProcedureCall) {
  EXPECT_EQ(Failure_Of([] { Right("abc", -1); }), kInvalidProcedureCall);
}

TEST(Mid, TakesFromAPositionToTheEnd) {
  EXPECT_EQ(Mid("March", 1), "March");
  EXPECT_EQ(Mid("March", 3), "rch");
  EXPECT_EQ(Mid("March", 5), "h");
  EXPECT_EQ(Mid("March", 6), "");
  EXPECT_EQ(Mid("March", 1000), "");
}

TEST(Mid, TakesAGivenLength) {
  EXPECT_EQ(Mid("March", 2, 3), "arc");
  EXPECT_EQ(Mid("March", 4, 99), "ch");
  EXPECT_EQ(Mid("March", 2, 0), "");
  EXPECT_EQ(Mid("March", 9, 2), "");
}

TEST(Mid, AStartBelowOneIsAnInvalidProcedureCall) {
  EXPECT_EQ(Failure_Of([] { Mid("abc", 0); }), kInvalidProcedureCall);
  EXPECT_EQ(Failure_Of([] { Mid("abc", -3, 1); }), kInvalidProcedureCall);
}

TEST(Mid, ANegativeLengthIsAnInvalidProcedureCall) {
  EXPECT_EQ(Failure_Of([] { Mid("abc", 1, -1); }), kInvalidProcedureCall);
}

// ---- Searching ----------------------------------------------------------------------------

TEST(InStr, CountsPositionsFromOne) {
  EXPECT_EQ(InStr("2:05:09 PM", ":"), 2);
  EXPECT_EQ(InStr("2:05:09 PM", " "), 8);
  EXPECT_EQ(InStr("2:05:09 PM", "05"), 3);
  EXPECT_EQ(InStr(":", ":"), 1);
}

TEST(InStr, NotFoundIsZero) {
  EXPECT_EQ(InStr("1405", ":"), 0);
  EXPECT_EQ(InStr("", ":"), 0);
}

TEST(InStr, SearchesFromAStartPosition) {
  EXPECT_EQ(InStr("2:05:09", ":", 2), 2);
  EXPECT_EQ(InStr("2:05:09", ":", 3), 5);
  EXPECT_EQ(InStr("2:05:09", ":", 6), 0);
  EXPECT_EQ(InStr("2:05:09", ":", 100), 0);
}

TEST(InStr, AnEmptyTextHoldsNothingNotEvenTheEmptyText) {
  EXPECT_EQ(InStr("", ""), 0);
  EXPECT_EQ(InStr("abc", ""), 1);
  EXPECT_EQ(InStr("abc", "", 2), 2);
}

TEST(InStr, AStartBelowOneIsAnInvalidProcedureCall) {
  EXPECT_EQ(Failure_Of([] { InStr("abc", "a", 0); }), kInvalidProcedureCall);
}

TEST(InStrRev, FindsTheLastOccurrence) {
  EXPECT_EQ(InStrRev("12/31/1999", "/"), 6);
  EXPECT_EQ(InStrRev("12/31", "/"), 3);
  EXPECT_EQ(InStrRev("1231", "/"), 0);
  EXPECT_EQ(InStrRev("", "/"), 0);
  EXPECT_EQ(InStrRev("", ""), 0);
}

TEST(Len, CountsCharacters) {
  EXPECT_EQ(Len(""), 0);
  EXPECT_EQ(Len("March"), 5);
}

// ---- Blanks and case ----------------------------------------------------------------------

TEST(Trim, RemovesBlanksOnly) {
  EXPECT_EQ(Trim("  Anna  "), "Anna");
  EXPECT_EQ(LTrim("  Anna  "), "Anna  ");
  EXPECT_EQ(RTrim("  Anna  "), "  Anna");
  EXPECT_EQ(Trim("\tAnna\t"), "\tAnna\t");
  EXPECT_EQ(Trim("    "), "");
  EXPECT_EQ(LTrim(""), "");
}

TEST(Case, ChangesLettersOnly) {
  EXPECT_EQ(UCase("Save log 2!"), "SAVE LOG 2!");
  EXPECT_EQ(LCase("Save LOG 2!"), "save log 2!");
}

TEST(Ends_With, ComparesExactly) {
  EXPECT_TRUE(Ends_With("week.sdl", ".sdl"));
  EXPECT_FALSE(Ends_With("week.SDL", ".sdl"));
  EXPECT_FALSE(Ends_With("sdl", ".sdl"));
  EXPECT_TRUE(Ends_With("x", ""));
  EXPECT_TRUE(Starts_With("frmFindADate", "frm"));
  EXPECT_FALSE(Starts_With("fr", "frm"));
}

TEST(With_Extension, AddsTheExtensionUnlessTheNameEndsInItExactly) {
  EXPECT_EQ(With_Extension("week", ".sdl"), "week.sdl");
  EXPECT_EQ(With_Extension("week.sdl", ".sdl"), "week.sdl");
  EXPECT_EQ(With_Extension("week.SDL", ".sdl"), "week.SDL.sdl");
  EXPECT_EQ(With_Extension("", ".dte"), ".dte");
}

TEST(One_Line, TurnsLineBreaksIntoSingleBlanks) {
  EXPECT_EQ(One_Line("Bring\r\nX-rays"), "Bring X-rays");
  EXPECT_EQ(One_Line("a \r\n\r\n  b"), "a b");
  EXPECT_EQ(One_Line("a\rb\nc"), "a b c");
  EXPECT_EQ(One_Line(""), "");
}

// ---- Numbers in text ----------------------------------------------------------------------

TEST(Val, ReadsTheNumberAtTheHead) {
  EXPECT_EQ(Val("12abc"), 12);
  EXPECT_EQ(Val("-5.5 kg"), -5.5);
  EXPECT_EQ(Val("1.2.3"), 1.2);
  EXPECT_EQ(Val(".5"), 0.5);
  EXPECT_EQ(Val("+7"), 7);
}

TEST(Val, NoNumberIsZero) {
  EXPECT_EQ(Val(""), 0);
  EXPECT_EQ(Val("abc"), 0);
  EXPECT_EQ(Val("-"), 0);
  EXPECT_EQ(Val("."), 0);
  EXPECT_EQ(Val("-.x"), 0);
}

TEST(Val, DecimalsAreExact) {
  EXPECT_EQ(Val("0.3"), 0.3);
  EXPECT_EQ(Val("14.05"), 14.05);
}

TEST(Val, IgnoresBlanksTabsAndLineFeedsAnywhere) {
  EXPECT_EQ(Val(" 1615 198th Street"), 1615198);
  EXPECT_EQ(Val("\t- 5"), -5);
  EXPECT_EQ(Val("1\n2"), 12);
}

TEST(Val, ReadsAnExponent) {
  EXPECT_EQ(Val("1e3"), 1000);
  EXPECT_EQ(Val("2.5E-1x"), 0.25);
  EXPECT_EQ(Val("3e"), 3);
  EXPECT_EQ(Val("3e+"), 3);
}

TEST(Val, ANumberTooLargeToHoldOverflows) {
  EXPECT_EQ(Failure_Of([] { Val("1e400"); }), kOverflow);
  EXPECT_EQ(Val("1e-400"), 0);
}

TEST(Pad_Zero, PutsZerosInFront) {
  EXPECT_EQ(Pad_Zero(5, 2), "05");
  EXPECT_EQ(Pad_Zero(14, 2), "14");
  EXPECT_EQ(Pad_Zero(123, 2), "123");
  EXPECT_EQ(Pad_Zero(0, 2), "00");
  EXPECT_EQ(Pad_Zero(-5, 3), "-005");
  EXPECT_EQ(Pad_Zero(7, 0), "7");
}

TEST(Pad_Zero, HoldsTheSmallestWholeNumber) {
  EXPECT_EQ(Pad_Zero(std::numeric_limits<long long>::min(), 2), "-9223372036854775808");
}

}  // namespace
}  // namespace orrivane::text
