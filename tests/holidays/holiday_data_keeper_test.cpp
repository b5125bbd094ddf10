// The calendar's holiday table keeper: three arrays of 51 entries driven by a verb.
#include <gtest/gtest.h>

#include <functional>

#include "core/runtime_failure.h"
#include "holidays/holiday_rules.h"
#include "support/failure_of.h"

namespace orrivane::holidays {
namespace {

using orrivane::testing::Failure_Of;

TEST(HolidayDataKeeper, EntriesStartEmptyAndThereforeFree) {
  Holiday_Data_Keeper keeper;
  for (int i = 0; i < Holiday_Data_Keeper::kEntries; ++i) {
    EXPECT_TRUE(keeper.Store_Holiday_Data_For_Year("Holiday Month", i, "View").is_empty());
    EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Month", i, "View"), Value(""));
  }
}

TEST(HolidayDataKeeper, SetEqualToStoresAndAnswersTheEntry) {
  Holiday_Data_Keeper keeper;
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Name", 50, "Set Equal To", "Easter"), Value("Easter"));
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Name", 50, "View"), Value("Easter"));
  EXPECT_TRUE(keeper.Store_Holiday_Data_For_Year("Holiday Month", 50, "View").is_empty());
}

TEST(HolidayDataKeeper, TheThreeArraysAreSeparate) {
  Holiday_Data_Keeper keeper;
  keeper.Store_Holiday_Data_For_Year("Holiday Name", 3, "Set Equal To", "Halloween");
  keeper.Store_Holiday_Data_For_Year("Holiday Date", 3, "Set Equal To", 31);
  keeper.Store_Holiday_Data_For_Year("Holiday Month", 3, "Set Equal To", "October");
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Name", 3, "View"), Value("Halloween"));
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Date", 3, "View"), Value(31));
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Month", 3, "View"), Value("October"));
}

TEST(HolidayDataKeeper, ArithmeticVerbsWorkOnTheEntryAndAnswerIt) {
  Holiday_Data_Keeper keeper;
  keeper.Store_Holiday_Data_For_Year("Holiday Date", 0, "Set Equal To", 10);
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Date", 0, "Add", 5), Value(15));
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Date", 0, "Subtract", "3"), Value(12));
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Date", 0, "Multiply", 2), Value(24));
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Date", 0, "Divide", 16), Value(1.5));
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Date", 0, "View"), Value(1.5));
}

TEST(HolidayDataKeeper, AnEmptyEntryCountsAsZero) {
  Holiday_Data_Keeper keeper;
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Date", 7, "Add", 4), Value(4));
}

TEST(HolidayDataKeeper, AnUnknownVerbAnswersTheEntryUnchanged) {
  Holiday_Data_Keeper keeper;
  keeper.Store_Holiday_Data_For_Year("Holiday Date", 1, "Set Equal To", 9);
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Date", 1, "Get", 4), Value(9));
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Date", 1, "View"), Value(9));
}

TEST(HolidayDataKeeper, AnIndexOf51OrMoreIsASubscriptFailure) {
  Holiday_Data_Keeper keeper;
  for (const int index : {51, 52, 1000, -1}) {
    EXPECT_EQ(Failure_Of([&] { keeper.Store_Holiday_Data_For_Year("Holiday Month", index, "View"); }),
              kSubscriptOutOfRange)
        << index;
  }
}

TEST(HolidayDataKeeper, AnotherArrayNameWorksOnAScratchValueAndStoresNothing) {
  Holiday_Data_Keeper keeper;
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Year", 99, "Set Equal To", 2003), Value(2003));
  EXPECT_TRUE(keeper.Store_Holiday_Data_For_Year("Holiday Year", 99, "View").is_empty());
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Year", 0, "Add", 3), Value(3));
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Year", 0, "Add", 3), Value(3));
}

TEST(HolidayDataKeeper, ArithmeticOnATextThatIsNoNumberIsATypeMismatch) {
  Holiday_Data_Keeper keeper;
  keeper.Store_Holiday_Data_For_Year("Holiday Name", 0, "Set Equal To", "Easter");
  EXPECT_EQ(Failure_Of([&] { keeper.Store_Holiday_Data_For_Year("Holiday Name", 0, "Add", 1); }), kTypeMismatch);
}

TEST(HolidayDataKeeper, DividingByZeroFails) {
  Holiday_Data_Keeper keeper;
  keeper.Store_Holiday_Data_For_Year("Holiday Date", 0, "Set Equal To", 4);
  EXPECT_EQ(Failure_Of([&] { keeper.Store_Holiday_Data_For_Year("Holiday Date", 0, "Divide", 0); }), kDivisionByZero);
  EXPECT_EQ(Failure_Of([&] { keeper.Store_Holiday_Data_For_Year("Holiday Date", 1, "Divide", 0); }), kOverflow);
}

TEST(HolidayDataKeeper, FirstFreeEntryIsTheFirstWithAnEmptyMonth) {
  Holiday_Data_Keeper keeper;
  Store_In_First_Free_Entry(keeper, {"Halloween", "October", 31});
  Store_In_First_Free_Entry(keeper, {"Christmas Eve", "December", 24});
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Name", 1, "View"), Value("Christmas Eve"));
  // Emptying a month frees its entry; name and date stay behind and are overwritten.
  keeper.Store_Holiday_Data_For_Year("Holiday Month", 0, "Set Equal To", "");
  Store_In_First_Free_Entry(keeper, {"New Years Eve", "December", 31});
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Name", 0, "View"), Value("New Years Eve"));
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Month", 0, "View"), Value("December"));
  EXPECT_EQ(keeper.Store_Holiday_Data_For_Year("Holiday Date", 0, "View"), Value(31));
}

TEST(HolidayDataKeeper, AFullTableFailsWithASubscriptFailure) {
  Holiday_Data_Keeper keeper;
  for (int i = 0; i < Holiday_Data_Keeper::kEntries; ++i) Store_In_First_Free_Entry(keeper, {"Easter", "April", 20});
  EXPECT_EQ(Failure_Of([&] { Store_In_First_Free_Entry(keeper, {"Easter", "April", 20}); }), kSubscriptOutOfRange);
}

}  // namespace
}  // namespace orrivane::holidays
