#pragma once
// The large calendar: the same month grid as the main window at full size, with the tasks of
// one group member listed in the day cells. It is the window the user sees first; F4 swaps it
// with the main window.
#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <array>
#include <memory>
#include <string>

#include "calendar/CalendarFace.h"
#include "platform/MenuTree.h"

namespace orrivane {

class frmLargeCalendar : public QMainWindow {
  Q_OBJECT
 public:
  frmLargeCalendar();

  CalendarFace face;
  std::array<QComboBox*, engine::kGridCells> cboAppointments{};
  std::array<QLabel*, engine::kGridCells> lblCalHoliday{};  // the holiday of each day cell, in small text
  QComboBox* cboShowTaskListFor;
  QLabel* Label1;
  QLabel* lblMonthNumber;
  QLabel* lblMonthNumberShadow;
  QLabel* lblMonthYear;
  QLabel* lblCalendarNameOverCalendar;
  QLabel* lblShowDate;
  QPushButton* cmdPriorMonth;
  QPushButton* cmdNextMonth;
  QPushButton* cmdExit;
  std::unique_ptr<MenuTree> menu;

  void Refresh_Calendar_TaskList();
  void Display_TaskList(const std::string& Cal_Style);
  void Set_Current_Month_Calendar_Colors();
  void Activate_Form1();
  // The headings of a month brought on by stepping or by choosing a month: month and year,
  // the calendar's name, the month figure; the selected date is emptied.
  void Show_Month_Heading(const std::string& month_and_year, const std::string& style, long long month_number);
  void cboShowTaskListFor_DropDown();
  // The choice of member stands only beside the Gregorian calendar.
  void Show_Task_List_Choice(bool shown);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Build_Controls();
  void Build_Menu();
  void Connect_Controls();
  void Place_Controls();
};

}  // namespace orrivane
