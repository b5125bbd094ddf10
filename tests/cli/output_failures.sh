#!/usr/bin/env bash
# orrivane-cal when its answers cannot be written (a full disk, a closed standard output): an
# error line on standard error and status 1, in batch mode too. And what an error line shows of
# the input: control characters escaped; a byte-order mark before the first batch command.
set -euo pipefail
source "$(dirname "$0")/expect.bash"

full="error: Output Error: standard output could not be written: No space left on device."
closed="error: Output Error: standard output could not be written: Bad file descriptor."

write_fails() {
  local where="$1" status="$2" error="$3"
  shift 3
  output_to="$where" expect "$status" "" "$error" "$@"
}

if [[ -w /dev/full ]]; then
  write_fails full 1 "$full" weekday January 1 2000
  write_fails full 1 "$full" --help
  write_fails full 1 "$full" holidays 1583 2100
  # A command that answers nothing but its error line writes nothing to standard output.
  write_fails full 1 "error: Invalid Date Entry: Please enter a value from 1 to 31." weekday January 0 2000
  printf 'weekday January 1 2000\n%.0s' {1..5} > "$scratch/input"
  input_file="$scratch/input" write_fails full 1 "$full" batch
  # However long the input, the batch stops at the failure.
  awk 'BEGIN { for (i = 0; i < 300000; i++) print "weekday January 1 2000" }' > "$scratch/long"
  input_file="$scratch/long" write_fails full 1 "$full" batch
else
  echo "no /dev/full here: the full-disk checks are skipped"
fi
write_fails closed 1 "$closed" weekday January 1 2000
write_fails closed 1 "$closed" convert January 1 2000
printf 'weekday January 1 2000\n' > "$scratch/input"
input_file="$scratch/input" write_fails closed 1 "$closed" batch
# An error line alone needs no standard output.
write_fails closed 1 "error: Invalid Date Entry: Please enter a value from 1 to 31." weekday January 0 2000

# Control characters of the input are escaped in an error line, which stays one line.
refuses 'error: Invalid Month Entry: "Jan\x01\t\n\r\x1B[31m\x7F" is no month'"'"'s number or name.' \
  weekday $'Jan\x01\t\n\r\x1b[31m\x7f' 1 2000
refuses 'error: Unknown Command: "week\nday" is no command; orrivane-cal --help lists the commands.' $'week\nday'
refuses 'error: Unknown Holiday: "Easter\x08" is no holiday of the list.' holidays --holiday $'Easter\b' 2003
refuses 'error: Invalid Moment: "09:05, March 1,\t2001" is not of the form HH:MM, Month D, YYYY.' \
  elapsed $'09:05, March 1,\t2001' "09:05, March 1, 2001"
refuses 'error: Invalid Units: "\x1B" is none of the letters y, m, d, h, M.' \
  elapsed --units $'y\x1b' "09:05, March 1, 2001" "09:05, March 1, 2002"
# Printable characters beyond ASCII stand as they are.
refuses 'error: Invalid Month Entry: "février" is no month'"'"'s number or name.' weekday février 1 2000
feeds $'weekday \'Jan\tuary\' 1 2000' 'error: Invalid Month Entry: "Jan\tuary" is no month'"'"'s number or name.
'

# A byte-order mark at the start of the input is no part of the first command; elsewhere it is.
feeds $'\xef\xbb\xbfweekday January 1 2000\nweekday January 2 2000' 'Saturday

Sunday
'
feeds $'\xef\xbb\xbf# a comment first\nweekday January 1 2000' 'Saturday
'
feeds $'weekday January 1 2000\n\xef\xbb\xbfweekday January 2 2000' $'Saturday\n\nerror: Unknown Command: "\xef\xbb\xbfweekday" is no command; orrivane-cal --help lists the commands.\n'

finish
