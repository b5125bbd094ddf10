#pragma once
// A new group member as the user types the name: the name stands without the blanks around it,
// an empty name is refused with a message, and a name that the list of members holds already,
// compared exactly, case included, is passed over in silence.
#include <string>
#include <string_view>
#include <vector>

#include "core/message.h"

namespace orrivane::organizer {

enum class NewMemberOutcome {
  kNoName,   // nothing but blanks was typed
  kListed,   // the list holds the name already
  kNew,      // a member to add
};

struct NewGroupMember {
  NewMemberOutcome outcome = NewMemberOutcome::kNoName;
  std::string name;  // trimmed
};

NewGroupMember Check_New_Group_Member(std::string_view typed, const std::vector<std::string>& listed);

// The message of a refused name: "No Group Member Specified".
Message New_Group_Member_Message(NewMemberOutcome outcome);

}  // namespace orrivane::organizer
