#pragma once
// What the tests of the reminder timer and its windows share: the program started at a chosen
// moment, the reminder files written as the program writes them, and the windows read back.
#include <QComboBox>
#include <QLabel>
#include <QTest>
#include <string>
#include <vector>

#include "calendar/calendar_window_test.h"
#include "organizer/log_file.h"
#include "reminders/frmNonTaskReminderWindow.h"
#include "reminders/frmReminderWindow.h"
#include "reminders/reminder_samples.h"

namespace orrivane::testing {

class ReminderWindowTest : public CalendarWindowTest {
 protected:
  frmReminderWindow& tasks() { return Window<frmReminderWindow>(); }
  frmNonTaskReminderWindow& messages() { return Window<frmNonTaskReminderWindow>(); }

  // Starts the program at the moment given; the timer's first tick comes five seconds later.
  void Start_At(int year, int month, int day, int hour, int minute, int second) {
    machine().Set_Now(year, month, day, hour, minute, second);
    Start_Program();
  }

  // TRemin.tmp, and the log with the same tasks, as the program keeps them.
  void Write_Task_Reminders(const std::vector<organizer::ScheduleRecord>& records) {
    reminders::samples::Write_Tasks(Path("TRemin.tmp"), records);
    reminders::samples::Write_Tasks(Path("Schedule.tmp"), records);
  }
  void Write_Messages(const std::vector<reminders::NonTaskReminderRecord>& records) {
    reminders::samples::Write_Messages(Path("NTRemin.dat"), records);
  }

  std::string Title(QWidget& window) { return window.windowTitle().toStdString(); }
  std::string Text(const QLabel* label) { return controls::Caption(label); }
  std::vector<std::string> Items(const QComboBox* box) {
    std::vector<std::string> items;
    for (int i = 0; i < box->count(); ++i) items.push_back(box->itemText(i).toStdString());
    return items;
  }

  // Closes both reminder windows as the user does.
  void Close_Reminders() {
    if (tasks().isVisible()) Click(tasks().cmdClose);
    if (messages().isVisible()) Click(messages().cmdClose);
  }

  // The moments ("10:25:00 AM") at which the task window opened, the clock moved on five
  // seconds at a time for `seconds`, the window closed after each opening.
  std::vector<std::string> Task_Windows_Over(int seconds) {
    std::vector<std::string> opened;
    for (int s = 0; s < seconds; s += 5) {
      machine().Advance_Seconds(5);
      if (!tasks().isVisible()) continue;
      opened.push_back(platform::Machine().System_Time());
      Close_Reminders();
    }
    return opened;
  }

  // Chooses an item of a drop-down list with the keys, as the user does.
  void Choose_With_Keys(QComboBox* box, int index) {
    box->window()->activateWindow();
    box->setFocus();
    Process_Events();
    for (int i = box->currentIndex(); i < index; ++i) QTest::keyClick(box, Qt::Key_Down);
  }
};

}  // namespace orrivane::testing
