// The caller identities of the main window's procedures: each procedure serves exactly the
// texts it lists, compared with case, and any other text (a new one, a misspelt or mis-cased
// one, another procedure's) selects nothing.
#include <QLineEdit>
#include <string>
#include <vector>

#include "calendar/calendar_window_test.h"
#include "calendar/frmDateConversion.h"
#include "calendar/frmFindADate.h"
#include "holidays/frmFindAHoliday.h"
#include "platform/platform.h"

namespace orrivane {
namespace {

using testing::CalendarWindowTest;

constexpr char kUntouched[] = "untouched";

class Form1CallersTest : public CalendarWindowTest {
 protected:
  void SetUp() override {
    CalendarWindowTest::SetUp();
    machine().Set_Now(2024, 3, 15);
    Start_Program();
  }

  frmFindADate& find() { return Window<frmFindADate>(); }
  frmDateConversion& conversion() { return Window<frmDateConversion>(); }

  // Every source of a date holds a date of its own, each a Thursday: the entries of the weekday
  // window 25 December 2003, its accepted date 4 July 1776, the converted date 1 January 1970
  // and the holiday sent to the calendar 21 November 2024. Today is 15 March 2024, a Friday.
  void Fill_Every_Source() {
    find().ComboCalendar->setCurrentText("Gregorian (New Style)");
    find().ComboMonths->setCurrentText("December");
    find().ComboDate->setCurrentText("25");
    find().ComboCentury->setCurrentText("20");
    find().ComboYear->setCurrentText("03");
    ASSERT_EQ(find().ComboYear->currentText().toStdString(), "03");
    controls::Set_Caption(find().lblShowDate, "July 4, 1776");
    controls::Set_Caption(find().lblShowCalendarName, "Gregorian");
    controls::Set_Caption(conversion().lblConvertedMonth, "January");
    controls::Set_Caption(conversion().lblConvertedDate, "1");
    controls::Set_Caption(conversion().lblConvertedCentury, "19");
    controls::Set_Caption(conversion().lblConverted2DigitYear, "70");
    controls::Set_Caption(conversion().lblConvertedStyle, "Gregorian");
    frmFindAHoliday& holiday = Window<frmFindAHoliday>();
    holiday.Selected_Holiday_Sent_To_Calendar("Write Month", "November");
    holiday.Selected_Holiday_Sent_To_Calendar("Write Date", 21);
    holiday.Selected_Holiday_Sent_To_Calendar("Write Year", 2024);
  }

  void Mark_Day_Lines() {
    for (QLabel* label : {main().lblDisplayDay, main().lblDate, find().lblDisplayDay, find().lblDate}) {
      controls::Set_Caption(label, kUntouched);
    }
  }
  void Mark_Weekday_Boxes() {
    main().txtShowWeekday->setText(kUntouched);
    find().txtShowWeekday->setText(kUntouched);
  }
  std::string Text(const QLineEdit* box) { return box->text().toStdString(); }

