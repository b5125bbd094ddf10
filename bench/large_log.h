#pragma once
// A large log for the benchmarks of the Organizer: 10,000 tasks of 50 members, each member with
// a marker record as first written, the tasks spread over the days and hours of 2001.
#include <string>

#include "core/sequential_file.h"
#include "organizer/schedule_record.h"

namespace orrivane::bench {

inline constexpr int kTasks = 10'000;
inline constexpr int kMembers = 50;

inline std::string Member(int i) { return "Member " + std::to_string(i % kMembers); }

// Task n: its member in turn, a day of 2001 and an hour that move with n.
inline organizer::ScheduleRecord Task(int n) {
  static const char* const kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                                        "July",    "August",   "September", "October", "November", "December"};
  const auto two_digits = [](int v) { return (v < 10 ? "0" : "") + std::to_string(v); };
  organizer::ScheduleRecord r;
  r.Record_Number = n;
  r.Task_Name = "Task " + std::to_string(n);
  r.Task_Description = "Description";
  r.Task_Comments = "";
  r.Start_Month = r.Finish_Month = kMonths[n % 12];
  r.Start_Date = r.Finish_Date = two_digits(1 + n % 28);
  r.Start_Century = r.Finish_Century = 20;
  r.Start_Year = r.Finish_Year = 1;
  r.Start_Hour = two_digits(n % 24);
  r.Finish_Hour = two_digits(n % 24);
  r.Start_Minute = "00";
  r.Finish_Minute = "50";
  r.Time_Range_Flag = 1;
  r.Color_Code = 16711680;
  r.Person_Name = Member(n);
  r.Reminder_Status = 0;
  r.Date_String[0] = r.Date_String[1] = "March 4, 2001";
  r.Time_String[0] = r.Time_String[1] = "14:30";
  r.Reminder_Interval = 1;
  r.Interval_Days = r.Interval_Hours = r.Interval_Minutes = 0;
  return r;
}

// Task n with its reminder on, one of four kinds in turn: a single reminder, a series counted
// forward, a series counted backward, and a moment tied to the task's start.
inline organizer::ScheduleRecord Task_With_Reminder(int n) {
  organizer::ScheduleRecord r = Task(n);
  r.Reminder_Status = 1;
  // The reminder stands an hour before the task, so that few fall due in one minute.
  r.Date_String[0] = r.Start_Month.text() + " " + std::to_string(1 + n % 28) + ", 2001";
  r.Time_String[0] = std::to_string((n + 23) % 24) + ":00";
  constexpr int kKinds[] = {1, 2, 3, 1};
  r.Reminder_Interval = kKinds[n % 4];
  r.Date_String[1] = "March 6, 2001";
  if (n % 4 == 3) {
    r.Date_String[0] = "Before The Start Time of Task";
    r.Time_String[0] = "By 0 Days, 1 Hrs, 15 Min";
  }
  if (n % 4 == 1 || n % 4 == 2) {
    r.Interval_Days = "0";
    r.Interval_Hours = "2";
    r.Interval_Minutes = "30";
  }
  return r;
}

// Writes the kTasks tasks with their reminders on to `path`, as TRemin.tmp holds them.
inline void Write_Large_Task_Reminder_File(const std::string& path) {
  SequentialWriter file(path);
  for (int n = 1; n <= kTasks; ++n) organizer::Schedule_File("Write", file, Task_With_Reminder(n));
}

// Writes the log to `path`, replacing what stands there.
inline void Write_Large_Log(const std::string& path) {
  SequentialWriter log(path);
  for (int m = 0; m < kMembers; ++m) organizer::Write_Person_Marker_28_Lines(log, Member(m));
  for (int n = 1; n <= kTasks; ++n) organizer::Schedule_File("Write", log, Task(n));
}

}  // namespace orrivane::bench
