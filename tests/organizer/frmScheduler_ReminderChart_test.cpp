// The Organizer's task chart as the user sees it: the period on show, the tasks painted in their
// colours, the steps to the periods before and after with their keys, the scroll bar over the
// members, and the printed window.
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include "organizer/log_file.h"
#include "organizer/organizer_callers.h"
#include "organizer/organizer_window_test.h"
#include "calendar/Form1.h"

namespace orrivane {
namespace {

using organizer::samples::At;
using organizer::samples::Chart_Task;
using organizer::samples::Moment_Task;

constexpr unsigned kBlue = 0xFF0000;
constexpr unsigned kGreen = 0x00FF00;
constexpr unsigned kOrange = 0x0080FF;

class OrganizerChartTest : public testing::OrganizerWindowTest {
 protected:
  std::vector<int> Row(int row, int first_column, int last_column) {
    std::vector<int> cells;
    for (int column = first_column; column <= last_column; ++column) cells.push_back(organizer::Chart_Cell(row, column));
    return cells;
  }

  void Later() { Press_Keys(organizer(), QKeySequence("Ctrl+L")); }
  void Earlier() { Press_Keys(organizer(), QKeySequence("Ctrl+P")); }

  // Brings a period of a day on the chart through "Select Time Period".
  void Show(const QString& period, const QString& month, const QString& date, const QString& century,
            const QString& year) {
    Press_Keys(organizer(), QKeySequence("Ctrl+T"));
    Process_Events();
    ASSERT_TRUE(select().isVisible());
    const std::pair<QComboBox*, QString> choices[] = {{select().cboTimePeriod, period},
                                                      {select().ComboMonths, month},
                                                      {select().ComboDate, date},
                                                      {select().ComboCentury, century},
                                                      {select().ComboYear, year}};
    for (const auto& [box, text] : choices) box->setCurrentIndex(box->findText(text));
    Click(select().cmdDisplay);
    Process_Events();
  }

