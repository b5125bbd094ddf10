// The one menu of the two calendar windows: what each carries, the entries that differ between
// them, and the help window that F1 brings from either.
#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <string>
#include <vector>

#include "calendar/CalendarMenu.h"
#include "calendar_window_test.h"
#include "shell/frmHelpContents.h"

namespace orrivane {
namespace {

class CalendarMenuTest : public testing::CalendarWindowTest {};

std::vector<std::string> Names_Of(const std::vector<MenuEntry>& entries) {
  std::vector<std::string> names;
  for (const MenuEntry& entry : entries) names.emplace_back(entry.name);
  return names;
}

TEST(CalendarMenuEntries, EachWindowHasItsOwnNamesForTheEntriesThatDiffer) {
  const std::vector<std::string> main = Names_Of(Calendar_Menu_Entries(CalendarWindow::Form1));
  const std::vector<std::string> large = Names_Of(Calendar_Menu_Entries(CalendarWindow::LargeCalendar));
  auto has = [](const std::vector<std::string>& names, const char* name) {
    return std::find(names.begin(), names.end(), name) != names.end();
  };
  for (const char* name : {"mnuTodaysDate", "mnuConvertDate", "mnuScheduler_Reminder", "mnuOptions", "mnuLargeWindow"}) {
    EXPECT_TRUE(has(main, name)) << name;
    EXPECT_FALSE(has(large, name)) << name;
  }
  for (const char* name :
       {"mnuTodaysDates", "mnuConvertThisDate", "mnuSchedulerReminder", "mnuMaximize", "mnuWindowed", "mnuSmallWindow"}) {
    EXPECT_TRUE(has(large, name)) << name;
    EXPECT_FALSE(has(main, name)) << name;
  }
  EXPECT_EQ(main.size(), 38u);
  EXPECT_EQ(large.size(), 39u);
}

TEST(CalendarMenuEntries, TheWindowMenusKeepTheirOrder) {
  std::vector<std::string> main_window, large_window;
  for (const MenuEntry& e : Calendar_Menu_Entries(CalendarWindow::Form1)) {
    if (std::string(e.parent) == "mnuWindow") main_window.emplace_back(e.name);
  }
  for (const MenuEntry& e : Calendar_Menu_Entries(CalendarWindow::LargeCalendar)) {
    if (std::string(e.parent) == "mnuWindow") large_window.emplace_back(e.name);
  }
  EXPECT_EQ(main_window, (std::vector<std::string>{"mnuMinimizeToTaskbar", "mnuLargeWindow"}));
  EXPECT_EQ(large_window,
            (std::vector<std::string>{"mnuMinimizeToTaskbar", "mnuMaximize", "mnuWindowed", "mnuSmallWindow"}));
}

TEST_F(CalendarMenuTest, TheTopMenusStandInTheSameOrderOnBothWindows) {
  Start_Program();
  auto tops = [](QMainWindow& window) {
    std::vector<std::string> names;
    for (QAction* action : window.menuBar()->actions()) names.push_back(action->objectName().toStdString());
    return names;
  };
  const std::vector<std::string> expected{"mnuFile", "mnuView", "mnuLog", "mnuTools", "mnuWindow", "mnuHelp"};
  EXPECT_EQ(tops(main()), expected);
  EXPECT_EQ(tops(large()), expected);
}

TEST_F(CalendarMenuTest, F1OpensTheHelpFromTheLargeCalendar) {
  Start_Program();
  Press_Keys(large(), QKeySequence(Qt::Key_F1));
  EXPECT_TRUE(Window<frmHelpContents>().isVisible());
  EXPECT_EQ(Window<frmHelpContents>().windowTitle(), "Orrivane Help");
}

TEST_F(CalendarMenuTest, F1OpensTheHelpFromTheMainWindow) {
  Start_Program();
  Press_Keys(large(), QKeySequence(Qt::Key_F4));
  ASSERT_TRUE(main().isVisible());
  Press_Keys(main(), QKeySequence(Qt::Key_F1));
  EXPECT_TRUE(Window<frmHelpContents>().isVisible());
}

TEST_F(CalendarMenuTest, PrintLogStandsEnabledOnBothWithF2) {
  Start_Program();
  for (QWidget* window : {static_cast<QWidget*>(&main()), static_cast<QWidget*>(&large())}) {
    EXPECT_TRUE(Menu(*window, "mnuPrintLog")->isEnabled());
    EXPECT_EQ(Menu(*window, "mnuPrintLog")->shortcut(), QKeySequence("F2"));
  }
}

TEST_F(CalendarMenuTest, CtrlF2PrintsTheCalendarFromBothWindows) {
  Start_Program();
  machine().Answer_Next(platform::vbOK, "Print Calendar");
  Press_Keys(large(), QKeySequence("Ctrl+F2"));
  ASSERT_EQ(machine().Print_Jobs().size(), 1u);
  Press_Keys(large(), QKeySequence(Qt::Key_F4));
  ASSERT_TRUE(main().isVisible());
  machine().Answer_Next(platform::vbOK, "Print Calendar");
  Press_Keys(main(), QKeySequence("Ctrl+F2"));
  ASSERT_EQ(machine().Print_Jobs().size(), 2u);
  EXPECT_EQ(machine().Print_Jobs()[0].document_name, machine().Print_Jobs()[1].document_name);
  EXPECT_TRUE(Menu(main(), "mnuPrintCalendar")->isEnabled());
  EXPECT_TRUE(Menu(large(), "mnuPrintCalendar")->isEnabled());
}

}  // namespace
}  // namespace orrivane
