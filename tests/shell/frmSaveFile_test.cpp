// The save window: the order in which the holiday window fills it, dispatch by the caller's
// name, the name check and its message, the added extension, the overwrite question, and a
// saved list read back byte for byte.
#include <QDir>
#include <algorithm>

#include "holidays/find_a_holiday_window_test.h"
#include "holidays/holiday_list_file.h"
#include "support/golden.h"

namespace orrivane {
namespace {

using testing::FindAHolidayTest;
using testing::Golden_Case_Name;
using testing::Golden_Cases;
using testing::GoldenCase;

class frmSaveFileTest : public FindAHolidayTest {
 protected:
  frmSaveFile& save() { return Window<frmSaveFile>(); }

  // Clicks "Save List..." and runs `inside` while the window is up; it is hidden afterwards by
  // Cancel when `inside` left it open.
  void From_The_Button(const std::function<void()>& inside) {
    When_Modal([this, inside] {
      EXPECT_TRUE(save().isVisible());
      inside();
      if (save().isVisible()) Click(save().cmdCancel);
    });
    Click(find().cmdSave);
  }
  void Save_As(const QString& name) {
    Type(save().txtFileName, name);
    Click(save().cmdSave);
  }
  // The window has been opened and cancelled once: it knows its caller from then on.
  void Open_And_Cancel_Once() {
    From_The_Button([] {});
  }
};

TEST_F(frmSaveFileTest, ItsCaptions) {
  EXPECT_EQ(save().windowTitle().toStdString(), "Save As");
  EXPECT_EQ(Label(save(), "lblSaveIn"), "Save in:");
  EXPECT_EQ(Label(save(), "lblFileName"), "File name:");
  EXPECT_EQ(save().cmdSave->text().toStdString(), "Save");
  EXPECT_EQ(save().cmdCancel->text().toStdString(), "Cancel");
  EXPECT_TRUE(save().lblStoreCallingProcedure->isHidden());
  EXPECT_EQ(save().DirSaveIn->Path(), QDir::currentPath());
}

TEST_F(frmSaveFileTest, OpenedTheFirstTimeItIsBlankAndSaveDoesNothing) {
  Open_Window();
  Ask_All_By_Year("2003");
  From_The_Button([this] {
    EXPECT_EQ(Label(save(), "lblStoreCallingProcedure"), "");
    EXPECT_EQ(save().txtFileName->text().toStdString(), "");
    Save_As("First");
    EXPECT_TRUE(save().isVisible());
  });
  EXPECT_FALSE(File_Present("First.dte"));
  // Cancelled, it has been told its caller and the name to offer for the next time.
  EXPECT_EQ(Label(save(), "lblStoreCallingProcedure"), "frmFindAHoliday");
  EXPECT_EQ(save().txtFileName->text().toStdString(), "Holidays.dte");
  From_The_Button([this] {
    EXPECT_EQ(save().txtFileName->text().toStdString(), "Holidays.dte");
    Click(save().cmdSave);
    EXPECT_FALSE(save().isVisible());
  });
  EXPECT_TRUE(File_Present("Holidays.dte"));
}

// Each case folder of tests/data/golden/saved_holiday_list holds requests.txt, the requests made
// one a line ("Display All By Year|2003", "Easter|1583", or with a last year "Easter|2000|2010"),
// and expected.dte, the bytes of the list saved after them.
class SavedHolidayListTest : public frmSaveFileTest, public ::testing::WithParamInterface<GoldenCase> {
 protected:
  void Ask(const std::string& request) {
    const QStringList parts = QString::fromStdString(request).split('|');
    ASSERT_GE(parts.size(), 2) << request;
    const QString last_year = parts.size() > 2 ? parts[2] : QString();
    if (parts[0] == find().optDisplayAllByYear->text()) {
      Ask_All_By_Year(parts[1], last_year);
    } else {
      Ask_By_Holiday(parts[0], parts[1], last_year);
    }
  }
};

TEST_P(SavedHolidayListTest, ASavedListStandsByteForByteAndReadsBackTheSame) {
  Open_Window();
  for (const std::string& request : GetParam().Lines("requests.txt")) Ask(request);
  Open_And_Cancel_Once();
  const std::vector<std::string> before = Lines();
  std::string expected;
  for (const std::string& line : before) expected += "\"" + line + "\"\r\n";
  When_Modal([this] { Click(save().cmdSave); });
  Trigger(find(), "mnuSaveList");  // the menu entry opens the same window as the button
  EXPECT_EQ(Read_File("Holidays.dte"), expected);
  EXPECT_EQ(Read_File("Holidays.dte"), GetParam().Expected());

  Click(find().cmdClear);
  When_Modal([this] {
    Window<frmOpenFile>().filFileOpen->setCurrentRow(0);
    Click(Window<frmOpenFile>().cmdOpen);
  });
  Trigger(find(), "mnuOpenFile");
  EXPECT_EQ(Lines(), before);
}

INSTANTIATE_TEST_SUITE_P(Golden, SavedHolidayListTest, ::testing::ValuesIn(Golden_Cases("saved_holiday_list")),
                         Golden_Case_Name);

TEST(SavedHolidayListGolden, TheListOf2003KeepsElectionDayWholeWithItsCommas) {
  const auto cases = Golden_Cases("saved_holiday_list");
  const auto of_2003 = std::find_if(cases.begin(), cases.end(), [](const GoldenCase& golden) {
    return golden.name == "all_of_2003_then_easter_1583";
  });
  ASSERT_NE(of_2003, cases.end());
  EXPECT_NE(of_2003->Expected().find("\"Election Day, U.S., Tuesday, November 4, 2003\"\r\n"), std::string::npos);
}

TEST_F(frmSaveFileTest, ANameWithoutTheExtensionGetsItAndOneWithItGetsNothingMore) {
  Open_Window();
  Ask_By_Holiday("Easter", "2003");
  Open_And_Cancel_Once();
  From_The_Button([this] { Save_As("Spring"); });
  From_The_Button([this] { Save_As("Autumn.dte"); });
  From_The_Button([this] { Save_As("WINTER.DTE"); });
  EXPECT_TRUE(File_Present("Spring.dte"));
  EXPECT_TRUE(File_Present("Autumn.dte"));
  EXPECT_FALSE(File_Present("Autumn.dte.dte"));
  EXPECT_TRUE(File_Present("WINTER.DTE.dte"));
  EXPECT_EQ(Read_File("Spring.dte"), "\"Easter, Sunday, April 20, 2003\"\r\n");
}

TEST_F(frmSaveFileTest, AnExistingFileIsOverwrittenOnlyOnYes) {
  Write_File("Holidays.dte", "\"old\"\r\n");
  Open_Window();
  Ask_By_Holiday("Easter", "2003");
  Open_And_Cancel_Once();
  From_The_Button([this] {
    machine().Answer_Next(platform::vbNo, "Confirm Overwrite");
    Click(save().cmdSave);
    EXPECT_TRUE(save().isVisible());
  });
  EXPECT_EQ(machine().Messages().back().text, "A file with this name already exists. Overwrite?");
  EXPECT_EQ(machine().Messages().back().buttons, platform::vbYesNo);
  EXPECT_EQ(machine().Messages().back().icon, platform::vbExclamation);
  EXPECT_EQ(Read_File("Holidays.dte"), "\"old\"\r\n");
  From_The_Button([this] {
    machine().Answer_Next(platform::vbYes, "Confirm Overwrite");
    Click(save().cmdSave);
    EXPECT_FALSE(save().isVisible());
  });
  EXPECT_EQ(Read_File("Holidays.dte"), "\"Easter, Sunday, April 20, 2003\"\r\n");
}

TEST_F(frmSaveFileTest, ANameWithAQuestionMarkGetsTheRenameMessageThatListsEightCharacters) {
  Open_Window();
  Ask_By_Holiday("Easter", "2003");
  Open_And_Cancel_Once();
  From_The_Button([this] {
    machine().Answer_Next(platform::vbOK, "Rename");
    Save_As("What?");
    EXPECT_TRUE(save().isVisible());
  });
  EXPECT_EQ(machine().Messages().back().text,
            "A file name cannot contain any of the following characters:\r\\/:*\"<>|");
  EXPECT_EQ(machine().Messages().back().icon, platform::vbCritical);
  EXPECT_EQ(QDir::current().entryList({"What*"}).size(), 0);
  EXPECT_EQ(save().File_Name_Validity_Check("What?"), 0);
  EXPECT_EQ(save().File_Name_Validity_Check("What"), 1);
}

TEST_F(frmSaveFileTest, ANameOfBlanksPassesTheCheckAndIsThenRefusedAsInvalid) {
  Open_Window();
  Ask_By_Holiday("Easter", "2003");
  Open_And_Cancel_Once();
  From_The_Button([this] {
    machine().Answer_Next(platform::vbOK, "Rename");
    Save_As("   ");
    EXPECT_TRUE(save().isVisible());
  });
  EXPECT_EQ(machine().Messages().back().text, "That file name is invalid.");
  EXPECT_EQ(machine().Messages().back().icon, platform::vbCritical);
  EXPECT_EQ(save().File_Name_Validity_Check("   "), 1);
}

TEST_F(frmSaveFileTest, AFileThatCannotBeWrittenIsRefusedAsInvalid) {
  QDir().mkdir("Taken.dte");
  Open_Window();
  Ask_By_Holiday("Easter", "2003");
  Open_And_Cancel_Once();
  From_The_Button([this] {
    machine().Answer_Next(platform::vbOK, "Rename");
    Save_As("Taken");
    EXPECT_TRUE(save().isVisible());
  });
  EXPECT_EQ(machine().Messages().back().text, "That file name is invalid.");
}

TEST_F(frmSaveFileTest, AListIsSavedInTheChosenFolder) {
  QDir().mkdir("lists");
  Open_Window();
  Ask_By_Holiday("Easter", "2003");
  Open_And_Cancel_Once();
  From_The_Button([this] {
    save().DirSaveIn->Set_Path(QDir::current().filePath("lists"));
    Save_As("Spring");
  });
  EXPECT_TRUE(File_Present("lists/Spring.dte"));
}

TEST_F(frmSaveFileTest, AnyOtherCallerNameMakesSaveDoNothing) {
  Open_Window();
  Ask_By_Holiday("Easter", "2003");
  for (const char* caller : {"", "frmfindaholiday", "Form1"}) {
    When_Modal([this, caller] {
      controls::Set_Caption(save().lblStoreCallingProcedure, caller);
      Save_As("Nothing");
      EXPECT_TRUE(save().isVisible()) << caller;
      Click(save().cmdCancel);
    });
    save().Show_Modal();
  }
  EXPECT_FALSE(File_Present("Nothing.dte"));
}

TEST_F(frmSaveFileTest, CancelAndTheFrameHideTheWindow) {
  When_Modal([this] { Click(save().cmdCancel); });
  save().Show_Modal();
  EXPECT_FALSE(save().isVisible());
  When_Modal([this] { save().close(); });
  save().Show_Modal();
  EXPECT_FALSE(save().isVisible());
}

}  // namespace
}  // namespace orrivane
