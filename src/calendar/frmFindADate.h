#pragma once
// "Find The Weekday Of A Date": a full date in either calendar style is entered through five
// combo boxes, its weekday and its relation to today are told here, and the date last accepted
// can then be drawn on the calendar or converted into the other style. The main window's
// Calendarr reads the combo boxes and the accepted date of this window directly.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

namespace orrivane {

class frmFindADate : public QWidget {
  Q_OBJECT
 public:
  frmFindADate();

  // ---- Controls --------------------------------------------------------------------------
  QLabel* lblSelectCalendarStyle;
  QComboBox* ComboCalendar;  // editable: "Gregorian (New Style)" or "Julian (Old Style)"
  QLabel* lblSelectMonthDate;
  QComboBox* ComboMonths;  // list only, starts empty
  QComboBox* ComboDate;    // list only: "01" to "31", starts empty
  QLabel* lblChooseCentury;
  QComboBox* ComboCentury;  // editable, so that a century above 99 may be typed
  QLabel* lblChooseYear;
  QComboBox* ComboYear;  // list only: "00" to "99", starts empty
  QPushButton* cmdENTER;

  QLabel* lblDisplayDay;
  QLineEdit* txtShowWeekday;
  QLabel* lblDate;
  QLabel* lblShowDate;  // the date last accepted: "October 10, 1582"
  QLabel* lblCalendarName;
  QLabel* lblShowCalendarName;  // its style: "Gregorian" or "Julian"

  QPushButton* cmdConvertAboveDate_;
  QPushButton* cmdDisplayAboveDateOnCalendar;
  QPushButton* cmdCloseThisWindow;

  // ---- Procedures ------------------------------------------------------------------------
  // The weekday of the date entered, told in this window; the date becomes the one accepted.
  void OutputDay();
  // The date last accepted, drawn on the calendar with its weekday on the main window.
  void OutputDay_On_Form1();
  void cmdConvertAboveDate__Click();
  void cmdCloseThisWindow_Click();

 private:
  void Build_Entries();
  void Build_Answer();
  void Place_Controls();
  void Connect_Controls();
  // Takes the entries as the date last accepted, with its style and the convert button's mode.
  void Accept_Entered_Date();
};

}  // namespace orrivane
