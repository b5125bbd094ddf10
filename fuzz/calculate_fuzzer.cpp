// Calculate, the arithmetic on whole numbers held as text, with any operation and any operand
// texts; its signed sum and Convert_Datatype beside it. Where both operands are texts of digits,
// every operation is checked against a plain reference on digit texts: the answer where it must
// answer, the subscript failure where a digit must land on index 101.
//
// One command a line, operands between bars:
//   calc|OPERATION|A|B     the named operation, then all six on the same operands
//   signed|A|B             Add_Signed
//   datatype|KIND|NUMBER   Convert_Datatype
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>
#include <string>

#include "elapsed/decimal_text.h"
#include "fuzz_harness.h"

namespace {

using orrivane::RuntimeFailure;
using orrivane::Value;
using orrivane::elapsed::Calculate;
using orrivane::fuzz::Defined;
using orrivane::fuzz::Expect;
using orrivane::fuzz::Operand;
using Operands = std::span<const std::string_view>;

// ---- A reference on whole numbers as digit texts, without leading zeros ("0" for zero) --------

constexpr std::size_t kWidest = 100;  // digits of an operand, and of an answer

std::string Trimmed(std::string digits) {
  const std::size_t first = digits.find_first_not_of('0');
  return first == std::string::npos ? "0" : digits.substr(first);
}

// The operand as a number: a text of 1 to 100 digits; nothing for anything else.
std::optional<std::string> Number_Of(std::string_view text) {
  if (text.empty() || text.size() > kWidest || text.find_first_not_of("0123456789") != std::string_view::npos) {
    return std::nullopt;
  }
  return Trimmed(std::string(text));
}

int Order(const std::string& a, const std::string& b) {
  if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
  return a < b ? -1 : (a > b ? 1 : 0);
}

// Digit i from the right (0 the units), 0 past the left end.
int Digit(const std::string& a, std::size_t i) { return i < a.size() ? a[a.size() - 1 - i] - '0' : 0; }

std::string Sum(const std::string& a, const std::string& b) {
  std::string out;
  int carry = 0;
  for (std::size_t i = 0; i < std::max(a.size(), b.size()) || carry != 0; ++i) {
    const int d = Digit(a, i) + Digit(b, i) + carry;
    out.insert(out.begin(), static_cast<char>('0' + d % 10));
    carry = d / 10;
  }
  return Trimmed(out);
}

// a - b for a not below b.
std::string Difference(const std::string& a, const std::string& b) {
  std::string out;
  int borrow = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    int d = Digit(a, i) - Digit(b, i) - borrow;
    borrow = d < 0 ? 1 : 0;
    out.insert(out.begin(), static_cast<char>('0' + d + 10 * borrow));
  }
  return Trimmed(out);
}

std::string Product(const std::string& a, const std::string& b) {
  std::vector<int> cells(a.size() + b.size(), 0);
  for (std::size_t i = 0; i < a.size(); ++i) {
    for (std::size_t j = 0; j < b.size(); ++j) cells[i + j] += Digit(a, i) * Digit(b, j);
  }
  std::string out;
  int carry = 0;
  for (int cell : cells) {
    const int d = cell + carry;
    out.insert(out.begin(), static_cast<char>('0' + d % 10));
    carry = d / 10;
  }
  return Trimmed(out);
}

std::string Power_Of_Ten(std::size_t exponent) { return "1" + std::string(exponent, '0'); }

// ---- The rules of each operation ---------------------------------------------------------

// The answer of the operation, or the failure it must end in; nothing where the rules leave it open.
struct Outcome {
  std::optional<std::string> answer;
  int failure = 0;
};

// Add fails exactly when the sum needs a 101st digit. Subtract gives the ten's complement over
// the wider operand's width when the first is smaller, and fails when that borrow would land on
// index 101. Multiply is checked where it answers. Compare always answers.
Outcome Expected(std::string_view operation, std::string_view a_text, std::string_view b_text) {
  const std::string a = *Number_Of(a_text);
  const std::string b = *Number_Of(b_text);
  const std::size_t width = std::max(a_text.size(), b_text.size());
  if (operation == "Add") {
    const std::string sum = Sum(a, b);
    return sum.size() > kWidest ? Outcome{std::nullopt, orrivane::kSubscriptOutOfRange} : Outcome{sum, 0};
  }
  if (operation == "Subtract") {
    if (Order(a, b) >= 0) return {Difference(a, b), 0};
    if (width == kWidest) return {std::nullopt, orrivane::kSubscriptOutOfRange};
    return {Difference(Power_Of_Ten(width), Difference(b, a)), 0};
  }
  if (operation == "Compare") {
    const int order = Order(a, b);
    return {std::string(order == 0 ? "0" : order > 0 ? "1" : "2"), 0};
  }
  if (operation == "Multiply") return {Product(a, b), 0};
  return {};
}

std::string Call_Text(std::string_view operation, std::string_view a, std::string_view b) {
  return std::string(operation) + " " + std::string(a) + " " + std::string(b);
}

