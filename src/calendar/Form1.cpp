#include "calendar/Form1.h"

#include <QMenuBar>

#include "calendar/CalendarMenu.h"
#include "calendar/calendar_callers.h"
#include "calendar/frmFindADate.h"
#include "calendar/frmLargeCalendar.h"
#include "calendar/frmSelectMonth.h"
#include "holidays/frmFindAHoliday.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/window_registry.h"

namespace orrivane {

namespace {

const Message kOptionsNotice{
    "Orrivane", "My apologies for that.\rThis feature was not yet available as of the release of this version.",
    vbOKOnly, vbNoIcon};


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
  lblStoreMonth = Make_Label(body, "lblStoreMonth");
  lblStoreYear = Make_Label(body, "lblStoreYear");
  lblStoreScheduleFileName = Make_Label(body, "lblStoreScheduleFileName");
  lblStoreScheduleFilePath = Make_Label(body, "lblStoreScheduleFilePath");
  for (QLabel* hidden : {lblStoreMonth, lblStoreYear, lblStoreScheduleFileName, lblStoreScheduleFilePath}) {
    hidden->hide();
  }
  lblCalendarNameOverCalendar = Make_Label(body, "lblCalendarNameOverCalendar", "GREGORIAN CALENDAR");
  lblMonthYear = Make_Label(body, "lblMonthYear");
  lblShowDate = Make_Label(body, "lblShowDate");
  lblShowCalendarName = Make_Label(body, "lblShowCalendarName", "Gregorian");
  lblDisplayDay = Make_Label(body, "lblDisplayDay");
  lblDate = Make_Label(body, "lblDate");
  txtShowWeekday = new QLineEdit(body);
  txtShowWeekday->setObjectName("txtShowWeekday");
  txtShowWeekday->setReadOnly(true);

  cmdPriorMonth = Make_Button(body, "cmdPriorMonth", "<< Prior Month");
  cmdNextMonth = Make_Button(body, "cmdNextMonth", "NEXT Month >>");
  cmdDisplayTodaysDate = Make_Button(body, "cmdDisplayTodaysDate", "Display Todays Date On Calendar");
  cmdDisplayMonthOnCalendar = Make_Button(body, "cmdDisplayMonthOnCalendar", "Display A Month On Calendar");
  cmdFindADatesWeekday = Make_Button(body, "cmdFindADatesWeekday", "Find A Date's Weekday");
  cmdFindHolidayDates = Make_Button(body, "cmdFindHolidayDates", "Find The Dates Of Holidays");
  CmdConvert = Make_Button(body, "CmdConvert", "Convert This Date To Old Style");
  cmdPrintTheCalendar = Make_Button(body, "cmdPrintTheCalendar", "Print The Calendar");
  cmdOrganizer = Make_Button(body, "cmdOrganizer", "Organizer\\Edit Tasks Or Events");
  cmdExit = Make_Button(body, "cmdExit", "EXIT");
  for (QPushButton* later : {cmdPrintTheCalendar, cmdOrganizer}) later->setEnabled(false);

  // Geometry: a wall calendar in the middle, the smaller months at its sides, the date line
  // below it and the buttons at the foot.
  setFixedSize(920, 600);
  QFont heading = lblCalendarNameOverCalendar->font();
  heading.setPixelSize(16);
  heading.setBold(true);
  lblCalendarNameOverCalendar->setFont(heading);
  lblCalendarNameOverCalendar->setAlignment(Qt::AlignCenter);
  lblCalendarNameOverCalendar->setGeometry(190, 6, 540, 22);
  heading.setPixelSize(20);
  lblMonthYear->setFont(heading);
  lblMonthYear->setAlignment(Qt::AlignCenter);
  lblMonthYear->setGeometry(190, 28, 540, 28);
  face.Place(QRect(190, 60, 540, 330), QRect(12, 90, 166, 150), QRect(742, 90, 166, 150), 20);
  QFont line = lblShowDate->font();
  line.setPixelSize(14);
  for (QWidget* w : std::initializer_list<QWidget*>{lblDisplayDay, txtShowWeekday, lblDate, lblShowDate,
                                                    lblShowCalendarName}) {
    w->setFont(line);
  }
  lblDisplayDay->setGeometry(190, 398, 250, 26);
  lblDisplayDay->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  txtShowWeekday->setGeometry(446, 398, 140, 26);
  lblDate->setGeometry(190, 428, 250, 24);
  lblDate->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  lblShowDate->setGeometry(446, 428, 200, 24);
  lblShowCalendarName->setGeometry(650, 428, 90, 24);
  cmdPriorMonth->setGeometry(12, 250, 166, 30);
  cmdNextMonth->setGeometry(742, 250, 166, 30);
  const QPushButton* const foot[] = {cmdDisplayTodaysDate, cmdDisplayMonthOnCalendar, cmdFindADatesWeekday,
                                     cmdFindHolidayDates, CmdConvert, cmdPrintTheCalendar, cmdOrganizer, cmdExit};
  for (int i = 0; i < 8; ++i) {
    const_cast<QPushButton*>(foot[i])->setGeometry(12 + (i % 4) * 226, 470 + (i / 4) * 40, 218, 32);
  }
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
  connect(cmdDisplayMonthOnCalendar, &QPushButton::clicked, this, [] { Show_In_Front(Window<frmSelectMonth>()); });
  connect(cmdFindADatesWeekday, &QPushButton::clicked, this, [] { Window<frmFindADate>().show(); });
  connect(cmdFindHolidayDates, &QPushButton::clicked, this, [] { Show_In_Front(Window<frmFindAHoliday>()); });
  connect(cmdExit, &QPushButton::clicked, this, [this] { Terminate_This_Program(calendar::kForm1CmdExitClick); });

  Connect_Shared_Calendar_Entries(*menu, CalendarWindow::Form1);
  menu->On("mnuExit", [this] { Terminate_This_Program(calendar::kForm1MnuExit); });
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
