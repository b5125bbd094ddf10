#include "organizer/frmTaskInformation.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QRect>

#include "organizer/organizer_callers.h"
#include "organizer/set_reminder_opening.h"
#include "organizer/task_list.h"
#include "platform/controls.h"

namespace orrivane {

namespace {

using controls::Make_Button;
using controls::Make_Label;
using controls::Set_Caption;

constexpr char kCaptionHead[] = "Task\\Event Information: ";
constexpr char kOn[] = "ON";
constexpr char kOff[] = "OFF";

constexpr MenuEntry kTaskInformationMenu[] = {
    {"", "mnuFile", "&File", ""},
    {"mnuFile", "mnuClose", "Close", ""},
};

// ---- Geometry, in pixels -----------------------------------------------------------------------
constexpr int kMargin = 12;
constexpr int kLabelWidth = 110;
constexpr int kValueLeft = kMargin + kLabelWidth + 6;
constexpr int kValueWidth = 320;
constexpr int kRowHeight = 22;
constexpr int kRowStep = 28;
constexpr int kCommentsHeight = 64;
constexpr int kTimeLeft = kValueLeft + 200;
constexpr int kWindowWidth = kValueLeft + kValueWidth + kMargin;
constexpr int kFrameHeight = 96;
constexpr int kButtonHeight = 28;

// The top of each row of the task.
constexpr int kRecordTop = 12;
constexpr int kNameTop = kRecordTop + kRowStep;
constexpr int kDescriptionTop = kNameTop + kRowStep;
constexpr int kCommentsTop = kDescriptionTop + kRowStep;
constexpr int kPersonTop = kCommentsTop + kCommentsHeight + 8;
constexpr int kFromTop = kPersonTop + kRowStep;
constexpr int kToTop = kFromTop + kRowStep;
constexpr int kColorTop = kToTop + kRowStep;
constexpr int kFrameTop = kColorTop + kRowStep + 6;
constexpr int kCloseTop = kFrameTop + kFrameHeight + 10;
constexpr int kWindowHeight = kCloseTop + kButtonHeight + kMargin;

// A label and the value beside it, on one row of the task.
struct TaskRow {
  QLabel* frmTaskInformation::* label;
  const char* label_name;
  const char* caption;
  QLabel* frmTaskInformation::* value;
  const char* value_name;
  int top;
};
constexpr TaskRow kTaskRows[] = {
    {&frmTaskInformation::lblRecordNumberLabel, "lblRecordNumberLabel", "Record Number:",
     &frmTaskInformation::lblRecordNumber, "lblRecordNumber", kRecordTop},
    {&frmTaskInformation::lblTaskNameLabel, "lblTaskNameLabel", "Task\\Event Name:", &frmTaskInformation::lblTaskName,
     "lblTaskName", kNameTop},
    {&frmTaskInformation::lblTaskDescriptionLabel, "lblTaskDescriptionLabel", "Description:",
     &frmTaskInformation::lblTaskDescription, "lblTaskDescription", kDescriptionTop},
    {&frmTaskInformation::lblPersonLabel, "lblPersonLabel", "Group Member:", &frmTaskInformation::lblPerson,
     "lblPerson", kPersonTop},
    {&frmTaskInformation::lblFromLabel, "lblFromLabel", "From:", &frmTaskInformation::lblFromDate, "lblFromDate",
     kFromTop},
    {&frmTaskInformation::lblToLabel, "lblToLabel", "To:", &frmTaskInformation::lblToDate, "lblToDate", kToTop},
    {&frmTaskInformation::lblColorCodeLabel, "lblColorCodeLabel", "Color Code:", &frmTaskInformation::lblColorCode,
     "lblColorCode", kColorTop},
};

}  // namespace

frmTaskInformation::frmTaskInformation() {
  setObjectName("frmTaskInformation");
  setWindowTitle(kCaptionHead);
  setCentralWidget(new QWidget);
  Build_Controls();
  Place_Controls();
  Connect_Controls();
}

void frmTaskInformation::Build_Controls() {
  QWidget* body = centralWidget();
  for (const TaskRow& row : kTaskRows) {
    this->*row.label = Make_Label(body, row.label_name, row.caption);
    this->*row.value = Make_Label(body, row.value_name);
  }
  lblColorCode->setAutoFillBackground(true);
  lblColorCode->setFrameShape(QFrame::Box);
  lblCommentsLabel = Make_Label(body, "lblCommentsLabel", "Comments:");
  txtComments = controls::Make<QPlainTextEdit>(body, "txtComments");
  txtComments->setReadOnly(true);
  lblFromTime = Make_Label(body, "lblFromTime");
  lblToTime = Make_Label(body, "lblToTime");

  fraReminder = controls::Make<QGroupBox>(body, "fraReminder", "Reminder");
  QWidget* frame = fraReminder;
  // Switching the reminder on and off comes with editing a task here.
  cmdStatus = Make_Button(frame, "cmdStatus", kOff);
  cmdStatus->setEnabled(false);
  lblMethodLabel = Make_Label(frame, "lblMethodLabel", "Method:");
  lblMethod = Make_Label(frame, "lblMethod");
  lblIntervalLabel = Make_Label(frame, "lblIntervalLabel", "Interval:");
  lblInterval = Make_Label(frame, "lblInterval");
  cmdChange1 = Make_Button(frame, "cmdChange1", "Change...");
  cmdChange1->setEnabled(false);

  cmdClose = Make_Button(body, "cmdClose", "Close");
  menu = std::make_unique<MenuTree>(menuBar(), kTaskInformationMenu);
}

void frmTaskInformation::Place_Controls() {
  for (const TaskRow& row : kTaskRows) {
    (this->*row.label)->setGeometry(kMargin, row.top, kLabelWidth, kRowHeight);
    (this->*row.value)->setGeometry(kValueLeft, row.top, kValueWidth, kRowHeight);
  }
  for (QLabel* date : {lblFromDate, lblToDate}) date->resize(kTimeLeft - kValueLeft - 8, kRowHeight);
  lblFromTime->setGeometry(kTimeLeft, kFromTop, 80, kRowHeight);
  lblToTime->setGeometry(kTimeLeft, kToTop, 80, kRowHeight);
  lblColorCode->resize(60, kRowHeight);
  lblCommentsLabel->setGeometry(kMargin, kCommentsTop, kLabelWidth, kRowHeight);
  txtComments->setGeometry(kValueLeft, kCommentsTop, kValueWidth, kCommentsHeight);

  fraReminder->setGeometry(kMargin, kFrameTop, kWindowWidth - 2 * kMargin, kFrameHeight);
  cmdStatus->setGeometry(10, 24, 60, kButtonHeight);
  lblMethodLabel->setGeometry(84, 24, 64, kRowHeight);
  lblMethod->setGeometry(150, 24, 270, kRowHeight);
  lblIntervalLabel->setGeometry(84, 54, 64, kRowHeight);
  lblInterval->setGeometry(150, 54, 270, kRowHeight);
  cmdChange1->setGeometry(10, 58, 60, kButtonHeight);

  cmdClose->setGeometry(kWindowWidth - kMargin - 100, kCloseTop, 100, kButtonHeight);
  centralWidget()->setFixedSize(kWindowWidth, kWindowHeight);
}

void frmTaskInformation::Connect_Controls() {
  connect(cmdClose, &QPushButton::clicked, this, [this] { Close_Record(); });
  connect(cmdChange1, &QPushButton::clicked, this, [this] { cmdChange1_Click(); });
  menu->On("mnuClose", [this] { Close_Record(); });
}

void frmTaskInformation::Show_Task_Record(const organizer::ScheduleRecord& record) {
  setWindowTitle(QString::fromStdString(kCaptionHead + record.Task_Name.text()));
  Set_Caption(lblRecordNumber, record.Record_Number.text());
  Set_Caption(lblTaskName, record.Task_Name.text());
  Set_Caption(lblTaskDescription, record.Task_Description.text());
  txtComments->setPlainText(QString::fromStdString(record.Task_Comments.text()));
  Set_Caption(lblPerson, record.Person_Name.text());
  Set_Caption(lblFromDate, organizer::Task_Date_Label(record.Start_Month, record.Start_Date, record.Start_Century,
                                                      record.Start_Year));
  Set_Caption(lblFromTime, organizer::Task_Time_Label(record.Start_Hour, record.Start_Minute));
  Set_Caption(lblToDate, organizer::Task_Date_Label(record.Finish_Month, record.Finish_Date, record.Finish_Century,
                                                    record.Finish_Year));
  Set_Caption(lblToTime, organizer::Task_Time_Label(record.Finish_Hour, record.Finish_Minute));
  controls::Set_Back_Color(lblColorCode, static_cast<unsigned>(record.Color_Code.whole()));

  reminder_variables_.Put_Fields_Of(record);
  if (record.Reminder_Status == Value(0)) {
    cmdStatus->setText(kOff);
    Enable_Reminder_Frame_Labels(false);
  } else if (record.Reminder_Status == Value(1)) {
    cmdStatus->setText(kOn);
    Enable_Reminder_Frame_Labels(true);
  }
  Set_Reminder_Labels(record.Reminder_Interval, record.Interval_Days, record.Interval_Hours,
                      record.Interval_Minutes);
  Set_Record_Changed_Flag(false);
  controls::Show_In_Front(*this);
}

Value frmTaskInformation::Store_Reminder_Variables(const std::string& name, const std::string& verb,
                                                   const Value& value) {
  return reminder_variables_.Store(name, verb, value);
}

void frmTaskInformation::Set_Reminder_Labels(const Value& Value_, const Value& Interval_Days,
                                             const Value& Interval_Hours, const Value& Interval_Minutes) {
  const std::optional<organizer::ReminderLabels> labels =
      organizer::Set_Reminder_Labels(Value_, Interval_Days, Interval_Hours, Interval_Minutes);
  if (!labels) return;
  Set_Caption(lblMethod, labels->Method);
  Set_Caption(lblInterval, labels->Interval);
}

void frmTaskInformation::Enable_Reminder_Frame_Labels(bool Value_) {
  for (QWidget* control : {lblMethod, lblMethodLabel, lblInterval, lblIntervalLabel}) control->setEnabled(Value_);
  cmdChange1->setEnabled(Value_);
}

void frmTaskInformation::Set_Record_Changed_Flag(bool Flag) { Record_Changed_Flag = Flag; }

void frmTaskInformation::cmdChange1_Click() { organizer::Open_Set_Reminder_Window(organizer::kTaskInformationWindow); }

void frmTaskInformation::Close_Record() {
  // A record changed here (its reminder set anew) cannot be saved from this window until
  // editing a task comes, so there is nothing to ask yet: Close hides the window as its close
  // box does, and the change goes with the next task shown.
  hide();
}

// The close box unloads the window, which is then only hidden, to be filled again next time.
// (The question about a changed record comes with editing, as for Close_Record.)
void frmTaskInformation::closeEvent(QCloseEvent* event) {
  event->ignore();
  hide();
}

}  // namespace orrivane
