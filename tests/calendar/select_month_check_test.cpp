// The entry checks of "View Month On Calendar": one status for each fault, 6 for several, and
// the message of each status.
#include <gtest/gtest.h>

#include <string>

#include "calendar/select_month_check.h"

namespace orrivane::calendar {
namespace {

struct Entries {
  const char* month;
  const char* year;
  const char* style;
  int status;
};

TEST(SelectMonthCheck, GivesTheStatusOfEachFaultAndSixForSeveral) {
  const Entries cases[] = {
      {"March", "2000", "Gregorian", kSelectMonthAccepted},
      {"", "2000", "Gregorian", kNoMonthSelected},
      {"March", "", "Gregorian", kNoYearEntered},
      {"March", "1000001", "Gregorian", kYearOutOfRange},
      {"March", "1000000", "Julian", kSelectMonthAccepted},
      {"March", "-5", "Julian", kYearOutOfRange},
      {"March", "-5", "Gregorian", kBeforeGregorianCalendar},
      {"January", "0", "Julian", kSelectMonthAccepted},
      {"January", "0", "Gregorian", kBeforeGregorianCalendar},
      {"September", "1582", "Gregorian", kBeforeGregorianCalendar},
      {"October", "1582", "Gregorian", kSelectMonthAccepted},
      {"September", "1582", "Julian", kSelectMonthAccepted},
      {"March", "abc", "Gregorian", kYearNotANumber},
      {"March", "1e999", "Gregorian", kYearNotANumber},  // too large to hold
      {"March", " 2000 ", "Gregorian", kSelectMonthAccepted},
      // A year is counted in whole years: a fraction is no year, whatever its whole part.
      {"September", "1582.5", "Gregorian", kYearNotANumber},
      {"January", "1581.5", "Julian", kYearNotANumber},
      {"March", "2000.0", "Gregorian", kSelectMonthAccepted},
      {"March", "2e3", "Gregorian", kSelectMonthAccepted},
      {"March", "2.0005e3", "Gregorian", kYearNotANumber},
      {"March", "-0.5", "Julian", kYearNotANumber},
      {"March", "1000000.5", "Julian", kYearNotANumber},
      {"", "1582.5", "Gregorian", kSeveralEntryErrors},
      {"", "", "Gregorian", kSeveralEntryErrors},
      {"", "abc", "Julian", kSeveralEntryErrors},
      {"", "1000001", "Gregorian", kSeveralEntryErrors},
  };
  for (const Entries& entries : cases) {
    EXPECT_EQ(Select_Month_Entry_Status(entries.month, entries.year, entries.style), entries.status)
        << entries.month << " / " << entries.year << " / " << entries.style;
  }
}

TEST(SelectMonthCheck, MessagesOfTheStatuses) {
  auto message = [](int status) {
    const Message shown = Select_Month_Entry_Message(status);
    return shown.title + "|" + shown.text;
  };
  EXPECT_EQ(message(1), "No Month Selected|A month must be selected.");
  EXPECT_EQ(message(2), "No Year Entered|A year must be entered.");
  EXPECT_EQ(message(3), "Invalid Year Entry|Please enter a value from 1 to 1000000.");
  EXPECT_EQ(message(4),
            "Invalid Month Selection|For the Gregorian Calendar, please make sure the \rmonth selected is October "
            "1582 or later.");
  EXPECT_EQ(message(5), "Invalid Year Entry|The year must contain only numbers.");
  EXPECT_EQ(message(6), "Error|Please select a month and enter a valid year in the year field.");
  EXPECT_TRUE(Select_Month_Entry_Message(0).empty());
  EXPECT_TRUE(Select_Month_Entry_Message(7).empty());
}

}  // namespace
}  // namespace orrivane::calendar
