// A task's reminder as it reaches the reminder file: set through the windows, the task's record
// written with the values of the keeper, byte for byte.
#include <algorithm>

#include "organizer/log_file.h"
#include "organizer/set_reminder_window_test.h"
#include "organizer/working_files.h"
#include "support/golden.h"

namespace orrivane {
namespace {

using organizer::ReminderVariables;
using organizer::ScheduleRecord;
using testing::Golden_Cases;
using testing::GoldenCase;
using testing::SetReminderWindowTest;

GoldenCase Dentists_Series() {
  const auto cases = Golden_Cases("task_reminder_record");
  const auto found = std::find_if(cases.begin(), cases.end(),
                                  [](const GoldenCase& golden) { return golden.name == "dentist_series"; });
  if (found == cases.end()) {
    ADD_FAILURE() << "the golden case dentist_series is missing";
    return {};
  }
  return *found;
}

class TaskReminderRecordTest : public SetReminderWindowTest {
 protected:
  // The task with fields 21 to 28 from the new-task window's keeper, as the task is saved.
  static ScheduleRecord With_Kept_Reminder(ScheduleRecord task) {
    Value* fields[] = {&task.Date_String[0],   &task.Time_String[0],  &task.Date_String[1],
                       &task.Time_String[1],   &task.Reminder_Interval, &task.Interval_Days,
                       &task.Interval_Hours,   &task.Interval_Minutes};
    static_assert(std::size(fields) == ReminderVariables::kNames.size());
    for (std::size_t i = 0; i < std::size(fields); ++i) {
      *fields[i] = New_Task(std::string(ReminderVariables::kNames[i]).c_str());
    }
    return task;
  }
};

TEST_F(TaskReminderRecordTest, TheDentistsSeriesStandsByteForByte) {
  Set_The_Dentists_Series();
  organizer::Append_Record(organizer::kTaskReminderFile, With_Kept_Reminder(organizer::samples::Dentist_Task()));
  EXPECT_EQ(Read_File(organizer::kTaskReminderFile), Dentists_Series().Expected());
}

}  // namespace
}  // namespace orrivane
