// The help texts: the five categories with their introductions and their topics in their own
// order, "All Topics" as the sum of the other four, a text for every topic with the program's
// line breaks, the two pairs of topics that share a text, the sentences that restate the
// program's limits, and the short cut keys word for word.
#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "elapsed/date_difference.h"
#include "shell/help_topics.h"

namespace orrivane::shell {
namespace {

using Names = std::vector<std::string_view>;

// Lines joined with the program's line break.
std::string Joined(std::initializer_list<std::string_view> lines) {
  std::string text;
  bool first = true;
  for (std::string_view line : lines) {
    if (!first) text += "\r\n";
    text += line;
    first = false;
  }
  return text;
}

bool Contains(const std::string& text, std::string_view part) { return text.find(part) != std::string::npos; }

Names All_Listed_Topics() { return Category_Topics("All Topics"); }

// The topics as each category lists them, written as the lists are given.
const Names kOrganizer = {"Introduction To The Organizer", "Adding New Group Members", "Adding New Tasks To The Log",
                          "Deleting A Group Member", "Deleting A Task", "Editing A Task", "Filtering Tasks",
                          "Opening An Existing Log", "Opening the Organizer", "Saving A log",
                          "Showing A Groupmember's Tasklist", "Starting A New Log", "Task Chart, the",
                          "Viewing A Specific Task"};
const Names kGeneral = {"Converting A Date Between Calendar Styles", "Finding A Weekday",
                        "Displaying Today's Date On The Calendar", "Finding The Dates Of Holidays",
                        "Opening Or Viewing A Saved Holiday List File", "Printing A Calendar", "Quiting Orrivane",
                        "Saving A List Of Holiday Dates", "Selecting A Calendar Style", "Selecting A Century",
                        "Selecting A month And Date", "Selecting A Year", "Short Cut Keys",
                        "Viewing A Month On The Calendar", "Elapsed Time Between Two Times",
                        "Elapsed Time From The Current Time", "Non-Task Reminders", "Setting A Non-Task Reminder",
                        "Editing Non-Task Reminders", "Deleting A Non-Task Reminder"};
const Names kInformation = {"Differences In The Calendar Styles", "What does O.S. and N.S. stand for?",
                            "What is old style and new style?", "Why We Use The Gregorian Calendar"};
const Names kTaskReminders = {"Setting A Task Reminder", "Task Reminders At Intervals",
                              "Reminder Times Based On Task Time", "Multiple Task Reminders In One Message"};

TEST(HelpTopics, TheWelcomeText) {
  EXPECT_EQ(kHelpWelcome, "Welcome to Orrivane Help. Please select a category, then select the topic you want.");
}

TEST(HelpTopics, FiveCategoriesInTheirOrder) {
  EXPECT_EQ(Help_Categories(), (Names{"General", "For Your Information", "Organizer", "Task Reminders", "All Topics"}));
}

TEST(HelpTopics, EachCategoryHasItsIntroduction) {
  EXPECT_EQ(Display_Category_Intro("General"),
            "Topics about miscellaneous features and how to use Orrivane in general.");
  EXPECT_EQ(Display_Category_Intro("For Your Information"), "Things you just might want to know...");
  EXPECT_EQ(Display_Category_Intro("Organizer"),
            "All topics relating to the Organizer. The Organizer is where you can view and manage your log, group "
            "member list, and tasklists.");
  EXPECT_EQ(Display_Category_Intro("Task Reminders"),
            "Topics relating to the task reminder feature. Learn how to be reminded about any task.");
  EXPECT_EQ(Display_Category_Intro("All Topics"), "All Help topics.");
}

TEST(HelpTopics, EachCategoryListsItsTopicsInTheGivenOrderNotSorted) {
  EXPECT_EQ(Category_Topics("Organizer"), kOrganizer);
  EXPECT_EQ(Category_Topics("General"), kGeneral);
  EXPECT_EQ(Category_Topics("For Your Information"), kInformation);
  EXPECT_EQ(Category_Topics("Task Reminders"), kTaskReminders);
  Names sorted = kGeneral;
  std::sort(sorted.begin(), sorted.end());
  EXPECT_NE(Category_Topics("General"), sorted);
}

TEST(HelpTopics, AllTopicsIsOrganizerGeneralInformationAndTaskRemindersInThatOrder) {
  Names sum;
  for (const char* category : {"Organizer", "General", "For Your Information", "Task Reminders"}) {
    const Names topics = Category_Topics(category);
    sum.insert(sum.end(), topics.begin(), topics.end());
  }
  EXPECT_EQ(All_Listed_Topics(), sum);
  EXPECT_EQ(All_Listed_Topics().size(), 42u);
  EXPECT_EQ(std::set<std::string_view>(sum.begin(), sum.end()).size(), sum.size()) << "a topic listed twice";
}

TEST(HelpTopics, EveryTopicOfEveryCategoryHasAText) {
  for (std::string_view category : Help_Categories()) {
    for (std::string_view topic : Category_Topics(category)) {
      EXPECT_FALSE(Get_Topic_Contents(topic).empty()) << category << ": " << topic;
    }
  }
}

TEST(HelpTopics, LinesBreakWithCarriageReturnAndLineFeedAndParagraphsWithOneBlankLine) {
  for (std::string_view topic : All_Listed_Topics()) {
    const std::string text = Get_Topic_Contents(topic);
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] == '\r') {
        EXPECT_TRUE(i + 1 < text.size() && text[i + 1] == '\n') << topic << " at " << i;
      }
      if (text[i] == '\n') {
        EXPECT_TRUE(i > 0 && text[i - 1] == '\r') << topic << " at " << i;
      }
    }
    EXPECT_FALSE(Contains(text, "\r\n\r\n\r\n")) << topic;
    EXPECT_NE(text.front(), '\r') << topic;
    EXPECT_NE(text.back(), '\n') << topic;
    EXPECT_FALSE(Contains(text, "  ")) << topic;
  }
}

