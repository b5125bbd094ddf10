#include "reminders/ReminderFront.h"

#include <QApplication>

#include "platform/controls.h"

namespace orrivane {

void Show_Reminder_In_Front(QWidget& window) {
  QWidget* active = QApplication::activeWindow();
  if (active == nullptr || active == &window) {
    controls::Show_In_Front(window);
    return;
  }
  // The user goes on typing where he was; the reminder stands in front of it.
  window.setAttribute(Qt::WA_ShowWithoutActivating, true);
  window.show();
  window.raise();
  window.setAttribute(Qt::WA_ShowWithoutActivating, false);
}

}  // namespace orrivane
