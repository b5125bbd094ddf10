#include "reminders/frmReminderWindow.h"

#include <QRect>

#include "calendar/Form1.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/organizer_callers.h"
#include "organizer/working_files.h"
#include "platform/controls.h"
#include "platform/window_registry.h"
#include "reminders/ReminderFront.h"

namespace orrivane {

namespace {

using controls::Caption;
using controls::Set_Caption;

constexpr char kNoRecordNumberSupplied[] = "No Record Number Supplied";

// ---- Geometry, in pixels -----------------------------------------------------------------------
constexpr int kMargin = 12;
constexpr int kWidth = 420;
constexpr int kInner = kWidth - 2 * kMargin;
constexpr int kRowHeight = 20;
constexpr int kNameLeft = kMargin + 124;
constexpr int kNameWidth = kWidth - kMargin - kNameLeft;
constexpr int kButtonWidth = 110;
constexpr int kButtonHeight = 28;
constexpr int kHeight = 272;

// A control of the window, its name, caption and place.
template <class C>
struct ControlPlace {
  C* frmReminderWindow::* member;
  const char* name;
  const char* caption;
  QRect place;
};
constexpr ControlPlace<QLabel> kLabels[] = {
    {&frmReminderWindow::Label5, "Label5", "This reminder is for the following task\\event:",
     QRect(kMargin, 10, kInner, kRowHeight)},
    {&frmReminderWindow::lblTaskName, "lblTaskName", "", QRect(kMargin, 32, kInner, 24)},
    {&frmReminderWindow::Label1, "Label1", "For:", QRect(kMargin, 72, 120, kRowHeight)},
    {&frmReminderWindow::lblFor, "lblFor", "", QRect(kNameLeft, 72, kNameWidth, kRowHeight)},
    {&frmReminderWindow::Label2, "Label2", "Start Time:", QRect(kMargin, 96, 120, kRowHeight)},
    {&frmReminderWindow::lblStartTime, "lblStartTime", "", QRect(kNameLeft, 96, kNameWidth, kRowHeight)},
    {&frmReminderWindow::Label3, "Label3", "Ending Time:", QRect(kMargin, 120, 120, kRowHeight)},
    {&frmReminderWindow::lblEndingTime, "lblEndingTime", "", QRect(kNameLeft, 120, kNameWidth, kRowHeight)},
    {&frmReminderWindow::lblTimeLeft, "lblTimeLeft", "", QRect(kMargin, 148, kInner, 44)},
    {&frmReminderWindow::Label4, "Label4", "Time of Message:", QRect(kMargin, 198, 120, kRowHeight)},
    {&frmReminderWindow::lblTimeOfMessage, "lblTimeOfMessage", "", QRect(kNameLeft, 198, kNameWidth, kRowHeight)},
};

constexpr ControlPlace<QPushButton> kButtons[] = {
    {&frmReminderWindow::cmdMoreDetails, "cmdMoreDetails", "View Task",
     QRect(kMargin, kHeight - kMargin - kButtonHeight, kButtonWidth, kButtonHeight)},
    {&frmReminderWindow::cmdClose, "cmdClose", "Close",
     QRect(kWidth - kMargin - kButtonWidth, kHeight - kMargin - kButtonHeight, kButtonWidth, kButtonHeight)},
};

template <class C, std::size_t N>
void Make_Controls(frmReminderWindow& window, const ControlPlace<C> (&table)[N]) {
  for (const ControlPlace<C>& c : table) {
    window.*c.member = controls::Make<C>(&window, c.name, c.caption);
    (window.*c.member)->setGeometry(c.place);
  }
}

const QRect kTaskListPlace(kMargin, 32, kInner, 26);
const QRect kDividerPlace(kMargin, 62, kInner, 2);

}  // namespace

frmReminderWindow::frmReminderWindow() {
  setObjectName("frmReminderWindow");
  setWindowTitle("Orrivane Task Reminder");
  Build_Controls();
  Connect_Controls();
  setFixedSize(kWidth, kHeight);
}

void frmReminderWindow::Build_Controls() {
  Make_Controls(*this, kLabels);
  QFont name_font = lblTaskName->font();
  name_font.setBold(true);
  name_font.setPointSize(name_font.pointSize() + 2);
  lblTaskName->setFont(name_font);
  lblTimeLeft->setWordWrap(true);
  lblTimeLeft->setAlignment(Qt::AlignLeft | Qt::AlignTop);

  cboTaskList = controls::Make_Combo(this, "cboTaskList", false);
  cboTaskList->setGeometry(kTaskListPlace);
  lneTaskNameDivider = controls::Make<QFrame>(this, "lneTaskNameDivider");
  lneTaskNameDivider->setFrameShape(QFrame::HLine);
  lneTaskNameDivider->setGeometry(kDividerPlace);

  Make_Controls(*this, kButtons);
}

void frmReminderWindow::Connect_Controls() {
  // A choice by the user, with the mouse or the keys; filling the list is none.
  connect(cboTaskList, &QComboBox::activated, this, [this] { cboTaskList_Click(); });
  connect(cmdMoreDetails, &QPushButton::clicked, this, [this] { cmdMoreDetails_Click(); });
  connect(cmdClose, &QPushButton::clicked, this, [this] { cmdClose_Click(); });
}

Value frmReminderWindow::Store_Task_Record_Numbers(const std::string& Action_To_Perform, const Value& Element,
                                                   const Value& value) {
  return task_record_numbers_.Store(Action_To_Perform, Element, value);
}

Value frmReminderWindow::Store_Current_Task_Record_Number(const Value& value) {
  if (!(value.is_text() && value.text() == kNoRecordNumberSupplied)) current_task_record_number_ = value;
  return current_task_record_number_;
}

void frmReminderWindow::Show_Reminder(const reminders::TaskReminderFilling& filling) {
  if (filling.Several) {
    Show_Several_Tasks(filling);
  } else {
    Show_Single_Task(filling);
  }
  Set_Caption(lblTimeOfMessage, filling.Time_Of_Message);
}

void frmReminderWindow::Show_Single_Task(const reminders::TaskReminderFilling& filling) {
  lneTaskNameDivider->show();
  cmdMoreDetails->setEnabled(true);
  cboTaskList->hide();
  Set_Caption(lblTaskName, filling.Task_Name);
  Set_Caption(lblFor, filling.For);
  Set_Caption(lblStartTime, filling.Start_Time);
  Set_Caption(lblEndingTime, filling.Ending_Time);
  setWindowTitle(QString::fromStdString(filling.Caption));
  Set_Caption(lblTimeLeft, filling.Time_Left);
  Store_Current_Task_Record_Number(filling.Current_Task_Record_Number);
  Show_Reminder_In_Front(*this);
}

void frmReminderWindow::Show_Several_Tasks(const reminders::TaskReminderFilling& filling) {
  lneTaskNameDivider->hide();
  cmdMoreDetails->setEnabled(false);
  cboTaskList->show();
  cboTaskList->clear();
  for (const std::string& entry : filling.Task_List) cboTaskList->addItem(QString::fromStdString(entry));
  // Nothing is chosen until the user chooses.
  cboTaskList->setCurrentIndex(-1);
  setWindowTitle(QString::fromStdString(filling.Caption));
  Set_Caption(lblTaskName, filling.Task_Name);
  Set_Caption(lblFor, filling.For);
  Set_Caption(lblStartTime, filling.Start_Time);
  Set_Caption(lblEndingTime, filling.Ending_Time);
  Set_Caption(lblTimeLeft, filling.Time_Left);
  Show_Reminder_In_Front(*this);
}

void frmReminderWindow::cboTaskList_Click() {
  cmdMoreDetails->setEnabled(true);
  const std::optional<reminders::ChosenTaskLabels> labels =
      reminders::Chosen_Task_Labels(organizer::kTaskReminderFile, controls::Text_Of(cboTaskList),
                                    Caption(lblTimeOfMessage), Window<Form1>().Current_Record());
  if (!labels) return;
  Set_Caption(lblFor, labels->For);
  Set_Caption(lblStartTime, labels->Start_Time);
  Set_Caption(lblEndingTime, labels->Ending_Time);
  Set_Caption(lblTimeLeft, labels->Time_Left);
}

void frmReminderWindow::cmdMoreDetails_Click() {
  Window<frmScheduler_Reminder>().View_Task_Event_Information(organizer::kReminderWindowMoreDetails, {});
}

void frmReminderWindow::cmdClose_Click() { hide(); }

}  // namespace orrivane
