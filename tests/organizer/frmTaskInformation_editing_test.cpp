// The task information window as an editor: the reminder switched on and off, comments typed,
// the colour through the palette, the reminder set anew, the three questions about a changed
// record, the save that rewrites the log and the list of task reminders, its menus and keys, and
// printing the window.
#include <QAction>
#include <QImage>

#include "organizer/task_edit_window_test.h"
#include "shell/frmOpenFile.h"

namespace orrivane {
namespace {

using controls::Caption;
using organizer::Make_Person_Marker;
using organizer::ScheduleRecord;
using testing::ShownMessage;
using testing::TaskEditWindowTest;

class frmTaskInformationEditingTest : public TaskEditWindowTest {
 protected:
  // Anna's dentist (number 1) with a reminder on, Ben's meeting (2) with none, each after its
  // member's marker as first written.
  static ScheduleRecord Dentist() { return Task_At(1, "Anna", 2001, "March", "05", "14", "30", "Dentist"); }
  static ScheduleRecord Meeting() { return Task_Without_Reminder(2, "Ben", 2001, "March", "06", "09", "00", "Meeting"); }
  void Show_Dentist() {
    organizer::Generate_Person_Marker_Record(organizer::kScheduleFile, "Anna");
    organizer::Append_Record(organizer::kScheduleFile, Dentist());
    organizer::Generate_Person_Marker_Record(organizer::kScheduleFile, "Ben");
    organizer::Append_Record(organizer::kScheduleFile, Meeting());
    Write_Reminders({Dentist()});
    log_before_ = Read_File(organizer::kScheduleFile);
    Show_From_Log(1);
  }
  std::vector<ScheduleRecord> Log() { return organizer::samples::Read_Log(organizer::kScheduleFile); }
  std::vector<ScheduleRecord> Reminders() { return organizer::samples::Read_Log(organizer::kTaskReminderFile); }
  void Expect_Question(const organizer::TaskEditMessage code) {
    Expect_Only_Message(organizer::Task_Edit_Message(code));
  }
  void Expect_Log_Unchanged() { EXPECT_EQ(Read_File(organizer::kScheduleFile), log_before_); }
  // The dentist as the window saves it in the place of another record: under that record's
  // number, with the reminder's status as the window shows it and no range flag (the times
  // window wasn't visited).
  static ScheduleRecord Dentist_Saved_As(int number, int status) {
    ScheduleRecord saved = Dentist();
    saved.Record_Number = number;
    saved.Reminder_Status = status;
    saved.Time_Range_Flag = Value();
    return saved;
  }

  std::string log_before_;
};

// ---- Changing the record in the window ------------------------------------------------------------

TEST_F(frmTaskInformationEditingTest, TheStatusButtonSwitchesTheReminderAndTheRecordCountsAsChanged) {
  Show_Dentist();
  EXPECT_EQ(Status(), "ON");
  Click(information().cmdStatus);
  EXPECT_EQ(Status(), "OFF");
  EXPECT_FALSE(information().cmdChange1->isEnabled());
  EXPECT_FALSE(information().lblMethod->isEnabled());
  EXPECT_TRUE(information().Record_Changed());
  Click(information().cmdStatus);
  EXPECT_EQ(Status(), "ON");
  EXPECT_TRUE(information().cmdChange1->isEnabled());
  EXPECT_TRUE(information().lblIntervalLabel->isEnabled());
}

TEST_F(frmTaskInformationEditingTest, TypingACommentChangesTheRecord) {
  Show_Dentist();
  EXPECT_FALSE(information().txtComments->isReadOnly());
  EXPECT_FALSE(information().Record_Changed());
  Type_Comments(" today");
  EXPECT_TRUE(information().Record_Changed());
}

TEST_F(frmTaskInformationEditingTest, TheColourButtonChangesTheRecordAtOnceEvenWhenThePaletteIsCancelled) {
  Show_Dentist();
  Trigger(information(), "cmdSelectNewColorCode");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&palette()));
  Process_Events();
  EXPECT_TRUE(information().Record_Changed());
  EXPECT_EQ(Caption(palette().lblStoreCallingProcedureArgument), organizer::kTaskInformationSelectColour);
  EXPECT_EQ(controls::Back_Color(palette().lblColorChoice), 16711680u) << "the task's own colour";
  Pick(12);
  Click(palette().cmdCancel);
  EXPECT_EQ(controls::Back_Color(information().lblColorCode), 16711680u);
  EXPECT_TRUE(information().Record_Changed());
}

