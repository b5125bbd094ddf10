// The checks of a new task with their messages, its record, its appending to the working files,
// the random colour of the next task and the reminder values of a fresh entry.
#include "organizer/new_task_entry.h"

#include <gtest/gtest.h>

#include <deque>
#include <set>

#include "core/temp_folder.h"
#include "organizer/colour_palette.h"
#include "organizer/log_samples.h"

namespace orrivane::organizer {
namespace {

using testing::Read_Bytes;
using testing::TempFolder;

constexpr char kToday[] = "3/5/2001";

// Anna's dentist at 14:30 on March 5, 2001, with a finish at 15:00 that counts with the range.
NewTaskEntries Dentist() {
  NewTaskEntries entries;
  entries.moments[kTaskStart] = {"March", "05", "20", "01", "14", "30"};
  entries.moments[kTaskFinish] = {"March", "05", "20", "01", "15", "00"};
  entries.person = "Anna";
  entries.name = "Dentist";
  return entries;
}

NewTaskEntries Ranged() {
  NewTaskEntries entries = Dentist();
  entries.time_range = true;
  return entries;
}

int Code(const NewTaskEntries& entries) { return Check_New_Task(entries, kToday).code; }

Message Message_For(const NewTaskEntries& entries) { return New_Task_Message(Check_New_Task(entries, kToday)); }

// ---- The person and the years -----------------------------------------------------------------

TEST(New_Task_Person, TheEnabledInputCountsAndANewNameLosesItsBlanks) {
  EXPECT_EQ(New_Task_Person(true, "Anna", false, " Ben "), "Anna");
  EXPECT_EQ(New_Task_Person(false, "Anna", true, "  Ben  "), "Ben");
  EXPECT_EQ(New_Task_Person(false, "Anna", true, "   "), "");
  EXPECT_EQ(New_Task_Person(false, "Anna", false, "Ben"), "");
}

TEST(New_Task_Person, AnExistingMemberIsTakenAsItStands) {
  EXPECT_EQ(New_Task_Person(true, " Anna ", false, ""), " Anna ");
}

TEST(Task_Year, EmptyCenturyAndYearAreThoseOfTheSystemDatesYear) {
  const TaskYear year = Task_Year("", "", kToday);
  EXPECT_TRUE(year.century.is_number());
  EXPECT_EQ(year.century, Value(20));
  EXPECT_TRUE(year.year.is_number());
  EXPECT_EQ(year.year, Value(1));
}

TEST(Task_Year, EachIsFilledByItself) {
  const TaskYear nineteen_hundred_and_one = Task_Year("19", "", kToday);
  EXPECT_EQ(nineteen_hundred_and_one.century, Value(19));
  EXPECT_EQ(nineteen_hundred_and_one.year, Value(1));
  const TaskYear twenty_ninety_nine = Task_Year("", "99", "12/31/2099");
  EXPECT_EQ(twenty_ninety_nine.century, Value(20));
  EXPECT_EQ(twenty_ninety_nine.year, Value(99));
}

TEST(Task_Year, TwoDigitTextsBecomeNumbers) {
  const TaskYear year = Task_Year("16", "05", kToday);
  EXPECT_TRUE(year.century.is_number());
  EXPECT_EQ(year.century.text(), "16");
  EXPECT_TRUE(year.year.is_number());
  EXPECT_EQ(year.year.text(), "5");
}

TEST(Task_Year, ATextThatIsNoNumberStaysAsItStands) {
  const TaskYear year = Task_Year("x", "05", kToday);
  EXPECT_TRUE(year.century.is_text());
  EXPECT_EQ(year.century.text(), "x");
}

// ---- Each code ---------------------------------------------------------------------------------

TEST(Check_New_Task, ACompleteTaskPassesWithAndWithoutTheRange) {
  EXPECT_EQ(Code(Dentist()), 0);
  EXPECT_EQ(Code(Ranged()), 0);
}

// One empty box of the start, or no person, or no name: its own code.
struct OneMissing {
  const char* what;
  void (*empty)(NewTaskEntries&);
  int code;
};
const OneMissing kOneMissing[] = {
    {"start month", [](NewTaskEntries& e) { e.moments[kTaskStart].month.clear(); }, 1},
    {"start date", [](NewTaskEntries& e) { e.moments[kTaskStart].date.clear(); }, 2},
    {"start hour", [](NewTaskEntries& e) { e.moments[kTaskStart].hour.clear(); }, 4},
    {"start minute", [](NewTaskEntries& e) { e.moments[kTaskStart].minute.clear(); }, 5},
    {"finish month", [](NewTaskEntries& e) { e.moments[kTaskFinish].month.clear(); }, 6},
    {"finish date", [](NewTaskEntries& e) { e.moments[kTaskFinish].date.clear(); }, 7},
    {"finish hour", [](NewTaskEntries& e) { e.moments[kTaskFinish].hour.clear(); }, 9},
    {"finish minute", [](NewTaskEntries& e) { e.moments[kTaskFinish].minute.clear(); }, 10},
    {"person", [](NewTaskEntries& e) { e.person.clear(); }, 13},
    {"name", [](NewTaskEntries& e) { e.name.clear(); }, 14},
};

TEST(Check_New_Task, EachEmptyItemHasItsOwnCode) {
  for (const OneMissing& missing : kOneMissing) {
    NewTaskEntries entries = Ranged();
    missing.empty(entries);
    EXPECT_EQ(Code(entries), missing.code) << missing.what;
  }
}

TEST(Check_New_Task, WithoutTheRangeTheFinishBoxesDontCount) {
  NewTaskEntries entries = Dentist();
  entries.moments[kTaskFinish] = {};
  EXPECT_EQ(Code(entries), 0);
}

TEST(Check_New_Task, EmptyYearsAreNeverMissing) {
  NewTaskEntries entries = Ranged();
  entries.moments[kTaskStart].century.clear();
  entries.moments[kTaskStart].year.clear();
  entries.moments[kTaskFinish].century.clear();
  entries.moments[kTaskFinish].year.clear();
  const NewTaskCheck check = Check_New_Task(entries, kToday);
  EXPECT_EQ(check.code, 0);
  EXPECT_EQ(check.years[kTaskStart].century, Value(20));
  EXPECT_EQ(check.years[kTaskStart].year, Value(1));
  EXPECT_EQ(check.years[kTaskFinish].century, Value(20));
  EXPECT_EQ(check.years[kTaskFinish].year, Value(1));
}

// Two empty items, wherever they stand: code 11.
struct TwoMissing {
  const char* what;
  bool range;
  void (*empty)(NewTaskEntries&);
};
const TwoMissing kTwoMissing[] = {
    {"two items of the start", false,
     [](NewTaskEntries& e) { e.moments[kTaskStart].month.clear(); e.moments[kTaskStart].hour.clear(); }},
    {"no person and no name", false, [](NewTaskEntries& e) { e.person.clear(); e.name.clear(); }},
    {"one of the start and one of the finish", true,
     [](NewTaskEntries& e) { e.moments[kTaskStart].minute.clear(); e.moments[kTaskFinish].minute.clear(); }},
    {"two items of the finish", true,
     [](NewTaskEntries& e) { e.moments[kTaskFinish].month.clear(); e.moments[kTaskFinish].date.clear(); }},
};

TEST(Check_New_Task, TwoEmptyItemsAre11) {
  for (const TwoMissing& missing : kTwoMissing) {
    NewTaskEntries entries = missing.range ? Ranged() : Dentist();
    missing.empty(entries);
    EXPECT_EQ(Code(entries), 11) << missing.what;
  }
}

TEST(Check_New_Task, AFinishBeforeTheStartIs12) {
  NewTaskEntries entries = Ranged();
  entries.moments[kTaskFinish].hour = "13";
  EXPECT_EQ(Code(entries), 12);
}

TEST(Check_New_Task, AFinishEqualToTheStartToTheMinuteIsAccepted) {
  NewTaskEntries entries = Ranged();
  entries.moments[kTaskFinish] = entries.moments[kTaskStart];
  EXPECT_EQ(Code(entries), 0);
}

// The levels of the comparison: the first that differs decides.
struct Order {
  const char* what;
  void (*change)(TaskMomentBoxes& finish);
  int code;
};
const Order kOrders[] = {
    {"an earlier century with a later month", [](TaskMomentBoxes& f) { f.century = "19"; f.month = "December"; }, 12},
    {"a later century with an earlier month", [](TaskMomentBoxes& f) { f.century = "21"; f.month = "January"; }, 0},
    {"an earlier year with a later date", [](TaskMomentBoxes& f) { f.year = "00"; f.date = "31"; }, 12},
    {"a later year with an earlier month", [](TaskMomentBoxes& f) { f.year = "02"; f.month = "January"; }, 0},
    {"an earlier month with a later date", [](TaskMomentBoxes& f) { f.month = "February"; f.date = "28"; }, 12},
    {"a later month with an earlier date", [](TaskMomentBoxes& f) { f.month = "April"; f.date = "01"; }, 0},
    {"an earlier date with a later hour", [](TaskMomentBoxes& f) { f.date = "04"; f.hour = "23"; }, 12},
    {"a later date with an earlier hour", [](TaskMomentBoxes& f) { f.date = "06"; f.hour = "00"; }, 0},
    {"an earlier minute of the same hour", [](TaskMomentBoxes& f) { f.hour = "14"; f.minute = "29"; }, 12},
    {"a later minute of the same hour", [](TaskMomentBoxes& f) { f.hour = "14"; f.minute = "31"; }, 0},
};

TEST(Check_New_Task, TheMomentsCompareLevelByLevel) {
  for (const Order& order : kOrders) {
    NewTaskEntries entries = Ranged();
    order.change(entries.moments[kTaskFinish]);
    EXPECT_EQ(Code(entries), order.code) << order.what;
  }
}

TEST(Check_New_Task, AStartDateBeyondItsMonthIs15) {
  NewTaskEntries entries = Dentist();
  entries.moments[kTaskStart].month = "April";
  entries.moments[kTaskStart].date = "31";
  const NewTaskCheck check = Check_New_Task(entries, kToday);
  EXPECT_EQ(check.code, 15);
  EXPECT_EQ(New_Task_Message(check),
            Exclamation_Message("Invalid Date Selection", "April only has 30 days in it."));
}

TEST(Check_New_Task, AFinishDateBeyondItsMonthIs16) {
  NewTaskEntries entries = Ranged();
  entries.moments[kTaskFinish].month = "June";
  entries.moments[kTaskFinish].date = "31";
  EXPECT_EQ(Message_For(entries), Exclamation_Message("Invalid Date Selection", "June only has 30 days in it."));
}

TEST(Check_New_Task, FebruaryNamesTheYear) {
  NewTaskEntries entries = Dentist();
  entries.moments[kTaskStart].month = "February";
  entries.moments[kTaskStart].date = "29";
  EXPECT_EQ(Message_For(entries), Exclamation_Message("Invalid Date Selection",
                                                      "February only has 28 days in it for the year you selected."));
}

TEST(Check_New_Task, February29OfALeapYearIsAccepted) {
  NewTaskEntries entries = Dentist();
  entries.moments[kTaskStart] = {"February", "29", "20", "00", "09", "00"};
  EXPECT_EQ(Code(entries), 0);
}

TEST(Check_New_Task, February29Of1900IsRefusedSinceTheYearIsTestedInTheGregorianStyle) {
  NewTaskEntries entries = Dentist();
  entries.moments[kTaskStart] = {"February", "29", "19", "00", "09", "00"};
  EXPECT_EQ(Code(entries), 15);
}

TEST(Check_New_Task, BothDatesBeyondTheirMonthsAre17) {
  NewTaskEntries entries = Ranged();
  entries.moments[kTaskStart].month = entries.moments[kTaskFinish].month = "April";
  entries.moments[kTaskStart].date = entries.moments[kTaskFinish].date = "31";
  EXPECT_EQ(Message_For(entries),
            Exclamation_Message("Invalid Date Selections",
                                "The dates you selected are invalid for the months you selected."));
}

// ---- Precedence --------------------------------------------------------------------------------

TEST(Check_New_Task, NoMonthAndNoHourAre11NotAParticularMessage) {
  NewTaskEntries entries = Dentist();
  entries.moments[kTaskStart].month.clear();
  entries.moments[kTaskStart].hour.clear();
  EXPECT_EQ(Message_For(entries),
            Exclamation_Message("Fields Missing Data", "Required fields left blank or contain invalid entries."));
}

TEST(Check_New_Task, MissingItemsOutrankImpossibleDates) {
  NewTaskEntries entries = Dentist();
  entries.moments[kTaskStart].month = "February";
  entries.moments[kTaskStart].date = "30";
  entries.moments[kTaskStart].minute.clear();
  EXPECT_EQ(Code(entries), 5);
}

TEST(Check_New_Task, ImpossibleDatesOutrankAFinishBeforeTheStart) {
  NewTaskEntries entries = Ranged();
  entries.moments[kTaskStart].month = "April";
  entries.moments[kTaskStart].date = "31";
  entries.moments[kTaskFinish].month = "January";
  EXPECT_EQ(Code(entries), 15);
}

TEST(Check_New_Task, AFinishBeforeTheStartComesLast) {
  NewTaskEntries entries = Ranged();
  entries.moments[kTaskFinish].hour = "13";
  entries.name.clear();
  EXPECT_EQ(Code(entries), 14);
}

TEST(Check_New_Task, ANameOfBlanksIsAName) {
  NewTaskEntries entries = Dentist();
  entries.name = "   ";
  EXPECT_EQ(Code(entries), 0);
}

// ---- The messages --------------------------------------------------------------------------------

TEST(New_Task_Message, EveryCodeHasItsTitleAndTextWithOneOKAndTheExclamation) {
  const std::pair<int, Message> expected[] = {
      {1, {"No Start Month Selected", "Please indicate a month for which the task will begin."}},
      {2, {"No Start Date Selected", "Please select a date for which the task is to begin."}},
      {3, {"No Start Year Selected", "Please select a year for which the task is to begin."}},
      {4, {"No Begin Hour Selected", "Please select the hour for which the task is to begin."}},
      {5, {"No Begin Minute Selected", "Please select the minute for which the task is to begin."}},
      {6, {"No Finish Month Selected", "Please indicate a month for which the task will end."}},
      {7, {"No Finish Date Selected", "Please select a date for which the task is to end."}},
      {8, {"No Finish Year Selected", "Please select a year for which the task is to end."}},
      {9, {"No Finish Hour Selected", "Please select the hour for which the task is to end."}},
      {10, {"No Finish Minute Selected", "Please select the minute for which the task is to end."}},
      {11, {"Fields Missing Data", "Required fields left blank or contain invalid entries."}},
      {12, {"Invalid Date", "The 'To' date must be a future date to the 'From' date."}},
      {13, {"No Group Member Specified", "Please specify who this task is for."}},
      {14, {"No Event Title Specified", "Please be sure the task is identified in the 'Name Of Task' box."}},
      {17, {"Invalid Date Selections", "The dates you selected are invalid for the months you selected."}},
  };
  for (const auto& [code, message] : expected) {
    NewTaskCheck check;
    check.code = code;
    EXPECT_EQ(New_Task_Message(check), Exclamation_Message(message.title, message.text)) << code;
  }
}

TEST(New_Task_Message, NoCodeNoMessage) { EXPECT_TRUE(New_Task_Message(NewTaskCheck{}).empty()); }

TEST(New_Task_Message, TheQuestionAndTheNews) {
  EXPECT_EQ(Confirm_New_Task_Message(),
            (Message{"Confirm", "Add this task to the schedule?", vbOKCancel, vbInformation}));
  EXPECT_EQ(New_Task_Added_Message(),
            (Message{"Task Added", "The task\\event has been added to the log.", vbOKOnly, vbNoIcon}));
}

// ---- The record ----------------------------------------------------------------------------------

NewTaskDetails Details(bool reminder_on) {
  NewTaskDetails details;
  details.description = "Checkup";
  details.comments = "Bring X-rays";
  details.colour = 16711680;
  details.reminder_on = reminder_on;
  details.reminder = {Value("March 4, 2001"), Value("14:30"), Value("March 4, 2001"), Value("14:30"),
                      Value(1),              Value(0),       Value(0),              Value(0)};
  return details;
}

TEST(New_Task_Record, WithoutTheRangeTheFinishIsACopyOfTheStart) {
  NewTaskEntries entries = Dentist();
  entries.moments[kTaskFinish] = {};
  ScheduleRecord task = New_Task_Record(entries, Check_New_Task(entries, kToday), Details(true));
  task.Record_Number = 1;
  EXPECT_TRUE(samples::Same_Record(task, samples::Dentist_Task()));
}

TEST(New_Task_Record, WithTheRangeTheFinishIsItsOwn) {
  const NewTaskEntries entries = Ranged();
  const ScheduleRecord task = New_Task_Record(entries, Check_New_Task(entries, kToday), Details(false));
  EXPECT_EQ(task.Time_Range_Flag, Value(1));
  EXPECT_EQ(task.Finish_Hour.text(), "15");
  EXPECT_EQ(task.Finish_Minute.text(), "00");
  EXPECT_TRUE(task.Finish_Century.is_number());
  EXPECT_EQ(task.Finish_Year, Value(1));
  EXPECT_EQ(task.Reminder_Status, Value(0));
  EXPECT_TRUE(task.Record_Number.is_empty());
}

TEST(New_Task_Record, TheReminderValuesGoToFields21To28InTheKeepersOrder) {
  NewTaskDetails details = Details(true);
  details.reminder = {Value("a"), Value("b"), Value("c"), Value("d"), Value(2), Value("3"), Value("4"), Value("5")};
  const ScheduleRecord task = New_Task_Record(Dentist(), Check_New_Task(Dentist(), kToday), details);
  EXPECT_EQ(task.Date_String[0].text(), "a");
  EXPECT_EQ(task.Time_String[0].text(), "b");
  EXPECT_EQ(task.Date_String[1].text(), "c");
  EXPECT_EQ(task.Time_String[1].text(), "d");
  EXPECT_EQ(task.Reminder_Interval, Value(2));
  EXPECT_TRUE(task.Interval_Days.is_text());
  EXPECT_EQ(task.Interval_Days.text(), "3");
  EXPECT_EQ(task.Interval_Hours.text(), "4");
  EXPECT_EQ(task.Interval_Minutes.text(), "5");
}

// ---- The working files -----------------------------------------------------------------------

TEST(Append_New_Task, AReminderOnGoesToBothFiles) {
  TempFolder folder;
  ScheduleRecord task = samples::Dentist_Task();
  Append_New_Task(task, folder.file("Schedule.tmp"), folder.file("TRemin.tmp"));
  EXPECT_EQ(Read_Bytes(folder.file("Schedule.tmp")), samples::kDentistBytes);
  EXPECT_EQ(Read_Bytes(folder.file("TRemin.tmp")), samples::kDentistBytes);
}

TEST(Append_New_Task, AReminderOffStandsInTheLogAndNotInTheReminders) {
  TempFolder folder;
  ScheduleRecord task = samples::Dentist_Task();
  task.Reminder_Status = 0;
  Append_New_Task(task, folder.file("Schedule.tmp"), folder.file("TRemin.tmp"));
  EXPECT_EQ(samples::Read_Log(folder.file("Schedule.tmp")).size(), 1u);
  EXPECT_TRUE(std::filesystem::exists(folder.file("TRemin.tmp")));  // opened for appending all the same
  EXPECT_EQ(Read_Bytes(folder.file("TRemin.tmp")), "");
}

TEST(Append_New_Task, TheRemindersKeepWhatTheyHeld) {
  TempFolder folder;
  ScheduleRecord first = samples::Dentist_Task();
  ScheduleRecord second = samples::Task(2, "Ben", 0);
  ScheduleRecord third = samples::Task(3, "Ben", 1);
  for (const ScheduleRecord& task : {first, second, third}) {
    Append_New_Task(task, folder.file("Schedule.tmp"), folder.file("TRemin.tmp"));
  }
  const std::vector<ScheduleRecord> reminders = samples::Read_Log(folder.file("TRemin.tmp"));
  ASSERT_EQ(reminders.size(), 2u);
  EXPECT_EQ(reminders[0].Record_Number, Value(1));
  EXPECT_EQ(reminders[1].Record_Number, Value(3));
  EXPECT_EQ(samples::Read_Log(folder.file("Schedule.tmp")).size(), 3u);
}

// ---- The colour of the next task -------------------------------------------------------------

// Fractions given out in order.
std::function<double()> Fractions(std::deque<double>& fractions) {
  return [&fractions] {
    const double next = fractions.front();
    fractions.pop_front();
    return next;
  };
}

TEST(Random_Colour_Index, TheWholePartOfFiftyTimesTheFraction) {
  std::deque<double> fractions{0.0};
  EXPECT_EQ(Random_Colour_Index(Fractions(fractions)), 0);
  fractions = {0.999999};
  EXPECT_EQ(Random_Colour_Index(Fractions(fractions)), 49);
  fractions = {0.5};
  EXPECT_EQ(Random_Colour_Index(Fractions(fractions)), 25);
}

TEST(Random_Colour_Index, LightGreyIsDrawnAgain) {
  std::deque<double> fractions{0.06, 0.07, 0.5};  // 3, 3, 25
  EXPECT_EQ(Random_Colour_Index(Fractions(fractions)), 25);
  EXPECT_TRUE(fractions.empty());
}

TEST(Random_Colour_Index, EveryOtherIndexComesOut) {
  std::set<int> drawn;
  for (int i = 0; i < kPaletteColours; ++i) {
    std::deque<double> fractions{(i + 0.5) / kPaletteColours, 0.0};
    drawn.insert(Random_Colour_Index(Fractions(fractions)));
  }
  EXPECT_EQ(drawn.size(), static_cast<std::size_t>(kPaletteColours - 1));
  EXPECT_FALSE(drawn.contains(kLightGreyIndex));
}

TEST(Seconds_Since_Midnight, OfASystemTime) {
  EXPECT_EQ(Seconds_Since_Midnight("2:05:09 PM"), 14 * 3600 + 5 * 60 + 9);
  EXPECT_EQ(Seconds_Since_Midnight("12:00:01 AM"), 1);
  EXPECT_EQ(Seconds_Since_Midnight("12:30:00 PM"), 12 * 3600 + 30 * 60);
}

// ---- The reminder of a fresh entry -------------------------------------------------------------

TEST(Reminder_Defaults, TodayNowOneReminderAndNoInterval) {
  const auto values = Reminder_Defaults("3/5/2001", "2:05:09 PM");
  const Value expected[] = {"March 5, 2001", "14:05", "March 5, 2001", "14:05", 1, 0, 0, 0};
  for (std::size_t i = 0; i < values.size(); ++i) {
    EXPECT_EQ(values[i].text(), expected[i].text()) << ReminderVariables::kNames[i];
    EXPECT_EQ(values[i].is_number(), expected[i].is_number()) << ReminderVariables::kNames[i];
  }
}

TEST(Reminder_Defaults, ASingleDigitHourGetsItsZero) {
  EXPECT_EQ(Reminder_Defaults("12/31/2001", "9:07:00 AM")[1].text(), "09:07");
  EXPECT_EQ(Reminder_Defaults("12/31/2001", "12:59:59 AM")[1].text(), "00:59");
  EXPECT_EQ(Reminder_Defaults("12/31/2001", "12:00:00 PM")[1].text(), "12:00");
  EXPECT_EQ(Reminder_Defaults("12/31/2001", "9:07:00 AM")[0].text(), "December 31, 2001");
}

}  // namespace
}  // namespace orrivane::organizer
