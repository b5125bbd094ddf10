#pragma once
// "Task\Event Information: " and the task's name: one task of the log, shown in labels, and the
// one place where a task is changed. The labels are the window's hold of the task while the user
// edits it: the times window, the identity window, the palette and the reminder window only
// change them, and nothing reaches the log until the changes are saved, when the whole record is
// rebuilt from the window and written in its own place. Closing only hides the window.
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <memory>
#include <string>

#include "core/value.h"
#include "organizer/reminder_labels.h"
#include "organizer/schedule_record.h"
#include "organizer/task_edit.h"
#include "platform/MenuTree.h"

namespace orrivane {

class frmTaskInformation : public QMainWindow {
  Q_OBJECT
 public:
  frmTaskInformation();

  // ---- Controls: the task ----------------------------------------------------------------
  QLabel* lblRecordNumberLabel;
  QLabel* lblRecordNumber;  // field 1: names the record at saving
  QLabel* lblTaskNameLabel;
  QLabel* lblTaskName;  // field 2
  QLabel* lblTaskDescriptionLabel;
  QLabel* lblTaskDescription;  // field 3
  QLabel* lblCommentsLabel;
  QPlainTextEdit* txtComments;  // field 4, the one field typed into here
  QLabel* lblPersonLabel;
  QLabel* lblPerson;  // field 19
  QLabel* lblFromLabel;
  QLabel* lblFromDate;  // "March 05, 2001"
  QLabel* lblFromTime;  // "14:30"
  QLabel* lblToLabel;
  QLabel* lblToDate;
  QLabel* lblToTime;
  QPushButton* cmdChange;  // the times window
  QLabel* lblColorCodeLabel;
  QLabel* lblColorCode;  // its background is the task's colour, field 18
  QPushButton* cmdSelectNewColorCode;  // the palette

  // ---- Controls: the reminder ------------------------------------------------------------
  QGroupBox* fraReminder;
  QPushButton* cmdStatus;  // "ON" or "OFF": field 20
  QLabel* lblMethodLabel;
  QLabel* lblMethod;
  QLabel* lblIntervalLabel;
  QLabel* lblInterval;
  QPushButton* cmdChange1;  // sets the reminder in frmSetReminder; enabled while the reminder is on

  QPushButton* cmdSaveChangesToThisRecord;
  QPushButton* cmdClose;
  std::unique_ptr<MenuTree> menu;

  // ---- Procedures: showing -----------------------------------------------------------------
  // Fills the window from a record of the log and shows it in front.
  void Show_Task_Record(const organizer::ScheduleRecord& record);
  // The keeper of fields 21 to 28: "Put" stores under one of the eight names, every verb answers.
  Value Store_Reminder_Variables(const std::string& name, const std::string& verb, const Value& value = {});
  // The keeper of field 11: "Put" stores, every verb answers. Only the times window puts, and
  // the value stays from one task to the next; empty until then.
  Value Store_Time_Range_Flag(const std::string& verb, const Value& value = {});
  // lblMethod and lblInterval from the kind of reminder and its interval; another kind leaves
  // them as they are.
  void Set_Reminder_Labels(const Value& Value_, const Value& Interval_Days, const Value& Interval_Hours,
                           const Value& Interval_Minutes);
  void Enable_Reminder_Frame_Labels(bool Value_);

  // ---- Procedures: editing -----------------------------------------------------------------
  void Set_Record_Changed_Flag(bool Flag);
  bool Record_Changed() const { return Record_Changed_Flag; }
  // Switches the reminder on or off.
  void cmdStatus_Click();
  void txtComments_Change();
  // Opens frmSetReminder on this window's reminder values, which it then changes.
  void cmdChange1_Click();
  // The times window, with this window's moments.
  void Change_Task_Times();
  // The identity window, with this window's name, description, member and colour.
  void mnuChangeIdentityInformation_Click();
  // The palette, serving this window's colour; the record counts as changed at once.
  void Activate_Color_Palette();

  // ---- Procedures: saving and closing ----------------------------------------------------------
  // Asks, then saves.
  void Confirm_Save_Changes();
  // The record rebuilt from the window, written over its own in the log and in the list of task
  // reminders while the timer keeps off that list.
  void Save_Changes_To_Record();
  // Hides the window; a changed record is first offered for saving (Yes, No or Cancel).
  void Close_Record();
  // The close box: a changed record is offered for saving (Yes or No), then forgotten.
  void Form_Unload();
  // The window's image to the printer, without its three buttons of editing and closing.
  void mnuPrintWindow_Click();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Build_Controls();
  void Build_Menu();
  void Place_Controls();
  void Connect_Controls();
  // The task as the window holds it now.
  organizer::TaskInformation Read_Task_Information();
  organizer::MomentLabels From_Labels() const;
  organizer::MomentLabels To_Labels() const;

  organizer::ReminderVariables reminder_variables_;
  Value time_range_flag_;  // Store_Time_Range_Flag
  // The window differs from the log.
  bool Record_Changed_Flag = false;
};

}  // namespace orrivane
