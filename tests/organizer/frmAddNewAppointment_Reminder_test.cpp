// "Add New Task\Event": its controls, the enabling of its inputs, the checks of a task with their
// messages, the task and its member in the working files, and the window ready for the next task.
#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <algorithm>
#include <array>

#include "organizer/colour_palette.h"
#include "organizer/new_task_entry.h"
#include "organizer/organizer_callers.h"
#include "organizer/new_task_window_test.h"
#include "support/golden.h"

namespace orrivane {
namespace {

using organizer::kTaskFinish;
using organizer::kTaskStart;

class frmAddNewAppointment_ReminderTest : public testing::NewTaskWindowTest {
 protected:
  void SetUp() override {
    NewTaskWindowTest::SetUp();
    Open_Entry();
  }

  QString Caption_Of(const QString& name) {
    QWidget* control = Control(entry(), name);
    if (auto* label = qobject_cast<QLabel*>(control)) return label->text();
    if (auto* button = qobject_cast<QAbstractButton*>(control)) return button->text();
    if (auto* frame = qobject_cast<QGroupBox*>(control)) return frame->title();
    return {};
  }
  std::vector<std::string> Items(QComboBox* box) {
    std::vector<std::string> items;
    for (int i = 0; i < box->count(); ++i) items.push_back(box->itemText(i).toStdString());
    return items;
  }
};

// ---- The controls ------------------------------------------------------------------------------

TEST_F(frmAddNewAppointment_ReminderTest, EveryControlWithItsCaption) {
  EXPECT_EQ(entry().windowTitle(), "Add New Task\\Event");
  const std::pair<const char*, const char*> captions[] = {
      {"lblNameOfEvent", "Name Of Task\\Event:"},
      {"lblDescription", "Description:"},
      {"lblComments", "Comments:"},
      {"chkSelectTimeRange", "Select Time Range"},
      {"FraFrom", "At"},
      {"FraTo", ""},
      {"lblMonth(0)", "Month:"},
      {"lblDate(0)", "Date:"},
      {"lblCentury(0)", "Choose Century(Opt):"},
      {"lblYear(0)", "Choose Year(Opt):"},
      {"lblHour(1)", "Hour:"},
      {"lblMinute(1)", "Minute:"},
      {"fraPerson", "Group Member"},
      {"optExistingPerson", "Select An Existing Member"},
      {"optEnterNameOfNewPerson", "Enter Name Of New Member"},
      {"lblColor", "Task Color:"},
      {"cmdSelect", "Select..."},
      {"fraReminder", "Reminder"},
      {"optOn", "On"},
      {"optOff", "Off"},
      {"cmdSet", "Set..."},
      {"cmdAddThisEvent_AppointmentToTheSchedule", "Add This Task\\Event To The Log"},
      {"cmdClose", "Close"},
  };
  for (const auto& [name, caption] : captions) EXPECT_EQ(Caption_Of(name).toStdString(), caption) << name;
  for (const char* name : {"txtNameOfEvent", "txtDescription", "txtComments", "txtNewPerson", "cboExistingPerson",
                           "lblColorChoice", "ComboMonths(1)", "ComboDate(1)", "ComboCentury(1)", "ComboYear(1)",
                           "cboHour(0)", "cboMinute(0)"}) {
    EXPECT_NE(entry().findChild<QWidget*>(name), nullptr) << name;
  }
}

TEST_F(frmAddNewAppointment_ReminderTest, TheBoxesOfferTheirChoicesAndStartEmpty) {
  for (std::size_t moment : {0u, 1u}) {
    const std::vector<std::string> months = Items(entry().ComboMonths[moment]);
    ASSERT_EQ(months.size(), 12u);
    EXPECT_EQ(months.front(), "January");
    EXPECT_EQ(months.back(), "December");
    EXPECT_EQ(Items(entry().ComboDate[moment]).front(), "01");
    EXPECT_EQ(Items(entry().ComboDate[moment]).back(), "31");
    EXPECT_EQ(Items(entry().ComboCentury[moment]).front(), "16");
    EXPECT_EQ(Items(entry().ComboCentury[moment]).back(), "99");
    EXPECT_EQ(Items(entry().ComboYear[moment]).size(), 100u);
    EXPECT_EQ(Items(entry().cboHour[moment]).back(), "23");
    EXPECT_EQ(Items(entry().cboMinute[moment]).size(), 60u);
    for (QComboBox* box : {entry().ComboMonths[moment], entry().ComboDate[moment], entry().ComboCentury[moment],
                           entry().ComboYear[moment], entry().cboHour[moment], entry().cboMinute[moment]}) {
      EXPECT_EQ(box->currentText(), "") << box->objectName().toStdString();
    }
  }
}

TEST_F(frmAddNewAppointment_ReminderTest, AtFirstOneMomentAnExistingMemberAndNoReminder) {
  for (std::size_t moment : {0u, 1u}) {
    const bool start = moment == 0;
    for (QComboBox* box : {entry().ComboMonths[moment], entry().ComboDate[moment], entry().ComboCentury[moment],
                           entry().ComboYear[moment], entry().cboHour[moment], entry().cboMinute[moment]}) {
      EXPECT_EQ(box->isEnabled(), start) << box->objectName().toStdString();
    }
    EXPECT_EQ(entry().lblCentury[moment]->isEnabled(), start);
  }
  EXPECT_EQ(controls::Back_Color(entry().ComboMonths[kTaskFinish]), controls::kButtonFace);
  EXPECT_TRUE(entry().optExistingPerson->isChecked());
  EXPECT_TRUE(entry().cboExistingPerson->isEnabled());
  EXPECT_FALSE(entry().txtNewPerson->isEnabled());
  EXPECT_TRUE(entry().optOff->isChecked());
  EXPECT_FALSE(entry().cmdSet->isEnabled());
}

TEST_F(frmAddNewAppointment_ReminderTest, TheTimeRangeEnablesTheFinishInTheWindowBackgroundColour) {
  Click_Indicator(entry().chkSelectTimeRange);
  EXPECT_EQ(entry().FraFrom->title(), "From");
  EXPECT_EQ(entry().FraTo->title(), "To");
  for (QComboBox* box : {entry().ComboMonths[kTaskFinish], entry().ComboDate[kTaskFinish],
                         entry().ComboCentury[kTaskFinish], entry().ComboYear[kTaskFinish],
                         entry().cboHour[kTaskFinish], entry().cboMinute[kTaskFinish]}) {
    EXPECT_TRUE(box->isEnabled());
    EXPECT_EQ(controls::Back_Color(box), controls::kWindowBackground) << box->objectName().toStdString();
  }
  for (QLabel* label : {entry().lblMonth[kTaskFinish], entry().lblYear[kTaskFinish], entry().lblMinute[kTaskFinish]}) {
    EXPECT_TRUE(label->isEnabled());
  }

  Click_Indicator(entry().chkSelectTimeRange);
  EXPECT_EQ(entry().FraFrom->title(), "At");
  EXPECT_EQ(entry().FraTo->title(), "");
  EXPECT_FALSE(entry().cboHour[kTaskFinish]->isEnabled());
  EXPECT_FALSE(entry().lblHour[kTaskFinish]->isEnabled());
  EXPECT_EQ(controls::Back_Color(entry().cboHour[kTaskFinish]), controls::kButtonFace);
}

TEST_F(frmAddNewAppointment_ReminderTest, TheTwoWaysToTheMemberUncheckEachOther) {
  Click_Indicator(entry().optEnterNameOfNewPerson);
  EXPECT_FALSE(entry().optExistingPerson->isChecked());
  EXPECT_TRUE(entry().txtNewPerson->isEnabled());
  EXPECT_EQ(controls::Back_Color(entry().txtNewPerson), controls::kWindowBackground);
  EXPECT_FALSE(entry().cboExistingPerson->isEnabled());
  EXPECT_EQ(controls::Back_Color(entry().cboExistingPerson), controls::kButtonFace);

  Click_Indicator(entry().optExistingPerson);
  EXPECT_FALSE(entry().optEnterNameOfNewPerson->isChecked());
  EXPECT_TRUE(entry().cboExistingPerson->isEnabled());
  EXPECT_EQ(controls::Back_Color(entry().cboExistingPerson), controls::kWindowBackground);
  EXPECT_FALSE(entry().txtNewPerson->isEnabled());
  EXPECT_EQ(controls::Back_Color(entry().txtNewPerson), controls::kButtonFace);
}

TEST_F(frmAddNewAppointment_ReminderTest, TheMemberBoxIsRefilledFromTheOrganizerWhenItTakesTheFocus) {
  organizer().lstListOfPeople->addItems({"Ben", "Anna"});
  entry().cboExistingPerson->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Items(entry().cboExistingPerson), (std::vector<std::string>{"Anna", "Ben"}));
  EXPECT_EQ(entry().cboExistingPerson->currentText(), "");

