#pragma once
// The names of log files: their extension, the pattern the open window lists them by, the name
// the save window proposes, and how a typed name and a chosen folder are completed.
#include <string>
#include <string_view>

namespace orrivane::organizer {

inline constexpr std::string_view kLogFileExtension = ".sdl";
inline constexpr std::string_view kLogFilePattern = "*.sdl";
inline constexpr std::string_view kProposedLogFileName = "Schedule.sdl";

// The name with ".sdl" added unless its last four characters are exactly ".sdl": "week" gives
// "week.sdl", "week.SDL" gives "week.SDL.sdl".
std::string Log_File_Name(std::string name);

// The folder as the log keeps it: ending in the separator that Join_Path joins with, so that
// folder and name put together are the file's path.
std::string Log_Folder(std::string folder);

}  // namespace orrivane::organizer
