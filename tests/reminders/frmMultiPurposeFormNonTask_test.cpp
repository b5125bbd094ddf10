// The reminders that belong to no task, as the user keeps them: F6 adds one, Ctrl+F6 changes
// one, Shift+F6 deletes one, on either calendar window, in the frames of the multi-purpose
// window; NTRemin.dat is what they leave.
#include <QCheckBox>
#include <QComboBox>
#include <QKeySequence>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "organizer/working_files.h"
#include "reminders/frmMultiPurposeForm.h"
#include "reminders/non_task_entry.h"
#include "reminders/reminder_window_test.h"
#include "support/golden.h"

namespace orrivane {
namespace {

using platform::vbOK;
using platform::vbYes;
using reminders::samples::Message_At;
using testing::Golden_Case;

using Entries = std::vector<std::string>;

constexpr char kCreateTitle[] = "Create Non-Task Reminder";
constexpr char kChangeTitle[] = "Change Non-Task Reminder";
constexpr char kDeleteTitle[] = "Delete Non-Task Reminder";

constexpr char kTwoRecords[] =
    "1\r\n1\r\n\"Message\"\r\n\"Call the bank about the loan.\"\r\n\"09:05, March 5, 2001\"\r\n"
    "4\r\n0\r\n\"Backup\"\r\n\"Copy the log to the other disk.\"\r\n\"17:45, December 31, 2001\"\r\n";

class NonTaskReminderWindowTest : public testing::ReminderWindowTest {
 protected:
  frmMultiPurposeForm& form() { return Window<frmMultiPurposeForm>(); }

  // ---- Asking for the frames, by the keys of the large calendar (the window the start shows) --
  void Press_On_Calendar(const char* keys) {
    Press_Keys(large(), QKeySequence(keys));
    Process_Events();
  }
  void Open_Add() {
    Press_On_Calendar("F6");
    ASSERT_TRUE(form().isVisible());
    ASSERT_EQ(Title(form()), kCreateTitle);
  }
  void Open_Change_List() {
    Press_On_Calendar("Ctrl+F6");
    ASSERT_TRUE(form().isVisible());
    ASSERT_EQ(form().cmdDelete_4->text().toStdString(), "Select");
  }
  void Open_Delete_List() {
    Press_On_Calendar("Shift+F6");
    ASSERT_TRUE(form().isVisible());
    ASSERT_EQ(Title(form()), kDeleteTitle);
  }

  // ---- Frame 3 ------------------------------------------------------------------------------
  std::string Moment() { return Text(form().lblTimeOfMessage_3); }
  QComboBox* Box(const char* name) {
    return Control<QComboBox>(form(), controls::Array_Name(name, reminders::kNonTaskRemindersFrame));
  }
  // Chooses an entry of one of the six boxes with the arrow keys, as the user does.
  void Choose(const char* box_name, const QString& entry) {
    QComboBox* box = Box(box_name);
    ASSERT_NE(box, nullptr);
    const int target = box->findText(entry);
    ASSERT_GE(target, 0) << entry.toStdString();
    box->setFocus();
    while (box->currentIndex() < target) QTest::keyClick(box, Qt::Key_Down);
    while (box->currentIndex() > target) QTest::keyClick(box, Qt::Key_Up);
    ASSERT_EQ(box->currentText(), entry);
  }
  void Type_Title(const QString& title) { Type(form().txtReminderTitle_3, title); }
  // The message box keeps what it held: the typing replaces it, as a user who selects it all does.
  void Type_Message(const QString& message) {
    form().txtReminderMessage_3->clear();
    Type(form().txtReminderMessage_3, message);
  }
  std::string Message_Text() { return controls::Lines_Of(form().txtReminderMessage_3); }
  // Enter presses the frame's default button, Add or Update.
  void Press_Enter() {
    form().txtReminderTitle_3->setFocus();
    Press_Keys(form(), QKeySequence(Qt::Key_Return));
    Process_Events();
  }
  // "Select" hides the window and shows it again at once. The headless window system keeps its
  // focus on the hidden window all along, so the window shown again is never told that it is
  // active, as a real one is; the user's click on the calendar and back on the window tells it.
  void Click_Calendar_And_Back() {
    Press_Keys(large(), QKeySequence());
    Press_Keys(form(), QKeySequence());
  }
  void Add_Expecting_Success() {
    machine().Answer_Next(vbOK, "Reminded Added");
    Press_Enter();
    Expect_Only_Message(reminders::Non_Task_Saved_Message(reminders::kAddCaption));
  }
  void Expect_Only_Message(const Message& expected) {
    ASSERT_EQ(machine().Messages().size(), 1u);
    const testing::ShownMessage& shown = machine().Messages()[0];
    EXPECT_EQ(shown.title, expected.title);
    EXPECT_EQ(shown.text, expected.text);
    EXPECT_EQ(shown.buttons, expected.buttons);
    EXPECT_EQ(shown.icon, expected.icon);
    machine().Clear_Messages();
  }
  void Expect_Status(const char* caption, bool bold, unsigned colour) {
    EXPECT_EQ(Text(form().lblStatus_3), caption);
    EXPECT_EQ(form().lblStatus_3->font().bold(), bold);
    EXPECT_EQ(controls::Fore_Color(form().lblStatus_3), colour);
  }