  Choose(entry().cboExistingPerson, "Ben");
  entry().txtNameOfEvent->setFocus(Qt::TabFocusReason);
  organizer().lstListOfPeople->addItem("Carl");
  entry().cboExistingPerson->setFocus(Qt::BacktabFocusReason);
  EXPECT_EQ(Items(entry().cboExistingPerson), (std::vector<std::string>{"Anna", "Ben", "Carl"}));
}

TEST_F(frmAddNewAppointment_ReminderTest, SetIsEnabledOnlyWhileTheReminderIsOn) {
  Click_Indicator(entry().optOn);
  EXPECT_TRUE(entry().cmdSet->isEnabled());
  Click_Indicator(entry().optOff);
  EXPECT_FALSE(entry().cmdSet->isEnabled());
}

TEST_F(frmAddNewAppointment_ReminderTest, CloseHidesAndClearsNothing) {
  Type(entry().txtNameOfEvent, "Dentist");
  Click_Indicator(entry().optOn);
  Click(entry().cmdClose);
  EXPECT_FALSE(entry().isVisible());
  Trigger(organizer(), "mnuAddNewTask");
  EXPECT_TRUE(entry().isVisible());
  EXPECT_EQ(entry().txtNameOfEvent->text(), "Dentist");
  EXPECT_TRUE(entry().optOn->isChecked());
}

// ---- A task added --------------------------------------------------------------------------------

TEST_F(frmAddNewAppointment_ReminderTest, ANewMembersMarkerComesBeforeTheTaskByteForByte) {
  // The colour of the worked example, picked in the palette.
  Click(entry().cmdSelect);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&palette()));
  Process_Events();
  QTest::mouseClick(palette().lblColor[35], Qt::LeftButton);
  Click(palette().cmdSelect);
  Enter_Dentist();
  Click_Indicator(entry().optOn);
  Add();

  const std::filesystem::path folder = std::filesystem::path(ORRIVANE_TEST_DATA) / "golden/new_task";
  const testing::GoldenCase golden{"new_member_reminder_on", folder / "new_member_reminder_on"};
  EXPECT_EQ(Read_File(organizer::kScheduleFile), golden.Expected());
  EXPECT_EQ(Read_File(organizer::kTaskReminderFile), golden.Bytes("reminders.tmp"));
}

