#pragma once
#include <string>

#include "core/value.h"

namespace orrivane::organizer {

Value New_Task_Reminder_Variables(const std::string& name, const std::string& verb, const Value& value);

}  // namespace orrivane::organizer
