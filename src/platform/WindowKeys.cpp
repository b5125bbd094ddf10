#include "platform/WindowKeys.h"

#include <QAbstractItemView>
#include <QDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextEdit>
#include <QWidget>

#include "platform/controls.h"

namespace orrivane::platform {

namespace {

bool Is_Menu_Key(const QWidget* window, const QKeySequence& keys) {
  for (const QAction* action : window->findChildren<QAction*>()) {
    if (action->isEnabled() && !action->shortcut().isEmpty() && action->shortcut() == keys) return true;
  }
  return false;
}

// The open list of a combo box: Enter there chooses the entry. In any other list it presses the
// default button, as a double click would.
bool Is_Popup_List(const QWidget* focus) {
  return qobject_cast<const QAbstractItemView*>(focus) != nullptr && focus->window()->windowType() == Qt::Popup;
}

// Enter belongs to a control that takes lines, to the open list of a combo box, and to dialogs,
// which press their default button themselves.
bool Keeps_Enter(const QWidget* focus) {
  return qobject_cast<const QTextEdit*>(focus) != nullptr || qobject_cast<const QPlainTextEdit*>(focus) != nullptr ||
         Is_Popup_List(focus) || qobject_cast<const QDialog*>(focus->window()) != nullptr;
}

QPushButton* Default_Button(const QWidget* window) {
  for (QPushButton* button : window->findChildren<QPushButton*>()) {
    if (button->isDefault() && button->isVisible() && button->isEnabled()) return button;
  }
  return nullptr;
}

QPushButton* Cancel_Button(const QWidget* window) {
  for (QPushButton* button : window->findChildren<QPushButton*>()) {
    if (controls::Is_Cancel(button) && button->isVisible() && button->isEnabled()) return button;
  }
  return nullptr;
}

class WindowKeys : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (!watched->isWidgetType()) return false;
    auto* widget = static_cast<QWidget*>(watched);
    if (event->type() == QEvent::ShortcutOverride) return Refuse_Menu_Key(widget, static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::KeyPress) {
      const auto* key = static_cast<QKeyEvent*>(event);
      return Press_On_Enter(widget, key) || Press_On_Escape(widget, key);
    }
    return false;
  }

 private:
  // A control that claims a key of the menu for editing is refused it, so that the entry runs.
  static bool Refuse_Menu_Key(QWidget* widget, QKeyEvent* key) {
    if (!Is_Menu_Key(widget->window(), QKeySequence(key->keyCombination()))) return false;
    key->ignore();
    return true;
  }

  static bool Press_On_Enter(QWidget* widget, const QKeyEvent* key) {
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    const bool plain = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!enter || !plain || widget != QApplication::focusWidget() || Keeps_Enter(widget)) return false;
    QPushButton* button = qobject_cast<QPushButton*>(widget);
    if (button == nullptr) button = Default_Button(widget->window());
    if (button == nullptr || !button->isEnabled()) return false;
    button->click();
    return true;
  }

  // Escape presses the window's button with the Cancel role, wherever the focus is in it.
  static bool Press_On_Escape(QWidget* widget, const QKeyEvent* key) {
    const bool plain = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (key->key() != Qt::Key_Escape || !plain || widget != QApplication::focusWidget()) return false;
    QPushButton* button = Cancel_Button(widget->window());
    if (button == nullptr) return false;
    button->click();
    return true;
  }
};

}  // namespace

void Install_Window_Keys(QApplication& application) { application.installEventFilter(new WindowKeys(&application)); }

}  // namespace orrivane::platform
