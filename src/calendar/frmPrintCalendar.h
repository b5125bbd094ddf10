#pragma once
// The calendar as it is printed: the grid of the main window at the size of a page, with the
// full names of the weekdays under their one-letter heads and without the side calendars. It
// has no procedures of its own and is never shown; Form1's Print_Calendar copies the look of
// its own grid into it and sends its image to the printer.
#include <QLabel>
#include <QWidget>
#include <array>

#include "calendar/CalendarFace.h"

namespace orrivane {

class frmPrintCalendar : public QWidget {
  Q_OBJECT
 public:
  frmPrintCalendar();

  CalendarFace face;
  QLabel* lblMonthYear;
  QLabel* lblCalendarNameOverCalendar;
  std::array<QLabel*, engine::kGridColumns> lblCalendarWeekDayName2{};  // "Sunday" to "Saturday"

 private:
  void Place_Controls();
};

}  // namespace orrivane
