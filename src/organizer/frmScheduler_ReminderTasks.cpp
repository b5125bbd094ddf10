// The task list of one group member, its date filter, and showing one task.
#include <QStringList>
#include <optional>

#include "calendar/frmLargeCalendar.h"
#include "core/runtime_failure.h"
#include "organizer/frmFilterTasksEventsDisplayed.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/frmTaskInformation.h"
#include "organizer/organizer_callers.h"
#include "organizer/task_list.h"
#include "organizer/working_files.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/platform.h"
#include "platform/window_registry.h"
#include "reminders/frmMultiPurposeForm.h"
#include "reminders/frmReminderWindow.h"
#include "reminders/reminder_tick.h"

namespace orrivane {

namespace {

using controls::Caption;

// The index handed over by the callers that have no control array.
const Value kNoIndex("N\\A");

// The minutes of a fresh filter's bounds: the present hour from its first to its last minute.
constexpr char kFreshAfterMinute[] = "00";
constexpr char kFreshBeforeMinute[] = "59";

// A check box's value as the program reads it: 0 off, 1 on, 2 greyed.
int Check_Value(const QCheckBox* box) {
  switch (box->checkState()) {
    case Qt::Unchecked: return 0;
    case Qt::Checked: return 1;
    case Qt::PartiallyChecked: return 2;
  }
  return 0;
}

void Set_Check_Value(QCheckBox* box, Qt::CheckState state) {
  // Greyed is set by the program only: the user's clicks swap on and off.
  box->setTristate(state == Qt::PartiallyChecked);
  box->setCheckState(state);
}

// ---- Where View_Task_Event_Information takes the record number from ------------------------------

using NumberSource = std::optional<Value> (*)(frmScheduler_Reminder&, const Value& index);

// The entry the user chose, nothing where none is: an entry marked current by the focus alone
// is not chosen.
const QListWidgetItem* Chosen_Entry(const QListWidget* list) {
  const QList<QListWidgetItem*> chosen = list->selectedItems();
  return chosen.isEmpty() ? nullptr : chosen.front();
}

std::optional<Value> Number_Of_Entry(const QString& entry) {
  return Value(organizer::Record_Number_Of_Entry(entry.toStdString()));
}

std::optional<Value> Selected_Task_List_Entry(frmScheduler_Reminder& organizer, const Value&) {
  const QListWidgetItem* selected = Chosen_Entry(organizer.lstScheduleList);
  if (selected == nullptr) return std::nullopt;
  return Number_Of_Entry(selected->text());
}

std::optional<Value> Chosen_Appointment(frmScheduler_Reminder&, const Value& index) {
  const auto& lists = Window<frmLargeCalendar>().cboAppointments;
  const std::int64_t k = index.whole();
  if (k < 0 || k >= static_cast<std::int64_t>(lists.size())) throw RuntimeFailure(kSubscriptOutOfRange);
  return Number_Of_Entry(lists[static_cast<std::size_t>(k)]->currentText());
}

// The task that owns a chart cell; for an empty cell the message that names the row's member.
std::optional<Value> Chart_Cell_Owner(frmScheduler_Reminder& organizer, const Value& index) {
  const int cell = static_cast<int>(index.whole());
  const Value owner = organizer.Chart_History_List_Content_Tracker(cell, "Get");
  if (owner != Value(-1)) return owner;
  const QLabel* row = organizer.lblChartGroupMemberName.at(static_cast<std::size_t>(organizer::Chart_Row_Of_Cell(cell)));
  platform::Show_Message(organizer::No_Event_Record_Message(Caption(row)));
  return std::nullopt;
}

// The task chosen in the multi-purpose window's list; nothing where none is chosen.
std::optional<Value> Multi_Purpose_Task(frmScheduler_Reminder&, const Value&) {
  const std::string chosen = Window<frmMultiPurposeForm>().Chosen_Task();
  if (chosen.empty()) return std::nullopt;
  return Number_Of_Entry(QString::fromStdString(chosen));
}

// The task of the reminder window: the chosen entry of its list where the list stands, else the
// task it shows alone.
std::optional<Value> Reminder_Window_Task(frmScheduler_Reminder&, const Value&) {
  frmReminderWindow& reminder = Window<frmReminderWindow>();
  if (reminder.cboTaskList->isVisibleTo(&reminder)) {
    return reminders::Number_Before_First_Blank(controls::Text_Of(reminder.cboTaskList));
  }
  return reminder.Store_Current_Task_Record_Number("No Record Number Supplied");
}

struct NumberRoute {
  std::string_view origin;
  NumberSource source;
};

// The origins whose windows are part of the program; any other origin selects nothing.
constexpr NumberRoute kNumberRoutes[] = {
    {organizer::kLstScheduleListDblClick, Selected_Task_List_Entry},
    {organizer::kCmdViewTaskInformationClick, Selected_Task_List_Entry},
    {organizer::kCboAppointmentsClick, Chosen_Appointment},
    {organizer::kLblChartHistoryListClick, Chart_Cell_Owner},
    {organizer::kReminderWindowMoreDetails, Reminder_Window_Task},
    {organizer::kMultiPurposeDelete1, Multi_Purpose_Task},
};

}  // namespace

void frmScheduler_Reminder::On_Choice(QListWidget* list, const QListWidgetItem*& chosen,
                                      const std::function<void()>& click) {
  connect(list, &QListWidget::itemSelectionChanged, this, [list, &chosen, click] {
    const QListWidgetItem* now = Chosen_Entry(list);
    if (now == chosen) return;
    chosen = now;
    if (now != nullptr) click();
  });
}

void frmScheduler_Reminder::Connect_Tasks() {
  // A list's click is a choice of an entry, by the mouse or by the arrow keys. Emptying the list,
  // and the focus coming to it by Tab (which marks an entry current without choosing it), are no
  // clicks.
  On_Choice(lstListOfPeople, chosen_member_, [this] { lstListOfPeople_Click(); });
  connect(cmdShowTaskList, &QPushButton::clicked, this, [this] { cmdShowTaskList_Click(); });
  On_Choice(lstScheduleList, chosen_task_, [this] { lstScheduleList_Click(); });
  connect(lstScheduleList, &QListWidget::itemDoubleClicked, this, [this] { lstScheduleList_DblClick(); });
  connect(cmdViewTaskInformation, &QPushButton::clicked, this, [this] { cmdViewTaskInformation_Click(); });
  connect(optDisplayAll, &QRadioButton::toggled, this, [this](bool set) {
    if (set) optDisplayAll_Click();
  });
  connect(optDisplayOnlyFilteredTasks, &QRadioButton::toggled, this, [this](bool set) {
    if (set) optDisplayOnlyFilteredTasks_Click();
  });
  connect(chkStartTimeDate, &QCheckBox::clicked, this, [this] { chkStartTimeDate_Click(); });
  connect(chkFinishTimeDate, &QCheckBox::clicked, this, [this] { chkFinishTimeDate_Click(); });
  connect(cmdSelect, &QPushButton::clicked, this, [this] { cmdSelect_Click(); });
}

// ---- The task list ------------------------------------------------------------------------------

void frmScheduler_Reminder::Display_A_Persons_TaskList() {
  lstScheduleList->clear();
  const QListWidgetItem* selected = Chosen_Entry(lstListOfPeople);
  const std::string member = selected != nullptr ? selected->text().toStdString() : std::string();
  controls::Set_Caption(lblGroupMemberName, member);
  std::optional<organizer::TaskFilter> filter;
  if (optDisplayOnlyFilteredTasks->isChecked()) {
    filter = organizer::Task_Filter_Of(Caption(lblAfterRange), Caption(lblBeforeRange), Check_Value(chkStartTimeDate),
                                       Check_Value(chkFinishTimeDate));
  }
  QStringList entries;
  for (const std::string& entry : organizer::Member_Task_Entries(organizer::kScheduleFile, member, filter)) {
    entries.append(QString::fromStdString(entry));
  }
  lstScheduleList->addItems(entries);
  // No entry is selected now.
  cmdDeleteSelectedRecord->setEnabled(false);
  cmdViewTaskInformation->setEnabled(false);
}

void frmScheduler_Reminder::lstListOfPeople_Click() {
  Display_A_Persons_TaskList();
  cmdDelete->setEnabled(true);
}

void frmScheduler_Reminder::cmdShowTaskList_Click() { Display_A_Persons_TaskList(); }

void frmScheduler_Reminder::lstScheduleList_Click() {
  cmdDeleteSelectedRecord->setEnabled(true);
  cmdViewTaskInformation->setEnabled(true);
}

void frmScheduler_Reminder::lstScheduleList_DblClick() {
  View_Task_Event_Information(organizer::kLstScheduleListDblClick, kNoIndex);
}

void frmScheduler_Reminder::cmdViewTaskInformation_Click() {
  View_Task_Event_Information(organizer::kCmdViewTaskInformationClick, kNoIndex);
}

// ---- The filter ---------------------------------------------------------------------------------

void frmScheduler_Reminder::optDisplayAll_Click() {
  for (QCheckBox* box : {chkStartTimeDate, chkFinishTimeDate}) Set_Check_Value(box, Qt::PartiallyChecked);
  // The bounds stay in their captions for the next time the filter is set.
  for (QWidget* control : std::initializer_list<QWidget*>{chkStartTimeDate, chkFinishTimeDate, cmdSelect, lblAfter,
                                                          lblAfterRange, lblBefore, lblBeforeRange,
                                                          fraDisplayOnlyTasksEvents}) {
    control->setEnabled(false);
  }
}

void frmScheduler_Reminder::optDisplayOnlyFilteredTasks_Click() {
  for (QCheckBox* box : {chkStartTimeDate, chkFinishTimeDate}) Set_Check_Value(box, Qt::Checked);
  for (QWidget* control : std::initializer_list<QWidget*>{fraDisplayOnlyTasksEvents, chkStartTimeDate,
                                                          chkFinishTimeDate, cmdSelect, lblAfter, lblAfterRange,
                                                          lblBefore, lblBeforeRange}) {
    control->setEnabled(true);
  }
  // A fresh filter covers the present hour of today.
  const bool fresh_after = Caption(lblAfterRange).empty();
  const bool fresh_before = Caption(lblBeforeRange).empty();
  if (!fresh_after && !fresh_before) return;
  const platform::ClockReading now = platform::Machine().Read_Clock();
  if (fresh_after) {
    controls::Set_Caption(lblAfterRange, organizer::Present_Hour_Bound(now.date, now.time, kFreshAfterMinute));
  }
  if (fresh_before) {
    controls::Set_Caption(lblBeforeRange, organizer::Present_Hour_Bound(now.date, now.time, kFreshBeforeMinute));
  }
}

// At least one of the two stays on.
void frmScheduler_Reminder::chkStartTimeDate_Click() {
  if (chkFinishTimeDate->checkState() == Qt::Unchecked) chkStartTimeDate->setCheckState(Qt::Checked);
}

void frmScheduler_Reminder::chkFinishTimeDate_Click() {
  if (chkStartTimeDate->checkState() == Qt::Unchecked) chkFinishTimeDate->setCheckState(Qt::Checked);
}

void frmScheduler_Reminder::cmdSelect_Click() { controls::Show_In_Front(Window<frmFilterTasksEventsDisplayed>()); }

// ---- Showing a task -----------------------------------------------------------------------------

void frmScheduler_Reminder::View_Task_Event_Information(std::string_view Calling_Procedure,
                                                         const Value& Control_Array_Index) {
  for (const NumberRoute& route : kNumberRoutes) {
    if (route.origin != Calling_Procedure) continue;
    const std::optional<Value> number = route.source(*this, Control_Array_Index);
    if (!number) return;
    Window<frmTaskInformation>().Show_Task_Record(organizer::Find_Task_Record(organizer::kScheduleFile, *number));
    return;
  }
}

}  // namespace orrivane
