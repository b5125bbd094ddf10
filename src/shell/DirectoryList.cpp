#include "shell/DirectoryList.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QStyle>
#include <QTreeWidgetItemIterator>

namespace orrivane {

namespace {

constexpr int kPathRole = Qt::UserRole;

// The folders from the root down to `path`, the root first.
QStringList Folders_Down_To(const QString& path) {
  QStringList chain;
  QDir dir(path);
  chain.prepend(dir.absolutePath());
  while (dir.cdUp()) chain.prepend(dir.absolutePath());
  return chain;
}

QString Shown_Name(const QString& path) {
  const QString name = QFileInfo(path).fileName();
  return name.isEmpty() ? QDir::toNativeSeparators(path) : name;  // the root has no name of its own
}

}  // namespace

DirectoryList::DirectoryList(QWidget* parent) : QTreeWidget(parent) {
  setHeaderHidden(true);
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setExpandsOnDoubleClick(false);
  setIndentation(12);
  setSelectionMode(QAbstractItemView::SingleSelection);
  connect(this, &QTreeWidget::itemActivated, this,
          [this](QTreeWidgetItem* item) { Set_Path(item->data(0, kPathRole).toString()); });
  Set_Path(QDir::currentPath());
}

void DirectoryList::Fill() {
  clear();
  const QIcon open = style()->standardIcon(QStyle::SP_DirOpenIcon);
  const QIcon closed = style()->standardIcon(QStyle::SP_DirClosedIcon);
  QTreeWidgetItem* parent = nullptr;
  for (const QString& folder : Folders_Down_To(Path())) {
    auto* item = parent == nullptr ? new QTreeWidgetItem(this) : new QTreeWidgetItem(parent);
    item->setText(0, Shown_Name(folder));
    item->setIcon(0, open);
    item->setData(0, kPathRole, folder);
    parent = item;
  }
  const QDir here(Path());
  for (const QString& name : here.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase)) {
    auto* item = new QTreeWidgetItem(parent);
    item->setText(0, name);
    item->setIcon(0, closed);
    item->setData(0, kPathRole, here.absoluteFilePath(name));
  }
  expandAll();
  setCurrentItem(parent);
}

QTreeWidgetItem* DirectoryList::Entry(int entry) const {
  QTreeWidgetItemIterator it(const_cast<DirectoryList*>(this));
  for (int i = 0; *it != nullptr; ++it, ++i) {
    if (i == entry) return *it;
  }
  return nullptr;
}

int DirectoryList::Entry_Count() const {
  int count = 0;
  for (QTreeWidgetItemIterator it(const_cast<DirectoryList*>(this)); *it != nullptr; ++it) ++count;
  return count;
}

QString DirectoryList::Entry_Name(int entry) const {
  const QTreeWidgetItem* item = Entry(entry);
  return item != nullptr ? item->text(0) : QString();
}

QString DirectoryList::Entry_Path(int entry) const {
  const QTreeWidgetItem* item = Entry(entry);
  return item != nullptr ? item->data(0, kPathRole).toString() : QString();
}

int DirectoryList::Current_Entry() const {
  int i = 0;
  for (QTreeWidgetItemIterator it(const_cast<DirectoryList*>(this)); *it != nullptr; ++it, ++i) {
    if (*it == currentItem()) return i;
  }
  return -1;
}

void DirectoryList::Open_Entry(int entry) {
  if (QTreeWidgetItem* item = Entry(entry)) emit itemActivated(item, 0);
}

}  // namespace orrivane
