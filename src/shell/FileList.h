#pragma once
// The file list of the open window: the files of one folder whose names match a pattern
// ("*.dte"; several patterns are separated by semicolons), letters matched without regard to
// case, names in alphabetical order.
#include <QListWidget>
#include <QString>

#include "shell/FolderView.h"

namespace orrivane {

class FileList : public QListWidget, public FolderView {
  Q_OBJECT
 public:
  explicit FileList(QWidget* parent = nullptr);

  QString Pattern() const { return pattern_; }
  void Set_Pattern(const QString& pattern);
  // The name of the chosen file, or the empty text.
  QString File_Name() const;

 private:
  // The matching files of the folder.
  void Fill() override;

  QString pattern_ = "*.*";
};

}  // namespace orrivane
