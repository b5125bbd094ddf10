// The log files as the user meets them: New Log, opening and saving through the file windows
// from the Organizer and from both calendar windows, by menu and by key; Save Log standing on
// the three windows together; the question about unsaved changes from each of its askers with
// each answer; and the wait at exit for a log being named.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QListWidget>
#include <QTest>

#include "calendar/calendar_window_test.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/log_file.h"
#include "organizer/log_samples.h"
#include "organizer/organizer_callers.h"
#include "shell/frmOpenFile.h"
#include "shell/frmSaveFile.h"
#include "support/golden.h"

namespace orrivane {
namespace {

using organizer::samples::Dentist_Task;
using organizer::samples::kBenMarker28Lines;
using organizer::samples::kBenMarker8Lines;
using organizer::samples::kDentistBytes;
using testing::CalendarWindowTest;
using testing::Golden_Case_Name;
using testing::Golden_Cases;
using testing::GoldenCase;
using testing::ShownMessage;

constexpr const char* kLogWithoutFile = "The current log has not been saved. Save it now?";

class LogFilesTest : public CalendarWindowTest {
 protected:
  frmScheduler_Reminder& organizer() { return Window<frmScheduler_Reminder>(); }
  frmOpenFile& open() { return Window<frmOpenFile>(); }
  frmSaveFile& save() { return Window<frmSaveFile>(); }

  // Starts the program and opens the Organizer from the large calendar.
  void Start_With_Organizer() {
    Start_Program();
    Trigger(large(), "mnuSchedulerReminder");
    Process_Events();
  }

  // A change of the log, as adding a task makes one.
  void Change_Log(const std::string& task_name = "Dentist") {
    organizer::ScheduleRecord task = Dentist_Task();
    task.Task_Name = task_name;
    organizer::Append_Record(organizer::kScheduleFile, task);
    organizer().Save_File_Prompt_Flag = 1;
  }

  // Runs `inside` in the modal `window` that `opening` brings up; its Cancel hides it afterwards
  // when `inside` left it standing.
  void In_Window(QDialog& window, QPushButton* cancel, const std::function<void()>& opening,
                 const std::function<void()>& inside) {
    When_Modal([this, &window, cancel, inside] {
      EXPECT_TRUE(window.isVisible());
      inside();
      if (window.isVisible()) Click(cancel);
    });
    opening();
  }
  void In_Save_Window(const std::function<void()>& opening, const std::function<void()>& inside) {
    In_Window(save(), save().cmdCancel, opening, inside);
  }
  void In_Open_Window(const std::function<void()>& opening, const std::function<void()>& inside) {
    In_Window(open(), open().cmdCancel, opening, inside);
  }
  void Type_Name_And_Save(const QString& name) {
    Type(save().txtFileName, name);
    Click(save().cmdSave);
  }
  // Save Log As from the Organizer's menu, under `name` in the test's folder; answers whether
  // the save window still stood after Save.
  bool Save_As(const QString& name) {
    bool standing = false;
    In_Save_Window([this] { Trigger(organizer(), "mnuSaveAs"); },
                   [this, name, &standing] {
                     Type_Name_And_Save(name);
                     standing = save().isVisible();
                   });
    return standing;
  }

