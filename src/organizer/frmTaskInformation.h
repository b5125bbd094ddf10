#pragma once
// "Task\Event Information: " and the task's name: one task of the log, shown in labels. The
// labels are the window's hold of the task, and the keeper of its eight reminder values goes with
// them. Closing only hides the window.
#include <QLabel>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QGroupBox>
#include <memory>
#include <string>

#include "core/value.h"
#include "organizer/reminder_labels.h"
#include "organizer/schedule_record.h"
#include "platform/MenuTree.h"

namespace orrivane {

class frmTaskInformation : public QMainWindow {
  Q_OBJECT
 public:
  frmTaskInformation();

  // ---- Controls: the task ----------------------------------------------------------------
  QLabel* lblRecordNumberLabel;
  QLabel* lblRecordNumber;  // field 1
  QLabel* lblTaskNameLabel;
  QLabel* lblTaskName;  // field 2
  QLabel* lblTaskDescriptionLabel;
  QLabel* lblTaskDescription;  // field 3
  QLabel* lblCommentsLabel;
  QPlainTextEdit* txtComments;  // field 4; read-only until tasks are edited here
  QLabel* lblPersonLabel;
  QLabel* lblPerson;  // field 19
  QLabel* lblFromLabel;
  QLabel* lblFromDate;  // "March 05, 2001"
  QLabel* lblFromTime;  // "14:30"
  QLabel* lblToLabel;
  QLabel* lblToDate;
  QLabel* lblToTime;
  QLabel* lblColorCodeLabel;
  QLabel* lblColorCode;  // its background is the task's colour, field 18

  // ---- Controls: the reminder ------------------------------------------------------------
  QGroupBox* fraReminder;
  QPushButton* cmdStatus;  // "ON" or "OFF": field 20
  QLabel* lblMethodLabel;
  QLabel* lblMethod;
  QLabel* lblIntervalLabel;
  QLabel* lblInterval;
  QPushButton* cmdChange1;  // sets the reminder in frmSetReminder; enabled while the reminder is on

  QPushButton* cmdClose;
  std::unique_ptr<MenuTree> menu;

  // ---- Procedures ------------------------------------------------------------------------
  // Fills the window from a record of the log and shows it in front.
  void Show_Task_Record(const organizer::ScheduleRecord& record);
  // The keeper of fields 21 to 28: "Put" stores under one of the eight names, every verb answers.
  Value Store_Reminder_Variables(const std::string& name, const std::string& verb, const Value& value = {});
  // lblMethod and lblInterval from the kind of reminder and its interval; another kind leaves
  // them as they are.
  void Set_Reminder_Labels(const Value& Value_, const Value& Interval_Days, const Value& Interval_Hours,
                           const Value& Interval_Minutes);
  void Enable_Reminder_Frame_Labels(bool Value_);
  void Set_Record_Changed_Flag(bool Flag);
  // Opens frmSetReminder on this window's reminder values, which it then changes.
  void cmdChange1_Click();
  bool Record_Changed() const { return Record_Changed_Flag; }
  void Close_Record();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Build_Controls();
  void Place_Controls();
  void Connect_Controls();

  organizer::ReminderVariables reminder_variables_;
  // The window differs from the log.
  bool Record_Changed_Flag = false;
};

}  // namespace orrivane
