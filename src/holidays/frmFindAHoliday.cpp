#include "holidays/frmFindAHoliday.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <algorithm>

#include "calendar/Form1.h"
#include "calendar/calendar_callers.h"
#include "calendar/frmLargeCalendar.h"
#include "core/text.h"
#include "holidays/holiday_callers.h"
#include "holidays/holiday_list_file.h"
#include "holidays/holiday_list_print.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/platform.h"
#include "platform/window_registry.h"
#include "shell/frmOpenFile.h"
#include "shell/frmSaveFile.h"
#include "shell/shell_callers.h"

namespace orrivane {

namespace {

using platform::Machine;

using colours::kWindowBackground;
// Lines a batch: a request of a thousand years of every holiday fits in one, and a request of
// the whole reach yields about fifty times on its way.
constexpr std::size_t kLinesPerBatch = 50000;

constexpr MenuEntry kMenu[] = {
    {"", "mnuFile", "&File", ""},
    {"mnuFile", "mnuSaveList", "Save List...", ""},
    {"mnuFile", "mnuOpenFile", "Open File...", ""},
    {"mnuFile", "mnuPrintHolidayList", "Print Holiday List", ""},
    {"mnuFile", "mnuCloseWindow", "Close Window", ""},
    {"", "mnuList", "&List", ""},
    {"mnuList", "mnuAddHolidayDateToList", "Add Holiday Date To List", ""},
    {"mnuList", "mnuDisplaySelectedOnCalendar", "Display Selected On Calendar", ""},
    {"mnuList", "mnuRemoveSelected", "Remove Selected", ""},
    {"mnuList", "mnuClearList", "Clear List", ""},
};

// Buttons and entries that wait for a selected line, and for a list with lines.
constexpr const char* kSelectedLineCommands[] = {"cmdCalendar", "mnuDisplaySelectedOnCalendar", "cmdRemoveItem",
                                                 "mnuRemoveSelected"};
constexpr const char* kFilledListCommands[] = {"cmdSave", "mnuSaveList", "cmdClear", "mnuClearList",
                                               "mnuPrintHolidayList"};

using controls::Make_Label;
using controls::Text_Of;

using controls::Make_Button;

// The row of buttons below the list, from left to right.
struct RowButton {
  QPushButton* frmFindAHoliday::*member;
  const char* name;
  const char* caption;
};
const RowButton kRowButtons[] = {
    {&frmFindAHoliday::cmdCalendar, "cmdCalendar", "Calendar"},
    {&frmFindAHoliday::cmdRemoveItem, "cmdRemoveItem", "Remove"},
    {&frmFindAHoliday::cmdSave, "cmdSave", "Save List..."},
    {&frmFindAHoliday::cmdClear, "cmdClear", "Clear"},
    {&frmFindAHoliday::cmdClose, "cmdClose", "Close"},
};

}  // namespace

// ---- The feed of lines ------------------------------------------------------------------------

BusyCursor::BusyCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }

BusyCursor::~BusyCursor() { QApplication::restoreOverrideCursor(); }

HolidayListFeed::HolidayListFeed(frmFindAHoliday& window) : window_(window) {}

HolidayListFeed::~HolidayListFeed() { Stop_Yielding(); }

void HolidayListFeed::Add_List_Entry(int holiday, int year) {
  window_.lstListHolidayDates_Lines->Append_Entry(holiday, year);
  if (++unshown_ < kLinesPerBatch) return;
  Flush();
  if (!yielded_) {
    // A long request: the window takes no other order, and the list shows the lines that
    // follow only at the end, laid out once.
    window_.Set_Busy(true);
    window_.lstListHolidayDates_Lines->Hold_Back(true);
    yielded_ = true;
  }
  Machine().Yield();
}

void HolidayListFeed::Finish() {
  Flush();
  Stop_Yielding();
}

void HolidayListFeed::Stop_Yielding() {
  if (!yielded_) return;
  yielded_ = false;
  window_.lstListHolidayDates_Lines->Hold_Back(false);
  window_.Set_Busy(false);
}

void HolidayListFeed::Flush() {
  if (unshown_ == 0) return;
  unshown_ = 0;
  window_.lstListHolidayDates_Lines->Show_Appended();
  controls::Set_Caption(window_.lblTotalResultsListed, std::to_string(window_.List_Count()));
}

// ---- The window -------------------------------------------------------------------------------

frmFindAHoliday::frmFindAHoliday() {
  setObjectName("frmFindAHoliday");
  setWindowTitle("Find The Date of a Holiday");
  Build_Controls();
  Build_Menu();
  Place_Controls();
  Connect_Controls();
}

