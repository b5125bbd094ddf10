#include "platform/HideOnDeactivate.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QTimer>

#include "platform/message_box.h"

namespace orrivane {

HideOnDeactivate::HideOnDeactivate(QWidget& window) : QObject(&window), window_(window) {
  window.installEventFilter(this);
}

int HideOnDeactivate::Show_Message(const Message& message) {
  showing_message_ = true;
  const int answer = platform::Show_Message(message);
  showing_message_ = false;
  return answer;
}

bool HideOnDeactivate::eventFilter(QObject* watched, QEvent* event) {
  // Which window took over is known only once the activation has gone through.
  if (watched == &window_ && event->type() == QEvent::WindowDeactivate) {
    QTimer::singleShot(0, this, [this] { Hide_If_Another_Window_Is_Active(); });
  }
  return QObject::eventFilter(watched, event);
}

// Another program taking the focus, or this window's own message box, leaves the window where it
// is: only another window of this program puts it away.
void HideOnDeactivate::Hide_If_Another_Window_Is_Active() {
  const QWidget* active = QApplication::activeWindow();
  if (active == nullptr || active == &window_ || showing_message_) return;
  if (qobject_cast<const QMessageBox*>(active) != nullptr ||
      qobject_cast<const QMessageBox*>(QApplication::activeModalWidget()) != nullptr) {
    return;
  }
  window_.hide();
}

}  // namespace orrivane
