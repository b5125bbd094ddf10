#include "calendar/frmFindADate.h"

#include <string>
#include <utility>

#include "calendar/Form1.h"
#include "calendar/calendar_callers.h"
#include "core/value.h"
#include "engine/calendar_engine.h"
#include "platform/controls.h"
#include "platform/window_registry.h"

namespace orrivane {

namespace {

using controls::Make_Label;
using controls::Text_Of;

using controls::Make_Button;

using controls::Make_Combo;

// "00" to "99", or "01" to "31".
void Add_Two_Digit_Numbers(QComboBox* combo, int first, int last) {
  for (int n = first; n <= last; ++n) combo->addItem(QString("%1").arg(n, 2, 10, QChar('0')));
}


}  // namespace

frmFindADate::frmFindADate() {
  setObjectName("frmFindADate");
  setWindowTitle("Find The Weekday Of A Date");
  Build_Entries();
  Build_Answer();
  Place_Controls();
  Connect_Controls();
}

void frmFindADate::Build_Entries() {
  lblSelectCalendarStyle = Make_Label(this, "lblSelectCalendarStyle", "Select Calendar Style:");
  ComboCalendar = Make_Combo(this, "ComboCalendar", true);
  ComboCalendar->addItems({"Gregorian (New Style)", "Julian (Old Style)"});
  ComboCalendar->setCurrentIndex(0);

  lblSelectMonthDate = Make_Label(this, "lblSelectMonthDate", "Select Month\\Date:");
  ComboMonths = Make_Combo(this, "ComboMonths", false);
  for (int month = 1; month <= 12; ++month) {
    ComboMonths->addItem(QString::fromStdString(engine::Define_Month(month, "Get Month Name").text()));
  }
  ComboMonths->setMaxVisibleItems(12);
  ComboDate = Make_Combo(this, "ComboDate", false);
  Add_Two_Digit_Numbers(ComboDate, 1, 31);

  lblChooseCentury = Make_Label(this, "lblChooseCentury", "Choose Century:");
  ComboCentury = Make_Combo(this, "ComboCentury", true);
  Add_Two_Digit_Numbers(ComboCentury, 0, 99);
  ComboCentury->setCurrentIndex(0);

  lblChooseYear = Make_Label(this, "lblChooseYear", "Choose Year:");
  ComboYear = Make_Combo(this, "ComboYear", false);
  Add_Two_Digit_Numbers(ComboYear, 0, 99);

  // The list-only boxes start with nothing chosen.
  for (QComboBox* empty : {ComboMonths, ComboDate, ComboYear}) empty->setCurrentIndex(-1);

  cmdENTER = Make_Button(this, "cmdENTER", "ENTER");
  cmdENTER->setDefault(true);
}

void frmFindADate::Build_Answer() {
  lblDisplayDay = Make_Label(this, "lblDisplayDay", "This date occured on a:");
  txtShowWeekday = new QLineEdit("N\\A", this);
  txtShowWeekday->setObjectName("txtShowWeekday");
  txtShowWeekday->setReadOnly(true);
  lblDate = Make_Label(this, "lblDate", "Date:");
  lblShowDate = Make_Label(this, "lblShowDate");
  lblCalendarName = Make_Label(this, "lblCalendarName", "Calendar:");
  lblShowCalendarName = Make_Label(this, "lblShowCalendarName");

  cmdConvertAboveDate_ = Make_Button(this, "cmdConvertAboveDate_", "Convert Above Date");
  cmdDisplayAboveDateOnCalendar = Make_Button(this, "cmdDisplayAboveDateOnCalendar", "Display Above Date On Calendar");
  cmdCloseThisWindow = Make_Button(this, "cmdCloseThisWindow", "Close This Window");
  // Nothing to convert or display before a date was accepted.
  cmdConvertAboveDate_->setEnabled(false);
  cmdDisplayAboveDateOnCalendar->setEnabled(false);
}

void frmFindADate::Place_Controls() {
  // The entries with their labels right-aligned against them, the ENTER button beside the
  // century and year, the answer below in the same two columns, the three buttons at the foot.
  constexpr int kMargin = 12, kLabelWidth = 150, kEntryX = kMargin + kLabelWidth + 8, kRowHeight = 26;
  constexpr int kRight = kEntryX + 236;  // right edge of the entries and of the buttons
  // The long wording of the day line ("The day after tomorrow will be:") needs a wider label.
  constexpr int kAnswerLabelWidth = 214, kAnswerX = kMargin + kAnswerLabelWidth + 6;
  for (QLabel* label : {lblSelectCalendarStyle, lblSelectMonthDate, lblChooseCentury, lblChooseYear, lblDisplayDay,
                        lblDate, lblCalendarName}) {
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  }
  lblSelectCalendarStyle->setGeometry(kMargin, 14, kLabelWidth, kRowHeight);
  ComboCalendar->setGeometry(kEntryX, 14, kRight - kEntryX, kRowHeight);
  lblSelectMonthDate->setGeometry(kMargin, 48, kLabelWidth, kRowHeight);
  ComboMonths->setGeometry(kEntryX, 48, 150, kRowHeight);
  ComboDate->setGeometry(kEntryX + 156, 48, kRight - kEntryX - 156, kRowHeight);
  lblChooseCentury->setGeometry(kMargin, 82, kLabelWidth, kRowHeight);
  ComboCentury->setGeometry(kEntryX, 82, 80, kRowHeight);
  lblChooseYear->setGeometry(kMargin, 116, kLabelWidth, kRowHeight);
  ComboYear->setGeometry(kEntryX, 116, 80, kRowHeight);
  cmdENTER->setGeometry(kEntryX + 96, 82, kRight - kEntryX - 96, 60);

  int line = 160;
  for (auto [label, answer] : {std::pair<QLabel*, QWidget*>{lblDisplayDay, txtShowWeekday},
                               {lblDate, lblShowDate}, {lblCalendarName, lblShowCalendarName}}) {
    label->setGeometry(kMargin, line, kAnswerLabelWidth, kRowHeight);
    answer->setGeometry(kAnswerX, line, kRight - kAnswerX, kRowHeight);
    line += 30;
  }

  int y = line + 10;
  for (QPushButton* button : {cmdConvertAboveDate_, cmdDisplayAboveDateOnCalendar, cmdCloseThisWindow}) {
    button->setGeometry(kMargin, y, kRight - kMargin, 30);
    y += 36;
  }
  setFixedSize(kRight + kMargin, y + 6);
}

void frmFindADate::Connect_Controls() {
  connect(cmdENTER, &QPushButton::clicked, this, [this] { OutputDay(); });
  connect(cmdConvertAboveDate_, &QPushButton::clicked, this, [this] { cmdConvertAboveDate__Click(); });
  connect(cmdDisplayAboveDateOnCalendar, &QPushButton::clicked, this, [this] { OutputDay_On_Form1(); });
  connect(cmdCloseThisWindow, &QPushButton::clicked, this, [this] { cmdCloseThisWindow_Click(); });
}

void frmFindADate::OutputDay() {
  Form1& form1 = Window<Form1>();
  if (form1.Form1_Field_Validation_Check_Status(calendar::kFindADateOutputDay) != 0) return;
  // Calendarr has told why a date does not exist; the date accepted before stays.
  const int weekday = form1.Calendarr(calendar::kFindADateOutputDay);
  if (weekday == 0) return;
  form1.Display_Weekday(weekday, calendar::kFindADateOutputDay);
  Accept_Entered_Date();
}

void frmFindADate::Accept_Entered_Date() {
  cmdConvertAboveDate_->setEnabled(true);
  cmdDisplayAboveDateOnCalendar->setEnabled(true);
  const std::string style = Text_Of(ComboCalendar);
  if (style == "Gregorian (New Style)") {
    controls::Set_Caption(lblShowCalendarName, "Gregorian");
    cmdConvertAboveDate_->setText("Convert Above Date To Old Style");
  } else if (style == "Julian (Old Style)") {
    controls::Set_Caption(lblShowCalendarName, "Julian");
    cmdConvertAboveDate_->setText("Convert Above Date To New Style");
  }
  // The date and the year as numbers: "05" is 5, and the year loses its leading zeros.
  const engine::CalendarrDate entered{.month = Text_Of(ComboMonths),
                                      .date = Value(Text_Of(ComboDate)).whole(),
                                      .century = Value(Text_Of(ComboCentury)).whole(),
                                      .two_digit_year = Value(Text_Of(ComboYear)).whole()};
  controls::Set_Caption(lblShowDate, entered.month + " " + std::to_string(entered.date) + ", " +
                                         std::to_string(entered.year()));
}

void frmFindADate::OutputDay_On_Form1() {
  Form1& form1 = Window<Form1>();
  if (form1.Form1_Field_Validation_Check_Status(calendar::kFindADateOutputDayOnForm1) != 0) return;
  // Calendarr draws the date of lblShowDate, not what the entries hold now.
  const int weekday = form1.Calendarr(calendar::kFindADateOutputDayOnForm1);
  form1.Display_Weekday(weekday, calendar::kFindADateOutputDayOnForm1);
}

void frmFindADate::cmdConvertAboveDate__Click() { Window<Form1>().Convert(calendar::kFindADateConvertAboveDate); }

void frmFindADate::cmdCloseThisWindow_Click() { hide(); }

}  // namespace orrivane
