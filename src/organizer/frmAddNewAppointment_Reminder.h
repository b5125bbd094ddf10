#pragma once
// "Add New Task\Event": the one way to create a task. The user names the task, gives its moment
// (or its start and finish), its group member (an existing one or a new one), its colour and
// its reminder; one button checks the whole window, appends the task to the log and gets the
// window ready for the next task. The window stays open after a task has been added; Close only
// hides it, clearing nothing.
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>
#include <array>
#include <string>

#include "core/value.h"
#include "organizer/new_task_entry.h"
#include "organizer/reminder_labels.h"

namespace orrivane {

class frmAddNewAppointment_Reminder : public QWidget {
  Q_OBJECT
 public:
  frmAddNewAppointment_Reminder();

  // Index 0 of the date and time boxes stands in FraFrom (the start, or the one moment), index
  // 1 in FraTo (the finish of a time range).
  template <class Control>
  using Pair = std::array<Control*, organizer::kTaskMoments>;

  // ---- Controls: the task ----------------------------------------------------------------
  QLabel* lblNameOfEvent;
  QLineEdit* txtNameOfEvent;  // field 2, as typed
  QLabel* lblDescription;
  QLineEdit* txtDescription;  // field 3
  QLabel* lblComments;
  QPlainTextEdit* txtComments;  // field 4, may hold line breaks

  // ---- Controls: its moment --------------------------------------------------------------
  QCheckBox* chkSelectTimeRange;  // checked: the task has a start and a finish
  QGroupBox* FraFrom;             // "At", or "From" with a time range
  QGroupBox* FraTo;               // no caption, or "To" with a time range
  Pair<QLabel> lblMonth;
  Pair<QComboBox> ComboMonths;  // "January" to "December"
  Pair<QLabel> lblDate;
  Pair<QComboBox> ComboDate;  // "01" to "31"
  Pair<QLabel> lblCentury;
  Pair<QComboBox> ComboCentury;  // "16" to "99", optional: the present century
  Pair<QLabel> lblYear;
  Pair<QComboBox> ComboYear;  // "00" to "99", optional: the present year
  Pair<QLabel> lblHour;
  Pair<QComboBox> cboHour;  // "00" to "23"
  Pair<QLabel> lblMinute;
  Pair<QComboBox> cboMinute;  // "00" to "59"

  // ---- Controls: its member, colour and reminder -------------------------------------------
  QGroupBox* fraPerson;
  QRadioButton* optExistingPerson;
  QComboBox* cboExistingPerson;  // the Organizer's members, refilled as it takes the focus
  QRadioButton* optEnterNameOfNewPerson;
  QLineEdit* txtNewPerson;
  QLabel* lblColor;
  QLabel* lblColorChoice;  // its background is the task's colour, field 18
  QPushButton* cmdSelect;  // the palette
  QGroupBox* fraReminder;
  QRadioButton* optOn;  // field 20: 1 on, 0 off
  QRadioButton* optOff;
  QPushButton* cmdSet;  // the reminder's moments; enabled only while optOn is set

  QPushButton* cmdAddThisEvent_AppointmentToTheSchedule;
  QPushButton* cmdClose;

  // ---- Procedures ------------------------------------------------------------------------
  // The keeper of the eight reminder values of the task being entered: "Put" stores under one
  // of the names of organizer::ReminderVariables, every verb answers what is stored.
  Value Store_Reminder_Variables(const std::string& name, const std::string& verb, const Value& value = {});
  void chkSelectTimeRange_Click();
  void optExistingPerson_Click();
  void optEnterNameOfNewPerson_Click();
  // The Organizer's members, entry by entry, with none chosen.
  void cboExistingPerson_GotFocus();
  void cmdSelect_Click();
  void cmdSet_Click();
  // Checks the window, asks, appends the task and gets the window ready for the next one.
  void cmdAddThisEvent_AppointmentToTheSchedule_Click();
  void cmdClose_Click();

 private:
  void Build_Task();
  void Build_Moment(int moment, QGroupBox* frame);
  void Build_Choices();
  void Place_Controls();
  void Connect_Controls();
  // The chosen input of the person enabled in the window background colour, the other disabled
  // in the button-face colour.
  void Enable_Person_Input(bool existing);
  organizer::NewTaskEntries Read_Entries() const;
  organizer::NewTaskDetails Read_Details();
  // A member not yet in the Organizer's list goes into it, and its marker record into the log.
  void Add_Member_If_New(const std::string& person);
  // The colour of a palette label drawn at random, never light grey unasked.
  void Choose_Random_Colour();
  void Clear_For_Next_Task();

  organizer::ReminderVariables reminder_variables_;
};

}  // namespace orrivane
