// Printing the log: F2 opens the print frame of the multi-purpose window on the present period,
// the user chooses what to print and whose pages, and each press of Print is one print job: the
// chart's sheets of 32 members, then each member's task list, six tasks a sheet.
#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPrinterInfo>
#include <QTest>
#include <cstdlib>
#include <initializer_list>
#include <string>
#include <vector>

#include "core/runtime_failure.h"
#include "core/text.h"
#include "organizer/chart_samples.h"
#include "organizer/frmSelectTimePeriod.h"
#include "organizer/organizer_callers.h"
#include "platform/qt_platform.h"
#include "reminders/frmPrintLogChart.h"
#include "reminders/frmPrintTaskList.h"
#include "reminders/multi_purpose_window_test.h"
#include "support/failure_of.h"
#include "support/screenshot.h"

namespace orrivane {
namespace {

using organizer::ScheduleRecord;
using organizer::samples::At;
using organizer::samples::Chart_Task;

constexpr unsigned kGreen = 0x00C000;
constexpr unsigned kBlue = 0xC00000;

std::string Member_Name(int n) { return "Member " + text::Pad_Zero(n, 2); }

class PrintLogTest : public testing::MultiPurposeWindowTest {
 protected:
  void SetUp() override {
    MultiPurposeWindowTest::SetUp();
    machine().Set_Now(2001, 3, 5, 9, 15);
  }

  frmPrintLogChart& chart_page() { return Window<frmPrintLogChart>(); }
  frmPrintTaskList& list_page() { return Window<frmPrintTaskList>(); }
  frmSelectTimePeriod& select() { return Window<frmSelectTimePeriod>(); }

  // ---- The log --------------------------------------------------------------------------------
  static std::vector<ScheduleRecord> Members(int count) {
    std::vector<ScheduleRecord> markers;
    for (int n = 1; n <= count; ++n) markers.push_back(organizer::Make_Person_Marker(Member_Name(n)));
    return markers;
  }
  // `count` tasks of a member on March 5, 2001, an hour apart from 0:00 on.
  static std::vector<ScheduleRecord> Tasks_Of(const std::string& member, int count, int first_number = 1) {
    std::vector<ScheduleRecord> tasks;
    for (int n = 0; n < count; ++n) {
      tasks.push_back(Chart_Task(first_number + n, member, {"March", 5, 2001, n % 24, 0},
                                 {"March", 5, 2001, n % 24, 30}, kGreen));
    }
    return tasks;
  }
  static std::vector<ScheduleRecord> Joined(std::vector<ScheduleRecord> first, const std::vector<ScheduleRecord>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
  }

  // ---- The frame ------------------------------------------------------------------------------
  void Press_F2_In_Organizer() {
    Open_Organizer();
    Press_Keys(organizer(), QKeySequence(Qt::Key_F2));
    Process_Events();
    ASSERT_TRUE(form().isVisible());
  }
  void Open_Print_Log() {
    Trigger(organizer(), "mnuPrintLog");
    Process_Events();
    ASSERT_TRUE(form().isVisible());
  }
  // Checks or unchecks a member as the user does: the entry clicked, then the space bar.
  void Toggle(const std::string& member) {
    Click_Entry(form().lstListOfPeople_5, member);
    Press_Keys(form(), QKeySequence(Qt::Key_Space));
  }
  bool Checked(const std::string& member) { return Item(form().lstListOfPeople_5, member)->checkState() == Qt::Checked; }
  static std::vector<std::string> Entries(const QListWidget* list) {
    std::vector<std::string> entries;
    for (int i = 0; i < list->count(); ++i) entries.push_back(list->item(i)->text().toStdString());
    return entries;
  }
  std::vector<std::string> Selected() { return Entries(form().lstSelectedPeople_5); }
  void Print() {
    Click(form().cmdPrint_5);
    Process_Events();
  }
  void Print_Only(QCheckBox* keep, QCheckBox* drop) {
    if (!keep->isChecked()) Click(keep);
    if (drop->isChecked()) Click(drop);
  }
  // A log of `count` members, all of them selected, and the chart alone printed.
  void Print_Chart_Of_All_Members(int count) {
    Write_Log(Members(count));
    Press_F2_In_Organizer();
    Print_Only(form().chkTaskChart_5, form().chkTaskList_5);
    Click(form().cmdSelectAll_5);
    Print();
  }

