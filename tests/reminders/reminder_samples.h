#pragma once
// Records shared by the tests of the reminders: a task with a reminder, and the files of both
// kinds written as the program writes them.
#include <string>
#include <vector>

#include "core/sequential_file.h"
#include "organizer/schedule_record.h"
#include "reminders/non_task_reminders.h"

namespace orrivane::reminders::samples {

// Task `number` at 14:30 on March 5, 2001 until 15:45, with a single reminder at `date` and
// `time` ("March 5, 2001", "14:30").
inline organizer::ScheduleRecord Task_With_Reminder(int number, const std::string& name, const std::string& date,
                                                   const std::string& time) {
  organizer::ScheduleRecord r;
  r.Record_Number = number;
  r.Task_Name = name;
  r.Task_Description = "Checkup";
  r.Task_Comments = "";
  r.Start_Month = "March";
  r.Start_Date = "05";
  r.Start_Century = 20;
  r.Start_Year = 1;
  r.Start_Hour = "14";
  r.Start_Minute = "30";
  r.Time_Range_Flag = 1;
  r.Finish_Month = "March";
  r.Finish_Date = "05";
  r.Finish_Century = 20;
  r.Finish_Year = 1;
  r.Finish_Hour = "15";
  r.Finish_Minute = "45";
  r.Color_Code = 16711680;
  r.Person_Name = "Anna";
  r.Reminder_Status = 1;
  r.Date_String[0] = date;
  r.Time_String[0] = time;
  r.Date_String[1] = date;
  r.Time_String[1] = time;
  r.Reminder_Interval = 1;
  r.Interval_Days = 0;
  r.Interval_Hours = 0;
  r.Interval_Minutes = 0;
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
