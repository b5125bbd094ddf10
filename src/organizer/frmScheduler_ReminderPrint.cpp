// Printing the log: the print frame of the multi-purpose window opened on the present period, with
// every member of the log offered.
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/log_file.h"
#include "organizer/organizer_callers.h"
#include "organizer/working_files.h"
#include "platform/controls.h"
#include "platform/platform.h"
#include "platform/window_registry.h"
#include "reminders/frmMultiPurposeForm.h"
#include "reminders/print_log.h"

namespace orrivane {

void frmScheduler_Reminder::Connect_Print_Log() {
  menu->On("mnuPrintLog", [this] { Activate_Print_Log_Screen(); });
}

// The list is not emptied first: members and check marks stay from the last opening, a member
// deleted since then included.
void frmScheduler_Reminder::Activate_Print_Log_Screen() {
  frmMultiPurposeForm& form = Window<frmMultiPurposeForm>();
  const platform::ClockReading now = platform::Machine().Read_Clock();
  const reminders::PrintPeriod offered = reminders::Print_Period_Of({now.date, now.time});
  controls::Set_Caption(form.lblTimePeriod_5, offered.period);
  controls::Set_Caption(form.lblDate_5, offered.date);
  organizer::For_Each_Member(organizer::kScheduleFile,
                             [&form](const std::string& member) { form.Add_Print_Log_Member(member); });
  Multipurpose_Form(organizer::kActivatePrintLogScreen);
}

}  // namespace orrivane
