#include "organizer/frmChangeTaskIdInfo.h"

#include <string>

#include "organizer/frmColorPalette.h"
#include "organizer/frmTaskInformation.h"
#include "organizer/log_file.h"
#include "organizer/organizer_callers.h"
#include "organizer/task_edit.h"
#include "organizer/working_files.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/window_registry.h"

namespace orrivane {

namespace {

using W = frmChangeTaskIdInfo;
using controls::Caption;
using controls::Make;
using controls::Make_Button;
using controls::Make_Label;
using controls::Set_Caption;

// ---- Geometry, in pixels -----------------------------------------------------------------------
constexpr int kMargin = 12;
constexpr int kLabelWidth = 140;
constexpr int kValueLeft = kMargin + kLabelWidth + 8;
constexpr int kValueWidth = 340;
constexpr int kWindowWidth = kValueLeft + kValueWidth + kMargin;
constexpr int kRowHeight = 24;
constexpr int kRowStep = 28;
constexpr int kGroupStep = 36;  // between the pairs of present and new values
constexpr int kButtonHeight = 28;
constexpr int kButtonWidth = 100;
constexpr int kColourWidth = 60;
constexpr int kPersonFrameHeight = 132;
constexpr int kPersonFrameWidth = kWindowWidth - 2 * kMargin;

constexpr int kOldNameTop = 12;
constexpr int kNewNameTop = kOldNameTop + kRowStep;
constexpr int kOldDescriptionTop = kNewNameTop + kGroupStep;
constexpr int kNewDescriptionTop = kOldDescriptionTop + kRowStep;
constexpr int kCurrentMemberTop = kNewDescriptionTop + kGroupStep;
constexpr int kNewMemberTop = kCurrentMemberTop + kRowStep;
constexpr int kPersonFrameTop = kNewMemberTop + kRowStep + 4;
constexpr int kCurrentColourTop = kPersonFrameTop + kPersonFrameHeight + 12;
constexpr int kNewColourTop = kCurrentColourTop + kRowStep + 4;
constexpr int kButtonsTop = kNewColourTop + kRowStep + 16;
constexpr int kWindowHeight = kButtonsTop + kButtonHeight + kMargin;

// A caption on the left and the value beside it.
struct IdentityRow {
  QLabel* W::* label;
  const char* label_name;
  const char* caption;
  int top;
};
constexpr IdentityRow kIdentityRows[] = {
    {&W::lblOldRecordNameLabel, "lblOldRecordNameLabel", "Current Name:", kOldNameTop},
    {&W::lblNewRecordNameLabel, "lblNewRecordNameLabel", "New Name:", kNewNameTop},
    {&W::lblOldRecordDescriptionLabel, "lblOldRecordDescriptionLabel", "Current Description:", kOldDescriptionTop},
    {&W::lblNewRecordDescriptionLabel, "lblNewRecordDescriptionLabel", "New Description:", kNewDescriptionTop},
    {&W::lblCurrentGroupMemberLabel, "lblCurrentGroupMemberLabel", "Current Member:", kCurrentMemberTop},
    {&W::lblNewGroupMemberLabel, "lblNewGroupMemberLabel", "New Member:", kNewMemberTop},
    {&W::lblCurrentColorCodeLabel, "lblCurrentColorCodeLabel", "Current Color:", kCurrentColourTop},
    {&W::lblNewColorCodeLabel, "lblNewColorCodeLabel", "New Color:", kNewColourTop},
};

}  // namespace

frmChangeTaskIdInfo::frmChangeTaskIdInfo() {
  setObjectName("frmChangeTaskIdInfo");
  setWindowTitle("Change Task\\Event Identity Information");
  Build_Controls();
  Place_Controls();
  Connect_Controls();
  optExistingPerson_Click();
}

void frmChangeTaskIdInfo::Build_Controls() {
  for (const IdentityRow& row : kIdentityRows) this->*row.label = Make_Label(this, row.label_name, row.caption);
  lblOldRecordName = Make_Label(this, "lblOldRecordName");
  txtNewRecordName = Make<QLineEdit>(this, "txtNewRecordName");
  lblOldRecordDescription = Make_Label(this, "lblOldRecordDescription");
  txtNewRecordDescription = Make<QLineEdit>(this, "txtNewRecordDescription");
  lblCurrentGroupMember = Make_Label(this, "lblCurrentGroupMember");
  lblNewGroupMember = Make_Label(this, "lblNewGroupMember");

  fraPerson = Make<QGroupBox>(this, "fraPerson", "Group Member");
  optExistingPerson = Make<QRadioButton>(fraPerson, "optExistingPerson", "Select An Existing Member");
  cboExistingPerson = controls::Make_Combo(fraPerson, "cboExistingPerson", false);
  controls::On_Got_Focus(cboExistingPerson, [this] { cboExistingPerson_GotFocus(); });
  optEnterNameOfNewPerson = Make<QRadioButton>(fraPerson, "optEnterNameOfNewPerson", "Enter Name Of New Member");
  txtNewPerson = Make<QLineEdit>(fraPerson, "txtNewPerson");
  cmdAssignToGroupMember = Make_Button(fraPerson, "cmdAssignToGroupMember", "Assign");
  optExistingPerson->setChecked(true);

  lblCurrentColorCode = Make_Label(this, "lblCurrentColorCode");
  lblNewColorCode = Make_Label(this, "lblNewColorCode");
  for (QLabel* colour : {lblCurrentColorCode, lblNewColorCode}) colour->setFrameShape(QFrame::Box);
  CmdChangeColorCode = Make_Button(this, "CmdChangeColorCode", "Change Color...");

  cmdOK = Make_Button(this, "cmdOK", "OK");
  cmdCancel = Make_Button(this, "cmdCancel", "Cancel");
}

void frmChangeTaskIdInfo::Place_Controls() {
  for (const IdentityRow& row : kIdentityRows) {
    QLabel* label = this->*row.label;
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setGeometry(kMargin, row.top, kLabelWidth, kRowHeight);
  }
  const std::pair<QWidget*, int> values[] = {
      {lblOldRecordName, kOldNameTop},       {txtNewRecordName, kNewNameTop},
      {lblOldRecordDescription, kOldDescriptionTop}, {txtNewRecordDescription, kNewDescriptionTop},
      {lblCurrentGroupMember, kCurrentMemberTop},    {lblNewGroupMember, kNewMemberTop},
  };
  for (const auto& [value, top] : values) value->setGeometry(kValueLeft, top, kValueWidth, kRowHeight);

  fraPerson->setGeometry(kMargin, kPersonFrameTop, kPersonFrameWidth, kPersonFrameHeight);
  optExistingPerson->setGeometry(10, 22, kPersonFrameWidth - 20, 22);
  cboExistingPerson->setGeometry(30, 46, kPersonFrameWidth - 50, kRowHeight);
  optEnterNameOfNewPerson->setGeometry(10, 76, kPersonFrameWidth - 20, 22);
  txtNewPerson->setGeometry(30, 100, kPersonFrameWidth - 50 - kButtonWidth - 8, kRowHeight);
  cmdAssignToGroupMember->setGeometry(kPersonFrameWidth - 20 - kButtonWidth, 98, kButtonWidth, kButtonHeight);

  lblCurrentColorCode->setGeometry(kValueLeft, kCurrentColourTop, kColourWidth, kRowHeight);
  lblNewColorCode->setGeometry(kValueLeft, kNewColourTop, kColourWidth, kRowHeight);
  CmdChangeColorCode->setGeometry(kValueLeft + kColourWidth + 12, kNewColourTop - 2, 150, kButtonHeight);

  cmdOK->setGeometry(kWindowWidth / 2 - kButtonWidth - 6, kButtonsTop, kButtonWidth, kButtonHeight);
  cmdCancel->setGeometry(kWindowWidth / 2 + 6, kButtonsTop, kButtonWidth, kButtonHeight);
  setFixedSize(kWindowWidth, kWindowHeight);
}

void frmChangeTaskIdInfo::Connect_Controls() {
  connect(optExistingPerson, &QRadioButton::toggled, this, [this](bool set) {
    if (set) optExistingPerson_Click();
  });
  connect(optEnterNameOfNewPerson, &QRadioButton::toggled, this, [this](bool set) {
    if (set) optEnterNameOfNewPerson_Click();
  });
  connect(cboExistingPerson, &QComboBox::activated, this, [this] { cboExistingPerson_Click(); });
  connect(cmdAssignToGroupMember, &QPushButton::clicked, this, [this] { cmdAssignToGroupMember_Click(); });
  connect(CmdChangeColorCode, &QPushButton::clicked, this, [this] { CmdChangeColorCode_Click(); });
  connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

// ---- The group member ---------------------------------------------------------------------------

void frmChangeTaskIdInfo::optExistingPerson_Click() {
  optEnterNameOfNewPerson->setChecked(false);
  Enable_Person_Input(true);
}

void frmChangeTaskIdInfo::optEnterNameOfNewPerson_Click() {
  optExistingPerson->setChecked(false);
  Enable_Person_Input(false);
}

void frmChangeTaskIdInfo::Enable_Person_Input(bool existing) {
  controls::Enable_Input(cboExistingPerson, existing);
  controls::Enable_Input(txtNewPerson, !existing);
  cmdAssignToGroupMember->setEnabled(!existing);
}

// A box filled for the first time would choose its first entry by itself: the choice stays the
// user's.
void frmChangeTaskIdInfo::cboExistingPerson_GotFocus() {
  const int chosen = cboExistingPerson->currentIndex();
  organizer::For_Each_Member(organizer::kScheduleFile, [this](const std::string& member) {
    const QString name = QString::fromStdString(member);
    if (cboExistingPerson->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0) {
      cboExistingPerson->addItem(name);
    }
  });
  cboExistingPerson->setCurrentIndex(chosen);
}

void frmChangeTaskIdInfo::cboExistingPerson_Click() {
  Set_Caption(lblNewGroupMember, controls::Text_Of(cboExistingPerson));
}

void frmChangeTaskIdInfo::cmdAssignToGroupMember_Click() {
  const std::string name = controls::Text_Of(txtNewPerson);
  if (const Message refusal = organizer::New_Member_Refusal(name); !refusal.empty()) {
    platform::Show_Message(refusal);
    return;
  }
  Set_Caption(lblNewGroupMember, name);
}

// ---- The colour and the way out ---------------------------------------------------------------

// The palette is told whom it serves only after it has closed: while it is open it serves the
// caller before, and a first visit from here reaches this window's colour only on the next.
void frmChangeTaskIdInfo::CmdChangeColorCode_Click() {
  frmColorPalette& palette = Window<frmColorPalette>();
  palette.Show_Modal();
  Set_Caption(palette.lblStoreCallingProcedureArgument, std::string(organizer::kChangeTaskInfoSelectColour));
}

// The task information window keeps its caption, with the old name, until the task is shown
// again.
void frmChangeTaskIdInfo::cmdOK_Click() {
  frmTaskInformation& information = Window<frmTaskInformation>();
  Set_Caption(information.lblPerson, Caption(lblNewGroupMember));
  Set_Caption(information.lblTaskName, controls::Text_Of(txtNewRecordName));
  Set_Caption(information.lblTaskDescription, controls::Text_Of(txtNewRecordDescription));
  controls::Set_Back_Color(information.lblColorCode, controls::Back_Color(lblNewColorCode));
  information.Set_Record_Changed_Flag(true);
  hide();
}

void frmChangeTaskIdInfo::cmdCancel_Click() { hide(); }

}  // namespace orrivane
