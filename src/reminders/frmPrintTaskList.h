#pragma once
// The task list of one group member as it is printed: a heading and up to six tasks, a row each,
// with the task's colour, name, description, start and finish. It is never shown: the print
// frame fills it one sheet at a time, a row made visible for each task, and its image goes to
// the printer.
#include <QFrame>
#include <QLabel>
#include <QWidget>
#include <array>
#include <vector>

#include "reminders/print_log.h"

namespace orrivane {

class frmPrintTaskList : public QWidget {
  Q_OBJECT
 public:
  static constexpr int kRows = reminders::kTasksPerSheet;
  template <class Control>
  using Rows = std::array<Control*, kRows>;

  frmPrintTaskList();

  // ---- Controls ---------------------------------------------------------------------------
  QLabel* lblGroupMemberID;  // "Tasklist For: <member>"
  Rows<QLabel> lblColorCode{};  // its face in the task's colour
  Rows<QLabel> lblTaskNameLabel{};
  Rows<QLabel> lblTaskName{};
  Rows<QLabel> lblDescriptionLabel{};
  Rows<QLabel> lblDecription{};
  Rows<QLabel> lblStartDateLabel{};
  Rows<QLabel> lblStartDate{};
  Rows<QLabel> lblStartTimeLabel{};
  Rows<QLabel> lblStartTime{};
  Rows<QLabel> lblFinishDateLabel{};
  Rows<QLabel> lblFinishDate{};
  Rows<QLabel> lblFinishTimeLabel{};
  Rows<QLabel> lblFinishTime{};
  // The lines around a row: above, below, left and right.
  Rows<QFrame> Line1{};
  Rows<QFrame> Line2{};
  Rows<QFrame> Line3{};
  Rows<QFrame> Line4{};

  // ---- Procedures --------------------------------------------------------------------------
  // Every control of a row, its lines included (not the heading).
  std::vector<QWidget*> Row_Controls(int row) const;
  // Writes a task into a row.
  void Fill_Row(int row, const reminders::TaskListRow& task);

 private:
  void Build_Controls();
  void Place_Controls();
};

}  // namespace orrivane
