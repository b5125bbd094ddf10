#pragma once
// The task list of one group member, as the Organizer shows it beside the chart, its date
// filter, and finding the record behind an entry.
//
// An entry is built so that plain text order is the order of time for years of the same
// length, and so that the record number stands behind its last "#":
//
//     2001, 03Mar 05, 14:30 Dentist, #1
//
// A filter bound is kept nowhere but in its caption, "14:00, Mar. 5, 2001", and is read back
// from it each time the list is built.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/message.h"
#include "core/value.h"
#include "organizer/moment_boxes.h"
#include "organizer/schedule_record.h"

namespace orrivane::organizer {

// The caption of a bound that takes no part in the filter.
inline constexpr std::string_view kNoDateSelected = "No Date Selected";

// ---- Entries ----------------------------------------------------------------------------------

// Year in full, ", ", month number in two digits, the first three letters of the month name, a
// blank, field 6, ", ", field 9, ":", field 10, a blank, field 2, ", #", field 1.
std::string Task_List_Entry(const ScheduleRecord& record);

// What stands behind the last "#" of a list entry ("2001, 03Mar 05, 14:30 Dentist, #1") or of a
// large calendar's item ("14, Dentist, #1"): the record number as text. A "#" in the task's name
// does no harm. Without any "#" the whole text.
std::string Record_Number_Of_Entry(std::string_view entry);

// ---- Moments and the filter -----------------------------------------------------------------

// A moment to the minute, ordered by year, month, date, hour and minute in that order.
struct TaskMoment {
  long long Year = 0;
  long long Month = 0;
  long long Date = 0;
  long long Hour = 0;
  long long Minute = 0;
  friend auto operator<=>(const TaskMoment&, const TaskMoment&) = default;
};

// The start (fields 5 to 10) and the finish (fields 12 to 17) of a task, the year being
// 100 x century + year and the month the number of its name.
TaskMoment Start_Moment(const ScheduleRecord& record);
TaskMoment Finish_Moment(const ScheduleRecord& record);

// A bound counts when its caption is neither empty nor "No Date Selected".
bool Filter_Bound_Counts(std::string_view caption);

// A bound's caption taken apart: cut at ":" for the hour, at "," for the minute, a blank
// skipped, at "." for the month, a blank skipped, at "," for the date, a blank skipped, the
// rest the year. The month's number comes from its name. A caption of another shape is the
// failure 5, as every parser of the program fails.
TaskMoment Parse_Filter_Bound(const std::string& caption);

// A bound's caption: hour and minute in two digits, ":", ",", blank, three-letter month, ".",
// blank, the date added to 0, ",", blank, the year: "14:00, Mar. 5, 2001".
std::string Filter_Bound_Text(const Value& Hour, const Value& Minute, const std::string& Month, const Value& Date,
                              const Value& Year);

// What the filter of the Organizer asks. A bound left out takes no part.
struct TaskFilter {
  std::optional<TaskMoment> After;
  std::optional<TaskMoment> Before;
  bool Start_Applies = false;
  bool Finish_Applies = false;
};

// The filter as the Organizer holds it: the two bound captions and the values of its check
// boxes chkStartTimeDate and chkFinishTimeDate (the range applies to a side whose box is 1).
TaskFilter Task_Filter_Of(const std::string& After_Caption, const std::string& Before_Caption, int Start_Check,
                          int Finish_Check);

// Whether a task stays in the list: where the start applies it must lie within the bounds
// that count, both bounds including their own minute; where the finish applies, the finish
// likewise. With both, start and finish must each lie within: a task that only overlaps the
// range is left out.
bool Passes_Task_Filter(const ScheduleRecord& record, const TaskFilter& filter);

// A task of this member: field 19 is the member and field 1 is above -1, so marker records
// never stand in a list.
bool Is_Task_Of_Member(const ScheduleRecord& record, const std::string& member);

// The entries of a member's tasks in the log at `log_path`, in the order of the log, those the
// filter leaves out (when there is one) passed over. The list that shows them sorts them.
std::vector<std::string> Member_Task_Entries(const std::string& log_path, const std::string& member,
                                             const std::optional<TaskFilter>& filter);

// ---- The fresh filter and the filter window ----------------------------------------------------

// A bound at today's date and the present hour of the 24-hour clock with the given minute,
// from one reading of the clock ("3/5/2001", "2:05:09 PM"): "14:00, Mar. 5, 2001".
std::string Present_Hour_Bound(const std::string& System_Date, const std::string& System_Time,
                               const std::string& Minute);

// The six boxes of one side of the filter window, the month by its three letters.
using FilterBoxes = MomentBoxes;

// The sides of the filter window: index 0 After, 1 Before.
enum FilterSide : int { kAfterSide = 0, kBeforeSide = 1 };

// Empty boxes filled from the clock, each box by itself: today's month, date, century and year
// in the century, the present hour of the 24-hour clock, and the minute 0 After, 59 Before.
void Fill_Empty_Filter_Boxes(FilterBoxes& boxes, FilterSide side, const std::string& System_Date,
                             const std::string& System_Time);

// The outcome of cmdSetDateFilters: Error 0, or 1 for the After side, 2 for the Before side,
// 3 for both, with the month and its length that the message of 1 or 2 names; and the two
// captions to write when there is no error ("No Date Selected" for a side not checked).
struct FilterDatesResult {
  int Error = 0;
  std::string Month;
  Value Max_Days;
  std::string After_Caption;
  std::string Before_Caption;
};

// Fills the empty boxes of the checked sides (an unchecked side is nothing), makes the year
// 100 x century + year and tests each checked side as a Gregorian date.
FilterDatesResult Set_Date_Filters(std::optional<FilterBoxes> After, std::optional<FilterBoxes> Before,
                                   const std::string& System_Date, const std::string& System_Time);

// The message of an error of Set_Date_Filters, the empty message for 0.
Message Filter_Dates_Message(const FilterDatesResult& result);

// ---- Finding and showing a task ----------------------------------------------------------------

// Reads the log at `log_path` until a record whose field 1, as a number, equals
// `Record_Number`, and answers it. A number not found isn't reported: the last record read is
// answered, and an empty record for an empty log.
ScheduleRecord Find_Task_Record(const std::string& log_path, const Value& Record_Number);

// A chart cell that no task owns: "There is currently no event record available for " + member
// + " for this time period.", or "this person" in its place when the row has no member; title
// "No Event Scheduled", OK only, no icon.
Message No_Event_Record_Message(const std::string& member);

// The date labels of frmTaskInformation: month, blank, date as it stands, ",", blank, the year
// 100 x century + year: "March 05, 2001".
std::string Task_Date_Label(const Value& Month, const Value& Date, const Value& Century, const Value& Year);

// The time labels: hour, ":", minute: "14:30".
std::string Task_Time_Label(const Value& Hour, const Value& Minute);

}  // namespace orrivane::organizer
