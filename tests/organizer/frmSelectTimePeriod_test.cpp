// "Select Time Period": its boxes, the messages of a refused choice, and the ways it goes away.
#include <QTest>

#include "organizer/organizer_window_test.h"

namespace orrivane {
namespace {

class frmSelectTimePeriodTest : public testing::OrganizerWindowTest {
 protected:
  void SetUp() override {
    OrganizerWindowTest::SetUp();
    machine().Set_Now(2001, 3, 5, 14, 30);
    Open();
    Trigger(organizer(), "mnuSelectATimePeriod");
    Process_Events();
    ASSERT_TRUE(select().isVisible());
  }

  void Choose(QComboBox* box, const QString& text) { box->setCurrentIndex(box->findText(text)); }

  void Enter(const QString& period, const QString& month, const QString& date, const QString& century = {},
             const QString& year = {}) {
    Choose(select().cboTimePeriod, period);
    Choose(select().ComboMonths, month);
    Choose(select().ComboDate, date);
    Choose(select().ComboCentury, century);
    Choose(select().ComboYear, year);
  }

  // Displays and expects the one message, the window staying open and the chart as it was.
  void Expect_Refused(const std::string& title, const std::string& text) {
    machine().Answer_Next(platform::vbOK, title);
    Click(select().cmdDisplay);
    ASSERT_EQ(machine().Messages().size(), 1u);
    const testing::ShownMessage& shown = machine().Messages()[0];
    EXPECT_EQ(shown.title, title);
    EXPECT_EQ(shown.text, text);
    EXPECT_EQ(shown.buttons, platform::vbOKOnly);
    EXPECT_EQ(shown.icon, platform::vbExclamation);
    EXPECT_TRUE(select().isVisible());
    EXPECT_EQ(Period(), "Afternoon, March 5, 2001");
    machine().Clear_Messages();
  }

  std::vector<std::string> Items(QComboBox* box) {
    std::vector<std::string> items;
    for (int i = 0; i < box->count(); ++i) items.push_back(box->itemText(i).toStdString());
    return items;
  }
};

TEST_F(frmSelectTimePeriodTest, TheBoxesStartEmptyAndOfferTheirChoices) {
  EXPECT_EQ(Items(select().cboTimePeriod),
            (std::vector<std::string>{"Early Morning", "Morning", "Afternoon", "Evening"}));
  const std::vector<std::string> months = Items(select().ComboMonths);
  ASSERT_EQ(months.size(), 12u);
  EXPECT_EQ(months.front(), "January");
  EXPECT_EQ(months.back(), "December");
  EXPECT_EQ(Items(select().ComboDate).front(), "01");
  EXPECT_EQ(Items(select().ComboDate).back(), "31");
  EXPECT_EQ(Items(select().ComboCentury).front(), "16");
  EXPECT_EQ(Items(select().ComboCentury).back(), "99");
  EXPECT_EQ(Items(select().ComboYear).size(), 100u);
  for (QComboBox* box : {select().cboTimePeriod, select().ComboMonths, select().ComboDate, select().ComboCentury,
                         select().ComboYear}) {
    EXPECT_EQ(box->currentText(), "") << box->objectName().toStdString();
  }
  EXPECT_FALSE(select().lblSelectedDate->isVisible());
  EXPECT_FALSE(select().lblSelectedTime->isVisible());
}

TEST_F(frmSelectTimePeriodTest, NoPeriod) {
  Enter("", "March", "05");
  Expect_Refused("Time Period Not Selected", "Please select a time of day.");
}

TEST_F(frmSelectTimePeriodTest, NoMonth) {
  Enter("Morning", "", "05");
  Expect_Refused("No Month Selected", "Please select a month.");
}

TEST_F(frmSelectTimePeriodTest, NoDate) {
  Enter("Morning", "March", "");
  Expect_Refused("No Date Selected", "Please select a date.");
}

TEST_F(frmSelectTimePeriodTest, TwoMissing) {
  Enter("", "", "05");
  Expect_Refused("Required Fields Unanswered", "Please make sure all required fields contain valid selections.");
}

TEST_F(frmSelectTimePeriodTest, FebruaryOfThePresentYearIsTooShort) {
  Enter("Morning", "February", "29");
  Expect_Refused("Invalid Date Selection", "February only has 28 days in it this year.");
}

TEST_F(frmSelectTimePeriodTest, AnotherMonthTooShort) {
  Enter("Morning", "November", "31", "19", "99");
  Expect_Refused("Invalid Date Selection", "November only has 30 days in it.");
}

TEST_F(frmSelectTimePeriodTest, AChosenCenturyWithNoYearIsTheCenturysYearZero) {
  Enter("Morning", "July", "04", "18");
  Click(select().cmdDisplay);
  EXPECT_EQ(Period(), "Morning, July 4, 1800");
}

TEST_F(frmSelectTimePeriodTest, TheChoiceStaysForCorrectionAfterAMessage) {
  Enter("Morning", "February", "30");
  Expect_Refused("Invalid Date Selection", "February only has 28 days in it this year.");
  Choose(select().ComboDate, "28");
  Click(select().cmdDisplay);
  EXPECT_FALSE(select().isVisible());
  EXPECT_EQ(Period(), "Morning, February 28, 2001");
}

TEST_F(frmSelectTimePeriodTest, CancelPutsItAwayAndTheChartStays) {
  Enter("Morning", "March", "05");
  Click(select().cmdCancel);
  EXPECT_FALSE(select().isVisible());
  EXPECT_EQ(Period(), "Afternoon, March 5, 2001");
}

TEST_F(frmSelectTimePeriodTest, TheOrganizerBecomingActivePutsItAwayWithTheChartAsItWas) {
  Enter("Morning", "March", "05");
  Open();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&organizer()));
  Process_Events();
  EXPECT_FALSE(select().isVisible());
  EXPECT_EQ(Period(), "Afternoon, March 5, 2001");
}

}  // namespace
}  // namespace orrivane
