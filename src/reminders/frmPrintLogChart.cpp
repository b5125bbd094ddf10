#include "reminders/frmPrintLogChart.h"

#include "core/runtime_failure.h"
#include "platform/PrintedPage.h"
#include "platform/controls.h"

namespace orrivane {

namespace {

using controls::Array_Name;
using controls::Make_Label;
using organizer::kChartColumns;
using organizer::kChartHeads;
using organizer::kColumnsPerHead;
using organizer::kPrintChartCells;
using organizer::kPrintChartRows;

using printed_page::kMargin;
using printed_page::Set_Font;

// The parts of the page.
constexpr QSize kPage = printed_page::kLandscape;
constexpr int kTitleTop = 20;
constexpr int kTitleHeight = 26;
constexpr int kTitleCaptionWidth = 124;  // "Time Period:" and "Filename:"
constexpr int kFileNameLeft = 560;
constexpr int kHeadTop = 62;
constexpr int kHeadHeight = 20;
constexpr int kRowsTop = kHeadTop + kHeadHeight + 2;
constexpr int kNameWidth = 200;
constexpr int kChartLeft = kMargin + kNameWidth + 4;
constexpr int kCellWidth = (kPage.width() - kMargin - kChartLeft) / kChartColumns;
constexpr int kCellHeight = (kPage.height() - kMargin - kRowsTop) / kPrintChartRows;
constexpr int kHeadWidth = kColumnsPerHead * kCellWidth;
constexpr int kTextPx = 12;
constexpr int kTitlePx = 16;

constexpr unsigned kCellLines = 0xC8C8C8;  // each cell's box, in its fore colour

}  // namespace

frmPrintLogChart::frmPrintLogChart() {
  setObjectName("frmPrintLogChart");
  setWindowTitle("Form PrintLogChart");
  controls::Set_Back_Color(this, printed_page::kPaper);
  cell_contents_.fill(Value(-1));
  Build_Controls();
  Place_Controls();
}

void frmPrintLogChart::Build_Controls() {
  Label4 = Make_Label(this, "Label4", "Time Period:");
  lblTimePeriod = Make_Label(this, "lblTimePeriod");
  Label7 = Make_Label(this, "Label7", "Filename:");
  lblFileName = Make_Label(this, "lblFileName");
  Label3 = Make_Label(this, "Label3", "Group Member Name");
  for (int head = 0; head < kChartHeads; ++head) lblChartHour[head] = Make_Label(this, Array_Name("lblChartHour", head));
  for (int row = 0; row < kPrintChartRows; ++row) {
    lblChartGroupMemberName[row] = Make_Label(this, Array_Name("lblChartGroupMemberName", row));
  }
  for (int cell = 0; cell < kPrintChartCells; ++cell) {
    QLabel* label = Make_Label(this, Array_Name("lblChartHistoryList", cell));
    label->setFrameShape(QFrame::Box);
    controls::Set_Fore_Color(label, kCellLines);
    lblChartHistoryList[cell] = label;
  }
}

void frmPrintLogChart::Place_Controls() {
  setFixedSize(kPage);
  Label4->setGeometry(kMargin, kTitleTop, kTitleCaptionWidth, kTitleHeight);
  lblTimePeriod->setGeometry(kMargin + kTitleCaptionWidth, kTitleTop, kFileNameLeft - kMargin - kTitleCaptionWidth - 8,
                             kTitleHeight);
  Label7->setGeometry(kFileNameLeft, kTitleTop, kTitleCaptionWidth, kTitleHeight);
  lblFileName->setGeometry(kFileNameLeft + kTitleCaptionWidth, kTitleTop,
                           kPage.width() - kMargin - kFileNameLeft - kTitleCaptionWidth, kTitleHeight);
  for (QLabel* title : {Label4, lblTimePeriod, Label7, lblFileName}) Set_Font(title, kTitlePx, title != lblFileName);

  Label3->setGeometry(kMargin, kHeadTop, kNameWidth, kHeadHeight);
  Set_Font(Label3, kTextPx, true);
  for (int head = 0; head < kChartHeads; ++head) {
    lblChartHour[head]->setGeometry(kChartLeft + head * kHeadWidth, kHeadTop, kHeadWidth, kHeadHeight);
    Set_Font(lblChartHour[head], kTextPx, true);
  }
  for (int row = 0; row < kPrintChartRows; ++row) {
    const int y = kRowsTop + row * kCellHeight;
    QLabel* name = lblChartGroupMemberName[row];
    name->setGeometry(kMargin, y, kNameWidth, kCellHeight);
    name->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Set_Font(name, kTextPx, false);
    for (int column = 0; column < kChartColumns; ++column) {
      lblChartHistoryList[organizer::Chart_Cell(row, column)]->setGeometry(kChartLeft + column * kCellWidth, y,
                                                                           kCellWidth, kCellHeight);
    }
  }
}

Value frmPrintLogChart::Chart_History_List_Content_Tracker(int Element_Number, const std::string& Action_To_Perform,
                                                           const Value& Content) {
  if (Element_Number < 0 || Element_Number >= kPrintChartCells) throw RuntimeFailure(kSubscriptOutOfRange);
  Value& slot = cell_contents_[static_cast<std::size_t>(Element_Number)];
  if (Action_To_Perform == "Put") {
    slot = Content;
    return Element_Number;
  }
  if (Action_To_Perform == "Get") return slot;
  return {};
}

}  // namespace orrivane
