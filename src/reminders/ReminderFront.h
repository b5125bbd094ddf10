#pragma once
// How the reminder timer brings up a window: in front of the program's windows, whatever stands
// minimised or hidden, without taking the keyboard from a window of the program in which the user
// is working.
#include <QWidget>

namespace orrivane {

// Shows and raises the window; activates it too when no other window of the program is active.
void Show_Reminder_In_Front(QWidget& window);

}  // namespace orrivane