  // ---- The sheets, as images --------------------------------------------------------------------
  static bool Ink_In(const QImage& sheet, const QRect& area) {
    for (int y = area.top(); y <= area.bottom(); ++y) {
      for (int x = area.left(); x <= area.right(); ++x) {
        if (qGray(sheet.pixel(x, y)) < 128) return true;
      }
    }
    return false;
  }
  template <class Labels>
  static int Rows_Inked(const QImage& sheet, const Labels& labels) {
    int rows = 0;
    for (const QWidget* label : labels) rows += Ink_In(sheet, label->geometry()) ? 1 : 0;
    return rows;
  }
  // The rows of a chart sheet that name a member, and the rows of a list sheet that show a task.
  int Chart_Rows(const QImage& sheet) { return Rows_Inked(sheet, chart_page().lblChartGroupMemberName); }
  int List_Rows(const QImage& sheet) { return Rows_Inked(sheet, list_page().lblTaskNameLabel); }
  static QRgb Colour_At(const QImage& sheet, const QWidget* control) { return sheet.pixel(control->geometry().center()); }
  static QRgb Rgb_Of(unsigned colour) { return controls::To_QColor(colour).rgb(); }

  const testing::PrintJob& Only_Job() {
    EXPECT_EQ(machine().Print_Jobs().size(), 1u);
    return machine().Print_Jobs().back();
  }
};

// ---- Opening ----------------------------------------------------------------------------------------

TEST_F(PrintLogTest, EveryCaptionOfTheFrameIsShownWhole) {
  Press_F2_In_Organizer();
  for (QAbstractButton* control : std::initializer_list<QAbstractButton*>{
           form().chkTaskChart_5, form().chkTaskList_5, form().cmdChange_5, form().cmdSelectAll_5,
           form().cmdDeSelectAll_5, form().cmdPrint_5}) {
    EXPECT_LE(control->sizeHint().width(), control->width()) << control->objectName().toStdString() << " is cut";
    EXPECT_LE(control->geometry().right(), control->parentWidget()->contentsRect().right())
        << control->objectName().toStdString() << " stands out of its frame";
  }
}

TEST_F(PrintLogTest, F2InTheOrganizerOpensThePrintFrameOnThePresentPeriodWithEveryMember) {
  Write_Log(Joined(Members(2), Tasks_Of("Member 03", 1)));
  Press_F2_In_Organizer();
  EXPECT_EQ(form().windowTitle().toStdString(), "Print Log");
  EXPECT_TRUE(form().fraPrintLog->isVisibleTo(&form()));
  EXPECT_EQ(controls::Caption(form().lblTimePeriod_5), "Morning");
  EXPECT_EQ(controls::Caption(form().lblDate_5), "March 5, 2001");
  EXPECT_EQ(Entries(form().lstListOfPeople_5), (std::vector<std::string>{"Member 01", "Member 02", "Member 03"}));
  EXPECT_TRUE(Selected().empty());
  EXPECT_FALSE(form().cmdPrint_5->isEnabled());
}

TEST_F(PrintLogTest, F2OnBothCalendarWindowsOpensThePrintFrame) {
  Write_Log(Members(1));
  Press_Keys(large(), QKeySequence(Qt::Key_F2));
  Process_Events();
  EXPECT_TRUE(form().isVisible());
  EXPECT_EQ(form().windowTitle().toStdString(), "Print Log");
  EXPECT_EQ(Entries(form().lstListOfPeople_5), std::vector<std::string>{"Member 01"});
  form().hide();
  Press_Keys(large(), QKeySequence(Qt::Key_F4));  // the main window in its place
  Process_Events();
  ASSERT_TRUE(Window<Form1>().isVisible());
  Press_Keys(Window<Form1>(), QKeySequence(Qt::Key_F2));
  Process_Events();
  EXPECT_TRUE(form().isVisible());
  EXPECT_EQ(form().windowTitle().toStdString(), "Print Log");
}

TEST_F(PrintLogTest, AtFiveFiftyNineTheEarlyMorningIsOfferedAtSixTheMorning) {
  machine().Set_Now(2001, 3, 5, 5, 59, 59);
  Press_F2_In_Organizer();
  EXPECT_EQ(controls::Caption(form().lblTimePeriod_5), "Early Morning");
  machine().Set_Now(2001, 3, 5, 6, 0, 0);
  Open_Print_Log();
  EXPECT_EQ(controls::Caption(form().lblTimePeriod_5), "Morning");
  machine().Set_Now(2001, 12, 31, 23, 0, 0);
  Open_Print_Log();
  EXPECT_EQ(controls::Caption(form().lblTimePeriod_5), "Evening");
  EXPECT_EQ(controls::Caption(form().lblDate_5), "December 31, 2001");
}

TEST_F(PrintLogTest, TheListKeepsItsMembersAndMarksBetweenOpeningsAndAMemberDeletedSinceStays) {
  Write_Log(Members(2));
  Press_F2_In_Organizer();
  Toggle("Member 02");
  form().hide();
  Write_Log({organizer::Make_Person_Marker("Member 01"), organizer::Make_Person_Marker("Member 04")});
  Open_Print_Log();
  EXPECT_EQ(Entries(form().lstListOfPeople_5),
            (std::vector<std::string>{"Member 01", "Member 02", "Member 04"}));
  EXPECT_TRUE(Checked("Member 02"));
  EXPECT_FALSE(Checked("Member 04"));
  EXPECT_EQ(Selected(), std::vector<std::string>{"Member 02"});
  EXPECT_TRUE(form().cmdPrint_5->isEnabled());
}

// ---- Choosing what to print ----------------------------------------------------------------------

TEST_F(PrintLogTest, UncheckingTheLastCheckedBoxOfTheTwoSnapsItBack) {
  Press_F2_In_Organizer();
  ASSERT_TRUE(form().chkTaskChart_5->isChecked());
  ASSERT_TRUE(form().chkTaskList_5->isChecked());
  Click(form().chkTaskChart_5);
  EXPECT_FALSE(form().chkTaskChart_5->isChecked());
  Click(form().chkTaskList_5);
  EXPECT_TRUE(form().chkTaskList_5->isChecked()) << "the list box snaps back";
  Click(form().chkTaskChart_5);
  EXPECT_TRUE(form().chkTaskChart_5->isChecked());
  Click(form().chkTaskList_5);
  EXPECT_FALSE(form().chkTaskList_5->isChecked());
  Click(form().chkTaskChart_5);
  EXPECT_TRUE(form().chkTaskChart_5->isChecked()) << "the chart box snaps back";
}

TEST_F(PrintLogTest, TheChartsDayAndPeriodCanBeChangedOnlyWhileTheChartIsToBePrinted) {
  Press_F2_In_Organizer();
  Click(form().chkTaskChart_5);
  for (QWidget* control : std::initializer_list<QWidget*>{form().fraPrintTaskChart_5, form().cmdChange_5,
                                                          form().lblDate_5, form().lblDateLabel_5,
                                                          form().lblTimePeriod_5, form().lblPeriodLabel_5}) {
    EXPECT_FALSE(control->isEnabled()) << control->objectName().toStdString();
  }
  Click(form().chkTaskChart_5);
  EXPECT_TRUE(form().cmdChange_5->isEnabled());
  EXPECT_TRUE(form().fraPrintTaskChart_5->isEnabled());
}

TEST_F(PrintLogTest, MembersStandInTheOrderOfCheckingAndPrintIsEnabledWhileOneIs) {
  Write_Log(Members(3));
  Press_F2_In_Organizer();
  Toggle("Member 03");
  EXPECT_TRUE(Checked("Member 03"));
  EXPECT_TRUE(form().cmdPrint_5->isEnabled());
  Toggle("Member 01");
  EXPECT_EQ(Selected(), (std::vector<std::string>{"Member 03", "Member 01"}));
  Toggle("Member 03");
  Toggle("Member 01");
  EXPECT_TRUE(Selected().empty());
  EXPECT_FALSE(form().cmdPrint_5->isEnabled());
}

TEST_F(PrintLogTest, AMemberCheckedUncheckedAndCheckedAgainStandsOnceAtTheEnd) {
  Write_Log(Members(3));
  Press_F2_In_Organizer();
  Toggle("Member 02");
  Toggle("Member 01");
  Toggle("Member 03");
  Toggle("Member 02");
  Toggle("Member 02");
  EXPECT_EQ(Selected(), (std::vector<std::string>{"Member 01", "Member 03", "Member 02"}));
}

TEST_F(PrintLogTest, SelectAllAddsWhatIsMissingAndDeselectAllEmptiesTheSelection) {
  Write_Log(Members(3));
  Press_F2_In_Organizer();
  Toggle("Member 02");
  Click(form().cmdSelectAll_5);
  EXPECT_EQ(Selected(), (std::vector<std::string>{"Member 02", "Member 01", "Member 03"}));
  for (const char* member : {"Member 01", "Member 02", "Member 03"}) EXPECT_TRUE(Checked(member)) << member;
  EXPECT_TRUE(form().cmdPrint_5->isEnabled());
  Click(form().cmdDeSelectAll_5);
  EXPECT_TRUE(Selected().empty());
  for (const char* member : {"Member 01", "Member 02", "Member 03"}) EXPECT_FALSE(Checked(member)) << member;
  EXPECT_FALSE(form().cmdPrint_5->isEnabled());
  Toggle("Member 03");
  EXPECT_EQ(Selected(), std::vector<std::string>{"Member 03"});
}

TEST_F(PrintLogTest, ChangeChoosesTheChartsDayAndPeriodAndLeavesTheScreensChartAlone) {
  Press_F2_In_Organizer();
  const std::string screen_view = controls::Caption(organizer().lblTimePeriod);
  Click(form().cmdChange_5);
  Process_Events();
  ASSERT_TRUE(select().isVisible());
  EXPECT_EQ(select().windowTitle().toStdString(), "Select Time Period To Print");
  EXPECT_EQ(select().cmdDisplay->text().toStdString(), "Change");
  for (auto [box, choice] : {std::pair{select().cboTimePeriod, "Evening"}, std::pair{select().ComboMonths, "February"},
                             std::pair{select().ComboDate, "29"}, std::pair{select().ComboCentury, "20"},
                             std::pair{select().ComboYear, "00"}}) {
    box->setCurrentIndex(box->findText(choice));
  }
  Click(select().cmdDisplay);
  EXPECT_FALSE(select().isVisible());
  EXPECT_EQ(controls::Caption(form().lblTimePeriod_5), "Evening");
  EXPECT_EQ(controls::Caption(form().lblDate_5), "February 29, 2000");
  EXPECT_EQ(controls::Caption(organizer().lblTimePeriod), screen_view);
}

TEST_F(PrintLogTest, ChangeOfARefusedChoiceTellsWhyAndLeavesTheFrameAsItWas) {
  Press_F2_In_Organizer();
  Click(form().cmdChange_5);
  Process_Events();
  select().cboTimePeriod->setCurrentIndex(select().cboTimePeriod->findText("Morning"));
  select().ComboMonths->setCurrentIndex(select().ComboMonths->findText("April"));
  select().ComboDate->setCurrentIndex(select().ComboDate->findText("31"));
  machine().Answer_Next(platform::vbOK, "Invalid Date Selection");
  Click(select().cmdDisplay);
  EXPECT_TRUE(select().isVisible());
  EXPECT_EQ(controls::Caption(form().lblDate_5), "March 5, 2001");
}

TEST_F(PrintLogTest, TheDisplayUseOfTheSelectionWindowStillShowsOnTheChart) {
  Press_F2_In_Organizer();
  Click(form().cmdChange_5);
  Process_Events();
  select().hide();
  Trigger(organizer(), "mnuSelectATimePeriod");
  Process_Events();
  EXPECT_EQ(select().windowTitle().toStdString(), kSelectTimePeriodCaption);
  EXPECT_EQ(select().cmdDisplay->text().toStdString(), kDisplayButtonCaption);
}

// ---- The chart's sheets ----------------------------------------------------------------------------

TEST_F(PrintLogTest, ThirtyThreeSelectedMembersMakeTwoChartSheetsTheSecondWithOneRow) {
  Print_Chart_Of_All_Members(33);
  const testing::PrintJob& job = Only_Job();
  EXPECT_EQ(job.document_name, "Orrivane-log-chart-2001-03-05-Morning");
  ASSERT_EQ(job.pages.size(), 2u);
  EXPECT_EQ(Chart_Rows(job.pages[0]), 32);
  EXPECT_EQ(Chart_Rows(job.pages[1]), 1);
  // The page holds the last sheet: the 33rd member alone.
  EXPECT_EQ(controls::Caption(chart_page().lblChartGroupMemberName[0]), "Member 33");
  EXPECT_EQ(controls::Caption(chart_page().lblChartGroupMemberName[1]), "");
  EXPECT_EQ(form().Store_Next_Name_Position_5("Get"), 32);
  EXPECT_TRUE(form().isVisible()) << "the window stays open after printing";
  EXPECT_FALSE(chart_page().isVisible());
}

TEST_F(PrintLogTest, ThirtyTwoMembersMakeOneChartSheet) {
  Print_Chart_Of_All_Members(32);
  ASSERT_EQ(Only_Job().pages.size(), 1u);
  EXPECT_EQ(Chart_Rows(Only_Job().pages[0]), 32);
}

TEST_F(PrintLogTest, TheChartSheetShowsTheChosenPeriodOfTheSelectedMembersInTheOrderOfChecking) {
  Window<Form1>().lblStoreScheduleFileName->setText("/home/ann/Family.sdl");
  Write_Log({organizer::Make_Person_Marker("Ann"), organizer::Make_Person_Marker("Bob"),
             Chart_Task(1, "Ann", {"March", 5, 2001, 6, 0}, {"March", 5, 2001, 6, 20}, kGreen),
             Chart_Task(2, "Bob", {"March", 5, 2001, 11, 50}, {"March", 5, 2001, 12, 30}, kBlue),
             Chart_Task(3, "Ann", {"March", 5, 2001, 14, 0}, {"March", 5, 2001, 15, 0}, kBlue)});
  Press_F2_In_Organizer();
  Print_Only(form().chkTaskChart_5, form().chkTaskList_5);
  Toggle("Bob");
  Toggle("Ann");
  Print();
  frmPrintLogChart& page = chart_page();
  EXPECT_EQ(controls::Caption(page.lblTimePeriod), "Morning, March 5, 2001");
  EXPECT_EQ(controls::Caption(page.lblFileName), "/home/ann/Family.sdl");
  EXPECT_EQ(controls::Caption(page.lblChartHour[0]), "6:00");
  EXPECT_EQ(controls::Caption(page.lblChartHour[11]), "11:30");
  EXPECT_EQ(controls::Caption(page.lblChartGroupMemberName[0]), "Bob");
  EXPECT_EQ(controls::Caption(page.lblChartGroupMemberName[1]), "Ann");
  // Bob's task from 11:50 fills the last cells of row 0, Ann's of 6:00 to 6:20 the first three of
  // row 1; Ann's afternoon task is not in the morning.
  EXPECT_EQ(page.Chart_History_List_Content_Tracker(organizer::Chart_Cell(0, 35), "Get"), Value(2));
  EXPECT_EQ(page.Chart_History_List_Content_Tracker(organizer::Chart_Cell(0, 34), "Get"), Value(-1));
  for (int column : {0, 1, 2}) {
    EXPECT_EQ(page.Chart_History_List_Content_Tracker(organizer::Chart_Cell(1, column), "Get"), Value(1));
  }
  EXPECT_EQ(page.Chart_History_List_Content_Tracker(organizer::Chart_Cell(1, 3), "Get"), Value(-1));
  const QImage& sheet = Only_Job().pages[0];
  EXPECT_EQ(Colour_At(sheet, page.lblChartHistoryList[organizer::Chart_Cell(0, 35)]), Rgb_Of(kBlue));
  EXPECT_EQ(Colour_At(sheet, page.lblChartHistoryList[organizer::Chart_Cell(1, 0)]), Rgb_Of(kGreen));
  EXPECT_EQ(Colour_At(sheet, page.lblChartHistoryList[organizer::Chart_Cell(1, 3)]), qRgb(255, 255, 255));
  EXPECT_EQ(Chart_Rows(sheet), 2);
  // The screen's chart has its 11 rows and shows the members of the log in its own order.
  EXPECT_EQ(controls::Caption(organizer().lblChartGroupMemberName[0]), "Ann");
}

TEST_F(PrintLogTest, TheChartIsPrintedForTheDayAndPeriodChosenWithChange) {
  Write_Log({organizer::Make_Person_Marker("Ann"),
             Chart_Task(1, "Ann", {"February", 29, 2000, 23, 55}, {"March", 1, 2000, 0, 15}, kGreen)});
  Press_F2_In_Organizer();
  Toggle("Ann");
  Click(form().cmdChange_5);
  Process_Events();
  for (auto [box, choice] : {std::pair{select().cboTimePeriod, "Evening"}, std::pair{select().ComboMonths, "February"},
                             std::pair{select().ComboDate, "29"}, std::pair{select().ComboCentury, "20"},
                             std::pair{select().ComboYear, "00"}}) {
    box->setCurrentIndex(box->findText(choice));
  }
  Click(select().cmdDisplay);
  Print_Only(form().chkTaskChart_5, form().chkTaskList_5);
  Print();
  EXPECT_EQ(Only_Job().document_name, "Orrivane-log-chart-2000-02-29-Evening");
  EXPECT_EQ(controls::Caption(chart_page().lblTimePeriod), "Evening, February 29, 2000");
  EXPECT_EQ(chart_page().Chart_History_List_Content_Tracker(35, "Get"), Value(1));
  EXPECT_EQ(chart_page().Chart_History_List_Content_Tracker(34, "Get"), Value(-1));
}

TEST_F(PrintLogTest, TheChartPagesTrackerHas1152CellsAndFailsBeyond) {
  frmPrintLogChart& page = chart_page();
  EXPECT_EQ(page.Chart_History_List_Content_Tracker(1151, "Put", 7), Value(1151));
  EXPECT_EQ(page.Chart_History_List_Content_Tracker(1151, "Get"), Value(7));
  EXPECT_EQ(page.Chart_History_List_Content_Tracker(0, "Get"), Value(-1));
  EXPECT_EQ(testing::Failure_Of([&] { page.Chart_History_List_Content_Tracker(1152, "Put", 1); }),
            kSubscriptOutOfRange);
  EXPECT_EQ(testing::Failure_Of([&] { page.Chart_History_List_Content_Tracker(-1, "Get"); }), kSubscriptOutOfRange);
}

TEST_F(PrintLogTest, TheChartPageHasItsCaptionAndControls) {
  frmPrintLogChart& page = chart_page();
  EXPECT_EQ(page.windowTitle().toStdString(), "Form PrintLogChart");
  EXPECT_EQ(controls::Caption(page.Label3), "Group Member Name");
  EXPECT_EQ(controls::Caption(page.Label4), "Time Period:");
  EXPECT_EQ(controls::Caption(page.Label7), "Filename:");
  EXPECT_NE(page.findChild<QLabel*>("lblChartHistoryList(1151)"), nullptr);
  EXPECT_NE(page.findChild<QLabel*>("lblChartGroupMemberName(31)"), nullptr);
  EXPECT_NE(page.findChild<QLabel*>("lblChartHour(11)"), nullptr);
  // The cells lie in their rows and columns, on the page and apart.
  const QRect paper = page.rect();
  for (int cell = 0; cell < organizer::kPrintChartCells; ++cell) {
    const QRect place = page.lblChartHistoryList[cell]->geometry();
    ASSERT_TRUE(paper.contains(place)) << cell;
    if (cell % organizer::kChartColumns != 0) {
      EXPECT_EQ(place.left(), page.lblChartHistoryList[cell - 1]->geometry().right() + 1) << cell;
    }
  }
  controls::Set_Caption(page.lblChartHour[10], "10:30");  // the widest head
  for (QLabel* caption : {page.Label3, page.Label4, page.Label7, page.lblChartHour[10]}) {
    EXPECT_LE(caption->sizeHint().width(), caption->width()) << caption->objectName().toStdString() << " is cut";
  }
  EXPECT_LE(page.Label4->geometry().right(), page.lblTimePeriod->geometry().left());
  EXPECT_LE(page.lblTimePeriod->geometry().right(), page.Label7->geometry().left());
  EXPECT_LE(page.Label7->geometry().right(), page.lblFileName->geometry().left());
  EXPECT_LT(page.lblChartGroupMemberName[0]->geometry().right(), page.lblChartHistoryList[0]->geometry().left());
  EXPECT_LT(page.lblChartHour[0]->geometry().bottom(), page.lblChartHistoryList[0]->geometry().top());
}

// ---- The task lists' sheets -------------------------------------------------------------------------

TEST_F(PrintLogTest, SixTasksMakeOneListSheetSevenTwoTheSecondWithOneRow) {
  Write_Log(Joined(Joined(Members(2), Tasks_Of("Member 01", 6)), Tasks_Of("Member 02", 7, 7)));
  Press_F2_In_Organizer();
  Print_Only(form().chkTaskList_5, form().chkTaskChart_5);
  Toggle("Member 01");
  Toggle("Member 02");
  Print();
  const testing::PrintJob& job = Only_Job();
  EXPECT_EQ(job.document_name, "Orrivane-log-task-lists");
  ASSERT_EQ(job.pages.size(), 3u);
  EXPECT_EQ(List_Rows(job.pages[0]), 6);
  EXPECT_EQ(List_Rows(job.pages[1]), 6);
  EXPECT_EQ(List_Rows(job.pages[2]), 1);
  EXPECT_TRUE(Ink_In(job.pages[2], list_page().lblGroupMemberID->geometry()));
  EXPECT_EQ(controls::Caption(list_page().lblGroupMemberID), "Tasklist For: Member 02");
  EXPECT_EQ(controls::Caption(list_page().lblTaskName[0]), "Task 13");
  // Every row is hidden again after the last sheet, the heading left as it stands.
  for (int row = 0; row < frmPrintTaskList::kRows; ++row) {
    for (QWidget* control : list_page().Row_Controls(row)) EXPECT_TRUE(control->isHidden());
  }
}

TEST_F(PrintLogTest, AMemberWithoutTasksPrintsNoSheetAndAMarkerRecordNoRow) {
  Write_Log(Joined(Members(3), Tasks_Of("Member 02", 1)));
  Press_F2_In_Organizer();
  Print_Only(form().chkTaskList_5, form().chkTaskChart_5);
  Toggle("Member 01");
  Toggle("Member 02");
  Toggle("Member 03");
  Print();
  ASSERT_EQ(Only_Job().pages.size(), 1u);
  EXPECT_EQ(List_Rows(Only_Job().pages[0]), 1);
  EXPECT_EQ(controls::Caption(list_page().lblGroupMemberID), "Tasklist For: Member 02");
}

TEST_F(PrintLogTest, NothingToPrintMakesNoJob) {
  Write_Log(Members(1));
  Press_F2_In_Organizer();
  Print_Only(form().chkTaskList_5, form().chkTaskChart_5);
  Toggle("Member 01");
  Print();
  EXPECT_TRUE(machine().Print_Jobs().empty());
}

TEST_F(PrintLogTest, AListRowShowsTheTaskWithItsColourDatesAndTwelveHourTimes) {
  ScheduleRecord task = Chart_Task(4, "Ann", {"March", 5, 2001, 14, 5}, {"March", 6, 2001, 0, 30}, kBlue);
  task.Task_Name = "Dentist";
  task.Task_Description = "Check-up";
  Write_Log({organizer::Make_Person_Marker("Ann"), task});
  Press_F2_In_Organizer();
  Print_Only(form().chkTaskList_5, form().chkTaskChart_5);
  Toggle("Ann");
  Print();
  frmPrintTaskList& page = list_page();
  EXPECT_EQ(controls::Caption(page.lblTaskName[0]), "Dentist");
  EXPECT_EQ(controls::Caption(page.lblDecription[0]), "Check-up");
  EXPECT_EQ(controls::Caption(page.lblStartDate[0]), "March 05, 2001");
  EXPECT_EQ(controls::Caption(page.lblStartTime[0]), "2:05 PM");
  EXPECT_EQ(controls::Caption(page.lblFinishDate[0]), "March 06, 2001");
  EXPECT_EQ(controls::Caption(page.lblFinishTime[0]), "12:30 AM");
  EXPECT_EQ(controls::Back_Color(page.lblColorCode[0]), kBlue);
  const QImage& sheet = Only_Job().pages[0];
  EXPECT_EQ(Colour_At(sheet, page.lblColorCode[0]), Rgb_Of(kBlue));
  EXPECT_EQ(List_Rows(sheet), 1);
  EXPECT_FALSE(Ink_In(sheet, page.lblColorCode[1]->geometry()));
}

TEST_F(PrintLogTest, EnableShowsOrHidesOneRowOrAllSixAndNeverTheHeading) {
  Press_F2_In_Organizer();
  frmPrintTaskList& page = list_page();
  form().Enable_Print_TaskList_Controls(true, -1);
  for (int row = 0; row < frmPrintTaskList::kRows; ++row) EXPECT_FALSE(page.lblTaskName[row]->isHidden());
  form().Enable_Print_TaskList_Controls(false, 2);
  for (QWidget* control : page.Row_Controls(2)) EXPECT_TRUE(control->isHidden());
  EXPECT_FALSE(page.lblTaskName[1]->isHidden());
  EXPECT_FALSE(page.Line4[3]->isHidden());
  form().Enable_Print_TaskList_Controls(false, -1);
  for (int row = 0; row < frmPrintTaskList::kRows; ++row) EXPECT_TRUE(page.Line1[row]->isHidden());
  EXPECT_FALSE(page.lblGroupMemberID->isHidden());
  EXPECT_EQ(page.Row_Controls(0).size(), 17u);
}

TEST_F(PrintLogTest, TheListPagesCaptionsStandWhole) {
  frmPrintTaskList& page = list_page();
  for (int row = 0; row < frmPrintTaskList::kRows; ++row) {
    for (QLabel* caption : {page.lblTaskNameLabel[row], page.lblDescriptionLabel[row], page.lblStartDateLabel[row],
                            page.lblStartTimeLabel[row], page.lblFinishDateLabel[row], page.lblFinishTimeLabel[row]}) {
      EXPECT_LE(caption->sizeHint().width(), caption->width()) << caption->objectName().toStdString();
      EXPECT_TRUE(page.rect().contains(caption->geometry()));
    }
  }
  EXPECT_EQ(controls::Caption(page.lblTaskNameLabel[0]), "Task Name:");
  EXPECT_EQ(controls::Caption(page.lblFinishTimeLabel[5]), "Finish Time:");
}

// ---- One job a press ---------------------------------------------------------------------------------

TEST_F(PrintLogTest, APressPrintsTheChartFirstThenEachMembersListInOneJob) {
  Write_Log(Joined(Joined(Members(33), Tasks_Of("Member 02", 7)), Tasks_Of("Member 01", 2, 8)));
  Press_F2_In_Organizer();
  Click(form().cmdSelectAll_5);
  Print();
  const testing::PrintJob& job = Only_Job();
  EXPECT_EQ(job.document_name, "Orrivane-log-chart-2001-03-05-Morning-and-task-lists");
  ASSERT_EQ(job.pages.size(), 5u);
  const QSize chart_size = chart_page().size();
  const std::vector<int> rows{Chart_Rows(job.pages[0]), Chart_Rows(job.pages[1]), List_Rows(job.pages[2]),
                              List_Rows(job.pages[3]), List_Rows(job.pages[4])};
  // The chart's two sheets, Member 01's list of two, Member 02's of six and one.
  EXPECT_EQ(rows, (std::vector<int>{32, 1, 2, 6, 1}));
  EXPECT_EQ(job.pages[0].size(), chart_size);
  Print();
  EXPECT_EQ(machine().Print_Jobs().size(), 2u) << "each press is a job";
  testing::Keep_Screenshot(chart_page(), "frmPrintLogChart");
  testing::Keep_Screenshot(list_page(), "frmPrintTaskList");
}

// The machine of the test, except that its printer is the real one's: without a printer, a PDF file.
class RealPrinterMachine : public platform::Platform {
 public:
  explicit RealPrinterMachine(testing::FakePlatform& fake) : fake_(fake) {}
  platform::ClockReading Read_Clock() override { return fake_.Read_Clock(); }
  platform::TimerId Start_Timer(int interval_ms, std::function<void()> tick) override {
    return fake_.Start_Timer(interval_ms, std::move(tick));
  }
  void Stop_Timer(platform::TimerId timer) override { fake_.Stop_Timer(timer); }
  int Message_Box(const std::string& text, int buttons, int icon, const std::string& title) override {
    return fake_.Message_Box(text, buttons, icon, title);
  }
  void Begin_Print_Job(const std::string& document_name) override { real_.Begin_Print_Job(document_name); }
  void Print_Sheet(QWidget& window) override { real_.Print_Sheet(window); }
  void End_Print_Job() override { real_.End_Print_Job(); }
  void Print_Text(const std::vector<platform::TextPage>& pages) override { real_.Print_Text(pages); }
  void Beep() override { fake_.Beep(); }
  void Randomize(double seed) override { fake_.Randomize(seed); }
  double Rnd() override { return fake_.Rnd(); }
  void Yield() override { fake_.Yield(); }
  [[noreturn]] void End_Process(int exit_code) override {
    fake_.End_Process(exit_code);
    std::abort();  // not reached: the test machine's end does not return either
  }

