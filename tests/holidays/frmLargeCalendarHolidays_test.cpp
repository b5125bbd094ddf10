// The holidays in the day cells of the large calendar, after every way of drawing a month:
// the start, stepping, choosing a month, a date drawn by Calendarr; across New Year; none for a
// Julian month or a year above 100100.
#include "calendar/calendar_window_test.h"

namespace orrivane {
namespace {

using testing::CalendarWindowTest;

class HolidayCellsTest : public CalendarWindowTest {
 protected:
  std::string Holiday(int cell) { return Label(large(), controls::Array_Name("lblCalHoliday", cell).toUtf8().constData()); }
  int Holidays_Shown() {
    int shown = 0;
    for (int i = 0; i < 42; ++i) shown += !Holiday(i).empty();
    return shown;
  }
  // The cell of a day of the month on show.
  int Cell_Of(int day) { return First_Cell(large()) + day - 1; }
};

TEST_F(HolidayCellsTest, FortyTwoSmallCellsStandInsideTheDayCells) {
  Start_Program();
  for (int i = 0; i < 42; ++i) {
    QLabel* holiday = Control<QLabel>(large(), controls::Array_Name("lblCalHoliday", i));
    QLabel* date = Control<QLabel>(large(), controls::Array_Name("lblCalDate", i));
    ASSERT_NE(holiday, nullptr);
    EXPECT_TRUE(date->geometry().contains(holiday->geometry())) << i;
    EXPECT_LT(holiday->font().pixelSize(), date->font().pixelSize()) << i;
    EXPECT_LE(holiday->geometry().bottom(), large().cboAppointments[i]->geometry().top()) << i;
  }
}

TEST_F(HolidayCellsTest, TheStartShowsTheHolidaysOfTodaysMonth) {
  machine().Set_Now(2024, 3, 15);
  Start_Program();
  EXPECT_EQ(Holiday(Cell_Of(17)), "St. Patricks' Day");
  EXPECT_EQ(Holiday(Cell_Of(24)), "Palm Sunday");
  EXPECT_EQ(Holiday(Cell_Of(29)), "Good Friday");
  EXPECT_EQ(Holiday(Cell_Of(31)), "Easter");
  EXPECT_EQ(Holidays_Shown(), 4);
}

TEST_F(HolidayCellsTest, DecemberAndJanuaryShowBothYearsHolidays) {
  machine().Set_Now(2024, 3, 15);
  Start_Program();
  Show_Month("December", "2024");
  // 1 December 2024 is a Sunday: the 31st stands in cell 30, 1 January 2025 in cell 31.
  EXPECT_EQ(Holiday(23), "Christmas Eve");
  EXPECT_EQ(Holiday(24), "Christmas Day");
  EXPECT_EQ(Holiday(30), "New Years Eve");
  EXPECT_EQ(Holiday(31), "New Years Day");
  Click(large().cmdNextMonth);
  // 1 January 2025 is a Wednesday: December 29 to 31 of 2024 stand in the cells 0 to 2.
  EXPECT_EQ(Label(main(), "lblStoreMonth"), "January");
  EXPECT_EQ(Holiday(2), "New Years Eve");
  EXPECT_EQ(Holiday(3), "New Years Day");
  EXPECT_EQ(Holiday(Cell_Of(20)), "M L King Day");
  EXPECT_EQ(Holidays_Shown(), 3);
  Click(large().cmdPriorMonth);
  EXPECT_EQ(Holiday(31), "New Years Day");
  EXPECT_EQ(Holidays_Shown(), 4);
}

TEST_F(HolidayCellsTest, ADayOfTheMonthBeforeInTheFirstRowShowsItsHoliday) {
  Start_Program();
  Show_Month("November", "2003");
  // 1 November 2003 is a Saturday: October 26 to 31 stand in the cells 0 to 5.
  EXPECT_EQ(Holiday(5), "Halloween");
  EXPECT_EQ(Holiday(9), "Election Day, U.S.");
  EXPECT_EQ(Holiday(16), "Veterans Day");
  EXPECT_EQ(Holiday(32), "Thanksgiving");
}

TEST_F(HolidayCellsTest, AJulianMonthShowsNoHolidayEvenAfterAGregorianOne) {
  machine().Set_Now(2024, 12, 20);
  Start_Program();
  ASSERT_GT(Holidays_Shown(), 0);
  Show_Month("December", "2024", true);
  EXPECT_EQ(Holidays_Shown(), 0);
  Click(large().cmdNextMonth);
  EXPECT_EQ(Holidays_Shown(), 0);
}

TEST_F(HolidayCellsTest, NoMonthOfAYearAbove100100ShowsAHoliday) {
  Start_Program();
  Show_Month("December", "100100");
  EXPECT_EQ(Holiday(Cell_Of(25)), "Christmas Day");
  Show_Month("July", "100101");
  EXPECT_EQ(Holidays_Shown(), 0);
  Show_Month("December", "100101");
  EXPECT_EQ(Holidays_Shown(), 0);
}

TEST_F(HolidayCellsTest, AGregorianMonthOf1582ShowsOnlyItsFourHolidays) {
  Start_Program();
  Show_Month("October", "1582");
  EXPECT_EQ(Holiday(Cell_Of(31)), "Halloween");
  EXPECT_EQ(Holidays_Shown(), 1);
  Click(large().cmdNextMonth);
  Click(large().cmdNextMonth);
  EXPECT_EQ(Holiday(Cell_Of(24)), "Christmas Eve");
  EXPECT_EQ(Holiday(Cell_Of(25)), "Christmas Day");
  EXPECT_EQ(Holiday(Cell_Of(31)), "New Years Eve");
  EXPECT_EQ(Holiday(Cell_Of(31) + 1), "New Years Day");  // of 1583
}

TEST_F(HolidayCellsTest, TodaysDateDrawnByCalendarrShowsItsHoliday) {
  machine().Set_Now(2003, 11, 4);
  Start_Program();
  EXPECT_EQ(Holiday(9), "Election Day, U.S.");
  Show_Month("May", "2003");
  machine().Set_Now(2003, 6, 8);
  Trigger(large(), "mnuTodaysDates");
  EXPECT_EQ(Holiday(Cell_Of(8)), "Day of Pentecost");
  EXPECT_EQ(Holiday(Cell_Of(15)), "Father's Day");
}

TEST_F(HolidayCellsTest, TheTableKeeperIsOnTheMainWindow) {
  machine().Set_Now(2003, 12, 1);
  Start_Program();
  EXPECT_EQ(main().Store_Holiday_Data_For_Year("Holiday Name", 0, "View"), Value("New Years Day"));
  EXPECT_EQ(main().Store_Holiday_Data_For_Year("Holiday Month", 0, "View"), Value("January"));
  EXPECT_EQ(main().Store_Holiday_Data_For_Year("Holiday Date", 0, "View"), Value(1));
  EXPECT_EQ(main().Store_Holiday_Data_For_Year("Holiday Name", 25, "View"), Value("New Years Day"));  // of 2004
  EXPECT_EQ(main().Store_Holiday_Data_For_Year("Holiday Date", 50, "Set Equal To", 7), Value(7));
}

}  // namespace
}  // namespace orrivane
