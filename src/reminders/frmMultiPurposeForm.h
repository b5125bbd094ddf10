#pragma once
// One window with six purposes: adding a group member, deleting one, choosing a task to delete
// or view, creating or changing a non-task reminder, choosing a non-task reminder, printing the
// log. Its six frames stand in one place and one of them shows at a time; the window takes the
// caption and the size of the purpose. The Organizer's Multipurpose_Form sets it up from the
// origin that asks (reminders/multi_purpose.h) and Form_Termination_Routine puts it back to its
// blank state. Nothing records the purpose on show: the window's caption and the captions of
// its buttons tell it.
//
// The window's procedures are split by purpose, one file each: the mechanism and frames 0 to 2
// (frmMultiPurposeForm.cpp), the non-task reminders of frames 3 and 4
// (frmMultiPurposeFormNonTask.cpp), printing the log in frame 5 (frmMultiPurposeFormPrintLog.cpp).
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>
#include <array>
#include <string>
#include <string_view>

#include "core/value.h"
#include "platform/platform.h"
#include "reminders/multi_purpose.h"

namespace orrivane {

class frmMultiPurposeForm : public QWidget {
  Q_OBJECT
 public:
  frmMultiPurposeForm();
  ~frmMultiPurposeForm() override;

  // ---- The six frames, by their index ---------------------------------------------------------
  QFrame* fraAddNewGroupMember;
  QFrame* fraDeleteGroupMember;
  QFrame* fraDeleteViewTask;
  QFrame* fraNonTaskReminders;
  QFrame* fraViewOrDeleteNTRem;
  QFrame* fraPrintLog;
  QFrame* Frame(reminders::MultiPurposeFrame index) const;
  // One element for each frame: "Cancel" or "Close".
  std::array<QPushButton*, reminders::kMultiPurposeFrames> cmdCancel{};

  // ---- Frame 0: a new group member --------------------------------------------------------------
  QLabel* lblNewGroupMemberNameLabel;
  QLineEdit* txtNewPerson;
  QPushButton* cmdAdd;

  // ---- Frame 1: deleting a group member ---------------------------------------------------------
  QLabel* lblDeleteGroupMemberLabel;
  QListWidget* lstListOfPeople;  // sorted
  QPushButton* cmdDelete;

  // ---- Frame 2: a task to delete or view --------------------------------------------------------
  QLabel* Label1;
  QComboBox* cboListOfPeople;  // sorted
  QLabel* lblListBoxHeadingLabel_2;
  QListWidget* lstListOfTasks;  // sorted: "2001, 03Mar 05, 14:30 Dentist, #1", so in time order
  QPushButton* cmdDelete_1;     // "Delete" or "View"

  // ==== Frames 3 and 4: non-task reminders (frmMultiPurposeFormNonTask.cpp) =====================
  // Frame 3: the cboHour, cboMinute, ComboMonths, ComboDate, ComboYear and ComboCentury arrays
  // have their one element at index 3 ("cboHour(3)").
  QLabel* Label4;
  QLineEdit* txtReminderTitle_3;
  QLabel* Label3;
  QPlainTextEdit* txtReminderMessage_3;  // may hold line breaks
  QLabel* Label6;
  QLabel* lblTimeOfMessage_3;  // "2:30 PM, March 5, 2001"
  QCheckBox* chkSet_3;
  QLabel* Label8;
  QLabel* lblStatus_3;  // "ON" in bold red, or "Off"
  QLabel* Label5;
  QLabel* lblHour;
  QComboBox* cboHour;
  QComboBox* cboMinute;
  QLabel* LblSelectDate;
  QComboBox* ComboMonths;
  QComboBox* ComboDate;
  QLabel* LblCentury;
  QComboBox* ComboCentury;
  QComboBox* ComboYear;
  QPushButton* cmdAdd_3;  // "Add" or "Update": the mode of the frame
  // Frame 4.
  QLabel* lblHeadingLabel_4;
  QListWidget* lstMessageToViewOrDel_4;
  QPushButton* cmdDelete_4;  // "Select" or "Delete": the mode of the frame

  // Prepares frame 4 before it is shown: its list of the messages of NTRemin.dat.
  void Prepare_View_Or_Delete_NT_Reminder_Frame(std::string_view Calling_Sub_Origin);
  // Runs once frame 3 stands shown, for the purpose of the origin.
  void Non_Task_Reminder_Frame_Shown(std::string_view Calling_Sub_Origin);
  // The record that is being changed: the number of the reminder chosen last with "Select".
  Value Selected_NT_Record_Number;
  // "ON" in bold red with the box checked, "Off" in plain black without.
  void chkSet_3_Click();
  // Rewrites the part of lblTimeOfMessage_3 ("Hour", "Minute", "Month", "Date", "Year",
  // "Century") from its combo; each of the six combos calls it with its own part when chosen.
  void Change_Full_String(std::string_view Part_To_Change);
  // Adds a reminder or updates the selected one, as cmdAdd_3's caption says.
  void cmdAdd_3_Click();
  void lstMessageToViewOrDel_4_Click();
  // With "Select" on cmdDelete_4, a double click chooses the reminder as the button does.
  void lstMessageToViewOrDel_4_DblClick();
  void cmdDelete_4_Click();
  // Deletes the chosen reminder, or shows it in frame 3 to change it, as cmdDelete_4's caption
  // says.
  void View_Or_Delete_NT_Reminder();

