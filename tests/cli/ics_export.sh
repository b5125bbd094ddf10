#!/usr/bin/env bash
# orrivane-cal ics: the stream read back by an independent reader (Debian's python3-icalendar):
# every task an event with its start, end and member, and alarms that fire at the minutes of
# orrivane-cal due; the years iCalendar cannot hold left out with a warning; the errors.
set -euo pipefail
source "$(dirname "$0")/expect.bash"

here="$(cd "$(dirname "$0")" && pwd)"
log="$scratch/organizer.sdl"
notes="$here/data/reminders.dat"
# Debian's interpreter, where python3-icalendar is installed.
python=/usr/bin/python3
export TZ=UTC

# The sample log, with a task beyond the year 9999 and a series of more hits than alarms are
# kept, across the jump of January 1, 2200, where no single repeating alarm can tell it.
cp "$here/data/organizer.sdl" "$log"
printf '%s\n' 20 '"Far","","","March"' '"05",100,0,"10","00"' 0 '"March","05",100,0,"10","00"' '255,"Carl"' \
  '1,"At The Start Time of Task","N/A","March 5, 2001","10:00"' '1,0,0,0' \
  21 '"Busy","","","December"' '"31",21,99,"06","00"' 1 '"January","01",22,0,"06","00"' '255,"Carl"' \
  '1,"December 31, 2199","06:00","January 1, 2200","06:00"' '2,"0","0","1"' \
  22 '"Edge","","","December"' '"31",99,99,"23","00"' 0 '"December","31",99,99,"23","00"' '255,"Carl"' \
  '1,"December 31, 9999","23:00","January 1, 10000","01:00"' '2,"0","0","30"' >> "$log"

warnings='warning: task 20 (Far): the year 10000 lies outside the years 1 to 9999 of iCalendar; the task is left out.
warning: task 21 (Busy): only the first 1000 reminders are kept.
warning: task 22 (Edge): its reminders after the year 9999 are left out.'
checks=$((checks + 1))
status=0
"$tool" ics "$log" --notes "$notes" > "$scratch/out.ics" 2> "$scratch/err" || status=$?
"$tool" due --log "$log" --notes "$notes" 1/1/2001 "12:00:00 AM" 12/31/2200 "11:59:00 PM" > "$scratch/due"
"$tool" due --log "$log" 12/31/9999 "12:00:00 AM" 12/31/9999 "11:59:00 PM" >> "$scratch/due"
if [[ $status != 0 ]] || ! diff <(printf '%s\n' "$warnings") "$scratch/err" >&2 ||
  ! "$python" "$here/ics_reader.py" "$scratch/out.ics" "$scratch/due"; then
  echo "FAIL: orrivane-cal ics of the sample log" >&2
  failures=$((failures + 1))
fi
# Lines end in CR LF, as iCalendar has them.
checks=$((checks + 1))
if [[ "$(head -1 "$scratch/out.ics" | od -An -c | tr -d ' \n')" != 'BEGIN:VCALENDAR\r\n' ]]; then
  echo "FAIL: orrivane-cal ics: the first line is not BEGIN:VCALENDAR ended by CR LF" >&2
  failures=$((failures + 1))
fi

refuses "error: Run-time error '53': File not found" ics "$scratch/missing.sdl"
refuses "error: Run-time error '53': File not found" ics "$log" --notes "$scratch/missing.dat"
refuses "error: Run-time error '62': Input past end of file" ics "$notes"
refuses 'error: Usage: orrivane-cal ics FILE [--notes FILE]' ics
refuses 'error: Usage: orrivane-cal ics FILE [--notes FILE]' ics "$log" "$log"

# In batch mode: the stream, then the empty line that ends every answer.
printf '%s\n' "ics '$here/data/organizer.sdl'" > "$scratch/input"
checks=$((checks + 1))
if ! "$tool" batch < "$scratch/input" > "$scratch/batch.out" 2> "$scratch/err" ||
  [[ "$(grep -c '^BEGIN:VEVENT' "$scratch/batch.out")" != 7 ]] || [[ "$(tail -c 3 "$scratch/batch.out" | od -An -c | tr -d ' \n')" != '\r\n\n' ]]; then
  echo "FAIL: orrivane-cal batch with ics" >&2
  failures=$((failures + 1))
fi

finish
