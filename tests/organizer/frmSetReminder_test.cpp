// Setting a task's reminder: the window's controls, the three kinds, the period, fixed moments
// from the boxes and the clock, the hand-over to the keeper of the window that opened it, from
// both callers in turn.
#include "organizer/frmSetReminder.h"

#include "core/colours.h"
#include "organizer/set_reminder_window_test.h"

namespace orrivane {
namespace {

using controls::Array_Name;
using controls::Caption;
using organizer::ScheduleRecord;
using testing::SetReminderWindowTest;

constexpr char kSeriesRefusal[] =
    "You have choosen to be reminded intermittently about the current task. Please specify how often you would "
    "like the reminders to occur.";

class frmSetReminderTest : public SetReminderWindowTest {
 protected:
  // Anna's dentist appointment with its reminder on: a series from the first moment every 2
  // hours and 30 minutes, from 08:00 on March 1 to 14:00 on March 5, 2001.
  static ScheduleRecord Task_With_Series() {
    ScheduleRecord task = Task_At(7, "Anna", 2001, "March", "05", "14", "30", "Dentist");
    task.Reminder_Status = 1;
    task.Reminder_Interval = 2;
    task.Date_String[0] = "March 1, 2001";
    task.Time_String[0] = "08:00";
    task.Date_String[1] = "March 5, 2001";
    task.Time_String[1] = "14:00";
    task.Interval_Days = 0;
    task.Interval_Hours = 2;
    task.Interval_Minutes = 30;
    return task;
  }

  // The six boxes of a moment.
  std::vector<QComboBox*> Moment_Boxes(int index) {
    std::vector<QComboBox*> boxes;
    for (const char* name : {"ComboMonths", "ComboDate", "ComboCentury", "ComboYear", "cboHour", "cboMinute"}) {
      boxes.push_back(Box(reminder(), name, index));
    }
    return boxes;
  }
  std::vector<QWidget*> Second_Moment_Controls() {
    std::vector<QWidget*> controls_;
    for (const char* name : {"fraDateTimeSelection", "LblSelectDate", "LblCentury", "LblYear", "lblHour", "lblMin",
                             "cmdUseTaskTime", "cmdSelect", "lblDateLabel", "lblDate", "lblTimeLabel", "lblTime"}) {
      controls_.push_back(Control<QWidget>(reminder(), Array_Name(name, 1)));
    }
    for (QComboBox* box : Moment_Boxes(1)) controls_.push_back(box);
    return controls_;
  }
  std::vector<QComboBox*> Interval_Boxes() {
    std::vector<QComboBox*> boxes;
    for (int box = 0; box < organizer::kAmountBoxes; ++box) boxes.push_back(Box(reminder(), "cboInterval", box));
    return boxes;
  }
  std::vector<QWidget*> Interval_Controls() {
    std::vector<QWidget*> controls_{reminder().FraSelectInterval, reminder().lblReminderInterval};
    for (int box = 0; box < organizer::kAmountBoxes; ++box) {
      controls_.push_back(Box(reminder(), "cboInterval", box));
      controls_.push_back(Label(reminder(), "lblInterval", box));
    }
    for (int count = 0; count < 3; ++count) {
      controls_.push_back(Label(reminder(), "lblRILabel", count));
      controls_.push_back(Label(reminder(), "lblRI", count));
    }
    return controls_;
  }
  void Expect_Enabled(const std::vector<QWidget*>& controls_, bool enabled) {
    for (QWidget* control : controls_) EXPECT_EQ(control->isEnabled(), enabled) << control->objectName().toStdString();
  }
  void Expect_Box_Colour(const std::vector<QComboBox*>& boxes, unsigned colour) {
    for (QComboBox* box : boxes) EXPECT_EQ(controls::Back_Color(box), colour) << box->objectName().toStdString();
  }

  // The eight values of a keeper, in the order of the record.
  template <class Keeper>
  static std::vector<std::string> Values_Of(Keeper keeper) {
    std::vector<std::string> values;
    for (std::string_view name : organizer::ReminderVariables::kNames) values.push_back(keeper(name).text());
    return values;
  }
  std::vector<std::string> New_Task_Values() {
    return Values_Of([this](std::string_view name) { return New_Task(std::string(name).c_str()); });
  }
  std::vector<std::string> Task_Information_Values() {
    return Values_Of([this](std::string_view name) { return Task_Information(std::string(name).c_str()); });
  }

