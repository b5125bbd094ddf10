#pragma once
// The caller identities that Form1's procedures compare to choose where their data comes from
// or where it goes. Each is compared exactly, case included, and any other text selects
// nothing. Some differ only in case and are distinct identities: "CmdOK_Click()" is what the
// date conversion window tells Calendarr, "cmdOK_Click()" what it tells Display_Weekday.
#include <string_view>

namespace orrivane::calendar {

// ---- Calendarr: where month, date, year and style come from ----------------------------------
inline constexpr std::string_view kFindADateOutputDay = "frmFindADate.OutputDay()";
inline constexpr std::string_view kFindADateOutputDayOnForm1 = "frmFindADate.OutputDay_On_Form1()";
inline constexpr std::string_view kCalendarrCmdOKClick = "CmdOK_Click()";  // capital C
inline constexpr std::string_view kDisplayTodaysDate = "Display_Todays_Date()";
inline constexpr std::string_view kFindAHolidayDisplayHolidayOnCalendar = "frmFindAHoliday.Display_Holiday_On_Calendar";
// Form1_Field_Validation_Check_Status reads frmFindADate's boxes for kFindADateOutputDay and
// kFindADateOutputDayOnForm1 only.

// ---- Format_Day_Of_Week_Label: which window's day line is written -----------------------------
inline constexpr std::string_view kForm1Calendarr = "Form1.Calendarr";
inline constexpr std::string_view kForm1CalendarrForFindADate = "Form1.Calendarr for frmFindADate";

// ---- Display_Weekday: which window's weekday box is written ----------------------------------
// Form1's: kForm1OutputDay, kDisplayTodaysDate, kDisplayWeekdayCmdOKClick, kFindADateOutputDayOnForm1;
// frmFindADate's: kFindADateOutputDay.
inline constexpr std::string_view kForm1OutputDay = "OutputDay";  // of a procedure that nothing calls
inline constexpr std::string_view kDisplayWeekdayCmdOKClick = "cmdOK_Click()";  // small c

// ---- Convert: where the date to convert comes from ----------------------------------------------
inline constexpr std::string_view kCalConversion = "Cal_Conversion()";
inline constexpr std::string_view kFindADateConvertAboveDate = "frmFindADate.cmdConvertAboveDate__Click()";
// Both of these convert the date left in Form1's keeper and put the answer back there.
inline constexpr std::string_view kFormatDayOfWeekLabel =
    "Format_Day_Of_Week_Label(ByVal Month_, ByVal Date_, ByVal Year_, CalStyle, Calling_Sub_Origin)";
inline constexpr std::string_view kFindDateDifferenceCmdEnterClick = "frmFindDateDifference.cmdENTER_Click()";

// ---- Terminate_This_Program: only kFormUnload means something (no question is asked) ----------
inline constexpr std::string_view kFormUnload = "Form_Unload";
inline constexpr std::string_view kForm1CmdExitClick = "cmdEXIT_Click()";
inline constexpr std::string_view kForm1MnuExit = "mnuExit";
inline constexpr std::string_view kLargeCalendarCmdExitClick = "frmLargeCalendar.cmdExit_Click()";
inline constexpr std::string_view kLargeCalendarMnuExitClick = "mnuExit_Click()";

}  // namespace orrivane::calendar
