// The About window: five rows of the notice drawn at fixed positions, moved by the buttons, with
// a beep at the stops, back to the top on each activation, and the way to the licence.
#include <QApplication>
#include <QEvent>
#include <QImage>
#include <QPushButton>

#include "platform/controls.h"
#include "platform/window_registry.h"
#include "shell/frmAbout.h"
#include "shell/frmLiscense.h"
#include "shell/row_window_test.h"
#include "support/window_fixture.h"

namespace orrivane {
namespace {

class frmAboutTest : public testing::RowWindowTest<frmAbout> {
 protected:
  frmAbout& About() { return The_Window(); }

  // The rows first to first + 4 as the window should print them.
  std::vector<std::string> Rows_From(int first) {
    std::vector<std::string> rows;
    for (int row = first; row < first + 5; ++row) rows.push_back(About().DataSource(row));
    return rows;
  }
};

TEST_F(frmAboutTest, OpensOnRowsOneToFiveAtTheirPlaces) {
  About().show();
  EXPECT_EQ(About().windowTitle(), "About Orrivane");
  EXPECT_EQ(About().Position(), 1);
  const auto& printed = About().Printed_Rows();
  ASSERT_EQ(printed.size(), 5u);
  for (int i = 1; i <= 5; ++i) {
    EXPECT_EQ(printed[i - 1].x_twips, 415);
    EXPECT_EQ(printed[i - 1].y_twips, 4380 + 220 * i);
  }
  EXPECT_EQ(Texts(), Rows_From(1));
  EXPECT_EQ(machine().Beeps(), 0);
}

TEST_F(frmAboutTest, TheRowsAreDrawnOnTheWindow) {
  About().show();
  const QImage image = About().grab().toImage();
  for (int i = 1; i <= 5; ++i) {
    const QRect band(controls::Px(415), controls::Px(4380 + 220 * i), About().width() - 40, 14);
    EXPECT_GT(Ink(image, band), 0) << "row " << i;
  }
}

TEST_F(frmAboutTest, TheNoticeNamesTheProgramAndItsLicense) {
  std::string notice;
  for (int row = 1; row <= 29; ++row) notice += About().DataSource(row) + " ";
  EXPECT_NE(About().DataSource(1).find("Orrivane 3.0"), std::string::npos);
  EXPECT_NE(notice.find("free software"), std::string::npos);
  EXPECT_NE(notice.find("GNU General Public License"), std::string::npos);
  EXPECT_NE(notice.find("version 2"), std::string::npos);
  EXPECT_NE(notice.find("any later version"), std::string::npos);
  EXPECT_NE(notice.find("WITHOUT ANY WARRANTY"), std::string::npos);
}

TEST_F(frmAboutTest, RowsThirteenTwentyTwoTwentyEightAndTwentyNineAreEmpty) {
  for (int row = 1; row <= 29; ++row) {
    const bool empty = row == 13 || row == 22 || row == 28 || row == 29;
    EXPECT_EQ(About().DataSource(row).empty(), empty) << "row " << row;
  }
  EXPECT_EQ(About().DataSource(0), "");
  EXPECT_EQ(About().DataSource(30), "");
}

TEST_F(frmAboutTest, UpAtTheTopBeepsAndStaysOnRowOne) {
  About().show();
  Press("CmdUP");
  EXPECT_EQ(About().Position(), 1);
  EXPECT_EQ(Texts(), Rows_From(1));
  EXPECT_EQ(machine().Beeps(), 1);
}

TEST_F(frmAboutTest, DownAndUpStepOneRow) {
  About().show();
  Press("CmdDown");
  EXPECT_EQ(About().Position(), 2);
  EXPECT_EQ(Texts(), Rows_From(2));
  Press("CmdDown");
  Press("CmdUP");
  EXPECT_EQ(About().Position(), 2);
  EXPECT_EQ(machine().Beeps(), 0);
}

TEST_F(frmAboutTest, PageStepsAreFourRows) {
  About().show();
  Press("CmdPageDown");
  EXPECT_EQ(About().Position(), 5);
  EXPECT_EQ(Texts(), Rows_From(5));
  Press("CmdPageDown");
  Press("CmdPageUp");
  EXPECT_EQ(About().Position(), 5);
  Press("CmdPageUp");
  EXPECT_EQ(About().Position(), 1);
  EXPECT_EQ(machine().Beeps(), 0);
}

TEST_F(frmAboutTest, PageUpThatPassesTheTopLandsOnRowOneWithABeep) {
  About().show();
  Press("CmdDown");
  Press("CmdDown");
  Press("CmdPageUp");
  EXPECT_EQ(About().Position(), 1);
  EXPECT_EQ(machine().Beeps(), 1);
}

TEST_F(frmAboutTest, TheLastViewIsRowsTwentyFiveToTwentyNine) {
  About().show();
  for (int i = 0; i < 6; ++i) Press("CmdPageDown");
  EXPECT_EQ(About().Position(), 25);
  EXPECT_EQ(machine().Beeps(), 0);
  EXPECT_EQ(Texts(), Rows_From(25));
  EXPECT_EQ(Texts()[3], "");
  EXPECT_EQ(Texts()[4], "");
}

TEST_F(frmAboutTest, DownAtTheLastViewBeepsAndStays) {
  About().show();
  for (int i = 0; i < 6; ++i) Press("CmdPageDown");
  Press("CmdDown");
  EXPECT_EQ(About().Position(), 25);
  EXPECT_EQ(Texts(), Rows_From(25));
  EXPECT_EQ(machine().Beeps(), 1);
}

TEST_F(frmAboutTest, PageDownThatPassesTheEndLandsOnTwentyFiveWithABeep) {
  About().show();
  for (int i = 0; i < 5; ++i) Press("CmdPageDown");
  Press("CmdDown");
  ASSERT_EQ(About().Position(), 22);
  Press("CmdPageDown");
  EXPECT_EQ(About().Position(), 25);
  EXPECT_EQ(machine().Beeps(), 1);
}

TEST_F(frmAboutTest, BeforeAnyActivationUpLandsOnRowOneWithABeep) {
  EXPECT_EQ(About().Position(), 0);
  About().CopyFair("up");
  EXPECT_EQ(About().Position(), 1);
  EXPECT_EQ(machine().Beeps(), 1);
}

TEST_F(frmAboutTest, EachActivationGoesBackToTheTop) {
  About().show();
  Press("CmdPageDown");
  QEvent activate(QEvent::WindowActivate);
  QApplication::sendEvent(&About(), &activate);
  EXPECT_EQ(About().Position(), 5);
  QEvent deactivate(QEvent::WindowDeactivate);
  QApplication::sendEvent(&About(), &deactivate);
  QApplication::sendEvent(&About(), &activate);
  EXPECT_EQ(About().Position(), 1);
  EXPECT_EQ(Texts(), Rows_From(1));
  Press("CmdPageDown");
  About().hide();
  EXPECT_EQ(About().Position(), 5);
  About().show();
  EXPECT_EQ(About().Position(), 1);
  EXPECT_EQ(machine().Beeps(), 0);
}

TEST_F(frmAboutTest, ARepaintRedrawsTheSameRows) {
  About().show();
  Press("CmdPageDown");
  const QImage before = About().grab().toImage();
  About().repaint();
  Process_Events();
  EXPECT_EQ(About().Position(), 5);
  EXPECT_EQ(Texts(), Rows_From(5));
  EXPECT_EQ(About().grab().toImage(), before);
}

TEST_F(frmAboutTest, ViewGplLicenseShowsTheLicenceAtItsTop) {
  About().show();
  QPushButton* view = Control<QPushButton>(About(), "CmdViewGPLLiscense");
  ASSERT_NE(view, nullptr);
  EXPECT_EQ(view->text(), "View GPL Liscense ");
  Click(view);
  ASSERT_TRUE(Window_Exists<frmLiscense>());
  EXPECT_TRUE(Window<frmLiscense>().isVisible());
  EXPECT_EQ(Window<frmLiscense>().windowTitle(), "License");
  EXPECT_EQ(Window<frmLiscense>().Position(), 0);
  EXPECT_TRUE(About().isVisible());
}

TEST_F(frmAboutTest, CloseHidesTheWindow) {
  About().show();
  Press("CmdDown");
  Press("cmdClose");
  EXPECT_FALSE(About().isVisible());
  EXPECT_EQ(About().Position(), 2);
}

TEST_F(frmAboutTest, ButtonsCarryTheirCaptionsAndStayClearOfTheRows) {
  const std::pair<const char*, const char*> captions[] = {
      {"CmdUP", "Up"},         {"CmdDown", "Down"},  {"CmdPageUp", "Page Up"},
      {"CmdPageDown", "Page Down"}, {"cmdClose", "Close"}, {"CmdViewGPLLiscense", "View GPL Liscense "},
  };
  const QRect rows(controls::Px(415), controls::Px(4380 + 220), 300, controls::Px(220 * 5));
  for (const auto& [name, caption] : captions) {
    QPushButton* button = Control<QPushButton>(About(), name);
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->text(), caption) << name;
    EXPECT_FALSE(button->geometry().intersects(rows)) << name;
    EXPECT_TRUE(About().rect().contains(button->geometry())) << name;
  }
  EXPECT_GE(About().height(), controls::Px(4380 + 220 * 5) + 15);
}

TEST_F(frmAboutTest, EscapeClosesTheWindow) {
  controls::Show_In_Front(About());
  Process_Events();
  Press_Keys(About(), QKeySequence(Qt::Key_Escape));
  EXPECT_FALSE(About().isVisible());
}

}  // namespace
}  // namespace orrivane
