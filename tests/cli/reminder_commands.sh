#!/usr/bin/env bash
# orrivane-cal minutes, remaining, due and tasks: answers, errors and exit statuses, alone and in
# batch mode, over the log and the reminder file of tests/cli/data.
set -euo pipefail
source "$(dirname "$0")/expect.bash"

data="$(cd "$(dirname "$0")/data" && pwd)"
log="$data/organizer.sdl"
notes="$data/reminders.dat"
tab=$'\t'

# ---- minutes ---------------------------------------------------------------------------------

answers 53213190 minutes "March 5, 2001" 14:30
answers 0 minutes "January 1, 1900" 00:00
answers -1 minutes "December 31, 1899" 23:59
answers 157785119 minutes "December 31, 2199" 23:59
answers 157788000 minutes "January 1, 2200" 00:00
answers 524960676000 minutes "January 1, 1000000" 00:00
answers -998796960 minutes "January 1, 1" 00:00
answers 52679520 minutes "February 29, 2000" 00:00

refuses 'error: Invalid Argument: "March 05, 2001" is not in the form "March 5, 2001".' minutes "March 05, 2001" 14:30
refuses 'error: Invalid Argument: "Mar 5, 2001" is not in the form "March 5, 2001".' minutes "Mar 5, 2001" 14:30
refuses 'error: Invalid Argument: "march 5, 2001" is not in the form "March 5, 2001".' minutes "march 5, 2001" 14:30
refuses 'error: Invalid Argument: "March 5,2001" is not in the form "March 5, 2001".' minutes "March 5,2001" 14:30
refuses 'error: Invalid Argument: "March 5, 02001" is not in the form "March 5, 2001".' minutes "March 5, 02001" 14:30
refuses 'error: Invalid Argument: "March 5, 0" is not in the form "March 5, 2001".' minutes "March 5, 0" 14:30
refuses 'error: Invalid Argument: "March 5, 1000001" is not in the form "March 5, 2001".' minutes "March 5, 1000001" 14:30
refuses 'error: Invalid Argument: "March 5, 2001 " is not in the form "March 5, 2001".' minutes "March 5, 2001 " 14:30
refuses 'error: Invalid Date: "February 29, 1900" is no day of the Gregorian calendar.' minutes "February 29, 1900" 14:30
refuses 'error: Invalid Date: "April 31, 2001" is no day of the Gregorian calendar.' minutes "April 31, 2001" 14:30
refuses 'error: Invalid Date: "April 0, 2001" is no day of the Gregorian calendar.' minutes "April 0, 2001" 14:30
refuses 'error: Invalid Argument: "24:00" is not in the form "14:30".' minutes "March 5, 2001" 24:00
refuses 'error: Invalid Argument: "9:30" is not in the form "14:30".' minutes "March 5, 2001" 9:30
refuses 'error: Invalid Argument: "14:60" is not in the form "14:30".' minutes "March 5, 2001" 14:60
refuses 'error: Usage: orrivane-cal minutes DATE TIME' minutes "March 5, 2001"

# ---- remaining -------------------------------------------------------------------------------

answers 'It will be 2 days, 3 hours and, 4 minutes until this task is scheduled to begin.' \
  remaining "March 7, 2001" 17:34 3/5/2001 "2:30:09 PM"
answers 'It will be 1 day and, 5 hours until this task is scheduled to begin.' \
  remaining "March 6, 2001" 19:30 3/5/2001 "2:30:00 PM"
answers 'It has been 1 hour and, 1 minute since the scheduled begin time of this task.' \
  remaining "March 5, 2001" 14:30 3/5/2001 "3:31:59 PM"
answers 'This task is scheduled to begin now.' remaining "March 5, 2001" 14:30 3/5/2001 "2:30:59 PM"
answers 'It will be 3000 days until this task is scheduled to begin.' remaining "May 22, 2009" 14:30 3/5/2001 "2:30:00 PM"
answers 'It will be 8 years until this event is scheduled to occur.' remaining "May 23, 2009" 14:30 3/5/2001 "2:30:00 PM"
answers 'It has been 101 years since this event was expected to occur.' remaining "March 5, 1900" 14:30 3/5/2001 "2:30:00 PM"
# Beyond the year 5500 the sentence is empty: one empty line.
printf '\n' > "$scratch/one_empty_line"
checks=$((checks + 1))
if [[ "$(run_tool "$tool" remaining "March 5, 6000" 14:30 3/5/2001 "2:30:00 PM")" != 0 ]] ||
  ! cmp -s "$scratch/out" "$scratch/one_empty_line" || [[ -s "$scratch/err" ]]; then
  echo "FAIL: remaining beyond the year 5500 is not one empty line" >&2
  failures=$((failures + 1))
