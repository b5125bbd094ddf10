// The keys of the calendar windows' menus as a user presses them: they work whatever control
// has the focus, and a window asked for again comes to the front.
#include <QApplication>
#include <QComboBox>
#include <QKeySequence>
#include <QLineEdit>
#include <QTest>

#include "calendar/frmDateConversion.h"
#include "calendar/frmFindADate.h"
#include "calendar/frmSelectMonth.h"
#include "calendar_window_test.h"
#include "elapsed/frmFindDateDifference.h"
#include "shell/frmAbout.h"

namespace orrivane {
namespace {

class CalendarMenuKeysTest : public testing::CalendarWindowTest {
 protected:
  void SetUp() override {
    CalendarWindowTest::SetUp();
    Start_Program();
    Window<frmAbout>().hide();  // the start shows it; each test asks for it anew
  }
};

TEST_F(CalendarMenuKeysTest, CtrlAOpensAboutWithTheFocusInTheMemberBoxAtStart) {
  large().cboShowTaskListFor->setFocus();
  Type(large().cboShowTaskListFor->lineEdit(), "Anna");
  Press_Keys(large(), QKeySequence("Ctrl+A"));
  EXPECT_TRUE(Window<frmAbout>().isVisible());
  EXPECT_FALSE(large().cboShowTaskListFor->lineEdit()->hasSelectedText()) << "the box took the key";
}

TEST_F(CalendarMenuKeysTest, CtrlCConvertsWithTheFocusInTheMemberBox) {
  large().cboShowTaskListFor->setFocus();
  Press_Keys(large(), QKeySequence("Ctrl+C"));
  EXPECT_TRUE(Window<frmDateConversion>().isVisible());
}

TEST_F(CalendarMenuKeysTest, CtrlCAndCtrlAWorkAfterF4WithTheFocusInTheWeekdayLine) {
  Press_Keys(large(), QKeySequence(Qt::Key_F4));
  ASSERT_TRUE(main().isVisible());
  main().txtShowWeekday->setFocus();
  Press_Keys(main(), QKeySequence("Ctrl+C"));
  EXPECT_TRUE(Window<frmDateConversion>().isVisible());
  Press_Keys(main(), QKeySequence("Ctrl+A"));
  EXPECT_TRUE(Window<frmAbout>().isVisible());
}

TEST_F(CalendarMenuKeysTest, AboutAskedForAgainComesToTheFront) {
  Press_Keys(large(), QKeySequence("Ctrl+A"));
  Press_Keys(large(), QKeySequence("Ctrl+A"));
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Window<frmAbout>()));
}

// Types into a box that has the focus, as a user does: completion works on a focused box only.
void Type_Into_Focused(QComboBox* box, const char* text) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(box->window()));
  box->setFocus();
  ASSERT_TRUE(box->lineEdit()->hasFocus());
  box->lineEdit()->clear();
  QTest::keyClicks(box->lineEdit(), text);
}

// An editable box takes what is typed, as typed: a century of one digit stays one digit.
TEST_F(CalendarMenuKeysTest, ACenturyOfOneDigitStaysAsTyped) {
  Press_Keys(large(), QKeySequence("Ctrl+T"));
  auto* century = Control<QComboBox>(Window<frmFindDateDifference>(), "ComboCentury(0)");
  Type_Into_Focused(century, "5");
  EXPECT_EQ(century->currentText().toStdString(), "5");
  Type_Into_Focused(century, "1");
  EXPECT_EQ(century->currentText().toStdString(), "1");

  Press_Keys(large(), QKeySequence("Ctrl+W"));
  auto* date_century = Control<QComboBox>(Window<frmFindADate>(), "ComboCentury");
  Type_Into_Focused(date_century, "1");
  EXPECT_EQ(date_century->currentText().toStdString(), "1");
}

// Enter presses the window's default button from any box, as in a dialog.
TEST_F(CalendarMenuKeysTest, EnterInTheYearBoxDisplaysTheChosenMonth) {
  Press_Keys(large(), QKeySequence("Ctrl+M"));
  frmSelectMonth& chooser = Window<frmSelectMonth>();
  ASSERT_TRUE(chooser.isVisible());
  auto* months = Control<QComboBox>(chooser, "ComboMonths");
  months->setCurrentText("March");
  auto* year = Control<QLineEdit>(chooser, "txtYear");
  year->setFocus();
  Type(year, "2024");
  Press_Keys(chooser, QKeySequence(Qt::Key_Return));
  EXPECT_FALSE(chooser.isVisible());
  EXPECT_EQ(controls::Caption(large().lblMonthYear), "March 2024");
}

}  // namespace
}  // namespace orrivane
