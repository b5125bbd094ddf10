// The multi-purpose window's mechanism (its frames, their purposes, the Default and Cancel roles)
// and its first three purposes: adding a group member, deleting one, and choosing a task to
// delete or to view.
#include "reminders/frmMultiPurposeForm.h"

#include <algorithm>
#include <vector>

#include "organizer/frmScheduler_Reminder.h"
#include "organizer/group_members.h"
#include "organizer/log_file.h"
#include "organizer/multipurpose_delete_source.h"
#include "organizer/organizer_callers.h"
#include "organizer/task_list.h"
#include "organizer/working_files.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/window_registry.h"
#include "reminders/MultiPurposeFrames.h"

namespace orrivane {

using reminders::MultiPurpose;
using reminders::MultiPurposeFrame;

namespace {

using controls::Px;
// The measures and the table maker that the frames' files share.
using namespace multi_purpose_frames;

// The frames, by their index.
constexpr QFrame* frmMultiPurposeForm::*kFrames[reminders::kMultiPurposeFrames] = {
    &frmMultiPurposeForm::fraAddNewGroupMember, &frmMultiPurposeForm::fraDeleteGroupMember,
    &frmMultiPurposeForm::fraDeleteViewTask,    &frmMultiPurposeForm::fraNonTaskReminders,
    &frmMultiPurposeForm::fraViewOrDeleteNTRem, &frmMultiPurposeForm::fraPrintLog,
};
constexpr const char* kFrameNames[reminders::kMultiPurposeFrames] = {
    "fraAddNewGroupMember", "fraDeleteGroupMember", "fraDeleteViewTask",
    "fraNonTaskReminders",  "fraViewOrDeleteNTRem", "fraPrintLog",
};
constexpr const char* kCancelCaptions[reminders::kMultiPurposeFrames] = {"Cancel", "Cancel", "Cancel",
                                                                         "Close",  "Close",  "Cancel"};

// The buttons that are the default one in some purpose.
constexpr QPushButton* frmMultiPurposeForm::*kDefaultButtons[] = {
    &frmMultiPurposeForm::cmdAdd, &frmMultiPurposeForm::cmdDelete, &frmMultiPurposeForm::cmdAdd_3,
    &frmMultiPurposeForm::cmdDelete_1, &frmMultiPurposeForm::cmdDelete_4};

// The size of a frame, and of the window while the frame shows, in pixels.
QSize Frame_Pixels(MultiPurposeFrame frame) { return {Frame_Width(frame), Frame_Height(frame)}; }

// The width of the buttons of the bottom row: two of them fit the narrowest frame.
int Bottom_Button_Width(MultiPurposeFrame frame) {
  return std::min(kButtonWidth, (Frame_Width(frame) - 3 * kMargin) / 2);
}

// The place of cmdCancel(k) in the bottom right corner of its frame.
QRect Cancel_Place(MultiPurposeFrame frame) {
  const int width = Bottom_Button_Width(frame);
  return {Frame_Width(frame) - kMargin - width, Frame_Height(frame) - kMargin - kButtonHeight, width, kButtonHeight};
}

// Beside cmdCancel(k), to its left.
QRect Beside_Cancel(MultiPurposeFrame frame) {
  return Cancel_Place(frame).translated(-Bottom_Button_Width(frame) - kMargin, 0);
}

// The focus goes to the frame's first control that Tab reaches, in the order they were made.
void Focus_First_Control(QWidget* frame) {
  for (QWidget* control : frame->findChildren<QWidget*>()) {
    if ((control->focusPolicy() & Qt::TabFocus) != 0 && control->isEnabled() && control->isVisibleTo(frame)) {
      control->setFocus();
      return;
    }
  }
}

std::vector<std::string> Texts_Of(const QListWidget* list) {
  std::vector<std::string> texts;
  for (int row = 0; row < list->count(); ++row) texts.push_back(list->item(row)->text().toStdString());
  return texts;
}

// The window's caption for the purpose of an origin.
std::string_view Caption_Of(std::string_view origin) { return reminders::Multi_Purpose_Of(origin)->caption; }

// Takes every entry of the list whose text equals `entry` out of it.
void Remove_Entry(QListWidget* list, const std::string& entry) {
  for (QListWidgetItem* item : list->findItems(QString::fromStdString(entry), Qt::MatchExactly)) {
    delete list->takeItem(list->row(item));
  }
}

std::string Chosen_Text(const QListWidget* list) {
  const QList<QListWidgetItem*> chosen = list->selectedItems();
  return chosen.isEmpty() ? std::string() : chosen.front()->text().toStdString();
}

}  // namespace

// What each frame does before it is shown, and once it stands shown.
struct frmMultiPurposeForm::FrameSetUp {
  void (frmMultiPurposeForm::*before_showing)(std::string_view Calling_Sub_Origin);
  void (frmMultiPurposeForm::*once_shown)(std::string_view Calling_Sub_Origin);
};

const frmMultiPurposeForm::FrameSetUp frmMultiPurposeForm::kFrameSetUps[reminders::kMultiPurposeFrames] = {
    {&frmMultiPurposeForm::Prepare_Add_New_Group_Member_Frame, &frmMultiPurposeForm::Prepare_Nothing},
    {&frmMultiPurposeForm::Prepare_Delete_Group_Member_Frame, &frmMultiPurposeForm::Prepare_Nothing},
    {&frmMultiPurposeForm::Prepare_Delete_View_Task_Frame, &frmMultiPurposeForm::Prepare_Nothing},
    // The moment of a new reminder is taken once its frame is shown.
    {&frmMultiPurposeForm::Prepare_Nothing, &frmMultiPurposeForm::Non_Task_Reminder_Frame_Shown},
    {&frmMultiPurposeForm::Prepare_View_Or_Delete_NT_Reminder_Frame, &frmMultiPurposeForm::Prepare_Nothing},
    // The printing procedure fills its frame before it asks for the window.
    {&frmMultiPurposeForm::Prepare_Nothing, &frmMultiPurposeForm::Prepare_Nothing},
};

frmMultiPurposeForm::frmMultiPurposeForm() {
  setObjectName("frmMultiPurposeForm");
  setWindowTitle("");
  Build_Frames();
  Build_Member_Frames();
  Build_Non_Task_Frames();
  Build_Print_Log_Frame();
  Build_Cancel_Buttons();
  Connect_Mechanism();
  Connect_Member_Frames();
  Connect_Non_Task_Frames();
  Connect_Print_Log_Frame();
  Lend_Lists_To_Deleting();
  Form_Termination_Routine();
}

frmMultiPurposeForm::~frmMultiPurposeForm() { organizer::Multi_Purpose_Delete_Source() = {}; }

// The Organizer's delete procedures reach the chosen entries of frames 1 and 2, take the deleted
// entry out and put the window away through the source they read.
void frmMultiPurposeForm::Lend_Lists_To_Deleting() {
  organizer::MultiPurposeDeleteSource& source = organizer::Multi_Purpose_Delete_Source();
  source.Tasks = {[this] { return Chosen_Task(); },
                  [this](const std::string& entry) { Remove_Entry(lstListOfTasks, entry); }};
  source.Members = {[this] { return Chosen_Member(); },
                    [this](const std::string& entry) { Remove_Entry(lstListOfPeople, entry); }};
  source.Form_Termination_Routine = [this] { Form_Termination_Routine(); };
}

QFrame* frmMultiPurposeForm::Frame(MultiPurposeFrame index) const { return this->*kFrames[index]; }

// ---- Building -----------------------------------------------------------------------------------

void frmMultiPurposeForm::Build_Frames() {
  for (int index = 0; index < reminders::kMultiPurposeFrames; ++index) {
    const auto frame_index = static_cast<MultiPurposeFrame>(index);
    QFrame* frame = controls::Make<QFrame>(this, kFrameNames[index]);
    frame->setGeometry(QRect(QPoint(0, 0), Frame_Pixels(frame_index)));
    this->*kFrames[index] = frame;
  }
}

// Made last in each frame, so that Tab comes to them after the frame's own controls.
void frmMultiPurposeForm::Build_Cancel_Buttons() {
  for (int index = 0; index < reminders::kMultiPurposeFrames; ++index) {
    const auto frame_index = static_cast<MultiPurposeFrame>(index);
    QPushButton* cancel =
        controls::Make_Button(Frame(frame_index), controls::Array_Name("cmdCancel", index), kCancelCaptions[index]);
    cancel->setGeometry(Cancel_Place(frame_index));
    cmdCancel[static_cast<std::size_t>(index)] = cancel;
  }
}

void frmMultiPurposeForm::Build_Member_Frames() {
  using F = frmMultiPurposeForm;
  constexpr int kWidth0 = Frame_Width(reminders::kAddNewGroupMemberFrame) - 2 * kMargin;
  Make_Placed<QLabel>(*this, fraAddNewGroupMember,
                      {{&F::lblNewGroupMemberNameLabel,
                        "lblNewGroupMemberNameLabel",
                        "Name Of New Member:",
                        {kMargin, kMargin, kWidth0, kRowHeight}}});
  Make_Placed<QLineEdit>(*this, fraAddNewGroupMember,
                         {{&F::txtNewPerson, "txtNewPerson", nullptr, {kMargin, 32, kWidth0, 24}}});
  Make_Placed<QPushButton>(*this, fraAddNewGroupMember,
                           {{&F::cmdAdd, "cmdAdd", "Add", Beside_Cancel(reminders::kAddNewGroupMemberFrame)}});

  constexpr int kWidth1 = Frame_Width(reminders::kDeleteGroupMemberFrame) - 2 * kMargin;
  const int list_bottom1 = Cancel_Place(reminders::kDeleteGroupMemberFrame).top() - kMargin;
  Make_Placed<QLabel>(*this, fraDeleteGroupMember,
                      {{&F::lblDeleteGroupMemberLabel,
                        "lblDeleteGroupMemberLabel",
                        "Select Group Member To Delete:",
                        {kMargin, 6, kWidth1, kRowHeight}}});
  Make_Placed<QListWidget>(
      *this, fraDeleteGroupMember,
      {{&F::lstListOfPeople, "lstListOfPeople", nullptr, {kMargin, 28, kWidth1, list_bottom1 - 28}}});
  Make_Placed<QPushButton>(*this, fraDeleteGroupMember,
                           {{&F::cmdDelete, "cmdDelete", "Delete", Beside_Cancel(reminders::kDeleteGroupMemberFrame)}});
  lstListOfPeople->setSortingEnabled(true);

  constexpr int kWidth2 = Frame_Width(reminders::kDeleteViewTaskFrame) - 2 * kMargin;
  constexpr int kComboLeft = kMargin + 100;
  const int list_bottom2 = Cancel_Place(reminders::kDeleteViewTaskFrame).top() - kMargin;
  Make_Placed<QLabel>(
      *this, fraDeleteViewTask,
      {{&F::Label1, "Label1", "Group Member", {kMargin, 10, 96, kRowHeight}},
       {&F::lblListBoxHeadingLabel_2, "lblListBoxHeadingLabel_2", nullptr, {kMargin, 40, kWidth2, kRowHeight}}});
  Make_Placed<QComboBox>(
      *this, fraDeleteViewTask,
      {{&F::cboListOfPeople, "cboListOfPeople", nullptr, {kComboLeft, kMargin, kWidth2 + kMargin - kComboLeft, 26}}});
  Make_Placed<QListWidget>(
      *this, fraDeleteViewTask,
      {{&F::lstListOfTasks, "lstListOfTasks", nullptr, {kMargin, 62, kWidth2, list_bottom2 - 62}}});
  Make_Placed<QPushButton>(
      *this, fraDeleteViewTask,
      {{&F::cmdDelete_1, "cmdDelete_1", "Delete", Beside_Cancel(reminders::kDeleteViewTaskFrame)}});
  lstListOfTasks->setSortingEnabled(true);
}

void frmMultiPurposeForm::Connect_Mechanism() {
  for (int index = 0; index < reminders::kMultiPurposeFrames; ++index) {
    connect(cmdCancel[static_cast<std::size_t>(index)], &QPushButton::clicked, this,
            [this, index] { cmdCancel_Click(index); });
  }
}

void frmMultiPurposeForm::Connect_Member_Frames() {
  connect(cmdAdd, &QPushButton::clicked, this, [this] { cmdAdd_Click(); });
  connect(lstListOfPeople, &QListWidget::itemClicked, this, [this] { lstListOfPeople_Click(); });
  connect(lstListOfPeople, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* now) {
    if (now != nullptr && now->isSelected()) lstListOfPeople_Click();
  });
  connect(cmdDelete, &QPushButton::clicked, this, [this] { cmdDelete_Click(); });
  connect(cboListOfPeople, &QComboBox::activated, this, [this] { cboListOfPeople_Click(); });
  connect(lstListOfTasks, &QListWidget::itemClicked, this, [this] { lstListOfTasks_Click(); });
  connect(lstListOfTasks, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* now) {
    if (now != nullptr && now->isSelected()) lstListOfTasks_Click();
  });
  connect(cmdDelete_1, &QPushButton::clicked, this, [this] { cmdDelete_1_Click(); });
}

