#include "elapsed/frmFindDateDifference.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <initializer_list>
#include <optional>
#include <utility>

#include "calendar/Form1.h"
#include "calendar/calendar_callers.h"
#include "core/value.h"
#include "engine/calendar_engine.h"
#include "organizer/date_time_text.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/platform.h"
#include "platform/window_registry.h"

namespace orrivane {

namespace {

using platform::Machine;

// Where a side's moment comes from, inside one click of cmdENTER.
constexpr char kTime1[] = "Time 1";
constexpr char kTime2[] = "Time 2";
constexpr char kSystem[] = "System";

constexpr char kTime1Heading[] = "Time 1 Selection: ";
constexpr char kTime2Heading[] = "Time 2 Selection: ";
constexpr char kCurrentTimeHeading[] = "Current Time: ";

// What each compare option measures, and the headings it gives the two moments.
struct Comparison {
  QRadioButton* frmFindDateDifference::* option;
  const char* heading[2];
  const char* source[2];
};
constexpr Comparison kComparisons[] = {
    {&frmFindDateDifference::optTime1Time2, {kTime1Heading, kTime2Heading}, {kTime1, kTime2}},
    {&frmFindDateDifference::optTime1CurrentTime, {kTime1Heading, kCurrentTimeHeading}, {kTime1, kSystem}},
    {&frmFindDateDifference::optTime2CurrentTime, {kCurrentTimeHeading, kTime2Heading}, {kSystem, kTime2}},
};

using controls::Make_Label;
using controls::Text_Of;

using controls::Make_Combo;

QCheckBox* Make_Check(QWidget* parent, const char* name, const char* caption) {
  auto* check = new QCheckBox(caption, parent);
  check->setObjectName(name);
  check->setChecked(true);
  return check;
}

using controls::Make_Button;

QGroupBox* Make_Frame(QWidget* parent, const char* name, const char* caption) {
  auto* frame = new QGroupBox(caption, parent);
  frame->setObjectName(name);
  return frame;
}

// The options of a frame, one under the other, each as wide as its caption so that a click
// beside the caption falls on nothing.
void Stack(QGroupBox* frame, std::initializer_list<QRadioButton*> options) {
  auto* column = new QVBoxLayout(frame);
  for (QRadioButton* option : options) column->addWidget(option, 0, Qt::AlignLeft);
  column->addStretch();
}

// "00" to "99", "01" to "31"...
void Add_Two_Digit_Numbers(QComboBox* combo, int first, int last) {
  for (int n = first; n <= last; ++n) combo->addItem(QString("%1").arg(n, 2, 10, QChar('0')));
}


// An editable box shows the text; the list follows it where it holds the same entry.
void Set_Combo_Text(QComboBox* combo, const std::string& text) {
  const QString shown = QString::fromStdString(text);
  combo->setCurrentIndex(combo->findText(shown));
  combo->setEditText(shown);
}

}  // namespace

frmFindDateDifference::frmFindDateDifference() {
  setObjectName("frmFindDateDifference");
  setWindowTitle("Find Time Difference Between Two Selected Times");
  fraDate1 = Make_Frame(this, "fraDate1", "Time 1 Selection");
  FraDate2 = Make_Frame(this, "FraDate2", "Time 2 Selection");
  Build_Date_Selection(0, fraDate1);
  Build_Date_Selection(1, FraDate2);
  Build_Options();
  Build_Results();
  Place_Controls();
  Connect_Controls();
  Form_Load();
}

// ---- Building ----------------------------------------------------------------------------------

void frmFindDateDifference::Build_Date_Selection(int side, QGroupBox* frame) {
  const auto name = [side](const char* control) { return controls::Array_Name(control, side); };
  LblSelectDate[side] = Make_Label(frame, name("LblSelectDate"), "Month\\Date:");
  ComboMonths[side] = Make_Combo(frame, name("ComboMonths"), false);
  for (int month = 1; month <= 12; ++month) {
    ComboMonths[side]->addItem(QString::fromStdString(engine::Define_Month(month, "Get Month Name").text()));
  }
  ComboMonths[side]->setMaxVisibleItems(12);
  ComboDate[side] = Make_Combo(frame, name("ComboDate"), false);
  Add_Two_Digit_Numbers(ComboDate[side], 1, 31);
  LblCentury[side] = Make_Label(frame, name("LblCentury"), "Century:");
  // Any century may be typed; the list offers the first hundred.
  ComboCentury[side] = Make_Combo(frame, name("ComboCentury"), true);
  Add_Two_Digit_Numbers(ComboCentury[side], 0, 99);
  LblYear[side] = Make_Label(frame, name("LblYear"), "Year:");
  ComboYear[side] = Make_Combo(frame, name("ComboYear"), false);
  Add_Two_Digit_Numbers(ComboYear[side], 0, 99);
  lblHour[side] = Make_Label(frame, name("lblHour"), "Hour:");
  cboHour[side] = Make_Combo(frame, name("cboHour"), false);
  Add_Two_Digit_Numbers(cboHour[side], 0, 23);
  lblMin[side] = Make_Label(frame, name("lblMin"), "Minute:");
  cboMinute[side] = Make_Combo(frame, name("cboMinute"), false);
  Add_Two_Digit_Numbers(cboMinute[side], 0, 59);
  // A blank box stands for the present (see Fill_In_Blanks), so the lists start with nothing chosen.
  for (QComboBox* blank : {ComboMonths[side], ComboDate[side], ComboYear[side], cboHour[side], cboMinute[side]}) {
    blank->setCurrentIndex(-1);
  }

  auto* grid = new QGridLayout(frame);
  for (QLabel* caption : {LblSelectDate[side], LblCentury[side], LblYear[side], lblHour[side], lblMin[side]}) {
    caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  }
  grid->addWidget(LblSelectDate[side], 0, 0);
  grid->addWidget(ComboMonths[side], 0, 1, 1, 2);
  grid->addWidget(ComboDate[side], 0, 3);
  grid->addWidget(LblCentury[side], 1, 0);
  grid->addWidget(ComboCentury[side], 1, 1);
  grid->addWidget(LblYear[side], 1, 2);
  grid->addWidget(ComboYear[side], 1, 3);
  grid->addWidget(lblHour[side], 2, 0);
  grid->addWidget(cboHour[side], 2, 1);
  grid->addWidget(lblMin[side], 2, 2);
  grid->addWidget(cboMinute[side], 2, 3);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
}

void frmFindDateDifference::Build_Options() {
  fraCompare = Make_Frame(this, "fraCompare", "Compare");
  optTime1Time2 = controls::Make<QRadioButton>(fraCompare, "optTime1Time2", "Time 1 - Time 2");
  optTime1CurrentTime = controls::Make<QRadioButton>(fraCompare, "optTime1CurrentTime", "Time 1 - Current Time");
  optTime2CurrentTime = controls::Make<QRadioButton>(fraCompare, "optTime2CurrentTime", "Time 2 - Current Time");
  optTime1Time2->setChecked(true);

  fraCalendarStyle = Make_Frame(this, "fraCalendarStyle", "Calendar Style");
  optGregorian = controls::Make<QRadioButton>(fraCalendarStyle, "optGregorian", "Gregorian Calendar Style");
  optJulian = controls::Make<QRadioButton>(fraCalendarStyle, "optJulian", "Julian Calendar Style");
  optGregorian->setChecked(true);

  fraDisplay = Make_Frame(this, "fraDisplay", "Display");
  optTotal = controls::Make<QRadioButton>(fraDisplay, "optTotal", "Total Time Difference Is Displayed For Each Time Increment");
  OptRemaining = controls::Make<QRadioButton>(
      fraDisplay, "OptRemaining",
      "Remaining Time Difference After Larger Time Increments Are Distributed To Smaller Time Increments");
  OptRemaining->setChecked(true);

  Stack(fraCompare, {optTime1Time2, optTime1CurrentTime, optTime2CurrentTime});
  Stack(fraCalendarStyle, {optGregorian, optJulian});
  Stack(fraDisplay, {optTotal, OptRemaining});
}

void frmFindDateDifference::Build_Results() {
  fraResults = Make_Frame(this, "fraResults", "Time Difference");
  chkYears = Make_Check(fraResults, "chkYears", "Years");
  chkMonths = Make_Check(fraResults, "chkMonths", "Months");
  chkDays = Make_Check(fraResults, "chkDays", "Days");
  chkHours = Make_Check(fraResults, "chkHours", "Hours");
  chkMinutes = Make_Check(fraResults, "chkMinutes", "Minutes");
  lblYears = Make_Label(fraResults, "lblYears");
  lblMonths = Make_Label(fraResults, "lblMonths");
  lblDays = Make_Label(fraResults, "lblDays");
  lblHours = Make_Label(fraResults, "lblHours");
  lblMinutes = Make_Label(fraResults, "lblMinutes");
  lblTime1Label = Make_Label(fraResults, "lblTime1Label", kTime1Heading);
  lblTime1 = Make_Label(fraResults, "lblTime1");
  lblTime2Label = Make_Label(fraResults, "lblTime2Label", kTime2Heading);
  lblTime2 = Make_Label(fraResults, "lblTime2");
  lblCalendarLabel = Make_Label(fraResults, "lblCalendarLabel", "Calendar Style: ");
  lblCalendar = Make_Label(fraResults, "lblCalendar");

  // The rows on the left, each behind its tick; the moments measured on the right.
  auto* grid = new QGridLayout(fraResults);
  const auto ticks = Unit_Ticks();
  const auto rows = Result_Rows();
  for (std::size_t unit = 0; unit < elapsed::kTimeUnits; ++unit) {
    const int line = static_cast<int>(unit);
    rows[unit]->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    rows[unit]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    rows[unit]->setMinimumWidth(170);
    rows[unit]->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grid->addWidget(ticks[unit], line, 0, Qt::AlignLeft);
    grid->addWidget(rows[unit], line, 1);
  }
  int line = 0;
  for (auto [heading, moment] : {std::pair{lblTime1Label, lblTime1}, std::pair{lblTime2Label, lblTime2},
                                 std::pair{lblCalendarLabel, lblCalendar}}) {
    heading->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(heading, line, 3);
    grid->addWidget(moment, line, 4);
    ++line;
  }
  grid->setColumnMinimumWidth(2, 24);
  grid->setColumnStretch(4, 1);
}

void frmFindDateDifference::Place_Controls() {
  cmdENTER = Make_Button(this, "cmdENTER", "ENTER");
  cmdENTER->setDefault(true);
  cmdClose = Make_Button(this, "cmdClose", "Close");
  for (QPushButton* button : {cmdENTER, cmdClose}) button->setMinimumWidth(110);

  auto* page = new QVBoxLayout(this);
  auto* selections = new QHBoxLayout;
  selections->addWidget(fraDate1);
  selections->addWidget(FraDate2);
  auto* choices = new QHBoxLayout;
  choices->addWidget(fraCompare, 1);
  choices->addWidget(fraCalendarStyle, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdENTER);
  buttons->addWidget(cmdClose);
  page->addLayout(selections);
  page->addLayout(choices);
  page->addWidget(fraDisplay);
  page->addWidget(fraResults);
  page->addLayout(buttons);
  // The window keeps the size its contents need.
  page->setSizeConstraint(QLayout::SetFixedSize);
}

void frmFindDateDifference::Connect_Controls() {
  using Procedure = void (frmFindDateDifference::*)();
  // An option's click procedure runs when it becomes the one set.
  const auto on_set = [this](QRadioButton* option, Procedure procedure) {
    connect(option, &QRadioButton::toggled, this, [this, procedure](bool set) {
      if (set) (this->*procedure)();
    });
  };
  on_set(optTime1Time2, &frmFindDateDifference::optTime1Time2_Click);
  on_set(optTime1CurrentTime, &frmFindDateDifference::optTime1CurrentTime_Click);
  on_set(optTime2CurrentTime, &frmFindDateDifference::optTime2CurrentTime_Click);
  on_set(OptRemaining, &frmFindDateDifference::OptRemaining_Click);
  on_set(optTotal, &frmFindDateDifference::optTotal_Click);
  // A check box's click procedure runs at every change of its tick; chkMinutes has none.
  const auto on_change = [this](QCheckBox* check, Procedure procedure) {
    connect(check, &QCheckBox::toggled, this, [this, procedure] { (this->*procedure)(); });
  };
  on_change(chkYears, &frmFindDateDifference::chkYears_Click);
  on_change(chkMonths, &frmFindDateDifference::chkMonths_Click);
  on_change(chkDays, &frmFindDateDifference::chkDays_Click);
  on_change(chkHours, &frmFindDateDifference::chkHours_Click);
  connect(cmdENTER, &QPushButton::clicked, this, [this] { cmdENTER_Click(); });
  connect(cmdClose, &QPushButton::clicked, this, [this] { cmdClose_Click(); });
}

// Both sides open at the present, measured against itself: every row reads 0.
void frmFindDateDifference::Form_Load() {
  const elapsed::Time_Selection now = Present("Gregorian");
  for (QComboBox* century : ComboCentury) Set_Combo_Text(century, now.Century);
  const std::string moment = elapsed::Moment_Text(now);
  controls::Set_Caption(lblTime1, moment);
  controls::Set_Caption(lblTime2, moment);
  controls::Set_Caption(lblCalendar, "Gregorian");
  Display_Time_Difference("Gregorian", elapsed::Selected_Moment(now), elapsed::Selected_Moment(now));
}

// ---- Reading the boxes and the clock ----------------------------------------------------------------

std::array<QLabel*, elapsed::kTimeUnits> frmFindDateDifference::Result_Rows() const {
  return {lblYears, lblMonths, lblDays, lblHours, lblMinutes};
}

std::array<QCheckBox*, elapsed::kTimeUnits> frmFindDateDifference::Unit_Ticks() const {
  return {chkYears, chkMonths, chkDays, chkHours, chkMinutes};
}

elapsed::Time_Selection frmFindDateDifference::Selection_Of(int side) const {
  return {Text_Of(ComboMonths[side]), Text_Of(ComboDate[side]), Text_Of(ComboCentury[side]),
          Text_Of(ComboYear[side]),   Text_Of(cboHour[side]),   Text_Of(cboMinute[side])};
}

elapsed::Time_Selection frmFindDateDifference::Present(const std::string& Cal_Style) const {
  // Date and time from one reading of the clock, so that the two never straddle midnight.
  const platform::ClockReading clock = Machine().Read_Clock();
  Value today = clock.date;
  if (Cal_Style == "Julian") {
    // Today in the Old Style, through the main window's silent conversion and its keeper.
    Form1& form1 = Window<Form1>();
    form1.Store_Format_Day_Of_Week_Label_Variables("Date_String", "Put", today);
    form1.Store_Format_Day_Of_Week_Label_Variables("Cal_Style", "Put", "Gregorian");
    form1.Convert(calendar::kFindDateDifferenceCmdEnterClick);
    today = form1.Store_Format_Day_Of_Week_Label_Variables("Date_String", "Get");
  }
  // The clock's own time in either style; its seconds play no part.
  const std::string& time = clock.time;
  const Value hour = organizer::Convert_Hour_To_Military_Time(organizer::Parse_System_Time(time, "Hour"),
                                                              organizer::Parse_System_Time(time, "Time Of Day"));
  return elapsed::Selection_At(engine::Define_Month(organizer::Parse_Date(today, "Month"), "Get Month Name").text(),
                               organizer::Parse_Date(today, "Date").whole(),
                               organizer::Parse_Date(today, "Year").whole(), hour.whole(),
                               organizer::Parse_System_Time(time, "Minute").whole());
}

std::string frmFindDateDifference::Selected_Style() const { return optJulian->isChecked() ? "Julian" : "Gregorian"; }

// ---- Measuring -----------------------------------------------------------------------------------

void frmFindDateDifference::cmdENTER_Click() {
  // Exactly one compare option is set at any time; the first row stands for it otherwise.
  const Comparison* comparison = &kComparisons[0];
  for (const Comparison& row : kComparisons) {
    if ((this->*row.option)->isChecked()) comparison = &row;
  }
  controls::Set_Caption(lblTime1Label, comparison->heading[0]);
  controls::Set_Caption(lblTime2Label, comparison->heading[1]);

  const std::string style = Selected_Style();
  const elapsed::Time_Selection now = Present(style);
  std::array<elapsed::Time_Selection, kSides> sides;
  for (int side = 0; side < kSides; ++side) {
    const std::string source = comparison->source[side];
    if (source == kSystem) {
      sides[side] = now;  // nothing blank to fill
      continue;
    }
    sides[side] = Selection_Of(source == kTime1 ? 0 : 1);
    elapsed::Fill_In_Blanks(sides[side], now);
  }

  const elapsed::Selection_Check check = elapsed::Check_Time_Selections(sides[0], sides[1], style);
  if (check.Code != 0) {
    platform::Show_Message(elapsed::Find_Time_Length_Message(check));
    return;
  }
  controls::Set_Caption(lblTime1, elapsed::Moment_Text(sides[0]));
  controls::Set_Caption(lblTime2, elapsed::Moment_Text(sides[1]));
  controls::Set_Caption(lblCalendar, style);
  Display_Time_Difference(style, elapsed::Selected_Moment(sides[0]), elapsed::Selected_Moment(sides[1]));
}

void frmFindDateDifference::Click_Event_Refresh_Screen() {
  Display_Time_Difference(controls::Caption(lblCalendar), elapsed::Moment_Of_Text(controls::Caption(lblTime1)),
                          elapsed::Moment_Of_Text(controls::Caption(lblTime2)));
}

void frmFindDateDifference::Display_Time_Difference(const std::string& Cal_Style, const elapsed::Moment& Moment_0,
                                                    const elapsed::Moment& Moment_1) {
  const elapsed::Display_Option option = optTotal->isChecked()       ? elapsed::Display_Option::Total
                                         : OptRemaining->isChecked() ? elapsed::Display_Option::Remaining
                                                                     : elapsed::Display_Option::Neither;
  elapsed::Ticked_Units ticked{};
  const auto ticks = Unit_Ticks();
  for (std::size_t unit = 0; unit < elapsed::kTimeUnits; ++unit) ticked[unit] = ticks[unit]->isChecked();
  const std::optional<elapsed::Time_Rows> rows =
      elapsed::Display_Time_Difference(Cal_Style, Moment_0, Moment_1, option, ticked);
  if (!rows) return;
  const auto labels = Result_Rows();
  for (std::size_t unit = 0; unit < elapsed::kTimeUnits; ++unit) controls::Set_Caption(labels[unit], (*rows)[unit]);
}

void frmFindDateDifference::cmdClose_Click() { hide(); }

// ---- Enabling ------------------------------------------------------------------------------------

void frmFindDateDifference::Enable_Date_Selection(int side, bool enabled) {
  (side == 0 ? fraDate1 : FraDate2)->setEnabled(enabled);
  const std::initializer_list<QWidget*> side_controls{
      ComboMonths[side], ComboDate[side],  ComboCentury[side], ComboYear[side], cboHour[side],  cboMinute[side],
      LblSelectDate[side], LblCentury[side], LblYear[side],      lblHour[side],   lblMin[side]};
  for (QWidget* control : side_controls) {
    control->setEnabled(enabled);
  }
}

void frmFindDateDifference::Disable_Date_1_Selection() { Enable_Date_Selection(0, false); }
void frmFindDateDifference::Enable_Date_1_Selection() { Enable_Date_Selection(0, true); }
void frmFindDateDifference::Disable_Date_2_Selection() { Enable_Date_Selection(1, false); }
void frmFindDateDifference::Enable_Date_2_Selection() { Enable_Date_Selection(1, true); }

void frmFindDateDifference::Enable_Coarse_Ticks(bool enabled) {
  for (QCheckBox* tick : {chkYears, chkMonths, chkDays, chkHours}) tick->setEnabled(enabled);
}

// ---- Event procedures ----------------------------------------------------------------------------

void frmFindDateDifference::optTime1Time2_Click() {
  Enable_Date_1_Selection();
  Enable_Date_2_Selection();
}

void frmFindDateDifference::optTime1CurrentTime_Click() {
  Enable_Date_1_Selection();
  Disable_Date_2_Selection();
}

void frmFindDateDifference::optTime2CurrentTime_Click() {
  Disable_Date_1_Selection();
  Enable_Date_2_Selection();
}

// chkMinutes stays enabled in both modes, as it always has.
void frmFindDateDifference::OptRemaining_Click() {
  Enable_Coarse_Ticks(true);
  Click_Event_Refresh_Screen();
}

void frmFindDateDifference::optTotal_Click() {
  Enable_Coarse_Ticks(false);
  Click_Event_Refresh_Screen();
}

void frmFindDateDifference::chkYears_Click() { Click_Event_Refresh_Screen(); }
void frmFindDateDifference::chkMonths_Click() { Click_Event_Refresh_Screen(); }
void frmFindDateDifference::chkDays_Click() { Click_Event_Refresh_Screen(); }
void frmFindDateDifference::chkHours_Click() { Click_Event_Refresh_Screen(); }

}  // namespace orrivane
