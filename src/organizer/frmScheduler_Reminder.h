#pragma once
// "Organizer": the log as a chart of one six-hour period of one day, a row for each group
// member and a column for each ten minutes; beside it the group members, the task list of one
// of them with its date filter, and the file the log belongs to. It owns the log procedures:
// opening and saving log files and the question about unsaved changes.
//
// The window's procedures are split by role, one file each: this window's controls and menu
// (frmScheduler_Reminder.cpp), the chart (frmScheduler_ReminderChart.cpp), the task list, its
// filter and showing a task (frmScheduler_ReminderTasks.cpp), the log files
// (frmScheduler_ReminderLog.cpp), the entry of new tasks (frmScheduler_ReminderNewTask.cpp).
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/value.h"
#include "organizer/chart_geometry.h"
#include "organizer/task_chart.h"
#include "platform/MenuTree.h"

namespace orrivane {

class frmScheduler_Reminder : public QMainWindow {
  Q_OBJECT
 public:
  frmScheduler_Reminder();

  // ---- Controls: the chart ------------------------------------------------------------------
  std::array<QLabel*, organizer::kScreenChartRows> lblChartGroupMemberName{};
  std::array<QLabel*, organizer::kScreenChartCells> lblChartHistoryList{};  // 36 x row + column
  std::array<QLabel*, organizer::kChartHeads> lblChartHour{};
  QLabel* lblChartBackground;  // the white ground under the cells, which are transparent when empty
  QLabel* lblTimePeriod;  // the view on show, "Morning, March 5, 2001"; its only memory
  QPushButton* cmdEarlier;
  QPushButton* cmdLater;
  QScrollBar* scrChart;  // its value: the member of the first row, as an index of lstListOfPeople

  // ---- Controls: members, the task list and its filter -----------------------------------------
  QLabel* lblListOfPeople;
  QListWidget* lstListOfPeople;  // sorted
  QPushButton* cmdShowTaskList;
  QLabel* lblGroupMemberName;
  QListWidget* lstScheduleList;  // sorted: "2001, 03Mar 05, 14:30 Dentist, #1"
  QPushButton* cmdViewTaskInformation;
  QPushButton* cmdDelete;                // "Delete": the member chosen in lstListOfPeople
  QPushButton* cmdDeleteSelectedRecord;  // "Delete Selected Record": the task chosen in lstScheduleList
  QRadioButton* optDisplayAll;
  QRadioButton* optDisplayOnlyFilteredTasks;
  QGroupBox* fraDisplayOnlyTasksEvents;
  QCheckBox* chkStartTimeDate;   // 0 off, 1 on, 2 greyed
  QCheckBox* chkFinishTimeDate;
  QLabel* lblAfter;
  QLabel* lblAfterRange;  // "14:00, Mar. 5, 2001" or "No Date Selected": the bound's only store
  QLabel* lblBefore;
  QLabel* lblBeforeRange;
  QPushButton* cmdSelect;  // "Change...": the filter window

  // ---- Controls: the file and the way out ---------------------------------------------------
  QLabel* lblFileNameLabel;
  QLabel* lblFileName;
  QPushButton* cmdCloseScheduler;
  std::unique_ptr<MenuTree> menu;

  // 1 while the working copy holds changes that no log file has.
  int Save_File_Prompt_Flag = 0;

  // ---- The chart (frmScheduler_ReminderChart.cpp) --------------------------------------------
  void Refresh_Organizer_Screen(std::string_view Calling_Procedure);
  void Move_To_Earlier_Time_Period();
  void Move_To_Later_Time_Period();
  void scrChart_Change();
  // "Put" keeps the record number of the task that owns a cell (-1 for none); "Get" answers it.
  Value Chart_History_List_Content_Tracker(int Element_Number, const std::string& Action_To_Perform,
                                           const Value& Content = {});
  void lblChartHistoryList_Click(int Index);
  void Print_Window();

  // ---- The task list and showing a task (frmScheduler_ReminderTasks.cpp) ----------------------
  void Display_A_Persons_TaskList();
  void lstListOfPeople_Click();
  void cmdShowTaskList_Click();
  void lstScheduleList_Click();
  void lstScheduleList_DblClick();
  void cmdViewTaskInformation_Click();
  void optDisplayAll_Click();
  void optDisplayOnlyFilteredTasks_Click();
  void chkStartTimeDate_Click();
  void chkFinishTimeDate_Click();
  void cmdSelect_Click();
  // Finds the record that the origin points at and shows it in frmTaskInformation.
  void View_Task_Event_Information(std::string_view Calling_Procedure, const Value& Control_Array_Index);

