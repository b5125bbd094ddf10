#!/usr/bin/env bash
# orrivane-cal calc: the decimal text arithmetic and its run-time failures.
set -euo pipefail
source "$(dirname "$0")/expect.bash"

digits() { printf "%${2}s" "" | tr ' ' "$1"; }  # digits 9 3 is 999

answers 1000 calc Add 999 1
answers 999 calc Subtract 1000 1
answers 0 calc Subtract 5 5
answers 9 calc Subtract 1 2
answers 0 calc Multiply 0 12345
answers 144 calc Multiply 12 12
answers 0 calc Compare 007 7
answers 1 calc Compare 9 8
answers 2 calc Compare 8 12
answers 1000 calc Divide 1000 1
answers 3 calc Divide 7 2
answers 1 calc Remainder 7 2
answers 0 calc Divide 0 5
answers 0 calc Remainder 0 5
answers 12 calc Add 0000000005 7
answers "$(digits 9 100)" calc Add "$(digits 9 99)" "9$(digits 0 99)"
answers "1$(digits 0 99)" calc Add "$(digits 9 99)" 1
answers "$(digits 9 49)8$(digits 0 49)1" calc Multiply "$(digits 9 50)" "$(digits 9 50)"
answers 142857142857142857 calc Divide 999999999999999999 7
answers 1 calc Remainder 1000000000000000000000000000000 7

type_mismatch="error: Run-time error '13': Type mismatch"
subscript="error: Run-time error '9': Subscript out of range"
division_by_zero="error: Run-time error '11': Division by zero"
refuses "$type_mismatch" calc Add 12a 1
refuses "$type_mismatch" calc Multiply 1 -1
refuses "$type_mismatch" calc Divide 1.5 1
refuses "$type_mismatch" calc Compare " 1" 1
refuses "$subscript" calc Add "$(digits 1 101)" 1
refuses "$subscript" calc Add "$(digits 9 100)" 1
refuses "$subscript" calc Multiply "$(digits 9 51)" "$(digits 9 50)"
refuses "$division_by_zero" calc Divide 5 0
refuses "$division_by_zero" calc Remainder 5 000
refuses "$division_by_zero" calc Divide "$(digits 9 100)" 0
# Division works with the divisor times up to 10^16, which must stay within 100 digits too: a
# divisor of 84 digits divides, one of 85 does not, whatever the dividend.
for op in Divide Remainder; do
  refuses "$subscript" calc "$op" 1 "$(digits 9 85)"
  refuses "$subscript" calc "$op" "$(digits 9 99)" "1$(digits 0 84)"
done
answers 0 calc Divide 1 "$(digits 9 84)"
answers 1 calc Remainder 1 "$(digits 9 84)"
answers 10 calc Divide "$(digits 9 85)" "$(digits 9 84)"
answers 9 calc Remainder "$(digits 9 85)" "$(digits 9 84)"
# A dividend at the top of the hundred digits carries past them on the way.
refuses "$subscript" calc Divide "$(digits 9 100)" 7
answers "$(digits 1 99)" calc Divide "$(digits 9 99)" 9

refuses 'error: Unknown Operation: "Divide -integer" is none of Add, Subtract, Multiply, Compare, Divide, Remainder.' calc "Divide -integer" 7 2
refuses 'error: Unknown Operation: "add" is none of Add, Subtract, Multiply, Compare, Divide, Remainder.' calc add 1 1
refuses 'error: Unknown Operation: "Add\r" is none of Add, Subtract, Multiply, Compare, Divide, Remainder.' calc $'Add\r' 1 1
refuses 'error: Usage: orrivane-cal calc OPERATION A B' calc Add 1

finish
