// The find-a-holiday list as the user sees it: after a request it shows the first line added,
// after a list file is opened its first line; the busy cursor shows while either works and goes
// whatever way the work ends; a line of megabytes is shown cut and kept whole.
#include <QApplication>
#include <QScrollBar>

#include "holidays/find_a_holiday_window_test.h"
#include "holidays/holiday_list.h"

namespace orrivane {
namespace {

using testing::FindAHolidayTest;

class FindAHolidayListTest : public FindAHolidayTest {
 protected:
  QListView* list() { return find().lstListHolidayDates; }

  // The row of the first line in view, once the list has been laid out and painted.
  int Top_Row() {
    Process_Events();
    return list()->indexAt(QPoint(2, 2)).row();
  }
  bool In_View(int row) {
    Process_Events();
    return list()->viewport()->rect().contains(list()->visualRect(find().lstListHolidayDates_Lines->index(row)));
  }

  // File > Open File..., the file chosen and opened with the window's button.
  void Open_List_File(const QString& name) {
    When_Modal([this, name] {
      frmOpenFile& open = Window<frmOpenFile>();
      const auto found = open.filFileOpen->findItems(name, Qt::MatchExactly);
      ASSERT_EQ(found.size(), 1) << name.toStdString();
      open.filFileOpen->setCurrentItem(found.front());
      Click(open.cmdOpen);
    });
    Trigger(find(), "mnuOpenFile");
  }

  // Saves the list under `name` through "Save List...", the save window having been told its
  // caller by a first visit.
  void Save_List_As(const QString& name) {
    frmSaveFile& save = Window<frmSaveFile>();
    When_Modal([this, &save] { Click(save.cmdCancel); });
    Click(find().cmdSave);
    When_Modal([this, &save, name] {
      Type(save.txtFileName, name);
      Click(save.cmdSave);
    });
    Click(find().cmdSave);
  }

  // Notes whether the busy cursor is up each time lines are shown.
  void Watch_The_Cursor_As_Lines_Come() {
    QObject::connect(find().lstListHolidayDates_Lines, &QAbstractItemModel::rowsInserted, list(), [this] {
      ++insertions_;
      const QCursor* cursor = QApplication::overrideCursor();
      if (cursor == nullptr || cursor->shape() != Qt::WaitCursor) ++insertions_without_busy_cursor_;
    });
  }
  int insertions_ = 0;
  int insertions_without_busy_cursor_ = 0;

