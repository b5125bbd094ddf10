#!/usr/bin/env bash
# orrivane-cal weekday, month and convert: answers, messages and exit statuses.
set -euo pipefail
source "$(dirname "$0")/expect.bash"

gregorian_start='error: Invalid Date: For the Gregorian Calendar, please make sure the date entered is on or after October 15, 1582.'
invalid_year='error: Invalid Year Entry: Please enter a value from 1 to 1000000.'
invalid_date='error: Invalid Date Entry: Please enter a value from 1 to 31.'

# ---- weekday ---------------------------------------------------------------------------------

answers Saturday weekday January 1 2000
answers Friday weekday --julian January 1 2000
answers Friday weekday January 1 2000 --julian
answers Friday weekday October 15 1582
answers Sunday weekday --julian October 14 1582
answers Tuesday weekday --julian February 29 1900
answers Thursday weekday --julian January 1 0
answers Sunday weekday December 31 1000000
answers Monday weekday --julian December 31 1000000
answers Thursday weekday September 14 1752
answers Wednesday weekday --julian September 2 1752
answers Friday weekday January 05 02024

# Every form of the month vocabulary, and nothing else.
for month in January Jan 1 01 13 enero janvier; do answers Friday weekday "$month" 5 2024; done
for month in December Dec 12 0 diciembre decembre; do answers Friday weekday "$month" 1 2000; done
answers Wednesday weekday fevier 14 2024
refuses 'error: Invalid Month Entry: "january" is no month'"'"'s number or name.' weekday january 5 2024
refuses 'error: Invalid Month Entry: "14" is no month'"'"'s number or name.' weekday 14 5 2024
refuses 'error: Invalid Month Entry: "" is no month'"'"'s number or name.' weekday "" 5 2024

# Calendarr's checks: the Gregorian start, 29 February, the month's length; 1 comes first.
refuses "$gregorian_start" weekday October 14 1582
refuses "$gregorian_start" weekday September 30 1582
refuses "$gregorian_start" weekday January 1 0
refuses "$gregorian_start" weekday February 30 1500
refuses 'error: Invalid Date: February of 1900 only has 28 days in it.' weekday February 29 1900
answers Tuesday weekday February 29 2000
refuses 'error: Invalid Date: September does not have 31 days in it!' weekday September 31 1700
refuses 'error: Invalid Date: February does not have 30 days in it!' weekday --julian February 30 1900
answers Monday weekday November 1 1582

# The year is a whole number from 0 to 1,000,000, the date one from 1 to 31.
for year in 1000001 -1 abc 2000.0 +2000 "" " 2000" 99999999999999999999999; do
  refuses "$invalid_year" weekday January 1 "$year"
done
for date in 0 00 -1 x 1.0 "" +1 " 1" 1e1; do refuses "$invalid_date" weekday January "$date" 2000; done

# A day above 31 is Calendarr's to refuse, with its codes in their order: 1 before 3. However
# long the day, the answer comes at once and tells the day as written.
refuses 'error: Invalid Date: October does not have 32 days in it!' weekday 10 32 1582
refuses "$gregorian_start" weekday Feb 32 6
refuses "$gregorian_start" weekday September 40 1582
refuses "$gregorian_start" weekday October 99999999999999999999999 1581
refuses 'error: Invalid Date: February does not have 32 days in it!' weekday --julian Feb 32 6
refuses 'error: Invalid Date: January does not have 32 days in it!' weekday January 0032 2000
refuses 'error: Invalid Date: December does not have 1000000000000000 days in it!' weekday December 1000000000000000 2000
refuses 'error: Invalid Date: December does not have 1000000000000001 days in it!' weekday December 1000000000000001 2000
refuses 'error: Invalid Date: April does not have 99999999999999999999999 days in it!' weekday April 99999999999999999999999 2000
refuses 'error: Invalid Date: April does not have 100000000000000000000000000000000000000000000000000 days in it!' \
  weekday April 0100000000000000000000000000000000000000000000000000 1000000
answers Monday weekday January 031 2000

# ---- month -----------------------------------------------------------------------------------

answers 'February 2024
 S  M  T  W  T  F  S
28 29 30 31  1  2  3
 4  5  6  7  8  9 10
11 12 13 14 15 16 17
18 19 20 21 22 23 24
25 26 27 28 29  1  2
 3  4  5  6  7  8  9' month February 2024

# The first of October 1582 in its proleptic place, 31 days in a row.
answers 'October 1582
 S  M  T  W  T  F  S
26 27 28 29 30  1  2
 3  4  5  6  7  8  9
10 11 12 13 14 15 16
17 18 19 20 21 22 23
24 25 26 27 28 29 30
31  1  2  3  4  5  6' month Oct 1582

answers 'January 0
 S  M  T  W  T  F  S
28 29 30 31  1  2  3
 4  5  6  7  8  9 10