  void Choose_File(const QString& name) {
    const auto found = open().filFileOpen->findItems(name, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << name.toStdString();
    open().filFileOpen->setCurrentItem(found.front());
  }
  void Choose_And_Open(const QString& name) {
    Choose_File(name);
    Click(open().cmdOpen);
  }
  // Opens a log from the Organizer's menu.
  void Open_Log(const QString& name) {
    In_Open_Window([this] { Trigger(organizer(), "mnuOpenSchedule"); }, [this, name] { Choose_And_Open(name); });
  }

  bool Save_Log_Enabled_On(QWidget& window, const char* entry) { return Menu(window, entry)->isEnabled(); }
  // The Enabled state of Save Log on the Organizer and both calendar windows.
  std::vector<bool> Save_Log_States() {
    return {Save_Log_Enabled_On(organizer(), "mnuSave"), Save_Log_Enabled_On(main(), "mnuSaveLog"),
            Save_Log_Enabled_On(large(), "mnuSaveLog")};
  }

  std::string Stored_File_Name() { return Label(main(), "lblStoreScheduleFileName"); }
  std::string Stored_Folder() { return Label(main(), "lblStoreScheduleFilePath"); }
  std::string Folder_As_Stored() { return QDir::currentPath().toStdString() + "/"; }

  const ShownMessage& Last_Message() { return machine().Messages().back(); }
  void Expect_Question(const ShownMessage& shown, const std::string& text, int buttons) {
    EXPECT_EQ(shown.title, "Save Changes");
    EXPECT_EQ(shown.text, text);
    EXPECT_EQ(shown.buttons, buttons);
    EXPECT_EQ(shown.icon, platform::vbQuestion);
  }
  // The titles of the messages shown, in order.
  std::vector<std::string> Titles() {
    std::vector<std::string> titles;
    for (const ShownMessage& shown : machine().Messages()) titles.push_back(shown.title);
    return titles;
  }

  // Leaves the program by Exit of the large calendar, answering Yes to "Confirm" and, when
  // given, `save_answer` to the question about unsaved changes.
  void Exit_Program(std::optional<int> save_answer = std::nullopt) {
    machine().Answer_Next(platform::vbYes, "Confirm");
    if (save_answer) machine().Answer_Next(*save_answer, "Save Changes");
    Until_The_End([this] { Click(large().cmdExit); });
  }
};

// ---- The entries and their keys --------------------------------------------------------------

TEST_F(LogFilesTest, TheOrganizersEntriesCarryTheirShortcuts) {
  Start_With_Organizer();
  EXPECT_EQ(Menu(organizer(), "mnuNewSchedule")->shortcut(), QKeySequence("Ctrl+N"));
  EXPECT_EQ(Menu(organizer(), "mnuOpenSchedule")->shortcut(), QKeySequence("Ctrl+O"));
  EXPECT_EQ(Menu(organizer(), "mnuSave")->shortcut(), QKeySequence("Ctrl+S"));
  EXPECT_EQ(Menu(organizer(), "mnuSaveAs")->shortcut(), QKeySequence("Ctrl+V"));
  EXPECT_EQ(Menu(organizer(), "mnuSave")->text().toStdString(), "Save Log");
  EXPECT_EQ(Menu(organizer(), "mnuNewSchedule")->text().toStdString(), "New Log");
}

TEST_F(LogFilesTest, CtrlOOnTheOrganizerListsLogFilesAndNamesTheOrganizer) {
  Write_File("week.sdl", kDentistBytes);
  Write_File("notes.txt", "");
  Start_With_Organizer();
  In_Open_Window([this] { Press_Keys(organizer(), QKeySequence("Ctrl+O")); },
                 [this] {
                   EXPECT_EQ(open().filFileOpen->Pattern().toStdString(), "*.sdl");
                   EXPECT_EQ(Label(open(), "lblStoreCallingProcedure"), "frmScheduler_Reminder");
                   ASSERT_EQ(open().filFileOpen->count(), 1);
                   EXPECT_EQ(open().filFileOpen->item(0)->text().toStdString(), "week.sdl");
                   Choose_And_Open("week.sdl");
                 });
  EXPECT_EQ(Read_File("Schedule.tmp"), kDentistBytes);
  EXPECT_EQ(Stored_File_Name(), "week.sdl");
}

TEST_F(LogFilesTest, CtrlVOnTheOrganizerProposesScheduleSdlAndCtrlSSavesUnderThatName) {
  Start_With_Organizer();
  Change_Log();
  In_Save_Window([this] { Press_Keys(organizer(), QKeySequence("Ctrl+V")); },
                 [this] {
                   EXPECT_EQ(Label(save(), "lblStoreCallingProcedure"), "frmScheduler_Reminder");
                   EXPECT_EQ(save().txtFileName->text().toStdString(), "Schedule.sdl");
                   Click(save().cmdSave);
                 });
  EXPECT_EQ(Read_File("Schedule.sdl"), kDentistBytes);
  Change_Log("Gym");
  Press_Keys(organizer(), QKeySequence("Ctrl+S"));
  EXPECT_EQ(Read_File("Schedule.sdl"), Read_File("Schedule.tmp"));
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
  EXPECT_TRUE(machine().Messages().empty());
}

TEST_F(LogFilesTest, CtrlNOnTheOrganizerStartsANewLog) {
  Start_With_Organizer();
  Change_Log();
  machine().Answer_Next(platform::vbNo, "Save Changes");
  Press_Keys(organizer(), QKeySequence("Ctrl+N"));
  Expect_Question(Last_Message(), kLogWithoutFile, platform::vbYesNoCancel);
  EXPECT_EQ(Read_File("Schedule.tmp"), "");
}

TEST_F(LogFilesTest, OpenLogOfEachCalendarWindowNamesThatWindow) {
  Write_File("week.sdl", kDentistBytes);
  Start_Program();
  In_Open_Window([this] { Press_Keys(large(), QKeySequence("Ctrl+O")); },
                 [this] {
                   EXPECT_EQ(Label(open(), "lblStoreCallingProcedure"), "frmLargeCalendar.mnuOpenLog_Click()");
                   EXPECT_EQ(open().filFileOpen->Pattern().toStdString(), "*.sdl");
                   Choose_And_Open("week.sdl");
                   EXPECT_FALSE(open().isVisible());
                 });
  EXPECT_EQ(Read_File("Schedule.tmp"), kDentistBytes);
  Write_File("Schedule.tmp", "");
  Press_Keys(large(), QKeySequence(Qt::Key_F4));
  In_Open_Window([this] { Press_Keys(main(), QKeySequence("Ctrl+O")); },
                 [this] {
                   EXPECT_EQ(Label(open(), "lblStoreCallingProcedure"), "form1.mnuOpenLog_Click()");
                   EXPECT_EQ(open().filFileOpen->Pattern().toStdString(), "*.sdl");
                   Choose_And_Open("week.sdl");
                 });
  EXPECT_EQ(Read_File("Schedule.tmp"), kDentistBytes);
}

TEST_F(LogFilesTest, NewLogOfEachCalendarWindowStartsANewLog) {
  Start_Program();
  for (QWidget* window : {static_cast<QWidget*>(&large()), static_cast<QWidget*>(&main())}) {
    Change_Log();
    machine().Answer_Next(platform::vbNo, "Save Changes");
    Trigger(*window, "mnuNewLog");
    Expect_Question(Last_Message(), kLogWithoutFile, platform::vbYesNoCancel);
    EXPECT_EQ(Read_File("Schedule.tmp"), "");
  }
  EXPECT_TRUE(Menu(main(), "mnuNewLog")->shortcut().isEmpty());
}

TEST_F(LogFilesTest, SaveAsAndSaveByKeyOnEachCalendarWindow) {
  Start_Program();
  Change_Log();
  // The member box takes Ctrl+V as paste while it has the focus: the keys go to a button.
  large().cmdNextMonth->setFocus();
  In_Save_Window([this] { Press_Keys(large(), QKeySequence("Ctrl+V")); },
                 [this] {
                   EXPECT_EQ(Label(save(), "lblStoreCallingProcedure"), "frmScheduler_Reminder");
                   Type_Name_And_Save("week");
                 });
  EXPECT_EQ(Read_File("week.sdl"), kDentistBytes);
  Change_Log("Gym");
  Press_Keys(large(), QKeySequence("Ctrl+S"));
  EXPECT_EQ(Read_File("week.sdl"), Read_File("Schedule.tmp"));
  Press_Keys(large(), QKeySequence(Qt::Key_F4));
  Change_Log("Vet");
  Press_Keys(main(), QKeySequence("Ctrl+S"));
  EXPECT_EQ(Read_File("week.sdl"), Read_File("Schedule.tmp"));
  In_Save_Window([this] { Press_Keys(main(), QKeySequence("Ctrl+V")); }, [this] { Type_Name_And_Save("month"); });
  EXPECT_EQ(Read_File("month.sdl"), Read_File("Schedule.tmp"));
  EXPECT_EQ(Stored_File_Name(), "month.sdl");
}

TEST_F(LogFilesTest, F3AndTheOrganizerButtonBringTheOrganizerToTheFront) {
  Start_Program();
  Press_Keys(large(), QKeySequence(Qt::Key_F3));
  EXPECT_TRUE(organizer().isVisible());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&organizer()));
  Click(organizer().cmdCloseScheduler);
  EXPECT_FALSE(organizer().isVisible());
  Press_Keys(large(), QKeySequence(Qt::Key_F4));
  Press_Keys(main(), QKeySequence(Qt::Key_F3));
  EXPECT_TRUE(organizer().isVisible());
  Click(organizer().cmdCloseScheduler);
  EXPECT_TRUE(main().cmdOrganizer->isEnabled());
  Click(main().cmdOrganizer);
  EXPECT_TRUE(organizer().isVisible());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&organizer()));
}

