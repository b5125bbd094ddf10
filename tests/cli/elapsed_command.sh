#!/usr/bin/env bash
# orrivane-cal elapsed: the Find Time Length window's measures, its checks and messages.
set -euo pipefail
source "$(dirname "$0")/expect.bash"

rows() { printf 'Years: %s\nMonths: %s\nDays: %s\nHours: %s\nMinutes: %s' "$@"; }

# ---- Measures --------------------------------------------------------------------------------

answers "$(rows 0 0 0 0 0)" elapsed "12:00, March 1, 2001" "12:00, March 1, 2001"
answers "$(rows 0 0 0 0 0)" elapsed --total "12:00, March 1, 2001" "12:00, March 1, 2001"
answers "$(rows 2 3 14 8 42)" elapsed "09:05, March 1, 2001" "17:47, June 15, 2003"
answers "$(rows 2 3 14 8 42)" elapsed "17:47, June 15, 2003" "09:05, March 1, 2001"
answers "$(rows 2 27 836 20072 1204362)" elapsed --total "09:05, March 1, 2001" "17:47, June 15, 2003"
answers "$(rows 2 3 14 8 42)" elapsed --units ymdhM "9:5, Mar 1, 2001" "17:47, 6 15, 2003"
# Unticked units fold into the next ticked one below them.
answers "$(rows N/A 27 14 8 42)" elapsed --units mdhM "09:05, March 1, 2001" "17:47, June 15, 2003"
answers "$(rows 2 N/A 106 8 42)" elapsed --units=ydhM "09:05, March 1, 2001" "17:47, June 15, 2003"
answers "$(rows N/A N/A N/A N/A 1204362)" elapsed --units M "09:05, March 1, 2001" "17:47, June 15, 2003"
answers "$(rows N/A N/A N/A N/A N/A)" elapsed --units "" "09:05, March 1, 2001" "17:47, June 15, 2003"
# The start year of the leap count follows the earlier month.
answers "$(rows 1 12 365 8760 525600)" elapsed --total "00:00, March 1, 2000" "00:00, March 1, 2001"
answers "$(rows 1 12 366 8784 527040)" elapsed --total "00:00, February 1, 2000" "00:00, February 1, 2001"
# One borrow of February's 28 days: a negative day remainder, the true total.
answers "$(rows 0 1 -2 0 0)" elapsed "00:00, January 31, 2001" "00:00, March 1, 2001"
answers "$(rows 0 1 29 696 41760)" elapsed --total "00:00, January 31, 2001" "00:00, March 1, 2001"
answers "$(rows 0 1 31 744 44640)" elapsed --total "00:00, March 31, 2001" "00:00, May 1, 2001"
# The widest spans, exact to the minute.
answers "$(rows 998517 11982206 364700923 8752822175 525169330559)" elapsed --total "00:00, October 15, 1582" "23:59, December 31, 1000099"
answers "$(rows 1000000 12000000 365250000 8766000000 525960000000)" elapsed --julian --total "00:00, January 1, 0" "00:00, January 1, 1000000"
# Leading zeros of a year say nothing.
answers "$(rows 1 0 0 0 0)" elapsed "00:00, March 1, 0000000000000000002000" "00:00, March 1, 2001"

# ---- The window's checks ---------------------------------------------------------------------

