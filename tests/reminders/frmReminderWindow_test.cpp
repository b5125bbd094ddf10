// The task reminder window: the list of several tasks, a choice read back as of the firing, the
// task's information, and closing.
#include "organizer/frmTaskInformation.h"
#include "reminders/reminder_window_test.h"

namespace orrivane {
namespace {

using organizer::ScheduleRecord;
using reminders::samples::Task_With_Reminder;
using testing::ReminderWindowTest;

class frmReminderWindowTest : public ReminderWindowTest {
 protected:
  // Two tasks due at 14:00 on March 5, 2001; the window stands with its list.
  void Fire_Two_Tasks() {
    Start_At(2001, 3, 5, 13, 59, 55);
    ScheduleRecord dentist = Task_With_Reminder(3, "Dentist", "March 5, 2001", "14:00");
    ScheduleRecord call = Task_With_Reminder(9, "Call", "March 5, 2001", "14:00");
    call.Person_Name = "Ben";
    call.Start_Hour = "16";
    call.Start_Minute = "05";
    Write_Task_Reminders({dentist, call});
    machine().Advance_Seconds(5);
    ASSERT_TRUE(tasks().isVisible());
  }
  frmTaskInformation& information() { return Window<frmTaskInformation>(); }
};

TEST_F(frmReminderWindowTest, BeforeAnyFiringItHasItsDesignCaption) {
  EXPECT_EQ(Title(tasks()), "Orrivane Task Reminder");
  EXPECT_EQ(Text(tasks().Label5), "This reminder is for the following task\\event:");
  EXPECT_EQ(tasks().cmdMoreDetails->text().toStdString(), "View Task");
}

TEST_F(frmReminderWindowTest, ViewTaskIsDisabledUntilATaskIsChosen) {
  Fire_Two_Tasks();
  EXPECT_FALSE(tasks().cmdMoreDetails->isEnabled());
  Choose_With_Keys(tasks().cboTaskList, 1);
  EXPECT_EQ(controls::Text_Of(tasks().cboTaskList), "9 - Call");
  EXPECT_TRUE(tasks().cmdMoreDetails->isEnabled());
  EXPECT_EQ(Text(tasks().lblFor), "Ben");
  EXPECT_EQ(Text(tasks().lblStartTime), "4:05 PM, March 5, 2001");
  EXPECT_EQ(Text(tasks().lblEndingTime), "3:45 PM, March 5, 2001");
  EXPECT_EQ(Text(tasks().lblTimeLeft), "It will be 2 hours and, 5 minutes until this task is scheduled to begin.");
  // The caption and the task's name stay.
  EXPECT_EQ(Title(tasks()), "2 Reminders");
  EXPECT_EQ(Text(tasks().lblTaskName), "");
}

TEST_F(frmReminderWindowTest, AChoiceAnHourLaterStillTellsTheTimeLeftAsOfTheFiring) {
  Fire_Two_Tasks();
  machine().Advance_Seconds(3600);
  Choose_With_Keys(tasks().cboTaskList, 0);
  EXPECT_EQ(Text(tasks().lblTimeLeft), "It will be 30 minutes until this task is scheduled to begin.");
  EXPECT_EQ(Text(tasks().lblTimeOfMessage), "2:00 PM, March 5, 2001");
}

TEST_F(frmReminderWindowTest, AChosenTaskThatHasGoneLeavesTheLabelsAsTheyStand) {
  Fire_Two_Tasks();
  reminders::samples::Write_Tasks(Path("TRemin.tmp"), {Task_With_Reminder(9, "Call", "March 5, 2001", "14:00")});
  Choose_With_Keys(tasks().cboTaskList, 0);
  EXPECT_EQ(controls::Text_Of(tasks().cboTaskList), "3 - Dentist");
  EXPECT_TRUE(tasks().cmdMoreDetails->isEnabled());
  EXPECT_EQ(Text(tasks().lblFor), "N\\A");
  EXPECT_EQ(Text(tasks().lblTimeLeft), "Select a task from the list above.");
}

TEST_F(frmReminderWindowTest, ViewTaskShowsTheChosenTasksInformation) {
  Fire_Two_Tasks();
  Choose_With_Keys(tasks().cboTaskList, 1);
  Click(tasks().cmdMoreDetails);
  ASSERT_TRUE(information().isVisible());
  EXPECT_EQ(Text(information().lblTaskName), "Call");
  EXPECT_EQ(Text(information().lblRecordNumber), "9");
}

TEST_F(frmReminderWindowTest, ViewTaskShowsTheOneTaskOfTheSingleForm) {
  Start_At(2001, 3, 5, 13, 59, 55);
  Write_Task_Reminders({Task_With_Reminder(4, "Lunch", "March 5, 2001", "12:00"),
                        Task_With_Reminder(7, "Dentist", "March 5, 2001", "14:00")});
  machine().Advance_Seconds(5);
  ASSERT_TRUE(tasks().isVisible());
  EXPECT_EQ(tasks().Store_Current_Task_Record_Number("No Record Number Supplied"), Value(7));
  Click(tasks().cmdMoreDetails);
  ASSERT_TRUE(information().isVisible());
  EXPECT_EQ(Text(information().lblTaskName), "Dentist");
}

TEST_F(frmReminderWindowTest, CloseOnlyHidesAndTheNextFiringFillsItAgain) {
  Start_At(2001, 3, 5, 13, 59, 55);
  Write_Task_Reminders({Task_With_Reminder(1, "Dentist", "March 5, 2001", "14:00"),
                        Task_With_Reminder(2, "Call", "March 5, 2001", "14:01")});
  machine().Advance_Seconds(5);
  EXPECT_EQ(Title(tasks()), "Reminder: Dentist");
  // Left open, it shows the newer reminder.
  machine().Advance_Seconds(60);
  EXPECT_EQ(Title(tasks()), "Reminder: Call");
  Click(tasks().cmdClose);
  EXPECT_FALSE(tasks().isVisible());
  EXPECT_EQ(Text(tasks().lblTaskName), "Call");
}

TEST_F(frmReminderWindowTest, TheControlsDoNotOverlap) {
  const std::vector<QWidget*> shown{tasks().Label5, tasks().lblTaskName, tasks().lblFor, tasks().lblStartTime,
                                    tasks().lblEndingTime, tasks().lblTimeLeft, tasks().lblTimeOfMessage,
                                    tasks().cmdMoreDetails, tasks().cmdClose};
  for (std::size_t i = 0; i < shown.size(); ++i) {
    EXPECT_TRUE(tasks().rect().contains(shown[i]->geometry())) << shown[i]->objectName().toStdString();
    for (std::size_t j = i + 1; j < shown.size(); ++j) {
      EXPECT_FALSE(shown[i]->geometry().intersects(shown[j]->geometry()))
          << shown[i]->objectName().toStdString() << " " << shown[j]->objectName().toStdString();
    }
  }
}

}  // namespace
}  // namespace orrivane
