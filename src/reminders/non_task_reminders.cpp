#include "reminders/non_task_reminders.h"

#include <array>

#include "core/text.h"
#include "organizer/date_time_text.h"

namespace orrivane::reminders {

namespace {

std::array<Value*, 5> Fields_In_File_Order(NonTaskReminderRecord& r) {
  return {&r.NT_Record_Number, &r.NT_Status, &r.NT_Title, &r.NT_Message, &r.NT_Time_String};
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
  for (const Value* field : {&record.NT_Record_Number, &record.NT_Status, &record.NT_Title, &record.NT_Message,
                             &record.NT_Time_String}) {
    file.Write_Line({*field});
  }
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
