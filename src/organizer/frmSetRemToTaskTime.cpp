#include "organizer/frmSetRemToTaskTime.h"

#include <optional>

#include "core/runtime_failure.h"
#include "organizer/ReminderBoxes.h"
#include "organizer/frmSetReminder.h"
#include "platform/controls.h"
#include "platform/window_registry.h"

namespace orrivane {

namespace {

using controls::Array_Name;
using controls::Make_Button;
using controls::Make_Label;

constexpr const char* kTimeLengthCaptions[] = {"Minute(s) and", "Hour(s) and", "+", "Days"};

// ---- Geometry, in pixels -------------------------------------------------------------------------
constexpr int kMargin = 12;
constexpr int kRowHeight = 24;
constexpr int kButtonHeight = 28;
constexpr int kButtonWidth = 90;
constexpr int kWhenWidth = 100;
constexpr int kTaskTimeLeft = kMargin + kWhenWidth + kMargin;
constexpr int kTaskTimeHeight = 78;
constexpr int kAmountTop = kMargin + kTaskTimeHeight + 8;
constexpr int kAmountHeight = 64;
constexpr int kAmountRow = 28;
constexpr int kButtonsTop = kAmountTop + kAmountHeight + 10;

// A box of the distance and its label, side by side.
struct AmountPlace {
  int box_left;
  int box_width;
  int label_width;
};
constexpr std::array<AmountPlace, organizer::kAmountBoxes> kAmountPlaces{{
    {10, 50, 86}, {152, 50, 72}, {280, 50, 16}, {352, 64, 40}}};
constexpr int kAmountWidth = 470;
constexpr int kWindowWidth = kAmountWidth + 2 * kMargin;
constexpr int kWindowHeight = kButtonsTop + kButtonHeight + kMargin;

}  // namespace

frmSetRemToTaskTime::frmSetRemToTaskTime() {
  setObjectName("frmSetRemToTaskTime");
  setWindowTitle("Base This Time On Task Occurance");
  Build_Controls();
  Place_Controls();
  Connect_Controls();
  // Until a relation is chosen there is no distance to give.
  Enable_Time_Amount(false);
}

void frmSetRemToTaskTime::Build_Controls() {
  cboWhen = controls::Make<QComboBox>(this, "cboWhen");
  for (std::string_view when : organizer::kWhenChoices) cboWhen->addItem(QString::fromUtf8(when.data(), when.size()));
  cboWhen->setCurrentIndex(-1);
  FraTaskTime = controls::Make<QGroupBox>(this, "FraTaskTime");
  OptStart = controls::Make<QRadioButton>(FraTaskTime, "OptStart", "Start Time of Task");
  optFinish = controls::Make<QRadioButton>(FraTaskTime, "optFinish", "Finish Time Of Task");
  fraTimeAmount = controls::Make<QGroupBox>(this, "fraTimeAmount");
  for (int box = 0; box < organizer::kAmountBoxes; ++box) {
    cboTimeLength[box] = controls::Make_Combo(fraTimeAmount, Array_Name("cboTimeLength", box), true);
    reminder_boxes::Fill(cboTimeLength[box], organizer::Amount_Choices(box));
    lblTimeLength[box] = Make_Label(fraTimeAmount, Array_Name("lblTimeLength", box), kTimeLengthCaptions[box]);
  }
  cmdOK = Make_Button(this, "cmdOK", "OK");
  cmdCancel = Make_Button(this, "cmdCancel", "Cancel");
}

void frmSetRemToTaskTime::Place_Controls() {
  cboWhen->setGeometry(kMargin, kMargin + 18, kWhenWidth, kRowHeight);
  FraTaskTime->setGeometry(kTaskTimeLeft, kMargin, kWindowWidth - kTaskTimeLeft - kMargin, kTaskTimeHeight);
  // Each option as wide as its caption, so that a click beside the caption falls on nothing.
  OptStart->move(10, 22);
  optFinish->move(10, 46);
  OptStart->adjustSize();
  optFinish->adjustSize();
  fraTimeAmount->setGeometry(kMargin, kAmountTop, kAmountWidth, kAmountHeight);
  for (int box = 0; box < organizer::kAmountBoxes; ++box) {
    const AmountPlace& place = kAmountPlaces[box];
    cboTimeLength[box]->setGeometry(place.box_left, kAmountRow, place.box_width, kRowHeight);
    lblTimeLength[box]->setGeometry(place.box_left + place.box_width + 4, kAmountRow, place.label_width, kRowHeight);
  }
  cmdOK->setGeometry(kWindowWidth - kMargin - 2 * kButtonWidth - 8, kButtonsTop, kButtonWidth, kButtonHeight);
  cmdCancel->setGeometry(kWindowWidth - kMargin - kButtonWidth, kButtonsTop, kButtonWidth, kButtonHeight);
  setFixedSize(kWindowWidth, kWindowHeight);
}

void frmSetRemToTaskTime::Connect_Controls() {
  connect(cboWhen, &QComboBox::activated, this, [this] { cboWhen_Click(); });
  connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

Value frmSetRemToTaskTime::Store_Calling_Sub_Origin(const std::string& verb, const Value& value) {
  if (verb == "Put") Calling_Sub_Origin = value;
  return Calling_Sub_Origin;
}

void frmSetRemToTaskTime::cboWhen_Click() {
  const std::string when = controls::Text_Of(cboWhen);
  FraTaskTime->setTitle(QString::fromStdString(when));
  Enable_Time_Amount(organizer::Takes_Time_Amount(when));
  fraTimeAmount->setTitle(QString::fromStdString(organizer::Time_Amount_Caption(when)));
}

void frmSetRemToTaskTime::Enable_Time_Amount(bool Value_) {
  reminder_boxes::Enable({fraTimeAmount, lblTimeLength[0], lblTimeLength[1], lblTimeLength[2], lblTimeLength[3]},
                         {cboTimeLength[0], cboTimeLength[1], cboTimeLength[2], cboTimeLength[3]}, Value_);
}

std::string frmSetRemToTaskTime::Anchor() const {
  for (const QRadioButton* option : {OptStart, optFinish}) {
    if (option->isChecked()) return option->text().toStdString();
  }
  return {};
}

void frmSetRemToTaskTime::cmdOK_Click() {
  const std::int64_t index = Store_Calling_Sub_Origin("Get").whole();
  if (index < 0 || index >= frmSetReminder::kMoments) throw RuntimeFailure(kSubscriptOutOfRange);
  const auto moment = static_cast<std::size_t>(index);
  const std::string when = FraTaskTime->title().toStdString();
  std::optional<organizer::AmountTexts> amounts;
  if (fraTimeAmount->isEnabled()) {
    amounts.emplace();
    for (std::size_t box = 0; box < amounts->size(); ++box) (*amounts)[box] = controls::Text_Of(cboTimeLength[box]);
  }

  frmSetReminder& reminder = Window<frmSetReminder>();
  controls::Set_Caption(reminder.lblDate[moment], organizer::Task_Tied_Date_Text(when, Anchor()));
  if (const std::optional<std::string> time = organizer::Task_Tied_Time_Text(when, amounts)) {
    controls::Set_Caption(reminder.lblTime[moment], *time);
  }
  hide();
}

void frmSetRemToTaskTime::cmdCancel_Click() { hide(); }

}  // namespace orrivane