  // ---- Frame 4 ------------------------------------------------------------------------------
  Entries List() {
    Entries items;
    for (int i = 0; i < form().lstMessageToViewOrDel_4->count(); ++i) {
      items.push_back(form().lstMessageToViewOrDel_4->item(i)->text().toStdString());
    }
    return items;
  }
  QListWidgetItem* Item(const std::string& text) {
    const auto found = form().lstMessageToViewOrDel_4->findItems(QString::fromStdString(text), Qt::MatchExactly);
    if (found.isEmpty()) {
      ADD_FAILURE() << "no entry " << text;
      return nullptr;
    }
    return found.front();
  }
  QPoint Centre_Of(QListWidgetItem* item) { return form().lstMessageToViewOrDel_4->visualItemRect(item).center(); }
  void Click_Entry(const std::string& text) {
    QListWidgetItem* item = Item(text);
    ASSERT_NE(item, nullptr);
    QTest::mouseClick(form().lstMessageToViewOrDel_4->viewport(), Qt::LeftButton, {}, Centre_Of(item));
  }
  void Double_Click_Entry(const std::string& text) {
    QListWidgetItem* item = Item(text);
    ASSERT_NE(item, nullptr);
    QWidget* viewport = form().lstMessageToViewOrDel_4->viewport();
    // The first press of a double click chooses the entry, the second opens it.
    QTest::mouseClick(viewport, Qt::LeftButton, {}, Centre_Of(item));
    QTest::mouseDClick(viewport, Qt::LeftButton, {}, Centre_Of(item));
    Process_Events();
  }
  void Delete_Entry(const std::string& text) {
    Click_Entry(text);
    ASSERT_TRUE(form().cmdDelete_4->isEnabled());
    Click(form().cmdDelete_4);
    Process_Events();
  }

