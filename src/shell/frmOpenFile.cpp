#include "shell/frmOpenFile.h"

#include <QFile>

#include "core/sequential_file.h"
#include "holidays/frmFindAHoliday.h"
#include "organizer/frmScheduler_Reminder.h"
#include "platform/controls.h"
#include "platform/window_registry.h"
#include "shell/shell_callers.h"

namespace orrivane {

namespace {

using controls::Make_Label;

using controls::Make_Button;

}  // namespace

frmOpenFile::frmOpenFile() {
  setObjectName("frmOpenFile");
  setWindowTitle("Open File");
  setModal(true);
  Build_Controls();
  Connect_Controls();
}

void frmOpenFile::Build_Controls() {
  lblLookIn = Make_Label(this, "lblLookIn", "Look in:");
  DirChooseDirectory = new DirectoryList(this);
  DirChooseDirectory->setObjectName("DirChooseDirectory");
  lblFileName = Make_Label(this, "lblFileName", "File name:");
  filFileOpen = new FileList(this);
  filFileOpen->setObjectName("filFileOpen");
  filFileOpen->Set_Path(DirChooseDirectory->Path());
  cmdOpen = Make_Button(this, "cmdOpen", "Open");
  cmdOpen->setEnabled(false);
  cmdCancel = Make_Button(this, "cmdCancel", "Cancel");
  lblStoreCallingProcedure = Make_Label(this, "lblStoreCallingProcedure");
  lblStoreCallingProcedure->hide();

  setFixedSize(520, 330);
  lblLookIn->setGeometry(12, 10, 240, 20);
  DirChooseDirectory->setGeometry(12, 32, 240, 240);
  lblFileName->setGeometry(264, 10, 244, 20);
  filFileOpen->setGeometry(264, 32, 244, 240);
  cmdOpen->setGeometry(312, 286, 94, 30);
  cmdCancel->setGeometry(414, 286, 94, 30);
}

void frmOpenFile::Connect_Controls() {
  connect(DirChooseDirectory, &DirectoryList::Change, this, [this] { DirChooseDirectory_Change(); });
  connect(filFileOpen, &QListWidget::itemSelectionChanged, this, [this] {
    if (!filFileOpen->selectedItems().isEmpty()) filFileOpen_Click();
  });
  connect(filFileOpen, &QListWidget::itemDoubleClicked, this, [this] { filFileOpen_DblClick(); });
  connect(cmdOpen, &QPushButton::clicked, this, [this] { cmdOpen_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

void frmOpenFile::Show_Modal() {
  // The folder's files may have changed since the window was last open.
  DirChooseDirectory->Refresh();
  filFileOpen->Refresh();
  cmdOpen->setEnabled(false);
  exec();
}

void frmOpenFile::DirChooseDirectory_Change() {
  filFileOpen->Set_Path(DirChooseDirectory->Path());
  cmdOpen->setEnabled(false);  // no file of the new folder is chosen yet
}

void frmOpenFile::filFileOpen_Click() { cmdOpen->setEnabled(true); }

void frmOpenFile::cmdOpen_Click() { Dispatch_By_Caller(); }

void frmOpenFile::filFileOpen_DblClick() { Dispatch_By_Caller(); }

void frmOpenFile::cmdCancel_Click() { hide(); }

void frmOpenFile::Dispatch_By_Caller() {
  switch (shell::Procedure_For(shell::kOpenFileCallers, controls::Caption(lblStoreCallingProcedure))) {
    case shell::OpenFileProcedure::Open_Holiday_List_File:
      Open_Holiday_List_File();
      break;
    case shell::OpenFileProcedure::Open_Schedule_File:
      Window<frmScheduler_Reminder>().Open_Schedule_File();
      break;
    case shell::OpenFileProcedure::None:
      break;
  }
}

std::string frmOpenFile::Chosen_File_Path() const {
  return Join_Path(QFile::encodeName(DirChooseDirectory->Path()).toStdString(),
                   QFile::encodeName(filFileOpen->File_Name()).toStdString());
}

void frmOpenFile::Open_Holiday_List_File() {
  const std::string path = Chosen_File_Path();
  frmFindAHoliday& find = Window<frmFindAHoliday>();
  // The old list goes before the file is opened, so it is gone even when reading fails.
  find.Empty_List();
  find.Read_List_File(path);
  find.Show_List_Counts(0);
  if (find.List_Count() > 0) find.Enable_Filled_List_Commands();
  cmdOpen->setEnabled(false);
  hide();
}

}  // namespace orrivane
