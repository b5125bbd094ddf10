// The task list of one member: its entries, the date filter read back from its captions, the
// checks of the filter window, finding the record behind an entry, and the texts that show it.
#include "organizer/task_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/runtime_failure.h"
#include "organizer/log_file.h"
#include "organizer/log_samples.h"

namespace orrivane::organizer {
namespace {

using namespace samples;

// A task of `member` from one moment to another, both given as year, month name, date, hour,
// minute.
struct At {
  int year;
  const char* month;
  const char* date;
  const char* hour;
  const char* minute;
};

ScheduleRecord Task_From_To(int number, const std::string& member, At start, At finish,
                            const std::string& name = "Dentist") {
  ScheduleRecord r = Dentist_Task();
  r.Record_Number = number;
  r.Task_Name = name;
  r.Person_Name = member;
  r.Start_Month = start.month;
  r.Start_Date = start.date;
  r.Start_Century = start.year / 100;
  r.Start_Year = start.year % 100;
  r.Start_Hour = start.hour;
  r.Start_Minute = start.minute;
  r.Finish_Month = finish.month;
  r.Finish_Date = finish.date;
  r.Finish_Century = finish.year / 100;
  r.Finish_Year = finish.year % 100;
  r.Finish_Hour = finish.hour;
  r.Finish_Minute = finish.minute;
  return r;
}

ScheduleRecord Task_At(int number, const std::string& member, At moment, const std::string& name = "Dentist") {
  return Task_From_To(number, member, moment, moment, name);
}

// ---- Entries ----------------------------------------------------------------------------------

TEST(Task_List_Entry, YearMonthNumberAndNameDateTimeNameAndNumber) {
  EXPECT_EQ(Task_List_Entry(Dentist_Task()), "2001, 03Mar 05, 14:30 Dentist, #1");
}

TEST(Task_List_Entry, MonthsFromTenOnStandWithoutPadding) {
  EXPECT_EQ(Task_List_Entry(Task_At(12, "Anna", {1999, "December", "31", "23", "59"}, "Party")),
            "1999, 12Dec 31, 23:59 Party, #12");
  EXPECT_EQ(Task_List_Entry(Task_At(7, "Anna", {2100, "September", "09", "00", "05"})),
            "2100, 09Sep 09, 00:05 Dentist, #7");
}

TEST(Task_List_Entry, FieldsStandAsTheyAreInTheRecord) {
  ScheduleRecord r = Dentist_Task();
  r.Start_Date = "5";  // a date written without its zero stays so
  r.Start_Year = 1;
  r.Start_Century = 17;
  EXPECT_EQ(Task_List_Entry(r), "1701, 03Mar 5, 14:30 Dentist, #1");
}

TEST(Record_Number_Of_Entry, TheTextBehindTheLastHash) {
  EXPECT_EQ(Record_Number_Of_Entry("2001, 03Mar 05, 14:30 Dentist, #1"), "1");
  EXPECT_EQ(Record_Number_Of_Entry("2001, 03Mar 05, 14:30 Room #4 cleaning, #127"), "127");
  EXPECT_EQ(Record_Number_Of_Entry("14, Dentist, #1"), "1");
  EXPECT_EQ(Record_Number_Of_Entry("14, Call #2 #3, #15"), "15");
  EXPECT_EQ(Record_Number_Of_Entry("no number"), "no number");
}

TEST(Record_Number_Of_Entry, FindsTheRecordOfATaskWhoseNameHoldsAHash) {
  const TempFolder folder;
  Write_Log(folder.file("Schedule.tmp"), {Task_At(1, "Anna", {2001, "March", "05", "14", "30"}, "Room #2"),
                                          Task_At(2, "Anna", {2001, "March", "06", "14", "30"}, "Other")});
  const std::string entry = Task_List_Entry(Task_At(1, "Anna", {2001, "March", "05", "14", "30"}, "Room #2"));
  EXPECT_EQ(Find_Task_Record(folder.file("Schedule.tmp"), Value(Record_Number_Of_Entry(entry))).Task_Name,
            Value("Room #2"));
}

// ---- The entries of one member ------------------------------------------------------------------

class Member_Task_Entries_Test : public ::testing::Test {
 protected:
  std::string Log() const { return folder_.file("Schedule.tmp"); }
  void Write(const std::vector<ScheduleRecord>& records) { Write_Log(Log(), records); }
  std::vector<std::string> Entries(const std::string& member, const std::optional<TaskFilter>& filter = {}) {
    return Member_Task_Entries(Log(), member, filter);
  }

