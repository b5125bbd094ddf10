#include "calendar/frmSelectMonth.h"


#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "calendar/select_month_check.h"
#include "core/text.h"
#include "core/value.h"
#include "engine/calendar_engine.h"
#include "platform/HideOnDeactivate.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/window_registry.h"

namespace orrivane {

frmSelectMonth::frmSelectMonth() {
  setObjectName("frmSelectMonth");
  setWindowTitle("View Month On Calendar");
  Build_Controls();
  Place_Controls();
  Connect_Controls();
  // The window puts itself away when another window of the program becomes active.
  hide_on_deactivate_ = new HideOnDeactivate(*this);
}

void frmSelectMonth::Build_Controls() {
  lblSelectMonth = new QLabel("Select Month:", this);
  lblSelectMonth->setObjectName("lblSelectMonth");
  ComboMonths = new QComboBox(this);
  ComboMonths->setObjectName("ComboMonths");
  for (int month = 1; month <= 12; ++month) {
    ComboMonths->addItem(QString::fromStdString(engine::Define_Month(month, "Get Month Name").text()));
  }
  ComboMonths->setCurrentIndex(-1);
  ComboMonths->setMaxVisibleItems(12);

  lblSelectYear = new QLabel("Select Year:", this);
  lblSelectYear->setObjectName("lblSelectYear");
  txtYear = new QLineEdit(this);
  txtYear->setObjectName("txtYear");
  txtYear->setMaxLength(8);

  fraCalendarStyle = new QGroupBox("Calendar Style", this);
  fraCalendarStyle->setObjectName("fraCalendarStyle");
  optGregorian = new QRadioButton("Gregorian", fraCalendarStyle);
  optGregorian->setObjectName("optGregorian");
  optJulian = new QRadioButton("Julian", fraCalendarStyle);
  optJulian->setObjectName("optJulian");
  optGregorian->setChecked(true);

  cmdDisplay = new QPushButton("Display", this);
  cmdDisplay->setObjectName("cmdDisplay");
  cmdDisplay->setDefault(true);
  cmdCancel = new QPushButton("Cancel", this);
  cmdCancel->setObjectName("cmdCancel");
}

void frmSelectMonth::Place_Controls() {
  // Two rows of entries with their labels on the left, the style frame under them, the two
  // buttons in a column on the right.
  constexpr int kLabelX = 12, kLabelWidth = 92, kEntryX = 110, kRowHeight = 26;
  constexpr int kButtonX = 262, kButtonWidth = 96, kButtonHeight = 30;
  for (QLabel* label : {lblSelectMonth, lblSelectYear}) label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  lblSelectMonth->setGeometry(kLabelX, 14, kLabelWidth, kRowHeight);
  ComboMonths->setGeometry(kEntryX, 14, 136, kRowHeight);
  lblSelectYear->setGeometry(kLabelX, 50, kLabelWidth, kRowHeight);
  txtYear->setGeometry(kEntryX, 50, 96, kRowHeight);
  fraCalendarStyle->setGeometry(kLabelX, 88, 234, 58);
  optGregorian->setGeometry(14, 26, 100, 22);
  optJulian->setGeometry(130, 26, 90, 22);
  cmdDisplay->setGeometry(kButtonX, 12, kButtonWidth, kButtonHeight);
  cmdCancel->setGeometry(kButtonX, 50, kButtonWidth, kButtonHeight);
  setFixedSize(kButtonX + kButtonWidth + 12, 158);
}

void frmSelectMonth::Connect_Controls() {
  connect(cmdDisplay, &QPushButton::clicked, this, [this] { cmdDisplay_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

std::string frmSelectMonth::Selected_Style() const { return optJulian->isChecked() ? "Julian" : "Gregorian"; }

void frmSelectMonth::cmdCancel_Click() { hide(); }

void frmSelectMonth::Show_Entry_Message(int status) {
  hide_on_deactivate_->Show_Message(calendar::Select_Month_Entry_Message(status));
}

void frmSelectMonth::cmdDisplay_Click() {
  const std::string style = Selected_Style();
  const std::string month = ComboMonths->currentText().toStdString();
  const std::string year_text = txtYear->text().toStdString();
  if (const int status = calendar::Select_Month_Entry_Status(month, year_text, style); status != 0) {
    Show_Entry_Message(status);
    return;
  }
  Display_Month(month, Value(year_text).whole(), style);
}

void frmSelectMonth::Display_Month(const std::string& month, long long year, const std::string& style) {
  Form1& form1 = Window<Form1>();
  frmLargeCalendar& large = Window<frmLargeCalendar>();
  const std::string year_text = std::to_string(year);
  const std::string month_and_year = month + " " + year_text;

  controls::Set_Caption(form1.lblMonthYear, month_and_year);
  controls::Set_Caption(form1.lblCalendarNameOverCalendar, text::UCase(style) + " CALENDAR");
  large.Show_Month_Heading(month_and_year, style, engine::Define_Month(month, "Get Month Number").whole());

  controls::Set_Caption(form1.lblStoreMonth, month);
  controls::Set_Caption(form1.lblStoreYear, year_text);
  form1.Enable_Calendar_Month_Scrolling();

  const engine::MonthGrid grid = engine::Select_Month_Grid(month, year, *engine::Calendar_Style_From_Text(style));
  form1.face.Write_Grid(grid);
  large.face.Write_Grid(grid);

  large.Show_Task_List_Choice(style == "Gregorian");
  hide();

  large.Display_TaskList(style);
  form1.Display_Side_Calendars(controls::Caption(form1.lblStoreMonth), controls::Caption(form1.lblStoreYear), style);
  form1.Display_Holidays_On_Calendar(style);
}

}  // namespace orrivane
