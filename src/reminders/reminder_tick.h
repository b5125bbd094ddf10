#pragma once
// What a tick of the reminder timer decides, from the reminder files and one reading of the
// clock: which reminders are due, whether a window is to open in this minute, and what it then
// shows. The timer's window does what these answer; nothing here shows anything.
//
// The files are read whole on every tick and nothing of them is kept: they stay the only truth,
// and any window may change them between two ticks.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"
#include "organizer/schedule_record.h"

namespace orrivane::reminders {

// The moment of a tick, from one reading of the clock ("3/5/2001", "2:05:09 PM").
struct TickMoment {
  std::string System_Date;
  std::string System_Time;
  Value Minute;                   // the minute of the hour, "05"
  std::int64_t Current_Minutes;   // the comparison number of the moment
};
TickMoment Tick_Moment(const std::string& System_Date, const std::string& System_Time,
                       const organizer::ScheduleRecord& Current_Record);

// The minute of the hour at which a window last opened; nothing before the first.
using ReminderMinute = std::optional<Value>;

// Whether a window opens in this minute: not when it opened last in the same minute of the
// hour (of this hour or of any other), since only the minute is kept; otherwise the minute is
// kept for the next time.
bool Show_In_This_Minute(ReminderMinute& Last_Reminder_Minute, const Value& Minute);

// ---- Tasks ----------------------------------------------------------------------------------------

// Whether a record of TRemin.tmp is due at the moment numbered `Current_Minutes`: a single
// reminder in its minute; a series from its first to its last moment, where the distance from
// its first moment (counted forward) or from its last (counted backward) is a multiple of its
// period. A period of 0 within those bounds is the failure 11. The record is the current
// record of its own tied moments.
bool Is_Task_Reminder_Due(const organizer::ScheduleRecord& record, std::int64_t Current_Minutes);

// "2:30 PM, March 5, 2001": a task's start or finish fields as the reminder window shows them.
std::string Task_Moment_Label(const Value& Hour, const Value& Minute, const Value& Month, const Value& Date,
                              const Value& Century, const Value& Year);

// "2:05 PM, March 5, 2001": the moment of firing, as the task window keeps it.
std::string Time_Of_Task_Message(const TickMoment& moment);

// What frmReminderWindow shows: one task, or the list of several to choose from.
struct TaskReminderFilling {
  bool Several = false;
  std::string Caption;
  std::string Task_Name;
  std::string For;
  std::string Start_Time;
  std::string Ending_Time;
  std::string Time_Left;
  std::vector<std::string> Task_List;  // "1 - Dentist", the several-tasks form only
  Value Current_Task_Record_Number;    // the single-task form only
  std::string Time_Of_Message;
};

// The task half of a tick: the due records' numbers in file order, whether a window opens, and
// its filling when it does. The file is read into `Current_Record`, record after record.
struct TaskReminderHalf {
  std::vector<Value> Due;
  bool Show_Reminder = false;
  std::optional<TaskReminderFilling> Window;
};
TaskReminderHalf Task_Reminder_Half(const std::string& path, const TickMoment& moment,
                                    ReminderMinute& Last_Task_Reminder_Minute,
                                    organizer::ScheduleRecord& Current_Record);

// ---- Reminders of no task -----------------------------------------------------------------------

// What frmNonTaskReminderWindow shows. Its caption and message stay as they stand when the
// window opens only because a task window opened in this tick; the date and time are then the
// plain texts of the last switched-on record read, or empty.
struct NonTaskReminderFilling {
  enum class Form { kAsItStands, kSingle, kSeveral };
  Form form = Form::kAsItStands;
  std::string Caption;
  std::string Message;
  std::vector<std::string> Reminder_List;  // "4 - Backup", the several-messages form only
  std::string Date_Of_Message;
  std::string Time_Of_Message;
};

// The non-task half of a tick; `Show_Reminder` comes from the task half and stands unless a
// non-task reminder is due. A missing file holds no reminders. The window opens when an answer
// is given. `Current_Record` is the record the task half read last.
std::optional<NonTaskReminderFilling> Non_Task_Reminder_Half(const std::string& path, const TickMoment& moment,
                                                             bool Show_Reminder,
                                                             ReminderMinute& Last_NT_Reminder_Minute,
                                                             const organizer::ScheduleRecord& Current_Record);

// The keeper of the due tasks' record numbers: a list whose element 0 is never used and whose
// upper bound is the count. "Reset" empties it and answers "-", "Append" adds the value after
// the last and answers it, "Put" stores the value at an index and "Get" answers the one there (an
// index beyond the bounds is the failure 9), "Get Number Of Elements" answers the upper bound;
// another verb answers nothing.
class RecordNumberList {
 public:
  Value Store(std::string_view Action_To_Perform, const Value& Element, const Value& value);

 private:
  Value& At(const Value& Element);
  std::vector<Value> numbers_{Value()};
};

// ---- The windows' lists ------------------------------------------------------------------------

// The record number of a list entry ("12 - Dentist"): the text up to its first blank. Without a
// blank the failure 5.
Value Number_Before_First_Blank(const std::string& entry);

// The moment of firing read back from the task window's "2:05 PM, March 5, 2001": a system
// date and time, "3/5/2001" and "2:05:00 PM".
struct SystemMoment {
  std::string date;
  std::string time;
};
SystemMoment Moment_Of_Firing(const std::string& Time_Of_Message);

// A task chosen from the task window's list: its member, start, finish and the time left as of
// the firing; nothing when the record has gone from the file at `path`.
struct ChosenTaskLabels {
  std::string For;
  std::string Start_Time;
  std::string Ending_Time;
  std::string Time_Left;
};
std::optional<ChosenTaskLabels> Chosen_Task_Labels(const std::string& path, const std::string& chosen_entry,
                                                   const std::string& Time_Of_Message,
                                                   const organizer::ScheduleRecord& Current_Record);

// The message of a reminder chosen from the non-task window's list: the record of that number
// in the file at `path`, or the last record of the file when none has it (empty for an empty
// file). A missing file is the failure 53.
Value Chosen_Non_Task_Message(const std::string& path, const std::string& chosen_entry);

}  // namespace orrivane::reminders
