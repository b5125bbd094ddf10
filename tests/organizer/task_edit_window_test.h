#pragma once
// What the tests of editing a task share: the program started, a log and its reminders in the
// working files, a task shown from the Organizer's list as the user shows it, and the windows
// that edit it (times, identity, palette) driven with clicks and keys.
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <string>
#include <vector>

#include "organizer/frmChangeRecordTimes.h"
#include "organizer/frmChangeTaskIdInfo.h"
#include "organizer/frmColorPalette.h"
#include "organizer/set_reminder_window_test.h"
#include "organizer/task_edit.h"

namespace orrivane::testing {

class TaskEditWindowTest : public SetReminderWindowTest {
 protected:
  Form1& main() { return Window<Form1>(); }
  frmChangeRecordTimes& times() { return Window<frmChangeRecordTimes>(); }
  frmChangeTaskIdInfo& identity() { return Window<frmChangeTaskIdInfo>(); }
  frmColorPalette& palette() { return Window<frmColorPalette>(); }

  // A task at one moment, as Task_At, with its reminder off.
  static organizer::ScheduleRecord Task_Without_Reminder(int number, const std::string& member, int year,
                                                         const char* month, const char* date, const char* hour,
                                                         const char* minute, const std::string& name) {
    organizer::ScheduleRecord r = Task_At(number, member, year, month, date, hour, minute, name);
    r.Reminder_Status = 0;
    return r;
  }

  // ---- The working files -------------------------------------------------------------------
  void Write_Reminders(const std::vector<organizer::ScheduleRecord>& records) {
    organizer::samples::Write_Log(organizer::kTaskReminderFile, records);
  }
  // The working files as a log in the 8-line arrangement would have them.
  std::string Bytes_Of(const std::vector<organizer::ScheduleRecord>& records) {
    organizer::samples::Write_Log("expected.tmp", records);
    return Read_File("expected.tmp");
  }

  // ---- Showing a task --------------------------------------------------------------------------
  // The task of this number in the working log, shown as the user shows it: its member chosen in
  // the Organizer, a double click on its entry.
  void Show_From_Log(int number) {
    const organizer::ScheduleRecord task = organizer::Find_Task_Record(organizer::kScheduleFile, number);
    Open_Organizer();
    Choose_Member(task.Person_Name.text());
    Double_Click_Entry(organizer().lstScheduleList, organizer::Task_List_Entry(task));
    Process_Events();
    ASSERT_TRUE(information().isVisible());
    ASSERT_EQ(controls::Caption(information().lblRecordNumber), task.Record_Number.text());
  }
  // A log of its records (reminders as the log says), and one of them shown.
  void Show_In_Log(const std::vector<organizer::ScheduleRecord>& log, int number) {
    Write_Log(log);
    std::vector<organizer::ScheduleRecord> reminders;
    for (const organizer::ScheduleRecord& record : log) {
      if (record.Reminder_Status == Value(1)) reminders.push_back(record);
    }
    Write_Reminders(reminders);
    Show_From_Log(number);
  }

  // ---- Saving and closing ------------------------------------------------------------------------
  // The save button, answered.
  void Save(int answer = vbYes) {
    machine().Answer_Next(answer, "Save Changes");
    Trigger(information(), "cmdSaveChangesToThisRecord");
    Process_Events();
  }
  std::string Status() { return information().cmdStatus->text().toStdString(); }
  // Typed at the end of the comments, Return for each line break.
  void Type_Comments(const QString& keys) {
    QPlainTextEdit* box = information().txtComments;
    box->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(box, Qt::Key_End, Qt::ControlModifier);
    const QStringList lines = keys.split('\n');
    for (qsizetype line = 0; line < lines.size(); ++line) {
      if (line > 0) QTest::keyClick(box, Qt::Key_Return);
      QTest::keyClicks(box, lines[line]);
    }
  }

  // ---- The times window ----------------------------------------------------------------------------
  void Open_Times() {
    Trigger(information(), "cmdChange");
    Process_Events();
    ASSERT_TRUE(times().isVisible());
  }
  // Types into the boxes of a moment (an empty text leaves a box as it is), then Select.
  void Select_Time(int index, const char* month, const char* date, const char* century, const char* year,
                   const char* hour, const char* minute) {
    const std::pair<QComboBox*, const char*> boxes[] = {
        {times().ComboMonths[index], month}, {times().ComboDate[index], date}, {times().ComboCentury[index], century},
        {times().ComboYear[index], year},    {times().cboHour[index], hour},   {times().cboMinute[index], minute}};
    for (const auto& [box, text] : boxes) {
      if (*text != '\0') Type_Into(box, text);
    }
    Trigger(times(), controls::Array_Name("cmdSelect", index));
  }
  std::string New_Date(int index) { return controls::Caption(times().lblDate[index]); }
  std::string New_Time(int index) { return controls::Caption(times().lblTime[index]); }

  // ---- The identity window and the palette --------------------------------------------------------
  void Open_Identity() {
    Press_Keys(information(), QKeySequence("Ctrl+I"));
    Process_Events();
    ASSERT_TRUE(identity().isVisible());
  }
  // A new member typed and assigned.
  void Assign_New_Member(const QString& name) {
    Click_Option(identity().optEnterNameOfNewPerson);
    Type(identity().txtNewPerson, name);
    Trigger(identity(), "cmdAssignToGroupMember");
  }
  void Pick(int index) { QTest::mouseClick(palette().lblColor.at(static_cast<std::size_t>(index)), Qt::LeftButton); }
  // The palette opened modally from the identity window: a colour picked and selected in it.
  void Pick_From_Identity(int index) {
    When_Modal([this, index] {
      Process_Events();
      Pick(index);
      Click(palette().cmdSelect);
    });
    Trigger(identity(), "CmdChangeColorCode");
    Process_Events();
  }
};

}  // namespace orrivane::testing