TEST_F(frmTaskInformationEditingTest, ThePickedColourIsSavedAsFieldEighteen) {
  Show_Dentist();
  Trigger(information(), "cmdSelectNewColorCode");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&palette()));
  Process_Events();
  Pick(47);
  Click(palette().cmdSelect);
  EXPECT_EQ(controls::Back_Color(information().lblColorCode), 0x00FF00u);
  Save();
  EXPECT_EQ(Log()[1].Color_Code, Value(65280));
  EXPECT_EQ(Reminders()[0].Color_Code, Value(65280));
}

TEST_F(frmTaskInformationEditingTest, AReminderSetAnewIsSavedInItsPlace) {
  Show_Dentist();
  Trigger(information(), "cmdChange1");
  Process_Events();
  ASSERT_TRUE(reminder().isVisible());
  Click_Reminder_Option("optIntermittently2");
  Choose_Interval(0, "15");
  Select_Moment(0, "March", "05", "20", "01", "12", "00");
  Select_Moment(1, "March", "05", "20", "01", "14", "00");
  Trigger(reminder(), "cmdOK");
  EXPECT_TRUE(information().Record_Changed());
  EXPECT_EQ(Caption(information().lblMethod), organizer::kSeriesToSpecifiedTimeMethod);
  EXPECT_EQ(Caption(information().lblInterval), "15 Min");
  Save();
  const ScheduleRecord saved = Log()[1];
  EXPECT_EQ(saved.Reminder_Interval, Value(3));
  EXPECT_EQ(saved.Date_String[0], Value("March 5, 2001"));
  EXPECT_EQ(saved.Time_String[0], Value("12:00"));
  EXPECT_EQ(saved.Time_String[1], Value("14:00"));
  EXPECT_EQ(saved.Interval_Minutes, Value("15"));
  ASSERT_EQ(Reminders().size(), 1u);
  EXPECT_TRUE(organizer::samples::Same_Record(Reminders()[0], saved));
}

// ---- Saving -----------------------------------------------------------------------------------------

TEST_F(frmTaskInformationEditingTest, SavingAsksFirstAndNoWritesNothing) {
  Show_Dentist();
  Click(information().cmdStatus);
  Save(vbNo);
  Expect_Question(organizer::kConfirmSaveChanges);
  Expect_Log_Unchanged();
  EXPECT_TRUE(information().Record_Changed());
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 0);
  EXPECT_TRUE(information().isVisible());
}

TEST_F(frmTaskInformationEditingTest, SavingWithYesWritesTheRecordAndTheLogCountsAsChanged) {
  Show_Dentist();
  Click(information().cmdStatus);
  Save();
  Expect_Question(organizer::kConfirmSaveChanges);
  EXPECT_FALSE(information().Record_Changed());
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
  EXPECT_EQ(Log()[1].Reminder_Status, Value(0));
  EXPECT_TRUE(Reminders().empty());
  EXPECT_TRUE(File_Present(organizer::kScheduleScratchFile));
  EXPECT_FALSE(File_Present(organizer::kTaskReminderScratchFile));
  EXPECT_FALSE(main().TRemin_Is_In_Use(false, "Evaluate"));
  EXPECT_TRUE(information().isVisible());
}

TEST_F(frmTaskInformationEditingTest, AReminderSwitchedOffAndOnAgainComesBackAtTheEnd) {
  Show_In_Log({Make_Person_Marker("Anna"), Dentist(), Task_At(3, "Anna", 2001, "March", "07", "18", "00", "Gym")}, 1);
  const auto reminder_numbers = [this] {
    std::vector<std::string> numbers;
    for (const ScheduleRecord& record : Reminders()) numbers.push_back(record.Record_Number.text());
    return numbers;
  };
  ASSERT_EQ(reminder_numbers(), (std::vector<std::string>{"1", "3"}));
  Click(information().cmdStatus);
  Save();
  EXPECT_EQ(reminder_numbers(), std::vector<std::string>{"3"});
  Click(information().cmdStatus);
  Save();
  EXPECT_EQ(reminder_numbers(), (std::vector<std::string>{"3", "1"}));
  EXPECT_EQ(Log()[1].Reminder_Status, Value(1));
}

TEST_F(frmTaskInformationEditingTest, ControlSSavesFromTheKeyboard) {
  Show_Dentist();
  Type_Comments(" today");
  machine().Answer_Next(vbYes, "Save Changes");
  Press_Keys(information(), QKeySequence("Ctrl+S"));
  Process_Events();
  EXPECT_EQ(Log()[1].Task_Comments, Value("Bring X-rays today"));
}

