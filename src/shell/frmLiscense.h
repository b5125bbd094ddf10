#pragma once
// The licence window: the GNU General Public License, version 2, drawn straight onto the window
// sixteen rows at a time, moved by the buttons through Scroll.
#include <QPushButton>
#include <QWidget>

#include "shell/RowWindow.h"
#include <array>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "shell/licence_text.h"

namespace orrivane {

class frmLiscense : public RowWindow {
  Q_OBJECT
 public:
  frmLiscense();

  // Moves the view by a verb: "up", "down", "pageup", "pagedown", "reset" (the top), "end" (the
  // last sixteen rows) or "refresh" (stay), and prints the rows. Passing an end beeps and lands
  // on it; any other verb stays too. The view's first row, Position, is 0 at the top, whose
  // first row is the empty cell above row 1.
  void Scroll(const std::string& Direction);
  // Row DataLine of the licence, 1 to 345; the empty text for any other number.
  std::string DataSource(int DataLine) const override;
  // The window became active: back to the top.
  void Form_Activate() override;

  QPushButton* CmdHome = nullptr;
  QPushButton* CmdEnd = nullptr;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Fill_Rows();
  void Print_Rows();
  void cmdClose_Click();

  std::array<std::string, shell::kLicenceRows + 1> Rows_;  // cell 0 stays empty
  bool Painting_ = false;      // a Scroll from the paint event draws itself; no new paint
};

}  // namespace orrivane
