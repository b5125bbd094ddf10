#include "organizer/schedule_record.h"

#include <numeric>
#include <vector>

#include "core/runtime_failure.h"

namespace orrivane::organizer {

namespace {

// Values on each of the 8 lines of a written record.
constexpr std::array<std::size_t, 8> kFieldsPerLine{1, 4, 5, 1, 6, 2, 5, 4};
static_assert(std::accumulate(kFieldsPerLine.begin(), kFieldsPerLine.end(), std::size_t{0}) ==
              kScheduleRecordFields);

template <class Record>
auto Fields_Of(Record& r) {
  return std::array{
      &r.Record_Number,    &r.Task_Name,      &r.Task_Description, &r.Task_Comments,     &r.Start_Month,
      &r.Start_Date,       &r.Start_Century,  &r.Start_Year,       &r.Start_Hour,        &r.Start_Minute,
      &r.Time_Range_Flag,  &r.Finish_Month,   &r.Finish_Date,      &r.Finish_Century,    &r.Finish_Year,
      &r.Finish_Hour,      &r.Finish_Minute,  &r.Color_Code,       &r.Person_Name,       &r.Reminder_Status,
      &r.Date_String[0],   &r.Time_String[0], &r.Date_String[1],   &r.Time_String[1],    &r.Reminder_Interval,
      &r.Interval_Days,    &r.Interval_Hours, &r.Interval_Minutes,
  };
}

void Input_Record(SequentialReader& file, ScheduleRecord& record) {
  for (Value* field : Fields_In_File_Order(record)) *field = file.Input();
}

void Write_Record(SequentialWriter& file, const ScheduleRecord& record) {
  const auto fields = Fields_In_File_Order(record);
  std::size_t next = 0;
  for (const std::size_t count : kFieldsPerLine) {
    std::vector<Value> line;
    for (std::size_t i = 0; i < count; ++i) line.push_back(*fields[next++]);
    file.Write_Line(line);
  }
}

}  // namespace

std::array<Value*, kScheduleRecordFields> Fields_In_File_Order(ScheduleRecord& record) { return Fields_Of(record); }

std::array<const Value*, kScheduleRecordFields> Fields_In_File_Order(const ScheduleRecord& record) {
  return Fields_Of(record);
}

void Schedule_File(const std::string& Action_To_Perform, SequentialReader& file, ScheduleRecord& record) {
  if (Action_To_Perform == "Input") Input_Record(file, record);
  if (Action_To_Perform == "Write") throw RuntimeFailure(kBadFileMode);
}

void Schedule_File(const std::string& Action_To_Perform, SequentialWriter& file, const ScheduleRecord& record) {
  if (Action_To_Perform == "Write") Write_Record(file, record);
  if (Action_To_Perform == "Input") throw RuntimeFailure(kBadFileMode);
}

bool Is_Person_Marker(const ScheduleRecord& record) { return record.Record_Number == Value(-1); }

ScheduleRecord Make_Person_Marker(const Value& Person_Name) {
  ScheduleRecord marker;
  for (Value* field : Fields_In_File_Order(marker)) *field = -1;
  marker.Person_Name = Person_Name;
  return marker;
}

void Write_Person_Marker_28_Lines(SequentialWriter& file, const Value& Person_Name) {
  const ScheduleRecord marker = Make_Person_Marker(Person_Name);
  for (const Value* field : Fields_In_File_Order(marker)) file.Write_Line({*field});
}

}  // namespace orrivane::organizer
