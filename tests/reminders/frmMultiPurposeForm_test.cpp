// The multi-purpose window's mechanism: each of the nine origins gives the window its frame,
// caption, size, default and cancel buttons; ending a purpose leaves nothing of it behind, so
// that Enter and Escape act only on the frame on show; the close box hides the window.
#include <QApplication>
#include <QTest>
#include <span>

#include "organizer/organizer_callers.h"
#include "reminders/multi_purpose_window_test.h"

namespace orrivane {
namespace {

using reminders::kMultiPurposes;
using reminders::MultiPurpose;
using testing::Expect_Placed_Apart;
using testing::MultiPurposeWindowTest;

class frmMultiPurposeFormTest : public MultiPurposeWindowTest {};

// ---- The nine origins -------------------------------------------------------------------------------

struct ExpectedPurpose {
  std::string_view origin;
  int frame;
  const char* caption;
  QSize size;  // pixels: the twips at 15 to a pixel
  const char* default_button;  // "" for none
  const char* default_caption;
  int cancel;
  const char* cancel_caption;
};

const ExpectedPurpose kExpected[] = {
    {organizer::kAddNewGroupMemberOrigin, 0, "Add New Group Member", {207, 130}, "cmdAdd", "Add", 0, "Cancel"},
    {organizer::kDeleteGroupMemberOrigin, 1, "Delete Group Member", {240, 163}, "cmdDelete", "Delete", 1, "Cancel"},
    {organizer::kDeleteATaskFromMenuOrigin, 2, "Delete A Task\\Event", {367, 226}, "cmdDelete_1", "Delete", 2,
     "Cancel"},
    {organizer::kSelectTaskInfoWindowOrigin, 2, "View Task\\Event Information", {367, 226}, "cmdDelete_1", "View", 2,
     "Close"},
    {organizer::kActivateNonTaskReminderWindow, 3, "Create Non-Task Reminder", {263, 362}, "cmdAdd_3", "Add", 3,
     "Close"},
    {organizer::kActivateChangeNTTaskWindow, 3, "Change Non-Task Reminder", {263, 362}, "cmdAdd_3", "Update", 3,
     "Close"},
    {organizer::kActivateDeleteNTTaskWindow, 4, "Delete Non-Task Reminder", {359, 162}, "cmdDelete_4", "Delete", 4,
     "Close"},
    {organizer::kActivateViewNTTaskWindow, 4, "Change Non-Task Reminder", {359, 162}, "cmdDelete_4", "Select", 4,
     "Close"},
    {organizer::kActivatePrintLogScreen, 5, "Print Log", {311, 402}, "", "", 5, "Cancel"},
};

TEST_F(frmMultiPurposeFormTest, EachOriginGivesItsFrameCaptionSizeDefaultAndCancel) {
  for (const ExpectedPurpose& expected : kExpected) {
    SCOPED_TRACE(std::string(expected.origin));
    Open_For(expected.origin);
    ASSERT_TRUE(form().isVisible());
    EXPECT_EQ(form().windowTitle().toStdString(), expected.caption);
    EXPECT_EQ(form().size(), expected.size);
    EXPECT_EQ(Shown_Frames(), std::vector<int>{expected.frame});
    EXPECT_EQ(form().Frame(static_cast<reminders::MultiPurposeFrame>(expected.frame))->pos(), QPoint(0, 0));
    const std::vector<QPushButton*> defaults = Default_Buttons();
    if (*expected.default_button == '\0') {
      EXPECT_TRUE(defaults.empty());
    } else {
      ASSERT_EQ(defaults.size(), 1u);
      EXPECT_EQ(defaults.front()->objectName().toStdString(), expected.default_button);
      EXPECT_EQ(defaults.front()->text().toStdString(), expected.default_caption);
    }
    ASSERT_EQ(Cancel_Buttons().size(), 1u);
    EXPECT_EQ(Cancel_Buttons().front(), form().cmdCancel[static_cast<std::size_t>(expected.cancel)]);
    EXPECT_EQ(Cancel_Buttons().front()->text().toStdString(), expected.cancel_caption);
  }
}

TEST_F(frmMultiPurposeFormTest, TheHeadingsTellTheModeOfFramesTwoAndFour) {
  Open_For(organizer::kDeleteATaskFromMenuOrigin);
  EXPECT_EQ(controls::Caption(form().lblListBoxHeadingLabel_2), "Select Task To Delete:");
  Open_For(organizer::kSelectTaskInfoWindowOrigin);
  EXPECT_EQ(controls::Caption(form().lblListBoxHeadingLabel_2), "Select Task To View:");
  Open_For(organizer::kActivateDeleteNTTaskWindow);
  EXPECT_EQ(controls::Caption(form().lblHeadingLabel_4), "Select Message To Delete");
  Open_For(organizer::kActivateViewNTTaskWindow);
  EXPECT_EQ(controls::Caption(form().lblHeadingLabel_4), "Select Message To View");
}

TEST_F(frmMultiPurposeFormTest, AnUnknownOriginLeavesTheWindowBlankAndHidden) {
  Open_For(organizer::kAddNewGroupMemberOrigin);
  Open_For("add_new_group_member()");
  EXPECT_FALSE(form().isVisible());
  EXPECT_TRUE(Shown_Frames().empty());
  EXPECT_TRUE(Default_Buttons().empty());
  EXPECT_TRUE(Cancel_Buttons().empty());
}

// ---- The end of a purpose ----------------------------------------------------------------------------

TEST_F(frmMultiPurposeFormTest, TheTerminationHidesAllAndTakesEveryRoleAway) {
  Open_For(organizer::kActivateDeleteNTTaskWindow);
  form().cmdDelete_4->setEnabled(true);
  form().txtNewPerson->setText("Kept");
  form().Form_Termination_Routine();
  EXPECT_FALSE(form().isVisible());
  EXPECT_TRUE(Shown_Frames().empty());
  EXPECT_TRUE(Default_Buttons().empty());
  EXPECT_TRUE(Cancel_Buttons().empty());
  EXPECT_FALSE(form().cmdDelete_4->isEnabled());
  EXPECT_EQ(form().txtNewPerson->text().toStdString(), "Kept") << "texts are left alone";
}

TEST_F(frmMultiPurposeFormTest, AfterAnyPurposeTheNextHasOnlyItsOwnDefaultAndCancel) {
  for (const ExpectedPurpose& before : kExpected) {
    for (const ExpectedPurpose& after : kExpected) {
      Open_For(before.origin);
      Open_For(after.origin);
      SCOPED_TRACE(std::string(before.origin) + " then " + std::string(after.origin));
      EXPECT_EQ(Default_Buttons().size(), *after.default_button == '\0' ? 0u : 1u);
      ASSERT_EQ(Cancel_Buttons().size(), 1u);
      EXPECT_EQ(Cancel_Buttons().front(), form().cmdCancel[static_cast<std::size_t>(after.cancel)]);
      EXPECT_EQ(Shown_Frames(), std::vector<int>{after.frame});
    }
  }
}

TEST_F(frmMultiPurposeFormTest, EachCancelButtonEndsThePurpose) {
  for (const ExpectedPurpose& expected : kExpected) {
    Open_For(expected.origin);
    Click(form().cmdCancel[static_cast<std::size_t>(expected.cancel)]);
    EXPECT_FALSE(form().isVisible()) << expected.origin;
    EXPECT_TRUE(Cancel_Buttons().empty());
  }
}

TEST_F(frmMultiPurposeFormTest, EscapeEndsThePurposeOnShow) {
  for (const ExpectedPurpose& expected : kExpected) {
    Open_For(expected.origin);
    Press_Keys(form(), QKeySequence(Qt::Key_Escape));
    EXPECT_FALSE(form().isVisible()) << expected.origin;
  }
}

TEST_F(frmMultiPurposeFormTest, TheCloseBoxRunsTheUnloadStepsAndOnlyHides) {
  Open_For(organizer::kSelectTaskInfoWindowOrigin);
  frmMultiPurposeForm* before = &form();
  EXPECT_TRUE(form().close());
  Process_Events();
  EXPECT_FALSE(form().isVisible());
  EXPECT_TRUE(Cancel_Buttons().empty());
  EXPECT_TRUE(Default_Buttons().empty());
  EXPECT_EQ(&form(), before);
  Open_For(organizer::kAddNewGroupMemberOrigin);
  EXPECT_TRUE(form().isVisible());
}

TEST_F(frmMultiPurposeFormTest, ItIsNotModal) {
  Open_For(organizer::kAddNewGroupMemberOrigin);
  EXPECT_FALSE(form().isModal());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

// ---- Places -------------------------------------------------------------------------------------------

// Frames 0 to 2; the other frames' tests check theirs alike.
TEST_F(frmMultiPurposeFormTest, NoControlOfAFrameCoversAnotherOrStandsOutside) {
  for (const ExpectedPurpose& expected : std::span(kExpected).first(4)) {
    Open_For(expected.origin);
    SCOPED_TRACE(std::string(expected.origin));
    const QFrame* frame = form().Frame(static_cast<reminders::MultiPurposeFrame>(expected.frame));
    EXPECT_EQ(frame->size(), form().size());
    Expect_Placed_Apart(frame);
  }
}

}  // namespace
}  // namespace orrivane
