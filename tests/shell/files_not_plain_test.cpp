// A name the program opens that stands for no plain file (a named pipe, a folder) ends in the
// run-time failure 75 through the orderly way every unhandled failure takes, or in the refusal a
// window gives for a file it cannot write: never in a wait for the other end of a pipe.
#include <QDir>
#include <QFile>
#include <string>

#include <sys/stat.h>

#include "calendar/calendar_window_test.h"
#include "holidays/find_a_holiday_window_test.h"
#include "shell/frmOpenFile.h"
#include "shell/frmSaveFile.h"

namespace orrivane {
namespace {

using testing::CalendarWindowTest;
using testing::FindAHolidayTest;

constexpr char kPathFileAccessText[] = "Run-time error '75':\n\nPath/File access error";

void Make_Pipe(const char* name) { ASSERT_EQ(::mkfifo(name, 0600), 0) << name; }

class StartWithWorkingFilesTest : public CalendarWindowTest {
 protected:
  // Starts the program, which ends at once with the failure 75 told in its box.
  void Expect_Start_To_End_With_75() {
    machine().Answer_Next(platform::vbOK, "Orrivane");
    Until_The_End([this] { Start_Program(); });
    ASSERT_EQ(machine().Messages().size(), 1u);
    EXPECT_EQ(machine().Messages()[0].title, "Orrivane");
    EXPECT_EQ(machine().Messages()[0].text, kPathFileAccessText);
    EXPECT_EQ(machine().Messages()[0].icon, platform::vbCritical);
    EXPECT_EQ(machine().Exit_Code(), 1);
  }
};

TEST_F(StartWithWorkingFilesTest, APipeNamedScheduleTmpEndsTheStartAsAFolderDoes) {
  Make_Pipe("Schedule.tmp");
  Expect_Start_To_End_With_75();
  EXPECT_TRUE(QFileInfo("Schedule.tmp").exists());  // left as it was
}

TEST_F(StartWithWorkingFilesTest, AFolderNamedScheduleTmpEndsTheStartTheSameWay) {
  QDir().mkdir("Schedule.tmp");
  Expect_Start_To_End_With_75();
}

TEST_F(StartWithWorkingFilesTest, APipeNamedTReminTmpEndsTheStartAfterScheduleTmpIsEmptied) {
  Write_File("Schedule.tmp", "left from the last run\r\n");
  Make_Pipe("TRemin.tmp");
  Expect_Start_To_End_With_75();
  EXPECT_EQ(Read_File("Schedule.tmp"), "");
}

class FileWindowsWithPipesTest : public FindAHolidayTest {
 protected:
  frmSaveFile& save() { return Window<frmSaveFile>(); }
  frmOpenFile& open() { return Window<frmOpenFile>(); }
};

TEST_F(FileWindowsWithPipesTest, SavingAListOnAPipeIsRefusedAsOnAFolder) {
  Make_Pipe("Taken.dte");
  Open_Window();
  Ask_By_Holiday("Easter", "2003");
  // As the save window's own tests do: once opened and cancelled, it knows its caller.
  When_Modal([this] { Click(save().cmdCancel); });
  Click(find().cmdSave);
  When_Modal([this] {
    Type(save().txtFileName, "Taken");
    machine().Answer_Next(platform::vbOK, "Rename");
    Click(save().cmdSave);  // no overwrite question: a pipe is no file there
    EXPECT_TRUE(save().isVisible());
    Click(save().cmdCancel);
  });
  Click(find().cmdSave);
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(machine().Messages()[0].text, "That file name is invalid.");
}

TEST_F(FileWindowsWithPipesTest, AListFileThatBecameAPipeEndsTheOpeningWithTheFailure75) {
  Write_File("spring.dte", "\"Easter, Sunday, April 20, 2003\"\r\n");
  Open_Window();
  machine().Answer_Next(platform::vbOK, "Orrivane");
  When_Modal([this] {
    const auto found = open().filFileOpen->findItems("spring.dte", Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1);
    open().filFileOpen->setCurrentItem(found.front());
    // Between the choice and the opening another program puts a pipe in the file's place.
    QFile::remove("spring.dte");
    Make_Pipe("spring.dte");
    Until_The_End([this] { Click(open().cmdOpen); });
    if (open().isVisible()) open().hide();
  });
  Trigger(find(), "mnuOpenFile");
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(machine().Messages()[0].text, kPathFileAccessText);
}

}  // namespace
}  // namespace orrivane