TEST(HelpTopics, TwoPairsOfTopicsShareOneTextAndNoOthers) {
  EXPECT_EQ(Get_Topic_Contents("Why We Use The Gregorian Calendar"),
            Get_Topic_Contents("Differences In The Calendar Styles"));
  EXPECT_EQ(Get_Topic_Contents("What does O.S. and N.S. stand for?"),
            Get_Topic_Contents("What is old style and new style?"));
  EXPECT_NE(Get_Topic_Contents("Why We Use The Gregorian Calendar"),
            Get_Topic_Contents("What is old style and new style?"));
  std::set<std::string> texts;
  for (std::string_view topic : All_Listed_Topics()) texts.insert(Get_Topic_Contents(topic));
  EXPECT_EQ(texts.size(), All_Listed_Topics().size() - 2);
}

TEST(HelpTopics, TheCalendarStylesTextOpensWithTheLeapYearsOfTheCenturies) {
  const std::string text = Get_Topic_Contents("Differences In The Calendar Styles");
  const std::string_view opening =
      "The difference between the Julian and Gregorian calendars lies in whether years divisible by 100 should be "
      "considered leap years.";
  EXPECT_EQ(text.substr(0, opening.size()), opening);
  EXPECT_EQ(text.substr(opening.size(), 4), "\r\n\r\n");
}

TEST(HelpTopics, TheLimitsOfTheCalendarAreToldAsTheProgramKeepsThem) {
  EXPECT_TRUE(Contains(Get_Topic_Contents("Viewing A Month On The Calendar"),
                       "You may view the calendar for any month from October of 1582 to December of the year "
                       "1,000,000, for new style and January 1 B.C. to 1,000,000 for old style."));
  EXPECT_TRUE(Contains(Get_Topic_Contents("Converting A Date Between Calendar Styles"),
                       "Any date after October 5, 1582, O.S. (Old Style) may be converted to the New Style and any "
                       "date after October 15, 1582, N.S. (New Style) may be converted to Old Style."));
}

TEST(HelpTopics, ElapsedTimeTellsTheDefaultsOfBlankFieldsAndAnExampleOfBothModes) {
  const std::string text = Get_Topic_Contents("Elapsed Time Between Two Times");
  EXPECT_TRUE(Contains(text,
                       "The system time is assumed for all fields that are left blank with a couple of exceptions: "
                       "When the century is specified and the year is not, the year is assumed to be '00' and, when "
                       "the hour is specified and the minute is not, the minute is assumed to be '00'."));
  EXPECT_TRUE(Contains(text, "1 year or 13 months or 397 days or 9529 hours or 571,741 minutes"));
  EXPECT_TRUE(Contains(text, "from 00:00 on January 1, 2001 to 01:01 on February 2, 2002"));
  EXPECT_TRUE(Contains(text, "1 year, 1 month, 1 day, 1 hour and 1 minute"));
  EXPECT_TRUE(Contains(text, "with Years unchecked it is 13 months, 1 day, 1 hour and 1 minute"));
}

