#!/usr/bin/env bash
# orrivane-cal --help and --version, and the errors of a command line the tool cannot read.
set -euo pipefail
source "$(dirname "$0")/expect.bash"

version="$(sed -n 's/^project(Orrivane VERSION \([0-9.]*\).*/\1/p' "$(dirname "$0")/../../CMakeLists.txt")"

usage='Usage:
  orrivane-cal weekday  [--julian] MONTH DAY YEAR
  orrivane-cal month    [--julian] MONTH YEAR
  orrivane-cal convert  [--julian] MONTH DAY YEAR
  orrivane-cal holidays [--holiday NAME] YEAR [TO_YEAR]
  orrivane-cal elapsed  [--julian] [--total | --units UNITS] FROM TO
  orrivane-cal calc     OPERATION A B
  orrivane-cal minutes  DATE TIME
  orrivane-cal remaining DATE TIME NOW_DATE NOW_TIME
  orrivane-cal due      [--log FILE] [--notes FILE] NOW_DATE NOW_TIME [UNTIL_DATE UNTIL_TIME]
  orrivane-cal tasks    FILE NAME [--after BOUND] [--before BOUND] [--start] [--finish]
  orrivane-cal ics      FILE [--notes FILE]
  orrivane-cal batch
  orrivane-cal --help | --version'

answers "$usage" --help
answers "orrivane-cal $version" --version
refuses 'error: Usage: orrivane-cal --help | --version' --help weekday
refuses 'error: Usage: orrivane-cal --help | --version' --version 1

refuses 'error: Usage: orrivane-cal COMMAND ...; orrivane-cal --help lists the commands.'
refuses 'error: Unknown Command: "frob" is no command; orrivane-cal --help lists the commands.' frob
refuses 'error: Unknown Command: "-h" is no command; orrivane-cal --help lists the commands.' -h
refuses 'error: Unknown Command: "" is no command; orrivane-cal --help lists the commands.' ""

# Options of the command only, each in its place; every other word is an operand.
weekday_usage='error: Usage: orrivane-cal weekday [--julian] MONTH DAY YEAR'
refuses "$weekday_usage" weekday
refuses "$weekday_usage" weekday January 1
refuses "$weekday_usage" weekday January 1 2000 5
refuses "$weekday_usage" weekday --total January 1 2000
refuses "$weekday_usage" weekday --julian=yes January 1 2000
refuses "$weekday_usage" weekday --Julian January 1 2000
refuses 'error: Usage: orrivane-cal holidays [--holiday NAME] YEAR [TO_YEAR]' holidays --holiday
refuses 'error: Usage: orrivane-cal holidays [--holiday NAME] YEAR [TO_YEAR]' holidays 2003 2004 2005
refuses 'error: Usage: orrivane-cal month [--julian] MONTH YEAR' month March
answers Friday weekday January 1 --julian 2000
answers Friday weekday --julian --julian January 1 2000
# After "--" every word is an operand; a word with one dash is one anyway.
answers Saturday weekday -- January 1 2000
refuses 'error: Invalid Month Entry: "--julian" is no month'"'"'s number or name.' weekday -- --julian 1 2000
refuses 'error: Invalid Year Entry: Please enter a value from 1 to 1000000.' month --julian March -1

finish
