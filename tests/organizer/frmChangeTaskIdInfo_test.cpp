// The window that changes a task's name, description, member and colour: what it is opened
// with, the two ways of choosing the member, the palette shown modally with its late label, OK
// back into the task information window, and a new member who gets no marker record.
#include "organizer/frmChangeTaskIdInfo.h"

#include <QApplication>

#include "organizer/task_edit_window_test.h"

namespace orrivane {
namespace {

using controls::Caption;
using organizer::Make_Person_Marker;
using organizer::ScheduleRecord;
using testing::TaskEditWindowTest;

class frmChangeTaskIdInfoTest : public TaskEditWindowTest {
 protected:
  static ScheduleRecord Dentist() { return Task_Without_Reminder(1, "Anna", 2001, "March", "05", "14", "30", "Dentist"); }
  // Anna with the dentist, Ben with a marker only, Carla without a marker but with a task.
  void Show_Dentist() {
    const ScheduleRecord carlas = Task_Without_Reminder(2, "Carla", 2001, "March", "06", "10", "00", "Run");
    Show_In_Log({Make_Person_Marker("Anna"), Dentist(), Make_Person_Marker("Ben"), carlas}, 1);
    Open_Identity();
  }
  std::vector<std::string> Members_In_Box() { return Items(identity().cboExistingPerson); }
  // The member box taken by the user's click, which refills it.
  void Focus_Member_Box() {
    QTest::mouseClick(identity().cboExistingPerson, Qt::LeftButton);
    Process_Events();
    Press_Keys(QKeySequence(Qt::Key_Escape));
  }
};

TEST_F(frmChangeTaskIdInfoTest, ItOpensWithTheTasksPresentIdentityOnBothSides) {
  Show_Dentist();
  EXPECT_EQ(identity().windowTitle().toStdString(), "Change Task\\Event Identity Information");
  EXPECT_EQ(Caption(identity().lblOldRecordName), "Dentist");
  EXPECT_EQ(identity().txtNewRecordName->text().toStdString(), "Dentist");
  EXPECT_EQ(Caption(identity().lblOldRecordDescription), "Checkup");
  EXPECT_EQ(identity().txtNewRecordDescription->text().toStdString(), "Checkup");
  EXPECT_EQ(Caption(identity().lblCurrentGroupMember), "Anna");
  EXPECT_EQ(Caption(identity().lblNewGroupMember), "Anna");
  EXPECT_EQ(controls::Back_Color(identity().lblCurrentColorCode), 16711680u);
  EXPECT_EQ(controls::Back_Color(identity().lblNewColorCode), 16711680u);
  EXPECT_TRUE(identity().optExistingPerson->isChecked());
}

TEST_F(frmChangeTaskIdInfoTest, TheOptionsSwitchBetweenTheBoxAndTheNewName) {
  Show_Dentist();
  EXPECT_TRUE(identity().cboExistingPerson->isEnabled());
  EXPECT_FALSE(identity().txtNewPerson->isEnabled());
  EXPECT_FALSE(identity().cmdAssignToGroupMember->isEnabled());
  EXPECT_EQ(controls::Back_Color(identity().txtNewPerson), controls::kButtonFace);
  Click_Option(identity().optEnterNameOfNewPerson);
  EXPECT_FALSE(identity().optExistingPerson->isChecked());
  EXPECT_FALSE(identity().cboExistingPerson->isEnabled());
  EXPECT_EQ(controls::Back_Color(identity().cboExistingPerson), controls::kButtonFace);
  EXPECT_TRUE(identity().txtNewPerson->isEnabled());
  EXPECT_EQ(controls::Back_Color(identity().txtNewPerson), controls::kWindowBackground);
  EXPECT_TRUE(identity().cmdAssignToGroupMember->isEnabled());
  Click_Option(identity().optExistingPerson);
  EXPECT_TRUE(identity().cboExistingPerson->isEnabled());
  EXPECT_FALSE(identity().txtNewPerson->isEnabled());
}

TEST_F(frmChangeTaskIdInfoTest, TheMemberBoxTakesEveryMemberOfTheLogOnceAndChoosesNone) {
  Show_Dentist();
  Focus_Member_Box();
  EXPECT_EQ(Members_In_Box(), (std::vector<std::string>{"Anna", "Ben", "Carla"}));
  EXPECT_EQ(identity().cboExistingPerson->currentIndex(), -1);
  organizer::Append_Record(organizer::kScheduleFile, Task_At(3, "Dora", 2001, "May", "01", "08", "00", "Walk"));
  identity().txtNewRecordName->setFocus(Qt::TabFocusReason);
  Focus_Member_Box();
  EXPECT_EQ(Members_In_Box(), (std::vector<std::string>{"Anna", "Ben", "Carla", "Dora"}));
}

TEST_F(frmChangeTaskIdInfoTest, ChoosingAMemberMakesTheNewMember) {
  Show_Dentist();
  identity().cboExistingPerson->setFocus(Qt::TabFocusReason);
  Process_Events();
  Press_Keys(identity(), QKeySequence(Qt::Key_Down));
  Press_Keys(identity(), QKeySequence(Qt::Key_Down));
  EXPECT_EQ(Caption(identity().lblNewGroupMember), "Ben");
}

TEST_F(frmChangeTaskIdInfoTest, AssigningWithoutANameIsRefused) {
  Show_Dentist();
  machine().Answer_Next(vbOK, "No Name Entered");
  Assign_New_Member("");
  Expect_Only_Message(Exclamation_Message("No Name Entered", "Please enter the name of the new group member."));
  EXPECT_EQ(Caption(identity().lblNewGroupMember), "Anna");
}

TEST_F(frmChangeTaskIdInfoTest, OKHandsTheIdentityBackAndTheCaptionKeepsTheOldName) {
  Show_Dentist();
  Type(identity().txtNewRecordName, "Orthodontist");
  Type(identity().txtNewRecordDescription, "Braces");
  Assign_New_Member("Dora");
  Trigger(identity(), "cmdOK");
  EXPECT_FALSE(identity().isVisible());
  EXPECT_EQ(Caption(information().lblTaskName), "Orthodontist");
  EXPECT_EQ(Caption(information().lblTaskDescription), "Braces");
  EXPECT_EQ(Caption(information().lblPerson), "Dora");
  EXPECT_TRUE(information().Record_Changed());
  EXPECT_EQ(information().windowTitle().toStdString(), "Task\\Event Information: Dentist");
}

TEST_F(frmChangeTaskIdInfoTest, ANewMemberGetsNoMarkerRecord) {
  Show_Dentist();
  Assign_New_Member("Dora");
  Trigger(identity(), "cmdOK");
  Save();
  const std::vector<ScheduleRecord> log = organizer::samples::Read_Log(organizer::kScheduleFile);
  ASSERT_EQ(log.size(), 4u);
  EXPECT_EQ(log[1].Person_Name, Value("Dora"));
  for (const ScheduleRecord& record : log) {
    EXPECT_FALSE(organizer::Is_Person_Marker(record) && record.Person_Name == Value("Dora"));
  }
}

TEST_F(frmChangeTaskIdInfoTest, CancelChangesNothing) {
  Show_Dentist();
  Type(identity().txtNewRecordName, "Orthodontist");
  Trigger(identity(), "cmdCancel");
  EXPECT_FALSE(identity().isVisible());
  EXPECT_EQ(Caption(information().lblTaskName), "Dentist");
  EXPECT_FALSE(information().Record_Changed());
}

// ---- The palette, third of its callers -----------------------------------------------------------

TEST_F(frmChangeTaskIdInfoTest, ThePaletteIsModalAndItsFirstVisitServesNobodyWhenNoneCameBefore) {
  Show_Dentist();
  bool modal = false;
  When_Modal([this, &modal] {
    Process_Events();
    modal = QApplication::activeModalWidget() == &palette();
    Pick(30);
    Click(palette().cmdSelect);
  });
  Trigger(identity(), "CmdChangeColorCode");
  EXPECT_TRUE(modal);
  EXPECT_FALSE(palette().isVisible());
  EXPECT_EQ(controls::Back_Color(identity().lblNewColorCode), 16711680u);
  EXPECT_EQ(controls::Back_Color(information().lblColorCode), 16711680u);
  EXPECT_EQ(Caption(palette().lblStoreCallingProcedureArgument), organizer::kChangeTaskInfoSelectColour);
  EXPECT_FALSE(palette().isModal()) << "modeless again for its other callers";
}

TEST_F(frmChangeTaskIdInfoTest, TheFirstVisitAfterTheTaskInformationWindowPaintsThatWindowsColour) {
  Show_Dentist();
  Trigger(identity(), "cmdCancel");
  Trigger(information(), "cmdSelectNewColorCode");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&palette()));
  Process_Events();
  Click(palette().cmdCancel);
  Open_Identity();

  Pick_From_Identity(30);
  EXPECT_EQ(controls::Back_Color(information().lblColorCode), organizer::kPalette[30]) << "the caller before";
  EXPECT_EQ(controls::Back_Color(identity().lblNewColorCode), 16711680u);

  Pick_From_Identity(40);
  EXPECT_EQ(controls::Back_Color(identity().lblNewColorCode), organizer::kPalette[40]) << "the next visit";
  Trigger(identity(), "cmdOK");
  EXPECT_EQ(controls::Back_Color(information().lblColorCode), organizer::kPalette[40]);
}

}  // namespace
}  // namespace orrivane
