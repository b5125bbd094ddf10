#include "calendar/CalendarFace.h"

#include "platform/controls.h"

namespace orrivane {

namespace {

using controls::Make_Label;

using engine::kGridCells;
using engine::kGridColumns;
using engine::kGridRows;

void Make_Array(QWidget* parent, CalendarFace::Cells& cells, const char* name) {
  for (int i = 0; i < kGridCells; ++i) cells[i] = Make_Label(parent, controls::Array_Name(name, i));
}

void Write(CalendarFace::Cells& cells, const calendar::Grid& grid) {
  for (int i = 0; i < kGridCells; ++i) {
    controls::Set_Caption(cells[i], grid[i].caption);
    controls::Set_Fore_Color(cells[i], grid[i].colour);
  }
}

}  // namespace

CalendarFace::CalendarFace(QWidget* parent) {
  // Backgrounds first, so that the cells stand in front of them.
  lblCalendarWeekDaysBackground = Make_Label(parent, "lblCalendarWeekDaysBackground");
  lblCalendarDatesBackground = Make_Label(parent, "lblCalendarDatesBackground");
  lblPriorCalendarDatesBackground = Make_Label(parent, "lblPriorCalendarDatesBackground");
  lblNextCalendarDatesBackground = Make_Label(parent, "lblNextCalendarDatesBackground");
  controls::Set_Back_Color(lblCalendarDatesBackground, 0xFFFFFF);
  lblCalendarDatesBackground->setFrameStyle(QFrame::Box | QFrame::Plain);
  for (QLabel* background : {lblPriorCalendarDatesBackground, lblNextCalendarDatesBackground}) {
    controls::Set_Back_Color(background, controls::kButtonFace);
    background->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  }
  lblPriorMonthName = Make_Label(parent, "lblPriorMonthName");
  lblNextMonthName = Make_Label(parent, "lblNextMonthName");
  for (QLabel* name : {lblPriorMonthName, lblNextMonthName}) {
    name->setAlignment(Qt::AlignCenter);
    controls::Set_Fore_Color(name, 0xFFFFFF);
  }
  static constexpr const char* kHeads[kGridColumns] = {"S", "M", "T", "W", "T", "F", "S"};
  for (int i = 0; i < kGridColumns; ++i) {
    lblCalendarWeekdayName[i] = Make_Label(parent, controls::Array_Name("lblCalendarWeekdayName", i), kHeads[i]);
    lblCalendarWeekdayName[i]->setAlignment(Qt::AlignCenter);
    controls::Set_Fore_Color(lblCalendarWeekdayName[i], 0xFFFFFF);
  }
  Make_Array(parent, lblCalDate, "lblCalDate");
  Make_Array(parent, lblPriorMonthCalDate, "lblPriorMonthCalDate");
  Make_Array(parent, lblNextMonthCalDate, "lblNextMonthCalDate");
}

void CalendarFace::Write_Grid(const calendar::Grid& grid) { Write(lblCalDate, grid); }
void CalendarFace::Write_Prior_Month(const calendar::Grid& grid) { Write(lblPriorMonthCalDate, grid); }
void CalendarFace::Write_Next_Month(const calendar::Grid& grid) { Write(lblNextMonthCalDate, grid); }

calendar::Captions CalendarFace::Date_Captions() const {
  calendar::Captions captions;
  for (int i = 0; i < kGridCells; ++i) captions[i] = controls::Caption(lblCalDate[i]);
  return captions;
}

void CalendarFace::Place_Cells(Cells& cells, const QRect& area, Qt::Alignment alignment) {
  const double w = area.width() / static_cast<double>(kGridColumns);
  const double h = area.height() / static_cast<double>(kGridRows);
  for (int i = 0; i < kGridCells; ++i) {
    const int col = i % kGridColumns;
    const int row = i / kGridColumns;
    cells[i]->setGeometry(area.x() + static_cast<int>(col * w), area.y() + static_cast<int>(row * h),
                          static_cast<int>(w), static_cast<int>(h));
    cells[i]->setAlignment(alignment);
  }
}

void CalendarFace::Place(const QRect& grid_area, const QRect& prior_area, const QRect& next_area, int date_font_px) {
  const int head_height = std::max(18, grid_area.height() / 14);
  const QRect heads(grid_area.x(), grid_area.y(), grid_area.width(), head_height);
  const QRect dates(grid_area.x(), grid_area.y() + head_height, grid_area.width(), grid_area.height() - head_height);
  lblCalendarWeekDaysBackground->setGeometry(heads);
  lblCalendarDatesBackground->setGeometry(dates);
  const double w = heads.width() / static_cast<double>(kGridColumns);
  for (int i = 0; i < kGridColumns; ++i) {
    lblCalendarWeekdayName[i]->setGeometry(heads.x() + static_cast<int>(i * w), heads.y(), static_cast<int>(w),
                                           head_height);
  }
  QFont date_font = lblCalDate[0]->font();
  date_font.setPixelSize(date_font_px);
  date_font.setBold(true);
  for (QLabel* cell : lblCalDate) cell->setFont(date_font);
  QFont head_font = date_font;
  head_font.setPixelSize(std::max(11, head_height * 2 / 3));
  for (QLabel* head : lblCalendarWeekdayName) head->setFont(head_font);
  Place_Cells(lblCalDate, dates.adjusted(4, 2, -4, -2), Qt::AlignRight | Qt::AlignTop);

  auto place_side = [](QLabel* name, QLabel* background, Cells& cells, const QRect& area) {
    const int name_height = 20;
    name->setGeometry(area.x(), area.y(), area.width(), name_height);
    const QRect body(area.x(), area.y() + name_height, area.width(), area.height() - name_height);
    background->setGeometry(body);
    QFont small = cells[0]->font();
    // Two-digit days must keep a gap between them in cells a seventh of the width.
    small.setPixelSize(std::max(8, std::min(body.height() / 10, body.width() / 14)));
    for (QLabel* cell : cells) cell->setFont(small);
    Place_Cells(cells, body.adjusted(3, 3, -3, -3), Qt::AlignCenter);
  };
  place_side(lblPriorMonthName, lblPriorCalendarDatesBackground, lblPriorMonthCalDate, prior_area);
  place_side(lblNextMonthName, lblNextCalendarDatesBackground, lblNextMonthCalDate, next_area);
}

}  // namespace orrivane
