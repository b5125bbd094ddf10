#include "elapsed/decimal_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "core/runtime_failure.h"
#include "support/failure_of.h"

namespace orrivane::elapsed {
namespace {

using orrivane::testing::Failure_Of;

std::string Repeat(char c, std::size_t n) { return std::string(n, c); }

// ---- A reference big integer --------------------------------------------------------------
// Little-endian decimal digits without high zeros; zero is the empty vector.

using Ref = std::vector<int>;

void Trim(Ref& a) {
  while (!a.empty() && a.back() == 0) a.pop_back();
}

Ref Ref_Of(const std::string& text) {
  Ref a;
  for (auto it = text.rbegin(); it != text.rend(); ++it) a.push_back(*it - '0');
  Trim(a);
  return a;
}

Ref Ref_Of(unsigned long long n) { return Ref_Of(std::to_string(n)); }

std::string Text_Of(const Ref& a) {
  if (a.empty()) return "0";
  std::string text;
  for (auto it = a.rbegin(); it != a.rend(); ++it) text += static_cast<char>('0' + *it);
  return text;
}

int Ref_Compare(const Ref& a, const Ref& b) {
  if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
  for (std::size_t i = a.size(); i-- > 0;) {
    if (a[i] != b[i]) return a[i] < b[i] ? -1 : 1;
  }
  return 0;
}

Ref Ref_Add(const Ref& a, const Ref& b) {
  Ref sum(std::max(a.size(), b.size()) + 1, 0);
  int carry = 0;
  for (std::size_t i = 0; i < sum.size(); ++i) {
    const int d = (i < a.size() ? a[i] : 0) + (i < b.size() ? b[i] : 0) + carry;
    sum[i] = d % 10;
    carry = d / 10;
  }
  Trim(sum);
  return sum;
}

Ref Ref_Sub(const Ref& a, const Ref& b) {  // a >= b
  Ref difference = a;
  int borrow = 0;
  for (std::size_t i = 0; i < difference.size(); ++i) {
    int d = difference[i] - borrow - (i < b.size() ? b[i] : 0);
    borrow = d < 0;
    difference[i] = d + 10 * borrow;
  }
  Trim(difference);
  return difference;
}

Ref Ref_Mul(const Ref& a, const Ref& b) {
  std::vector<long long> cells(a.size() + b.size() + 1, 0);
  for (std::size_t i = 0; i < a.size(); ++i) {
    for (std::size_t j = 0; j < b.size(); ++j) cells[i + j] += a[i] * b[j];
  }
  Ref product;
  long long carry = 0;
  for (const long long c : cells) {
    const long long d = c + carry;
    product.push_back(static_cast<int>(d % 10));
    carry = d / 10;
  }
  Trim(product);
  return product;
}

Ref Ref_Pow10(std::size_t n) {
  Ref a(n + 1, 0);
  a[n] = 1;
  return a;
}

// Binary long division: the doublings of the divisor taken greedily from the largest.
std::pair<Ref, Ref> Ref_DivMod(const Ref& a, const Ref& b) {
  std::vector<Ref> multiples{b};
  std::vector<Ref> powers{Ref_Of(1)};
  while (Ref_Compare(multiples.back(), a) <= 0) {
    multiples.push_back(Ref_Add(multiples.back(), multiples.back()));
    powers.push_back(Ref_Add(powers.back(), powers.back()));
  }
  Ref quotient;
  Ref rest = a;
  for (std::size_t k = multiples.size(); k-- > 0;) {
    if (Ref_Compare(multiples[k], rest) <= 0) {
      rest = Ref_Sub(rest, multiples[k]);
      quotient = Ref_Add(quotient, powers[k]);
    }
  }
  return {quotient, rest};
}

const Ref& Limit() {  // 10^100, where the working arrays end
  static const Ref limit = Ref_Pow10(100);
  return limit;
}

bool Reaches_Limit(const Ref& a) { return Ref_Compare(a, Limit()) >= 0; }

// ---- Expected answers, worked out independently -------------------------------------------

struct Expected {
  int failure = 0;
  std::string answer;
};

Expected Failed() { return {9, ""}; }
Expected Answered(const Ref& a) { return {0, Text_Of(a)}; }

Expected Expected_Add(const std::string& a, const std::string& b) {
  const Ref sum = Ref_Add(Ref_Of(a), Ref_Of(b));
  return Reaches_Limit(sum) ? Failed() : Answered(sum);
}

Expected Expected_Subtract(const std::string& a, const std::string& b) {
  const Ref x = Ref_Of(a);
  const Ref y = Ref_Of(b);
  if (Ref_Compare(x, y) >= 0) return Answered(Ref_Sub(x, y));
  const std::size_t width = std::max(a.size(), b.size());
  if (width == 100) return Failed();  // the lost borrow would stand at index 101
  return Answered(Ref_Sub(Ref_Add(Ref_Pow10(width), x), y));
}

// A 100-character second number always fails (its row's last carry cell is index 101); a top
// row whose carry is not 0 reaches past index 100 when the widths add to 101; so does any row
// when they add to more; and so does any product of 101 digits.
Expected Expected_Multiply(const std::string& a, const std::string& b) {
  const Ref product = Ref_Mul(Ref_Of(a), Ref_Of(b));
  if (a.empty()) return Answered(product);
  const std::size_t widths = a.size() + b.size();
  const bool top_row_carries = Ref_Compare(Ref_Mul(Ref_Of(a.substr(0, 1)), Ref_Of(b)), Ref_Pow10(b.size())) >= 0;
  if (b.size() == 100 || widths > 101 || (widths == 101 && top_row_carries) || Reaches_Limit(product)) {
    return Failed();
  }
  return Answered(product);
}

std::string Expected_Compare(const std::string& a, const std::string& b) {
  const int order = Ref_Compare(Ref_Of(a), Ref_Of(b));
  return order == 0 ? "0" : order > 0 ? "1" : "2";
}

// Division by repeated addition, step for step: the table of multiples, then passes that add the
// largest multiple that fits to a running product, every sum through an Add that fails at
// 10^100. Runs of a multiple that fit with room to spare are skipped in one stride: each of them
// would fit, stay, and form sums below the dividend.
struct Simulated_Division {
  bool failed = false;
  Ref quotient;
};

Simulated_Division Simulate_Division(const Ref& dividend, const Ref& divisor) {
  Simulated_Division result;
  std::vector<Ref> multiple;
  std::vector<Ref> triple;
  for (std::size_t p = 0; p <= 16; ++p) {
    multiple.push_back(Ref_Mul(divisor, Ref_Pow10(p)));
    if (Reaches_Limit(multiple.back())) return {true, {}};
    triple.push_back(Ref_Add(multiple.back(), Ref_Add(multiple.back(), multiple.back())));
  }
  Ref sum;
  Ref product;
  auto add = [&](const Ref& a, const Ref& b) {
    sum = Ref_Add(a, b);
    return !Reaches_Limit(sum);
  };
  int with_product = 0;
  int with_product_and_divisor = 0;
  do {
    for (int p = 16; p >= 0; --p) {
      const Ref& t = multiple[static_cast<std::size_t>(p)];
      const Ref rest = Ref_Sub(dividend, product);
      if (Ref_Compare(rest, triple[static_cast<std::size_t>(p)]) >= 0) {
        const Ref stride = Ref_Sub(Ref_DivMod(rest, t).first, Ref_Of(2));
        product = Ref_Add(product, Ref_Mul(stride, t));
        result.quotient = Ref_Add(result.quotient, Ref_Mul(stride, Ref_Pow10(static_cast<std::size_t>(p))));
      }
      if (!add(t, product)) return {true, {}};
      if (Ref_Compare(dividend, sum) >= 0) {
        product = sum;
        result.quotient = Ref_Add(result.quotient, Ref_Pow10(static_cast<std::size_t>(p)));
      }
      with_product = Ref_Compare(dividend, product);
      if (with_product < 0) break;
      if (!add(product, divisor)) return {true, {}};
      with_product_and_divisor = Ref_Compare(dividend, sum);
      if (with_product_and_divisor < 0) break;
      if (!add(product, t)) return {true, {}};
      if (Ref_Compare(dividend, sum) > 0) ++p;
    }
  } while (with_product > 0 && with_product_and_divisor >= 0);
  return result;
}

Expected Actual(const std::string& operation, const std::string& a, const std::string& b) {
  Expected actual;
  actual.failure = Failure_Of([&] { actual.answer = Calculate(operation, a, b); });
  return actual;
}

void Expect_Same(const Expected& expected, const Expected& actual, const std::string& operation, const std::string& a,
                 const std::string& b) {
  EXPECT_EQ(expected.failure, actual.failure) << operation << " " << a << " " << b;
  if (expected.failure == 0) {
    EXPECT_EQ(expected.answer, actual.answer) << operation << " " << a << " " << b;
  }
}

// ---- Random operands ----------------------------------------------------------------------

class Operands {
 public:
  explicit Operands(unsigned seed) : random_(seed) {}

