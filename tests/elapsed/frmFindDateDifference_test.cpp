// "Find Time Difference Between Two Selected Times": the window opened from the calendar's Tools
// menu, both sides at the present, blanks filled, the checks and their messages, the present in
// either style, the two display modes and the ticks, as a user meets them.
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <array>
#include <string>

#include "calendar/calendar_window_test.h"
#include "elapsed/frmFindDateDifference.h"
#include "platform/controls.h"
#include "platform/platform.h"
#include "platform/window_registry.h"

namespace orrivane {
namespace {

using controls::Array_Name;
using controls::Caption;
using Rows = std::array<std::string, 5>;

constexpr int kTime1 = 0;
constexpr int kTime2 = 1;

// One side's boxes as the user fills them; an empty entry is left alone.
struct Entry {
  const char* month = "";
  const char* date = "";
  const char* century = "";
  const char* year = "";
  const char* hour = "";
  const char* minute = "";
};

class frmFindDateDifferenceTest : public testing::CalendarWindowTest {
 protected:
  void SetUp() override {
    CalendarWindowTest::SetUp();
    // Friday 15 March 2024, 2:05:09 PM; in the Old Style it is 2 March.
    machine().Set_Now(2024, 3, 15, 14, 5, 9);
    Start_Program();
    Open_From(large());
  }

  void Open_From(QWidget& calendar) {
    Trigger(calendar, "mnuFindTimeLengthBetweenDates");
    Process_Events();
    ASSERT_TRUE(window().isVisible());
  }

  frmFindDateDifference& window() { return Window<frmFindDateDifference>(); }
  QComboBox* Box(const char* name, int side) { return Control<QComboBox>(window(), Array_Name(name, side)); }
  QRadioButton* Option(const char* name) { return Control<QRadioButton>(window(), name); }
  QCheckBox* Tick(const char* name) { return Control<QCheckBox>(window(), name); }
  std::string Label(const char* name) { return CalendarWindowTest::Label(window(), name); }
  Rows Shown() {
    return {Label("lblYears"), Label("lblMonths"), Label("lblDays"), Label("lblHours"), Label("lblMinutes")};
  }

  void Pick(QComboBox* box, const char* entry) {
    const int index = box->findText(entry);
    ASSERT_GE(index, 0) << entry;
    box->setCurrentIndex(index);
  }

  // Chooses from the lists and types the century, as the user does.
  void Choose(int side, const Entry& entry) {
    const std::array<std::pair<const char*, const char*>, 5> listed{{{"ComboMonths", entry.month},
                                                                      {"ComboDate", entry.date},
                                                                      {"ComboYear", entry.year},
                                                                      {"cboHour", entry.hour},
                                                                      {"cboMinute", entry.minute}}};
    for (const auto& [name, choice] : listed) {
      if (*choice != '\0') Pick(Box(name, side), choice);
    }
    if (*entry.century != '\0') Type(Box("ComboCentury", side)->lineEdit(), entry.century);
  }

  void Press_Enter() { Click(Control<QPushButton>(window(), "cmdENTER")); }

  // Measures between two selections.
  void Measure(const Entry& time_1, const Entry& time_2) {
    Choose(kTime1, time_1);
    Choose(kTime2, time_2);
    Press_Enter();
  }

  // Presses ENTER and expects exactly one box with the title and text (exclamation, OK).
  void Expect_Message(const std::string& title, const std::string& text) {
    machine().Clear_Messages();
    machine().Answer_Next(platform::vbOK, title);
    Press_Enter();
    ASSERT_EQ(machine().Messages().size(), 1u);
    EXPECT_EQ(machine().Messages()[0].title, title);
    EXPECT_EQ(machine().Messages()[0].text, text);
    EXPECT_EQ(machine().Messages()[0].buttons, platform::vbOKOnly);
    EXPECT_EQ(machine().Messages()[0].icon, platform::vbExclamation);
  }

