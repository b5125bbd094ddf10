#pragma once
// "Find The Date of a Holiday": one holiday over a year or a range of years, or every holiday
// of a year or a range, answered as lines in a list that grows with each request. The list can
// be saved to a .dte file and read back, printed, thinned out line by line, and any of its
// lines sent to the calendar.
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/MenuTree.h"
#include "core/value.h"
#include "holidays/HolidayListModel.h"
#include "holidays/holiday_rules.h"
#include "holidays/kept_number.h"

namespace orrivane {

class frmFindAHoliday : public QMainWindow {
  Q_OBJECT
 public:
  frmFindAHoliday();

  // ---- Controls --------------------------------------------------------------------------
  QGroupBox* fraByHoliday;
  QRadioButton* optByHoliday;
  QComboBox* cboHoliday;
  QGroupBox* fraDisplayAllByYear;
  QRadioButton* optDisplayAllByYear;
  QLabel* lblFrom;
  QLineEdit* txtFromYear;
  QCheckBox* chkSelectRangeOfYears;
  QLineEdit* txtToYear;
  QPushButton* cmdSelect;
  QListView* lstListHolidayDates;
  HolidayListModel* lstListHolidayDates_Lines;  // what the list shows
  QLabel* lblNewCaption;
  QLabel* lblNew;
  QLabel* lblTotalResultsListedCaption;
  QLabel* lblTotalResultsListed;
  QPushButton* cmdCalendar;
  QPushButton* cmdRemoveItem;
  QPushButton* cmdSave;
  QPushButton* cmdClear;
  QPushButton* cmdClose;
  std::unique_ptr<MenuTree> menu;

  // ---- Requests ----------------------------------------------------------------------------
  // Answers the request of the year boxes and options. Calling_Sub is a label only.
  void Display_Holiday(std::string_view Calling_Sub);
  // One holiday over the years, with the checks and messages of "By Holiday" mode; the lines
  // go to the end of the list. ToYear may be overwritten with FromYear.
  void Display_Holiday_II(const std::string& HolidaySelection, const Value& FromYear, Value& ToYear,
                          std::string_view Calling_Sub_Origin);
  // The keeper of the count of holidays a "Display All By Year" request really added.
  double InterFunction_Counter(const std::string& Action, double Numberr);

  // ---- The list ------------------------------------------------------------------------------
  void Close_Window();
  void Clear_lstListHolidayDates();
  void Remove_A_List_Item();
  void Activate_Save_File_Window();

  std::size_t List_Count() const { return lstListHolidayDates_Lines->Count(); }
  std::string List_Line(std::size_t index) const { return lstListHolidayDates_Lines->Line(index); }
  // The selected line, or -1.
  int List_Index() const;
  void Set_List_Index(int index);
  // Empties the list and nothing else.
  void Empty_List();
  // Reads a list file to the end of the list, under the busy cursor, and shows the list from
  // its top. A file that fails stops with its run-time failure, the lines before it listed.
  void Read_List_File(const std::string& path);
  // Sets lblNew to `added` and lblTotalResultsListed to the lines in the list.
  void Show_List_Counts(std::int64_t added);
  // Enables what a list with lines allows: saving, clearing, printing.
  void Enable_Filled_List_Commands();

  // ---- The way to the calendar -----------------------------------------------------------------
  // The keeper of the line sent to the calendar: "Write Month", "Write Date", "Write Year" store,
  // "Get Month", "Get Date", "Get Year" answer; any other request answers nothing.
  Value Selected_Holiday_Sent_To_Calendar(const std::string& Part_Of_String, const Value& Contents_Of_String);
  // Opens the calendar on the date of the selected line. Calling_Sub is a label only.
  void Display_Holiday_On_Calendar(std::string_view Calling_Sub);

  // ---- Events -----------------------------------------------------------------------------------
  void optByHoliday_Click();
  void optDisplayAllByYear_Click();
  void chkSelectRangeOfYears_Click();
  void lstListHolidayDates_Click();
  void mnuOpenFile_Click();
  void mnuPrintHolidayList_Click();

  // While a long request fills the list, the window takes no other order (it yields between
  // batches, so that it keeps painting).
  void Set_Busy(bool busy);
  bool Busy() const { return busy_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Build_Controls();
  void Build_Menu();
  void Connect_Controls();
  void Place_Controls();
  void Display_All_By_Year(const Value& FromYear, const Value& ToYear);
  // Scrolls the list so that the line at `row` is its first in view, when there is such a line.
  void Show_Line_At_Top(std::size_t row);
  // Enables or disables buttons and menu entries by name.
  void Enable_Commands(std::span<const char* const> names, bool enabled);
  void Print_Holiday_List();

  holidays::Kept_Number counter_;
  Value sent_month_;
  Value sent_date_;
  Value sent_year_;
  bool busy_ = false;
};

// The busy cursor over all the program's windows for as long as it lives, whichever way the
// work under it ends.
class BusyCursor {
 public:
  BusyCursor();
  ~BusyCursor();
  BusyCursor(const BusyCursor&) = delete;
  BusyCursor& operator=(const BusyCursor&) = delete;
};

// Lines on their way into the list of frmFindAHoliday, kept as their holiday and year: shown a
// batch at a time, and between batches of a long request the window system gets its turn, so
// that the windows keep painting while millions of lines arrive; the count of lines grows as
// they come, the list shows them at the end. Finish shows what is left. The busy cursor shows
// while the feed lives.
class HolidayListFeed : public holidays::Holiday_Receiver {
 public:
  explicit HolidayListFeed(frmFindAHoliday& window);
  ~HolidayListFeed() override;
  HolidayListFeed(const HolidayListFeed&) = delete;
  HolidayListFeed& operator=(const HolidayListFeed&) = delete;

  void Add_List_Entry(int holiday, int year) override;
  void Finish();

 private:
  void Flush();
  void Stop_Yielding();

  BusyCursor busy_cursor_;
  frmFindAHoliday& window_;
  std::size_t unshown_ = 0;  // lines appended since the last batch was shown
  bool yielded_ = false;
};

}  // namespace orrivane