TEST(HelpTopics, TheElapsedTimeExampleIsWhatTheFindTimeLengthWindowShows) {
  const elapsed::Moment from{0, 0, 1, 1, 2001};
  const elapsed::Moment to{1, 1, 2, 2, 2002};
  const elapsed::Ticked_Units all{true, true, true, true, true};
  const elapsed::Ticked_Units no_years{false, true, true, true, true};
  EXPECT_EQ(elapsed::Display_Time_Difference("Gregorian", from, to, elapsed::Display_Option::Total, all),
            (elapsed::Time_Rows{"1", "13", "397", "9529", "571741"}));
  EXPECT_EQ(elapsed::Display_Time_Difference("Gregorian", from, to, elapsed::Display_Option::Remaining, all),
            (elapsed::Time_Rows{"1", "1", "1", "1", "1"}));
  EXPECT_EQ(elapsed::Display_Time_Difference("Gregorian", from, to, elapsed::Display_Option::Remaining, no_years),
            (elapsed::Time_Rows{"N/A", "13", "1", "1", "1"}));
}

TEST(HelpTopics, ShortCutKeysWordForWord) {
  const std::string expected = Joined({
      "Orrivane was designed with keyboard users in mind. Nearly everything can be done, using just the keyboard. "
      "Even though you'd probably rather use a mouse, the following are some of the short cut keys and what they "
      "are for.",
      "", "Main (Calendar) Window:", "",
      "F1 - Help", "F2 - Print Log", "'Ctrl' + F2 - Print Calendar", "F3 - Open the Organizer",
      "F4 - Toggle - Large Window\\Small Window", "F5 - Minimize Main Window to task bar",
      "'Ctrl' + F5 - Maximize Main Window", "'Shift' + F5 - Windowed", "'Ctrl' + 'D' - Today's Date",
      "'Ctrl' + 'N' - Display Next Month On Calendar", "'Ctrl' + 'P' - Display Previous Month On Calendar",
      "'Ctrl' + 'M' - Select a Month to Display on the Calendar", "'Ctrl' + 'O' - Open an existing log file",
      "'Ctrl' + 'S' - Save the Current Log", "'Ctrl' + 'V' - Save the Current Log to a different location",
      "'Ctrl' + 'E' - Add A New Task to the Current Log", "'Ctrl' + 'G' - Add A New Group Member to the Current Log",
      "'Ctrl' + 'C' - Convert the displayed date in the Calendar Window", "'Ctrl' + 'H' - Find the Dates of Holidays",
      "'Ctrl' + 'W' - Find a weekday for a Selected Date", "'Ctrl' + 'A' - Display the 'About' Window",
      "'Ctrl' + 'L' - Display the license", "'Ctrl' + 'Q' - Quit Orrivane",
      "", "Organizer:", "",
      "F2 - Print Log", "'Ctrl' + 'N' - Open A New Log File", "'Ctrl' + 'O' - Open An Existing Log File",
      "'Ctrl' + 'S' - Save The Current Log", "'Ctrl' + 'V' - Save the Current Log To A Specified Location (Save As)",
      "'Ctrl' + 'E' - Add New Task To Current Log", "'Ctrl' + 'C' - Close the Organizer",
      "'Ctrl' + 'L' - View the Next Time Period on the Task Chart",
      "'Ctrl' + 'P' - View the Previous Time Period on the Task Chart",
      "'Ctrl' + 'T' - Select A Time Period to View on the Task Chart",
  });
  EXPECT_EQ(Get_Topic_Contents("Short Cut Keys"), expected);
}

TEST(HelpTopics, AnUnknownTopicGivesNothing) {
  for (std::string_view name : {"", "short cut keys", "Short Cut Keys ", "All Topics", "General", "Help"}) {
    EXPECT_EQ(Get_Topic_Contents(name), "") << name;
  }
}

TEST(HelpTopics, AnUnknownCategoryHasNoIntroductionAndNoTopics) {
  for (std::string_view name : {"", "general", "All topics", "Short Cut Keys"}) {
    EXPECT_EQ(Display_Category_Intro(name), "") << name;
    EXPECT_TRUE(Category_Topics(name).empty()) << name;
  }
}

}  // namespace
}  // namespace orrivane::shell