  std::string Reminder_File() { return Read_File(organizer::kNonTaskReminderFile); }
};

// ---- Adding ---------------------------------------------------------------------------------------

TEST_F(NonTaskReminderWindowTest, F6OpensTheFrameOfANewReminderAtThePresentMoment) {
  Start_At(2001, 3, 5, 14, 30, 0);
  Open_Add();
  EXPECT_EQ(form().cmdAdd_3->text().toStdString(), "Add");
  EXPECT_TRUE(form().cmdAdd_3->isDefault());
  EXPECT_EQ(Moment(), "2:30 PM, March 5, 2001");
  EXPECT_TRUE(form().chkSet_3->isChecked());
  Expect_Status("ON", true, controls::kRed);
}

TEST_F(NonTaskReminderWindowTest, F6FromTheMainWindowToo) {
  Start_At(2001, 3, 5, 9, 5, 0);
  Press_Keys(large(), QKeySequence(Qt::Key_F4));
  ASSERT_TRUE(main().isVisible());
  Press_Keys(main(), QKeySequence("F6"));
  Process_Events();
  ASSERT_TRUE(form().isVisible());
  EXPECT_EQ(Title(form()), kCreateTitle);
  EXPECT_EQ(Moment(), "9:05 AM, March 5, 2001");
}

TEST_F(NonTaskReminderWindowTest, CtrlF6AndShiftF6FromTheMainWindowToo) {
  Write_File(organizer::kNonTaskReminderFile, kTwoRecords);
  Start_At(2001, 3, 5, 9, 5, 0);
  for (const char* name : {"mnuAdd", "mnuChange", "mnuDelete"}) {
    EXPECT_TRUE(Menu(main(), name)->isEnabled()) << name;
    EXPECT_TRUE(Menu(large(), name)->isEnabled()) << name;
  }
  Press_Keys(large(), QKeySequence(Qt::Key_F4));
  ASSERT_TRUE(main().isVisible());
  Press_Keys(main(), QKeySequence("Ctrl+F6"));
  Process_Events();
  ASSERT_TRUE(form().isVisible());
  EXPECT_EQ(Title(form()), kChangeTitle);
  EXPECT_EQ(form().cmdDelete_4->text().toStdString(), "Select");
  Press_Keys(main(), QKeySequence("Shift+F6"));
  Process_Events();
  EXPECT_EQ(Title(form()), kDeleteTitle);
  EXPECT_EQ(List().size(), 2u);
}

TEST_F(NonTaskReminderWindowTest, EachBoxRewritesItsPartOfTheMomentAtOnce) {
  Start_At(2001, 3, 5, 14, 30, 0);
  Open_Add();
  Choose("cboHour", "17");
  EXPECT_EQ(Moment(), "5:30 PM, March 5, 2001");
  Choose("cboHour", "00");  // by the hour rules, midnight is 12 AM
  EXPECT_EQ(Moment(), "12:30 AM, March 5, 2001");
  Choose("cboMinute", "07");
  EXPECT_EQ(Moment(), "12:07 AM, March 5, 2001");
  Choose("ComboMonths", "Dec");
  EXPECT_EQ(Moment(), "12:07 AM, December 5, 2001");
  Choose("ComboDate", "09");
  EXPECT_EQ(Moment(), "12:07 AM, December 9, 2001");
  Choose("ComboYear", "99");
  EXPECT_EQ(Moment(), "12:07 AM, December 9, 2099");
  Choose("ComboCentury", "21");
  EXPECT_EQ(Moment(), "12:07 AM, December 9, 2199");
  EXPECT_TRUE(machine().Messages().empty());
}

TEST_F(NonTaskReminderWindowTest, TheLongestMomentFitsOnItsLabel) {
  Start_At(2001, 3, 5, 14, 30, 0);
  Open_Add();
  Choose("cboHour", "23");
  Choose("cboMinute", "59");
  Choose("ComboMonths", "Sep");
  Choose("ComboDate", "30");
  Choose("ComboCentury", "21");
  Choose("ComboYear", "99");
  EXPECT_EQ(Moment(), "11:59 PM, September 30, 2199");
  EXPECT_LE(form().lblTimeOfMessage_3->sizeHint().width(), form().lblTimeOfMessage_3->width());
  EXPECT_TRUE(form().fraNonTaskReminders->rect().contains(form().lblTimeOfMessage_3->geometry()));
}

TEST_F(NonTaskReminderWindowTest, TheThirtyFirstOfFebruaryStandsOnTheLabelAndIsRefusedOnAdding) {
  Start_At(2001, 3, 5, 14, 30, 0);
  Open_Add();
  Choose("ComboMonths", "Feb");
  Choose("ComboDate", "31");
  EXPECT_EQ(Moment(), "2:30 PM, February 31, 2001");
  machine().Answer_Next(vbOK, "Invalid Date");
  Press_Enter();
  Expect_Only_Message(Exclamation_Message("Invalid Date", "February only has 28 days in it for the selected year."));
  EXPECT_FALSE(File_Present(organizer::kNonTaskReminderFile));
  EXPECT_TRUE(form().isVisible());
}

TEST_F(NonTaskReminderWindowTest, TheThirtyFirstOfAprilIsRefusedWithTheMonthsLength) {
  Start_At(2001, 3, 31, 14, 30, 0);
  Open_Add();
  Choose("ComboMonths", "Apr");
  EXPECT_EQ(Moment(), "2:30 PM, April 31, 2001");
  machine().Answer_Next(vbOK, "Invalid Date");
  Click(form().cmdAdd_3);
  Expect_Only_Message(Exclamation_Message("Invalid Date", "April only has 30 days in it."));
  EXPECT_FALSE(File_Present(organizer::kNonTaskReminderFile));
}

TEST_F(NonTaskReminderWindowTest, TheFirstAddCreatesTheFileWithNumberOneAndAnEmptyTitleIsMessage) {
  Start_At(2001, 3, 5, 9, 5, 0);
  ASSERT_FALSE(File_Present(organizer::kNonTaskReminderFile));
  Open_Add();
  Type_Title("   ");
  Type_Message("Call the bank about the loan.");
  Add_Expecting_Success();
  EXPECT_EQ(Reminder_File(), "1\r\n1\r\n\"Message\"\r\n\"Call the bank about the loan.\"\r\n\"09:05, March 5, 2001\"\r\n");
  EXPECT_TRUE(form().isVisible()) << "the window stays open for the next one";
}

TEST_F(NonTaskReminderWindowTest, TheCheckBoxSwitchesTheStatusAndTheRecord) {
  Start_At(2001, 3, 5, 9, 5, 0);
  Open_Add();
  Click(form().chkSet_3);
  EXPECT_FALSE(form().chkSet_3->isChecked());
  Expect_Status("Off", false, 0);
  Type_Title("Off");
  Add_Expecting_Success();
  Click(form().chkSet_3);
  Expect_Status("ON", true, controls::kRed);
  EXPECT_EQ(reminders::Find_Non_Task_Reminder(Path(organizer::kNonTaskReminderFile), 1).NT_Status, Value(0));
}

TEST_F(NonTaskReminderWindowTest, ASecondAddStartsFromTheValuesOfTheFirstAtAFreshMoment) {
  Start_At(2001, 3, 5, 9, 5, 0);
  Open_Add();
  Type_Title("Bank");
  Type_Message("Call.");
  Choose("cboHour", "17");
  Add_Expecting_Success();
  Press_Keys(form(), QKeySequence(Qt::Key_Escape));
  EXPECT_FALSE(form().isVisible());
  machine().Advance_Seconds(60);
  Open_Add();
  EXPECT_EQ(Moment(), "9:06 AM, March 5, 2001");
  EXPECT_EQ(controls::Text_Of(form().txtReminderTitle_3), "Bank");
  EXPECT_EQ(Message_Text(), "Call.");
  EXPECT_EQ(controls::Text_Of(Box("cboHour")), "17");
  Add_Expecting_Success();
  EXPECT_EQ(reminders::Non_Task_List_Items(Path(organizer::kNonTaskReminderFile)),
            (Entries{"1 - Bank, 5:05 PM, March 5, 2001", "2 - Bank, 9:06 AM, March 5, 2001"}));
}

// The message box takes lines: Enter there breaks the line, and the file keeps the break between
// the quotes, as the line break of the platform's text files.
TEST_F(NonTaskReminderWindowTest, AMessageOfSeveralLinesKeepsItsLineBreaksThroughAddAndChange) {
  Start_At(2001, 3, 5, 9, 5, 0);
  Open_Add();
  Type_Title("Bank");
  Type_Message("Call the bank.");
  form().txtReminderMessage_3->setFocus();
  QTest::keyClick(form().txtReminderMessage_3, Qt::Key_Return);
  QTest::keyClicks(form().txtReminderMessage_3, "Ask about the loan.");
  EXPECT_TRUE(form().isVisible()) << "Enter in the message breaks its line and adds nothing";
  EXPECT_FALSE(File_Present(organizer::kNonTaskReminderFile));
  machine().Answer_Next(vbOK, "Reminded Added");
  Click(form().cmdAdd_3);
  Expect_Only_Message(reminders::Non_Task_Saved_Message(reminders::kAddCaption));
  constexpr char kTwoLines[] =
      "1\r\n1\r\n\"Bank\"\r\n\"Call the bank.\r\nAsk about the loan.\"\r\n\"09:05, March 5, 2001\"\r\n";
  EXPECT_EQ(Reminder_File(), kTwoLines);

  Open_Change_List();
  Double_Click_Entry("1 - Bank, 9:05 AM, March 5, 2001");
  EXPECT_EQ(Message_Text(), "Call the bank.\r\nAsk about the loan.");
  machine().Answer_Next(vbOK, "Changes Saved");
  Click(form().cmdAdd_3);
  Expect_Only_Message(reminders::Non_Task_Saved_Message(reminders::kUpdateCaption));
  EXPECT_EQ(Reminder_File(), kTwoLines);
}

// ---- The worked example, written through the windows ------------------------------------------

// Four reminders added, the fourth switched off; the second and third deleted.
TEST_F(NonTaskReminderWindowTest, TheWorkedExampleStandsByteForByte) {
  Start_At(2001, 3, 5, 8, 0, 0);
  Open_Add();
  Type_Title("");
  Type_Message("Call the bank about the loan.");
  Choose("cboHour", "09");
  Choose("cboMinute", "05");
  Add_Expecting_Success();
  for (const char* title : {"Second", "Third"}) {
    Type_Title(title);
    Add_Expecting_Success();
  }
  Type_Title("Backup");
  Type_Message("Copy the log to the other disk.");
  Choose("cboHour", "17");
  Choose("cboMinute", "45");
  Choose("ComboMonths", "Dec");
  Choose("ComboDate", "31");
  Click(form().chkSet_3);
  Add_Expecting_Success();

  Open_Delete_List();
  EXPECT_EQ(List(), (Entries{"1 - Message, 9:05 AM, March 5, 2001", "2 - Second, 9:05 AM, March 5, 2001",
                           "3 - Third, 9:05 AM, March 5, 2001", "4 - Backup, 5:45 PM, December 31, 2001"}));
  Delete_Entry("2 - Second, 9:05 AM, March 5, 2001");
  Delete_Entry("3 - Third, 9:05 AM, March 5, 2001");
  EXPECT_EQ(Reminder_File(), Golden_Case("non_task_reminders", "worked_example").Expected());
  EXPECT_FALSE(File_Present(organizer::kNonTaskReminderScratchFile));
}

// ---- Changing -------------------------------------------------------------------------------------

TEST_F(NonTaskReminderWindowTest, CtrlF6ListsTheRemindersToChooseFrom) {
  Write_File(organizer::kNonTaskReminderFile, kTwoRecords);
  Start_At(2001, 3, 5, 8, 0, 0);
  Open_Change_List();
  EXPECT_EQ(Title(form()), kChangeTitle);
  EXPECT_EQ(Text(form().lblHeadingLabel_4), "Select Message To View");
  EXPECT_EQ(List(), (Entries{"1 - Message, 9:05 AM, March 5, 2001", "4 - Backup, 5:45 PM, December 31, 2001"}));
  EXPECT_FALSE(form().cmdDelete_4->isEnabled());
  Click_Entry("4 - Backup, 5:45 PM, December 31, 2001");
  EXPECT_TRUE(form().cmdDelete_4->isEnabled());
}

TEST_F(NonTaskReminderWindowTest, ADoubleClickOnAReminderShowsItForChanging) {
  Write_File(organizer::kNonTaskReminderFile, kTwoRecords);
  Start_At(2001, 3, 5, 8, 0, 0);
  Open_Change_List();
  Double_Click_Entry("4 - Backup, 5:45 PM, December 31, 2001");
  ASSERT_TRUE(form().isVisible());
  EXPECT_EQ(Title(form()), kChangeTitle);
  EXPECT_TRUE(form().fraNonTaskReminders->isVisible());
  EXPECT_FALSE(form().fraViewOrDeleteNTRem->isVisible());
  EXPECT_EQ(form().cmdAdd_3->text().toStdString(), "Update");
  EXPECT_EQ(Moment(), "5:45 PM, December 31, 2001");
  EXPECT_EQ(controls::Text_Of(form().txtReminderTitle_3), "Backup");
  EXPECT_EQ(Message_Text(), "Copy the log to the other disk.");
  EXPECT_FALSE(form().chkSet_3->isChecked());
  Expect_Status("Off", false, 0);
  EXPECT_EQ(form().Selected_NT_Record_Number, Value(4));
}

TEST_F(NonTaskReminderWindowTest, AnUpdateKeepsThePlaceAndTheNumberAndStoresABlankTitleAsMessage) {
  Write_File(organizer::kNonTaskReminderFile, kTwoRecords);
  Start_At(2001, 3, 5, 8, 0, 0);
  Open_Change_List();
  Click_Entry("1 - Message, 9:05 AM, March 5, 2001");
  Click(form().cmdDelete_4);
  Process_Events();
  Expect_Status("ON", true, controls::kRed);
  Click_Calendar_And_Back();
  Type_Title("  ");
  Type_Message("Call the bank at ten.");
  Choose("cboHour", "10");
  Choose("cboMinute", "00");
  Click(form().chkSet_3);
  machine().Answer_Next(vbOK, "Changes Saved");
  Press_Enter();
  Expect_Only_Message(reminders::Non_Task_Saved_Message(reminders::kUpdateCaption));
  EXPECT_FALSE(form().isVisible());
  EXPECT_EQ(Reminder_File(),
            "1\r\n0\r\n\"Message\"\r\n\"Call the bank at ten.\"\r\n\"10:00, March 5, 2001\"\r\n"
            "4\r\n0\r\n\"Backup\"\r\n\"Copy the log to the other disk.\"\r\n\"17:45, December 31, 2001\"\r\n");
  EXPECT_FALSE(File_Present(organizer::kNonTaskReminderScratchFile));
}

TEST_F(NonTaskReminderWindowTest, ADoubleClickInTheDeleteListDeletesNothing) {
  Write_File(organizer::kNonTaskReminderFile, kTwoRecords);
  Start_At(2001, 3, 5, 8, 0, 0);
  Open_Delete_List();
  Double_Click_Entry("1 - Message, 9:05 AM, March 5, 2001");
  EXPECT_EQ(Title(form()), kDeleteTitle);
  EXPECT_EQ(Reminder_File(), kTwoRecords);
}

TEST_F(NonTaskReminderWindowTest, ChangingARecordLeavesTheReminderWindowShowingWhatFired) {
  Write_File(organizer::kNonTaskReminderFile, kTwoRecords);
  Start_At(2001, 3, 5, 9, 4, 55);
  machine().Advance_Seconds(5);  // 9:05:00
  ASSERT_TRUE(messages().isVisible());
  EXPECT_EQ(Text(messages().lblMessage), "Call the bank about the loan.");
  Open_Change_List();
  Double_Click_Entry("1 - Message, 9:05 AM, March 5, 2001");
  Type_Message("Something else.");
  machine().Answer_Next(vbOK, "Changes Saved");
  Click(form().cmdAdd_3);
  EXPECT_EQ(reminders::Find_Non_Task_Reminder(Path(organizer::kNonTaskReminderFile), 1).NT_Message.text(),
            "Something else.");
  EXPECT_TRUE(messages().isVisible());
  EXPECT_EQ(Text(messages().lblMessage), "Call the bank about the loan.");
}

// ---- Deleting -------------------------------------------------------------------------------------

TEST_F(NonTaskReminderWindowTest, ShiftF6DeletesWithoutAQuestionAndTheWindowStays) {
  Write_File(organizer::kNonTaskReminderFile, kTwoRecords);
  Start_At(2001, 3, 5, 8, 0, 0);
  Open_Delete_List();
  EXPECT_EQ(Text(form().lblHeadingLabel_4), "Select Message To Delete");
  EXPECT_EQ(form().cmdDelete_4->text().toStdString(), "Delete");
  Delete_Entry("1 - Message, 9:05 AM, March 5, 2001");
  EXPECT_TRUE(machine().Messages().empty());
  EXPECT_TRUE(form().isVisible());
  EXPECT_FALSE(form().cmdDelete_4->isEnabled());
  EXPECT_EQ(List(), (Entries{"4 - Backup, 5:45 PM, December 31, 2001"}));
  EXPECT_EQ(Reminder_File(),
            "4\r\n0\r\n\"Backup\"\r\n\"Copy the log to the other disk.\"\r\n\"17:45, December 31, 2001\"\r\n");
}

TEST_F(NonTaskReminderWindowTest, DeletingTheLastReminderLeavesAnEmptyFile) {
  Write_Messages({Message_At(1, "Only", "", "09:05, March 5, 2001")});
  Start_At(2001, 3, 5, 8, 0, 0);
  Open_Delete_List();
  Delete_Entry("1 - Only, 9:05 AM, March 5, 2001");
  EXPECT_TRUE(List().empty());
  ASSERT_TRUE(File_Present(organizer::kNonTaskReminderFile));
  EXPECT_EQ(Reminder_File(), "");
}

TEST_F(NonTaskReminderWindowTest, WithoutAFileTheListIsEmpty) {
  Start_At(2001, 3, 5, 8, 0, 0);
  Open_Delete_List();
  EXPECT_TRUE(List().empty());
  EXPECT_FALSE(form().cmdDelete_4->isEnabled());
  EXPECT_FALSE(File_Present(organizer::kNonTaskReminderFile));
}

// Records 1, 2, 3: after 3 is deleted the next reminder is 3 again; after 2 is deleted it is 4.
TEST_F(NonTaskReminderWindowTest, OnlyTheLastNumberIsGivenOutAgain) {
  const auto three = [this] {
    Write_Messages({Message_At(1, "A", "", "09:05, March 5, 2001"), Message_At(2, "B", "", "09:05, March 5, 2001"),
                    Message_At(3, "C", "", "09:05, March 5, 2001")});
  };
  three();
  Start_At(2001, 3, 5, 8, 0, 0);
  Open_Delete_List();
  Delete_Entry("3 - C, 9:05 AM, March 5, 2001");
  Open_Add();
  Type_Title("New");
  Add_Expecting_Success();
  EXPECT_EQ(reminders::Find_Non_Task_Reminder(Path(organizer::kNonTaskReminderFile), 3).NT_Title.text(), "New");

  three();
  Open_Delete_List();
  Delete_Entry("2 - B, 9:05 AM, March 5, 2001");
  Open_Add();
  Add_Expecting_Success();
  EXPECT_EQ(reminders::Non_Task_List_Items(Path(organizer::kNonTaskReminderFile)),
            (Entries{"1 - A, 9:05 AM, March 5, 2001", "3 - C, 9:05 AM, March 5, 2001", "4 - New, 8:00 AM, March 5, 2001"}));
}

// ---- The flag of NTRemin.dat ------------------------------------------------------------------------

TEST_F(NonTaskReminderWindowTest, EveryWriterTakesTheFlagAndGivesItBack) {
  Write_File(organizer::kNonTaskReminderFile, kTwoRecords);
  Start_At(2001, 3, 5, 8, 0, 0);
  Open_Add();
  Add_Expecting_Success();
  EXPECT_FALSE(main().NTRemin_Is_In_Use(false, "Evaluate"));
  Open_Change_List();
  EXPECT_FALSE(main().NTRemin_Is_In_Use(false, "Evaluate"));
  Double_Click_Entry("4 - Backup, 5:45 PM, December 31, 2001");
  EXPECT_FALSE(main().NTRemin_Is_In_Use(false, "Evaluate"));
  machine().Answer_Next(vbOK, "Changes Saved");
  Click(form().cmdAdd_3);
  EXPECT_FALSE(main().NTRemin_Is_In_Use(false, "Evaluate"));
  Open_Delete_List();
  Delete_Entry("4 - Backup, 5:45 PM, December 31, 2001");
  EXPECT_FALSE(main().NTRemin_Is_In_Use(false, "Evaluate"));
}

// Nothing can free a flag held while the user adds: waiting would never end.
TEST_F(NonTaskReminderWindowTest, AddingUnderAFlagHeldForeverEndsTheProgramAndWritesNothing) {
  Start_At(2001, 3, 5, 8, 0, 0);
  Open_Add();
  main().NTRemin_Is_In_Use(true, "");
  machine().Answer_Next(vbOK, "Orrivane");
  Until_The_End([this] { Click(form().cmdAdd_3); });
  EXPECT_EQ(machine().Messages().back().text, "Run-time error '55':\n\nFile already open");
  EXPECT_FALSE(File_Present(organizer::kNonTaskReminderFile));
}

TEST_F(NonTaskReminderWindowTest, TheListIsReadUnderTheFlag) {
  Write_File(organizer::kNonTaskReminderFile, kTwoRecords);
  Start_At(2001, 3, 5, 8, 0, 0);
  main().NTRemin_Is_In_Use(true, "");
  machine().Answer_Next(vbOK, "Orrivane");
  Until_The_End([this] { Press_On_Calendar("Shift+F6"); });
  EXPECT_EQ(machine().Messages().back().text, "Run-time error '55':\n\nFile already open");
}

// ---- Firing and lasting ----------------------------------------------------------------------------

TEST_F(NonTaskReminderWindowTest, AReminderAddedThroughTheWindowFiresAtItsMinute) {
  Start_At(2001, 3, 5, 14, 29, 0);
  Open_Add();
  Type_Title("Tea");
  Type_Message("Put the kettle on.");
  Choose("cboMinute", "30");
  Add_Expecting_Success();
  Press_Keys(form(), QKeySequence(Qt::Key_Escape));
  machine().Advance_Seconds(55);  // 14:29:55
  EXPECT_FALSE(messages().isVisible());
  machine().Advance_Seconds(5);  // 14:30:00
  ASSERT_TRUE(messages().isVisible());
  EXPECT_EQ(Title(messages()), "Reminder: Tea");
  EXPECT_EQ(Text(messages().lblMessage), "Put the kettle on.");
  EXPECT_EQ(Text(messages().lblDateOfMessage), "March 5, 2001");
}

TEST_F(NonTaskReminderWindowTest, TheFileOutlivesTheRunAndTheTaskRemindersDoNot) {
  Start_At(2001, 3, 5, 9, 5, 0);
  Open_Add();
  Add_Expecting_Success();
  const std::string kept = Reminder_File();
  machine().Answer_Next(vbYes, "Confirm");
  Until_The_End([this] {
    try {
      Press_Keys(large(), QKeySequence("Ctrl+Q"));
    } catch (const platform::ProcessEnded&) {
      // what ends the process in a test
    }
  });
  EXPECT_EQ(Reminder_File(), kept);
  EXPECT_FALSE(File_Present(organizer::kTaskReminderFile));
}

}  // namespace
}  // namespace orrivane
