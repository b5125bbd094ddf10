// The in-use flags of the reminder files and the holds that take them.
#include "reminders/in_use_flags.h"

#include <gtest/gtest.h>

#include "core/runtime_failure.h"
#include "support/failure_of.h"

namespace orrivane::reminders {
namespace {

using testing::Failure_Of;

TEST(InUseFlag, TheKeeperSetsWithAnyVerbButEvaluate) {
  InUseFlag flag;
  EXPECT_FALSE(flag.Keep(true, "Evaluate"));
  EXPECT_TRUE(flag.Keep(true, ""));
  EXPECT_TRUE(flag.Keep(false, "Evaluate"));
  EXPECT_FALSE(flag.Keep(false, "Set"));
}

TEST(InUseFlag, AHoldTakesTheFlagAndGivesItBackOnEveryWayOut) {
  InUseFlag flag;
  {
    FlagHold hold(flag);
    EXPECT_TRUE(flag.Held());
  }
  EXPECT_FALSE(flag.Held());
  EXPECT_EQ(Failure_Of([&] {
              FlagHold hold(flag);
              throw RuntimeFailure(kInputPastEndOfFile);
            }),
            kInputPastEndOfFile);
  EXPECT_FALSE(flag.Held());
}

TEST(InUseFlag, WaitingForAHeldFlagIsAFailureAndLeavesItWithItsHolder) {
  InUseFlag flag;
  FlagHold holder(flag);
  EXPECT_EQ(Failure_Of([&] { FlagHold waiter(flag); }), kFileAlreadyOpen);
  EXPECT_TRUE(flag.Held());
}

TEST(InUseFlag, TakingOnlyWhenFreeAnswersNothingForAHeldFlag) {
  InUseFlag flag;
  {
    std::optional<FlagHold> hold = FlagHold::Take_If_Free(flag);
    ASSERT_TRUE(hold.has_value());
    EXPECT_TRUE(flag.Held());
    EXPECT_FALSE(FlagHold::Take_If_Free(flag).has_value());
    EXPECT_TRUE(flag.Held());
  }
  EXPECT_FALSE(flag.Held());
}

}  // namespace
}  // namespace orrivane::reminders
