#include "organizer/frmFilterTasksEventsDisplayed.h"

#include <QStringList>
#include <initializer_list>

#include "engine/calendar_engine.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/reminder_moment.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/platform.h"
#include "platform/window_registry.h"

namespace orrivane {

namespace {

using controls::Make_Label;
using controls::Text_Of;
using organizer::FilterSide;
using organizer::kAfterSide;
using organizer::kBeforeSide;

constexpr FilterSide kBothSides[] = {kAfterSide, kBeforeSide};

// "00" to "59", "01" to "31" and so on, for the boxes.
QStringList Two_Digit_Numbers(organizer::TwoDigitRange range) {
  return controls::Texts(organizer::Two_Digit_Texts(range));
}

// A box that starts empty; an editable one takes what is typed as it stands, with no completion
// from its list and nothing added to it.
QComboBox* Make_Box(QWidget* parent, const QString& name, const QStringList& items, bool editable) {
  QComboBox* box = controls::Make_Combo(parent, name, editable);
  box->addItems(items);
  box->setMaxVisibleItems(12);
  box->setCurrentIndex(-1);
  return box;
}

// ---- Geometry, in pixels -----------------------------------------------------------------------
constexpr int kMargin = 12;
constexpr int kSideWidth = 300;
constexpr int kSideTop = 12;
constexpr int kBoxesTop = kSideTop + 30;
constexpr int kLabelWidth = 60;
constexpr int kBoxWidth = 70;
constexpr int kRowStep = 30;
constexpr int kColumnStep = kLabelWidth + kBoxWidth + 10;
constexpr int kRowHeight = 24;
constexpr int kButtonsTop = kBoxesTop + 3 * kRowStep + 16;
constexpr int kButtonWidth = 130;
constexpr int kButtonHeight = 28;
constexpr int kWindowWidth = 2 * kSideWidth + 3 * kMargin;
constexpr int kWindowHeight = kButtonsTop + kButtonHeight + kMargin;

// The boxes of a side in two columns of three rows: date, century and year on the left, month,
// hour and minute on the right.
struct BoxPlace {
  int column;
  int row;
};

}  // namespace

frmFilterTasksEventsDisplayed::frmFilterTasksEventsDisplayed() {
  setObjectName("frmFilterTasksEventsDisplayed");
  setWindowTitle("Filter Tasks\\Events Displayed");
  chkAfter = controls::Make<QCheckBox>(this, "chkAfter", "Display Only Tasks After Selected Time");
  chkBefore = controls::Make<QCheckBox>(this, "chkBefore", "Display Only Tasks Before Selected Time");
  Build_Side(kAfterSide, chkAfter);
  Build_Side(kBeforeSide, chkBefore);
  cmdSetDateFilters = controls::Make_Button(this, "cmdSetDateFilters", "Set Date Filters");
  cmdSetDateFilters->setDefault(true);
  cmdCancel = controls::Make_Button(this, "cmdCancel", "Cancel");
  Place_Controls();
  Connect_Controls();
}

void frmFilterTasksEventsDisplayed::Build_Side(FilterSide side, QCheckBox* check) {
  check->setChecked(true);
  const auto name = [side](const char* control) { return controls::Array_Name(control, side); };
  lblMonth[side] = Make_Label(this, name("lblMonth"), "Month:");
  ComboMonths[side] =
      Make_Box(this, name("ComboMonths"), controls::Texts(organizer::Three_Letter_Month_Texts()), false);
  lblDate[side] = Make_Label(this, name("lblDate"), "Date:");
  ComboDate[side] = Make_Box(this, name("ComboDate"), Two_Digit_Numbers(organizer::kDateBoxRange), false);
  lblCentury[side] = Make_Label(this, name("lblCentury"), "Century:");
  ComboCentury[side] = Make_Box(this, name("ComboCentury"), Two_Digit_Numbers(organizer::kCenturyBoxRange), true);
  lblYear[side] = Make_Label(this, name("lblYear"), "Year:");
  ComboYear[side] = Make_Box(this, name("ComboYear"), Two_Digit_Numbers(organizer::kYearBoxRange), false);
  lblHour[side] = Make_Label(this, name("lblHour"), "Hour:");
  cboHour[side] = Make_Box(this, name("cboHour"), Two_Digit_Numbers(organizer::kHourBoxRange), false);
  lblMinute[side] = Make_Label(this, name("lblMinute"), "Minute:");
  cboMinute[side] = Make_Box(this, name("cboMinute"), Two_Digit_Numbers(organizer::kMinuteBoxRange), false);
}

void frmFilterTasksEventsDisplayed::Place_Controls() {
  for (const FilterSide side : kBothSides) {
    const int left = kMargin + side * (kSideWidth + kMargin);
    Check_Of(side)->setGeometry(left, kSideTop, kSideWidth, kRowHeight);
    const struct {
      QLabel* label;
      QComboBox* box;
      BoxPlace place;
    } boxes[] = {
        {lblMonth[side], ComboMonths[side], {0, 0}}, {lblDate[side], ComboDate[side], {0, 1}},
        {lblCentury[side], ComboCentury[side], {1, 0}}, {lblYear[side], ComboYear[side], {1, 1}},
        {lblHour[side], cboHour[side], {0, 2}},      {lblMinute[side], cboMinute[side], {1, 2}},
    };
    for (const auto& [label, box, place] : boxes) {
      const int x = left + place.column * kColumnStep;
      const int y = kBoxesTop + place.row * kRowStep;
      label->setGeometry(x, y, kLabelWidth, kRowHeight);
      box->setGeometry(x + kLabelWidth, y, kBoxWidth, kRowHeight);
    }
  }
  cmdSetDateFilters->setGeometry(kWindowWidth / 2 - kButtonWidth - 6, kButtonsTop, kButtonWidth, kButtonHeight);
  cmdCancel->setGeometry(kWindowWidth / 2 + 6, kButtonsTop, kButtonWidth, kButtonHeight);
  setFixedSize(kWindowWidth, kWindowHeight);
}

void frmFilterTasksEventsDisplayed::Connect_Controls() {
  connect(chkAfter, &QCheckBox::clicked, this, [this] { chkAfter_Click(); });
  connect(chkBefore, &QCheckBox::clicked, this, [this] { chkBefore_Click(); });
  connect(cmdSetDateFilters, &QPushButton::clicked, this, [this] { cmdSetDateFilters_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

QCheckBox* frmFilterTasksEventsDisplayed::Check_Of(FilterSide side) const {
  return side == kAfterSide ? chkAfter : chkBefore;
}

void frmFilterTasksEventsDisplayed::Enable_Side(FilterSide side) {
  const bool on = Check_Of(side)->isChecked();
  for (QWidget* control : std::initializer_list<QWidget*>{lblMonth[side], ComboMonths[side], lblDate[side],
                                                          ComboDate[side], lblCentury[side], ComboCentury[side],
                                                          lblYear[side], ComboYear[side], lblHour[side],
                                                          cboHour[side], lblMinute[side], cboMinute[side]}) {
    control->setEnabled(on);
  }
}

// At least one of the two stays on.
void frmFilterTasksEventsDisplayed::chkAfter_Click() {
  if (!chkBefore->isChecked()) chkAfter->setChecked(true);
  Enable_Side(kAfterSide);
}

void frmFilterTasksEventsDisplayed::chkBefore_Click() {
  if (!chkAfter->isChecked()) chkBefore->setChecked(true);
  Enable_Side(kBeforeSide);
}

std::optional<organizer::FilterBoxes> frmFilterTasksEventsDisplayed::Read_Side(FilterSide side) const {
  if (!Check_Of(side)->isChecked()) return std::nullopt;
  return organizer::FilterBoxes{Text_Of(ComboMonths[side]), Text_Of(ComboDate[side]), Text_Of(ComboCentury[side]),
                                Text_Of(ComboYear[side]),   Text_Of(cboHour[side]),   Text_Of(cboMinute[side])};
}

void frmFilterTasksEventsDisplayed::cmdSetDateFilters_Click() {
  const platform::ClockReading now = platform::Machine().Read_Clock();
  const organizer::FilterDatesResult result =
      organizer::Set_Date_Filters(Read_Side(kAfterSide), Read_Side(kBeforeSide), now.date, now.time);
  if (result.Error != 0) {
    platform::Show_Message(organizer::Filter_Dates_Message(result));
    return;
  }
  frmScheduler_Reminder& organizer_window = Window<frmScheduler_Reminder>();
  controls::Set_Caption(organizer_window.lblAfterRange, result.After_Caption);
  controls::Set_Caption(organizer_window.lblBeforeRange, result.Before_Caption);
  hide();
}

void frmFilterTasksEventsDisplayed::cmdCancel_Click() { hide(); }

}  // namespace orrivane