TEST_F(frmTaskInformationEditingTest, CommentsOverTwoLinesAreSavedWithTheLogsLineBreak) {
  Show_Dentist();
  Type_Comments("\nand the card");
  Save();
  EXPECT_EQ(Log()[1].Task_Comments, Value("Bring X-rays\r\nand the card"));
}

TEST_F(frmTaskInformationEditingTest, TheOrganizersListKeepsTheOldEntryAndItsMembersComeFromTheLog) {
  Show_Dentist();
  Open_Identity();
  Type(identity().txtNewRecordName, "Dentist again");
  Assign_New_Member("Carla");
  Trigger(identity(), "cmdOK");
  Save();
  EXPECT_EQ(Entries(organizer().lstScheduleList), std::vector<std::string>{"2001, 03Mar 05, 14:30 Dentist, #1"});
  EXPECT_FALSE(organizer().lstListOfPeople->findItems("Carla", Qt::MatchExactly).isEmpty())
      << "the refreshed Organizer finds the new member in the task";
  EXPECT_EQ(information().windowTitle().toStdString(), "Task\\Event Information: Dentist");
}

TEST_F(frmTaskInformationEditingTest, AHeldReminderFileEndsTheProgramBeforeAnythingIsWritten) {
  Show_Dentist();
  Click(information().cmdStatus);
  main().TRemin_Is_In_Use(true, "");
  machine().Answer_Next(vbYes, "Save Changes");
  machine().Answer_Next(vbOK, "Orrivane");
  Until_The_End([this] { Trigger(information(), "cmdSaveChangesToThisRecord"); });
  EXPECT_EQ(machine().Messages().back().text, "Run-time error '55':\n\nFile already open");
  Expect_Log_Unchanged();
}

TEST_F(frmTaskInformationEditingTest, AfterNewLogTheSaveEndsTheProgramWithInputPastEndOfFile) {
  Show_Dentist();
  Trigger(organizer(), "mnuNewSchedule");
  ASSERT_EQ(Read_File(organizer::kScheduleFile), "");
  Click(information().cmdStatus);
  machine().Answer_Next(vbYes, "Save Changes");
  machine().Answer_Next(vbOK, "Orrivane");
  Until_The_End([this] { Trigger(information(), "cmdSaveChangesToThisRecord"); });
  EXPECT_EQ(machine().Messages().back().text, "Run-time error '62':\n\nInput past end of file");
  EXPECT_EQ(machine().Exit_Code(), 1);
  EXPECT_EQ(Read_File(organizer::kScheduleFile), "");
  EXPECT_EQ(Read_File(organizer::kTaskReminderFile), "");
  EXPECT_EQ(Read_File(organizer::kScheduleScratchFile), "");
  EXPECT_FALSE(main().TRemin_Is_In_Use(false, "Evaluate"));
}

TEST_F(frmTaskInformationEditingTest, ARecordDeletedMeanwhileReplacesTheLastRecord) {
  Show_Dentist();
  Write_Log({Make_Person_Marker("Ben"), Meeting()});  // the dentist deleted since it was shown
  Write_Reminders({});
  Click(information().cmdStatus);
  Save();
  const ScheduleRecord expected = Dentist_Saved_As(2, 0);
  EXPECT_EQ(Read_File(organizer::kScheduleFile), Bytes_Of({Make_Person_Marker("Ben"), expected}));
  EXPECT_EQ(Read_File(organizer::kTaskReminderFile), "");
}

// The shown task deleted through the Organizer's own list and button: its number has gone from
// the log, so the last record takes the window's task under its own number, and the reminder,
// still on, follows that record to the end of the reminders.
TEST_F(frmTaskInformationEditingTest, ATaskDeletedThroughTheOrganizerThenSavedReplacesTheLastRecord) {
  Show_Dentist();
  Click_Entry(organizer().lstScheduleList, organizer::Task_List_Entry(Dentist()));
  machine().Answer_Next(vbYes, "Confirm Event Delete");
  Click(organizer().cmdDeleteSelectedRecord);
  ASSERT_EQ(Reminders().size(), 0u);
  ASSERT_TRUE(information().isVisible()) << "a delete leaves the window standing";
  Save();
  const ScheduleRecord expected = Dentist_Saved_As(2, 1);
  EXPECT_EQ(Read_File(organizer::kScheduleFile),
            Bytes_Of({Make_Person_Marker("Anna"), Make_Person_Marker("Ben"), expected}));
  EXPECT_EQ(Read_File(organizer::kTaskReminderFile), Bytes_Of({expected}));
  EXPECT_FALSE(main().TRemin_Is_In_Use(false, "Evaluate"));
}

