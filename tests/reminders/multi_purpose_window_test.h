#pragma once
// What the tests of the multi-purpose window share: the program started as the user starts it, a
// log in the working file, the window asked for by an origin, and what it shows read back.
#include <QListWidget>
#include <QPushButton>
#include <string>
#include <vector>

#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "organizer/task_window_test.h"
#include "reminders/frmMultiPurposeForm.h"
#include "reminders/multi_purpose.h"
#include "shell/frmAbout.h"

namespace orrivane::testing {

class MultiPurposeWindowTest : public TaskWindowTest {
 protected:
  void SetUp() override {
    TaskWindowTest::SetUp();
    // The start empties the working files and shows the large calendar.
    Window<Form1>().show();
    Process_Events();
    Window<frmAbout>().hide();
  }

  frmMultiPurposeForm& form() { return Window<frmMultiPurposeForm>(); }
  frmLargeCalendar& large() { return Window<frmLargeCalendar>(); }

  void Open_For(std::string_view origin) {
    organizer().Multipurpose_Form(origin);
    Process_Events();
  }

  std::vector<std::string> Items(const QComboBox* box) {
    std::vector<std::string> items;
    for (int i = 0; i < box->count(); ++i) items.push_back(box->itemText(i).toStdString());
    return items;
  }

  // The buttons of the window that have the Default role, and those with the Cancel role.
  std::vector<QPushButton*> Default_Buttons() {
    std::vector<QPushButton*> found;
    for (QPushButton* button : form().findChildren<QPushButton*>()) {
      if (button->isDefault()) found.push_back(button);
    }
    return found;
  }
  std::vector<QPushButton*> Cancel_Buttons() {
    std::vector<QPushButton*> found;
    for (QPushButton* button : form().findChildren<QPushButton*>()) {
      if (controls::Is_Cancel(button)) found.push_back(button);
    }
    return found;
  }
  // The frames shown, by their index.
  std::vector<int> Shown_Frames() {
    std::vector<int> shown;
    for (int i = 0; i < reminders::kMultiPurposeFrames; ++i) {
      if (form().Frame(static_cast<reminders::MultiPurposeFrame>(i))->isVisibleTo(&form())) shown.push_back(i);
    }
    return shown;
  }
};

}  // namespace orrivane::testing
