#pragma once
// The names a caller writes in lblStoreCallingProcedure of the open and save windows before it
// shows one, and the procedure each name selects. Names are compared exactly, case included,
// and any other caption selects nothing.
#include <cstddef>
#include <string_view>

namespace orrivane::shell {

inline constexpr std::string_view kFindAHolidayFileCaller = "frmFindAHoliday";
inline constexpr std::string_view kSchedulerReminderFileCaller = "frmScheduler_Reminder";
inline constexpr std::string_view kForm1OpenLogCaller = "form1.mnuOpenLog_Click()";  // a small f, as written
inline constexpr std::string_view kLargeCalendarOpenLogCaller = "frmLargeCalendar.mnuOpenLog_Click()";

enum class OpenFileProcedure { None, Open_Holiday_List_File, Open_Schedule_File };
enum class SaveFileProcedure { None, Save_Holiday_List, Save_Schedule };

template <class Procedure>
struct CallerRoute {
  std::string_view caller;
  Procedure procedure;
};

inline constexpr CallerRoute<OpenFileProcedure> kOpenFileCallers[] = {
    {kFindAHolidayFileCaller, OpenFileProcedure::Open_Holiday_List_File},
    {kSchedulerReminderFileCaller, OpenFileProcedure::Open_Schedule_File},
    {kForm1OpenLogCaller, OpenFileProcedure::Open_Schedule_File},
    {kLargeCalendarOpenLogCaller, OpenFileProcedure::Open_Schedule_File},
};

inline constexpr CallerRoute<SaveFileProcedure> kSaveFileCallers[] = {
    {kFindAHolidayFileCaller, SaveFileProcedure::Save_Holiday_List},
    {kSchedulerReminderFileCaller, SaveFileProcedure::Save_Schedule},
};

// The procedure that `caller` selects in a table of routes; None for a name not in it.
template <class Procedure, std::size_t N>
constexpr Procedure Procedure_For(const CallerRoute<Procedure> (&routes)[N], std::string_view caller) {
  for (const CallerRoute<Procedure>& route : routes) {
    if (route.caller == caller) return route.procedure;
  }
  return Procedure::None;
}

}  // namespace orrivane::shell