// ---- The mechanism ------------------------------------------------------------------------------

void frmMultiPurposeForm::Form_Termination_Routine() {
  hide();
  for (QFrame* frmMultiPurposeForm::*frame : kFrames) (this->*frame)->hide();
  for (QPushButton* frmMultiPurposeForm::*button : kDefaultButtons) (this->*button)->setDefault(false);
  cmdDelete_4->setEnabled(false);
  for (QPushButton* cancel : cmdCancel) controls::Set_Cancel(cancel, false);
}

void frmMultiPurposeForm::Prepare_Frame(const MultiPurpose& purpose) {
  (this->*kFrameSetUps[purpose.frame].before_showing)(purpose.origin);
}

void frmMultiPurposeForm::Show_Purpose(const MultiPurpose& purpose) {
  setWindowTitle(QString::fromUtf8(purpose.caption.data(), static_cast<qsizetype>(purpose.caption.size())));
  setFixedSize(Px(purpose.width_twips), Px(purpose.height_twips));
  QFrame* frame = Frame(purpose.frame);
  frame->move(0, 0);
  frame->show();
  (this->*kFrameSetUps[purpose.frame].once_shown)(purpose.origin);

  QPushButton* cancel = cmdCancel[static_cast<std::size_t>(purpose.cancel_index)];
  controls::Set_Cancel(cancel, true);
  if (purpose.cancel_caption != reminders::kKeepCaption) cancel->setText(QString::fromUtf8(purpose.cancel_caption));
  if (!purpose.default_button.empty()) {
    auto* button = findChild<QPushButton*>(QString::fromUtf8(purpose.default_button));
    button->setDefault(true);
    if (purpose.default_caption != reminders::kKeepCaption) button->setText(QString::fromUtf8(purpose.default_caption));
  }
  if (!purpose.heading_label.empty()) {
    controls::Set_Caption(findChild<QLabel*>(QString::fromUtf8(purpose.heading_label)), std::string(purpose.heading));
  }
  controls::Show_In_Front(*this);
  Focus_First_Control(frame);
}

