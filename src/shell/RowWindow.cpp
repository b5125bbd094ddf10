#include "shell/RowWindow.h"

#include <QEvent>

#include "platform/controls.h"

namespace orrivane {

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
