#include "shell/FileList.h"

#include <QDir>

namespace orrivane {

FileList::FileList(QWidget* parent) : QListWidget(parent), path_(QDir::currentPath()) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  Refresh();
}

void FileList::Set_Path(const QString& path) {
  path_ = path;
  Refresh();
}

void FileList::Set_Pattern(const QString& pattern) {
  pattern_ = pattern;
  Refresh();
}

QString FileList::File_Name() const {
  const QList<QListWidgetItem*> chosen = selectedItems();
  return chosen.isEmpty() ? QString() : chosen.front()->text();
}

void FileList::Refresh() {
  clear();
  QDir dir(path_);
  dir.setNameFilters(pattern_.split(';', Qt::SkipEmptyParts));
  dir.setFilter(QDir::Files);
  dir.setSorting(QDir::Name | QDir::IgnoreCase);
  addItems(dir.entryList());
}

}  // namespace orrivane
