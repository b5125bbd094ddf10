#pragma once
// "View Month On Calendar": the user names a month and a year of any size, in either calendar
// style, and the month comes on both calendar windows, laid out from its first day since no
// date is selected. The window puts itself away as soon as it loses the focus.
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>
#include <string>

namespace orrivane {

class HideOnDeactivate;

class frmSelectMonth : public QWidget {
  Q_OBJECT
 public:
  frmSelectMonth();

  // ---- Controls --------------------------------------------------------------------------
  QLabel* lblSelectMonth;
  QComboBox* ComboMonths;  // the twelve month names, list only, starts empty
  QLabel* lblSelectYear;
  QLineEdit* txtYear;  // at most 8 characters
  QGroupBox* fraCalendarStyle;
  QRadioButton* optGregorian;
  QRadioButton* optJulian;
  QPushButton* cmdDisplay;
  QPushButton* cmdCancel;

  // ---- Procedures ------------------------------------------------------------------------
  // Checks the entries; on success draws the month on both calendar windows and hides.
  void cmdDisplay_Click();
  void cmdCancel_Click();

 private:
  void Build_Controls();
  void Place_Controls();
  void Connect_Controls();
  // "Gregorian" or "Julian", from the option that is set.
  std::string Selected_Style() const;
  void Show_Entry_Message(int status);
  void Display_Month(const std::string& month, long long year, const std::string& style);

  HideOnDeactivate* hide_on_deactivate_;
};

}  // namespace orrivane
