#pragma once
// The lines of the find-a-holiday list, kept packed: a request can bring millions of lines
// (every holiday from 1583 to 100100), which as separate items would cost a great deal of
// memory and time. Lines are appended in batches, one insertion of rows a batch, so that the
// view lays out and repaints once a batch rather than once a line.
#include <QAbstractListModel>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orrivane {

class HolidayListModel : public QAbstractListModel {
  Q_OBJECT
 public:
  explicit HolidayListModel(QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

  std::size_t Count() const { return starts_.size() - 1; }
  // The line at `row` (from 0), as its 8-bit text.
  std::string_view Line(std::size_t row) const;

  // Appends lines at the end of the list, in order.
  void Append(const std::vector<std::string>& lines);
  void Remove(std::size_t row);
  void Clear();

 private:
  std::string text_;                 // all lines, one after the other
  std::vector<std::size_t> starts_;  // where each line begins, and the end of the last
};

}  // namespace orrivane
