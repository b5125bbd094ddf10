#pragma once
// A small window of choices that puts itself away as soon as another window of the program
// becomes active, but not when its own message box takes the focus: the user's entries stay for
// correction. The window shows its messages through Show_Message here.
#include <QObject>
#include <QWidget>

#include "core/message.h"

namespace orrivane {

class HideOnDeactivate : public QObject {
  Q_OBJECT
 public:
  // Watches `window`, which owns this object.
  explicit HideOnDeactivate(QWidget& window);

  // Shows a message of the window; the window stays while the message is up. Answers the
  // button pressed.
  int Show_Message(const Message& message);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& window_;
  bool showing_message_ = false;
};

}  // namespace orrivane
