#pragma once
// "Change Task\Event Times": the start and the finish of the task shown in the task information
// window, each in a frame of six boxes with its moment now and its new moment beside them.
// Select takes a frame's filled boxes into its new moment, a part at a time; OK hands both new
// moments back to the task information window. It puts itself away as soon as another window of
// the program becomes active.
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <array>

#include "organizer/task_edit.h"
#include "platform/HideOnDeactivate.h"

namespace orrivane {

class frmChangeRecordTimes : public QWidget {
  Q_OBJECT
 public:
  frmChangeRecordTimes();

  // Index 0 is the start, 1 the finish.
  static constexpr int kMoments = 2;
  template <class Control>
  using Moments = std::array<Control*, kMoments>;

  // ---- Controls --------------------------------------------------------------------------
  Moments<QGroupBox> fraNewTime;  // "Select New Starting Date\Time", "Select New Finish Date\Time"
  Moments<QLabel> lblMonth;
  Moments<QComboBox> ComboMonths;  // "Jan" to "Dec"
  Moments<QLabel> lblDay;
  Moments<QComboBox> ComboDate;  // "01" to "31"
  Moments<QLabel> lblCentury;
  Moments<QComboBox> ComboCentury;
  Moments<QLabel> lblYear;
  Moments<QComboBox> ComboYear;
  Moments<QLabel> lblHour;
  Moments<QComboBox> cboHour;
  Moments<QLabel> lblMinute;
  Moments<QComboBox> cboMinute;
  Moments<QPushButton> cmdSelect;
  Moments<QLabel> lblOldLabel;
  Moments<QLabel> lblOldDate;  // the moment as the task information window showed it
  Moments<QLabel> lblOldTime;
  Moments<QLabel> lblNewLabel;
  Moments<QLabel> lblDate;  // the new moment: "March 05, 2001"
  Moments<QLabel> lblTime;  // "14:30"
  QPushButton* cmdOK;
  QPushButton* cmdCancel;

  // ---- Procedures ------------------------------------------------------------------------
  // The filled boxes of a frame into its new moment; a date its month doesn't have is refused.
  void cmdSelect_Click(int Index);
  // Refuses a finish before the start; otherwise the new moments and their range flag go to the
  // task information window, which then differs from the log.
  void cmdOK_Click();
  void cmdCancel_Click();

 private:
  void Build_Moment(int index);
  void Place_Controls();
  void Connect_Controls();
  organizer::MomentLabels New_Moment(int index) const;

  HideOnDeactivate* hide_on_deactivate_;
};

}  // namespace orrivane
