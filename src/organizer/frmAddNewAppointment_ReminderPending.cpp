// The reminder values of the new-task window, kept here until that window is part of the
// program and keeps them itself.
#include "organizer/new_task_reminder_keeper.h"
#include "organizer/reminder_labels.h"

namespace orrivane::organizer {

Value New_Task_Reminder_Variables(const std::string& name, const std::string& verb, const Value& value) {
  static ReminderVariables variables;
  return variables.Store(name, verb, value);
}

}  // namespace orrivane::organizer