fi
refuses 'error: Invalid Argument: "14:30" is not in the form "2:05:09 PM".' remaining "March 5, 2001" 14:30 3/5/2001 14:30
refuses 'error: Invalid Argument: "2:30 PM" is not in the form "2:05:09 PM".' remaining "March 5, 2001" 14:30 3/5/2001 "2:30 PM"
refuses 'error: Invalid Argument: "02:30:00 PM" is not in the form "2:05:09 PM".' remaining "March 5, 2001" 14:30 3/5/2001 "02:30:00 PM"
refuses 'error: Invalid Argument: "13:30:00 PM" is not in the form "2:05:09 PM".' remaining "March 5, 2001" 14:30 3/5/2001 "13:30:00 PM"
refuses 'error: Invalid Argument: "2:30:00 pm" is not in the form "2:05:09 PM".' remaining "March 5, 2001" 14:30 3/5/2001 "2:30:00 pm"
refuses 'error: Invalid Argument: "2001-03-05" is not in the form "3/5/2001".' remaining "March 5, 2001" 14:30 2001-03-05 "2:30:00 PM"
refuses 'error: Invalid Argument: "13/5/2001" is not in the form "3/5/2001".' remaining "March 5, 2001" 14:30 13/5/2001 "2:30:00 PM"
refuses 'error: Invalid Argument: "3/05/2001" is not in the form "3/5/2001".' remaining "March 5, 2001" 14:30 3/05/2001 "2:30:00 PM"
refuses 'error: Invalid Date: "2/30/2001" is no day of the Gregorian calendar.' remaining "March 5, 2001" 14:30 2/30/2001 "2:30:00 PM"
refuses 'error: Invalid Date: "September 31, 2001" is no day of the Gregorian calendar.' remaining "September 31, 2001" 14:30 3/5/2001 "2:30:00 PM"

# ---- due: one minute -------------------------------------------------------------------------

answers 'task 2 - Review #2
note 4 - Backup' due --log "$log" --notes "$notes" 3/5/2001 "10:25:00 AM"
answers 'task 2 - Review #2' due --log "$log" 3/5/2001 "10:25:59 AM"
answers 'note 4 - Backup' due --notes "$notes" 3/5/2001 "10:25:00 AM"
# Before The Start Time of Task, by 1 hour 15 minutes, of a task at 14:30; a note at 13:15.
answers 'task 1 - Dentist
note 8 - Call' due --notes "$notes" --log "$log" 3/5/2001 "1:15:00 PM"
# At The Finish Time Of Task; the twin task whose reminder is off stays silent.
answers 'task 10 - New Year' due --log "$log" 1/1/2002 "12:30:00 AM"
answers '' due --log "$log" --notes "$notes" 3/5/2001 "10:24:00 AM"

# ---- due: a range ----------------------------------------------------------------------------

answers "2001-03-05 10:00${tab}task 2 - Review #2
2001-03-05 10:10${tab}task 3 - Standup
2001-03-05 10:25${tab}task 2 - Review #2
2001-03-05 10:25${tab}note 4 - Backup
2001-03-05 10:35${tab}task 3 - Standup
2001-03-05 10:50${tab}task 2 - Review #2
2001-03-05 11:00${tab}task 3 - Standup
2001-03-05 13:15${tab}task 1 - Dentist
2001-03-05 13:15${tab}note 8 - Call
2001-03-05 23:00${tab}task 4 - Night shift
2001-03-05 23:45${tab}task 4 - Night shift
2001-03-06 00:30${tab}task 4 - Night shift" due --log "$log" --notes "$notes" 3/5/2001 "12:00:00 AM" 3/6/2001 "11:59:00 PM"
# Both ends included.
answers "2001-03-05 10:25${tab}task 2 - Review #2
2001-03-05 10:25${tab}note 4 - Backup
2001-03-05 10:35${tab}task 3 - Standup" due --log "$log" --notes "$notes" 3/5/2001 "10:25:00 AM" 3/5/2001 "10:35:00 AM"
answers "2001-03-05 10:25${tab}note 4 - Backup" due --notes "$notes" 3/5/2001 "10:25:00 AM" 3/5/2001 "10:25:00 AM"
# Across the jump of the comparison number on January 1, 2200.
answers "2199-12-31 23:00${tab}task 5 - Turn of 2200
2199-12-31 23:30${tab}task 5 - Turn of 2200
2200-01-01 00:00${tab}task 5 - Turn of 2200
2200-01-01 00:00${tab}note 12 - Century
2200-01-01 00:30${tab}task 5 - Turn of 2200
2200-01-01 01:00${tab}task 5 - Turn of 2200" due --log "$log" --notes "$notes" 12/31/2199 "10:00:00 PM" 1/1/2200 "2:00:00 AM"
answers '' due --log "$log" 1/1/3000 "12:00:00 AM" 12/31/3000 "11:59:00 PM"

