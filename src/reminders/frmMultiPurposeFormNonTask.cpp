// The multi-purpose window's non-task reminders: creating or changing one in frame 3
// (fraNonTaskReminders), choosing one to change or delete in frame 4 (fraViewOrDeleteNTRem).
#include <QFont>

#include "calendar/Form1.h"
#include "engine/vocabulary.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/organizer_callers.h"
#include "organizer/reminder_moment.h"
#include "organizer/time_period_selection.h"
#include "organizer/working_files.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/platform.h"
#include "platform/window_registry.h"
#include "reminders/MultiPurposeFrames.h"
#include "reminders/frmMultiPurposeForm.h"
#include "reminders/in_use_flags.h"
#include "reminders/non_task_entry.h"
#include "reminders/non_task_reminders.h"

namespace orrivane {

namespace {

// The frames' common measures and their way of making controls.
using namespace multi_purpose_frames;
using controls::Texts;
using organizer::Three_Letter_Month_Texts;
using organizer::Two_Digit_Texts;

// ---- Frame 3's geometry, in pixels ----------------------------------------------------------------
constexpr int kWidth3 = Frame_Width(reminders::kNonTaskRemindersFrame);
constexpr int kHeight3 = Frame_Height(reminders::kNonTaskRemindersFrame);
constexpr int kLabelWidth = 84;  // "Century\Year:", the longest caption of the left column
constexpr int kTextLeft = kMargin + kLabelWidth + 4;  // the boxes right of their labels
constexpr int kTextWidth = kWidth3 - kTextLeft - kMargin;
constexpr int kRowStep = 30;
constexpr int kTitleTop = kMargin;
constexpr int kMessageTop = kTitleTop + kRowStep;
constexpr int kMessageHeight = 3 * kRowHeight;  // the message takes lines
// The moment has a row of its own under its caption: "11:59 PM, September 30, 2199" is wider
// than the boxes' column.
constexpr int kMomentCaptionTop = kMessageTop + kMessageHeight + 8;
constexpr int kMomentTop = kMomentCaptionTop + kRowHeight;
constexpr int kMomentLeft = kMargin + 16;
constexpr int kSetTop = kMomentTop + kRowStep - 4;
constexpr int kStatusCaptionWidth = 48;
constexpr int kStatusLeft = kTextLeft + kStatusCaptionWidth + 4;
constexpr int kStatusWidth = 40;
constexpr int kChangeTop = kSetTop + kRowStep + 4;
constexpr int kComboTop = kChangeTop + 26;
constexpr int kComboWidth = (kTextWidth - 6) / 2;
constexpr int kSecondComboLeft = kTextLeft + kComboWidth + 6;
constexpr int kComboStep = 32;
constexpr int kComboHeight = 26;
constexpr int kBottomRow3 = kHeight3 - kMargin - kButtonHeight;
static_assert(kComboTop + 3 * kComboStep < kBottomRow3, "the boxes of frame 3 stand above its buttons");

// ---- Frame 4's geometry, in pixels ----------------------------------------------------------------
constexpr int kWidth4 = Frame_Width(reminders::kViewOrDeleteNTRemFrame);
constexpr int kHeight4 = Frame_Height(reminders::kViewOrDeleteNTRemFrame);
constexpr int kListTop4 = 28;
constexpr int kBottomRow4 = kHeight4 - kMargin - kButtonHeight;

// The boxes' lists: hours "00" to "23", minutes "00" to "59", "Jan" to "Dec", dates "01" to
// "31", the centuries "19" to "21" and the years "00" to "99".
}  // namespace

void frmMultiPurposeForm::Build_Non_Task_Frames() {
  using F = frmMultiPurposeForm;
  QWidget* frame3 = fraNonTaskReminders;
  Make_Placed<QLabel>(*this, frame3,
                      {{&F::Label4, "Label4", "Title:", {kMargin, kTitleTop + 2, kLabelWidth, kRowHeight}},
                       {&F::Label3, "Label3", "Message:", {kMargin, kMessageTop + 2, kLabelWidth, kRowHeight}},
                       {&F::Label6, "Label6", "Message At:", {kMargin, kMomentCaptionTop, kLabelWidth, kRowHeight}},
                       {&F::lblTimeOfMessage_3, "lblTimeOfMessage_3", nullptr,
                        {kMomentLeft, kMomentTop, kWidth3 - kMomentLeft - kMargin, kRowHeight}},
                       {&F::Label8, "Label8", "Status:", {kTextLeft, kSetTop + 2, kStatusCaptionWidth, kRowHeight}},
                       {&F::lblStatus_3, "lblStatus_3", "ON", {kStatusLeft, kSetTop + 2, kStatusWidth, kRowHeight}},
                       {&F::Label5, "Label5", "Change Time (All fields optional):",
                        {kMargin, kChangeTop, kWidth3 - 2 * kMargin, kRowHeight}},
                       {&F::lblHour, "lblHour", "Hour\\Min:", {kMargin, kComboTop + 3, kLabelWidth, kRowHeight}},
                       {&F::LblSelectDate, "LblSelectDate", "Month\\Date:",
                        {kMargin, kComboTop + kComboStep + 3, kLabelWidth, kRowHeight}},
                       {&F::LblCentury, "LblCentury", "Century\\Year:",
                        {kMargin, kComboTop + 2 * kComboStep + 3, kLabelWidth, kRowHeight}}});
  Make_Placed<QLineEdit>(*this, frame3,
                         {{&F::txtReminderTitle_3, "txtReminderTitle_3", nullptr,
                           {kTextLeft, kTitleTop, kTextWidth, kBoxHeight}}});
  Make_Placed<QPlainTextEdit>(*this, frame3,
                              {{&F::txtReminderMessage_3, "txtReminderMessage_3", nullptr,
                                {kTextLeft, kMessageTop, kTextWidth, kMessageHeight}}});
  txtReminderMessage_3->setTabChangesFocus(true);  // Enter breaks a line, Tab goes on
  Make_Placed<QCheckBox>(*this, frame3, {{&F::chkSet_3, "chkSet_3", "Set", {kMargin, kSetTop, kLabelWidth, 24}}});
  chkSet_3->setChecked(true);
  Show_NT_Status(true);

  struct BoxRow {
    QComboBox* F::* member;
    const char* name;
    QStringList items;
    int left;
    int top;
  };
  const BoxRow boxes[] = {
      {&F::cboHour, "cboHour", Texts(Two_Digit_Texts(organizer::kHourBoxRange)), kTextLeft, kComboTop},
      {&F::cboMinute, "cboMinute", Texts(Two_Digit_Texts(organizer::kMinuteBoxRange)), kSecondComboLeft, kComboTop},
      {&F::ComboMonths, "ComboMonths", Texts(Three_Letter_Month_Texts()), kTextLeft, kComboTop + kComboStep},
      {&F::ComboDate, "ComboDate", Texts(Two_Digit_Texts(organizer::kDateBoxRange)), kSecondComboLeft,
       kComboTop + kComboStep},
      {&F::ComboCentury, "ComboCentury", Texts(Two_Digit_Texts(organizer::kReminderCenturyRange)), kTextLeft,
       kComboTop + 2 * kComboStep},
      {&F::ComboYear, "ComboYear", Texts(Two_Digit_Texts(organizer::kYearBoxRange)), kSecondComboLeft,
       kComboTop + 2 * kComboStep},
  };
  for (const BoxRow& row : boxes) {
    // The one element of each array, at index 3.
    QComboBox* box = controls::Make<QComboBox>(frame3, controls::Array_Name(row.name, reminders::kNonTaskRemindersFrame));
    box->addItems(row.items);
    box->setCurrentIndex(-1);
    box->setGeometry(row.left, row.top, kComboWidth, kComboHeight);
    this->*row.member = box;
  }
  Make_Placed<QPushButton>(*this, frame3,
                           {{&F::cmdAdd_3, "cmdAdd_3", "Add", {kMargin, kBottomRow3, kButtonWidth, kButtonHeight}}});

  QWidget* frame4 = fraViewOrDeleteNTRem;
  Make_Placed<QLabel>(*this, frame4,
                      {{&F::lblHeadingLabel_4, "lblHeadingLabel_4", "Select Message To View",
                        {kMargin, 6, kWidth4 - 2 * kMargin, kRowHeight}}});
  Make_Placed<QListWidget>(*this, frame4,
                           {{&F::lstMessageToViewOrDel_4, "lstMessageToViewOrDel_4", nullptr,
                             {kMargin, kListTop4, kWidth4 - 2 * kMargin, kBottomRow4 - kMargin - kListTop4}}});
  Make_Placed<QPushButton>(*this, frame4,
                           {{&F::cmdDelete_4, "cmdDelete_4", "Select",
                             {kWidth4 - 2 * (kMargin + kButtonWidth), kBottomRow4, kButtonWidth, kButtonHeight}}});
}

namespace {

// The combos of frame 3 and the part of the moment each rewrites.
struct MomentCombo {
  QComboBox* frmMultiPurposeForm::* box;
  const char* part;
};
constexpr MomentCombo kMomentCombos[] = {
    {&frmMultiPurposeForm::cboHour, "Hour"},      {&frmMultiPurposeForm::cboMinute, "Minute"},
    {&frmMultiPurposeForm::ComboMonths, "Month"}, {&frmMultiPurposeForm::ComboDate, "Date"},
    {&frmMultiPurposeForm::ComboYear, "Year"},    {&frmMultiPurposeForm::ComboCentury, "Century"},
};

}  // namespace

void frmMultiPurposeForm::Connect_Non_Task_Frames() {
  connect(chkSet_3, &QCheckBox::clicked, this, [this] { chkSet_3_Click(); });
  for (const MomentCombo& combo : kMomentCombos) {
    connect(this->*combo.box, &QComboBox::activated, this, [this, part = combo.part] { Change_Full_String(part); });
  }
  connect(cmdAdd_3, &QPushButton::clicked, this, [this] { cmdAdd_3_Click(); });
  // A click on an entry, or an entry chosen with the arrow keys.
  connect(lstMessageToViewOrDel_4, &QListWidget::itemClicked, this, [this] { lstMessageToViewOrDel_4_Click(); });
  connect(lstMessageToViewOrDel_4, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* now) {
    if (now != nullptr && now->isSelected()) lstMessageToViewOrDel_4_Click();
  });
  connect(lstMessageToViewOrDel_4, &QListWidget::itemDoubleClicked, this,
          [this] { lstMessageToViewOrDel_4_DblClick(); });
  connect(cmdDelete_4, &QPushButton::clicked, this, [this] { cmdDelete_4_Click(); });
}

