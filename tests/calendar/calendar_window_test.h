#pragma once
// What the tests of the calendar windows share: the program started as a user starts it, and
// the cells of the grids read back.
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <string>

#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "calendar/frmSelectMonth.h"
#include "platform/controls.h"
#include "platform/window_registry.h"
#include "support/window_fixture.h"

namespace orrivane::testing {

class CalendarWindowTest : public WindowTest {
 protected:
  // Starts the program: the first activation of the main window.
  void Start_Program() {
    Window<Form1>().show();
    Process_Events();
  }

  Form1& main() { return Window<Form1>(); }
  frmLargeCalendar& large() { return Window<frmLargeCalendar>(); }

  std::string Cell(QWidget& window, int i) {
    return controls::Caption(Control<QLabel>(window, controls::Array_Name("lblCalDate", i)));
  }
  unsigned Cell_Colour(QWidget& window, int i) {
    return controls::Fore_Color(Control<QLabel>(window, controls::Array_Name("lblCalDate", i)));
  }
  std::string Label(QWidget& window, const char* name) { return controls::Caption(Control<QLabel>(window, name)); }
  QAction* Menu(QWidget& window, const char* name) { return Control<QAction>(window, name); }

  int Red_Cells(QWidget& window) {
    int red = 0;
    for (int i = 0; i < 42; ++i) red += Cell_Colour(window, i) == controls::kRed;
    return red;
  }
  // The cell captioned "1" among the first seven.
  int First_Cell(QWidget& window) {
    for (int i = 0; i < 7; ++i) {
      if (Cell(window, i) == "1") return i;
    }
    return -1;
  }

  // Brings a month on the calendar as the user does, through "View Month On Calendar".
  void Show_Month(const QString& month, const QString& year, bool julian = false) {
    frmSelectMonth& select = Window<frmSelectMonth>();
    select.show();
    select.ComboMonths->setCurrentIndex(select.ComboMonths->findText(month));
    Type(select.txtYear, year);
    (julian ? select.optJulian : select.optGregorian)->setChecked(true);
    Click(select.cmdDisplay);
  }
};

}  // namespace orrivane::testing
