#pragma once
// The measure of every comparison of the reminders: a moment as a whole number of minutes since
// January 1, 1900, 0:00, and the sentence that tells the time left to a task.
//
// A reminder's moment is either fixed ("March 5, 2001" and "14:30") or tied to its task's start
// or finish ("Before The Start Time of Task" and "By 2 Days, 3 Hrs, 30 Min"). A tied moment is
// read from the current record: the record the caller read last, handed over explicitly.
#include <cstdint>
#include <string>
#include <string_view>

#include "core/value.h"
#include "organizer/schedule_record.h"

namespace orrivane::reminders {

// The number of a tied moment in a year above 5500: a number that no moment can equal.
inline constexpr std::int64_t kMomentBeyondReach = -2147483647;
// The last year in which a tied moment, or a task of the time-left sentence, is counted.
inline constexpr std::int64_t kLastCountedYear = 5500;

// The verbs that say how a fixed moment is to be read.
inline constexpr std::string_view kSystemDate = "System Date";               // "3/5/2001", "2:05:09 PM"
inline constexpr std::string_view kOutputStyleDate = "Output Style Date";    // "March 5, 2001", "14:30"

// Minutes since January 1, 1900, 0:00 as a 64-bit whole number (the year 1,000,000 needs
// more than 32 bits). Every year has (Y - 1900) x 365 days and the leap days of every fourth
// year from 1900 on; a correction takes out 1900 for the years 1901 to 2100, and 2100 as well
// for 2101 to 2199, and ends there, so that the count is true for 1900 to 2199 and jumps two days
// ahead on January 1, 2200. Months are the Gregorian ones of the year.
//
// A date that holds "Start" (tested first) or "Finish" ties the moment to those fields of
// `Current_Record`; "At", "Before" and "After" give its sign, tested in that order so that the
// last match wins, and a signed time ("By 2 Days, 3 Hrs, 30 Min") its distance. A tied moment in a
// year above 5500 is kMomentBeyondReach. Any other date is fixed and read as `Date_Style` says.
std::int64_t Timer_Comparison_Date(const Value& Date_String, const Value& Time_String, std::string_view Date_Style,
                                   const organizer::ScheduleRecord& Current_Record);

// The time from a system date and time ("3/5/2001", "2:05:09 PM") to a task's start, given as
// its six fields (the month by name), in a sentence: "It will be 2 days, 3 hours and, 4 minutes
// until this task is scheduled to begin." Beyond 3000 days it tells years; for a task beyond the
// year 5500 it is empty.
std::string Create_Time_Remaining_String(const Value& From_Century, const Value& From_Two_Digit_Year,
                                         const Value& From_Month, const Value& From_Date, const Value& From_Hour,
                                         const Value& From_Minute, const Value& System_Date_String,
                                         const Value& System_Time_String,
                                         const organizer::ScheduleRecord& Current_Record);

}  // namespace orrivane::reminders
