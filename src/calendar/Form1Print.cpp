// Printing the calendar: the look of the main grid, as it stands, copied into the print window
// and sent to the printer as one page.
#include "calendar/Form1.h"
#include "calendar/frmPrintCalendar.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/platform.h"
#include "platform/window_registry.h"

namespace orrivane {

namespace {

const Message kPrintCalendarQuestion{"Print Calendar",
                                     "To print the calendar, click 'OK', otherwise click 'Cancel'.", vbOKCancel,
                                     vbNoIcon};

// The print job, and the file when the machine has no printer, are named by the month:
// "Orrivane-calendar-March-2024".
constexpr char kDocumentPrefix[] = "Orrivane-calendar-";

void Copy_Fore_Color(const QWidget* from, QWidget* to) { controls::Set_Fore_Color(to, controls::Fore_Color(from)); }
void Copy_Back_Color(const QWidget* from, QWidget* to) { controls::Set_Back_Color(to, controls::Back_Color(from)); }

void Copy_Caption_And_Fore_Color(const QLabel* from, QLabel* to) {
  controls::Set_Caption(to, controls::Caption(from));
  Copy_Fore_Color(from, to);
}

}  // namespace

void Form1::Print_Calendar() {
  frmPrintCalendar& print = Window<frmPrintCalendar>();
  CalendarFace& page = print.face;
  Copy_Caption_And_Fore_Color(lblMonthYear, print.lblMonthYear);
  Copy_Caption_And_Fore_Color(lblCalendarNameOverCalendar, print.lblCalendarNameOverCalendar);
  // Grey days and a selected date in red print as they stand.
  for (int i = 0; i < engine::kGridCells; ++i) Copy_Caption_And_Fore_Color(face.lblCalDate[i], page.lblCalDate[i]);
  Copy_Back_Color(face.lblCalendarDatesBackground, page.lblCalendarDatesBackground);
  Copy_Back_Color(face.lblCalendarWeekDaysBackground, page.lblCalendarWeekDaysBackground);
  for (int i = 0; i < engine::kGridColumns; ++i) {
    Copy_Fore_Color(face.lblCalendarWeekdayName[i], page.lblCalendarWeekdayName[i]);
    Copy_Fore_Color(face.lblCalendarWeekdayName[i], print.lblCalendarWeekDayName2[i]);
  }
  Copy_Fore_Color(face.lneCalendarWeekdayAndDateBorder, page.lneCalendarWeekdayAndDateBorder);
  for (int i = 0; i < CalendarFace::kInnerLines; ++i) {
    Copy_Fore_Color(face.lneCalendarInnerBorder[i], page.lneCalendarInnerBorder[i]);
  }
  for (int i = 0; i < CalendarFace::kOuterLines; ++i) {
    Copy_Fore_Color(face.lneCalendarOuterBorder[i], page.lneCalendarOuterBorder[i]);
  }

  if (platform::Show_Message(kPrintCalendarQuestion) != vbOK) return;
  const std::string document = kDocumentPrefix + controls::Caption(lblStoreMonth) + "-" +
                               controls::Caption(lblStoreYear);
  platform::Machine().Print_Window(print, document);
}

}  // namespace orrivane
