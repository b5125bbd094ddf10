#pragma once
// What the tests of setting a reminder share: the program started at a fixed moment, the two
// windows, their boxes chosen from with the keyboard or typed into, options clicked, the moments'
// labels read back, and the two callers: the new-task window opened from the Organizer, and the
// task information window showing a task as the user shows it.
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <string>
#include <vector>

#include "calendar/Form1.h"
#include "organizer/frmAddNewAppointment_Reminder.h"
#include "organizer/frmSetRemToTaskTime.h"
#include "organizer/frmSetReminder.h"
#include "organizer/organizer_callers.h"
#include "organizer/reminder_labels.h"
#include "organizer/set_reminder_opening.h"
#include "organizer/task_window_test.h"
#include "shell/frmAbout.h"

namespace orrivane::testing {

class SetReminderWindowTest : public TaskWindowTest {
 protected:
  void SetUp() override {
    TaskWindowTest::SetUp();
    machine().Set_Now(2001, 3, 5, 14, 5, 9);
    // The program's start: the main window's first activation empties the working files.
    Window<Form1>().show();
    Process_Events();
    Window<frmAbout>().hide();
  }

  frmSetReminder& reminder() { return Window<frmSetReminder>(); }
  frmSetRemToTaskTime& task_time() { return Window<frmSetRemToTaskTime>(); }

  QComboBox* Box(QWidget& window, const char* name, int index) {
    return Control<QComboBox>(window, controls::Array_Name(name, index));
  }
  QLabel* Label(QWidget& window, const char* name, int index) {
    return Control<QLabel>(window, controls::Array_Name(name, index));
  }
  std::string Caption_Of(QWidget& window, const char* name, int index) {
    QLabel* label = Label(window, name, index);
    return label == nullptr ? std::string() : controls::Caption(label);
  }
  static std::vector<std::string> Items(const QComboBox* box) {
    std::vector<std::string> items;
    for (int i = 0; i < box->count(); ++i) items.push_back(box->itemText(i).toStdString());
    return items;
  }

  // Chooses an entry of a box's list with the arrow keys, as the user does: a click into the
  // box, then Down or Up until the entry stands in it.
  void Choose(QWidget& window, QComboBox* box, const QString& entry) {
    ASSERT_NE(box, nullptr);
    const int target = box->findText(entry);
    ASSERT_GE(target, 0) << entry.toStdString();
    QTest::mouseClick(box->isEditable() ? static_cast<QWidget*>(box->lineEdit()) : box, Qt::LeftButton);
    if (!box->isEditable()) {
      // A click on a list-only box opens its list; Escape closes it again.
      Process_Events();
      Press_Keys(QKeySequence(Qt::Key_Escape));
    }
    while (box->currentIndex() < target) Press_Keys(window, QKeySequence(Qt::Key_Down));
    while (box->currentIndex() > target) Press_Keys(window, QKeySequence(Qt::Key_Up));
    ASSERT_EQ(box->currentText(), entry);
  }
  // Types into an editable box, as the user does.
  void Type_Into(QComboBox* box, const QString& text) {
    ASSERT_NE(box, nullptr);
    Type(box->lineEdit(), text);
  }

  // ---- frmSetReminder ------------------------------------------------------------------------
  void Click_Reminder_Option(const char* name) { Click_Option(Control<QRadioButton>(reminder(), name)); }
  std::string Frame_Caption(int index) {
    return Control<QGroupBox>(reminder(), controls::Array_Name("fraDateTimeSelection", index))->title().toStdString();
  }
  std::string Date_Of(int index) { return Caption_Of(reminder(), "lblDate", index); }
  std::string Time_Of(int index) { return Caption_Of(reminder(), "lblTime", index); }
  std::string Interval_Count(int index) { return Caption_Of(reminder(), "lblRI", index); }
  void Choose_Interval(int index, const char* entry) {
    Choose(reminder(), Box(reminder(), "cboInterval", index), entry);
  }

  // A fixed moment typed into the boxes of a moment (an empty text leaves a box as it is), then
  // Select.
  void Select_Moment(int index, const char* month, const char* date, const char* century, const char* year,
                     const char* hour, const char* minute) {
    const std::pair<const char*, const char*> boxes[] = {{"ComboMonths", month}, {"ComboDate", date},
                                                         {"ComboCentury", century}, {"ComboYear", year},
                                                         {"cboHour", hour},         {"cboMinute", minute}};
    for (const auto& [name, text] : boxes) {
      if (*text != '\0') Type_Into(Box(reminder(), name, index), text);
    }
    Trigger(reminder(), controls::Array_Name("cmdSelect", index));
  }

  // ---- frmSetRemToTaskTime ---------------------------------------------------------------------
  // Opens it for a moment with Use Task Time, and ties the moment to the task: the relation
  // chosen, the anchor clicked (when given), the four amounts typed (when given), OK.
  void Tie_To_Task(int index, const char* when, const char* anchor, std::vector<const char*> amounts = {}) {
    Trigger(reminder(), controls::Array_Name("cmdUseTaskTime", index));
    ASSERT_TRUE(task_time().isVisible());
    if (*when != '\0') Choose(task_time(), task_time().cboWhen, when);
    if (*anchor != '\0') Click_Option(Control<QRadioButton>(task_time(), anchor));
    for (std::size_t box = 0; box < amounts.size(); ++box) {
      Type_Into(Box(task_time(), "cboTimeLength", static_cast<int>(box)), amounts[box]);
    }
    Trigger(task_time(), "cmdOK");
  }

  // The reminder of the dentist's task (14:30 on March 5, 2001) set for the new task: a series
  // from one day before the task's start to 14:00 on its day, every 2 hours and 30 minutes.
  void Set_The_Dentists_Series() {
    Open_From_New_Task();
    Click_Option(reminder().optIntermittently1);
    Choose_Interval(1, "2");
    Choose_Interval(0, "30");
    Tie_To_Task(0, "Before", "OptStart", {"0", "0", "1", "0"});
    Select_Moment(1, "March", "05", "20", "01", "14", "00");
    Trigger(reminder(), "cmdOK");
  }

  // ---- The callers ----------------------------------------------------------------------------
  frmAddNewAppointment_Reminder& entry() { return Window<frmAddNewAppointment_Reminder>(); }
  Value New_Task(const char* name) { return entry().Store_Reminder_Variables(name, "Get"); }
  // The new-task window, opened from the Organizer's Log menu unless it stands open (its
  // reminder values start as today and now), the reminder switched on and Set... pressed.
  void Open_From_New_Task() {
    if (!entry().isVisible()) {
      controls::Show_In_Front(organizer());
      Process_Events();
      Trigger(organizer(), "mnuAddNewTask");
      Process_Events();
    }
    if (!entry().optOn->isChecked()) Click_Option(entry().optOn);
    Trigger(entry(), "cmdSet");
    Process_Events();
    ASSERT_TRUE(reminder().isVisible());
  }
  Value Task_Information(const char* name) { return information().Store_Reminder_Variables(name, "Get"); }
  // The reminder of a task shown in the task information window, opened with its Change...
  void Open_From_Task_Information(const organizer::ScheduleRecord& task) {
    View_Task(task);
    Trigger(information(), "cmdChange1");
    Process_Events();
    ASSERT_TRUE(reminder().isVisible());
  }
};

}  // namespace orrivane::testing
