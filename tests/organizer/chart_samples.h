#pragma once
// Tasks of the Organizer's log written as the new-task window writes them, for the tests and
// benchmarks of the task chart: month names, two-digit date, hour and minute texts, and a
// numeric century and year.
#include <string>

#include "core/text.h"
#include "organizer/schedule_record.h"

namespace orrivane::organizer::samples {

// A moment of a task: a month name, a day, a four-digit year, an hour 0 to 23 and a minute.
struct At {
  std::string month;
  int date;
  int year;
  int hour;
  int minute;
};

inline void Set_Moment(const At& at, Value& month, Value& date, Value& century, Value& year, Value& hour, Value& minute) {
  month = at.month;
  date = text::Pad_Zero(at.date, 2);
  century = at.year / 100;
  year = at.year % 100;
  hour = text::Pad_Zero(at.hour, 2);
  minute = text::Pad_Zero(at.minute, 2);
}

// A task of `person` from `start` to `finish` in `colour` (0xBBGGRR).
inline ScheduleRecord Chart_Task(int number, const std::string& person, const At& start, const At& finish,
                                 unsigned colour) {
  ScheduleRecord r = Make_Person_Marker(person);
  r.Record_Number = number;
  r.Task_Name = "Task " + std::to_string(number);
  r.Task_Description = "";
  r.Task_Comments = "";
  Set_Moment(start, r.Start_Month, r.Start_Date, r.Start_Century, r.Start_Year, r.Start_Hour, r.Start_Minute);
  Set_Moment(finish, r.Finish_Month, r.Finish_Date, r.Finish_Century, r.Finish_Year, r.Finish_Hour, r.Finish_Minute);
  r.Time_Range_Flag = start.month == finish.month && start.date == finish.date && start.year == finish.year &&
                              start.hour == finish.hour && start.minute == finish.minute
                          ? 0
                          : 1;
  r.Color_Code = static_cast<double>(colour);
  r.Reminder_Status = 0;
  return r;
}

// A task of one moment: equal start and finish.
inline ScheduleRecord Moment_Task(int number, const std::string& person, const At& at, unsigned colour) {
  return Chart_Task(number, person, at, at, colour);
}

}  // namespace orrivane::organizer::samples
