#pragma once
// What the tests of the windows that print rows onto themselves share: pressing their buttons,
// the texts printed, and the ink drawn in a band of the window.
#include <QImage>
#include <QPushButton>
#include <string>
#include <vector>

#include "platform/window_registry.h"
#include "support/window_fixture.h"

namespace orrivane::testing {

template <class W>
class RowWindowTest : public WindowTest {
 protected:
  W& The_Window() { return Window<W>(); }

  void Press(const char* name) { Click(Control<QPushButton>(The_Window(), name)); }

  std::vector<std::string> Texts() {
    std::vector<std::string> texts;
    for (const auto& row : The_Window().Printed_Rows()) texts.push_back(row.text);
    return texts;
  }

  // Dark pixels in a band of the drawn window, in pixels.
  static int Ink(const QImage& image, const QRect& band) {
    int dark = 0;
    for (int y = band.top(); y <= band.bottom(); ++y)
      for (int x = band.left(); x <= band.right(); ++x) dark += qGray(image.pixel(x, y)) < 128;
    return dark;
  }
};

}  // namespace orrivane::testing
