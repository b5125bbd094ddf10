// Deleting a task or a group member, from the Organizer's own lists or from the multi-purpose
// window's: the question, both working files rewritten together, then the lists and labels
// tidied by where the delete came from.
#include <QSignalBlocker>
#include <optional>
#include <string>
#include <string_view>

#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/log_delete.h"
#include "organizer/multipurpose_delete_source.h"
#include "organizer/organizer_callers.h"
#include "organizer/task_list.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/window_registry.h"

namespace orrivane {

namespace {

// The two origins a delete procedure knows: its own button's, whose entry comes from the
// Organizer's list, and the multi-purpose window's, whose entry comes from `list` of that window.
struct DeleteRoute {
  std::string_view own_origin;
  std::string_view multi_purpose_origin;
  organizer::MultiPurposeList organizer::MultiPurposeDeleteSource::* list;
};

constexpr DeleteRoute kTaskRoute{organizer::kCmdDeleteSelectedRecordClick, organizer::kMultiPurposeDelete1,
                                 &organizer::MultiPurposeDeleteSource::Tasks};
constexpr DeleteRoute kMemberRoute{organizer::kCmdDeleteClick, organizer::kMultiPurposeDelete,
                                   &organizer::MultiPurposeDeleteSource::Members};

// Who asked for a delete.
struct DeleteCaller {
  // The multi-purpose window's list, or nothing for the Organizer's own button.
  const organizer::MultiPurposeList* other_list = nullptr;
};

// The caller an origin names; nothing for an origin of neither, or for the multi-purpose window
// while it is not there to name an entry.
std::optional<DeleteCaller> Caller_Of(const DeleteRoute& route, std::string_view Calling_Sub_Origin) {
  if (Calling_Sub_Origin == route.own_origin) return DeleteCaller{};
  if (Calling_Sub_Origin != route.multi_purpose_origin) return std::nullopt;
  const organizer::MultiPurposeDeleteSource& source = organizer::Multi_Purpose_Delete_Source();
  if (!source.Filled()) return std::nullopt;
  return DeleteCaller{&(source.*route.list)};
}

const QListWidgetItem* Chosen_Item(const QListWidget* list) {
  const QList<QListWidgetItem*> chosen = list->selectedItems();
  return chosen.isEmpty() ? nullptr : chosen.front();
}

// The chosen entry's text, "" when none is chosen.
std::string Chosen_Text(const QListWidget* list) {
  const QListWidgetItem* chosen = Chosen_Item(list);
  return chosen != nullptr ? chosen->text().toStdString() : std::string();
}

std::string Chosen_Entry(const DeleteCaller& caller, const QListWidget* own_list) {
  return caller.other_list != nullptr ? caller.other_list->Chosen_Entry() : Chosen_Text(own_list);
}

// Takes every entry equal to `entry` out of the list; answers whether there was one. A chosen
// entry taken out leaves nothing chosen: the list would otherwise choose a neighbour, which the
// user never clicked.
bool Remove_Entries(QListWidget* list, const std::string& entry) {
  const QSignalBlocker no_click(list);
  const QList<QListWidgetItem*> found = list->findItems(QString::fromStdString(entry), Qt::MatchExactly);
  bool chosen_removed = false;
  for (QListWidgetItem* item : found) {
    chosen_removed = chosen_removed || item->isSelected();
    delete list->takeItem(list->row(item));
  }
  if (chosen_removed) list->clearSelection();
  return !found.isEmpty();
}

// The multi-purpose window first loses the entry from its own list; it is put away once the
// Organizer's lists are tidied.
void Remove_From_Caller(const DeleteCaller& caller, const std::string& entry) {
  if (caller.other_list != nullptr) caller.other_list->Remove_Entry(entry);
}

void Put_Caller_Away(const DeleteCaller& caller) {
  if (caller.other_list != nullptr) organizer::Multi_Purpose_Delete_Source().Form_Termination_Routine();
}

bool Confirmed(organizer::DeleteKind kind) {
  return platform::Show_Message(organizer::Delete_Question(kind)) == vbYes;
}

void Drop_From_Working_Log(const organizer::RecordTest& drop) {
  organizer::Drop_From_Log(Window<Form1>().Task_Reminder_Flag(), drop);
}

// The working copy holds a change that no log file has, and no entry of the task list is chosen
// for the buttons that act on one.
void Log_Changed_With_No_Task_Chosen(frmScheduler_Reminder& organizer) {
  organizer.Save_File_Prompt_Flag = 1;
  organizer.cmdDeleteSelectedRecord->setEnabled(false);
  organizer.cmdViewTaskInformation->setEnabled(false);
}

}  // namespace

void frmScheduler_Reminder::Connect_Delete() {
  connect(cmdDeleteSelectedRecord, &QPushButton::clicked, this,
          [this] { Delete_A_Selected_Record(organizer::kCmdDeleteSelectedRecordClick); });
  connect(cmdDelete, &QPushButton::clicked, this, [this] { Delete_A_Group_Member(organizer::kCmdDeleteClick); });
}

void frmScheduler_Reminder::Delete_A_Selected_Record(std::string_view Calling_Sub_Origin) {
  const std::optional<DeleteCaller> caller = Caller_Of(kTaskRoute, Calling_Sub_Origin);
  if (!caller || !Confirmed(organizer::DeleteKind::kTask)) return;
  const std::string entry = Chosen_Entry(*caller, lstScheduleList);
  Drop_From_Working_Log(organizer::Is_Task_Numbered(Value(organizer::Record_Number_Of_Entry(entry))));

  Remove_From_Caller(*caller, entry);
  Remove_Entries(lstScheduleList, entry);
  chosen_task_ = Chosen_Item(lstScheduleList);  // a removed entry can't stand for the choice any longer
  Put_Caller_Away(*caller);
  Refresh_Organizer_Screen(organizer::kDeleteASelectedRecord);
  Window<frmLargeCalendar>().Refresh_Calendar_TaskList();
  Log_Changed_With_No_Task_Chosen(*this);
}

void frmScheduler_Reminder::Delete_A_Group_Member(std::string_view Calling_Sub_Origin) {
  const std::optional<DeleteCaller> caller = Caller_Of(kMemberRoute, Calling_Sub_Origin);
  if (!caller || !Confirmed(organizer::DeleteKind::kMember)) return;
  const std::string member = Chosen_Entry(*caller, lstListOfPeople);
  Drop_From_Working_Log(organizer::Is_Record_Of_Member(member));

  Remove_From_Caller(*caller, member);
  // The refresh only ever adds members to the list: a deleted one is taken out here.
  if (Remove_Entries(lstListOfPeople, member)) {
    lstScheduleList->clear();
    controls::Set_Caption(lblGroupMemberName, "");
  }
  chosen_member_ = Chosen_Item(lstListOfPeople);
  chosen_task_ = Chosen_Item(lstScheduleList);
  Put_Caller_Away(*caller);
  Refresh_Organizer_Screen(organizer::kDeleteAGroupMember);
  // The large calendar may have shown the member's tasks.
  frmLargeCalendar& large = Window<frmLargeCalendar>();
  large.cboShowTaskListFor->clear();
  large.Refresh_Calendar_TaskList();
  Log_Changed_With_No_Task_Chosen(*this);
}

}  // namespace orrivane