TEST_F(frmAddNewAppointment_ReminderTest, EmptyCenturyAndYearIn2001GiveCentury20AndYear1) {
  Enter_Dentist();
  Add();
  const std::vector<organizer::ScheduleRecord> tasks = Tasks();
  ASSERT_EQ(tasks.size(), 1u);
  EXPECT_EQ(tasks[0].Start_Century, Value(20));
  EXPECT_EQ(tasks[0].Start_Year, Value(1));
  EXPECT_EQ(tasks[0].Finish_Century, Value(20));
  EXPECT_EQ(tasks[0].Finish_Year, Value(1));
}

TEST_F(frmAddNewAppointment_ReminderTest, AReminderOffStandsInTheLogAndNotInTheReminders) {
  Enter_Dentist();
  Add();
  ASSERT_EQ(Tasks().size(), 1u);
  EXPECT_EQ(Tasks()[0].Reminder_Status, Value(0));
  EXPECT_EQ(Read_File(organizer::kTaskReminderFile), "");
}

TEST_F(frmAddNewAppointment_ReminderTest, TheMessagesOfAnAddedTask) {
  Enter_Dentist();
  Add();
  const std::vector<testing::ShownMessage>& shown = machine().Messages();
  ASSERT_EQ(shown.size(), 2u);
  EXPECT_EQ(shown[0].title, "Confirm");
  EXPECT_EQ(shown[0].text, "Add this task to the schedule?");
  EXPECT_EQ(shown[0].buttons, vbOKCancel);
  EXPECT_EQ(shown[0].icon, vbInformation);
  EXPECT_EQ(shown[1].title, "Task Added");
  EXPECT_EQ(shown[1].text, "The task\\event has been added to the log.");
  EXPECT_EQ(shown[1].buttons, vbOKOnly);
  EXPECT_EQ(shown[1].icon, vbNoIcon);
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
}

