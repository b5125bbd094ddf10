// Form1's month on show: stepping to the month after or before within the limits of the
// calendar, drawing a month on both calendar windows, and the small calendars at its sides.
#include <algorithm>

#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "engine/calendar_engine.h"
#include "platform/controls.h"
#include "platform/window_registry.h"

namespace orrivane {

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

}  // namespace orrivane
