#include "core/value.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "core/runtime_failure.h"

namespace orrivane {

namespace {

bool Is_Blank(char c) { return c == ' ' || c == '\t'; }
bool Is_Digit(char c) { return c >= '0' && c <= '9'; }

// The exponent of a well-formed decimal number, held within a range that still decides
// between overflow and underflow however many digits the text has.
long long Clamped_Exponent(std::string_view number) {
  const std::size_t e = number.find_first_of("eE");
  if (e == std::string_view::npos) return 0;
  std::size_t i = e + 1;
  const bool negative = i < number.size() && number[i] == '-';
  if (i < number.size() && (number[i] == '-' || number[i] == '+')) ++i;
  constexpr long long kLimit = 1'000'000'000;
  long long exponent = 0;
  for (; i < number.size(); ++i) exponent = std::min(kLimit, exponent * 10 + (number[i] - '0'));
  return negative ? -exponent : exponent;
}

// The power of ten of the first significant digit of a well-formed decimal number that has one.
long long Leading_Power_Of_Ten(std::string_view number) {
  const std::string_view mantissa = number.substr(0, number.find_first_of("eE"));
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const std::size_t first = mantissa.find_first_of("123456789");
  if (first == std::string_view::npos) return -1;  // all zeros: nothing that could overflow
  const long long place = first < point ? static_cast<long long>(point - first) - 1
                                        : -static_cast<long long>(first - point);
  return place + Clamped_Exponent(number);
}

// from_chars says "out of range" both for a number too large and for one too small to hold;
// only the first is an overflow, the second is as good as 0.
double Out_Of_Range(std::string_view number) {
  if (Leading_Power_Of_Ten(number) > 0) throw RuntimeFailure(kOverflow);
  return 0;
}

// Whole numbers of up to this many digits are exact in a double.
constexpr std::size_t kExactDigits = 15;

}  // namespace

std::optional<double> Parse_Number(std::string_view text) {
  std::size_t i = 0;
  const std::size_t n = text.size();
  while (i < n && Is_Blank(text[i])) ++i;
  std::size_t end = n;
  while (end > i && Is_Blank(text[end - 1])) --end;
  const std::size_t start = i;
  if (i < end && (text[i] == '+' || text[i] == '-')) ++i;
  std::size_t digits = 0;
  while (i < end && Is_Digit(text[i])) ++i, ++digits;
  if (i < end && text[i] == '.') {
    ++i;
    while (i < end && Is_Digit(text[i])) ++i, ++digits;
  }
  if (digits == 0) return std::nullopt;
  if (i < end && (text[i] == 'e' || text[i] == 'E')) {
    std::size_t j = i + 1;
    if (j < end && (text[j] == '+' || text[j] == '-')) ++j;
    std::size_t exponent_digits = 0;
    while (j < end && Is_Digit(text[j])) ++j, ++exponent_digits;
    if (exponent_digits == 0) return std::nullopt;
    i = j;
  }
  if (i != end) return std::nullopt;
  // A plain whole number of up to 15 digits, what the log files hold in nearly every field, is
  // exact in a double: worked out directly.
  if (const std::string_view whole = text.substr(start, end - start); digits <= kExactDigits) {
    const bool negative = whole.front() == '-';
    const std::string_view digit_text = whole.substr(whole.front() == '-' || whole.front() == '+' ? 1 : 0);
    if (digit_text.size() == digits) {
      double value = 0;
      for (const char digit : digit_text) value = value * 10 + (digit - '0');
      return negative ? -value : value;
    }
  }
  std::string_view number = text.substr(start, end - start);
  if (!number.empty() && number.front() == '+') number.remove_prefix(1);
  double value = 0;
  const auto [ptr, ec] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (ec == std::errc::result_out_of_range) return Out_Of_Range(number);
  if (ec != std::errc() || ptr != number.data() + number.size()) return std::nullopt;
  return value;
}

bool Is_Numeric(std::string_view text) {
  try {
    return Parse_Number(text).has_value();
  } catch (const RuntimeFailure&) {
    return true;  // a number, only too large to hold
  }
}

std::string Number_Text(double number) {
  if (number == 0) return "0";  // also for -0
  if (std::trunc(number) == number && std::fabs(number) < 1e15) {
    return std::to_string(static_cast<long long>(number));
  }
  char buffer[64];
  const auto [ptr, ec] = std::to_chars(buffer, buffer + sizeof buffer, number);
  return ec == std::errc() ? std::string(buffer, ptr) : std::string("0");
}

double Value::number() const {
  if (is_empty()) return 0;
  if (is_number()) return std::get<double>(data_);
  const auto parsed = Parse_Number(std::get<std::string>(data_));
  if (!parsed) throw RuntimeFailure(kTypeMismatch);
  return *parsed;
}

std::int64_t Value::whole() const {
  const double x = std::nearbyint(number());  // the default rounding is half to even
  constexpr double kLimit = 9223372036854775808.0;  // 2^63
  if (!(x >= -kLimit && x < kLimit)) throw RuntimeFailure(kOverflow);
  return static_cast<std::int64_t>(x);
}

std::string Value::text() const {
  if (is_empty()) return {};
  if (is_number()) return Number_Text(std::get<double>(data_));
  return std::get<std::string>(data_);
}

namespace {

int Three_Way(double a, double b) { return a < b ? -1 : (a > b ? 1 : 0); }
int Three_Way(const std::string& a, const std::string& b) {
  const int c = a.compare(b);
  return c < 0 ? -1 : (c > 0 ? 1 : 0);
}

}  // namespace

int Compare(const Value& a, const Value& b) {
  if (a.is_text() && b.is_text()) return Three_Way(a.text(), b.text());
  if (a.is_empty() && b.is_empty()) return 0;
  // Empty next to a text is "", next to a number 0.
  if (a.is_empty()) return b.is_text() ? Three_Way(std::string(), b.text()) : Three_Way(0.0, b.number());
  if (b.is_empty()) return a.is_text() ? Three_Way(a.text(), std::string()) : Three_Way(a.number(), 0.0);
  if (a.is_number() && b.is_number()) return Three_Way(a.number(), b.number());
  // A text and a number: as numbers when the text is one; otherwise the number comes first.
  const Value& text = a.is_text() ? a : b;
  std::optional<double> as_number;
  try {
    as_number = Parse_Number(text.text());
  } catch (const RuntimeFailure&) {
    as_number = std::numeric_limits<double>::infinity();
  }
  if (!as_number) return a.is_text() ? 1 : -1;
  return a.is_text() ? Three_Way(*as_number, b.number()) : Three_Way(a.number(), *as_number);
}

}  // namespace orrivane
