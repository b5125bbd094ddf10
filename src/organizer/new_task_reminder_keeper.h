#pragma once
// The keeper of the reminder values of the new-task window, as the reminder window reaches it.
#include <string>

#include "core/value.h"

namespace orrivane::organizer {

Value New_Task_Reminder_Variables(const std::string& name, const std::string& verb, const Value& value);

}  // namespace orrivane::organizer
