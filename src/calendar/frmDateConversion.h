#pragma once
// "Date Conversion": a date of one calendar style beside the same day in the other, with the
// days between the two readings; it can send the converted date to the calendar.
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "engine/calendar_engine.h"

namespace orrivane {

class frmDateConversion : public QDialog {
  Q_OBJECT
 public:
  frmDateConversion();

  QLabel* lblSelectedDate;
  QLabel* lblDate1;
  QLabel* lblEquivalent;
  QLabel* lblDate2;
  QLabel* lblDateDifferenceInDays;
  QLabel* lblDifference;
  QCheckBox* ChkDisplayConvertedDate;
  QPushButton* cmdOK;
  QPushButton* cmdCancel;
  // The converted date, carried to the calendar.
  QLabel* lblConvertedMonth;
  QLabel* lblConvertedDate;
  QLabel* lblConvertedYear;
  QLabel* lblConvertedCentury;
  QLabel* lblConverted2DigitYear;
  QLabel* lblConvertedStyle;

  // Shows the window with a conversion written into it.
  void Show_Conversion(const engine::ConvertResult& result);
  void cmdOK_Click();
};

}  // namespace orrivane
