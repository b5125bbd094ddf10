#!/usr/bin/env bash
# Thousands of random weekday and convert queries in batch mode, checked against a reference
# written here from day numbers (the Julian Day Number arithmetic of both calendars), not from
# the program's own procedure. ORRIVANE_CLI_SEED picks another sample.
set -euo pipefail
source "$(dirname "$0")/expect.bash"

seed="${ORRIVANE_CLI_SEED:-20240521}"
queries=4000

python3 - "$seed" "$queries" "$scratch/queries" "$scratch/expected_answers" <<'PYTHON'
import random
import sys

seed, count, queries_path, expected_path = int(sys.argv[1]), int(sys.argv[2]), sys.argv[3], sys.argv[4]
rng = random.Random(seed)

MONTHS = ["January", "February", "March", "April", "May", "June", "July", "August", "September",
          "October", "November", "December"]
WEEKDAYS = ["Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"]


# Day numbers of the proleptic calendars (Julian Day Number), for any year from 0 on.
def shifted(y, m):
    a = (14 - m) // 12
    return y + 4800 - a, m + 12 * a - 3


def day_number_gregorian(y, m, d):
    yy, mm = shifted(y, m)
    return d + (153 * mm + 2) // 5 + 365 * yy + yy // 4 - yy // 100 + yy // 400 - 32045


def day_number_julian(y, m, d):
    yy, mm = shifted(y, m)
    return d + (153 * mm + 2) // 5 + 365 * yy + yy // 4 - 32083


def date_of_gregorian(n):
    a = n + 32044
    b = (4 * a + 3) // 146097
    c = a - 146097 * b // 4
    d = (4 * c + 3) // 1461
    e = c - 1461 * d // 4
    m = (5 * e + 2) // 153
    return 100 * b + d - 4800 + m // 10, m + 3 - 12 * (m // 10), e - (153 * m + 2) // 5 + 1


def date_of_julian(n):
    c = n + 32082
    d = (4 * c + 3) // 1461
    e = c - 1461 * d // 4
    m = (5 * e + 2) // 153
    return d - 4800 + m // 10, m + 3 - 12 * (m // 10), e - (153 * m + 2) // 5 + 1


def is_leap(y, julian):
    return y % 4 == 0 and (julian or y % 100 != 0 or y % 400 == 0)


def month_length(y, m, julian):
    if m == 2:
        return 29 if is_leap(y, julian) else 28
    return 30 if m in (4, 6, 9, 11) else 31


GREGORIAN_START = ("error: Invalid Date: For the Gregorian Calendar, please make sure the date entered "
                   "is on or after October 15, 1582.")
JULIAN_START = ("error: Invalid Date For Conversion: To convert a date from Julian to Gregorian, the date "
                "entered must be on or after October 5, 1582.")


def day_fault(y, m, d, julian):
    """The message of a day the month does not have, or None."""
    if m == 2 and d == 29 and not is_leap(y, julian):
        return f"error: Invalid Date: February of {y} only has 28 days in it."
    if d > month_length(y, m, True):  # February may have 29 in the tables; 30 and 31 never
        return f"error: Invalid Date: {MONTHS[m - 1]} does not have {d} days in it!"
    return None


def weekday_answer(y, m, d, julian):
    if not julian and (y < 1582 or (y == 1582 and (m < 10 or (m == 10 and d < 15)))):
        return GREGORIAN_START
    fault = day_fault(y, m, d, julian)
    if fault:
        return fault
    n = day_number_julian(y, m, d) if julian else day_number_gregorian(y, m, d)
    return WEEKDAYS[(n + 1) % 7]


def convert_answer(y, m, d, julian):
    """The answer, or None for the two kept oddities of a Julian date reaching 1 January or 1 December."""
    first_day = 5 if julian else 15
    if y < 1582 or (y == 1582 and (m < 10 or m == 11 or (m == 10 and d < first_day))):
        return JULIAN_START if julian else GREGORIAN_START
    fault = day_fault(y, m, d, julian)
    if fault:
        return fault
    if julian:
        n = day_number_julian(y, m, d)
        ty, tm, td = date_of_gregorian(n)
        if td == 1 and tm in (1, 12):
            return None
    else:
        n = day_number_gregorian(y, m, d)
        ty, tm, td = date_of_julian(n)
    # The days between the calendars at this reading of the date; 29 February of a Julian
    # century year the Gregorian calendar lacks is told with the step that follows it.
    difference = day_number_julian(y, m, d) - day_number_gregorian(y, m, d)
    if julian and m == 2 and d == 29 and y % 100 == 0 and y % 400 != 0:
        difference += 1
    label = "N.S." if julian else "O.S."
    return f"{MONTHS[tm - 1]} {td}, {ty} {label}\t{abs(difference)} day(s)."


def random_year():
    kind = rng.randrange(4)
    if kind == 0:
        return rng.randint(0, 1000000)
    if kind == 1:
        return rng.randint(1570, 1600)
    if kind == 2:
        return rng.randint(0, 10000) * 100 + rng.randint(-1, 1)  # about century years
    return rng.randint(0, 3000)


def random_long_day():
    """A day no month has: just past the longest month, far past it, or past any fixed width."""
    return rng.choice([32, rng.randint(32, 10**6), rng.randint(10**15, 10**30)])


def month_form(m):
    return rng.choice([MONTHS[m - 1], MONTHS[m - 1][:3], str(m), f"{m:02d}"])


with open(queries_path, "w") as queries, open(expected_path, "w") as expected:
    written = 0
    while written < count:
        julian = rng.random() < 0.5
        y = min(max(random_year(), 0), 1000000)
        m = rng.randint(1, 12)
        d = rng.randint(1, 31) if rng.random() < 0.9 else random_long_day()
        command = rng.choice(["weekday", "convert"])
        answer = (weekday_answer if command == "weekday" else convert_answer)(y, m, d, julian)
        if answer is None:
            continue
        style = "--julian " if julian else ""
        queries.write(f"{command} {style}{month_form(m)} {d} {y}\n")
        expected.write(answer + "\n\n")
        written += 1
PYTHON

"$tool" batch < "$scratch/queries" > "$scratch/answers"
checks=$((checks + 1))
if ! cmp -s "$scratch/expected_answers" "$scratch/answers"; then
  echo "FAIL: answers differ from the reference (seed $seed); query, expected, answer:" >&2
  diff <(awk 'NR % 2 == 1' "$scratch/expected_answers") <(awk 'NR % 2 == 1' "$scratch/answers") |
    grep -E '^[0-9]' | head -20 | while read -r hunk; do
      line="${hunk%%[acd,]*}"
      echo "    $(sed -n "${line}p" "$scratch/queries")" >&2
      echo "      expected: $(awk 'NR % 2 == 1' "$scratch/expected_answers" | sed -n "${line}p")" >&2
      echo "      answered: $(awk 'NR % 2 == 1' "$scratch/answers" | sed -n "${line}p")" >&2
    done
  failures=$((failures + 1))
fi

finish
