// Stands in, until the chart comes, for what the log files call of it.
#include "organizer/frmScheduler_Reminder.h"

namespace orrivane {

void frmScheduler_Reminder::Refresh_Organizer_Screen(std::string_view) {}

}  // namespace orrivane