QPushButton* frmMultiPurposeForm::Default_Button() const {
  for (QPushButton* frmMultiPurposeForm::*button : kDefaultButtons) {
    if ((this->*button)->isDefault()) return this->*button;
  }
  return nullptr;
}

QPushButton* frmMultiPurposeForm::Cancel_Button() const {
  for (QPushButton* cancel : cmdCancel) {
    if (controls::Is_Cancel(cancel)) return cancel;
  }
  return nullptr;
}

void frmMultiPurposeForm::Prepare_Nothing(std::string_view) {}

void frmMultiPurposeForm::Form_Unload() { Form_Termination_Routine(); }

void frmMultiPurposeForm::cmdCancel_Click(int) { Form_Termination_Routine(); }

// The close box unloads the window: its unload steps run and it is hidden, never destroyed.
void frmMultiPurposeForm::closeEvent(QCloseEvent* event) {
  Form_Unload();
  event->accept();
}

// ---- Frame 0: a new group member ----------------------------------------------------------------

void frmMultiPurposeForm::Prepare_Add_New_Group_Member_Frame(std::string_view) { txtNewPerson->clear(); }

void frmMultiPurposeForm::cmdAdd_Click() {
  frmScheduler_Reminder& organizer = Window<frmScheduler_Reminder>();
  const organizer::NewGroupMember member =
      organizer::Check_New_Group_Member(controls::Text_Of(txtNewPerson), Texts_Of(organizer.lstListOfPeople));
  if (member.outcome == organizer::NewMemberOutcome::kNoName) {
    platform::Show_Message(organizer::New_Group_Member_Message(member.outcome));
    return;
  }
  if (member.outcome == organizer::NewMemberOutcome::kNew) {
    organizer.lstListOfPeople->addItem(QString::fromStdString(member.name));
    organizer::Generate_Person_Marker_Record(organizer::kScheduleFile, member.name);
  }
  organizer.Refresh_Organizer_Screen(organizer::kMultiPurposeAdd);
  // A name passed over marks the log as changed as well.
  organizer.Save_File_Prompt_Flag = 1;
  Form_Termination_Routine();
}

