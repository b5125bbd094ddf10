// The labels that the find-a-holiday window's buttons and menu pass to Display_Holiday and
// Display_Holiday_On_Calendar decide nothing: any text is answered alike.
#include "holidays/find_a_holiday_window_test.h"

namespace orrivane {
namespace {

using testing::FindAHolidayTest;

TEST_F(FindAHolidayTest, EveryLabelSendsTheSelectedLineToTheCalendar) {
  Open_Window();
  Ask_By_Holiday("Easter", "2003");
  Ask_By_Holiday("Easter", "2010");
  for (const char* label : {"cmdCalendar_Click()", "mnuDisplaySelectedOnCalendar_Click()", "cmdcalendar_click()", ""}) {
    Select_Line(0);
    find().Display_Holiday_On_Calendar(label);
    EXPECT_EQ(Label(main(), "lblShowDate"), "April 20, 2003") << label;
    Select_Line(1);
    find().Display_Holiday_On_Calendar(label);
    EXPECT_EQ(Label(main(), "lblShowDate"), "April 4, 2010") << label;
  }
}

TEST_F(FindAHolidayTest, EveryLabelAsksForTheHolidayOfTheBoxes) {
  Open_Window();
  Ask_By_Holiday("Easter", "2003");
  for (const char* label : {"cmdSelect_Click", "mnuAddHolidayDateToList_Click", "CMDSELECT_CLICK", ""}) {
    find().Display_Holiday(label);
  }
  ASSERT_EQ(Lines().size(), 5u);
  EXPECT_EQ(Lines(), std::vector<std::string>(5, Lines().front()));
}

}  // namespace
}  // namespace orrivane