 private:
  testing::FakePlatform& fake_;
  platform::QtPlatform real_;
};

TEST_F(PrintLogTest, WithoutAPrinterAPressIsOnePdfWithAPageForEachSheet) {
  if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "this machine has a printer";
  Write_Log(Joined(Members(33), Tasks_Of("Member 05", 7)));
  Press_F2_In_Organizer();
  Click(form().cmdSelectAll_5);
  RealPrinterMachine real(machine());
  platform::Install(&real);
  Print();
  platform::Install(&machine());
  const std::string file = "Orrivane-log-chart-2001-03-05-Morning-and-task-lists.pdf";
  ASSERT_TRUE(File_Present(file));
  const std::string pdf = Read_File(file);
  EXPECT_TRUE(pdf.starts_with("%PDF"));
  int pages = 0;
  for (std::size_t at = pdf.find("/MediaBox"); at != std::string::npos; at = pdf.find("/MediaBox", at + 1)) ++pages;
  EXPECT_EQ(pages, 4) << "two chart sheets, two list sheets";
  EXPECT_EQ(QDir(QString::fromStdString(Folder())).entryList({"*.pdf"}).size(), 1);
  if (const QByteArray keep = qgetenv("ORRIVANE_SCREENSHOT_DIR"); !keep.isEmpty()) {
    QFile::copy(QString::fromStdString(Path(file)), QDir(QString::fromLocal8Bit(keep)).filePath("print-log.pdf"));
  }
}

}  // namespace
}  // namespace orrivane
