// The window that changes a task's start and finish: its frames and boxes, Select a part at a
// time, the dates a month doesn't have, a finish before the start, OK back into the task
// information window with the range flag, Cancel, and going away when another window is active.
#include "organizer/frmChangeRecordTimes.h"

#include "organizer/task_edit_window_test.h"

namespace orrivane {
namespace {

using controls::Caption;
using organizer::ScheduleRecord;
using testing::TaskEditWindowTest;

class frmChangeRecordTimesTest : public TaskEditWindowTest {
 protected:
  // Anna's dentist from 14:30 on March 5, 2001 to 16:05 on March 7, 2001, her reminder off.
  static ScheduleRecord Dentist() {
    ScheduleRecord r = Task_Without_Reminder(1, "Anna", 2001, "March", "05", "14", "30", "Dentist");
    r.Time_Range_Flag = 1;
    r.Finish_Date = "07";
    r.Finish_Hour = "16";
    r.Finish_Minute = "05";
    return r;
  }
  static ScheduleRecord Parade() { return Task_Without_Reminder(2, "Anna", 2024, "July", "04", "09", "00", "Parade"); }
  void Show_Dentist() {
    Show_In_Log({organizer::Make_Person_Marker("Anna"), Dentist(), Parade()}, 1);
    Open_Times();
  }
  std::vector<std::string> Information_Moments() {
    return {Caption(information().lblFromDate), Caption(information().lblFromTime), Caption(information().lblToDate),
            Caption(information().lblToTime)};
  }
  ScheduleRecord Saved(int position) {
    Save();
    return organizer::samples::Read_Log(organizer::kScheduleFile).at(static_cast<std::size_t>(position));
  }
};

TEST_F(frmChangeRecordTimesTest, ItsFramesAndBoxes) {
  Show_Dentist();
  EXPECT_EQ(times().windowTitle().toStdString(), "Change Task\\Event Times");
  EXPECT_EQ(times().fraNewTime[0]->title().toStdString(), "Select New Starting Date\\Time");
  EXPECT_EQ(times().fraNewTime[1]->title().toStdString(), "Select New Finish Date\\Time");
  for (int index = 0; index < 2; ++index) {
    const std::vector<std::string> months = Items(times().ComboMonths[index]);
    ASSERT_EQ(months.size(), 12u);
    EXPECT_EQ(months.front(), "Jan");
    EXPECT_EQ(months.back(), "Dec");
    EXPECT_EQ(Items(times().ComboDate[index]).back(), "31");
    EXPECT_EQ(Items(times().cboHour[index]).back(), "23");
    EXPECT_EQ(Items(times().cboMinute[index]).back(), "59");
    EXPECT_EQ(times().cmdSelect[index]->text(), "Select");
    EXPECT_EQ(times().ComboMonths[index]->currentText(), "") << "the boxes start empty";
  }
  EXPECT_EQ(times().cmdOK->text(), "OK");
  EXPECT_EQ(times().cmdCancel->text(), "Cancel");
}

TEST_F(frmChangeRecordTimesTest, ItShowsBothMomentsNowAndNew) {
  Show_Dentist();
  EXPECT_EQ(Caption(times().lblOldDate[0]), "March 05, 2001");
  EXPECT_EQ(Caption(times().lblOldTime[0]), "14:30");
  EXPECT_EQ(Caption(times().lblOldDate[1]), "March 07, 2001");
  EXPECT_EQ(Caption(times().lblOldTime[1]), "16:05");
  EXPECT_EQ(New_Date(1), "March 07, 2001");
  EXPECT_EQ(New_Time(1), "16:05");
}

TEST_F(frmChangeRecordTimesTest, SelectChangesOnlyThePartsTyped) {
  Show_Dentist();
  Select_Time(1, "", "", "", "", "17", "");
  EXPECT_EQ(New_Date(1), "March 07, 2001");
  EXPECT_EQ(New_Time(1), "17:05");
  Select_Time(1, "Apr", "", "", "02", "", "");
  EXPECT_EQ(New_Date(1), "April 07, 2002");
  EXPECT_EQ(Caption(times().lblOldDate[1]), "March 07, 2001") << "the moment now stays for comparison";
  EXPECT_EQ(New_Date(0), "March 05, 2001");
}

TEST_F(frmChangeRecordTimesTest, ADayFebruaryDoesNotHaveIsRefusedAndTheWindowStays) {
  Show_Dentist();
  machine().Answer_Next(vbOK, "Invalid Date");
  Select_Time(0, "Feb", "29", "", "", "", "");
  Expect_Only_Message(Exclamation_Message("Invalid Date", "February only has 28 days in it this year."));
  EXPECT_EQ(New_Date(0), "March 05, 2001");
  Process_Events();
  EXPECT_TRUE(times().isVisible());
}

TEST_F(frmChangeRecordTimesTest, ADayAnotherMonthDoesNotHaveIsRefused) {
  Show_Dentist();
  machine().Answer_Next(vbOK, "Invalid Date");
  Select_Time(1, "Jun", "31", "", "", "", "");
  Expect_Only_Message(Exclamation_Message("Invalid Date", "June only has 30 days in it."));
}

TEST_F(frmChangeRecordTimesTest, AFinishEarlierThanTheStartOnTheSameDayIsRefused) {
  Show_Dentist();
  Select_Time(1, "", "05", "", "", "14", "29");
  machine().Answer_Next(vbOK, "Invalid Time");
  Trigger(times(), "cmdOK");
  Expect_Only_Message(
      Exclamation_Message("Invalid Time", "The 'Ending Time' must be at or later than the 'Starting Time'."));
  Process_Events();
  EXPECT_TRUE(times().isVisible());
  EXPECT_EQ(Information_Moments(),
            (std::vector<std::string>{"March 05, 2001", "14:30", "March 07, 2001", "16:05"}));
  EXPECT_FALSE(information().Record_Changed());
}

TEST_F(frmChangeRecordTimesTest, EqualMomentsAreAcceptedAndGiveTheRangeFlagZero) {
  Show_Dentist();
  Select_Time(1, "", "05", "", "", "14", "30");
  Trigger(times(), "cmdOK");
  EXPECT_FALSE(times().isVisible());
  EXPECT_EQ(information().Store_Time_Range_Flag("Get"), Value(0));
  EXPECT_EQ(Information_Moments(),
            (std::vector<std::string>{"March 05, 2001", "14:30", "March 05, 2001", "14:30"}));
  EXPECT_TRUE(information().Record_Changed());
  const ScheduleRecord saved = Saved(1);
  EXPECT_EQ(saved.Time_Range_Flag, Value(0));
  EXPECT_EQ(saved.Finish_Date, Value("05"));
  EXPECT_EQ(saved.Finish_Minute, Value("30"));
}

TEST_F(frmChangeRecordTimesTest, OKHandsTheNewMomentsBackWithTheRangeFlagOne) {
  Show_Dentist();
  Select_Time(0, "Dec", "31", "19", "99", "23", "00");
  Trigger(times(), "cmdOK");
  EXPECT_EQ(Information_Moments(),
            (std::vector<std::string>{"December 31, 1999", "23:00", "March 07, 2001", "16:05"}));
  const ScheduleRecord saved = Saved(1);
  EXPECT_EQ(saved.Time_Range_Flag, Value(1));
  EXPECT_EQ(saved.Start_Month, Value("December"));
  EXPECT_EQ(saved.Start_Century, Value(19));
  EXPECT_EQ(saved.Start_Year, Value(99));
  EXPECT_EQ(saved.Start_Hour, Value("23"));
}

TEST_F(frmChangeRecordTimesTest, EnterPressesOK) {
  Show_Dentist();
  Select_Time(1, "", "", "", "", "18", "");
  times().cmdOK->setFocus();
  Press_Keys(times(), QKeySequence(Qt::Key_Return));
  EXPECT_FALSE(times().isVisible());
  EXPECT_EQ(Caption(information().lblToTime), "18:05");
}

TEST_F(frmChangeRecordTimesTest, CancelChangesNothing) {
  Show_Dentist();
  Select_Time(1, "", "", "", "", "18", "");
  Trigger(times(), "cmdCancel");
  EXPECT_FALSE(times().isVisible());
  EXPECT_EQ(Caption(information().lblToTime), "16:05");
  EXPECT_FALSE(information().Record_Changed());
  EXPECT_EQ(information().Store_Time_Range_Flag("Get"), Value());
}

TEST_F(frmChangeRecordTimesTest, AnotherWindowBecomingActivePutsItAway) {
  Show_Dentist();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&times()));
  controls::Show_In_Front(information());
  ASSERT_TRUE(QTest::qWaitForWindowActive(&information()));
  Process_Events();
  EXPECT_FALSE(times().isVisible());
}

TEST_F(frmChangeRecordTimesTest, WithoutAVisitTheRangeFlagIsEmptyAndTheFourthLineWithIt) {
  Show_In_Log({organizer::Make_Person_Marker("Anna"), Dentist(), Parade()}, 1);
  Save();
  ScheduleRecord expected = Dentist();
  expected.Time_Range_Flag = Value();
  EXPECT_EQ(Read_File(organizer::kScheduleFile),
            Bytes_Of({organizer::Make_Person_Marker("Anna"), expected, Parade()}));
}

TEST_F(frmChangeRecordTimesTest, TheRangeFlagOfTheLastVisitGoesWithTheNextTaskSaved) {
  Show_Dentist();
  Select_Time(1, "", "", "", "", "18", "");
  Trigger(times(), "cmdOK");
  Save();
  Show_From_Log(2);
  Save();
  const ScheduleRecord parade = organizer::samples::Read_Log(organizer::kScheduleFile).at(2);
  EXPECT_EQ(parade.Time_Range_Flag, Value(1)) << "though the parade starts and finishes at one moment";
  EXPECT_EQ(Caption(information().lblFromTime), Caption(information().lblToTime));
}

}  // namespace
}  // namespace orrivane
