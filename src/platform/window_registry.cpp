#include "platform/window_registry.h"

#include <unordered_map>
#include <vector>

namespace orrivane {

namespace {

struct Registry {
  std::unordered_map<std::type_index, QWidget*> windows;
  std::vector<std::type_index> order;  // creation order, to destroy in reverse
};

Registry& The_Registry() {
  static Registry registry;
  return registry;
}

}  // namespace

namespace registry_detail {

QWidget* Find(std::type_index type) {
  const auto& windows = The_Registry().windows;
  const auto it = windows.find(type);
  return it == windows.end() ? nullptr : it->second;
}

void Keep(std::type_index type, QWidget* window) {
  The_Registry().windows[type] = window;
  The_Registry().order.push_back(type);
}

}  // namespace registry_detail

void Unload_All_Windows() {
  Registry& registry = The_Registry();
  for (auto it = registry.order.rbegin(); it != registry.order.rend(); ++it) delete registry.windows[*it];
  registry.windows.clear();
  registry.order.clear();
}

}  // namespace orrivane
