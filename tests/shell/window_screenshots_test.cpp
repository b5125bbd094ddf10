// Pictures of the windows as a user first meets them, at a fixed date. They are written to the
// folder named by ORRIVANE_SCREENSHOT_DIR (scripts/screenshots.sh sets it); without it the test
// only checks that every window draws.
#include <QDir>
#include <QImage>

#include "calendar/Form1.h"
#include "calendar/frmDateConversion.h"
#include "calendar/frmFindADate.h"
#include "calendar/frmLargeCalendar.h"
#include "calendar/frmSelectMonth.h"
#include "elapsed/frmFindDateDifference.h"
#include "holidays/frmFindAHoliday.h"
#include "platform/window_registry.h"
#include "shell/frmAbout.h"
#include "shell/frmHelpContents.h"
#include "shell/frmLiscense.h"
#include "shell/frmOpenFile.h"
#include "shell/frmSaveFile.h"
#include "support/window_fixture.h"

namespace orrivane {
namespace {

class Screenshots : public testing::WindowTest {
 protected:
  void Keep(QWidget& window, const char* name) {
    window.show();
    Process_Events();
    const QImage image = window.grab().toImage();
    EXPECT_FALSE(image.isNull()) << name;
    EXPECT_GT(image.width(), 100) << name;
    const QByteArray folder = qgetenv("ORRIVANE_SCREENSHOT_DIR");
    if (!folder.isEmpty()) {
      QDir().mkpath(QString::fromLocal8Bit(folder));
      EXPECT_TRUE(image.save(QDir(QString::fromLocal8Bit(folder)).filePath(QString(name) + ".png"))) << name;
    }
  }
};

TEST_F(Screenshots, TheCalendarWindowsAndTheAboutWindow) {
  machine().Set_Now(2024, 3, 15);
  machine().Script_Rnd(0.3);
  Window<Form1>().show();
  Process_Events();
  frmLargeCalendar& large = Window<frmLargeCalendar>();
  large.setWindowState(Qt::WindowNoState);
  large.resize(1280, 800);
  Keep(large, "frmLargeCalendar");
  Keep(Window<frmAbout>(), "frmAbout");
  Keep(Window<frmLiscense>(), "frmLiscense");
  Keep(Window<Form1>(), "Form1");
  Window<Form1>().Cal_Conversion();
  Keep(Window<frmDateConversion>(), "frmDateConversion");
  Keep(Window<frmSelectMonth>(), "frmSelectMonth");
  Keep(Window<frmFindADate>(), "frmFindADate");
  Keep(Window<frmFindDateDifference>(), "frmFindDateDifference");
  frmFindAHoliday& find = Window<frmFindAHoliday>();
  find.cboHoliday->setCurrentIndex(find.cboHoliday->findText("Easter"));
  find.txtFromYear->setText("2024");
  find.cmdSelect->click();
  find.optDisplayAllByYear_Click();
  find.cmdSelect->click();
  Keep(find, "frmFindAHoliday");
  Keep(Window<frmOpenFile>(), "frmOpenFile");
  Keep(Window<frmSaveFile>(), "frmSaveFile");
  Keep(Window<frmHelpContents>(), "frmHelpContents");
}

}  // namespace
}  // namespace orrivane
