#pragma once
// Arithmetic on unsigned whole numbers of up to 100 decimal digits held as text: the hour and
// minute totals of long spans overrun what an ordinary number holds exactly.
//
// A number is a text of decimal digits (a small whole number may also come as a number, and
// then works as its text). There is no sign, no decimal point, no separator.
//
// Failures are the program's run-time failures (RuntimeFailure):
//  - a character that is not a digit: type mismatch (13);
//  - an operand longer than 100 characters, or a carry or product digit that would stand at
//    index 101 of the working arrays: subscript out of range (9);
//  - a divisor of zero: division by zero (11).
#include <string>

#include "core/value.h"

namespace orrivane::elapsed {

// Operation is one of:
//   "Add"              first + second
//   "Subtract"         first - second; with a smaller first number the answer is the ten's
//                      complement over the width of the wider operand, without a sign
//                      (Subtract 1 2 = "9")
//   "Multiply"         first x second
//   "Compare"          "0" equal, "1" first greater, "2" second greater
//   "Divide -integer"  whole quotient
//   "Remainder"        first minus quotient x second
// The answer has no leading zero and zero is "0"; an unknown operation answers "".
std::string Calculate(const std::string& Operation, const Value& Value_1, const Value& Value_2);

// Convert_To is "Numeric" (answers a number) or "String" (answers a text); anything else answers
// empty. Each character of Number that is not a digit repeats the digit before it (0 at the
// start) and a non-digit at the start adds nothing to the text. More than 10 characters is a
// subscript failure (9).
Value Convert_Datatype(const std::string& Convert_To, const Value& Number);

// The sum of two whole numbers as text, each of which may carry a leading "-". Calculate takes
// no sign; spans whose day remainder is negative need one, and this is the one place it is
// dealt with. The answer carries "-" only when it is below zero.
std::string Add_Signed(const Value& Value_1, const Value& Value_2);

}  // namespace orrivane::elapsed
