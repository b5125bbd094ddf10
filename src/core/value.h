#pragma once
// The loosely typed value of the program: empty, a number or a text.
//
// Rules kept from the program:
//  - adding 0 to a text makes it a number ("09" becomes 9); a text that is not a number then
//    fails with a type mismatch (13);
//  - a text and a number compare as numbers when the text is a number; a text that is not a
//    number is simply unequal to any number (no failure), and orders after it;
//  - empty is 0 next to a number and "" next to a text;
//  - a number's text form is its shortest decimal.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace orrivane {

// A text that the program accepts as a number: optional blanks, an optional sign, digits with
// an optional decimal point, an optional exponent, optional blanks.
std::optional<double> Parse_Number(std::string_view text);
bool Is_Numeric(std::string_view text);

// Shortest decimal text of a number: 16711680, -1, 0.5.
std::string Number_Text(double number);

class Value {
 public:
  Value() = default;
  Value(int number) : data_(static_cast<double>(number)) {}
  Value(long number) : data_(static_cast<double>(number)) {}
  Value(long long number) : data_(static_cast<double>(number)) {}
  Value(double number) : data_(number) {}
  Value(const char* text) : data_(std::string(text)) {}
  Value(std::string text) : data_(std::move(text)) {}
  Value(std::string_view text) : data_(std::string(text)) {}

  bool is_empty() const { return std::holds_alternative<std::monostate>(data_); }
  bool is_number() const { return std::holds_alternative<double>(data_); }
  bool is_text() const { return std::holds_alternative<std::string>(data_); }

  // The value with 0 added: a number (empty is 0). Fails with 13 for a text that is no number.
  double number() const;
  // As number(), rounded half to even to a whole number; fails with 6 beyond 64 bits.
  std::int64_t whole() const;
  // The text form: a text as it stands, a number's shortest decimal, empty as "".
  std::string text() const;
  // The value with 0 added, as a Value.
  Value plus_zero() const { return Value(number()); }

  // Three-way comparison with the rules above: negative, zero or positive.
  friend int Compare(const Value& a, const Value& b);
  friend bool operator==(const Value& a, const Value& b) { return Compare(a, b) == 0; }

 private:
  std::variant<std::monostate, double, std::string> data_;
};

}  // namespace orrivane
