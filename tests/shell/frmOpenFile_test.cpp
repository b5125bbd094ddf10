// The open window: its folder and file lists, Open enabled only for a chosen file, dispatch by
// the caller's name, and a holiday list read in place of the one on show.
#include <QDir>

#include "holidays/find_a_holiday_window_test.h"

namespace orrivane {
namespace {

using testing::FindAHolidayTest;

class frmOpenFileTest : public FindAHolidayTest {
 protected:
  frmOpenFile& open() { return Window<frmOpenFile>(); }

  std::vector<std::string> Files() {
    std::vector<std::string> names;
    for (int i = 0; i < open().filFileOpen->count(); ++i) names.push_back(open().filFileOpen->item(i)->text().toStdString());
    return names;
  }
  void Choose_File(const QString& name) {
    const auto found = open().filFileOpen->findItems(name, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << name.toStdString();
    open().filFileOpen->setCurrentItem(found.front());
  }
  // Opens the window from the find-a-holiday window's menu and runs `inside` while it is up; the
  // window is hidden afterwards whatever `inside` did.
  void From_The_Menu(const std::function<void()>& inside) {
    When_Modal([this, inside] {
      EXPECT_TRUE(open().isVisible());
      inside();
      if (open().isVisible()) Click(open().cmdCancel);
    });
    Trigger(find(), "mnuOpenFile");
  }
};

TEST_F(frmOpenFileTest, ItsCaptionsAndItsStart) {
  EXPECT_EQ(open().windowTitle().toStdString(), "Open File");
  EXPECT_EQ(Label(open(), "lblLookIn"), "Look in:");
  EXPECT_EQ(Label(open(), "lblFileName"), "File name:");
  EXPECT_EQ(open().cmdOpen->text().toStdString(), "Open");
  EXPECT_EQ(open().cmdCancel->text().toStdString(), "Cancel");
  EXPECT_FALSE(open().cmdOpen->isEnabled());
  EXPECT_TRUE(open().lblStoreCallingProcedure->isHidden());
  EXPECT_EQ(open().DirChooseDirectory->Path(), QDir::currentPath());
  EXPECT_NE(Control<DirectoryList>(open(), "DirChooseDirectory"), nullptr);
  EXPECT_NE(Control<FileList>(open(), "filFileOpen"), nullptr);
}

TEST_F(frmOpenFileTest, TheHolidayWindowAsksForListFilesAndNamesItself) {
  Write_File("b.dte", "\"x\"\r\n");
  Write_File("A.DTE", "\"x\"\r\n");
  Write_File("notes.txt", "");
  QDir().mkdir("sub.dte");
  Open_Window();
  From_The_Menu([this] {
    EXPECT_EQ(open().filFileOpen->Pattern().toStdString(), "*.dte");
    EXPECT_EQ(Label(open(), "lblStoreCallingProcedure"), "frmFindAHoliday");
    EXPECT_EQ(Files(), (std::vector<std::string>{"A.DTE", "b.dte"}));
    EXPECT_FALSE(open().cmdOpen->isEnabled());
  });
  EXPECT_FALSE(open().isVisible());
}

TEST_F(frmOpenFileTest, ChoosingAFileEnablesOpenAndChangingTheFolderDisablesIt) {
  QDir().mkdir("lists");
  Write_File("lists/old.dte", "\"x\"\r\n");
  Write_File("here.dte", "\"x\"\r\n");
  Open_Window();
  From_The_Menu([this] {
    Choose_File("here.dte");
    EXPECT_TRUE(open().cmdOpen->isEnabled());
    open().DirChooseDirectory->Set_Path(QDir::current().filePath("lists"));
    EXPECT_FALSE(open().cmdOpen->isEnabled());
    EXPECT_EQ(open().filFileOpen->Path(), QDir::current().filePath("lists"));
    EXPECT_EQ(Files(), std::vector<std::string>{"old.dte"});
    Choose_File("old.dte");
    EXPECT_TRUE(open().cmdOpen->isEnabled());
  });
}

TEST_F(frmOpenFileTest, TheFolderListLeadsFromTheRootToTheFolderAndInto) {
  QDir().mkdir("lists");
  QDir().mkdir("archive");
  Open_Window();
  From_The_Menu([this] {
    DirectoryList* folders = open().DirChooseDirectory;
    const int current = folders->Current_Entry();
    ASSERT_GE(current, 0);
    EXPECT_EQ(folders->Entry_Name(current), QDir::current().dirName());
    EXPECT_EQ(folders->Entry_Path(current), QDir::currentPath());
    EXPECT_EQ(folders->Entry_Name(0), QDir::toNativeSeparators(QDir::rootPath()));
    EXPECT_EQ(folders->Entry_Name(current + 1), "archive");
    EXPECT_EQ(folders->Entry_Name(current + 2), "lists");
    EXPECT_EQ(folders->Entry_Count(), current + 3);
    // Opening an entry goes into it.
    folders->Open_Entry(current + 2);
    EXPECT_EQ(folders->Path(), QDir::current().filePath("lists"));
    EXPECT_FALSE(open().cmdOpen->isEnabled());
  });
}

TEST_F(frmOpenFileTest, OpeningAFileReplacesTheList) {
  Write_File("saved.dte",
             "\"Easter, Sunday, April 20, 2003\"\r\n\"Election Day, U.S., Tuesday, November 4, 2003\"\r\n");
  Open_Window();
  Ask_All_By_Year("2010");
  From_The_Menu([this] {
    Choose_File("saved.dte");
    Click(open().cmdOpen);
    EXPECT_FALSE(open().isVisible());
  });
  EXPECT_EQ(Lines(), (std::vector<std::string>{"Easter, Sunday, April 20, 2003",
                                               "Election Day, U.S., Tuesday, November 4, 2003"}));
  EXPECT_EQ(Total_Count(), "2");
  EXPECT_EQ(New_Count(), "0");
  EXPECT_FALSE(open().cmdOpen->isEnabled());
  for (const char* name : {"cmdSave", "mnuSaveList", "cmdClear", "mnuClearList", "mnuPrintHolidayList"}) {
    EXPECT_TRUE(Enabled(name)) << name;
  }
}

TEST_F(frmOpenFileTest, ADoubleClickOpensAtOnceIntoAnEmptyWindow) {
  Write_File("one.dte", "\"Halloween, Sunday, October 31, 1582\"\r\n");
  Open_Window();
  From_The_Menu([this] {
    const auto found = open().filFileOpen->findItems("one.dte", Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1);
    // The first click of a double click chooses the file.
    open().filFileOpen->setCurrentItem(found.front());
    emit open().filFileOpen->itemDoubleClicked(found.front());
  });
  EXPECT_EQ(Lines(), std::vector<std::string>{"Halloween, Sunday, October 31, 1582"});
  EXPECT_TRUE(Enabled("cmdClear"));
  EXPECT_FALSE(Enabled("cmdCalendar"));
}

TEST_F(frmOpenFileTest, ALineOfAFileGoesToTheCalendar) {
  Write_File("one.dte", "\"Christmas Day, Thursday, December 25, 2003\"\r\n");
  Open_Window();
  From_The_Menu([this] {
    Choose_File("one.dte");
    Click(open().cmdOpen);
  });
  Select_Line(0);
  Click(find().cmdCalendar);
  EXPECT_EQ(Label(main(), "lblShowDate"), "December 25, 2003");
}

TEST_F(frmOpenFileTest, AnyOtherCallerNameMakesOpenDoNothing) {
  Write_File("saved.dte", "\"Easter, Sunday, April 20, 2003\"\r\n");
  Open_Window();
  Ask_By_Holiday("Easter", "2010");
  const std::vector<std::string> before = Lines();
  for (const char* caller : {"", "FRMFINDAHOLIDAY", "frmFindAHoliday ", "Form1.mnuOpenLog_Click()"}) {
    When_Modal([this, caller] {
      controls::Set_Caption(open().lblStoreCallingProcedure, caller);
      Choose_File("saved.dte");
      Click(open().cmdOpen);
      EXPECT_TRUE(open().isVisible()) << caller;
      Click(open().cmdCancel);
    });
    open().Show_Modal();
    EXPECT_EQ(Lines(), before) << caller;
  }
}

TEST_F(frmOpenFileTest, CancelAndTheFrameHideTheWindow) {
  Open_Window();
  When_Modal([this] { Click(open().cmdCancel); });
  open().Show_Modal();
  EXPECT_FALSE(open().isVisible());
  When_Modal([this] { open().close(); });
  open().Show_Modal();
  EXPECT_FALSE(open().isVisible());
}

TEST_F(frmOpenFileTest, AnEmptyFileEndsTheProgramAfterTheListIsGone) {
  Write_File("empty.dte", "");
  Open_Window();
  Ask_By_Holiday("Easter", "2010");
  From_The_Menu([this] {
    machine().Answer_Next(platform::vbOK, "Orrivane");
    Choose_File("empty.dte");
    Until_The_End([this] { Click(open().cmdOpen); });
  });
  ASSERT_FALSE(machine().Messages().empty());
  EXPECT_EQ(machine().Messages().back().text, "Run-time error '62':\n\nInput past end of file");
  EXPECT_EQ(machine().Exit_Code(), 1);
  EXPECT_EQ(find().List_Count(), 0u);
}

}  // namespace
}  // namespace orrivane
