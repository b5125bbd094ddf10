#pragma once
// What the tests of the task list, the filter window and the task information window share: a
// log in the working file, the Organizer open with its members listed, and the user's clicks on
// list entries.
#include <QListWidget>
#include <QTest>
#include <string>
#include <vector>

#include "core/message.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/frmTaskInformation.h"
#include "organizer/log_file.h"
#include "organizer/log_samples.h"
#include "organizer/task_list.h"
#include "organizer/working_files.h"
#include "platform/controls.h"
#include "platform/window_registry.h"
#include "support/window_fixture.h"

namespace orrivane::testing {

class TaskWindowTest : public WindowTest {
 protected:
  frmScheduler_Reminder& organizer() { return Window<frmScheduler_Reminder>(); }
  frmTaskInformation& information() { return Window<frmTaskInformation>(); }

  // A task of a member at one moment: year, month name, date, hour, minute.
  static organizer::ScheduleRecord Task_At(int number, const std::string& member, int year, const char* month,
                                           const char* date, const char* hour, const char* minute,
                                           const std::string& name = "Dentist") {
    organizer::ScheduleRecord r = organizer::samples::Dentist_Task();
    r.Record_Number = number;
    r.Task_Name = name;
    r.Person_Name = member;
    r.Start_Month = r.Finish_Month = month;
    r.Start_Date = r.Finish_Date = date;
    r.Start_Century = r.Finish_Century = year / 100;
    r.Start_Year = r.Finish_Year = year % 100;
    r.Start_Hour = r.Finish_Hour = hour;
    r.Start_Minute = r.Finish_Minute = minute;
    return r;
  }

  void Write_Log(const std::vector<organizer::ScheduleRecord>& records) {
    organizer::samples::Write_Log(organizer::kScheduleFile, records);
  }

  // Opens the Organizer and makes sure every member of the log stands in its list, as the
  // refresh at its activation lists them.
  void Open_Organizer() {
    controls::Show_In_Front(organizer());
    Process_Events();
    organizer::For_Each_Member(organizer::kScheduleFile, [this](const std::string& member) {
      const QString name = QString::fromStdString(member);
      if (organizer().lstListOfPeople->findItems(name, Qt::MatchExactly).isEmpty()) {
        organizer().lstListOfPeople->addItem(name);
      }
    });
  }

  QListWidgetItem* Item(QListWidget* list, const std::string& text) {
    const QList<QListWidgetItem*> found = list->findItems(QString::fromStdString(text), Qt::MatchExactly);
    if (found.isEmpty()) {
      ADD_FAILURE() << "no entry " << text;
      return nullptr;
    }
    return found.front();
  }
  void Click_Entry(QListWidget* list, const std::string& text) {
    QListWidgetItem* item = Item(list, text);
    if (item == nullptr) return;
    list->scrollToItem(item);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
  }
  void Double_Click_Entry(QListWidget* list, const std::string& text) {
    QListWidgetItem* item = Item(list, text);
    if (item == nullptr) return;
    list->scrollToItem(item);
    // The first press of a double click chooses the entry, the second opens it.
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
  }
  std::vector<std::string> Entries(const QListWidget* list) {
    std::vector<std::string> entries;
    for (int i = 0; i < list->count(); ++i) entries.push_back(list->item(i)->text().toStdString());
    return entries;
  }

  // The one message shown since the last check, with its title, text, buttons and icon.
  void Expect_Only_Message(const Message& expected) {
    ASSERT_EQ(machine().Messages().size(), 1u);
    const ShownMessage& shown = machine().Messages()[0];
    EXPECT_EQ(shown.title, expected.title);
    EXPECT_EQ(shown.text, expected.text);
    EXPECT_EQ(shown.buttons, expected.buttons);
    EXPECT_EQ(shown.icon, expected.icon);
    machine().Clear_Messages();
  }

  // An option is clicked on its round button: beside its caption a click falls on nothing.
  void Click_Option(QWidget* option) {
    QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(6, option->height() / 2));
  }

  // The user picks a member in the Organizer.
  void Choose_Member(const std::string& member) { Click_Entry(organizer().lstListOfPeople, member); }

  // Shows a task in the task information window the way the user does: the member chosen in the
  // Organizer, then a double click on the task.
  void View_Task(const organizer::ScheduleRecord& task) {
    Write_Log({organizer::Make_Person_Marker(task.Person_Name), task});
    Open_Organizer();
    Choose_Member(task.Person_Name.text());
    Double_Click_Entry(organizer().lstScheduleList, organizer::Task_List_Entry(task));
    Process_Events();
    ASSERT_TRUE(information().isVisible());
  }
};

}  // namespace orrivane::testing
