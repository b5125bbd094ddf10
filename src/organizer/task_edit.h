#pragma once
// Changing a task of the log: the task as the task information window holds it (labels, the
// comments box, the reminder's status and the keepers' values), the record rebuilt from it, the
// rewrite of the log and of the list of task reminders that keeps the record's place, the checks
// of the window that changes the task's times, and the messages of the three windows that edit.
#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/message.h"
#include "core/value.h"
#include "organizer/moment_boxes.h"
#include "organizer/reminder_labels.h"
#include "organizer/schedule_record.h"
#include "organizer/working_files.h"

namespace orrivane::organizer {

// ---- The task as the window holds it ----------------------------------------------------------

// The captions of the reminder's status button: field 20 is 1 for the first, 0 for the second.
inline constexpr std::string_view kReminderOn = "ON";
inline constexpr std::string_view kReminderOff = "OFF";

// The caption the status button takes when it is pressed: "OFF" for "ON", "ON" for "OFF".
std::string_view Swapped_Status(std::string_view caption);
bool Is_Reminder_On(std::string_view caption);

// A moment as the window's labels hold it: the date "March 05, 2001" (month, blank, date as it
// stands, comma, blank, full year) and the time "14:30".
struct MomentLabels {
  std::string Date;
  std::string Time;
  friend bool operator==(const MomentLabels&, const MomentLabels&) = default;
};

// A moment's labels taken apart: month, date and full year by the parser of output dates, the
// hour and minute as the first and the last two characters of the time.
struct ParsedMoment {
  Value Month;
  Value Date;
  Value Year;
  Value Hour;
  Value Minute;
};
struct ParsedElements {
  ParsedMoment From;
  ParsedMoment To;
};
ParsedMoment Parse_Moment_Labels(const MomentLabels& moment);
ParsedElements Generate_Parsed_Elements(const MomentLabels& From, const MomentLabels& To);

// Everything of a task that the task information window holds while the user edits it.
struct TaskInformation {
  std::string Record_Number;  // the caption that names the record at saving
  std::string Task_Name;
  std::string Task_Description;
  std::string Task_Comments;  // line breaks as the log keeps them, CR LF
  std::string Person_Name;
  MomentLabels From;
  MomentLabels To;
  Value Time_Range_Flag;  // the keeper's value; empty when no times were changed in this run
  Value Color_Code;
  std::string Status;  // the caption of the status button
  // The eight reminder values, in the order of ReminderVariables::kNames.
  std::array<Value, ReminderVariables::kNames.size()> Reminder;
};

// The record of the task: field 1 as given (as read from the log), every other field from the
// window. The moments come from their labels, the century and the year within it from the full
// year (its whole hundreds and the rest); an empty range flag is written as nothing.
ScheduleRecord Build_Edited_Record(const Value& Record_Number, const TaskInformation& task);

// ---- Saving -----------------------------------------------------------------------------------

// The four files of a save: the log and the list of task reminders, each with its scratch file.
struct EditFiles {
  std::string Log = kScheduleFile;
  std::string Log_Scratch = kScheduleScratchFile;
  std::string Reminders = kTaskReminderFile;
  std::string Reminders_Scratch = kTaskReminderScratchFile;
};

// Run between the two copies of each rewrite, where a failure would stop it.
struct RewriteSeams {
  std::function<void()> Log_Scratch_Complete;
  std::function<void()> Reminders_Scratch_Complete;
};

// The place of the record to replace: counting from 0, the first record whose field 1, as
// text, equals `Record_Number`; the last record when none does (a record that has vanished since
// it was shown); nothing for a log without records.
std::optional<std::size_t> Record_Position(const std::string& log_path, std::string_view Record_Number);

// Writes the changed task into the log in the place of its record and answers the record as
// written. The record at Record_Position is replaced (field 1 kept as read) in a rewrite through
// the log's scratch file, which stays on the disk. The list of task reminders follows: where a
// record of the task's number (compared as numbers) stands, it is replaced by the new one, or
// dropped when the reminder is off, through its own scratch file, which is deleted at the end;
// where none stands, the new record is appended when the reminder is on. Both scratch files are
// complete before either live file is touched, so a failure at either seam leaves both files as
// they were. An empty log has no record at the position: reading it is the failure 62, after
// the log's scratch file has been opened (emptied), and neither live file has been touched.
ScheduleRecord Save_Changes_To_Record(const TaskInformation& task, const EditFiles& files = {},
                                      const RewriteSeams& seams = {});

// ---- Changing the task's times ------------------------------------------------------------------

// The outcome of Select for one moment: its new labels, or the message that refuses the date.
struct MomentSelection {
  std::optional<MomentLabels> Labels;
  Message Refusal;
};

// The labels of a moment rewritten from the boxes of its frame (the month by its three letters):
// each box that isn't empty replaces its part of the moment now shown, whose century and year
// are the first and the last two digits of its year, so that a single part can be changed. The
// date must exist in its month, Gregorian style; otherwise "Invalid Date" names the month's
// length.
MomentSelection Select_Moment(const MomentLabels& current, const MomentBoxes& boxes);

// A finish before the start, comparing year, month, date, hour and minute in that order; equal
// moments are no refusal.
bool Finish_Before_Start(const MomentLabels& From, const MomentLabels& To);

// The range flag of the changed times: 0 when both dates and both times are equal as texts,
// 1 otherwise.
Value Time_Range_Flag_Of(const MomentLabels& From, const MomentLabels& To);

// ---- Changing the task's identity ------------------------------------------------------------

// The refusal of a new member's name in the identity window: "No Name Entered" for an empty
// name (blanks are a name), the empty message otherwise.
Message New_Member_Refusal(std::string_view name);

// ---- Messages -----------------------------------------------------------------------------------

enum TaskEditMessage : int {
  kConfirmSaveChanges = 1,  // the save button: Yes and No
  kSaveOnClose,             // Close with a changed record: Yes, No and Cancel
  kSaveOnUnload,            // the close box with a changed record: Yes and No
  kEndingBeforeStarting,    // the times window refuses a finish before the start
  kNoNameEntered,           // a new member without a name
};
Message Task_Edit_Message(TaskEditMessage code);

}  // namespace orrivane::organizer
