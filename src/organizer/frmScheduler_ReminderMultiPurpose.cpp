// The Organizer's ways into the multi-purpose window: the window set up for the purpose that an
// origin names, and the four procedures of the calendar windows' menus that ask for it.
#include "organizer/frmScheduler_Reminder.h"
#include "organizer/organizer_callers.h"
#include "platform/window_registry.h"
#include "reminders/frmMultiPurposeForm.h"
#include "reminders/multi_purpose.h"

namespace orrivane {

void frmScheduler_Reminder::Multipurpose_Form(std::string_view Calling_Sub_Origin) {
  frmMultiPurposeForm& form = Window<frmMultiPurposeForm>();
  form.Form_Termination_Routine();
  const reminders::MultiPurpose* purpose = reminders::Multi_Purpose_Of(Calling_Sub_Origin);
  if (purpose == nullptr) return;  // an origin of no purpose leaves the window blank and hidden
  form.Prepare_Frame(*purpose);
  form.Show_Purpose(*purpose);
}

void frmScheduler_Reminder::Add_New_Group_Member() { Multipurpose_Form(organizer::kAddNewGroupMemberOrigin); }

void frmScheduler_Reminder::Delete_Group_Member_From_Menu() {
  Multipurpose_Form(organizer::kDeleteGroupMemberOrigin);
}

void frmScheduler_Reminder::Delete_A_Task_From_Menu() { Multipurpose_Form(organizer::kDeleteATaskFromMenuOrigin); }

void frmScheduler_Reminder::Select_Task_Info_Window() { Multipurpose_Form(organizer::kSelectTaskInfoWindowOrigin); }

}  // namespace orrivane