// ---- Frames 1 and 2: the members of the log --------------------------------------------------------

void frmMultiPurposeForm::Prepare_Delete_Group_Member_Frame(std::string_view) {
  lstListOfPeople->clear();
  organizer::For_Each_Member(organizer::kScheduleFile, [this](const std::string& member) {
    lstListOfPeople->addItem(QString::fromStdString(member));
  });
  cmdDelete->setEnabled(!Chosen_Member().empty());
}

void frmMultiPurposeForm::lstListOfPeople_Click() { cmdDelete->setEnabled(true); }

std::string frmMultiPurposeForm::Chosen_Member() const { return Chosen_Text(lstListOfPeople); }

void frmMultiPurposeForm::cmdDelete_Click() {
  Window<frmScheduler_Reminder>().Delete_A_Group_Member(organizer::kMultiPurposeDelete);
}

void frmMultiPurposeForm::Prepare_Delete_View_Task_Frame(std::string_view) {
  cboListOfPeople->clear();
  lstListOfTasks->clear();
  QStringList members;
  organizer::For_Each_Member(organizer::kScheduleFile,
                             [&members](const std::string& member) { members.append(QString::fromStdString(member)); });
  members.sort();
  cboListOfPeople->addItems(members);
  cboListOfPeople->setCurrentIndex(-1);  // no member is chosen yet
  cmdDelete_1->setEnabled(!controls::Text_Of(cboListOfPeople).empty());
}

