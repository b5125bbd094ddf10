// The number kept by a verb (the find-a-holiday window's InterFunction_Counter).
#include <gtest/gtest.h>

#include <functional>

#include "core/runtime_failure.h"
#include "holidays/kept_number.h"

namespace orrivane::holidays {
namespace {

TEST(KeptNumber, VerbsWorkOnTheNumberAndAnswerIt) {
  Kept_Number counter;
  EXPECT_EQ(counter.Apply("Add", 0), 0);
  EXPECT_EQ(counter.Apply("Set Equal To", 10), 10);
  EXPECT_EQ(counter.Apply("Add", 5), 15);
  EXPECT_EQ(counter.Apply("Subtract", 3), 12);
  EXPECT_EQ(counter.Apply("Multiply", 2), 24);
  EXPECT_EQ(counter.Apply("Divide", 16), 1.5);
}

TEST(KeptNumber, AnyOtherVerbAnswersTheNumberUnchanged) {
  Kept_Number counter;
  counter.Apply("Set Equal To", 4);
  EXPECT_EQ(counter.Apply("View", 99), 4);
  EXPECT_EQ(counter.Apply("add", 99), 4);
  EXPECT_EQ(counter.Apply("", 99), 4);
}

TEST(KeptNumber, DividingByZeroFailsAsTheProgramsArithmeticFails) {
  Kept_Number counter;
  try {
    counter.Apply("Divide", 0);
    ADD_FAILURE() << "0 / 0 went through";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number(), kOverflow);
  }
  counter.Apply("Set Equal To", 3);
  try {
    counter.Apply("Divide", 0);
    ADD_FAILURE() << "3 / 0 went through";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number(), kDivisionByZero);
  }
  EXPECT_EQ(counter.Apply("View", 0), 3);
}

}  // namespace
}  // namespace orrivane::holidays
