#include "reminders/frmNonTaskReminderWindow.h"

#include <QRect>

#include "calendar/Form1.h"
#include "organizer/working_files.h"
#include "platform/controls.h"
#include "platform/window_registry.h"
#include "reminders/ReminderFront.h"
#include "reminders/in_use_flags.h"
#include "reminders/non_task_reminders.h"

namespace orrivane {

namespace {

using controls::Px;
using controls::Set_Caption;
using Form = reminders::NonTaskReminderFilling::Form;

// ---- Geometry ------------------------------------------------------------------------------------
// The heights the program gives are of the whole window, title bar and borders included
// (405 twips); the window's inside is that much lower.
constexpr int kTitleAndBorders = 405;  // twips

struct Arrangement {
  int frame_top;      // twips
  int close_top;      // twips
  int window_height;  // twips
};
constexpr Arrangement kSingleMessage{0, 2040, 2865};
constexpr Arrangement kSeveralMessages{480, 2520, 3330};

constexpr int kWidth = 420;  // pixels
constexpr int kMargin = 8;
constexpr int kFrameWidth = kWidth - 2 * kMargin;
constexpr int kFrameHeight = 128;
constexpr int kInner = kFrameWidth - 2 * kMargin;
constexpr int kMessageHeight = 66;
constexpr int kCaptionWidth = 110;
constexpr int kCloseWidth = 90;
constexpr int kCloseHeight = 25;

struct LabelPlace {
  QLabel* frmNonTaskReminderWindow::* member;
  const char* name;
  const char* caption;
  QRect place;  // within the frame
};
constexpr LabelPlace kFrameLabels[] = {
    {&frmNonTaskReminderWindow::lblMessage, "lblMessage", "", QRect(kMargin, 18, kInner, kMessageHeight)},
    {&frmNonTaskReminderWindow::Label4, "Label4", "Date of Message:", QRect(kMargin, 86, kCaptionWidth, 18)},
    {&frmNonTaskReminderWindow::lblDateOfMessage, "lblDateOfMessage", "",
     QRect(kMargin + kCaptionWidth, 86, kInner - kCaptionWidth, 18)},
    {&frmNonTaskReminderWindow::Label2, "Label2", "Time of Message:", QRect(kMargin, 106, kCaptionWidth, 18)},
    {&frmNonTaskReminderWindow::lblTimeOfMessage, "lblTimeOfMessage", "",
     QRect(kMargin + kCaptionWidth, 106, kInner - kCaptionWidth, 18)},
};

}  // namespace

frmNonTaskReminderWindow::frmNonTaskReminderWindow() {
  setObjectName("frmNonTaskReminderWindow");
  setWindowTitle("Reminder");
  Build_Controls();
  connect(cboReminderList, &QComboBox::activated, this, [this] { cboReminderList_Click(); });
  connect(cmdClose, &QPushButton::clicked, this, [this] { cmdClose_Click(); });
  cboReminderList->hide();
  Arrange(kSingleMessage.frame_top, kSingleMessage.close_top, kSingleMessage.window_height);
}

void frmNonTaskReminderWindow::Build_Controls() {
  cboReminderList = controls::Make_Combo(this, "cboReminderList", false);
  cboReminderList->setGeometry(kMargin, Px(60), kFrameWidth, 26);
  FraMessage = controls::Make<QGroupBox>(this, "FraMessage", "");
  for (const LabelPlace& l : kFrameLabels) {
    this->*l.member = controls::Make_Label(FraMessage, l.name, l.caption);
    (this->*l.member)->setGeometry(l.place);
  }
  // A long message wraps within the frame.
  lblMessage->setWordWrap(true);
  lblMessage->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  lblMessage->setTextFormat(Qt::PlainText);
  cmdClose = controls::Make_Button(this, "cmdClose", "Close");
}

void frmNonTaskReminderWindow::Arrange(int frame_top, int close_top, int window_height) {
  FraMessage->setGeometry(kMargin, Px(frame_top), kFrameWidth, kFrameHeight);
  cmdClose->setGeometry(kWidth - kMargin - kCloseWidth, Px(close_top), kCloseWidth, kCloseHeight);
  setFixedSize(kWidth, Px(window_height - kTitleAndBorders));
}

void frmNonTaskReminderWindow::Show_Reminder(const reminders::NonTaskReminderFilling& filling) {
  if (filling.form == Form::kSingle) {
    setWindowTitle(QString::fromStdString(filling.Caption));
    Set_Caption(lblMessage, filling.Message);
    cboReminderList->hide();
    Arrange(kSingleMessage.frame_top, kSingleMessage.close_top, kSingleMessage.window_height);
  } else if (filling.form == Form::kSeveral) {
    cboReminderList->clear();
    for (const std::string& entry : filling.Reminder_List) cboReminderList->addItem(QString::fromStdString(entry));
    cboReminderList->setCurrentIndex(-1);
    setWindowTitle(QString::fromStdString(filling.Caption));
    Set_Caption(lblMessage, filling.Message);
    cboReminderList->show();
    Arrange(kSeveralMessages.frame_top, kSeveralMessages.close_top, kSeveralMessages.window_height);
  }
  Show_Reminder_In_Front(*this);
  Set_Caption(lblDateOfMessage, filling.Date_Of_Message);
  Set_Caption(lblTimeOfMessage, filling.Time_Of_Message);
  Adjust_Message_Font_Size(static_cast<std::size_t>(lblMessage->text().size()));
}

void frmNonTaskReminderWindow::Adjust_Message_Font_Size(std::size_t Length_Of_Message) {
  QFont font = lblMessage->font();
  font.setPointSize(reminders::Message_Font_Size(Length_Of_Message));
  lblMessage->setFont(font);
}

void frmNonTaskReminderWindow::cboReminderList_Click() {
  Value message;
  {
    const reminders::FlagHold hold(Window<Form1>().Non_Task_Reminder_Flag());
    message = reminders::Chosen_Non_Task_Message(organizer::kNonTaskReminderFile, controls::Text_Of(cboReminderList));
  }
  Set_Caption(lblMessage, message.text());
  Adjust_Message_Font_Size(static_cast<std::size_t>(lblMessage->text().size()));
}

void frmNonTaskReminderWindow::cmdClose_Click() { hide(); }

}  // namespace orrivane