TEST_F(frmAddNewAppointment_ReminderTest, CancelAtTheQuestionAddsNothing) {
  Enter_Dentist();
  machine().Answer_Next(vbCancel, "Confirm");
  Click(entry().cmdAddThisEvent_AppointmentToTheSchedule);
  EXPECT_EQ(Read_File(organizer::kScheduleFile), "");
  EXPECT_EQ(entry().txtNameOfEvent->text(), "Dentist");
  EXPECT_TRUE(Members().empty());
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
}

TEST_F(frmAddNewAppointment_ReminderTest, TheWindowIsReadyForTheNextTask) {
  Click_Indicator(entry().chkSelectTimeRange);
  Enter_Dentist();
  Enter_Moment(kTaskFinish, "March", "05", "", "", "15", "00");
  Click_Indicator(entry().optOn);
  Add();
  EXPECT_TRUE(entry().isVisible());
  EXPECT_EQ(entry().txtNameOfEvent->text(), "");
  EXPECT_EQ(entry().txtDescription->text(), "");
  EXPECT_EQ(entry().txtComments->toPlainText(), "");
  EXPECT_EQ(entry().txtNewPerson->text(), "");
  EXPECT_TRUE(entry().optOff->isChecked());
  EXPECT_FALSE(entry().cmdSet->isEnabled());
  EXPECT_EQ(entry().ComboMonths[kTaskStart]->currentText(), "March");
  EXPECT_EQ(entry().cboMinute[kTaskStart]->currentText(), "30");
  EXPECT_EQ(entry().cboHour[kTaskFinish]->currentText(), "15");
  EXPECT_TRUE(entry().chkSelectTimeRange->isChecked());
  EXPECT_TRUE(entry().optEnterNameOfNewPerson->isChecked());
  EXPECT_TRUE(entry().txtNewPerson->isEnabled());
}

TEST_F(frmAddNewAppointment_ReminderTest, TheOrganizerShowsTheNewMemberAndTheTask) {
  Enter_Dentist();
  Add();
  EXPECT_EQ(Members(), (std::vector<std::string>{"Anna"}));
  EXPECT_EQ(controls::Caption(organizer().lblTimePeriod), "Afternoon, March 5, 2001");
  EXPECT_TRUE(organizer().lblChartHistoryList[15]->autoFillBackground()) << "14:30 is column 15 of the first row";

  // With Anna chosen in the Organizer the next task shows in her list at once.
  QListWidget* members = organizer().lstListOfPeople;
  QTest::mouseClick(members->viewport(), Qt::LeftButton, {}, members->visualItemRect(members->item(0)).center());
  Type(entry().txtNameOfEvent, "Haircut");
  Existing_Member("Anna");
  Add();
  const QListWidget* tasks = organizer().lstScheduleList;
  ASSERT_EQ(tasks->count(), 2);
  EXPECT_EQ(tasks->item(0)->text(), "2001, 03Mar 05, 14:30 Dentist, #1");
  EXPECT_EQ(tasks->item(1)->text(), "2001, 03Mar 05, 14:30 Haircut, #2");
  EXPECT_EQ(Markers(), (std::vector<std::string>{"Anna"}));
}

TEST_F(frmAddNewAppointment_ReminderTest, AFreshReminderAfterEachTask) {
  entry().Store_Reminder_Variables("Time_String(0)", "Put", "09:00");
  entry().Store_Reminder_Variables("Reminder_Interval", "Put", 2);
  Enter_Dentist();
  machine().Advance_Seconds(3600);
  Add();
  EXPECT_EQ(entry().Store_Reminder_Variables("Time_String(0)", "Get").text(), "15:05");
  EXPECT_EQ(entry().Store_Reminder_Variables("Reminder_Interval", "Get"), Value(1));
}

