#include "holidays/HolidayListModel.h"

namespace orrivane {

HolidayListModel::HolidayListModel(QObject* parent) : QAbstractListModel(parent), starts_{0} {}

int HolidayListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(Count());
}

QVariant HolidayListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() < 0 || static_cast<std::size_t>(index.row()) >= Count()) return {};
  if (role != Qt::DisplayRole) return {};
  const std::string_view line = Line(static_cast<std::size_t>(index.row()));
  return QString::fromLatin1(line.data(), static_cast<qsizetype>(line.size()));
}

std::string_view HolidayListModel::Line(std::size_t row) const {
  return std::string_view(text_).substr(starts_[row], starts_[row + 1] - starts_[row]);
}

void HolidayListModel::Append(const std::vector<std::string>& lines) {
  if (lines.empty()) return;
  const int first = static_cast<int>(Count());
  beginInsertRows(QModelIndex(), first, first + static_cast<int>(lines.size()) - 1);
  starts_.reserve(starts_.size() + lines.size());
  for (const std::string& line : lines) {
    text_ += line;
    starts_.push_back(text_.size());
  }
  endInsertRows();
}

void HolidayListModel::Remove(std::size_t row) {
  if (row >= Count()) return;
  const std::size_t length = starts_[row + 1] - starts_[row];
  beginRemoveRows(QModelIndex(), static_cast<int>(row), static_cast<int>(row));
  text_.erase(starts_[row], length);
  starts_.erase(starts_.begin() + static_cast<std::ptrdiff_t>(row) + 1);
  for (std::size_t i = row + 1; i < starts_.size(); ++i) starts_[i] -= length;
  endRemoveRows();
}

void HolidayListModel::Clear() {
  beginResetModel();
  text_.clear();
  text_.shrink_to_fit();
  starts_.assign(1, 0);
  starts_.shrink_to_fit();
  endResetModel();
}

}  // namespace orrivane