 private:
  TempFolder folder_;
};

TEST_F(Member_Task_Entries_Test, AMemberWithNoTaskHasAnEmptyListAndTheMarkerIsNeverListed) {
  Write({Make_Person_Marker("Ben"), Task_At(1, "Anna", {2001, "March", "05", "14", "30"}),
         Make_Person_Marker("Anna")});
  EXPECT_TRUE(Entries("Ben").empty());
  EXPECT_EQ(Entries("Anna"), std::vector<std::string>{"2001, 03Mar 05, 14:30 Dentist, #1"});
}

TEST_F(Member_Task_Entries_Test, AMarkerAsFirstWrittenIsNeverListedEither) {
  Write_Bytes(Log(), kBenMarker28Lines);
  EXPECT_TRUE(Entries("Ben").empty());
}

TEST_F(Member_Task_Entries_Test, OnlyTheMembersOwnTasksInTheOrderOfTheLog) {
  Write({Task_At(1, "Anna", {2001, "March", "05", "14", "30"}), Task_At(2, "Ben", {2001, "March", "05", "15", "00"}),
         Task_At(3, "Anna", {2000, "January", "01", "00", "00"}, "New Year"),
         Task_At(4, "anna", {2001, "March", "05", "16", "00"})});
  EXPECT_EQ(Entries("Anna"), (std::vector<std::string>{"2001, 03Mar 05, 14:30 Dentist, #1",
                                                       "2000, 01Jan 01, 00:00 New Year, #3"}));
}

TEST_F(Member_Task_Entries_Test, TwoTasksDifferingOnlyInTheNumberAreBothListedAndSortAsText) {
  Write({Task_At(9, "Anna", {2001, "March", "05", "14", "30"}), Task_At(10, "Anna", {2001, "March", "05", "14", "30"})});
  std::vector<std::string> entries = Entries("Anna");
  ASSERT_EQ(entries.size(), 2u);
  std::sort(entries.begin(), entries.end());
  EXPECT_EQ(entries, (std::vector<std::string>{"2001, 03Mar 05, 14:30 Dentist, #10",
                                               "2001, 03Mar 05, 14:30 Dentist, #9"}));
}

TEST_F(Member_Task_Entries_Test, PlainTextOrderIsTheOrderOfTime) {
  Write({Task_At(1, "Anna", {2001, "November", "02", "09", "00"}), Task_At(2, "Anna", {2001, "March", "30", "09", "00"}),
         Task_At(3, "Anna", {2001, "March", "05", "17", "00"}), Task_At(4, "Anna", {2000, "December", "31", "23", "59"})});
  std::vector<std::string> entries = Entries("Anna");
  std::sort(entries.begin(), entries.end());
  EXPECT_EQ(entries, (std::vector<std::string>{"2000, 12Dec 31, 23:59 Dentist, #4", "2001, 03Mar 05, 17:00 Dentist, #3",
                                               "2001, 03Mar 30, 09:00 Dentist, #2", "2001, 11Nov 02, 09:00 Dentist, #1"}));
}

TEST_F(Member_Task_Entries_Test, AnEmptyLogListsNothing) {
  Write({});
  EXPECT_TRUE(Entries("Anna").empty());
}

// ---- Filter bounds ------------------------------------------------------------------------------

TEST(Filter_Bound, CountsUnlessEmptyOrNoDateSelected) {
  EXPECT_TRUE(Filter_Bound_Counts("14:00, Mar. 5, 2001"));
  EXPECT_FALSE(Filter_Bound_Counts(""));
  EXPECT_FALSE(Filter_Bound_Counts("No Date Selected"));
}

TEST(Filter_Bound, ParsedIntoHourMinuteMonthDateYear) {
  EXPECT_EQ(Parse_Filter_Bound("14:00, Mar. 5, 2001"), (TaskMoment{2001, 3, 5, 14, 0}));
  EXPECT_EQ(Parse_Filter_Bound("09:59, Dec. 31, 12345"), (TaskMoment{12345, 12, 31, 9, 59}));
  EXPECT_EQ(Parse_Filter_Bound("00:07, Jan. 01, 1600"), (TaskMoment{1600, 1, 1, 0, 7}));
}

TEST(Filter_Bound, ACaptionOfAnotherShapeFailsAsTheParsersFail) {
  EXPECT_EQ(testing::Failure_Of([] { Parse_Filter_Bound("Tomorrow"); }), kInvalidProcedureCall);
}

TEST(Filter_Bound, WrittenInTheFormItIsReadIn) {
  EXPECT_EQ(Filter_Bound_Text("14", "0", "Mar", "05", 2001), "14:00, Mar. 5, 2001");
  EXPECT_EQ(Filter_Bound_Text(7, 59, "Dec", 31, "1999"), "07:59, Dec. 31, 1999");
  EXPECT_EQ(Parse_Filter_Bound(Filter_Bound_Text(7, 5, "Jul", "04", 1776)), (TaskMoment{1776, 7, 4, 7, 5}));
}

TEST(Task_Moments, StartAndFinishFromTheirOwnFields) {
  const ScheduleRecord r =
      Task_From_To(1, "Anna", {1999, "December", "31", "23", "55"}, {2000, "January", "01", "00", "15"});
  EXPECT_EQ(Start_Moment(r), (TaskMoment{1999, 12, 31, 23, 55}));
  EXPECT_EQ(Finish_Moment(r), (TaskMoment{2000, 1, 1, 0, 15}));
  EXPECT_LT(Start_Moment(r), Finish_Moment(r));
}

TEST(Task_Filter_Of, BoundsThatCountAndTheSidesWhoseBoxIsOne) {
  const TaskFilter filter = Task_Filter_Of("No Date Selected", "14:59, Mar. 5, 2001", 1, 0);
  EXPECT_FALSE(filter.After.has_value());
  EXPECT_EQ(filter.Before, (TaskMoment{2001, 3, 5, 14, 59}));
  EXPECT_TRUE(filter.Start_Applies);
  EXPECT_FALSE(filter.Finish_Applies);
  EXPECT_FALSE(Task_Filter_Of("", "", 2, 2).Start_Applies);  // greyed is not on
}

// ---- The filter ---------------------------------------------------------------------------------

class Filter_Test : public Member_Task_Entries_Test {
 protected:
  // Anna's tasks on March 5, 2001, each one minute long at 13:59, 14:00, 14:30, 14:59, 15:00.
  void SetUp() override {
    Write({Task_At(1, "Anna", {2001, "March", "05", "13", "59"}), Task_At(2, "Anna", {2001, "March", "05", "14", "00"}),
           Task_At(3, "Anna", {2001, "March", "05", "14", "30"}), Task_At(4, "Anna", {2001, "March", "05", "14", "59"}),
           Task_At(5, "Anna", {2001, "March", "05", "15", "00"})});
  }
  std::vector<std::string> Numbers(const std::string& after, const std::string& before, int start = 1,
                                   int finish = 1) {
    std::vector<std::string> numbers;
    for (const std::string& entry : Entries("Anna", Task_Filter_Of(after, before, start, finish))) {
      numbers.push_back(Record_Number_Of_Entry(entry));
    }
    return numbers;
  }
};

TEST_F(Filter_Test, BothBoundsIncludeTheirOwnMinute) {
  EXPECT_EQ(Numbers("14:00, Mar. 5, 2001", "14:59, Mar. 5, 2001"), (std::vector<std::string>{"2", "3", "4"}));
}

TEST_F(Filter_Test, ATaskExactlyAtTheBeforeMinuteIsShown) {
  EXPECT_EQ(Numbers("No Date Selected", "14:59, Mar. 5, 2001"), (std::vector<std::string>{"1", "2", "3", "4"}));
}

TEST_F(Filter_Test, NoDateSelectedAfterWithARealBeforeShowsEverythingUpToIt) {
  EXPECT_EQ(Numbers("No Date Selected", "14:00, Mar. 5, 2001"), (std::vector<std::string>{"1", "2"}));
  EXPECT_EQ(Numbers("", "14:00, Mar. 5, 2001"), (std::vector<std::string>{"1", "2"}));
}

TEST_F(Filter_Test, NoBoundThatCountsShowsAll) {
  EXPECT_EQ(Numbers("No Date Selected", "No Date Selected").size(), 5u);
}

TEST_F(Filter_Test, EachFieldDecidesInItsOrder) {
  EXPECT_EQ(Numbers("14:30, Mar. 5, 2001", "No Date Selected"), (std::vector<std::string>{"3", "4", "5"}));
  EXPECT_TRUE(Numbers("00:00, Mar. 6, 2001", "No Date Selected").empty());
  EXPECT_TRUE(Numbers("00:00, Apr. 1, 2001", "No Date Selected").empty());
  EXPECT_TRUE(Numbers("00:00, Jan. 1, 2002", "No Date Selected").empty());
  EXPECT_EQ(Numbers("23:59, Mar. 4, 2001", "00:00, Mar. 6, 2001").size(), 5u);
  EXPECT_EQ(Numbers("23:59, Dec. 31, 2000", "No Date Selected").size(), 5u);
}

TEST_F(Member_Task_Entries_Test, WithOnlyTheFinishATaskBegunLongBeforeTheRangeIsShown) {
  Write({Task_From_To(1, "Anna", {1999, "January", "01", "08", "00"}, {2001, "March", "05", "14", "30"})});
  const std::string after = "14:00, Mar. 5, 2001";
  const std::string before = "14:59, Mar. 5, 2001";
  EXPECT_EQ(Entries("Anna", Task_Filter_Of(after, before, 0, 1)).size(), 1u);
  EXPECT_TRUE(Entries("Anna", Task_Filter_Of(after, before, 1, 0)).empty());
  EXPECT_TRUE(Entries("Anna", Task_Filter_Of(after, before, 1, 1)).empty());
}

TEST_F(Member_Task_Entries_Test, WithinMeansStartAndFinishEachInTheRangeNotMerelyOverlapping) {
  // From 13:00 to 16:00 covers the range from 14:00 to 14:59 without lying in it.
  Write({Task_From_To(1, "Anna", {2001, "March", "05", "13", "00"}, {2001, "March", "05", "16", "00"}),
         Task_From_To(2, "Anna", {2001, "March", "05", "14", "10"}, {2001, "March", "05", "14", "50"}),
         Task_From_To(3, "Anna", {2001, "March", "05", "14", "10"}, {2001, "March", "05", "15", "10"})});
  const std::string after = "14:00, Mar. 5, 2001";
  const std::string before = "14:59, Mar. 5, 2001";
  auto numbers = [&](int start, int finish) {
    std::vector<std::string> found;
    for (const std::string& e : Entries("Anna", Task_Filter_Of(after, before, start, finish))) {
      found.push_back(Record_Number_Of_Entry(e));
    }
    return found;
  };
  EXPECT_EQ(numbers(1, 1), std::vector<std::string>{"2"});
  EXPECT_EQ(numbers(1, 0), (std::vector<std::string>{"2", "3"}));
  EXPECT_EQ(numbers(0, 1), std::vector<std::string>{"2"});
}

TEST_F(Member_Task_Entries_Test, AFilterReadsTheFieldsAsNumbers) {
  ScheduleRecord r = Task_At(1, "Anna", {2001, "March", "05", "09", "05"});
  r.Start_Hour = "9";  // a digit short still compares as 9 and not as the text "9" after "10"
  r.Finish_Hour = "9";
  Write({r});
  EXPECT_EQ(Entries("Anna", Task_Filter_Of("No Date Selected", "10:00, Mar. 5, 2001", 1, 1)).size(), 1u);
}

// ---- The fresh filter ---------------------------------------------------------------------------

TEST(Present_Hour_Bound, TodayAtThePresentHourOfTheTwentyFourHourClock) {
  EXPECT_EQ(Present_Hour_Bound("3/5/2001", "2:05:09 PM", "00"), "14:00, Mar. 5, 2001");
  EXPECT_EQ(Present_Hour_Bound("3/5/2001", "2:05:09 PM", "59"), "14:59, Mar. 5, 2001");
  EXPECT_EQ(Present_Hour_Bound("12/31/1999", "12:30:00 AM", "00"), "00:00, Dec. 31, 1999");
  EXPECT_EQ(Present_Hour_Bound("1/1/2024", "9:59:59 AM", "59"), "09:59, Jan. 1, 2024");
  EXPECT_EQ(Present_Hour_Bound("7/4/2024", "12:01:00 PM", "00"), "12:00, Jul. 4, 2024");
}

TEST(Present_Hour_Bound, AFreshFilterCoversThePresentHour) {
  const TaskFilter filter = Task_Filter_Of(Present_Hour_Bound("3/5/2001", "2:05:09 PM", "00"),
                                           Present_Hour_Bound("3/5/2001", "2:05:09 PM", "59"), 1, 1);
  EXPECT_EQ(filter.After, (TaskMoment{2001, 3, 5, 14, 0}));
  EXPECT_EQ(filter.Before, (TaskMoment{2001, 3, 5, 14, 59}));
}

// ---- The filter window --------------------------------------------------------------------------

constexpr char kDate[] = "3/5/2001";
constexpr char kTime[] = "2:05:09 PM";

TEST(Fill_Empty_Filter_Boxes, EachEmptyBoxFromTheClockMinuteZeroAfterAndFiftyNineBefore) {
  FilterBoxes after;
  Fill_Empty_Filter_Boxes(after, kAfterSide, kDate, kTime);
  EXPECT_EQ(after.Month, "Mar");
  EXPECT_EQ(after.Date, "5");
  EXPECT_EQ(after.Century, "20");
  EXPECT_EQ(after.Year, "1");
  EXPECT_EQ(after.Hour, "14");
  EXPECT_EQ(after.Minute, "0");
  FilterBoxes before;
  Fill_Empty_Filter_Boxes(before, kBeforeSide, kDate, kTime);
  EXPECT_EQ(before.Minute, "59");
}

TEST(Fill_Empty_Filter_Boxes, ABoxThatHoldsSomethingKeepsIt) {
  FilterBoxes boxes{"Feb", "", "19", "", "", "30"};
  Fill_Empty_Filter_Boxes(boxes, kBeforeSide, kDate, kTime);
  EXPECT_EQ(boxes.Month, "Feb");
  EXPECT_EQ(boxes.Date, "5");
  EXPECT_EQ(boxes.Century, "19");
  EXPECT_EQ(boxes.Year, "1");
  EXPECT_EQ(boxes.Hour, "14");
  EXPECT_EQ(boxes.Minute, "30");
}

TEST(Set_Date_Filters, AllBoxesEmptyGiveTodayAtThePresentHourFromZeroToFiftyNine) {
  const FilterDatesResult result = Set_Date_Filters(FilterBoxes{}, FilterBoxes{}, kDate, kTime);
  EXPECT_EQ(result.Error, 0);
  EXPECT_EQ(result.After_Caption, "14:00, Mar. 5, 2001");
  EXPECT_EQ(result.Before_Caption, "14:59, Mar. 5, 2001");
  EXPECT_TRUE(Filter_Dates_Message(result).empty());
}

TEST(Set_Date_Filters, AnUncheckedSideIsNoDateSelected) {
  const FilterDatesResult after_only =
      Set_Date_Filters(FilterBoxes{"Dec", "31", "19", "99", "23", "05"}, std::nullopt, kDate, kTime);
  EXPECT_EQ(after_only.After_Caption, "23:05, Dec. 31, 1999");
  EXPECT_EQ(after_only.Before_Caption, "No Date Selected");
  const FilterDatesResult before_only =
      Set_Date_Filters(std::nullopt, FilterBoxes{"Jan", "01", "21", "00", "00", "00"}, kDate, kTime);
  EXPECT_EQ(before_only.After_Caption, "No Date Selected");
  EXPECT_EQ(before_only.Before_Caption, "00:00, Jan. 1, 2100");
}

TEST(Set_Date_Filters, AnInvalidAfterDateIsErrorOneInFebruaryWithTheMissingWord) {
  const FilterDatesResult result =
      Set_Date_Filters(FilterBoxes{"Feb", "29", "21", "00", "", ""}, FilterBoxes{}, kDate, kTime);
  EXPECT_EQ(result.Error, 1);
  EXPECT_TRUE(result.After_Caption.empty());
  EXPECT_EQ(Filter_Dates_Message(result),
            Exclamation_Message("Invalid Date", "Feb only has 28 days in for the year that is currently selected."));
}

TEST(Set_Date_Filters, AnInvalidBeforeDateIsErrorTwo) {
  const FilterDatesResult february =
      Set_Date_Filters(std::nullopt, FilterBoxes{"Feb", "30", "20", "00", "", ""}, kDate, kTime);
  EXPECT_EQ(february.Error, 2);
  EXPECT_EQ(Filter_Dates_Message(february),
            Exclamation_Message("Invalid Date", "Feb only has 29 days in it for the year that is currently selected."));
  const FilterDatesResult april =
      Set_Date_Filters(FilterBoxes{}, FilterBoxes{"Apr", "31", "", "", "", ""}, kDate, kTime);
  EXPECT_EQ(april.Error, 2);
  EXPECT_EQ(Filter_Dates_Message(april), Exclamation_Message("Invalid Date", "Apr only has 30 days in it."));
}

TEST(Set_Date_Filters, OtherMonthsOfTheAfterSideSayDaysInIt) {
  const FilterDatesResult result =
      Set_Date_Filters(FilterBoxes{"Jun", "31", "", "", "", ""}, std::nullopt, kDate, kTime);
  EXPECT_EQ(Filter_Dates_Message(result), Exclamation_Message("Invalid Date", "Jun only has 30 days in it."));
}

TEST(Set_Date_Filters, BothInvalidIsErrorThree) {
  const FilterDatesResult result = Set_Date_Filters(FilterBoxes{"Feb", "31", "", "", "", ""},
                                                    FilterBoxes{"Sep", "31", "", "", "", ""}, kDate, kTime);
  EXPECT_EQ(result.Error, 3);
  EXPECT_EQ(Filter_Dates_Message(result),
            Exclamation_Message("Invalid Dates", "The selected dates are invalid for the currently selected months."));
}

TEST(Set_Date_Filters, TheDayIsTestedInTheGregorianStyleOfTheFullYear) {
  // 1900 is no leap year in the Gregorian style, 2000 is.
  EXPECT_EQ(Set_Date_Filters(FilterBoxes{"Feb", "29", "19", "00", "", ""}, std::nullopt, kDate, kTime).Error, 1);
  EXPECT_EQ(Set_Date_Filters(FilterBoxes{"Feb", "29", "20", "00", "", ""}, std::nullopt, kDate, kTime).Error, 0);
  // Today's date on a month chosen alone: March 5 is fine, but on the 31st of a long month a
  // short one fails.
  EXPECT_EQ(Set_Date_Filters(FilterBoxes{"Apr", "", "", "", "", ""}, std::nullopt, "5/31/2001", kTime).Error, 1);
}

// ---- Finding and showing a task -----------------------------------------------------------------

TEST_F(Member_Task_Entries_Test, FindsTheRecordWhoseNumberEqualsAsANumber) {
  Write({Make_Person_Marker("Ben"), Task_At(1, "Anna", {2001, "March", "05", "14", "30"}, "First"),
         Task_At(2, "Ben", {2001, "March", "06", "14", "30"}, "Second"),
         Task_At(3, "Anna", {2001, "March", "07", "14", "30"}, "Third")});
  EXPECT_EQ(Find_Task_Record(Log(), Value("2")).Task_Name, Value("Second"));
  EXPECT_EQ(Find_Task_Record(Log(), Value("02")).Task_Name, Value("Second"));
  EXPECT_EQ(Find_Task_Record(Log(), Value(1)).Task_Name, Value("First"));
}

TEST_F(Member_Task_Entries_Test, ANumberNotFoundGivesTheLastRecordRead) {
  Write({Task_At(1, "Anna", {2001, "March", "05", "14", "30"}, "First"),
         Task_At(3, "Anna", {2001, "March", "07", "14", "30"}, "Third"), Make_Person_Marker("Ben")});
  const ScheduleRecord last = Find_Task_Record(Log(), Value(2));
  EXPECT_TRUE(Is_Person_Marker(last));
  EXPECT_EQ(last.Person_Name, Value("Ben"));
}

TEST_F(Member_Task_Entries_Test, AnEmptyLogGivesAnEmptyRecord) {
  Write({});
  EXPECT_TRUE(Find_Task_Record(Log(), Value(1)).Record_Number.is_empty());
}

TEST(No_Event_Record_Message, NamesTheMemberOfTheRowOrThisPerson) {
  EXPECT_EQ(No_Event_Record_Message("Anna"),
            (Message{"No Event Scheduled", "There is currently no event record available for Anna for this time period.",
                     vbOKOnly, vbNoIcon}));
  EXPECT_EQ(No_Event_Record_Message(""),
            (Message{"No Event Scheduled",
                     "There is currently no event record available for this person for this time period.", vbOKOnly,
                     vbNoIcon}));
}

TEST(Task_Labels, DateAsMonthDateAsItStandsAndTheFullYear) {
  EXPECT_EQ(Task_Date_Label("March", "05", 20, 1), "March 05, 2001");
  EXPECT_EQ(Task_Date_Label("December", "31", 19, 99), "December 31, 1999");
  EXPECT_EQ(Task_Date_Label("January", "1", "21", "0"), "January 1, 2100");
  EXPECT_EQ(Task_Time_Label("14", "30"), "14:30");
  EXPECT_EQ(Task_Time_Label("00", "05"), "00:05");
}

}  // namespace
}  // namespace orrivane::organizer
