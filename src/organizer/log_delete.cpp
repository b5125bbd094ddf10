#include "organizer/log_delete.h"

#include <utility>

#include "core/sequential_file.h"
#include "organizer/log_file.h"
#include "organizer/working_files.h"

namespace orrivane::organizer {

namespace {

const CodedMessage kDeleteQuestions[] = {
    {static_cast<int>(DeleteKind::kTask), {"Confirm Event Delete", "Delete the selected task?", vbYesNo, vbQuestion}},
    {static_cast<int>(DeleteKind::kMember),
     {"Confirm Entity Delete",
      "You are about to delete an person\\entity from the log. All records for this entity will be deleted! "
      "Are you sure?",
      vbYesNo, vbCritical}},
};

// The indexes of DeleteFiles.
constexpr std::size_t kLog = 0;
constexpr std::size_t kReminders = 1;

}  // namespace

Message Delete_Question(DeleteKind kind) { return Message_Of(kDeleteQuestions, static_cast<int>(kind)); }

RecordTest Is_Task_Numbered(const Value& Record_Number) {
  // 0 is added at each comparison, as the program adds it, so an empty log never evaluates it.
  return [Record_Number](const ScheduleRecord& record) {
    return record.Record_Number.number() == Record_Number.number();
  };
}

RecordTest Is_Record_Of_Member(const std::string& member) {
  return [member](const ScheduleRecord& record) { return record.Person_Name.text() == member; };
}

void Drop_From_Log(reminders::InUseFlag& TRemin_Flag, const RecordTest& drop, const DeleteFiles& files,
                   const ScratchComplete& scratch_complete) {
  const reminders::FlagHold hold(TRemin_Flag);
  const RecordEdit edit = Drop_Records(drop);
  const auto rewrite = [&](std::size_t index, const std::function<void()>& then) {
    Rewrite_Log(files.sources[index], files.scratches[index], edit, [&] {
      if (scratch_complete) scratch_complete(files.scratches[index]);
      if (then) then();
    });
  };
  // The rewrite of the reminders runs between the two copies of the log's rewrite, so that both
  // scratch files are complete before either source is truncated.
  rewrite(kLog, [&] { rewrite(kReminders, {}); });
  for (const std::string& scratch : files.scratches) Delete_File(scratch);
}

}  // namespace orrivane::organizer
