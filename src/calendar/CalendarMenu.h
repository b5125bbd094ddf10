#pragma once
// The menu of the two calendar windows. Form1 and the large calendar carry one menu with a few
// differences: some entries have another name in each window, a few stand in one window only.
// One table holds both, the differences as data.
#include <vector>

#include "platform/MenuTree.h"

namespace orrivane {

enum class CalendarWindow { Form1, LargeCalendar };

// The entries of the menu of `window`, in their order.
std::vector<MenuEntry> Calendar_Menu_Entries(CalendarWindow window);

// Connects the entries whose procedure is the same in both windows, and disables Save Log until
// the log has a file. Each window connects the entries that act on the window itself (its size,
// the swap, Exit and Open Log with its own identity).
void Connect_Shared_Calendar_Entries(const MenuTree& menu, CalendarWindow window);

}  // namespace orrivane