// ---- Frame 3: creating or changing a reminder ----------------------------------------------------

// "Add" starts from the present moment; the title, the message, the check box and the combos keep
// what they held last. A change shows what View_Or_Delete_NT_Reminder put there.
void frmMultiPurposeForm::Non_Task_Reminder_Frame_Shown(std::string_view Calling_Sub_Origin) {
  if (Calling_Sub_Origin != organizer::kActivateNonTaskReminderWindow) return;
  const platform::ClockReading now = platform::Machine().Read_Clock();
  controls::Set_Caption(lblTimeOfMessage_3, reminders::Present_Non_Task_Moment(now.date, now.time));
}

void frmMultiPurposeForm::Show_NT_Status(bool on) {
  const reminders::StatusLook look = reminders::Non_Task_Status_Look(on);
  controls::Set_Caption(lblStatus_3, look.caption);
  QFont font = lblStatus_3->font();
  font.setBold(look.bold);
  lblStatus_3->setFont(font);
  controls::Set_Fore_Color(lblStatus_3, look.colour);
}

void frmMultiPurposeForm::chkSet_3_Click() { Show_NT_Status(chkSet_3->isChecked()); }

void frmMultiPurposeForm::Change_Full_String(std::string_view Part_To_Change) {
  for (const MomentCombo& combo : kMomentCombos) {
    if (Part_To_Change != combo.part) continue;
    controls::Set_Caption(lblTimeOfMessage_3,
                          reminders::Change_Full_String(controls::Caption(lblTimeOfMessage_3), Part_To_Change,
                                                        controls::Text_Of(this->*combo.box)));
  }
}

