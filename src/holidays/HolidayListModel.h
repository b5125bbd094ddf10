#pragma once
// The lines of the find-a-holiday list as a list view shows them. They are kept compactly
// (holidays::Holiday_List): a request can bring millions of lines (every holiday from 1583 to
// 100100), each formatted only when a view asks for it. Lines are appended without a word and
// shown in one insertion of rows, so that a view lays out and repaints once a batch rather than
// once a line.
#include <QAbstractListModel>
#include <cstddef>
#include <string>

#include "holidays/holiday_list.h"

namespace orrivane {

class HolidayListModel : public QAbstractListModel {
  Q_OBJECT
 public:
  explicit HolidayListModel(QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  // A line is shown cut to what a list can show: a line of a file may be megabytes long, and
  // laying it all out at each paint would freeze the window.
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

  // The lines kept, those not yet shown included.
  std::size_t Count() const { return lines_.Count(); }
  // The line at `row` (from 0), whole, as its 8-bit text.
  std::string Line(std::size_t row) const { return lines_.Line(row); }

  // Makes room for `more` lines, so that a long request is stored once.
  void Reserve(std::size_t more) { lines_.Reserve(more); }
  // Appends the line of `holiday` in `year` at the end, unseen until Show_Appended.
  void Append_Entry(int holiday, int year) { lines_.Append_Entry(holiday, year); }
  // Reads a list file to the end of the list and shows its lines; those read before a failure
  // of the file are shown too.
  void Append_File(const std::string& path);
  // Shows the lines appended since the last time, in one insertion, unless held back.
  void Show_Appended();
  // While held back, appended lines are kept but not yet shown: a view lays all its rows out
  // again at each insertion, which over millions of rows and many batches would cost more than
  // the lines themselves. Releasing shows them in one insertion.
  void Hold_Back(bool held);
  void Remove(std::size_t row);
  void Clear();

 private:
  holidays::Holiday_List lines_;
  std::size_t shown_ = 0;  // the lines a view has been told of
  bool held_ = false;
};

}  // namespace orrivane
