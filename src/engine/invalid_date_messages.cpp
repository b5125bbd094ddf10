#include "engine/invalid_date_messages.h"

namespace orrivane::engine {

namespace {

Message Invalid_Date(std::string text) { return Exclamation_Message("Invalid Date", std::move(text)); }

}  // namespace

Message Gregorian_Start_Message() {
  return Invalid_Date(std::string("For the Gregorian Calendar, please make sure the ") + kCarriageReturn +
                      "date entered is on or after October 15, 1582.");
}

Message February_Message(std::int64_t year) {
  return Invalid_Date("February of " + std::to_string(year) + " only has 28 days in it.");
}

Message No_Such_Day_Message(const std::string& month, std::int64_t date) {
  return Invalid_Date(month + " does not have " + std::to_string(date) + " days in it!");
}

}  // namespace orrivane::engine