TEST_F(LogFilesTest, SaveLogStandsOnTheThreeWindowsTogether) {
  Write_File("week.sdl", kDentistBytes);
  Start_With_Organizer();
  EXPECT_EQ(Save_Log_States(), (std::vector<bool>{false, false, false}));
  Save_As("month");
  EXPECT_EQ(Save_Log_States(), (std::vector<bool>{true, true, true}));
  Trigger(organizer(), "mnuNewSchedule");
  EXPECT_EQ(Save_Log_States(), (std::vector<bool>{false, false, false}));
  Open_Log("week.sdl");
  EXPECT_EQ(Save_Log_States(), (std::vector<bool>{true, true, true}));
  organizer().Set_mnuSave(false);
  EXPECT_EQ(Save_Log_States(), (std::vector<bool>{false, false, false}));
}

TEST_F(LogFilesTest, TheProgramStartsWithNothingUnsaved) {
  Window<frmScheduler_Reminder>().Save_File_Prompt_Flag = 1;
  Start_Program();
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
}

// ---- The question about unsaved changes -------------------------------------------------------

constexpr std::string_view kAskers[] = {organizer::kTerminateThisProgram, organizer::kOrganizerFormUnload,
                                        organizer::kNewScheduleClick, organizer::kOpenScheduleFile};

int Buttons_Of(std::string_view origin) {
  const bool leaving = origin == organizer::kTerminateThisProgram || origin == organizer::kOrganizerFormUnload;
  return leaving ? platform::vbYesNo : platform::vbYesNoCancel;
}

TEST_F(LogFilesTest, WithoutChangesNobodyIsAsked) {
  Start_Program();
  for (std::string_view origin : kAskers) {
    EXPECT_FALSE(organizer().Prompt_To_Save_Schedule_File(origin).has_value()) << origin;
    EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0) << origin;
  }
  EXPECT_TRUE(machine().Messages().empty());
}