  // ---- The log files (frmScheduler_ReminderLog.cpp) -----------------------------------------
  void Open_New_Schedule();
  void Open_Schedule_File();
  void Save_Schedule();
  void Quick_Schedule_File_Save();
  void Activate_Save_File_Window();
  void Show_Open_Log_Window(std::string_view caller);
  // mnuSave here and mnuSaveLog of both calendar windows, together.
  void Set_mnuSave(bool enabled);
  // The user's answer (6 Yes, 7 No, 2 Cancel), or nothing where no question was asked.
  std::optional<int> Prompt_To_Save_Schedule_File(std::string_view Calling_Sub_Origin);
  void Form_Unload();
  void cmdCloseScheduler_Click();

  // ---- New tasks (frmScheduler_ReminderNewTask.cpp) ------------------------------------------
  // Fresh reminder values first, then the new-task window in front, not modal.
  void Open_Add_New_Task_Window();
  // Resets the new-task window's reminder values to today, now, one reminder and no interval.
  void Refresh_Set_Reminder_Window();

  // ---- Deleting tasks and members (frmScheduler_ReminderDelete.cpp) ---------------------------
  // Both rewrite Schedule.tmp and TRemin.tmp in one pass under TRemin_Is_In_Use; the origin
  // tells the Organizer's own buttons from frmMultiPurposeForm's.
  void Delete_A_Selected_Record(std::string_view Calling_Sub_Origin);
  void Delete_A_Group_Member(std::string_view Calling_Sub_Origin);

  // ---- The multi-purpose window's ways in (frmScheduler_ReminderMultiPurpose.cpp) -------------
  // Sets frmMultiPurposeForm up for the purpose its origin names and shows it; any other origin
  // leaves it blank and hidden. The four below are the menu entries of the calendar windows.
  void Multipurpose_Form(std::string_view Calling_Sub_Origin);
  void Add_New_Group_Member();
  void Delete_Group_Member_From_Menu();
  void Delete_A_Task_From_Menu();
  void Select_Task_Info_Window();

  // ---- Non-task reminders (frmScheduler_ReminderNonTask.cpp) ----------------------------------
  void Activate_Non_Task_Reminder_Window();
  void Activate_Change_NT_Task_Window();
  void Activate_Delete_NT_Task_Window();
  void Activate_View_NT_Task_Window();

  // ---- Printing the log (frmScheduler_ReminderPrint.cpp) ---------------------------------------
  void Activate_Print_Log_Screen();

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Build_Chart();
  void Build_Lists();
  void Build_Filter();
  void Build_Menu();
  void Place_Controls();
  // Each role connects its own controls and menu entries, in its own file.
  void Connect_Chart();
  void Connect_Tasks();
  // Runs `click` when the user chooses another entry of `list`, by the mouse or the arrow keys.
  void On_Choice(QListWidget* list, const QListWidgetItem*& chosen, const std::function<void()>& click);
  void Connect_Log();
  void Connect_New_Task();
  void Connect_Delete();
  void Connect_Non_Task();
  void Connect_Print_Log();
  void Form_Activate();

  std::array<Value, organizer::kScreenChartCells> chart_owners_{};  // Chart_History_List_Content_Tracker
  // The entry of each list that the user chose last: a list that sorts new entries in moves its
  // choice without a new choice being made.
  const QListWidgetItem* chosen_member_ = nullptr;
  const QListWidgetItem* chosen_task_ = nullptr;

  // ---- The chart's own steps (frmScheduler_ReminderChart.cpp) -------------------------------
  // The moment the origin asks to show, with what the origin does to the step buttons; nothing
  // for an origin that shows no view here and for a step refused at the end of the years.
  std::optional<organizer::DateAndTime> Moment_To_Show(std::string_view Calling_Procedure);
  std::optional<organizer::DateAndTime> Step_Moment(organizer::PeriodStep step);
  void Enable_Step(organizer::PeriodStep step, bool enabled);
  // Adds to lstListOfPeople every member of the log it lacks.
  void Rebuild_Member_List(const std::vector<std::string>& members);
  // Sets the scroll bar for the members and answers the first row member, pulled back if need be.
  int Set_Chart_Scroll_Bar(int first_row_member);
  void Clear_Chart(const organizer::ChartView& view);
  void Fill_Rows(int first_row_member);
  void Paint_Tasks(const organizer::ChartView& view, std::span<const organizer::ScheduleRecord> tasks);
};

}  // namespace orrivane
