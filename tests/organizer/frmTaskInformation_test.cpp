// The task information window, reached from the Organizer's list: the task in its labels, its
// reminder in words, the keeper of the reminder values, and closing, which only hides.
#include "organizer/frmTaskInformation.h"

#include <QAction>
#include <QCloseEvent>

#include "organizer/task_window_test.h"

namespace orrivane {
namespace {

using controls::Caption;
using organizer::ScheduleRecord;
using testing::TaskWindowTest;

class frmTaskInformationTest : public TaskWindowTest {
 protected:
  void View(const ScheduleRecord& task) { View_Task(task); }

  // Dentist from 14:30 on March 5, 2001 to 16:05 on March 7, 2001.
  static ScheduleRecord Ranged_Task() {
    ScheduleRecord task = Task_At(12, "Anna", 2001, "March", "05", "14", "30", "Dentist");
    task.Task_Description = "Checkup";
    task.Task_Comments = "Bring X-rays\r\nand the card";
    task.Time_Range_Flag = 1;
    task.Finish_Date = "07";
    task.Finish_Hour = "16";
    task.Finish_Minute = "05";
    task.Color_Code = 0x00FF80;
    return task;
  }

  static ScheduleRecord With_Reminder(ScheduleRecord task, int status, int kind, const Value& days,
                                      const Value& hours, const Value& minutes) {
    task.Reminder_Status = status;
    task.Reminder_Interval = kind;
    task.Interval_Days = days;
    task.Interval_Hours = hours;
    task.Interval_Minutes = minutes;
    return task;
  }

