#include "reminders/reminder_tick.h"

#include <algorithm>

#include "core/runtime_failure.h"
#include "core/text.h"
#include "engine/calendar_engine.h"
#include "organizer/date_time_text.h"
#include "organizer/log_file.h"
#include "reminders/non_task_reminders.h"
#include "reminders/reminder_comparison.h"
#include "reminders/reminder_hits.h"

namespace orrivane::reminders {

namespace {

using organizer::ScheduleRecord;

constexpr char kNotApplicable[] = "N\\A";
constexpr char kChooseATask[] = "Select a task from the list above.";
constexpr char kChooseAMessage[] = "Please select a reminder message from the list.";
constexpr char kOneReminderCaption[] = "Reminder: ";
constexpr char kSeveralRemindersCaption[] = " Reminders";

// A date as the windows show it: one leading "0" gone.
std::string Without_Leading_Zero(const Value& date) {
  const std::string text = date.text();
  return text::Starts_With(text, "0") ? text.substr(1) : text;
}

std::string Entry_Of(const Value& number, const Value& name) { return number.text() + " - " + name.text(); }

bool Stands_In(const std::vector<Value>& numbers, const Value& number) {
  return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

bool Same_Number(const Value& a, const Value& b) { return a.number() == b.number(); }

// ---- The task window's two forms -------------------------------------------------------------------

// The single-task form of the first record of the file whose number stands among the due ones.
TaskReminderFilling Single_Task_Filling(const ScheduleRecord& record, const TickMoment& moment,
                                        const ScheduleRecord& Current_Record) {
  TaskReminderFilling filling;
  filling.Caption = kOneReminderCaption + record.Task_Name.text();
  filling.Task_Name = record.Task_Name.text();
  filling.For = record.Person_Name.text();
  filling.Start_Time = Task_Moment_Label(record.Start_Hour, record.Start_Minute, record.Start_Month,
                                         record.Start_Date, record.Start_Century, record.Start_Year);
  filling.Ending_Time = Task_Moment_Label(record.Finish_Hour, record.Finish_Minute, record.Finish_Month,
                                          record.Finish_Date, record.Finish_Century, record.Finish_Year);
  filling.Time_Left = Create_Time_Remaining_String(record.Start_Century, record.Start_Year, record.Start_Month,
                                                   record.Start_Date, record.Start_Hour, record.Start_Minute,
                                                   moment.System_Date, moment.System_Time, Current_Record);
  filling.Current_Task_Record_Number = record.Record_Number;
  return filling;
}

// The several-tasks form: for each record of the file, in file order, an entry for each due
// number that equals its own.
TaskReminderFilling Several_Tasks_Filling(const std::vector<std::string>& entries, std::size_t count) {
  TaskReminderFilling filling;
  filling.Several = true;
  filling.Task_List = entries;
  filling.Caption = std::to_string(count) + kSeveralRemindersCaption;
  filling.For = filling.Start_Time = filling.Ending_Time = kNotApplicable;
  filling.Time_Left = kChooseATask;
  return filling;
}

// Both forms read from the file again, for a file in which a due number stands more than once.
TaskReminderFilling Filling_From_File(const std::string& path, const std::vector<Value>& due,
                                      const TickMoment& moment, ScheduleRecord& record) {
  organizer::LogReader file(path);
  if (due.size() == 1) {
    while (file.Next(record) && !Stands_In(due, record.Record_Number)) {
    }
    return Single_Task_Filling(record, moment, record);
  }
  std::vector<std::string> entries;
  while (file.Next(record)) {
    for (const Value& number : due) {
      if (number == record.Record_Number) entries.push_back(Entry_Of(record.Record_Number, record.Task_Name));
    }
  }
  return Several_Tasks_Filling(entries, due.size());
}

// What the first reading of TRemin.tmp keeps for the window: the due records, and the numbers of
// all records, so that a second reading is needed only where a due number stands twice.
struct FirstReading {
  std::vector<ScheduleRecord> due_records;
  std::vector<double> numbers;
  bool numbers_plain = true;  // every Record_Number a number

  void Note(const ScheduleRecord& record, bool due) {
    if (record.Record_Number.is_number()) {
      numbers.push_back(record.Record_Number.number());
    } else {
      numbers_plain = false;
    }
    if (due) due_records.push_back(record);
  }
  // Whether each due number stands once in the file, so that the due records are the records
  // the window names.
  bool Due_Numbers_Unique() {
    if (!numbers_plain) return false;
    std::sort(numbers.begin(), numbers.end());
    return std::all_of(due_records.begin(), due_records.end(), [this](const ScheduleRecord& r) {
      const auto same = std::equal_range(numbers.begin(), numbers.end(), r.Record_Number.number());
      return same.second - same.first == 1;
    });
  }
};

TaskReminderFilling Filling_From_Due_Records(const FirstReading& reading, const TickMoment& moment,
                                             ScheduleRecord& Current_Record) {
  if (reading.due_records.size() == 1) {
    Current_Record = reading.due_records.front();
    return Single_Task_Filling(Current_Record, moment, Current_Record);
  }
  std::vector<std::string> entries;
  for (const ScheduleRecord& r : reading.due_records) entries.push_back(Entry_Of(r.Record_Number, r.Task_Name));
  return Several_Tasks_Filling(entries, reading.due_records.size());
}

}  // namespace

TickMoment Tick_Moment(const std::string& System_Date, const std::string& System_Time,
                       const ScheduleRecord& Current_Record) {
  return {System_Date, System_Time, organizer::Parse_System_Time(System_Time, "Minute"),
          Timer_Comparison_Date(System_Date, System_Time, kSystemDate, Current_Record)};
}

bool Show_In_This_Minute(ReminderMinute& Last_Reminder_Minute, const Value& Minute) {
  if (Last_Reminder_Minute && *Last_Reminder_Minute == Minute) return false;
  Last_Reminder_Minute = Minute;
  return true;
}

bool Is_Task_Reminder_Due(const ScheduleRecord& record, std::int64_t Current_Minutes) {
  return Is_Hit(Task_Reminder_Hits(record), Current_Minutes);
}

std::string Task_Moment_Label(const Value& Hour, const Value& Minute, const Value& Month, const Value& Date,
                              const Value& Century, const Value& Year) {
  using organizer::Convert_Hour_From_Military_Time;
  return Convert_Hour_From_Military_Time(Hour, "Hour").text() + ":" + Minute.text() + " " +
         Convert_Hour_From_Military_Time(Hour, "Time Of Day").text() + ", " + Month.text() + " " +
         Without_Leading_Zero(Date) + ", " + Value(Century.number() * 100 + Year.number()).text();
}

std::string Time_Of_Task_Message(const TickMoment& moment) {
  using organizer::Parse_Date;
  using organizer::Parse_System_Time;
  const Value month_name = engine::Define_Month(Parse_Date(moment.System_Date, "Month"), "Get Month Name");
  return Parse_System_Time(moment.System_Time, "Hour").text() + ":" + moment.Minute.text() + " " +
         Parse_System_Time(moment.System_Time, "Time Of Day").text() + ", " + month_name.text() + " " +
         Parse_Date(moment.System_Date, "Date").text() + ", " + Parse_Date(moment.System_Date, "Year").text();
}

TaskReminderHalf Task_Reminder_Half(const std::string& path, const TickMoment& moment,
                                    ReminderMinute& Last_Task_Reminder_Minute, ScheduleRecord& Current_Record) {
  TaskReminderHalf half;
  FirstReading reading;
  {
    organizer::LogReader file(path);
    while (file.Next(Current_Record)) {
      const bool due = Is_Task_Reminder_Due(Current_Record, moment.Current_Minutes);
      if (due) half.Due.push_back(Current_Record.Record_Number);
      reading.Note(Current_Record, due);
    }
  }
  if (half.Due.empty()) return half;
  half.Show_Reminder = Show_In_This_Minute(Last_Task_Reminder_Minute, moment.Minute);
  if (!half.Show_Reminder) return half;
  half.Window = reading.Due_Numbers_Unique() ? Filling_From_Due_Records(reading, moment, Current_Record)
                                             : Filling_From_File(path, half.Due, moment, Current_Record);
  half.Window->Time_Of_Message = Time_Of_Task_Message(moment);
  return half;
}

std::optional<NonTaskReminderFilling> Non_Task_Reminder_Half(const std::string& path, const TickMoment& moment,
                                                             bool Show_Reminder,
                                                             ReminderMinute& Last_NT_Reminder_Minute,
                                                             const ScheduleRecord& Current_Record) {
  NonTaskReminderFilling filling;
  std::vector<Value> due;
  if (std::optional<NonTaskReminderReader> file = NonTaskReminderReader::Open_If_Present(path)) {
    NonTaskReminderRecord record;
    while (file->Next(record)) {
      if (record.NT_Status != Value(1)) continue;
      const TimeAndDate cut = Cut_Time_And_Date(record.NT_Time_String.text());
      filling.Time_Of_Message = cut.time;
      filling.Date_Of_Message = cut.date;
      if (Timer_Comparison_Date(cut.date, cut.time, kOutputStyleDate, Current_Record) == moment.Current_Minutes) {
        due.push_back(record.NT_Record_Number);
      }
    }
  }
  if (!due.empty()) Show_Reminder = Show_In_This_Minute(Last_NT_Reminder_Minute, moment.Minute);
  if (!Show_Reminder) return std::nullopt;
  if (due.empty()) return filling;

  // The window tells the moment of the record read last: the due one for a single message, the
  // last of the file for several.
  NonTaskReminderRecord record;
  NonTaskReminderReader file(path);
  if (due.size() == 1) {
    filling.form = NonTaskReminderFilling::Form::kSingle;
    while (file.Next(record) && !(record.NT_Record_Number == due.front())) {
    }
    filling.Caption = kOneReminderCaption + record.NT_Title.text();
    filling.Message = record.NT_Message.text();
  } else {
    filling.form = NonTaskReminderFilling::Form::kSeveral;
    while (file.Next(record)) {
      for (const Value& number : due) {
        if (Same_Number(number, record.NT_Record_Number)) {
          filling.Reminder_List.push_back(Entry_Of(record.NT_Record_Number, record.NT_Title));
        }
      }
    }
    filling.Caption = std::to_string(due.size()) + kSeveralRemindersCaption;
    filling.Message = kChooseAMessage;
  }
  const TimeAndDate cut = Cut_Time_And_Date(record.NT_Time_String.text());
  filling.Date_Of_Message = cut.date;
  filling.Time_Of_Message = Displayed_Non_Task_Time(cut.time);
  return filling;
}

Value RecordNumberList::Store(std::string_view Action_To_Perform, const Value& Element, const Value& value) {
  if (Action_To_Perform == "Reset") {
    numbers_.resize(1);
    return "-";
  }
  if (Action_To_Perform == "Append") {
    numbers_.push_back(value);
    return value;
  }
  if (Action_To_Perform == "Put") return At(Element) = value;
  if (Action_To_Perform == "Get") return At(Element);
  if (Action_To_Perform == "Get Number Of Elements") return static_cast<int>(numbers_.size() - 1);
  return {};
}

Value& RecordNumberList::At(const Value& Element) {
  const std::int64_t index = Element.whole();
  if (index < 0 || index >= static_cast<std::int64_t>(numbers_.size())) throw RuntimeFailure(kSubscriptOutOfRange);
  return numbers_[static_cast<std::size_t>(index)];
}

Value Number_Before_First_Blank(const std::string& entry) {
  return Value(text::Left(entry, text::InStr(entry, " ") - 1));
}

SystemMoment Moment_Of_Firing(const std::string& Time_Of_Message) {
  const long long comma = text::InStr(Time_Of_Message, ",");
  const std::string time = text::Left(Time_Of_Message, comma - 1);
  const std::string date = text::Mid(Time_Of_Message, comma + 2);
  const Value month = engine::Define_Month(organizer::Parse_Output_Style_Date(date, "Month"), "Get Month Number");
  return {month.text() + "/" + organizer::Parse_Output_Style_Date(date, "Date").text() + "/" +
              organizer::Parse_Output_Style_Date(date, "Year").text(),
          text::Left(time, text::InStr(time, " ") - 1) + ":00 " + text::Right(time, 2)};
}

std::optional<ChosenTaskLabels> Chosen_Task_Labels(const std::string& path, const std::string& chosen_entry,
                                                   const std::string& Time_Of_Message,
                                                   const ScheduleRecord& Current_Record) {
  const Value chosen = Number_Before_First_Blank(chosen_entry);
  const SystemMoment now = Moment_Of_Firing(Time_Of_Message);
  organizer::LogReader file(path);
  ScheduleRecord r;
  while (file.Next(r)) {
    if (!Same_Number(r.Record_Number, chosen)) continue;
    return ChosenTaskLabels{
        r.Person_Name.text(),
        Task_Moment_Label(r.Start_Hour, r.Start_Minute, r.Start_Month, r.Start_Date, r.Start_Century, r.Start_Year),
        Task_Moment_Label(r.Finish_Hour, r.Finish_Minute, r.Finish_Month, r.Finish_Date, r.Finish_Century,
                          r.Finish_Year),
        Create_Time_Remaining_String(r.Start_Century, r.Start_Year, r.Start_Month, r.Start_Date, r.Start_Hour,
                                     r.Start_Minute, now.date, now.time, Current_Record)};
  }
  return std::nullopt;
}

Value Chosen_Non_Task_Message(const std::string& path, const std::string& chosen_entry) {
  const Value chosen = Number_Before_First_Blank(chosen_entry);
  NonTaskReminderReader file(path);
  NonTaskReminderRecord record;
  while (file.Next(record) && !Same_Number(record.NT_Record_Number, chosen)) {
  }
  return record.NT_Message;
}

}  // namespace orrivane::reminders
