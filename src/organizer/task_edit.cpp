#include "organizer/task_edit.h"

#include <cstdint>

#include "core/runtime_failure.h"
#include "core/sequential_file.h"
#include "core/text.h"
#include "core/whole_numbers.h"
#include "engine/vocabulary.h"
#include "organizer/date_time_text.h"
#include "organizer/log_file.h"
#include "organizer/task_list.h"

namespace orrivane::organizer {

namespace {

constexpr char kGregorian[] = "Gregorian";
constexpr std::int64_t kYearsInCentury = 100;
// The hour and the minute of a time label are its first and its last two characters; so are
// the century and the year within it of a full year in the times window.
constexpr int kTwoCharacters = 2;

const CodedMessage kTaskEditMessages[] = {
    {kConfirmSaveChanges,
     {"Save Changes", "Are you sure you want to save these changes to this record?", vbYesNo, vbQuestion}},
    {kSaveOnClose, {"Save Changes", "Save Changes to this record?", vbYesNoCancel, vbQuestion}},
    {kSaveOnUnload, {"Save Changes", "Save changes to this record?", vbYesNo, vbQuestion}},
    {kEndingBeforeStarting,
     Exclamation_Message("Invalid Time", "The 'Ending Time' must be at or later than the 'Starting Time'.")},
    {kNoNameEntered, Exclamation_Message("No Name Entered", "Please enter the name of the new group member.")},
};

// The month's name, " only has ", its length, then this.
constexpr char kInvalidDateTitle[] = "Invalid Date";
constexpr char kFebruary[] = "February";
constexpr char kFebruaryTail[] = " days in it this year.";
constexpr char kOtherMonthTail[] = " days in it.";

// A moment's parts into its six fields, the full year as its whole hundreds and the rest.
void Put_Moment(ScheduleRecord& record, const MomentMembers& fields, const ParsedMoment& moment) {
  const std::int64_t year = moment.Year.whole();
  record.*fields.month = moment.Month;
  record.*fields.date = moment.Date;
  record.*fields.century = Value(static_cast<long long>(Floor_Div(year, kYearsInCentury)));
  record.*fields.year = Value(static_cast<long long>(year - Floor_Div(year, kYearsInCentury) * kYearsInCentury));
  record.*fields.hour = moment.Hour;
  record.*fields.minute = moment.Minute;
}

TaskMoment Moment_Of(const ParsedMoment& moment) {
  return {moment.Year.whole(), engine::Define_Month(moment.Month, "Get Month Number").whole(), moment.Date.whole(),
          moment.Hour.whole(), moment.Minute.whole()};
}

// What the rewrite of the list of task reminders puts in the place of the first record of the
// task's number: the saved record, or nothing when its reminder is off. Every other record stays.
RecordEdit Replace_First_Of_Number(double number, const std::optional<ScheduleRecord>& replacement) {
  return [number, replacement, replaced = false](const ScheduleRecord& record) mutable
         -> std::optional<ScheduleRecord> {
    if (replaced || record.Record_Number.number() != number) return record;
    replaced = true;
    return replacement;
  };
}

bool Holds_Number(const std::string& path, double number) {
  bool found = false;
  For_Each_Record(path, [&](const ScheduleRecord& record) {
    if (!found && record.Record_Number.number() == number) found = true;
  });
  return found;
}

// The list of task reminders made to follow the saved record; the caption's number finds the
// record to replace there.
void Rewrite_Reminders(const ScheduleRecord& saved, std::string_view Record_Number, const EditFiles& files,
                       const std::function<void()>& scratch_complete) {
  const double number = Value(Record_Number).number();
  const bool on = saved.Reminder_Status == Value(1);
  if (Holds_Number(files.Reminders, number)) {
    const std::optional<ScheduleRecord> replacement = on ? std::optional(saved) : std::nullopt;
    Rewrite_Log(files.Reminders, files.Reminders_Scratch, Replace_First_Of_Number(number, replacement),
                scratch_complete);
  } else if (on) {
    Append_Record(files.Reminders, saved);
  }
}

}  // namespace

// ---- The task as the window holds it ----------------------------------------------------------

std::string_view Swapped_Status(std::string_view caption) {
  return Is_Reminder_On(caption) ? kReminderOff : kReminderOn;
}

bool Is_Reminder_On(std::string_view caption) { return caption == kReminderOn; }

ParsedMoment Parse_Moment_Labels(const MomentLabels& moment) {
  const Value date(moment.Date);
  return {Parse_Output_Style_Date(date, "Month"), Parse_Output_Style_Date(date, "Date"),
          Parse_Output_Style_Date(date, "Year"), Value(text::Left(moment.Time, kTwoCharacters)),
          Value(text::Right(moment.Time, kTwoCharacters))};
}

ParsedElements Generate_Parsed_Elements(const MomentLabels& From, const MomentLabels& To) {
  return {Parse_Moment_Labels(From), Parse_Moment_Labels(To)};
}

ScheduleRecord Build_Edited_Record(const Value& Record_Number, const TaskInformation& task) {
  const ParsedElements moments = Generate_Parsed_Elements(task.From, task.To);
  ScheduleRecord record;
  record.Record_Number = Record_Number;
  record.Task_Name = task.Task_Name;
  record.Task_Description = task.Task_Description;
  record.Task_Comments = task.Task_Comments;
  Put_Moment(record, kStartMembers, moments.From);
  record.Time_Range_Flag = task.Time_Range_Flag;
  Put_Moment(record, kFinishMembers, moments.To);
  record.Color_Code = task.Color_Code;
  record.Person_Name = task.Person_Name;
  record.Reminder_Status = Is_Reminder_On(task.Status) ? 1 : 0;
  const auto reminder_fields = Reminder_Fields_Of(record);
  for (std::size_t i = 0; i < reminder_fields.size(); ++i) *reminder_fields[i] = task.Reminder[i];
  return record;
}

// ---- Saving -----------------------------------------------------------------------------------

std::optional<std::size_t> Record_Position(const std::string& log_path, std::string_view Record_Number) {
  std::size_t count = 0;
  std::optional<std::size_t> found;
  For_Each_Record(log_path, [&](const ScheduleRecord& record) {
    if (!found && record.Record_Number.text() == Record_Number) found = count;
    ++count;
  });
  if (found) return found;
  if (count == 0) return std::nullopt;
  return count - 1;
}

ScheduleRecord Save_Changes_To_Record(const TaskInformation& task, const EditFiles& files,
                                      const RewriteSeams& seams) {
  const std::optional<std::size_t> position = Record_Position(files.Log, task.Record_Number);
  if (!position) {
    Empty_File(files.Log_Scratch);
    throw RuntimeFailure(kInputPastEndOfFile);
  }
  ScheduleRecord saved;
  std::size_t index = 0;
  const RecordEdit replace_at_position = [&](const ScheduleRecord& record) -> std::optional<ScheduleRecord> {
    if (index++ != *position) return record;
    saved = Build_Edited_Record(record.Record_Number, task);
    return saved;
  };
  // The reminders are rewritten while the log's scratch file stands complete and the log itself
  // is still untouched: the two live files are then copied back one right after the other.
  Rewrite_Log(files.Log, files.Log_Scratch, replace_at_position, [&] {
    if (seams.Log_Scratch_Complete) seams.Log_Scratch_Complete();
    Rewrite_Reminders(saved, task.Record_Number, files, seams.Reminders_Scratch_Complete);
  });
  Delete_File(files.Reminders_Scratch);
  return saved;
}

// ---- Changing the task's times ------------------------------------------------------------------

MomentSelection Select_Moment(const MomentLabels& current, const MomentBoxes& boxes) {
  const ParsedMoment shown = Parse_Moment_Labels(current);
  const std::string shown_year = shown.Year.text();
  const Value month = boxes.Month.empty() ? shown.Month : engine::Define_Month(boxes.Month, "Get Month Name");
  const Value date = boxes.Date.empty() ? shown.Date : Value(boxes.Date);
  const Value century = boxes.Century.empty() ? Value(text::Left(shown_year, kTwoCharacters)) : Value(boxes.Century);
  const Value year = boxes.Year.empty() ? Value(text::Right(shown_year, kTwoCharacters)) : Value(boxes.Year);
  const Value hour = boxes.Hour.empty() ? shown.Hour : Value(boxes.Hour);
  const Value minute = boxes.Minute.empty() ? shown.Minute : Value(boxes.Minute);
  const Value full_year = century.number() * kYearsInCentury + year.number();

  MomentSelection selection;
  if (engine::Is_It_A_Valid_Date(month, date, full_year, kGregorian) == Value(1)) {
    selection.Labels = MomentLabels{month.text() + " " + date.text() + ", " + full_year.text(),
                                    hour.text() + ":" + minute.text()};
    return selection;
  }
  const Value length = engine::Is_It_A_Valid_Date(month, "Get Max Days", full_year, kGregorian);
  selection.Refusal = Exclamation_Message(kInvalidDateTitle, month.text() + " only has " + length.text() +
                                                                 (month.text() == kFebruary ? kFebruaryTail
                                                                                            : kOtherMonthTail));
  return selection;
}

bool Finish_Before_Start(const MomentLabels& From, const MomentLabels& To) {
  const ParsedElements moments = Generate_Parsed_Elements(From, To);
  return Moment_Of(moments.To) < Moment_Of(moments.From);
}

Value Time_Range_Flag_Of(const MomentLabels& From, const MomentLabels& To) { return From == To ? 0 : 1; }

// ---- Changing the task's identity ------------------------------------------------------------

Message New_Member_Refusal(std::string_view name) {
  return name.empty() ? Task_Edit_Message(kNoNameEntered) : Message{};
}

// ---- Messages -----------------------------------------------------------------------------------

Message Task_Edit_Message(TaskEditMessage code) { return Message_Of(kTaskEditMessages, code); }

}  // namespace orrivane::organizer