  void Expect_Message(const char* title, const char* text, int icon) {
    Expect_Only_Message(Message{title, text, vbOKOnly, icon});
  }
};

// ---- The controls ------------------------------------------------------------------------------

TEST_F(frmSetReminderTest, CaptionsOfTheWindow) {
  frmSetReminder& window = reminder();
  EXPECT_EQ(window.windowTitle().toStdString(), "Set Reminder");
  EXPECT_EQ(window.Frame1->title().toStdString(), "Remind Me");
  EXPECT_EQ(window.optOnlyOneReminder->text().toStdString(), "With Only One Reminder At One Time Specified Below");
  EXPECT_EQ(window.optIntermittently1->text().toStdString(),
            "Intermittently With The First Reminder At the Begin Time Specified Below");
  EXPECT_EQ(window.optIntermittently2->text().toStdString(),
            "Intermittently With The Last Reminder At the Ending Time Specified Below");
  EXPECT_EQ(window.FraSelectInterval->title().toStdString(), "I Want To Be Reminded Every");
  const char* interval_captions[] = {"Minute(s) and", "Hour(s) and", "Day(s)  +", "Days"};
  for (int box = 0; box < 4; ++box) EXPECT_EQ(Caption_Of(window, "lblInterval", box), interval_captions[box]);
  EXPECT_EQ(Caption(window.lblReminderInterval), "Reminder Interval:");
  const char* count_captions[] = {"Minutes:", "Hours:", "Days:"};
  for (int count = 0; count < 3; ++count) EXPECT_EQ(Caption_Of(window, "lblRILabel", count), count_captions[count]);
  for (int index = 0; index < 2; ++index) {
    EXPECT_EQ(Control<QPushButton>(window, Array_Name("cmdSelect", index))->text().toStdString(), "Select");
    EXPECT_EQ(Control<QPushButton>(window, Array_Name("cmdUseTaskTime", index))->text().toStdString(),
              "Use Task Time");
    EXPECT_EQ(Caption_Of(window, "lblDateLabel", index), "Date:");
    EXPECT_EQ(Caption_Of(window, "lblTimeLabel", index), "Time:");
  }
  EXPECT_EQ(window.cmdOK->text().toStdString(), "OK");
  EXPECT_EQ(window.cmdSet->text().toStdString(), "SET");
  EXPECT_EQ(window.cmdClose->text().toStdString(), "Close");
}

TEST_F(frmSetReminderTest, ListsOfTheBoxes) {
  frmSetReminder& window = reminder();
  const std::vector<std::string> minutes = Items(Box(window, "cboInterval", 0));
  ASSERT_EQ(minutes.size(), 60u);
  EXPECT_EQ(minutes.front(), "0");
  EXPECT_EQ(minutes.back(), "59");
  EXPECT_EQ(Items(Box(window, "cboInterval", 1)).back(), "23");
  EXPECT_EQ(Items(Box(window, "cboInterval", 2)).size(), 100u);
  const std::vector<std::string> hundreds = Items(Box(window, "cboInterval", 3));
  ASSERT_EQ(hundreds.size(), 19u);
  EXPECT_EQ(hundreds[1], "100");
  EXPECT_EQ(hundreds.back(), "1800");
  for (int index = 0; index < 2; ++index) {
    const std::vector<std::string> months = Items(Box(window, "ComboMonths", index));
    ASSERT_EQ(months.size(), 12u);
    EXPECT_EQ(months.front(), "January");
    EXPECT_EQ(months.back(), "December");
    const std::vector<std::string> dates = Items(Box(window, "ComboDate", index));
    ASSERT_EQ(dates.size(), 31u);
    EXPECT_EQ(dates.front(), "01");
    EXPECT_EQ(dates.back(), "31");
    EXPECT_EQ(Items(Box(window, "ComboCentury", index)), (std::vector<std::string>{"19", "20", "21"}));
    const std::vector<std::string> years = Items(Box(window, "ComboYear", index));
    ASSERT_EQ(years.size(), 100u);
    EXPECT_EQ(years.front(), "00");
    EXPECT_EQ(years.back(), "99");
    EXPECT_EQ(Items(Box(window, "cboHour", index)).back(), "23");
    EXPECT_EQ(Items(Box(window, "cboMinute", index)).size(), 60u);
  }
  // Every box starts empty and can be typed into.
  for (QComboBox* box : window.findChildren<QComboBox*>()) {
    EXPECT_EQ(box->currentText(), "") << box->objectName().toStdString();
    EXPECT_TRUE(box->isEditable()) << box->objectName().toStdString();
  }
}

// ---- The kinds of reminder ---------------------------------------------------------------------

TEST_F(frmSetReminderTest, OneReminderHasNoSecondMomentAndNoPeriod) {
  Open_From_New_Task();
  Click_Reminder_Option("optIntermittently1");
  Click_Reminder_Option("optOnlyOneReminder");
  EXPECT_EQ(Frame_Caption(0), "Date\\Time Of Reminder");
  EXPECT_EQ(Frame_Caption(1), "");
  Expect_Enabled(Second_Moment_Controls(), false);
  Expect_Enabled(Interval_Controls(), false);
  Expect_Box_Colour(Moment_Boxes(1), colours::kScrollBars);
  Expect_Box_Colour(Interval_Boxes(), colours::kScrollBars);
  // The first moment stays at hand.
  Expect_Enabled({Box(reminder(), "ComboMonths", 0), reminder().cmdSelect[0], reminder().cmdUseTaskTime[0]}, true);
}

TEST_F(frmSetReminderTest, ASeriesFromTheFirstMoment) {
  Open_From_New_Task();
  Click_Reminder_Option("optIntermittently1");
  EXPECT_EQ(Frame_Caption(0), "First Message At");
  EXPECT_EQ(Frame_Caption(1), "Last Message Before");
  Expect_Enabled(Second_Moment_Controls(), true);
  Expect_Enabled(Interval_Controls(), true);
  Expect_Box_Colour(Moment_Boxes(1), colours::kWindowBackground);
  Expect_Box_Colour(Interval_Boxes(), colours::kWindowBackground);
}

TEST_F(frmSetReminderTest, ASeriesToTheLastMoment) {
  Open_From_New_Task();
  Click_Reminder_Option("optIntermittently2");
  EXPECT_EQ(Frame_Caption(0), "First Message After");
  EXPECT_EQ(Frame_Caption(1), "Last Message At");
  Expect_Enabled(Second_Moment_Controls(), true);
  Expect_Enabled(Interval_Controls(), true);
}

TEST_F(frmSetReminderTest, TheOpeningSetsTheOptionOfTheKindKept) {
  Open_From_New_Task();
  Click_Reminder_Option("optIntermittently2");
  Choose_Interval(0, "1");
  Trigger(reminder(), "cmdOK");
  Open_From_Task_Information(Task_With_Series());
  EXPECT_TRUE(reminder().optIntermittently1->isChecked());
  Trigger(reminder(), "cmdClose");
  Open_From_New_Task();
  EXPECT_TRUE(reminder().optIntermittently2->isChecked());
  EXPECT_EQ(Frame_Caption(1), "Last Message At");
  Expect_Enabled(Second_Moment_Controls(), true);
}

// ---- The period --------------------------------------------------------------------------------

TEST_F(frmSetReminderTest, MinutesAndHoursStandAsChosen) {
  Open_From_New_Task();
  Click_Reminder_Option("optIntermittently1");
  Choose_Interval(0, "30");
  Choose_Interval(1, "2");
  EXPECT_EQ(Interval_Count(0), "30");
  EXPECT_EQ(Interval_Count(1), "2");
  EXPECT_EQ(Interval_Count(2), "0");
}

TEST_F(frmSetReminderTest, FiftyDaysAnd1800Are1850) {
  Open_From_New_Task();
  Click_Reminder_Option("optIntermittently1");
  Choose_Interval(2, "50");
  EXPECT_EQ(Interval_Count(2), "50");  // the hundreds still empty count 0
  Choose_Interval(3, "1800");
  EXPECT_EQ(Interval_Count(2), "1850");
}

TEST_F(frmSetReminderTest, HundredsAloneAreTheDays) {
  Open_From_New_Task();
  Click_Reminder_Option("optIntermittently2");
  Choose_Interval(3, "100");
  EXPECT_EQ(Interval_Count(2), "100");
}

TEST_F(frmSetReminderTest, TypingIntoAPeriodBoxChoosesNothingYet) {
  Open_From_New_Task();
  Click_Reminder_Option("optIntermittently1");
  Type_Into(Box(reminder(), "cboInterval", 0), "45");
  EXPECT_EQ(Interval_Count(0), "0");
  // The typed days count when the hundreds are chosen.
  Type_Into(Box(reminder(), "cboInterval", 2), "7");
  Choose_Interval(3, "200");
  EXPECT_EQ(Interval_Count(2), "207");
}

// ---- Fixed moments -----------------------------------------------------------------------------

TEST_F(frmSetReminderTest, EmptyBoxesGiveThePresent) {
  Open_From_New_Task();
  machine().Set_Now(2001, 3, 5, 9, 7, 30);
  Trigger(reminder(), "cmdSelect(0)");
  EXPECT_EQ(Date_Of(0), "March 5, 2001");
  EXPECT_EQ(Time_Of(0), "09:07");
}

TEST_F(frmSetReminderTest, AnHourWithAnEmptyMinuteIsFull) {
  Open_From_New_Task();
  Select_Moment(0, "", "", "", "", "09", "");
  EXPECT_EQ(Date_Of(0), "March 5, 2001");
  EXPECT_EQ(Time_Of(0), "09:00");
}

TEST_F(frmSetReminderTest, AChosenMomentLosesTheDaysLeadingZero) {
  Open_From_New_Task();
  Click_Reminder_Option("optIntermittently1");
  Select_Moment(1, "December", "09", "21", "99", "23", "59");
  EXPECT_EQ(Date_Of(1), "December 9, 2199");
  EXPECT_EQ(Time_Of(1), "23:59");
}

TEST_F(frmSetReminderTest, AMomentChosenFromTheListsWithTheKeyboard) {
  Open_From_New_Task();
  Choose(reminder(), Box(reminder(), "ComboMonths", 0), "April");
  Choose(reminder(), Box(reminder(), "ComboDate", 0), "02");
  Choose(reminder(), Box(reminder(), "cboHour", 0), "07");
  Click(reminder().cmdSelect[0]);
  EXPECT_EQ(Date_Of(0), "April 2, 2001");
  EXPECT_EQ(Time_Of(0), "07:00");
}

TEST_F(frmSetReminderTest, TheClockIsReadOnceForDateAndTime) {
  Open_From_New_Task();
  machine().Set_Now(2001, 12, 31, 23, 59, 59);
  machine().Advance_On_Each_Reading(2000);
  const int readings = machine().Clock_Readings();
  Trigger(reminder(), "cmdSelect(0)");
  EXPECT_EQ(machine().Clock_Readings() - readings, 1);
  EXPECT_EQ(Date_Of(0), "December 31, 2001");
  EXPECT_EQ(Time_Of(0), "23:59");
}

TEST_F(frmSetReminderTest, February30Of2001IsRefused) {
  Open_From_New_Task();
  Select_Moment(0, "May", "01", "20", "02", "10", "00");
  machine().Answer_Next(vbOK, "Invalid Date");
  Select_Moment(0, "February", "30", "20", "01", "10", "00");
  Expect_Message("Invalid Date", "February of 2001 only has 28 days in it.", vbExclamation);
  EXPECT_EQ(Date_Of(0), "May 1, 2002");
  EXPECT_EQ(Time_Of(0), "10:00");
  EXPECT_TRUE(reminder().isVisible());
}

TEST_F(frmSetReminderTest, April31IsRefused) {
  Open_From_New_Task();
  machine().Answer_Next(vbOK, "Invalid Date");
  Select_Moment(0, "April", "31", "", "", "", "");
  Expect_Message("Invalid Date", "April only has 30 days in it.", vbExclamation);
  EXPECT_EQ(Date_Of(0), "March 5, 2001");  // as the opening copied it in
}

TEST_F(frmSetReminderTest, February29Of2000IsAccepted) {
  Open_From_New_Task();
  Select_Moment(0, "February", "29", "20", "00", "12", "00");
  EXPECT_EQ(Date_Of(0), "February 29, 2000");
}

// ---- Setting the reminder ----------------------------------------------------------------------

TEST_F(frmSetReminderTest, ASeriesWithoutAPeriodIsRefused) {
  Open_From_New_Task();
  Click_Reminder_Option("optIntermittently1");
  Select_Moment(1, "March", "06", "", "", "12", "00");
  const std::vector<std::string> kept = New_Task_Values();
  machine().Answer_Next(vbOK, "No Reminder Interval Selected");
  Trigger(reminder(), "cmdOK");
  Expect_Message("No Reminder Interval Selected", kSeriesRefusal, vbExclamation);
  EXPECT_TRUE(reminder().isVisible());
  EXPECT_EQ(New_Task_Values(), kept);

  machine().Answer_Next(vbOK, "No Reminder Interval Selected");
  Click_Reminder_Option("optIntermittently2");
  Trigger(reminder(), "cmdSet");
  Expect_Message("No Reminder Interval Selected", kSeriesRefusal, vbExclamation);
  EXPECT_EQ(New_Task_Values(), kept);
}

TEST_F(frmSetReminderTest, OneReminderNeedsNoPeriod) {
  Open_From_New_Task();
  Select_Moment(0, "March", "07", "", "", "08", "15");
  Trigger(reminder(), "cmdOK");
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_FALSE(reminder().isVisible());
  EXPECT_EQ(New_Task_Values(), (std::vector<std::string>{"March 7, 2001", "08:15", "March 5, 2001", "14:05", "1",
                                                         "0", "0", "0"}));
}

TEST_F(frmSetReminderTest, SetSaysSoAndTheWindowStays) {
  Open_From_New_Task();
  Click_Reminder_Option("optIntermittently2");
  Choose_Interval(1, "1");
  machine().Answer_Next(vbOK, "Reminder Set");
  Trigger(reminder(), "cmdSet");
  Expect_Message("Reminder Set", "Reminder has been set.", vbNoIcon);
  EXPECT_TRUE(reminder().isVisible());
  EXPECT_EQ(New_Task("Reminder_Interval"), Value(3));
  EXPECT_EQ(New_Task("Interval_Hours"), Value("1"));
}

TEST_F(frmSetReminderTest, EnterPressesOKWhereItHasTheFocus) {
  Open_From_New_Task();
  reminder().cmdOK->setFocus();
  Press_Keys(reminder(), QKeySequence(Qt::Key_Return));
  EXPECT_FALSE(reminder().isVisible());
}

TEST_F(frmSetReminderTest, CloseStoresNothing) {
  Open_From_New_Task();
  Select_Moment(0, "June", "01", "", "", "", "");
  Click_Reminder_Option("optIntermittently1");
  Choose_Interval(0, "5");
  const std::vector<std::string> kept = New_Task_Values();
  Trigger(reminder(), "cmdClose");
  EXPECT_FALSE(reminder().isVisible());
  EXPECT_EQ(New_Task_Values(), kept);
}

TEST_F(frmSetReminderTest, TheCloseBoxHidesItAndStoresNothing) {
  Open_From_New_Task();
  frmSetReminder* before = &reminder();
  Select_Moment(0, "June", "01", "", "", "", "");
  const std::vector<std::string> kept = New_Task_Values();
  reminder().close();  // the frame's close box
  EXPECT_FALSE(reminder().isVisible());
  EXPECT_EQ(New_Task_Values(), kept);
  Open_From_New_Task();
  EXPECT_EQ(&reminder(), before);
  EXPECT_EQ(Box(reminder(), "ComboMonths", 0)->currentText(), "June");
}

TEST_F(frmSetReminderTest, ThePastAndABackwardSeriesAreAccepted) {
  Open_From_New_Task();
  Click_Reminder_Option("optIntermittently1");
  Select_Moment(0, "March", "05", "20", "01", "12", "00");
  Select_Moment(1, "January", "01", "19", "99", "00", "00");
  Choose_Interval(0, "10");
  Trigger(reminder(), "cmdOK");
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(New_Task("Date_String(1)"), Value("January 1, 1999"));
}

// ---- The callers -------------------------------------------------------------------------------

TEST_F(frmSetReminderTest, TheOpeningCopiesTheCallersValuesIn) {
  Open_From_Task_Information(Task_With_Series());
  EXPECT_EQ(reminder().Store_Calling_Form_Origin("Get"), Value("frmTaskInformation"));
  EXPECT_EQ(Date_Of(0), "March 1, 2001");
  EXPECT_EQ(Time_Of(0), "08:00");
  EXPECT_EQ(Date_Of(1), "March 5, 2001");
  EXPECT_EQ(Time_Of(1), "14:00");
  EXPECT_TRUE(reminder().optIntermittently1->isChecked());
  EXPECT_EQ(Interval_Count(0), "30");
  EXPECT_EQ(Interval_Count(1), "2");
  EXPECT_EQ(Interval_Count(2), "0");
  EXPECT_TRUE(QTest::qWaitForWindowActive(&reminder()));
}

TEST_F(frmSetReminderTest, ChangeIsAvailableOnlyWhileTheReminderIsOn) {
  ScheduleRecord task = Task_With_Series();
  task.Reminder_Status = 0;
  View_Task(task);
  EXPECT_FALSE(information().cmdChange1->isEnabled());
}

TEST_F(frmSetReminderTest, SettingFromTheTaskInformationChangesItsRecord) {
  Open_From_Task_Information(Task_With_Series());
  EXPECT_FALSE(information().Record_Changed());
  Click_Reminder_Option("optIntermittently2");
  Choose_Interval(2, "3");
  Trigger(reminder(), "cmdOK");
  EXPECT_FALSE(reminder().isVisible());
  EXPECT_EQ(Task_Information_Values(), (std::vector<std::string>{"March 1, 2001", "08:00", "March 5, 2001", "14:00",
                                                                 "3", "3", "2", "30"}));
  EXPECT_TRUE(information().Record_Changed());
  EXPECT_EQ(Caption(information().lblMethod), organizer::kSeriesToSpecifiedTimeMethod);
  EXPECT_EQ(Caption(information().lblInterval), "3 Days, 2 Hrs, 30 Min");
}

TEST_F(frmSetReminderTest, TheTaskInformationOffersTheSetReminderForSavingOnClose) {
  Open_From_Task_Information(Task_With_Series());
  Click_Reminder_Option("optOnlyOneReminder");
  Trigger(reminder(), "cmdOK");
  ASSERT_TRUE(information().Record_Changed());
  machine().Answer_Next(vbNo, "Save Changes");
  Trigger(information(), "cmdClose");
  EXPECT_FALSE(information().isVisible());
  EXPECT_FALSE(information().Record_Changed());
}

TEST_F(frmSetReminderTest, CloseLeavesTheTaskInformationUnchanged) {
  Open_From_Task_Information(Task_With_Series());
  Click_Reminder_Option("optOnlyOneReminder");
  Trigger(reminder(), "cmdClose");
  EXPECT_FALSE(information().Record_Changed());
  EXPECT_EQ(Caption(information().lblMethod), organizer::kSeriesFromSpecifiedTimeMethod);
  EXPECT_EQ(Task_Information("Reminder_Interval"), Value(2));
}

TEST_F(frmSetReminderTest, BothCallersInTurnKeepTheirOwnValues) {
  Open_From_New_Task();
  Select_Moment(0, "July", "04", "20", "01", "09", "30");
  Trigger(reminder(), "cmdOK");
  const std::vector<std::string> new_task{"July 4, 2001", "09:30", "March 5, 2001", "14:05", "1", "0", "0", "0"};
  EXPECT_EQ(New_Task_Values(), new_task);

  Open_From_Task_Information(Task_With_Series());
  // The task's values, not those just set for the new task.
  EXPECT_EQ(Date_Of(0), "March 1, 2001");
  EXPECT_TRUE(reminder().optIntermittently1->isChecked());
  Choose_Interval(0, "15");
  Select_Moment(1, "March", "06", "", "", "", "");
  Trigger(reminder(), "cmdOK");
  EXPECT_EQ(Task_Information_Values(), (std::vector<std::string>{"March 1, 2001", "08:00", "March 6, 2001", "14:05",
                                                                 "2", "0", "2", "15"}));
  EXPECT_EQ(New_Task_Values(), new_task);

  Open_From_New_Task();
  EXPECT_EQ(reminder().Store_Calling_Form_Origin("Get"), Value("frmAddNewAppointment_Reminder"));
  EXPECT_EQ(Date_Of(0), "July 4, 2001");
  EXPECT_EQ(Date_Of(1), "March 5, 2001");
  EXPECT_TRUE(reminder().optOnlyOneReminder->isChecked());
  EXPECT_EQ(Interval_Count(1), "0");
  Trigger(reminder(), "cmdOK");
  EXPECT_EQ(New_Task_Values(), new_task);
  EXPECT_EQ(Task_Information("Interval_Minutes"), Value("15"));
}

TEST_F(frmSetReminderTest, TheWindowKeepsItsBoxesBetweenOpenings) {
  Open_From_New_Task();
  Type_Into(Box(reminder(), "ComboMonths", 0), "August");
  Click_Reminder_Option("optIntermittently1");
  Choose_Interval(3, "300");
  Trigger(reminder(), "cmdClose");
  Open_From_New_Task();
  EXPECT_EQ(Box(reminder(), "ComboMonths", 0)->currentText(), "August");
  EXPECT_EQ(Box(reminder(), "cboInterval", 3)->currentText(), "300");
  // What the caller copies in stands anew.
  EXPECT_EQ(Interval_Count(2), "0");
  EXPECT_TRUE(reminder().optOnlyOneReminder->isChecked());
}

TEST_F(frmSetReminderTest, AnUnknownCallerGetsAndKeepsNothing) {
  Open_From_New_Task();
  organizer::Open_Set_Reminder_Window("frmtaskinformation");
  EXPECT_TRUE(reminder().isVisible());
  EXPECT_EQ(reminder().Store_Calling_Form_Origin("Get"), Value("frmtaskinformation"));
  Select_Moment(0, "October", "10", "", "", "", "");
  const std::vector<std::string> kept = New_Task_Values();
  Trigger(reminder(), "cmdOK");
  EXPECT_FALSE(reminder().isVisible());
  EXPECT_EQ(New_Task_Values(), kept);
}

TEST_F(frmSetReminderTest, AnotherButtonNeitherHidesNorTells) {
  Open_From_New_Task();
  Select_Moment(0, "October", "10", "", "", "", "");
  reminder().Set_Reminder("cmdOk_Click()");
  EXPECT_TRUE(reminder().isVisible());
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(New_Task("Date_String(0)"), Value("October 10, 2001"));
}

TEST_F(frmSetReminderTest, UseTaskTimeOpensTheTaskTimeWindowForItsMoment) {
  Open_From_New_Task();
  Click_Reminder_Option("optIntermittently2");
  Trigger(reminder(), "cmdUseTaskTime(1)");
  EXPECT_TRUE(task_time().isVisible());
  EXPECT_EQ(task_time().Store_Calling_Sub_Origin("Get"), Value(1));
  Trigger(task_time(), "cmdCancel");
  Trigger(reminder(), "cmdUseTaskTime(0)");
  EXPECT_EQ(task_time().Store_Calling_Sub_Origin("Get"), Value(0));
}

// The window hands the keeper the moments' texts, the kind as a number and the period as the
// texts of its labels.
TEST_F(frmSetReminderTest, TheDentistsSeriesInTheKeeper) {
  Set_The_Dentists_Series();
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_FALSE(reminder().isVisible());

  EXPECT_EQ(New_Task("Date_String(0)"), Value("Before The Start Time of Task"));
  EXPECT_EQ(New_Task("Time_String(0)"), Value("By 1 Days, 0 Hrs, 0 Min"));
  EXPECT_EQ(New_Task("Date_String(1)"), Value("March 5, 2001"));
  EXPECT_EQ(New_Task("Time_String(1)"), Value("14:00"));
  const Value kind = New_Task("Reminder_Interval");
  EXPECT_TRUE(kind.is_number());
  EXPECT_EQ(kind, Value(2));
  const std::pair<const char*, const char*> period[] = {
      {"Interval_Days", "0"}, {"Interval_Hours", "2"}, {"Interval_Minutes", "30"}};
  for (const auto& [name, text] : period) {
    const Value value = New_Task(name);
    EXPECT_TRUE(value.is_text()) << name;
    EXPECT_EQ(value.text(), text) << name;
  }
}

}  // namespace
}  // namespace orrivane
