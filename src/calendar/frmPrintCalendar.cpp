#include "calendar/frmPrintCalendar.h"

#include "engine/calendar_engine.h"
#include "platform/PrintedPage.h"
#include "platform/controls.h"

namespace orrivane {

namespace {

using engine::kGridColumns;

using printed_page::kMargin;

// The parts of the page.
constexpr QSize kPage = printed_page::kLandscape;
constexpr QRect kCalendarName{kMargin, 16, kPage.width() - 2 * kMargin, 32};
constexpr QRect kMonthYear{kMargin, 50, kPage.width() - 2 * kMargin, 48};
constexpr QRect kGrid{kMargin, 108, kPage.width() - 2 * kMargin, kPage.height() - 108 - kMargin};
// The day heads' band holds the one-letter head above the full name.
constexpr int kHeadBand = 64;
constexpr int kLetterHeight = 30;
constexpr int kDateFontPx = 40;

// Every text of the calendar page is bold.
void Set_Font(QLabel* label, int pixel_size) { printed_page::Set_Font(label, pixel_size, true); }

}  // namespace

frmPrintCalendar::frmPrintCalendar() : face(this, CalendarFace::Sides::None) {
  setObjectName("frmPrintCalendar");
  controls::Set_Back_Color(this, printed_page::kPaper);
  lblCalendarNameOverCalendar = controls::Make_Label(this, "lblCalendarNameOverCalendar");
  lblMonthYear = controls::Make_Label(this, "lblMonthYear");
  for (int i = 0; i < kGridColumns; ++i) {
    lblCalendarWeekDayName2[i] =
        controls::Make_Label(this, controls::Array_Name("lblCalendarWeekDayName2", i),
                             QString::fromStdString(engine::Define_Weekday(i + 1, "Get Weekday Name").text()));
  }
  Place_Controls();
}

void frmPrintCalendar::Place_Controls() {
  setFixedSize(kPage);
  lblCalendarNameOverCalendar->setGeometry(kCalendarName);
  lblMonthYear->setGeometry(kMonthYear);
  Set_Font(lblCalendarNameOverCalendar, 24);
  Set_Font(lblMonthYear, 36);
  for (QLabel* heading : {lblCalendarNameOverCalendar, lblMonthYear}) heading->setAlignment(Qt::AlignCenter);

  face.Place_Grid(kGrid, kDateFontPx, kHeadBand);
  for (int i = 0; i < kGridColumns; ++i) {
    QLabel* letter = face.lblCalendarWeekdayName[i];
    const QRect column = letter->geometry();
    letter->setGeometry(column.x(), column.y(), column.width(), kLetterHeight);
    Set_Font(letter, 24);
    QLabel* name = lblCalendarWeekDayName2[i];
    name->setGeometry(column.x(), column.y() + kLetterHeight, column.width(), column.height() - kLetterHeight);
    name->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    Set_Font(name, 18);
  }
}

}  // namespace orrivane
