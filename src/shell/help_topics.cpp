// The help texts as tables: one of topics and their texts, one of categories with their
// introductions and topic lists. In the tables a line break is written "\n"; the texts are
// handed out with the program's line break in its place.
#include "shell/help_topics.h"

#include <span>

namespace orrivane::shell {

namespace {

struct Topic {
  std::string_view name;
  std::string_view text;
};

using Topic_List = std::span<const std::string_view>;

struct Category {
  std::string_view name;
  std::string_view introduction;
  std::span<const Topic_List> lists;  // listed one after the other
};

// Two pairs of topics share one text each.
constexpr std::string_view kCalendarStyles =
    "The difference between the Julian and Gregorian calendars lies in whether years divisible by 100 should be "
    "considered leap years.\n"
    "\n"
    "In the Julian calendar every fourth year is a leap year, the years divisible by 100 included, so that its "
    "year is 365 and a quarter days long on average. That is about 11 minutes longer than the year of the "
    "seasons, and over the centuries the calendar fell behind the sun: by the sixteenth century the spring "
    "equinox came about ten days earlier in the calendar than it had in the year 325, when the rule for the date "
    "of Easter was set.\n"
    "\n"
    "The Gregorian calendar corrected this in 1582. Ten days were dropped, so that Thursday, October 4, 1582 was "
    "followed by Friday, October 15, 1582. And the leap rule was changed: a year divisible by 100 is a leap year "
    "only if it is also divisible by 400. So 1600 and 2000 are leap years in both calendars, while 1700, 1800 and "
    "1900 are leap years in the Julian calendar only. The Gregorian year is 365.2425 days long on average, very "
    "close to the year of the seasons.\n"
    "\n"
    "Because of the century years, the two calendars move one day further apart with each century year that is "
    "not divisible by 400: they were 10 days apart in 1582, 11 days from February 29, 1700, O.S., 12 days from "
    "February 29, 1800, O.S., and they are 13 days apart from February 29, 1900, O.S. until February 29, 2100, "
    "O.S.\n"
    "\n"
    "Countries took the Gregorian calendar at different times: some at once in 1582, Great Britain and its "
    "colonies in 1752, others only in the twentieth century. Today it is the calendar in common use, which is why "
    "Orrivane shows it unless you choose the Julian calendar.";

constexpr std::string_view kOldAndNewStyle =
    "O.S. stands for Old Style and N.S. for New Style. Old Style dates are dates of the Julian calendar, and New "
    "Style dates are dates of the Gregorian calendar, which took the place of the Julian calendar from 1582 on.\n"
    "\n"
    "Since the same day has two different dates in the two calendars, a date is often written with O.S. or N.S. "
    "after it to tell which calendar it belongs to: January 1, 2000, N.S. was December 19, 1999, O.S.\n"
    "\n"
    "In Great Britain and its colonies, which changed calendars in 1752, Old Style and New Style can also tell "
    "whether the year is taken to begin on March 25, as it did there before 1752, or on January 1. Orrivane "
    "begins the year on January 1 in both styles.";

constexpr Topic kTopics[] = {
    // ---- Organizer ----------------------------------------------------------------------------
    {"Introduction To The Organizer",
     "The Organizer is where you keep a log of tasks for the members of a group. A log holds the group members "
     "and their tasks; each task has a name, a description, comments, a start and a finish, a colour and, if you "
     "like, a reminder.\n"
     "\n"
     "The Organizer window shows the log as a task chart: one row for each group member and one column for each "
     "ten minutes of a six-hour period of one day. Beside the chart you can list the tasks of one group member, "
     "and from the list or the chart you can open any task to view or change it.\n"
     "\n"
     "Everything you do goes into the log at once, but the log is kept in a file only when you save it with "
     "\"Save Log\" or \"Save Log As...\" from the File menu. When you start a new log, open another one or quit "
     "Orrivane while the log has changes that are not saved, you are asked whether to save them first."},
    {"Adding New Group Members",
     "To add a group member to the current log, choose \"Add New Group Member To Log...\" from the Log menu of "
     "the calendar window, or press 'Ctrl' + 'G'. Type the member's name in the Add New Group Member window and "
     "click Add.\n"
     "\n"
     "Blanks before and after the name are dropped. A name that is already in the log is not added a second "
     "time. Names are told apart letter for letter, so \"anna\" and \"Anna\" are two members.\n"
     "\n"
     "You can also add a new group member while you add a task: in the Add New Task\\Event window choose \"Enter "
     "Name Of New Member\" and type the name. The member is added with the task."},
    {"Adding New Tasks To The Log",
     "To add a task, choose \"Add New Task\\Event To Log...\" from the Log menu, or press 'Ctrl' + 'E'. In the "
     "Add New Task\\Event window:\n"
     "\n"
     "Type the name of the task in the 'Name Of Task' box. A description and comments are optional.\n"
     "\n"
     "Choose the month, date, hour and minute at which the task begins. The century and the year are optional: "
     "left blank, they are those of the current year. To give the task a finish of its own, check \"Select Time "
     "Range\" and choose the finish in the 'To' boxes; the finish may not come before the start.\n"
     "\n"
     "Choose the group member the task is for: \"Select An Existing Member\", or \"Enter Name Of New Member\" to "
     "add a new member with the task.\n"
     "\n"
     "Each task is drawn on the task chart in a colour of its own, picked at random. Click \"Select...\" to "
     "choose another colour from the palette.\n"
     "\n"
     "If you want to be reminded of the task, switch its reminder on and click \"Set...\" to say when (see "
     "\"Setting A Task Reminder\").\n"
     "\n"
     "Click \"Add This Task\\Event To The Log\" and confirm. The window stays open for the next task: the name, "
     "description and comments are cleared and the reminder is switched off again, while the date and the "
     "time stay as they were."},
    {"Deleting A Group Member",
     "To delete a group member, choose \"Delete Group Member From Log...\" from the Log menu, or press 'Shift' + "
     "F3. Select the member in the list and click Delete. In the Organizer you can also select the member in the "
     "list of group members and click Delete there.\n"
     "\n"
     "Deleting a group member deletes all of the member's tasks, and their reminders, from the log. You are "
     "asked to confirm first. A log file that you saved keeps the member until you save the log again."},
    {"Deleting A Task",
     "To delete a task, choose \"Delete A Task\\Event...\" from the Log menu, or press 'Ctrl' + F3. Choose the "
     "group member, select the task in the list and click Delete. In the Organizer you can also select the task "
     "in a group member's task list and click \"Delete Selected Record\".\n"
     "\n"
     "You are asked to confirm. The task and its reminder are removed from the log; a log file that you saved "
     "keeps the task until you save the log again."},
    {"Editing A Task",
     "To change a task, open it in its Task\\Event Information window (see \"Viewing A Specific Task\"). There "
     "you can type new comments, and:\n"
     "\n"
     "Change the start and the finish in the Change Task\\Event Times window. Choose only the parts you want to "
     "change and click Select beside them, then click OK. The finish may not come before the start.\n"
     "\n"
     "Change the task's name, description or group member in the Change Task\\Event Identity Information "
     "window.\n"
     "\n"
     "Choose a new colour for the task chart from the colour palette.\n"
     "\n"
     "Switch the reminder ON or OFF, and change when it comes (see \"Setting A Task Reminder\").\n"
     "\n"
     "None of these changes reaches the log until you save the changes to the record and confirm. If you close "
     "the window with changes that are not saved, you are asked whether to save them. A saved task keeps its "
     "place in the log."},
    {"Filtering Tasks",
     "A group member's task list in the Organizer can show all of the member's tasks or only those within a "
     "range of time. Choose \"Display Only Filtered\" to use the filter, and \"Display All\" to list every "
     "task.\n"
     "\n"
     "With the filter on, \"Must Start Within Filter Range\" lists only the tasks that start within the range, "
     "and \"Must Finish Within Filter Range\" only those that finish within it; with both checked, a task must "
     "start and finish within the range. At least one of the two stays checked. A task that only overlaps the "
     "range is not listed.\n"
     "\n"
     "The range stands beside 'After:' and 'Before:'. At first it is the present hour of today. Click "
     "\"Change...\" to set it in the Filter Tasks\\Events Displayed window: check \"Display Only Tasks After "
     "Selected Time\", \"Display Only Tasks Before Selected Time\" or both, choose the times and click \"Set Date "
     "Filters\". A box that you leave blank takes today's date and the present hour, with the minute 00 for the "
     "'After' time and 59 for the 'Before' time. Both ends of the range include their own minute.\n"
     "\n"
     "The list follows the filter the next time it is shown: click the member's name or \"Show Task\\Event "
     "List\"."},
    {"Opening An Existing Log",
     "To open a log that you saved, choose \"Open Log...\" from the File menu, or press 'Ctrl' + 'O'. In the "
     "Open File window choose the folder under 'Look in:' and the log file (.sdl) under 'File name:', and click "
     "Open, or double-click the file.\n"
     "\n"
     "If the current log has changes that are not saved, you are asked whether to save them first; Cancel keeps "
     "the current log. The log you open takes the place of the current one, and the reminders of its tasks are "
     "in effect at once."},
    {"Opening the Organizer",
     "To open the Organizer, press F3, choose \"Organizer...\" from the Tools menu, or click \"Organizer\\Edit "
     "Tasks Or Events\" on the small calendar window.\n"
     "\n"
     "The first time, the task chart shows the six-hour period of today that holds the present time; after that "
     "it shows the period you looked at last.\n"
     "\n"
     "Closing the Organizer does not close the log: its tasks stay on the large calendar, its reminders go on "
     "coming while Orrivane runs, and the Organizer shows the same log when you open it again."},
    {"Saving A log",
     "To save the log under its present name, choose \"Save Log\" from the File menu, or press 'Ctrl' + 'S'. "
     "\"Save Log\" can be chosen once the log has a file of its own: after you have opened it, or saved it under "
     "a name.\n"
     "\n"
     "To save the log under a new name or in another folder, choose \"Save Log As...\", or press 'Ctrl' + 'V'. "
     "In the Save As window choose the folder under 'Save in:', type the name under 'File name:' (Schedule.sdl "
     "is offered) and click Save. The name gets the extension .sdl if you don't type it, and it may not contain "
     "any of the characters \\ / : * ? \" < > |. If a file of that name exists, you are asked whether to "
     "overwrite it.\n"
     "\n"
     "The reminders of the tasks are saved with the log."},
    {"Showing A Groupmember's Tasklist",
     "The Organizer lists the tasks of one group member at a time. Click the member's name in the list of group "
     "members, or select it and click \"Show Task\\Event List\". Each task is listed with its start (year, month, "
     "date, hour and minute), its name and its number, in the order of the starts.\n"
     "\n"
     "Select a task to view or delete it, or double-click it to see all of its information (see \"Viewing A "
     "Specific Task\"). With the filter on, only the tasks within its range are listed (see \"Filtering "
     "Tasks\").\n"
     "\n"
     "The large calendar shows a group member's tasks too: choose the member under \"Show Task List For\", and "
     "each day with a task of that member shows a list of them. Tasks are shown only on months of the Gregorian "
     "calendar."},
    {"Starting A New Log",
     "To start a new, empty log, choose \"New Log\" from the File menu; in the Organizer you can also press "
     "'Ctrl' + 'N'.\n"
     "\n"
     "If the current log has changes that are not saved, you are asked whether to save them first; Cancel keeps "
     "the current log. The new log has no file until you save it with \"Save Log As...\"."},
    {"Task Chart, the",
     "The task chart of the Organizer shows the tasks of the group members over one six-hour period of one day: "
     "Early Morning (12:00 AM to 6:00 AM), Morning (6:00 AM to 12:00 noon), Afternoon (12:00 noon to 6:00 PM) "
     "or Evening (6:00 PM to midnight). The period and the date on show stand above the chart.\n"
     "\n"
     "Each row belongs to one group member, and each column stands for ten minutes. A task fills the columns "
     "from its start to its finish in its own colour; a task that lasts through the whole period fills the whole "
     "row. Where two tasks of one member meet, the one entered later is shown. Click a coloured cell to see its "
     "task's information. The chart has eleven rows: with more group members, use the scroll bar to see the "
     "others.\n"
     "\n"
     "Click \"<< Earlier\" or \"Later >>\" to go one period back or on ('Ctrl' + 'P' and 'Ctrl' + 'L'), or "
     "select a time period and a date to go straight there ('Ctrl' + 'T')."},
    {"Viewing A Specific Task",
     "The Task\\Event Information window shows one task. You can open it on a task in several ways:\n"
     "\n"
     "Double-click the task in a group member's task list in the Organizer, or click its cell on the task "
     "chart.\n"
     "\n"
     "Choose \"Task\\Event Info...\" from the View menu, or press 'Ctrl' + 'I'; then choose the group member, "
     "select the task and click View.\n"
     "\n"
     "Choose the task from the list of its day on the large calendar.\n"
     "\n"
     "Click \"View Task\" in the window of a task reminder.\n"
     "\n"
     "The window shows the task's name, description, comments, group member, start and finish, colour and "
     "reminder. From there you can change the task (see \"Editing A Task\") or print the window."},

    // ---- General ----------------------------------------------------------------------------
    {"Converting A Date Between Calendar Styles",
     "Any date after October 5, 1582, O.S. (Old Style) may be converted to the New Style and any date after "
     "October 15, 1582, N.S. (New Style) may be converted to Old Style.\n"
     "\n"
     "To convert the date selected on the calendar, the one written beside the calendar, choose \"Convert This "
     "Date...\" from the Tools menu, press 'Ctrl' + 'C', or click the convert button of the small calendar "
     "window. The date that is converted is the selected date, not the month you are looking at.\n"
     "\n"
     "The Date Conversion window shows the selected date, the same day in the other calendar style, and the "
     "difference between the two dates in days. To show the converted date on the calendar, check \"Display "
     "Converted Date On Calendar\" and click OK.\n"
     "\n"
     "You can also convert a date in the Find The Weekday Of A Date window: after its weekday is shown, click "
     "\"Convert Above Date To Old Style\" or \"Convert Above Date To New Style\"."},
    {"Finding A Weekday",
     "To find the weekday of any date, choose \"Find A Date's Weekday\" from the Tools menu, press 'Ctrl' + 'W', "
     "or click \"Find A Date's Weekday\" on the small calendar window.\n"
     "\n"
     "In the Find The Weekday Of A Date window choose the calendar style, the month and the date, the century "
     "and the year, and click ENTER. The weekday is shown, with words that tell how the date stands to today: "
     "\"Today is:\", \"Yesterday was:\", \"This date will occur on a:\" and so on.\n"
     "\n"
     "You may type a century from 0 to 1000 into its box, so that you can find the weekday of any date up to the "
     "year 100099. A date before October 15, 1582 can be asked for only in the Julian (Old Style) calendar.\n"
     "\n"
     "Once the weekday is shown, click \"Display Above Date On Calendar\" to show the date on the calendar, or "
     "the convert button beside it to convert the date to the other calendar style."},
    {"Displaying Today's Date On The Calendar",
     "To bring today's date on the calendar, choose \"Today's Date\" from the View menu, press 'Ctrl' + 'D', or "
     "click \"Display Todays Date On Calendar\" on the small calendar window.\n"
     "\n"
     "The current month is shown in the Gregorian calendar with today's date in red, and today's weekday is "
     "shown with it. Orrivane starts this way."},
    {"Finding The Dates Of Holidays",
     "To find the dates of holidays, choose \"Find Holiday Dates...\" from the Tools menu, press 'Ctrl' + 'H', "
     "or click \"Find The Dates Of Holidays\" on the small calendar window.\n"
     "\n"
     "Choose \"By Holiday:\" and a holiday to find that one holiday, or \"Display All By Year\" to find all 25 "
     "holidays of a year. Type the year in the 'From:' box; for a range of years, check \"Select Range of "
     "Years\" and type the last year beside it. Click Display.\n"
     "\n"
     "Holidays are found in the Gregorian calendar, for the years 1582 to 100100, and each holiday only from "
     "the year in which it was first kept: Easter from 1583, Thanksgiving from 1863, and so on.\n"
     "\n"
     "Each request adds its dates to the end of the list: 'New:' tells how many it added, and 'Total Results "
     "Listed:' how many the list holds. Select a line and click Calendar to show its date on the calendar, or "
     "Remove to take it out of the list; Clear empties the list. From the File menu you can save the list (see "
     "\"Saving A List Of Holiday Dates\") and print it. Closing the window clears the list.\n"
     "\n"
     "The large calendar shows the holidays of the days on show in their cells, in months of the Gregorian "
     "calendar."},
    {"Opening Or Viewing A Saved Holiday List File",
     "To look at a holiday list that you saved, open the Find The Date of a Holiday window and choose \"Open "
     "File...\" from its File menu. In the Open File window choose the folder under 'Look in:' and the list file "
     "(.dte) under 'File name:', and click Open, or double-click the file.\n"
     "\n"
     "The saved list takes the place of the list in the window, just as it was saved. You can then send its "
     "dates to the calendar, print it, or add more dates to it."},
    {"Printing A Calendar",
     "To print the month on show, choose \"Print Calendar...\" from the File menu, press 'Ctrl' + F2, or click "
     "\"Print The Calendar\" on the small calendar window, and click OK to confirm.\n"
     "\n"
     "The month is printed on the default printer as the calendar shows it, with the full names of the "
     "weekdays added; a date shown in red prints in red. The months beside the calendar are not printed. Both "
     "calendar windows print the same page."},
    {"Quiting Orrivane",
     "To quit Orrivane, click EXIT, choose \"Exit\" from the File menu, press 'Ctrl' + 'Q', or close the calendar "
     "window.\n"
     "\n"
     "You are asked to confirm, unless you closed the calendar window itself. If the log has changes that are "
     "not saved, you are asked whether to save them. A log that has no file yet is saved through the Save As "
     "window, and Orrivane waits until that window has closed.\n"
     "\n"
     "Your non-task reminders are kept for the next time you run Orrivane. The log is kept only in the file you "
     "saved it to."},
    {"Saving A List Of Holiday Dates",
     "To keep the list of holiday dates of the Find The Date of a Holiday window, click \"Save List...\" or "
     "choose \"Save List...\" from its File menu. In the Save As window choose the folder under 'Save in:', type "
     "the name under 'File name:' and click Save. The name gets the extension .dte if you don't type it, and if "
     "a file of that name exists you are asked whether to overwrite it.\n"
     "\n"
     "If the Save As window opens without the name Holidays.dte, as it does the first time you save a list, "
     "click Cancel and then \"Save List...\" again: the window then offers Holidays.dte and saves the list.\n"
     "\n"
     "The file keeps the lines of the list as they stand. See \"Opening Or Viewing A Saved Holiday List File\" "
     "to read it back."},
    {"Selecting A Calendar Style",
     "Orrivane shows months of the Gregorian (New Style) calendar and of the Julian (Old Style) calendar; the "
     "style on show is named over the calendar.\n"
     "\n"
     "When you view a month, choose Gregorian or Julian under \"Calendar Style\" (see \"Viewing A Month On The "
     "Calendar\"). When you find a weekday, choose \"Gregorian (New Style)\" or \"Julian (Old Style)\" under "
     "'Select Calendar Style:'. A converted date can be shown on the calendar in its own style (see "
     "\"Converting A Date Between Calendar Styles\").\n"
     "\n"
     "Holidays and the tasks of the log are shown only on months of the Gregorian calendar."},
    {"Selecting A Century",
     "In the Find The Weekday Of A Date window you choose a year in two parts: the century under 'Choose "
     "Century:' and the last two digits under 'Choose Year:'. For the year 1776 choose the century 17 and the "
     "year 76. The list of centuries runs from 00 to 99; for the years after 9999 type the century into its box, "
     "up to 1000.\n"
     "\n"
     "The Find Time Difference Between Two Selected Times window takes the century and the year in the same "
     "way; there the century may be anything from 0 to 10000."},
    {"Selecting A month And Date",
     "To find a weekday, choose the month and the date under 'Select Month\\Date:' in the Find The Weekday Of A "
     "Date window. A date that the month does not have, such as April 31, is refused when you click ENTER.\n"
     "\n"
     "February 29 is accepted only in a leap year of the calendar style you chose. In the Julian calendar every "
     "fourth year is a leap year; in the Gregorian calendar a year divisible by 100 is a leap year only if it is "
     "also divisible by 400.\n"
     "\n"
     "To view a whole month, choose it under 'Select Month:' in the View Month On Calendar window (see \"Viewing "
     "A Month On The Calendar\")."},
    {"Selecting A Year",
     "To view a month, type its year in the 'Select Year:' box of the View Month On Calendar window, in digits "
     "only: any year up to 1000000, from October 1582 on in the Gregorian calendar and from the year 0 on in the "
     "Julian calendar. The year 0 is the year 1 B.C.\n"
     "\n"
     "To find a weekday, choose the year in two parts, the century and the last two digits (see \"Selecting A "
     "Century\")."},
    {"Short Cut Keys",
     "Orrivane was designed with keyboard users in mind. Nearly everything can be done, using just the keyboard. "
     "Even though you'd probably rather use a mouse, the following are some of the short cut keys and what they "
     "are for.\n"
     "\n"
     "Main (Calendar) Window:\n"
     "\n"
     "F1 - Help\n"
     "F2 - Print Log\n"
     "'Ctrl' + F2 - Print Calendar\n"
     "F3 - Open the Organizer\n"
     "F4 - Toggle - Large Window\\Small Window\n"
     "F5 - Minimize Main Window to task bar\n"
     "'Ctrl' + F5 - Maximize Main Window\n"
     "'Shift' + F5 - Windowed\n"
     "'Ctrl' + 'D' - Today's Date\n"
     "'Ctrl' + 'N' - Display Next Month On Calendar\n"
     "'Ctrl' + 'P' - Display Previous Month On Calendar\n"
     "'Ctrl' + 'M' - Select a Month to Display on the Calendar\n"
     "'Ctrl' + 'O' - Open an existing log file\n"
     "'Ctrl' + 'S' - Save the Current Log\n"
     "'Ctrl' + 'V' - Save the Current Log to a different location\n"
     "'Ctrl' + 'E' - Add A New Task to the Current Log\n"
     "'Ctrl' + 'G' - Add A New Group Member to the Current Log\n"
     "'Ctrl' + 'C' - Convert the displayed date in the Calendar Window\n"
     "'Ctrl' + 'H' - Find the Dates of Holidays\n"
     "'Ctrl' + 'W' - Find a weekday for a Selected Date\n"
     "'Ctrl' + 'A' - Display the 'About' Window\n"
     "'Ctrl' + 'L' - Display the license\n"
     "'Ctrl' + 'Q' - Quit Orrivane\n"
     "\n"
     "Organizer:\n"
     "\n"
     "F2 - Print Log\n"
     "'Ctrl' + 'N' - Open A New Log File\n"
     "'Ctrl' + 'O' - Open An Existing Log File\n"
     "'Ctrl' + 'S' - Save The Current Log\n"
     "'Ctrl' + 'V' - Save the Current Log To A Specified Location (Save As)\n"
     "'Ctrl' + 'E' - Add New Task To Current Log\n"
     "'Ctrl' + 'C' - Close the Organizer\n"
     "'Ctrl' + 'L' - View the Next Time Period on the Task Chart\n"
     "'Ctrl' + 'P' - View the Previous Time Period on the Task Chart\n"
     "'Ctrl' + 'T' - Select A Time Period to View on the Task Chart"},
    {"Viewing A Month On The Calendar",
     "You may view the calendar for any month from October of 1582 to December of the year 1,000,000, for new "
     "style and January 1 B.C. to 1,000,000 for old style.\n"
     "\n"
     "To view a month, choose \"Month\" and then \"Select...\" from the View menu, press 'Ctrl' + 'M', or click "
     "\"Display A Month On Calendar\" on the small calendar window. Choose the month, type the year, choose the "
     "calendar style and click Display.\n"
     "\n"
     "To step from month to month, click \"<< Prior Month\" and the next month button beside the calendar, or "
     "press 'Ctrl' + 'P' and 'Ctrl' + 'N'. In the Julian calendar the prior month button goes back as far as "
     "December of the year 1 (1 A.D.); the months before it, down to January 1 B.C., are reached through the "
     "View Month On Calendar window.\n"
     "\n"
     "The months before and after stand beside the calendar. Stepping from month to month leaves the selected "
     "date, the one written beside the calendar, as it was."},
    {"Elapsed Time Between Two Times",
     "To find the time between two times, choose \"Find Time Length Between Dates\" from the Tools menu, or press "
     "'Ctrl' + 'T'. In the Find Time Difference Between Two Selected Times window choose \"Time 1 - Time 2\", "
     "then the month, date, century, year, hour and minute of each time under \"Time 1 Selection\" and \"Time 2 "
     "Selection\", and the calendar style, and click ENTER. The order of the two times does not matter.\n"
     "\n"
     "The system time is assumed for all fields that are left blank with a couple of exceptions: When the "
     "century is specified and the year is not, the year is assumed to be '00' and, when the hour is specified "
     "and the minute is not, the minute is assumed to be '00'. When you choose a month, choose a date too.\n"
     "\n"
     "The time between is shown in years, months, days, hours and minutes, in one of two ways. With \"Total Time "
     "Difference Is Displayed For Each Time Increment\" each line tells the whole time in its own unit. With "
     "\"Remaining Time Difference After Larger Time Increments Are Distributed To Smaller Time Increments\" the "
     "time is shared out over the units you check: each checked unit shows what is left after the larger checked "
     "units, and an unchecked unit shows N/A.\n"
     "\n"
     "For example, from 00:00 on January 1, 2001 to 01:01 on February 2, 2002 the total is 1 year or 13 months "
     "or 397 days or 9529 hours or 571,741 minutes; shared out over all five units it is 1 year, 1 month, 1 "
     "day, 1 hour and 1 minute, and with Years unchecked it is 13 months, 1 day, 1 hour and 1 minute."},
    {"Elapsed Time From The Current Time",
     "To find the time from now to another time, choose \"Find Time Length Between Dates\" from the Tools menu, "
     "or press 'Ctrl' + 'T', and choose \"Time 1 - Current Time\" or \"Time 2 - Current Time\". The other time "
     "selection is switched off, and the "
     "present date and time of your computer take its place. Choose the time and click ENTER. The seconds of the "
     "present time are not counted.\n"
     "\n"
     "In the Julian calendar style, the present date is today's Old Style date.\n"
     "\n"
     "The time between is shown as told in \"Elapsed Time Between Two Times\"."},
    {"Non-Task Reminders",
     "A non-task reminder is a message with a title that comes at a time you choose, with no task and no group "
     "member behind it. Non-task reminders belong to no log: they are kept from one run of Orrivane to the next, "
     "whichever log is open, until you delete them.\n"
     "\n"
     "When the time of a reminder comes, Orrivane beeps and shows its message in a reminder window. When several "
     "come at once, choose one from the list in the window to read it.\n"
     "\n"
     "A reminder comes only while Orrivane is running: one whose time passes while Orrivane is not running is not "
     "shown later. Orrivane also remembers the minute of the hour at which it last showed a non-task reminder, "
     "and a reminder that comes at that same minute of a later hour, with none shown in between, is not shown.\n"
     "\n"
     "See \"Setting A Non-Task Reminder\", \"Editing Non-Task Reminders\" and \"Deleting A Non-Task "
     "Reminder\"."},
    {"Setting A Non-Task Reminder",
     "To set a non-task reminder, choose \"Reminders\" and then \"Add...\" from the Tools menu, or press F6.\n"
     "\n"
     "In the Create Non-Task Reminder window type a title and the message. The time under 'Message At:' starts "
     "as the present time; change its hour and minute, month and date, century and year in the boxes under "
     "'Change Time (All fields optional):', and the time follows each choice. Keep \"Set\" checked for the "
     "reminder to come (its status shows ON); uncheck it to keep the reminder without it coming (Off). Click "
     "Add.\n"
     "\n"
     "A reminder without a title gets the title \"Message\". A date that the month does not have is refused "
     "when you click Add. The window stays open, so that you can add another reminder."},
    {"Editing Non-Task Reminders",
     "To change a non-task reminder, choose \"Reminders\" and then \"Change...\" from the Tools menu, or press "
     "'Ctrl' + F6. Select the reminder in the list and click Select, or double-click it.\n"
     "\n"
     "Change the title, the message, the time or the \"Set\" check box as you did when you set it, and click "
     "Update. The reminder keeps its place and its number.\n"
     "\n"
     "Unchecking \"Set\" switches a reminder off without deleting it; check it again to switch it back on. A "
     "reminder whose time has passed comes again only if you give it a new time."},
    {"Deleting A Non-Task Reminder",
     "To delete a non-task reminder, choose \"Reminders\" and then \"Delete...\" from the Tools menu, or press "
     "'Shift' + F6. Select the reminder in the list and click Delete.\n"
     "\n"
     "The reminder is deleted at once, without a question, and the window stays open so that you can delete "
     "others."},

    // ---- For Your Information ------------------------------------------------------------------
    {"Differences In The Calendar Styles", kCalendarStyles},
    {"What does O.S. and N.S. stand for?", kOldAndNewStyle},
    {"What is old style and new style?", kOldAndNewStyle},
    {"Why We Use The Gregorian Calendar", kCalendarStyles},

    // ---- Task Reminders ----------------------------------------------------------------------
    {"Setting A Task Reminder",
     "Any task of the log can remind you of itself. When you add a task, switch its reminder on in the Add New "
     "Task\\Event window and click \"Set...\". For a task already in the log, switch the reminder ON in its "
     "Task\\Event Information window and change the reminder from there.\n"
     "\n"
     "In the Set Reminder window choose \"With Only One Reminder At One Time Specified Below\" for one reminder "
     "at the time under \"Date\\Time Of Reminder\", or one of the two \"Intermittently\" choices for a series of "
     "reminders (see \"Task Reminders At Intervals\").\n"
     "\n"
     "Choose the month, date, century, year, hour and minute, and click Select. Boxes left blank take the present "
     "date and time, except that the minute is 00 when you chose an hour, and the year is 00 when you chose a "
     "century. Or click \"Use Task Time\" to tie the reminder to the task itself (see \"Reminder Times Based On "
     "Task Time\"). Click OK to keep your choice, or SET to keep it and leave the window open.\n"
     "\n"
     "The reminder is stored with the task when you add the task or save its changes, and it comes only while it "
     "is switched on. When its time comes, Orrivane beeps and shows the task's name, group member, start and "
     "ending time, and how long it is until the task begins; click \"View Task\" to see all of the task's "
     "information.\n"
     "\n"
     "A reminder comes only while Orrivane is running and the task's log is open: one whose time passes "
     "otherwise is not shown later."},
    {"Task Reminders At Intervals",
     "Instead of one reminder you can have a series of them, for instance every 30 minutes in the two hours "
     "before a task begins. In the Set Reminder window choose:\n"
     "\n"
     "\"Intermittently With The First Reminder At the Begin Time Specified Below\": the first reminder comes at "
     "the time under \"First Message At\", and then again after each interval, as long as the time under \"Last "
     "Message Before\" is not passed.\n"
     "\n"
     "\"Intermittently With The Last Reminder At the Ending Time Specified Below\": the last reminder comes at the "
     "time under \"Last Message At\", and the others at whole intervals before it, back to the time under "
     "\"First Message After\".\n"
     "\n"
     "Choose how often under \"I Want To Be Reminded Every\": minutes, hours and days, the days as hundreds of "
     "days and days, up to 1899 days. The interval may not be zero. Either time of the series may be a time of "
     "its own or a time tied to the task (see \"Reminder Times Based On Task Time\").\n"
     "\n"
     "For example, a series from 10:00 to 11:00 every 25 minutes reminds you at 10:00, 10:25 and 10:50 with the "
     "first choice, and at 11:00, 10:35 and 10:10 with the second.\n"
     "\n"
     "Orrivane remembers the minute of the hour at which it last showed a task reminder, and a reminder that "
     "comes at that same minute of a later hour, with no other task reminder shown in between, is not shown. So "
     "a series whose interval is a whole number of hours shows only its first reminder: for an hourly series "
     "choose an interval such as 1 hour and 1 minute."},
    {"Reminder Times Based On Task Time",
     "A reminder time can be tied to the task instead of being a date and time of its own. In the Set Reminder "
     "window click \"Use Task Time\" beside the time.\n"
     "\n"
     "In the Base This Time On Task Occurance window choose At, Before or After, then \"Start Time of Task\" or "
     "\"Finish Time Of Task\", and for Before and After the amount of time: minutes, hours and days, the days as "
     "hundreds of days and days. Click OK. The reminder's time then reads, for instance, \"Before The Start Time "
     "of Task\" and \"By 1 Days, 2 Hrs, 30 Min\".\n"
     "\n"
     "Such a reminder follows the task: when you change the task's start or finish, the reminder moves with it. "
     "A reminder tied to a task later than the year 5500 never comes."},
    {"Multiple Task Reminders In One Message",
     "When the reminders of several tasks come in the same minute, Orrivane shows them in one reminder window, "
     "whose title tells how many there are, such as \"2 Reminders\".\n"
     "\n"
     "Choose a task from the list in the window to see its group member, its start and ending time, and how long "
     "it is until it begins. Then click \"View Task\" to see all of its information; the button can be clicked "
     "once you have chosen a task.\n"
     "\n"
     "The time until a task begins is counted from the moment the reminders came, however long the window has "
     "stood open. Non-task reminders that come together are shown the same way, in their own window."},
};

constexpr std::string_view kOrganizerTopics[] = {
    "Introduction To The Organizer",
    "Adding New Group Members",
    "Adding New Tasks To The Log",
    "Deleting A Group Member",
    "Deleting A Task",
    "Editing A Task",
    "Filtering Tasks",
    "Opening An Existing Log",
    "Opening the Organizer",
    "Saving A log",
    "Showing A Groupmember's Tasklist",
    "Starting A New Log",
    "Task Chart, the",
    "Viewing A Specific Task",
};

constexpr std::string_view kGeneralTopics[] = {
    "Converting A Date Between Calendar Styles",
    "Finding A Weekday",
    "Displaying Today's Date On The Calendar",
    "Finding The Dates Of Holidays",
    "Opening Or Viewing A Saved Holiday List File",
    "Printing A Calendar",
    "Quiting Orrivane",
    "Saving A List Of Holiday Dates",
    "Selecting A Calendar Style",
    "Selecting A Century",
    "Selecting A month And Date",
    "Selecting A Year",
    "Short Cut Keys",
    "Viewing A Month On The Calendar",
    "Elapsed Time Between Two Times",
    "Elapsed Time From The Current Time",
    "Non-Task Reminders",
    "Setting A Non-Task Reminder",
    "Editing Non-Task Reminders",
    "Deleting A Non-Task Reminder",
};

constexpr std::string_view kInformationTopics[] = {
    "Differences In The Calendar Styles",
    "What does O.S. and N.S. stand for?",
    "What is old style and new style?",
    "Why We Use The Gregorian Calendar",
};

constexpr std::string_view kTaskReminderTopics[] = {
    "Setting A Task Reminder",
    "Task Reminders At Intervals",
    "Reminder Times Based On Task Time",
    "Multiple Task Reminders In One Message",
};

constexpr Topic_List kGeneralLists[] = {kGeneralTopics};
constexpr Topic_List kInformationLists[] = {kInformationTopics};
constexpr Topic_List kOrganizerLists[] = {kOrganizerTopics};
constexpr Topic_List kTaskReminderLists[] = {kTaskReminderTopics};
constexpr Topic_List kAllLists[] = {kOrganizerTopics, kGeneralTopics, kInformationTopics, kTaskReminderTopics};

constexpr Category kCategories[] = {
    {"General", "Topics about miscellaneous features and how to use Orrivane in general.", kGeneralLists},
    {"For Your Information", "Things you just might want to know...", kInformationLists},
    {"Organizer",
     "All topics relating to the Organizer. The Organizer is where you can view and manage your log, group member "
     "list, and tasklists.",
     kOrganizerLists},
    {"Task Reminders", "Topics relating to the task reminder feature. Learn how to be reminded about any task.",
     kTaskReminderLists},
    {kAllTopics, "All Help topics.", kAllLists},
};

const Category* Find_Category(std::string_view name) {
  for (const Category& category : kCategories) {
    if (category.name == name) return &category;
  }
  return nullptr;
}

// A text of the table with the program's line break in place of each "\n".
std::string With_Line_Breaks(std::string_view text) {
  std::string result;
  result.reserve(text.size() + text.size() / 16);
  for (char c : text) {
    if (c == '\n') {
      result += kHelpLineBreak;
    } else {
      result += c;
    }
  }
  return result;
}

}  // namespace

std::vector<std::string_view> Help_Categories() {
  std::vector<std::string_view> names;
  for (const Category& category : kCategories) names.push_back(category.name);
  return names;
}

std::string Display_Category_Intro(std::string_view Category_Choice) {
  const Category* category = Find_Category(Category_Choice);
  return category == nullptr ? std::string() : std::string(category->introduction);
}

std::vector<std::string_view> Category_Topics(std::string_view Category_Choice) {
  std::vector<std::string_view> topics;
  if (const Category* category = Find_Category(Category_Choice)) {
    for (Topic_List list : category->lists) topics.insert(topics.end(), list.begin(), list.end());
  }
  return topics;
}

std::string Get_Topic_Contents(std::string_view Topic_Choice) {
  for (const Topic& topic : kTopics) {
    if (topic.name == Topic_Choice) return With_Line_Breaks(topic.text);
  }
  return {};
}

}  // namespace orrivane::shell