11 12 13 14 15 16 17
18 19 20 21 22 23 24
25 26 27 28 29 30 31
 1  2  3  4  5  6  7' month --julian 1 0

# A 28-day February beginning on a Sunday fills four rows exactly.
answers 'February 2015
 S  M  T  W  T  F  S
 1  2  3  4  5  6  7
 8  9 10 11 12 13 14
15 16 17 18 19 20 21
22 23 24 25 26 27 28
 1  2  3  4  5  6  7
 8  9 10 11 12 13 14' month February 2015

answers 'December 1000000
 S  M  T  W  T  F  S
26 27 28 29 30  1  2
 3  4  5  6  7  8  9
10 11 12 13 14 15 16
17 18 19 20 21 22 23
24 25 26 27 28 29 30
31  1  2  3  4  5  6' month December 1000000

# The year box takes what the window's takes: a number, as the window reads it.
answers 'March 2000
 S  M  T  W  T  F  S
27 28 29  1  2  3  4
 5  6  7  8  9 10 11
12 13 14 15 16 17 18
19 20 21 22 23 24 25
26 27 28 29 30 31  1
 2  3  4  5  6  7  8' month March 2e3

# The six statuses of "View Month On Calendar".
refuses 'error: No Month Selected: A month must be selected.' month "" 2000
refuses 'error: No Year Entered: A year must be entered.' month March ""
refuses "$invalid_year" month March 1000001
refuses "$invalid_year" month --julian March -5
refuses 'error: Invalid Month Selection: For the Gregorian Calendar, please make sure the month selected is October 1582 or later.' month September 1582
refuses 'error: Invalid Month Selection: For the Gregorian Calendar, please make sure the month selected is October 1582 or later.' month March -5
refuses 'error: Invalid Month Selection: For the Gregorian Calendar, please make sure the month selected is October 1582 or later.' month January 0
refuses 'error: Invalid Year Entry: The year must contain only numbers.' month March abc
# A year is counted in whole years: one with a fraction is no number of years.
refuses 'error: Invalid Year Entry: The year must contain only numbers.' month September 1582.5
refuses 'error: Invalid Year Entry: The year must contain only numbers.' month --julian January 1581.5
refuses 'error: Invalid Year Entry: The year must contain only numbers.' month March 2.0005e3
refuses 'error: Error: Please select a month and enter a valid year in the year field.' month "" 1582.5
refuses 'error: Error: Please select a month and enter a valid year in the year field.' month "" ""
refuses 'error: Error: Please select a month and enter a valid year in the year field.' month "" abc
refuses 'error: Invalid Month Entry: "Marchh" is no month'"'"'s number or name.' month Marchh 2000

# ---- convert ---------------------------------------------------------------------------------

tab=$'\t'
answers "December 19, 1999 O.S.${tab}13 day(s)." convert January 1 2000
answers "October 5, 1582 O.S.${tab}10 day(s)." convert October 15 1582
answers "October 15, 1582 N.S.${tab}10 day(s)." convert --julian October 5 1582
answers "December 5, 1582 O.S.${tab}10 day(s)." convert December 15 1582
answers "March 13, 1900 N.S.${tab}13 day(s)." convert --julian February 29 1900
answers "January 29, 1900 O.S.${tab}12 day(s)." convert February 10 1900
answers "January 13, 2000 N.S.${tab}13 day(s)." convert --julian December 31 1999
# The empty month of a Gregorian 1 January reached from the year before, kept as it is.
answers " 2, 1584 N.S.${tab}10 day(s)." convert --julian December 22 1583
answers "June 21, 999980 O.S.${tab}7498 day(s)." convert December 31 1000000
answers "December 25, 1000020 N.S.${tab}7498 day(s)." convert --julian June 15 1000000

refuses 'error: Invalid Date For Conversion: To convert a date from Julian to Gregorian, the date entered must be on or after October 5, 1582.' convert --julian October 4 1582
refuses 'error: Invalid Date For Conversion: To convert a date from Julian to Gregorian, the date entered must be on or after October 5, 1582.' convert --julian November 15 1582
refuses 'error: Invalid Date For Conversion: To convert a date from Julian to Gregorian, the date entered must be on or after October 5, 1582.' convert --julian January 1 0
refuses "$gregorian_start" convert October 14 1582
refuses "$gregorian_start" convert November 15 1582
refuses 'error: Invalid Date: February of 2001 only has 28 days in it.' convert February 29 2001
refuses 'error: Invalid Date: April does not have 31 days in it!' convert --julian April 31 2001
refuses "$invalid_year" convert January 1 1000001
refuses "$invalid_date" convert January 0 2000
refuses 'error: Invalid Date: October does not have 32 days in it!' convert 10 32 1582
refuses "$gregorian_start" convert Feb 32 6
refuses 'error: Invalid Date: February does not have 99999999999999999999999 days in it!' convert --julian Feb 99999999999999999999999 1900

finish
