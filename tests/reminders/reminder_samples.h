#pragma once
// Records shared by the tests of the reminders: a task with a reminder, and the files of both
// kinds written as the program writes them.
#include <string>
#include <vector>

#include "core/sequential_file.h"
#include "organizer/log_samples.h"
#include "organizer/schedule_record.h"
#include "reminders/non_task_reminders.h"

namespace orrivane::reminders::samples {

// Task `number` at 14:30 on March 5, 2001 until 15:45, with a single reminder at `date` and
// `time` ("March 5, 2001", "14:30").
inline organizer::ScheduleRecord Task_With_Reminder(int number, const std::string& name, const std::string& date,
                                                   const std::string& time) {
  organizer::ScheduleRecord r = organizer::samples::Dentist_Task();
  r.Record_Number = number;
  r.Task_Name = name;
  r.Time_Range_Flag = 1;
  r.Finish_Hour = "15";
  r.Finish_Minute = "45";
  r.Date_String[0] = r.Date_String[1] = date;
  r.Time_String[0] = r.Time_String[1] = time;
  return r;
}

// The same task with a series of kind 2 or 3 from `first` to `last` ("10:00", "11:00" on March
// 5, 2001), every `minutes` minutes.
inline organizer::ScheduleRecord Task_With_Series(int number, int kind, const std::string& first,
                                                 const std::string& last, int minutes) {
  organizer::ScheduleRecord r = Task_With_Reminder(number, "Series", "March 5, 2001", first);
  r.Time_String[1] = last;
  r.Reminder_Interval = kind;
  r.Interval_Days = "0";
  r.Interval_Hours = std::to_string(minutes / 60);
  r.Interval_Minutes = std::to_string(minutes % 60);
  return r;
}

inline void Write_Tasks(const std::string& path, const std::vector<organizer::ScheduleRecord>& tasks) {
  SequentialWriter file(path);
  for (const auto& task : tasks) organizer::Schedule_File("Write", file, task);
}

inline NonTaskReminderRecord Message_At(int number, const std::string& title, const std::string& message,
                                        const std::string& time_date, int status = 1) {
  return {number, status, title, message, time_date};
}

inline void Write_Messages(const std::string& path, const std::vector<NonTaskReminderRecord>& messages) {
  Empty_File(path);
  for (const auto& message : messages) Append_Non_Task_Reminder(path, message);
}

}  // namespace orrivane::reminders::samples