void frmFindAHoliday::Build_Controls() {
  auto* body = new QWidget(this);
  setCentralWidget(body);
  fraByHoliday = new QGroupBox(body);
  fraByHoliday->setObjectName("fraByHoliday");
  optByHoliday = new QRadioButton("By Holiday:", fraByHoliday);
  optByHoliday->setObjectName("optByHoliday");
  cboHoliday = new QComboBox(fraByHoliday);
  cboHoliday->setObjectName("cboHoliday");
  std::vector<std::string> names;
  for (int h = 0; h < holidays::kHolidayCount; ++h) names.emplace_back(holidays::Holiday_Name(h));
  std::sort(names.begin(), names.end());
  for (const std::string& name : names) cboHoliday->addItem(QString::fromStdString(name));
  cboHoliday->setMaxVisibleItems(holidays::kHolidayCount);
  cboHoliday->setCurrentIndex(-1);

  fraDisplayAllByYear = new QGroupBox(body);
  fraDisplayAllByYear->setObjectName("fraDisplayAllByYear");
  optDisplayAllByYear = new QRadioButton("Display All By Year", fraDisplayAllByYear);
  optDisplayAllByYear->setObjectName("optDisplayAllByYear");
  // Each option sits in a frame of its own, so each clears the other by hand.
  for (QRadioButton* option : {optByHoliday, optDisplayAllByYear}) option->setAutoExclusive(false);
  optByHoliday->setChecked(true);

  lblFrom = Make_Label(body, "lblFrom", "From:");
  txtFromYear = controls::Make<QLineEdit>(body, "txtFromYear");
  chkSelectRangeOfYears = new QCheckBox("Select Range of Years", body);
  chkSelectRangeOfYears->setObjectName("chkSelectRangeOfYears");
  txtToYear = controls::Make<QLineEdit>(body, "txtToYear");
  txtToYear->setEnabled(false);
  controls::Set_Box_Color(txtToYear, controls::kButtonFace);
  cmdSelect = Make_Button(body, "cmdSelect", "Display");

  lstListHolidayDates = new QListView(body);
  lstListHolidayDates->setObjectName("lstListHolidayDates");
  lstListHolidayDates_Lines = new HolidayListModel(this);
  lstListHolidayDates->setModel(lstListHolidayDates_Lines);
  // Every line is one row of text: the view need not measure millions of them.
  lstListHolidayDates->setUniformItemSizes(true);
  // A line longer than the list is wide is cut where the list ends, as the lines of the rules
  // all fit: a line of a file may be megabytes long, and nobody scrolls along that.
  lstListHolidayDates->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lstListHolidayDates->setSelectionMode(QAbstractItemView::SingleSelection);
  lstListHolidayDates->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lblNewCaption = Make_Label(body, "lblNewCaption", "New:");
  lblNew = Make_Label(body, "lblNew");
  lblTotalResultsListedCaption = Make_Label(body, "lblTotalResultsListedCaption", "Total Results Listed:");
  lblTotalResultsListed = Make_Label(body, "lblTotalResultsListed");

  for (const RowButton& button : kRowButtons) this->*button.member = Make_Button(body, button.name, button.caption);
}

void frmFindAHoliday::Build_Menu() {
  menu = std::make_unique<MenuTree>(menuBar(), kMenu);
  Enable_Commands(kSelectedLineCommands, false);
  Enable_Commands(kFilledListCommands, false);
}

void frmFindAHoliday::Place_Controls() {
  setFixedSize(780, 470);
  // Options and the check box are as wide as their captions: a click beside a caption is no
  // click on it.
  fraByHoliday->setGeometry(12, 8, 300, 84);
  optByHoliday->setGeometry(12, 18, optByHoliday->sizeHint().width(), 24);
  cboHoliday->setGeometry(12, 46, 276, 28);
  fraDisplayAllByYear->setGeometry(12, 98, 300, 50);
  optDisplayAllByYear->setGeometry(12, 16, optDisplayAllByYear->sizeHint().width(), 24);
  lblFrom->setGeometry(16, 164, 52, 26);
  txtFromYear->setGeometry(70, 164, 100, 26);
  chkSelectRangeOfYears->setGeometry(16, 200, chkSelectRangeOfYears->sizeHint().width(), 26);
  txtToYear->setGeometry(chkSelectRangeOfYears->geometry().right() + 8, 200, 100, 26);
  cmdSelect->setGeometry(12, 246, 300, 34);

  lstListHolidayDates->setGeometry(326, 14, 442, 326);
  lblNewCaption->setGeometry(326, 346, 40, 22);
  lblNew->setGeometry(366, 346, 110, 22);
  lblTotalResultsListedCaption->setGeometry(500, 346, 150, 22);
  lblTotalResultsListed->setGeometry(650, 346, 110, 22);

  int left = 12;
  for (const RowButton& button : kRowButtons) {
    (this->*button.member)->setGeometry(left, 396, 144, 34);
    left += 152;
  }
}

