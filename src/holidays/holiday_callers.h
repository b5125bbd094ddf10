#pragma once
// The caller identities of the holiday procedures, compared exactly, case included.
#include <string_view>

namespace orrivane::holidays {

// The two customers of the holiday engine (Display_Holiday_II and
// Display_All_Holidays_For_Selected_Year); any other text selects nobody.
// Lines for the list of the find-a-holiday window:
inline constexpr std::string_view kFindAHolidayCaller = "Display_Holiday(Calling_Sub)";
// Entries of the calendar's holiday table:
inline constexpr std::string_view kCalendarHolidayTableCaller = "Form1.Display_Next_Month_On_Calendar()";

// What the find-a-holiday window's buttons and menu tell Display_Holiday and
// Display_Holiday_On_Calendar. These are labels only: both procedures answer every text alike.
inline constexpr std::string_view kCmdSelectClick = "cmdSelect_Click";
inline constexpr std::string_view kMnuAddHolidayDateToListClick = "mnuAddHolidayDateToList_Click";
inline constexpr std::string_view kCmdCalendarClick = "cmdCalendar_Click()";

}  // namespace orrivane::holidays
