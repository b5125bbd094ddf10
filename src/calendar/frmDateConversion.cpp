#include "calendar/frmDateConversion.h"

#include "calendar/Form1.h"
#include "calendar/calendar_callers.h"
#include "platform/controls.h"
#include "platform/window_registry.h"

namespace orrivane {

namespace {

using controls::Make_Label;

}  // namespace

frmDateConversion::frmDateConversion() {
  setObjectName("frmDateConversion");
  setWindowTitle("Date Conversion");
  setModal(false);
  setFixedSize(440, 230);
  lblSelectedDate = Make_Label(this, "lblSelectedDate", "Selected Date:");
  lblDate1 = Make_Label(this, "lblDate1");
  lblEquivalent = Make_Label(this, "lblEquivalent");
  lblDate2 = Make_Label(this, "lblDate2");
  lblDateDifferenceInDays = Make_Label(this, "lblDateDifferenceInDays", "Date Difference (in Days):");
  lblDifference = Make_Label(this, "lblDifference");
  ChkDisplayConvertedDate = new QCheckBox("Display Converted Date On Calendar", this);
  ChkDisplayConvertedDate->setObjectName("ChkDisplayConvertedDate");
  cmdOK = new QPushButton("OK", this);
  cmdOK->setObjectName("cmdOK");
  cmdCancel = new QPushButton("Cancel", this);
  cmdCancel->setObjectName("cmdCancel");
  lblConvertedMonth = Make_Label(this, "lblConvertedMonth");
  lblConvertedDate = Make_Label(this, "lblConvertedDate");
  lblConvertedYear = Make_Label(this, "lblConvertedYear");
  lblConvertedCentury = Make_Label(this, "lblConvertedCentury");
  lblConverted2DigitYear = Make_Label(this, "lblConverted2DigitYear");
  lblConvertedStyle = Make_Label(this, "lblConvertedStyle");
  for (QLabel* hidden : {lblConvertedMonth, lblConvertedDate, lblConvertedYear, lblConvertedCentury,
                         lblConverted2DigitYear, lblConvertedStyle}) {
    hidden->hide();
  }

  const int label_x = 16, value_x = 200, row = 34;
  for (int i = 0; QLabel* caption : {lblSelectedDate, lblEquivalent, lblDateDifferenceInDays}) {
    caption->setGeometry(label_x, 16 + i++ * row, 180, 24);
    caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  }
  QFont bold = lblDate1->font();
  bold.setBold(true);
  for (int i = 0; QLabel* value : {lblDate1, lblDate2, lblDifference}) {
    value->setGeometry(value_x, 16 + i++ * row, 230, 24);
    value->setFont(bold);
  }
  ChkDisplayConvertedDate->setGeometry(label_x + 20, 130, 380, 24);
  cmdOK->setGeometry(120, 180, 90, 30);
  cmdCancel->setGeometry(230, 180, 90, 30);

  connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { hide(); });
}

void frmDateConversion::Show_Conversion(const engine::ConvertResult& result) {
  controls::Show_In_Front(*this);
  controls::Set_Caption(lblEquivalent, result.lblEquivalent);
  controls::Set_Caption(lblDate1, result.lblDate1);
  controls::Set_Caption(lblDifference, result.lblDifference);
  controls::Set_Caption(lblDate2, result.lblDate2);
  controls::Set_Caption(lblConvertedMonth, result.month);
  controls::Set_Caption(lblConvertedDate, std::to_string(result.day));
  controls::Set_Caption(lblConvertedYear, std::to_string(result.year));
  controls::Set_Caption(lblConvertedCentury, std::to_string(result.century));
  controls::Set_Caption(lblConverted2DigitYear, std::to_string(result.two_digit_year));
  controls::Set_Caption(lblConvertedStyle, engine::Calendar_Style_Name(result.style));
}

void frmDateConversion::cmdOK_Click() {
  if (ChkDisplayConvertedDate->isChecked()) {
    Form1& main = Window<Form1>();
    main.Display_Weekday(main.Calendarr(calendar::kCalendarrCmdOKClick), calendar::kDisplayWeekdayCmdOKClick);
    ChkDisplayConvertedDate->setChecked(false);
    const std::string equivalent = controls::Caption(lblEquivalent);
    // The calendar now shows the other style, so the button offers the way back.
    if (equivalent.find("Julian Equivalent:") != std::string::npos) {
      main.CmdConvert->setText("Convert This Date To New Style");
    } else if (equivalent.find("Gregorian Equivalent:") != std::string::npos) {
      main.CmdConvert->setText("Convert This Date To Old Style");
    }
  }
  hide();
}

}  // namespace orrivane
