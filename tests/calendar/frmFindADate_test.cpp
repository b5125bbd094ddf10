// "Find The Weekday Of A Date": the entries, the main window's checks and weekday behind ENTER,
// the day line written back here, and the accepted date sent to the calendar or converted.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <string>

#include "calendar/Form1.h"
#include "calendar/frmDateConversion.h"
#include "calendar/frmFindADate.h"
#include "calendar/frmLargeCalendar.h"
#include "platform/controls.h"
#include "platform/platform.h"
#include "platform/window_registry.h"
#include "support/window_fixture.h"

namespace orrivane {
namespace {

using controls::Caption;
using testing::WindowTest;

constexpr char kGregorian[] = "Gregorian (New Style)";
constexpr char kJulian[] = "Julian (Old Style)";

class frmFindADateTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    // The program starts as the user starts it (today is 15 March 2024), then the user opens
    // this window from the menu of the large calendar, the one on show.
    Window<Form1>().show();
    Process_Events();
    Trigger(Window<frmLargeCalendar>(), "mnuFindADatesWeekday");
    Process_Events();
    ASSERT_TRUE(window().isVisible());
  }

  frmFindADate& window() { return Window<frmFindADate>(); }
  QComboBox* Box(const char* name) { return Control<QComboBox>(window(), name); }
  QPushButton* Button(const char* name) { return Control<QPushButton>(window(), name); }
  std::string Label(const char* name) { return Caption(Control<QLabel>(window(), name)); }
  std::string Weekday() { return Control<QLineEdit>(window(), "txtShowWeekday")->text().toStdString(); }

  void Pick(QComboBox* box, const QString& entry) {
    const int index = box->findText(entry);
    ASSERT_GE(index, 0) << entry.toStdString();
    box->setCurrentIndex(index);
  }

  // Types into an editable box as the user does.
  void Type_Into(QComboBox* box, const QString& text) { Type(box->lineEdit(), text); }

  void Enter(const char* style, const char* month, const char* date, const char* century, const char* year) {
    Pick(Box("ComboCalendar"), style);
    Pick(Box("ComboMonths"), month);
    Pick(Box("ComboDate"), date);
    Type_Into(Box("ComboCentury"), century);
    Pick(Box("ComboYear"), year);
  }

  void Press_Enter() { Click(Button("cmdENTER")); }

  // Presses a button and expects exactly one box with the title and text (exclamation, OK).
  void Expect_Message(QPushButton* button, const std::string& title, const std::string& text) {
    machine().Clear_Messages();
    machine().Answer_Next(platform::vbOK, title);
    Click(button);
    ASSERT_EQ(machine().Messages().size(), 1u);
    EXPECT_EQ(machine().Messages()[0].title, title);
    EXPECT_EQ(machine().Messages()[0].text, text);
    EXPECT_EQ(machine().Messages()[0].buttons, platform::vbOKOnly);
    EXPECT_EQ(machine().Messages()[0].icon, platform::vbExclamation);
  }

  void Expect_Nothing_Accepted() {
    EXPECT_EQ(Weekday(), "N\\A");
    EXPECT_EQ(Label("lblShowDate"), "");
    EXPECT_EQ(Label("lblShowCalendarName"), "");
    EXPECT_FALSE(Button("cmdConvertAboveDate_")->isEnabled());
    EXPECT_FALSE(Button("cmdDisplayAboveDateOnCalendar")->isEnabled());
    EXPECT_EQ(Button("cmdConvertAboveDate_")->text(), "Convert Above Date");
  }
};

// ---- The window ------------------------------------------------------------------------------