  // ==== Frame 5: printing the log (frmMultiPurposeFormPrintLog.cpp) ==============================
  QGroupBox* fraSelectItems_5;
  QCheckBox* chkTaskChart_5;
  QCheckBox* chkTaskList_5;
  QGroupBox* fraPrintTaskChart_5;
  QLabel* lblDateLabel_5;
  QLabel* lblDate_5;  // "March 5, 2001"
  QLabel* lblPeriodLabel_5;
  QLabel* lblTimePeriod_5;
  QPushButton* cmdChange_5;
  QGroupBox* Frame2;
  QListWidget* lstListOfPeople_5;    // with check boxes
  QListWidget* lstSelectedPeople_5;  // the checked members, in the order of checking
  QPushButton* cmdSelectAll_5;
  QPushButton* cmdDeSelectAll_5;
  QPushButton* cmdPrint_5;
  // ---- Declarations of frmMultiPurposeFormPrintLog.cpp go here ----
  // Adds a member to lstListOfPeople_5, unchecked, unless an entry equals it.
  void Add_Print_Log_Member(const std::string& member);
  // At least one of the two boxes always stays checked; the chart's day and period can be
  // changed only while the chart is to be printed.
  void chkTaskChart_5_Click();
  void chkTaskList_5_Click();
  // A member checked is added at the end of lstSelectedPeople_5, one unchecked taken out of it.
  void lstListOfPeople_5_ItemCheck(int Item);
  void cmdSelectAll_5_Click();
  void cmdDeSelectAll_5_Click();
  // frmSelectTimePeriod, to choose the chart's day and period.
  void cmdChange_5_Click();
  // One print job: the chart's sheets, 32 members each, then each member's task list, six tasks
  // a sheet, member by member.
  void cmdPrint_5_Click();
  // "Put" keeps the position in lstSelectedPeople_5 of the first member of the next chart sheet;
  // every verb answers it.
  int Store_Next_Name_Position_5(const std::string& Action_To_Perform, int Value = 0);
  // Shows (true) or hides the controls of row Element of frmPrintTaskList, of all six rows with
  // -1; the heading is not touched.
  void Enable_Print_TaskList_Controls(bool Value, int Element);

 private:
  void Print_Chart_Sheets(platform::WindowPrintJob& job);
  void Print_Task_List_Sheets(platform::WindowPrintJob& job);
  int next_name_position_5_ = 0;  // Store_Next_Name_Position_5

 public:

  // ==== The mechanism ===========================================================================
  // Hides the window and its six frames, takes the Default role from every button that has it in
  // some purpose and the Cancel role from every cmdCancel, and disables cmdDelete_4. Lists and
  // texts stay as they are.
  void Form_Termination_Routine();
  // Step 2 of Multipurpose_Form: the content of the purpose's frame, before it is shown.
  void Prepare_Frame(const reminders::MultiPurpose& purpose);
  // Steps 3 to 6: caption and size, the frame at the top left and shown, the Cancel and Default
  // roles with their captions, headings, and the window visible.
  void Show_Purpose(const reminders::MultiPurpose& purpose);
  // The button that Enter presses, nullptr for none; the element of cmdCancel that Escape
  // presses, nullptr for none.
  QPushButton* Default_Button() const;
  QPushButton* Cancel_Button() const;
  void Form_Unload();
  void cmdCancel_Click(int Index);

  // ==== Frames 0 to 2 ===========================================================================
  void cmdAdd_Click();
  void lstListOfPeople_Click();
  void cmdDelete_Click();
  void cboListOfPeople_Click();
  void lstListOfTasks_Click();
  // Deletes or views the chosen task, as the window's caption says.
  void cmdDelete_1_Click();
  // The chosen entry of lstListOfPeople or lstListOfTasks, "" where none is chosen.
  std::string Chosen_Member() const;
  std::string Chosen_Task() const;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Build_Frames();
  void Build_Member_Frames();
  void Build_Cancel_Buttons();
  void Build_Non_Task_Frames();    // frmMultiPurposeFormNonTask.cpp
  void Connect_Non_Task_Frames();  // frmMultiPurposeFormNonTask.cpp
  void Build_Print_Log_Frame();    // frmMultiPurposeFormPrintLog.cpp
  void Connect_Print_Log_Frame();  // frmMultiPurposeFormPrintLog.cpp
  void Connect_Mechanism();
  void Lend_Lists_To_Deleting();
  void Connect_Member_Frames();
  void Prepare_Add_New_Group_Member_Frame(std::string_view Calling_Sub_Origin);
  void Prepare_Delete_Group_Member_Frame(std::string_view Calling_Sub_Origin);
  void Prepare_Delete_View_Task_Frame(std::string_view Calling_Sub_Origin);
  void Prepare_Nothing(std::string_view Calling_Sub_Origin);
  void Show_NT_Status(bool on);  // frmMultiPurposeFormNonTask.cpp

  struct FrameSetUp;
  static const FrameSetUp kFrameSetUps[reminders::kMultiPurposeFrames];
};

}  // namespace orrivane
