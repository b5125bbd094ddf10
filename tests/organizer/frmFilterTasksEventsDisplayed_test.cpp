// "Filter Tasks\Events Displayed": the bounds chosen in its boxes, filled from the clock where
// left empty, checked as Gregorian dates and written into the Organizer.
#include "organizer/frmFilterTasksEventsDisplayed.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include "organizer/task_window_test.h"

namespace orrivane {
namespace {

using controls::Caption;
using testing::TaskWindowTest;

class frmFilterTasksEventsDisplayedTest : public TaskWindowTest {
 protected:
  void SetUp() override {
    TaskWindowTest::SetUp();
    Write_Log({});
    Open_Organizer();
    // The user sets the filter and opens the window with "Change...".
    Click_Option(organizer().optDisplayOnlyFilteredTasks);
    Trigger(organizer(), "cmdSelect");
    Process_Events();
    ASSERT_TRUE(window().isVisible());
  }

  frmFilterTasksEventsDisplayed& window() { return Window<frmFilterTasksEventsDisplayed>(); }
  QComboBox* Box(const char* name, int side) {
    return Control<QComboBox>(window(), controls::Array_Name(name, side));
  }
  void Choose(const char* name, int side, const QString& item) {
    QComboBox* box = Box(name, side);
    box->setCurrentIndex(box->findText(item));
    ASSERT_EQ(box->currentText(), item);
  }
  // A month and a date chosen on one side.
  void Choose_Day(int side, const QString& month, const QString& date) {
    Choose("ComboMonths", side, month);
    Choose("ComboDate", side, date);
  }
  void Set_Date_Filters() { Trigger(window(), "cmdSetDateFilters"); }

