#pragma once
// The messages with which Calendarr and Convert refuse a date, shared by both.
#include <cstdint>
#include <string>

#include "core/message.h"

namespace orrivane::engine {

// Code 1: a Gregorian date before 15 October 1582.
Message Gregorian_Start_Message();
// Code 2: 29 February of a common year.
Message February_Message(std::int64_t year);
// Code 3: a day after the end of its month.
Message No_Such_Day_Message(const std::string& month, std::int64_t date);

}  // namespace orrivane::engine
