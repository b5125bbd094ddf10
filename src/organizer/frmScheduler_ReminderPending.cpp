// Procedures of the Organizer that other parts of the window bring; they do nothing here until
// those parts come.
#include "organizer/frmScheduler_Reminder.h"

namespace orrivane {

void frmScheduler_Reminder::View_Task_Event_Information(std::string_view, const Value&) {}

}  // namespace orrivane