  void Expect_Reminder_Labels_Enabled(bool enabled) {
    // The reminder can be changed while it is on.
    for (QWidget* control : {static_cast<QWidget*>(information().lblMethod),
                             static_cast<QWidget*>(information().lblMethodLabel),
                             static_cast<QWidget*>(information().lblInterval),
                             static_cast<QWidget*>(information().lblIntervalLabel),
                             static_cast<QWidget*>(information().cmdChange1)}) {
      EXPECT_EQ(control->isEnabled(), enabled) << control->objectName().toStdString();
    }
  }
};

TEST_F(frmTaskInformationTest, ShowsTheTaskInItsLabels) {
  View(With_Reminder(Ranged_Task(), 1, 1, 0, 0, 0));
  frmTaskInformation& window = information();
  EXPECT_EQ(window.windowTitle().toStdString(), "Task\\Event Information: Dentist");
  EXPECT_EQ(Caption(window.lblRecordNumber), "12");
  EXPECT_EQ(Caption(window.lblTaskName), "Dentist");
  EXPECT_EQ(Caption(window.lblTaskDescription), "Checkup");
  EXPECT_EQ(window.txtComments->toPlainText().toStdString(), "Bring X-rays\nand the card");
  EXPECT_FALSE(window.txtComments->isReadOnly());
  EXPECT_EQ(Caption(window.lblPerson), "Anna");
  EXPECT_EQ(Caption(window.lblFromDate), "March 05, 2001");
  EXPECT_EQ(Caption(window.lblFromTime), "14:30");
  EXPECT_EQ(Caption(window.lblToDate), "March 07, 2001");
  EXPECT_EQ(Caption(window.lblToTime), "16:05");
  EXPECT_EQ(controls::Back_Color(window.lblColorCode), 0x00FF80u);
  EXPECT_FALSE(window.Record_Changed());
}

TEST_F(frmTaskInformationTest, OneReminderOn) {
  View(With_Reminder(Ranged_Task(), 1, 1, 0, 0, 0));
  EXPECT_EQ(information().cmdStatus->text().toStdString(), "ON");
  EXPECT_EQ(Caption(information().lblMethod), organizer::kOnlyOneReminderMethod);
  EXPECT_EQ(Caption(information().lblInterval), "No Interval In Effect");
  Expect_Reminder_Labels_Enabled(true);
}

TEST_F(frmTaskInformationTest, ASeriesFromTheFirstMomentSwitchedOff) {
  View(With_Reminder(Ranged_Task(), 0, 2, 0, 0, 5));
  EXPECT_EQ(information().cmdStatus->text().toStdString(), "OFF");
  EXPECT_EQ(Caption(information().lblMethod), organizer::kSeriesFromSpecifiedTimeMethod);
  EXPECT_EQ(Caption(information().lblInterval), "5 Min");
  Expect_Reminder_Labels_Enabled(false);
}

TEST_F(frmTaskInformationTest, ASeriesToTheLastMoment) {
  View(With_Reminder(Ranged_Task(), 1, 3, 10, 2, 0));
  EXPECT_EQ(Caption(information().lblMethod), organizer::kSeriesToSpecifiedTimeMethod);
  EXPECT_EQ(Caption(information().lblInterval), "More than 10 Days");
  Expect_Reminder_Labels_Enabled(true);
}

TEST_F(frmTaskInformationTest, ASeriesOfADayAnHourAndFiveMinutes) {
  View(With_Reminder(Ranged_Task(), 1, 2, 1, 1, 5));
  EXPECT_EQ(Caption(information().lblInterval), "1 Day, 1 Hr, 5 Min");
}

TEST_F(frmTaskInformationTest, TheKeeperHoldsTheEightReminderValues) {
  ScheduleRecord task = With_Reminder(Ranged_Task(), 1, 3, 1, 2, 30);
  task.Date_String[0] = "March 1, 2001";
  task.Time_String[0] = "08:00";
  task.Date_String[1] = "March 5, 2001";
  task.Time_String[1] = "14:00";
  View(task);
  frmTaskInformation& window = information();
  EXPECT_EQ(window.Store_Reminder_Variables("Date_String(0)", "Get"), Value("March 1, 2001"));
  EXPECT_EQ(window.Store_Reminder_Variables("Time_String(0)", "Get"), Value("08:00"));
  EXPECT_EQ(window.Store_Reminder_Variables("Date_String(1)", "Get"), Value("March 5, 2001"));
  EXPECT_EQ(window.Store_Reminder_Variables("Time_String(1)", "Get"), Value("14:00"));
  EXPECT_EQ(window.Store_Reminder_Variables("Reminder_Interval", "Get"), Value(3));
  EXPECT_EQ(window.Store_Reminder_Variables("Interval_Days", "Get"), Value(1));
  EXPECT_EQ(window.Store_Reminder_Variables("Interval_Hours", "Get"), Value(2));
  EXPECT_EQ(window.Store_Reminder_Variables("Interval_Minutes", "Get"), Value(30));
}

TEST_F(frmTaskInformationTest, AnotherTaskReplacesEverything) {
  View(With_Reminder(Ranged_Task(), 1, 3, 10, 2, 0));
  ScheduleRecord other = With_Reminder(Task_At(13, "Anna", 2024, "July", "04", "09", "00", "Parade"), 0, 1, 0, 0, 0);
  organizer::Append_Record(organizer::kScheduleFile, other);
  Trigger(organizer(), "cmdShowTaskList");
  Double_Click_Entry(organizer().lstScheduleList, "2024, 07Jul 04, 09:00 Parade, #13");
  EXPECT_EQ(information().windowTitle().toStdString(), "Task\\Event Information: Parade");
  EXPECT_EQ(Caption(information().lblFromDate), "July 04, 2024");
  EXPECT_EQ(Caption(information().lblToTime), "09:00");
  EXPECT_EQ(information().cmdStatus->text().toStdString(), "OFF");
  EXPECT_EQ(Caption(information().lblMethod), organizer::kOnlyOneReminderMethod);
  Expect_Reminder_Labels_Enabled(false);
}

TEST_F(frmTaskInformationTest, CloseHidesAndTheWindowStays) {
  View(Ranged_Task());
  frmTaskInformation* before = &information();
  Trigger(information(), "cmdClose");
  EXPECT_FALSE(information().isVisible());
  Double_Click_Entry(organizer().lstScheduleList, organizer::Task_List_Entry(Ranged_Task()));
  EXPECT_TRUE(information().isVisible());
  EXPECT_EQ(&information(), before);
  Trigger(information(), "mnuClose");
  EXPECT_FALSE(information().isVisible());
}

TEST_F(frmTaskInformationTest, TheCloseBoxHidesItToo) {
  View(Ranged_Task());
  information().close();  // the frame's close box
  EXPECT_FALSE(information().isVisible());
  EXPECT_EQ(Caption(information().lblTaskName), "Dentist");
}

TEST_F(frmTaskInformationTest, ItComesToTheFront) {
  View(Ranged_Task());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&information()));
}

}  // namespace
}  // namespace orrivane
