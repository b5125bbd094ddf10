#pragma once
// The operands the calendar commands share: the style option, a month in any form of the month
// vocabulary, a date and a year as the entry windows offer them.
#include <cstdint>
#include <optional>
#include <string>

#include "cli/commands.h"
#include "engine/calendar_engine.h"

namespace orrivane::cli {

// Julian with --julian, else Gregorian.
engine::CalendarStyle Style_Of(const Arguments& arguments);

// The full English name of a month given in any form Define_Month accepts; nothing for a text
// it does not know.
std::optional<std::string> Month_Name_Of(const std::string& month);
// The same, failing with "Invalid Month Entry" for a month the vocabulary does not know.
std::string Required_Month_Name(const std::string& month);

// A date as the date boxes offer it, a whole number from 1 to 31; anything else fails with
// "Invalid Date Entry". Whether the month has that day is the procedures' question.
std::int64_t Date_Of(const std::string& date);

// A year written as a whole number from 0 to 1,000,000; anything else fails with the entry
// windows' "Invalid Year Entry".
std::int64_t Year_Of(const std::string& year);

// True when the text is one or more of the digits 0 to 9 and nothing else.
bool Is_All_Digits(const std::string& text);

}  // namespace orrivane::cli
