// Pictures of the two reminder windows with a short and a long message, written to the folder
// named by ORRIVANE_SCREENSHOT_DIR; without it the test only checks that they draw.
#include "reminders/reminder_window_test.h"
#include "support/screenshot.h"

namespace orrivane {
namespace {

using reminders::samples::Message_At;
using reminders::samples::Task_With_Reminder;

class ReminderScreenshots : public testing::ReminderWindowTest {
 protected:
  void Keep(QWidget& window, const QString& name) { testing::Keep_Screenshot(window, name); }
};

TEST_F(ReminderScreenshots, ShortAndLongMessages) {
  std::string long_message;
  while (long_message.size() < 250) long_message += "Copy the log to the other disk before the end of the week. ";
  Write_Messages({Message_At(1, "Bank", "Call the bank.", "14:30, March 5, 2001"),
                  Message_At(2, "Backup", long_message, "14:31, March 5, 2001"),
                  Message_At(3, "Backup", long_message, "14:32, March 5, 2001"),
                  Message_At(4, "Bank", "Call the bank.", "14:32, March 5, 2001")});
  Start_At(2001, 3, 5, 14, 29, 55);
  organizer::ScheduleRecord long_task = Task_With_Reminder(2, "Annual meeting of the members of the group", "March 5, 2001", "14:31");
  long_task.Person_Name = "Anna Maria of the long family name";
  Write_Task_Reminders({Task_With_Reminder(1, "Dentist", "March 5, 2001", "14:30"), long_task,
                        Task_With_Reminder(3, "Call", "March 5, 2001", "14:31")});
  machine().Advance_Seconds(5);
  Keep(messages(), "frmNonTaskReminderWindow-short");
  Keep(tasks(), "frmReminderWindow-single");
  machine().Advance_Seconds(60);
  Keep(messages(), "frmNonTaskReminderWindow-long");
  Keep(tasks(), "frmReminderWindow-several");
  machine().Advance_Seconds(60);
  Keep(messages(), "frmNonTaskReminderWindow-several");
}

}  // namespace
}  // namespace orrivane
