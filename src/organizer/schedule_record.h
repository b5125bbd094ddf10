#pragma once
// The record of the Organizer's log, its reader and its writer (organizer/log_file.h has the
// operations on whole files).
//
// A log is a flat file of 28-value records, task records and person marker records mixed, in
// order of entry, with no header, count or trailer: an empty log is an empty file. A record is
// written in 8 lines of 1, 4, 5, 1, 6, 2, 5 and 4 values; a person marker record as first
// written stands in 28 lines of one value. The reader takes the next value wherever a line
// ends, so both arrangements read the same.
#include <array>
#include <string>

#include "core/sequential_file.h"
#include "core/value.h"

namespace orrivane::organizer {

// One task, or a person marker record: Record_Number -1, the member's name in Person_Name and
// -1 in every other field. Fields are loosely typed, as they stand in the file: "05" stays a
// text, 20 a number. Declared in the order of the file except for the reminder dates and
// times, which the file interleaves: Date_String[0], Time_String[0], Date_String[1],
// Time_String[1].
struct ScheduleRecord {
  Value Record_Number;
  Value Task_Name;
  Value Task_Description;
  Value Task_Comments;
  Value Start_Month;
  Value Start_Date;
  Value Start_Century;
  Value Start_Year;
  Value Start_Hour;
  Value Start_Minute;
  Value Time_Range_Flag;
  Value Finish_Month;
  Value Finish_Date;
  Value Finish_Century;
  Value Finish_Year;
  Value Finish_Hour;
  Value Finish_Minute;
  Value Color_Code;
  Value Person_Name;
  Value Reminder_Status;
  Value Date_String[2];
  Value Time_String[2];
  Value Reminder_Interval;
  Value Interval_Days;
  Value Interval_Hours;
  Value Interval_Minutes;
};

inline constexpr std::size_t kScheduleRecordFields = 28;

// The six fields of one moment of a task, as members of the record: the start (fields 5 to 10)
// or the finish (12 to 17).
struct MomentMembers {
  Value ScheduleRecord::* month;
  Value ScheduleRecord::* date;
  Value ScheduleRecord::* century;
  Value ScheduleRecord::* year;
  Value ScheduleRecord::* hour;
  Value ScheduleRecord::* minute;
};
inline constexpr MomentMembers kStartMembers{&ScheduleRecord::Start_Month,   &ScheduleRecord::Start_Date,
                                             &ScheduleRecord::Start_Century, &ScheduleRecord::Start_Year,
                                             &ScheduleRecord::Start_Hour,    &ScheduleRecord::Start_Minute};
inline constexpr MomentMembers kFinishMembers{&ScheduleRecord::Finish_Month,   &ScheduleRecord::Finish_Date,
                                              &ScheduleRecord::Finish_Century, &ScheduleRecord::Finish_Year,
                                              &ScheduleRecord::Finish_Hour,    &ScheduleRecord::Finish_Minute};

// The kinds of reminder, as Reminder_Interval holds them: one message at one moment, a series
// counted forward from its first moment, a series counted backward from its last.
inline constexpr int kOnlyOneReminder = 1;
inline constexpr int kSeriesFromFirstMoment = 2;
inline constexpr int kSeriesToLastMoment = 3;

// The 28 fields in the order the file holds them.
std::array<Value*, kScheduleRecordFields> Fields_In_File_Order(ScheduleRecord& record);
std::array<const Value*, kScheduleRecordFields> Fields_In_File_Order(const ScheduleRecord& record);

// The record's reader: "Input" reads the next 28 values of the file into the record, wherever
// the lines end; reading past the end is the failure 62, and the fields read before it stay.
// "Write" asked of a file open for reading is the failure 54 (Bad file mode); any other verb
// does nothing.
void Schedule_File(const std::string& Action_To_Perform, SequentialReader& file, ScheduleRecord& record);

// The record's writer: "Write" writes the record in the 8-line arrangement. "Input" asked of
// a file open for writing is the failure 54 (Bad file mode); any other verb does nothing.
void Schedule_File(const std::string& Action_To_Perform, SequentialWriter& file, const ScheduleRecord& record);

// Record_Number -1 tells a person marker record; anything else is a task.
bool Is_Person_Marker(const ScheduleRecord& record);

// The marker record of a group member: -1 everywhere but the name.
ScheduleRecord Make_Person_Marker(const Value& Person_Name);

// A marker record as first written: 18 lines "-1", the quoted name, 9 lines "-1".
void Write_Person_Marker_28_Lines(SequentialWriter& file, const Value& Person_Name);

}  // namespace orrivane::organizer
