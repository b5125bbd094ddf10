#pragma once
// The entry of a non-task reminder in the multi-purpose window: its moment is edited on one
// label that holds the whole time text ("2:30 PM, March 5, 2001"), each combo rewriting its own
// part at once; adding checks the date, builds the record and tells what was done. The list of
// the reminders to choose from, and the number behind a chosen entry.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/message.h"
#include "core/value.h"
#include "reminders/non_task_reminders.h"

namespace orrivane::reminders {

// ---- The moment on the label ------------------------------------------------------------------

// The label's moment when "Add" opens, from one reading of the clock (the system forms
// "3/5/2001" and "2:05:09 PM"): "2:05 PM, March 5, 2001".
std::string Present_Non_Task_Moment(const std::string& system_date, const std::string& system_time);

// The label's text after the combo of `Part_To_Change` ("Hour", "Minute", "Month", "Date", "Year"
// or "Century") was set to `choice`: the hour from the 24-hour clock ("17" makes "5:30 PM"), the
// minute as chosen, the month by name ("Feb"), the day without a leading zero, the year within
// the century or the century. Any other part rewrites the date as it stands. No date is
// checked: "February 31, 2001" may stand on the label until the user adds it.
std::string Change_Full_String(const std::string& label, std::string_view Part_To_Change, const std::string& choice);

// ---- Adding or updating ------------------------------------------------------------------------

// The empty message when the label's date exists in the Gregorian calendar; otherwise the
// message that tells the month's length ("April only has 30 days in it.", "February only has 28
// days in it for the selected year.").
Message Non_Task_Date_Message(const std::string& label);

// What the entry frame holds.
struct NonTaskEntry {
  Value status;  // the check box: 1 on, 0 off
  std::string title;
  std::string message;
  std::string label;  // the moment, "2:30 PM, March 5, 2001"
};

// The record as the frame's values make it: a title that is empty after trimming becomes
// "Message", the label's moment goes to the file's 24-hour form.
NonTaskReminderRecord Non_Task_Reminder_Of(const Value& number, const NonTaskEntry& entry);

// The two modes of the entry frame, told by its button's caption and nothing else.
inline constexpr char kAddCaption[] = "Add";
inline constexpr char kUpdateCaption[] = "Update";
// What the frame says once the record stands in the file: "Reminder has been added." or
// "Reminder has been updated."; the empty message for a caption that is neither mode.
Message Non_Task_Saved_Message(std::string_view button_caption);

// Writes the entry to the file at `path` as the mode of `button_caption` says: "Add" appends it
// under a new number, "Update" puts it in the place of the record numbered
// `Selected_NT_Record_Number`, which keeps its number (through `scratch`). Answers the message
// that tells it; another caption writes nothing and answers the empty message. The date is the
// caller's to check first (Non_Task_Date_Message).
Message Save_Non_Task_Reminder(const std::string& path, const std::string& scratch, std::string_view button_caption,
                               const Value& Selected_NT_Record_Number, const NonTaskEntry& entry);

// How the status label shows a reminder switched on or off.
struct StatusLook {
  const char* caption;
  bool bold;
  std::uint32_t colour;  // a program colour number, 0xBBGGRR
};
StatusLook Non_Task_Status_Look(bool on);

// ---- Choosing a reminder --------------------------------------------------------------------------

// The two modes of the list frame, told by its button's caption.
inline constexpr char kSelectCaption[] = "Select";
inline constexpr char kDeleteCaption[] = "Delete";

// A record as the list shows it: "4 - Backup, 5:45 PM, December 31, 2001".
std::string Non_Task_List_Item(const NonTaskReminderRecord& record);
// The items of every record of the file at `path`, in file order; none for a missing file.
std::vector<std::string> Non_Task_List_Items(const std::string& path);
// The record number of a list item: its text up to the first blank.
Value Chosen_NT_Record_Number(const std::string& item);

}  // namespace orrivane::reminders