TEST_F(LogFilesTest, NoLeavesTheChangesCaredForExceptAtUnloading) {
  Start_Program();
  for (std::string_view origin : kAskers) {
    SCOPED_TRACE(origin);
    Change_Log();
    machine().Answer_Next(platform::vbNo, "Save Changes");
    EXPECT_EQ(organizer().Prompt_To_Save_Schedule_File(origin), platform::vbNo);
    Expect_Question(Last_Message(), kLogWithoutFile, Buttons_Of(origin));
    EXPECT_EQ(organizer().Save_File_Prompt_Flag, origin == organizer::kOrganizerFormUnload ? 0 : 1);
  }
}

TEST_F(LogFilesTest, CancelIsOfferedWhereAnotherLogWouldComeAndChangesNothing) {
  Start_Program();
  Change_Log();
  for (std::string_view origin : {organizer::kNewScheduleClick, organizer::kOpenScheduleFile}) {
    machine().Answer_Next(platform::vbCancel, "Save Changes");
    EXPECT_EQ(organizer().Prompt_To_Save_Schedule_File(origin), platform::vbCancel) << origin;
    EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1) << origin;
  }
}

TEST_F(LogFilesTest, YesWithAFileNamesTheFileAndSavesItWithoutAWindow) {
  Start_With_Organizer();
  Save_As("week");
  for (std::string_view origin : kAskers) {
    SCOPED_TRACE(origin);
    Change_Log(std::string(origin));
    machine().Answer_Next(platform::vbYes, "Save Changes");
    EXPECT_EQ(organizer().Prompt_To_Save_Schedule_File(origin), platform::vbYes);
    Expect_Question(Last_Message(), "Save changes to week.sdl?", Buttons_Of(origin));
    EXPECT_EQ(Read_File("week.sdl"), Read_File("Schedule.tmp"));
    EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
    EXPECT_FALSE(save().isVisible());
  }
}

TEST_F(LogFilesTest, YesWithoutAFileShowsTheSaveWindowAndTheChangesCountAsCaredFor) {
  Start_Program();
  for (std::string_view origin : kAskers) {
    SCOPED_TRACE(origin);
    Change_Log();
    machine().Answer_Next(platform::vbYes, "Save Changes");
    std::optional<int> answer;
    In_Save_Window([&] { answer = organizer().Prompt_To_Save_Schedule_File(origin); },
                   [this] {
                     EXPECT_EQ(Label(save(), "lblStoreCallingProcedure"), "frmScheduler_Reminder");
                     EXPECT_EQ(save().txtFileName->text().toStdString(), "Schedule.sdl");
                     EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
                   });
    EXPECT_EQ(answer, platform::vbYes);
    Expect_Question(machine().Messages().back(), kLogWithoutFile, Buttons_Of(origin));
    // Cancelled in the save window: nothing was saved, and yet nobody asks again.
    EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
    EXPECT_FALSE(File_Present("Schedule.sdl"));
  }
}

// ---- Leaving -----------------------------------------------------------------------------------

TEST_F(LogFilesTest, NewLogAnsweredNoThenExitAsksOnceMore) {
  Start_With_Organizer();
  Change_Log();
  machine().Answer_Next(platform::vbNo, "Save Changes");
  Trigger(organizer(), "mnuNewSchedule");
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
  Exit_Program(platform::vbNo);
  EXPECT_EQ(Titles(), (std::vector<std::string>{"Save Changes", "Confirm", "Save Changes"}));
  Expect_Question(Last_Message(), kLogWithoutFile, platform::vbYesNo);
  EXPECT_EQ(machine().Exit_Code(), 0);
}

TEST_F(LogFilesTest, NewLogOfALogWithAFileAnsweredNoThenExitAsksAsForALogWithout) {
  Start_With_Organizer();
  Save_As("week");
  Change_Log();
  machine().Answer_Next(platform::vbNo, "Save Changes");
  Trigger(organizer(), "mnuNewSchedule");
  Expect_Question(Last_Message(), "Save changes to week.sdl?", platform::vbYesNoCancel);
  Exit_Program(platform::vbNo);
  Expect_Question(Last_Message(), kLogWithoutFile, platform::vbYesNo);
}

TEST_F(LogFilesTest, UnloadingTheOrganizerAnsweredNoThenExitAsksNothing) {
  Start_With_Organizer();
  Change_Log();
  machine().Answer_Next(platform::vbNo, "Save Changes");
  organizer().close();
  Expect_Question(Last_Message(), kLogWithoutFile, platform::vbYesNo);
  EXPECT_FALSE(organizer().isVisible());
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
  // The working copy still holds the changes.
  EXPECT_EQ(Read_File("Schedule.tmp"), kDentistBytes);
  Exit_Program();
  EXPECT_EQ(Titles(), (std::vector<std::string>{"Save Changes", "Confirm"}));
}

TEST_F(LogFilesTest, UnloadingTheOrganizerAnsweredYesOffersTheSaveWindow) {
  Start_With_Organizer();
  Change_Log();
  machine().Answer_Next(platform::vbYes, "Save Changes");
  In_Save_Window([this] { organizer().close(); }, [this] { Type_Name_And_Save("week"); });
  EXPECT_EQ(Read_File("week.sdl"), kDentistBytes);
  EXPECT_FALSE(organizer().isVisible());
}

