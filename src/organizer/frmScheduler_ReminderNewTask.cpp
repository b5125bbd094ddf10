// The entry of new tasks: opening the new-task window with fresh reminder values.
#include <string>

#include "organizer/frmAddNewAppointment_Reminder.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/new_task_entry.h"
#include "platform/controls.h"
#include "platform/platform.h"
#include "platform/window_registry.h"

namespace orrivane {

void frmScheduler_Reminder::Connect_New_Task() {
  menu->On("mnuAddNewTask", [this] { Open_Add_New_Task_Window(); });
}

void frmScheduler_Reminder::Open_Add_New_Task_Window() {
  Refresh_Set_Reminder_Window();
  controls::Show_In_Front(Window<frmAddNewAppointment_Reminder>());
}

// Today and now come from one reading of the clock, so that they never straddle midnight.
void frmScheduler_Reminder::Refresh_Set_Reminder_Window() {
  const platform::ClockReading now = platform::Machine().Read_Clock();
  const auto defaults = organizer::Reminder_Defaults(now.date, now.time);
  frmAddNewAppointment_Reminder& new_task = Window<frmAddNewAppointment_Reminder>();
  for (std::size_t i = 0; i < defaults.size(); ++i) {
    new_task.Store_Reminder_Variables(std::string(organizer::ReminderVariables::kNames[i]), "Put", defaults[i]);
  }
}

}  // namespace orrivane