usage_due='error: Usage: orrivane-cal due [--log FILE] [--notes FILE] NOW_DATE NOW_TIME [UNTIL_DATE UNTIL_TIME]'
refuses "$usage_due" due 3/5/2001 "10:25:00 AM"
refuses "$usage_due" due --log "$log" 3/5/2001 "10:25:00 AM" 3/6/2001
refuses "$usage_due" due --log "$log" 3/5/2001
refuses "$usage_due" due --log
refuses 'error: Invalid Range: "3/4/2001 10:25:00 AM" lies before "3/5/2001 10:25:00 AM".' \
  due --log "$log" 3/5/2001 "10:25:00 AM" 3/4/2001 "10:25:00 AM"
refuses 'error: Invalid Argument: "10:25 AM" is not in the form "2:05:09 PM".' due --log "$log" 3/5/2001 "10:25 AM"
refuses 'error: Invalid Date: "2/29/2001" is no day of the Gregorian calendar.' due --log "$log" 2/29/2001 "10:25:00 AM"
refuses "error: Run-time error '53': File not found" due --log "$scratch/missing.sdl" 3/5/2001 "10:25:00 AM"
refuses "error: Run-time error '53': File not found" due --log "$log" --notes "$scratch/NTRemin.dat" 3/5/2001 "10:25:00 AM"
# A reminder file is no log: its records run out in the middle.
refuses "error: Run-time error '62': Input past end of file" due --log "$notes" 3/5/2001 "10:25:00 AM"
# A series with a period of 0 fails only where the tick would divide by it.
{
  sed -n 1,8p "$log" >/dev/null
  printf '%s\n' 1 '"Zero","","","March"' '"05",20,1,"10","00"' 0 '"March","05",20,1,"10","00"' '255,"Anna"' \
    '1,"March 5, 2001","10:30","March 5, 2001","11:00"' '2,0,0,0'
} > "$scratch/zero.sdl"
answers '' due --log "$scratch/zero.sdl" 3/5/2001 "10:29:00 AM"
answers '' due --log "$scratch/zero.sdl" 3/5/2001 "9:00:00 AM" 3/5/2001 "10:29:00 AM"
refuses "error: Run-time error '11': Division by zero" due --log "$scratch/zero.sdl" 3/5/2001 "10:30:00 AM"
refuses "error: Run-time error '11': Division by zero" due --log "$scratch/zero.sdl" 3/5/2001 "9:00:00 AM" 3/6/2001 "9:00:00 AM"
# A series of every minute from the year 1 to the year 1,000,000: a few minutes of it, and the
# whole refused at once rather than listed.
printf '%s\n' 1 '"Every minute","","","March"' '"05",20,1,"10","00"' 0 '"March","05",20,1,"10","00"' '255,"Anna"' \
  '1,"January 1, 1","00:00","December 31, 1000000","23:59"' '2,0,0,1' > "$scratch/every.sdl"
answers "2001-01-01 00:00${tab}task 1 - Every minute
2001-01-01 00:01${tab}task 1 - Every minute" due --log "$scratch/every.sdl" 1/1/2001 "12:00:00 AM" 1/1/2001 "12:01:00 AM"
refuses 'error: Error: more than 20000000 reminders fall due in the range; ask for a shorter one.' \
  due --log "$scratch/every.sdl" 1/1/1 "12:00:00 AM" 12/31/1000000 "11:59:00 PM"
# A truncated reminder file.
printf '%s\n' 4 1 '"Backup"' > "$scratch/short.dat"
refuses "error: Run-time error '62': Input past end of file" due --notes "$scratch/short.dat" 3/5/2001 "10:25:00 AM"

# ---- tasks -----------------------------------------------------------------------------------

