#include "calendar/CalendarFace.h"

#include <algorithm>

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

QFrame* Make_Line(QWidget* parent, const QString& name, QFrame::Shape shape) {
  auto* line = controls::Make<QFrame>(parent, name);
  line->setFrameShape(shape);
  line->setFrameShadow(QFrame::Plain);
  line->setLineWidth(1);
  // A plain line is drawn in the foreground colour.
  controls::Set_Fore_Color(line, CalendarFace::kGridLineColour);
  return line;
}

}  // namespace

CalendarFace::CalendarFace(QWidget* parent, Sides sides) {
  const bool with_sides = sides == Sides::Shown;
  // Backgrounds first, so that the lines and the cells stand in front of them.
  lblCalendarWeekDaysBackground = Make_Label(parent, "lblCalendarWeekDaysBackground");
  lblCalendarDatesBackground = Make_Label(parent, "lblCalendarDatesBackground");
  controls::Set_Back_Color(lblCalendarDatesBackground, 0xFFFFFF);
  if (with_sides) {
    lblPriorCalendarDatesBackground = Make_Label(parent, "lblPriorCalendarDatesBackground");
    lblNextCalendarDatesBackground = Make_Label(parent, "lblNextCalendarDatesBackground");
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
  }
  lneCalendarWeekdayAndDateBorder = Make_Line(parent, "lneCalendarWeekdayAndDateBorder", QFrame::HLine);
  for (int i = 0; i < kInnerLines; ++i) {
    const bool between_columns = i < kGridColumns - 1;
    lneCalendarInnerBorder[i] = Make_Line(parent, controls::Array_Name("lneCalendarInnerBorder", i),
                                          between_columns ? QFrame::VLine : QFrame::HLine);
  }
  for (int i = 0; i < kOuterLines; ++i) {
    const bool across = i % 2 == 0;  // top and bottom
    lneCalendarOuterBorder[i] =
        Make_Line(parent, controls::Array_Name("lneCalendarOuterBorder", i), across ? QFrame::HLine : QFrame::VLine);
  }
  static constexpr const char* kHeads[kGridColumns] = {"S", "M", "T", "W", "T", "F", "S"};
  for (int i = 0; i < kGridColumns; ++i) {
    lblCalendarWeekdayName[i] = Make_Label(parent, controls::Array_Name("lblCalendarWeekdayName", i), kHeads[i]);
    lblCalendarWeekdayName[i]->setAlignment(Qt::AlignCenter);
    controls::Set_Fore_Color(lblCalendarWeekdayName[i], 0xFFFFFF);
  }
  Make_Array(parent, lblCalDate, "lblCalDate");
  if (with_sides) {
    Make_Array(parent, lblPriorMonthCalDate, "lblPriorMonthCalDate");
    Make_Array(parent, lblNextMonthCalDate, "lblNextMonthCalDate");
  }
}

void CalendarFace::Write_Grid(const calendar::Grid& grid) { Write(lblCalDate, grid); }
void CalendarFace::Write_Prior_Month(const calendar::Grid& grid) { Write(lblPriorMonthCalDate, grid); }
void CalendarFace::Write_Next_Month(const calendar::Grid& grid) { Write(lblNextMonthCalDate, grid); }

calendar::Captions CalendarFace::Date_Captions() const {
  calendar::Captions captions;
  for (int i = 0; i < kGridCells; ++i) captions[i] = controls::Caption(lblCalDate[i]);
  return captions;
}

int CalendarFace::Column_Edge(const QRect& area, int column) {
  return area.x() + static_cast<int>(column * (area.width() / static_cast<double>(kGridColumns)));
}

int CalendarFace::Row_Edge(const QRect& area, int row) {
  return area.y() + static_cast<int>(row * (area.height() / static_cast<double>(kGridRows)));
}

void CalendarFace::Place_Cells(Cells& cells, const QRect& area, Qt::Alignment alignment) {
  for (int i = 0; i < kGridCells; ++i) {
    const int col = i % kGridColumns;
    const int row = i / kGridColumns;
    const int x = Column_Edge(area, col);
    const int y = Row_Edge(area, row);
    cells[i]->setGeometry(x, y, Column_Edge(area, col + 1) - x, Row_Edge(area, row + 1) - y);
    cells[i]->setAlignment(alignment);
  }
}

int CalendarFace::Head_Height(int grid_height) { return std::max(18, grid_height / 14); }

void CalendarFace::Place_Grid(const QRect& grid_area, int date_font_px, int head_height) {
  const QRect heads(grid_area.x(), grid_area.y(), grid_area.width(), head_height);
  const QRect dates(grid_area.x(), grid_area.y() + head_height, grid_area.width(), grid_area.height() - head_height);
  lblCalendarWeekDaysBackground->setGeometry(heads);
  lblCalendarDatesBackground->setGeometry(dates);
  for (int i = 0; i < kGridColumns; ++i) {
    const int x = Column_Edge(heads, i);
    lblCalendarWeekdayName[i]->setGeometry(x, heads.y(), Column_Edge(heads, i + 1) - x, head_height);
  }
  QFont date_font = lblCalDate[0]->font();
  date_font.setPixelSize(date_font_px);
  date_font.setBold(true);
  for (QLabel* cell : lblCalDate) {
    cell->setFont(date_font);
    cell->setMargin(4);  // the day number clear of the lines around its cell
  }
  QFont head_font = date_font;
  head_font.setPixelSize(std::max(11, head_height * 2 / 3));
  for (QLabel* head : lblCalendarWeekdayName) head->setFont(head_font);
  Place_Cells(lblCalDate, dates, Qt::AlignRight | Qt::AlignTop);
  Place_Lines(grid_area, dates);
}

void CalendarFace::Place_Lines(const QRect& grid_area, const QRect& dates) {
  auto across = [](QFrame* line, int x, int y, int width) { line->setGeometry(x, y, width, 1); };
  auto down = [](QFrame* line, int x, int y, int height) { line->setGeometry(x, y, 1, height); };
  across(lneCalendarWeekdayAndDateBorder, dates.x(), dates.y(), dates.width());
  int line = 0;
  for (int col = 1; col < kGridColumns; ++col) {
    down(lneCalendarInnerBorder[line++], Column_Edge(dates, col), dates.y(), dates.height());
  }
  for (int row = 1; row < kGridRows; ++row) {
    across(lneCalendarInnerBorder[line++], dates.x(), Row_Edge(dates, row), dates.width());
  }
  const QRect& g = grid_area;
  across(lneCalendarOuterBorder[0], g.x(), g.y(), g.width());
  down(lneCalendarOuterBorder[1], g.right(), g.y(), g.height());
  across(lneCalendarOuterBorder[2], g.x(), g.bottom(), g.width());
  down(lneCalendarOuterBorder[3], g.x(), g.y(), g.height());
}

void CalendarFace::Place(const QRect& grid_area, const QRect& prior_area, const QRect& next_area, int date_font_px) {
  Place_Grid(grid_area, date_font_px, Head_Height(grid_area.height()));

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
