#include "shell/frmLiscense.h"

#include <QFontDatabase>
#include <QPainter>
#include <QShowEvent>
#include <iterator>
#include <string_view>

#include "platform/controls.h"

namespace orrivane {

namespace {

constexpr int kRowsShown = 16;
constexpr int kLastPosition = shell::kLicenceRows - kRowsShown + 1;  // 330: rows 330 to 345
constexpr int kPageStep = 13;
constexpr int kLeftEdge = 500;  // twips
constexpr int kRowHeight = 220;  // twips
constexpr int kFirstPrintRow = 6;  // the view is printed at 220 × 6 to 220 × 21 twips

// The steps of the verbs that move; the others set the position or keep it.
struct Move {
  std::string_view direction;
  int step;
};
constexpr Move kMoves[] = {{"up", -1}, {"down", 1}, {"pageup", -kPageStep}, {"pagedown", kPageStep}};

struct ButtonPlace {
  const char* name;
  const char* caption;
  const char* direction;  // the verb handed to Scroll
  int x, width;  // pixels, on the row above the text
};
constexpr ButtonPlace kButtons[] = {
    {"CmdHome", "Home", "reset", 33, 70},
    {"CmdPageUp", "Page Up", "pageup", 107, 80},
    {"CmdUP", "Up", "up", 191, 70},
    {"CmdDown", "Down", "down", 265, 70},
    {"CmdPageDown", "Page Down", "pagedown", 339, 90},
    {"CmdEnd", "End", "end", 433, 70},
};
constexpr int kButtonTop = 28;
constexpr int kButtonHeight = 30;

// A monospace face, so that the license keeps its own layout, small enough for the row pitch.
QFont Row_Font() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPixelSize(12);
  return font;
}

}  // namespace

frmLiscense::frmLiscense() {
  setObjectName("frmLiscense");
  setWindowTitle("License");
  resize(640, 345);
  setMinimumSize(640, 345);
  setAutoFillBackground(true);

  QPushButton** members[] = {&CmdHome, &CmdPageUp, &CmdUP, &CmdDown, &CmdPageDown, &CmdEnd};
  for (std::size_t i = 0; i < std::size(kButtons); ++i) {
    const ButtonPlace& place = kButtons[i];
    auto* button = controls::Make_Button(this, place.name, place.caption);
    button->setGeometry(place.x, kButtonTop, place.width, kButtonHeight);
    connect(button, &QPushButton::clicked, this, [this, direction = place.direction] { Scroll(direction); });
    *members[i] = button;
  }
  cmdClose = new QPushButton("Close", this);
  cmdClose->setObjectName("cmdClose");
  cmdClose->setGeometry(537, kButtonTop, 70, kButtonHeight);
  connect(cmdClose, &QPushButton::clicked, this, [this] { cmdClose_Click(); });
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
  if (Direction == "reset") Position_ = 0;
  if (Direction == "end") Position_ = kLastPosition;
  for (const Move& move : kMoves) {
    if (Direction != move.direction) continue;
    // A step is taken only from inside the stops; one that passes an end lands on it below.
    const bool room = move.step < 0 ? Position_ > -1 : Position_ < kLastPosition + 1;
    if (room) Position_ += move.step;
  }
  if (Position_ < 0) {
    Position_ = 0;
    platform::Machine().Beep();
  }
  if (Position_ > kLastPosition) {
    Position_ = kLastPosition;
    platform::Machine().Beep();
  }
  Print_Rows();
}

void frmLiscense::Print_Rows() {
  Clear_Rows();
  for (int i = kFirstPrintRow; i < kFirstPrintRow + kRowsShown; ++i) {
    const auto row = static_cast<std::size_t>(Position_ + i - kFirstPrintRow);
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