// Another log opened while the task stands shown: the task's number is not in it, so the opened
// log's last record is the one replaced, and its reminders, none of that number, stay.
TEST_F(frmTaskInformationEditingTest, AfterAnotherLogIsOpenedTheSaveReplacesThatLogsLastRecord) {
  Show_Dentist();
  const ScheduleRecord lunch = Task_At(7, "Cleo", 2001, "March", "07", "12", "00", "Lunch");
  const ScheduleRecord gym = Task_Without_Reminder(8, "Cleo", 2001, "March", "08", "18", "00", "Gym");
  organizer::samples::Write_Log("week.sdl", {Make_Person_Marker("Cleo"), lunch, gym});
  When_Modal([this] {
    frmOpenFile& open = Window<frmOpenFile>();
    const auto found = open.filFileOpen->findItems("week.sdl", Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1);
    open.filFileOpen->setCurrentItem(found.front());
    Click(open.cmdOpen);
  });
  Trigger(organizer(), "mnuOpenSchedule");
  Process_Events();
  ASSERT_EQ(Read_File(organizer::kTaskReminderFile), Bytes_Of({lunch}));
  Click(information().cmdStatus);
  Save();
  const ScheduleRecord expected = Dentist_Saved_As(8, 0);
  EXPECT_EQ(Read_File(organizer::kScheduleFile), Bytes_Of({Make_Person_Marker("Cleo"), lunch, expected}));
  EXPECT_EQ(Read_File(organizer::kTaskReminderFile), Bytes_Of({lunch}));
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
}

// ---- Closing ---------------------------------------------------------------------------------------

TEST_F(frmTaskInformationEditingTest, CloseAsksNothingOfAnUnchangedRecord) {
  Show_Dentist();
  Trigger(information(), "cmdClose");
  EXPECT_FALSE(information().isVisible());
  EXPECT_TRUE(machine().Messages().empty());
}

TEST_F(frmTaskInformationEditingTest, ClosingWithCancelKeepsTheWindowAndTheFlag) {
  Show_Dentist();
  Click(information().cmdStatus);
  machine().Answer_Next(vbCancel, "Save Changes");
  Trigger(information(), "cmdClose");
  Expect_Question(organizer::kSaveOnClose);
  EXPECT_TRUE(information().isVisible());
  EXPECT_TRUE(information().Record_Changed());
  EXPECT_EQ(Status(), "OFF");
  Expect_Log_Unchanged();
}

TEST_F(frmTaskInformationEditingTest, ClosingWithNoHidesAndForgetsTheChange) {
  Show_Dentist();
  Click(information().cmdStatus);
  machine().Answer_Next(vbNo, "Save Changes");
  Trigger(information(), "mnuClose");
  Expect_Question(organizer::kSaveOnClose);
  EXPECT_FALSE(information().isVisible());
  EXPECT_FALSE(information().Record_Changed());
  Expect_Log_Unchanged();
}

TEST_F(frmTaskInformationEditingTest, ClosingWithYesSavesAndHides) {
  Show_Dentist();
  Click(information().cmdStatus);
  machine().Answer_Next(vbYes, "Save Changes");
  Trigger(information(), "cmdClose");
  Expect_Question(organizer::kSaveOnClose);
  EXPECT_FALSE(information().isVisible());
  EXPECT_FALSE(information().Record_Changed());
  EXPECT_EQ(Log()[1].Reminder_Status, Value(0));
  EXPECT_EQ(organizer().Save_File_Prompt_Flag, 1);
}

TEST_F(frmTaskInformationEditingTest, TheCloseBoxAsksWithASmallCAndYesSaves) {
  Show_Dentist();
  Click(information().cmdStatus);
  machine().Answer_Next(vbYes, "Save Changes");
  information().close();
  Expect_Question(organizer::kSaveOnUnload);
  EXPECT_FALSE(information().isVisible());
  EXPECT_FALSE(information().Record_Changed());
  EXPECT_EQ(Log()[1].Reminder_Status, Value(0));
}

