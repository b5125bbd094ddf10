// Form1's start and the way out: the first activation that starts the program, the colour of
// the month, the swap to the large calendar and the end of the program.
#include <QCloseEvent>
#include <QTimer>

#include "calendar/Form1.h"
#include "calendar/calendar_callers.h"
#include "calendar/frmLargeCalendar.h"
#include "calendar/month_grid.h"
#include "organizer/date_time_text.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/log_file.h"
#include "organizer/organizer_callers.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/platform.h"
#include "platform/window_registry.h"
#include "shell/frmAbout.h"
#include "shell/frmSaveFile.h"

namespace orrivane {

namespace {

using platform::Machine;

const Message kExitQuestion{"Confirm", "Are you sure you want to exit Orrivane?", vbYesNo, vbQuestion};

}  // namespace

// ---- Colours -------------------------------------------------------------------------------

int Form1::Current_Month_Color(const std::string& Action_To_Perform, int value) {
  if (Action_To_Perform == "Set Equal To") month_color_ = value;
  return month_color_;
}

void Form1::Set_Current_Month_Calendar_Colors() {
  const unsigned colour = calendar::Form1_Month_Color(Current_Month_Color("Get Value"));
  if (colour == 0) return;
  for (QLabel* label : {face.lblPriorMonthName, face.lblNextMonthName, face.lblCalendarWeekDaysBackground}) {
    controls::Set_Back_Color(label, colour);
  }
}

// ---- Start and the way out ------------------------------------------------------------------

void Form1::Start_Program() {
  hide();
  Window<frmLargeCalendar>().show();
  Window<frmAbout>().show();
  organizer::Empty_Working_Log();
  Start_Reminder_Timer();
  Display_Todays_Date();
  Window<frmScheduler_Reminder>().Save_File_Prompt_Flag = 0;
  const std::string today = Machine().System_Date();
  const double month = organizer::Parse_Date(today, "Month").number();
  const double year = organizer::Parse_Date(today, "Year").number();
  Machine().Randomize(month * year);
  Current_Month_Color("Set Equal To", calendar::Month_Color_Index(Machine().Rnd()));
  Set_Current_Month_Calendar_Colors();
  Window<frmLargeCalendar>().Set_Current_Month_Calendar_Colors();
}


void Form1::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  // The first activation hides this window again; it runs once the show has completed.
  if (activations_ == 0) QTimer::singleShot(0, this, [this] { Form_Activate(); });
}

bool Form1::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate && activations_ > 0) Form_Activate();
  return QMainWindow::event(event);
}

void Form1::Form_Activate() {
  if (++activations_ >= 2) return;
  Start_Program();
}

void Form1::Activate_Large_Calendar() {
  Window<frmLargeCalendar>().show();
  hide();
}

void Form1::Terminate_This_Program(std::string_view PlaceOfOrigin) {
  if (PlaceOfOrigin != calendar::kFormUnload) {
    if (platform::Show_Message(kExitQuestion) != platform::vbYes) return;
  }
  Window<frmScheduler_Reminder>().Prompt_To_Save_Schedule_File(organizer::kTerminateThisProgram);
  // The user may still be naming the log: the working files stay until that window has gone.
  while (Window<frmSaveFile>().isVisible()) Machine().Yield();
  organizer::Delete_Working_Log();
  Machine().End_Process(0);
}

void Form1::closeEvent(QCloseEvent* event) {
  event->ignore();
  Terminate_This_Program(calendar::kFormUnload);
}

}  // namespace orrivane
