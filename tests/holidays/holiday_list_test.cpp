// The find-a-holiday list kept compactly: lines of the rules kept as holiday and year and worked
// out again when asked for, lines of a file kept as text, both in the order they came, and what a
// list shows of a long line.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "holidays/holiday_list.h"
#include "holidays/holiday_rules.h"

namespace orrivane::holidays {
namespace {

std::vector<std::string> Lines_Of(const Holiday_List& list) {
  std::vector<std::string> lines;
  for (std::size_t row = 0; row < list.Count(); ++row) lines.push_back(list.Line(row));
  return lines;
}

Holiday_List_Texts Texts_Of(const std::vector<std::string>& lines) {
  Holiday_List_Texts texts;
  for (const std::string& line : lines) {
    texts.text += line;
    texts.ends.push_back(static_cast<std::uint32_t>(texts.text.size()));
  }
  return texts;
}

// Keeps what the engine delivers as a list does: the holiday and the year only.
class Entry_Keeper : public Holiday_Receiver {
 public:
  explicit Entry_Keeper(Holiday_List& list) : list_(list) {}
  void Add_List_Entry(int holiday, int year) override { list_.Append_Entry(holiday, year); }

 private:
  Holiday_List& list_;
};

TEST(HolidayList, ALineKeptAsHolidayAndYearReadsAsTheLineTheRulesWrite) {
  for (const auto& [from, to] : {std::pair{1582, 1583}, {2003, 2003}, {11419, 11420}, {100099, 100100}}) {
    Holiday_List list;
    Entry_Keeper keeper(list);
    Holiday_List_Collector collector;
    Display_All_Holidays_For_Years(from, to, keeper);
    Display_All_Holidays_For_Years(from, to, collector);
    EXPECT_EQ(Lines_Of(list), collector.lines) << from;
  }
}

TEST(HolidayList, TheLineOfAHolidayInAYearIsEmptyWhenItDoesNotExistThen) {
  EXPECT_EQ(Holiday_List_Line(*Holiday_Number("Easter"), 2003), "Easter, Sunday, April 20, 2003");
  EXPECT_EQ(Holiday_List_Line(*Holiday_Number("Election Day, U.S."), 2003),
            "Election Day, U.S., Tuesday, November 4, 2003");
  EXPECT_EQ(Holiday_List_Line(*Holiday_Number("Easter"), kHolidayYearLimit + 1), "");
  EXPECT_EQ(Holiday_List_Line(kHolidayCount, 2003), "");
  EXPECT_EQ(Holiday_List_Line(-1, 2003), "");
}

TEST(HolidayList, LinesOfTheRulesAndOfFilesKeepTheOrderTheyCameIn) {
  Holiday_List list;
  list.Append_Texts(Texts_Of({"one", "two"}));
  list.Append_Entry(*Holiday_Number("Easter"), 2003);
  list.Append_Texts(Texts_Of({"three", "", "four"}));
  EXPECT_EQ(Lines_Of(list),
            (std::vector<std::string>{"one", "two", "Easter, Sunday, April 20, 2003", "three", "", "four"}));
}

TEST(HolidayList, RemovingALineClosesTheGapWhateverItsKind) {
  Holiday_List list;
  list.Append_Entry(*Holiday_Number("Easter"), 2003);
  list.Append_Texts(Texts_Of({"one", "two", "three"}));
  list.Append_Entry(*Holiday_Number("Halloween"), 1582);
  list.Remove(2);
  list.Remove(0);
  EXPECT_EQ(Lines_Of(list), (std::vector<std::string>{"one", "three", "Halloween, Sunday, October 31, 1582"}));
  list.Remove(2);
  EXPECT_EQ(Lines_Of(list), (std::vector<std::string>{"one", "three"}));
}

TEST(HolidayList, ClearingEmptiesTheListForNewLines) {
  Holiday_List list;
  list.Append_Texts(Texts_Of({"old"}));
  list.Append_Entry(0, 2003);
  list.Clear();
  EXPECT_EQ(list.Count(), 0u);
  list.Append_Texts(Texts_Of({"new"}));
  EXPECT_EQ(Lines_Of(list), std::vector<std::string>{"new"});
}

TEST(HolidayList, ALongLineIsShownCutButKeptWhole) {
  const std::string long_line = std::string(3 * kShownLineLength, 'x') + ", Sunday, April 20, 2003";
  Holiday_List list;
  list.Append_Texts(Texts_Of({long_line, "short"}));
  list.Append_Entry(*Holiday_Number("Easter"), 2003);
  EXPECT_EQ(list.Line(0), long_line);
  EXPECT_EQ(list.Shown_Line(0), std::string(kShownLineLength, 'x'));
  EXPECT_EQ(list.Shown_Line(1), "short");
  EXPECT_EQ(list.Shown_Line(2), "Easter, Sunday, April 20, 2003");
  const std::string just_fits(kShownLineLength, 'y');
  list.Append_Texts(Texts_Of({just_fits}));
  EXPECT_EQ(list.Shown_Line(3), just_fits);
}

TEST(HolidayList, TheCountOfARequestIsKnownBeforeItIsDelivered) {
  struct Counter : Holiday_Receiver {
    std::int64_t lines = 0;
    void Add_List_Entry(int, int) override { ++lines; }
  };
  for (const auto& [from, to] : {std::pair{1582, 1582}, {2003, 2003}, {1583, 6000}, {6000, 1583}, {1582, 1900},
                                 {100100, 100100}, {99000, kHolidayYearLimit},
                                 {1000, 1500}, {1000, 1600}, {100200, 100300}, {100300, 99990}}) {
    Counter counter;
    EXPECT_EQ(All_Holidays_Line_Count(from, to), Display_All_Holidays_For_Years(from, to, counter)) << from;
    EXPECT_EQ(All_Holidays_Line_Count(from, to), counter.lines) << from;
  }
  EXPECT_EQ(All_Holidays_Line_Count(1582, 1582), 4);
  EXPECT_EQ(All_Holidays_Line_Count(2003, 2003), 25);
  EXPECT_EQ(All_Holidays_Line_Count(1583, kHolidayYearLimit), 2459584);
}

}  // namespace
}  // namespace orrivane::holidays
