// "View Month On Calendar": the checks of the month and year entered, and the month it brings
// on both calendar windows.
#include <QCoreApplication>
#include <QEvent>
#include <QMessageBox>
#include <QTimer>
#include <string>

#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "calendar/frmSelectMonth.h"
#include "platform/controls.h"
#include "platform/platform.h"
#include "platform/window_registry.h"
#include "support/window_fixture.h"

namespace orrivane {
namespace {

using controls::Caption;
using controls::Fore_Color;
using testing::WindowTest;

class frmSelectMonthTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    // The program starts as the user starts it: today's month on the calendar.
    Window<Form1>().show();
    Process_Events();
    Open();
  }

  // The user opens the window from the menu of the large calendar, the one on show.
  void Open() {
    Trigger(Window<frmLargeCalendar>(), "mnuSelect");
    Process_Events();
    ASSERT_TRUE(window().isVisible());
  }

  frmSelectMonth& window() { return Window<frmSelectMonth>(); }
  QComboBox* Months() { return Control<QComboBox>(window(), "ComboMonths"); }
  QLineEdit* Year() { return Control<QLineEdit>(window(), "txtYear"); }

  void Enter(const QString& month, const QString& year, const char* style = "optGregorian") {
    Months()->setCurrentIndex(Months()->findText(month));
    Type(Year(), year);
    Click(Control<QWidget>(window(), style));
  }

  void Display() { Click(Control<QWidget>(window(), "cmdDisplay")); }

  // Displays with the entries and expects the one message of the status, the window staying
  // open with the entries as they were.
  void Expect_Refused(const std::string& title, const std::string& text) {
    const QString month = Months()->currentText();
    const QString year = Year()->text();
    machine().Answer_Next(platform::vbOK, title);
    Display();
    ASSERT_EQ(machine().Messages().size(), 1u);
    const testing::ShownMessage& shown = machine().Messages()[0];
    EXPECT_EQ(shown.title, title);
    EXPECT_EQ(shown.text, text);
    EXPECT_EQ(shown.buttons, platform::vbOKOnly);
    EXPECT_EQ(shown.icon, platform::vbExclamation);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(Months()->currentText(), month);
    EXPECT_EQ(Year()->text(), year);
    // The month on show stays: today's.
    EXPECT_EQ(Caption(Window<Form1>().lblStoreMonth), "March");
    EXPECT_EQ(Caption(Window<Form1>().lblStoreYear), "2024");
    machine().Clear_Messages();
  }

  QLabel* Cell(QWidget& calendar, int index) {
    return Control<QLabel>(calendar, controls::Array_Name("lblCalDate", index));
  }

  // The grid of a month whose first stands in `first_cell`, on both calendar windows: the last
  // days of the month before in grey, the month's days in the button-text colour, then 1, 2,
  // 3 ... in grey, and no red cell.
  void Expect_Month(int first_cell, int length, int prior_length) {
    for (QWidget* calendar : {static_cast<QWidget*>(&Window<Form1>()), static_cast<QWidget*>(&Window<frmLargeCalendar>())}) {
      SCOPED_TRACE(calendar->objectName().toStdString());
      for (int i = 0; i < 42; ++i) {
        SCOPED_TRACE(i);
        std::string caption;
        unsigned colour = controls::kGrayText;
        if (i < first_cell) {
          caption = std::to_string(prior_length - first_cell + 1 + i);
        } else if (i < first_cell + length) {
          caption = std::to_string(i - first_cell + 1);
          colour = controls::kButtonText;
        } else {
          caption = std::to_string(i - first_cell - length + 1);
        }
        EXPECT_EQ(Caption(Cell(*calendar, i)), caption);
        EXPECT_EQ(Fore_Color(Cell(*calendar, i)), colour);
      }
    }
  }

  void Expect_Heading(const std::string& month_and_year, const std::string& heading) {
    EXPECT_EQ(Caption(Window<Form1>().lblMonthYear), month_and_year);
    EXPECT_EQ(Caption(Window<Form1>().lblCalendarNameOverCalendar), heading);
    EXPECT_EQ(Caption(Window<frmLargeCalendar>().lblMonthYear), month_and_year);
    EXPECT_EQ(Caption(Window<frmLargeCalendar>().lblCalendarNameOverCalendar), heading);
  }

