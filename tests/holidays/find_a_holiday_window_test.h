#pragma once
// What the tests of the find-a-holiday window share: the program started as a user starts it,
// the window opened from the large calendar, requests typed and clicked as a user makes them.
#include <QListView>
#include <QTest>
#include <string>
#include <vector>

#include "calendar/calendar_window_test.h"
#include "holidays/frmFindAHoliday.h"
#include "shell/frmOpenFile.h"
#include "shell/frmSaveFile.h"

namespace orrivane::testing {

class FindAHolidayTest : public CalendarWindowTest {
 protected:
  frmFindAHoliday& find() { return Window<frmFindAHoliday>(); }

  // Starts the program and opens the window through the large calendar's menu.
  void Open_Window() {
    Start_Program();
    Trigger(large(), "mnuFindHolidayDates");
    Process_Events();
  }

  void Ask_By_Holiday(const QString& holiday, const QString& from, const QString& to = {}) {
    if (!find().optByHoliday->isChecked()) Click(find().optByHoliday);
    find().cboHoliday->setCurrentIndex(find().cboHoliday->findText(holiday));
    Type_Years(from, to);
    Click(find().cmdSelect);
  }

  void Ask_All_By_Year(const QString& from, const QString& to = {}) {
    if (!find().optDisplayAllByYear->isChecked()) Click(find().optDisplayAllByYear);
    Type_Years(from, to);
    Click(find().cmdSelect);
  }

  // Types the years: with a last year the range box is checked and the last year typed, without
  // one the range box is cleared.
  void Type_Years(const QString& from, const QString& to) {
    Type(find().txtFromYear, from);
    if (find().chkSelectRangeOfYears->isChecked() == to.isEmpty()) Click(find().chkSelectRangeOfYears);
    if (!to.isEmpty()) Type(find().txtToYear, to);
  }

  std::vector<std::string> Lines() {
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < find().List_Count(); ++i) lines.push_back(find().List_Line(i));
    return lines;
  }

  // Clicks a line of the list as the user does.
  void Select_Line(int row) {
    QListView* list = find().lstListHolidayDates;
    const QModelIndex index = find().lstListHolidayDates_Lines->index(row);
    list->scrollTo(index);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
  }

  bool Enabled(const char* name) {
    if (auto* button = find().findChild<QPushButton*>(name)) return button->isEnabled();
    return Menu(find(), name)->isEnabled();
  }
  std::string New_Count() { return Label(find(), "lblNew"); }
  std::string Total_Count() { return Label(find(), "lblTotalResultsListed"); }
};

}  // namespace orrivane::testing