void frmFindAHoliday::Connect_Controls() {
  connect(optByHoliday, &QRadioButton::clicked, this, [this] { optByHoliday_Click(); });
  connect(optDisplayAllByYear, &QRadioButton::clicked, this, [this] { optDisplayAllByYear_Click(); });
  connect(chkSelectRangeOfYears, &QCheckBox::clicked, this, [this] { chkSelectRangeOfYears_Click(); });
  connect(lstListHolidayDates->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    if (List_Index() >= 0) lstListHolidayDates_Click();
  });
  connect(cmdSelect, &QPushButton::clicked, this, [this] { Display_Holiday(holidays::kCmdSelectClick); });
  connect(cmdCalendar, &QPushButton::clicked, this,
          [this] { Display_Holiday_On_Calendar(holidays::kCmdCalendarClick); });
  connect(cmdRemoveItem, &QPushButton::clicked, this, [this] { Remove_A_List_Item(); });
  connect(cmdSave, &QPushButton::clicked, this, [this] { Activate_Save_File_Window(); });
  connect(cmdClear, &QPushButton::clicked, this, [this] { Clear_lstListHolidayDates(); });
  connect(cmdClose, &QPushButton::clicked, this, [this] { Close_Window(); });

  menu->On("mnuSaveList", [this] { Activate_Save_File_Window(); });
  menu->On("mnuOpenFile", [this] { mnuOpenFile_Click(); });
  menu->On("mnuPrintHolidayList", [this] { mnuPrintHolidayList_Click(); });
  menu->On("mnuCloseWindow", [this] { Close_Window(); });
  menu->On("mnuAddHolidayDateToList", [this] { Display_Holiday(holidays::kMnuAddHolidayDateToListClick); });
  menu->On("mnuDisplaySelectedOnCalendar", [this] { Display_Holiday_On_Calendar(holidays::kCmdCalendarClick); });
  menu->On("mnuRemoveSelected", [this] { Remove_A_List_Item(); });
  menu->On("mnuClearList", [this] { Clear_lstListHolidayDates(); });
}

void frmFindAHoliday::Enable_Commands(std::span<const char* const> names, bool enabled) {
  for (const char* name : names) {
    if (auto* button = findChild<QPushButton*>(name)) {
      button->setEnabled(enabled);
    } else {
      menu->Action(name)->setEnabled(enabled);
    }
  }
}

void frmFindAHoliday::Enable_Filled_List_Commands() { Enable_Commands(kFilledListCommands, true); }

void frmFindAHoliday::Set_Busy(bool busy) {
  busy_ = busy;
  centralWidget()->setEnabled(!busy);
  menuBar()->setEnabled(!busy);
}

void frmFindAHoliday::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!busy_) Close_Window();
}

// ---- Requests ---------------------------------------------------------------------------------

void frmFindAHoliday::Display_Holiday(std::string_view Calling_Sub) {
  static_cast<void>(Calling_Sub);  // a label only: both ways of asking are answered alike
  const Value from_year = Text_Of(txtFromYear);
  const Value to_year = Text_Of(txtToYear);
  // What was added is what the user wants to see.
  const std::size_t first_new = List_Count();
  if (optByHoliday->isChecked()) {
    Value last_year = to_year;
    Display_Holiday_II(cboHoliday->currentText().toStdString(), from_year, last_year, holidays::kFindAHolidayCaller);
  } else if (optDisplayAllByYear->isChecked()) {
    Display_All_By_Year(from_year, to_year);
  }
  Show_Line_At_Top(first_new);
}

