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
#include "organizer/chart_samples.h"
#include "organizer/frmFilterTasksEventsDisplayed.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/frmSelectTimePeriod.h"
#include "organizer/frmTaskInformation.h"
#include "organizer/log_file.h"
#include "platform/controls.h"
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

TEST_F(Screenshots, TheOrganizerWindows) {
  using organizer::samples::At;
  machine().Set_Now(2024, 3, 15, 14, 0);
  Window<Form1>().show();
  Process_Events();
  const char* const members[] = {"Anna", "Ben", "Cleo"};
  for (const char* member : members) organizer::Generate_Person_Marker_Record(organizer::kScheduleFile, member);
  const organizer::ScheduleRecord tasks[] = {
      organizer::samples::Chart_Task(1, "Anna", At{"March", 15, 2024, 14, 30}, At{"March", 15, 2024, 15, 20}, 0xFF0000),
      organizer::samples::Chart_Task(2, "Ben", At{"March", 15, 2024, 12, 0}, At{"March", 15, 2024, 13, 40}, 0x0080FF),
      organizer::samples::Chart_Task(3, "Cleo", At{"March", 14, 2024, 9, 0}, At{"March", 16, 2024, 17, 0}, 0x00A000),
      organizer::samples::Moment_Task(4, "Anna", At{"March", 15, 2024, 17, 30}, 0x8000C0),
  };
  for (const organizer::ScheduleRecord& task : tasks) organizer::Append_Record(organizer::kScheduleFile, task);
  frmScheduler_Reminder& organizer = Window<frmScheduler_Reminder>();
  controls::Show_In_Front(organizer);
  Process_Events();
  organizer.lstListOfPeople->setCurrentRow(0);
  Keep(organizer, "frmScheduler_Reminder");
  organizer.lstScheduleList->setCurrentRow(0);
  organizer.cmdViewTaskInformation_Click();
  Keep(Window<frmTaskInformation>(), "frmTaskInformation");
  organizer.optDisplayOnlyFilteredTasks->setChecked(true);
  Keep(Window<frmFilterTasksEventsDisplayed>(), "frmFilterTasksEventsDisplayed");
  Keep(Window<frmSelectTimePeriod>(), "frmSelectTimePeriod");
}

}  // namespace
}  // namespace orrivane
