// The caller identities of the holiday engine: each of its two customers is chosen by its exact
// text, and any other text, a mis-cased one or another procedure's identity, selects nobody.
#include "holidays/holiday_callers.h"

#include <gtest/gtest.h>

#include <string>

#include "holidays/holiday_rules.h"

namespace orrivane::holidays {
namespace {

struct Counting_Receiver : Holiday_Receiver {
  int lines = 0;
  int entries = 0;
  void Add_List_Line(std::string) override { ++lines; }
  void Add_Table_Entry(const Holiday_Table_Entry&) override { ++entries; }
};

Counting_Receiver Deliveries_For(std::string_view caller) {
  Counting_Receiver receiver;
  Display_All_Holidays_For_Selected_Year(2003, caller, receiver);
  Value to = 2003;
  Display_Holiday_II("Easter", 2003, to, caller, {true, false}, receiver);
  return receiver;
}

TEST(HolidayCallers, TheFindAHolidayWindowGetsLinesOnly) {
  EXPECT_EQ(kFindAHolidayCaller, "Display_Holiday(Calling_Sub)");
  const Counting_Receiver receiver = Deliveries_For("Display_Holiday(Calling_Sub)");
  EXPECT_EQ(receiver.lines, 26);
  EXPECT_EQ(receiver.entries, 0);
}

TEST(HolidayCallers, TheCalendarGetsTableEntriesOnly) {
  EXPECT_EQ(kCalendarHolidayTableCaller, "Form1.Display_Next_Month_On_Calendar()");
  const Counting_Receiver receiver = Deliveries_For("Form1.Display_Next_Month_On_Calendar()");
  EXPECT_EQ(receiver.lines, 0);
  EXPECT_EQ(receiver.entries, 26);
}

TEST(HolidayCallers, AnyOtherTextSelectsNobody) {
  for (const char* caller : {"display_holiday(calling_sub)", "Display_Holiday(Calling_sub)", "Display_Holiday",
                             "form1.Display_Next_Month_On_Calendar()", "Form1.Display_Next_Month_On_Calendar",
                             "frmFindAHoliday.Display_Holiday_On_Calendar", "cmdCalendar_Click()", "frmFindAHoliday",
                             ""}) {
    const Counting_Receiver receiver = Deliveries_For(caller);
    EXPECT_EQ(receiver.lines + receiver.entries, 0) << caller;
  }
}

TEST(HolidayCallers, TheWindowsLabelsKeepTheirTexts) {
  EXPECT_EQ(kCmdSelectClick, "cmdSelect_Click");
  EXPECT_EQ(kMnuAddHolidayDateToListClick, "mnuAddHolidayDateToList_Click");
  EXPECT_EQ(kCmdCalendarClick, "cmdCalendar_Click()");
}

}  // namespace
}  // namespace orrivane::holidays
