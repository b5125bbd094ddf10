// The names that choose what the open and save windows do: each name selects its procedure by
// its exact text, case included, and any other caption selects nothing.
#include "shell/shell_callers.h"

#include <gtest/gtest.h>

namespace orrivane::shell {
namespace {

OpenFileProcedure Open_For(std::string_view caller) { return Procedure_For(kOpenFileCallers, caller); }
SaveFileProcedure Save_For(std::string_view caller) { return Procedure_For(kSaveFileCallers, caller); }

TEST(ShellCallers, TheOpenWindowServesTheHolidayListAndTheLogsThreeCallers) {
  EXPECT_EQ(Open_For("frmFindAHoliday"), OpenFileProcedure::Open_Holiday_List_File);
  EXPECT_EQ(Open_For("frmScheduler_Reminder"), OpenFileProcedure::Open_Schedule_File);
  EXPECT_EQ(Open_For("form1.mnuOpenLog_Click()"), OpenFileProcedure::Open_Schedule_File);
  EXPECT_EQ(Open_For("frmLargeCalendar.mnuOpenLog_Click()"), OpenFileProcedure::Open_Schedule_File);
  EXPECT_EQ(std::size(kOpenFileCallers), 4u);
}

TEST(ShellCallers, TheOpenWindowServesNoOtherName) {
  for (const char* caller :
       {"Form1.mnuOpenLog_Click()", "form1.mnuOpenLog_Click", "frmLargeCalendar.mnuOpenLog_click()",
        "mnuOpenLog_Click()", "FRMFINDAHOLIDAY", "frmFindAHoliday ", "frmscheduler_reminder", ""}) {
    EXPECT_EQ(Open_For(caller), OpenFileProcedure::None) << caller;
  }
}

TEST(ShellCallers, TheSaveWindowServesTheHolidayListAndTheLog) {
  EXPECT_EQ(Save_For("frmFindAHoliday"), SaveFileProcedure::Save_Holiday_List);
  EXPECT_EQ(Save_For("frmScheduler_Reminder"), SaveFileProcedure::Save_Schedule);
  EXPECT_EQ(std::size(kSaveFileCallers), 2u);
}

TEST(ShellCallers, TheSaveWindowServesNoOtherName) {
  // The names that open a log from the calendars' menus are the open window's alone.
  for (const char* caller : {"form1.mnuOpenLog_Click()", "frmLargeCalendar.mnuOpenLog_Click()", "frmfindaholiday",
                             "frmScheduler_reminder", "Form1", ""}) {
    EXPECT_EQ(Save_For(caller), SaveFileProcedure::None) << caller;
  }
}

}  // namespace
}  // namespace orrivane::shell