TEST_F(frmTaskInformationEditingTest, TheCloseBoxAnsweredNoForgetsTheChangeAndKeepsTheWindow) {
  Show_Dentist();
  frmTaskInformation* before = &information();
  Click(information().cmdStatus);
  machine().Answer_Next(vbNo, "Save Changes");
  information().close();
  Expect_Question(organizer::kSaveOnUnload);
  EXPECT_FALSE(information().isVisible());
  EXPECT_FALSE(information().Record_Changed());
  Expect_Log_Unchanged();
  EXPECT_EQ(&information(), before);
}

TEST_F(frmTaskInformationEditingTest, TheCloseBoxAsksNothingOfAnUnchangedRecord) {
  Show_Dentist();
  information().close();
  EXPECT_FALSE(information().isVisible());
  EXPECT_TRUE(machine().Messages().empty());
}

// ---- Menus and keys -----------------------------------------------------------------------------------

TEST_F(frmTaskInformationEditingTest, TheMenusCarryTheirEntriesAndKeys) {
  Show_Dentist();
  const struct {
    const char* name;
    const char* caption;
    const char* keys;
  } entries[] = {
      {"mnuSaveChangesToRecord", "&Save Changes To Record", "Ctrl+S"},
      {"mnuPrintWindow", "&Print Window", "Ctrl+P"},
      {"mnuClose", "&Close", ""},
      {"mnuChangeTimesDates", "Change &Times\\Dates...", "Ctrl+T"},
      {"mnuChangeIdentityInformation", "Change &Identity Information...", "Ctrl+I"},
  };
  for (const auto& entry : entries) {
    QAction* action = Control<QAction>(information(), entry.name);
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->text().toStdString(), entry.caption);
    EXPECT_EQ(action->shortcut(), QKeySequence(entry.keys)) << entry.name;
    EXPECT_TRUE(action->isEnabled()) << entry.name;
  }
}

TEST_F(frmTaskInformationEditingTest, ControlTOpensTheTimesWindowWithBothMoments) {
  Show_Dentist();
  Press_Keys(information(), QKeySequence("Ctrl+T"));
  Process_Events();
  ASSERT_TRUE(times().isVisible());
  for (int index = 0; index < 2; ++index) {
    EXPECT_EQ(Caption(times().lblOldDate[index]), "March 05, 2001");
    EXPECT_EQ(Caption(times().lblDate[index]), "March 05, 2001");
    EXPECT_EQ(Caption(times().lblOldTime[index]), "14:30");
    EXPECT_EQ(Caption(times().lblTime[index]), "14:30");
  }
}

TEST_F(frmTaskInformationEditingTest, TheButtonsDoNotOverlap) {
  Show_Dentist();
  QWidget* body = information().centralWidget();
  const QList<QWidget*> controls = body->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  for (QPushButton* button : body->findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly)) {
    for (QWidget* other : controls) {
      if (other == button) continue;
      EXPECT_FALSE(button->geometry().intersects(other->geometry()))
          << button->objectName().toStdString() << " and " << other->objectName().toStdString();
    }
    EXPECT_TRUE(body->rect().contains(button->geometry())) << button->objectName().toStdString();
  }
}

// ---- Printing ------------------------------------------------------------------------------------------

TEST_F(frmTaskInformationEditingTest, PrintingShowsTheWindowOnItsBackgroundWithoutItsThreeButtons) {
  Show_Dentist();
  const unsigned own = controls::Back_Color(&information());
  Press_Keys(information(), QKeySequence("Ctrl+P"));
  ASSERT_EQ(machine().Print_Jobs().size(), 1u);
  const testing::PrintJob& job = machine().Print_Jobs()[0];
  EXPECT_EQ(job.document_name, "Orrivane-task-information");
  const QImage& page = job.pages.at(0);
  const QColor background = controls::To_QColor(colours::kWindowBackground);
  const auto at = [&](QWidget* control) {
    return page.pixelColor(control->mapTo(&information(), control->rect().center()));
  };
  EXPECT_EQ(page.pixelColor(information().centralWidget()->mapTo(&information(), QPoint(2, 2))), background);
  for (QPushButton* gone : {information().cmdClose, information().cmdSaveChangesToThisRecord,
                            information().cmdSelectNewColorCode}) {
    EXPECT_EQ(at(gone), background) << gone->objectName().toStdString();
  }
  EXPECT_NE(at(information().cmdChange), background) << "the other buttons print";
  EXPECT_EQ(controls::Back_Color(&information()), own);
  for (QPushButton* back : {information().cmdClose, information().cmdSaveChangesToThisRecord,
                            information().cmdSelectNewColorCode}) {
    EXPECT_TRUE(back->isVisible()) << back->objectName().toStdString();
  }
}

}  // namespace
}  // namespace orrivane
