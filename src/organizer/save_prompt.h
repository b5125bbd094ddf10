#pragma once
// The question about unsaved changes of the log: the buttons each asker offers, the words of the
// question, and the one asker after whose question the changes are no longer cared for.
#include <optional>
#include <string>
#include <string_view>

#include "core/message.h"

namespace orrivane::organizer {

// The question put to the user for `Calling_Sub_Origin` (organizer_callers.h): Yes and No when
// leaving, Yes, No and Cancel when another log takes the place of this one, the question icon
// for all four askers. `log_file` is the name of the log's own file, or nothing when it has none.
// An asker not among the four gets the question with one OK button and no icon.
Message Save_Changes_Question(std::string_view Calling_Sub_Origin, const std::optional<std::string>& log_file);

// True for the asker that sets Save_File_Prompt_Flag to 0 whatever the answer was: the
// Organizer window being unloaded.
bool Forgets_Unsaved_Changes(std::string_view Calling_Sub_Origin);

}  // namespace orrivane::organizer
