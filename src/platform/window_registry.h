#pragma once
// Every window is a single instance, created at its first use and kept until the end; one
// registry hands the instances out, so that a window reaches another's procedures and
// controls directly.
#include <QWidget>
#include <functional>
#include <memory>
#include <typeindex>

namespace orrivane {

namespace registry_detail {
QWidget* Find(std::type_index type);
void Keep(std::type_index type, QWidget* window);
}  // namespace registry_detail

// The one instance of window W, created (and loaded) at the first call.
template <class W>
W& Window() {
  if (QWidget* found = registry_detail::Find(typeid(W))) return *static_cast<W*>(found);
  auto* created = new W();
  registry_detail::Keep(typeid(W), created);
  return *created;
}

// True once window W has been created.
template <class W>
bool Window_Exists() {
  return registry_detail::Find(typeid(W)) != nullptr;
}

// Destroys every window; used between tests and at the end of the process.
void Unload_All_Windows();

}  // namespace orrivane
