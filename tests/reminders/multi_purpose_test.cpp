// The purposes of the multi-purpose window: the nine origins, in their order, and what each
// gives the window.
#include "reminders/multi_purpose.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "organizer/organizer_callers.h"

namespace orrivane::reminders {
namespace {

TEST(MultiPurposeTest, NineOriginsInTheOrderInWhichTheyAreTested) {
  const std::string_view expected[] = {
      "frmScheduler_Reminder.Add_New_Group_Member()", "frmScheduler_Reminder.Delete_Group_Member()",
      "Delete_A_Task_From_Menu()",                    "Select_Task_Info_Window()",
      "Activate_Non_Task_Reminder_Window()",          "Activate_Change_NT_Task_Window()",
      "Activate_Delete_NT_Task_Window()",             "Activate_View_NT_Task_Window()",
      "Activate_Print_Log_Screen()"};
  ASSERT_EQ(std::size(kMultiPurposes), std::size(expected));
  for (std::size_t i = 0; i < std::size(expected); ++i) EXPECT_EQ(kMultiPurposes[i].origin, expected[i]);
}

TEST(MultiPurposeTest, EachOriginFindsItsOwnRow) {
  for (const MultiPurpose& purpose : kMultiPurposes) EXPECT_EQ(Multi_Purpose_Of(purpose.origin), &purpose);
}

TEST(MultiPurposeTest, AnotherOrAMisCasedOriginSelectsNothing) {
  EXPECT_EQ(Multi_Purpose_Of(""), nullptr);
  EXPECT_EQ(Multi_Purpose_Of("select_task_info_window()"), nullptr);
  EXPECT_EQ(Multi_Purpose_Of("Select_Task_Info_Window"), nullptr);
  EXPECT_EQ(Multi_Purpose_Of("frmScheduler_Reminder.Delete_Group_Member_From_Menu()"), nullptr);
  EXPECT_EQ(Multi_Purpose_Of(organizer::kCmdDeleteClick), nullptr);
}

TEST(MultiPurposeTest, AFrameHasOneSizeForAllItsPurposes) {
  for (const MultiPurpose& purpose : kMultiPurposes) {
    EXPECT_EQ(Frame_Size(purpose.frame).height, purpose.height_twips) << purpose.origin;
    EXPECT_EQ(Frame_Size(purpose.frame).width, purpose.width_twips) << purpose.origin;
  }
}

TEST(MultiPurposeTest, EveryFrameServesAPurposeAndCancelsWithItsOwnButton) {
  std::set<int> frames;
  for (const MultiPurpose& purpose : kMultiPurposes) {
    frames.insert(purpose.frame);
    EXPECT_EQ(purpose.cancel_index, purpose.frame) << purpose.origin;
  }
  EXPECT_EQ(frames.size(), static_cast<std::size_t>(kMultiPurposeFrames));
}

}  // namespace
}  // namespace orrivane::reminders
