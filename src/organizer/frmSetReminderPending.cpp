// Pending: the reminder window comes in its own piece of work, which defines this opening in its
// own file; until then the Set... button of a new task opens nothing.
#include "organizer/set_reminder_opening.h"

namespace orrivane::organizer {

void Open_Set_Reminder_Window(std::string_view) {}

}  // namespace orrivane::organizer
