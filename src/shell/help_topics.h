#pragma once
// The help of the program, which needs no help file: every topic and its text, and the five
// categories with their introductions and the topics each lists. The texts are kept as tables;
// a text's lines are joined with the program's line break, carriage return and line feed, with
// one blank line between paragraphs.
#include <string>
#include <string_view>
#include <vector>

namespace orrivane::shell {

// What the help window shows before a category is chosen.
inline constexpr std::string_view kHelpWelcome =
    "Welcome to Orrivane Help. Please select a category, then select the topic you want.";

// The category that lists the topics of all the others.
inline constexpr std::string_view kAllTopics = "All Topics";

// The line break within a help text.
inline constexpr std::string_view kHelpLineBreak = "\r\n";

// The categories, in the order in which the help window offers them.
std::vector<std::string_view> Help_Categories();

// The introduction of a category; the empty text for a name it does not know.
std::string Display_Category_Intro(std::string_view Category_Choice);

// The topics of a category in the order in which they are listed, which is not alphabetical;
// "All Topics" lists those of Organizer, General, For Your Information and Task Reminders, in
// that order. Nothing for a name it does not know.
std::vector<std::string_view> Category_Topics(std::string_view Category_Choice);

// The text of a topic; the empty text for a name it does not know.
std::string Get_Topic_Contents(std::string_view Topic_Choice);

}  // namespace orrivane::shell