TEST_F(LogFilesTest, HidingTheOrganizerAsksNothingAndExitAsks) {
  Start_With_Organizer();
  Change_Log();
  Click(organizer().cmdCloseScheduler);
  Trigger(large(), "mnuSchedulerReminder");
  Trigger(organizer(), "mnuCloseScheduler");
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
  Exit_Program(platform::vbNo);
  EXPECT_EQ(Titles(), (std::vector<std::string>{"Confirm", "Save Changes"}));
  Expect_Question(Last_Message(), kLogWithoutFile, platform::vbYesNo);
  EXPECT_FALSE(File_Present("Schedule.tmp"));
}

TEST_F(LogFilesTest, YesAtExitWithoutAFileWaitsForTheSaveWindowToSave) {
  Start_Program();
  Change_Log();
  machine().Answer_Next(platform::vbYes, "Confirm");
  machine().Answer_Next(platform::vbYes, "Save Changes");
  Until_The_End([this] {
    In_Save_Window([this] { Click(large().cmdExit); },
                   [this] {
                     EXPECT_TRUE(File_Present("Schedule.tmp"));
                     EXPECT_TRUE(File_Present("TRemin.tmp"));
                     EXPECT_FALSE(machine().Exit_Code().has_value());
                     Type_Name_And_Save("week");
                   });
  });
  EXPECT_EQ(machine().Exit_Code(), 0);
  EXPECT_EQ(Read_File("week.sdl"), kDentistBytes);
  EXPECT_FALSE(File_Present("Schedule.tmp"));
  EXPECT_FALSE(File_Present("TRemin.tmp"));
}

TEST_F(LogFilesTest, YesAtExitWithoutAFileWaitsForTheSaveWindowToBeCancelled) {
  Start_Program();
  Change_Log();
  machine().Answer_Next(platform::vbYes, "Save Changes");
  Until_The_End([this] {
    In_Save_Window([this] { large().close(); },
                   [this] {
                     EXPECT_TRUE(File_Present("Schedule.tmp"));
                     Click(save().cmdCancel);
                   });
  });
  EXPECT_EQ(machine().Exit_Code(), 0);
  EXPECT_FALSE(File_Present("Schedule.tmp"));
  EXPECT_FALSE(File_Present("Schedule.sdl"));
}

TEST_F(LogFilesTest, TheEndWaitsWhileTheSaveWindowStandsYieldingToTheWindowSystem) {
  Start_Program();
  int yields_seen = 0;
  machine().On_Yield([&] {
    EXPECT_TRUE(File_Present("Schedule.tmp"));
    if (++yields_seen == 3) Click(save().cmdCancel);
  });
  Until_The_End([this] {
    In_Save_Window([this] { organizer().Activate_Save_File_Window(); },
                   [this] { main().Terminate_This_Program("Form_Unload"); });
  });
  EXPECT_EQ(yields_seen, 3);
  EXPECT_EQ(machine().Exit_Code(), 0);
  EXPECT_FALSE(File_Present("Schedule.tmp"));
}

TEST_F(LogFilesTest, YesAtExitWithAFileSavesItThereAndEnds) {
  Start_With_Organizer();
  Save_As("week");
  Change_Log("Gym");
  const std::string changed = Read_File("Schedule.tmp");
  Exit_Program(platform::vbYes);
  Expect_Question(Last_Message(), "Save changes to week.sdl?", platform::vbYesNo);
  EXPECT_EQ(Read_File("week.sdl"), changed);
  EXPECT_FALSE(File_Present("Schedule.tmp"));
}

// ---- New Log -----------------------------------------------------------------------------------

TEST_F(LogFilesTest, NewLogEmptiesTheWorkingFilesTheListsAndTheFileAndLeavesTheFlag) {
  Write_File("week.sdl", kDentistBytes);
  Start_With_Organizer();
  Open_Log("week.sdl");
  EXPECT_EQ(Read_File("TRemin.tmp"), kDentistBytes);
  organizer().lstListOfPeople->addItem("Anna");
  organizer().lstScheduleList->addItem("2001, 03Mar 05, 14:30 Dentist, #1");
  large().cboShowTaskListFor->addItem("Anna");
  Change_Log();
  machine().Answer_Next(platform::vbNo, "Save Changes");
  Trigger(organizer(), "mnuNewSchedule");
  EXPECT_EQ(Read_File("Schedule.tmp"), "");
  EXPECT_EQ(Read_File("TRemin.tmp"), "");
  EXPECT_EQ(organizer().lstListOfPeople->count(), 0);
  EXPECT_EQ(organizer().lstScheduleList->count(), 0);
  EXPECT_EQ(large().cboShowTaskListFor->count(), 0);
  EXPECT_EQ(Stored_File_Name(), "");
  EXPECT_EQ(Stored_Folder(), "");
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
  EXPECT_EQ(Read_File("week.sdl"), kDentistBytes);
}

