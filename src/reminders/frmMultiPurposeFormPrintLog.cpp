// The multi-purpose window's frame 5 (fraPrintLog): what to print of the log, the chart's day and
// period, and the group members whose pages are printed.
#include "platform/controls.h"
#include "reminders/MultiPurposeFrames.h"
#include "reminders/frmMultiPurposeForm.h"

namespace orrivane {

namespace {

using multi_purpose_frames::Frame_Height;
using multi_purpose_frames::Frame_Width;
using multi_purpose_frames::kButtonHeight;
using multi_purpose_frames::kButtonWidth;
using multi_purpose_frames::kMargin;
using multi_purpose_frames::kRowHeight;
using multi_purpose_frames::Make_Placed;

// ---- Geometry, in pixels --------------------------------------------------------------------------
constexpr int kWidth5 = Frame_Width(reminders::kPrintLogFrame);
constexpr int kHeight5 = Frame_Height(reminders::kPrintLogFrame);
constexpr int kInnerWidth = kWidth5 - 2 * kMargin;     // the three group boxes
constexpr int kBoxInnerWidth = kInnerWidth - 2 * kMargin;  // what stands in a group box
constexpr int kGroupTitle = 20;                        // a group box's caption above its content
constexpr int kItemsTop = 4;
constexpr int kItemsHeight = kGroupTitle + 2 * 24 + 6;
constexpr int kChartTop = kItemsTop + kItemsHeight + 4;
constexpr int kChartHeight = kGroupTitle + 2 * 26 + 6;
constexpr int kMembersTop = kChartTop + kChartHeight + 4;
constexpr int kBottomRow = kHeight5 - kMargin - kButtonHeight;
constexpr int kMembersHeight = kBottomRow - kMargin - kMembersTop;
constexpr int kListWidth = (kBoxInnerWidth - kMargin) / 2;
constexpr int kSecondListLeft = kMargin + kListWidth + kMargin;
constexpr int kMemberButtonsTop = kMembersHeight - kMargin - kButtonHeight;
constexpr int kListHeight = kMemberButtonsTop - 6 - kGroupTitle;
constexpr int kValueLeft = kMargin + 56;
constexpr int kChangeLeft = kBoxInnerWidth + kMargin - 84;

}  // namespace

void frmMultiPurposeForm::Build_Print_Log_Frame() {
  using F = frmMultiPurposeForm;
  QWidget* frame = fraPrintLog;
  Make_Placed<QGroupBox>(*this, frame,
                         {{&F::fraSelectItems_5, "fraSelectItems_5", "Select Items To Print",
                           {kMargin, kItemsTop, kInnerWidth, kItemsHeight}},
                          {&F::fraPrintTaskChart_5, "fraPrintTaskChart_5", "Print Task Chart For:",
                           {kMargin, kChartTop, kInnerWidth, kChartHeight}},
                          {&F::Frame2, "Frame2", "Select Group Members",
                           {kMargin, kMembersTop, kInnerWidth, kMembersHeight}}});
  Make_Placed<QCheckBox>(*this, fraSelectItems_5,
                         {{&F::chkTaskChart_5, "chkTaskChart_5", "Print Task Chart for the Selected Period",
                           {kMargin, kGroupTitle, kBoxInnerWidth, 24}},
                          {&F::chkTaskList_5, "chkTaskList_5", "Print Task List for Each Selected Group Member",
                           {kMargin, kGroupTitle + 24, kBoxInnerWidth, 24}}});
  chkTaskChart_5->setChecked(true);
  chkTaskList_5->setChecked(true);
  Make_Placed<QLabel>(*this, fraPrintTaskChart_5,
                      {{&F::lblDateLabel_5, "lblDateLabel_5", "Date:", {kMargin, kGroupTitle + 3, 52, kRowHeight}},
                       {&F::lblDate_5, "lblDate_5", nullptr,
                        {kValueLeft, kGroupTitle + 3, kChangeLeft - kValueLeft - 4, kRowHeight}},
                       {&F::lblPeriodLabel_5, "lblPeriodLabel_5", "Period:",
                        {kMargin, kGroupTitle + 29, 52, kRowHeight}},
                       {&F::lblTimePeriod_5, "lblTimePeriod_5", nullptr,
                        {kValueLeft, kGroupTitle + 29, kChangeLeft - kValueLeft - 4, kRowHeight}}});
  Make_Placed<QPushButton>(*this, fraPrintTaskChart_5,
                           {{&F::cmdChange_5, "cmdChange_5", "Change...", {kChangeLeft, kGroupTitle + 12, 84, kButtonHeight}}});
  Make_Placed<QListWidget>(*this, Frame2,
                           {{&F::lstListOfPeople_5, "lstListOfPeople_5", nullptr,
                             {kMargin, kGroupTitle, kListWidth, kListHeight}},
                            {&F::lstSelectedPeople_5, "lstSelectedPeople_5", nullptr,
                             {kSecondListLeft, kGroupTitle, kListWidth, kListHeight}}});
  Make_Placed<QPushButton>(*this, Frame2,
                           {{&F::cmdSelectAll_5, "cmdSelectAll_5", "Select All",
                             {kMargin, kMemberButtonsTop, kListWidth, kButtonHeight}},
                            {&F::cmdDeSelectAll_5, "cmdDeSelectAll_5", "Deselect All",
                             {kSecondListLeft, kMemberButtonsTop, kListWidth, kButtonHeight}}});
  Make_Placed<QPushButton>(*this, frame,
                           {{&F::cmdPrint_5, "cmdPrint_5", "Print",
                             {kWidth5 - 2 * (kMargin + kButtonWidth), kBottomRow, kButtonWidth, kButtonHeight}}});
  cmdPrint_5->setEnabled(false);  // until a member is selected
}

void frmMultiPurposeForm::Connect_Print_Log_Frame() {}

}  // namespace orrivane