void frmFindAHoliday::Display_Holiday_II(const std::string& HolidaySelection, const Value& FromYear, Value& ToYear,
                                         std::string_view Calling_Sub_Origin) {
  const holidays::Holiday_Window_Options options{optByHoliday->isChecked(), chkSelectRangeOfYears->isChecked()};
  holidays::Holiday_Answer answer;
  {
    HolidayListFeed feed(*this);
    answer = holidays::Display_Holiday_II(HolidaySelection, FromYear, ToYear, Calling_Sub_Origin, options, feed);
    feed.Finish();
  }
  if (answer.message_wanted) {
    platform::Show_Message(holidays::Holiday_Error_Message(answer.error_code, HolidaySelection));
  }
  if (answer.error_code != holidays::kHolidayNoError) return;
  InterFunction_Counter("Add", 1);
  if (Calling_Sub_Origin != holidays::kFindAHolidayCaller) return;
  Enable_Filled_List_Commands();
  Show_List_Counts(answer.lines);
}

void frmFindAHoliday::Display_All_By_Year(const Value& FromYear, const Value& ToYear) {
  const holidays::All_Holidays_Years years =
      holidays::Check_Years_For_All_Holidays(FromYear, ToYear, chkSelectRangeOfYears->isChecked());
  if (years.error_code != holidays::kHolidayNoError) {
    platform::Show_Message(holidays::All_Holidays_Error_Message(years.error_code));
    return;
  }
  InterFunction_Counter("Set Equal To", 0);
  lstListHolidayDates_Lines->Reserve(
      static_cast<std::size_t>(holidays::All_Holidays_Line_Count(years.from, years.to)));
  std::int64_t added = 0;
  {
    HolidayListFeed feed(*this);
    added = holidays::Display_All_Holidays_For_Years(years.from, years.to, feed);
    feed.Finish();
  }
  // Each holiday that passed its checks counts one, and enables what a filled list allows.
  InterFunction_Counter("Add", static_cast<double>(added));
  if (added > 0) Enable_Filled_List_Commands();
  Show_List_Counts(static_cast<std::int64_t>(InterFunction_Counter("Add", 0)));
}

double frmFindAHoliday::InterFunction_Counter(const std::string& Action, double Numberr) {
  return counter_.Apply(Action, Numberr);
}

// ---- The list ---------------------------------------------------------------------------------

int frmFindAHoliday::List_Index() const {
  const QModelIndexList chosen = lstListHolidayDates->selectionModel()->selectedIndexes();
  return chosen.isEmpty() ? -1 : chosen.front().row();
}

void frmFindAHoliday::Set_List_Index(int index) {
  lstListHolidayDates->setCurrentIndex(lstListHolidayDates_Lines->index(index));
}

void frmFindAHoliday::Empty_List() {
  lstListHolidayDates->selectionModel()->clear();
  lstListHolidayDates_Lines->Clear();
}

void frmFindAHoliday::Read_List_File(const std::string& path) {
  {
    const BusyCursor busy;
    lstListHolidayDates_Lines->Append_File(path);
  }
  lstListHolidayDates->scrollToTop();
}

void frmFindAHoliday::Show_Line_At_Top(std::size_t row) {
  if (row >= static_cast<std::size_t>(lstListHolidayDates_Lines->rowCount())) return;
  lstListHolidayDates->scrollTo(lstListHolidayDates_Lines->index(static_cast<int>(row)),
                                QAbstractItemView::PositionAtTop);
}

void frmFindAHoliday::Show_List_Counts(std::int64_t added) {
  controls::Set_Caption(lblNew, std::to_string(added));
  controls::Set_Caption(lblTotalResultsListed, std::to_string(List_Count()));
}

void frmFindAHoliday::Close_Window() {
  hide();
  Clear_lstListHolidayDates();
}

void frmFindAHoliday::Clear_lstListHolidayDates() {
  Empty_List();
  Show_List_Counts(0);
  Enable_Commands(kFilledListCommands, false);
  Enable_Commands(kSelectedLineCommands, false);
}

void frmFindAHoliday::Remove_A_List_Item() {
  const int selected = List_Index();
  if (selected < 0) return;
  lstListHolidayDates_Lines->Remove(static_cast<std::size_t>(selected));
  // No line stays selected after a removal, not even the one that moved up into its place.
  lstListHolidayDates->selectionModel()->clear();
  Show_List_Counts(0);
  if (List_Count() == 0) Enable_Commands(kFilledListCommands, false);
  Enable_Commands(kSelectedLineCommands, false);
}

void frmFindAHoliday::Activate_Save_File_Window() {
  // The window is shown first and only then told its caller and the name to offer: the first
  // time in a run it opens blank and its Save does nothing. This order is kept on purpose.
  frmSaveFile& save = Window<frmSaveFile>();
  save.Show_Modal();
  controls::Set_Caption(save.lblStoreCallingProcedure, std::string(shell::kFindAHolidayFileCaller));
  save.txtFileName->setText(QString::fromUtf8(holidays::kDefaultHolidayListName.data(),
                                              static_cast<qsizetype>(holidays::kDefaultHolidayListName.size())));
}