TEST_F(frmAddNewAppointment_ReminderTest, TheTaskTakesTheReminderValuesOfTheKeeper) {
  Enter_Dentist();
  Click_Indicator(entry().optOn);
  const std::pair<const char*, Value> set[] = {
      {"Date_String(0)", "Before The Start Time of Task"}, {"Time_String(0)", "By 1 Days, 0 Hrs, 0 Min"},
      {"Date_String(1)", "March 5, 2001"},                 {"Time_String(1)", "14:00"},
      {"Reminder_Interval", 2},                            {"Interval_Days", "0"},
      {"Interval_Hours", "2"},                             {"Interval_Minutes", "30"}};
  for (const auto& [name, value] : set) entry().Store_Reminder_Variables(name, "Put", value);
  Add();
  const std::string reminders = Read_File(organizer::kTaskReminderFile);
  EXPECT_NE(reminders.find("1,\"Before The Start Time of Task\",\"By 1 Days, 0 Hrs, 0 Min\",\"March 5, 2001\","
                           "\"14:00\"\r\n2,\"0\",\"2\",\"30\"\r\n"),
            std::string::npos)
      << reminders;
}

// ---- Members -----------------------------------------------------------------------------------

TEST_F(frmAddNewAppointment_ReminderTest, ANewNameEqualToAMembersCreatesNoSecondMarker) {
  Enter_Dentist();
  Add();
  Type(entry().txtNameOfEvent, "Haircut");
  New_Member("Anna");
  Add();
  EXPECT_EQ(Markers(), (std::vector<std::string>{"Anna"}));
  ASSERT_EQ(Tasks().size(), 2u);
  EXPECT_EQ(Tasks()[1].Person_Name.text(), "Anna");
  EXPECT_EQ(Tasks()[1].Record_Number, Value(2));
  EXPECT_EQ(Members(), (std::vector<std::string>{"Anna"}));
}

TEST_F(frmAddNewAppointment_ReminderTest, NamesDifferingOnlyInCaseAreTwoMembers) {
  Enter_Dentist();
  Add();
  Type(entry().txtNameOfEvent, "Haircut");
  New_Member("anna");
  Add();
  EXPECT_EQ(Markers(), (std::vector<std::string>{"Anna", "anna"}));
  EXPECT_EQ(Members().size(), 2u);
}

TEST_F(frmAddNewAppointment_ReminderTest, ANewNameLosesItsBlanks) {
  Enter_Dentist();
  New_Member("  Anna  ");
  Add();
  EXPECT_EQ(Markers(), (std::vector<std::string>{"Anna"}));
  EXPECT_EQ(Tasks()[0].Person_Name.text(), "Anna");
}

TEST_F(frmAddNewAppointment_ReminderTest, AnExistingMemberGetsNoMarker) {
  organizer::Generate_Person_Marker_Record(organizer::kScheduleFile, "Ben");
  organizer().Refresh_Organizer_Screen(organizer::kFormActivate);
  Type(entry().txtNameOfEvent, "Dentist");
  Enter_Moment(kTaskStart, "March", "05", "", "", "14", "30");
  Existing_Member("Ben");
  Add();
  EXPECT_EQ(Markers(), (std::vector<std::string>{"Ben"}));
  EXPECT_EQ(Tasks()[0].Person_Name.text(), "Ben");
  EXPECT_EQ(Tasks()[0].Record_Number, Value(1));
}

TEST_F(frmAddNewAppointment_ReminderTest, ANameOfBlanksForTheNewMemberIsNoMember) {
  Enter_Dentist();
  New_Member("   ");
  Add_Refused("No Group Member Specified");
  Expect_Only_Message("No Group Member Specified", "Please specify who this task is for.");
  EXPECT_EQ(Read_File(organizer::kScheduleFile), "");
  EXPECT_EQ(entry().txtNameOfEvent->text(), "Dentist");
}

TEST_F(frmAddNewAppointment_ReminderTest, ATaskNameOfBlanksIsStoredWithItsBlanks) {
  Enter_Dentist();
  Type(entry().txtNameOfEvent, "   ");
  Add();
  ASSERT_EQ(Tasks().size(), 1u);
  EXPECT_EQ(Tasks()[0].Task_Name.text(), "   ");
}

TEST_F(frmAddNewAppointment_ReminderTest, CommentsKeepTheirLineBreaks) {
  Enter_Dentist();
  entry().txtComments->clear();
  QTest::keyClicks(entry().txtComments, "Bring X-rays");
  QTest::keyClick(entry().txtComments, Qt::Key_Return);
  QTest::keyClicks(entry().txtComments, "and the card");
  Add();
  EXPECT_EQ(Tasks()[0].Task_Comments.text(), "Bring X-rays\r\nand the card");
}

// ---- Refused tasks ----------------------------------------------------------------------------

