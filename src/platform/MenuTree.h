#pragma once
// A window's menu built from a table: each entry names its menu, its own name (the action's
// objectName), its caption and its shortcut. Entries whose menu is empty are the top menus.
#include <QAction>
#include <QMenuBar>
#include <QString>
#include <functional>
#include <map>
#include <span>

namespace orrivane {

struct MenuEntry {
  const char* parent;    // the menu it stands in; "" for a top menu
  const char* name;      // objectName of the menu or action
  const char* caption;
  const char* shortcut;  // "" for none
  bool submenu = false;  // a menu that holds further entries
  bool later = false;    // its window is not part of the program yet: shown, but disabled
};

class MenuTree {
 public:
  MenuTree(QMenuBar* bar, std::span<const MenuEntry> entries);

  QAction* Action(const QString& name) const;
  // Runs `procedure` when the entry is chosen.
  void On(const QString& name, std::function<void()> procedure) const;

 private:
  std::map<QString, QAction*> actions_;
};

}  // namespace orrivane
