#include "organizer/log_file.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace orrivane::organizer {

namespace {

// Writes what `edit` answers for each record of `from` to `to`, which is replaced. The writer
// is closed when this returns.
void Write_Edited_Copy(const std::string& from, const std::string& to, const RecordEdit& edit) {
  LogReader source(from);
  SequentialWriter target(to);
  ScheduleRecord record;
  while (source.Next(record)) {
    if (const std::optional<ScheduleRecord> kept = edit(record)) Schedule_File("Write", target, *kept);
  }
}

}  // namespace

LogReader::LogReader(const std::string& path) : file_(path) {}

bool LogReader::Next(ScheduleRecord& record) {
  if (file_.Eof()) return false;
  Schedule_File("Input", file_, record);
  return true;
}

void For_Each_Record(const std::string& path, const std::function<void(const ScheduleRecord&)>& visit) {
  LogReader log(path);
  ScheduleRecord record;
  while (log.Next(record)) visit(record);
}

void For_Each_Member(const std::string& path, const std::function<void(const std::string&)>& visit) {
  std::vector<std::string> seen;
  For_Each_Record(path, [&](const ScheduleRecord& record) {
    std::string name = record.Person_Name.text();
    if (std::find(seen.begin(), seen.end(), name) != seen.end()) return;
    visit(name);
    seen.push_back(std::move(name));
  });
}

void Append_Record(const std::string& path, const ScheduleRecord& record) {
  SequentialWriter file(path, SequentialWriter::Mode::Append);
  Schedule_File("Write", file, record);
}

void Generate_Person_Marker_Record(const std::string& path, const Value& Person_Name) {
  SequentialWriter file(path, SequentialWriter::Mode::Append);
  Write_Person_Marker_28_Lines(file, Person_Name);
}

Value Generate_Record_Number(const std::string& path) {
  Value maximum = 0;
  For_Each_Record(path, [&maximum](const ScheduleRecord& record) {
    if (Compare(record.Record_Number, maximum) >= 0) maximum = record.Record_Number;
  });
  return maximum.number() + 1;
}

void Copy_Log(const std::string& from, const std::string& to, const std::optional<std::string>& reminders_to) {
  LogReader source(from);
  SequentialWriter log(to);
  std::optional<SequentialWriter> reminders;
  if (reminders_to) reminders.emplace(*reminders_to);
  ScheduleRecord record;
  while (source.Next(record)) {
    Schedule_File("Write", log, record);
    if (reminders && record.Reminder_Status == Value(1)) Schedule_File("Write", *reminders, record);
  }
}

RecordEdit Drop_Records(std::function<bool(const ScheduleRecord&)> drop) {
  return [drop = std::move(drop)](const ScheduleRecord& record) -> std::optional<ScheduleRecord> {
    if (drop(record)) return std::nullopt;
    return record;
  };
}

void Rewrite_Log(const std::string& source, const std::string& scratch, const RecordEdit& edit,
                 const std::function<void()>& scratch_complete) {
  Write_Edited_Copy(source, scratch, edit);
  if (scratch_complete) scratch_complete();
  Copy_Log(scratch, source);
}

void Empty_Working_Log() {
  Empty_File(kScheduleFile);
  Empty_File(kTaskReminderFile);
}

void Delete_Working_Log() {
  Delete_File(kScheduleFile);
  Delete_File(kTaskReminderFile);
}

}  // namespace orrivane::organizer
