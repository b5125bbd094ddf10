#pragma once
// Deleting a task or a group member from the working log. Schedule.tmp and TRemin.tmp always
// change together, so that no reminder outlives its task: both are rewritten in place, each
// through its scratch file (Schedule1.tmp, TRemin1.tmp), in one pass each, while the flag of
// TRemin.tmp keeps the reminder timer out of both.
#include <array>
#include <functional>
#include <string>

#include "core/message.h"
#include "core/value.h"
#include "organizer/schedule_record.h"
#include "organizer/working_files.h"
#include "reminders/in_use_flags.h"

namespace orrivane::organizer {

// What a delete takes away: one task by its number, or a group member with the marker record
// and every task of the member.
enum class DeleteKind : int { kTask = 1, kMember = 2 };

// The question asked before a delete: for a task "Delete the selected task?", title "Confirm
// Event Delete", Yes and No with the question icon; for a member the warning that all the
// member's records go, title "Confirm Entity Delete", Yes and No with the critical icon.
Message Delete_Question(DeleteKind kind);

using RecordTest = std::function<bool(const ScheduleRecord&)>;

// The task whose Record_Number, with 0 added, equals `Record_Number` with 0 added. Numbers are
// not reused while their record exists, so this is one task at most; a marker record (-1) never.
RecordTest Is_Task_Numbered(const Value& Record_Number);

// Every record whose field 19 equals the member exactly, case and blanks included: the marker
// record and all the member's tasks, so that a member who stands only in the tasks goes too.
RecordTest Is_Record_Of_Member(const std::string& member);

// Runs once a scratch file is complete and closed, before any source is touched; it is handed
// the scratch file's name. A failure thrown here stops the delete with both sources as they were.
using ScratchComplete = std::function<void(const std::string& scratch)>;

// The files a delete rewrites, index 0 the log and 1 its reminders, each with its scratch file:
// the working files of the current folder.
struct DeleteFiles {
  std::array<std::string, 2> sources{kScheduleFile, kTaskReminderFile};
  std::array<std::string, 2> scratches{kScheduleScratchFile, kTaskReminderScratchFile};
};

// Rewrites the log and its reminders without the records for which `drop` holds, holding
// `TRemin_Flag` across both: a flag already held is the failure 55 and touches nothing.
//
// Both scratch files are written before either source is copied back over, the reminders' copy
// back first: a stop before the copying leaves both sources as they were, so the reminders
// never hold one whose task is gone nor lack one whose task stays. Then both scratch files are
// deleted, a failure to delete being ignored.
void Drop_From_Log(reminders::InUseFlag& TRemin_Flag, const RecordTest& drop, const DeleteFiles& files = {},
                   const ScratchComplete& scratch_complete = {});

}  // namespace orrivane::organizer
