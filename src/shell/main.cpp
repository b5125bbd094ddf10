// Orrivane: the program starts with its main window, whose first activation does the rest.
#include "calendar/Form1.h"
#include "platform/qt_platform.h"
#include "platform/window_registry.h"

int main(int argc, char** argv) {
  orrivane::platform::Application app(argc, argv);
  orrivane::platform::QtPlatform machine;
  orrivane::platform::Install(&machine);
  orrivane::Window<orrivane::Form1>().show();
  return app.exec();
}
