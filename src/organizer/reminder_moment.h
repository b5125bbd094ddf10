#pragma once
// When a task's reminder is to come, as the reminder windows work it out: the lists of their
// boxes, a fixed moment chosen in boxes (blanks filled from one reading of the clock, the day
// checked in the Gregorian calendar), a moment tied to the task's start or finish, the period of
// a series summed from its boxes, and the messages of the window in which a reminder is set.
//
// The moments travel as the texts of the record's date and time strings:
//   fixed moment              "March 5, 2001"                  "14:30"
//   tied, with a distance     "Before The Start Time of Task"  "By 2 Days, 3 Hrs, 30 Min"
//   tied, no distance         "At The Finish Time Of Task"     "N/A"
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/message.h"
#include "core/value.h"
#include "organizer/moment_boxes.h"
#include "organizer/schedule_record.h"
#include "organizer/time_period_selection.h"

namespace orrivane::organizer {

// ---- The lists of the boxes -----------------------------------------------------------------

// A period or a distance is chosen in four boxes, by index: minutes, hours, days, and hundreds
// of days. So it reaches 1899 days, 23 hours and 59 minutes.
inline constexpr int kAmountBoxes = 4;
inline constexpr int kMinutesBox = 0;
inline constexpr int kHoursBox = 1;
inline constexpr int kDaysBox = 2;
inline constexpr int kHundredsOfDaysBox = 3;

// The choices of an amount box: "0" to "59", "0" to "23", "0" to "99", and "0", "100" to "1800"
// by hundreds. Another index has none.
std::vector<std::string> Amount_Choices(int index);

// A fixed moment lies between 1900 and 2199, the years in which the reminder comparison counts
// true minutes: its century box offers "19" to "21".
inline constexpr TwoDigitRange kReminderCenturyRange{19, 21};
inline constexpr TwoDigitRange kHourBoxRange{0, 23};
inline constexpr TwoDigitRange kMinuteBoxRange{0, 59};

// ---- A fixed moment -----------------------------------------------------------------------------

// The six boxes of a moment, the month by its full name.
using MomentEntries = MomentBoxes;

// The present as the boxes would hold it, from one reading of the clock (the system date
// "3/5/2001" and time "2:05:09 PM"): the month's name, the day as the date has it, the year
// divided by 100 and its remainder, the 24-hour hour of two digits, the minute.
MomentEntries Present_Moment_Entries(const std::string& system_date, const std::string& system_time);

// The boxes with their blanks filled from the present. An empty month or day takes the present
// one, each by itself. An empty century takes the present century and then an empty year the
// present year in the century; under a chosen century an empty year is 0. An empty hour takes
// the present hour and then an empty minute the present minute; under a chosen hour an empty
// minute is "00". A day of two characters led by "0" loses the zero.
MomentEntries Filled_In_Moment(MomentEntries entries, const MomentEntries& present);

// A moment chosen in the boxes: the texts of the date and time labels, or the message that
// refuses it (then the labels keep what they have).
struct ChosenMoment {
  Message refusal;  // empty when the moment is accepted
  std::string Date;  // "March 5, 2001"
  std::string Time;  // "14:05"
  friend bool operator==(const ChosenMoment&, const ChosenMoment&) = default;
};

// The boxes filled in from one reading of the clock and the day checked in its month of the
// year century x 100 + year, in the Gregorian style. A day the month doesn't have is refused
// with a message that names the month's length ("April only has 30 days in it.", and with the
// year for February: "February of 2001 only has 28 days in it."). A box holding a text that is
// no number is not caught: it fails as a type mismatch (13).
ChosenMoment Choose_Reminder_Moment(const MomentEntries& entries, const std::string& system_date,
                                    const std::string& system_time);

// ---- A moment tied to the task ------------------------------------------------------------------

// How the moment stands to the task's start or finish: the choices of the relation box.
inline constexpr std::string_view kWhenAt = "At";
inline constexpr std::string_view kWhenBefore = "Before";
inline constexpr std::string_view kWhenAfter = "After";
inline constexpr std::array<std::string_view, 3> kWhenChoices{kWhenAt, kWhenBefore, kWhenAfter};

// Whether a relation takes a distance: "Before" and "After" do, "At" doesn't.
bool Takes_Time_Amount(std::string_view when);

// The caption of the frame of the distance: "Amount of Time Before:", "Amount of Time After:",
// or empty for a relation without a distance.
std::string Time_Amount_Caption(std::string_view when);

// The four amounts of a distance, minutes to hundreds of days, as the boxes hold them.
using AmountTexts = std::array<std::string, kAmountBoxes>;

// The date text of a tied moment: the relation, " The ", and the caption of the anchor ("Before
// The Start Time of Task"). Nothing is checked: a missing relation or anchor simply leaves its
// place empty.
std::string Task_Tied_Date_Text(std::string_view when, std::string_view anchor);

// The time text of a tied moment: for "Before" and "After" the distance, days being the hundreds
// and the days summed, "By 1 Days, 0 Hrs, 0 Min"; for "At" "N/A". Each empty box counts 0, and
// `amounts` is nothing when the distance doesn't apply, which counts all four as 0. Another
// relation (none chosen) gives no text, and the label keeps its own.
std::optional<std::string> Task_Tied_Time_Text(std::string_view when, const std::optional<AmountTexts>& amounts);

// ---- The period of a series ---------------------------------------------------------------------

// The numeric value of a box or a label as text, an empty one counting 0: "05" gives "5". A text
// that is no number fails as a type mismatch (13).
std::string Count_Text(const std::string& text);

// The days of a period: the days box and the hundreds-of-days box summed, an empty one counting
// 0: "50" and "1800" give "1850".
std::string Interval_Days_Text(const std::string& days, const std::string& hundreds_of_days);

// Whether a reminder of that kind lacks its period: a series whose minutes, hours and days all
// count 0. A single reminder needs none.
bool Lacks_Interval(int kind, const std::string& minutes, const std::string& hours, const std::string& days);

// ---- Messages -----------------------------------------------------------------------------------

// kInvalidMomentDate names the month's length in its text, which Choose_Reminder_Moment writes.
enum SetReminderMessage : int { kNoIntervalChosen = 1, kReminderSet = 2, kInvalidMomentDate = 3 };

// The messages of setting a reminder, by the codes above; the empty message for another code.
Message Set_Reminder_Message(int code);

}  // namespace orrivane::organizer