TEST_F(LogFilesTest, NewLogCancelledChangesNothing) {
  Start_With_Organizer();
  Save_As("week");
  Change_Log();
  organizer().lstListOfPeople->addItem("Anna");
  machine().Answer_Next(platform::vbCancel, "Save Changes");
  Trigger(organizer(), "mnuNewSchedule");
  EXPECT_EQ(Read_File("Schedule.tmp"), kDentistBytes);
  EXPECT_EQ(organizer().lstListOfPeople->count(), 1);
  EXPECT_EQ(Stored_File_Name(), "week.sdl");
  EXPECT_EQ(Save_Log_States(), (std::vector<bool>{true, true, true}));
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
}

TEST_F(LogFilesTest, NewLogAnsweredYesSavesTheOldLogFirst) {
  Start_With_Organizer();
  Save_As("week");
  Change_Log();
  machine().Answer_Next(platform::vbYes, "Save Changes");
  Trigger(organizer(), "mnuNewSchedule");
  EXPECT_EQ(Read_File("week.sdl"), kDentistBytes);
  EXPECT_EQ(Read_File("Schedule.tmp"), "");
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
}

TEST_F(LogFilesTest, NewLogWithoutChangesAsksNothing) {
  Start_With_Organizer();
  Trigger(organizer(), "mnuNewSchedule");
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(Read_File("Schedule.tmp"), "");
}

// ---- Opening a log -----------------------------------------------------------------------------

TEST_F(LogFilesTest, OpeningALogReplacesTheWorkingCopyAndKeepsItsFile) {
  Write_File("week.sdl", kDentistBytes + kBenMarker28Lines);
  Start_With_Organizer();
  organizer().lstListOfPeople->addItem("Old");
  organizer().lstScheduleList->addItem("old task");
  large().cboShowTaskListFor->addItem("Old");
  Change_Log("Old task");
  machine().Answer_Next(platform::vbNo, "Save Changes");
  In_Open_Window([this] { Trigger(organizer(), "mnuOpenSchedule"); },
                 [this] {
                   Choose_And_Open("week.sdl");
                   EXPECT_FALSE(open().isVisible());
                   EXPECT_FALSE(open().cmdOpen->isEnabled());
                 });
  Expect_Question(Last_Message(), kLogWithoutFile, platform::vbYesNoCancel);
  EXPECT_EQ(Read_File("Schedule.tmp"), kDentistBytes + kBenMarker8Lines);
  EXPECT_EQ(Read_File("TRemin.tmp"), kDentistBytes);
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
  EXPECT_EQ(Stored_File_Name(), "week.sdl");
  EXPECT_EQ(Stored_Folder(), Folder_As_Stored());
  // The old members went; the refresh lists the members of the log opened.
  ASSERT_EQ(organizer().lstListOfPeople->count(), 2);
  EXPECT_EQ(organizer().lstListOfPeople->item(0)->text().toStdString(), "Anna");
  EXPECT_EQ(organizer().lstListOfPeople->item(1)->text().toStdString(), "Ben");
  EXPECT_EQ(organizer().lstScheduleList->count(), 0);
  EXPECT_EQ(large().cboShowTaskListFor->count(), 0);
  EXPECT_EQ(controls::Caption(organizer().lblFileName), "week.sdl");
  EXPECT_EQ(Save_Log_States(), (std::vector<bool>{true, true, true}));
  EXPECT_EQ(Read_File("week.sdl"), kDentistBytes + kBenMarker28Lines);
}

TEST_F(LogFilesTest, ALogSavedAndOpenedAgainHasTheRemindersOfItsTasksInLogOrder) {
  Start_With_Organizer();
  const std::vector<std::pair<const char*, int>> tasks = {{"Dentist", 1}, {"Gym", 0}, {"Vet", 1}, {"Bank", 0}};
  std::string reminders;
  for (const auto& [name, status] : tasks) {
    organizer::ScheduleRecord task = Dentist_Task();
    task.Task_Name = name;
    task.Reminder_Status = status;
    const std::size_t before = Read_File("Schedule.tmp").size();
    organizer::Append_Record(organizer::kScheduleFile, task);
    if (status == 1) reminders += Read_File("Schedule.tmp").substr(before);  // the record as it was written
  }
  organizer::Generate_Person_Marker_Record(organizer::kScheduleFile, "Ben");
  organizer().Save_File_Prompt_Flag = 1;
  Save_As("week");
  Trigger(organizer(), "mnuNewSchedule");
  Open_Log("week.sdl");
  std::vector<std::string> names;
  organizer::For_Each_Record(organizer::kTaskReminderFile, [&names](const organizer::ScheduleRecord& record) {
    names.push_back(record.Task_Name.text());
  });
  EXPECT_EQ(names, (std::vector<std::string>{"Dentist", "Vet"}));
  EXPECT_EQ(Read_File("TRemin.tmp"), reminders);
}

