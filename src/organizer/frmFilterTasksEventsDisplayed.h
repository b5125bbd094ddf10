#pragma once
// "Filter Tasks\Events Displayed": the bounds of the Organizer's task filter, chosen in two sets
// of boxes, After and Before, and written into the Organizer's lblAfterRange and lblBeforeRange.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <array>
#include <optional>

#include "organizer/task_list.h"

namespace orrivane {

class frmFilterTasksEventsDisplayed : public QWidget {
  Q_OBJECT
 public:
  frmFilterTasksEventsDisplayed();

  // Index 0 serves After, 1 Before (organizer::FilterSide).
  static constexpr int kSides = 2;
  template <class Control>
  using Pair = std::array<Control*, kSides>;

  // ---- Controls --------------------------------------------------------------------------
  QCheckBox* chkAfter;   // "Display Only Tasks After Selected Time"
  QCheckBox* chkBefore;  // "Display Only Tasks Before Selected Time"
  Pair<QLabel> lblMonth;
  Pair<QComboBox> ComboMonths;   // "Jan" to "Dec", starts empty
  Pair<QLabel> lblDate;
  Pair<QComboBox> ComboDate;     // "01" to "31", starts empty
  Pair<QLabel> lblCentury;
  Pair<QComboBox> ComboCentury;  // editable: any century may be typed; offers "16" to "99"
  Pair<QLabel> lblYear;
  Pair<QComboBox> ComboYear;     // "00" to "99", starts empty
  Pair<QLabel> lblHour;
  Pair<QComboBox> cboHour;       // "00" to "23", starts empty
  Pair<QLabel> lblMinute;
  Pair<QComboBox> cboMinute;     // "00" to "59", starts empty
  QPushButton* cmdSetDateFilters;
  QPushButton* cmdCancel;

  // ---- Procedures ------------------------------------------------------------------------
  void chkAfter_Click();
  void chkBefore_Click();
  // Checks the dates of the checked sides; writes the bounds and hides, or tells what is wrong
  // and stays open.
  void cmdSetDateFilters_Click();
  void cmdCancel_Click();

 private:
  void Build_Side(organizer::FilterSide side, QCheckBox* check);
  void Place_Controls();
  void Connect_Controls();
  // The boxes of a side enabled while its check box is on.
  void Enable_Side(organizer::FilterSide side);
  // The boxes of a side as texts, or nothing for a side not checked.
  std::optional<organizer::FilterBoxes> Read_Side(organizer::FilterSide side) const;
  QCheckBox* Check_Of(organizer::FilterSide side) const;
};

}  // namespace orrivane
