#pragma once
// The caller identities of the Organizer's procedures. Each is compared exactly, case included,
// and any other text selects nothing.
#include <string_view>

namespace orrivane::organizer {

// ---- Refresh_Organizer_Screen: which view to show --------------------------------------------
inline constexpr std::string_view kCmdEarlierClick = "cmdEarlier_Click()";
inline constexpr std::string_view kCmdLaterClick = "cmdLater_Click()";
inline constexpr std::string_view kSelectTimePeriodDisplay = "frmSelectTimePeriod.cmdDisplay_Click()";
inline constexpr std::string_view kMultiPurposePrint5 = "frmMultiPurposeForm.cmdPrint_5_Click()";
// These show the view of lblTimePeriod again, or the present moment while it is empty.
inline constexpr std::string_view kFormActivate = "Form_Activate()";
inline constexpr std::string_view kOpenScheduleFile = "frmOpenFile.Open_Schedule_File()";
inline constexpr std::string_view kNewScheduleClick = "mnuNewSchedule_Click()";
inline constexpr std::string_view kAddThisEvent =
    "frmAddNewAppointment_Reminder.cmdAddThisEvent_AppointmentToTheSchedule_Click()";
inline constexpr std::string_view kScrChartChange = "scrChart_Change()";
inline constexpr std::string_view kDeleteASelectedRecord = "Delete_A_Selected_Record(Calling_Sub_Origin)";
inline constexpr std::string_view kDeleteAGroupMember = "Delete_A_Group_Member(Calling_Sub_Origin)";
inline constexpr std::string_view kSaveChangesToRecord = "frmTaskInformation.Save_Changes_To_Record";
inline constexpr std::string_view kMultiPurposeAdd = "frmMultiPurposeForm.cmdAdd_Click()";
inline constexpr std::string_view kMultiPurposeDelete = "frmMultiPurposeForm.cmdDelete_Click()";

inline constexpr std::string_view kRefreshingOrigins[] = {
    kFormActivate,          kOpenScheduleFile,    kNewScheduleClick,      kAddThisEvent,
    kScrChartChange,        kDeleteASelectedRecord, kDeleteAGroupMember,  kSaveChangesToRecord,
    kMultiPurposeAdd,       kMultiPurposeDelete,
};

// ---- Prompt_To_Save_Schedule_File: who asks --------------------------------------------------
// Leaving (Yes and No only): kTerminateThisProgram, kOrganizerFormUnload. Starting another log
// (Yes, No and Cancel): kNewScheduleClick, kOpenScheduleFile.
inline constexpr std::string_view kTerminateThisProgram = "Form1.Terminate_This_Program(PlaceOfOrigin)";
inline constexpr std::string_view kOrganizerFormUnload = "Form_Unload(Cancel As Integer)";

// ---- frmColorPalette: whose colour label it serves ---------------------------------------------
inline constexpr std::string_view kNewTaskSelectColour = "frmAddNewAppointment_Reminder.cmdSelect_Click()";
inline constexpr std::string_view kTaskInformationSelectColour = "frmTaskInformation.cmdSelectNewColorCode_Click()";
// The caller of the task's name and person, which writes its identity only after the palette
// has closed.
inline constexpr std::string_view kChangeTaskInfoSelectColour = "frmChangeTaskInfo.CmdChangeColorCode_Click()";

// ---- View_Task_Event_Information: where the record number comes from --------------------------
inline constexpr std::string_view kLstScheduleListDblClick = "lstScheduleList_DblClick()";
inline constexpr std::string_view kCmdViewTaskInformationClick = "cmdViewTaskInformation_Click()";
inline constexpr std::string_view kCboAppointmentsClick = "cboAppointments_Click(Index As Integer)";
inline constexpr std::string_view kReminderWindowMoreDetails = "frmReminderWindow.cmdMoreDetails_Click()";
inline constexpr std::string_view kMultiPurposeDelete1 = "frmMultiPurposeForm.cmdDelete_1_Click()";
inline constexpr std::string_view kLblChartHistoryListClick = "lblChartHistoryList_Click(Index As Integer)";

// ---- Multipurpose_Form: the purpose, in the order in which they are tested -------------------
inline constexpr std::string_view kAddNewGroupMemberOrigin = "frmScheduler_Reminder.Add_New_Group_Member()";
inline constexpr std::string_view kDeleteGroupMemberOrigin = "frmScheduler_Reminder.Delete_Group_Member()";
inline constexpr std::string_view kDeleteATaskFromMenuOrigin = "Delete_A_Task_From_Menu()";
inline constexpr std::string_view kSelectTaskInfoWindowOrigin = "Select_Task_Info_Window()";
inline constexpr std::string_view kActivateNonTaskReminderWindow = "Activate_Non_Task_Reminder_Window()";
inline constexpr std::string_view kActivateChangeNTTaskWindow = "Activate_Change_NT_Task_Window()";
inline constexpr std::string_view kActivateDeleteNTTaskWindow = "Activate_Delete_NT_Task_Window()";
inline constexpr std::string_view kActivateViewNTTaskWindow = "Activate_View_NT_Task_Window()";
inline constexpr std::string_view kActivatePrintLogScreen = "Activate_Print_Log_Screen()";

// ---- Delete_A_Selected_Record and Delete_A_Group_Member: whose list names the record ----------
inline constexpr std::string_view kCmdDeleteSelectedRecordClick = "cmdDeleteSelectedRecord_Click()";
inline constexpr std::string_view kCmdDeleteClick = "cmdDelete_Click()";
// kMultiPurposeDelete1 and kMultiPurposeDelete name frmMultiPurposeForm's two delete buttons.

// ---- frmSetReminder: whose reminder it sets (Store_Calling_Form_Origin) ----------------------
inline constexpr std::string_view kNewTaskWindow = "frmAddNewAppointment_Reminder";
inline constexpr std::string_view kTaskInformationWindow = "frmTaskInformation";

// ---- Set_Reminder: which button sets the reminder --------------------------------------------
// OK puts the window away; SET says that the reminder has been set and leaves it standing.
inline constexpr std::string_view kSetReminderCmdOK = "cmdOK_Click()";
inline constexpr std::string_view kSetReminderCmdSet = "cmdSet_Click()";

}  // namespace orrivane::organizer