TEST_F(frmAddNewAppointment_ReminderTest, PressingTwiceWithTheSameEntriesIsRefusedForTheName) {
  organizer::Generate_Person_Marker_Record(organizer::kScheduleFile, "Anna");
  organizer().Refresh_Organizer_Screen(organizer::kFormActivate);
  Type(entry().txtNameOfEvent, "Dentist");
  Enter_Moment(kTaskStart, "March", "05", "", "", "14", "30");
  Existing_Member("Anna");
  Add();
  machine().Clear_Messages();
  Add_Refused("No Event Title Specified");
  Expect_Only_Message("No Event Title Specified", "Please be sure the task is identified in the 'Name Of Task' box.");
  EXPECT_EQ(Tasks().size(), 1u);
}

TEST_F(frmAddNewAppointment_ReminderTest, ANewMembersNameIsClearedWithTheTasksName) {
  Enter_Dentist();
  Add();
  machine().Clear_Messages();
  Add_Refused("Fields Missing Data");
  Expect_Only_Message("Fields Missing Data", "Required fields left blank or contain invalid entries.");
}

TEST_F(frmAddNewAppointment_ReminderTest, StartAndFinishIdenticalToTheMinuteAreAccepted) {
  Click_Indicator(entry().chkSelectTimeRange);
  Enter_Dentist();
  Enter_Moment(kTaskFinish, "March", "05", "20", "01", "14", "30");
  Add();
  ASSERT_EQ(Tasks().size(), 1u);
  EXPECT_EQ(Tasks()[0].Time_Range_Flag, Value(1));
}

TEST_F(frmAddNewAppointment_ReminderTest, TheFinishOfARangeIsItsOwn) {
  Click_Indicator(entry().chkSelectTimeRange);
  Enter_Dentist();
  Enter_Moment(kTaskFinish, "April", "02", "20", "02", "09", "15");
  Add();
  const organizer::ScheduleRecord task = Tasks().at(0);
  EXPECT_EQ(task.Finish_Month.text(), "April");
  EXPECT_EQ(task.Finish_Date.text(), "02");
  EXPECT_EQ(task.Finish_Year, Value(2));
  EXPECT_EQ(task.Finish_Hour.text(), "09");
  EXPECT_EQ(task.Finish_Minute.text(), "15");
}

// Each code that the window can reach: a task with a time range, entered box by box (an empty
// text leaves its box empty), and the title of the message that refuses it.
using MomentTexts = std::array<const char*, 6>;  // month, date, century, year, hour, minute
struct Refusal {
  const char* what;
  MomentTexts start;
  MomentTexts finish;
  const char* name;
  const char* member;
  const char* title;
  const char* text = nullptr;  // checked where given
};

constexpr MomentTexts kStart{"March", "05", "20", "01", "14", "30"};
constexpr MomentTexts kFinish{"March", "05", "20", "01", "15", "00"};

const Refusal kRefusals[] = {
    {"no start month", {"", "05", "20", "01", "14", "30"}, kFinish, "Dentist", "Anna", "No Start Month Selected"},
    {"no start date", {"March", "", "20", "01", "14", "30"}, kFinish, "Dentist", "Anna", "No Start Date Selected"},
    {"no start hour", {"March", "05", "20", "01", "", "30"}, kFinish, "Dentist", "Anna", "No Begin Hour Selected"},
    {"no start minute", {"March", "05", "20", "01", "14", ""}, kFinish, "Dentist", "Anna", "No Begin Minute Selected"},
    {"no finish month", kStart, {"", "05", "20", "01", "15", "00"}, "Dentist", "Anna", "No Finish Month Selected"},
    {"no finish date", kStart, {"March", "", "20", "01", "15", "00"}, "Dentist", "Anna", "No Finish Date Selected"},
    {"no finish hour", kStart, {"March", "05", "20", "01", "", "00"}, "Dentist", "Anna", "No Finish Hour Selected"},
    {"no finish minute", kStart, {"March", "05", "20", "01", "15", ""}, "Dentist", "Anna", "No Finish Minute Selected"},
    {"a start item and a finish item", {"March", "05", "20", "01", "14", ""}, {"March", "05", "20", "01", "", "00"},
     "Dentist", "Anna", "Fields Missing Data"},
    {"a finish before the start", kStart, {"March", "05", "20", "01", "14", "29"}, "Dentist", "Anna", "Invalid Date"},
    {"no member", kStart, kFinish, "Dentist", "", "No Group Member Specified"},
    {"no name", kStart, kFinish, "", "Anna", "No Event Title Specified"},
    {"the start beyond its month", {"April", "31", "20", "01", "14", "30"}, {"May", "01", "20", "01", "14", "30"},
     "Dentist", "Anna", "Invalid Date Selection"},
    {"the finish beyond its month", kStart, {"April", "31", "20", "01", "14", "30"}, "Dentist", "Anna",
     "Invalid Date Selection"},
    {"both beyond their months", {"April", "31", "20", "01", "14", "30"}, {"June", "31", "20", "01", "14", "30"},
     "Dentist", "Anna", "Invalid Date Selections"},
    // No particular message for two missing items at once.
    {"no month and no hour", {"", "05", "", "", "", "30"}, kFinish, "Dentist", "Anna", "Fields Missing Data",
     "Required fields left blank or contain invalid entries."},
    // Missing items outrank impossible dates.
    {"February 30 with an empty minute", {"February", "30", "", "", "14", ""}, kFinish, "Dentist", "Anna",
     "No Begin Minute Selected", "Please select the minute for which the task is to begin."},
    // The year is tested in the Gregorian style.
    {"February 29 of 1900", {"February", "29", "19", "00", "14", "30"}, kFinish, "Dentist", "Anna",
     "Invalid Date Selection", "February only has 28 days in it for the year you selected."},
};

