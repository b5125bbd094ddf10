// Form1's reminder timer: every five seconds it reads both reminder files whole, and opens the
// reminder windows for what is due in the present minute.
#include "calendar/Form1.h"
#include "organizer/working_files.h"
#include "platform/window_registry.h"
#include "reminders/frmNonTaskReminderWindow.h"
#include "reminders/frmReminderWindow.h"

namespace orrivane {

namespace {

using platform::Machine;

constexpr int kReminderInterval = 5000;  // milliseconds

}  // namespace

void Form1::Start_Reminder_Timer() {
  tmrReminders_ = Machine().Start_Timer(kReminderInterval, [this] { tmrReminders_Timer(); });
}

bool Form1::TRemin_Is_In_Use(bool Value_, std::string_view Action_To_Perform) {
  return tremin_in_use_.Keep(Value_, Action_To_Perform);
}

bool Form1::NTRemin_Is_In_Use(bool Value_, std::string_view Action_To_Perform) {
  return ntremin_in_use_.Keep(Value_, Action_To_Perform);
}

void Form1::tmrReminders_Timer() {
  // A rewrite of TRemin.tmp is under way: the whole tick is given up, the other half too.
  std::optional<reminders::FlagHold> task_file = reminders::FlagHold::Take_If_Free(tremin_in_use_);
  if (!task_file) return;
  const platform::ClockReading now = Machine().Read_Clock();
  const reminders::TickMoment moment = reminders::Tick_Moment(now.date, now.time, current_record_);

  frmReminderWindow& task_window = Window<frmReminderWindow>();
  const reminders::TaskReminderHalf tasks =
      reminders::Task_Reminder_Half(organizer::kTaskReminderFile, moment, Last_Task_Reminder_Minute, current_record_);
  task_window.Store_Task_Record_Numbers("Reset");
  for (const Value& number : tasks.Due) task_window.Store_Task_Record_Numbers("Append", {}, number);
  if (tasks.Window) {
    task_window.Show_Reminder(*tasks.Window);
    Machine().Beep();
  }
  task_file.reset();

  const reminders::FlagHold message_file(ntremin_in_use_);
  const std::optional<reminders::NonTaskReminderFilling> messages = reminders::Non_Task_Reminder_Half(
      organizer::kNonTaskReminderFile, moment, tasks.Show_Reminder, Last_NT_Reminder_Minute, current_record_);
  if (!messages) return;
  Machine().Beep();
  Window<frmNonTaskReminderWindow>().Show_Reminder(*messages);
}

}  // namespace orrivane
