#pragma once
// The file list of the open window: the files of one folder whose names match a pattern
// ("*.dte"; several patterns are separated by semicolons), letters matched without regard to
// case, names in alphabetical order.
#include <QListWidget>
#include <QString>

namespace orrivane {

class FileList : public QListWidget {
  Q_OBJECT
 public:
  explicit FileList(QWidget* parent = nullptr);

  QString Path() const { return path_; }
  void Set_Path(const QString& path);
  QString Pattern() const { return pattern_; }
  void Set_Pattern(const QString& pattern);
  // The name of the chosen file, or the empty text.
  QString File_Name() const;
  // Reads the folder again.
  void Refresh();

 private:
  QString path_;
  QString pattern_ = "*.*";
};

}  // namespace orrivane
