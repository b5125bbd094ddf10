#pragma once
#include <string_view>

namespace orrivane::organizer {

void Open_Set_Reminder_Window(std::string_view caller_window_name);

}  // namespace orrivane::organizer
