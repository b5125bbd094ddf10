#pragma once
// The month grid with its side calendars, as both calendar windows carry it: the same controls
// under the same names, so that whatever draws a month writes the same cells on both.
#include <QLabel>
#include <QRect>
#include <QWidget>
#include <array>

#include "calendar/month_grid.h"

namespace orrivane {

class CalendarFace {
 public:
  explicit CalendarFace(QWidget* parent);

  using Cells = std::array<QLabel*, engine::kGridCells>;

  Cells lblCalDate{};
  Cells lblPriorMonthCalDate{};
  Cells lblNextMonthCalDate{};
  std::array<QLabel*, engine::kGridColumns> lblCalendarWeekdayName{};
  QLabel* lblPriorMonthName;
  QLabel* lblNextMonthName;
  QLabel* lblCalendarWeekDaysBackground;
  QLabel* lblCalendarDatesBackground;
  QLabel* lblPriorCalendarDatesBackground;
  QLabel* lblNextCalendarDatesBackground;

  void Write_Grid(const calendar::Grid& grid);
  void Write_Prior_Month(const calendar::Grid& grid);
  void Write_Next_Month(const calendar::Grid& grid);
  calendar::Captions Date_Captions() const;

  // Lays the main grid out in `grid_area` (headings included) and the side calendars in theirs.
  void Place(const QRect& grid_area, const QRect& prior_area, const QRect& next_area, int date_font_px);

 private:
  static void Place_Cells(Cells& cells, const QRect& area, Qt::Alignment alignment);
};

}  // namespace orrivane