void frmMultiPurposeForm::cmdAdd_3_Click() {
  const reminders::NonTaskEntry entry{chkSet_3->isChecked() ? 1 : 0, controls::Text_Of(txtReminderTitle_3),
                                      controls::Lines_Of(txtReminderMessage_3), controls::Caption(lblTimeOfMessage_3)};
  if (const Message invalid = reminders::Non_Task_Date_Message(entry.label); !invalid.empty()) {
    platform::Show_Message(invalid);
    return;
  }
  const std::string mode = cmdAdd_3->text().toStdString();
  Message saved;
  {
    const reminders::FlagHold hold(Window<Form1>().Non_Task_Reminder_Flag());
    saved = reminders::Save_Non_Task_Reminder(organizer::kNonTaskReminderFile, organizer::kNonTaskReminderScratchFile,
                                              mode, Selected_NT_Record_Number, entry);
  }
  // The flag is free again: a tick under the message box reads the file.
  if (!saved.empty()) platform::Show_Message(saved);
  if (mode == reminders::kUpdateCaption) Form_Termination_Routine();
}

// ---- Frame 4: choosing a reminder ----------------------------------------------------------------

// The list of the reminders of NTRemin.dat, read under its flag; a missing file leaves it empty.
void frmMultiPurposeForm::Prepare_View_Or_Delete_NT_Reminder_Frame(std::string_view) {
  const reminders::FlagHold hold(Window<Form1>().Non_Task_Reminder_Flag());
  lstMessageToViewOrDel_4->clear();
  for (const std::string& item : reminders::Non_Task_List_Items(organizer::kNonTaskReminderFile)) {
    lstMessageToViewOrDel_4->addItem(QString::fromStdString(item));
  }
}

