// The multi-purpose window's non-task reminders: creating or changing one in frame 3
// (fraNonTaskReminders), choosing one to change or delete in frame 4 (fraViewOrDeleteNTRem).
#include <QFont>

#include "calendar/Form1.h"
#include "engine/vocabulary.h"
#include "organizer/time_period_selection.h"
#include "organizer/working_files.h"
#include "platform/controls.h"
#include "platform/window_registry.h"
#include "reminders/MultiPurposeFrames.h"
#include "reminders/frmMultiPurposeForm.h"
#include "reminders/in_use_flags.h"
#include "reminders/non_task_reminders.h"

namespace orrivane {

namespace {

using multi_purpose_frames::kBoxHeight;
using multi_purpose_frames::Frame_Height;
using multi_purpose_frames::Frame_Width;
using multi_purpose_frames::kButtonHeight;
using multi_purpose_frames::kButtonWidth;
using multi_purpose_frames::kMargin;
using multi_purpose_frames::kRowHeight;
using multi_purpose_frames::Make_Placed;

// ---- Frame 3's geometry, in pixels ----------------------------------------------------------------
constexpr int kWidth3 = Frame_Width(reminders::kNonTaskRemindersFrame);
constexpr int kHeight3 = Frame_Height(reminders::kNonTaskRemindersFrame);
constexpr int kTextLeft = 84;  // the boxes right of their labels
constexpr int kTextWidth = kWidth3 - kTextLeft - kMargin;
constexpr int kLabelWidth = kTextLeft - kMargin - 4;
constexpr int kRowStep = 30;
constexpr int kTitleTop = kMargin;
constexpr int kMessageTop = kTitleTop + kRowStep;
constexpr int kMomentTop = kMessageTop + kRowStep + 2;
constexpr int kSetTop = kMomentTop + kRowStep;
constexpr int kStatusLeft = kTextLeft + 40;
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
constexpr organizer::TwoDigitRange kHourRange{0, 23};
constexpr organizer::TwoDigitRange kMinuteRange{0, 59};
constexpr organizer::TwoDigitRange kCenturyRange{19, 21};

QStringList Texts(const std::vector<std::string>& texts) {
  QStringList list;
  for (const std::string& text : texts) list.append(QString::fromStdString(text));
  return list;
}

QStringList Three_Letter_Months() {
  QStringList months;
  for (int month = 1; month <= 12; ++month) months.append(QString::fromStdString(engine::Full_Month_Name(month)).left(3));
  return months;
}

}  // namespace

void frmMultiPurposeForm::Build_Non_Task_Frames() {
  using F = frmMultiPurposeForm;
  QWidget* frame3 = fraNonTaskReminders;
  Make_Placed<QLabel>(*this, frame3,
                      {{&F::Label4, "Label4", "Title:", {kMargin, kTitleTop + 2, kLabelWidth, kRowHeight}},
                       {&F::Label3, "Label3", "Message:", {kMargin, kMessageTop + 2, kLabelWidth, kRowHeight}},
                       {&F::Label6, "Label6", "Message At:", {kMargin, kMomentTop, kLabelWidth, kRowHeight}},
                       {&F::lblTimeOfMessage_3, "lblTimeOfMessage_3", nullptr,
                        {kTextLeft, kMomentTop, kTextWidth, kRowHeight}},
                       {&F::Label8, "Label8", "Status:", {kTextLeft, kSetTop + 2, 40, kRowHeight}},
                       {&F::lblStatus_3, "lblStatus_3", "ON", {kStatusLeft, kSetTop + 2, 40, kRowHeight}},
                       {&F::Label5, "Label5", "Change Time (All fields optional):",
                        {kMargin, kChangeTop, kWidth3 - 2 * kMargin, kRowHeight}},
                       {&F::lblHour, "lblHour", "Hour\\Min:", {kMargin, kComboTop + 3, kLabelWidth, kRowHeight}},
                       {&F::LblSelectDate, "LblSelectDate", "Month\\Date:",
                        {kMargin, kComboTop + kComboStep + 3, kLabelWidth, kRowHeight}},
                       {&F::LblCentury, "LblCentury", "Century\\Year:",
                        {kMargin, kComboTop + 2 * kComboStep + 3, kLabelWidth, kRowHeight}}});
  Make_Placed<QLineEdit>(*this, frame3,
                         {{&F::txtReminderTitle_3, "txtReminderTitle_3", nullptr,
                           {kTextLeft, kTitleTop, kTextWidth, kBoxHeight}},
                          {&F::txtReminderMessage_3, "txtReminderMessage_3", nullptr,
                           {kTextLeft, kMessageTop, kTextWidth, kBoxHeight}}});
  Make_Placed<QCheckBox>(*this, frame3, {{&F::chkSet_3, "chkSet_3", "Set", {kMargin, kSetTop, kLabelWidth, 24}}});
  chkSet_3->setChecked(true);
  QFont status_font = lblStatus_3->font();
  status_font.setBold(true);
  lblStatus_3->setFont(status_font);
  controls::Set_Fore_Color(lblStatus_3, controls::kRed);

  struct BoxRow {
    QComboBox* F::* member;
    const char* name;
    QStringList items;
    int left;
    int top;
  };
  const BoxRow boxes[] = {
      {&F::cboHour, "cboHour", Texts(organizer::Two_Digit_Texts(kHourRange)), kTextLeft, kComboTop},
      {&F::cboMinute, "cboMinute", Texts(organizer::Two_Digit_Texts(kMinuteRange)), kSecondComboLeft, kComboTop},
      {&F::ComboMonths, "ComboMonths", Three_Letter_Months(), kTextLeft, kComboTop + kComboStep},
      {&F::ComboDate, "ComboDate", Texts(organizer::Two_Digit_Texts(organizer::kDateBoxRange)), kSecondComboLeft,
       kComboTop + kComboStep},
      {&F::ComboCentury, "ComboCentury", Texts(organizer::Two_Digit_Texts(kCenturyRange)), kTextLeft,
       kComboTop + 2 * kComboStep},
      {&F::ComboYear, "ComboYear", Texts(organizer::Two_Digit_Texts(organizer::kYearBoxRange)), kSecondComboLeft,
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

void frmMultiPurposeForm::Connect_Non_Task_Frames() {}

// The moment of a new reminder is set here by the non-task reminders' own procedures.
void frmMultiPurposeForm::Non_Task_Reminder_Frame_Shown(std::string_view) {}

// The list of the messages of NTRemin.dat, read under its flag; a missing file leaves it empty.
void frmMultiPurposeForm::Prepare_View_Or_Delete_NT_Reminder_Frame(std::string_view) {
  const reminders::FlagHold hold(Window<Form1>().Non_Task_Reminder_Flag());
  lstMessageToViewOrDel_4->clear();
  auto file = reminders::NonTaskReminderReader::Open_If_Present(organizer::kNonTaskReminderFile);
  if (!file) return;
  reminders::NonTaskReminderRecord record;
  while (file->Next(record)) {
    const std::string item = record.NT_Record_Number.text() + " - " + record.NT_Title.text() + ", " +
                             reminders::Cvrt_NTTimeDateStrg_To_12h_Tm(record.NT_Time_String.text());
    lstMessageToViewOrDel_4->addItem(QString::fromStdString(item));
  }
}

}  // namespace orrivane
