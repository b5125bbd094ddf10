#pragma once
// "Find Time Difference Between Two Selected Times": two moments are picked in two frames of
// boxes (or one of them is the present), and the time between them is told in years, months,
// days, hours and minutes, either as the whole span in each unit or distributed over the units
// ticked. The moments last measured stand in lblTime1, lblTime2 and lblCalendar; those labels
// are the window's only memory, and a change of a display option measures them again.
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>
#include <array>
#include <string>

#include "elapsed/date_difference.h"
#include "elapsed/time_selection.h"

namespace orrivane {

class frmFindDateDifference : public QWidget {
  Q_OBJECT
 public:
  frmFindDateDifference();

  // The selection boxes come in pairs: index 0 in fraDate1 ('Time 1'), index 1 in FraDate2
  // ('Time 2').
  static constexpr int kSides = 2;
  template <class Control>
  using Pair = std::array<Control*, kSides>;

  // ---- Controls --------------------------------------------------------------------------
  QGroupBox* fraDate1;
  QGroupBox* FraDate2;
  Pair<QLabel> LblSelectDate;
  Pair<QComboBox> ComboMonths;   // list only: "January" to "December", starts empty
  Pair<QComboBox> ComboDate;     // list only: "01" to "31", starts empty
  Pair<QLabel> LblCentury;
  Pair<QComboBox> ComboCentury;  // editable: the year divided by 100, starts at this century
  Pair<QLabel> LblYear;
  Pair<QComboBox> ComboYear;     // list only: "00" to "99", starts empty
  Pair<QLabel> lblHour;
  Pair<QComboBox> cboHour;       // list only: "00" to "23", starts empty
  Pair<QLabel> lblMin;
  Pair<QComboBox> cboMinute;     // list only: "00" to "59", starts empty

  QGroupBox* fraCompare;
  QRadioButton* optTime1Time2;
  QRadioButton* optTime1CurrentTime;
  QRadioButton* optTime2CurrentTime;
  QGroupBox* fraCalendarStyle;
  QRadioButton* optGregorian;
  QRadioButton* optJulian;
  QGroupBox* fraDisplay;
  QRadioButton* optTotal;
  QRadioButton* OptRemaining;

  QGroupBox* fraResults;
  QCheckBox* chkYears;
  QCheckBox* chkMonths;
  QCheckBox* chkDays;
  QCheckBox* chkHours;
  QCheckBox* chkMinutes;
  QLabel* lblYears;
  QLabel* lblMonths;
  QLabel* lblDays;
  QLabel* lblHours;
  QLabel* lblMinutes;
  QLabel* lblTime1Label;
  QLabel* lblTime1;  // "14:05, March 5, 2001"
  QLabel* lblTime2Label;
  QLabel* lblTime2;
  QLabel* lblCalendarLabel;
  QLabel* lblCalendar;  // "Gregorian" or "Julian"

  QPushButton* cmdENTER;
  QPushButton* cmdClose;

  // ---- Procedures ------------------------------------------------------------------------
  // Measures the two selections (or a selection and the present) after filling blanks and
  // checking them; a failed check shows its one message and leaves the results as they were.
  void cmdENTER_Click();
  void cmdClose_Click();
  // Measures again the moments that lblTime1, lblTime2 and lblCalendar hold.
  void Click_Event_Refresh_Screen();
  // Fills the five result rows as the display options and the ticks say.
  void Display_Time_Difference(const std::string& Cal_Style, const elapsed::Moment& Moment_0,
                               const elapsed::Moment& Moment_1);

  void Disable_Date_1_Selection();
  void Enable_Date_1_Selection();
  void Disable_Date_2_Selection();
  void Enable_Date_2_Selection();

  void optTime1Time2_Click();
  void optTime1CurrentTime_Click();
  void optTime2CurrentTime_Click();
  void OptRemaining_Click();
  void optTotal_Click();
  void chkYears_Click();
  void chkMonths_Click();
  void chkDays_Click();
  void chkHours_Click();
  // chkMinutes has no click procedure: unticking it shows only at the next cmdENTER.

 private:
  void Build_Date_Selection(int side, QGroupBox* frame);
  void Build_Options();
  void Build_Results();
  void Place_Controls();
  void Connect_Controls();
  void Form_Load();

  // The result rows and their ticks, coarse to fine (by elapsed::Time_Unit).
  std::array<QLabel*, elapsed::kTimeUnits> Result_Rows() const;
  std::array<QCheckBox*, elapsed::kTimeUnits> Unit_Ticks() const;
  // The four coarser ticks, which remaining mode offers and total mode takes away.
  void Enable_Coarse_Ticks(bool enabled);
  // The frame of one side, its six boxes and its five captions.
  void Enable_Date_Selection(int side, bool enabled);
  // The six boxes of one side as they stand.
  elapsed::Time_Selection Selection_Of(int side) const;
  // The present in the style: today (the Old Style date of today for "Julian") and the
  // clock's hour and minute.
  elapsed::Time_Selection Present(const std::string& Cal_Style) const;
  std::string Selected_Style() const;
};

}  // namespace orrivane
