#include "calendar/Form1.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QTimer>

#include "calendar/calendar_callers.h"
#include "calendar/frmFindADate.h"
#include "calendar/frmLargeCalendar.h"
#include "calendar/frmSelectMonth.h"
#include "elapsed/frmFindDateDifference.h"
#include "holidays/frmFindAHoliday.h"
#include "shell/frmAbout.h"
#include "shell/frmLiscense.h"
#include "engine/calendar_engine.h"
#include "organizer/log_file.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/platform.h"
#include "platform/window_registry.h"

namespace orrivane {

namespace {

using platform::Machine;

const Message kOptionsNotice{
    "Orrivane", "My apologies for that.\rThis feature was not yet available as of the release of this version.",
    vbOKOnly, vbNoIcon};
const Message kExitQuestion{"Confirm", "Are you sure you want to exit Orrivane?", vbYesNo, vbQuestion};

// The menu of the program. Entries whose windows are not part of the program yet stand
// disabled.
constexpr MenuEntry kForm1Menu[] = {
    {"", "mnuFile", "&File", ""},
    {"mnuFile", "mnuNewLog", "New Log", "", false, true},
    {"mnuFile", "mnuOpenLog", "Open Log...", "Ctrl+O", false, true},
    {"mnuFile", "mnuSaveLog", "Save Log", "Ctrl+S", false, true},
    {"mnuFile", "mnuSaveLogAs", "Save Log As...", "Ctrl+V", false, true},
    {"mnuFile", "mnuPrintLog", "Print Log...", "F2", false, true},
    {"mnuFile", "mnuPrintCalendar", "Print Calendar...", "Ctrl+F2", false, true},
    {"mnuFile", "mnuExit", "Exit", "Ctrl+Q"},
    {"", "mnuView", "&View", ""},
    {"mnuView", "mnuTodaysDate", "Today's Date", "Ctrl+D"},
    {"mnuView", "mnuMonth", "Month", "", true},
    {"mnuMonth", "mnuNext", "Next", "Ctrl+N"},
    {"mnuMonth", "mnuPrevious", "Previous", "Ctrl+P"},
    {"mnuMonth", "mnuSelect", "Select...", "Ctrl+M"},
    {"mnuView", "mnuTaskEventInfo", "Task\\Event Info...", "Ctrl+I", false, true},
    {"", "mnuLog", "&Log", ""},
    {"mnuLog", "mnuAddNewTaskEventToLog", "Add New Task\\Event To Log...", "Ctrl+E", false, true},
    {"mnuLog", "mnuAddNewGroupMember", "Add New Group Member To Log...", "Ctrl+G", false, true},
    {"mnuLog", "mnuDeleteATaskEvent", "Delete A Task\\Event...", "Ctrl+F3", false, true},
    {"mnuLog", "mnuDeleteGroupMember", "Delete Group Member From Log...", "Shift+F3", false, true},
    {"", "mnuTools", "&Tools", ""},
    {"mnuTools", "mnuConvertDate", "Convert This Date...", "Ctrl+C"},
    {"mnuTools", "mnuFindADatesWeekday", "Find A Date's Weekday", "Ctrl+W"},
    {"mnuTools", "mnuFindHolidayDates", "Find Holiday Dates...", "Ctrl+H"},
    {"mnuTools", "mnuScheduler_Reminder", "Organizer...", "F3", false, true},
    {"mnuTools", "mnuOptions", "Options...", "F9"},
    {"mnuTools", "mnuFindTimeLengthBetweenDates", "Find Time Length Between Dates", "Ctrl+T"},
    {"mnuTools", "mnuReminders", "Reminders", "", true},
    {"mnuReminders", "mnuAdd", "Add...", "F6", false, true},
    {"mnuReminders", "mnuChange", "Change...", "Ctrl+F6", false, true},
    {"mnuReminders", "mnuDelete", "Delete...", "Shift+F6", false, true},
    {"", "mnuWindow", "&Window", ""},
    {"mnuWindow", "mnuMinimizeToTaskbar", "Minimize To Taskbar", "F5"},
    {"mnuWindow", "mnuLargeWindow", "Large Window", "F4"},
    {"", "mnuHelp", "&Help", ""},
    {"mnuHelp", "mnuContents", "Contents...", "F1", false, true},
    {"mnuHelp", "mnuLicense", "License...", "Ctrl+L"},
    {"mnuHelp", "mnuAbout", "About...", "Ctrl+A"},
};

// Entries and buttons whose windows come later: they stand disabled until then.
using controls::Make_Label;

using controls::Make_Button;

}  // namespace

void Show_In_Front(QWidget& window) {
  window.show();
  window.raise();
  window.activateWindow();
}

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
  menu = std::make_unique<MenuTree>(menuBar(), kForm1Menu);
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

