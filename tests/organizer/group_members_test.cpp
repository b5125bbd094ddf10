// A new group member's name as typed: trimmed, refused when empty, passed over when listed.
#include "organizer/group_members.h"

#include <gtest/gtest.h>

namespace orrivane::organizer {
namespace {

const std::vector<std::string> kListed = {"Anna", "Ben"};

TEST(GroupMembersTest, ANameStandsWithoutTheBlanksAroundIt) {
  const NewGroupMember member = Check_New_Group_Member("  Cleo Smith  ", kListed);
  EXPECT_EQ(member.outcome, NewMemberOutcome::kNew);
  EXPECT_EQ(member.name, "Cleo Smith");
}

TEST(GroupMembersTest, NothingButBlanksIsNoName) {
  EXPECT_EQ(Check_New_Group_Member("", kListed).outcome, NewMemberOutcome::kNoName);
  EXPECT_EQ(Check_New_Group_Member("    ", kListed).outcome, NewMemberOutcome::kNoName);
}

TEST(GroupMembersTest, AListedNameIsFoundAfterTrimmingWithItsCase) {
  EXPECT_EQ(Check_New_Group_Member(" Anna ", kListed).outcome, NewMemberOutcome::kListed);
  EXPECT_EQ(Check_New_Group_Member("anna", kListed).outcome, NewMemberOutcome::kNew);
  EXPECT_EQ(Check_New_Group_Member("Anna", {}).outcome, NewMemberOutcome::kNew);
}

TEST(GroupMembersTest, OnlyTheMissingNameHasAMessage) {
  EXPECT_EQ(New_Group_Member_Message(NewMemberOutcome::kNoName),
            Exclamation_Message("No Group Member Specified", "Please enter a name for the new Group Member."));
  EXPECT_TRUE(New_Group_Member_Message(NewMemberOutcome::kListed).empty());
  EXPECT_TRUE(New_Group_Member_Message(NewMemberOutcome::kNew).empty());
}

}  // namespace
}  // namespace orrivane::organizer
