#pragma once
// "Set Reminder": when a task's reminder is to come, one message at one moment or a series
// between two moments with a period. Each moment is a fixed date and time chosen in boxes, or a
// distance before or after the task's start or finish chosen in frmSetRemToTaskTime. The window
// serves the new-task window and the task information window: it writes no file, and hands its
// result to the keeper of reminder values of the window that opened it. It keeps what stands in
// it between openings, apart from what the opening copies in.
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>
#include <array>
#include <string>
#include <string_view>

#include "core/value.h"
#include "organizer/reminder_moment.h"

namespace orrivane {

class frmSetReminder : public QWidget {
  Q_OBJECT
 public:
  frmSetReminder();

  // The date and time controls stand twice: index 0 for the one moment or the first of a
  // series, index 1 for the last.
  static constexpr int kMoments = 2;
  template <class Control>
  using Moments = std::array<Control*, kMoments>;
  // The period's counts in lblRI: minutes, hours, days.
  static constexpr int kIntervalCounts = 3;

  // ---- Controls: the kind of reminder ----------------------------------------------------
  QGroupBox* Frame1;
  QRadioButton* optOnlyOneReminder;
  QRadioButton* optIntermittently1;  // a series counted from its first moment
  QRadioButton* optIntermittently2;  // a series counted back from its last moment

  // ---- Controls: the period of a series ------------------------------------------------------
  QGroupBox* FraSelectInterval;
  std::array<QComboBox*, organizer::kAmountBoxes> cboInterval;  // minutes, hours, days, hundreds of days
  std::array<QLabel*, organizer::kAmountBoxes> lblInterval;
  QLabel* lblReminderInterval;
  std::array<QLabel*, kIntervalCounts> lblRILabel;
  std::array<QLabel*, kIntervalCounts> lblRI;  // the period chosen: minutes, hours, days

  // ---- Controls: the two moments -------------------------------------------------------------
  Moments<QGroupBox> fraDateTimeSelection;  // its caption tells the kind of the moment
  Moments<QLabel> LblSelectDate;
  Moments<QComboBox> ComboMonths;
  Moments<QComboBox> ComboDate;
  Moments<QLabel> LblCentury;
  Moments<QComboBox> ComboCentury;
  Moments<QLabel> LblYear;
  Moments<QComboBox> ComboYear;
  Moments<QLabel> lblHour;
  Moments<QComboBox> cboHour;
  Moments<QLabel> lblMin;
  Moments<QComboBox> cboMinute;
  Moments<QPushButton> cmdSelect;       // takes the boxes into lblDate and lblTime
  Moments<QPushButton> cmdUseTaskTime;  // ties the moment to the task in frmSetRemToTaskTime
  Moments<QLabel> lblDateLabel;
  Moments<QLabel> lblDate;  // the moment's date text
  Moments<QLabel> lblTimeLabel;
  Moments<QLabel> lblTime;  // the moment's time text

  QPushButton* cmdOK;
  QPushButton* cmdSet;
  QPushButton* cmdClose;

  // ---- Procedures ------------------------------------------------------------------------
  // The name of the window whose reminder is being set: "Put" stores it, every verb answers it.
  Value Store_Calling_Form_Origin(const std::string& verb, const Value& value = {});

  void optOnlyOneReminder_Click();
  void optIntermittently1_Click();
  void optIntermittently2_Click();
  // The second moment's controls, and the period's, enabled or not; their boxes take the
  // window-background colour when enabled and the scroll-bar colour when disabled.
  void Enable_Second_Time_Selection(bool Value_);
  void Enable_FraSelectInterval(bool Value_);
  void Enable_Intermittent_Reminder_Features();

  // A period chosen in a box goes to lblRI: minutes and hours as they stand, the days as the
  // days and the hundreds of days summed.
  void cboInterval_Click(int Index);
  // The boxes of a moment, their blanks filled from the clock, into its date and time labels;
  // a day the month doesn't have is refused with a message.
  void cmdSelect_Click(int Index);
  void cmdUseTaskTime_Click(int Index);

  // Hands the moments, the kind and the period to the calling window's keeper; refuses a series
  // without a period. `Calling_Sub_Origin` tells the button: OK hides the window, SET says so.
  void Set_Reminder(std::string_view Calling_Sub_Origin);
  void cmdOK_Click();
  void cmdSet_Click();
  void cmdClose_Click();

  // The opening from a calling window, with its keeper's values (see set_reminder_opening.h).
  void Open_For(std::string_view caller_window_name);

 private:
  void Build_Controls();
  void Build_Moment(int index);
  void Place_Controls();
  void Connect_Controls();
  // The kind of the option that is set, 1 to 3.
  int Chosen_Kind() const;
  // Sets the option of a kind, which then acts as clicked; another kind sets none.
  void Set_Option_Of_Kind(const Value& kind);
  void Show_Kind(int kind);

  Value Calling_Form_Origin;
};

}  // namespace orrivane
