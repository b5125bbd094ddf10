#include "calendar/frmLargeCalendar.h"

#include <QAbstractItemView>
#include <QCloseEvent>
#include <QMenuBar>
#include <functional>

#include "calendar/CalendarMenu.h"
#include "calendar/Form1.h"
#include "calendar/calendar_callers.h"
#include "calendar/task_overlay.h"
#include "engine/calendar_engine.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/log_file.h"
#include "organizer/organizer_callers.h"
#include "platform/controls.h"
#include "platform/window_registry.h"
#include "shell/shell_callers.h"

namespace orrivane {

namespace {

// A combo box that tells when its list is about to open.
class DropDownComboBox : public QComboBox {
 public:
  DropDownComboBox(QWidget* parent, std::function<void()> on_drop_down)
      : QComboBox(parent), on_drop_down_(std::move(on_drop_down)) {}
  void showPopup() override {
    on_drop_down_();
    QComboBox::showPopup();
  }

 private:
  std::function<void()> on_drop_down_;
};

using controls::Make_Label;

using controls::Make_Button;

}  // namespace

frmLargeCalendar::frmLargeCalendar() : face(new QWidget) {
  setObjectName("frmLargeCalendar");
  setWindowTitle("Orrivane 3.0");
  setCentralWidget(face.lblCalDate[0]->parentWidget());
  Build_Controls();
  Build_Menu();
  Connect_Controls();
  resize(1200, 800);
  setWindowState(Qt::WindowMaximized);
}

void frmLargeCalendar::Build_Controls() {
  QWidget* body = centralWidget();
  lblMonthNumberShadow = Make_Label(body, "lblMonthNumberShadow");
  lblMonthNumber = Make_Label(body, "lblMonthNumber");
  lblMonthYear = Make_Label(body, "lblMonthYear");
  lblCalendarNameOverCalendar = Make_Label(body, "lblCalendarNameOverCalendar", "GREGORIAN CALENDAR");
  lblShowDate = Make_Label(body, "lblShowDate");
  Label1 = Make_Label(body, "Label1", "Show Task List For");
  cboShowTaskListFor = new DropDownComboBox(body, [this] { cboShowTaskListFor_DropDown(); });
  cboShowTaskListFor->setObjectName("cboShowTaskListFor");
  cboShowTaskListFor->setEditable(true);
  cboShowTaskListFor->setCompleter(nullptr);  // a name is taken as typed
  cboShowTaskListFor->setInsertPolicy(QComboBox::NoInsert);
  for (int i = 0; i < engine::kGridCells; ++i) {
    cboAppointments[i] = new QComboBox(body);
    cboAppointments[i]->setObjectName(controls::Array_Name("cboAppointments", i));
    cboAppointments[i]->hide();
  }
  for (int i = 0; i < engine::kGridCells; ++i) {
    lblCalHoliday[i] = Make_Label(body, controls::Array_Name("lblCalHoliday", i).toUtf8().constData());
    lblCalHoliday[i]->setWordWrap(true);
    lblCalHoliday[i]->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    controls::Set_Fore_Color(lblCalHoliday[i], 0x000080);  // dark red
  }
  cmdPriorMonth = Make_Button(body, "cmdPriorMonth", "<< Prior Month");
  cmdNextMonth = Make_Button(body, "cmdNextMonth", "Next Month >>");
  cmdExit = Make_Button(body, "cmdExit", "EXIT");
  for (QLabel* figure : {lblMonthNumber, lblMonthNumberShadow}) {
    figure->setAlignment(Qt::AlignCenter);
  }
  lblMonthYear->setAlignment(Qt::AlignCenter);
  lblCalendarNameOverCalendar->setAlignment(Qt::AlignCenter);
  lblShowDate->setAlignment(Qt::AlignCenter);
}

void frmLargeCalendar::Build_Menu() {
  menu = std::make_unique<MenuTree>(menuBar(), Calendar_Menu_Entries(CalendarWindow::LargeCalendar));
}

void frmLargeCalendar::Connect_Controls() {
  connect(cmdNextMonth, &QPushButton::clicked, this, [] { Window<Form1>().Display_Next_Month_On_Calendar(); });
  connect(cmdPriorMonth, &QPushButton::clicked, this, [] { Window<Form1>().Display_Prior_Month_On_Calendar(); });
  connect(cmdExit, &QPushButton::clicked, this,
          [] { Window<Form1>().Terminate_This_Program(calendar::kLargeCalendarCmdExitClick); });
  Connect_Shared_Calendar_Entries(*menu, CalendarWindow::LargeCalendar);
  menu->On("mnuExit", [] { Window<Form1>().Terminate_This_Program(calendar::kLargeCalendarMnuExitClick); });
  menu->On("mnuOpenLog",
           [] { Window<frmScheduler_Reminder>().Show_Open_Log_Window(shell::kLargeCalendarOpenLogCaller); });
  menu->On("mnuMinimizeToTaskbar", [this] { setWindowState(Qt::WindowMinimized); });
  menu->On("mnuMaximize", [this] { setWindowState(Qt::WindowMaximized); });
  menu->On("mnuWindowed", [this] { setWindowState(Qt::WindowNoState); });
  menu->On("mnuSmallWindow", [this] { Activate_Form1(); });
  connect(cboShowTaskListFor, &QComboBox::activated, this, [this] { Refresh_Calendar_TaskList(); });
  for (int k = 0; k < engine::kGridCells; ++k) {
    connect(cboAppointments[k], &QComboBox::activated, this, [k] {
      Window<frmScheduler_Reminder>().View_Task_Event_Information(organizer::kCboAppointmentsClick, k);
    });
  }
}

void frmLargeCalendar::Show_Month_Heading(const std::string& month_and_year, const std::string& style,
                                          long long month_number) {
  controls::Set_Caption(lblMonthYear, month_and_year);
  std::string heading = style == "Julian" ? "JULIAN" : "GREGORIAN";
  controls::Set_Caption(lblCalendarNameOverCalendar, heading + " CALENDAR");
  controls::Set_Caption(lblMonthNumber, std::to_string(month_number));
  controls::Set_Caption(lblMonthNumberShadow, std::to_string(month_number));
  controls::Set_Caption(lblShowDate, "");
}

void frmLargeCalendar::Refresh_Calendar_TaskList() {
  const std::string heading = controls::Caption(lblCalendarNameOverCalendar);
  std::string style;
  if (heading.find("GREGORIAN") != std::string::npos) style = "Gregorian";
  if (heading.find("JULIAN") != std::string::npos) style = "Julian";
  Display_TaskList(style);
}

void frmLargeCalendar::Display_TaskList(const std::string& Cal_Style) {
  for (QComboBox* list : cboAppointments) {
    list->clear();
    list->hide();
  }
  if (Cal_Style == "Julian") return;
  const Form1& main = Window<Form1>();
  calendar::ShownMonth shown;
  const engine::YearMonth on_show = main.Month_On_Show();
  shown.year = on_show.year;
  shown.month = on_show.month;
  shown.length = engine::Days_In_Month(on_show, engine::CalendarStyle::Gregorian);
  const calendar::Captions captions = face.Date_Captions();
  for (int cell = 0; cell < engine::kGridColumns; ++cell) {
    if (Value(captions[cell]) == Value(1)) shown.first_cell = cell;
  }
  shown.first_caption = Value(captions[0]).whole();
  shown.last_caption = Value(captions[engine::kLastGridCell]).whole();
  const std::string member = cboShowTaskListFor->currentText().toStdString();

  calendar::Show_Tasks_On_Grid(organizer::kScheduleFile, shown, member, [this](const calendar::TaskOnGrid& task) {
    cboAppointments[task.cell]->show();
    cboAppointments[task.cell]->addItem(QString::fromStdString(task.item));
  });
}

void frmLargeCalendar::cboShowTaskListFor_DropDown() {
  organizer::For_Each_Member(organizer::kScheduleFile, [this](const std::string& member) {
    const QString name = QString::fromStdString(member);
    if (cboShowTaskListFor->findText(name, Qt::MatchExactly) < 0) cboShowTaskListFor->addItem(name);
  });
}

void frmLargeCalendar::Show_Task_List_Choice(bool shown) {
  cboShowTaskListFor->setVisible(shown);
  Label1->setVisible(shown);
}

void frmLargeCalendar::Set_Current_Month_Calendar_Colors() {
  calendar::LargeCalendarColors colors;
  if (!calendar::Large_Calendar_Month_Colors(Window<Form1>().Current_Month_Color("Get Value"), colors)) return;
  for (QLabel* label : {face.lblPriorMonthName, face.lblNextMonthName, face.lblCalendarWeekDaysBackground}) {
    controls::Set_Back_Color(label, colors.main);
  }
  for (QLabel* label : {lblMonthNumber, lblMonthYear}) controls::Set_Fore_Color(label, colors.main);
  controls::Set_Fore_Color(lblMonthNumberShadow, colors.shadow);
}

void frmLargeCalendar::Activate_Form1() {
  Form1& main = Window<Form1>();
  main.show();
  hide();
  controls::Set_Back_Color(main.face.lblCalendarDatesBackground, controls::Back_Color(face.lblCalendarDatesBackground));
  controls::Set_Back_Color(main.face.lblCalendarWeekDaysBackground,
                           controls::Back_Color(face.lblCalendarWeekDaysBackground));
}

void frmLargeCalendar::closeEvent(QCloseEvent* event) {
  event->ignore();
  Window<Form1>().Terminate_This_Program(calendar::kFormUnload);
}

void frmLargeCalendar::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  Place_Controls();
}

