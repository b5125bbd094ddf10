// Calculate, the arithmetic on whole numbers held as text, with any operation and any operand
// texts; its signed sum and Convert_Datatype beside it. Where both operands are digits and the
// answer fits 38 digits, every operation is checked against 128-bit arithmetic.
//
// One command a line, operands between bars:
//   calc|OPERATION|A|B     the named operation, then all six on the same operands
//   signed|A|B             Add_Signed
//   datatype|KIND|NUMBER   Convert_Datatype
#include <cstdint>
#include <optional>
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
using Wide = unsigned __int128;

constexpr std::size_t kWideDigits = 38;  // 10^38 - 1 and the sum of two such fit 128 bits

std::string Decimal(Wide n) {
  if (n == 0) return "0";
  std::string digits;
  for (; n != 0; n /= 10) digits.insert(digits.begin(), static_cast<char>('0' + static_cast<int>(n % 10)));
  return digits;
}

// The value of a text of 1 to 38 digits; nothing for any other text.
std::optional<Wide> Wide_Of(std::string_view text) {
  if (text.empty() || text.size() > kWideDigits) return std::nullopt;
  Wide n = 0;
  for (char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    n = n * 10 + static_cast<Wide>(c - '0');
  }
  return n;
}

Wide Power_Of_Ten(std::size_t exponent) {
  Wide p = 1;
  for (std::size_t i = 0; i < exponent; ++i) p *= 10;
  return p;
}

// What each operation must answer for two small operands; nothing where 128 bits don't hold
// the answer. Division by zero is checked apart.
std::optional<std::string> Expected(std::string_view operation, std::string_view a_text, std::string_view b_text) {
  const Wide a = *Wide_Of(a_text);
  const Wide b = *Wide_Of(b_text);
  const std::size_t width = std::max(a_text.size(), b_text.size());
  if (operation == "Add") return Decimal(a + b);
  if (operation == "Subtract") return Decimal(a >= b ? a - b : Power_Of_Ten(width) - (b - a));
  if (operation == "Multiply") {
    if (a_text.size() + b_text.size() > kWideDigits) return std::nullopt;
    return Decimal(a * b);
  }
  if (operation == "Compare") return std::string(a == b ? "0" : a > b ? "1" : "2");
  if (operation == "Divide -integer") return Decimal(a / b);
  if (operation == "Remainder") return Decimal(a % b);
  return std::nullopt;
}

void Check_Against_Wide(std::string_view operation, std::string_view a, std::string_view b) {
  if (!Wide_Of(a) || !Wide_Of(b)) return;
  const bool divides = operation == "Divide -integer" || operation == "Remainder";
  const std::string call = std::string(operation) + " " + std::string(a) + " " + std::string(b);
  if (divides && *Wide_Of(b) == 0) {
    try {
      Calculate(std::string(operation), std::string(a), std::string(b));
    } catch (const RuntimeFailure& failure) {
      Expect(failure.number() == orrivane::kDivisionByZero, call + " failed with " + std::to_string(failure.number()));
      return;
    }
    orrivane::fuzz::Finding(call + " answered without failing");
  }
  const std::optional<std::string> expected = Expected(operation, a, b);
  if (!expected) return;
  const std::string answer = Calculate(std::string(operation), std::string(a), std::string(b));
  Expect(answer == *expected, call + " = " + answer + ", not " + *expected);
}

constexpr const char* kOperations[] = {"Add", "Subtract", "Multiply", "Compare", "Divide -integer", "Remainder"};

void Calc(Operands operands) {
  const std::string a(Operand(operands, 1));
  const std::string b(Operand(operands, 2));
  Defined([&] { static_cast<void>(Calculate(std::string(Operand(operands, 0)), a, b)); });
  for (const char* operation : kOperations) {
    Defined([&] { static_cast<void>(Calculate(operation, a, b)); });
    Check_Against_Wide(operation, a, b);
  }
}

// A signed text of 1 to 37 digits.
std::optional<__int128> Signed_Of(std::string_view text) {
  const bool negative = !text.empty() && text.front() == '-';
  if (negative) text.remove_prefix(1);
  if (text.size() >= kWideDigits) return std::nullopt;
  const std::optional<Wide> magnitude = Wide_Of(text);
  if (!magnitude) return std::nullopt;
  return negative ? -static_cast<__int128>(*magnitude) : static_cast<__int128>(*magnitude);
}

void Signed(Operands operands) {
  const std::string a(Operand(operands, 0));
  const std::string b(Operand(operands, 1));
  Defined([&] { static_cast<void>(orrivane::elapsed::Add_Signed(a, b)); });
  const std::optional<__int128> x = Signed_Of(a);
  const std::optional<__int128> y = Signed_Of(b);
  if (!x || !y) return;
  const __int128 sum = *x + *y;
  const std::string expected = sum < 0 ? "-" + Decimal(static_cast<Wide>(-sum)) : Decimal(static_cast<Wide>(sum));
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