TEST_F(LogFilesTest, OpeningFromAnotherFolderKeepsThatFolder) {
  QDir().mkdir("logs");
  Write_File("logs/week.sdl", kDentistBytes);
  Start_With_Organizer();
  In_Open_Window([this] { Trigger(organizer(), "mnuOpenSchedule"); },
                 [this] {
                   open().DirChooseDirectory->Set_Path(QDir::current().filePath("logs"));
                   Choose_And_Open("week.sdl");
                 });
  EXPECT_EQ(Stored_Folder(), QDir::current().filePath("logs").toStdString() + "/");
  Change_Log("Gym");
  Press_Keys(organizer(), QKeySequence("Ctrl+S"));
  EXPECT_EQ(Read_File("logs/week.sdl"), Read_File("Schedule.tmp"));
  EXPECT_FALSE(File_Present("week.sdl"));
}

TEST_F(LogFilesTest, CancelAtTheQuestionKeepsTheOpenWindowStanding) {
  Write_File("week.sdl", kDentistBytes + kBenMarker28Lines);
  Start_With_Organizer();
  Change_Log("Mine");
  const std::string mine = Read_File("Schedule.tmp");
  machine().Answer_Next(platform::vbCancel, "Save Changes");
  In_Open_Window([this] { Trigger(organizer(), "mnuOpenSchedule"); },
                 [this] {
                   Choose_And_Open("week.sdl");
                   EXPECT_TRUE(open().isVisible());
                 });
  EXPECT_EQ(Read_File("Schedule.tmp"), mine);
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
  EXPECT_EQ(Save_Log_States(), (std::vector<bool>{false, false, false}));
}

TEST_F(LogFilesTest, YesAtOpeningWithoutAFileNamesTheOldLogFirst) {
  Write_File("week.sdl", kBenMarker28Lines);
  Start_With_Organizer();
  Change_Log();
  machine().Answer_Next(platform::vbYes, "Save Changes");
  In_Open_Window([this] { Trigger(organizer(), "mnuOpenSchedule"); },
                 [this] {
                   Choose_File("week.sdl");
                   In_Save_Window([this] { Click(open().cmdOpen); }, [this] { Type_Name_And_Save("old"); });
                 });
  EXPECT_EQ(Read_File("old.sdl"), kDentistBytes);
  EXPECT_EQ(Read_File("Schedule.tmp"), kBenMarker8Lines);
  EXPECT_EQ(Stored_File_Name(), "week.sdl");
}

TEST_F(LogFilesTest, ATruncatedLogEndsTheProgramWithWhatWasCopiedInTheWorkingCopy) {
  Write_File("broken.sdl", kDentistBytes + "-1\r\n-1,-1,-1,-1\r\n");
  Start_With_Organizer();
  machine().Answer_Next(platform::vbOK, "Orrivane");
  Until_The_End([this] { Open_Log("broken.sdl"); });
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(Last_Message().text, "Run-time error '62':\n\nInput past end of file");
  EXPECT_EQ(Last_Message().icon, platform::vbCritical);
  EXPECT_EQ(machine().Exit_Code(), 1);
  EXPECT_EQ(Read_File("Schedule.tmp"), kDentistBytes);
  EXPECT_EQ(Read_File("TRemin.tmp"), kDentistBytes);
}

TEST_F(LogFilesTest, AFileThatIsNoLogLoadsAsItStandsWithoutAWord) {
  std::string values = "1";
  for (int i = 1; i < 28; ++i) values += ",1";  // 28 values on one line, as no writer puts them
  Write_File("numbers.sdl", values + "\r\n");
  Start_With_Organizer();
  Open_Log("numbers.sdl");
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_EQ(Stored_File_Name(), "numbers.sdl");
  const std::string as_a_record = "1\r\n1,1,1,1\r\n1,1,1,1,1\r\n1\r\n1,1,1,1,1,1\r\n1,1\r\n1,1,1,1,1\r\n1,1,1,1\r\n";
  EXPECT_EQ(Read_File("Schedule.tmp"), as_a_record);
  // Its twentieth value is 1: a task with a reminder, as far as anybody looks.
  EXPECT_EQ(Read_File("TRemin.tmp"), as_a_record);
}

// ---- Saving under a name -----------------------------------------------------------------------

TEST_F(LogFilesTest, SavingUnderANameAddsTheExtensionAndKeepsTheFile) {
  Start_With_Organizer();
  Change_Log();
  EXPECT_FALSE(Save_As("week"));
  EXPECT_EQ(Read_File("week.sdl"), kDentistBytes);
  EXPECT_EQ(Stored_File_Name(), "week.sdl");
  EXPECT_EQ(Stored_Folder(), Folder_As_Stored());
  EXPECT_EQ(Label(organizer(), "lblFileName"), "week.sdl");
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
  EXPECT_TRUE(machine().Messages().empty());
}

TEST_F(LogFilesTest, TheExtensionIsComparedExactly) {
  Start_With_Organizer();
  Change_Log();
  Save_As("week.SDL");
  EXPECT_EQ(Read_File("week.SDL.sdl"), kDentistBytes);
  EXPECT_EQ(Stored_File_Name(), "week.SDL.sdl");
  Save_As("month.sdl");
  EXPECT_EQ(Read_File("month.sdl"), kDentistBytes);
  EXPECT_FALSE(File_Present("month.sdl.sdl"));
}

