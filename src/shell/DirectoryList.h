#pragma once
// The directory list of the file windows: the folders from the root down to the current one,
// each one level further in, then the folders inside the current one. Opening an entry (a
// double click, or Enter) makes it the current folder and tells so by Change.
#include <QString>
#include <QTreeWidget>

namespace orrivane {

class DirectoryList : public QTreeWidget {
  Q_OBJECT
 public:
  explicit DirectoryList(QWidget* parent = nullptr);

  QString Path() const { return path_; }
  // Makes `path` the current folder; Change follows when it differs from the one before.
  void Set_Path(const QString& path);
  // Reads the folder again (a folder may have been made or removed meanwhile).
  void Refresh();

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
  void Fill();
  QTreeWidgetItem* Entry(int entry) const;

  QString path_;
};

}  // namespace orrivane
