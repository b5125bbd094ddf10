// Converting the selected date between the styles, and sending the result to the calendar.
#include "calendar/calendar_window_test.h"
#include "calendar/frmDateConversion.h"

namespace orrivane {
namespace {

using testing::CalendarWindowTest;

class frmDateConversionTest : public CalendarWindowTest {
 protected:
  frmDateConversion& conversion() { return Window<frmDateConversion>(); }
  void Convert_Today(int year, int month, int day) {
    machine().Set_Now(year, month, day);
    Start_Program();
    Click(main().CmdConvert);
  }
};

TEST_F(frmDateConversionTest, NewYear2000IsTheNineteenthOfDecemberOldStyle) {
  Convert_Today(2000, 1, 1);
  EXPECT_TRUE(conversion().isVisible());
  EXPECT_EQ(conversion().windowTitle().toStdString(), "Date Conversion");
  EXPECT_EQ(Label(conversion(), "lblDate1"), "January 1, 2000 N.S.");
  EXPECT_EQ(Label(conversion(), "lblEquivalent"), "Julian Equivalent: ");
  EXPECT_EQ(Label(conversion(), "lblDate2"), "December 19, 1999 O.S.");
  EXPECT_EQ(Label(conversion(), "lblDifference"), "13 day(s).");
  EXPECT_EQ(Label(conversion(), "lblConvertedMonth"), "December");
  EXPECT_EQ(Label(conversion(), "lblConvertedCentury"), "19");
  EXPECT_EQ(Label(conversion(), "lblConverted2DigitYear"), "99");
  EXPECT_EQ(Label(conversion(), "lblConvertedStyle"), "Julian");
}

TEST_F(frmDateConversionTest, SendingTheResultDrawsItAndTurnsTheConvertButton) {
  Convert_Today(2000, 1, 15);
  EXPECT_EQ(Label(conversion(), "lblDate2"), "January 2, 2000 O.S.");
  conversion().ChkDisplayConvertedDate->setChecked(true);
  Click(conversion().cmdOK);
  EXPECT_FALSE(conversion().isVisible());
  EXPECT_FALSE(conversion().ChkDisplayConvertedDate->isChecked());
  EXPECT_EQ(Label(main(), "lblShowDate"), "January 2, 2000");
  EXPECT_EQ(Label(main(), "lblCalendarNameOverCalendar"), "JULIAN CALENDAR");
  EXPECT_EQ(Label(main(), "lblShowCalendarName"), "Julian");
  EXPECT_EQ(main().CmdConvert->text().toStdString(), "Convert This Date To New Style");
  EXPECT_EQ(Red_Cells(main()), 1);
  // 2 January 2000 Julian is 15 January 2000 Gregorian: a Saturday, and today.
  EXPECT_EQ(main().txtShowWeekday->text().toStdString(), " Saturday");
  EXPECT_EQ(Label(main(), "lblDisplayDay"), "Today is:");
  // And back again.
  Click(main().CmdConvert);
  EXPECT_EQ(Label(conversion(), "lblEquivalent"), "Gregorian Equivalent: ");
  EXPECT_EQ(Label(conversion(), "lblDate2"), "January 15, 2000 N.S.");
  conversion().ChkDisplayConvertedDate->setChecked(true);
  Click(conversion().cmdOK);
  EXPECT_EQ(main().CmdConvert->text().toStdString(), "Convert This Date To Old Style");
  EXPECT_EQ(Label(main(), "lblCalendarNameOverCalendar"), "GREGORIAN CALENDAR");
}

TEST_F(frmDateConversionTest, AGregorianNewYearsDayComesBackAsAnEmptyMonthWithTheDay2) {
  Convert_Today(2000, 1, 1);
  conversion().ChkDisplayConvertedDate->setChecked(true);
  Click(conversion().cmdOK);
  Click(main().CmdConvert);
  EXPECT_EQ(Label(conversion(), "lblDate2"), " 2, 2000 N.S.");
}

TEST_F(frmDateConversionTest, OKWithoutTheCheckBoxOnlyHides) {
  Convert_Today(2024, 3, 15);
  Click(conversion().cmdOK);
  EXPECT_FALSE(conversion().isVisible());
  EXPECT_EQ(Label(main(), "lblShowDate"), "March 15, 2024");
  EXPECT_EQ(main().CmdConvert->text().toStdString(), "Convert This Date To Old Style");
}

TEST_F(frmDateConversionTest, CancelHides) {
  Convert_Today(2024, 3, 15);
  Click(conversion().cmdCancel);
  EXPECT_FALSE(conversion().isVisible());
}

TEST_F(frmDateConversionTest, TodaysGregorianDateShownAsJulianIsNotToday) {
  machine().Set_Now(2024, 3, 15);
  Start_Program();
  Show_Month("March", "2024", true);
  // 15 March 2024 Julian is 28 March Gregorian: a date to come.
  main().Convert("Cal_Conversion()");
  EXPECT_EQ(Label(conversion(), "lblDate2"), "March 28, 2024 N.S.");
}

TEST_F(frmDateConversionTest, November1582CannotBeConverted) {
  machine().Set_Now(1582, 11, 15);
  Start_Program();
  machine().Answer_Next(platform::vbOK, "Invalid Date");
  Click(main().CmdConvert);
  EXPECT_FALSE(conversion().isVisible());
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(machine().Messages()[0].text,
            "For the Gregorian Calendar, please make sure the \rdate entered is on or after October 15, 1582.");
  EXPECT_EQ(machine().Messages()[0].icon, platform::vbExclamation);
}

}  // namespace
}  // namespace orrivane