  int Between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

  // `length` characters, the first not 0 unless leading zeros are asked for.
  std::string Digits(int length, bool leading_zeros = false) {
    std::string text;
    for (int i = 0; i < length; ++i) {
      const int low = (i == 0 && !leading_zeros && length > 1) ? 1 : 0;
      text += static_cast<char>('0' + Between(low, 9));
    }
    return text;
  }

  // Mostly plain numbers, sometimes with zeros in front, sometimes all nines.
  std::string Number(int max_length) {
    const int length = Between(0, max_length);
    switch (Between(0, 9)) {
      case 0:
        return Repeat('0', static_cast<std::size_t>(Between(0, 3))) + Digits(std::max(0, length - 3));
      case 1:
        return Repeat('9', static_cast<std::size_t>(length));
      default:
        return Digits(length);
    }
  }

 private:
  std::mt19937_64 random_;
};

// ---- Edge cases ---------------------------------------------------------------------------

TEST(Calculate, AddCarriesIntoANewDigit) { EXPECT_EQ(Calculate("Add", "999", "1"), "1000"); }

TEST(Calculate, SubtractBorrowsAcrossZeros) { EXPECT_EQ(Calculate("Subtract", "1000", "1"), "999"); }

TEST(Calculate, SubtractOfEqualNumbersIsZero) { EXPECT_EQ(Calculate("Subtract", "5", "5"), "0"); }

TEST(Calculate, SubtractOfALargerNumberGivesTheTensComplementWithoutSign) {
  EXPECT_EQ(Calculate("Subtract", "1", "2"), "9");
  EXPECT_EQ(Calculate("Subtract", "01", "2"), "99");  // the width is that of the wider text
  EXPECT_EQ(Calculate("Subtract", "5", "95"), "10");
  EXPECT_EQ(Calculate("Subtract", "0", "1"), "9");
}

TEST(Calculate, MultiplyByZeroIsZero) {
  EXPECT_EQ(Calculate("Multiply", "0", "12345"), "0");
  EXPECT_EQ(Calculate("Multiply", "12345", "000"), "0");
}

TEST(Calculate, MultiplyTwelveByTwelve) { EXPECT_EQ(Calculate("Multiply", "12", "12"), "144"); }

TEST(Calculate, CompareSeesThroughLeadingZeros) {
  EXPECT_EQ(Calculate("Compare", "007", "7"), "0");
  EXPECT_EQ(Calculate("Compare", "7", "0007"), "0");
  EXPECT_EQ(Calculate("Compare", "0010", "9"), "1");
  EXPECT_EQ(Calculate("Compare", "9", "0010"), "2");
  EXPECT_EQ(Calculate("Compare", "", "000"), "0");
}

TEST(Calculate, CompareAnswersTwoWhenTheSecondIsGreater) {
  EXPECT_EQ(Calculate("Compare", "8", "12"), "2");
  EXPECT_EQ(Calculate("Compare", "12", "8"), "1");
  EXPECT_EQ(Calculate("Compare", "45", "45"), "0");
}

TEST(Calculate, DivideByOneGivesTheDividend) { EXPECT_EQ(Calculate("Divide -integer", "1000", "1"), "1000"); }

TEST(Calculate, DivideTruncatesAndRemainderIsWhatIsLeft) {
  EXPECT_EQ(Calculate("Divide -integer", "7", "2"), "3");
  EXPECT_EQ(Calculate("Remainder", "7", "2"), "1");
  EXPECT_EQ(Calculate("Remainder", "8", "2"), "0");
  EXPECT_EQ(Calculate("Divide -integer", "2", "7"), "0");
  EXPECT_EQ(Calculate("Remainder", "2", "7"), "2");
}

TEST(Calculate, ZeroDividedIsZeroWithRemainderZero) {
  EXPECT_EQ(Calculate("Divide -integer", "0", "5"), "0");
  EXPECT_EQ(Calculate("Remainder", "0", "5"), "0");
  EXPECT_EQ(Calculate("Divide -integer", "", "5"), "0");
  EXPECT_EQ(Calculate("Remainder", "", "5"), "0");
}

TEST(Calculate, DivisionWithQuotientsOfManyDigits) {
  const std::string dividend = "1" + Repeat('0', 60);
  EXPECT_EQ(Calculate("Divide -integer", dividend, "3"), Repeat('3', 60));
  EXPECT_EQ(Calculate("Remainder", dividend, "3"), "1");
  EXPECT_EQ(Calculate("Divide -integer", "1" + Repeat('0', 99), "1"), "1" + Repeat('0', 99));
}

TEST(Calculate, ASmallWholeNumberPassedAsANumberWorksAsItsText) {
  EXPECT_EQ(Calculate("Add", 24, "1"), "25");
  EXPECT_EQ(Calculate("Multiply", Value(24), Value(60)), "1440");
  EXPECT_EQ(Calculate("Compare", Value(24), "024"), "0");
  EXPECT_EQ(Calculate("Divide -integer", Value(365.0), 7), "52");
}

TEST(Calculate, AnswersHaveNoLeadingZeros) {
  EXPECT_EQ(Calculate("Add", "0007", "0003"), "10");
  EXPECT_EQ(Calculate("Add", "000", "0"), "0");
  EXPECT_EQ(Calculate("Multiply", "0012", "0012"), "144");
  EXPECT_EQ(Calculate("Subtract", "0100", "99"), "1");
  EXPECT_EQ(Calculate("Divide -integer", "00100", "0010"), "10");
}

TEST(Calculate, EmptyOperandsCountAsZero) {
  EXPECT_EQ(Calculate("Add", "", "5"), "5");
  EXPECT_EQ(Calculate("Multiply", "", "5"), "0");
  EXPECT_EQ(Calculate("Add", "", ""), "");  // no digit at all to form an answer from
}

TEST(Calculate, AnUnknownOperationAnswersEmptyAndReadsNoOperand) {
  EXPECT_EQ(Calculate("Divide", "7", "2"), "");
  EXPECT_EQ(Calculate("add", "7", "2"), "");
  EXPECT_EQ(Calculate("Power", "x", Repeat('1', 200)), "");
}

// ---- Failures -----------------------------------------------------------------------------

TEST(Calculate, ANonDigitCharacterIsATypeMismatch) {
  for (const char* bad : {"12a", " 1", "1 ", "-1", "+1", "1.5", "1,000", "1e3"}) {
    EXPECT_EQ(Failure_Of([&] { Calculate("Add", bad, "1"); }), kTypeMismatch) << bad;
    EXPECT_EQ(Failure_Of([&] { Calculate("Compare", "1", bad); }), kTypeMismatch) << bad;
  }
  EXPECT_EQ(Failure_Of([] { Calculate("Add", Value(2.5), "1"); }), kTypeMismatch);
  EXPECT_EQ(Failure_Of([] { Calculate("Add", Value(-3), "1"); }), kTypeMismatch);
}

TEST(Calculate, AnOperandOfMoreThanOneHundredCharactersIsASubscriptFailure) {
  const std::string longest = Repeat('1', 100);
  EXPECT_EQ(Calculate("Compare", longest, "1"), "1");
  EXPECT_EQ(Failure_Of([&] { Calculate("Compare", longest + "1", "1"); }), kSubscriptOutOfRange);
  EXPECT_EQ(Failure_Of([&] { Calculate("Add", "1", "0" + longest); }), kSubscriptOutOfRange);
  // Characters are read from the right: a bad one among the last hundred is found first.
  EXPECT_EQ(Failure_Of([&] { Calculate("Add", longest + "x", "1"); }), kTypeMismatch);
  EXPECT_EQ(Failure_Of([&] { Calculate("Add", "x" + longest, "1"); }), kTypeMismatch);
  EXPECT_EQ(Failure_Of([&] { Calculate("Add", "x0" + longest, "1"); }), kSubscriptOutOfRange);
}

TEST(Calculate, AddFailsOnlyWhenTheCarryLeavesTheHundredthDigit) {
  const std::string nines = Repeat('9', 100);
  EXPECT_EQ(Failure_Of([&] { Calculate("Add", nines, "1"); }), kSubscriptOutOfRange);
  EXPECT_EQ(Calculate("Add", Repeat('9', 99), "1"), "1" + Repeat('0', 99));
  EXPECT_EQ(Calculate("Add", "0" + Repeat('9', 99), "1"), "1" + Repeat('0', 99));
  EXPECT_EQ(Calculate("Add", Repeat('4', 100), Repeat('5', 100)), nines);
}

TEST(Calculate, SubtractOfALargerHundredDigitNumberLosesItsBorrowPastTheArray) {
  EXPECT_EQ(Failure_Of([] { Calculate("Subtract", "1", Repeat('1', 100)); }), kSubscriptOutOfRange);
  EXPECT_EQ(Calculate("Subtract", "1", Repeat('1', 99)), Repeat('8', 97) + "90");
  EXPECT_EQ(Calculate("Subtract", Repeat('1', 100), "1"), Repeat('1', 99) + "0");
}

TEST(Calculate, MultiplyGivesAHundredDigitProductButNoMore) {
  EXPECT_EQ(Calculate("Multiply", Repeat('9', 50), Repeat('9', 50)), Repeat('9', 49) + "8" + Repeat('0', 49) + "1");
  EXPECT_EQ(Calculate("Multiply", "1" + Repeat('0', 99), "9"), "9" + Repeat('0', 99));
  EXPECT_EQ(Failure_Of([] { Calculate("Multiply", "1" + Repeat('0', 99), "10"); }), kSubscriptOutOfRange);
  EXPECT_EQ(Failure_Of([] { Calculate("Multiply", Repeat('9', 51), Repeat('9', 50)); }), kSubscriptOutOfRange);
}

TEST(Calculate, MultiplyByAHundredCharacterSecondNumberAlwaysFails) {
  // The carry cell after the last digit of the second number is written even when it gets 0.
  const std::string hundred = "1" + Repeat('0', 99);
  EXPECT_EQ(Failure_Of([&] { Calculate("Multiply", "1", hundred); }), kSubscriptOutOfRange);
  EXPECT_EQ(Failure_Of([&] { Calculate("Multiply", "0", hundred); }), kSubscriptOutOfRange);
  EXPECT_EQ(Calculate("Multiply", hundred, "1"), hundred);
  EXPECT_EQ(Calculate("Multiply", "", hundred), "0");  // no row at all
}

TEST(Calculate, MultiplyCountsLeadingZerosInTheWidthOfItsRows) {
  const std::string one = Repeat('0', 59) + "1";
  EXPECT_EQ(Failure_Of([&] { Calculate("Multiply", one, one); }), kSubscriptOutOfRange);
  EXPECT_EQ(Calculate("Multiply", Repeat('0', 40) + "1", one), "1");  // widths 101, top row 0
}

TEST(Calculate, DivisionByZeroFailsInsteadOfNeverEnding) {
  for (const char* zero : {"0", "000", ""}) {
    EXPECT_EQ(Failure_Of([&] { Calculate("Divide -integer", "12", zero); }), kDivisionByZero) << zero;
    EXPECT_EQ(Failure_Of([&] { Calculate("Remainder", "12", zero); }), kDivisionByZero) << zero;
  }
  EXPECT_EQ(Failure_Of([] { Calculate("Divide -integer", "0", "0"); }), kDivisionByZero);
}

TEST(Calculate, DivisionByADivisorOfEightyFiveDigitsOrMoreFails) {
  // Its table of multiples reaches the divisor times 10^16.
  const std::string divisor_84 = "1" + Repeat('0', 83);
  const std::string divisor_85 = "1" + Repeat('0', 84);
  EXPECT_EQ(Calculate("Divide -integer", "1" + Repeat('0', 99), divisor_84), "1" + Repeat('0', 16));
  EXPECT_EQ(Calculate("Remainder", "1" + Repeat('0', 98) + "7", divisor_84), "7");
  EXPECT_EQ(Failure_Of([&] { Calculate("Divide -integer", "0", divisor_85); }), kSubscriptOutOfRange);
  EXPECT_EQ(Failure_Of([&] { Calculate("Remainder", "5", "0" + divisor_85); }), kSubscriptOutOfRange);
}

TEST(Calculate, DivisionFailsWhenTheRunningSumsPassTheHundredthDigit) {
  // Near 10^100 the running product plus the largest multiple no longer fits.
  EXPECT_EQ(Failure_Of([] { Calculate("Divide -integer", Repeat('9', 100), "1"); }), kSubscriptOutOfRange);
  EXPECT_EQ(Failure_Of([] { Calculate("Remainder", Repeat('9', 100), "7"); }), kSubscriptOutOfRange);
  EXPECT_EQ(Calculate("Divide -integer", Repeat('9', 99), "1"), Repeat('9', 99));
}

// ---- Against the reference ----------------------------------------------------------------

TEST(CalculateProperty, AddMatchesTheReference) {
  Operands random(1);
  for (int n = 0; n < 4000; ++n) {
    const std::string a = random.Number(100);
    const std::string b = random.Number(100);
    Expect_Same(Expected_Add(a, b), Actual("Add", a, b), "Add", a, b);
  }
}

TEST(CalculateProperty, SubtractMatchesTheReference) {
  Operands random(2);
  for (int n = 0; n < 4000; ++n) {
    const std::string a = random.Number(100);
    const std::string b = random.Number(100);
    Expect_Same(Expected_Subtract(a, b), Actual("Subtract", a, b), "Subtract", a, b);
  }
}

TEST(CalculateProperty, MultiplyMatchesTheReference) {
  Operands random(3);
  for (int n = 0; n < 4000; ++n) {
    const int width = random.Between(1, 103);  // around the hundred-digit edge
    const int length = random.Between(std::max(0, width - 100), std::min(100, width));
    std::string a = random.Digits(length);
    std::string b = random.Digits(width - length);
    if (random.Between(0, 9) == 0 && !a.empty()) a[0] = '0';
    if (n % 2 == 1) std::swap(a, b);
    Expect_Same(Expected_Multiply(a, b), Actual("Multiply", a, b), "Multiply", a, b);
  }
}

TEST(CalculateProperty, CompareMatchesTheReference) {
  Operands random(4);
  for (int n = 0; n < 4000; ++n) {
    std::string a = random.Number(100);
    std::string b = n % 3 == 0 ? Repeat('0', static_cast<std::size_t>(random.Between(0, 3))) + a : random.Number(100);
    b = b.substr(0, 100);
    EXPECT_EQ(Calculate("Compare", a, b), Expected_Compare(a, b)) << a << " " << b;
  }
}

void Expect_Division_Like_Repeated_Addition(const std::string& a, const std::string& b) {
  const Ref dividend = Ref_Of(a);
  const Ref divisor = Ref_Of(b);
  const Simulated_Division division = Simulate_Division(dividend, divisor);
  Expected quotient = Failed();
  Expected remainder = Failed();
  if (!division.failed) {
    const auto [true_quotient, rest] = Ref_DivMod(dividend, divisor);
    ASSERT_EQ(Text_Of(division.quotient), Text_Of(true_quotient)) << a << " / " << b;
    quotient = Answered(true_quotient);
    remainder = Answered(rest);
  }
  Expect_Same(quotient, Actual("Divide -integer", a, b), "Divide -integer", a, b);
  Expect_Same(remainder, Actual("Remainder", a, b), "Remainder", a, b);
}

TEST(CalculateProperty, DivisionOfAnyWidthsMatchesTheReference) {
  Operands random(5);
  for (int n = 0; n < 200; ++n) {
    const std::string a = random.Number(100);
    std::string b = random.Digits(random.Between(1, 86));
    if (b.find_first_not_of('0') == std::string::npos) b = "7";
    Expect_Division_Like_Repeated_Addition(a, b);
  }
}

TEST(CalculateProperty, DivisionNearTheHundredDigitEdgeMatchesRepeatedAddition) {
  Operands random(6);
  int failures = 0;
  for (int n = 0; n < 120; ++n) {
    const std::string nines = Repeat('9', static_cast<std::size_t>(random.Between(1, 20)));
    const std::string dividend = (nines + random.Digits(100)).substr(0, 100);
    std::string divisor = random.Digits(random.Between(1, 84));
    if (divisor == "0") divisor = "3";
    Expect_Division_Like_Repeated_Addition(dividend, divisor);
    failures += Actual("Divide -integer", dividend, divisor).failure != 0;
  }
  // The cases must really sit on both sides of the edge.
  EXPECT_GT(failures, 12);
  EXPECT_LT(failures, 108);
}

TEST(CalculateProperty, ExactDivisionsMatchRepeatedAddition) {
  // A quotient ending in zeros leaves repeated addition a remainder of exactly some multiples, where
  // it stops one short and needs a second pass.
  Operands random(7);
  for (int n = 0; n < 150; ++n) {
    const Ref divisor = Ref_Of(random.Digits(random.Between(1, 83)) + "1");
    const int zeros = random.Between(0, 30);
    const Ref quotient =
        Ref_Mul(Ref_Of(random.Digits(random.Between(1, 4))), Ref_Pow10(static_cast<std::size_t>(zeros)));
    const Ref dividend = Ref_Mul(divisor, quotient);
    if (!Reaches_Limit(dividend)) Expect_Division_Like_Repeated_Addition(Text_Of(dividend), Text_Of(divisor));
  }
}

TEST(CalculateProperty, ExactDivisionsNearTheHundredDigitEdgeMatchRepeatedAddition) {
  Operands random(9);
  int failures = 0;
  for (int n = 0; n < 120; ++n) {
    const Ref divisor = Ref_Of(random.Digits(random.Between(60, 84)));
    const std::size_t zeros = static_cast<std::size_t>(random.Between(0, 20));
    // The largest quotient with that many zeros at its end whose product stays below 10^100.
    const Ref widest = Ref_DivMod(Ref_Sub(Limit(), Ref_Of(1)), divisor).first;
    const Ref quotient = Ref_Mul(Ref_DivMod(widest, Ref_Pow10(zeros)).first, Ref_Pow10(zeros));
    const std::string a = Text_Of(Ref_Mul(divisor, quotient));
    const std::string b = Text_Of(divisor);
    Expect_Division_Like_Repeated_Addition(a, b);
    failures += Actual("Divide -integer", a, b).failure != 0;
  }
  EXPECT_GT(failures, 12);
  EXPECT_LT(failures, 108);
}

TEST(Calculate, AnExactDivisionThatNeedsASecondPassCanFailWhereItsQuotientWouldFit) {
  // Quotient 9 x 10^16: repeated addition takes eight of the largest multiple, fills the lower places
  // with nines, and starts a second pass from D - V, whose first sum is D - V + V x 10^16.
  const std::string divisor = "1" + Repeat('0', 16) + "2" + Repeat('0', 66);    // 10^83 + 2 x 10^66
  const std::string dividend = "9" + Repeat('0', 15) + "18" + Repeat('0', 82);  // 9 x 10^16 x divisor
  EXPECT_EQ(Failure_Of([&] { Calculate("Divide -integer", dividend, divisor); }), kSubscriptOutOfRange);
  // With a remainder of 1 there is no second pass, and the same quotient fits.
  const std::string one_more = "9" + Repeat('0', 15) + "18" + Repeat('0', 81) + "1";
  EXPECT_EQ(Calculate("Divide -integer", one_more, divisor), "9" + Repeat('0', 16));
  EXPECT_EQ(Calculate("Remainder", one_more, divisor), "1");
}

TEST(CalculateProperty, ConstructedDivisionsOnEitherSideOfEachWidestSum) {
  const Ref top = Ref_Pow10(16);
  const Ref top_plus_one = Ref_Add(top, Ref_Of(1));
  const Ref below_limit = Ref_Sub(Limit(), Ref_Of(1));
  struct Case {
    Ref dividend;
    Ref divisor;
    bool fails;
  };
  std::vector<Case> cases;
  // Quotient 10^16 (one multiple of the largest kind, none below): the last sum is D - r + V.
  const Ref wide = Ref_Add(Ref_DivMod(Limit(), top_plus_one).first, Ref_Of(1));  // V x (10^16 + 1) > 10^100
  const Ref narrow = Ref_DivMod(below_limit, top_plus_one).first;                // V x (10^16 + 1) < 10^100
  cases.push_back({Ref_Mul(wide, top), wide, true});
  cases.push_back({Ref_Add(Ref_Mul(wide, top), Ref_Of(1)), wide, true});
  cases.push_back({Ref_Mul(narrow, top), narrow, false});
  // Quotient N - 9 below a multiple N of 10^16 with V x N just under 10^100, remainder 0: the
  // units digit 1 is taken once, no second pass, and the widest sum V x N fits. Ending in 9
  // instead, the units are taken eight times and the second pass's first sum does not fit.
  const Ref divisor = Ref_Add(Ref_Mul(Ref_Of(3), Ref_Pow10(83)), Ref_Of(12345));
  const Ref n = Ref_Mul(Ref_DivMod(Ref_DivMod(below_limit, divisor).first, top).first, top);
  cases.push_back({Ref_Mul(divisor, Ref_Sub(n, Ref_Of(9))), divisor, false});
  cases.push_back({Ref_Mul(divisor, Ref_Sub(n, Ref_Of(1))), divisor, true});
  for (const Case& c : cases) {
    const std::string a = Text_Of(c.dividend);
    const std::string b = Text_Of(c.divisor);
    ASSERT_LE(a.size(), 100u);
    Expect_Division_Like_Repeated_Addition(a, b);
    EXPECT_EQ(Actual("Divide -integer", a, b).failure != 0, c.fails) << a << " / " << b;
  }
}

// ---- Convert_Datatype ---------------------------------------------------------------------

TEST(Convert_Datatype, DigitsBecomeANumberOrATextOfDigits) {
  EXPECT_EQ(Convert_Datatype("Numeric", "0123").number(), 123);
  EXPECT_EQ(Convert_Datatype("String", "0123").text(), "0123");
  EXPECT_EQ(Convert_Datatype("Numeric", 4096).number(), 4096);
  EXPECT_TRUE(Convert_Datatype("String", 4096).is_text());
  EXPECT_EQ(Convert_Datatype("Numeric", "9999999999").number(), 9999999999.0);
}

TEST(Convert_Datatype, ANonDigitRepeatsTheDigitBeforeIt) {
  EXPECT_EQ(Convert_Datatype("Numeric", "12a4").number(), 1224);
  EXPECT_EQ(Convert_Datatype("String", "12a4").text(), "1224");
  EXPECT_EQ(Convert_Datatype("Numeric", "-5").number(), 5);
  EXPECT_EQ(Convert_Datatype("String", "-5").text(), "5");
  EXPECT_EQ(Convert_Datatype("Numeric", "x").number(), 0);
  EXPECT_EQ(Convert_Datatype("String", "x").text(), "");
}

TEST(Convert_Datatype, AnEmptyNumberIsZeroAndTheEmptyText) {
  EXPECT_EQ(Convert_Datatype("Numeric", "").number(), 0);
  EXPECT_EQ(Convert_Datatype("String", "").text(), "");
}

TEST(Convert_Datatype, AnUnknownTargetAnswersNothing) { EXPECT_TRUE(Convert_Datatype("Text", "12").is_empty()); }

TEST(Convert_Datatype, MoreThanTenCharactersIsASubscriptFailure) {
  EXPECT_EQ(Convert_Datatype("Numeric", "1234567890").number(), 1234567890);
  EXPECT_EQ(Failure_Of([] { Convert_Datatype("Numeric", "12345678901"); }), kSubscriptOutOfRange);
  EXPECT_EQ(Failure_Of([] { Convert_Datatype("Other", "12345678901"); }), kSubscriptOutOfRange);
}

// ---- Add_Signed ---------------------------------------------------------------------------

TEST(Add_Signed, WithoutSignsItIsAdd) {
  EXPECT_EQ(Add_Signed("696", "0"), "696");
  EXPECT_EQ(Add_Signed(Value(24), "0976"), "1000");
}

TEST(Add_Signed, TakesTheSignIntoAccount) {
  EXPECT_EQ(Add_Signed("744", "-48"), "696");
  EXPECT_EQ(Add_Signed("-48", "744"), "696");
  EXPECT_EQ(Add_Signed("5", "-48"), "-43");
  EXPECT_EQ(Add_Signed(Value(-2880), Value(-3)), "-2883");
  EXPECT_EQ(Add_Signed("-48", "48"), "0");
  EXPECT_EQ(Add_Signed("-0", "0"), "0");
}

TEST(Add_SignedProperty, MatchesOrdinaryArithmeticWithinItsRange) {
  std::mt19937_64 random(8);
  std::uniform_int_distribution<long long> number(-1'000'000'000'000LL, 1'000'000'000'000LL);
  for (int n = 0; n < 3000; ++n) {
    const long long a = number(random);
    const long long b = number(random);
    EXPECT_EQ(Add_Signed(std::to_string(a), std::to_string(b)), std::to_string(a + b)) << a << " " << b;
  }
}

TEST(Add_Signed, ANonDigitAfterTheSignIsATypeMismatch) {
  EXPECT_EQ(Failure_Of([] { Add_Signed("--1", "1"); }), kTypeMismatch);
}

}  // namespace
}  // namespace orrivane::elapsed
