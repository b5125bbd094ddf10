#pragma once
// The window that tells due tasks: one task at once, or a list of several to choose from. It
// changes no file; closing it only hides it. The moment of firing is kept in lblTimeOfMessage
// alone, and a choice from the list reads it back.
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <string>

#include "core/value.h"
#include "reminders/reminder_tick.h"

namespace orrivane {

class frmReminderWindow : public QWidget {
  Q_OBJECT
 public:
  frmReminderWindow();

  // ---- Controls --------------------------------------------------------------------------
  QLabel* Label5;
  QComboBox* cboTaskList;  // several tasks: "1 - Dentist"
  QLabel* lblTaskName;
  QFrame* lneTaskNameDivider;  // one task
  QLabel* Label1;
  QLabel* lblFor;
  QLabel* Label2;
  QLabel* lblStartTime;
  QLabel* Label3;
  QLabel* lblEndingTime;
  QLabel* lblTimeLeft;
  QLabel* Label4;
  QLabel* lblTimeOfMessage;
  QPushButton* cmdMoreDetails;
  QPushButton* cmdClose;

  // ---- Procedures ------------------------------------------------------------------------
  // The due tasks' record numbers of the last tick (see reminders::RecordNumberList).
  Value Store_Task_Record_Numbers(const std::string& Action_To_Perform, const Value& Element = {},
                                  const Value& value = {});
  // Stores the value unless it is "No Record Number Supplied"; answers what is stored.
  Value Store_Current_Task_Record_Number(const Value& value);
  // Fills the window in the form the tick chose and brings it up.
  void Show_Reminder(const reminders::TaskReminderFilling& filling);

  void cboTaskList_Click();
  void cmdMoreDetails_Click();
  void cmdClose_Click();

 private:
  void Build_Controls();
  void Connect_Controls();
  void Show_Single_Task(const reminders::TaskReminderFilling& filling);
  void Show_Several_Tasks(const reminders::TaskReminderFilling& filling);

  reminders::RecordNumberList task_record_numbers_;
  Value current_task_record_number_;
};

}  // namespace orrivane
