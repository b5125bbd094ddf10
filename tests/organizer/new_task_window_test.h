#pragma once
// What the tests of the new-task window and the palette share: the Organizer open with a log in
// the working copy, the new-task window opened from it as the user opens it, and the user's
// entries made with clicks and keys.
#include <QAbstractButton>
#include <QComboBox>
#include <QRadioButton>
#include <QTest>
#include <string>
#include <vector>

#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "core/message.h"
#include "organizer/frmAddNewAppointment_Reminder.h"
#include "organizer/frmColorPalette.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/log_file.h"
#include "organizer/log_samples.h"
#include "organizer/working_files.h"
#include "platform/controls.h"
#include "platform/window_registry.h"
#include "shell/frmAbout.h"
#include "support/window_fixture.h"

namespace orrivane::testing {

class NewTaskWindowTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    machine().Set_Now(2001, 3, 5, 14, 5, 9);
    Start_Program();
  }

  // Starts the program as the user does: the first activation of the main window, which empties
  // the working files and shows the month of today on the large calendar.
  void Start_Program() {
    Window<Form1>().show();
    Process_Events();
    Window<frmAbout>().hide();
  }
  Form1& main() { return Window<Form1>(); }
  frmLargeCalendar& large() { return Window<frmLargeCalendar>(); }

  frmScheduler_Reminder& organizer() { return Window<frmScheduler_Reminder>(); }
  frmAddNewAppointment_Reminder& entry() { return Window<frmAddNewAppointment_Reminder>(); }
  frmColorPalette& palette() { return Window<frmColorPalette>(); }

  // The Organizer in front, then its Log menu's Add New Task.
  void Open_Entry() {
    controls::Show_In_Front(organizer());
    Process_Events();
    Trigger(organizer(), "mnuAddNewTask");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&entry()));
    Process_Events();
  }

  // ---- The user's entries -----------------------------------------------------------------
  // Chooses an entry of a list box with the keyboard: the box takes the focus and the entry's
  // text is typed, which finds it.
  void Choose(QComboBox* box, const QString& text) {
    ASSERT_TRUE(box->isEnabled()) << box->objectName().toStdString();
    QWidget* window = box->window();
    if (!window->isActiveWindow()) {
      window->raise();
      window->activateWindow();
      ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    }
    box->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(box, text);
    ASSERT_EQ(box->currentText(), text) << box->objectName().toStdString();
  }
  // The boxes of one moment: month, date, century, year (empty ones left alone), hour, minute.
  void Enter_Moment(int moment, const QString& month, const QString& date, const QString& century,
                    const QString& year, const QString& hour, const QString& minute) {
    const auto i = static_cast<std::size_t>(moment);
    const std::pair<QComboBox*, QString> boxes[] = {
        {entry().ComboMonths[i], month}, {entry().ComboDate[i], date}, {entry().ComboCentury[i], century},
        {entry().ComboYear[i], year},    {entry().cboHour[i], hour},   {entry().cboMinute[i], minute}};
    for (const auto& [box, text] : boxes) {
      if (!text.isEmpty()) Choose(box, text);
    }
  }
  // An option or a check box is clicked on its indicator: beside a short caption a click falls
  // on nothing.
  void Click_Indicator(QAbstractButton* button) {
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(6, button->height() / 2));
  }
  void New_Member(const QString& name) {
    Click_Indicator(entry().optEnterNameOfNewPerson);
    Type(entry().txtNewPerson, name);
  }
  void Existing_Member(const QString& name) {
    Click_Indicator(entry().optExistingPerson);
    Choose(entry().cboExistingPerson, name);
  }
  // Anna's dentist at 14:30 on March 5 of this year, a new member, the reminder as it stands.
  void Enter_Dentist() {
    Type(entry().txtNameOfEvent, "Dentist");
    Type(entry().txtDescription, "Checkup");
    QTest::keyClicks(entry().txtComments, "Bring X-rays");
    Enter_Moment(organizer::kTaskStart, "March", "05", "", "", "14", "30");
    New_Member("Anna");
  }
  // The button pressed and the question answered OK: the task is added.
  void Add() {
    machine().Answer_Next(vbOK, "Confirm");
    machine().Answer_Next(vbOK, "Task Added");
    Click(entry().cmdAddThisEvent_AppointmentToTheSchedule);
  }
  // The button pressed and refused with a message of this title.
  void Add_Refused(const std::string& title) {
    machine().Answer_Next(vbOK, title);
    Click(entry().cmdAddThisEvent_AppointmentToTheSchedule);
  }

  // ---- What the program shows and writes ----------------------------------------------------
  std::vector<organizer::ScheduleRecord> Log() { return organizer::samples::Read_Log(organizer::kScheduleFile); }
  std::vector<organizer::ScheduleRecord> Reminders() {
    return organizer::samples::Read_Log(organizer::kTaskReminderFile);
  }
  std::vector<organizer::ScheduleRecord> Tasks() {
    std::vector<organizer::ScheduleRecord> tasks;
    for (const organizer::ScheduleRecord& record : Log()) {
      if (!organizer::Is_Person_Marker(record)) tasks.push_back(record);
    }
    return tasks;
  }
  std::vector<std::string> Markers() {
    std::vector<std::string> names;
    for (const organizer::ScheduleRecord& record : Log()) {
      if (organizer::Is_Person_Marker(record)) names.push_back(record.Person_Name.text());
    }
    return names;
  }
  std::vector<std::string> Members() {
    std::vector<std::string> members;
    for (int i = 0; i < organizer().lstListOfPeople->count(); ++i) {
      members.push_back(organizer().lstListOfPeople->item(i)->text().toStdString());
    }
    return members;
  }
  unsigned Colour_Choice() { return controls::Back_Color(entry().lblColorChoice); }

  // The one message shown since the last check, its title and text.
  void Expect_Only_Message(const std::string& title, const std::string& text) {
    ASSERT_EQ(machine().Messages().size(), 1u);
    EXPECT_EQ(machine().Messages()[0].title, title);
    EXPECT_EQ(machine().Messages()[0].text, text);
    machine().Clear_Messages();
  }
};

}  // namespace orrivane::testing
