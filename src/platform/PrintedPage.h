#pragma once
// The windows that are never shown but printed, a sheet each (the calendar page, the log's chart
// and task lists), are laid out on one page: a landscape sheet of 11 by 8.5 inches at 96 pixels
// to the inch, white as paper, with a margin around what stands on it. Their texts are sized in
// pixels, so that a sheet looks the same whatever the screen's fonts.
#include <QSize>
#include <QWidget>

namespace orrivane::printed_page {

inline constexpr QSize kLandscape{1056, 816};
inline constexpr int kMargin = 24;
inline constexpr unsigned kPaper = 0xFFFFFF;

inline void Set_Font(QWidget* control, int pixel_size, bool bold) {
  QFont font = control->font();
  font.setPixelSize(pixel_size);
  font.setBold(bold);
  control->setFont(font);
}

}  // namespace orrivane::printed_page
