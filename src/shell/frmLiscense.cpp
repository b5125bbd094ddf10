#include "shell/frmLiscense.h"

#include <QFontDatabase>
#include <QPainter>
#include <QShowEvent>

#include "platform/controls.h"

namespace orrivane {

namespace {

constexpr int kRowsShown = 16;
// The top shows the empty cell above row 1 and rows 1 to 15, the end rows 330 to 345; a page
// is thirteen rows.
constexpr RowWindow::ScrollStops kStops{0, shell::kLicenceRows - kRowsShown + 1, 13};
constexpr int kLeftEdge = 500;  // twips
constexpr int kRowHeight = 220;  // twips
constexpr int kFirstPrintRow = 6;  // the view is printed at 220 × 6 to 220 × 21 twips

// The buttons, on the row above the text.
constexpr int kButtonTop = 28;
constexpr RowWindow::ButtonPlace<frmLiscense> kButtons[] = {
    {"CmdHome", "Home", 33, kButtonTop, 70, &frmLiscense::CmdHome, "reset"},
    {"CmdPageUp", "Page Up", 107, kButtonTop, 80, &frmLiscense::CmdPageUp, "pageup"},
    {"CmdUP", "Up", 191, kButtonTop, 70, &frmLiscense::CmdUP, "up"},
    {"CmdDown", "Down", 265, kButtonTop, 70, &frmLiscense::CmdDown, "down"},
    {"CmdPageDown", "Page Down", 339, kButtonTop, 90, &frmLiscense::CmdPageDown, "pagedown"},
    {"CmdEnd", "End", 433, kButtonTop, 70, &frmLiscense::CmdEnd, "end"},
    {"cmdClose", "Close", 537, kButtonTop, 70, &frmLiscense::cmdClose},
};

// A monospace face, so that the license keeps its own layout, small enough for the row pitch.
QFont Row_Font() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPixelSize(12);
  return font;
}

}  // namespace

frmLiscense::frmLiscense() : RowWindow("frmLiscense", "License", QSize(640, 345)) {
  Make_Buttons(kButtons, &frmLiscense::Scroll);
  connect(cmdClose, &QPushButton::clicked, this, [this] { cmdClose_Click(); });
  controls::Set_Cancel(cmdClose, true);  // Escape closes the window
}

std::string frmLiscense::DataSource(int DataLine) const {
  if (DataLine < 1 || DataLine > shell::kLicenceRows) return {};
  return std::string(shell::Licence_Row(DataLine));
}

void frmLiscense::Fill_Rows() {
  for (int row = 1; row <= shell::kLicenceRows; ++row) Rows_[static_cast<std::size_t>(row)] = DataSource(row);
}

void frmLiscense::Scroll(const std::string& Direction) {
  Fill_Rows();
  if (Direction == "reset") Set_Position(kStops.first);
  if (Direction == "end") Set_Position(kStops.last);
  Move_Position(Direction, kStops);
  Print_Rows();
}

void frmLiscense::Print_Rows() {
  Clear_Rows();
  for (int i = kFirstPrintRow; i < kFirstPrintRow + kRowsShown; ++i) {
    const auto row = static_cast<std::size_t>(Position() + i - kFirstPrintRow);
    Print_Row(kLeftEdge, kRowHeight * i, Rows_[row]);
  }
  if (!Painting_) update();
}

void frmLiscense::Form_Activate() { Scroll("reset"); }

void frmLiscense::cmdClose_Click() {
  Scroll("reset");
  hide();
}

void frmLiscense::paintEvent(QPaintEvent*) {
  // Uncovered or resized: the same rows again.
  Painting_ = true;
  Scroll("refresh");
  Painting_ = false;
  QPainter painter(this);
  painter.setFont(Row_Font());
  Draw_Rows(painter);
}


}  // namespace orrivane