  void Add_Members(int count) {
    for (int member = 0; member < count; ++member) Add_Member("Member " + text::Pad_Zero(member, 2));
  }
};

// ---- The first view ---------------------------------------------------------------------------

TEST_F(OrganizerChartTest, OpensOnThePeriodOfThePresentTime) {
  machine().Set_Now(2001, 3, 5, 14, 30);
  Open();
  EXPECT_EQ(Period(), "Afternoon, March 5, 2001");
  EXPECT_EQ(Head(0), "12:00");
  EXPECT_EQ(Head(1), "12:30");
  EXPECT_EQ(Head(2), "1:00");
  EXPECT_EQ(Head(11), "5:30");
  EXPECT_EQ(organizer().cmdEarlier->text(), "<< Earlier");
  EXPECT_EQ(organizer().cmdLater->text(), "Later >>");
  EXPECT_TRUE(Painted_Cells().empty());
}

TEST_F(OrganizerChartTest, TheLogFileNameIsShown) {
  controls::Set_Caption(Window<Form1>().lblStoreScheduleFileName, "Family.sch");
  Open();
  EXPECT_EQ(controls::Caption(organizer().lblFileName), "Family.sch");
}

TEST_F(OrganizerChartTest, TheViewSurvivesClosingAndOpening) {
  machine().Set_Now(2001, 3, 5, 14, 30);
  Open();
  Later();
  ASSERT_EQ(Period(), "Evening, March 5, 2001");
  Click(organizer().cmdCloseScheduler);
  EXPECT_FALSE(organizer().isVisible());
  machine().Set_Now(2002, 7, 1, 9, 0);
  Open();
  EXPECT_EQ(Period(), "Evening, March 5, 2001");
  EXPECT_EQ(Head(0), "6:00");
}

// ---- Painting ----------------------------------------------------------------------------------

TEST_F(OrganizerChartTest, AMomentPaintsOneCellOpaqueInItsColour) {
  machine().Set_Now(2001, 3, 5, 14, 0);
  Add_Member("Anna");
  Add_Task(Moment_Task(1, "Anna", {"March", 5, 2001, 14, 30}, kBlue));
  Open();
  EXPECT_EQ(Row_Name(0), "Anna");
  EXPECT_EQ(Row_Name(1), "");
  EXPECT_FALSE(Control<QLabel>(organizer(), "lblChartGroupMemberName(0)")->autoFillBackground());
  EXPECT_EQ(Painted_Cells(), std::vector<int>{15});
  EXPECT_EQ(Colour(15), kBlue);
  EXPECT_EQ(Owner(15), Value(1));
  EXPECT_EQ(Owner(14), Value(-1));
  // What the user sees: the cell in blue on the screen.
  Process_Events();
  const QImage shown = Cell(15)->grab().toImage();
  EXPECT_EQ(shown.pixelColor(shown.width() / 2, shown.height() / 2), QColor(Qt::blue));
}

TEST_F(OrganizerChartTest, ATaskAcrossMidnightPaintsTheEndOfOneDayAndTheStartOfTheNext) {
  machine().Set_Now(2001, 3, 4, 20, 0);
  Add_Member("Anna");
  Add_Task(Chart_Task(1, "Anna", {"March", 4, 2001, 23, 55}, {"March", 5, 2001, 0, 15}, kGreen));
  Open();
  ASSERT_EQ(Period(), "Evening, March 4, 2001");
  EXPECT_EQ(Painted_Cells(), std::vector<int>{35});
  Later();
  EXPECT_EQ(Period(), "Early Morning, March 5, 2001");
  EXPECT_EQ(Head(0), "12:00");
  EXPECT_EQ(Painted_Cells(), (std::vector<int>{0, 1}));
  EXPECT_EQ(Colour(0), kGreen);
  EXPECT_EQ(Owner(35), Value(-1));
}

TEST_F(OrganizerChartTest, AThreeDayTaskFillsTheWholeRowInEveryPeriodOfTheMiddleDay) {
  machine().Set_Now(2001, 3, 5, 3, 0);
  Add_Member("Anna");
  Add_Member("Ben");
  Add_Task(Chart_Task(1, "Ben", {"March", 4, 2001, 10, 0}, {"March", 6, 2001, 15, 0}, kOrange));
  Open();
  for (const char* period : {"Early Morning", "Morning", "Afternoon", "Evening"}) {
    EXPECT_EQ(Period(), std::string(period) + ", March 5, 2001");
    EXPECT_EQ(Painted_Cells(), Row(1, 0, 35)) << period;
    EXPECT_EQ(Colour(organizer::Chart_Cell(1, 35)), kOrange);
    Later();
  }
}

TEST_F(OrganizerChartTest, HalfPastFiveToTenPastSixSpansTwoPeriods) {
  machine().Set_Now(2001, 3, 5, 16, 0);
  Add_Member("Anna");
  Add_Task(Chart_Task(1, "Anna", {"March", 5, 2001, 17, 30}, {"March", 5, 2001, 18, 10}, kBlue));
  Open();
  EXPECT_EQ(Painted_Cells(), Row(0, 33, 35));
  Later();
  EXPECT_EQ(Painted_Cells(), Row(0, 0, 1));
  Earlier();
  EXPECT_EQ(Period(), "Afternoon, March 5, 2001");
  EXPECT_EQ(Painted_Cells(), Row(0, 33, 35));
}

TEST_F(OrganizerChartTest, OfTwoTasksInTheSameTenMinutesTheLaterInTheLogOwnsTheCell) {
  machine().Set_Now(2001, 3, 5, 14, 0);
  Add_Member("Anna");
  Add_Task(Chart_Task(1, "Anna", {"March", 5, 2001, 14, 0}, {"March", 5, 2001, 14, 35}, kBlue));
  Add_Task(Moment_Task(2, "Anna", {"March", 5, 2001, 14, 25}, kGreen));
  Open();
  EXPECT_EQ(Painted_Cells(), Row(0, 12, 15));
  EXPECT_EQ(Colour(14), kGreen);
  EXPECT_EQ(Owner(14), Value(2));
  EXPECT_EQ(Colour(13), kBlue);
  EXPECT_EQ(Owner(13), Value(1));
  EXPECT_EQ(Owner(15), Value(1));
}

TEST_F(OrganizerChartTest, ARefreshClearsWhatTheViewBeforePainted) {
  machine().Set_Now(2001, 3, 5, 14, 0);
  Add_Member("Anna");
  Add_Task(Moment_Task(1, "Anna", {"March", 5, 2001, 14, 30}, kBlue));
  Open();
  ASSERT_TRUE(Painted(15));
  Later();
  EXPECT_TRUE(Painted_Cells().empty());
  EXPECT_EQ(Owner(15), Value(-1));
}

// ---- Earlier and Later -------------------------------------------------------------------------

TEST_F(OrganizerChartTest, TheButtonsAndTheMenuStepThroughThePeriods) {
  machine().Set_Now(2001, 3, 5, 9, 0);
  Open();
  ASSERT_EQ(Period(), "Morning, March 5, 2001");
  Click(organizer().cmdLater);
  EXPECT_EQ(Period(), "Afternoon, March 5, 2001");
  EXPECT_EQ(Head(0), "12:00");
  Click(organizer().cmdEarlier);
  Click(organizer().cmdEarlier);
  EXPECT_EQ(Period(), "Early Morning, March 5, 2001");
  Trigger(organizer(), "mnuEarlierTimePeriod");
  EXPECT_EQ(Period(), "Evening, March 4, 2001");
  EXPECT_EQ(Head(0), "6:00");
  Trigger(organizer(), "mnuLaterTimePeriod");
  EXPECT_EQ(Period(), "Early Morning, March 5, 2001");
}

TEST_F(OrganizerChartTest, LaterFromTheEveningOfNewYearsEve) {
  machine().Set_Now(2001, 12, 31, 21, 0);
  Open();
  Later();
  EXPECT_EQ(Period(), "Early Morning, January 1, 2002");
}

TEST_F(OrganizerChartTest, EarlierFromMarchFirstOfALeapYearSkipsFebruary29) {
  machine().Set_Now(2000, 3, 1, 2, 0);
  Open();
  Earlier();
  EXPECT_EQ(Period(), "Evening, February 28, 2000");
  Later();
  EXPECT_EQ(Period(), "Early Morning, February 29, 2000");
}

TEST_F(OrganizerChartTest, TheViewReaches1599AndTheButtonGoesGreyAtThePressAfter) {
  Open();
  Show("Early Morning", "January", "01", "16", "00");
  ASSERT_EQ(Period(), "Early Morning, January 1, 1600");
  Earlier();
  EXPECT_EQ(Period(), "Evening, December 31, 1599");
  EXPECT_TRUE(organizer().cmdEarlier->isEnabled());
  Earlier();
  EXPECT_EQ(Period(), "Evening, December 31, 1599");
  EXPECT_EQ(Head(0), "6:00");
  EXPECT_FALSE(organizer().cmdEarlier->isEnabled());
  EXPECT_FALSE(Menu("mnuEarlierTimePeriod")->isEnabled());
  // The key of a grey entry does nothing; Later moves and opens the way back.
  Earlier();
  EXPECT_EQ(Period(), "Evening, December 31, 1599");
  Later();
  EXPECT_EQ(Period(), "Early Morning, January 1, 1600");
  EXPECT_TRUE(organizer().cmdEarlier->isEnabled());
  EXPECT_TRUE(Menu("mnuEarlierTimePeriod")->isEnabled());
}

TEST_F(OrganizerChartTest, TheViewReaches10000AndLaterGoesGreyAtThePressAfter) {
  Open();
  Show("Evening", "December", "31", "99", "99");
  ASSERT_EQ(Period(), "Evening, December 31, 9999");
  Later();
  EXPECT_EQ(Period(), "Early Morning, January 1, 10000");
  Later();
  EXPECT_EQ(Period(), "Early Morning, January 1, 10000");
  EXPECT_FALSE(organizer().cmdLater->isEnabled());
  EXPECT_FALSE(Menu("mnuLaterTimePeriod")->isEnabled());
  // A selected period enables both steps again.
  Show("Morning", "March", "05", "20", "01");
  EXPECT_EQ(Period(), "Morning, March 5, 2001");
  EXPECT_TRUE(organizer().cmdLater->isEnabled());
  EXPECT_TRUE(Menu("mnuLaterTimePeriod")->isEnabled());
}

TEST_F(OrganizerChartTest, ASelectedPeriodComesOnTheChartWithItsTasks) {
  Add_Member("Anna");
  Add_Task(Moment_Task(1, "Anna", {"February", 29, 2000, 19, 0}, kBlue));
  Open();
  Show("Evening", "February", "29", "20", "00");
  EXPECT_FALSE(select().isVisible());
  EXPECT_EQ(Period(), "Evening, February 29, 2000");
  EXPECT_EQ(controls::Caption(select().lblSelectedDate), "2/29/2000");
  EXPECT_EQ(controls::Caption(select().lblSelectedTime), "7:00:00 PM");
  EXPECT_EQ(Painted_Cells(), std::vector<int>{6});
}

TEST_F(OrganizerChartTest, AnOriginThatShowsNoViewHereChangesNothing) {
  machine().Set_Now(2001, 3, 5, 14, 0);
  Add_Member("Anna");
  Add_Task(Moment_Task(1, "Anna", {"March", 5, 2001, 14, 30}, kBlue));
  Open();
  Add_Member("Ben");
  for (std::string_view origin : {std::string_view("cmdlater_Click()"), organizer::kMultiPurposePrint5}) {
    organizer().Refresh_Organizer_Screen(origin);
    EXPECT_EQ(Period(), "Afternoon, March 5, 2001");
    EXPECT_EQ(organizer().lstListOfPeople->count(), 1);
    EXPECT_EQ(Painted_Cells(), std::vector<int>{15});
  }
}

TEST_F(OrganizerChartTest, EveryRefreshingOriginShowsTheViewAgainWithTheLogAsItIsNow) {
  machine().Set_Now(2001, 3, 5, 14, 0);
  Open();
  Later();
  Add_Member("Anna");
  Add_Task(Moment_Task(1, "Anna", {"March", 5, 2001, 18, 0}, kBlue));
  for (std::string_view origin : organizer::kRefreshingOrigins) {
    organizer().Refresh_Organizer_Screen(origin);
    EXPECT_EQ(Period(), "Evening, March 5, 2001") << origin;
    EXPECT_EQ(Painted_Cells(), std::vector<int>{0}) << origin;
  }
}

// ---- Members and the scroll bar -----------------------------------------------------------------

TEST_F(OrganizerChartTest, TenMembersLeaveTheScrollBarDisabled) {
  Add_Members(10);
  Open();
  EXPECT_FALSE(organizer().scrChart->isEnabled());
  EXPECT_EQ(Row_Name(9), "Member 09");
  EXPECT_EQ(Row_Name(10), "");
}

TEST_F(OrganizerChartTest, ElevenMembersEnableItWithMaximumZero) {
  Add_Members(11);
  Open();
  EXPECT_TRUE(organizer().scrChart->isEnabled());
  EXPECT_EQ(organizer().scrChart->maximum(), 0);
  EXPECT_EQ(Row_Name(10), "Member 10");
}

TEST_F(OrganizerChartTest, ScrollingByOneRowMovesTheMembersAndTheirTasks) {
  machine().Set_Now(2001, 3, 5, 14, 0);
  Add_Members(12);
  Add_Task(Moment_Task(1, "Member 00", {"March", 5, 2001, 14, 30}, kBlue));
  Add_Task(Moment_Task(2, "Member 11", {"March", 5, 2001, 14, 40}, kGreen));
  Open();
  EXPECT_EQ(organizer().scrChart->maximum(), 1);
  EXPECT_EQ(Painted_Cells(), std::vector<int>{15});
  organizer().scrChart->triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_EQ(organizer().scrChart->value(), 1);
  EXPECT_EQ(Row_Name(0), "Member 01");
  EXPECT_EQ(Row_Name(10), "Member 11");
  // The task of the member scrolled out of sight paints nothing.
  EXPECT_EQ(Painted_Cells(), std::vector<int>{organizer::Chart_Cell(10, 16)});
  EXPECT_EQ(Owner(organizer::Chart_Cell(10, 16)), Value(2));
}

TEST_F(OrganizerChartTest, DeletingMembersPullsTheFirstRowBackToTheMaximum) {
  Add_Members(14);
  Open();
  organizer().scrChart->setValue(3);
  ASSERT_EQ(Row_Name(0), "Member 03");
  // Two members go, from the log and from the list, as deleting a member does.
  organizer::Rewrite_Log(organizer::kScheduleFile, organizer::kScheduleScratchFile,
                         organizer::Drop_Records([](const organizer::ScheduleRecord& record) {
                           return record.Person_Name.text() >= "Member 12";
                         }));
  for (int item = organizer().lstListOfPeople->count() - 1; item >= 12; --item) {
    delete organizer().lstListOfPeople->takeItem(item);
  }
  QSignalSpy changes(organizer().scrChart, &QScrollBar::valueChanged);
  organizer().Refresh_Organizer_Screen(organizer::kDeleteAGroupMember);
  EXPECT_EQ(organizer().scrChart->maximum(), 1);
  EXPECT_EQ(organizer().scrChart->value(), 1);
  EXPECT_EQ(Row_Name(0), "Member 01");
  EXPECT_EQ(changes.count(), 0) << "the refresh set the bar without starting another refresh";
}

// ---- Keys, the selection window and printing ------------------------------------------------------

TEST_F(OrganizerChartTest, CtrlTOpensTheSelectionWindowForDisplay) {
  Open();
  Press_Keys(organizer(), QKeySequence("Ctrl+T"));
  Process_Events();
  EXPECT_TRUE(select().isVisible());
  EXPECT_EQ(select().windowTitle(), "Select Time Period");
  EXPECT_EQ(select().cmdDisplay->text(), "Display");
  EXPECT_TRUE(select().isActiveWindow());
}

TEST_F(OrganizerChartTest, PrintWindowPrintsOnTheActiveTitleTextColourAndKeepsTheWindowsOwn) {
  Open();
  const unsigned own = controls::Back_Color(&organizer());
  Trigger(organizer(), "mnuPrintSCreen");
  ASSERT_EQ(machine().Print_Jobs().size(), 1u);
  const testing::PrintJob& job = machine().Print_Jobs()[0];
  EXPECT_EQ(job.document_name, "Orrivane-organizer");
  const QImage& page = job.pages.at(0);
  const QPoint bare = organizer().centralWidget()->mapTo(&organizer(), QPoint(2, 2));
  EXPECT_EQ(page.pixelColor(bare), controls::To_QColor(colours::kActiveTitleText));
  EXPECT_EQ(controls::Back_Color(&organizer()), own);
}

}  // namespace
}  // namespace orrivane
