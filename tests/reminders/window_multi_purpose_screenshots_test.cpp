// Pictures of the multi-purpose window in each of its nine purposes, with lists filled, written
// to the folder named by ORRIVANE_SCREENSHOT_DIR; without it the test only checks that they draw.
#include <QRegularExpression>

#include "organizer/organizer_callers.h"
#include "reminders/multi_purpose_window_test.h"
#include "support/screenshot.h"

namespace orrivane {
namespace {

class MultiPurposeScreenshots : public testing::MultiPurposeWindowTest {};

TEST_F(MultiPurposeScreenshots, EveryPurpose) {
  Write_Log({organizer::Make_Person_Marker("Anna Maria of the long family name"),
             Task_At(1, "Anna Maria of the long family name", 2001, "March", "05", "14", "30",
                     "Annual meeting of the members of the group"),
             Task_At(2, "Ben", 2001, "March", "05", "09", "00", "Gym")});
  for (const reminders::MultiPurpose& purpose : reminders::kMultiPurposes) {
    Open_For(purpose.origin);
    if (purpose.frame == reminders::kDeleteViewTaskFrame) {
      form().cboListOfPeople->setCurrentIndex(0);
      form().cboListOfPeople_Click();
    }
    QString name = QString::fromUtf8(purpose.origin.data(), static_cast<qsizetype>(purpose.origin.size()));
    name.remove(QRegularExpression("[^A-Za-z_]"));
    testing::Keep_Screenshot(form(), "frmMultiPurposeForm-" + name);
  }
}

}  // namespace
}  // namespace orrivane
