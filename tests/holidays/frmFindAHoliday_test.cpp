// The find-a-holiday window: both modes, the range box, the growing list and its counts, the
// refusals, removing, clearing, closing, the enabling of buttons and menu entries, printing,
// and a line sent to the calendar.
#include "holidays/find_a_holiday_window_test.h"

namespace orrivane {
namespace {

using testing::FindAHolidayTest;

const char* const kSelectedLineCommands[] = {"cmdCalendar", "mnuDisplaySelectedOnCalendar", "cmdRemoveItem",
                                             "mnuRemoveSelected"};
const char* const kFilledListCommands[] = {"cmdSave", "mnuSaveList", "cmdClear", "mnuClearList",
                                           "mnuPrintHolidayList"};

// ---- The window as it opens ----------------------------------------------------------------------

TEST_F(FindAHolidayTest, OpensFromBothCalendarsWithItsCaptions) {
  Start_Program();
  ASSERT_TRUE(Menu(large(), "mnuFindHolidayDates")->isEnabled());
  Trigger(large(), "mnuFindHolidayDates");
  EXPECT_TRUE(find().isVisible());
  find().hide();
  ASSERT_TRUE(main().cmdFindHolidayDates->isEnabled());
  ASSERT_TRUE(Menu(main(), "mnuFindHolidayDates")->isEnabled());
  main().show();
  Click(main().cmdFindHolidayDates);
  EXPECT_TRUE(find().isVisible());
  find().hide();
  Trigger(main(), "mnuFindHolidayDates");
  EXPECT_TRUE(find().isVisible());

  EXPECT_EQ(find().windowTitle().toStdString(), "Find The Date of a Holiday");
  EXPECT_EQ(find().optByHoliday->text().toStdString(), "By Holiday:");
  EXPECT_EQ(find().optDisplayAllByYear->text().toStdString(), "Display All By Year");
  EXPECT_EQ(find().chkSelectRangeOfYears->text().toStdString(), "Select Range of Years");
  EXPECT_EQ(find().cmdSelect->text().toStdString(), "Display");
  EXPECT_EQ(find().cmdCalendar->text().toStdString(), "Calendar");
  EXPECT_EQ(find().cmdRemoveItem->text().toStdString(), "Remove");
  EXPECT_EQ(find().cmdSave->text().toStdString(), "Save List...");
  EXPECT_EQ(find().cmdClear->text().toStdString(), "Clear");
  EXPECT_EQ(find().cmdClose->text().toStdString(), "Close");
  EXPECT_EQ(Label(find(), "lblFrom"), "From:");
  EXPECT_EQ(Label(find(), "lblNewCaption"), "New:");
  EXPECT_EQ(Label(find(), "lblTotalResultsListedCaption"), "Total Results Listed:");
  EXPECT_EQ(Menu(find(), "mnuSaveList")->text().toStdString(), "Save List...");
  EXPECT_EQ(Menu(find(), "mnuOpenFile")->text().toStdString(), "Open File...");
  EXPECT_EQ(Menu(find(), "mnuPrintHolidayList")->text().toStdString(), "Print Holiday List");
  EXPECT_EQ(Menu(find(), "mnuCloseWindow")->text().toStdString(), "Close Window");
  EXPECT_EQ(Menu(find(), "mnuAddHolidayDateToList")->text().toStdString(), "Add Holiday Date To List");
  EXPECT_EQ(Menu(find(), "mnuDisplaySelectedOnCalendar")->text().toStdString(), "Display Selected On Calendar");
  EXPECT_EQ(Menu(find(), "mnuRemoveSelected")->text().toStdString(), "Remove Selected");
  EXPECT_EQ(Menu(find(), "mnuClearList")->text().toStdString(), "Clear List");
}

TEST_F(FindAHolidayTest, StartsByHolidayWithAnEmptyChoiceOfTheNamesInAlphabeticalOrder) {
  Open_Window();
  EXPECT_TRUE(find().optByHoliday->isChecked());
  EXPECT_FALSE(find().optDisplayAllByYear->isChecked());
  EXPECT_TRUE(find().cboHoliday->isEnabled());
  EXPECT_EQ(find().cboHoliday->currentText().toStdString(), "");
  ASSERT_EQ(find().cboHoliday->count(), 25);
  EXPECT_EQ(find().cboHoliday->itemText(0).toStdString(), "Ascension Day");
  EXPECT_EQ(find().cboHoliday->itemText(24).toStdString(), "Veterans Day");
  for (int i = 1; i < 25; ++i) EXPECT_LT(find().cboHoliday->itemText(i - 1), find().cboHoliday->itemText(i));
  EXPECT_FALSE(find().chkSelectRangeOfYears->isChecked());
  EXPECT_FALSE(find().txtToYear->isEnabled());
  EXPECT_EQ(find().txtFromYear->text().toStdString(), "");
  EXPECT_EQ(find().List_Count(), 0u);
  EXPECT_TRUE(find().cmdSelect->isEnabled());
  for (const char* name : kSelectedLineCommands) EXPECT_FALSE(Enabled(name)) << name;
  for (const char* name : kFilledListCommands) EXPECT_FALSE(Enabled(name)) << name;
  for (const char* name : {"mnuOpenFile", "mnuCloseWindow", "mnuAddHolidayDateToList"}) EXPECT_TRUE(Enabled(name));
}

TEST_F(FindAHolidayTest, TheOptionsClearEachOther) {
  Open_Window();
  Click(find().optDisplayAllByYear);
  EXPECT_TRUE(find().optDisplayAllByYear->isChecked());
  EXPECT_FALSE(find().optByHoliday->isChecked());
  EXPECT_FALSE(find().cboHoliday->isEnabled());
  Click(find().optByHoliday);
  EXPECT_TRUE(find().optByHoliday->isChecked());
  EXPECT_FALSE(find().optDisplayAllByYear->isChecked());
  EXPECT_TRUE(find().cboHoliday->isEnabled());
  Click(find().optByHoliday);  // clicking the set one keeps it set
  EXPECT_TRUE(find().optByHoliday->isChecked());
}

TEST_F(FindAHolidayTest, TheRangeBoxOpensTheLastYearAndKeepsItsText) {
  Open_Window();
  Click(find().chkSelectRangeOfYears);
  EXPECT_TRUE(find().txtToYear->isEnabled());
  EXPECT_EQ(controls::Back_Color(find().txtToYear), 0x80000005u);
  Type(find().txtToYear, "2010");
  Click(find().chkSelectRangeOfYears);
  EXPECT_FALSE(find().txtToYear->isEnabled());
  EXPECT_EQ(controls::Back_Color(find().txtToYear), controls::kButtonFace);
  EXPECT_EQ(find().txtToYear->text().toStdString(), "2010");
}

// ---- Requests -----------------------------------------------------------------------------------

TEST_F(FindAHolidayTest, EasterOf1583) {
  Open_Window();
  Ask_By_Holiday("Easter", "1583");
  EXPECT_EQ(Lines(), std::vector<std::string>{"Easter, Sunday, April 10, 1583"});
  EXPECT_EQ(New_Count(), "1");
  EXPECT_EQ(Total_Count(), "1");
  for (const char* name : kFilledListCommands) EXPECT_TRUE(Enabled(name)) << name;
  for (const char* name : kSelectedLineCommands) EXPECT_FALSE(Enabled(name)) << name;
}

TEST_F(FindAHolidayTest, TheMenuEntryAsksAsTheButtonDoes) {
  Open_Window();
  find().cboHoliday->setCurrentIndex(find().cboHoliday->findText("Election Day, U.S."));
  Type(find().txtFromYear, "2005");
  Trigger(find(), "mnuAddHolidayDateToList");
  EXPECT_EQ(Lines(), std::vector<std::string>{"Election Day, U.S., Tuesday, November 8, 2005"});
}

TEST_F(FindAHolidayTest, ARangeRunsBackwardWhenTheFirstYearIsTheLater) {
  Open_Window();
  Ask_By_Holiday("Thanksgiving", "2005", "2003");
  EXPECT_EQ(Lines(), (std::vector<std::string>{"Thanksgiving, Thursday, November 24, 2005",
                                               "Thanksgiving, Thursday, November 25, 2004",
                                               "Thanksgiving, Thursday, November 27, 2003"}));
  EXPECT_EQ(New_Count(), "3");
}

TEST_F(FindAHolidayTest, WithoutTheRangeBoxOnlyTheFirstYearIsAnswered) {
  Open_Window();
  Ask_By_Holiday("Veterans Day", "1971", "1975");
  Click(find().chkSelectRangeOfYears);  // clear it again; the last year stays typed
  Click(find().cmdSelect);
  ASSERT_EQ(find().List_Count(), 6u);
  EXPECT_EQ(find().List_Line(5), "Veterans Day, Monday, October 25, 1971");
  EXPECT_EQ(New_Count(), "1");
}

TEST_F(FindAHolidayTest, AnEmptyLastYearInARangeIsTheFirstYear) {
  Open_Window();
  find().cboHoliday->setCurrentIndex(find().cboHoliday->findText("Halloween"));
  Type(find().txtFromYear, "1582");
  Click(find().chkSelectRangeOfYears);
  Click(find().cmdSelect);
  EXPECT_EQ(Lines(), std::vector<std::string>{"Halloween, Sunday, October 31, 1582"});
}

TEST_F(FindAHolidayTest, AllHolidaysOf1582AreFourAndOf2003TwentyFive) {
  Open_Window();
  Ask_All_By_Year("1582");
  EXPECT_EQ(Lines(), (std::vector<std::string>{"Halloween, Sunday, October 31, 1582",
                                               "Christmas Eve, Friday, December 24, 1582",
                                               "Christmas Day, Saturday, December 25, 1582",
                                               "New Years Eve, Friday, December 31, 1582"}));
  EXPECT_EQ(New_Count(), "4");
  EXPECT_EQ(find().InterFunction_Counter("View", 0), 4);
  Ask_All_By_Year("2003");
  EXPECT_EQ(New_Count(), "25");
  EXPECT_EQ(Total_Count(), "29");
  EXPECT_EQ(find().List_Line(4), "New Years Day, Wednesday, January 1, 2003");
  EXPECT_EQ(find().List_Line(28), "New Years Eve, Wednesday, December 31, 2003");
  for (const char* name : kFilledListCommands) EXPECT_TRUE(Enabled(name)) << name;
}

TEST_F(FindAHolidayTest, ASecondRequestAddsToTheList) {
  Open_Window();
  Ask_By_Holiday("Easter", "2000", "2002");
  Ask_By_Holiday("Mother's Day", "2003");
  EXPECT_EQ(New_Count(), "1");
  EXPECT_EQ(Total_Count(), "4");
  Ask_All_By_Year("1990", "1991");
  EXPECT_EQ(New_Count(), "50");
  EXPECT_EQ(Total_Count(), "54");
}

TEST_F(FindAHolidayTest, AHolidayBeforeItsFirstYearIsRefusedByNameAndMissingFromTheYearsList) {
  Open_Window();
  machine().Answer_Next(platform::vbOK, "Invalid Year");
  Ask_By_Holiday("Martin Luther King Day", "1982");
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(machine().Messages()[0].text,
            "For Martin Luther King Day, the year boxes may\rcontain only numeric values from 1983 to 100100.");
  EXPECT_EQ(machine().Messages()[0].icon, platform::vbExclamation);
  EXPECT_EQ(machine().Messages()[0].buttons, platform::vbOKOnly);
  EXPECT_EQ(find().List_Count(), 0u);
  EXPECT_EQ(New_Count(), "");
  EXPECT_EQ(Total_Count(), "");  // a refused request leaves the counts as they stood

  Ask_All_By_Year("1982");
  EXPECT_EQ(New_Count(), "24");
  for (const std::string& line : Lines()) EXPECT_EQ(line.find("Martin Luther King Day"), std::string::npos);
  Ask_All_By_Year("1965");  // no Father's Day, Presidents' Day or Martin Luther King Day yet
  EXPECT_EQ(New_Count(), "22");
}

TEST_F(FindAHolidayTest, ElectionDayIsNamedShortInItsRefusal) {
  Open_Window();
  machine().Answer_Next(platform::vbOK, "Invalid Year");
  Ask_By_Holiday("Election Day, U.S.", "1844");
  EXPECT_EQ(machine().Messages().back().text,
            "For Election Day, the year boxes may\rcontain only numeric values from 1845 to 100100.");
}

TEST_F(FindAHolidayTest, AYearAbove100100YieldsNothingInEitherMode) {
  Open_Window();
  machine().Answer_Next(platform::vbOK, "Invalid Year");
  Ask_By_Holiday("Easter", "100101");
  EXPECT_NE(machine().Messages().back().text.find("to 100100."), std::string::npos);
  machine().Answer_Next(platform::vbOK, "Invalid Year");
  Ask_By_Holiday("Easter", "100099", "100101");
  machine().Answer_Next(platform::vbOK, "Invalid Year");
  Ask_All_By_Year("100101");
  EXPECT_EQ(machine().Messages().back().text, "The year boxes may contain only numeric values\rfrom 1582 to 100100.");
  machine().Answer_Next(platform::vbOK, "Invalid Year");
  Ask_All_By_Year("100100", "100101");
  machine().Answer_Next(platform::vbOK, "Invalid Year");
  Ask_All_By_Year("1581");
  EXPECT_EQ(find().List_Count(), 0u);
  Ask_All_By_Year("100100");
  EXPECT_EQ(New_Count(), "25");
}

TEST_F(FindAHolidayTest, TheMessagesOfMissingEntries) {
  Open_Window();
  machine().Answer_Next(platform::vbOK, "No Selections Made");
  Click(find().cmdSelect);
  EXPECT_EQ(machine().Messages().back().text, "Please specify a holiday and valid year.");
  machine().Answer_Next(platform::vbOK, "No Holiday Selected");
  Type(find().txtFromYear, "2003");
  Click(find().cmdSelect);
  EXPECT_EQ(machine().Messages().back().text, "A holiday must be selected.");
  machine().Answer_Next(platform::vbOK, "No Year Entered");
  Ask_By_Holiday("Easter", "");
  EXPECT_EQ(machine().Messages().back().text, "A year must be entered in the 'From' box.");
  machine().Answer_Next(platform::vbOK, "No Year Entered");
  Ask_All_By_Year("");
  EXPECT_EQ(machine().Messages().back().text, "A year must be entered in the 'From' box.");
  EXPECT_EQ(find().List_Count(), 0u);
}

TEST_F(FindAHolidayTest, AYearThatIsNoNumberIsRefusedAsAnInvalidYearOfThatMode) {
  Open_Window();
  machine().Answer_Next(platform::vbOK, "Invalid Year");
  Ask_By_Holiday("Easter", "20o3");
  EXPECT_EQ(machine().Messages().back().text,
            "For Easter, the year boxes may\rcontain only numeric values from 1583 to 100100.");
  machine().Answer_Next(platform::vbOK, "Invalid Year");
  Ask_By_Holiday("Easter", "2003", "next year");
  machine().Answer_Next(platform::vbOK, "Invalid Year");
  Ask_By_Holiday("Easter", "2003.5");
  machine().Answer_Next(platform::vbOK, "Invalid Year");
  Ask_All_By_Year("MMIII");
  EXPECT_EQ(machine().Messages().back().text, "The year boxes may contain only numeric values\rfrom 1582 to 100100.");
  machine().Answer_Next(platform::vbOK, "Invalid Year");
  Ask_All_By_Year("2003", "?");
  EXPECT_EQ(find().List_Count(), 0u);
  for (const char* name : kFilledListCommands) EXPECT_FALSE(Enabled(name)) << name;
}

TEST_F(FindAHolidayTest, TheCounterKeepsANumberByVerb) {
  Open_Window();
  EXPECT_EQ(find().InterFunction_Counter("Set Equal To", 7), 7);
  EXPECT_EQ(find().InterFunction_Counter("Add", 3), 10);
  EXPECT_EQ(find().InterFunction_Counter("Subtract", 4), 6);
  EXPECT_EQ(find().InterFunction_Counter("Multiply", 2), 12);
  EXPECT_EQ(find().InterFunction_Counter("Divide", 8), 1.5);
  EXPECT_EQ(find().InterFunction_Counter("Get", 100), 1.5);
  Ask_All_By_Year("2003", "2004");
  EXPECT_EQ(find().InterFunction_Counter("Get", 0), 50);
  Ask_By_Holiday("Easter", "2003", "2010");
  EXPECT_EQ(find().InterFunction_Counter("Get", 0), 51);  // one a successful call, not a line
}

// ---- Selecting, removing, clearing, closing ----------------------------------------------------

TEST_F(FindAHolidayTest, SelectingALineEnablesTheCalendarAndRemoval) {
  Open_Window();
  Ask_All_By_Year("2003");
  Select_Line(3);
  EXPECT_EQ(find().List_Index(), 3);
  for (const char* name : kSelectedLineCommands) EXPECT_TRUE(Enabled(name)) << name;
}

TEST_F(FindAHolidayTest, RemovingALineLeavesNoneSelectedAndCountsAgain) {
  Open_Window();
  Ask_All_By_Year("2003");
  Select_Line(0);
  Click(find().cmdRemoveItem);
  EXPECT_EQ(find().List_Count(), 24u);
  EXPECT_EQ(find().List_Line(0), "Martin Luther King Day, Monday, January 20, 2003");
  EXPECT_EQ(Total_Count(), "24");
  EXPECT_EQ(New_Count(), "0");
  EXPECT_EQ(find().List_Index(), -1);
  for (const char* name : kSelectedLineCommands) EXPECT_FALSE(Enabled(name)) << name;
  for (const char* name : kFilledListCommands) EXPECT_TRUE(Enabled(name)) << name;
  Select_Line(23);
  Trigger(find(), "mnuRemoveSelected");
  EXPECT_EQ(find().List_Count(), 23u);
  EXPECT_EQ(find().List_Line(22), "Christmas Day, Thursday, December 25, 2003");
  EXPECT_FALSE(Enabled("cmdCalendar"));
}

TEST_F(FindAHolidayTest, AfterTheLastLineIsRemovedNothingCanBeSavedOrPrinted) {
  Open_Window();
  Ask_By_Holiday("Easter", "2003");
  Select_Line(0);
  Click(find().cmdRemoveItem);
  EXPECT_EQ(find().List_Count(), 0u);
  EXPECT_EQ(Total_Count(), "0");
  for (const char* name : kFilledListCommands) EXPECT_FALSE(Enabled(name)) << name;
  for (const char* name : kSelectedLineCommands) EXPECT_FALSE(Enabled(name)) << name;
}

TEST_F(FindAHolidayTest, ClearEmptiesTheListAndDisablesWhatNeedsLines) {
  Open_Window();
  Ask_All_By_Year("2003");
  Select_Line(2);
  Click(find().cmdClear);
  EXPECT_EQ(find().List_Count(), 0u);
  EXPECT_EQ(New_Count(), "0");
  EXPECT_EQ(Total_Count(), "0");
  for (const char* name : kFilledListCommands) EXPECT_FALSE(Enabled(name)) << name;
  for (const char* name : kSelectedLineCommands) EXPECT_FALSE(Enabled(name)) << name;
  Ask_All_By_Year("2004");
  Trigger(find(), "mnuClearList");
  EXPECT_EQ(find().List_Count(), 0u);
}

TEST_F(FindAHolidayTest, ClosingThenReopeningShowsAnEmptyListButKeepsTheBoxes) {
  Open_Window();
  Ask_All_By_Year("2003", "2004");
  Click(find().cmdClose);
  EXPECT_FALSE(find().isVisible());
  Trigger(large(), "mnuFindHolidayDates");
  EXPECT_TRUE(find().isVisible());
  EXPECT_EQ(find().List_Count(), 0u);
  EXPECT_EQ(Total_Count(), "0");
  EXPECT_EQ(find().txtFromYear->text().toStdString(), "2003");
  EXPECT_EQ(find().txtToYear->text().toStdString(), "2004");
  EXPECT_TRUE(find().optDisplayAllByYear->isChecked());
  EXPECT_TRUE(find().chkSelectRangeOfYears->isChecked());
  for (const char* name : kFilledListCommands) EXPECT_FALSE(Enabled(name)) << name;
  Ask_All_By_Year("2005");
  Trigger(find(), "mnuCloseWindow");
  EXPECT_FALSE(find().isVisible());
  EXPECT_EQ(find().List_Count(), 0u);
  Trigger(large(), "mnuFindHolidayDates");
  Ask_All_By_Year("2006");
  find().close();  // by the frame
  EXPECT_FALSE(find().isVisible());
  EXPECT_EQ(find().List_Count(), 0u);
}

// ---- Printing ---------------------------------------------------------------------------------

TEST_F(FindAHolidayTest, AListOf169LinesIsAskedWithOkAndCancelOneOf170WithYesAndNo) {
  Open_Window();
  Ask_By_Holiday("Easter", "2000", "2168");
  ASSERT_EQ(find().List_Count(), 169u);
  machine().Answer_Next(platform::vbCancel, "Print Holiday List");
  Trigger(find(), "mnuPrintHolidayList");
  EXPECT_EQ(machine().Messages().back().text, "To print the holiday list click 'OK', otherwise click 'Cancel'.");
  EXPECT_EQ(machine().Messages().back().buttons, platform::vbOKCancel);
  EXPECT_TRUE(machine().Print_Jobs().empty());

  Ask_By_Holiday("Easter", "2169");
  ASSERT_EQ(find().List_Count(), 170u);
  machine().Answer_Next(platform::vbNo, "Print Holiday List");
  Trigger(find(), "mnuPrintHolidayList");
  EXPECT_EQ(machine().Messages().back().text, "It may take up to two minutes for printing to start. Proceed?");
  EXPECT_EQ(machine().Messages().back().buttons, platform::vbYesNo);
  EXPECT_EQ(machine().Messages().back().icon, platform::vbQuestion);
  EXPECT_TRUE(machine().Print_Jobs().empty());
  machine().Answer_Next(platform::vbYes, "Print Holiday List");
  Trigger(find(), "mnuPrintHolidayList");
  EXPECT_EQ(machine().Print_Jobs().size(), 2u);
}

TEST_F(FindAHolidayTest, A143LineListPrintsTwoColumnsAndStartsAJobWithTheLastLine) {
  Open_Window();
  Ask_By_Holiday("Easter", "2000", "2142");
  ASSERT_EQ(find().List_Count(), 143u);
  machine().Answer_Next(platform::vbOK, "Print Holiday List");
  Trigger(find(), "mnuPrintHolidayList");
  const auto& jobs = machine().Print_Jobs();
  ASSERT_EQ(jobs.size(), 2u);
  ASSERT_EQ(jobs[0].text.size(), 1u);  // one page a job
  const platform::TextPage& first = jobs[0].text[0];
  ASSERT_EQ(first.size(), 143u);  // the heading and 142 lines
  EXPECT_EQ(first[0].text, "Total Holidays Listed: 143");
  EXPECT_EQ(first[0].x_twips, 0);
  EXPECT_EQ(first[0].y_twips, 400);
  EXPECT_EQ(first[1].text, "Easter, Sunday, April 23, 2000");
  EXPECT_EQ(first[1].x_twips, 1000);
  EXPECT_EQ(first[1].y_twips, 800);
  EXPECT_EQ(first[71].x_twips, 1000);  // the 71st line ends the left column
  EXPECT_EQ(first[71].y_twips, 800 + 200 * 70);
  EXPECT_EQ(first[72].text, find().List_Line(71));  // the 72nd heads the right column
  EXPECT_EQ(first[72].x_twips, 5500);
  EXPECT_EQ(first[72].y_twips, 800);
  EXPECT_EQ(first[142].x_twips, 5500);
  EXPECT_EQ(first[142].y_twips, 800 + 200 * 70);
  ASSERT_EQ(jobs[1].text.size(), 1u);
  ASSERT_EQ(jobs[1].text[0].size(), 1u);
  EXPECT_EQ(jobs[1].text[0][0].text, find().List_Line(142));
  EXPECT_EQ(jobs[1].text[0][0].x_twips, 1000);
  EXPECT_EQ(jobs[1].text[0][0].y_twips, 800);
  EXPECT_FALSE(jobs[0].pages.empty());
}

TEST_F(FindAHolidayTest, A142LineListIsOneJob) {
  Open_Window();
  Ask_By_Holiday("Christmas Day", "2000", "2141");
  machine().Answer_Next(platform::vbOK, "Print Holiday List");
  Trigger(find(), "mnuPrintHolidayList");
  EXPECT_EQ(machine().Print_Jobs().size(), 1u);
}

// ---- The way to the calendar --------------------------------------------------------------------

TEST_F(FindAHolidayTest, TheKeeperOfTheSentLine) {
  Open_Window();
  find().Selected_Holiday_Sent_To_Calendar("Write Month", "May");
  find().Selected_Holiday_Sent_To_Calendar("Write Date", "11");
  find().Selected_Holiday_Sent_To_Calendar("Write Year", "2003");
  EXPECT_EQ(find().Selected_Holiday_Sent_To_Calendar("Get Month", "null"), Value("May"));
  EXPECT_EQ(find().Selected_Holiday_Sent_To_Calendar("Get Date", "null"), Value("11"));
  EXPECT_EQ(find().Selected_Holiday_Sent_To_Calendar("Get Year", "null"), Value("2003"));
  EXPECT_TRUE(find().Selected_Holiday_Sent_To_Calendar("Get Weekday", "null").is_empty());
  EXPECT_TRUE(find().Selected_Holiday_Sent_To_Calendar("Write Weekday", "Sunday").is_empty());
}

TEST_F(FindAHolidayTest, ALineSentToTheCalendarOpensItOnThatDate) {
  Open_Window();
  Ask_By_Holiday("Easter", "2003");
  Select_Line(0);
  Click(find().cmdCalendar);
  EXPECT_EQ(Label(main(), "lblStoreMonth"), "April");
  EXPECT_EQ(Label(main(), "lblStoreYear"), "2003");
  EXPECT_EQ(Label(main(), "lblShowDate"), "April 20, 2003");
  EXPECT_EQ(Label(large(), "lblShowDate"), "April 20, 2003");
  EXPECT_EQ(Label(main(), "lblShowCalendarName"), "Gregorian");
  // 1 April 2003 is a Tuesday: the 20th stands in cell 21, in red, with its holiday.
  EXPECT_EQ(Cell(large(), 21), "20");
  EXPECT_EQ(Cell_Colour(large(), 21), controls::kRed);
  EXPECT_EQ(Red_Cells(main()), 1);
  EXPECT_EQ(Label(large(), "lblCalHoliday(21)"), "Easter");
  EXPECT_TRUE(large().isActiveWindow() || large().isVisible());
}

TEST_F(FindAHolidayTest, TheElectionDayLineLandsOnItsDateNotCutAtTheNamesComma) {
  Open_Window();
  Ask_All_By_Year("2003");
  Select_Line(19);
  ASSERT_EQ(find().List_Line(19), "Election Day, U.S., Tuesday, November 4, 2003");
  Trigger(find(), "mnuDisplaySelectedOnCalendar");
  EXPECT_EQ(find().Selected_Holiday_Sent_To_Calendar("Get Month", "null"), Value("November"));
  EXPECT_EQ(find().Selected_Holiday_Sent_To_Calendar("Get Date", "null"), Value("4"));
  EXPECT_EQ(find().Selected_Holiday_Sent_To_Calendar("Get Year", "null"), Value("2003"));
  EXPECT_EQ(Label(main(), "lblShowDate"), "November 4, 2003");
  EXPECT_EQ(Label(large(), "lblCalHoliday(9)"), "Election Day, U.S.");
}

// ---- A request of millions of lines -------------------------------------------------------------

TEST_F(FindAHolidayTest, ALongRequestYieldsBetweenBatchesAndTakesNoOtherOrderMeanwhile) {
  Open_Window();
  bool busy_seen = false;
  bool list_growing = false;
  machine().On_Yield([&] {
    busy_seen = find().Busy() && !find().cmdSelect->isEnabled() && !find().menuBar()->isEnabled();
    list_growing = find().List_Count() > 0 && Total_Count() == std::to_string(find().List_Count());
  });
  Ask_All_By_Year("1583", "6000");
  machine().On_Yield(nullptr);
  EXPECT_GT(machine().Yields(), 1);
  EXPECT_TRUE(busy_seen);
  EXPECT_TRUE(list_growing);
  EXPECT_FALSE(find().Busy());
  EXPECT_TRUE(find().cmdSelect->isEnabled());
  EXPECT_EQ(find().List_Count(), std::stoul(New_Count()));
  EXPECT_EQ(find().lstListHolidayDates_Lines->rowCount(), static_cast<int>(find().List_Count()));
  EXPECT_EQ(find().List_Line(0), "New Years Day, Saturday, January 1, 1583");
  Select_Line(static_cast<int>(find().List_Count()) - 1);
  EXPECT_EQ(find().List_Index(), static_cast<int>(find().List_Count()) - 1);
}

// How long these take is measured by bench/frmFindAHoliday_bench.cpp.
TEST_F(FindAHolidayTest, AThousandYearsComeInOneBatchWithoutYielding) {
  Open_Window();
  const int yields = machine().Yields();
  Ask_All_By_Year("2000", "2999");
  EXPECT_EQ(find().List_Count(), 25000u);
  EXPECT_EQ(machine().Yields(), yields);
}

}  // namespace
}  // namespace orrivane
