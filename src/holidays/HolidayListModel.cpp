#include "holidays/HolidayListModel.h"

#include "holidays/holiday_list_file.h"

namespace orrivane {

HolidayListModel::HolidayListModel(QObject* parent) : QAbstractListModel(parent) {}

int HolidayListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_);
}

QVariant HolidayListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() < 0 || static_cast<std::size_t>(index.row()) >= shown_) return {};
  if (role != Qt::DisplayRole) return {};
  const std::string line = lines_.Shown_Line(static_cast<std::size_t>(index.row()));
  return QString::fromLatin1(line.data(), static_cast<qsizetype>(line.size()));
}

void HolidayListModel::Append_File(const std::string& path) {
  try {
    holidays::Read_Holiday_List_File(path, lines_);
  } catch (...) {
    Show_Appended();
    throw;
  }
  Show_Appended();
}

void HolidayListModel::Hold_Back(bool held) {
  held_ = held;
  Show_Appended();
}

void HolidayListModel::Show_Appended() {
  if (held_ || shown_ == Count()) return;
  beginInsertRows(QModelIndex(), static_cast<int>(shown_), static_cast<int>(Count()) - 1);
  shown_ = Count();
  endInsertRows();
}

void HolidayListModel::Remove(std::size_t row) {
  if (row >= shown_) return;
  beginRemoveRows(QModelIndex(), static_cast<int>(row), static_cast<int>(row));
  lines_.Remove(row);
  --shown_;
  endRemoveRows();
}

void HolidayListModel::Clear() {
  beginResetModel();
  lines_.Clear();
  shown_ = 0;
  endResetModel();
}

}  // namespace orrivane
