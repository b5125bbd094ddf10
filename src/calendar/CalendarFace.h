#pragma once
// The month grid with its side calendars, as both calendar windows carry it: the same controls
// under the same names, so that whatever draws a month writes the same cells on both. The
// printed calendar carries the grid alone.
#include <QFrame>
#include <QLabel>
#include <QRect>
#include <QWidget>
#include <array>

#include "calendar/month_grid.h"

namespace orrivane {

class CalendarFace {
 public:
  enum class Sides { Shown, None };
  explicit CalendarFace(QWidget* parent, Sides sides = Sides::Shown);

  using Cells = std::array<QLabel*, engine::kGridCells>;
  // The lines between the columns, then those between the rows.
  static constexpr int kInnerLines = (engine::kGridColumns - 1) + (engine::kGridRows - 1);
  // Top, right, bottom, left.
  static constexpr int kOuterLines = 4;
  // The colour the grid's lines are drawn in.
  static constexpr unsigned kGridLineColour = 0x000000;

  Cells lblCalDate{};
  Cells lblPriorMonthCalDate{};  // the side calendars: none on a face without them
  Cells lblNextMonthCalDate{};
  std::array<QLabel*, engine::kGridColumns> lblCalendarWeekdayName{};
  QLabel* lblPriorMonthName = nullptr;
  QLabel* lblNextMonthName = nullptr;
  QLabel* lblCalendarWeekDaysBackground;
  QLabel* lblCalendarDatesBackground;
  QLabel* lblPriorCalendarDatesBackground = nullptr;
  QLabel* lblNextCalendarDatesBackground = nullptr;
  // The lines of the grid, each with its colour as a program colour (controls::Fore_Color).
  QFrame* lneCalendarWeekdayAndDateBorder;  // between the day heads and the dates
  std::array<QFrame*, kInnerLines> lneCalendarInnerBorder{};
  std::array<QFrame*, kOuterLines> lneCalendarOuterBorder{};

  void Write_Grid(const calendar::Grid& grid);
  void Write_Prior_Month(const calendar::Grid& grid);
  void Write_Next_Month(const calendar::Grid& grid);
  calendar::Captions Date_Captions() const;

  // Lays the main grid out in `grid_area` (headings included) and the side calendars in theirs.
  void Place(const QRect& grid_area, const QRect& prior_area, const QRect& next_area, int date_font_px);
  // Lays the main grid out alone, the day heads in a band `head_height` high at its top.
  void Place_Grid(const QRect& grid_area, int date_font_px, int head_height);
  // The height of the day heads' band of a grid of `grid_height` on the screen.
  static int Head_Height(int grid_height);
  // The left edge of column `column` and the top edge of row `row` of the dates in `area`.
  static int Column_Edge(const QRect& area, int column);
  static int Row_Edge(const QRect& area, int row);

 private:
  void Place_Lines(const QRect& grid_area, const QRect& dates);
  static void Place_Cells(Cells& cells, const QRect& area, Qt::Alignment alignment);
};

}  // namespace orrivane
