#pragma once
// A new task as the new-task window takes it: the checks of its entries with their messages,
// the record built from them, its appending to the working files, the random colour of the next
// task, and the default reminder values of a fresh entry.
#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "core/message.h"
#include "core/value.h"
#include "organizer/reminder_labels.h"
#include "organizer/schedule_record.h"

namespace orrivane::organizer {

// ---- The entries ----------------------------------------------------------------------------

// The date and time boxes of one moment of a task, as texts; an empty text is an empty box.
struct TaskMomentBoxes {
  std::string month;  // the full month name
  std::string date;   // "01" to "31"
  std::string century;
  std::string year;
  std::string hour;    // "00" to "23"
  std::string minute;  // "00" to "59"
};

// The moments of a task: the start (or the one moment), and the finish of a time range.
inline constexpr int kTaskStart = 0;
inline constexpr int kTaskFinish = 1;
inline constexpr int kTaskMoments = 2;

struct NewTaskEntries {
  std::array<TaskMomentBoxes, kTaskMoments> moments;
  bool time_range = false;  // "Select Time Range" checked: the finish boxes count
  std::string person;       // as New_Task_Person chose it
  std::string name;         // the task's name, as typed
};

// The person of a new task: the existing member's box while it is enabled, and then the new
// member's name with its blanks cut at both ends while that box is enabled.
std::string New_Task_Person(bool existing_enabled, std::string_view existing_person, bool new_enabled,
                            std::string_view new_person);

// ---- The checks ---------------------------------------------------------------------------

// The century and year of a moment, each added to 0 ("05" is 5). An empty century is the present
// year's hundreds and an empty year its last two digits, each by itself; the present year is the
// last four characters of the system date. A text that is no number stays as it stands (the
// failure of adding it to 0 is ignored) and counts as 0 in the arithmetic of the checks.
struct TaskYear {
  Value century;
  Value year;
};
TaskYear Task_Year(std::string_view century, std::string_view year, std::string_view system_date);

// The answer of the checks: the code of the message to show (0 for none), the years of the
// moments as they go into the record, and the month and its length that a message about an
// impossible date names.
struct NewTaskCheck {
  int code = 0;
  std::array<TaskYear, kTaskMoments> years;  // the finish's only with the time range
  std::string month;
  int month_length = 0;
};

// Codes: 1 to 5 a start box empty (month, date, year, hour, minute), 6 to 10 the same of the
// finish, 13 no person, 14 no name, 11 more than one of these; 15 the start's date beyond its
// month's length (Gregorian leap years), 16 the finish's, 17 both; 12 a finish before the start
// (a finish equal to the start is accepted). Precedence: 11, then the last missing item, then
// 15 to 17, then 12.
NewTaskCheck Check_New_Task(const NewTaskEntries& entries, std::string_view system_date);

// The message of a refused task, with one OK button and the exclamation icon; the empty message
// for code 0.
Message New_Task_Message(const NewTaskCheck& check);

// "Add this task to the schedule?", asked before the task is added.
Message Confirm_New_Task_Message();
// Told once the task is in the log.
Message New_Task_Added_Message();

// ---- The record -----------------------------------------------------------------------------

// What the record takes from the window beside the checked entries.
struct NewTaskDetails {
  std::string description;
  std::string comments;
  Value colour;  // the colour number of the task's colour label
  bool reminder_on = false;
  // The eight reminder values, in the order of ReminderVariables::kNames.
  std::array<Value, ReminderVariables::kNames.size()> reminder;
};

// The task's record, all but its number: the start's boxes and years, the finish's with the time
// range or copies of the start's without, 1 or 0 for the range and the reminder.
ScheduleRecord New_Task_Record(const NewTaskEntries& entries, const NewTaskCheck& check, const NewTaskDetails& details);

// Appends the task to the log (Schedule.tmp), and to the list of task reminders (TRemin.tmp)
// when its reminder is on; the list is opened for appending and closed again either way.
void Append_New_Task(const ScheduleRecord& task, const std::string& log_path, const std::string& reminders_path);

// ---- The colour of the next task ------------------------------------------------------------

// The index of a palette colour drawn at random: the whole part of 50 times a fraction from 0 up
// to 1, drawn again while it is light grey.
int Random_Colour_Index(const std::function<double()>& next_fraction);

// The seconds since midnight of a system time ("2:05:09 PM"), the seed of the drawing.
double Seconds_Since_Midnight(std::string_view system_time);

// ---- The reminder of a fresh entry ----------------------------------------------------------

// The eight reminder values of a new task before the user sets any, in the order of
// ReminderVariables::kNames, from one reading of the clock (a system date and time): today as
// "March 5, 2001" and now as "14:05" for both moments, one reminder only, no interval.
std::array<Value, ReminderVariables::kNames.size()> Reminder_Defaults(std::string_view system_date,
                                                                      std::string_view system_time);

}  // namespace orrivane::organizer