  menu->On("mnuExit", [this] { Terminate_This_Program(calendar::kForm1MnuExit); });
  menu->On("mnuTodaysDate", [this] { Display_Todays_Date(); });
  menu->On("mnuNext", [this] { Display_Next_Month_On_Calendar(); });
  menu->On("mnuPrevious", [this] { Display_Prior_Month_On_Calendar(); });
  menu->On("mnuConvertDate", [this] { Cal_Conversion(); });
  menu->On("mnuOptions", [this] { Show_Options_Notice(); });
  menu->On("mnuMinimizeToTaskbar", [this] { showMinimized(); });
  menu->On("mnuLargeWindow", [this] { Activate_Large_Calendar(); });
  menu->On("mnuSelect", [] { Show_In_Front(Window<frmSelectMonth>()); });
  menu->On("mnuFindADatesWeekday", [] { Window<frmFindADate>().show(); });
  menu->On("mnuFindTimeLengthBetweenDates", [] { Show_In_Front(Window<frmFindDateDifference>()); });
  menu->On("mnuFindHolidayDates", [] { Show_In_Front(Window<frmFindAHoliday>()); });
  menu->On("mnuLicense", [] { Window<frmLiscense>().show(); });
  menu->On("mnuAbout", [] { Window<frmAbout>().show(); });
}

void Form1::Show_Options_Notice() { platform::Show_Message(kOptionsNotice); }

std::string Form1::Style_On_Show() const {
  const std::string heading = controls::Caption(lblCalendarNameOverCalendar);
  if (heading == "GREGORIAN CALENDAR") return "Gregorian";
  if (heading == "JULIAN CALENDAR") return "Julian";
  return {};
}

// ---- Month stepping ----------------------------------------------------------------------

void Form1::Enable_Next_Month(bool enabled) {
  frmLargeCalendar& large = Window<frmLargeCalendar>();
  for (QPushButton* b : {cmdNextMonth, large.cmdNextMonth}) b->setEnabled(enabled);
  for (QAction* a : {menu->Action("mnuNext"), large.menu->Action("mnuNext")}) a->setEnabled(enabled);
}

void Form1::Enable_Prior_Month(bool enabled) {
  frmLargeCalendar& large = Window<frmLargeCalendar>();
  for (QPushButton* b : {cmdPriorMonth, large.cmdPriorMonth}) b->setEnabled(enabled);
  for (QAction* a : {menu->Action("mnuPrevious"), large.menu->Action("mnuPrevious")}) a->setEnabled(enabled);
}

void Form1::Enable_Calendar_Month_Scrolling() {
  Enable_Next_Month(true);
  Enable_Prior_Month(true);
}

void Form1::Draw_Month(int first_weekday, int length, int prior_length) {
  const calendar::Grid grid = engine::Draw_Month_Cells(first_weekday, length, prior_length, 0);
  face.Write_Grid(grid);
  Window<frmLargeCalendar>().face.Write_Grid(grid);
}

engine::YearMonth Form1::Month_On_Show() const {
  const Value month = engine::Define_Month(controls::Caption(lblStoreMonth), "Get Month Number");
  return {Value(controls::Caption(lblStoreYear)).whole(), static_cast<int>(month.number())};
}

