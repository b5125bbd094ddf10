#pragma once
// What the tests of the multi-purpose window share: the program started as the user starts it, a
// log in the working file, the window asked for by an origin, and what it shows read back.
#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
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

// Every control of a frame (or group box) stands within it, none covers another of the same
// parent, and no caption is cut.
inline void Expect_Placed_Apart(const QWidget* parent) {
  const QList<QWidget*> children = parent->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
  for (const QWidget* child : children) {
    if (child->objectName().isEmpty()) continue;  // the inner parts of a control
    EXPECT_TRUE(parent->rect().contains(child->geometry()))
        << child->objectName().toStdString() << " is cut by " << parent->objectName().toStdString();
    for (const QWidget* other : children) {
      if (other == child || other->objectName().isEmpty()) continue;
      EXPECT_FALSE(child->geometry().intersects(other->geometry()))
          << child->objectName().toStdString() << " covers " << other->objectName().toStdString();
    }
    const bool captioned = qobject_cast<const QLabel*>(child) != nullptr ||
                           qobject_cast<const QAbstractButton*>(child) != nullptr;
    if (captioned) {
      EXPECT_LE(child->sizeHint().width(), child->width()) << child->objectName().toStdString() << "'s caption is cut";
    }
    if (qobject_cast<const QGroupBox*>(child) != nullptr) Expect_Placed_Apart(child);
  }
}

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
