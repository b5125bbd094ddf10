// The licence window: sixteen rows drawn at fixed positions, moved by the buttons, with a beep at
// the stops and back to the top on each activation.
#include <QApplication>
#include <QEvent>
#include <QImage>
#include <QPushButton>

#include "platform/controls.h"
#include "platform/window_registry.h"
#include "shell/frmLiscense.h"
#include "shell/licence_text.h"
#include "shell/row_window_test.h"
#include "support/window_fixture.h"

namespace orrivane {
namespace {

class frmLiscenseTest : public testing::RowWindowTest<frmLiscense> {
 protected:
  frmLiscense& Licence() { return The_Window(); }

  // The rows first to first + 15 as the window should print them.
  static std::vector<std::string> Rows_From(int first) {
    std::vector<std::string> rows;
    for (int row = first; row < first + 16; ++row) rows.emplace_back(shell::Licence_Row(row));
    return rows;
  }

  // The band of the window where row i (6 to 21) of the view is printed.
  QRect Band(int i) { return QRect(controls::Px(500), controls::Px(220 * i), Licence().width() - 40, 14); }
};

TEST_F(frmLiscenseTest, OpensAtTheTopWithTheEmptyCellAboveRowOne) {
  Licence().show();
  EXPECT_EQ(Licence().windowTitle(), "License");
  EXPECT_EQ(Licence().Position(), 0);
  const auto& printed = Licence().Printed_Rows();
  ASSERT_EQ(printed.size(), 16u);
  for (int i = 6; i <= 21; ++i) {
    EXPECT_EQ(printed[i - 6].x_twips, 500);
    EXPECT_EQ(printed[i - 6].y_twips, 220 * i);
  }
  EXPECT_EQ(Texts(), Rows_From(0));
  EXPECT_EQ(Texts()[0], "");
  EXPECT_EQ(Texts()[1], "                    GNU GENERAL PUBLIC LICENSE");
  EXPECT_EQ(machine().Beeps(), 0);
}

TEST_F(frmLiscenseTest, TheTopViewDrawsNothingInTheFirstRowAndTheTitleBelowIt) {
  Licence().show();
  const QImage image = Licence().grab().toImage();
  EXPECT_EQ(Ink(image, Band(6)), 0);
  EXPECT_GT(Ink(image, Band(7)), 0);
  EXPECT_GT(Ink(image, Band(8)), 0);
}

TEST_F(frmLiscenseTest, UpAtTheTopBeepsAndTheViewStays) {
  Licence().show();
  Press("CmdUP");
  EXPECT_EQ(machine().Beeps(), 1);
  EXPECT_EQ(Licence().Position(), 0);
  EXPECT_EQ(Texts(), Rows_From(0));
}

TEST_F(frmLiscenseTest, PageUpAtTheTopBeepsAndTheViewStays) {
  Licence().show();
  Press("CmdPageUp");
  EXPECT_EQ(machine().Beeps(), 1);
  EXPECT_EQ(Licence().Position(), 0);
}

TEST_F(frmLiscenseTest, DownAndUpMoveOneRow) {
  Licence().show();
  Press("CmdDown");
  EXPECT_EQ(Licence().Position(), 1);
  EXPECT_EQ(Texts(), Rows_From(1));
  Press("CmdDown");
  Press("CmdUP");
  EXPECT_EQ(Licence().Position(), 1);
  EXPECT_EQ(machine().Beeps(), 0);
}

TEST_F(frmLiscenseTest, PageStepsAreThirteenRows) {
  Licence().show();
  Press("CmdPageDown");
  EXPECT_EQ(Licence().Position(), 13);
  EXPECT_EQ(Texts(), Rows_From(13));
  Press("CmdPageDown");
  EXPECT_EQ(Licence().Position(), 26);
  Press("CmdPageUp");
  EXPECT_EQ(Licence().Position(), 13);
  EXPECT_EQ(machine().Beeps(), 0);
}

TEST_F(frmLiscenseTest, PageUpNearTheTopLandsOnTheTopWithABeep) {
  Licence().show();
  Press("CmdDown");
  Press("CmdDown");
  Press("CmdPageUp");
  EXPECT_EQ(Licence().Position(), 0);
  EXPECT_EQ(machine().Beeps(), 1);
}

TEST_F(frmLiscenseTest, EndShowsTheLastSixteenRowsWithoutABeep) {
  Licence().show();
  Press("CmdEnd");
  EXPECT_EQ(Licence().Position(), 330);
  EXPECT_EQ(Texts(), Rows_From(330));
  EXPECT_EQ(Texts().front(), shell::Licence_Row(330));
  EXPECT_EQ(Texts()[14], "");  // row 344
  EXPECT_EQ(Texts()[15], "");  // row 345
  EXPECT_EQ(machine().Beeps(), 0);
}

TEST_F(frmLiscenseTest, PageDownAt325LandsOn330WithABeep) {
  Licence().show();
  Press("CmdEnd");
  for (int i = 0; i < 5; ++i) Press("CmdUP");
  ASSERT_EQ(Licence().Position(), 325);
  ASSERT_EQ(machine().Beeps(), 0);
  Press("CmdPageDown");
  EXPECT_EQ(Licence().Position(), 330);
  EXPECT_EQ(machine().Beeps(), 1);
  EXPECT_EQ(Texts(), Rows_From(330));
}

TEST_F(frmLiscenseTest, PageDownThatEndsExactlyOnTheStopDoesNotBeep) {
  Licence().show();
  Press("CmdEnd");
  for (int i = 0; i < 13; ++i) Press("CmdUP");
  ASSERT_EQ(Licence().Position(), 317);
  Press("CmdPageDown");
  EXPECT_EQ(Licence().Position(), 330);
  EXPECT_EQ(machine().Beeps(), 0);
}

TEST_F(frmLiscenseTest, DownAtTheEndBeepsAndTheViewStays) {
  Licence().show();
  Press("CmdEnd");
  Press("CmdDown");
  EXPECT_EQ(Licence().Position(), 330);
  EXPECT_EQ(Texts(), Rows_From(330));
  EXPECT_EQ(machine().Beeps(), 1);
}

TEST_F(frmLiscenseTest, HomeGoesBackToTheTop) {
  Licence().show();
  Press("CmdEnd");
  Press("CmdHome");
  EXPECT_EQ(Licence().Position(), 0);
  EXPECT_EQ(Texts(), Rows_From(0));
  EXPECT_EQ(machine().Beeps(), 0);
}

TEST_F(frmLiscenseTest, RefreshAndUnknownVerbsRedrawWithoutMoving) {
  Licence().show();
  Press("CmdPageDown");
  Licence().Scroll("refresh");
  EXPECT_EQ(Licence().Position(), 13);
  EXPECT_EQ(Texts(), Rows_From(13));
  Licence().Scroll("Down");
  EXPECT_EQ(Licence().Position(), 13);
  EXPECT_EQ(machine().Beeps(), 0);
}

TEST_F(frmLiscenseTest, ARepaintRedrawsTheSameRows) {
  Licence().show();
  Press("CmdPageDown");
  Press("CmdPageDown");
  const QImage before = Licence().grab().toImage();
  Licence().repaint();
  Process_Events();
  EXPECT_EQ(Licence().Position(), 26);
  EXPECT_EQ(Texts(), Rows_From(26));
  EXPECT_EQ(Licence().grab().toImage(), before);
  EXPECT_GT(Ink(before, Band(6)), 0);
  EXPECT_EQ(machine().Beeps(), 0);
}

TEST_F(frmLiscenseTest, ResizingRedrawsTheSameRows) {
  Licence().show();
  Press("CmdPageDown");
  Licence().resize(Licence().width() + 40, Licence().height() + 30);
  Process_Events();
  const QImage image = Licence().grab().toImage();
  EXPECT_EQ(Licence().Position(), 13);
  EXPECT_EQ(Texts(), Rows_From(13));
  EXPECT_GT(Ink(image, Band(6)), 0);
  EXPECT_EQ(machine().Beeps(), 0);
}

TEST_F(frmLiscenseTest, EachActivationGoesBackToTheTop) {
  Licence().show();
  Press("CmdPageDown");
  // The first activation after showing is the one the show already handled.
  QEvent activate(QEvent::WindowActivate);
  QApplication::sendEvent(&Licence(), &activate);
  EXPECT_EQ(Licence().Position(), 13);
  // Coming back from another window is a new activation.
  QEvent deactivate(QEvent::WindowDeactivate);
  QApplication::sendEvent(&Licence(), &deactivate);
  EXPECT_EQ(Licence().Position(), 13);
  QApplication::sendEvent(&Licence(), &activate);
  EXPECT_EQ(Licence().Position(), 0);
  EXPECT_EQ(Texts(), Rows_From(0));
  EXPECT_EQ(machine().Beeps(), 0);
}

TEST_F(frmLiscenseTest, ThePositionSurvivesHidingAndShowingGoesBackToTheTop) {
  Licence().show();
  Press("CmdEnd");
  Licence().hide();
  EXPECT_EQ(Licence().Position(), 330);
  Licence().show();
  EXPECT_EQ(Licence().Position(), 0);
}

TEST_F(frmLiscenseTest, CloseGoesBackToTheTopAndHides) {
  Licence().show();
  Press("CmdPageDown");
  Press("cmdClose");
  EXPECT_FALSE(Licence().isVisible());
  EXPECT_EQ(Licence().Position(), 0);
  EXPECT_EQ(Texts(), Rows_From(0));
}

TEST_F(frmLiscenseTest, DataSourceAnswersTheLicenceRowsAndEmptyOtherwise) {
  EXPECT_EQ(Licence().DataSource(1), "                    GNU GENERAL PUBLIC LICENSE");
  EXPECT_EQ(Licence().DataSource(2), "                       Version 2, June 1991");
  EXPECT_EQ(Licence().DataSource(0), "");
  EXPECT_EQ(Licence().DataSource(344), "");
  EXPECT_EQ(Licence().DataSource(345), "");
  EXPECT_EQ(Licence().DataSource(346), "");
  EXPECT_EQ(Licence().DataSource(-5), "");
}

TEST_F(frmLiscenseTest, ButtonsCarryTheirCaptions) {
  const std::pair<const char*, const char*> captions[] = {
      {"CmdUP", "Up"},     {"CmdDown", "Down"}, {"CmdPageUp", "Page Up"}, {"CmdPageDown", "Page Down"},
      {"CmdHome", "Home"}, {"CmdEnd", "End"},   {"cmdClose", "Close"},
  };
  for (const auto& [name, caption] : captions) {
    QPushButton* button = Control<QPushButton>(Licence(), name);
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->text(), caption) << name;
  }
}

TEST_F(frmLiscenseTest, TheButtonsStayClearOfTheRowsAndTheRowsFitTheWindow) {
  Licence().show();
  const QRect rows(controls::Px(500), controls::Px(220 * 6), 1, controls::Px(220 * 16));
  for (QPushButton* button : Licence().findChildren<QPushButton*>()) {
    EXPECT_LT(button->geometry().bottom(), rows.top()) << button->objectName().toStdString();
  }
  EXPECT_GE(Licence().height(), controls::Px(220 * 21) + 15);
}

TEST_F(frmLiscenseTest, EveryRowFitsTheWidthOfTheWindow) {
  Licence().show();
  const int width = Licence().width();
  for (int page = 0; page < 22; ++page) {
    const QImage image = Licence().grab().toImage();
    const QRect margin(width - 12, controls::Px(220 * 6), 12, controls::Px(220 * 16));
    EXPECT_EQ(Ink(image, margin), 0) << "view from row " << Licence().Position();
    for (int i = 0; i < 16; ++i) Licence().Scroll("down");
  }
}

TEST_F(frmLiscenseTest, EscapeClosesTheWindow) {
  controls::Show_In_Front(The_Window());
  Process_Events();
  Press_Keys(The_Window(), QKeySequence(Qt::Key_Escape));
  EXPECT_FALSE(The_Window().isVisible());
}

}  // namespace
}  // namespace orrivane