  QPushButton* Large_Button(const char* name) { return Control<QPushButton>(Window<frmLargeCalendar>(), name); }
  QPushButton* Form1_Button(const char* name) { return Control<QPushButton>(Window<Form1>(), name); }
};

// ---- The window ------------------------------------------------------------------------------

TEST_F(frmSelectMonthTest, StartsWithNoMonthTheGregorianStyleAndAnEmptyYearOfEightCharactersAtMost) {
  EXPECT_EQ(window().windowTitle(), "View Month On Calendar");
  EXPECT_EQ(Months()->count(), 12);
  EXPECT_EQ(Months()->itemText(0), "January");
  EXPECT_EQ(Months()->itemText(11), "December");
  EXPECT_FALSE(Months()->isEditable());
  EXPECT_EQ(Months()->currentIndex(), -1);
  EXPECT_EQ(Months()->currentText(), "");
  EXPECT_EQ(Year()->text(), "");
  EXPECT_EQ(Year()->maxLength(), 8);
  Type(Year(), "123456789");
  EXPECT_EQ(Year()->text(), "12345678");
  EXPECT_TRUE(Control<QRadioButton>(window(), "optGregorian")->isChecked());
  EXPECT_FALSE(Control<QRadioButton>(window(), "optJulian")->isChecked());
  EXPECT_EQ(Control<QGroupBox>(window(), "fraCalendarStyle")->title(), "Calendar Style");
  EXPECT_EQ(Control<QPushButton>(window(), "cmdDisplay")->text(), "Display");
  EXPECT_EQ(Control<QPushButton>(window(), "cmdCancel")->text(), "Cancel");
  EXPECT_EQ(Control<QLabel>(window(), "lblSelectMonth")->text(), "Select Month:");
  EXPECT_EQ(Control<QLabel>(window(), "lblSelectYear")->text(), "Select Year:");
}

TEST_F(frmSelectMonthTest, CancelPutsTheWindowAwayAndTheEntriesStay) {
  Enter("May", "1999");
  Click(Control<QWidget>(window(), "cmdCancel"));
  EXPECT_FALSE(window().isVisible());
  EXPECT_EQ(Caption(Window<Form1>().lblStoreMonth), "March");
  Open();
  EXPECT_EQ(Months()->currentText(), "May");
  EXPECT_EQ(Year()->text(), "1999");
}

TEST_F(frmSelectMonthTest, LosingTheFocusToAnotherWindowPutsItAway) {
  QEvent deactivate(QEvent::WindowDeactivate);
  QCoreApplication::sendEvent(&window(), &deactivate);
  EXPECT_FALSE(window().isVisible());
}

