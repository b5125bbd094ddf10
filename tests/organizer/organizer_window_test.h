#pragma once
// What the tests of the Organizer's chart share: a log written into the working copy, the
// Organizer opened as the user opens it, and the chart's cells and captions read back.
#include <QAction>
#include <QLabel>
#include <string>
#include <vector>

#include "organizer/chart_samples.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/frmSelectTimePeriod.h"
#include "organizer/log_file.h"
#include "platform/controls.h"
#include "platform/window_registry.h"
#include "support/window_fixture.h"

namespace orrivane::testing {

class OrganizerWindowTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    organizer::Empty_Working_Log();  // what the start of the program does
  }

  frmScheduler_Reminder& organizer() { return Window<frmScheduler_Reminder>(); }
  frmSelectTimePeriod& select() { return Window<frmSelectTimePeriod>(); }

  // ---- The log ----------------------------------------------------------------------------
  void Add_Member(const std::string& name) {
    organizer::Generate_Person_Marker_Record(organizer::kScheduleFile, name);
  }
  void Add_Task(const organizer::ScheduleRecord& task) { organizer::Append_Record(organizer::kScheduleFile, task); }

  // ---- Opening ----------------------------------------------------------------------------
  // Opens the Organizer as the user does: shown in front, active.
  void Open() {
    controls::Show_In_Front(organizer());
    Process_Events();
    ASSERT_TRUE(organizer().isVisible());
  }

  // ---- Reading the chart --------------------------------------------------------------------
  std::string Period() { return controls::Caption(organizer().lblTimePeriod); }
  QLabel* Cell(int index) { return Control<QLabel>(organizer(), controls::Array_Name("lblChartHistoryList", index)); }
  bool Painted(int index) { return Cell(index)->autoFillBackground(); }
  unsigned Colour(int index) { return controls::Back_Color(Cell(index)); }
  std::string Head(int index) {
    return controls::Caption(Control<QLabel>(organizer(), controls::Array_Name("lblChartHour", index)));
  }
  std::string Row_Name(int row) {
    return controls::Caption(Control<QLabel>(organizer(), controls::Array_Name("lblChartGroupMemberName", row)));
  }
  Value Owner(int index) { return organizer().Chart_History_List_Content_Tracker(index, "Get"); }
  QAction* Menu(const char* name) { return Control<QAction>(organizer(), name); }

  // The painted cells, in order.
  std::vector<int> Painted_Cells() {
    std::vector<int> cells;
    for (int cell = 0; cell < organizer::kScreenChartCells; ++cell) {
      if (Painted(cell)) cells.push_back(cell);
    }
    return cells;
  }
};

}  // namespace orrivane::testing
