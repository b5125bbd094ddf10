// The main calendar window: start-up, month stepping and its limits, the side calendars, the
// colours of the month, the options notice and the way out.
#include <QTest>

#include "calendar/calendar_window_test.h"
#include "calendar/frmDateConversion.h"
#include "calendar/month_grid.h"
#include "shell/frmAbout.h"

namespace orrivane {
namespace {

using controls::Caption;
using testing::CalendarWindowTest;

class Form1Test : public CalendarWindowTest {};

TEST_F(Form1Test, StartUpShowsTheLargeCalendarWithTodayInRedAndTheAboutWindowInFront) {
  Write_File("Schedule.tmp", "1\r\n");
  Write_File("TRemin.tmp", "1\r\n");
  machine().Set_Now(2024, 3, 15);
  Start_Program();
  EXPECT_FALSE(main().isVisible());
  EXPECT_TRUE(large().isVisible());
  EXPECT_TRUE(Window<frmAbout>().isVisible());
  EXPECT_EQ(Read_File("Schedule.tmp"), "");
  EXPECT_EQ(Read_File("TRemin.tmp"), "");
  EXPECT_EQ(Label(main(), "lblStoreMonth"), "March");
  EXPECT_EQ(Label(main(), "lblStoreYear"), "2024");
  // March 2024 begins on a Friday: the 1st in cell 5, the 15th in cell 19.
  for (QWidget* window : {static_cast<QWidget*>(&main()), static_cast<QWidget*>(&large())}) {
    EXPECT_EQ(Cell(*window, 5), "1");
    EXPECT_EQ(Cell(*window, 19), "15");
    EXPECT_EQ(Cell_Colour(*window, 19), controls::kRed);
    EXPECT_EQ(Red_Cells(*window), 1);
    EXPECT_EQ(Cell_Colour(*window, 4), controls::kGrayText);
    EXPECT_EQ(Cell_Colour(*window, 20), controls::kButtonText);
  }
  EXPECT_EQ(Label(main(), "lblShowDate"), "March 15, 2024");
  EXPECT_EQ(Label(main(), "lblMonthYear"), "March 2024");
  EXPECT_EQ(Label(main(), "lblCalendarNameOverCalendar"), "GREGORIAN CALENDAR");
  EXPECT_EQ(main().txtShowWeekday->text().toStdString(), " Friday");
  EXPECT_EQ(Label(main(), "lblDisplayDay"), "Today is:");
  EXPECT_EQ(Label(main(), "lblDate"), "Today's Date:");
  EXPECT_EQ(Label(large(), "lblMonthYear"), "Friday");
  EXPECT_EQ(Label(large(), "lblMonthNumber"), "15");
  EXPECT_EQ(Label(large(), "lblShowDate"), "March 15, 2024");
}

TEST_F(Form1Test, TheColourOfTheMonthIsSeededByMonthTimesYear) {
  machine().Set_Now(2024, 3, 15);
  machine().Script_Rnd(0.5);  // 0.5 x 24 = 12, and 1 more: colour 13
  Start_Program();
  EXPECT_EQ(machine().Last_Seed(), 3.0 * 2024);
  EXPECT_EQ(main().Current_Month_Color("Get Value"), 13);
  EXPECT_EQ(controls::Back_Color(main().face.lblPriorMonthName), 16448u);
  EXPECT_EQ(controls::Back_Color(main().face.lblNextMonthName), 16448u);
  EXPECT_EQ(controls::Back_Color(main().face.lblCalendarWeekDaysBackground), 16448u);
  EXPECT_EQ(controls::Back_Color(large().face.lblCalendarWeekDaysBackground), 0x004040u);
  EXPECT_EQ(controls::Fore_Color(large().lblMonthNumberShadow), 0x008080u);
  EXPECT_EQ(controls::Fore_Color(large().lblMonthNumber), 0x004040u);
}

TEST_F(Form1Test, AColourIndexOutsideTheTableChangesNothing) {
  Start_Program();
  const unsigned before = controls::Back_Color(main().face.lblPriorMonthName);
  main().Current_Month_Color("Set Equal To", 25);
  main().Set_Current_Month_Calendar_Colors();
  EXPECT_EQ(controls::Back_Color(main().face.lblPriorMonthName), before);
  EXPECT_EQ(main().Current_Month_Color("Get Value"), 25);
}

TEST_F(Form1Test, TheStartUpRunsOnlyAtTheFirstActivation) {
  Start_Program();
  Write_File("Schedule.tmp", "1\r\n");
  main().Form_Activate();
  EXPECT_EQ(Read_File("Schedule.tmp"), "1\r\n");
}

TEST_F(Form1Test, SteppingForwardFromDecember1999AndBack) {
  machine().Set_Now(1999, 12, 15);
  Start_Program();
  EXPECT_EQ(First_Cell(main()), 3);
  Click(main().cmdNextMonth);
  EXPECT_EQ(Label(main(), "lblStoreMonth"), "January");
  EXPECT_EQ(Label(main(), "lblStoreYear"), "2000");
  EXPECT_EQ(Label(main(), "lblMonthYear"), "January 2000");
  EXPECT_EQ(Label(large(), "lblMonthYear"), "January 2000");
  EXPECT_EQ(Label(large(), "lblMonthNumber"), "1");
  EXPECT_EQ(Label(large(), "lblShowDate"), "");
  EXPECT_EQ(First_Cell(main()), 6);
  EXPECT_EQ(First_Cell(large()), 6);
  EXPECT_EQ(Cell(main(), 0), "26");  // the last days of December in grey
  Click(main().cmdPriorMonth);
  EXPECT_EQ(Label(main(), "lblMonthYear"), "December 1999");
  EXPECT_EQ(First_Cell(main()), 3);
  EXPECT_EQ(Cell(main(), 0), "28");
}

TEST_F(Form1Test, SteppingNeverMarksADayAndAnEarlierRedCellGoes) {
  machine().Set_Now(2024, 3, 15);
  Start_Program();
  EXPECT_EQ(Red_Cells(main()), 1);
  Click(main().cmdNextMonth);
  EXPECT_EQ(Red_Cells(main()), 0);
  EXPECT_EQ(Red_Cells(large()), 0);
  Click(main().cmdPriorMonth);
  EXPECT_EQ(Red_Cells(main()), 0);
}

TEST_F(Form1Test, AfterAStepTheSelectedDateStandsAndIsTheOneConverted) {
  machine().Set_Now(2000, 1, 1);
  Start_Program();
  Click(main().cmdNextMonth);
  EXPECT_EQ(Label(main(), "lblShowDate"), "January 1, 2000");
  EXPECT_EQ(main().txtShowWeekday->text().toStdString(), " Saturday");
  Click(main().CmdConvert);
  frmDateConversion& conversion = Window<frmDateConversion>();
  EXPECT_TRUE(conversion.isVisible());
  EXPECT_EQ(Label(conversion, "lblDate1"), "January 1, 2000 N.S.");
  EXPECT_EQ(Label(conversion, "lblDate2"), "December 19, 1999 O.S.");
}

TEST_F(Form1Test, ALeapFebruaryGivesTheMonthAfterItsTwentyNinthInTheGreyCells) {
  machine().Set_Now(2024, 2, 10);
  Start_Program();
  Click(main().cmdNextMonth);
  // March 2024: Sunday 25 February to Thursday 29 February before the 1st.
  EXPECT_EQ(Cell(main(), 0), "25");
  EXPECT_EQ(Cell(main(), 4), "29");
  EXPECT_EQ(Cell(main(), 5), "1");
  EXPECT_EQ(Cell(main(), 35), "31");
  Click(main().cmdPriorMonth);
  EXPECT_EQ(Cell(main(), 4), "1");  // February 2024 begins on a Thursday
  EXPECT_EQ(Cell(main(), 32), "29");
  EXPECT_EQ(Cell(main(), 33), "1");
}

TEST_F(Form1Test, November1582StepsBackToAnUnbrokenOctoberAndNoFurther) {
  machine().Set_Now(1582, 11, 20);
  Start_Program();
  Click(main().cmdPriorMonth);
  EXPECT_EQ(Label(main(), "lblMonthYear"), "October 1582");
  // 1 October 1582 stands in its proleptic place, a Friday, and the 31 days run unbroken.
  EXPECT_EQ(First_Cell(main()), 5);
  for (int d = 1; d <= 31; ++d) EXPECT_EQ(Cell(main(), 4 + d), std::to_string(d));
  std::array<std::string, 42> before;
  for (int i = 0; i < 42; ++i) before[i] = Cell(main(), i);
  Click(main().cmdPriorMonth);
  EXPECT_FALSE(main().cmdPriorMonth->isEnabled());
  EXPECT_FALSE(large().cmdPriorMonth->isEnabled());
  EXPECT_FALSE(Menu(main(), "mnuPrevious")->isEnabled());
  EXPECT_FALSE(Menu(large(), "mnuPrevious")->isEnabled());
  EXPECT_EQ(Label(main(), "lblMonthYear"), "October 1582");
  for (int i = 0; i < 42; ++i) EXPECT_EQ(Cell(main(), i), before[i]);
  // The next step opens the way back again.
  Click(main().cmdNextMonth);
  EXPECT_TRUE(main().cmdPriorMonth->isEnabled());
  EXPECT_EQ(Label(main(), "lblMonthYear"), "November 1582");
}

TEST_F(Form1Test, TheJulianCalendarStepsBackToDecemberOfTheYear1AndNoFurther) {
  Start_Program();
  Show_Month("January", "2", true);
  EXPECT_EQ(Label(main(), "lblCalendarNameOverCalendar"), "JULIAN CALENDAR");
  Click(main().cmdPriorMonth);
  EXPECT_EQ(Label(main(), "lblMonthYear"), "December 1");
  EXPECT_TRUE(main().cmdPriorMonth->isEnabled());
  Click(main().cmdPriorMonth);
  EXPECT_FALSE(main().cmdPriorMonth->isEnabled());
  EXPECT_EQ(Label(main(), "lblMonthYear"), "December 1");
}

TEST_F(Form1Test, TheYear1000000StepsIntoJanuary1000001AndNoFurther) {
  Start_Program();
  Show_Month("December", "1000000");
  Click(main().cmdNextMonth);
  EXPECT_EQ(Label(main(), "lblMonthYear"), "January 1000001");
  EXPECT_TRUE(main().cmdNextMonth->isEnabled());
  Click(main().cmdNextMonth);
  EXPECT_EQ(Label(main(), "lblMonthYear"), "January 1000001");
  EXPECT_FALSE(main().cmdNextMonth->isEnabled());
  EXPECT_FALSE(large().cmdNextMonth->isEnabled());
  EXPECT_FALSE(Menu(main(), "mnuNext")->isEnabled());
  EXPECT_FALSE(Menu(large(), "mnuNext")->isEnabled());
  // A date drawn again opens the way.
  Click(main().cmdDisplayTodaysDate);
  EXPECT_TRUE(main().cmdNextMonth->isEnabled());
  EXPECT_TRUE(Menu(large(), "mnuNext")->isEnabled());
}

TEST_F(Form1Test, SideCalendarsShowTheMonthsAroundWithOnlyTheirOwnDaysVisible) {
  machine().Set_Now(2024, 3, 15);
  Start_Program();
  EXPECT_EQ(Caption(main().face.lblPriorMonthName), "February 2024");
  EXPECT_EQ(Caption(main().face.lblNextMonthName), "April 2024");
  EXPECT_EQ(Caption(large().face.lblPriorMonthName), "February 2024");
  // February 2024 begins on a Thursday (column 4); its 29 days, then the button-face cells.
  EXPECT_EQ(Caption(main().face.lblPriorMonthCalDate[4]), "1");
  EXPECT_EQ(controls::Fore_Color(main().face.lblPriorMonthCalDate[4]), controls::kButtonText);
  EXPECT_EQ(Caption(main().face.lblPriorMonthCalDate[32]), "29");
  EXPECT_EQ(controls::Fore_Color(main().face.lblPriorMonthCalDate[33]), controls::kButtonFace);
  EXPECT_EQ(Caption(main().face.lblPriorMonthCalDate[3]), "31");
  EXPECT_EQ(controls::Fore_Color(main().face.lblPriorMonthCalDate[3]), controls::kButtonFace);
  // April 2024 begins on a Monday.
  EXPECT_EQ(Caption(main().face.lblNextMonthCalDate[1]), "1");
  EXPECT_EQ(Caption(main().face.lblNextMonthCalDate[0]), "31");
  EXPECT_EQ(Caption(large().face.lblNextMonthCalDate[30]), "30");
}

TEST_F(Form1Test, SideCalendarsAcrossTheYearsEnd) {
  machine().Set_Now(2024, 1, 10);
  Start_Program();
  EXPECT_EQ(Caption(main().face.lblPriorMonthName), "December 2023");
  EXPECT_EQ(Caption(main().face.lblNextMonthName), "February 2024");
  Click(main().cmdPriorMonth);
  EXPECT_EQ(Caption(main().face.lblPriorMonthName), "November 2023");
  EXPECT_EQ(Caption(main().face.lblNextMonthName), "January 2024");
}

TEST_F(Form1Test, TheButtonsAndMenuCarryTheirCaptionsAndShortcuts) {
  Start_Program();
  EXPECT_EQ(main().windowTitle().toStdString(), "Orrivane 3.0");
  EXPECT_EQ(main().cmdNextMonth->text().toStdString(), "NEXT Month >>");
  EXPECT_EQ(main().cmdOrganizer->text().toStdString(), "Organizer\\Edit Tasks Or Events");
  EXPECT_EQ(Menu(main(), "mnuLargeWindow")->shortcut(), QKeySequence("F4"));
  EXPECT_EQ(Menu(main(), "mnuDeleteGroupMember")->shortcut(), QKeySequence("Shift+F3"));
  EXPECT_EQ(Menu(main(), "mnuTaskEventInfo")->text().toStdString(), "Task\\Event Info...");
  EXPECT_EQ(Menu(large(), "mnuSmallWindow")->shortcut(), QKeySequence("F4"));
  EXPECT_EQ(Menu(large(), "mnuTodaysDates")->shortcut(), QKeySequence("Ctrl+D"));
  EXPECT_EQ(Menu(main(), "mnuPrintLog")->shortcut(), QKeySequence("F2"));
  EXPECT_TRUE(Menu(main(), "mnuPrintLog")->isEnabled());
  EXPECT_TRUE(Menu(main(), "mnuConvertDate")->isEnabled());
}

TEST_F(Form1Test, OptionsTellsThatTheFeatureIsNotAvailable) {
  Start_Program();
  machine().Answer_Next(platform::vbOK, "Orrivane");
  Trigger(main(), "mnuOptions");
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(machine().Messages()[0].text,
            "My apologies for that.\rThis feature was not yet available as of the release of this version.");
  EXPECT_EQ(machine().Messages()[0].icon, platform::vbNoIcon);
  EXPECT_EQ(machine().Messages()[0].buttons, platform::vbOKOnly);
}

TEST_F(Form1Test, F4SwapsTheWindowsAndKeepsTheMonth) {
  machine().Set_Now(2024, 3, 15);
  Start_Program();
  Click(large().cmdNextMonth);
  Press_Keys(large(), QKeySequence(Qt::Key_F4));
  EXPECT_TRUE(main().isVisible());
  EXPECT_FALSE(large().isVisible());
  EXPECT_EQ(Label(main(), "lblMonthYear"), "April 2024");
  Press_Keys(main(), QKeySequence(Qt::Key_F4));
  EXPECT_TRUE(large().isVisible());
  EXPECT_FALSE(main().isVisible());
  EXPECT_EQ(Cell(large(), 1), "1");
}

TEST_F(Form1Test, MinimiseToTheTaskbar) {
  Start_Program();
  main().show();
  Trigger(main(), "mnuMinimizeToTaskbar");
  EXPECT_TRUE(main().isMinimized());
}

// ---- The way out -------------------------------------------------------------------------

TEST_F(Form1Test, ExitAnsweredNoLeavesEverythingAsItWas) {
  Start_Program();
  Write_File("Schedule.tmp", "1\r\n");
  machine().Answer_Next(platform::vbNo, "Confirm");
  Click(main().cmdExit);
  EXPECT_EQ(machine().Messages().back().text, "Are you sure you want to exit Orrivane?");
  EXPECT_EQ(machine().Messages().back().buttons, platform::vbYesNo);
  EXPECT_EQ(machine().Messages().back().icon, platform::vbQuestion);
  EXPECT_FALSE(machine().Exit_Code().has_value());
  EXPECT_EQ(Read_File("Schedule.tmp"), "1\r\n");
  EXPECT_TRUE(File_Present("TRemin.tmp"));
}

TEST_F(Form1Test, ExitAnsweredYesRemovesTheWorkingFilesAndEnds) {
  Start_Program();
  Write_File("NTRemin.dat", "");
  machine().Answer_Next(platform::vbYes, "Confirm");
  Until_The_End([this] { Click(main().cmdExit); });
  EXPECT_EQ(machine().Exit_Code(), 0);
  EXPECT_FALSE(File_Present("Schedule.tmp"));
  EXPECT_FALSE(File_Present("TRemin.tmp"));
  EXPECT_TRUE(File_Present("NTRemin.dat"));
}

TEST_F(Form1Test, EveryWayOutAsksFirst) {
  Start_Program();
  for (QWidget* window : {static_cast<QWidget*>(&main()), static_cast<QWidget*>(&large())}) {
    machine().Answer_Next(platform::vbNo, "Confirm");
    Trigger(*window, "mnuExit");
  }
  machine().Answer_Next(platform::vbNo, "Confirm");
  Click(large().cmdExit);
  EXPECT_EQ(machine().Messages().size(), 3u);
  EXPECT_FALSE(machine().Exit_Code().has_value());
}

TEST_F(Form1Test, ClosingByTheFrameAsksNothingAndEnds) {
  Start_Program();
  large().close();
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(machine().Exit_Code(), 0);
  EXPECT_FALSE(File_Present("Schedule.tmp"));
}

TEST_F(Form1Test, AMissingScheduleFileDoesNotKeepTheReminderFileFromGoing) {
  Start_Program();
  std::remove(Path("Schedule.tmp").c_str());
  main().close();
  EXPECT_EQ(machine().Exit_Code(), 0);
  EXPECT_FALSE(File_Present("TRemin.tmp"));
}

}  // namespace
}  // namespace orrivane
