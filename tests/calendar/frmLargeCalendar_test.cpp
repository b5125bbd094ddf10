// The large calendar: the lists of a member's tasks over the day cells, read from the log.
#include "calendar/calendar_window_test.h"
#include "organizer/log_file.h"

namespace orrivane {
namespace {

using testing::CalendarWindowTest;

class frmLargeCalendarTest : public CalendarWindowTest {
 protected:
  // A task of a member starting on a day of a month, written to the log as the Organizer does.
  void Add_Task(int number, const std::string& name, const std::string& member, const std::string& month,
                const std::string& date, int century, int year, const std::string& hour = "14") {
    organizer::ScheduleRecord record;
    record.Record_Number = number;
    record.Task_Name = name;
    record.Task_Description = "";
    record.Task_Comments = "";
    record.Start_Month = month;
    record.Start_Date = date;
    record.Start_Century = century;
    record.Start_Year = year;
    record.Start_Hour = hour;
    record.Start_Minute = "00";
    record.Person_Name = member;
    organizer::Append_Record("Schedule.tmp", record);
  }
  void Add_Member(const std::string& member) { organizer::Generate_Person_Marker_Record("Schedule.tmp", member); }

  void Choose_Member(const QString& member) {
    large().cboShowTaskListFor_DropDown();
    large().cboShowTaskListFor->setCurrentText(member);
    large().Refresh_Calendar_TaskList();
  }
  QComboBox* List(int cell) { return large().cboAppointments[cell]; }
  std::vector<std::string> Items(int cell) {
    std::vector<std::string> items;
    for (int i = 0; i < List(cell)->count(); ++i) items.push_back(List(cell)->itemText(i).toStdString());
    return items;
  }
  int Visible_Lists() {
    int n = 0;
    for (QComboBox* list : large().cboAppointments) n += !list->isHidden();
    return n;
  }
};

TEST_F(frmLargeCalendarTest, StartsMaximisedWithItsOwnCaptions) {
  Start_Program();
  EXPECT_TRUE(large().windowState() & Qt::WindowMaximized);
  EXPECT_EQ(large().cmdNextMonth->text().toStdString(), "Next Month >>");
  EXPECT_EQ(Label(large(), "Label1"), "Show Task List For");
  EXPECT_EQ(Visible_Lists(), 0);
}

TEST_F(frmLargeCalendarTest, TwoTasksOfOneDayShareOneListInLogOrder) {
  machine().Set_Now(2024, 3, 15);
  Start_Program();
  Add_Task(1, "Dentist", "Anna", "March", "14", 20, 24, "14");
  Add_Task(2, "Lunch", "Anna", "March", "14", 20, 24, "12");
  Add_Task(3, "Gym", "Ben", "March", "14", 20, 24, "09");
  Choose_Member("Anna");
  EXPECT_EQ(Items(18), (std::vector<std::string>{"14, Dentist, #1", "12, Lunch, #2"}));
  EXPECT_FALSE(List(18)->isHidden());
  EXPECT_EQ(Visible_Lists(), 1);
}

TEST_F(frmLargeCalendarTest, ATaskOnTheLastOfTheMonthBeforeStandsInTheFirstRow) {
  machine().Set_Now(2024, 3, 15);
  Start_Program();
  Add_Task(1, "Report", "Anna", "February", "29", 20, 24);
  Choose_Member("Anna");
  EXPECT_EQ(Items(4), std::vector<std::string>{"14, Report, #1"});
}

TEST_F(frmLargeCalendarTest, TasksOfTheNextMonthOnlyUpToTheLastCell) {
  machine().Set_Now(2024, 3, 15);
  Start_Program();
  Add_Task(1, "Trip", "Anna", "April", "06", 20, 24);
  Add_Task(2, "Later", "Anna", "April", "07", 20, 24);
  Choose_Member("Anna");
  EXPECT_EQ(Items(41), std::vector<std::string>{"14, Trip, #1"});
  EXPECT_EQ(Visible_Lists(), 1);
}

TEST_F(frmLargeCalendarTest, NoListsAndNoChoiceOfMemberInTheJulianStyle) {
  machine().Set_Now(2024, 3, 15);
  Start_Program();
  Add_Task(1, "Dentist", "Anna", "March", "14", 20, 24);
  Choose_Member("Anna");
  EXPECT_EQ(Visible_Lists(), 1);
  Show_Month("March", "2024", true);
  EXPECT_EQ(Visible_Lists(), 0);
  EXPECT_TRUE(large().cboShowTaskListFor->isHidden());
  large().Refresh_Calendar_TaskList();
  EXPECT_EQ(Visible_Lists(), 0);
}

TEST_F(frmLargeCalendarTest, ATaskOf2100ShowsOnlyWhen2100IsOnTheGrid) {
  machine().Set_Now(2024, 3, 15);
  Start_Program();
  Add_Task(1, "Far", "Anna", "March", "14", 21, 0);
  Choose_Member("Anna");
  EXPECT_EQ(Visible_Lists(), 0);
  Show_Month("March", "2100");
  EXPECT_EQ(Visible_Lists(), 1);
}

TEST_F(frmLargeCalendarTest, MarkerRecordsNeverStandInAListButNameMembers) {
  machine().Set_Now(2024, 3, 15);
  Start_Program();
  Add_Member("Ben");
  Add_Task(1, "Dentist", "Anna", "March", "14", 20, 24);
  Choose_Member("Ben");
  EXPECT_EQ(Visible_Lists(), 0);
  ASSERT_EQ(large().cboShowTaskListFor->count(), 2);
  EXPECT_EQ(large().cboShowTaskListFor->itemText(0).toStdString(), "Ben");
  EXPECT_EQ(large().cboShowTaskListFor->itemText(1).toStdString(), "Anna");
}

TEST_F(frmLargeCalendarTest, AMonthBeginningOnASundayTakesTasksOfThePriorMonthFromThe8thAmongItsDays) {
  machine().Set_Now(2024, 9, 10);  // September 2024 begins on a Sunday
  Start_Program();
  Add_Task(1, "Old", "Anna", "August", "20", 20, 24);
  Choose_Member("Anna");
  EXPECT_EQ(Items(19), std::vector<std::string>{"14, Old, #1"});
}

TEST_F(frmLargeCalendarTest, SteppingRereadsTheLog) {
  machine().Set_Now(2024, 3, 15);
  Start_Program();
  Add_Task(1, "Easter", "Anna", "April", "20", 20, 24);
  Choose_Member("Anna");
  EXPECT_EQ(Visible_Lists(), 0);
  Click(large().cmdNextMonth);
  EXPECT_EQ(Items(20), std::vector<std::string>{"14, Easter, #1"});  // April 2024 begins on a Monday
}

}  // namespace
}  // namespace orrivane
