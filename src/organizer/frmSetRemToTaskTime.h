#pragma once
// "Base This Time On Task Occurance": ties a moment of the reminder being set to the task, at,
// before or after its start or its finish, with the distance chosen in four boxes. OK writes the
// moment into the date and time labels of frmSetReminder, for the moment the opening named.
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>
#include <array>
#include <string>

#include "core/value.h"
#include "organizer/reminder_moment.h"

namespace orrivane {

class frmSetRemToTaskTime : public QWidget {
  Q_OBJECT
 public:
  frmSetRemToTaskTime();

  // ---- Controls --------------------------------------------------------------------------
  QComboBox* cboWhen;       // "At", "Before", "After"; nothing chosen at first
  QGroupBox* FraTaskTime;   // its caption is the relation chosen in cboWhen
  QRadioButton* OptStart;   // its caption is the anchor of the moment
  QRadioButton* optFinish;
  QGroupBox* fraTimeAmount;  // the distance, for "Before" and "After" only
  std::array<QComboBox*, organizer::kAmountBoxes> cboTimeLength;  // minutes, hours, days, hundreds of days
  std::array<QLabel*, organizer::kAmountBoxes> lblTimeLength;
  QPushButton* cmdOK;
  QPushButton* cmdCancel;

  // ---- Procedures ------------------------------------------------------------------------
  // Which moment of frmSetReminder is being set, 0 or 1: "Put" stores it, every verb answers it.
  Value Store_Calling_Sub_Origin(const std::string& verb, const Value& value = {});
  void cboWhen_Click();
  // The distance's frame, boxes and labels enabled or not; the boxes take the window-background
  // colour when enabled and the scroll-bar colour when disabled.
  void Enable_Time_Amount(bool Value_);
  // The relation, the anchor and the distance into frmSetReminder's labels of the moment; nothing
  // is checked. The window then hides.
  void cmdOK_Click();
  void cmdCancel_Click();

 private:
  void Build_Controls();
  void Place_Controls();
  void Connect_Controls();
  // The caption of the option that is set; empty while neither is.
  std::string Anchor() const;

  Value Calling_Sub_Origin;
};

}  // namespace orrivane
