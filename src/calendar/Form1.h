#pragma once
// The main calendar window.
#include <QMainWindow>

namespace orrivane {

class Form1 : public QMainWindow {
  Q_OBJECT
 public:
  Form1();
};

}  // namespace orrivane