TEST_F(frmFindADateTest, StartsWithTheGregorianStyleTheCentury00AndNothingAccepted) {
  EXPECT_EQ(window().windowTitle(), "Find The Weekday Of A Date");
  EXPECT_TRUE(Box("ComboCalendar")->isEditable());
  EXPECT_EQ(Box("ComboCalendar")->currentText(), kGregorian);
  ASSERT_EQ(Box("ComboCalendar")->count(), 2);
  EXPECT_EQ(Box("ComboCalendar")->itemText(1), kJulian);
  EXPECT_TRUE(Box("ComboCentury")->isEditable());
  EXPECT_EQ(Box("ComboCentury")->currentText(), "00");
  EXPECT_EQ(Box("ComboCentury")->count(), 100);
  EXPECT_EQ(Box("ComboCentury")->itemText(99), "99");
  for (const char* list_only : {"ComboMonths", "ComboDate", "ComboYear"}) {
    EXPECT_FALSE(Box(list_only)->isEditable()) << list_only;
    EXPECT_EQ(Box(list_only)->currentIndex(), -1) << list_only;
    EXPECT_EQ(Box(list_only)->currentText(), "") << list_only;
  }
  EXPECT_EQ(Box("ComboMonths")->count(), 12);
  EXPECT_EQ(Box("ComboMonths")->itemText(8), "September");
  EXPECT_EQ(Box("ComboDate")->count(), 31);
  EXPECT_EQ(Box("ComboDate")->itemText(0), "01");
  EXPECT_EQ(Box("ComboDate")->itemText(30), "31");
  EXPECT_EQ(Box("ComboYear")->count(), 100);
  EXPECT_EQ(Box("ComboYear")->itemText(0), "00");
  EXPECT_EQ(Label("lblDisplayDay"), "This date occured on a:");
  EXPECT_EQ(Label("lblDate"), "Date:");
  EXPECT_EQ(Label("lblCalendarName"), "Calendar:");
  EXPECT_TRUE(Control<QLineEdit>(window(), "txtShowWeekday")->isReadOnly());
  EXPECT_EQ(Label("lblSelectCalendarStyle"), "Select Calendar Style:");
  EXPECT_EQ(Label("lblSelectMonthDate"), "Select Month\\Date:");
  EXPECT_EQ(Label("lblChooseCentury"), "Choose Century:");
  EXPECT_EQ(Label("lblChooseYear"), "Choose Year:");
  EXPECT_EQ(Button("cmdENTER")->text(), "ENTER");
  EXPECT_EQ(Button("cmdDisplayAboveDateOnCalendar")->text(), "Display Above Date On Calendar");
  EXPECT_EQ(Button("cmdCloseThisWindow")->text(), "Close This Window");
  Expect_Nothing_Accepted();
}

TEST_F(frmFindADateTest, CloseThisWindowPutsItAway) {
  Click(Button("cmdCloseThisWindow"));
  EXPECT_FALSE(window().isVisible());
}

// ---- ENTER: the weekday and the day line -----------------------------------------------------

TEST_F(frmFindADateTest, TodayIsToldWithItsWeekdayAndBecomesTheAcceptedDate) {
  Enter(kGregorian, "March", "15", "20", "24");
  Press_Enter();
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(Weekday(), " Friday");
  EXPECT_EQ(Label("lblDisplayDay"), "Today is:");
  EXPECT_EQ(Label("lblDate"), "Today's Date:");
  EXPECT_EQ(Label("lblShowDate"), "March 15, 2024");
  EXPECT_EQ(Label("lblShowCalendarName"), "Gregorian");
  EXPECT_TRUE(Button("cmdConvertAboveDate_")->isEnabled());
  EXPECT_TRUE(Button("cmdDisplayAboveDateOnCalendar")->isEnabled());
  EXPECT_EQ(Button("cmdConvertAboveDate_")->text(), "Convert Above Date To Old Style");
  // The heading of the large calendar tells the weekday last asked about.
  EXPECT_EQ(Caption(Window<frmLargeCalendar>().lblMonthYear), "Friday");
  // The main window's date line is not this window's.
  EXPECT_EQ(Caption(Window<Form1>().lblDisplayDay), "Today is:");
  EXPECT_EQ(Window<Form1>().txtShowWeekday->text(), " Friday");
  EXPECT_TRUE(window().isVisible());
}

