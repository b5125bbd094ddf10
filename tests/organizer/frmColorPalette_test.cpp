// The palette of task colours: its 50 colours, whom it serves, and how it hands a colour back.
#include <QTest>

#include "organizer/colour_palette.h"
#include "organizer/frmChangeTaskIdInfo.h"
#include "organizer/frmTaskInformation.h"
#include "organizer/new_task_window_test.h"
#include "organizer/organizer_callers.h"

namespace orrivane {
namespace {

class frmColorPaletteTest : public testing::NewTaskWindowTest {
 protected:
  void SetUp() override {
    NewTaskWindowTest::SetUp();
    Open_Entry();
  }

  unsigned Palette_Choice() { return controls::Back_Color(palette().lblColorChoice); }
  void Pick(int index) { QTest::mouseClick(palette().lblColor.at(static_cast<std::size_t>(index)), Qt::LeftButton); }

  // The palette opened from the new-task window's Select..., its activation come through.
  void Open_From_New_Task() {
    Click(entry().cmdSelect);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&palette()));
    Process_Events();
  }

  // The palette opened by another caller the way the first two callers open it: shown in front,
  // then told whom it serves.
  void Open_For(std::string_view caller) {
    controls::Show_In_Front(palette());
    controls::Set_Caption(palette().lblStoreCallingProcedureArgument, std::string(caller));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&palette()));
    Process_Events();
  }

  QLabel* Information_Colour() { return Window<frmTaskInformation>().lblColorCode; }
};

TEST_F(frmColorPaletteTest, FiftyColoursInTwoColumnsOf25) {
  for (int index = 0; index < organizer::kPaletteColours; ++index) {
    QLabel* swatch = Control<QLabel>(palette(), controls::Array_Name("lblColor", index));
    ASSERT_NE(swatch, nullptr);
    EXPECT_EQ(controls::Back_Color(swatch), organizer::kPalette[static_cast<std::size_t>(index)]) << index;
    const QLabel* first_of_column = palette().lblColor[static_cast<std::size_t>(organizer::Palette_Column(index) * 25)];
    EXPECT_EQ(swatch->x(), first_of_column->x()) << index;
    if (index % 25 != 0) {
      EXPECT_GT(swatch->y(), palette().lblColor[static_cast<std::size_t>(index - 1)]->geometry().bottom()) << index;
    }
  }
  EXPECT_LT(palette().lblColor[0]->geometry().right(), palette().lblColor[25]->x());
  EXPECT_EQ(palette().lblColor[0]->y(), palette().lblColor[25]->y());
  EXPECT_FALSE(palette().lblStoreCallingProcedureArgument->isVisibleTo(&palette()));
  EXPECT_EQ(palette().cmdSelect->text(), "Select");
  EXPECT_EQ(palette().cmdCancel->text(), "Cancel");
}

TEST_F(frmColorPaletteTest, TheNewTaskWindowSeesItsOwnColourAndGetsThePick) {
  const unsigned before = Colour_Choice();
  Open_From_New_Task();
  EXPECT_EQ(controls::Caption(palette().lblStoreCallingProcedureArgument),
            "frmAddNewAppointment_Reminder.cmdSelect_Click()");
  EXPECT_EQ(Palette_Choice(), before);
  Pick(35);
  EXPECT_EQ(Palette_Choice(), 0xFF0000u);
  EXPECT_EQ(Colour_Choice(), before) << "nothing goes back before Select";
  Click(palette().cmdSelect);
  EXPECT_FALSE(palette().isVisible());
  EXPECT_EQ(Colour_Choice(), 0xFF0000u);
}

TEST_F(frmColorPaletteTest, LightGreyCanBePickedByHand) {
  Open_From_New_Task();
  Pick(organizer::kLightGreyIndex);
  Click(palette().cmdSelect);
  EXPECT_EQ(Colour_Choice(), 12632256u);
}

TEST_F(frmColorPaletteTest, CancelLeavesTheCallersColour) {
  const unsigned before = Colour_Choice();
  Open_From_New_Task();
  Pick(before == organizer::kPalette[8] ? 9 : 8);
  Click(palette().cmdCancel);
  EXPECT_FALSE(palette().isVisible());
  EXPECT_EQ(Colour_Choice(), before);
}

