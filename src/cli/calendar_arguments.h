#pragma once
// The operands the calendar commands share: the style option, a month in any form of the month
// vocabulary, a date and a year as the entry windows offer them.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "cli/commands.h"
#include "core/message.h"
#include "engine/calendar_engine.h"

namespace orrivane::cli {

// Julian with --julian, else Gregorian.
engine::CalendarStyle Style_Of(const Arguments& arguments);

// The full English name of a month given in any form Define_Month accepts; nothing for a text
// it does not know. The answer stands until the next call.
const std::optional<std::string>& Month_Name_Of(std::string_view month);
// The same, failing with "Invalid Month Entry" for a month the vocabulary does not know.
const std::string& Required_Month_Name(std::string_view month);

// A DAY: digits for a whole number from 1 up, of any length; anything else, and 0, fails with
// "Invalid Date Entry". Whether the month has that day is the procedures' question, told with
// their codes and messages: no month has a day above 31.
struct Day {
  // What the procedures compute with: the day itself, or, for a day beyond the reach of their
  // arithmetic, a stand-in that lies as far beyond every month and so gets the same answer.
  std::int64_t value = 0;
  std::string_view digits;  // the day as the messages write it, without leading zeros (a part of the operand)
};
Day Day_Of(std::string_view day);

// A procedure's refusal of the day, telling the day as written where a stand-in was computed.
Message Refusal_Of_Day(Message refusal, const Day& day);

// A year written as a whole number from 0 to 1,000,000; anything else fails with the entry
// windows' "Invalid Year Entry".
std::int64_t Year_Of(std::string_view year);

// True when the text is one or more of the digits 0 to 9 and nothing else.
bool Is_All_Digits(std::string_view text);

}  // namespace orrivane::cli