  std::string Shown(int row) {
    return find().lstListHolidayDates_Lines->index(row).data(Qt::DisplayRole).toString().toStdString();
  }
};

std::string Records_Of(const std::vector<std::string>& lines) {
  std::string records;
  for (const std::string& line : lines) records += "\"" + line + "\"\r\n";
  return records;
}

std::vector<std::string> Numbered_Lines(int count) {
  std::vector<std::string> lines;
  for (int i = 0; i < count; ++i) lines.push_back("line " + std::to_string(i));
  return lines;
}

// ---- What a request adds is in view ------------------------------------------------------------

TEST_F(FindAHolidayListTest, ARequestShowsItsFirstLineAtTheTopOfTheList) {
  Open_Window();
  Ask_All_By_Year("2003");
  EXPECT_EQ(Top_Row(), 0);
  Ask_All_By_Year("2004");
  EXPECT_EQ(Top_Row(), 25);
  EXPECT_EQ(find().List_Line(25), "New Years Day, Thursday, January 1, 2004");
  Ask_All_By_Year("2005", "2010");
  EXPECT_EQ(Top_Row(), 50);
}

TEST_F(FindAHolidayListTest, ARequestOfAFewLinesAtTheEndShowsThemAll) {
  Open_Window();
  Ask_All_By_Year("2003", "2006");
  list()->scrollToTop();
  Ask_By_Holiday("Easter", "2010", "2012");
  // Too few to fill the list from its top: the list ends with them, all in view.
  for (int row = 100; row < 103; ++row) EXPECT_TRUE(In_View(row)) << row;
  EXPECT_EQ(list()->verticalScrollBar()->value(), list()->verticalScrollBar()->maximum());
}

TEST_F(FindAHolidayListTest, ARefusedRequestLeavesTheListWhereItWas) {
  Open_Window();
  Ask_All_By_Year("2003", "2006");
  list()->scrollToTop();
  machine().Answer_Next(platform::vbOK, "Invalid Year");
  Ask_All_By_Year("1500");
  EXPECT_EQ(Top_Row(), 0);
}

// ---- The busy cursor ------------------------------------------------------------------------------

TEST_F(FindAHolidayListTest, ARequestShowsTheBusyCursorWhileItWorksAndNotAfter) {
  Open_Window();
  Watch_The_Cursor_As_Lines_Come();
  bool busy_at_yield = false;
  machine().On_Yield([&] { busy_at_yield = QApplication::overrideCursor() != nullptr; });
  Ask_All_By_Year("1583", "6000");
  machine().On_Yield(nullptr);
  EXPECT_TRUE(busy_at_yield);
  Ask_By_Holiday("Easter", "2003");
  EXPECT_GT(insertions_, 0);
  EXPECT_EQ(insertions_without_busy_cursor_, 0);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(FindAHolidayListTest, ARefusedRequestAsksWithoutTheBusyCursor) {
  Open_Window();
  machine().Answer_Next(platform::vbOK, "No Holiday Selected");
  Ask_By_Holiday("", "2003");
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// ---- Opening a list file --------------------------------------------------------------------------

TEST_F(FindAHolidayListTest, AnOpenedFileIsShownFromItsFirstLine) {
  Write_File("many.dte", Records_Of(Numbered_Lines(500)));
  Open_Window();
  Ask_All_By_Year("2003", "2042");
  list()->scrollToBottom();
  ASSERT_GT(Top_Row(), 900);
  Open_List_File("many.dte");
  EXPECT_EQ(find().List_Count(), 500u);
  EXPECT_EQ(Top_Row(), 0);
  EXPECT_EQ(list()->verticalScrollBar()->value(), 0);
}

TEST_F(FindAHolidayListTest, OpeningShowsTheBusyCursorWhileItReads) {
  Write_File("few.dte", Records_Of(Numbered_Lines(3)));
  Open_Window();
  Watch_The_Cursor_As_Lines_Come();
  Open_List_File("few.dte");
  EXPECT_EQ(insertions_, 1);
  EXPECT_EQ(insertions_without_busy_cursor_, 0);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(FindAHolidayListTest, AFileThatFailsTakesTheBusyCursorAwayBeforeTheProgramTellsIt) {
  Write_File("short.dte", "\"one\"\r\nx\r\n");
  Open_Window();
  Watch_The_Cursor_As_Lines_Come();
  When_Modal([this] {
    frmOpenFile& open = Window<frmOpenFile>();
    open.filFileOpen->setCurrentItem(open.filFileOpen->findItems("short.dte", Qt::MatchExactly).front());
    machine().Answer_Next(platform::vbOK, "Orrivane");
    Until_The_End([&open, this] { Click(open.cmdOpen); });
    if (open.isVisible()) Click(open.cmdCancel);
  });
  Trigger(find(), "mnuOpenFile");
  ASSERT_FALSE(machine().Messages().empty());
  EXPECT_EQ(machine().Messages().back().text, "Run-time error '5':\n\nInvalid procedure call or argument");
  // The line before the failure was read and shown, under the busy cursor, which then went.
  EXPECT_EQ(Lines(), std::vector<std::string>{"one"});
  EXPECT_EQ(insertions_without_busy_cursor_, 0);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// ---- A line of megabytes --------------------------------------------------------------------------

class LongLineTest : public FindAHolidayListTest {
 protected:
  // Eight megabytes of name in front of a date: the whole line goes to the calendar as April 20,
  // 2003, whereas what the list shows of it holds no date.
  const std::string long_line = std::string(8 << 20, 'x') + ", Sunday, April 20, 2003";
  const std::string file = Records_Of({long_line, "Halloween, Sunday, October 31, 1582"});

  void SetUp() override {
    FindAHolidayListTest::SetUp();
    Write_File("long.dte", file);
    Open_Window();
    Open_List_File("long.dte");
  }
};

TEST_F(LongLineTest, IsShownCutToWhatAListShows) {
  EXPECT_EQ(Shown(0), std::string(holidays::kShownLineLength, 'x'));
  EXPECT_EQ(Shown(1), "Halloween, Sunday, October 31, 1582");
  EXPECT_EQ(find().List_Line(0), long_line);
  // Chosen and painted as any other line.
  Select_Line(0);
  EXPECT_EQ(find().List_Index(), 0);
  EXPECT_FALSE(list()->grab().isNull());
  EXPECT_TRUE(find().cmdCalendar->isEnabled());
}

TEST_F(LongLineTest, GoesToTheCalendarWhole) {
  Select_Line(0);
  Click(find().cmdCalendar);
  EXPECT_EQ(Label(main(), "lblShowDate"), "April 20, 2003");
}

TEST_F(LongLineTest, IsSavedWhole) {
  Save_List_As("again");
  EXPECT_EQ(Read_File("again.dte"), file);
}

TEST_F(LongLineTest, IsRemovedWhole) {
  Select_Line(0);
  Click(find().cmdRemoveItem);
  EXPECT_EQ(Lines(), std::vector<std::string>{"Halloween, Sunday, October 31, 1582"});
  Save_List_As("rest");
  EXPECT_EQ(Read_File("rest.dte"), Records_Of({"Halloween, Sunday, October 31, 1582"}));
}

}  // namespace
}  // namespace orrivane
