#include "organizer/frmChangeRecordTimes.h"

#include <string>
#include <vector>

#include "engine/vocabulary.h"
#include "organizer/ReminderBoxes.h"
#include "organizer/frmTaskInformation.h"
#include "organizer/reminder_moment.h"
#include "organizer/time_period_selection.h"
#include "platform/controls.h"
#include "platform/window_registry.h"

namespace orrivane {

namespace {

using W = frmChangeRecordTimes;
using controls::Caption;
using controls::Make_Button;
using controls::Make_Label;
using controls::Set_Caption;
using controls::Text_Of;

constexpr const char* kFrameCaptions[W::kMoments] = {"Select New Starting Date\\Time",
                                                     "Select New Finish Date\\Time"};

// ---- Geometry, in pixels -----------------------------------------------------------------------
constexpr int kMargin = 12;
constexpr int kFrameWidth = 310;
constexpr int kRowHeight = 24;
constexpr int kButtonHeight = 28;
constexpr int kBoxesTop = 24;
constexpr int kBoxRowStep = 30;
constexpr int kBoxLabelWidth = 60;
constexpr int kBoxWidth = 70;
constexpr int kBoxColumnStep = kBoxLabelWidth + kBoxWidth + 10;
constexpr int kSelectTop = kBoxesTop + 3 * kBoxRowStep + 4;
constexpr int kOldTop = kSelectTop + kButtonHeight + 10;
constexpr int kNewTop = kOldTop + kRowHeight + 4;
constexpr int kMomentLabelWidth = 50;
constexpr int kDateLeft = 10 + kMomentLabelWidth + 4;
constexpr int kDateWidth = 160;
constexpr int kTimeLeft = kDateLeft + kDateWidth + 6;
constexpr int kTimeWidth = 60;
constexpr int kFrameHeight = kNewTop + kRowHeight + 10;
constexpr int kButtonsTop = kMargin + kFrameHeight + kMargin;
constexpr int kButtonWidth = 100;
constexpr int kWindowWidth = 2 * kFrameWidth + 3 * kMargin;
constexpr int kWindowHeight = kButtonsTop + kButtonHeight + kMargin;

// A box of a moment's frame with its caption, its list and its place: two columns of three rows.
struct MomentBox {
  W::Moments<QLabel> W::* label;
  const char* label_name;
  const char* caption;
  W::Moments<QComboBox> W::* box;
  const char* box_name;
  const organizer::TwoDigitRange* range;  // nullptr: the months
  int column;
  int row;
};
constexpr MomentBox kMomentBoxes[] = {
    {&W::lblMonth, "lblMonth", "Month:", &W::ComboMonths, "ComboMonths", nullptr, 0, 0},
    {&W::lblDay, "lblDay", "Date:", &W::ComboDate, "ComboDate", &organizer::kDateBoxRange, 1, 0},
    {&W::lblCentury, "lblCentury", "Century:", &W::ComboCentury, "ComboCentury", &organizer::kCenturyBoxRange, 0, 1},
    {&W::lblYear, "lblYear", "Year:", &W::ComboYear, "ComboYear", &organizer::kYearBoxRange, 1, 1},
    {&W::lblHour, "lblHour", "Hour:", &W::cboHour, "cboHour", &organizer::kHourBoxRange, 0, 2},
    {&W::lblMinute, "lblMinute", "Minute:", &W::cboMinute, "cboMinute", &organizer::kMinuteBoxRange, 1, 2},
};

// A moment's row of labels under the boxes: its caption, its date and its time.
struct MomentRow {
  W::Moments<QLabel> W::* caption;
  const char* caption_name;
  const char* caption_text;
  W::Moments<QLabel> W::* date;
  const char* date_name;
  W::Moments<QLabel> W::* time;
  const char* time_name;
  int top;
};
constexpr MomentRow kMomentRows[] = {
    {&W::lblOldLabel, "lblOldLabel", "Now:", &W::lblOldDate, "lblOldDate", &W::lblOldTime, "lblOldTime", kOldTop},
    {&W::lblNewLabel, "lblNewLabel", "New:", &W::lblDate, "lblDate", &W::lblTime, "lblTime", kNewTop},
};

}  // namespace

frmChangeRecordTimes::frmChangeRecordTimes() : hide_on_deactivate_(new HideOnDeactivate(*this)) {
  setObjectName("frmChangeRecordTimes");
  setWindowTitle("Change Task\\Event Times");
  for (int index = 0; index < kMoments; ++index) Build_Moment(index);
  cmdOK = Make_Button(this, "cmdOK", "OK");
  cmdOK->setDefault(true);
  cmdCancel = Make_Button(this, "cmdCancel", "Cancel");
  Place_Controls();
  Connect_Controls();
}

void frmChangeRecordTimes::Build_Moment(int index) {
  const auto name = [index](const char* control) { return controls::Array_Name(control, index); };
  QGroupBox* frame = fraNewTime[index] = controls::Make<QGroupBox>(this, name("fraNewTime"), kFrameCaptions[index]);
  for (const MomentBox& row : kMomentBoxes) {
    (this->*row.label)[index] = Make_Label(frame, name(row.label_name), row.caption);
    QComboBox* box = (this->*row.box)[index] = controls::Make_Combo(frame, name(row.box_name), true);
    reminder_boxes::Fill(box, row.range != nullptr ? organizer::Two_Digit_Texts(*row.range)
                                                   : organizer::Three_Letter_Month_Texts());
    box->setMaxVisibleItems(12);
  }
  cmdSelect[index] = Make_Button(frame, name("cmdSelect"), "Select");
  for (const MomentRow& row : kMomentRows) {
    (this->*row.caption)[index] = Make_Label(frame, name(row.caption_name), row.caption_text);
    (this->*row.date)[index] = Make_Label(frame, name(row.date_name));
    (this->*row.time)[index] = Make_Label(frame, name(row.time_name));
  }
}

void frmChangeRecordTimes::Place_Controls() {
  for (int index = 0; index < kMoments; ++index) {
    fraNewTime[index]->setGeometry(kMargin + index * (kFrameWidth + kMargin), kMargin, kFrameWidth, kFrameHeight);
    for (const MomentBox& row : kMomentBoxes) {
      const int left = 10 + row.column * kBoxColumnStep;
      const int top = kBoxesTop + row.row * kBoxRowStep;
      (this->*row.label)[index]->setGeometry(left, top, kBoxLabelWidth, kRowHeight);
      (this->*row.box)[index]->setGeometry(left + kBoxLabelWidth, top, kBoxWidth, kRowHeight);
    }
    cmdSelect[index]->setGeometry(10, kSelectTop, kButtonWidth, kButtonHeight);
    for (const MomentRow& row : kMomentRows) {
      (this->*row.caption)[index]->setGeometry(10, row.top, kMomentLabelWidth, kRowHeight);
      (this->*row.date)[index]->setGeometry(kDateLeft, row.top, kDateWidth, kRowHeight);
      (this->*row.time)[index]->setGeometry(kTimeLeft, row.top, kTimeWidth, kRowHeight);
    }
  }
  cmdOK->setGeometry(kWindowWidth / 2 - kButtonWidth - 6, kButtonsTop, kButtonWidth, kButtonHeight);
  cmdCancel->setGeometry(kWindowWidth / 2 + 6, kButtonsTop, kButtonWidth, kButtonHeight);
  setFixedSize(kWindowWidth, kWindowHeight);
}

void frmChangeRecordTimes::Connect_Controls() {
  for (int index = 0; index < kMoments; ++index) {
    connect(cmdSelect[index], &QPushButton::clicked, this, [this, index] { cmdSelect_Click(index); });
  }
  connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

organizer::MomentLabels frmChangeRecordTimes::New_Moment(int index) const {
  return {Caption(lblDate[index]), Caption(lblTime[index])};
}

void frmChangeRecordTimes::cmdSelect_Click(int Index) {
  const organizer::MomentBoxes boxes{Text_Of(ComboMonths[Index]), Text_Of(ComboDate[Index]),
                                     Text_Of(ComboCentury[Index]), Text_Of(ComboYear[Index]),
                                     Text_Of(cboHour[Index]),      Text_Of(cboMinute[Index])};
  const organizer::MomentSelection selection = organizer::Select_Moment(New_Moment(Index), boxes);
  if (!selection.Labels) {
    hide_on_deactivate_->Show_Message(selection.Refusal);
    return;
  }
  Set_Caption(lblDate[Index], selection.Labels->Date);
  Set_Caption(lblTime[Index], selection.Labels->Time);
}

void frmChangeRecordTimes::cmdOK_Click() {
  const organizer::MomentLabels from = New_Moment(0);
  const organizer::MomentLabels to = New_Moment(1);
  if (organizer::Finish_Before_Start(from, to)) {
    hide_on_deactivate_->Show_Message(organizer::Task_Edit_Message(organizer::kEndingBeforeStarting));
    return;
  }
  frmTaskInformation& information = Window<frmTaskInformation>();
  information.Store_Time_Range_Flag("Put", organizer::Time_Range_Flag_Of(from, to));
  Set_Caption(information.lblFromDate, from.Date);
  Set_Caption(information.lblFromTime, from.Time);
  Set_Caption(information.lblToDate, to.Date);
  Set_Caption(information.lblToTime, to.Time);
  information.Set_Record_Changed_Flag(true);
  hide();
}

void frmChangeRecordTimes::cmdCancel_Click() { hide(); }

}  // namespace orrivane
