#include "shell/frmSaveFile.h"

#include <QFile>

#include "core/sequential_file.h"
#include "holidays/frmFindAHoliday.h"
#include "holidays/holiday_list_file.h"
#include "organizer/frmScheduler_Reminder.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/platform.h"
#include "platform/window_registry.h"
#include "shell/file_names.h"
#include "shell/shell_callers.h"

namespace orrivane {

namespace {

using controls::Make_Label;

using controls::Make_Button;

}  // namespace

frmSaveFile::frmSaveFile() {
  setObjectName("frmSaveFile");
  setWindowTitle("Save As");
  setModal(true);
  Build_Controls();
  Connect_Controls();
}

void frmSaveFile::Build_Controls() {
  lblSaveIn = Make_Label(this, "lblSaveIn", "Save in:");
  DirSaveIn = new DirectoryList(this);
  DirSaveIn->setObjectName("DirSaveIn");
  lblFileName = Make_Label(this, "lblFileName", "File name:");
  txtFileName = new QLineEdit(this);
  txtFileName->setObjectName("txtFileName");
  cmdSave = Make_Button(this, "cmdSave", "Save");
  cmdSave->setDefault(true);
  cmdCancel = Make_Button(this, "cmdCancel", "Cancel");
  lblStoreCallingProcedure = Make_Label(this, "lblStoreCallingProcedure");
  lblStoreCallingProcedure->hide();

  setFixedSize(420, 360);
  lblSaveIn->setGeometry(12, 10, 396, 20);
  DirSaveIn->setGeometry(12, 32, 396, 220);
  lblFileName->setGeometry(12, 264, 80, 26);
  txtFileName->setGeometry(92, 264, 316, 26);
  cmdSave->setGeometry(212, 316, 94, 30);
  cmdCancel->setGeometry(314, 316, 94, 30);
}

void frmSaveFile::Connect_Controls() {
  connect(cmdSave, &QPushButton::clicked, this, [this] { cmdSave_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

void frmSaveFile::Show_Modal() {
  DirSaveIn->Refresh();
  exec();
}

void frmSaveFile::cmdSave_Click() {
  switch (shell::Procedure_For(shell::kSaveFileCallers, controls::Caption(lblStoreCallingProcedure))) {
    case shell::SaveFileProcedure::Save_Holiday_List:
      Save_Holiday_List();
      break;
    case shell::SaveFileProcedure::Save_Schedule:
      Window<frmScheduler_Reminder>().Save_Schedule();
      break;
    case shell::SaveFileProcedure::None:
      break;
  }
}

void frmSaveFile::cmdCancel_Click() { hide(); }

int frmSaveFile::File_Name_Validity_Check(const std::string& FileName) const {
  return shell::File_Name_Validity_Check(FileName);
}

void frmSaveFile::Refuse_File_Name() const { platform::Show_Message(shell::Invalid_File_Name_Message()); }

void frmSaveFile::Save_Holiday_List() {
  const frmFindAHoliday& find = Window<frmFindAHoliday>();
  const std::size_t count = find.List_Count();
  const std::string name = QFile::encodeName(txtFileName->text()).toStdString();
  if (File_Name_Validity_Check(name) == 0) {
    Refuse_File_Name();
    return;
  }
  const std::string path =
      Join_Path(QFile::encodeName(DirSaveIn->Path()).toStdString(), holidays::Holiday_List_File_Name(name));
  if (File_Exists(path)) {
    if (platform::Show_Message(holidays::Overwrite_Question()) != platform::vbYes) return;
  }
  holidays::Holiday_List_Writer writer(path);
  if (!writer.Is_Open()) {
    platform::Show_Message(holidays::Invalid_File_Name_Refusal());
    return;
  }
  for (std::size_t i = 0; i < count; ++i) writer.Write_Record(find.List_Line(i));
  writer.Close();
  hide();
}

}  // namespace orrivane