void Form1::Display_Next_Month_On_Calendar() {
  const std::string style = Style_On_Show();
  const std::optional<engine::YearMonth> next = engine::Next_Month_Step(Month_On_Show());
  if (!next) {
    Enable_Next_Month(false);
    return;
  }
  Enable_Prior_Month(true);
  Show_Stepped_Month(*next, style, calendar::Weekday_Of_Next_First(face.Date_Captions()));
}

void Form1::Display_Prior_Month_On_Calendar() {
  const std::string style = Style_On_Show();
  const engine::CalendarStyle calendar_style = engine::Calendar_Style_Of(style);
  const std::optional<engine::YearMonth> prior = engine::Prior_Month_Step(Month_On_Show(), calendar_style);
  if (!prior) {
    Enable_Prior_Month(false);
    return;
  }
  Enable_Next_Month(true);
  const int shown_first = calendar::Weekday_Of_First(face.Date_Captions());
  const int length = engine::Days_In_Month(*prior, calendar_style);
  Show_Stepped_Month(*prior, style, calendar::Weekday_Of_Prior_First(shown_first, length));
}

void Form1::Show_Stepped_Month(engine::YearMonth month, const std::string& style, int first_weekday) {
  const std::string month_name = engine::Full_Month_Name(month.month);
  const std::string year_text = std::to_string(month.year);
  controls::Set_Caption(lblStoreMonth, month_name);
  controls::Set_Caption(lblStoreYear, year_text);
  frmLargeCalendar& large = Window<frmLargeCalendar>();
  controls::Set_Caption(lblMonthYear, month_name + " " + year_text);
  large.Show_Month_Heading(month_name + " " + year_text, style, month.month);
  const engine::CalendarStyle calendar_style = engine::Calendar_Style_Of(style);
  Draw_Month(first_weekday, engine::Days_In_Month(month, calendar_style),
             engine::Days_In_Month(engine::Month_Before(month), calendar_style));
  large.Display_TaskList(style);
  Display_Side_Calendars(month_name, year_text, style);
  Display_Holidays_On_Calendar(style);
}

void Form1::Display_Side_Calendars(const Value& Month_Name, const Value& Year_, const std::string& CalStyle) {
  const engine::YearMonth shown{Year_.whole(),
                                static_cast<int>(engine::Define_Month(Month_Name, "Get Month Number").number())};
  const engine::SideMonths side = engine::Side_Months(shown, engine::Calendar_Style_Of(CalStyle));
  const calendar::Captions captions = face.Date_Captions();
  frmLargeCalendar& large = Window<frmLargeCalendar>();

  const int shown_first_column = std::max(0, calendar::Weekday_Of_First(captions) - 1);
  const int prior_column = calendar::Prior_Month_First_Column(shown_first_column, side.before_length);
  const calendar::Grid prior = calendar::Fill_Side_Calendar(prior_column, side.before_length, side.before_that_length);
  const std::string prior_name = engine::Full_Month_Name(side.before.month) + " " + std::to_string(side.before.year);

  const calendar::NextFirst next_first = calendar::Next_Month_First(captions);
  const int last_day = next_first.last_day.empty() ? 0 : static_cast<int>(Value(next_first.last_day).whole());
  const calendar::Grid next = calendar::Fill_Side_Calendar(std::max(0, next_first.column), side.after_length, last_day);
  const std::string next_name = engine::Full_Month_Name(side.after.month) + " " + std::to_string(side.after.year);

  for (CalendarFace* f : {&face, &large.face}) {
    controls::Set_Caption(f->lblPriorMonthName, prior_name);
    f->Write_Prior_Month(prior);
    controls::Set_Caption(f->lblNextMonthName, next_name);
    f->Write_Next_Month(next);
  }
}

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
  organizer::Delete_Working_Log();
  Machine().End_Process(0);
}

void Form1::closeEvent(QCloseEvent* event) {
  event->ignore();
  Terminate_This_Program(calendar::kFormUnload);
}

}  // namespace orrivane
