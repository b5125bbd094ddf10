// minutes, remaining and due: the reminder timer's comparison number, its time-left sentence,
// and the reminders it finds due, all from the reminders core.
#include <string>

#include "cli/command_error.h"
#include "cli/commands.h"
#include "cli/reminder_arguments.h"
#include "core/text.h"
#include "organizer/log_file.h"
#include "reminders/non_task_reminders.h"
#include "reminders/reminder_comparison.h"
#include "reminders/reminder_hits.h"

namespace orrivane::cli {

namespace {

using organizer::ScheduleRecord;
using reminders::DueReminder;
using reminders::ReminderFiles;

constexpr std::int64_t kYearsOfACentury = 100;

// The comparison number of a system date and time, both checked to be in their forms.
std::int64_t System_Moment_Number(const std::string& date, const std::string& time) {
  System_Date_Of(date);
  Check_System_Time(time);
  return reminders::Timer_Comparison_Date(Value(date), Value(time), reminders::kSystemDate, ScheduleRecord{});
}

// ---- due ------------------------------------------------------------------------------------------

// The task reminders of a log as opening it derives TRemin.tmp: its records with
// Reminder_Status 1, in file order.
void Read_Task_Reminders(const std::string& path, std::vector<ScheduleRecord>& tasks) {
  organizer::LogReader log(path);
  ScheduleRecord record;
  while (log.Next(record)) {
    if (record.Reminder_Status == Value(1)) tasks.push_back(record);
  }
}

// The non-task reminders of a file that must be there; a failure to read on is the tick's to
// meet, after the records before it.
void Read_Notes(const std::string& path, ReminderFiles& files) {
  reminders::NonTaskReminderReader file(path);
  try {
    reminders::NonTaskReminderRecord record;
    while (file.Next(record)) files.Notes.push_back(record);
  } catch (...) {
    files.Notes_Failure = std::current_exception();
  }
}

std::string Two_Digits(int n) { return text::Pad_Zero(n, 2); }

// "2001-03-05 14:30", the year in four digits at least.
std::string Minute_Label(const reminders::CalendarMinute& m) {
  std::string year = std::to_string(m.Year);
  if (year.size() < 4) year.insert(0, 4 - year.size(), '0');
  return year + "-" + Two_Digits(m.Month) + "-" + Two_Digits(m.Day) + " " + Two_Digits(m.Hour) + ":" +
         Two_Digits(m.Minute);
}

// "task 1 - Dentist", "note 4 - Backup".
std::string Due_Line(const DueReminder& due, const ReminderFiles& files) {
  if (due.Source == reminders::ReminderSource::kTask) {
    const ScheduleRecord& task = files.Tasks[due.Index];
    return "task " + task.Record_Number.text() + " - " + task.Task_Name.text();
  }
  const reminders::NonTaskReminderRecord& note = files.Notes[due.Index];
  return "note " + note.NT_Record_Number.text() + " - " + note.NT_Title.text();
}

}  // namespace

// The comparison number of a fixed reminder moment.
void Run_Minutes(const Arguments& arguments, Command_Context& context) {
  const std::string date(arguments.operands[0]);
  const std::string time(arguments.operands[1]);
  Reminder_Date_Of(date);
  Check_Reminder_Time(time);
  context.out.Line(std::to_string(
      reminders::Timer_Comparison_Date(Value(date), Value(time), reminders::kOutputStyleDate, ScheduleRecord{})));
}

// The time-left sentence of a task that starts at DATE TIME, seen at NOW.
void Run_Remaining(const Arguments& arguments, Command_Context& context) {
  const std::string start_date(arguments.operands[0]);
  const Checked_Day start = Reminder_Date_Of(start_date);
  const std::string time(arguments.operands[1]);
  Check_Reminder_Time(time);
  const std::string now_date(arguments.operands[2]);
  const std::string now_time(arguments.operands[3]);
  System_Date_Of(now_date);
  Check_System_Time(now_time);
  const std::size_t colon = time.find(':');
  const std::string month = start_date.substr(0, start_date.find(' '));
  context.out.Line(reminders::Create_Time_Remaining_String(
      Value(static_cast<long long>(start.year / kYearsOfACentury)),
      Value(static_cast<long long>(start.year % kYearsOfACentury)), Value(month), Value(std::to_string(start.day)),
      Value(time.substr(0, colon)), Value(time.substr(colon + 1)), Value(now_date), Value(now_time),
      ScheduleRecord{}));
}

// The reminders due in NOW's minute, or in each minute from NOW's to UNTIL's.
void Run_Due(const Arguments& arguments, Command_Context& context) {
  const std::optional<std::string_view> log = arguments.Value_Of("--log");
  const std::optional<std::string_view> notes = arguments.Value_Of("--notes");
  if (!log && !notes) throw Command_Error("Usage", Usage_Of("due"));
  const std::vector<std::string> operands(arguments.operands.begin(), arguments.operands.end());
  const bool ranged = operands.size() == 4;
  if (operands.size() != 2 && !ranged) throw Command_Error("Usage", Usage_Of("due"));
  const std::int64_t from = System_Moment_Number(operands[0], operands[1]);
  const std::int64_t to = ranged ? System_Moment_Number(operands[2], operands[3]) : from;
  if (to < from) {
    throw Command_Error("Invalid Range", Quoted(operands[2] + " " + operands[3]) + " lies before " +
                                             Quoted(operands[0] + " " + operands[1]) + ".");
  }

  ReminderFiles files;
  if (log) Read_Task_Reminders(std::string(*log), files.Tasks);
  if (notes) Read_Notes(std::string(*notes), files);
  reminders::ComparisonCalendar calendar;
  // Everything is worked out before the first line goes out: a failure is the only answer.
  const std::vector<DueReminder> due = reminders::Due_Reminders(files, from, to, calendar);
  std::int64_t labelled = 0;
  std::string label;
  for (const DueReminder& reminder : due) {
    if (!ranged) {
      context.out.Line(Due_Line(reminder, files));
      continue;
    }
    if (label.empty() || labelled != reminder.Minutes) {
      labelled = reminder.Minutes;
      label = Minute_Label(*calendar.Minute_Of(reminder.Minutes)) + "\t";
    }
    context.out.Line(label + Due_Line(reminder, files));
  }
}

}  // namespace orrivane::cli
