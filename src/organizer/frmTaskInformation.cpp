#include "organizer/frmTaskInformation.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QRect>
#include <array>

#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "core/colours.h"
#include "organizer/frmChangeRecordTimes.h"
#include "organizer/frmChangeTaskIdInfo.h"
#include "organizer/frmColorPalette.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/organizer_callers.h"
#include "organizer/set_reminder_opening.h"
#include "organizer/task_list.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/platform.h"
#include "platform/window_registry.h"
#include "reminders/in_use_flags.h"

namespace orrivane {

namespace {

using controls::Caption;
using controls::Make_Button;
using controls::Make_Label;
using controls::Set_Caption;

constexpr char kCaptionHead[] = "Task\\Event Information: ";
// The print job, and the file when the machine has no printer.
constexpr char kPrintDocumentName[] = "Orrivane-task-information";

constexpr MenuEntry kTaskInformationMenu[] = {
    {"", "mnuFile", "&File", ""},
    {"mnuFile", "mnuSaveChangesToRecord", "&Save Changes To Record", "Ctrl+S"},
    {"mnuFile", "mnuPrintWindow", "&Print Window", "Ctrl+P"},
    {"mnuFile", "mnuClose", "&Close", ""},
    {"", "mnuEdit", "&Edit", ""},
    {"mnuEdit", "mnuChangeTimesDates", "Change &Times\\Dates...", "Ctrl+T"},
    {"mnuEdit", "mnuChangeIdentityInformation", "Change &Identity Information...", "Ctrl+I"},
};

// The caption of the status button.
QString Status_Caption(std::string_view status) {
  return QString::fromUtf8(status.data(), static_cast<qsizetype>(status.size()));
}

// ---- Geometry, in pixels -----------------------------------------------------------------------
constexpr int kMargin = 12;
constexpr int kLabelWidth = 110;
constexpr int kValueLeft = kMargin + kLabelWidth + 6;
constexpr int kValueWidth = 380;
constexpr int kRowHeight = 22;
constexpr int kRowStep = 28;
constexpr int kCommentsHeight = 64;
constexpr int kDateWidth = 192;
constexpr int kTimeLeft = kValueLeft + kDateWidth + 8;
constexpr int kTimeWidth = 60;
constexpr int kWindowWidth = kValueLeft + kValueWidth + kMargin;
constexpr int kButtonHeight = 28;
constexpr int kChangeLeft = kTimeLeft + kTimeWidth + 12;
constexpr int kColourWidth = 60;
constexpr int kFrameHeight = 96;
constexpr int kSaveWidth = 220;
constexpr int kCloseWidth = 100;

// The top of each row of the task.
constexpr int kRecordTop = 12;
constexpr int kNameTop = kRecordTop + kRowStep;
constexpr int kDescriptionTop = kNameTop + kRowStep;
constexpr int kCommentsTop = kDescriptionTop + kRowStep;
constexpr int kPersonTop = kCommentsTop + kCommentsHeight + 8;
constexpr int kFromTop = kPersonTop + kRowStep;
constexpr int kToTop = kFromTop + kRowStep;
constexpr int kColorTop = kToTop + kRowStep + 6;
constexpr int kFrameTop = kColorTop + kRowStep + 8;
constexpr int kButtonsTop = kFrameTop + kFrameHeight + 10;
constexpr int kWindowHeight = kButtonsTop + kButtonHeight + kMargin;

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
  Build_Menu();
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
  lblFromTime = Make_Label(body, "lblFromTime");
  lblToTime = Make_Label(body, "lblToTime");
  cmdChange = Make_Button(body, "cmdChange", "Change...");
  cmdSelectNewColorCode = Make_Button(body, "cmdSelectNewColorCode", "Select New Color...");

  fraReminder = controls::Make<QGroupBox>(body, "fraReminder", "Reminder");
  QWidget* frame = fraReminder;
  cmdStatus = Make_Button(frame, "cmdStatus", Status_Caption(organizer::kReminderOff));
  lblMethodLabel = Make_Label(frame, "lblMethodLabel", "Method:");
  lblMethod = Make_Label(frame, "lblMethod");
  lblIntervalLabel = Make_Label(frame, "lblIntervalLabel", "Interval:");
  lblInterval = Make_Label(frame, "lblInterval");
  cmdChange1 = Make_Button(frame, "cmdChange1", "Change...");
  cmdChange1->setEnabled(false);

