#pragma once
// The reminders that belong to no task, as NTRemin.dat holds them: five values a record, each on
// a line of its own, no header and no count:
//
//     4                                  NT_Record_Number
//     0                                  NT_Status: 1 on, 0 off
//     "Backup"                           NT_Title
//     "Copy the log to the other disk."  NT_Message
//     "17:45, December 31, 2001"         NT_Time_String: 24-hour time, comma, blank, date
//
// And the texts the reminder windows make of such a moment.
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "core/sequential_file.h"
#include "core/value.h"

namespace orrivane::reminders {

struct NonTaskReminderRecord {
  Value NT_Record_Number;
  Value NT_Status;
  Value NT_Title;
  Value NT_Message;
  Value NT_Time_String;
};

// The records of NTRemin.dat one by one, from the start.
class NonTaskReminderReader {
 public:
  // A missing file is the failure 53.
  explicit NonTaskReminderReader(const std::string& path);
  // Opens the file when it is there; a missing file, or a name that is no plain file, is no
  // failure here: it holds no reminders.
  static std::optional<NonTaskReminderReader> Open_If_Present(const std::string& path);

  // Reads the next record into `record` and answers true; at the end answers false and leaves
  // `record` alone. A truncated record is the failure 62, the values read before it kept.
  bool Next(NonTaskReminderRecord& record);

 private:
  explicit NonTaskReminderReader(SequentialReader file) : file_(std::move(file)) {}
  SequentialReader file_;
};

// Appends a record, five lines, to the file at `path`, creating it if need be.
void Append_Non_Task_Reminder(const std::string& path, const NonTaskReminderRecord& record);

// Hands every record of the file at `path` to `visit`, in file order; a missing file, or a
// name that is no plain file, has none.
void For_Each_Non_Task_Reminder(const std::string& path,
                                const std::function<void(const NonTaskReminderRecord&)>& visit);

// Opens the file at `path` for appending and closes it: a missing file is created empty, a
// present one stays as it is.
void Create_Non_Task_Reminder_File(const std::string& path);

// The number for a new record: one more than the highest NT_Record_Number of the file at
// `path`, 1 for a missing or empty file. Numbers are never compacted, so the number of a
// deleted last record is given out again and that of an earlier one is not.
Value Generate_NTRemin_Record_Number(const std::string& path);

// The record of the file at `path` whose number is `number` (compared as numbers). Reading to a
// record that isn't there reads past the end: the failure 62.
NonTaskReminderRecord Find_Non_Task_Reminder(const std::string& path, const Value& number);

// ---- Rewriting NTRemin.dat in place ---------------------------------------------------------

// What a rewrite puts in the place of a record: the record itself to keep it, another record to
// replace it, nothing to drop it.
using NonTaskReminderEdit = std::function<std::optional<NonTaskReminderRecord>(const NonTaskReminderRecord&)>;

// The rewrite protocol. The file at `path` is created if it is missing; then what `edit` answers
// for each of its records is written to `scratch`, which is replaced and closed when complete;
// `scratch_complete`, when given, runs there; then the scratch file is copied back over `path`
// record by record and deleted. The source keeps its name and is truncated only after the
// scratch file is complete. A file left with no records is empty.
void Rewrite_Non_Task_Reminders(const std::string& path, const std::string& scratch, const NonTaskReminderEdit& edit,
                                const std::function<void()>& scratch_complete = {});

// Puts `record` in the place of the record numbered `number`, which keeps that number (written
// as a number, "1" as 1) whatever `record` carries; the other records stand as they were.
void Replace_Non_Task_Reminder(const std::string& path, const std::string& scratch, const Value& number,
                               const NonTaskReminderRecord& record);

// Leaves the record numbered `number` out of the file.
void Drop_Non_Task_Reminder(const std::string& path, const std::string& scratch, const Value& number);

// ---- The moment of a non-task reminder as text ----------------------------------------------------

// An NT_Time_String cut at its first comma: the time before it, the date behind the comma and
// the blank after it ("14:30", "March 5, 2001"). Without a comma the failure 5.
struct TimeAndDate {
  std::string time;
  std::string date;
};
TimeAndDate Cut_Time_And_Date(const std::string& Time_Date_String);

// The time shown by the reminder window: the 12-hour hour of the text's hour, ":", its minute,
// and the half of the day of hour 0, always "AM": "14:30" shows as "2:30 AM".
std::string Displayed_Non_Task_Time(const std::string& time);

// "2:30 PM, March 5, 2001" to the file's "14:30, March 5, 2001", the hour in two digits.
std::string Cvrt_NTTimeDateStrg_To_24h_Tm(const std::string& Time_Date_String);
// "14:30, March 5, 2001" to "2:30 PM, March 5, 2001".
std::string Cvrt_NTTimeDateStrg_To_12h_Tm(const std::string& Time_Date_String);

// The font size in points of a reminder message of this many characters: 14 up to 12, 12 up
// to 30, 10 up to 65, 8 beyond.
int Message_Font_Size(std::size_t Length_Of_Message);

}  // namespace orrivane::reminders