TEST_F(frmFindADateTest, TheDayLineNamesTheDaysAroundToday) {
  struct Row {
    const char* date;
    const char* weekday;
    const char* long_wording;
    const char* short_wording;
  };
  const Row rows[] = {
      {"12", " Tuesday", "This date occured on a:", "Date:"},
      {"13", " Wednesday", "The day before yesterday was:", "Two Days Ago:"},
      {"14", " Thursday", "Yesterday was:", "Yesterday:"},
      {"15", " Friday", "Today is:", "Today's Date:"},
      {"16", " Saturday", "Tomorrow is:", "Tomorrow:"},
      {"17", " Sunday", "The day after tomorrow will be:", "Date:"},
      {"18", " Monday", "This date will occur on a:", "Date:"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.date);
    Enter(kGregorian, "March", row.date, "20", "24");
    Press_Enter();
    EXPECT_EQ(Weekday(), row.weekday);
    EXPECT_EQ(Label("lblDisplayDay"), row.long_wording);
    EXPECT_EQ(Label("lblDate"), row.short_wording);
  }
  EXPECT_TRUE(machine().Messages().empty());
}

TEST_F(frmFindADateTest, TheDateAndYearLoseTheirLeadingZeros) {
  Enter(kJulian, "May", "05", "00", "05");
  Press_Enter();
  EXPECT_EQ(Label("lblShowDate"), "May 5, 5");
  EXPECT_EQ(Label("lblShowCalendarName"), "Julian");
  EXPECT_EQ(Weekday(), " Tuesday");
  EXPECT_EQ(Label("lblDisplayDay"), "This date occured on a:");
}

// ---- Dates that do not exist -----------------------------------------------------------------

TEST_F(frmFindADateTest, February29Of1900GregorianIsRefusedAndTheConvertButtonStaysAsItWas) {
  Enter(kGregorian, "February", "29", "19", "00");
  Expect_Message(Button("cmdENTER"), "Invalid Date", "February of 1900 only has 28 days in it.");
  Expect_Nothing_Accepted();
}

TEST_F(frmFindADateTest, ARefusedDateLeavesTheDateAcceptedBefore) {
  Enter(kJulian, "October", "10", "15", "82");
  Press_Enter();
  ASSERT_EQ(Button("cmdConvertAboveDate_")->text(), "Convert Above Date To New Style");
  Enter(kGregorian, "February", "29", "19", "00");
  Expect_Message(Button("cmdENTER"), "Invalid Date", "February of 1900 only has 28 days in it.");
  EXPECT_EQ(Button("cmdConvertAboveDate_")->text(), "Convert Above Date To New Style");
  EXPECT_TRUE(Button("cmdConvertAboveDate_")->isEnabled());
  EXPECT_EQ(Label("lblShowDate"), "October 10, 1582");
  EXPECT_EQ(Label("lblShowCalendarName"), "Julian");
  EXPECT_EQ(Weekday(), " Wednesday");
}

TEST_F(frmFindADateTest, February29Of1900IsAWeekdayInTheJulianStyle) {
  Enter(kJulian, "February", "29", "19", "00");
  Press_Enter();
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(Weekday(), " Tuesday");
  EXPECT_EQ(Label("lblShowDate"), "February 29, 1900");
}

TEST_F(frmFindADateTest, TheDayLineIsWrittenAlsoForADateThatDoesNotExist) {
  Enter(kGregorian, "April", "31", "20", "25");
  Expect_Message(Button("cmdENTER"), "Invalid Date", "April does not have 31 days in it!");
  EXPECT_EQ(Label("lblDisplayDay"), "This date will occur on a:");
  EXPECT_EQ(Label("lblDate"), "Date:");
  Expect_Nothing_Accepted();
}

