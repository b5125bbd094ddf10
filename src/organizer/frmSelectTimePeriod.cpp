#include "organizer/frmSelectTimePeriod.h"

#include "engine/vocabulary.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/organizer_callers.h"
#include "organizer/time_period_selection.h"
#include "platform/controls.h"
#include "platform/platform.h"
#include "platform/window_registry.h"
#include "reminders/frmMultiPurposeForm.h"
#include "reminders/print_log.h"

namespace orrivane {

namespace {

using controls::Make;
using controls::Make_Button;
using controls::Make_Label;

// Where an accepted choice goes, told by the caption of cmdDisplay.
struct ChoiceTarget {
  const char* button_caption;
  void (frmSelectTimePeriod::*show)();
};

QComboBox* Make_List_Box(QWidget* parent, const char* name) {
  QComboBox* box = Make<QComboBox>(parent, name);
  box->setMaxVisibleItems(12);
  return box;
}

template <class Texts>
void Fill(QComboBox* box, const Texts& texts) {
  for (const auto& text : texts) box->addItem(QString::fromStdString(std::string(text)));
  box->setCurrentIndex(-1);  // nothing chosen
}

std::string Text_Of(const QComboBox* box) { return controls::Text_Of(box); }

}  // namespace

frmSelectTimePeriod::frmSelectTimePeriod() : deactivation_(new HideOnDeactivate(*this)) {
  setObjectName("frmSelectTimePeriod");
  setWindowTitle(kSelectTimePeriodCaption);
  Build_Controls();
  Place_Controls();
  connect(cmdDisplay, &QPushButton::clicked, this, [this] { cmdDisplay_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

void frmSelectTimePeriod::Build_Controls() {
  lblTimePeriod = Make_Label(this, "lblTimePeriod", "Time Of Day:");
  cboTimePeriod = Make_List_Box(this, "cboTimePeriod");
  Fill(cboTimePeriod, organizer::Period_Names());
  lblMonth = Make_Label(this, "lblMonth", "Month:");
  ComboMonths = Make_List_Box(this, "ComboMonths");
  std::vector<std::string> months;
  for (int month = 1; month <= 12; ++month) months.push_back(engine::Full_Month_Name(month));
  Fill(ComboMonths, months);
  lblDate = Make_Label(this, "lblDate", "Date:");
  ComboDate = Make_List_Box(this, "ComboDate");
  Fill(ComboDate, organizer::Two_Digit_Texts(organizer::kDateBoxRange));
  lblCentury = Make_Label(this, "lblCentury", "Choose Century(Opt):");
  ComboCentury = Make_List_Box(this, "ComboCentury");
  Fill(ComboCentury, organizer::Two_Digit_Texts(organizer::kCenturyBoxRange));
  lblYear = Make_Label(this, "lblYear", "Choose Year(Opt):");
  ComboYear = Make_List_Box(this, "ComboYear");
  Fill(ComboYear, organizer::Two_Digit_Texts(organizer::kYearBoxRange));
  lblSelectedDate = Make_Label(this, "lblSelectedDate");
  lblSelectedTime = Make_Label(this, "lblSelectedTime");
  lblSelectedDate->hide();
  lblSelectedTime->hide();
  cmdDisplay = Make_Button(this, "cmdDisplay", kDisplayButtonCaption);
  cmdDisplay->setDefault(true);
  cmdCancel = Make_Button(this, "cmdCancel", "Cancel");
}

void frmSelectTimePeriod::Place_Controls() {
  // The boxes in a column with their labels on the left, the two buttons in a column on the right.
  constexpr int kLabelX = 12, kLabelWidth = 132, kBoxX = 150, kBoxWidth = 140, kRowTop = 14, kRowStep = 34;
  constexpr int kRowHeight = 26, kButtonX = 306, kButtonWidth = 96, kButtonHeight = 30;
  const std::pair<QLabel*, QComboBox*> rows[] = {{lblTimePeriod, cboTimePeriod},
                                                 {lblMonth, ComboMonths},
                                                 {lblDate, ComboDate},
                                                 {lblCentury, ComboCentury},
                                                 {lblYear, ComboYear}};
  int top = kRowTop;
  for (const auto& [label, box] : rows) {
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setGeometry(kLabelX, top, kLabelWidth, kRowHeight);
    box->setGeometry(kBoxX, top, kBoxWidth, kRowHeight);
    top += kRowStep;
  }
  cmdDisplay->setGeometry(kButtonX, kRowTop, kButtonWidth, kButtonHeight);
  cmdCancel->setGeometry(kButtonX, kRowTop + 38, kButtonWidth, kButtonHeight);
  setFixedSize(kButtonX + kButtonWidth + 12, top + 4);
}

void frmSelectTimePeriod::Open_For(const QString& caption, const QString& button_caption) {
  setWindowTitle(caption);
  cmdDisplay->setText(button_caption);
  controls::Show_In_Front(*this);
}

void frmSelectTimePeriod::cmdCancel_Click() { hide(); }

void frmSelectTimePeriod::cmdDisplay_Click() {
  const organizer::TimePeriodEntries entries{Text_Of(cboTimePeriod), Text_Of(ComboMonths), Text_Of(ComboDate),
                                             Text_Of(ComboCentury), Text_Of(ComboYear)};
  const organizer::TimePeriodSelection selection =
      organizer::Check_Time_Period_Selection(entries, platform::Machine().System_Date());
  if (selection.code != 0) {
    deactivation_->Show_Message(organizer::Time_Period_Selection_Message(selection));
    return;
  }
  controls::Set_Caption(lblSelectedTime, selection.selected_time);
  controls::Set_Caption(lblSelectedDate, selection.selected_date);

  static constexpr ChoiceTarget kTargets[] = {
      {kDisplayButtonCaption, &frmSelectTimePeriod::Display_On_Organizer},
      {kChangeButtonCaption, &frmSelectTimePeriod::Change_Print_Period},
  };
  const std::string button = cmdDisplay->text().toStdString();
  for (const ChoiceTarget& target : kTargets) {
    if (button == target.button_caption) (this->*target.show)();
  }
  hide();
}

void frmSelectTimePeriod::Display_On_Organizer() {
  Window<frmScheduler_Reminder>().Refresh_Organizer_Screen(organizer::kSelectTimePeriodDisplay);
}

void frmSelectTimePeriod::Change_Print_Period() {
  frmMultiPurposeForm& form = Window<frmMultiPurposeForm>();
  controls::Set_Caption(form.lblTimePeriod_5, Text_Of(cboTimePeriod));
  controls::Set_Caption(form.lblDate_5, reminders::Output_Style_Date(controls::Caption(lblSelectedDate)));
}

}  // namespace orrivane
