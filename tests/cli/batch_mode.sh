#!/usr/bin/env bash
# orrivane-cal batch: one command a line, words split as a shell splits them, each answer or
# error line followed by an empty line on standard output, status 0 at the end of the input.
set -euo pipefail
source "$(dirname "$0")/expect.bash"

tab=$'\t'

feeds 'weekday January 1 2000
weekday --julian January 1 2000
convert January 1 2000
month February 2015' "Saturday

Friday

December 19, 1999 O.S.${tab}13 day(s).

February 2015
 S  M  T  W  T  F  S
 1  2  3  4  5  6  7
 8  9 10 11 12 13 14
15 16 17 18 19 20 21
22 23 24 25 26 27 28
 1  2  3  4  5  6  7
 8  9 10 11 12 13 14
"

# Quotes and backslashes as a shell reads them, without any expansion.
feeds "holidays --holiday 'Election Day, U.S.' 2005
holidays --holiday \"Election Day, U.S.\" 2005
holidays --holiday Election\\ Day,\\ U.S. 2005
holidays --holiday=\"Valentine's Day\" 2003
holidays --holiday 'Valentine'\\''s Day' 2003
elapsed \"09:05, March 1, 2001\" '17:47, June 15, 2003' --units \"M\"
calc Add \"\$HOME\" 1
weekday Jan\"\"uary 1 2000" "Election Day, U.S., Tuesday, November 8, 2005

Election Day, U.S., Tuesday, November 8, 2005

Election Day, U.S., Tuesday, November 8, 2005

Valentine's Day, Friday, February 14, 2003

Valentine's Day, Friday, February 14, 2003

Years: N/A
Months: N/A
Days: N/A
Hours: N/A
Minutes: 1204362

error: Run-time error '13': Type mismatch

Saturday
"

# Empty lines, blank lines and comments are no commands; an empty quoted word is a word.
feeds "
weekday January 1 2000

${tab}  ${tab}
# a comment
weekday January 1 2000 # and a comment after a command
month \"\" 2000" "Saturday

Saturday

error: No Month Selected: A month must be selected.
"

# Quotes and backslashes may stand anywhere in a word, in every word of a line; an option given
# twice counts with the value given last.
feeds "'weekday' \"Jan\"'uary' '1' 2\\000
holidays --holiday Christmas --holiday \"Valentine's Day\" 2003" "Saturday

Valentine's Day, Friday, February 14, 2003
"

# Errors go to standard output in their place, and the batch goes on.
feeds "weekday January 32 2000
frob
weekday
weekday \"January 1 2000
weekday January 1 2000\\
batch
calc Divide 1 0
weekday January 1 2000" "error: Invalid Date: January does not have 32 days in it!

error: Unknown Command: \"frob\" is no command; orrivane-cal --help lists the commands.

error: Usage: orrivane-cal weekday [--julian] MONTH DAY YEAR

error: Usage: the line ends inside quotes or after a backslash.

error: Usage: the line ends inside quotes or after a backslash.

error: Usage: batch does not run inside batch.

error: Run-time error '11': Division by zero

Saturday
"

# Month texts that the batch remembers in one place take it over from each other; each keeps
# its own answer.
feeds "weekday Jan 1 2000
weekday Jun 1 2000
weekday Jan 1 2000
weekday Dec 1 2000
weekday 13 1 2000
weekday Dec 1 2000
weekday 0 1 2000
weekday x 1 2000
weekday 0 1 2000
weekday August 1 2000
weekday Feb 1 2000" "Saturday

Thursday

Saturday

Friday

Saturday

Friday

Friday

error: Invalid Month Entry: \"x\" is no month's number or name.

Friday

Tuesday

Tuesday
"

# Help and version answer inside a batch too.
version="$(sed -n 's/^project(Orrivane VERSION \([0-9.]*\).*/\1/p' "$(dirname "$0")/../../CMakeLists.txt")"
feeds "--version" "orrivane-cal $version
"

# Lines ended by CR LF, and a last line without its line feed.
printf 'weekday January 1 2000\r\nweekday --julian January 1 2000' > "$scratch/crlf"
input_file="$scratch/crlf" expect 0 "Saturday

Friday
" "" batch

# No input, no output.
input_file=/dev/null expect 0 "" "" batch
refuses 'error: Usage: orrivane-cal batch' batch weekday

# Many answers: every one in its place.
for i in $(seq 1 3000); do echo "weekday --julian January 1 0"; echo "weekday January 1 0"; done > "$scratch/many"
"$tool" batch < "$scratch/many" > "$scratch/many.out"
checks=$((checks + 1))
if [[ "$(grep -c '^Thursday$' "$scratch/many.out")" -ne 3000 || "$(grep -c '^error: Invalid Date:' "$scratch/many.out")" -ne 3000 ||
      "$(wc -l < "$scratch/many.out")" -ne 12000 ]]; then
  echo "FAIL: a batch of 6000 queries was not answered line for line" >&2
  failures=$((failures + 1))
fi

# In a dialogue through pipes each answer comes before the tool waits for the next line.
coproc CAL { "$tool" batch; }
cal_pid=$CAL_PID
dialogue=""
for query in "weekday January 1 2000" "weekday --julian January 1 2000"; do
  echo "$query" >&"${CAL[1]}"
  answer="(no answer within 10 s)"
  read -r -t 10 answer <&"${CAL[0]}" || true
  read -r -t 10 _ <&"${CAL[0]}" || true
  dialogue+="$answer;"
done
exec {CAL[1]}>&-
wait "$cal_pid" || true
checks=$((checks + 1))
if [[ "$dialogue" != "Saturday;Friday;" ]]; then
  echo "FAIL: a dialogue through pipes was answered with: $dialogue" >&2
  failures=$((failures + 1))
fi

finish