refuses "error: No Date Selected: 'Time 1' month selected without a corresponding date." elapsed "12:00, March , 2001" "12:00, March 1, 2001"
refuses "error: No Date Selected: 'Time 2' month selected without a corresponding date." elapsed "12:00, March 1, 2001" "12:00, March , 2001"
refuses "error: No Dates Selected: When a month is selected, a date must also be selected." elapsed "12:00, March , 2001" "12:00, March , x"
refuses "error: Invalid Date: February only has 28 days in it for the year you selected for 'Time 1'." elapsed "12:00, February 30, 2001" "12:00, March 1, 2001"
refuses "error: Invalid Date: February only has 29 days in it for the year you selected for 'Time 2'." elapsed "12:00, March 1, 2001" "12:00, February 30, 2000"
refuses "error: Invalid Date: April only has 30 days in it." elapsed "12:00, March 1, 2001" "12:00, April 31, 2001"
refuses "error: Invalid Date: January only has 31 days in it." elapsed "12:00, January 0, 2001" "12:00, April 3, 2001"
refuses "error: Invalid Year: The year field for 'Time 1' contains non-numeric characters" elapsed "12:00, March 1, 20a1" "12:00, April 3, 2001"
refuses "error: Invalid Year: The year field for 'Time 2' contains non-numeric characters" elapsed "12:00, March 1, 2001" "12:00, April 3, -5"
refuses "error: Invalid Year: The year field for 'Time 2' contains non-numeric characters" elapsed "12:00, March 1, 2001" "12:00, April 3, "
refuses "error: Invalid Year: Please make sure the year value for 'Time 1' is a value from 0 to 10000" elapsed "12:00, March 1, 1000100" "12:00, April 3, 2001"
refuses "error: Invalid Year: Please make sure the year value for 'Time 2' is a value from 0 to 10000" elapsed "12:00, March 1, 2001" "12:00, April 3, 99999999999999999999999999999999999999999999"
refuses "error: Invalid Selections Detected: Please check that all date and time entries are valid." elapsed "12:00, March 1, 20a1" "12:00, April 3, x"
refuses "error: Invalid Selections Detected: Please check that all date and time entries are valid." elapsed "12:00, February 30, 2001" "12:00, April 31, 2001"
refuses "error: Invalid Selections Detected: Please check that all date and time entries are valid." elapsed "12:00, February 30, 1000100" "12:00, April 3, 2001"
# A year far out of range keeps its leap years: 29 February of a year ending in 9996 exists.
refuses "error: Invalid Year: Please make sure the year value for 'Time 1' is a value from 0 to 10000" elapsed "12:00, February 29, 99999999999999999999999999999996" "12:00, April 3, 2001"
refuses "error: Invalid Selections Detected: Please check that all date and time entries are valid." elapsed "12:00, February 29, 99999999999999999999999999999997" "12:00, April 3, 2001"
refuses "error: Invalid Gregorian Date: Please be sure the date for 'Time 1' falls on or after October 15, 1582" elapsed "12:00, October 14, 1582" "12:00, April 3, 2001"
refuses "error: Invalid Gregorian Date: Please be sure the date for 'Time 2' falls on or after October 15, 1582" elapsed "12:00, April 3, 2001" "12:00, January 1, 0"
refuses "error: Invalid Dates: Gregorian dates cannot be before October 15, 1582" elapsed "12:00, October 14, 1582" "12:00, April 3, 1000"
answers "$(rows 582 6 11 0 0)" elapsed --julian "12:00, October 14, 1582" "12:00, April 3, 1000"
answers "$(rows 998517 0 0 0 0)" elapsed "00:00, October 15, 1582" "00:00, October 15, 1000099"

# ---- The tool's own checks of its arguments ---------------------------------------------------

for moment in "24:00, March 1, 2001" "12:60, March 1, 2001" "123:00, March 1, 2001" "12:00,March 1, 2001" \
              "12:00, Foo 1, 2001" "12:00, March x, 2001" "12:00, March 1,2001" "x" "" "12:00 March 1, 2001"; do
  refuses "error: Invalid Moment: \"$moment\" is not of the form HH:MM, Month D, YYYY." elapsed "$moment" "12:00, March 1, 2001"
done
refuses 'error: Invalid Units: "q" is none of the letters y, m, d, h, M.' elapsed --units yq "12:00, March 1, 2001" "12:00, March 1, 2001"
refuses 'error: Usage: --total and --units exclude each other: orrivane-cal elapsed [--julian] [--total | --units UNITS] FROM TO' elapsed --total --units y "12:00, March 1, 2001" "12:00, March 1, 2001"
refuses 'error: Usage: orrivane-cal elapsed [--julian] [--total | --units UNITS] FROM TO' elapsed --units
refuses 'error: Usage: orrivane-cal elapsed [--julian] [--total | --units UNITS] FROM TO' elapsed "12:00, March 1, 2001"

finish