void frmLargeCalendar::Place_Controls() {
  const QSize area = centralWidget()->size();
  const int w = std::max(area.width(), 900);
  const int h = std::max(area.height(), 600);
  const int side = std::max(170, w / 7);
  const int margin = 12;
  const int grid_x = side + 2 * margin;
  const int grid_w = w - 2 * grid_x;
  const int top = 70;
  const int grid_h = h - top - 60;
  face.Place(QRect(grid_x, top, grid_w, grid_h), QRect(margin, top + 90, side, side * 6 / 7 + 20),
             QRect(w - margin - side, top + 90, side, side * 6 / 7 + 20), std::max(16, grid_h / 24));

  QFont figure = lblMonthNumber->font();
  figure.setPixelSize(72);
  figure.setBold(true);
  lblMonthNumber->setFont(figure);
  lblMonthNumberShadow->setFont(figure);
  lblMonthNumber->setGeometry(margin, top + side + 140, side, 90);
  lblMonthNumberShadow->setGeometry(margin + 4, top + side + 144, side, 90);
  QFont heading = lblMonthYear->font();
  heading.setPixelSize(24);
  heading.setBold(true);
  lblMonthYear->setFont(heading);
  lblMonthYear->setGeometry(grid_x, 32, grid_w, 34);
  heading.setPixelSize(14);
  lblCalendarNameOverCalendar->setFont(heading);
  lblCalendarNameOverCalendar->setGeometry(grid_x, 8, grid_w, 22);
  lblShowDate->setGeometry(w - margin - side, top + side + 160, side, 24);
  Label1->setGeometry(margin, top, side, 22);
  cboShowTaskListFor->setGeometry(margin, top + 24, side, 26);
  cmdPriorMonth->setGeometry(grid_x, h - 48, 160, 34);
  cmdNextMonth->setGeometry(grid_x + grid_w - 160, h - 48, 160, 34);
  cmdExit->setGeometry(w - margin - side, h - 48, side, 34);

  // Each day's list of tasks lies over the lower part of its cell, its holiday just above.
  QFont small = lblCalHoliday[0]->font();
  small.setPixelSize(11);
  for (int i = 0; i < engine::kGridCells; ++i) {
    const QRect cell = face.lblCalDate[i]->geometry();
    cboAppointments[i]->setGeometry(cell.x() + 2, cell.bottom() - 26, cell.width() - 4, 24);
    cboAppointments[i]->raise();
    const int above_list = cell.bottom() - 28;
    const int below_date = cell.y() + std::max(16, cell.height() / 3);
    lblCalHoliday[i]->setFont(small);
    lblCalHoliday[i]->setGeometry(cell.x() + 4, below_date, cell.width() - 8, std::max(14, above_list - below_date));
    lblCalHoliday[i]->raise();
  }
}

}  // namespace orrivane