TEST_F(frmColorPaletteTest, AnotherWindowBecomingActivePutsItAwayAndTheColourStays) {
  const unsigned before = Colour_Choice();
  Open_From_New_Task();
  Pick(before == organizer::kPalette[8] ? 9 : 8);
  controls::Show_In_Front(entry());
  ASSERT_TRUE(QTest::qWaitForWindowActive(&entry()));
  Process_Events();
  EXPECT_FALSE(palette().isVisible());
  EXPECT_EQ(Colour_Choice(), before);
}

TEST_F(frmColorPaletteTest, TheTaskInformationWindowSeesItsOwnColourAndGetsThePick) {
  controls::Set_Back_Color(Information_Colour(), organizer::kPalette[40]);
  Open_For(organizer::kTaskInformationSelectColour);
  EXPECT_EQ(Palette_Choice(), organizer::kPalette[40]);
  Pick(12);
  Click(palette().cmdSelect);
  EXPECT_EQ(controls::Back_Color(Information_Colour()), organizer::kPalette[12]);
}

TEST_F(frmColorPaletteTest, CallersInTurnEachSeeTheirOwnColour) {
  controls::Set_Back_Color(Information_Colour(), organizer::kPalette[40]);
  controls::Set_Back_Color(entry().lblColorChoice, organizer::kPalette[20]);
  Open_For(organizer::kTaskInformationSelectColour);
  EXPECT_EQ(Palette_Choice(), organizer::kPalette[40]);
  Click(palette().cmdCancel);
  Open_From_New_Task();
  EXPECT_EQ(Palette_Choice(), organizer::kPalette[20]);
}

TEST_F(frmColorPaletteTest, AnUnknownOrMiscasedCallerGetsNothing) {
  for (const char* caller : {"frmaddnewappointment_reminder.cmdselect_click()", "frmAddNewAppointment_Reminder", ""}) {
    controls::Set_Back_Color(palette().lblColorChoice, organizer::kPalette[7]);
    const unsigned before = Colour_Choice();
    Open_For(caller);
    EXPECT_EQ(Palette_Choice(), organizer::kPalette[7]) << caller << ": no colour is taken";
    Pick(before == organizer::kPalette[30] ? 31 : 30);
    Click(palette().cmdSelect);
    EXPECT_FALSE(palette().isVisible());
    EXPECT_EQ(Colour_Choice(), before) << caller;
  }
}

// The caller that changes a task's name and person writes its identity only once the palette
// has closed: while the palette is open the label holds the last caller's identity, whom the
// pick then reaches; the caller's own label is reached on the next visit only.
TEST_F(frmColorPaletteTest, TheLateLabelServesTheCallerBefore) {
  controls::Set_Back_Color(Information_Colour(), organizer::kPalette[40]);
  Open_For(organizer::kTaskInformationSelectColour);
  Click(palette().cmdCancel);

  controls::Show_In_Front(palette());  // opened from the caller to come: its identity not yet written
  ASSERT_TRUE(QTest::qWaitForWindowActive(&palette()));
  Process_Events();
  EXPECT_EQ(Palette_Choice(), organizer::kPalette[40]);
  Pick(45);
  Click(palette().cmdSelect);
  controls::Set_Caption(palette().lblStoreCallingProcedureArgument,
                        std::string(organizer::kChangeTaskInfoSelectColour));
  EXPECT_EQ(controls::Back_Color(Information_Colour()), organizer::kPalette[45]);
}

TEST_F(frmColorPaletteTest, TheIdentityWindowHasItsIdentityAndGetsThePickInItsNewColour) {
  EXPECT_EQ(organizer::kChangeTaskInfoSelectColour, "frmChangeTaskInfo.CmdChangeColorCode_Click()");
  EXPECT_EQ(organizer::kTaskInformationSelectColour, "frmTaskInformation.cmdSelectNewColorCode_Click()");
  QLabel* identity_colour = Window<frmChangeTaskIdInfo>().lblNewColorCode;
  controls::Set_Back_Color(identity_colour, organizer::kPalette[22]);
  const unsigned information = controls::Back_Color(Information_Colour());
  Open_For(organizer::kChangeTaskInfoSelectColour);
  EXPECT_EQ(Palette_Choice(), organizer::kPalette[22]);
  Pick(30);
  Click(palette().cmdSelect);
  EXPECT_EQ(controls::Back_Color(identity_colour), organizer::kPalette[30]);
  EXPECT_EQ(controls::Back_Color(Information_Colour()), information);
}

}  // namespace
}  // namespace orrivane
