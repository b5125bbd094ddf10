#include "shell/frmAbout.h"

#include <QPainter>
#include <QShowEvent>
#include <iterator>
#include <string_view>

#include "platform/controls.h"
#include "platform/window_registry.h"
#include "shell/frmLiscense.h"

namespace orrivane {

namespace {

// The notice, one row a line; rows 13, 22, 28 and 29 are empty.
constexpr std::string_view kNotice[] = {
    "Orrivane 3.0, a calendar and organizer",
    "Copyright (C) the Orrivane developers",
    "This program is free software: you can",
    "redistribute it and/or modify it under the",
    "terms of the GNU General Public License,",
    "version 2 of the License, or (at your option)",
    "any later version.",
    "This program is distributed in the hope that",
    "it will be useful, but WITHOUT ANY WARRANTY;",
    "without even the implied warranty of",
    "MERCHANTABILITY or FITNESS FOR A PARTICULAR",
    "PURPOSE.",
    "",
    "See the GNU General Public License for more",
    "details. A copy of the License comes with",
    "this program: press the button for the GPL",
    "below to read it.",
    "Orrivane shows the months of the Gregorian",
    "calendar from October 1582 and of the Julian",
    "calendar from 1 B.C., finds holidays, and",
    "keeps a log of tasks and their reminders.",
    "",
    "Up, Down, Page Up and Page Down move this",
    "notice a row or four rows at a time, and",
    "Close puts it away. The calendar and the",
    "reminders go on while this window is",
    "closed.",
    "",
    "",
};
static_assert(std::size(kNotice) == frmAbout::kNoticeRows);

constexpr int kRowsShown = 5;
// Rows 1 to 5 at the top, rows 25 to 29 at the end; a page is four rows.
constexpr RowWindow::ScrollStops kStops{1, frmAbout::kNoticeRows - kRowsShown + 1, 4};
constexpr int kLeftEdge = 415;  // twips
constexpr int kTop = 4380;  // twips; row i of the view at 4380 + 220 × i
constexpr int kRowHeight = 220;  // twips

// The buttons, below the rows.
constexpr RowWindow::ButtonPlace<frmAbout> kButtons[] = {
    {"CmdUP", "Up", 27, 392, 80, &frmAbout::CmdUP, "up"},
    {"CmdDown", "Down", 111, 392, 80, &frmAbout::CmdDown, "down"},
    {"CmdPageUp", "Page Up", 195, 392, 100, &frmAbout::CmdPageUp, "pageup"},
    {"CmdPageDown", "Page Down", 299, 392, 110, &frmAbout::CmdPageDown, "pagedown"},
    {"CmdViewGPLLiscense", "View GPL Liscense ", 27, 428, 164, &frmAbout::CmdViewGPLLiscense},
    {"cmdClose", "Close", 299, 428, 110, &frmAbout::cmdClose},
};

// The picture above the notice: a month page, with the first of the month marked.
void Draw_Emblem(QPainter& painter, const QRect& page) {
  constexpr int kDays = 7;
  constexpr int kWeeks = 5;
  painter.setPen(QColor(0x60, 0x60, 0x60));
  painter.setBrush(Qt::white);
  painter.drawRect(page);
  const QRect band(page.left() + 1, page.top() + 1, page.width() - 1, page.height() / 4);
  painter.fillRect(band, QColor(0x2E, 0x4A, 0x86));
  const int cell_width = page.width() / kDays;
  const int cell_height = (page.height() - band.height()) / kWeeks;
  for (int week = 0; week < kWeeks; ++week) {
    for (int day = 0; day < kDays; ++day) {
      const QRect cell(page.left() + day * cell_width + 3, band.bottom() + week * cell_height + 3, cell_width - 6,
                       cell_height - 6);
      painter.fillRect(cell, week == 0 && day == 3 ? QColor(0xC0, 0x30, 0x30) : QColor(0xDD, 0xDD, 0xDD));
    }
  }
}

QFont Sized(int pixels, bool bold) {
  QFont font;
  font.setPixelSize(pixels);
  font.setBold(bold);
  return font;
}

}  // namespace

frmAbout::frmAbout() : RowWindow("frmAbout", "About Orrivane", QSize(436, 474)) {
  Make_Buttons(kButtons, &frmAbout::CopyFair);
  connect(CmdViewGPLLiscense, &QPushButton::clicked, this, [this] { CmdViewGPLLiscense_Click(); });
  connect(cmdClose, &QPushButton::clicked, this, &QWidget::hide);
  controls::Set_Cancel(cmdClose, true);  // Escape closes the window
}

std::string frmAbout::DataSource(int DataLine) const {
  if (DataLine < 1 || DataLine > kNoticeRows) return {};
  return std::string(kNotice[static_cast<std::size_t>(DataLine - 1)]);
}

void frmAbout::CopyFair(const std::string& Direction) {
  for (int row = 1; row <= kNoticeRows; ++row) Rows_[static_cast<std::size_t>(row)] = DataSource(row);
  Clear_Rows();
  if (Direction == "reset") Set_Position(kStops.first);
  Move_Position(Direction, kStops);
  for (int i = 1; i <= kRowsShown; ++i) {
    Print_Row(kLeftEdge, kTop + kRowHeight * i, Rows_[static_cast<std::size_t>(Position() - 1 + i)]);
  }
  update();
}

void frmAbout::Form_Activate() { CopyFair("reset"); }

void frmAbout::CmdViewGPLLiscense_Click() {
  controls::Show_In_Front(Window<frmLiscense>());
}

void frmAbout::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Draw_Emblem(painter, QRect(width() / 2 - 80, 28, 160, 128));
  painter.setPen(palette().color(QPalette::WindowText));
  painter.setFont(Sized(26, true));
  painter.drawText(QRect(0, 172, width(), 36), Qt::AlignHCenter | Qt::AlignVCenter, "Orrivane 3.0");
  painter.setFont(Sized(15, false));
  painter.drawText(QRect(0, 212, width(), 24), Qt::AlignHCenter | Qt::AlignVCenter, "Calendar and Organizer");
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(27, 280, width() - 27, 280);

  painter.setFont(Sized(12, false));
  Draw_Rows(painter);
}


}  // namespace orrivane
