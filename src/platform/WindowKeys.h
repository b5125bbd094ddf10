#pragma once
// The keys that every window of the program answers alike, whatever control has the focus.
#include <QApplication>

namespace orrivane::platform {

// Installs them on the application:
// - a key that an enabled entry of the focused window's menu carries runs the entry, even where
//   a text box would take it for itself (Ctrl+A, Ctrl+C, Ctrl+V...);
// - Enter presses the focused button, or else the window's default button ("Display",
//   "Set Date Filters"...), as in a dialog; a box that takes lines of text or a list keeps it;
// - Escape presses the window's button with the Cancel role (controls::Set_Cancel), if any.
void Install_Window_Keys(QApplication& application);

}  // namespace orrivane::platform
