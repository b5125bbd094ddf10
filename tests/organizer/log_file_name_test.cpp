// The names of log files: the extension added unless it stands exactly, and the folder ending
// in the separator it is joined with.
#include "organizer/log_file_name.h"

#include <gtest/gtest.h>

#include "core/sequential_file.h"

namespace orrivane::organizer {
namespace {

TEST(Log_File_Name, AddsTheExtensionUnlessItStandsExactly) {
  EXPECT_EQ(Log_File_Name("week"), "week.sdl");
  EXPECT_EQ(Log_File_Name("week.sdl"), "week.sdl");
  EXPECT_EQ(Log_File_Name("week.SDL"), "week.SDL.sdl");
  EXPECT_EQ(Log_File_Name("week.sd"), "week.sd.sdl");
  EXPECT_EQ(Log_File_Name("week.sdl "), "week.sdl .sdl");
  EXPECT_EQ(Log_File_Name(".sdl"), ".sdl");
  EXPECT_EQ(Log_File_Name("sdl"), "sdl.sdl");
  EXPECT_EQ(Log_File_Name(""), ".sdl");
}

TEST(Log_File_Name, TheWindowsListAndProposeLogsByTheseNames) {
  EXPECT_EQ(kLogFilePattern, "*.sdl");
  EXPECT_EQ(kProposedLogFileName, "Schedule.sdl");
}

TEST(Log_Folder, EndsInTheSeparatorOnce) {
  EXPECT_EQ(Log_Folder("/home/anna/logs"), "/home/anna/logs/");
  EXPECT_EQ(Log_Folder("/home/anna/logs/"), "/home/anna/logs/");
  EXPECT_EQ(Log_Folder("/"), "/");
}

TEST(Log_Folder, JoinedWithTheNameItGivesThePath) {
  EXPECT_EQ(Join_Path(Log_Folder("/home/anna/logs"), "week.sdl"), "/home/anna/logs/week.sdl");
  EXPECT_EQ(Join_Path(Log_Folder("/"), "week.sdl"), "/week.sdl");
}

}  // namespace
}  // namespace orrivane::organizer
