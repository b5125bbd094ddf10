#include "platform/MenuTree.h"

#include <QMenu>
#include <stdexcept>

namespace orrivane {

MenuTree::MenuTree(QMenuBar* bar, std::span<const MenuEntry> entries) {
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
