#include "reminders/frmPrintTaskList.h"

#include "platform/PrintedPage.h"
#include "platform/controls.h"

namespace orrivane {

namespace {

using controls::Array_Name;
using printed_page::kMargin;
using printed_page::Set_Font;

// The parts of the page.
constexpr QSize kPage = printed_page::kLandscape;
constexpr QRect kHeading{kMargin, 14, kPage.width() - 2 * kMargin, 36};
constexpr int kRowsTop = 58;
constexpr int kRowStep = (kPage.height() - kMargin - kRowsTop) / frmPrintTaskList::kRows;
constexpr int kRowWidth = kPage.width() - 2 * kMargin;
constexpr int kRowHeight = kRowStep - 6;  // a gap between two rows' boxes
// Within a row: the colour bar, the name and description, the dates and times.
constexpr int kPad = 10;
constexpr int kLineHeight = 24;
constexpr int kColourWidth = 28;
constexpr int kCaptionWidth = 116;
constexpr int kNameLeft = kPad + kColourWidth + 14;
constexpr int kNameValueLeft = kNameLeft + kCaptionWidth;
constexpr int kTimesLeft = 620;
constexpr int kTimesValueLeft = kTimesLeft + kCaptionWidth;
constexpr int kTextPx = 14;
constexpr int kHeadingPx = 22;

constexpr unsigned kLines = 0x808080;

QLabel* Make_Row_Label(QWidget* parent, const char* name, int row, const char* caption = "") {
  QLabel* label = controls::Make_Label(parent, Array_Name(name, row), caption);
  Set_Font(label, kTextPx, *caption != '\0');
  return label;
}

QFrame* Make_Line(QWidget* parent, const char* name, int row) {
  auto* line = controls::Make<QFrame>(parent, Array_Name(name, row));
  line->setFrameShape(QFrame::Box);
  controls::Set_Fore_Color(line, kLines);
  return line;
}

}  // namespace

frmPrintTaskList::frmPrintTaskList() {
  setObjectName("frmPrintTaskList");
  setWindowTitle("Form PrintTaskList");
  controls::Set_Back_Color(this, printed_page::kPaper);
  Build_Controls();
  Place_Controls();
}

void frmPrintTaskList::Build_Controls() {
  lblGroupMemberID = controls::Make_Label(this, "lblGroupMemberID");
  Set_Font(lblGroupMemberID, kHeadingPx, true);
  for (int row = 0; row < kRows; ++row) {
    lblColorCode[row] = Make_Row_Label(this, "lblColorCode", row);
    lblTaskNameLabel[row] = Make_Row_Label(this, "lblTaskNameLabel", row, "Task Name:");
    lblTaskName[row] = Make_Row_Label(this, "lblTaskName", row);
    lblDescriptionLabel[row] = Make_Row_Label(this, "lblDescriptionLabel", row, "Description:");
    lblDecription[row] = Make_Row_Label(this, "lblDecription", row);
    lblDecription[row]->setWordWrap(true);
    lblDecription[row]->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblStartDateLabel[row] = Make_Row_Label(this, "lblStartDateLabel", row, "Start Date:");
    lblStartDate[row] = Make_Row_Label(this, "lblStartDate", row);
    lblStartTimeLabel[row] = Make_Row_Label(this, "lblStartTimeLabel", row, "Start Time:");
    lblStartTime[row] = Make_Row_Label(this, "lblStartTime", row);
    lblFinishDateLabel[row] = Make_Row_Label(this, "lblFinishDateLabel", row, "Finish Date:");
    lblFinishDate[row] = Make_Row_Label(this, "lblFinishDate", row);
    lblFinishTimeLabel[row] = Make_Row_Label(this, "lblFinishTimeLabel", row, "Finish Time:");
    lblFinishTime[row] = Make_Row_Label(this, "lblFinishTime", row);
    Line1[row] = Make_Line(this, "Line1", row);
    Line2[row] = Make_Line(this, "Line2", row);
    Line3[row] = Make_Line(this, "Line3", row);
    Line4[row] = Make_Line(this, "Line4", row);
  }
}

void frmPrintTaskList::Place_Controls() {
  setFixedSize(kPage);
  lblGroupMemberID->setGeometry(kHeading);
  for (int row = 0; row < kRows; ++row) {
    const int x = kMargin;
    const int y = kRowsTop + row * kRowStep;
    Line1[row]->setGeometry(x, y, kRowWidth, 1);
    Line2[row]->setGeometry(x, y + kRowHeight - 1, kRowWidth, 1);
    Line3[row]->setGeometry(x, y, 1, kRowHeight);
    Line4[row]->setGeometry(x + kRowWidth - 1, y, 1, kRowHeight);
    lblColorCode[row]->setGeometry(x + kPad, y + kPad, kColourWidth, kRowHeight - 2 * kPad);

    const int top = y + kPad;
    lblTaskNameLabel[row]->setGeometry(x + kNameLeft, top, kCaptionWidth, kLineHeight);
    lblTaskName[row]->setGeometry(x + kNameValueLeft, top, kTimesLeft - kNameValueLeft - kPad, kLineHeight);
    lblDescriptionLabel[row]->setGeometry(x + kNameLeft, top + kLineHeight, kCaptionWidth, kLineHeight);
    lblDecription[row]->setGeometry(x + kNameValueLeft, top + kLineHeight + 3, kTimesLeft - kNameValueLeft - kPad,
                                    kRowHeight - 2 * kPad - kLineHeight - 3);
    const std::pair<QLabel*, QLabel*> times[] = {{lblStartDateLabel[row], lblStartDate[row]},
                                                 {lblStartTimeLabel[row], lblStartTime[row]},
                                                 {lblFinishDateLabel[row], lblFinishDate[row]},
                                                 {lblFinishTimeLabel[row], lblFinishTime[row]}};
    int line_top = top;
    for (const auto& [caption, value] : times) {
      caption->setGeometry(x + kTimesLeft, line_top, kCaptionWidth, kLineHeight);
      value->setGeometry(x + kTimesValueLeft, line_top, kRowWidth - kTimesValueLeft - kPad, kLineHeight);
      line_top += kLineHeight;
    }
  }
}

std::vector<QWidget*> frmPrintTaskList::Row_Controls(int row) const {
  return {lblColorCode[row],      lblTaskNameLabel[row],  lblTaskName[row],        lblDescriptionLabel[row],
          lblDecription[row],     lblStartDateLabel[row], lblStartDate[row],       lblStartTimeLabel[row],
          lblStartTime[row],      lblFinishDateLabel[row], lblFinishDate[row],     lblFinishTimeLabel[row],
          lblFinishTime[row],     Line1[row],             Line2[row],              Line3[row],
          Line4[row]};
}

void frmPrintTaskList::Fill_Row(int row, const reminders::TaskListRow& task) {
  controls::Set_Back_Color(lblColorCode[row], task.colour);
  controls::Set_Caption(lblTaskName[row], task.task_name);
  controls::Set_Caption(lblDecription[row], task.description);
  controls::Set_Caption(lblStartDate[row], task.start_date);
  controls::Set_Caption(lblStartTime[row], task.start_time);
  controls::Set_Caption(lblFinishDate[row], task.finish_date);
  controls::Set_Caption(lblFinishTime[row], task.finish_time);
}

}  // namespace orrivane
