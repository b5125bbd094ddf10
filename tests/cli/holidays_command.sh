#!/usr/bin/env bash
# orrivane-cal holidays: the find-a-holiday window's list lines, its checks and messages.
set -euo pipefail
source "$(dirname "$0")/expect.bash"

all_years_invalid='error: Invalid Year: The year boxes may contain only numeric values from 1582 to 100100.'

# ---- By holiday ------------------------------------------------------------------------------

answers 'Easter, Sunday, April 10, 1583' holidays --holiday Easter 1583
answers 'Easter, Sunday, April 20, 2003' holidays --holiday=Easter 2003
answers 'Election Day, U.S., Tuesday, November 8, 2005' holidays --holiday "Election Day, U.S." 2005
answers 'Veterans Day, Monday, October 25, 1971' holidays --holiday "Veterans Day" 1971
answers 'Halloween, Sunday, October 31, 1582' holidays --holiday Halloween 1582
answers 'Easter, Sunday, April 25, 100100' holidays --holiday Easter 100100
# A range runs backward as well as forward.
answers 'Thanksgiving, Thursday, November 24, 1938
Thanksgiving, Thursday, November 23, 1939
Thanksgiving, Thursday, November 21, 1940
Thanksgiving, Thursday, November 20, 1941
Thanksgiving, Thursday, November 26, 1942' holidays --holiday Thanksgiving 1938 1942
answers 'Easter, Sunday, April 16, 2006
Easter, Sunday, March 27, 2005
Easter, Sunday, April 11, 2004' holidays --holiday Easter 2006 2004
# An empty last year is the first, as with the window's empty box.
answers 'Easter, Sunday, April 20, 2003' holidays --holiday Easter 2003 ""

refuses 'error: Invalid Year: For New Years Day, the year boxes may contain only numeric values from 1583 to 100100.' holidays --holiday "New Years Day" 1582
refuses 'error: Invalid Year: For Martin Luther King Day, the year boxes may contain only numeric values from 1983 to 100100.' holidays --holiday "Martin Luther King Day" 1982
refuses 'error: Invalid Year: For Election Day, the year boxes may contain only numeric values from 1845 to 100100.' holidays --holiday "Election Day, U.S." 1844
refuses 'error: Invalid Year: For Easter, the year boxes may contain only numeric values from 1583 to 100100.' holidays --holiday Easter 100101
refuses 'error: Invalid Year: For Easter, the year boxes may contain only numeric values from 1583 to 100100.' holidays --holiday Easter 2003 100101
refuses 'error: Invalid Year: For Easter, the year boxes may contain only numeric values from 1583 to 100100.' holidays --holiday Easter abc
refuses 'error: Invalid Year: For Easter, the year boxes may contain only numeric values from 1583 to 100100.' holidays --holiday Easter 2003.5
refuses "error: No Year Entered: A year must be entered in the 'From' box." holidays --holiday Easter ""
refuses "error: No Year Entered: A year must be entered in the 'From' box." holidays --holiday Easter "" 2003
refuses 'error: No Holiday Selected: A holiday must be selected.' holidays --holiday "" 2003
refuses 'error: No Selections Made: Please specify a holiday and valid year.' holidays --holiday "" ""
refuses 'error: Unknown Holiday: "easter" is no holiday of the list.' holidays --holiday easter 2003

# ---- All by year -----------------------------------------------------------------------------

answers 'Halloween, Sunday, October 31, 1582
Christmas Eve, Friday, December 24, 1582
Christmas Day, Saturday, December 25, 1582
New Years Eve, Friday, December 31, 1582' holidays 1582

answers 'New Years Day, Wednesday, January 1, 2003
Martin Luther King Day, Monday, January 20, 2003
Valentine'"'"'s Day, Friday, February 14, 2003
Presidents'"'"' Day, Monday, February 17, 2003
Mardi Gras, Tuesday, March 4, 2003
Ash Wednesday, Wednesday, March 5, 2003
St. Patricks'"'"' Day, Monday, March 17, 2003
Palm Sunday, Sunday, April 13, 2003
Good Friday, Friday, April 18, 2003
Easter, Sunday, April 20, 2003
Mother'"'"'s Day, Sunday, May 11, 2003
Ascension Day, Thursday, May 29, 2003
The Day of Pentecost, Sunday, June 8, 2003
Memorial Day, Monday, May 26, 2003
Father'"'"'s Day, Sunday, June 15, 2003
Fourth of July, Friday, July 4, 2003
Labor Day, Monday, September 1, 2003
Columbus Day, Monday, October 13, 2003
Halloween, Friday, October 31, 2003
Election Day, U.S., Tuesday, November 4, 2003
Veterans Day, Tuesday, November 11, 2003
Thanksgiving, Thursday, November 27, 2003
Christmas Eve, Wednesday, December 24, 2003
Christmas Day, Thursday, December 25, 2003
New Years Eve, Wednesday, December 31, 2003' holidays 2003

# A range of years, backward too: each year's holidays in the fixed order.
answers 'New Years Day, Saturday, January 1, 1583
Valentine'"'"'s Day, Monday, February 14, 1583
Mardi Gras, Tuesday, February 22, 1583
Ash Wednesday, Wednesday, February 23, 1583
St. Patricks'"'"' Day, Thursday, March 17, 1583
Palm Sunday, Sunday, April 3, 1583
Good Friday, Friday, April 8, 1583
Easter, Sunday, April 10, 1583
Ascension Day, Thursday, May 19, 1583
The Day of Pentecost, Sunday, May 29, 1583
Halloween, Monday, October 31, 1583
Christmas Eve, Saturday, December 24, 1583
Christmas Day, Sunday, December 25, 1583
New Years Eve, Saturday, December 31, 1583
Halloween, Sunday, October 31, 1582
Christmas Eve, Friday, December 24, 1582
Christmas Day, Saturday, December 25, 1582
New Years Eve, Friday, December 31, 1582' holidays 1583 1582

refuses "$all_years_invalid" holidays 1581
refuses "$all_years_invalid" holidays 100101
refuses "$all_years_invalid" holidays 2003 100101
refuses "$all_years_invalid" holidays abc
refuses "$all_years_invalid" holidays 2003 x
refuses "error: No Year Entered: A year must be entered in the 'From' box." holidays ""
refuses "error: No Year Entered: A year must be entered in the 'From' box." holidays "" 2003

# The years of the whole list, 25 holidays a year from 1983 on.
"$tool" holidays 1983 2082 > "$scratch/list"
checks=$((checks + 1))
if [[ "$(wc -l < "$scratch/list")" -ne 2500 ]]; then
  echo "FAIL: holidays 1983 2082 gave $(wc -l < "$scratch/list") lines, expected 2500" >&2
  failures=$((failures + 1))
fi

finish
