#pragma once
// "Open File": the program's own window for choosing a file, shared by the holiday list and
// the log. It knows no file format: its caller writes the file pattern and its own name in
// lblStoreCallingProcedure before showing it, and Open dispatches on that name to the
// procedure that reads the format.
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "shell/DirectoryList.h"
#include "shell/FileList.h"

namespace orrivane {

class frmOpenFile : public QDialog {
  Q_OBJECT
 public:
  frmOpenFile();

  // ---- Controls --------------------------------------------------------------------------
  QLabel* lblLookIn;
  DirectoryList* DirChooseDirectory;
  QLabel* lblFileName;
  FileList* filFileOpen;
  QPushButton* cmdOpen;
  QPushButton* cmdCancel;
  QLabel* lblStoreCallingProcedure;  // hidden: the caller's name

  // ---- Procedures ------------------------------------------------------------------------
  // Shows the window modally; returns when it is hidden again.
  void Show_Modal();
  void DirChooseDirectory_Change();
  void filFileOpen_Click();
  void cmdOpen_Click();
  void filFileOpen_DblClick();
  void cmdCancel_Click();
  // Reads the chosen .dte file into the find-a-holiday list, in place of what it held.
  void Open_Holiday_List_File();

 private:
  void Build_Controls();
  void Connect_Controls();
  // The procedure that serves the caller named in lblStoreCallingProcedure.
  void Dispatch_By_Caller();
  std::string Chosen_File_Path() const;
};

}  // namespace orrivane