TEST_F(frmFindADateTest, October10Of1582IsBeforeTheGregorianCalendar) {
  Enter(kGregorian, "October", "10", "15", "82");
  Expect_Message(Button("cmdENTER"), "Invalid Date",
                 "For the Gregorian Calendar, please make sure the \rdate entered is on or after October 15, 1582.");
  Expect_Nothing_Accepted();
}

TEST_F(frmFindADateTest, October10Of1582JulianIsAWeekdayToConvertToTheNewStyle) {
  Enter(kJulian, "October", "10", "15", "82");
  Press_Enter();
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(Weekday(), " Wednesday");
  EXPECT_EQ(Label("lblShowDate"), "October 10, 1582");
  EXPECT_EQ(Label("lblShowCalendarName"), "Julian");
  EXPECT_EQ(Button("cmdConvertAboveDate_")->text(), "Convert Above Date To New Style");
}

// ---- The field check -------------------------------------------------------------------------

TEST_F(frmFindADateTest, ACenturyAbove1000IsRefused) {
  Enter(kGregorian, "January", "01", "1001", "00");
  Expect_Message(Button("cmdENTER"), "Invalid Century Entry",
                 "A value from 0 to 1000 must be entered in the Century field.");
  Expect_Nothing_Accepted();
}

TEST_F(frmFindADateTest, ACenturyThatIsNoNumberIsRefusedWithTheSameMessage) {
  Enter(kGregorian, "January", "01", "abc", "00");
  Expect_Message(Button("cmdENTER"), "Invalid Century Entry",
                 "A value from 0 to 1000 must be entered in the Century field.");
  Expect_Nothing_Accepted();
}

TEST_F(frmFindADateTest, TheCentury1000MakesTheYear100000) {
  Enter(kGregorian, "January", "01", "1000", "00");
  Press_Enter();
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(Label("lblShowDate"), "January 1, 100000");
  EXPECT_EQ(Weekday(), " Saturday");
  EXPECT_EQ(Label("lblDisplayDay"), "This date will occur on a:");
}

TEST_F(frmFindADateTest, AllFiveBoxesEmptyGiveTheGeneralMessageAlone) {
  Type_Into(Box("ComboCalendar"), "");
  Type_Into(Box("ComboCentury"), "");
  Expect_Message(Button("cmdENTER"), "Invalid Field Entries", "Some fields were omitted or contain invalid selections.");
  Expect_Nothing_Accepted();
}

TEST_F(frmFindADateTest, EachMissingFieldHasItsOwnMessage) {
  struct Row {
    const char* style;
    const char* month;
    const char* date;
    const char* year;
    const char* title;
    const char* text;
  };
  const Row rows[] = {
      {"", "March", "01", "24", "Invalid Calendar Selection", "A calendar style must be selected."},
      {"Mayan", "March", "01", "24", "Invalid Calendar Selection", "That is not a valid entry."},
      {kGregorian, "", "01", "24", "No Month Selected", "A month must be selected."},
      {kGregorian, "March", "01", "", "No Year Selected", "A year must be selected."},
      {kGregorian, "March", "", "24", "No Date Selected", "A date must be selected."},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.title + std::string(" ") + row.text);
    Type_Into(Box("ComboCalendar"), row.style);
    Box("ComboMonths")->setCurrentIndex(Box("ComboMonths")->findText(row.month));
    Box("ComboDate")->setCurrentIndex(Box("ComboDate")->findText(row.date));
    Type_Into(Box("ComboCentury"), "20");
    Box("ComboYear")->setCurrentIndex(Box("ComboYear")->findText(row.year));
    Expect_Message(Button("cmdENTER"), row.title, row.text);
    Expect_Nothing_Accepted();
  }
}

// ---- The accepted date on the calendar -------------------------------------------------------