TEST_F(frmSelectMonthTest, AMessageBoxTakingTheFocusDoesNotPutItAway) {
  QMessageBox box;
  box.setText("Reminder");
  bool stayed = false;
  When_Modal([&] {
    QEvent deactivate(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(&window(), &deactivate);
    stayed = window().isVisible();
    box.accept();
  });
  box.exec();
  EXPECT_TRUE(stayed);
}

// ---- The check -----------------------------------------------------------------------------

TEST_F(frmSelectMonthTest, AYearThatIsNoNumberIsRefusedWithStatus5) {
  Enter("March", "abc");
  Expect_Refused("Invalid Year Entry", "The year must contain only numbers.");
}

TEST_F(frmSelectMonthTest, AYearWithAFractionIsNoNumberEither) {
  Enter("September", "1582.5");
  Expect_Refused("Invalid Year Entry", "The year must contain only numbers.");
  Enter("January", "1581.5", "optJulian");
  Expect_Refused("Invalid Year Entry", "The year must contain only numbers.");
}

TEST_F(frmSelectMonthTest, NoMonthAndNoYearGiveTheGeneralMessageOfStatus6) {
  Expect_Refused("Error", "Please select a month and enter a valid year in the year field.");
}

TEST_F(frmSelectMonthTest, NoMonthIsStatus1) {
  Type(Year(), "2000");
  Expect_Refused("No Month Selected", "A month must be selected.");
}

TEST_F(frmSelectMonthTest, NoYearIsStatus2) {
  Enter("June", "");
  Expect_Refused("No Year Entered", "A year must be entered.");
}

TEST_F(frmSelectMonthTest, NoMonthAndAYearThatIsNoNumberCountTwoErrors) {
  Type(Year(), "12x");
  Expect_Refused("Error", "Please select a month and enter a valid year in the year field.");
}

TEST_F(frmSelectMonthTest, NoMonthAndAYearBeforeTheGregorianCalendarCountTwoErrors) {
  Type(Year(), "1500");
  Expect_Refused("Error", "Please select a month and enter a valid year in the year field.");
}

TEST_F(frmSelectMonthTest, September1582GregorianIsBeforeTheCalendarWithStatus4) {
  Enter("September", "1582");
  Expect_Refused("Invalid Month Selection",
                 "For the Gregorian Calendar, please make sure the \rmonth selected is October 1582 or later.");
}

TEST_F(frmSelectMonthTest, October1582GregorianIsDrawnWith31DaysInARowFromItsProlepticPlace) {
  Enter("October", "1582");
  Display();
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_FALSE(window().isVisible());
  Expect_Month(5, 31, 30);
  Expect_Heading("October 1582", "GREGORIAN CALENDAR");
  EXPECT_EQ(Caption(Window<Form1>().lblStoreMonth), "October");
  EXPECT_EQ(Caption(Window<Form1>().lblStoreYear), "1582");
  EXPECT_EQ(Caption(Window<frmLargeCalendar>().lblMonthNumber), "10");
  EXPECT_EQ(Caption(Window<frmLargeCalendar>().lblMonthNumberShadow), "10");
  EXPECT_EQ(Caption(Window<frmLargeCalendar>().lblShowDate), "");
}

TEST_F(frmSelectMonthTest, TheSideCalendarsFollowTheMonthChosen) {
  Enter("October", "1582");
  Display();
  for (QWidget* calendar : {static_cast<QWidget*>(&Window<Form1>()), static_cast<QWidget*>(&Window<frmLargeCalendar>())}) {
    EXPECT_EQ(Control<QLabel>(*calendar, "lblPriorMonthName")->text(), "September 1582");
    EXPECT_EQ(Control<QLabel>(*calendar, "lblNextMonthName")->text(), "November 1582");
  }
}

TEST_F(frmSelectMonthTest, January0JulianIsDrawnAndThePriorStepStaysRefusedFromThere) {
  Enter("January", "0", "optJulian");
  Display();
  EXPECT_TRUE(machine().Messages().empty());
  Expect_Month(4, 31, 31);  // 1 January of 1 B.C. was a Thursday
  Expect_Heading("January 0", "JULIAN CALENDAR");
  EXPECT_TRUE(Large_Button("cmdPriorMonth")->isEnabled());
  Click(Large_Button("cmdPriorMonth"));
  EXPECT_FALSE(Large_Button("cmdPriorMonth")->isEnabled());
  EXPECT_FALSE(Form1_Button("cmdPriorMonth")->isEnabled());
  EXPECT_EQ(Caption(Window<Form1>().lblStoreMonth), "January");
  EXPECT_EQ(Caption(Window<Form1>().lblStoreYear), "0");
  Expect_Month(4, 31, 31);
}

TEST_F(frmSelectMonthTest, January0GregorianIsStatus4) {
  Enter("January", "0");
  Expect_Refused("Invalid Month Selection",
                 "For the Gregorian Calendar, please make sure the \rmonth selected is October 1582 or later.");
}

TEST_F(frmSelectMonthTest, TheYear1000000IsDrawnAnd1000001IsStatus3) {
  Enter("December", "1000000");
  Display();
  EXPECT_TRUE(machine().Messages().empty());
  Expect_Month(5, 31, 30);
  Expect_Heading("December 1000000", "GREGORIAN CALENDAR");
  Open();
  Enter("January", "1000001");
  machine().Answer_Next(platform::vbOK, "Invalid Year Entry");
  Display();
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(machine().Messages()[0].text, "Please enter a value from 1 to 1000000.");
  EXPECT_EQ(Caption(Window<Form1>().lblStoreYear), "1000000");
}

TEST_F(frmSelectMonthTest, MinusFiveIsStatus4InTheGregorianStyle) {
  Enter("July", "-5");
  Expect_Refused("Invalid Month Selection",
                 "For the Gregorian Calendar, please make sure the \rmonth selected is October 1582 or later.");
}

TEST_F(frmSelectMonthTest, MinusFiveIsStatus3InTheJulianStyle) {
  Enter("July", "-5", "optJulian");
  Expect_Refused("Invalid Year Entry", "Please enter a value from 1 to 1000000.");
}

// ---- The drawing -----------------------------------------------------------------------------

TEST_F(frmSelectMonthTest, TheFirstOfTheMonthStandsWhereCalendarrPutsIt) {
  Enter("January", "2000");
  Display();
  Expect_Month(6, 31, 31);  // Saturday
  Open();
  Enter("January", "2000", "optJulian");
  Display();
  Expect_Month(5, 31, 31);  // Friday, 14 January 2000 N.S.
}

TEST_F(frmSelectMonthTest, TheMonthBeforeIsMeasuredWithTheSameLeapRule) {
  Enter("March", "2023");
  Display();
  Expect_Month(3, 31, 28);
  Open();
  Enter("March", "2024");
  Display();
  Expect_Month(5, 31, 29);
  Open();
  Enter("December", "2023");
  Display();
  Expect_Month(5, 31, 30);
  Open();
  Enter("March", "1900", "optJulian");  // a leap year in the Julian style only
  Display();
  Expect_Month(3, 31, 29);
}

TEST_F(frmSelectMonthTest, TheSelectedDateStandsAndNoCellIsRed) {
  ASSERT_EQ(Caption(Window<Form1>().lblShowDate), "March 15, 2024");
  Enter("August", "1999", "optJulian");
  Display();
  EXPECT_EQ(Caption(Window<Form1>().lblShowDate), "March 15, 2024");
  EXPECT_EQ(Caption(Window<Form1>().lblShowCalendarName), "Gregorian");
  EXPECT_EQ(Window<Form1>().txtShowWeekday->text(), " Friday");
  for (int i = 0; i < 42; ++i) {
    EXPECT_NE(Fore_Color(Cell(Window<Form1>(), i)), controls::kRed) << i;
    EXPECT_NE(Fore_Color(Cell(Window<frmLargeCalendar>(), i)), controls::kRed) << i;
  }
}

TEST_F(frmSelectMonthTest, TheTaskListChoiceStandsBesideTheGregorianCalendarOnly) {
  QWidget* choice = Control<QWidget>(Window<frmLargeCalendar>(), "cboShowTaskListFor");
  Enter("April", "1700", "optJulian");
  Display();
  EXPECT_TRUE(choice->isHidden());
  Open();
  Enter("April", "1700");
  Display();
  EXPECT_FALSE(choice->isHidden());
}

TEST_F(frmSelectMonthTest, ChoosingAMonthOpensTheSteppingAgain) {
  Enter("October", "1582");
  Display();
  Click(Large_Button("cmdPriorMonth"));
  ASSERT_FALSE(Large_Button("cmdPriorMonth")->isEnabled());
  Open();
  Enter("May", "2001");
  Display();
  for (const char* name : {"cmdPriorMonth", "cmdNextMonth"}) {
    EXPECT_TRUE(Large_Button(name)->isEnabled()) << name;
    EXPECT_TRUE(Form1_Button(name)->isEnabled()) << name;
  }
  EXPECT_TRUE(Window<Form1>().menu->Action("mnuPrevious")->isEnabled());
  EXPECT_TRUE(Window<frmLargeCalendar>().menu->Action("mnuPrevious")->isEnabled());
}

TEST_F(frmSelectMonthTest, AYearWithBlanksAroundItIsANumber) {
  Enter("February", " 2000 ");
  Display();
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(Caption(Window<Form1>().lblStoreYear), "2000");
  Expect_Month(2, 29, 31);
}

}  // namespace
}  // namespace orrivane
