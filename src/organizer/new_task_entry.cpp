#include "organizer/new_task_entry.h"

#include <cmath>
#include <cstdint>

#include "core/sequential_file.h"
#include "core/text.h"
#include "engine/vocabulary.h"
#include "organizer/colour_palette.h"
#include "organizer/date_time_text.h"
#include "organizer/log_file.h"

namespace orrivane::organizer {

namespace {

// The codes of the checks that stand for more than one box.
constexpr int kFieldsMissing = 11;
constexpr int kFinishBeforeStart = 12;
constexpr int kNoPerson = 13;
constexpr int kNoName = 14;
constexpr int kStartBeyondMonth = 15;
constexpr int kFinishBeyondMonth = 16;
constexpr int kBothBeyondMonth = 17;

// The codes of the empty boxes of a moment: month, date, year, hour, minute.
struct MomentCodes {
  int month;
  int date;
  int year;
  int hour;
  int minute;
};
constexpr MomentCodes kMissingCodes[kTaskMoments] = {{1, 2, 3, 4, 5}, {6, 7, 8, 9, 10}};
constexpr int kBeyondMonthCodes[kTaskMoments] = {kStartBeyondMonth, kFinishBeyondMonth};

// The month's name, " only has ", its length, then this.
constexpr char kFebruaryTail[] = "days in it for the year you selected.";
constexpr char kOtherMonthTail[] = "days in it.";
constexpr char kFebruary[] = "February";

const CodedMessage kNewTaskMessages[] = {
    {1, Exclamation_Message("No Start Month Selected", "Please indicate a month for which the task will begin.")},
    {2, Exclamation_Message("No Start Date Selected", "Please select a date for which the task is to begin.")},
    {3, Exclamation_Message("No Start Year Selected", "Please select a year for which the task is to begin.")},
    {4, Exclamation_Message("No Begin Hour Selected", "Please select the hour for which the task is to begin.")},
    {5, Exclamation_Message("No Begin Minute Selected", "Please select the minute for which the task is to begin.")},
    {6, Exclamation_Message("No Finish Month Selected", "Please indicate a month for which the task will end.")},
    {7, Exclamation_Message("No Finish Date Selected", "Please select a date for which the task is to end.")},
    {8, Exclamation_Message("No Finish Year Selected", "Please select a year for which the task is to end.")},
    {9, Exclamation_Message("No Finish Hour Selected", "Please select the hour for which the task is to end.")},
    {10, Exclamation_Message("No Finish Minute Selected", "Please select the minute for which the task is to end.")},
    {kFieldsMissing,
     Exclamation_Message("Fields Missing Data", "Required fields left blank or contain invalid entries.")},
    {kFinishBeforeStart,
     Exclamation_Message("Invalid Date", "The 'To' date must be a future date to the 'From' date.")},
    {kNoPerson, Exclamation_Message("No Group Member Specified", "Please specify who this task is for.")},
    {kNoName, Exclamation_Message("No Event Title Specified",
                                  "Please be sure the task is identified in the 'Name Of Task' box.")},
    // The texts of 15 and 16 name the month and its length: New_Task_Message writes them.
    {kStartBeyondMonth, Exclamation_Message("Invalid Date Selection", "")},
    {kFinishBeyondMonth, Exclamation_Message("Invalid Date Selection", "")},
    {kBothBeyondMonth, Exclamation_Message("Invalid Date Selections",
                                           "The dates you selected are invalid for the months you selected.")},
};

// The number of a value as the checks count it: a text that is no number counts as 0.
double Number_Of(const Value& value) {
  if (value.is_number()) return value.number();
  return Parse_Number(value.text()).value_or(0);
}

std::int64_t Present_Year(std::string_view system_date) {
  return static_cast<std::int64_t>(Parse_Number(text::Right(system_date, 4)).value_or(0));
}

Value Year_Part(std::string_view box, std::int64_t present_part) {
  if (box.empty()) return Value(static_cast<long long>(present_part));
  if (const std::optional<double> number = Parse_Number(box)) return Value(*number);
  return Value(box);
}

// Counts the empty boxes as the checks go; the code of the last one counts.
struct MissingItems {
  int count = 0;
  int code = 0;
  void Note(bool empty, int item_code) {
    if (!empty) return;
    code = item_code;
    ++count;
  }
};

void Note_Empty_Boxes(MissingItems& missing, const TaskMomentBoxes& boxes, const TaskYear& year,
                      const MomentCodes& codes) {
  missing.Note(boxes.month.empty(), codes.month);
  missing.Note(boxes.date.empty(), codes.date);
  missing.Note(year.year.is_empty() || year.year.text().empty(), codes.year);
  missing.Note(boxes.hour.empty(), codes.hour);
  missing.Note(boxes.minute.empty(), codes.minute);
}

int Month_Number(const std::string& month) {
  return static_cast<int>(Number_Of(engine::Define_Month(month, "Get Month Number")));
}

// Negative, zero or positive as the finish comes before, with or after the start: century, year
// and month as numbers, then date, hour and minute as texts.
int Compare_Moments(const TaskMomentBoxes& start, const TaskYear& start_year, const TaskMomentBoxes& finish,
                    const TaskYear& finish_year) {
  const double numbers[][2] = {{Number_Of(start_year.century), Number_Of(finish_year.century)},
                               {Number_Of(start_year.year), Number_Of(finish_year.year)},
                               {static_cast<double>(Month_Number(start.month)),
                                static_cast<double>(Month_Number(finish.month))}};
  for (const auto& [from, to] : numbers) {
    if (to != from) return to > from ? 1 : -1;
  }
  const std::string* texts[][2] = {{&start.date, &finish.date}, {&start.hour, &finish.hour},
                                   {&start.minute, &finish.minute}};
  for (const auto& [from, to] : texts) {
    if (const int order = to->compare(*from); order != 0) return order;
  }
  return 0;
}

// The length of the month of a moment in its year, Gregorian style; 0 for no month.
int Month_Length(const TaskMomentBoxes& boxes, const TaskYear& year) {
  const double four_digit_year = 100 * Number_Of(year.century) + Number_Of(year.year);
  const bool leap = engine::Is_It_A_Leap_Year(Value(four_digit_year), "Gregorian");
  const Value length = engine::Define_Month(boxes.month, leap ? "Get Max Days Leap Year" : "Get Max Days");
  return static_cast<int>(Number_Of(length));
}

bool Date_Beyond_Month(const TaskMomentBoxes& boxes, int month_length) {
  return !boxes.date.empty() && Parse_Number(boxes.date).value_or(0) > month_length;
}

// The boxes of a moment as they stand, its century and year as numbers.
void Put_Moment(ScheduleRecord& task, const MomentMembers& fields, const TaskMomentBoxes& boxes, const TaskYear& year) {
  task.*fields.month = boxes.month;
  task.*fields.date = boxes.date;
  task.*fields.century = year.century;
  task.*fields.year = year.year;
  task.*fields.hour = boxes.hour;
  task.*fields.minute = boxes.minute;
}

// The 24-hour hour of a system time ("2:05:09 PM" gives 14).
Value Military_Hour(const Value& system_time) {
  return Convert_Hour_To_Military_Time(Parse_System_Time(system_time, "Hour"),
                                       Parse_System_Time(system_time, "Time Of Day"));
}

}  // namespace

std::string New_Task_Person(bool existing_enabled, std::string_view existing_person, bool new_enabled,
                            std::string_view new_person) {
  std::string person;
  if (existing_enabled) person = existing_person;
  if (new_enabled) person = text::Trim(new_person);
  return person;
}

TaskYear Task_Year(std::string_view century, std::string_view year, std::string_view system_date) {
  const std::int64_t present = Present_Year(system_date);
  return {Year_Part(century, present / 100), Year_Part(year, present % 100)};
}

NewTaskCheck Check_New_Task(const NewTaskEntries& entries, std::string_view system_date) {
  NewTaskCheck check;
  const int moments = entries.time_range ? kTaskMoments : 1;
  for (int moment = 0; moment < moments; ++moment) {
    const TaskMomentBoxes& boxes = entries.moments[static_cast<std::size_t>(moment)];
    check.years[static_cast<std::size_t>(moment)] = Task_Year(boxes.century, boxes.year, system_date);
  }

  MissingItems missing;
  bool too_many_missing = false;
  for (int moment = 0; moment < moments; ++moment) {
    const auto index = static_cast<std::size_t>(moment);
    Note_Empty_Boxes(missing, entries.moments[index], check.years[index], kMissingCodes[index]);
    if (moment == kTaskStart) {
      missing.Note(entries.person.empty(), kNoPerson);
      missing.Note(entries.name.empty(), kNoName);
    }
    if (missing.count > 1) too_many_missing = true;
  }

  const TaskMomentBoxes& start = entries.moments[kTaskStart];
  const TaskMomentBoxes& finish = entries.moments[kTaskFinish];
  const bool finish_before_start =
      entries.time_range && Compare_Moments(start, check.years[kTaskStart], finish, check.years[kTaskFinish]) < 0;

  int impossible_dates = 0;
  int impossible_code = 0;
  for (int moment = 0; moment < moments; ++moment) {
    const auto index = static_cast<std::size_t>(moment);
    const TaskMomentBoxes& boxes = entries.moments[index];
    const int length = Month_Length(boxes, check.years[index]);
    if (!Date_Beyond_Month(boxes, length)) continue;
    impossible_code = kBeyondMonthCodes[index];
    ++impossible_dates;
    check.month = boxes.month;
    check.month_length = length;
  }
  if (impossible_dates > 1) impossible_code = kBothBeyondMonth;

  if (too_many_missing) {
    check.code = kFieldsMissing;
  } else if (missing.code != 0) {
    check.code = missing.code;
  } else if (impossible_code != 0) {
    check.code = impossible_code;
  } else if (finish_before_start) {
    check.code = kFinishBeforeStart;
  }
  return check;
}

Message New_Task_Message(const NewTaskCheck& check) {
  Message message = Message_Of(kNewTaskMessages, check.code);
  if (check.code == kStartBeyondMonth || check.code == kFinishBeyondMonth) {
    message.text = check.month + " only has " + std::to_string(check.month_length) + " " +
                   (check.month == kFebruary ? kFebruaryTail : kOtherMonthTail);
  }
  return message;
}

Message Confirm_New_Task_Message() { return {"Confirm", "Add this task to the schedule?", vbOKCancel, vbInformation}; }

Message New_Task_Added_Message() {
  return {"Task Added", "The task\\event has been added to the log.", vbOKOnly, vbNoIcon};
}

ScheduleRecord New_Task_Record(const NewTaskEntries& entries, const NewTaskCheck& check,
                               const NewTaskDetails& details) {
  const bool range = entries.time_range;
  const TaskMomentBoxes& start = entries.moments[kTaskStart];
  const TaskMomentBoxes& finish = range ? entries.moments[kTaskFinish] : start;
  const TaskYear& start_year = check.years[kTaskStart];
  const TaskYear& finish_year = range ? check.years[kTaskFinish] : start_year;

  ScheduleRecord task;
  task.Task_Name = entries.name;
  task.Task_Description = details.description;
  task.Task_Comments = details.comments;
  Put_Moment(task, kStartMembers, start, start_year);
  task.Time_Range_Flag = range ? 1 : 0;
  Put_Moment(task, kFinishMembers, finish, finish_year);
  task.Color_Code = details.colour;
  task.Person_Name = entries.person;
  task.Reminder_Status = details.reminder_on ? 1 : 0;
  const auto reminder_fields = Reminder_Fields_Of(task);
  for (std::size_t i = 0; i < reminder_fields.size(); ++i) *reminder_fields[i] = details.reminder[i];
  return task;
}

void Append_New_Task(const ScheduleRecord& task, const std::string& log_path, const std::string& reminders_path) {
  Append_Record(log_path, task);
  SequentialWriter reminders(reminders_path, SequentialWriter::Mode::Append);
  if (task.Reminder_Status == Value(1)) Schedule_File("Write", reminders, task);
  reminders.Close();
}

int Random_Colour_Index(const std::function<double()>& next_fraction) {
  int index = kLightGreyIndex;
  while (index == kLightGreyIndex) index = static_cast<int>(std::floor(kPaletteColours * next_fraction()));
  return index;
}

double Seconds_Since_Midnight(std::string_view system_time) {
  const Value time(system_time);
  const double minute = Number_Of(Parse_System_Time(time, "Minute"));
  const double second = Number_Of(Parse_System_Time(time, "Second"));
  return (Number_Of(Military_Hour(time)) * 60 + minute) * 60 + second;
}

std::array<Value, ReminderVariables::kNames.size()> Reminder_Defaults(std::string_view system_date,
                                                                      std::string_view system_time) {
  const Value date(system_date);
  const std::string today = engine::Define_Month(Parse_Date(date, "Month").plus_zero(), "Get Month Name").text() +
                            " " + Parse_Date(date, "Date").text() + ", " + Parse_Date(date, "Year").text();
  const Value time(system_time);
  const std::string now = text::Pad_Zero(Military_Hour(time).whole(), 2) + ":" + Parse_System_Time(time, "Minute").text();
  return {Value(today), Value(now), Value(today), Value(now), Value(kOnlyOneReminder), Value(0), Value(0), Value(0)};
}

}  // namespace orrivane::organizer