  bool Side_Enabled(int side) {
    bool enabled = Control<QGroupBox>(window(), side == kTime1 ? "fraDate1" : "FraDate2")->isEnabled();
    for (const char* name : {"ComboMonths", "ComboDate", "ComboCentury", "ComboYear", "cboHour", "cboMinute"}) {
      enabled = enabled && Box(name, side)->isEnabled();
    }
    for (const char* name : {"LblSelectDate", "LblCentury", "LblYear", "lblHour", "lblMin"}) {
      enabled = enabled && Control<QLabel>(window(), Array_Name(name, side))->isEnabled();
    }
    return enabled;
  }
};

const Rows kZero{"0", "0", "0", "0", "0"};

// ---- Opening -----------------------------------------------------------------------------------

TEST_F(frmFindDateDifferenceTest, OpensWithTheTimeOfOpeningOnBothSidesAndEveryRowAtZero) {
  EXPECT_EQ(window().windowTitle().toStdString(), "Find Time Difference Between Two Selected Times");
  EXPECT_EQ(Label("lblTime1"), "14:05, March 15, 2024");
  EXPECT_EQ(Label("lblTime2"), "14:05, March 15, 2024");
  EXPECT_EQ(Label("lblCalendar"), "Gregorian");
  EXPECT_EQ(Shown(), kZero);
  for (int side : {kTime1, kTime2}) {
    EXPECT_EQ(Box("ComboCentury", side)->currentText().toStdString(), "20");
    for (const char* blank : {"ComboMonths", "ComboDate", "ComboYear", "cboHour", "cboMinute"}) {
      EXPECT_EQ(Box(blank, side)->currentText().toStdString(), "") << blank;
    }
    EXPECT_TRUE(Side_Enabled(side));
  }
  EXPECT_EQ(Control<QGroupBox>(window(), "fraDate1")->title().toStdString(), "Time 1 Selection");
  EXPECT_EQ(Control<QGroupBox>(window(), "FraDate2")->title().toStdString(), "Time 2 Selection");
  EXPECT_TRUE(Option("optTime1Time2")->isChecked());
  EXPECT_TRUE(Option("optGregorian")->isChecked());
  EXPECT_TRUE(Option("OptRemaining")->isChecked());
  EXPECT_FALSE(Option("optTotal")->isChecked());
  for (const char* unit : {"chkYears", "chkMonths", "chkDays", "chkHours", "chkMinutes"}) {
    EXPECT_TRUE(Tick(unit)->isChecked()) << unit;
    EXPECT_TRUE(Tick(unit)->isEnabled()) << unit;
  }
}

TEST_F(frmFindDateDifferenceTest, OpensFromTheMainWindowsToolsMenuToo) {
  Click(Control<QPushButton>(window(), "cmdClose"));
  EXPECT_FALSE(window().isVisible());
  Open_From(main());
}

TEST_F(frmFindDateDifferenceTest, CloseHidesTheWindowAndItsBoxesAndResultsStandWhenItOpensAgain) {
  Measure({"January", "01", "20", "24"}, {"March", "01", "20", "24"});
  const Rows measured = Shown();
  Click(Control<QPushButton>(window(), "cmdClose"));
  EXPECT_FALSE(window().isVisible());
  Open_From(large());
  EXPECT_EQ(Shown(), measured);
  EXPECT_EQ(Box("ComboMonths", kTime1)->currentText().toStdString(), "January");
  EXPECT_EQ(Label("lblTime2"), "14:05, March 01, 2024");
}

// ---- Blanks --------------------------------------------------------------------------------------

TEST_F(frmFindDateDifferenceTest, EnterWithNothingChosenMeasuresFromNowToNow) {
  machine().Set_Now(2024, 3, 16, 9, 7, 30);
  Press_Enter();
  // The century boxes still hold the century of opening, which counts as chosen: the blank year
  // under it is "00".
  EXPECT_EQ(Label("lblTime1"), "09:07, March 16, 2000");
  EXPECT_EQ(Label("lblTime2"), "09:07, March 16, 2000");
  EXPECT_EQ(Shown(), kZero);
  // With the century boxes emptied, every field is the present's.
  for (int side : {kTime1, kTime2}) Type(Box("ComboCentury", side)->lineEdit(), "");
  Press_Enter();
  EXPECT_EQ(Label("lblTime1"), "09:07, March 16, 2024");
  EXPECT_EQ(Label("lblTime2"), "09:07, March 16, 2024");
  EXPECT_EQ(Shown(), kZero);
  EXPECT_TRUE(machine().Messages().empty());
}

TEST_F(frmFindDateDifferenceTest, AChosenCenturyMakesABlankYear00AndAChosenHourABlankMinute00) {
  Measure({"March", "15", "19", "", "10"}, {"March", "15", "20", "24"});
  EXPECT_EQ(Label("lblTime1"), "10:00, March 15, 1900");
  EXPECT_EQ(Label("lblTime2"), "14:05, March 15, 2024");
  EXPECT_EQ(Shown(), (Rows{"124", "0", "0", "4", "5"}));
}

TEST_F(frmFindDateDifferenceTest, ABlankMonthAndDateAreTodaysAndAMinuteUnderABlankHourIsKept) {
  Measure({"", "", "", "", "08", "30"}, {"", "", "", "", "", "45"});
  EXPECT_EQ(Label("lblTime1"), "08:30, March 15, 2000");
  EXPECT_EQ(Label("lblTime2"), "14:45, March 15, 2000");
  EXPECT_EQ(Shown(), (Rows{"0", "0", "0", "6", "15"}));
}

// ---- The Help example and the two modes ---------------------------------------------------------

TEST_F(frmFindDateDifferenceTest, TheHelpExampleIsOneYearOrThirteenMonthsOr397DaysOr9529HoursOr571741Minutes) {
  Measure({"January", "01", "20", "01", "00", "00"}, {"February", "02", "20", "02", "01", "01"});
  EXPECT_EQ(Label("lblTime1"), "00:00, January 01, 2001");
  EXPECT_EQ(Label("lblTime2"), "01:01, February 02, 2002");
  EXPECT_EQ(Shown(), (Rows{"1", "1", "1", "1", "1"}));
  Click(Option("optTotal"));
  EXPECT_EQ(Shown(), (Rows{"1", "13", "397", "9529", "571741"}));
}

TEST_F(frmFindDateDifferenceTest, MomentsInReverseOrderGiveTheSameRows) {
  Measure({"February", "02", "20", "02", "01", "01"}, {"January", "01", "20", "01", "00", "00"});
  EXPECT_EQ(Shown(), (Rows{"1", "1", "1", "1", "1"}));
}

TEST_F(frmFindDateDifferenceTest, TotalModeTurnsTheRowsToTotalsAtOnceAndLeavesTheTicksDisablingFour) {
  Measure({"January", "01", "20", "01", "00", "00"}, {"February", "02", "20", "02", "01", "01"});
  Click(Tick("chkMonths"));
  Click(Option("optTotal"));
  EXPECT_EQ(Shown(), (Rows{"1", "13", "397", "9529", "571741"}));
  EXPECT_FALSE(Tick("chkMonths")->isChecked());
  for (const char* unit : {"chkYears", "chkMonths", "chkDays", "chkHours"}) {
    EXPECT_FALSE(Tick(unit)->isEnabled()) << unit;
  }
  EXPECT_TRUE(Tick("chkMinutes")->isEnabled());
  // Back in remaining mode the ticks are offered again and read again at once.
  Click(Option("OptRemaining"));
  for (const char* unit : {"chkYears", "chkMonths", "chkDays", "chkHours"}) {
    EXPECT_TRUE(Tick(unit)->isEnabled()) << unit;
  }
  EXPECT_EQ(Shown(), (Rows{"1", "N/A", "32", "1", "1"}));
}

TEST_F(frmFindDateDifferenceTest, UntickingYearsInRemainingModeFoldsTheYearsIntoTheMonthsAtOnce) {
  Measure({"January", "01", "20", "01", "00", "00"}, {"February", "02", "20", "02", "01", "01"});
  Click(Tick("chkYears"));
  EXPECT_EQ(Shown(), (Rows{"N/A", "13", "1", "1", "1"}));
  Click(Tick("chkMonths"));
  EXPECT_EQ(Shown(), (Rows{"N/A", "N/A", "397", "1", "1"}));
}

TEST_F(frmFindDateDifferenceTest, UntickingMinutesShowsNothingUntilEnter) {
  Measure({"January", "01", "20", "01", "00", "00"}, {"February", "02", "20", "02", "01", "01"});
  Click(Tick("chkMinutes"));
  EXPECT_EQ(Shown(), (Rows{"1", "1", "1", "1", "1"}));
  Press_Enter();
  EXPECT_EQ(Shown(), (Rows{"1", "1", "1", "1", "N/A"}));
}

TEST_F(frmFindDateDifferenceTest, WithOnlyMinutesTickedTheWholeSpanIsInMinutes) {
  Measure({"January", "01", "20", "01", "00", "00"}, {"February", "02", "20", "02", "01", "01"});
  for (const char* unit : {"chkYears", "chkMonths", "chkDays", "chkHours"}) Click(Tick(unit));
  EXPECT_EQ(Shown(), (Rows{"N/A", "N/A", "N/A", "N/A", "571741"}));
}

TEST_F(frmFindDateDifferenceTest, JanuaryThirtyFirstToMarchFirstLeavesMinusTwoDaysWhereTheChainLeavesIt) {
  Measure({"January", "31", "20", "23", "00", "00"}, {"March", "01", "20", "23", "00", "00"});
  EXPECT_EQ(Shown(), (Rows{"0", "1", "-2", "0", "0"}));
  // Without the months above it, the days row takes January's 31 days and reads true.
  Click(Tick("chkMonths"));
  EXPECT_EQ(Shown(), (Rows{"0", "N/A", "29", "0", "0"}));
  Click(Option("optTotal"));
  EXPECT_EQ(Shown(), (Rows{"0", "1", "29", "696", "41760"}));
}

TEST_F(frmFindDateDifferenceTest, AMillionYearsComeOutExactToTheMinute) {
  Click(Option("optJulian"));
  Click(Option("optTotal"));
  Measure({"January", "01", "0", "00", "00", "00"}, {"January", "01", "10000", "99", "00", "00"});
  EXPECT_EQ(Label("lblTime1"), "00:00, January 01, 0");
  EXPECT_EQ(Label("lblTime2"), "00:00, January 01, 1000099");
  // 1000099 years of 365 days and 250025 leap days (every fourth year from the year 0).
  EXPECT_EQ(Shown(), (Rows{"1000099", "12001188", "365286160", "8766867840", "526012070400"}));
}

// ---- The present ---------------------------------------------------------------------------------

TEST_F(frmFindDateDifferenceTest, Time1AgainstTheCurrentTimeDisablesTime2AndHeadsItCurrentTime) {
  Click(Option("optTime1CurrentTime"));
  EXPECT_TRUE(Side_Enabled(kTime1));
  EXPECT_FALSE(Side_Enabled(kTime2));
  // What stands in the disabled frame is not read, not even a month without its date.
  Choose(kTime2, {"April"});
  Choose(kTime1, {"March", "14", "20", "24", "14", "05"});
  Press_Enter();
  EXPECT_EQ(Label("lblTime1Label"), "Time 1 Selection: ");
  EXPECT_EQ(Label("lblTime2Label"), "Current Time: ");
  EXPECT_EQ(Label("lblTime2"), "14:05, March 15, 2024");
  EXPECT_EQ(Shown(), (Rows{"0", "0", "1", "0", "0"}));
  Click(Option("optTime1Time2"));
  EXPECT_TRUE(Side_Enabled(kTime1));
  EXPECT_TRUE(Side_Enabled(kTime2));
}

TEST_F(frmFindDateDifferenceTest, Time2AgainstTheCurrentTimeIgnoresTheDisabledTime1Frame) {
  Choose(kTime1, {"February", "", "abc"});
  Click(Option("optTime2CurrentTime"));
  EXPECT_FALSE(Side_Enabled(kTime1));
  EXPECT_TRUE(Side_Enabled(kTime2));
  Choose(kTime2, {"December", "25", "20", "23", "14", "05"});
  Press_Enter();
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(Label("lblTime1Label"), "Current Time: ");
  EXPECT_EQ(Label("lblTime2Label"), "Time 2 Selection: ");
  EXPECT_EQ(Label("lblTime1"), "14:05, March 15, 2024");
  EXPECT_EQ(Label("lblTime2"), "14:05, December 25, 2023");
  // The one day borrow takes February 2024's 29 days: 44 - 25.
  EXPECT_EQ(Shown(), (Rows{"0", "2", "19", "0", "0"}));
}

TEST_F(frmFindDateDifferenceTest, InTheJulianStyleTodayIsTodaysOldStyleDateAtTheClocksTime) {
  Click(Option("optJulian"));
  Click(Option("optTime2CurrentTime"));
  Choose(kTime2, {"February", "29", "20", "24", "14", "05"});
  Press_Enter();
  EXPECT_EQ(Label("lblTime1Label"), "Current Time: ");
  EXPECT_EQ(Label("lblTime1"), "14:05, March 2, 2024");
  EXPECT_EQ(Label("lblTime2"), "14:05, February 29, 2024");
  EXPECT_EQ(Label("lblCalendar"), "Julian");
  EXPECT_EQ(Shown(), (Rows{"0", "0", "2", "0", "0"}));

  // Blank boxes take the Old Style date as well.
  Click(Option("optTime1Time2"));
  Choose(kTime1, {"", "", "20", "24"});
  Press_Enter();
  EXPECT_EQ(Label("lblTime1"), "14:05, March 2, 2024");
  EXPECT_EQ(Shown(), (Rows{"0", "0", "2", "0", "0"}));
}

TEST_F(frmFindDateDifferenceTest, AGregorianUserMeasuresAgainstTheCurrentTimeInTotals) {
  Click(Option("optTime1CurrentTime"));
  Click(Option("optTotal"));
  Choose(kTime1, {"March", "15", "20", "23", "14", "05"});
  Press_Enter();
  EXPECT_EQ(Label("lblCalendar"), "Gregorian");
  // 2023-03-15 to 2024-03-15 holds 29 February 2024.
  EXPECT_EQ(Shown(), (Rows{"1", "12", "366", "8784", "527040"}));
}

// ---- Checks and their messages -------------------------------------------------------------------

TEST_F(frmFindDateDifferenceTest, AMonthWithoutADateOnEitherSideIsCode1Or2AndOnBothSidesCode7) {
  Choose(kTime1, {"May"});
  Expect_Message("No Date Selected", "'Time 1' month selected without a corresponding date.");
  Pick(Box("ComboDate", kTime1), "05");
  Choose(kTime2, {"June"});
  Expect_Message("No Date Selected", "'Time 2' month selected without a corresponding date.");
  Box("ComboDate", kTime1)->setCurrentIndex(-1);
  Expect_Message("No Dates Selected", "When a month is selected, a date must also be selected.");
}

TEST_F(frmFindDateDifferenceTest, February30Of2001OnTime1IsCode8) {
  Choose(kTime1, {"February", "30", "20", "01"});
  Expect_Message("Invalid Date", "February only has 28 days in it for the year you selected for 'Time 1'.");
}

TEST_F(frmFindDateDifferenceTest, April31OnTime2IsCode9) {
  Choose(kTime2, {"April", "31"});
  Expect_Message("Invalid Date", "April only has 30 days in it.");
  Choose(kTime2, {"February", "30", "20", "24"});
  Expect_Message("Invalid Date", "February only has 29 days in it for the year you selected for 'Time 2'.");
}

TEST_F(frmFindDateDifferenceTest, ACenturyWithOtherThanDigitsIsCode10Or11AndTwoBadCenturiesCode14) {
  Choose(kTime1, {"", "", "2O"});
  Expect_Message("Invalid Year", "The year field for 'Time 1' contains non-numeric characters");
  Choose(kTime1, {"", "", "20"});
  Choose(kTime2, {"", "", "-1"});
  Expect_Message("Invalid Year", "The year field for 'Time 2' contains non-numeric characters");
  Choose(kTime1, {"", "", "x"});
  Expect_Message("Invalid Selections Detected", "Please check that all date and time entries are valid.");
}

TEST_F(frmFindDateDifferenceTest, Century10001IsCode12Or13And10000IsAccepted) {
  Choose(kTime1, {"", "", "10001"});
  Expect_Message("Invalid Year", "Please make sure the year value for 'Time 1' is a value from 0 to 10000");
  Choose(kTime1, {"", "", "20"});
  Choose(kTime2, {"", "", "10001"});
  Expect_Message("Invalid Year", "Please make sure the year value for 'Time 2' is a value from 0 to 10000");
  Choose(kTime2, {"", "", "10000", "99"});
  machine().Clear_Messages();
  Press_Enter();
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(Label("lblTime2"), "14:05, March 15, 1000099");
}

TEST_F(frmFindDateDifferenceTest, AnInvalidDateBesideABadCenturyIsCode14) {
  Choose(kTime1, {"April", "31", "20", "24"});
  Choose(kTime2, {"", "", "10001"});
  Expect_Message("Invalid Selections Detected", "Please check that all date and time entries are valid.");
}

TEST_F(frmFindDateDifferenceTest, October14Of1582IsCode15InTheGregorianStyleAndAcceptedInTheJulian) {
  Choose(kTime1, {"October", "14", "15", "82"});
  Expect_Message("Invalid Gregorian Date",
                 "Please be sure the date for 'Time 1' falls on or after October 15, 1582");
  Click(Option("optJulian"));
  machine().Clear_Messages();
  Press_Enter();
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(Label("lblTime1"), "14:05, October 14, 1582");
  EXPECT_EQ(Label("lblCalendar"), "Julian");
}

TEST_F(frmFindDateDifferenceTest, ADateBeforeTheGregorianStartOnTime2IsCode16AndOnBothCode17) {
  Choose(kTime1, {"October", "15", "15", "82"});
  Choose(kTime2, {"September", "30", "15", "82"});
  Expect_Message("Invalid Gregorian Date",
                 "Please be sure the date for 'Time 2' falls on or after October 15, 1582");
  Choose(kTime1, {"December", "31", "15", "81"});
  Expect_Message("Invalid Dates", "Gregorian dates cannot be before October 15, 1582");
}

TEST_F(frmFindDateDifferenceTest, AMissingDateIsToldBeforeABadCentury) {
  Choose(kTime1, {"May", "", "abc"});
  Expect_Message("No Date Selected", "'Time 1' month selected without a corresponding date.");
}

TEST_F(frmFindDateDifferenceTest, AfterAMessageTheResultsKeepWhatTheyShowedButTheHeadingsFollowTheOption) {
  Measure({"January", "01", "20", "01", "00", "00"}, {"February", "02", "20", "02", "01", "01"});
  Click(Option("optTime2CurrentTime"));
  Choose(kTime2, {"April", "31"});
  Expect_Message("Invalid Date", "April only has 30 days in it.");
  EXPECT_EQ(Shown(), (Rows{"1", "1", "1", "1", "1"}));
  EXPECT_EQ(Label("lblTime1"), "00:00, January 01, 2001");
  EXPECT_EQ(Label("lblTime2"), "01:01, February 02, 2002");
  EXPECT_EQ(Label("lblTime1Label"), "Current Time: ");
}

}  // namespace
}  // namespace orrivane
