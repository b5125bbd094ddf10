// The new-task window asked for from the Organizer and from both calendar windows, by the menu's
// key whatever control has the focus, with fresh reminder values each time.
#include <QTest>

#include "organizer/new_task_window_test.h"

namespace orrivane {
namespace {

class OpenNewTaskTest : public testing::NewTaskWindowTest {
 protected:
  void Expect_Entry_In_Front() {
    EXPECT_TRUE(entry().isVisible());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&entry()));
    EXPECT_FALSE(entry().isModal());
  }
  Value Reminder(const char* name) { return entry().Store_Reminder_Variables(name, "Get"); }
};

TEST_F(OpenNewTaskTest, CtrlEInTheOrganizerWithTheFocusInTheMemberList) {
  controls::Show_In_Front(organizer());
  ASSERT_TRUE(QTest::qWaitForWindowActive(&organizer()));
  organizer().lstListOfPeople->setFocus();
  Press_Keys(organizer(), QKeySequence("Ctrl+E"));
  Expect_Entry_In_Front();
}

TEST_F(OpenNewTaskTest, CtrlEInTheLargeCalendarWithTheFocusInItsMemberBox) {
  large().cboShowTaskListFor->setFocus();
  Type(large().cboShowTaskListFor->lineEdit(), "Anna");
  Press_Keys(large(), QKeySequence("Ctrl+E"));
  Expect_Entry_In_Front();
  EXPECT_EQ(large().cboShowTaskListFor->currentText(), "Anna") << "the box took the key";
}

TEST_F(OpenNewTaskTest, CtrlEInTheMainWindowWithTheFocusInTheWeekdayLine) {
  Press_Keys(large(), QKeySequence(Qt::Key_F4));
  ASSERT_TRUE(main().isVisible());
  main().txtShowWeekday->setFocus();
  Press_Keys(main(), QKeySequence("Ctrl+E"));
  Expect_Entry_In_Front();
}

TEST_F(OpenNewTaskTest, TheMenuEntriesAreEnabled) {
  EXPECT_TRUE(Control<QAction>(large(), "mnuAddNewTaskEventToLog")->isEnabled());
  EXPECT_TRUE(Control<QAction>(main(), "mnuAddNewTaskEventToLog")->isEnabled());
  EXPECT_TRUE(Control<QAction>(organizer(), "mnuAddNewTask")->isEnabled());
  Trigger(large(), "mnuAddNewTaskEventToLog");
  Expect_Entry_In_Front();
}

TEST_F(OpenNewTaskTest, OpeningResetsTheReminderValuesFromOneReadingOfTheClock) {
  Open_Entry();
  entry().Store_Reminder_Variables("Date_String(1)", "Put", "April 1, 2001");
  entry().Store_Reminder_Variables("Interval_Days", "Put", "3");
  Click(entry().cmdClose);

  machine().Set_Now(2001, 3, 5, 23, 59, 59);
  machine().Advance_On_Each_Reading(1000);  // a second clock reading would fall on March 6
  Trigger(organizer(), "mnuAddNewTask");
  const std::pair<const char*, Value> expected[] = {
      {"Date_String(0)", "March 5, 2001"}, {"Time_String(0)", "23:59"}, {"Date_String(1)", "March 5, 2001"},
      {"Time_String(1)", "23:59"},         {"Reminder_Interval", 1},    {"Interval_Days", 0},
      {"Interval_Hours", 0},               {"Interval_Minutes", 0}};
  for (const auto& [name, value] : expected) {
    EXPECT_EQ(Reminder(name).text(), value.text()) << name;
    EXPECT_EQ(Reminder(name).is_number(), value.is_number()) << name;
  }
}

TEST_F(OpenNewTaskTest, AnHourBeforeTenGetsItsZero) {
  machine().Set_Now(2001, 12, 31, 9, 7, 0);
  Open_Entry();
  EXPECT_EQ(Reminder("Time_String(0)").text(), "09:07");
  EXPECT_EQ(Reminder("Date_String(0)").text(), "December 31, 2001");
}

TEST_F(OpenNewTaskTest, TheLargeCalendarListsTheNewTaskOfTheMemberItShows) {
  large().cboShowTaskListFor->setFocus();
  Type(large().cboShowTaskListFor->lineEdit(), "Anna");
  Press_Keys(large(), QKeySequence("Ctrl+E"));
  Enter_Dentist();
  Add();
  int listed = 0;
  for (QComboBox* day : large().cboAppointments) {
    for (int i = 0; i < day->count(); ++i) listed += day->itemText(i).contains("Dentist");
  }
  EXPECT_EQ(listed, 1);
}

}  // namespace
}  // namespace orrivane
