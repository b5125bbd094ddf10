#pragma once
// The purposes of the multi-purpose window: one window with six frames stacked in one place, of
// which one is shown at a time. The origin that asks for the window chooses the purpose, and the
// purpose gives the window its frame, caption and size, its default button (with the caption it
// takes there) and the button that Escape presses, and the heading of a frame that serves two
// purposes. The origins are tested in the order of the table, each compared exactly; any other
// text selects nothing.
#include <string_view>

#include "organizer/organizer_callers.h"

namespace orrivane::reminders {

// The frames, by the index their controls bear in the arrays shared across frames (cmdCancel)
// and in the suffix of their own names ("_1" for frame 1 ...).
enum MultiPurposeFrame : int {
  kAddNewGroupMemberFrame = 0,  // fraAddNewGroupMember
  kDeleteGroupMemberFrame = 1,  // fraDeleteGroupMember
  kDeleteViewTaskFrame = 2,     // fraDeleteViewTask
  kNonTaskRemindersFrame = 3,   // fraNonTaskReminders
  kViewOrDeleteNTRemFrame = 4,  // fraViewOrDeleteNTRem
  kPrintLogFrame = 5,           // fraPrintLog
};
inline constexpr int kMultiPurposeFrames = 6;

// A caption left as it stands: the button keeps the caption it has.
inline constexpr std::string_view kKeepCaption = "";

struct MultiPurpose {
  std::string_view origin;
  MultiPurposeFrame frame;
  std::string_view caption;  // the window's
  int height_twips;          // the window's size
  int width_twips;
  std::string_view default_button;   // the control's name; "" for none
  std::string_view default_caption;  // kKeepCaption, or the caption it takes
  int cancel_index;                  // the element of cmdCancel that Escape presses
  std::string_view cancel_caption;   // kKeepCaption, or the caption it takes
  std::string_view heading_label;    // the label of a frame's heading that tells the mode; "" none
  std::string_view heading;
};

// Frame 2 lists a member's tasks to delete or to view, frame 4 the non-task messages; their
// headings and buttons tell which.
inline constexpr std::string_view kTaskHeading = "lblListBoxHeadingLabel_2";
inline constexpr std::string_view kMessageHeading = "lblHeadingLabel_4";

// The nine ways into the window, in the order in which they are tested.
inline constexpr MultiPurpose kMultiPurposes[] = {
    {organizer::kAddNewGroupMemberOrigin, kAddNewGroupMemberFrame, "Add New Group Member", 1950, 3105, "cmdAdd",
     kKeepCaption, 0, kKeepCaption, "", ""},
    {organizer::kDeleteGroupMemberOrigin, kDeleteGroupMemberFrame, "Delete Group Member", 2445, 3600, "cmdDelete",
     kKeepCaption, 1, kKeepCaption, "", ""},
    {organizer::kDeleteATaskFromMenuOrigin, kDeleteViewTaskFrame, "Delete A Task\\Event", 3390, 5505, "cmdDelete_1",
     "Delete", 2, "Cancel", kTaskHeading, "Select Task To Delete:"},
    {organizer::kSelectTaskInfoWindowOrigin, kDeleteViewTaskFrame, "View Task\\Event Information", 3390, 5505,
     "cmdDelete_1", "View", 2, "Close", kTaskHeading, "Select Task To View:"},
    {organizer::kActivateNonTaskReminderWindow, kNonTaskRemindersFrame, "Create Non-Task Reminder", 5430, 3945,
     "cmdAdd_3", "Add", 3, kKeepCaption, "", ""},
    {organizer::kActivateChangeNTTaskWindow, kNonTaskRemindersFrame, "Change Non-Task Reminder", 5430, 3945, "cmdAdd_3",
     "Update", 3, kKeepCaption, "", ""},
    {organizer::kActivateDeleteNTTaskWindow, kViewOrDeleteNTRemFrame, "Delete Non-Task Reminder", 2430, 5385,
     "cmdDelete_4", "Delete", 4, kKeepCaption, kMessageHeading, "Select Message To Delete"},
    // The list of the change path bears the title of its edit form.
    {organizer::kActivateViewNTTaskWindow, kViewOrDeleteNTRemFrame, "Change Non-Task Reminder", 2430, 5385,
     "cmdDelete_4", "Select", 4, kKeepCaption, kMessageHeading, "Select Message To View"},
    // Printing has no default button: Enter prints nothing by itself.
    {organizer::kActivatePrintLogScreen, kPrintLogFrame, "Print Log", 6030, 4665, "", kKeepCaption, 5, kKeepCaption, "",
     ""},
};

// The size of a frame in twips: that of the purposes it serves, which agree.
struct TwipSize {
  int height;
  int width;
};
constexpr TwipSize Frame_Size(MultiPurposeFrame frame) {
  for (const MultiPurpose& purpose : kMultiPurposes) {
    if (purpose.frame == frame) return {purpose.height_twips, purpose.width_twips};
  }
  return {0, 0};
}

// The purpose of an origin; nothing for a text that is none of the nine.
const MultiPurpose* Multi_Purpose_Of(std::string_view Calling_Sub_Origin);

}  // namespace orrivane::reminders
