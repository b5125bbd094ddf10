#include "shell/FileList.h"

#include <QDir>

namespace orrivane {

FileList::FileList(QWidget* parent) : QListWidget(parent) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  Set_Path(QDir::currentPath());
}

void FileList::Set_Pattern(const QString& pattern) {
  pattern_ = pattern;
  Refresh();
}

QString FileList::File_Name() const {
  const QList<QListWidgetItem*> chosen = selectedItems();
  return chosen.isEmpty() ? QString() : chosen.front()->text();
}

void FileList::Fill() {
  clear();
  QDir dir(Path());
  dir.setNameFilters(pattern_.split(';', Qt::SkipEmptyParts));
  dir.setFilter(QDir::Files);
  dir.setSorting(QDir::Name | QDir::IgnoreCase);
  addItems(dir.entryList());
}

}  // namespace orrivane
