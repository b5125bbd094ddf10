#pragma once
// "Select Time Period": the user chooses a period of the day and a date. Its Display button
// brings that period on the Organizer's task chart, or, captioned "Change", makes it the chart
// that Print Log prints; the window puts itself away as soon as another window of the program
// becomes active.
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <string>

#include "platform/HideOnDeactivate.h"

namespace orrivane {

// The window's caption and its button's caption for showing a period on the Organizer's chart.
inline constexpr char kSelectTimePeriodCaption[] = "Select Time Period";
inline constexpr char kDisplayButtonCaption[] = "Display";
// ... and for choosing the day and period of the chart that Print Log prints.
inline constexpr char kSelectTimePeriodToPrintCaption[] = "Select Time Period To Print";
inline constexpr char kChangeButtonCaption[] = "Change";

class frmSelectTimePeriod : public QWidget {
  Q_OBJECT
 public:
  frmSelectTimePeriod();

  // ---- Controls --------------------------------------------------------------------------
  QLabel* lblTimePeriod;
  QComboBox* cboTimePeriod;  // the four periods
  QLabel* lblMonth;
  QComboBox* ComboMonths;  // "January" to "December"
  QLabel* lblDate;
  QComboBox* ComboDate;  // "01" to "31"
  QLabel* lblCentury;
  QComboBox* ComboCentury;  // "16" to "99", optional
  QLabel* lblYear;
  QComboBox* ComboYear;  // "00" to "99", optional
  QLabel* lblSelectedDate;  // hidden: month number "/" date "/" year of the accepted choice
  QLabel* lblSelectedTime;  // hidden: the sample time of the chosen period
  QPushButton* cmdDisplay;  // its caption tells what the choice is for: "Display" or "Change"
  QPushButton* cmdCancel;

  // ---- Procedures ------------------------------------------------------------------------
  // Opens the window in front, its button captioned for the use.
  void Open_For(const QString& caption, const QString& button_caption);
  // Checks the choice; a refused one shows its message and leaves the window open, an accepted
  // one goes where the button's caption says, and the window hides.
  void cmdDisplay_Click();
  void cmdCancel_Click();

 private:
  void Build_Controls();
  void Place_Controls();
  // The accepted choice shown on the Organizer's chart.
  void Display_On_Organizer();
  // The accepted choice written to the print frame of frmMultiPurposeForm as the chart to print.
  void Change_Print_Period();

  // Another window of the program becoming active puts this one away; its own messages don't.
  HideOnDeactivate* deactivation_;
};

}  // namespace orrivane