void frmMultiPurposeForm::lstMessageToViewOrDel_4_Click() { cmdDelete_4->setEnabled(true); }

void frmMultiPurposeForm::lstMessageToViewOrDel_4_DblClick() {
  if (cmdDelete_4->text() == reminders::kSelectCaption) cmdDelete_4_Click();
}

void frmMultiPurposeForm::cmdDelete_4_Click() { View_Or_Delete_NT_Reminder(); }

void frmMultiPurposeForm::View_Or_Delete_NT_Reminder() {
  const QListWidgetItem* chosen = lstMessageToViewOrDel_4->currentItem();
  const QString item = chosen != nullptr ? chosen->text() : QString();
  const Value number = reminders::Chosen_NT_Record_Number(item.toStdString());
  const std::string mode = cmdDelete_4->text().toStdString();
  {
    const reminders::FlagHold hold(Window<Form1>().Non_Task_Reminder_Flag());
    reminders::Create_Non_Task_Reminder_File(organizer::kNonTaskReminderFile);
    if (mode == reminders::kDeleteCaption) {
      // No question is asked, and the window stays open for the next one.
      reminders::Drop_Non_Task_Reminder(organizer::kNonTaskReminderFile, organizer::kNonTaskReminderScratchFile,
                                        number);
      for (QListWidgetItem* same : lstMessageToViewOrDel_4->findItems(item, Qt::MatchExactly)) delete same;
      cmdDelete_4->setEnabled(false);
    }
  }
  if (mode != reminders::kSelectCaption) return;
  const reminders::NonTaskReminderRecord record =
      reminders::Find_Non_Task_Reminder(organizer::kNonTaskReminderFile, number);
  Selected_NT_Record_Number = number;
  controls::Set_Caption(lblTimeOfMessage_3, reminders::Cvrt_NTTimeDateStrg_To_12h_Tm(record.NT_Time_String.text()));
  txtReminderMessage_3->setPlainText(QString::fromStdString(record.NT_Message.text()));
  txtReminderTitle_3->setText(QString::fromStdString(record.NT_Title.text()));
  const bool on = record.NT_Status == Value(1);
  chkSet_3->setChecked(on);
  Show_NT_Status(on);
  Form_Termination_Routine();
  Window<frmScheduler_Reminder>().Activate_Change_NT_Task_Window();
}

}  // namespace orrivane