TEST_F(LogFilesTest, ANameWithAForbiddenCharacterIsRefusedWithTheListThatLacksTheQuestionMark) {
  Start_With_Organizer();
  Change_Log();
  for (const char* name : {"a\\b", "a/b", "a:b", "a*b", "a?b", "a\"b", "a<b", "a>b", "a|b"}) {
    SCOPED_TRACE(name);
    machine().Clear_Messages();
    machine().Answer_Next(platform::vbOK, "Rename");
    EXPECT_TRUE(Save_As(QString::fromUtf8(name)));
    ASSERT_EQ(machine().Messages().size(), 1u);
    EXPECT_EQ(Last_Message().text, "A file name cannot contain any of the following characters:\r\\/:*\"<>|");
    EXPECT_EQ(Last_Message().buttons, platform::vbOKOnly);
    EXPECT_EQ(Last_Message().icon, platform::vbCritical);
  }
  EXPECT_EQ(QDir().entryList({"*.sdl"}, QDir::Files).size(), 0);
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
  EXPECT_EQ(Stored_File_Name(), "");
}

TEST_F(LogFilesTest, AnExistingFileIsOverwrittenOnlyAfterYes) {
  Write_File("week.sdl", kBenMarker28Lines);
  Start_With_Organizer();
  Change_Log();
  machine().Answer_Next(platform::vbNo, "Confirm Overwrite");
  EXPECT_TRUE(Save_As("week"));
  EXPECT_EQ(Last_Message().text, "A file with this name already exists. Overwrite?");
  EXPECT_EQ(Last_Message().buttons, platform::vbYesNo);
  EXPECT_EQ(Last_Message().icon, platform::vbExclamation);
  EXPECT_EQ(Read_File("week.sdl"), kBenMarker28Lines);
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
  machine().Answer_Next(platform::vbYes, "Confirm Overwrite");
  Save_As("week");
  EXPECT_EQ(Read_File("week.sdl"), kDentistBytes);
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
}

TEST_F(LogFilesTest, AFailedWriteCountsAsSavedAndNothingIsSaid) {
  QDir().mkdir("week.sdl");  // a folder where the file should go: no one can write it, root neither
  Start_With_Organizer();
  Change_Log();
  EXPECT_FALSE(Save_As("week"));
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_TRUE(QFileInfo("week.sdl").isDir());
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
  EXPECT_EQ(Stored_File_Name(), "week.sdl");
  EXPECT_EQ(Save_Log_States(), (std::vector<bool>{true, true, true}));
  // Leaving asks nothing about the log.
  Exit_Program();
  EXPECT_EQ(Titles(), std::vector<std::string>{"Confirm"});
}

TEST_F(LogFilesTest, AQuickSaveThatCannotOpenItsFileEndsTheProgram) {
  Start_With_Organizer();
  Save_As("week");
  QFile::remove("week.sdl");
  QDir().mkdir("week.sdl");
  Change_Log();
  machine().Answer_Next(platform::vbOK, "Orrivane");
  Until_The_End([this] { Press_Keys(organizer(), QKeySequence("Ctrl+S")); });
  ASSERT_EQ(machine().Messages().size(), 1u);
  EXPECT_EQ(Last_Message().text, "Run-time error '75':\n\nPath/File access error");
  EXPECT_EQ(machine().Exit_Code(), 1);
  EXPECT_TRUE(File_Present("Schedule.tmp"));
}

// ---- Files byte for byte -----------------------------------------------------------------------

class LogFileGoldenTest : public LogFilesTest, public ::testing::WithParamInterface<GoldenCase> {};

using SavedAgainTest = LogFileGoldenTest;

// A log opened through the open window and saved under a new name through the save window.
TEST_P(SavedAgainTest, StandsByteForByte) {
  Write_File("opened.sdl", GetParam().Bytes("input.sdl"));
  Start_With_Organizer();
  Open_Log("opened.sdl");
  Save_As("copy");
  EXPECT_EQ(Read_File("copy.sdl"), GetParam().Expected());
  EXPECT_EQ(Read_File("Schedule.tmp"), GetParam().Expected());
  EXPECT_EQ(Read_File("opened.sdl"), GetParam().Bytes("input.sdl"));
}

INSTANTIATE_TEST_SUITE_P(Golden, SavedAgainTest, ::testing::ValuesIn(Golden_Cases("log_save_as")), Golden_Case_Name);

using TaskRemindersTest = LogFileGoldenTest;

// The reminders of the tasks of a log just opened: its records with Reminder_Status 1, in order.
TEST_P(TaskRemindersTest, StandByteForByte) {
  Write_File("opened.sdl", GetParam().Bytes("input.sdl"));
  Start_With_Organizer();
  Open_Log("opened.sdl");
  EXPECT_EQ(Read_File("TRemin.tmp"), GetParam().Expected());
}

INSTANTIATE_TEST_SUITE_P(Golden, TaskRemindersTest, ::testing::ValuesIn(Golden_Cases("log_reminders")),
                         Golden_Case_Name);

}  // namespace
}  // namespace orrivane
