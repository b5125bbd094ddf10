#include "organizer/frmScheduler_Reminder.h"

#include <QCloseEvent>
#include <QEvent>
#include <QMenuBar>
#include <QMouseEvent>

#include "core/runtime_failure.h"
#include "platform/controls.h"

namespace orrivane {

namespace {

using controls::Make;
using controls::Make_Button;
using controls::Make_Label;

// Captions where the program's help names the shortcut in its own words.
constexpr MenuEntry kOrganizerMenu[] = {
    {"", "mnuFile", "&File", ""},
    {"mnuFile", "mnuNewSchedule", "New Log", "Ctrl+N"},
    {"mnuFile", "mnuOpenSchedule", "Open An Existing Log File...", "Ctrl+O"},
    {"mnuFile", "mnuSave", "Save Log", "Ctrl+S"},
    {"mnuFile", "mnuSaveAs", "Save Log As...", "Ctrl+V"},
    {"mnuFile", "mnuPrintLog", "Print Log...", "F2"},
    {"mnuFile", "mnuPrintSCreen", "Print Window", ""},
    {"mnuFile", "mnuCloseScheduler", "Close the Organizer", "Ctrl+C"},
    {"", "mnuLog", "&Log", ""},
    {"mnuLog", "mnuAddNewTask", "Add New Task To Current Log...", "Ctrl+E"},
    {"", "mnuView", "&View", ""},
    {"mnuView", "mnuLaterTimePeriod", "View the Next Time Period on the Task Chart", "Ctrl+L"},
    {"mnuView", "mnuEarlierTimePeriod", "View the Previous Time Period on the Task Chart", "Ctrl+P"},
    {"mnuView", "mnuSelectATimePeriod", "Select A Time Period to View on the Task Chart...", "Ctrl+T"},
};

// ---- Geometry, in pixels -----------------------------------------------------------------------
constexpr int kMargin = 8;
constexpr int kNameWidth = 124;  // the member names left of the chart
constexpr int kCellWidth = 18;
constexpr int kCellHeight = 24;
constexpr int kChartLeft = kMargin + kNameWidth + 4;
constexpr int kChartWidth = organizer::kChartColumns * kCellWidth;
constexpr int kChartRight = kChartLeft + kChartWidth;
constexpr int kPeriodTop = 8;
constexpr int kHeadTop = 36;
constexpr int kHeadHeight = 18;
constexpr int kRowsTop = kHeadTop + kHeadHeight + 2;
constexpr int kRowsHeight = organizer::kScreenChartRows * kCellHeight;
constexpr int kStepTop = kRowsTop + kRowsHeight + 8;
constexpr int kButtonHeight = 28;
constexpr int kListsTop = kStepTop + kButtonHeight + 16;
constexpr int kListTop = kListsTop + 22;
constexpr int kListHeight = 164;
constexpr int kUnderListsTop = kListTop + kListHeight + 6;
constexpr int kDeleteRowTop = kUnderListsTop + kButtonHeight + 6;  // the delete buttons, under the others
constexpr int kPeopleWidth = 180;
constexpr int kTasksLeft = kMargin + kPeopleWidth + 12;
constexpr int kTasksWidth = 340;
constexpr int kFilterLeft = kTasksLeft + kTasksWidth + 12;
constexpr int kTaskButtonWidth = 220;
constexpr int kFileTop = kDeleteRowTop + kButtonHeight + 14;
constexpr int kWindowWidth = kChartRight + 16 + kMargin + 6;
constexpr int kWindowHeight = kFileTop + 30;

constexpr unsigned kChartGround = 0xFFFFFF;
constexpr unsigned kCellLines = 0xE0E0E0;

QString Cell_Style() {
  return QStringLiteral("border: 1px solid %1;").arg(controls::To_QColor(kCellLines).name());
}

}  // namespace

frmScheduler_Reminder::frmScheduler_Reminder() {
  setObjectName("frmScheduler_Reminder");
  setWindowTitle("Organizer");
  setCentralWidget(new QWidget);
  chart_owners_.fill(Value(-1));  // no cell has a task before the first refresh
  Build_Chart();
  Build_Lists();
  Build_Filter();
  Build_Menu();
  Place_Controls();
  Connect_Chart();
  Connect_Tasks();
  Connect_Log();
  Connect_New_Task();
  Connect_Delete();
  Connect_Print_Log();
  connect(cmdCloseScheduler, &QPushButton::clicked, this, [this] { cmdCloseScheduler_Click(); });
  menu->On("mnuCloseScheduler", [this] { cmdCloseScheduler_Click(); });
}

void frmScheduler_Reminder::Build_Chart() {
  QWidget* body = centralWidget();
  lblChartBackground = Make_Label(body, "lblChartBackground");
  lblChartBackground->setAutoFillBackground(true);
  controls::Set_Back_Color(lblChartBackground, kChartGround);
  lblTimePeriod = Make_Label(body, "lblTimePeriod");
  lblTimePeriod->setAlignment(Qt::AlignCenter);
  QFont period_font = lblTimePeriod->font();
  period_font.setBold(true);
  period_font.setPointSize(period_font.pointSize() + 2);
  lblTimePeriod->setFont(period_font);
  for (int head = 0; head < organizer::kChartHeads; ++head) {
    lblChartHour[head] = Make_Label(body, controls::Array_Name("lblChartHour", head));
  }
  for (int row = 0; row < organizer::kScreenChartRows; ++row) {
    lblChartGroupMemberName[row] = Make_Label(body, controls::Array_Name("lblChartGroupMemberName", row));
    lblChartGroupMemberName[row]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  }
  for (int cell = 0; cell < organizer::kScreenChartCells; ++cell) {
    QLabel* label = Make_Label(body, controls::Array_Name("lblChartHistoryList", cell));
    label->setStyleSheet(Cell_Style());
    label->setProperty("index", cell);
    label->installEventFilter(this);
    lblChartHistoryList[cell] = label;
  }
  cmdEarlier = Make_Button(body, "cmdEarlier", "<< Earlier");
  cmdLater = Make_Button(body, "cmdLater", "Later >>");
  scrChart = Make<QScrollBar>(body, "scrChart", Qt::Vertical);
  scrChart->setMinimum(0);
  scrChart->setMaximum(0);
  scrChart->setEnabled(false);
}

void frmScheduler_Reminder::Build_Lists() {
  QWidget* body = centralWidget();
  lblListOfPeople = Make_Label(body, "lblListOfPeople", "Group Members:");
  lstListOfPeople = Make<QListWidget>(body, "lstListOfPeople");
  lstListOfPeople->setSortingEnabled(true);
  cmdShowTaskList = Make_Button(body, "cmdShowTaskList", "Show Task\\Event List");
  lblGroupMemberName = Make_Label(body, "lblGroupMemberName");
  lstScheduleList = Make<QListWidget>(body, "lstScheduleList");
  lstScheduleList->setSortingEnabled(true);
  cmdViewTaskInformation = Make_Button(body, "cmdViewTaskInformation", "View Task\\Event Information");
  cmdViewTaskInformation->setEnabled(false);
  cmdDeleteSelectedRecord = Make_Button(body, "cmdDeleteSelectedRecord", "Delete Selected Record");
  // Each delete button waits for a click on an entry of its list. Made after the others, so
  // that Tab still goes from a list's button to the task list and comes to them last.
  cmdDeleteSelectedRecord->setEnabled(false);
  cmdDelete = Make_Button(body, "cmdDelete", "Delete");
  cmdDelete->setEnabled(false);
  lblFileNameLabel = Make_Label(body, "lblFileNameLabel", "Log File:");
  lblFileName = Make_Label(body, "lblFileName");
  cmdCloseScheduler = Make_Button(body, "cmdCloseScheduler", "Close");
}

void frmScheduler_Reminder::Build_Filter() {
  QWidget* body = centralWidget();
  optDisplayAll = Make<QRadioButton>(body, "optDisplayAll", "Display All");
  optDisplayOnlyFilteredTasks = Make<QRadioButton>(body, "optDisplayOnlyFilteredTasks", "Display Only Filtered");
  optDisplayAll->setChecked(true);
  fraDisplayOnlyTasksEvents = Make<QGroupBox>(body, "fraDisplayOnlyTasksEvents", "Filter Range");
  QWidget* frame = fraDisplayOnlyTasksEvents;
  chkStartTimeDate = Make<QCheckBox>(frame, "chkStartTimeDate", "Must Start Within Filter Range");
  chkFinishTimeDate = Make<QCheckBox>(frame, "chkFinishTimeDate", "Must Finish Within Filter Range");
  for (QCheckBox* box : {chkStartTimeDate, chkFinishTimeDate}) {
    box->setTristate(true);
    box->setCheckState(Qt::PartiallyChecked);  // greyed while everything is displayed
  }
  lblAfter = Make_Label(frame, "lblAfter", "After:");
  lblAfterRange = Make_Label(frame, "lblAfterRange");
  lblBefore = Make_Label(frame, "lblBefore", "Before:");
  lblBeforeRange = Make_Label(frame, "lblBeforeRange");
  cmdSelect = Make_Button(frame, "cmdSelect", "Change...");
  for (QWidget* control : std::initializer_list<QWidget*>{fraDisplayOnlyTasksEvents, chkStartTimeDate,
                                                          chkFinishTimeDate, lblAfter, lblAfterRange, lblBefore,
                                                          lblBeforeRange, cmdSelect}) {
    control->setEnabled(false);
  }
}

void frmScheduler_Reminder::Build_Menu() {
  menu = std::make_unique<MenuTree>(menuBar(), kOrganizerMenu);
  menu->Action("mnuSave")->setEnabled(false);  // a log has no file of its own until it is saved or opened
}

void frmScheduler_Reminder::Place_Controls() {
  lblTimePeriod->setGeometry(kChartLeft, kPeriodTop, kChartWidth, 24);
  for (int head = 0; head < organizer::kChartHeads; ++head) {
    const int x = kChartLeft + head * organizer::kColumnsPerHead * kCellWidth;
    lblChartHour[head]->setGeometry(x, kHeadTop, organizer::kColumnsPerHead * kCellWidth, kHeadHeight);
  }
  lblChartBackground->setGeometry(kChartLeft, kRowsTop, kChartWidth, kRowsHeight);
  for (int row = 0; row < organizer::kScreenChartRows; ++row) {
    const int y = kRowsTop + row * kCellHeight;
    lblChartGroupMemberName[row]->setGeometry(kMargin, y, kNameWidth, kCellHeight);
    for (int column = 0; column < organizer::kChartColumns; ++column) {
      lblChartHistoryList[organizer::Chart_Cell(row, column)]->setGeometry(kChartLeft + column * kCellWidth, y,
                                                                           kCellWidth, kCellHeight);
    }
  }
  scrChart->setGeometry(kChartRight + 4, kRowsTop, 16, kRowsHeight);
  cmdEarlier->setGeometry(kChartLeft, kStepTop, 120, kButtonHeight);
  cmdLater->setGeometry(kChartRight - 120, kStepTop, 120, kButtonHeight);

  lblListOfPeople->setGeometry(kMargin, kListsTop, kPeopleWidth, 20);
  lstListOfPeople->setGeometry(kMargin, kListTop, kPeopleWidth, kListHeight);
  cmdShowTaskList->setGeometry(kMargin, kUnderListsTop, kPeopleWidth, kButtonHeight);
  lblGroupMemberName->setGeometry(kTasksLeft, kListsTop, kTasksWidth, 20);
  lstScheduleList->setGeometry(kTasksLeft, kListTop, kTasksWidth, kListHeight);
  cmdViewTaskInformation->setGeometry(kTasksLeft, kUnderListsTop, kTaskButtonWidth, kButtonHeight);
  cmdDelete->setGeometry(kMargin, kDeleteRowTop, kPeopleWidth, kButtonHeight);
  cmdDeleteSelectedRecord->setGeometry(kTasksLeft, kDeleteRowTop, kTaskButtonWidth, kButtonHeight);

  const int filter_width = kWindowWidth - kFilterLeft - kMargin;
  optDisplayAll->setGeometry(kFilterLeft, kListsTop, filter_width, 20);
  optDisplayOnlyFilteredTasks->setGeometry(kFilterLeft, kListsTop + 22, filter_width, 20);
  fraDisplayOnlyTasksEvents->setGeometry(kFilterLeft, kListTop + 24, filter_width, kListHeight - 24 + kButtonHeight + 6);
  chkStartTimeDate->setGeometry(8, 22, filter_width - 16, 20);
  chkFinishTimeDate->setGeometry(8, 44, filter_width - 16, 20);
  lblAfter->setGeometry(8, 72, 50, 20);
  lblAfterRange->setGeometry(60, 72, filter_width - 68, 20);
  lblBefore->setGeometry(8, 96, 50, 20);
  lblBeforeRange->setGeometry(60, 96, filter_width - 68, 20);
  cmdSelect->setGeometry(8, 126, 100, kButtonHeight);

  lblFileNameLabel->setGeometry(kMargin, kFileTop, 60, 22);
  lblFileName->setGeometry(kMargin + 62, kFileTop, 420, 22);
  cmdCloseScheduler->setGeometry(kWindowWidth - kMargin - 100, kFileTop - 4, 100, kButtonHeight);
  centralWidget()->setFixedSize(kWindowWidth, kWindowHeight);
}

void frmScheduler_Reminder::cmdCloseScheduler_Click() { hide(); }

Value frmScheduler_Reminder::Chart_History_List_Content_Tracker(int Element_Number,
                                                                const std::string& Action_To_Perform,
                                                                const Value& Content) {
  if (Element_Number < 0 || Element_Number >= organizer::kScreenChartCells) throw RuntimeFailure(kSubscriptOutOfRange);
  Value& owner = chart_owners_[static_cast<std::size_t>(Element_Number)];
  if (Action_To_Perform == "Put") owner = Content;
  if (Action_To_Perform == "Get") return owner;
  return {};
}

bool frmScheduler_Reminder::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) Form_Activate();
  return QMainWindow::event(event);
}

// The frame's close box unloads the window: the question about the log is asked, and the
// window is then only hidden, so that the view on show survives for the next time.
void frmScheduler_Reminder::closeEvent(QCloseEvent* event) {
  Form_Unload();
  event->ignore();
  hide();
}

bool frmScheduler_Reminder::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) {
    const QVariant index = watched->property("index");
    if (index.isValid() && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
      lblChartHistoryList_Click(index.toInt());
      return true;
    }
  }
  return QMainWindow::eventFilter(watched, event);
}

}  // namespace orrivane
