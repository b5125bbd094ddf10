#include "platform/HideOnDeactivate.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>

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
  // A message box is not another window of the program.
  if (watched == &window_ && event->type() == QEvent::WindowDeactivate && !showing_message_ &&
      qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) == nullptr) {
    window_.hide();
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace orrivane
