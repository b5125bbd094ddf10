#pragma once
// The log as a file: reading it record by record, appending to it, numbering a new task, and
// rewriting it in place. Every operation opens the file, reads or writes it from the start and
// closes it again before it returns, so that nothing of the log is held between two of them and
// a writer is always closed before the next reader of the same file opens it.
#include <functional>
#include <optional>
#include <string>

#include "core/sequential_file.h"
#include "core/value.h"
#include "organizer/schedule_record.h"
#include "organizer/working_files.h"

namespace orrivane::organizer {

// The records of a log one by one, from the start. A missing file is the failure 53.
class LogReader {
 public:
  explicit LogReader(const std::string& path);

  // Reads the next record into `record` and answers true; at the end of the log answers false
  // and leaves `record` alone. A truncated record is the failure 62, and the fields read
  // before it stay in `record`.
  bool Next(ScheduleRecord& record);

 private:
  SequentialReader file_;
};

// Hands every record of the log at `path` to `visit`, in the order of the file.
void For_Each_Record(const std::string& path, const std::function<void(const ScheduleRecord&)>& visit);

// Hands `visit` field 19 of the records of the log at `path`, marker records and tasks alike,
// as it reads them, each name at its first appearance only. The log holds its members nowhere
// else.
void For_Each_Member(const std::string& path, const std::function<void(const std::string&)>& visit);

// Appends a record, in the 8-line arrangement, to the log at `path` (creating it if need be).
void Append_Record(const std::string& path, const ScheduleRecord& record);

// Appends a marker record, as first written, to the log at `path` (creating it if need be).
// Whether the member is already in the log is the caller's concern.
void Generate_Person_Marker_Record(const std::string& path, const Value& Person_Name);

// The number for a new task: one more than the highest Record_Number of the log at `path`,
// 1 for a log without tasks. Marker records (-1) never count, numbers are never compacted, so
// the number of a deleted last task is given out again and that of an earlier one is not.
Value Generate_Record_Number(const std::string& path);

// Copies a log record by record, which writes every marker record in the 8-line arrangement:
// every record to `to`, and those with Reminder_Status 1 to `reminders_to` as well when it is
// given (a marker's Reminder_Status is -1, so markers never go there). `to` and `reminders_to`
// are replaced. A truncated record is the failure 62, and what was copied before it stays.
void Copy_Log(const std::string& from, const std::string& to,
              const std::optional<std::string>& reminders_to = std::nullopt);

// ---- Rewriting a log in place -----------------------------------------------------------------

// What a rewrite puts in the place of a record of the source: the record itself to keep it,
// another record to replace it, nothing to drop it.
using RecordEdit = std::function<std::optional<ScheduleRecord>(const ScheduleRecord& record)>;

// Keeps every record but those for which `drop` holds.
RecordEdit Drop_Records(std::function<bool(const ScheduleRecord&)> drop);

// The rewrite protocol. First the source is read record by record and what `edit` answers for
// each record is written to the scratch file, which is replaced and closed when complete. Then
// the scratch file is copied back over the source, record by record. The source keeps its name
// and place and is never renamed; it is truncated only after the scratch file is complete, so
// an end between the two copies leaves it as it was. `scratch_complete`, when given, runs
// between the two copies (where a failure would stop the rewrite). The scratch file is left on
// the disk: deleting it, or not, is the caller's part.
void Rewrite_Log(const std::string& source, const std::string& scratch, const RecordEdit& edit,
                 const std::function<void()>& scratch_complete = {});

// ---- The working copy -------------------------------------------------------------------------

// Opens Schedule.tmp and TRemin.tmp for output and closes them, which creates them empty or
// empties them: what the start of the program does without looking at them.
void Empty_Working_Log();

// Deletes Schedule.tmp and TRemin.tmp at an orderly end. A file that is not there is no
// failure, and the second is tried whatever became of the first.
void Delete_Working_Log();

}  // namespace orrivane::organizer
