#pragma once
// The directory list of the file windows: the folders from the root down to the current one,
// each indented one step further, then the folders inside the current one. Opening an entry
// (a double click, or Enter) makes it the current folder and tells so by Change.
#include <QListWidget>
#include <QString>

namespace orrivane {

class DirectoryList : public QListWidget {
  Q_OBJECT
 public:
  explicit DirectoryList(QWidget* parent = nullptr);

  QString Path() const { return path_; }
  // Makes `path` the current folder; Change follows when it differs from the one before.
  void Set_Path(const QString& path);
  // Reads the folder again (a folder may have been made or removed meanwhile).
  void Refresh();

 signals:
  void Change();

 private:
  void Fill();

  QString path_;
};

}  // namespace orrivane
