// The reminders that belong to no task: the four ways into the multi-purpose window's frames of
// non-task reminders, each naming itself to Multipurpose_Form.
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/organizer_callers.h"

namespace orrivane {

// A new reminder: the entry frame with "Add", at the present moment.
void frmScheduler_Reminder::Activate_Non_Task_Reminder_Window() {
  Multipurpose_Form(organizer::kActivateNonTaskReminderWindow);
}

// The entry frame with "Update", showing the reminder chosen from the list.
void frmScheduler_Reminder::Activate_Change_NT_Task_Window() {
  Multipurpose_Form(organizer::kActivateChangeNTTaskWindow);
}

// The list of reminders with "Delete".
void frmScheduler_Reminder::Activate_Delete_NT_Task_Window() {
  Multipurpose_Form(organizer::kActivateDeleteNTTaskWindow);
}

// The list of reminders with "Select", which leads to the change.
void frmScheduler_Reminder::Activate_View_NT_Task_Window() {
  Multipurpose_Form(organizer::kActivateViewNTTaskWindow);
}

}  // namespace orrivane
