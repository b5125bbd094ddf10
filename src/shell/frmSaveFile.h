#pragma once
// "Save As": the program's own window for naming a file to save, shared by the holiday list
// and the log. Its caller writes its own name in lblStoreCallingProcedure and the proposed
// name in txtFileName; Save dispatches on the caller's name to the procedure that writes the
// format.
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <string>

#include "shell/DirectoryList.h"

namespace orrivane {

class frmSaveFile : public QDialog {
  Q_OBJECT
 public:
  frmSaveFile();

  // ---- Controls --------------------------------------------------------------------------
  QLabel* lblSaveIn;
  DirectoryList* DirSaveIn;
  QLabel* lblFileName;
  QLineEdit* txtFileName;
  QPushButton* cmdSave;
  QPushButton* cmdCancel;
  QLabel* lblStoreCallingProcedure;  // hidden: the caller's name

  // ---- Procedures ------------------------------------------------------------------------
  // Shows the window modally; returns when it is hidden again.
  void Show_Modal();
  void cmdSave_Click();
  void cmdCancel_Click();
  // 1 when the name holds none of the characters \ / : * ? " < > |, else 0.
  int File_Name_Validity_Check(const std::string& FileName) const;
  // Writes the find-a-holiday list to the named .dte file.
  void Save_Holiday_List();

 private:
  void Build_Controls();
  void Connect_Controls();
  // Tells the user which characters a name cannot hold.
  void Refuse_File_Name() const;
};

}  // namespace orrivane
