// The harness itself, and the one place where unhandled failures are caught: the event dispatch.
#include <QPrinterInfo>
#include <QPushButton>
#include <QTest>

#include "core/runtime_failure.h"
#include "core/sequential_file.h"
#include "platform/platform.h"
#include "platform/qt_platform.h"
#include "support/window_fixture.h"

namespace orrivane {
namespace {

using platform::Machine;
using testing::WindowTest;

class DispatchTest : public WindowTest {};

TEST_F(DispatchTest, FailureInAClickIsToldAndEndsTheProgramLeavingTheWorkingFiles) {
  Write_File("Schedule.tmp", "1\r\n");
  QPushButton button("Go");
  button.setObjectName("cmdGo");
  QObject::connect(&button, &QPushButton::clicked, [] { throw RuntimeFailure(kTypeMismatch); });
  button.show();
  machine().Answer_Next(platform::vbOK, "Orrivane");
  Until_The_End([&] { Click(&button); });
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(machine().Messages()[0].title, "Orrivane");
  EXPECT_EQ(machine().Messages()[0].text, "Run-time error '13':\n\nType mismatch");
  EXPECT_EQ(machine().Messages()[0].buttons, platform::vbOKOnly);
  EXPECT_EQ(machine().Exit_Code(), 1);
  EXPECT_TRUE(File_Present("Schedule.tmp"));
}

TEST_F(DispatchTest, InputPastEndOfFileCarriesItsNumberAndText) {
  Write_File("empty.sdl", "");
  QPushButton button("Open");
  QObject::connect(&button, &QPushButton::clicked, [] { SequentialReader("empty.sdl").Input(); });
  machine().Answer_Next(platform::vbOK);
  Until_The_End([&] { Click(&button); });
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(machine().Messages()[0].text, "Run-time error '62':\n\nInput past end of file");
}

TEST_F(DispatchTest, TheClockGivesTheProgramsTextsAndMoves) {
  machine().Set_Now(2001, 3, 5, 14, 5, 9);
  EXPECT_EQ(Machine().System_Date(), "3/5/2001");
  EXPECT_EQ(Machine().System_Time(), "2:05:09 PM");
  machine().Advance_Seconds(10 * 3600);
  EXPECT_EQ(Machine().System_Date(), "3/6/2001");
  EXPECT_EQ(Machine().System_Time(), "12:05:09 AM");
  machine().Set_Now(1999, 12, 31, 12, 0, 0);
  EXPECT_EQ(Machine().System_Time(), "12:00:00 PM");
  machine().Advance_Days(1);
  EXPECT_EQ(Machine().System_Date(), "1/1/2000");
}

TEST_F(DispatchTest, MessagesAreAnsweredFromTheScriptAndRecorded) {
  machine().Answer_Next(platform::vbNo, "Save Changes");
  EXPECT_EQ(Machine().Message_Box("Save it now?", platform::vbYesNo, platform::vbQuestion, "Save Changes"),
            platform::vbNo);
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(machine().Messages()[0].icon, platform::vbQuestion);
  EXPECT_EQ(machine().Messages()[0].answer, platform::vbNo);
}

TEST_F(DispatchTest, PrintedPagesAreKeptAsImagesWithTheirTexts) {
  platform::TextPage page{{1440, 720, "Easter, Sunday, April 20, 2003"}};
  Machine().Print_Text({page, page});
  ASSERT_EQ(machine().Print_Jobs().size(), 1u);
  ASSERT_EQ(machine().Print_Jobs()[0].pages.size(), 2u);
  EXPECT_EQ(machine().Print_Jobs()[0].text[1][0].text, "Easter, Sunday, April 20, 2003");
  const QImage& image = machine().Print_Jobs()[0].pages[0];
  EXPECT_EQ(image.width(), 612);
  // Something dark was drawn near one inch from the left, half an inch from the top.
  bool ink = false;
  for (int x = 72; x < 200 && !ink; ++x)
    for (int y = 36; y < 50 && !ink; ++y) ink = qGray(image.pixel(x, y)) < 128;
  EXPECT_TRUE(ink);
  QWidget window;
  window.resize(100, 50);
  Machine().Print_Window(window);
  EXPECT_EQ(machine().Print_Jobs().size(), 2u);
  EXPECT_EQ(machine().Print_Jobs()[1].pages[0].size(), QSize(100, 50));
}

TEST_F(DispatchTest, APrintedWindowKeepsTheNameOfItsDocument) {
  QWidget window;
  window.resize(100, 50);
  Machine().Print_Window(window, "Orrivane-calendar-March-2024");
  Machine().Print_Window(window);
  ASSERT_EQ(machine().Print_Jobs().size(), 2u);
  EXPECT_EQ(machine().Print_Jobs()[0].document_name, "Orrivane-calendar-March-2024");
  EXPECT_EQ(machine().Print_Jobs()[1].document_name, "");
}

TEST_F(DispatchTest, WithoutAPrinterANamedWindowGoesToAPdfOfThatNameInTheCurrentFolder) {
  if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "this machine has a printer";
  platform::QtPlatform real;
  QWidget window;
  window.resize(300, 200);
  real.Print_Window(window, "Orrivane-calendar-March-2024");
  EXPECT_TRUE(File_Present("Orrivane-calendar-March-2024.pdf"));
  EXPECT_TRUE(Read_File("Orrivane-calendar-March-2024.pdf").starts_with("%PDF"));
}

TEST_F(DispatchTest, BeepsAreCountedAndTheSeededFractionsRepeat) {
  Machine().Beep();
  Machine().Beep();
  EXPECT_EQ(machine().Beeps(), 2);
  Machine().Randomize(3 * 2024);
  const double first = Machine().Rnd();
  Machine().Randomize(3 * 2024);
  EXPECT_EQ(Machine().Rnd(), first);
  EXPECT_GE(first, 0.0);
  EXPECT_LT(first, 1.0);
  machine().Script_Rnd(0.5);
  EXPECT_EQ(Machine().Rnd(), 0.5);
}

TEST_F(DispatchTest, EachTestRunsInAFreshFolder) {
  EXPECT_FALSE(File_Present("Schedule.tmp"));
  Empty_File("Schedule.tmp");
  EXPECT_TRUE(File_Present("Schedule.tmp"));
}

}  // namespace
}  // namespace orrivane
