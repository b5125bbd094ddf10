#pragma once
// The working files of the Organizer and the reminders, each named here once. All of them live
// in the current folder.
namespace orrivane::organizer {

inline constexpr const char* kScheduleFile = "Schedule.tmp";          // the live log
inline constexpr const char* kScheduleScratchFile = "Schedule1.tmp";  // scratch of a rewrite of the log
inline constexpr const char* kTaskReminderFile = "TRemin.tmp";        // the records of the log with reminders on
inline constexpr const char* kTaskReminderScratchFile = "TRemin1.tmp";  // scratch of a rewrite of TRemin.tmp
// The reminders that belong to no task, kept from run to run. The one spelling used throughout:
// the file system may tell the case of a name apart.
inline constexpr const char* kNonTaskReminderFile = "NTRemin.dat";
inline constexpr const char* kNonTaskReminderScratchFile = "NTRemin.tmp";

}  // namespace orrivane::organizer
