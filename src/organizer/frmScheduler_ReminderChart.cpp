// The task chart of the Organizer: its view, stepping through the periods, painting the tasks.
#include <QSignalBlocker>
#include <algorithm>
#include <functional>
#include <span>
#include <vector>

#include "calendar/Form1.h"
#include "core/colours.h"
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/frmSelectTimePeriod.h"
#include "organizer/log_file.h"
#include "organizer/organizer_callers.h"
#include "organizer/task_chart.h"
#include "platform/controls.h"
#include "platform/platform.h"
#include "platform/window_registry.h"
#include "reminders/frmMultiPurposeForm.h"
#include "reminders/frmPrintLogChart.h"
#include "reminders/print_log.h"

namespace orrivane {

namespace {

using organizer::PeriodStep;

// The print job, and the file when the machine has no printer.
constexpr char kPrintDocumentName[] = "Orrivane-organizer";

bool Is_Refreshing_Origin(std::string_view origin) {
  return std::ranges::find(organizer::kRefreshingOrigins, origin) != std::end(organizer::kRefreshingOrigins);
}

void Make_Transparent(QLabel* label) { label->setAutoFillBackground(false); }

// The labels of a chart: the screen's, or those of the printed page.
struct ChartLabels {
  std::span<QLabel* const> heads;
  std::span<QLabel* const> rows;
  std::span<QLabel* const> cells;
};

ChartLabels Labels_Of(const frmScheduler_Reminder& screen) {
  return {screen.lblChartHour, screen.lblChartGroupMemberName, screen.lblChartHistoryList};
}

// Writes the period's heads, empties the rows and makes every cell transparent.
void Clear_Chart_Labels(const ChartLabels& chart, const organizer::ChartView& view) {
  const organizer::ChartHeads& heads = *organizer::kTimePeriods[static_cast<std::size_t>(view.period)].heads;
  for (int head = 0; head < organizer::kChartHeads; ++head) {
    controls::Set_Caption(chart.heads[head], std::string(heads[head]));
  }
  for (QLabel* member : chart.rows) {
    controls::Set_Caption(member, "");
    Make_Transparent(member);
  }
  for (QLabel* cell : chart.cells) Make_Transparent(cell);
}

// Puts the members of `list` on the rows in order, from `first_row_member` on, as many as there
// are rows and stopping at the end of the list.
void Fill_Row_Labels(const ChartLabels& chart, const QListWidget& list, int first_row_member) {
  const int rows = organizer::Rows_Filled(list.count(), first_row_member, static_cast<int>(chart.rows.size()));
  for (int row = 0; row < rows; ++row) {
    controls::Set_Caption(chart.rows[row], list.item(first_row_member + row)->text().toStdString());
  }
}

// Paints the tasks in view on the rows whose captions name their members, each cell once as the
// tasks in file order leave it, and tells `keep_owner` the record number of each painted cell's
// task.
void Paint_Chart_Labels(const ChartLabels& chart, const organizer::ChartView& view,
                        std::span<const organizer::ScheduleRecord> tasks,
                        const std::function<void(int cell, const Value& record_number)>& keep_owner) {
  std::vector<std::string> row_captions;
  for (const QLabel* member : chart.rows) row_captions.push_back(controls::Caption(member));
  const std::vector<organizer::PaintedTask> painted = organizer::Tasks_To_Paint(tasks, view, row_captions);
  const int cell_count = static_cast<int>(chart.cells.size());
  const std::vector<int> owners = organizer::Cell_Owners(painted, cell_count);
  for (int cell = 0; cell < cell_count; ++cell) {
    const int owner = owners[static_cast<std::size_t>(cell)];
    if (owner == organizer::kNoTask) continue;
    const organizer::PaintedTask& task = painted[static_cast<std::size_t>(owner)];
    controls::Set_Back_Color(chart.cells[cell], static_cast<unsigned>(task.colour.whole()));
    keep_owner(cell, task.record_number);
  }
}

ChartLabels Labels_Of(const frmPrintLogChart& page) {
  return {page.lblChartHour, page.lblChartGroupMemberName, page.lblChartHistoryList};
}

// The chart of the print frame drawn on the printed page: the day and period of lblDate_5 and
// lblTimePeriod_5, the selected members from the position the frame keeps for the next sheet,
// and the log's file name. The chart on the screen is left alone.
void Draw_Print_Chart() {
  frmMultiPurposeForm& form = Window<frmMultiPurposeForm>();
  frmPrintLogChart& page = Window<frmPrintLogChart>();
  const std::optional<organizer::DateAndTime> moment =
      reminders::Print_Chart_Moment(controls::Caption(form.lblDate_5), controls::Caption(form.lblTimePeriod_5));
  if (!moment) return;
  const organizer::ChartView view = organizer::View_Of(*moment);
  const organizer::ChartLog log = organizer::Read_Chart_Log(organizer::kScheduleFile, view);
  for (int cell = 0; cell < organizer::kPrintChartCells; ++cell) page.Chart_History_List_Content_Tracker(cell, "Put", -1);

  const ChartLabels chart = Labels_Of(page);
  Clear_Chart_Labels(chart, view);
  Fill_Row_Labels(chart, *form.lstSelectedPeople_5, form.Store_Next_Name_Position_5("Get"));
  controls::Set_Caption(page.lblTimePeriod, organizer::View_Caption(view));
  controls::Set_Caption(page.lblFileName, controls::Caption(Window<Form1>().lblStoreScheduleFileName));
  Paint_Chart_Labels(chart, view, log.tasks, [&page](int cell, const Value& record_number) {
    page.Chart_History_List_Content_Tracker(cell, "Put", record_number);
  });
}

}  // namespace

void frmScheduler_Reminder::Connect_Chart() {
  connect(cmdEarlier, &QPushButton::clicked, this, [this] { Move_To_Earlier_Time_Period(); });
  connect(cmdLater, &QPushButton::clicked, this, [this] { Move_To_Later_Time_Period(); });
  connect(scrChart, &QScrollBar::valueChanged, this, [this] { scrChart_Change(); });
  menu->On("mnuEarlierTimePeriod", [this] { Move_To_Earlier_Time_Period(); });
  menu->On("mnuLaterTimePeriod", [this] { Move_To_Later_Time_Period(); });
  menu->On("mnuSelectATimePeriod", [] {
    Window<frmSelectTimePeriod>().Open_For(kSelectTimePeriodCaption, kDisplayButtonCaption);
  });
  menu->On("mnuPrintSCreen", [this] { Print_Window(); });
}

void frmScheduler_Reminder::Form_Activate() { Refresh_Organizer_Screen(organizer::kFormActivate); }
void frmScheduler_Reminder::Move_To_Earlier_Time_Period() { Refresh_Organizer_Screen(organizer::kCmdEarlierClick); }
void frmScheduler_Reminder::Move_To_Later_Time_Period() { Refresh_Organizer_Screen(organizer::kCmdLaterClick); }
void frmScheduler_Reminder::scrChart_Change() { Refresh_Organizer_Screen(organizer::kScrChartChange); }

void frmScheduler_Reminder::lblChartHistoryList_Click(int Index) {
  View_Task_Event_Information(organizer::kLblChartHistoryListClick, Index);
}

// The whole chart in one pass: the members, the scroll bar, the view, every cell cleared and the
// whole log read again, even for a scroll by one row.
void frmScheduler_Reminder::Refresh_Organizer_Screen(std::string_view Calling_Procedure) {
  if (Calling_Procedure == organizer::kMultiPurposePrint5) return Draw_Print_Chart();
  // The moment is settled first: an origin that shows no view here leaves everything as it is.
  // A step refused at the end of the years still brings the file name, the members and the
  // scroll bar up to date, and leaves the chart as it is.
  const bool step = Calling_Procedure == organizer::kCmdEarlierClick || Calling_Procedure == organizer::kCmdLaterClick;
  const std::optional<organizer::DateAndTime> moment = Moment_To_Show(Calling_Procedure);
  if (!moment && !step) return;

  controls::Set_Caption(lblFileName, controls::Caption(Window<Form1>().lblStoreScheduleFileName));
  if (!moment) {
    std::vector<std::string> members;
    organizer::For_Each_Member(organizer::kScheduleFile, [&members](const std::string& member) { members.push_back(member); });
    Rebuild_Member_List(members);
    Set_Chart_Scroll_Bar(scrChart->value());
    return;
  }
  // One reading of the log serves the members and the painting.
  const organizer::ChartView view = organizer::View_Of(*moment);
  const organizer::ChartLog log = organizer::Read_Chart_Log(organizer::kScheduleFile, view);
  Rebuild_Member_List(log.members);
  const int first_row_member = Set_Chart_Scroll_Bar(scrChart->value());
  for (int cell = 0; cell < organizer::kScreenChartCells; ++cell) Chart_History_List_Content_Tracker(cell, "Put", -1);

  Clear_Chart(view);
  Fill_Rows(first_row_member);
  controls::Set_Caption(lblTimePeriod, organizer::View_Caption(view));
  Paint_Tasks(view, log.tasks);
}

std::optional<organizer::DateAndTime> frmScheduler_Reminder::Moment_To_Show(std::string_view Calling_Procedure) {
  if (Calling_Procedure == organizer::kCmdEarlierClick) return Step_Moment(PeriodStep::Earlier);
  if (Calling_Procedure == organizer::kCmdLaterClick) return Step_Moment(PeriodStep::Later);
  if (Calling_Procedure == organizer::kSelectTimePeriodDisplay) {
    Enable_Step(PeriodStep::Earlier, true);
    Enable_Step(PeriodStep::Later, true);
    const frmSelectTimePeriod& select = Window<frmSelectTimePeriod>();
    return organizer::DateAndTime{controls::Caption(select.lblSelectedDate), controls::Caption(select.lblSelectedTime)};
  }
  if (Is_Refreshing_Origin(Calling_Procedure)) {
    if (auto shown = organizer::Moment_Of_Caption(controls::Caption(lblTimePeriod))) return shown;
    const platform::ClockReading now = platform::Machine().Read_Clock();
    return organizer::DateAndTime{now.date, now.time};
  }
  return std::nullopt;
}

// A step enables the opposite step; at the end of the years it greys its own button and menu
// entry instead of moving.
std::optional<organizer::DateAndTime> frmScheduler_Reminder::Step_Moment(PeriodStep step) {
  Enable_Step(step == PeriodStep::Earlier ? PeriodStep::Later : PeriodStep::Earlier, true);
  std::optional<organizer::DateAndTime> moment =
      organizer::Stepped_Moment(controls::Caption(lblTimePeriod), controls::Caption(lblChartHour[0]), step);
  if (!moment) Enable_Step(step, false);
  return moment;
}

void frmScheduler_Reminder::Enable_Step(PeriodStep step, bool enabled) {
  const bool earlier = step == PeriodStep::Earlier;
  (earlier ? cmdEarlier : cmdLater)->setEnabled(enabled);
  menu->Action(earlier ? "mnuEarlierTimePeriod" : "mnuLaterTimePeriod")->setEnabled(enabled);
}

void frmScheduler_Reminder::Rebuild_Member_List(const std::vector<std::string>& members) {
  for (const std::string& member : members) {
    const QString name = QString::fromStdString(member);
    if (lstListOfPeople->findItems(name, Qt::MatchExactly | Qt::MatchCaseSensitive).isEmpty()) {
      lstListOfPeople->addItem(name);
    }
  }
}

int frmScheduler_Reminder::Set_Chart_Scroll_Bar(int first_row_member) {
  const organizer::ChartScrollBar bar =
      organizer::Chart_Scroll_Bar(lstListOfPeople->count(), first_row_member, organizer::kScreenChartRows);
  // The refresh sets the bar itself: its own change must not start a second refresh.
  const QSignalBlocker quiet(scrChart);
  if (bar.maximum) scrChart->setMaximum(*bar.maximum);
  scrChart->setValue(bar.first_row_member);
  scrChart->setEnabled(bar.enabled);
  return bar.first_row_member;
}

void frmScheduler_Reminder::Clear_Chart(const organizer::ChartView& view) { Clear_Chart_Labels(Labels_Of(*this), view); }

void frmScheduler_Reminder::Fill_Rows(int first_row_member) {
  Fill_Row_Labels(Labels_Of(*this), *lstListOfPeople, first_row_member);
}

void frmScheduler_Reminder::Paint_Tasks(const organizer::ChartView& view,
                                        std::span<const organizer::ScheduleRecord> tasks) {
  Paint_Chart_Labels(Labels_Of(*this), view, tasks, [this](int cell, const Value& record_number) {
    Chart_History_List_Content_Tracker(cell, "Put", record_number);
  });
}

// The window is printed on the colour of active title text, and gets its own colour back after.
void frmScheduler_Reminder::Print_Window() {
  const unsigned kept = controls::Back_Color(this);
  controls::Set_Back_Color(this, colours::kActiveTitleText);
  platform::Machine().Print_Window(*this, kPrintDocumentName);
  controls::Set_Back_Color(this, kept);
}

}  // namespace orrivane
