#pragma once
// The directory list of the file windows: the folders from the root down to the current one,
// each one level further in, then the folders inside the current one. Opening an entry (a
// double click, or Enter) makes it the current folder; Change tells whenever the current
// folder becomes another one.
#include <QString>
#include <QTreeWidget>

#include "shell/FolderView.h"

namespace orrivane {

class DirectoryList : public QTreeWidget, public FolderView {
  Q_OBJECT
 public:
  explicit DirectoryList(QWidget* parent = nullptr);

  // The entries from the top, as they stand: the folder's name and its full path.
  int Entry_Count() const;
  QString Entry_Name(int entry) const;
  QString Entry_Path(int entry) const;
  // The entry of the current folder.
  int Current_Entry() const;
  // Opens an entry as a double click does.
  void Open_Entry(int entry);

 signals:
  void Change();

 private:
  // The folders down to the current one and those inside it.
  void Fill() override;
  void Path_Changed() override { emit Change(); }
  QTreeWidgetItem* Entry(int entry) const;
};

}  // namespace orrivane