  // The date the keeper of Format_Day_Of_Week_Label holds.
  std::string Kept_Date() {
    return main().Store_Format_Day_Of_Week_Label_Variables("Date_String", "Get").text();
  }
  void Keep_Date(const std::string& date) {
    main().Store_Format_Day_Of_Week_Label_Variables("Date_String", "Put", date);
    main().Store_Format_Day_Of_Week_Label_Variables("Cal_Style", "Put", "Gregorian");
  }
};

// ---- Calendarr -----------------------------------------------------------------------------

TEST_F(Form1CallersTest, CalendarrTakesTheEntriesOfTheWeekdayWindowWithoutDrawing) {
  Fill_Every_Source();
  Mark_Day_Lines();
  EXPECT_EQ(main().Calendarr("frmFindADate.OutputDay()"), 5);
  EXPECT_EQ(Label(main(), "lblShowDate"), "March 15, 2024");
  EXPECT_NE(Label(find(), "lblDisplayDay"), kUntouched);  // the weekday window's day line
  EXPECT_EQ(Label(main(), "lblDisplayDay"), kUntouched);
}

TEST_F(Form1CallersTest, CalendarrDrawsTheDateOfEachOtherCaller) {
  const std::vector<std::pair<const char*, const char*>> callers{
      {"frmFindADate.OutputDay_On_Form1()", "July 4, 1776"},
      {"CmdOK_Click()", "January 1, 1970"},
      {"frmFindAHoliday.Display_Holiday_On_Calendar", "November 21, 2024"},
  };
  for (const auto& [caller, shown] : callers) {
    Fill_Every_Source();
    EXPECT_EQ(main().Calendarr(caller), 5) << caller;
    EXPECT_EQ(Label(main(), "lblShowDate"), shown) << caller;
    EXPECT_EQ(Label(large(), "lblShowDate"), shown) << caller;
  }
  machine().Set_Now(2024, 7, 4);
  EXPECT_EQ(main().Calendarr("Display_Todays_Date()"), 5);
  EXPECT_EQ(Label(main(), "lblShowDate"), "July 4, 2024");
  EXPECT_TRUE(machine().Messages().empty());
}

TEST_F(Form1CallersTest, CalendarrAnswersZeroAndDrawsNothingForAnyOtherCaller) {
  Fill_Every_Source();
  Mark_Day_Lines();
  for (const char* caller :
       {"cmdOK_Click()", "frmfindadate.outputday()", "frmFindADate.OutputDay", "OutputDay", "Display_Todays_Date",
        "display_todays_date()", "frmFindAHoliday.Display_Holiday_On_Calendar()", "Form1.Calendarr", ""}) {
    EXPECT_EQ(main().Calendarr(caller), 0) << caller;
  }
  EXPECT_EQ(Label(main(), "lblShowDate"), "March 15, 2024");
  EXPECT_EQ(Label(find(), "lblDisplayDay"), kUntouched);
  EXPECT_EQ(Label(main(), "lblDisplayDay"), kUntouched);
  EXPECT_TRUE(machine().Messages().empty());
}

// ---- Form1_Field_Validation_Check_Status ---------------------------------------------------

TEST_F(Form1CallersTest, TheFieldCheckReadsTheWeekdayWindowForItsTwoCallersOnly) {
  // Nothing is chosen yet in the weekday window: its check fails with a message.
  for (const char* caller : {"frmFindADate.OutputDay()", "frmFindADate.OutputDay_On_Form1()"}) {
    machine().Clear_Messages();
    machine().Answer_Next(platform::vbOK);
    EXPECT_NE(main().Form1_Field_Validation_Check_Status(caller), 0) << caller;
    EXPECT_EQ(machine().Messages().size(), 1u) << caller;
  }
  machine().Clear_Messages();
  for (const char* caller : {"frmfindadate.outputday()", "frmFindADate.OutputDay_On_form1()", "OutputDay",
                             "Display_Todays_Date()", ""}) {
    EXPECT_EQ(main().Form1_Field_Validation_Check_Status(caller), 0) << caller;
  }
  EXPECT_TRUE(machine().Messages().empty());
}

// ---- Format_Day_Of_Week_Label --------------------------------------------------------------

TEST_F(Form1CallersTest, TheDayLineGoesToTheWindowItsCallerNames) {
  Mark_Day_Lines();
  main().Format_Day_Of_Week_Label("March", 15, 2024, "Gregorian", "Form1.Calendarr");
  EXPECT_NE(Label(main(), "lblDisplayDay"), kUntouched);
  EXPECT_NE(Label(main(), "lblDate"), kUntouched);
  EXPECT_EQ(Label(find(), "lblDisplayDay"), kUntouched);

  Mark_Day_Lines();
  main().Format_Day_Of_Week_Label("March", 15, 2024, "Gregorian", "Form1.Calendarr for frmFindADate");
  EXPECT_NE(Label(find(), "lblDisplayDay"), kUntouched);
  EXPECT_NE(Label(find(), "lblDate"), kUntouched);
  EXPECT_EQ(Label(main(), "lblDisplayDay"), kUntouched);
}

TEST_F(Form1CallersTest, TheDayLineIsWrittenNowhereForAnyOtherCaller) {
  Mark_Day_Lines();
  for (const char* caller : {"form1.calendarr", "Form1.Calendarr for frmfindadate", "Form1.Calendarr()",
                             "frmFindADate.OutputDay()", ""}) {
    main().Format_Day_Of_Week_Label("March", 15, 2024, "Gregorian", caller);
  }
  for (QWidget* window : std::vector<QWidget*>{&main(), &find()}) {
    EXPECT_EQ(Label(*window, "lblDisplayDay"), kUntouched);
    EXPECT_EQ(Label(*window, "lblDate"), kUntouched);
  }
}

// ---- Display_Weekday -----------------------------------------------------------------------

TEST_F(Form1CallersTest, TheWeekdayGoesToTheMainWindowForFourCallers) {
  for (const char* caller :
       {"OutputDay", "Display_Todays_Date()", "cmdOK_Click()", "frmFindADate.OutputDay_On_Form1()"}) {
    Mark_Weekday_Boxes();
    main().Display_Weekday(5, caller);
    EXPECT_EQ(Text(main().txtShowWeekday), " Thursday") << caller;
    EXPECT_EQ(Text(find().txtShowWeekday), kUntouched) << caller;
  }
}

TEST_F(Form1CallersTest, TheWeekdayGoesToTheWeekdayWindowForItsEntries) {
  Mark_Weekday_Boxes();
  main().Display_Weekday(5, "frmFindADate.OutputDay()");
  EXPECT_EQ(Text(find().txtShowWeekday), " Thursday");
  EXPECT_EQ(Text(main().txtShowWeekday), kUntouched);
}

TEST_F(Form1CallersTest, TheWeekdayIsWrittenInNoBoxForAnyOtherCaller) {
  Mark_Weekday_Boxes();
  // "CmdOK_Click()" with a capital C is Calendarr's identity, not this procedure's.
  for (const char* caller : {"CmdOK_Click()", "outputday", "OutputDay()", "Form1.OutputDay()", "Cal_Conversion()",
                             "frmFindADate.outputDay()", ""}) {
    main().Display_Weekday(5, caller);
  }
  EXPECT_EQ(Text(main().txtShowWeekday), kUntouched);
  EXPECT_EQ(Text(find().txtShowWeekday), kUntouched);
}

// ---- Convert -------------------------------------------------------------------------------

TEST_F(Form1CallersTest, ConvertOpensTheConversionOfTheShownDateOrOfTheWeekdayWindowsDate) {
  main().Convert("Cal_Conversion()");
  EXPECT_TRUE(conversion().isVisible());
  EXPECT_EQ(Label(conversion(), "lblDate1"), "March 15, 2024 N.S.");
  conversion().hide();

  Fill_Every_Source();
  main().Convert("frmFindADate.cmdConvertAboveDate__Click()");
  EXPECT_TRUE(conversion().isVisible());
  EXPECT_EQ(Label(conversion(), "lblDate1"), "July 4, 1776 N.S.");
}

TEST_F(Form1CallersTest, ConvertTurnsTheKeptDateForTheDayLineAndTheTimeLength) {
  for (const char* caller :
       {"Format_Day_Of_Week_Label(ByVal Month_, ByVal Date_, ByVal Year_, CalStyle, Calling_Sub_Origin)",
        "frmFindDateDifference.cmdENTER_Click()"}) {
    Keep_Date("3/15/2024");
    main().Convert(caller);
    EXPECT_EQ(Kept_Date(), "3/2/2024") << caller;
    EXPECT_FALSE(conversion().isVisible()) << caller;
  }
}

TEST_F(Form1CallersTest, ConvertDoesNothingForAnyOtherCaller) {
  Fill_Every_Source();
  Keep_Date("3/15/2024");
  for (const char* caller : {"cal_Conversion()", "Cal_Conversion", "frmFindADate.cmdConvertAboveDate_Click()",
                             "frmFindDateDifference.cmdEnter_Click()", "Format_Day_Of_Week_Label", "CmdOK_Click()",
                             ""}) {
    main().Convert(caller);
    EXPECT_FALSE(conversion().isVisible()) << caller;
  }
  EXPECT_EQ(Kept_Date(), "3/15/2024");
  EXPECT_TRUE(machine().Messages().empty());
}

// ---- Terminate_This_Program ----------------------------------------------------------------

TEST_F(Form1CallersTest, EveryCallerButTheFrameIsAskedBeforeTheEnd) {
  for (const char* caller : {"cmdEXIT_Click()", "mnuExit", "frmLargeCalendar.cmdExit_Click()", "mnuExit_Click()",
                             "form_unload", "Form_Unload()", "Form_Unload(Cancel As Integer)", ""}) {
    machine().Clear_Messages();
    machine().Answer_Next(platform::vbNo, "Confirm");
    main().Terminate_This_Program(caller);
    EXPECT_EQ(machine().Messages().size(), 1u) << caller;
  }
  EXPECT_FALSE(machine().Exit_Code().has_value());
  EXPECT_TRUE(File_Present("Schedule.tmp"));
}

TEST_F(Form1CallersTest, TheFrameEndsWithoutAQuestion) {
  machine().Clear_Messages();
  Until_The_End([this] {
    try {
      main().Terminate_This_Program("Form_Unload");
    } catch (const platform::ProcessEnded&) {
      // what ends the process in a test
    }
  });
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_FALSE(File_Present("Schedule.tmp"));
  EXPECT_FALSE(File_Present("TRemin.tmp"));
}

}  // namespace
}  // namespace orrivane