  cmdSaveChangesToThisRecord = Make_Button(body, "cmdSaveChangesToThisRecord", "Save Changes To This Record");
  cmdClose = Make_Button(body, "cmdClose", "Close");
}

void frmTaskInformation::Build_Menu() { menu = std::make_unique<MenuTree>(menuBar(), kTaskInformationMenu); }

void frmTaskInformation::Place_Controls() {
  for (const TaskRow& row : kTaskRows) {
    (this->*row.label)->setGeometry(kMargin, row.top, kLabelWidth, kRowHeight);
    (this->*row.value)->setGeometry(kValueLeft, row.top, kValueWidth, kRowHeight);
  }
  for (QLabel* date : {lblFromDate, lblToDate}) date->resize(kDateWidth, kRowHeight);
  lblFromTime->setGeometry(kTimeLeft, kFromTop, kTimeWidth, kRowHeight);
  lblToTime->setGeometry(kTimeLeft, kToTop, kTimeWidth, kRowHeight);
  cmdChange->setGeometry(kChangeLeft, kFromTop, kWindowWidth - kMargin - kChangeLeft, kToTop + kRowHeight - kFromTop);
  lblColorCode->resize(kColourWidth, kRowHeight);
  cmdSelectNewColorCode->setGeometry(kValueLeft + kColourWidth + 12, kColorTop - 3, 160, kButtonHeight);
  lblCommentsLabel->setGeometry(kMargin, kCommentsTop, kLabelWidth, kRowHeight);
  txtComments->setGeometry(kValueLeft, kCommentsTop, kValueWidth, kCommentsHeight);

  fraReminder->setGeometry(kMargin, kFrameTop, kWindowWidth - 2 * kMargin, kFrameHeight);
  cmdStatus->setGeometry(10, 24, 60, kButtonHeight);
  lblMethodLabel->setGeometry(84, 24, 64, kRowHeight);
  lblMethod->setGeometry(150, 24, 300, kRowHeight);
  lblIntervalLabel->setGeometry(84, 58, 64, kRowHeight);
  lblInterval->setGeometry(150, 58, 300, kRowHeight);
  cmdChange1->setGeometry(10, 58, 60, kButtonHeight);

  cmdSaveChangesToThisRecord->setGeometry(kMargin, kButtonsTop, kSaveWidth, kButtonHeight);
  cmdClose->setGeometry(kWindowWidth - kMargin - kCloseWidth, kButtonsTop, kCloseWidth, kButtonHeight);
  centralWidget()->setFixedSize(kWindowWidth, kWindowHeight);
}

void frmTaskInformation::Connect_Controls() {
  connect(cmdStatus, &QPushButton::clicked, this, [this] { cmdStatus_Click(); });
  connect(txtComments, &QPlainTextEdit::textChanged, this, [this] { txtComments_Change(); });
  connect(cmdChange1, &QPushButton::clicked, this, [this] { cmdChange1_Click(); });
  connect(cmdChange, &QPushButton::clicked, this, [this] { Change_Task_Times(); });
  connect(cmdSelectNewColorCode, &QPushButton::clicked, this, [this] { Activate_Color_Palette(); });
  connect(cmdSaveChangesToThisRecord, &QPushButton::clicked, this, [this] { Confirm_Save_Changes(); });
  connect(cmdClose, &QPushButton::clicked, this, [this] { Close_Record(); });
  menu->On("mnuSaveChangesToRecord", [this] { Confirm_Save_Changes(); });
  menu->On("mnuPrintWindow", [this] { mnuPrintWindow_Click(); });
  menu->On("mnuClose", [this] { Close_Record(); });
  menu->On("mnuChangeTimesDates", [this] { Change_Task_Times(); });
  menu->On("mnuChangeIdentityInformation", [this] { mnuChangeIdentityInformation_Click(); });
}

// ---- Showing -----------------------------------------------------------------------------------

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
    cmdStatus->setText(Status_Caption(organizer::kReminderOff));
    Enable_Reminder_Frame_Labels(false);
  } else if (record.Reminder_Status == Value(1)) {
    cmdStatus->setText(Status_Caption(organizer::kReminderOn));
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

Value frmTaskInformation::Store_Time_Range_Flag(const std::string& verb, const Value& value) {
  if (verb == "Put") time_range_flag_ = value;
  return time_range_flag_;
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

// ---- Editing -----------------------------------------------------------------------------------

void frmTaskInformation::Set_Record_Changed_Flag(bool Flag) { Record_Changed_Flag = Flag; }

void frmTaskInformation::cmdStatus_Click() {
  const std::string_view status = organizer::Swapped_Status(cmdStatus->text().toStdString());
  cmdStatus->setText(Status_Caption(status));
  Enable_Reminder_Frame_Labels(organizer::Is_Reminder_On(status));
  Set_Record_Changed_Flag(true);
}

void frmTaskInformation::txtComments_Change() { Set_Record_Changed_Flag(true); }

void frmTaskInformation::cmdChange1_Click() { organizer::Open_Set_Reminder_Window(organizer::kTaskInformationWindow); }

organizer::MomentLabels frmTaskInformation::From_Labels() const { return {Caption(lblFromDate), Caption(lblFromTime)}; }
organizer::MomentLabels frmTaskInformation::To_Labels() const { return {Caption(lblToDate), Caption(lblToTime)}; }

void frmTaskInformation::Change_Task_Times() {
  frmChangeRecordTimes& times = Window<frmChangeRecordTimes>();
  const std::array<organizer::MomentLabels, frmChangeRecordTimes::kMoments> moments{From_Labels(), To_Labels()};
  for (std::size_t index = 0; index < moments.size(); ++index) {
    for (QLabel* date : {times.lblOldDate[index], times.lblDate[index]}) Set_Caption(date, moments[index].Date);
    for (QLabel* time : {times.lblOldTime[index], times.lblTime[index]}) Set_Caption(time, moments[index].Time);
  }
  controls::Show_In_Front(times);
}

void frmTaskInformation::mnuChangeIdentityInformation_Click() {
  frmChangeTaskIdInfo& identity = Window<frmChangeTaskIdInfo>();
  Set_Caption(identity.lblOldRecordName, Caption(lblTaskName));
  identity.txtNewRecordName->setText(lblTaskName->text());
  Set_Caption(identity.lblOldRecordDescription, Caption(lblTaskDescription));
  identity.txtNewRecordDescription->setText(lblTaskDescription->text());
  Set_Caption(identity.lblCurrentGroupMember, Caption(lblPerson));
  Set_Caption(identity.lblNewGroupMember, Caption(lblPerson));
  const unsigned colour = controls::Back_Color(lblColorCode);
  controls::Set_Back_Color(identity.lblCurrentColorCode, colour);
  controls::Set_Back_Color(identity.lblNewColorCode, colour);
  controls::Show_In_Front(identity);
}

// The palette is shown in front first and told its caller afterwards: it takes the caller's
// colour once its activation has come through.
void frmTaskInformation::Activate_Color_Palette() {
  Set_Record_Changed_Flag(true);
  frmColorPalette& palette = Window<frmColorPalette>();
  controls::Show_In_Front(palette);
  Set_Caption(palette.lblStoreCallingProcedureArgument, std::string(organizer::kTaskInformationSelectColour));
}

// ---- Saving and closing --------------------------------------------------------------------------

organizer::TaskInformation frmTaskInformation::Read_Task_Information() {
  organizer::TaskInformation task;
  task.Record_Number = Caption(lblRecordNumber);
  task.Task_Name = Caption(lblTaskName);
  task.Task_Description = Caption(lblTaskDescription);
  task.Task_Comments = controls::Lines_Of(txtComments);
  task.Person_Name = Caption(lblPerson);
  task.From = From_Labels();
  task.To = To_Labels();
  task.Time_Range_Flag = Store_Time_Range_Flag("Get");
  task.Color_Code = Value(static_cast<long long>(controls::Back_Color(lblColorCode)));
  task.Status = cmdStatus->text().toStdString();
  for (std::size_t i = 0; i < organizer::ReminderVariables::kNames.size(); ++i) {
    task.Reminder[i] = Store_Reminder_Variables(std::string(organizer::ReminderVariables::kNames[i]), "Get");
  }
  return task;
}

void frmTaskInformation::Confirm_Save_Changes() {
  if (platform::Show_Message(organizer::Task_Edit_Message(organizer::kConfirmSaveChanges)) != vbYes) return;
  Save_Changes_To_Record();
  Set_Record_Changed_Flag(false);
}

// The timer keeps off the list of task reminders from before the first reading of the log until
// the scratch files are done with; the list of the Organizer keeps its old entry until it is
// built again.
void frmTaskInformation::Save_Changes_To_Record() {
  frmScheduler_Reminder& organizer_window = Window<frmScheduler_Reminder>();
  {
    const reminders::FlagHold reminders_file(Window<Form1>().Task_Reminder_Flag());
    organizer::Save_Changes_To_Record(Read_Task_Information());
    organizer_window.Refresh_Organizer_Screen(organizer::kSaveChangesToRecord);
    Window<frmLargeCalendar>().Refresh_Calendar_TaskList();
  }
  organizer_window.Save_File_Prompt_Flag = 1;
}

void frmTaskInformation::Close_Record() {
  if (Record_Changed_Flag) {
    const int answer = platform::Show_Message(organizer::Task_Edit_Message(organizer::kSaveOnClose));
    if (answer == vbCancel) return;
    if (answer == vbYes) Save_Changes_To_Record();
    Set_Record_Changed_Flag(false);
  }
  hide();
}

void frmTaskInformation::Form_Unload() {
  if (Record_Changed_Flag &&
      platform::Show_Message(organizer::Task_Edit_Message(organizer::kSaveOnUnload)) == vbYes) {
    Save_Changes_To_Record();
  }
  Set_Record_Changed_Flag(false);
}

// The close box unloads the window, which is then only hidden, to be filled again next time.
void frmTaskInformation::closeEvent(QCloseEvent* event) {
  Form_Unload();
  event->ignore();
  hide();
}

void frmTaskInformation::mnuPrintWindow_Click() {
  const unsigned kept_colour = controls::Back_Color(this);
  const std::array<QPushButton*, 3> hidden{cmdClose, cmdSaveChangesToThisRecord, cmdSelectNewColorCode};
  std::array<bool, hidden.size()> kept_visible{};
  for (std::size_t i = 0; i < hidden.size(); ++i) {
    kept_visible[i] = hidden[i]->isVisibleTo(this);
    hidden[i]->hide();
  }
  controls::Set_Back_Color(this, colours::kWindowBackground);
  platform::Machine().Print_Window(*this, kPrintDocumentName);
  controls::Set_Back_Color(this, kept_colour);
  for (std::size_t i = 0; i < hidden.size(); ++i) hidden[i]->setVisible(kept_visible[i]);
}

}  // namespace orrivane
