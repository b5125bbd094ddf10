// The worked example of the log's format, as the procedures of a new task and of a new group
// member write it: Anna's Dentist task in 8 lines, then Ben's marker record as first written,
// in 28 lines.
#include <gtest/gtest.h>

#include "organizer/log_file.h"
#include "organizer/log_samples.h"
#include "support/golden.h"

namespace orrivane::organizer {
namespace {

using namespace samples;
using orrivane::testing::Golden_Case;
using orrivane::testing::GoldenCase;

GoldenCase Worked_Example() { return Golden_Case("log_save_as", "worked_example"); }

TEST(WorkedExample, AppendedTaskAndNewMarkerStandByteForByte) {
  TempFolder folder;
  const std::string log = folder.file("Schedule.tmp");
  Append_Record(log, Dentist_Task());
  Generate_Person_Marker_Record(log, "Ben");
  const GoldenCase example = Worked_Example();
  EXPECT_EQ(Read_Bytes(log), example.Bytes("input.sdl"));
  EXPECT_EQ(example.Lines("input.sdl").size(), 8u + 28u);
}

TEST(WorkedExample, ItsMarkerStandsInOneValueALine) {
  const std::vector<std::string> lines = Worked_Example().Lines("input.sdl");
  ASSERT_EQ(lines.size(), 36u);
  for (std::size_t i = 8; i < lines.size(); ++i) EXPECT_EQ(lines[i], i == 8 + 18 ? "\"Ben\"" : "-1") << i;
}

}  // namespace
}  // namespace orrivane::organizer
