#include "organizer/save_prompt.h"

#include "organizer/organizer_callers.h"

namespace orrivane::organizer {

namespace {

struct AskerButtons {
  std::string_view origin;
  int buttons;
};

// Leaving can't be cancelled from the question; starting another log can.
constexpr AskerButtons kAskerButtons[] = {
    {kTerminateThisProgram, vbYesNo},
    {kOrganizerFormUnload, vbYesNo},
    {kNewScheduleClick, vbYesNoCancel},
    {kOpenScheduleFile, vbYesNoCancel},
};

constexpr const char* kSaveChangesTitle = "Save Changes";
constexpr const char* kLogWithoutFileQuestion = "The current log has not been saved. Save it now?";

std::string Question_Text(const std::optional<std::string>& log_file) {
  if (!log_file) return kLogWithoutFileQuestion;
  return "Save changes to " + *log_file + "?";
}

}  // namespace

Message Save_Changes_Question(std::string_view Calling_Sub_Origin, const std::optional<std::string>& log_file) {
  Message question{kSaveChangesTitle, Question_Text(log_file), vbOKOnly, vbNoIcon};
  for (const AskerButtons& asker : kAskerButtons) {
    if (asker.origin != Calling_Sub_Origin) continue;
    question.buttons = asker.buttons;
    question.icon = vbQuestion;
  }
  return question;
}

bool Forgets_Unsaved_Changes(std::string_view Calling_Sub_Origin) {
  return Calling_Sub_Origin == kOrganizerFormUnload;
}

}  // namespace orrivane::organizer
