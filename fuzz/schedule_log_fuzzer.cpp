// The log record reader over a whole file of any content: task records and person marker
// records, in the 8-line and in the 28-line arrangement, truncated records, stray quotes. The
// log is numbered, copied with its reminder records as opening a log copies it, and the copy is
// read again: it must hold the same records, and a copy of the copy the same bytes. A marker
// record written for each record's member reads back as that member's marker.
#include <cstdint>
#include <string>
#include <vector>

#include "core/sequential_file.h"
#include "fuzz_harness.h"
#include "organizer/log_file.h"

namespace {

using orrivane::RuntimeFailure;
using orrivane::SequentialReader;
using orrivane::Value;
using orrivane::fuzz::Defined;
using orrivane::fuzz::Expect;
using orrivane::organizer::ScheduleRecord;

// Every whole record of a log file, as Copy_Log reads them.
std::vector<ScheduleRecord> Records_Of(const std::string& path) {
  SequentialReader file(path);
  std::vector<ScheduleRecord> records;
  ScheduleRecord record;
  while (!file.Eof()) {
    orrivane::organizer::Schedule_File("Input", file, record);
    static_cast<void>(orrivane::organizer::Is_Person_Marker(record));
    records.push_back(record);
  }
  return records;
}

bool Same_Value(const Value& a, const Value& b) {
  return a.is_empty() == b.is_empty() && a.is_number() == b.is_number() && a.text() == b.text();
}

bool Same_Record(const ScheduleRecord& a, const ScheduleRecord& b) {
  const auto fa = orrivane::organizer::Fields_In_File_Order(a);
  const auto fb = orrivane::organizer::Fields_In_File_Order(b);
  for (std::size_t i = 0; i < fa.size(); ++i) {
    if (!Same_Value(*fa[i], *fb[i])) return false;
  }
  return true;
}

// A double quote inside a text breaks the record that holds it; the format has no written form
// for such a log, and its copy is not expected to read the same.
bool Has_Written_Form(const std::vector<ScheduleRecord>& records) {
  for (const ScheduleRecord& record : records) {
    for (const Value* field : orrivane::organizer::Fields_In_File_Order(record)) {
      if (field->text().find('"') != std::string::npos) return false;
    }
  }
  return true;
}

// A member's marker record, as first written in 28 lines, reads back as a marker of that name.
void Check_Markers(const std::vector<ScheduleRecord>& records) {
  const std::string markers = orrivane::fuzz::Scratch_File("markers.tmp", "");
  for (const ScheduleRecord& record : records) {
    orrivane::organizer::Generate_Person_Marker_Record(markers, record.Person_Name);
  }
  const std::vector<ScheduleRecord> read = Records_Of(markers);
  Expect(read.size() == records.size(), "marker records read back in another number");
  for (std::size_t i = 0; i < read.size(); ++i) {
    Expect(orrivane::organizer::Is_Person_Marker(read[i]), "a marker record reads back as a task");
    Expect(Same_Value(read[i].Person_Name, records[i].Person_Name), "a marker record reads back another name");
  }
}

void Check_Copy(const std::string& log, const std::string& copy, const std::string& reminders) {
  const std::vector<ScheduleRecord> original = Records_Of(log);
  if (!Has_Written_Form(original)) return;
  Check_Markers(original);
  const std::vector<ScheduleRecord> copied = Records_Of(copy);
  Expect(copied.size() == original.size(), "the copy of a log has another number of records");
  for (std::size_t i = 0; i < original.size(); ++i) {
    Expect(Same_Record(original[i], copied[i]), "record " + std::to_string(i + 1) + " reads otherwise in the copy");
  }
  std::vector<ScheduleRecord> expected_reminders;
  for (const ScheduleRecord& record : original) {
    if (record.Reminder_Status == Value(1)) expected_reminders.push_back(record);
  }
  const std::vector<ScheduleRecord> reminder_records = Records_Of(reminders);
  Expect(reminder_records.size() == expected_reminders.size(), "the reminder copy has another number of records");
  for (std::size_t i = 0; i < reminder_records.size(); ++i) {
    Expect(Same_Record(reminder_records[i], expected_reminders[i]), "a reminder record reads otherwise in its copy");
  }
  const std::string second = orrivane::fuzz::Scratch_File("second.sdl", "");
  orrivane::organizer::Copy_Log(copy, second);
  Expect(orrivane::fuzz::Read_File(second) == orrivane::fuzz::Read_File(copy), "a copy of a copy differs from it");
}

void Open_Log(std::string_view content) {
  const std::string log = orrivane::fuzz::Scratch_File("log.sdl", content);
  const std::string copy = orrivane::fuzz::Scratch_File("Schedule.tmp", "");
  const std::string reminders = orrivane::fuzz::Scratch_File("TRemin.tmp", "");
  Defined([&] { static_cast<void>(orrivane::organizer::Generate_Record_Number(log).text()); });
  try {
    orrivane::organizer::Copy_Log(log, copy, reminders);
  } catch (const RuntimeFailure& failure) {
    // A truncated record, or a bare number too large to hold.
    Expect(failure.number() == orrivane::kInputPastEndOfFile || failure.number() == orrivane::kOverflow,
           "copying a log failed with " + std::to_string(failure.number()));
    return;
  }
  Check_Copy(log, copy, reminders);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orrivane::fuzz::Guard_Input([&] { Open_Log(orrivane::fuzz::As_Text(data, size)); });
}