  // Sets the filters and expects the one message, with the window staying open and the bounds
  // of the Organizer as they were.
  void Expect_Refused(const std::string& title, const std::string& text) {
    const std::string after = Caption(organizer().lblAfterRange);
    const std::string before = Caption(organizer().lblBeforeRange);
    machine().Answer_Next(platform::vbOK, title);
    Set_Date_Filters();
    Expect_Only_Message(Exclamation_Message(title, text));
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(Caption(organizer().lblAfterRange), after);
    EXPECT_EQ(Caption(organizer().lblBeforeRange), before);
  }
};

TEST_F(frmFilterTasksEventsDisplayedTest, ItsCaptionsAndBoxes) {
  EXPECT_EQ(window().windowTitle().toStdString(), "Filter Tasks\\Events Displayed");
  EXPECT_EQ(window().chkAfter->text().toStdString(), "Display Only Tasks After Selected Time");
  EXPECT_EQ(window().chkBefore->text().toStdString(), "Display Only Tasks Before Selected Time");
  EXPECT_EQ(window().cmdSetDateFilters->text().toStdString(), "Set Date Filters");
  for (int side : {0, 1}) {
    QComboBox* months = Box("ComboMonths", side);
    ASSERT_EQ(months->count(), 12);
    EXPECT_EQ(months->itemText(0).toStdString(), "Jan");
    EXPECT_EQ(months->itemText(11).toStdString(), "Dec");
    EXPECT_EQ(Box("ComboDate", side)->count(), 31);
    EXPECT_EQ(Box("cboHour", side)->itemText(23).toStdString(), "23");
    EXPECT_EQ(Box("cboMinute", side)->count(), 60);
    for (const char* name : {"ComboMonths", "ComboDate", "ComboCentury", "ComboYear", "cboHour", "cboMinute"}) {
      EXPECT_TRUE(Box(name, side)->currentText().isEmpty()) << name;
    }
  }
}

TEST_F(frmFilterTasksEventsDisplayedTest, AllBoxesEmptyGiveTheHourOfNowFromZeroToFiftyNine) {
  machine().Set_Now(2024, 3, 15, 16, 42, 0);
  Set_Date_Filters();
  EXPECT_EQ(Caption(organizer().lblAfterRange), "16:00, Mar. 15, 2024");
  EXPECT_EQ(Caption(organizer().lblBeforeRange), "16:59, Mar. 15, 2024");
  EXPECT_FALSE(window().isVisible());
}

TEST_F(frmFilterTasksEventsDisplayedTest, ChosenBoxesMakeTheBounds) {
  Choose_Day(0, "Dec", "05");
  Choose("ComboCentury", 0, "19");
  Choose("ComboYear", 0, "99");
  Choose("cboHour", 0, "07");
  Choose("cboMinute", 0, "30");
  Choose("ComboMonths", 1, "Jan");
  Choose("ComboYear", 1, "01");
  Set_Date_Filters();
  EXPECT_EQ(Caption(organizer().lblAfterRange), "07:30, Dec. 5, 1999");
  EXPECT_EQ(Caption(organizer().lblBeforeRange), "10:59, Jan. 15, 2001");
}

TEST_F(frmFilterTasksEventsDisplayedTest, AnUncheckedSideIsNoDateSelectedAndItsBoxesAreDisabled) {
  Click(window().chkAfter);
  EXPECT_FALSE(window().chkAfter->isChecked());
  EXPECT_FALSE(Box("ComboMonths", 0)->isEnabled());
  EXPECT_FALSE(Box("cboMinute", 0)->isEnabled());
  EXPECT_TRUE(Box("ComboMonths", 1)->isEnabled());
  // The other side stays on.
  Click(window().chkBefore);
  EXPECT_TRUE(window().chkBefore->isChecked());
  EXPECT_TRUE(Box("ComboMonths", 1)->isEnabled());
  Set_Date_Filters();
  EXPECT_EQ(Caption(organizer().lblAfterRange), "No Date Selected");
  EXPECT_EQ(Caption(organizer().lblBeforeRange), "10:59, Mar. 15, 2024");
}

TEST_F(frmFilterTasksEventsDisplayedTest, TheSpaceBarSwapsASideAndOneStaysOn) {
  window().chkBefore->setFocus();
  Press_Keys(window(), QKeySequence(Qt::Key_Space));
  EXPECT_FALSE(window().chkBefore->isChecked());
  EXPECT_FALSE(Box("ComboDate", 1)->isEnabled());
  window().chkAfter->setFocus();
  Press_Keys(window(), QKeySequence(Qt::Key_Space));
  EXPECT_TRUE(window().chkAfter->isChecked());
  Set_Date_Filters();
  EXPECT_EQ(Caption(organizer().lblAfterRange), "10:00, Mar. 15, 2024");
  EXPECT_EQ(Caption(organizer().lblBeforeRange), "No Date Selected");
}

TEST_F(frmFilterTasksEventsDisplayedTest, AnInvalidAfterDateInFebruaryKeepsTheMissingWord) {
  Choose_Day(0, "Feb", "29");
  Choose("ComboCentury", 0, "20");
  Choose("ComboYear", 0, "23");
  Expect_Refused("Invalid Date", "Feb only has 28 days in for the year that is currently selected.");
}

TEST_F(frmFilterTasksEventsDisplayedTest, AnInvalidBeforeDate) {
  Choose_Day(1, "Feb", "30");
  Expect_Refused("Invalid Date", "Feb only has 29 days in it for the year that is currently selected.");
  Choose_Day(1, "Nov", "31");
  Expect_Refused("Invalid Date", "Nov only has 30 days in it.");
}

TEST_F(frmFilterTasksEventsDisplayedTest, BothInvalid) {
  Choose_Day(0, "Apr", "31");
  Choose_Day(1, "Jun", "31");
  Expect_Refused("Invalid Dates", "The selected dates are invalid for the currently selected months.");
}

TEST_F(frmFilterTasksEventsDisplayedTest, ACenturyIsTakenAsTypedWithoutCompletion) {
  QComboBox* century = Box("ComboCentury", 0);
  // Completion works on a focused box only: the user types into the box that has the focus.
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
  century->setFocus();
  ASSERT_TRUE(century->lineEdit()->hasFocus());
  Type(century->lineEdit(), "2");
  EXPECT_EQ(century->currentText().toStdString(), "2");
  EXPECT_EQ(century->count(), 84);  // nothing added to the list
  Choose("ComboYear", 0, "00");
  Choose_Day(0, "Feb", "29");
  // The year 200 is no leap year in the Gregorian style.
  Expect_Refused("Invalid Date", "Feb only has 28 days in for the year that is currently selected.");
  Type(century->lineEdit(), "4");
  Set_Date_Filters();
  EXPECT_EQ(Caption(organizer().lblAfterRange), "10:00, Feb. 29, 400");
}

TEST_F(frmFilterTasksEventsDisplayedTest, CancelLeavesTheBoundsAsTheyWere) {
  Choose("ComboMonths", 0, "Jul");
  Trigger(window(), "cmdCancel");
  EXPECT_FALSE(window().isVisible());
  EXPECT_EQ(Caption(organizer().lblAfterRange), "10:00, Mar. 15, 2024");
  EXPECT_EQ(Caption(organizer().lblBeforeRange), "10:59, Mar. 15, 2024");
}

TEST_F(frmFilterTasksEventsDisplayedTest, TheBoundsSetFilterTheNextList) {
  Write_Log({Task_At(1, "Anna", 2024, "March", "15", "09", "59", "Early"),
             Task_At(2, "Anna", 2024, "March", "15", "10", "00", "OnTime"),
             Task_At(3, "Anna", 2024, "March", "15", "11", "00", "Late")});
  organizer().lstListOfPeople->addItem("Anna");
  Set_Date_Filters();
  Choose_Member("Anna");
  EXPECT_EQ(Entries(organizer().lstScheduleList), std::vector<std::string>{"2024, 03Mar 15, 10:00 OnTime, #2"});
}

}  // namespace
}  // namespace orrivane
