#include "platform/MenuTree.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QWidget>
#include <stdexcept>

namespace orrivane {

namespace {

// A focused text box claims the standard editing keys (Ctrl+A, Ctrl+C, Ctrl+V...) before any
// shortcut sees them. In this program a menu's keys come first, whatever control has the focus:
// a key that an enabled entry of the focused window's menu carries is refused to the control, so
// that the entry runs.
class MenuKeysFirst : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ShortcutOverride || !watched->isWidgetType()) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (!Is_Menu_Key(static_cast<QWidget*>(watched)->window(), QKeySequence(key->keyCombination()))) return false;
    event->ignore();
    return true;
  }

 private:
  static bool Is_Menu_Key(const QWidget* window, const QKeySequence& keys) {
    for (const QAction* action : window->findChildren<QAction*>()) {
      if (action->isEnabled() && !action->shortcut().isEmpty() && action->shortcut() == keys) return true;
    }
    return false;
  }
};

void Put_Menu_Keys_First() {
  static QPointer<MenuKeysFirst> filter;  // goes with the application that owns it
  if (!filter.isNull() || qApp == nullptr) return;
  filter = new MenuKeysFirst(qApp);
  qApp->installEventFilter(filter);
}

}  // namespace

MenuTree::MenuTree(QMenuBar* bar, std::span<const MenuEntry> entries) {
  Put_Menu_Keys_First();
  std::map<QString, QMenu*> menus;
  for (const MenuEntry& entry : entries) {
    const QString name = entry.name;
    const QString parent = entry.parent;
    if (parent.isEmpty() || entry.submenu) {
      QMenu* menu = parent.isEmpty() ? bar->addMenu(entry.caption) : menus.at(parent)->addMenu(entry.caption);
      menu->setObjectName(name);
      menu->menuAction()->setObjectName(name);
      menus[name] = menu;
      actions_[name] = menu->menuAction();
      continue;
    }
    QAction* action = menus.at(parent)->addAction(entry.caption);
    action->setObjectName(name);
    if (*entry.shortcut != '\0') action->setShortcut(QKeySequence(entry.shortcut));
    action->setEnabled(!entry.later);
    actions_[name] = action;
  }
}

QAction* MenuTree::Action(const QString& name) const {
  const auto it = actions_.find(name);
  if (it == actions_.end()) throw std::logic_error("no menu entry " + name.toStdString());
  return it->second;
}

void MenuTree::On(const QString& name, std::function<void()> procedure) const {
  QObject::connect(Action(name), &QAction::triggered, Action(name), [procedure] { procedure(); });
}

}  // namespace orrivane
