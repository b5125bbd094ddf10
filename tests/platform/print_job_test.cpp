// Print jobs of several sheets: the test machine keeps each job's sheets as images under the
// job's name; the real machine without a printer makes one PDF file a job, a page a sheet, each
// page turned to its window's shape.
#include <QDir>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QWidget>
#include <algorithm>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "platform/qt_platform.h"
#include "support/window_fixture.h"

namespace orrivane {
namespace {

using platform::Machine;
using platform::WindowPrintJob;
using testing::WindowTest;

class PrintJobTest : public WindowTest {
 protected:
  static void Size(QWidget& window, int width, int height) { window.resize(width, height); }

  // The sizes of the pages of a PDF file, in points, in order.
  std::vector<QSize> Pdf_Page_Sizes(const std::string& name) {
    const QString pdf = QString::fromStdString(Read_File(name));
    std::vector<QSize> sizes;
    static const QRegularExpression kMediaBox(R"(/MediaBox \[0 0 ([0-9.]+) ([0-9.]+)\])");
    for (auto found = kMediaBox.globalMatch(pdf); found.hasNext();) {
      const auto match = found.next();
      sizes.emplace_back(qRound(match.captured(1).toDouble()), qRound(match.captured(2).toDouble()));
    }
    return sizes;
  }
  static bool Landscape(QSize page) { return page.width() > page.height(); }

  QWidget wide;
  QWidget tall;
  void SetUp() override {
    WindowTest::SetUp();
    Size(wide, 300, 200);
    Size(tall, 200, 300);
  }
};

TEST_F(PrintJobTest, AJobKeepsEverySheetInOrderUnderItsName) {
  {
    WindowPrintJob job("Orrivane-log-task-lists");
    job.Add_Sheet(wide);
    job.Add_Sheet(tall);
    job.Add_Sheet(wide);
    EXPECT_TRUE(machine().Print_Jobs().empty()) << "a job is printed when it ends";
  }
  ASSERT_EQ(machine().Print_Jobs().size(), 1u);
  const testing::PrintJob& job = machine().Print_Jobs()[0];
  EXPECT_EQ(job.document_name, "Orrivane-log-task-lists");
  ASSERT_EQ(job.pages.size(), 3u);
  EXPECT_EQ(job.pages[0].size(), QSize(300, 200));
  EXPECT_EQ(job.pages[1].size(), QSize(200, 300));
  EXPECT_EQ(job.pages[2].size(), QSize(300, 200));
}

TEST_F(PrintJobTest, AJobWithoutSheetsPrintsNothing) {
  { WindowPrintJob job("Orrivane-log-task-lists"); }
  EXPECT_TRUE(machine().Print_Jobs().empty());
}

TEST_F(PrintJobTest, TwoJobsAreTwo) {
  {
    WindowPrintJob job("first");
    job.Add_Sheet(wide);
  }
  Machine().Print_Window(tall, "second");
  ASSERT_EQ(machine().Print_Jobs().size(), 2u);
  EXPECT_EQ(machine().Print_Jobs()[0].document_name, "first");
  EXPECT_EQ(machine().Print_Jobs()[1].document_name, "second");
  EXPECT_EQ(machine().Print_Jobs()[1].pages.size(), 1u);
}

TEST_F(PrintJobTest, AJobEndsOnAFailuresWayOutWithTheSheetsBeforeIt) {
  try {
    WindowPrintJob job("Orrivane-log-task-lists");
    job.Add_Sheet(wide);
    throw std::runtime_error("the log could not be read");
  } catch (const std::runtime_error&) {
  }
  ASSERT_EQ(machine().Print_Jobs().size(), 1u);
  EXPECT_EQ(machine().Print_Jobs()[0].pages.size(), 1u);
}

class RealPrinterTest : public PrintJobTest {
 protected:
  void SetUp() override {
    PrintJobTest::SetUp();
    if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "this machine has a printer";
  }
  platform::QtPlatform real;
};

TEST_F(RealPrinterTest, WithoutAPrinterAJobIsOnePdfWithAPageForEachSheetTurnedToItsShape) {
  real.Begin_Print_Job("Orrivane-log-chart-2001-03-05-Morning-and-task-lists");
  real.Print_Sheet(wide);
  real.Print_Sheet(wide);
  real.Print_Sheet(tall);
  real.End_Print_Job();
  const std::string file = "Orrivane-log-chart-2001-03-05-Morning-and-task-lists.pdf";
  ASSERT_TRUE(File_Present(file));
  EXPECT_TRUE(Read_File(file).starts_with("%PDF"));
  const std::vector<QSize> pages = Pdf_Page_Sizes(file);
  ASSERT_EQ(pages.size(), 3u);
  EXPECT_TRUE(Landscape(pages[0]));
  EXPECT_TRUE(Landscape(pages[1]));
  EXPECT_FALSE(Landscape(pages[2]));
  EXPECT_EQ(QDir(QString::fromStdString(Folder())).entryList({"*.pdf"}).size(), 1);
}

// A window drawn with transparency goes into the PDF as a picture of the page: at the resolution
// of an office printer, not the 1200 dots an inch that made pages of several megabytes.
TEST_F(RealPrinterTest, APageDrawnAsAPictureIsAtThreeHundredDotsAnInch) {
  wide.setStyleSheet("background: rgba(0, 0, 255, 40%);");
  wide.setAutoFillBackground(true);
  real.Print_Window(wide, "Orrivane-see-through");
  const QString pdf = QString::fromStdString(Read_File("Orrivane-see-through.pdf"));
  static const QRegularExpression kImageWidth(R"(/Width ([0-9]+))");
  int widest = 0;
  for (auto found = kImageWidth.globalMatch(pdf); found.hasNext();)
    widest = std::max(widest, found.next().captured(1).toInt());
  const int a4_long_side_at_300_dpi = 3508;
  EXPECT_GT(widest, a4_long_side_at_300_dpi / 2);
  EXPECT_LE(widest, a4_long_side_at_300_dpi);
}

TEST_F(RealPrinterTest, AJobWithoutSheetsLeavesNoFile) {
  real.Begin_Print_Job("Orrivane-log-task-lists");
  real.End_Print_Job();
  EXPECT_FALSE(File_Present("Orrivane-log-task-lists.pdf"));
}

TEST_F(RealPrinterTest, OneWindowIsAOnePageJob) {
  real.Print_Window(tall, "Orrivane-organizer");
  EXPECT_EQ(Pdf_Page_Sizes("Orrivane-organizer.pdf").size(), 1u);
}

}  // namespace
}  // namespace orrivane
