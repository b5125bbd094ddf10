// Tying a moment of the reminder to the task: at, before or after its start or finish, by a
// distance, written into the labels of the moment that Use Task Time named.
#include "organizer/frmSetRemToTaskTime.h"

#include "core/colours.h"
#include "organizer/set_reminder_window_test.h"

namespace orrivane {
namespace {

using controls::Caption;
using testing::SetReminderWindowTest;

class frmSetRemToTaskTimeTest : public SetReminderWindowTest {
 protected:
  void SetUp() override {
    SetReminderWindowTest::SetUp();
    Open_From_New_Task();
  }

  std::vector<QComboBox*> Amount_Boxes() {
    std::vector<QComboBox*> boxes;
    for (int box = 0; box < organizer::kAmountBoxes; ++box) boxes.push_back(Box(task_time(), "cboTimeLength", box));
    return boxes;
  }
  void Expect_Amounts_Enabled(bool enabled) {
    EXPECT_EQ(task_time().fraTimeAmount->isEnabled(), enabled);
    for (int box = 0; box < organizer::kAmountBoxes; ++box) {
      EXPECT_EQ(Label(task_time(), "lblTimeLength", box)->isEnabled(), enabled) << box;
    }
    for (QComboBox* box : Amount_Boxes()) {
      EXPECT_EQ(box->isEnabled(), enabled) << box->objectName().toStdString();
      EXPECT_EQ(controls::Back_Color(box), enabled ? colours::kWindowBackground : colours::kScrollBars);
    }
  }
  std::string Task_Time_Caption() { return task_time().FraTaskTime->title().toStdString(); }
  std::string Amount_Caption() { return task_time().fraTimeAmount->title().toStdString(); }
};

TEST_F(frmSetRemToTaskTimeTest, CaptionsAndLists) {
  frmSetRemToTaskTime& window = task_time();
  EXPECT_EQ(window.windowTitle().toStdString(), "Base This Time On Task Occurance");
  EXPECT_EQ(Items(window.cboWhen), (std::vector<std::string>{"At", "Before", "After"}));
  EXPECT_EQ(window.OptStart->text().toStdString(), "Start Time of Task");
  EXPECT_EQ(window.optFinish->text().toStdString(), "Finish Time Of Task");
  const char* captions[] = {"Minute(s) and", "Hour(s) and", "+", "Days"};
  for (int box = 0; box < 4; ++box) EXPECT_EQ(Caption_Of(window, "lblTimeLength", box), captions[box]);
  EXPECT_EQ(Items(Box(window, "cboTimeLength", 0)).size(), 60u);
  EXPECT_EQ(Items(Box(window, "cboTimeLength", 1)).back(), "23");
  EXPECT_EQ(Items(Box(window, "cboTimeLength", 2)).back(), "99");
  const std::vector<std::string> hundreds = Items(Box(window, "cboTimeLength", 3));
  ASSERT_EQ(hundreds.size(), 19u);
  EXPECT_EQ(hundreds[1], "100");
  EXPECT_EQ(hundreds.back(), "1800");
  EXPECT_EQ(window.cmdOK->text().toStdString(), "OK");
  EXPECT_EQ(window.cmdCancel->text().toStdString(), "Cancel");
}

TEST_F(frmSetRemToTaskTimeTest, BeforeAnythingIsChosen) {
  Trigger(reminder(), "cmdUseTaskTime(0)");
  EXPECT_EQ(task_time().cboWhen->currentText(), "");
  EXPECT_EQ(Task_Time_Caption(), "");
  EXPECT_EQ(Amount_Caption(), "");
  EXPECT_FALSE(task_time().OptStart->isChecked());
  EXPECT_FALSE(task_time().optFinish->isChecked());
  Expect_Amounts_Enabled(false);
  EXPECT_TRUE(QTest::qWaitForWindowActive(&task_time()));
}

TEST_F(frmSetRemToTaskTimeTest, TheRelationNamesTheFrames) {
  Trigger(reminder(), "cmdUseTaskTime(0)");
  Choose(task_time(), task_time().cboWhen, "Before");
  EXPECT_EQ(Task_Time_Caption(), "Before");
  EXPECT_EQ(Amount_Caption(), "Amount of Time Before:");
  Expect_Amounts_Enabled(true);
  Choose(task_time(), task_time().cboWhen, "After");
  EXPECT_EQ(Task_Time_Caption(), "After");
  EXPECT_EQ(Amount_Caption(), "Amount of Time After:");
  Expect_Amounts_Enabled(true);
}

TEST_F(frmSetRemToTaskTimeTest, AtTakesNoDistance) {
  Trigger(reminder(), "cmdUseTaskTime(0)");
  Choose(task_time(), task_time().cboWhen, "After");
  Press_Keys(task_time(), QKeySequence(Qt::Key_Up));
  Press_Keys(task_time(), QKeySequence(Qt::Key_Up));
  EXPECT_EQ(Task_Time_Caption(), "At");
  EXPECT_EQ(Amount_Caption(), "");
  Expect_Amounts_Enabled(false);
}

TEST_F(frmSetRemToTaskTimeTest, AtTheStartOfTheTask) {
  Tie_To_Task(0, "At", "OptStart");
  EXPECT_EQ(Date_Of(0), "At The Start Time of Task");
  EXPECT_EQ(Time_Of(0), "N/A");
  EXPECT_FALSE(task_time().isVisible());
}

TEST_F(frmSetRemToTaskTimeTest, BeforeByNothingIsAtInAllButName) {
  Tie_To_Task(0, "Before", "OptStart", {"0", "0", "0", "0"});
  EXPECT_EQ(Date_Of(0), "Before The Start Time of Task");
  EXPECT_EQ(Time_Of(0), "By 0 Days, 0 Hrs, 0 Min");
}

TEST_F(frmSetRemToTaskTimeTest, AfterTheFinishByHundredsAndDays) {
  Click_Option(reminder().optIntermittently2);
  Tie_To_Task(1, "After", "optFinish", {"30", "3", "2", "100"});
  EXPECT_EQ(Date_Of(1), "After The Finish Time Of Task");
  EXPECT_EQ(Time_Of(1), "By 102 Days, 3 Hrs, 30 Min");
  // The other moment is left alone.
  EXPECT_EQ(Date_Of(0), "March 5, 2001");
}

TEST_F(frmSetRemToTaskTimeTest, EmptyAmountsCountNought) {
  Tie_To_Task(0, "Before", "optFinish", {"", "", "", "1800"});
  EXPECT_EQ(Time_Of(0), "By 1800 Days, 0 Hrs, 0 Min");
}

TEST_F(frmSetRemToTaskTimeTest, AmountsChosenFromTheLists) {
  Trigger(reminder(), "cmdUseTaskTime(0)");
  Choose(task_time(), task_time().cboWhen, "After");
  Click_Option(task_time().OptStart);
  Choose(task_time(), Box(task_time(), "cboTimeLength", 0), "15");
  Choose(task_time(), Box(task_time(), "cboTimeLength", 3), "200");
  Trigger(task_time(), "cmdOK");
  EXPECT_EQ(Date_Of(0), "After The Start Time of Task");
  EXPECT_EQ(Time_Of(0), "By 200 Days, 0 Hrs, 15 Min");
}

TEST_F(frmSetRemToTaskTimeTest, AmountsLeftInTheBoxesDontCountForAt) {
  Tie_To_Task(0, "Before", "OptStart", {"5", "5", "5", "100"});
  Tie_To_Task(0, "At", "");
  EXPECT_EQ(Date_Of(0), "At The Start Time of Task");
  EXPECT_EQ(Time_Of(0), "N/A");
  // They stand in the boxes still, and count again after a relation with a distance.
  Tie_To_Task(0, "After", "");
  EXPECT_EQ(Time_Of(0), "By 105 Days, 5 Hrs, 5 Min");
}

TEST_F(frmSetRemToTaskTimeTest, NoRelationLeavesTheTimeAndNoAnchorLeavesAGap) {
  Select_Moment(0, "", "", "", "", "11", "11");
  Tie_To_Task(0, "", "OptStart");
  EXPECT_EQ(Date_Of(0), " The Start Time of Task");
  EXPECT_EQ(Time_Of(0), "11:11");
}

TEST_F(frmSetRemToTaskTimeTest, NoAnchorIsNotRefused) {
  Tie_To_Task(0, "Before", "", {"0", "1"});
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(Date_Of(0), "Before The ");
  EXPECT_EQ(Time_Of(0), "By 0 Days, 1 Hrs, 0 Min");
}

TEST_F(frmSetRemToTaskTimeTest, CancelChangesNothing) {
  Trigger(reminder(), "cmdUseTaskTime(0)");
  Choose(task_time(), task_time().cboWhen, "At");
  Click_Option(task_time().optFinish);
  Trigger(task_time(), "cmdCancel");
  EXPECT_FALSE(task_time().isVisible());
  EXPECT_EQ(Date_Of(0), "March 5, 2001");
  EXPECT_EQ(Time_Of(0), "14:05");
}

TEST_F(frmSetRemToTaskTimeTest, TheCloseBoxChangesNothing) {
  Trigger(reminder(), "cmdUseTaskTime(0)");
  Choose(task_time(), task_time().cboWhen, "At");
  task_time().close();  // the frame's close box
  EXPECT_FALSE(task_time().isVisible());
  EXPECT_EQ(Date_Of(0), "March 5, 2001");
  Trigger(reminder(), "cmdUseTaskTime(0)");
  EXPECT_EQ(task_time().cboWhen->currentText(), "At");
}

TEST_F(frmSetRemToTaskTimeTest, TheWindowKeepsItsChoicesBetweenOpenings) {
  Tie_To_Task(0, "After", "optFinish", {"1"});
  Trigger(reminder(), "cmdUseTaskTime(0)");
  EXPECT_EQ(task_time().cboWhen->currentText(), "After");
  EXPECT_TRUE(task_time().optFinish->isChecked());
  EXPECT_EQ(Box(task_time(), "cboTimeLength", 0)->currentText(), "1");
  Expect_Amounts_Enabled(true);
}

TEST_F(frmSetRemToTaskTimeTest, AMomentTiedToTheTaskIsKeptForTheTaskInformation) {
  organizer::ScheduleRecord task = Task_At(4, "Ben", 2002, "June", "10", "09", "00", "Exam");
  task.Reminder_Status = 1;
  task.Reminder_Interval = 1;
  task.Date_String[0] = task.Date_String[1] = "June 9, 2002";
  task.Time_String[0] = task.Time_String[1] = "09:00";
  Open_From_Task_Information(task);
  Tie_To_Task(0, "At", "optFinish");
  Trigger(reminder(), "cmdOK");
  EXPECT_EQ(Task_Information("Date_String(0)"), Value("At The Finish Time Of Task"));
  EXPECT_EQ(Task_Information("Time_String(0)"), Value("N/A"));
  EXPECT_EQ(Caption(information().lblMethod), organizer::kOnlyOneReminderMethod);
}

}  // namespace
}  // namespace orrivane
