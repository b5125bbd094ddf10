// The printed holiday list: the question, the heading, two columns of 71 lines, a job a page.
#include <gtest/gtest.h>

#include "holidays/holiday_list_print.h"

namespace orrivane::holidays {
namespace {

TEST(HolidayListPrint, ALongListIsAskedWithYesAndNo) {
  const Message short_list = Holiday_List_Print_Question(169);
  EXPECT_EQ(short_list.title, "Print Holiday List");
  EXPECT_EQ(short_list.text, "To print the holiday list click 'OK', otherwise click 'Cancel'.");
  EXPECT_EQ(short_list.buttons, vbOKCancel);
  EXPECT_EQ(short_list.icon, vbNoIcon);
  const Message long_list = Holiday_List_Print_Question(170);
  EXPECT_EQ(long_list.title, "Print Holiday List");
  EXPECT_EQ(long_list.text, "It may take up to two minutes for printing to start. Proceed?");
  EXPECT_EQ(long_list.buttons, vbYesNo);
  EXPECT_EQ(long_list.icon, vbQuestion);
}

TEST(HolidayListPrint, TheHeading) {
  EXPECT_EQ(Holiday_List_Print_Heading("25"), "Total Holidays Listed: 25");
  EXPECT_EQ(Holiday_List_Print_Heading_Place().y_twips, 400);
  EXPECT_EQ(Holiday_List_Print_Heading_Place().job, 0u);
}

struct Place_Case {
  std::size_t line;  // from 1, as the user counts
  std::size_t job;
  int x;
  int y;
};

TEST(HolidayListPrint, LinesRunDownTheLeftColumnThenTheRightThenANewJob) {
  const Place_Case cases[] = {
      {1, 0, 1000, 800},   {2, 0, 1000, 1000},  {71, 0, 1000, 14800}, {72, 0, 5500, 800},
      {142, 0, 5500, 14800}, {143, 1, 1000, 800}, {213, 1, 1000, 14800}, {214, 1, 5500, 800},
      {285, 2, 1000, 800},
  };
  for (const Place_Case& c : cases) {
    const Print_Place place = Holiday_List_Print_Place(c.line - 1);
    EXPECT_EQ(place.job, c.job) << "line " << c.line;
    EXPECT_EQ(place.x_twips, c.x) << "line " << c.line;
    EXPECT_EQ(place.y_twips, c.y) << "line " << c.line;
  }
}

TEST(HolidayListPrint, AJobAFullPageAndOneForWhatIsLeft) {
  EXPECT_EQ(Holiday_List_Print_Jobs(0), 1u);
  EXPECT_EQ(Holiday_List_Print_Jobs(1), 1u);
  EXPECT_EQ(Holiday_List_Print_Jobs(142), 1u);
  EXPECT_EQ(Holiday_List_Print_Jobs(143), 2u);
  EXPECT_EQ(Holiday_List_Print_Jobs(284), 2u);
  EXPECT_EQ(Holiday_List_Print_Jobs(285), 3u);
}

}  // namespace
}  // namespace orrivane::holidays
