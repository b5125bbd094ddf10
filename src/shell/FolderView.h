#pragma once
// What the folder and file lists of the file windows share: the folder they show, kept as an
// absolute path and read again when asked, as the folder may have changed on the disk meanwhile.
#include <QDir>
#include <QString>

namespace orrivane {

class FolderView {
 public:
  QString Path() const { return path_; }
  // Makes `path` the folder shown and reads it; Path_Changed follows when it differs from the
  // one before.
  void Set_Path(const QString& path) {
    const QString absolute = QDir(path).absolutePath();
    const bool changed = absolute != path_;
    path_ = absolute;
    Fill();
    if (changed) Path_Changed();
  }
  // Reads the folder again.
  void Refresh() { Fill(); }

 protected:
  FolderView() = default;
  ~FolderView() = default;
  FolderView(const FolderView&) = delete;
  FolderView& operator=(const FolderView&) = delete;

  // Shows what the list shows of the folder at Path().
  virtual void Fill() = 0;
  // The folder shown is another one now.
  virtual void Path_Changed() {}

 private:
  QString path_;
};

}  // namespace orrivane
