#pragma once
// "Form PrintLogChart": the task chart as it is printed, one period of one day for up to 32
// group members, with the log's file name. It is never shown: the Organizer's chart pass draws
// the rows of one sheet onto it, and its image goes to the printer.
#include <QLabel>
#include <QWidget>
#include <array>
#include <string>

#include "core/value.h"
#include "organizer/chart_geometry.h"

namespace orrivane {

class frmPrintLogChart : public QWidget {
  Q_OBJECT
 public:
  frmPrintLogChart();

  // ---- Controls ---------------------------------------------------------------------------
  std::array<QLabel*, organizer::kPrintChartRows> lblChartGroupMemberName{};
  std::array<QLabel*, organizer::kChartHeads> lblChartHour{};
  std::array<QLabel*, organizer::kPrintChartCells> lblChartHistoryList{};  // 36 x row + column
  QLabel* Label3;         // "Group Member Name", over the rows' heads
  QLabel* Label4;         // "Time Period:"
  QLabel* lblTimePeriod;  // the chart's period and date, "Morning, March 5, 2001"
  QLabel* Label7;         // "Filename:"
  QLabel* lblFileName;    // the log's file name

  // ---- Procedures --------------------------------------------------------------------------
  // "Put" keeps a cell's value and answers the cell's number; "Get" answers the value. A cell
  // outside 0 to 1151 is the failure 9 (Subscript out of range).
  Value Chart_History_List_Content_Tracker(int Element_Number, const std::string& Action_To_Perform,
                                           const Value& Content = {});

 private:
  void Build_Controls();
  void Place_Controls();

  std::array<Value, organizer::kPrintChartCells> cell_contents_{};
};

}  // namespace orrivane