TEST_F(frmFindADateTest, TheAcceptedDateIsDrawnOnTheCalendarNotThePresentEntries) {
  Enter(kJulian, "October", "10", "15", "82");
  Press_Enter();
  Enter(kGregorian, "January", "01", "20", "00");  // entered, but ENTER not pressed
  Click(Button("cmdDisplayAboveDateOnCalendar"));
  EXPECT_TRUE(machine().Messages().empty());
  Form1& form1 = Window<Form1>();
  EXPECT_EQ(Caption(form1.lblShowDate), "October 10, 1582");
  EXPECT_EQ(Caption(form1.lblShowCalendarName), "Julian");
  EXPECT_EQ(Caption(form1.lblCalendarNameOverCalendar), "JULIAN CALENDAR");
  EXPECT_EQ(Caption(form1.lblMonthYear), "October 1582");
  EXPECT_EQ(Caption(form1.lblStoreMonth), "October");
  EXPECT_EQ(Caption(form1.lblStoreYear), "1582");
  EXPECT_EQ(form1.txtShowWeekday->text(), " Wednesday");
  EXPECT_EQ(Caption(Window<frmLargeCalendar>().lblMonthYear), "Wednesday");
  // 1 October 1582 O.S. was a Monday: the 10th stands in cell 10, the one red cell.
  for (int i = 0; i < 42; ++i) {
    QLabel* cell = Control<QLabel>(form1, controls::Array_Name("lblCalDate", i));
    EXPECT_EQ(controls::Fore_Color(cell) == controls::kRed, i == 10) << i;
  }
  EXPECT_EQ(Caption(Control<QLabel>(form1, "lblCalDate(1)")), "1");
  EXPECT_EQ(Caption(Control<QLabel>(form1, "lblCalDate(10)")), "10");
  // This window's answer stays as it was, and the window stays open.
  EXPECT_EQ(Weekday(), " Wednesday");
  EXPECT_TRUE(window().isVisible());
}

TEST_F(frmFindADateTest, TheAcceptedDateIsNotDrawnWhileAnEntryIsWrong) {
  Enter(kGregorian, "March", "16", "20", "24");
  Press_Enter();
  Type_Into(Box("ComboCentury"), "abc");
  Expect_Message(Button("cmdDisplayAboveDateOnCalendar"), "Invalid Century Entry",
                 "A value from 0 to 1000 must be entered in the Century field.");
  EXPECT_EQ(Caption(Window<Form1>().lblShowDate), "March 15, 2024");
  EXPECT_EQ(Window<Form1>().txtShowWeekday->text(), " Friday");
}

// ---- The accepted date converted -------------------------------------------------------------

TEST_F(frmFindADateTest, TheAcceptedGregorianDateIsConvertedToTheOldStyle) {
  Enter(kGregorian, "March", "15", "20", "24");
  Press_Enter();
  Click(Button("cmdConvertAboveDate_"));
  EXPECT_TRUE(machine().Messages().empty());
  frmDateConversion& conversion = Window<frmDateConversion>();
  EXPECT_TRUE(conversion.isVisible());
  EXPECT_EQ(Caption(conversion.lblDate1), "March 15, 2024 N.S.");
  EXPECT_EQ(Caption(conversion.lblEquivalent), "Julian Equivalent: ");
  EXPECT_EQ(Caption(conversion.lblDate2), "March 2, 2024 O.S.");
  EXPECT_EQ(Caption(conversion.lblDifference), "13 day(s).");
}

TEST_F(frmFindADateTest, AJulianDateBeforeTheCalendarChangeCannotBeConverted) {
  Enter(kJulian, "October", "04", "15", "82");
  Press_Enter();
  ASSERT_EQ(Weekday(), " Thursday");
  Expect_Message(Button("cmdConvertAboveDate_"), "Invalid Date For Conversion",
                 "To convert a date from Julian to Gregorian, the \rdate entered must be on or after October 5, 1582.");
}

}  // namespace
}  // namespace orrivane
