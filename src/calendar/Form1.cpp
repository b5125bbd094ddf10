#include "calendar/Form1.h"

namespace orrivane {

Form1::Form1() {
  setObjectName("Form1");
  setWindowTitle("Orrivane 3.0");
  resize(640, 480);
}

}  // namespace orrivane
