#include "shell/RowWindow.h"

#include <QEvent>

#include "platform/controls.h"

namespace orrivane {

namespace {

// The verbs that move the view: by rows, or by pages of a size each window chooses.
struct Step {
  std::string_view direction;
  int rows;
  int pages;
};
constexpr Step kSteps[] = {{"up", -1, 0}, {"down", 1, 0}, {"pageup", 0, -1}, {"pagedown", 0, 1}};

}  // namespace

RowWindow::RowWindow(const char* name, const char* title, QSize size) {
  setObjectName(name);
  setWindowTitle(title);
  resize(size);
  setMinimumSize(size);
  setAutoFillBackground(true);
}

int RowWindow::Scroll_Step(std::string_view direction, int page) {
  for (const Step& step : kSteps) {
    if (step.direction == direction) return step.rows + step.pages * page;
  }
  return 0;
}

void RowWindow::Move_Position(std::string_view direction, const ScrollStops& stops) {
  const int step = Scroll_Step(direction, stops.page);
  const bool room = step < 0 ? Position_ >= stops.first : Position_ <= stops.last;
  if (step != 0 && room) Position_ += step;
  if (Position_ < stops.first) {
    Position_ = stops.first;
    platform::Machine().Beep();
  }
  if (Position_ > stops.last) {
    Position_ = stops.last;
    platform::Machine().Beep();
  }
}

QPushButton* RowWindow::Make_Button(const char* name, const char* caption, const QRect& geometry) {
  QPushButton* button = controls::Make_Button(this, name, caption);
  button->setGeometry(geometry);
  return button;
}

void RowWindow::Draw_Rows(QPainter& painter) const {
  painter.setPen(palette().color(QPalette::WindowText));
  const int ascent = painter.fontMetrics().ascent();
  for (const platform::PrintedText& row : Printed_) {
    painter.drawText(controls::Px(row.x_twips), controls::Px(row.y_twips) + ascent, QString::fromStdString(row.text));
  }
}

void RowWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Deactivated_ = false;
  Form_Activate();
}

bool RowWindow::event(QEvent* event) {
  // Coming back to the window after another had the focus is an activation too; the first
  // activation after showing was already handled by the show.
  if (event->type() == QEvent::WindowDeactivate) Deactivated_ = true;
  if (event->type() == QEvent::WindowActivate && Deactivated_) {
    Deactivated_ = false;
    Form_Activate();
  }
  return QWidget::event(event);
}

}  // namespace orrivane
