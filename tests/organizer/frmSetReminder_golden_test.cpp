// A task's reminder as it reaches the reminder file: the task entered in the new-task window,
// its reminder set through the reminder windows, the task added; the record stands byte for
// byte.
#include <QPlainTextEdit>

#include "organizer/set_reminder_window_test.h"
#include "organizer/working_files.h"
#include "support/golden.h"

namespace orrivane {
namespace {

using testing::Golden_Case;
using testing::GoldenCase;
using testing::SetReminderWindowTest;

GoldenCase Dentists_Series() { return Golden_Case("task_reminder_record", "dentist_series"); }

class TaskReminderRecordTest : public SetReminderWindowTest {
 protected:
  // Anna's dentist at 14:30 today, March 5, 2001, in blue (the colour of the palette's 36th
  // label, drawn when the new-task window first loads).
  void Enter_Dentist() {
    machine().Script_Rnd(0.71);
    controls::Show_In_Front(organizer());
    Process_Events();
    Trigger(organizer(), "mnuAddNewTask");
    Process_Events();
    Type(entry().txtNameOfEvent, "Dentist");
    Type(entry().txtDescription, "Checkup");
    QTest::keyClicks(entry().txtComments, "Bring X-rays");
    const std::pair<QComboBox*, const char*> moment[] = {{entry().ComboMonths[0], "March"},
                                                         {entry().ComboDate[0], "05"},
                                                         {entry().cboHour[0], "14"},
                                                         {entry().cboMinute[0], "30"}};
    for (const auto& [box, text] : moment) Choose(entry(), box, text);
    Click_Option(entry().optEnterNameOfNewPerson);
    Type(entry().txtNewPerson, "Anna");
  }
  void Add() {
    machine().Answer_Next(vbOK, "Confirm");
    machine().Answer_Next(vbOK, "Task Added");
    Trigger(entry(), "cmdAddThisEvent_AppointmentToTheSchedule");
    machine().Clear_Messages();
  }
};

TEST_F(TaskReminderRecordTest, TheDentistsSeriesStandsByteForByte) {
  Enter_Dentist();
  Set_The_Dentists_Series();
  Add();
  EXPECT_EQ(Read_File(organizer::kTaskReminderFile), Dentists_Series().Expected());
}

}  // namespace
}  // namespace orrivane
