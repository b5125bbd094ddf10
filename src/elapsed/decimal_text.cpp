#include "elapsed/decimal_text.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/runtime_failure.h"

namespace orrivane::elapsed {

namespace {

// The working arrays run from index 0 to 100: index 1 holds the units digit, index 0 is never
// used. The bound is part of the behaviour: a carry that would land on index 101 is a failure,
// not a longer answer.
constexpr int kLastIndex = 100;
using Digit_Array = std::array<int, kLastIndex + 1>;

// A cell of a working array, with the bounds the arrays have.
int& Cell(Digit_Array& cells, int index) {
  if (index < 0 || index > kLastIndex) throw RuntimeFailure(kSubscriptOutOfRange);
  return cells[static_cast<std::size_t>(index)];
}

bool Is_Digit(char c) { return c >= '0' && c <= '9'; }

// An operand as the operations see it: its digits, and the length of its text, leading zeros
// included (Compare and Subtract take their width from it).
struct Operand {
  Digit_Array digit{};
  int length = 0;
};

// The text's last character goes to index 1. Each character is converted before it is stored,
// so the failure is a type mismatch or a subscript failure by whichever comes first from the
// right.
Operand Read_Operand(const std::string& text) {
  Operand operand;
  const std::size_t size = text.size();
  for (std::size_t i = 1; i <= size; ++i) {
    const char c = text[size - i];
    if (!Is_Digit(c)) throw RuntimeFailure(kTypeMismatch);
    Cell(operand.digit, static_cast<int>(i)) = c - '0';  // the 101st character fails here
  }
  operand.length = static_cast<int>(size);  // at most 100 once every character is stored
  return operand;
}

Digit_Array Add(const Operand& first, const Operand& second, int top) {
  Digit_Array result{};
  for (int i = 1; i <= top; ++i) {
    result[i] += first.digit[i] + second.digit[i];
    if (result[i] > 9) {
      Cell(result, i + 1) += 1;
      result[i] -= 10;
    }
  }
  return result;
}

// A borrow out of the top digit is left as -1 one place higher, where forming the answer does
// not see it: a smaller first number gives the ten's complement.
Digit_Array Subtract(const Operand& first, const Operand& second, int top) {
  Digit_Array result{};
  for (int i = 1; i <= top; ++i) {
    result[i] += first.digit[i] - second.digit[i];
    if (result[i] < 0) {
      Cell(result, i + 1) -= 1;
      result[i] += 10;
    }
  }
  return result;
}

// Row i of the partial products is the second number times digit i of the first; its last cell
// is written even when its carry is 0, so a 100-digit second number never fits. Each row is
// added as soon as it is formed: the rows do not depend on one another, so the answer and the
// failures are those of forming the whole table first.
Digit_Array Multiply(const Operand& first, const Operand& second) {
  Digit_Array result{};
  Digit_Array row{};
  for (int i = 1; i <= first.length; ++i) {
    std::fill(row.begin(), row.begin() + std::min(second.length + 2, kLastIndex + 1), 0);
    int row_length = 0;
    for (int j = 1; j <= second.length; ++j) {
      row[j] += first.digit[i] * second.digit[j];
      const int carried = row[j] / 10;
      Cell(row, j + 1) += carried;
      row[j] -= carried * 10;
      row_length = row[j + 1] != 0 ? j + 1 : j;
    }
    for (int j = 1; j <= row_length; ++j) {
      const int k = j + i - 1;
      Cell(result, k) += row[j];
      if (result[k] > 9) {
        Cell(result, k + 1) += 1;
        result[k] -= 10;
      }
    }
  }
  return result;
}

// Leading zeros are no obstacle: the longer operand's extra digits decide only if one is not 0.
std::string Compare(const Operand& first, const Operand& second) {
  const int shorter = std::min(first.length, second.length);
  for (int i = first.length; i > shorter; --i) {
    if (first.digit[i] != 0) return "1";
  }
  for (int i = second.length; i > shorter; --i) {
    if (second.digit[i] != 0) return "2";
  }
  for (int i = shorter; i >= 1; --i) {
    if (first.digit[i] > second.digit[i]) return "1";
    if (second.digit[i] > first.digit[i]) return "2";
  }
  return "0";
}

// ---- Long division ------------------------------------------------------------------------
//
// Division is defined by repeated addition: the multiples V x 10^p, p from 16 down to 0, are
// added to a running product for as long as each fits, which takes as many rounds as the
// quotient has units of 10^16. Long division gives the same quotient at once; what it must also
// give is the failures of repeated addition, which come from the sums formed on the way (see
// Widest_Sum_Overflows).

// A whole number on a working array, with the index of its highest non-zero digit (0 for zero).
struct Whole {
  Digit_Array digit{};
  int size = 0;
};

Whole Whole_Of(const Digit_Array& cells) {
  Whole number;
  number.digit = cells;
  for (int i = kLastIndex; i >= 1; --i) {
    if (cells[i] >= 1 && cells[i] <= 9) {
      number.size = i;
      break;
    }
  }
  return number;
}

int Order(const Whole& a, const Whole& b) {
  if (a.size != b.size) return a.size < b.size ? -1 : 1;
  for (int i = a.size; i >= 1; --i) {
    if (a.digit[i] != b.digit[i]) return a.digit[i] < b.digit[i] ? -1 : 1;
  }
  return 0;
}

void Normalise_Size(Whole& a) {
  while (a.size > 0 && a.digit[a.size] == 0) --a.size;
}

// a - b in place, for a not below b.
void Take_Away(Whole& a, const Whole& b) {
  int borrow = 0;
  for (int i = 1; i <= a.size && (i <= b.size || borrow != 0); ++i) {
    const int d = a.digit[i] - borrow - (i <= b.size ? b.digit[i] : 0);
    borrow = d < 0 ? 1 : 0;
    a.digit[i] = d + 10 * borrow;
  }
  Normalise_Size(a);
}

Whole Minus(Whole a, const Whole& b) {
  Take_Away(a, b);
  return a;
}

// Whether a + b reaches 10^100, where Add fails.
bool Sum_Reaches_101_Digits(const Whole& a, const Whole& b) {
  int carry = 0;
  for (int i = 1; i <= std::max(a.size, b.size); ++i) {
    carry = (a.digit[i] + b.digit[i] + carry) / 10;
  }
  return carry != 0 && std::max(a.size, b.size) == kLastIndex;
}

// a x b, for a product known to stay below 10^100 (a.size + b.size at most 100 is enough).
Whole Times(const Whole& a, const Whole& b) {
  Whole product;
  for (int i = 1; i <= a.size; ++i) {
    int carry = 0;
    for (int j = 1; j <= b.size; ++j) {
      const int k = i + j - 1;
      const int d = product.digit[k] + a.digit[i] * b.digit[j] + carry;
      product.digit[k] = d % 10;
      carry = d / 10;
    }
    for (int k = i + b.size; carry != 0; ++k) {
      const int d = product.digit[k] + carry;
      product.digit[k] = d % 10;
      carry = d / 10;
    }
  }
  product.size = std::min(kLastIndex, a.size + b.size);
  Normalise_Size(product);
  return product;
}

// a x 10^places, for a result known to stay below 10^100.
Whole Shifted(const Whole& a, int places) {
  if (a.size == 0) return a;
  Whole shifted;
  for (int i = 1; i <= a.size; ++i) shifted.digit[i + places] = a.digit[i];
  shifted.size = a.size + places;
  return shifted;
}

// The lowest `count` digits of a.
Whole Low_Digits(const Whole& a, int count) {
  Whole low;
  for (int i = 1; i <= std::min(count, a.size); ++i) low.digit[i] = a.digit[i];
  low.size = std::min(count, a.size);
  Normalise_Size(low);
  return low;
}

struct Division {
  Whole quotient;
  Whole remainder;
};

// Schoolbook long division, for a divisor below 10^99 (the running remainder stays below ten
// times the divisor).
Division Long_Division(const Whole& dividend, const Whole& divisor) {
  Division result;
  Whole& rest = result.remainder;
  for (int i = dividend.size; i >= 1; --i) {
    // Bring down the next digit.
    for (int k = rest.size; k >= 1; --k) rest.digit[k + 1] = rest.digit[k];
    rest.digit[1] = dividend.digit[i];
    rest.size += 1;
    Normalise_Size(rest);
    int q = 0;
    while (Order(rest, divisor) >= 0) {
      Take_Away(rest, divisor);
      ++q;
    }
    result.quotient.digit[i] = q;
  }
  result.quotient.size = dividend.size;
  Normalise_Size(result.quotient);
  return result;
}

// The multiples V x 10^p run to p = 16.
constexpr int kHighestPower = 16;

// How often repeated addition takes the multiple at the level where an exact division first
// leaves a remainder equal to a whole number of that multiple: the digit of the quotient at its
// lowest non-zero place, or the quotient's units of 10^16 when that place is 16 or higher.
Whole Count_At_Tie_Level(const Whole& quotient) {
  int lowest = 1;
  while (lowest <= quotient.size && quotient.digit[lowest] == 0) ++lowest;
  if (lowest > kHighestPower) {
    Whole high;
    for (int i = kHighestPower + 1; i <= quotient.size; ++i) high.digit[i - kHighestPower] = quotient.digit[i];
    high.size = quotient.size - kHighestPower;
    return high;
  }
  Whole digit;
  digit.digit[1] = quotient.digit[lowest];
  digit.size = 1;
  return digit;
}

bool Is_At_Least_Two(const Whole& a) { return a.size > 1 || (a.size == 1 && a.digit[1] >= 2); }

// The passes of repeated addition form sums of the running product S with V and with the
// multiples T = V x 10^p. With Q the quotient and r the remainder, the widest of them is:
//  - Q = 0: T at p = 16 (already known to fit when the table was formed);
//  - r = 0 and the level where the remainder is first a whole number of multiples takes two or
//    more: that level stops one multiple short and a second pass starts from S = D - V, whose
//    first sum is D - V + V x 10^16;
//  - otherwise, when Q has a non-zero digit below 10^16: after the highest level, S + T there,
//    which is V x Q with those digits cleared, plus V x 10^16;
//  - otherwise: V x Q + V, formed when the last multiple has been taken.
// Every one of these is a sum of two numbers below 10^100, and fails when it reaches 10^100.
bool Widest_Sum_Overflows(const Whole& dividend, const Whole& divisor, const Division& division) {
  const Whole& quotient = division.quotient;
  if (quotient.size == 0) return false;
  const Whole product = Minus(dividend, division.remainder);  // V x Q
  const Whole top_multiple = Shifted(divisor, kHighestPower);
  if (division.remainder.size == 0 && Is_At_Least_Two(Count_At_Tie_Level(quotient))) {
    return Sum_Reaches_101_Digits(Minus(product, divisor), top_multiple);
  }
  const Whole low = Low_Digits(quotient, kHighestPower);
  if (low.size != 0) {
    return Sum_Reaches_101_Digits(Minus(product, Times(divisor, low)), top_multiple);
  }
  return Sum_Reaches_101_Digits(product, divisor);
}

Division Divide(const Operand& first, const Operand& second) {
  const Whole dividend = Whole_Of(first.digit);
  const Whole divisor = Whole_Of(second.digit);
  // Repeated addition would never end: S never grows.
  if (divisor.size == 0) throw RuntimeFailure(kDivisionByZero);
  // The table of multiples is formed by Multiply, and V x 10^16 must stay within 100 digits.
  if (divisor.size + kHighestPower > kLastIndex) throw RuntimeFailure(kSubscriptOutOfRange);
  Division division = Long_Division(dividend, divisor);
  if (Widest_Sum_Overflows(dividend, divisor, division)) throw RuntimeFailure(kSubscriptOutOfRange);
  return division;
}

// ---- Forming the answer -------------------------------------------------------------------

// From the highest cell holding 1 to 9 down; an all-zero result keeps the width it was given.
std::string Digits_Text(const Digit_Array& result, int top) {
  for (int i = kLastIndex; i >= 1; --i) {
    if (result[i] >= 1 && result[i] <= 9) {
      top = i;
      break;
    }
  }
  std::string text;
  text.reserve(static_cast<std::size_t>(top));
  for (int i = top; i >= 1; --i) {
    const int cell = result[i];
    if (cell >= 0 && cell <= 9) {
      text += static_cast<char>('0' + cell);
    } else {
      text += std::to_string(cell);  // a cell still holding a pending carry shows as its number
    }
  }
  return text;
}

std::string Without_Leading_Zeros(std::string text) {
  const std::size_t first = text.find_first_not_of('0');
  if (first == std::string::npos) return text.empty() ? text : "0";
  text.erase(0, first);
  return text;
}

std::string Answer(const std::string& Operation, const Operand& first, const Operand& second) {
  const int top = std::max(first.length, second.length);
  if (Operation == "Add") return Digits_Text(Add(first, second, top), top);
  if (Operation == "Subtract") return Digits_Text(Subtract(first, second, top), top);
  if (Operation == "Multiply") return Digits_Text(Multiply(first, second), top);
  if (Operation == "Compare") return Compare(first, second);
  if (Operation == "Divide -integer") return Digits_Text(Divide(first, second).quotient.digit, top);
  if (Operation == "Remainder") return Digits_Text(Divide(first, second).remainder.digit, 1);
  return {};
}

bool Is_Operation(const std::string& Operation) {
  static constexpr std::array<const char*, 6> kOperations{"Add",     "Subtract",        "Multiply",
                                                          "Compare", "Divide -integer", "Remainder"};
  return std::find(kOperations.begin(), kOperations.end(), Operation) != kOperations.end();
}

}  // namespace

std::string Calculate(const std::string& Operation, const Value& Value_1, const Value& Value_2) {
  // An unknown operation never reads its operands.
  if (!Is_Operation(Operation)) return {};
  const Operand first = Read_Operand(Value_1.text());
  const Operand second = Read_Operand(Value_2.text());
  return Without_Leading_Zeros(Answer(Operation, first, second));
}

Value Convert_Datatype(const std::string& Convert_To, const Value& Number) {
  constexpr std::size_t kCells = 10;
  const std::string text = Number.text();
  if (text.size() > kCells) throw RuntimeFailure(kSubscriptOutOfRange);
  const int n = static_cast<int>(text.size());
  double number = 0;
  std::string digits;
  int d = 0;
  std::string t;
  for (int i = 1; i <= n; ++i) {
    const char c = text[static_cast<std::size_t>(i - 1)];
    if (Is_Digit(c)) {
      d = c - '0';
      t = std::string(1, c);
    }
    number += d * std::pow(10.0, n - i);
    digits += t;
  }
  if (Convert_To == "Numeric") return number;
  if (Convert_To == "String") return digits;
  return {};
}

namespace {

struct Signed_Text {
  bool negative = false;
  std::string magnitude;
};

Signed_Text Split_Sign(const Value& number) {
  const std::string text = number.text();
  if (!text.empty() && text.front() == '-') return {true, text.substr(1)};
  return {false, text};
}

std::string With_Sign(bool negative, const std::string& magnitude) {
  return negative && magnitude != "0" ? "-" + magnitude : magnitude;
}

}  // namespace

std::string Add_Signed(const Value& Value_1, const Value& Value_2) {
  const Signed_Text a = Split_Sign(Value_1);
  const Signed_Text b = Split_Sign(Value_2);
  if (a.negative == b.negative) return With_Sign(a.negative, Calculate("Add", a.magnitude, b.magnitude));
  // Opposite signs: the smaller magnitude comes off the larger, whose sign the sum takes.
  if (Calculate("Compare", a.magnitude, b.magnitude) == "2") {
    return With_Sign(b.negative, Calculate("Subtract", b.magnitude, a.magnitude));
  }
  return With_Sign(a.negative, Calculate("Subtract", a.magnitude, b.magnitude));
}

}  // namespace orrivane::elapsed