void frmMultiPurposeForm::cboListOfPeople_Click() {
  lstListOfTasks->clear();
  QStringList entries;
  for (const std::string& entry :
       organizer::Member_Task_Entries(organizer::kScheduleFile, controls::Text_Of(cboListOfPeople), std::nullopt)) {
    entries.append(QString::fromStdString(entry));
  }
  lstListOfTasks->addItems(entries);
  cmdDelete_1->setEnabled(false);
}

void frmMultiPurposeForm::lstListOfTasks_Click() { cmdDelete_1->setEnabled(true); }

std::string frmMultiPurposeForm::Chosen_Task() const { return Chosen_Text(lstListOfTasks); }

void frmMultiPurposeForm::cmdDelete_1_Click() {
  frmScheduler_Reminder& organizer = Window<frmScheduler_Reminder>();
  const std::string caption = windowTitle().toStdString();
  if (caption == Caption_Of(organizer::kDeleteATaskFromMenuOrigin)) {
    organizer.Delete_A_Selected_Record(organizer::kMultiPurposeDelete1);
  } else if (caption == Caption_Of(organizer::kSelectTaskInfoWindowOrigin)) {
    organizer.View_Task_Event_Information(organizer::kMultiPurposeDelete1, Value("N\\A"));
  }
}

}  // namespace orrivane
