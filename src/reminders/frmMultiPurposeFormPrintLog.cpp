// The multi-purpose window's frame 5 (fraPrintLog): what to print of the log, the chart's day and
// period, and the group members whose pages are printed; and the printing, one print job a press
// of Print.
#include <QAbstractItemModel>

#include "organizer/frmScheduler_Reminder.h"
#include "organizer/frmSelectTimePeriod.h"
#include "organizer/organizer_callers.h"
#include "organizer/working_files.h"
#include "platform/controls.h"
#include "platform/window_registry.h"
#include "reminders/MultiPurposeFrames.h"
#include "reminders/frmMultiPurposeForm.h"
#include "reminders/frmPrintLogChart.h"
#include "reminders/frmPrintTaskList.h"
#include "reminders/print_log.h"

namespace orrivane {

namespace {

using multi_purpose_frames::Frame_Height;
using multi_purpose_frames::Frame_Width;
using multi_purpose_frames::kButtonHeight;
using multi_purpose_frames::kButtonWidth;
using multi_purpose_frames::kMargin;
using multi_purpose_frames::kRowHeight;
using multi_purpose_frames::Make_Placed;

// ---- Geometry, in pixels --------------------------------------------------------------------------
constexpr int kWidth5 = Frame_Width(reminders::kPrintLogFrame);
constexpr int kHeight5 = Frame_Height(reminders::kPrintLogFrame);
constexpr int kInnerWidth = kWidth5 - 2 * kMargin;     // the three group boxes
constexpr int kBoxInnerWidth = kInnerWidth - 2 * kMargin;  // what stands in a group box
constexpr int kGroupTitle = 20;                        // a group box's caption above its content
constexpr int kItemsTop = 4;
constexpr int kItemsHeight = kGroupTitle + 2 * 24 + 6;
constexpr int kChartTop = kItemsTop + kItemsHeight + 4;
constexpr int kChartHeight = kGroupTitle + 2 * 26 + 6;
constexpr int kMembersTop = kChartTop + kChartHeight + 4;
constexpr int kBottomRow = kHeight5 - kMargin - kButtonHeight;
constexpr int kMembersHeight = kBottomRow - kMargin - kMembersTop;
constexpr int kListWidth = (kBoxInnerWidth - kMargin) / 2;
constexpr int kSecondListLeft = kMargin + kListWidth + kMargin;
constexpr int kMemberButtonsTop = kMembersHeight - kMargin - kButtonHeight;
constexpr int kListHeight = kMemberButtonsTop - 6 - kGroupTitle;
constexpr int kValueLeft = kMargin + 56;
constexpr int kChangeLeft = kBoxInnerWidth + kMargin - 84;

}  // namespace

void frmMultiPurposeForm::Build_Print_Log_Frame() {
  using F = frmMultiPurposeForm;
  QWidget* frame = fraPrintLog;
  Make_Placed<QGroupBox>(*this, frame,
                         {{&F::fraSelectItems_5, "fraSelectItems_5", "Select Items To Print",
                           {kMargin, kItemsTop, kInnerWidth, kItemsHeight}},
                          {&F::fraPrintTaskChart_5, "fraPrintTaskChart_5", "Print Task Chart For:",
                           {kMargin, kChartTop, kInnerWidth, kChartHeight}},
                          {&F::Frame2, "Frame2", "Select Group Members",
                           {kMargin, kMembersTop, kInnerWidth, kMembersHeight}}});
  Make_Placed<QCheckBox>(*this, fraSelectItems_5,
                         {{&F::chkTaskChart_5, "chkTaskChart_5", "Print Task Chart for the Selected Period",
                           {kMargin, kGroupTitle, kBoxInnerWidth, 24}},
                          {&F::chkTaskList_5, "chkTaskList_5", "Print Task List for Each Selected Group Member",
                           {kMargin, kGroupTitle + 24, kBoxInnerWidth, 24}}});
  controls::Fit_Captions({chkTaskChart_5, chkTaskList_5});
  chkTaskChart_5->setChecked(true);
  chkTaskList_5->setChecked(true);
  Make_Placed<QLabel>(*this, fraPrintTaskChart_5,
                      {{&F::lblDateLabel_5, "lblDateLabel_5", "Date:", {kMargin, kGroupTitle + 3, 52, kRowHeight}},
                       {&F::lblDate_5, "lblDate_5", nullptr,
                        {kValueLeft, kGroupTitle + 3, kChangeLeft - kValueLeft - 4, kRowHeight}},
                       {&F::lblPeriodLabel_5, "lblPeriodLabel_5", "Period:",
                        {kMargin, kGroupTitle + 29, 52, kRowHeight}},
                       {&F::lblTimePeriod_5, "lblTimePeriod_5", nullptr,
                        {kValueLeft, kGroupTitle + 29, kChangeLeft - kValueLeft - 4, kRowHeight}}});
  Make_Placed<QPushButton>(*this, fraPrintTaskChart_5,
                           {{&F::cmdChange_5, "cmdChange_5", "Change...", {kChangeLeft, kGroupTitle + 12, 84, kButtonHeight}}});
  Make_Placed<QListWidget>(*this, Frame2,
                           {{&F::lstListOfPeople_5, "lstListOfPeople_5", nullptr,
                             {kMargin, kGroupTitle, kListWidth, kListHeight}},
                            {&F::lstSelectedPeople_5, "lstSelectedPeople_5", nullptr,
                             {kSecondListLeft, kGroupTitle, kListWidth, kListHeight}}});
  Make_Placed<QPushButton>(*this, Frame2,
                           {{&F::cmdSelectAll_5, "cmdSelectAll_5", "Select All",
                             {kMargin, kMemberButtonsTop, kListWidth, kButtonHeight}},
                            {&F::cmdDeSelectAll_5, "cmdDeSelectAll_5", "Deselect All",
                             {kSecondListLeft, kMemberButtonsTop, kListWidth, kButtonHeight}}});
  Make_Placed<QPushButton>(*this, frame,
                           {{&F::cmdPrint_5, "cmdPrint_5", "Print",
                             {kWidth5 - 2 * (kMargin + kButtonWidth), kBottomRow, kButtonWidth, kButtonHeight}}});
  cmdPrint_5->setEnabled(false);  // until a member is selected
}

// ---- Choosing what to print ---------------------------------------------------------------------

namespace {

// The check mark of an entry of lstListOfPeople_5 as the frame last knew it, so that only a
// change of the mark counts as the user's checking.
constexpr int kKnownCheck = Qt::UserRole;

bool Checked(const QListWidgetItem* item) { return item->checkState() == Qt::Checked; }

bool Holds(const QListWidget* list, const QString& text) {
  return !list->findItems(text, Qt::MatchExactly | Qt::MatchCaseSensitive).isEmpty();
}

void Remove_Every(QListWidget* list, const QString& text) {
  for (QListWidgetItem* item : list->findItems(text, Qt::MatchExactly | Qt::MatchCaseSensitive)) {
    delete list->takeItem(list->row(item));
  }
}

}  // namespace

void frmMultiPurposeForm::Connect_Print_Log_Frame() {
  connect(chkTaskChart_5, &QCheckBox::clicked, this, [this] { chkTaskChart_5_Click(); });
  connect(chkTaskList_5, &QCheckBox::clicked, this, [this] { chkTaskList_5_Click(); });
  connect(lstListOfPeople_5->model(), &QAbstractItemModel::dataChanged, this,
          [this](const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) {
            if (!roles.contains(Qt::CheckStateRole)) return;
            for (int item = first.row(); item <= last.row(); ++item) lstListOfPeople_5_ItemCheck(item);
          });
  connect(cmdSelectAll_5, &QPushButton::clicked, this, [this] { cmdSelectAll_5_Click(); });
  connect(cmdDeSelectAll_5, &QPushButton::clicked, this, [this] { cmdDeSelectAll_5_Click(); });
  connect(cmdChange_5, &QPushButton::clicked, this, [this] { cmdChange_5_Click(); });
  connect(cmdPrint_5, &QPushButton::clicked, this, [this] { cmdPrint_5_Click(); });
}

void frmMultiPurposeForm::Add_Print_Log_Member(const std::string& member) {
  const QString name = QString::fromStdString(member);
  if (Holds(lstListOfPeople_5, name)) return;
  // Made checkable before it joins the list, so that joining it is no checking.
  auto* item = new QListWidgetItem(name);
  item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
  item->setCheckState(Qt::Unchecked);
  item->setData(kKnownCheck, false);
  lstListOfPeople_5->addItem(item);
}

void frmMultiPurposeForm::chkTaskChart_5_Click() {
  if (!chkTaskList_5->isChecked()) chkTaskChart_5->setChecked(true);
  const bool chart = chkTaskChart_5->isChecked();
  for (QWidget* control : std::initializer_list<QWidget*>{fraPrintTaskChart_5, cmdChange_5, lblDate_5, lblDateLabel_5,
                                                          lblTimePeriod_5, lblPeriodLabel_5}) {
    control->setEnabled(chart);
  }
}

void frmMultiPurposeForm::chkTaskList_5_Click() {
  if (!chkTaskChart_5->isChecked()) chkTaskList_5->setChecked(true);
}

void frmMultiPurposeForm::lstListOfPeople_5_ItemCheck(int Item) {
  QListWidgetItem* item = lstListOfPeople_5->item(Item);
  const bool checked = Checked(item);
  if (item->data(kKnownCheck).toBool() == checked) return;
  item->setData(kKnownCheck, checked);
  if (checked) {
    lstSelectedPeople_5->addItem(item->text());
    cmdPrint_5->setEnabled(true);
    return;
  }
  Remove_Every(lstSelectedPeople_5, item->text());
  if (lstSelectedPeople_5->count() == 0) cmdPrint_5->setEnabled(false);
}

void frmMultiPurposeForm::cmdSelectAll_5_Click() {
  for (int row = 0; row < lstListOfPeople_5->count(); ++row) {
    QListWidgetItem* item = lstListOfPeople_5->item(row);
    item->setCheckState(Qt::Checked);
    if (!Holds(lstSelectedPeople_5, item->text())) lstSelectedPeople_5->addItem(item->text());
  }
  cmdPrint_5->setEnabled(true);
}

void frmMultiPurposeForm::cmdDeSelectAll_5_Click() {
  for (int row = 0; row < lstListOfPeople_5->count(); ++row) lstListOfPeople_5->item(row)->setCheckState(Qt::Unchecked);
  lstSelectedPeople_5->clear();
  cmdPrint_5->setEnabled(false);
}

void frmMultiPurposeForm::cmdChange_5_Click() {
  Window<frmSelectTimePeriod>().Open_For(kSelectTimePeriodToPrintCaption, kChangeButtonCaption);
}

// ---- Printing ------------------------------------------------------------------------------------

int frmMultiPurposeForm::Store_Next_Name_Position_5(const std::string& Action_To_Perform, int Value) {
  if (Action_To_Perform == "Put") next_name_position_5_ = Value;
  return next_name_position_5_;
}

void frmMultiPurposeForm::Enable_Print_TaskList_Controls(bool Value, int Element) {
  const frmPrintTaskList& page = Window<frmPrintTaskList>();
  for (int row = 0; row < frmPrintTaskList::kRows; ++row) {
    if (Element != -1 && row != Element) continue;
    for (QWidget* control : page.Row_Controls(row)) control->setVisible(Value);
  }
}

void frmMultiPurposeForm::cmdPrint_5_Click() {
  const bool chart = chkTaskChart_5->isChecked();
  const bool task_lists = chkTaskList_5->isChecked();
  const std::optional<organizer::DateAndTime> chart_moment =
      chart ? reminders::Print_Chart_Moment(controls::Caption(lblDate_5), controls::Caption(lblTimePeriod_5))
            : std::nullopt;
  platform::WindowPrintJob job(reminders::Print_Log_Document_Name(chart_moment, task_lists));
  if (chart) Print_Chart_Sheets(job);
  if (task_lists) Print_Task_List_Sheets(job);
}

// The Organizer's chart pass draws each sheet's members from the position kept here.
void frmMultiPurposeForm::Print_Chart_Sheets(platform::WindowPrintJob& job) {
  for (const reminders::Sheet& sheet : reminders::Sheets_Of(lstSelectedPeople_5->count(), reminders::kChartRowsPerSheet)) {
    Store_Next_Name_Position_5("Put", sheet.first);
    Window<frmScheduler_Reminder>().Refresh_Organizer_Screen(organizer::kMultiPurposePrint5);
    job.Add_Sheet(Window<frmPrintLogChart>());
  }
}

// Each member's list starts on a sheet of its own; a member without tasks prints none.
void frmMultiPurposeForm::Print_Task_List_Sheets(platform::WindowPrintJob& job) {
  frmPrintTaskList& page = Window<frmPrintTaskList>();
  Enable_Print_TaskList_Controls(false, -1);
  for (int entry = 0; entry < lstSelectedPeople_5->count(); ++entry) {
    const std::string member = lstSelectedPeople_5->item(entry)->text().toStdString();
    const std::vector<organizer::ScheduleRecord> tasks = reminders::Member_Tasks(organizer::kScheduleFile, member);
    for (const reminders::Sheet& sheet : reminders::Sheets_Of(static_cast<int>(tasks.size()), reminders::kTasksPerSheet)) {
      controls::Set_Caption(page.lblGroupMemberID, reminders::Task_List_Heading(member));
      for (int row = 0; row < sheet.count; ++row) {
        Enable_Print_TaskList_Controls(true, row);
        page.Fill_Row(row, reminders::Task_List_Row(tasks[static_cast<std::size_t>(sheet.first + row)]));
      }
      job.Add_Sheet(page);
      Enable_Print_TaskList_Controls(false, -1);
    }
  }
}

}  // namespace orrivane
