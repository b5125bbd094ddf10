#include "calendar/Form1.h"

#include <QMenuBar>

#include "calendar/CalendarMenu.h"
#include "calendar/calendar_callers.h"
#include "calendar/frmFindADate.h"
#include "calendar/frmLargeCalendar.h"
#include "calendar/frmSelectMonth.h"
#include "holidays/frmFindAHoliday.h"
#include "organizer/frmScheduler_Reminder.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/window_registry.h"
#include "shell/shell_callers.h"

namespace orrivane {

namespace {

const Message kOptionsNotice{
    "Orrivane", "My apologies for that.\rThis feature was not yet available as of the release of this version.",
    vbOKOnly, vbNoIcon};


// Geometry: a wall calendar in the middle, the smaller months at its sides, the date line
// below it and the buttons at the foot, in pixels. A label without a place is a hidden store.
struct LabelRow {
  QLabel* Form1::*member;
  const char* name;
  const char* caption;
  QRect place;
};
const LabelRow kLabels[] = {
    {&Form1::lblStoreMonth, "lblStoreMonth", "", {}},
    {&Form1::lblStoreYear, "lblStoreYear", "", {}},
    {&Form1::lblStoreScheduleFileName, "lblStoreScheduleFileName", "", {}},
    {&Form1::lblStoreScheduleFilePath, "lblStoreScheduleFilePath", "", {}},
    {&Form1::lblCalendarNameOverCalendar, "lblCalendarNameOverCalendar", "GREGORIAN CALENDAR", {190, 6, 540, 22}},
    {&Form1::lblMonthYear, "lblMonthYear", "", {190, 28, 540, 28}},
    {&Form1::lblShowDate, "lblShowDate", "", {446, 428, 200, 24}},
    {&Form1::lblShowCalendarName, "lblShowCalendarName", "Gregorian", {650, 428, 90, 24}},
    {&Form1::lblDisplayDay, "lblDisplayDay", "", {190, 398, 250, 26}},
    {&Form1::lblDate, "lblDate", "", {190, 428, 250, 24}},
};

// The buttons in their tab order: the steps beside the calendar, then two rows at the foot.
struct ButtonRow {
  QPushButton* Form1::*member;
  const char* name;
  const char* caption;
  QRect place;
};
const ButtonRow kButtons[] = {
    {&Form1::cmdPriorMonth, "cmdPriorMonth", "<< Prior Month", {12, 250, 166, 30}},
    {&Form1::cmdNextMonth, "cmdNextMonth", "NEXT Month >>", {742, 250, 166, 30}},
    {&Form1::cmdDisplayTodaysDate, "cmdDisplayTodaysDate", "Display Todays Date On Calendar", {12, 470, 218, 32}},
    {&Form1::cmdDisplayMonthOnCalendar, "cmdDisplayMonthOnCalendar", "Display A Month On Calendar",
     {238, 470, 218, 32}},
    {&Form1::cmdFindADatesWeekday, "cmdFindADatesWeekday", "Find A Date's Weekday", {464, 470, 218, 32}},
    {&Form1::cmdFindHolidayDates, "cmdFindHolidayDates", "Find The Dates Of Holidays", {690, 470, 218, 32}},
    {&Form1::CmdConvert, "CmdConvert", "Convert This Date To Old Style", {12, 510, 218, 32}},
    {&Form1::cmdPrintTheCalendar, "cmdPrintTheCalendar", "Print The Calendar", {238, 510, 218, 32}},
    {&Form1::cmdOrganizer, "cmdOrganizer", "Organizer\\Edit Tasks Or Events", {464, 510, 218, 32}},
    {&Form1::cmdExit, "cmdExit", "EXIT", {690, 510, 218, 32}},
};

using controls::Make_Button;
using controls::Make_Label;
using controls::Show_In_Front;

}  // namespace

Form1::Form1() : face(new QWidget) {
  setObjectName("Form1");
  setWindowTitle("Orrivane 3.0");
  setCentralWidget(face.lblCalDate[0]->parentWidget());
  Build_Controls();
  Build_Menu();
  Connect_Controls();
}

void Form1::Build_Controls() {
  QWidget* body = centralWidget();
  for (const LabelRow& row : kLabels) {
    QLabel* label = Make_Label(body, row.name, row.caption);
    if (row.place.isNull()) {
      label->hide();  // a store of the program's state
    } else {
      label->setGeometry(row.place);
    }
    this->*row.member = label;
  }
  txtShowWeekday = controls::Make<QLineEdit>(body, "txtShowWeekday");
  txtShowWeekday->setReadOnly(true);
  txtShowWeekday->setGeometry(446, 398, 140, 26);
  for (const ButtonRow& row : kButtons) {
    QPushButton* button = Make_Button(body, row.name, row.caption);
    button->setGeometry(row.place);
    this->*row.member = button;
  }
  Style_Controls();
  setFixedSize(920, 600);
  face.Place(QRect(190, 60, 540, 330), QRect(12, 90, 166, 150), QRect(742, 90, 166, 150), 20);
}

void Form1::Style_Controls() {
  QFont heading = lblCalendarNameOverCalendar->font();
  heading.setPixelSize(16);
  heading.setBold(true);
  lblCalendarNameOverCalendar->setFont(heading);
  heading.setPixelSize(20);
  lblMonthYear->setFont(heading);
  for (QLabel* centred : {lblCalendarNameOverCalendar, lblMonthYear}) centred->setAlignment(Qt::AlignCenter);
  QFont line = lblShowDate->font();
  line.setPixelSize(14);
  for (QWidget* w : std::initializer_list<QWidget*>{lblDisplayDay, txtShowWeekday, lblDate, lblShowDate,
                                                    lblShowCalendarName}) {
    w->setFont(line);
  }
  for (QLabel* caption : {lblDisplayDay, lblDate}) caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void Form1::Build_Menu() {
  menu = std::make_unique<MenuTree>(menuBar(), Calendar_Menu_Entries(CalendarWindow::Form1));
}

void Form1::Connect_Controls() {
  auto on_click = [this](QPushButton* button, void (Form1::*procedure)()) {
    connect(button, &QPushButton::clicked, this, [this, procedure] { (this->*procedure)(); });
  };
  on_click(cmdPriorMonth, &Form1::Display_Prior_Month_On_Calendar);
  on_click(cmdNextMonth, &Form1::Display_Next_Month_On_Calendar);
  on_click(cmdDisplayTodaysDate, &Form1::Display_Todays_Date);
  on_click(CmdConvert, &Form1::Cal_Conversion);
  on_click(cmdPrintTheCalendar, &Form1::Print_Calendar);
  connect(cmdDisplayMonthOnCalendar, &QPushButton::clicked, this, [] { Show_In_Front(Window<frmSelectMonth>()); });
  connect(cmdFindADatesWeekday, &QPushButton::clicked, this, [] { controls::Show_In_Front(Window<frmFindADate>()); });
  connect(cmdFindHolidayDates, &QPushButton::clicked, this, [] { Show_In_Front(Window<frmFindAHoliday>()); });
  connect(cmdOrganizer, &QPushButton::clicked, this, [] { Show_In_Front(Window<frmScheduler_Reminder>()); });
  connect(cmdExit, &QPushButton::clicked, this, [this] { Terminate_This_Program(calendar::kForm1CmdExitClick); });

  Connect_Shared_Calendar_Entries(*menu, CalendarWindow::Form1);
  menu->On("mnuExit", [this] { Terminate_This_Program(calendar::kForm1MnuExit); });
  menu->On("mnuOpenLog", [] { Window<frmScheduler_Reminder>().Show_Open_Log_Window(shell::kForm1OpenLogCaller); });
  menu->On("mnuOptions", [this] { Show_Options_Notice(); });
  menu->On("mnuMinimizeToTaskbar", [this] { showMinimized(); });
  menu->On("mnuLargeWindow", [this] { Activate_Large_Calendar(); });
}

void Form1::Show_Options_Notice() { platform::Show_Message(kOptionsNotice); }

std::string Form1::Style_On_Show() const {
  const std::string heading = controls::Caption(lblCalendarNameOverCalendar);
  if (heading == "GREGORIAN CALENDAR") return "Gregorian";
  if (heading == "JULIAN CALENDAR") return "Julian";
  return {};
}

}  // namespace orrivane
