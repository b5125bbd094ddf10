#include "holidays/HolidayListModel.h"

namespace orrivane {

HolidayListModel::HolidayListModel(QObject* parent) : QAbstractListModel(parent), starts_{0} {}

int HolidayListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_);
}

QVariant HolidayListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() < 0 || static_cast<std::size_t>(index.row()) >= shown_) return {};
  if (role != Qt::DisplayRole) return {};
  const std::string_view line = Line(static_cast<std::size_t>(index.row()));
  return QString::fromLatin1(line.data(), static_cast<qsizetype>(line.size()));
}

std::string_view HolidayListModel::Line(std::size_t row) const {
  return std::string_view(text_).substr(starts_[row], starts_[row + 1] - starts_[row]);
}

void HolidayListModel::Append(const std::vector<std::string>& lines) {
  starts_.reserve(starts_.size() + lines.size());
  for (const std::string& line : lines) {
    text_ += line;
    starts_.push_back(text_.size());
  }
  if (!held_) Show_Appended();
}

void HolidayListModel::Hold_Back(bool held) {
  held_ = held;
  if (!held_) Show_Appended();
}

void HolidayListModel::Show_Appended() {
  if (shown_ == Count()) return;
  beginInsertRows(QModelIndex(), static_cast<int>(shown_), static_cast<int>(Count()) - 1);
  shown_ = Count();
  endInsertRows();
}

void HolidayListModel::Remove(std::size_t row) {
  if (row >= shown_) return;
  const std::size_t length = starts_[row + 1] - starts_[row];
  beginRemoveRows(QModelIndex(), static_cast<int>(row), static_cast<int>(row));
  text_.erase(starts_[row], length);
  starts_.erase(starts_.begin() + static_cast<std::ptrdiff_t>(row) + 1);
  for (std::size_t i = row + 1; i < starts_.size(); ++i) starts_[i] -= length;
  --shown_;
  endRemoveRows();
}

void HolidayListModel::Clear() {
  beginResetModel();
  text_.clear();
  text_.shrink_to_fit();
  starts_.assign(1, 0);
  starts_.shrink_to_fit();
  shown_ = 0;
  endResetModel();
}

}  // namespace orrivane