class RefusalTest : public testing::NewTaskWindowTest, public ::testing::WithParamInterface<Refusal> {
 protected:
  void SetUp() override {
    NewTaskWindowTest::SetUp();
    Open_Entry();
  }
  void Enter(int moment, const MomentTexts& texts) {
    Enter_Moment(moment, texts[0], texts[1], texts[2], texts[3], texts[4], texts[5]);
  }
};

TEST_P(RefusalTest, ShowsItsMessageAndAddsNothing) {
  const Refusal& refusal = GetParam();
  Click_Indicator(entry().chkSelectTimeRange);
  Type(entry().txtNameOfEvent, refusal.name);
  Enter(kTaskStart, refusal.start);
  Enter(kTaskFinish, refusal.finish);
  New_Member(refusal.member);

  Add_Refused(refusal.title);
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(machine().Messages()[0].title, refusal.title);
  EXPECT_EQ(machine().Messages()[0].buttons, vbOKOnly);
  EXPECT_EQ(machine().Messages()[0].icon, vbExclamation);
  if (refusal.text != nullptr) {
    EXPECT_EQ(machine().Messages()[0].text, refusal.text);
  }
  EXPECT_EQ(Read_File(organizer::kScheduleFile), "");
  EXPECT_EQ(entry().txtNameOfEvent->text().toStdString(), refusal.name) << "the window stays as it was";
}

INSTANTIATE_TEST_SUITE_P(EachCode, RefusalTest, ::testing::ValuesIn(kRefusals),
                         [](const ::testing::TestParamInfo<Refusal>& info) {
                           std::string name = info.param.what;
                           std::replace(name.begin(), name.end(), ' ', '_');
                           return name;
                         });

// ---- The colour of the next task ------------------------------------------------------------

TEST_F(frmAddNewAppointment_ReminderTest, TheNextColourIsDrawnAgainWhileItIsLightGrey) {
  Enter_Dentist();
  machine().Script_Rnd(0.06);  // 3: light grey
  machine().Script_Rnd(0.5);   // 25
  Add();
  EXPECT_EQ(Colour_Choice(), organizer::kPalette[25]);
  EXPECT_EQ(machine().Last_Seed(), 14 * 3600 + 5 * 60 + 9) << "seeded from the seconds since midnight";
}

TEST_F(frmAddNewAppointment_ReminderTest, TheTaskTakesTheColourOnShow) {
  const unsigned shown = Colour_Choice();
  Enter_Dentist();
  Add();
  EXPECT_EQ(Tasks()[0].Color_Code, Value(static_cast<long long>(shown)));
}

class FirstColourTest : public testing::NewTaskWindowTest {};

TEST_F(FirstColourTest, TheWindowsFirstColourFollowsTheSameRule) {
  machine().Script_Rnd(0.07);  // 3: light grey
  machine().Script_Rnd(0.99);  // 49
  Open_Entry();
  EXPECT_EQ(Colour_Choice(), organizer::kPalette[49]);
}

}  // namespace
}  // namespace orrivane
