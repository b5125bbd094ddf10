// Pictures of the multi-purpose window in each of its nine purposes, with lists filled, written
// to the folder named by ORRIVANE_SCREENSHOT_DIR; without it the test only checks that they draw.
#include <QDir>
#include <QImage>
#include <QRegularExpression>

#include "organizer/organizer_callers.h"
#include "reminders/multi_purpose_window_test.h"

namespace orrivane {
namespace {

class MultiPurposeScreenshots : public testing::MultiPurposeWindowTest {
 protected:
  void Keep(const QString& name) {
    Process_Events();
    const QImage image = form().grab().toImage();
    EXPECT_FALSE(image.isNull());
    const QByteArray folder = qgetenv("ORRIVANE_SCREENSHOT_DIR");
    if (folder.isEmpty()) return;
    QDir().mkpath(QString::fromLocal8Bit(folder));
    EXPECT_TRUE(image.save(QDir(QString::fromLocal8Bit(folder)).filePath(name + ".png")));
  }
};

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
    Keep("frmMultiPurposeForm-" + name);
  }
}

}  // namespace
}  // namespace orrivane
