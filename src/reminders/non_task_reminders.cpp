#include "reminders/non_task_reminders.h"

#include <array>

#include "core/runtime_failure.h"
#include "core/text.h"
#include "organizer/date_time_text.h"

namespace orrivane::reminders {

namespace {

std::array<Value*, 5> Fields_In_File_Order(NonTaskReminderRecord& r) {
  return {&r.NT_Record_Number, &r.NT_Status, &r.NT_Title, &r.NT_Message, &r.NT_Time_String};
}

void Write_Non_Task_Reminder(SequentialWriter& file, const NonTaskReminderRecord& record) {
  for (const Value* field : {&record.NT_Record_Number, &record.NT_Status, &record.NT_Title, &record.NT_Message,
                             &record.NT_Time_String}) {
    file.Write_Line({*field});
  }
}

// Record numbers are compared as numbers, 0 added to both sides.
bool Same_Number(const NonTaskReminderRecord& record, const Value& number) {
  return record.NT_Record_Number.plus_zero() == number.plus_zero();
}

std::optional<NonTaskReminderRecord> Keep_Every_Record(const NonTaskReminderRecord& record) { return record; }

// Writes what `edit` answers for each record of `from` to `to`, which is replaced. Both files
// are closed when this returns.
void Write_Edited_Copy(const std::string& from, const std::string& to, const NonTaskReminderEdit& edit) {
  NonTaskReminderReader source(from);
  SequentialWriter target(to);
  NonTaskReminderRecord record;
  while (source.Next(record)) {
    if (const std::optional<NonTaskReminderRecord> kept = edit(record)) Write_Non_Task_Reminder(target, *kept);
  }
}

struct FontStep {
  std::size_t longest;
  int points;
};
constexpr FontStep kFontSteps[] = {{12, 14}, {30, 12}, {65, 10}};
constexpr int kSmallestFont = 8;

}  // namespace

NonTaskReminderReader::NonTaskReminderReader(const std::string& path) : file_(path) {}

std::optional<NonTaskReminderReader> NonTaskReminderReader::Open_If_Present(const std::string& path) {
  if (!File_Exists(path)) return std::nullopt;
  return NonTaskReminderReader(SequentialReader(path));
}

bool NonTaskReminderReader::Next(NonTaskReminderRecord& record) {
  if (file_.Eof()) return false;
  for (Value* field : Fields_In_File_Order(record)) *field = file_.Input();
  return true;
}

void Append_Non_Task_Reminder(const std::string& path, const NonTaskReminderRecord& record) {
  SequentialWriter file(path, SequentialWriter::Mode::Append);
  Write_Non_Task_Reminder(file, record);
}

void For_Each_Non_Task_Reminder(const std::string& path,
                                const std::function<void(const NonTaskReminderRecord&)>& visit) {
  std::optional<NonTaskReminderReader> file = NonTaskReminderReader::Open_If_Present(path);
  if (!file) return;
  NonTaskReminderRecord record;
  while (file->Next(record)) visit(record);
}

Value Generate_NTRemin_Record_Number(const std::string& path) {
  Value maximum = 0;
  For_Each_Non_Task_Reminder(path, [&maximum](const NonTaskReminderRecord& record) {
    if (Compare(record.NT_Record_Number, maximum) >= 0) maximum = record.NT_Record_Number;
  });
  return maximum.number() + 1;
}

NonTaskReminderRecord Find_Non_Task_Reminder(const std::string& path, const Value& number) {
  NonTaskReminderReader file(path);
  NonTaskReminderRecord record;
  while (file.Next(record)) {
    if (Same_Number(record, number)) return record;
  }
  throw RuntimeFailure(kInputPastEndOfFile);
}

void Create_Non_Task_Reminder_File(const std::string& path) {
  SequentialWriter(path, SequentialWriter::Mode::Append).Close();
}

void Rewrite_Non_Task_Reminders(const std::string& path, const std::string& scratch, const NonTaskReminderEdit& edit,
                                const std::function<void()>& scratch_complete) {
  Create_Non_Task_Reminder_File(path);
  Write_Edited_Copy(path, scratch, edit);
  if (scratch_complete) scratch_complete();
  Write_Edited_Copy(scratch, path, Keep_Every_Record);
  Delete_File(scratch);
}

void Replace_Non_Task_Reminder(const std::string& path, const std::string& scratch, const Value& number,
                               const NonTaskReminderRecord& record) {
  NonTaskReminderRecord replacement = record;
  replacement.NT_Record_Number = number.plus_zero();  // a number in the file, bare, however it was chosen
  Rewrite_Non_Task_Reminders(path, scratch, [&](const NonTaskReminderRecord& standing) {
    return Same_Number(standing, number) ? replacement : standing;
  });
}

void Drop_Non_Task_Reminder(const std::string& path, const std::string& scratch, const Value& number) {
  Rewrite_Non_Task_Reminders(path, scratch,
                             [&](const NonTaskReminderRecord& standing) -> std::optional<NonTaskReminderRecord> {
                               if (Same_Number(standing, number)) return std::nullopt;
                               return standing;
                             });
}

TimeAndDate Cut_Time_And_Date(const std::string& Time_Date_String) {
  const long long comma = text::InStr(Time_Date_String, ",");
  std::string time = text::Left(Time_Date_String, comma - 1);
  return {std::move(time), text::Mid(Time_Date_String, comma + 2)};
}

std::string Displayed_Non_Task_Time(const std::string& time) {
  using organizer::Convert_Hour_From_Military_Time;
  const Value hour = organizer::Parse_Output_Style_24h_Time(time, "Hour");
  // The half of the day is asked of an hour that nothing sets: hour 0, "AM".
  const Value never_set_hour;
  return Convert_Hour_From_Military_Time(hour, "Hour").text() + ":" +
         organizer::Parse_Output_Style_24h_Time(time, "Minute").text() + " " +
         Convert_Hour_From_Military_Time(never_set_hour, "Time Of Day").text();
}

std::string Cvrt_NTTimeDateStrg_To_24h_Tm(const std::string& Time_Date_String) {
  using organizer::Parse_Output_Style_12h_Time;
  const TimeAndDate cut = Cut_Time_And_Date(Time_Date_String);
  const Value hour = organizer::Convert_Hour_To_Military_Time(Parse_Output_Style_12h_Time(cut.time, "Hour"),
                                                              Parse_Output_Style_12h_Time(cut.time, "Time Of Day"));
  return text::Pad_Zero(hour.whole(), 2) + ":" + Parse_Output_Style_12h_Time(cut.time, "Minute").text() + ", " + cut.date;
}

std::string Cvrt_NTTimeDateStrg_To_12h_Tm(const std::string& Time_Date_String) {
  using organizer::Convert_Hour_From_Military_Time;
  using organizer::Parse_Output_Style_24h_Time;
  const TimeAndDate cut = Cut_Time_And_Date(Time_Date_String);
  const Value hour = Parse_Output_Style_24h_Time(cut.time, "Hour");
  return Convert_Hour_From_Military_Time(hour, "Hour").text() + ":" +
         Parse_Output_Style_24h_Time(cut.time, "Minute").text() + " " +
         Convert_Hour_From_Military_Time(hour, "Time Of Day").text() + ", " + cut.date;
}

int Message_Font_Size(std::size_t Length_Of_Message) {
  for (const FontStep& step : kFontSteps) {
    if (Length_Of_Message <= step.longest) return step.points;
  }
  return kSmallestFont;
}

}  // namespace orrivane::reminders
