// The log files: a new log, opening and saving one, and the question about unsaved changes.
#include "organizer/frmScheduler_Reminder.h"

namespace orrivane {

void frmScheduler_Reminder::Connect_Log() {}
void frmScheduler_Reminder::Form_Unload() {}

}  // namespace orrivane
