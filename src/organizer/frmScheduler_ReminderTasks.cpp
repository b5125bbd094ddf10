// The task list of one group member, its date filter, and showing one task.
#include "organizer/frmScheduler_Reminder.h"

namespace orrivane {

void frmScheduler_Reminder::Connect_Tasks() {}

}  // namespace orrivane
