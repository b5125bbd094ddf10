#pragma once
// The About window: a short notice of the program and its license, drawn straight onto the
// window five rows at a time, moved by the buttons through CopyFair.
#include <QPushButton>
#include <QWidget>

#include "shell/RowWindow.h"
#include <array>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace orrivane {

class frmAbout : public RowWindow {
  Q_OBJECT
 public:
  static constexpr int kNoticeRows = 29;

  frmAbout();

  // Moves the view by a verb: "up", "down", "pageup", "pagedown" or "reset" (the top), and
  // prints the rows. Passing an end beeps and lands on it. The view's first row, Position, runs
  // from 1 to 25 (0 before the first move).
  void CopyFair(const std::string& Direction);
  // Row DataLine of the notice, 1 to 29; the empty text for any other number.
  std::string DataSource(int DataLine) const override;
  // The window became active: back to the top.
  void Form_Activate() override;

  QPushButton* CmdViewGPLLiscense = nullptr;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void CmdViewGPLLiscense_Click();

  std::array<std::string, kNoticeRows + 1> Rows_;  // cell 0 is not used
};

}  // namespace orrivane
