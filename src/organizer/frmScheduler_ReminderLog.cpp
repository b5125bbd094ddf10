// The log files: a new log, opening and saving one, and the question about unsaved changes.
#include <QFile>

#include "calendar/Form1.h"
#include "calendar/frmLargeCalendar.h"
#include "core/runtime_failure.h"
#include "core/sequential_file.h"
#include "holidays/holiday_list_file.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/log_file.h"
#include "organizer/log_file_name.h"
#include "organizer/organizer_callers.h"
#include "organizer/save_prompt.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/window_registry.h"
#include "shell/file_names.h"
#include "shell/frmOpenFile.h"
#include "shell/frmSaveFile.h"
#include "shell/shell_callers.h"

namespace orrivane {

namespace {

// A name of the file system as the core takes it.
std::string Local_Name(const QString& name) { return QFile::encodeName(name).toStdString(); }

QString Qt_Text(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

// The log's file is kept in two hidden labels of the main window, both empty while it has none.
void Store_Log_File(const std::string& name, const std::string& folder) {
  Form1& main = Window<Form1>();
  controls::Set_Caption(main.lblStoreScheduleFileName, name);
  controls::Set_Caption(main.lblStoreScheduleFilePath, folder);
}

std::string Log_File_Path() {
  const Form1& main = Window<Form1>();
  return Join_Path(controls::Caption(main.lblStoreScheduleFilePath), controls::Caption(main.lblStoreScheduleFileName));
}

// The large calendar forgets whose tasks it showed: the members of the old log are gone.
void Forget_Task_List_Of_Large_Calendar() {
  frmLargeCalendar& large = Window<frmLargeCalendar>();
  large.cboShowTaskListFor->clear();
  large.Refresh_Calendar_TaskList();
}

}  // namespace

void frmScheduler_Reminder::Connect_Log() {
  menu->On("mnuNewSchedule", [this] { Open_New_Schedule(); });
  menu->On("mnuOpenSchedule", [this] { Show_Open_Log_Window(shell::kSchedulerReminderFileCaller); });
  menu->On("mnuSave", [this] { Quick_Schedule_File_Save(); });
  menu->On("mnuSaveAs", [this] { Activate_Save_File_Window(); });
}

void frmScheduler_Reminder::Show_Open_Log_Window(std::string_view caller) {
  frmOpenFile& open = Window<frmOpenFile>();
  controls::Set_Caption(open.lblStoreCallingProcedure, std::string(caller));
  open.filFileOpen->Set_Pattern(Qt_Text(organizer::kLogFilePattern));
  open.Show_Modal();
}

void frmScheduler_Reminder::Open_New_Schedule() {
  if (Prompt_To_Save_Schedule_File(organizer::kNewScheduleClick) == vbCancel) return;
  Set_mnuSave(false);
  Forget_Task_List_Of_Large_Calendar();
  lstListOfPeople->clear();
  lstScheduleList->clear();
  organizer::Empty_Working_Log();
  Store_Log_File({}, {});
  Refresh_Organizer_Screen(organizer::kNewScheduleClick);
  // Save_File_Prompt_Flag stays as it was: after No, leaving with the new, empty log asks again.
}

// Nothing in the chosen file is checked: a truncated one is the failure 62 that ends the
// program, with the records copied so far in the working copy.
void frmScheduler_Reminder::Open_Schedule_File() {
  if (Prompt_To_Save_Schedule_File(organizer::kOpenScheduleFile) == vbCancel) return;
  lstListOfPeople->clear();
  lstScheduleList->clear();
  frmOpenFile& open = Window<frmOpenFile>();
  const std::string folder = organizer::Log_Folder(Local_Name(open.DirChooseDirectory->Path()));
  const std::string name = Local_Name(open.filFileOpen->File_Name());
  organizer::Copy_Log(Join_Path(folder, name), organizer::kScheduleFile, organizer::kTaskReminderFile);
  Save_File_Prompt_Flag = 0;
  Store_Log_File(name, folder);
  Refresh_Organizer_Screen(organizer::kOpenScheduleFile);
  Forget_Task_List_Of_Large_Calendar();
  open.cmdOpen->setEnabled(false);
  open.hide();
  Set_mnuSave(true);
}

// A name the machine refuses is not told either: from opening the file on, a failure is passed
// over, and the log counts as saved.
void frmScheduler_Reminder::Save_Schedule() {
  frmSaveFile& save = Window<frmSaveFile>();
  const std::string typed = Local_Name(save.txtFileName->text());
  if (save.File_Name_Validity_Check(typed) == 0) {
    platform::Show_Message(shell::Invalid_File_Name_Message());
    return;
  }
  const std::string name = organizer::Log_File_Name(typed);
  const std::string folder = organizer::Log_Folder(Local_Name(save.DirSaveIn->Path()));
  const std::string path = Join_Path(folder, name);
  if (File_Exists(path) && platform::Show_Message(holidays::Overwrite_Question()) != vbYes) return;
  try {
    organizer::Copy_Log(organizer::kScheduleFile, path);
  } catch (const RuntimeFailure&) {
    // passed over: the save goes on to its end
  }
  Save_File_Prompt_Flag = 0;
  Store_Log_File(name, folder);
  controls::Set_Caption(lblFileName, name);
  save.hide();
  Set_mnuSave(true);
}

// No failure is handled: a file that can't be written ends the program.
void frmScheduler_Reminder::Quick_Schedule_File_Save() {
  organizer::Copy_Log(organizer::kScheduleFile, Log_File_Path());
  Save_File_Prompt_Flag = 0;
}

void frmScheduler_Reminder::Activate_Save_File_Window() {
  frmSaveFile& save = Window<frmSaveFile>();
  controls::Set_Caption(save.lblStoreCallingProcedure, std::string(shell::kSchedulerReminderFileCaller));
  save.txtFileName->setText(Qt_Text(organizer::kProposedLogFileName));
  save.Show_Modal();
}

void frmScheduler_Reminder::Set_mnuSave(bool enabled) {
  menu->Action("mnuSave")->setEnabled(enabled);
  Window<Form1>().menu->Action("mnuSaveLog")->setEnabled(enabled);
  Window<frmLargeCalendar>().menu->Action("mnuSaveLog")->setEnabled(enabled);
}

// Whether the log has a file of its own is told by mnuSave alone, not by the labels.
std::optional<int> frmScheduler_Reminder::Prompt_To_Save_Schedule_File(std::string_view Calling_Sub_Origin) {
  std::optional<int> answer;
  if (Save_File_Prompt_Flag == 1) {
    const bool has_file = menu->Action("mnuSave")->isEnabled();
    std::optional<std::string> log_file;
    if (has_file) log_file = controls::Caption(Window<Form1>().lblStoreScheduleFileName);
    answer = platform::Show_Message(organizer::Save_Changes_Question(Calling_Sub_Origin, log_file));
    if (*answer == vbYes) {
      Save_File_Prompt_Flag = 0;
      if (has_file) {
        Quick_Schedule_File_Save();
      } else {
        Activate_Save_File_Window();
      }
    }
  }
  if (organizer::Forgets_Unsaved_Changes(Calling_Sub_Origin)) Save_File_Prompt_Flag = 0;
  return answer;
}

void frmScheduler_Reminder::Form_Unload() { Prompt_To_Save_Schedule_File(organizer::kOrganizerFormUnload); }

}  // namespace orrivane
