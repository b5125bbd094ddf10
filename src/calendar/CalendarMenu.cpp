#include "calendar/CalendarMenu.h"

#include "calendar/Form1.h"
#include "calendar/frmFindADate.h"
#include "calendar/frmSelectMonth.h"
#include "elapsed/frmFindDateDifference.h"
#include "holidays/frmFindAHoliday.h"
#include "organizer/frmScheduler_Reminder.h"
#include "platform/controls.h"
#include "platform/window_registry.h"
#include "shell/frmAbout.h"
#include "shell/frmHelpContents.h"
#include "shell/frmLiscense.h"

namespace orrivane {

namespace {

using Procedure = void (*)();

void Todays_Date() { Window<Form1>().Display_Todays_Date(); }
void Next_Month() { Window<Form1>().Display_Next_Month_On_Calendar(); }
void Prior_Month() { Window<Form1>().Display_Prior_Month_On_Calendar(); }
void Convert_This_Date() { Window<Form1>().Cal_Conversion(); }
// Both windows print the month of Form1.
void Print_Calendar() { Window<Form1>().Print_Calendar(); }
void Select_Month() { controls::Show_In_Front(Window<frmSelectMonth>()); }
void Find_A_Dates_Weekday() { controls::Show_In_Front(Window<frmFindADate>()); }
void Find_Holiday_Dates() { controls::Show_In_Front(Window<frmFindAHoliday>()); }
void New_Log() { Window<frmScheduler_Reminder>().Open_New_Schedule(); }
void Save_Log() { Window<frmScheduler_Reminder>().Quick_Schedule_File_Save(); }
void Save_Log_As() { Window<frmScheduler_Reminder>().Activate_Save_File_Window(); }
void Print_Log() { Window<frmScheduler_Reminder>().Activate_Print_Log_Screen(); }
void Organizer() { controls::Show_In_Front(Window<frmScheduler_Reminder>()); }
void Add_New_Task() { Window<frmScheduler_Reminder>().Open_Add_New_Task_Window(); }
void Task_Event_Info() { Window<frmScheduler_Reminder>().Select_Task_Info_Window(); }
void Add_New_Group_Member() { Window<frmScheduler_Reminder>().Add_New_Group_Member(); }
void Delete_A_Task_Event() { Window<frmScheduler_Reminder>().Delete_A_Task_From_Menu(); }
void Delete_Group_Member() { Window<frmScheduler_Reminder>().Delete_Group_Member_From_Menu(); }
void Add_Non_Task_Reminder() { Window<frmScheduler_Reminder>().Activate_Non_Task_Reminder_Window(); }
void Change_Non_Task_Reminder() { Window<frmScheduler_Reminder>().Activate_View_NT_Task_Window(); }
void Delete_Non_Task_Reminder() { Window<frmScheduler_Reminder>().Activate_Delete_NT_Task_Window(); }
void Find_Time_Length() { controls::Show_In_Front(Window<frmFindDateDifference>()); }
void Help_Contents() { controls::Show_In_Front(Window<frmHelpContents>()); }
void License() { controls::Show_In_Front(Window<frmLiscense>()); }
void About() { controls::Show_In_Front(Window<frmAbout>()); }

constexpr const char* kAbsent = nullptr;  // the entry is not in that window's menu

struct CalendarMenuRow {
  const char* parent;
  const char* form1_name;
  const char* large_name;
  const char* caption;
  const char* shortcut;
  Procedure shared = nullptr;  // the procedure of both windows; nullptr: the window's own, or none yet
  bool submenu = false;
  bool later = false;  // its window is not part of the program yet: shown, but disabled
};

constexpr bool kSubmenu = true;
constexpr bool kLater = true;

// Enabled only while the log has a file of its own (Set_mnuSave of the Organizer).
constexpr const char* kSaveLog = "mnuSaveLog";

constexpr CalendarMenuRow kCalendarMenu[] = {
    {"", "mnuFile", "mnuFile", "&File", ""},
    {"mnuFile", "mnuNewLog", "mnuNewLog", "New Log", "", New_Log},
    {"mnuFile", "mnuOpenLog", "mnuOpenLog", "Open Log...", "Ctrl+O"},  // each window names itself to the open window
    {"mnuFile", kSaveLog, kSaveLog, "Save Log", "Ctrl+S", Save_Log},
    {"mnuFile", "mnuSaveLogAs", "mnuSaveLogAs", "Save Log As...", "Ctrl+V", Save_Log_As},
    {"mnuFile", "mnuPrintLog", "mnuPrintLog", "Print Log...", "F2", Print_Log},
    {"mnuFile", "mnuPrintCalendar", "mnuPrintCalendar", "Print Calendar...", "Ctrl+F2", Print_Calendar},
    {"mnuFile", "mnuExit", "mnuExit", "Exit", "Ctrl+Q"},
    {"", "mnuView", "mnuView", "&View", ""},
    {"mnuView", "mnuTodaysDate", "mnuTodaysDates", "Today's Date", "Ctrl+D", Todays_Date},
    {"mnuView", "mnuMonth", "mnuMonth", "Month", "", nullptr, kSubmenu},
    {"mnuMonth", "mnuNext", "mnuNext", "Next", "Ctrl+N", Next_Month},
    {"mnuMonth", "mnuPrevious", "mnuPrevious", "Previous", "Ctrl+P", Prior_Month},
    {"mnuMonth", "mnuSelect", "mnuSelect", "Select...", "Ctrl+M", Select_Month},
    {"mnuView", "mnuTaskEventInfo", "mnuTaskEventInfo", "Task\\Event Info...", "Ctrl+I", Task_Event_Info},
    {"", "mnuLog", "mnuLog", "&Log", ""},
    {"mnuLog", "mnuAddNewTaskEventToLog", "mnuAddNewTaskEventToLog", "Add New Task\\Event To Log...", "Ctrl+E",
     Add_New_Task},
    {"mnuLog", "mnuAddNewGroupMember", "mnuAddNewGroupMember", "Add New Group Member To Log...", "Ctrl+G",
     Add_New_Group_Member},
    {"mnuLog", "mnuDeleteATaskEvent", "mnuDeleteATaskEvent", "Delete A Task\\Event...", "Ctrl+F3",
     Delete_A_Task_Event},
    {"mnuLog", "mnuDeleteGroupMember", "mnuDeleteGroupMember", "Delete Group Member From Log...", "Shift+F3",
     Delete_Group_Member},
    {"", "mnuTools", "mnuTools", "&Tools", ""},
    {"mnuTools", "mnuConvertDate", "mnuConvertThisDate", "Convert This Date...", "Ctrl+C", Convert_This_Date},
    {"mnuTools", "mnuFindADatesWeekday", "mnuFindADatesWeekday", "Find A Date's Weekday", "Ctrl+W",
     Find_A_Dates_Weekday},
    {"mnuTools", "mnuFindHolidayDates", "mnuFindHolidayDates", "Find Holiday Dates...", "Ctrl+H",
     Find_Holiday_Dates},
    {"mnuTools", "mnuScheduler_Reminder", "mnuSchedulerReminder", "Organizer...", "F3", Organizer},
    {"mnuTools", "mnuOptions", kAbsent, "Options...", "F9"},
    {"mnuTools", "mnuFindTimeLengthBetweenDates", "mnuFindTimeLengthBetweenDates", "Find Time Length Between Dates",
     "Ctrl+T", Find_Time_Length},
    {"mnuTools", "mnuReminders", "mnuReminders", "Reminders", "", nullptr, kSubmenu},
    {"mnuReminders", "mnuAdd", "mnuAdd", "Add...", "F6", Add_Non_Task_Reminder},
    {"mnuReminders", "mnuChange", "mnuChange", "Change...", "Ctrl+F6", Change_Non_Task_Reminder},
    {"mnuReminders", "mnuDelete", "mnuDelete", "Delete...", "Shift+F6", Delete_Non_Task_Reminder},
    {"", "mnuWindow", "mnuWindow", "&Window", ""},
    {"mnuWindow", "mnuMinimizeToTaskbar", "mnuMinimizeToTaskbar", "Minimize To Taskbar", "F5"},
    {"mnuWindow", "mnuLargeWindow", kAbsent, "Large Window", "F4"},
    {"mnuWindow", kAbsent, "mnuMaximize", "Maximize", "Ctrl+F5"},
    {"mnuWindow", kAbsent, "mnuWindowed", "Windowed", "Shift+F5"},
    {"mnuWindow", kAbsent, "mnuSmallWindow", "Small Window", "F4"},
    {"", "mnuHelp", "mnuHelp", "&Help", ""},
    {"mnuHelp", "mnuContents", "mnuContents", "Contents...", "F1", Help_Contents},
    {"mnuHelp", "mnuLicense", "mnuLicense", "License...", "Ctrl+L", License},
    {"mnuHelp", "mnuAbout", "mnuAbout", "About...", "Ctrl+A", About},
};

const char* Name_In(const CalendarMenuRow& row, CalendarWindow window) {
  return window == CalendarWindow::Form1 ? row.form1_name : row.large_name;
}

}  // namespace

std::vector<MenuEntry> Calendar_Menu_Entries(CalendarWindow window) {
  std::vector<MenuEntry> entries;
  for (const CalendarMenuRow& row : kCalendarMenu) {
    const char* name = Name_In(row, window);
    if (name == kAbsent) continue;
    entries.push_back({row.parent, name, row.caption, row.shortcut, row.submenu, row.later});
  }
  return entries;
}

void Connect_Shared_Calendar_Entries(const MenuTree& menu, CalendarWindow window) {
  for (const CalendarMenuRow& row : kCalendarMenu) {
    const char* name = Name_In(row, window);
    if (name != kAbsent && row.shared != nullptr) menu.On(name, row.shared);
  }
  menu.Action(kSaveLog)->setEnabled(false);  // the log has no file yet
}

}  // namespace orrivane
