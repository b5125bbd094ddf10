#include "shell/DirectoryList.h"

#include <QDir>
#include <QFileInfo>
#include <QStyle>

namespace orrivane {

namespace {

constexpr int kPathRole = Qt::UserRole;
constexpr int kIndentPerLevel = 2;  // blanks in front of a folder's name, a level

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

DirectoryList::DirectoryList(QWidget* parent) : QListWidget(parent) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  connect(this, &QListWidget::itemActivated, this,
          [this](QListWidgetItem* item) { Set_Path(item->data(kPathRole).toString()); });
  Set_Path(QDir::currentPath());
}

void DirectoryList::Set_Path(const QString& path) {
  const QString absolute = QDir(path).absolutePath();
  const bool changed = absolute != path_;
  path_ = absolute;
  Fill();
  if (changed) emit Change();
}

void DirectoryList::Refresh() { Fill(); }

void DirectoryList::Fill() {
  clear();
  const QIcon open = style()->standardIcon(QStyle::SP_DirOpenIcon);
  const QIcon closed = style()->standardIcon(QStyle::SP_DirClosedIcon);
  const QStringList chain = Folders_Down_To(path_);
  int level = 0;
  for (const QString& folder : chain) {
    auto* item = new QListWidgetItem(open, QString(level * kIndentPerLevel, ' ') + Shown_Name(folder), this);
    item->setData(kPathRole, folder);
    ++level;
  }
  setCurrentRow(count() - 1);
  const QDir here(path_);
  const QStringList inside = here.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
  for (const QString& name : inside) {
    auto* item = new QListWidgetItem(closed, QString(level * kIndentPerLevel, ' ') + name, this);
    item->setData(kPathRole, here.absoluteFilePath(name));
  }
}

}  // namespace orrivane
