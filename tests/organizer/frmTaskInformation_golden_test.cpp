// The working files after each kind of edit, byte for byte. A case's folder holds the log and its
// reminders before (log.tmp, reminders.tmp) and after (expected.tmp, reminders_after.tmp); the
// edit itself, made in the windows as the user makes it, is named by the folder in the table
// below, with the number of the task it shows.
#include <functional>
#include <map>

#include "organizer/log_file.h"
#include "organizer/task_edit_window_test.h"
#include "support/golden.h"

namespace orrivane {
namespace {

using testing::GoldenCase;
using testing::TaskEditWindowTest;

class TaskEditGoldenTest : public TaskEditWindowTest, public ::testing::WithParamInterface<GoldenCase> {
 public:
  struct Edit {
    int shown;  // the number of the task shown
    std::function<void(TaskEditGoldenTest&)> change;
  };
  static const std::map<std::string, Edit>& Edits();

  void Run_Case() {
    const GoldenCase& golden = GetParam();
    const auto edit = Edits().find(golden.name);
    ASSERT_NE(edit, Edits().end()) << "no edit for the golden case " << golden.name;
    Write_File(organizer::kScheduleFile, golden.Bytes("log.tmp"));
    Write_File(organizer::kTaskReminderFile, golden.Bytes("reminders.tmp"));
    Show_From_Log(edit->second.shown);
    edit->second.change(*this);
    Save();
    EXPECT_EQ(Read_File(organizer::kScheduleFile), golden.Expected());
    EXPECT_EQ(Read_File(organizer::kTaskReminderFile), golden.Bytes("reminders_after.tmp"));
  }
};

const std::map<std::string, TaskEditGoldenTest::Edit>& TaskEditGoldenTest::Edits() {
  static const std::map<std::string, Edit> edits{
      {"unchanged_between_markers", {1, [](TaskEditGoldenTest&) {}}},
      {"reminder_switched_off", {2, [](TaskEditGoldenTest& t) { t.Click(t.information().cmdStatus); }}},
      {"reminder_switched_on", {2, [](TaskEditGoldenTest& t) { t.Click(t.information().cmdStatus); }}},
      {"times_changed",
       {1,
        [](TaskEditGoldenTest& t) {
          t.Open_Times();
          t.Select_Time(1, "", "06", "", "", "09", "15");
          t.Trigger(t.times(), "cmdOK");
        }}},
      {"equal_moments",
       {1,
        [](TaskEditGoldenTest& t) {
          t.Open_Times();
          t.Select_Time(1, "", "05", "", "", "14", "30");
          t.Trigger(t.times(), "cmdOK");
        }}},
      {"identity_changed",
       {3,
        [](TaskEditGoldenTest& t) {
          t.Open_Identity();
          t.Type(t.identity().txtNewRecordName, "Review");
          t.Type(t.identity().txtNewRecordDescription, "Budget 2001");
          t.identity().cboExistingPerson->setFocus(Qt::TabFocusReason);
          t.Press_Keys(t.identity(), QKeySequence(Qt::Key_Down));
          t.Pick_From_Identity(12);  // the palette's first visit from here serves nobody
          t.Pick_From_Identity(40);
          t.Trigger(t.identity(), "cmdOK");
        }}},
      {"comments_over_two_lines",
       {1,
        [](TaskEditGoldenTest& t) { t.Type_Comments("\nand the card"); }}},
      {"reminder_set_anew",
       {1,
        [](TaskEditGoldenTest& t) {
          t.Trigger(t.information(), "cmdChange1");
          t.Click_Reminder_Option("optIntermittently1");
          t.Choose_Interval(1, "2");
          t.Choose_Interval(0, "30");
          t.Tie_To_Task(0, "Before", "OptStart", {"0", "0", "1", "0"});
          t.Select_Moment(1, "March", "05", "20", "01", "14", "00");
          t.Trigger(t.reminder(), "cmdOK");
        }}},
      {"vanished_record",
       {2,
        [](TaskEditGoldenTest&) {
          // Deleted since it was shown, from both files, as a delete takes it.
          const auto is_gym = [](const organizer::ScheduleRecord& r) { return r.Record_Number == Value(2); };
          for (const char* file : {organizer::kScheduleFile, organizer::kTaskReminderFile}) {
            organizer::Rewrite_Log(file, "scratch.tmp", organizer::Drop_Records(is_gym));
          }
        }}},
  };
  return edits;
}

TEST_P(TaskEditGoldenTest, TheFilesStandByteForByte) { Run_Case(); }

INSTANTIATE_TEST_SUITE_P(Golden, TaskEditGoldenTest, ::testing::ValuesIn(testing::Golden_Cases("task_edit")),
                         testing::Golden_Case_Name);

}  // namespace
}  // namespace orrivane
