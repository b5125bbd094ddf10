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

  // The lines kept, those held back included.
  std::size_t Count() const { return starts_.size() - 1; }
  // The line at `row` (from 0), as its 8-bit text.
  std::string_view Line(std::size_t row) const;

  // Appends lines at the end of the list, in order.
  void Append(const std::vector<std::string>& lines);
  // While held back, appended lines are kept but not yet shown: a view lays all its rows out
  // again at each insertion, which over millions of rows and many batches would cost more than
  // the lines themselves. Releasing shows them in one insertion.
  void Hold_Back(bool held);
  void Remove(std::size_t row);
  void Clear();

 private:
  void Show_Appended();

  std::string text_;                 // all lines, one after the other
  std::vector<std::size_t> starts_;  // where each line begins, and the end of the last
  std::size_t shown_ = 0;            // the lines a view has been told of
  bool held_ = false;
};

}  // namespace orrivane