// Quotient and remainder, where they come out, divide the first number.
void Check_Division(std::string_view a, std::string_view b, const std::string& quotient, const std::string& remainder) {
  const std::string first = *Number_Of(a);
  const std::string divisor = *Number_Of(b);
  Expect(Order(remainder, divisor) < 0, "the remainder of " + Call_Text("Divide", a, b) + " is " + remainder);
  Expect(Sum(Product(quotient, divisor), remainder) == first,
         Call_Text("Divide", a, b) + " = " + quotient + " remainder " + remainder);
}

// The answer, or the number of the failure it ended in.
std::pair<std::string, int> Outcome_Of(std::string_view operation, std::string_view a, std::string_view b) {
  try {
    return {Calculate(std::string(operation), std::string(a), std::string(b)), 0};
  } catch (const RuntimeFailure& failure) {
    return {std::string(), failure.number()};
  }
}

void Check_Against_Reference(std::string_view a, std::string_view b) {
  if (!Number_Of(a) || !Number_Of(b)) return;
  for (const char* operation : {"Add", "Subtract", "Multiply", "Compare"}) {
    const auto [answer, failure] = Outcome_Of(operation, a, b);
    const Outcome expected = Expected(operation, a, b);
    const std::string call = Call_Text(operation, a, b);
    if (expected.failure != 0) {
      Expect(failure == expected.failure, call + " must fail with " + std::to_string(expected.failure));
    } else if (failure == 0 || std::string_view(operation) != "Multiply") {
      Expect(failure == 0 && answer == *expected.answer, call + " = " + answer + " (failure " +
                                                             std::to_string(failure) + "), not " + *expected.answer);
    }
  }
  const auto [quotient, quotient_failure] = Outcome_Of("Divide -integer", a, b);
  const auto [remainder, remainder_failure] = Outcome_Of("Remainder", a, b);
  if (*Number_Of(b) == "0") {
    Expect(quotient_failure == orrivane::kDivisionByZero && remainder_failure == orrivane::kDivisionByZero,
           "a division by zero ended otherwise");
    return;
  }
  Expect(quotient_failure == remainder_failure, "quotient and remainder of " + Call_Text("Divide", a, b) +
                                                    " end differently");
  if (quotient_failure == 0) Check_Division(a, b, quotient, remainder);
}

constexpr const char* kOperations[] = {"Add", "Subtract", "Multiply", "Compare", "Divide -integer", "Remainder"};

void Calc(Operands operands) {
  const std::string a(Operand(operands, 1));
  const std::string b(Operand(operands, 2));
  Defined([&] { static_cast<void>(Calculate(std::string(Operand(operands, 0)), a, b)); });
  for (const char* operation : kOperations) {
    Defined([&] { static_cast<void>(Calculate(operation, a, b)); });
  }
  Check_Against_Reference(a, b);
}

// A signed text: an optional "-", then 1 to 99 digits.
std::optional<std::pair<bool, std::string>> Signed_Of(std::string_view text) {
  const bool negative = !text.empty() && text.front() == '-';
  if (negative) text.remove_prefix(1);
  if (text.size() >= kWidest) return std::nullopt;
  const std::optional<std::string> magnitude = Number_Of(text);
  if (!magnitude) return std::nullopt;
  return std::pair{negative && *magnitude != "0", *magnitude};
}

// The signed sum, for magnitudes whose sum still fits 100 digits.
void Signed(Operands operands) {
  const std::string a(Operand(operands, 0));
  const std::string b(Operand(operands, 1));
  Defined([&] { static_cast<void>(orrivane::elapsed::Add_Signed(a, b)); });
  const auto x = Signed_Of(a);
  const auto y = Signed_Of(b);
  if (!x || !y) return;
  std::string expected;
  if (x->first == y->first) {
    expected = (x->first ? "-" : "") + Sum(x->second, y->second);
  } else {
    const bool x_larger = Order(x->second, y->second) >= 0;
    const std::string magnitude = x_larger ? Difference(x->second, y->second) : Difference(y->second, x->second);
    expected = ((x_larger ? x->first : y->first) && magnitude != "0" ? "-" : "") + magnitude;
  }
  const std::string answer = orrivane::elapsed::Add_Signed(a, b);
  Expect(answer == expected, a + " + " + b + " = " + answer + ", not " + expected);
}

void Datatype(Operands operands) {
  const std::string number(Operand(operands, 1));
  for (const std::string& kind : {std::string(Operand(operands, 0)), std::string("Numeric"), std::string("String")}) {
    Defined([&] { static_cast<void>(orrivane::elapsed::Convert_Datatype(kind, number).text()); });
  }
}

constexpr orrivane::fuzz::Command kCommands[] = {{"calc", Calc}, {"signed", Signed}, {"datatype", Datatype}};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orrivane::fuzz::Guard_Input(
      [&] { orrivane::fuzz::Run_Command_Lines(orrivane::fuzz::As_Text(data, size), kCommands); });
}