// ---- The way to the calendar --------------------------------------------------------------------

Value frmFindAHoliday::Selected_Holiday_Sent_To_Calendar(const std::string& Part_Of_String,
                                                         const Value& Contents_Of_String) {
  struct Part {
    const char* write;
    const char* get;
    Value frmFindAHoliday::*kept;
  };
  static constexpr Part kParts[] = {
      {"Write Month", "Get Month", &frmFindAHoliday::sent_month_},
      {"Write Date", "Get Date", &frmFindAHoliday::sent_date_},
      {"Write Year", "Get Year", &frmFindAHoliday::sent_year_},
  };
  for (const Part& part : kParts) {
    if (Part_Of_String == part.write) this->*part.kept = Contents_Of_String;
    if (Part_Of_String == part.get) return this->*part.kept;
  }
  return {};
}

void frmFindAHoliday::Display_Holiday_On_Calendar(std::string_view Calling_Sub) {
  static_cast<void>(Calling_Sub);  // a label only
  const int selected = List_Index();
  if (selected < 0) return;
  const holidays::Holiday_Line_Date date =
      holidays::Date_Of_Holiday_List_Line(List_Line(static_cast<std::size_t>(selected)));
  Selected_Holiday_Sent_To_Calendar("Write Month", date.month);
  Selected_Holiday_Sent_To_Calendar("Write Date", date.date);
  Selected_Holiday_Sent_To_Calendar("Write Year", date.year);
  Form1& main = Window<Form1>();
  main.Calendarr(calendar::kFindAHolidayDisplayHolidayOnCalendar);
  frmLargeCalendar& large = Window<frmLargeCalendar>();
  if (main.isVisible()) {
    main.raise();
    main.activateWindow();
  } else if (large.isVisible()) {
    large.raise();
    large.activateWindow();
  }
}

// ---- Events ---------------------------------------------------------------------------------------

void frmFindAHoliday::optByHoliday_Click() {
  optByHoliday->setChecked(true);
  optDisplayAllByYear->setChecked(false);
  cboHoliday->setEnabled(true);
}

void frmFindAHoliday::optDisplayAllByYear_Click() {
  optDisplayAllByYear->setChecked(true);
  optByHoliday->setChecked(false);
  cboHoliday->setEnabled(false);
}

void frmFindAHoliday::chkSelectRangeOfYears_Click() {
  const bool range = chkSelectRangeOfYears->isChecked();
  txtToYear->setEnabled(range);
  controls::Set_Box_Color(txtToYear, range ? kWindowBackground : controls::kButtonFace);
}

void frmFindAHoliday::lstListHolidayDates_Click() { Enable_Commands(kSelectedLineCommands, true); }

void frmFindAHoliday::mnuOpenFile_Click() {
  frmOpenFile& open = Window<frmOpenFile>();
  open.filFileOpen->Set_Pattern(QString::fromUtf8(holidays::kHolidayListPattern.data(),
                                                  static_cast<qsizetype>(holidays::kHolidayListPattern.size())));
  controls::Set_Caption(open.lblStoreCallingProcedure, std::string(shell::kFindAHolidayFileCaller));
  open.Show_Modal();
}

void frmFindAHoliday::mnuPrintHolidayList_Click() {
  const int answer = platform::Show_Message(holidays::Holiday_List_Print_Question(List_Count()));
  if (answer == platform::vbNo || answer == platform::vbCancel) return;
  Print_Holiday_List();
}

void frmFindAHoliday::Print_Holiday_List() {
  const std::size_t count = List_Count();
  const holidays::Print_Place heading = holidays::Holiday_List_Print_Heading_Place();
  std::size_t index = 0;
  for (std::size_t job = 0; job < holidays::Holiday_List_Print_Jobs(count); ++job) {
    platform::TextPage page;
    if (job == heading.job) {
      page.push_back({heading.x_twips, heading.y_twips,
                      holidays::Holiday_List_Print_Heading(controls::Caption(lblTotalResultsListed))});
    }
    for (; index < count; ++index) {
      const holidays::Print_Place place = holidays::Holiday_List_Print_Place(index);
      if (place.job != job) break;
      const std::string line = List_Line(index);
      page.push_back({place.x_twips, place.y_twips,
                      QString::fromLatin1(line.data(), static_cast<qsizetype>(line.size())).toStdString()});
    }
    Machine().Print_Text({page});
  }
}

}  // namespace orrivane