answers '2001, 03Mar 05, 10:00 Review #2, #2
2001, 03Mar 05, 14:30 Dentist, #1
2001, 12Dec 31, 23:30 New Year, #10
2001, 12Dec 31, 23:30 New Year, #9' tasks "$log" Anna
answers '2001, 03Mar 05, 10:00 Standup, #3
2001, 03Mar 05, 22:00 Night shift, #4' tasks "$log" Bob
answers '2199, 12Dec 31, 23:00 Turn of 2200, #5' tasks "$log" Carl
answers '' tasks "$log" Nobody
answers '' tasks "$log" anna
# Both boxes on: start and finish within the bounds, each bound taking its own minute.
answers '2001, 03Mar 05, 14:30 Dentist, #1' tasks "$log" Anna --after "14:30, Mar. 5, 2001" --before "15:45, Mar. 5, 2001"
answers '' tasks "$log" Anna --after "14:30, Mar. 5, 2001" --before "15:44, Mar. 5, 2001"
answers '2001, 03Mar 05, 14:30 Dentist, #1' tasks "$log" Anna --after "14:30, Mar. 5, 2001" --before "15:44, Mar. 5, 2001" --start
answers '2001, 03Mar 05, 10:00 Review #2, #2' tasks "$log" Anna --before "11:00, Mar. 5, 2001"
# Only the finish: a task that began before the After bound and ends within the range.
answers '2001, 03Mar 05, 22:00 Night shift, #4' tasks "$log" Bob --after "05:00, Mar. 6, 2001" --finish
answers '' tasks "$log" Bob --after "05:00, Mar. 6, 2001" --start
answers '2001, 12Dec 31, 23:30 New Year, #10
2001, 12Dec 31, 23:30 New Year, #9' tasks "$log" Anna --after "00:00, Dec. 31, 2001"
# The boxes count only with a bound.
answers '2001, 03Mar 05, 10:00 Standup, #3
2001, 03Mar 05, 22:00 Night shift, #4' tasks "$log" Bob --start
refuses 'error: Invalid Argument: "9:00, Mar. 5, 2001" is not in the form "14:00, Mar. 5, 2001".' tasks "$log" Anna --after "9:00, Mar. 5, 2001"
refuses 'error: Invalid Argument: "09:00, March 5, 2001" is not in the form "14:00, Mar. 5, 2001".' tasks "$log" Anna --after "09:00, March 5, 2001"
refuses 'error: Invalid Argument: "No Date Selected" is not in the form "14:00, Mar. 5, 2001".' tasks "$log" Anna --before "No Date Selected"
refuses 'error: Invalid Date: "09:00, Feb. 30, 2001" is no day of the Gregorian calendar.' tasks "$log" Anna --before "09:00, Feb. 30, 2001"
refuses "error: Run-time error '53': File not found" tasks "$scratch/missing.sdl" Anna
refuses 'error: Usage: orrivane-cal tasks FILE NAME [--after BOUND] [--before BOUND] [--start] [--finish]' tasks "$log"
refuses 'error: Usage: orrivane-cal tasks FILE NAME [--after BOUND] [--before BOUND] [--start] [--finish]' tasks "$log" Anna --after

# ---- in batch mode ---------------------------------------------------------------------------

feeds "minutes 'March 5, 2001' 14:30
minutes 'March 05, 2001' 14:30
remaining 'March 5, 2001' 14:30 3/5/2001 '2:30:00 PM'
remaining 'March 5, 6000' 14:30 3/5/2001 '2:30:00 PM'
due --log '$log' --notes '$notes' 3/5/2001 '10:25:00 AM'
due --notes '$notes' 3/5/2001 '10:20:00 AM' 3/5/2001 '10:30:00 AM'
due --log '$scratch/zero.sdl' 3/5/2001 '10:30:00 AM'
due --log '$log' 3/5/2001 '9:00:00 AM'
tasks '$log' Bob
tasks '$log' Anna --after '14:30, Mar. 5, 2001' --before '15:45, Mar. 5, 2001'" "53213190

error: Invalid Argument: \"March 05, 2001\" is not in the form \"March 5, 2001\".

This task is scheduled to begin now.



task 2 - Review #2
note 4 - Backup

2001-03-05 10:25${tab}note 4 - Backup

error: Run-time error '11': Division by zero


2001, 03Mar 05, 10:00 Standup, #3
2001, 03Mar 05, 22:00 Night shift, #4

2001, 03Mar 05, 14:30 Dentist, #1
"

finish
