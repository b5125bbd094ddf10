#include "organizer/group_members.h"

#include <algorithm>

#include "core/text.h"

namespace orrivane::organizer {

namespace {

const CodedMessage kNewMemberMessages[] = {
    {static_cast<int>(NewMemberOutcome::kNoName),
     Exclamation_Message("No Group Member Specified", "Please enter a name for the new Group Member.")},
};

}  // namespace

NewGroupMember Check_New_Group_Member(std::string_view typed, const std::vector<std::string>& listed) {
  NewGroupMember member{NewMemberOutcome::kNew, text::Trim(typed)};
  if (member.name.empty()) {
    member.outcome = NewMemberOutcome::kNoName;
  } else if (std::find(listed.begin(), listed.end(), member.name) != listed.end()) {
    member.outcome = NewMemberOutcome::kListed;
  }
  return member;
}

Message New_Group_Member_Message(NewMemberOutcome outcome) {
  return Message_Of(kNewMemberMessages, static_cast<int>(outcome));
}

}  // namespace orrivane::organizer
