#pragma once
// When each of the 25 holidays falls in a Gregorian year.
//
// One engine answers, for a holiday and a year, the month, date and weekday (or nothing when the
// holiday does not exist that year). Two thin deliveries sit on it, chosen by the caller's
// identity text as the program chooses them: list lines for the find-a-holiday window, and
// (name, month name, date) entries for the calendar's holiday table. The windows own what they
// show and keep; this file never shows a message, it answers a code and offers the texts.
//
// Holidays are worked out for the Gregorian calendar only; the limit of all holiday work is the
// year 100100.
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/message.h"
#include "core/value.h"
#include "core/whole_numbers.h"
#include "engine/month_steps.h"
#include "holidays/holiday_callers.h"

namespace orrivane::holidays {

inline constexpr int kHolidayYearLimit = 100100;
// The first year of the Gregorian calendar, the only one holidays are worked out for: the first
// year of a name the rule table does not know, and the lower bound of every year in "Display All
// By Year" mode.
inline constexpr int kEarliestHolidayYear = engine::kFirstGregorianYear;
inline constexpr int kHolidayCount = 25;

// ---- Easter ---------------------------------------------------------------------------------

struct Month_And_Date {
  int month;  // 3 or 4
  int date;   // may run past 30 in April from the year 11419 on, and is shown so
  friend bool operator==(const Month_And_Date&, const Month_And_Date&) = default;
};

// The program's Easter rule for a whole year. Every 32-bit year is safe: the widest
// intermediate, 5 × Year, stays far inside 64 bits.
constexpr Month_And_Date Easter_Month_And_Date(std::int32_t year) noexcept {
  const std::int64_t y = year;
  const std::int64_t g = y % 19 + 1;  // truncating: G may be 0 or negative before the year 0
  const std::int64_t c = Floor_Div(y, 100) + 1;
  const std::int64_t x = Floor_Div(3 * c, 4) - 12;
  // No 5 inside this division: the program's dates part from the published ones from 2706 on.
  const std::int64_t z = Floor_Div(8 * c, 25) - 5;
  const std::int64_t d = Floor_Div(5 * y, 4) - x - 10;
  // The truncating remainder is kept even where the dividend turns negative (from 8911 on);
  // that is what lets April run past 30 later.
  std::int64_t e = (11 * g + 20 + z - x) % 30;
  if ((e == 25 && g > 11) || e == 24) e = e + 1;
  std::int64_t n = 44 - e;
  if (n < 21) n = n + 30;
  n = n + 7 - (d + n) % 7;
  if (n > 31) return {4, static_cast<int>(n - 31)};
  return {3, static_cast<int>(n)};
}

// Find_Easter(Yearr, "Get Month") answers 3 or 4, "Get Date" the date; any other verb answers
// empty. The year is rounded to a whole number as the program rounds; a text that is no number
// fails with a type mismatch (13), a year beyond 32 bits with an overflow (6), as the
// program's whole-number remainder does.
Value Find_Easter(const Value& Yearr, std::string_view Return_Month_Or_Date);

// ---- The holidays ---------------------------------------------------------------------------

// Holidays are numbered 0 to 24 in the fixed order of Display_All_Holidays_For_Selected_Year,
// which runs roughly through the year.
std::string_view Holiday_Name(int holiday);
// The number of a holiday by its exact name, or nothing for a name the table does not know.
std::optional<int> Holiday_Number(std::string_view name);
// The first year of a holiday by its name; a name the table does not know keeps 1582.
int First_Year_Of_Holiday(std::string_view name);

struct Holiday_Date {
  int month;    // 1 to 12
  int date;     // as the rule answers it (movable feasts may pass the month's end, see Easter)
  int weekday;  // 1 Sunday to 7 Saturday
  friend bool operator==(const Holiday_Date&, const Holiday_Date&) = default;
};

// The engine: the date of a holiday in a year, or nothing when the holiday does not exist that
// year (before its first year, above 100100, or an unknown holiday number).
std::optional<Holiday_Date> Holiday_Date_In_Year(int holiday, std::int64_t year);

// The list line: "Easter, Sunday, April 20, 2003", "Election Day, U.S., Tuesday, November 4, 2003".
std::string Holiday_List_Line(int holiday, std::int64_t year, const Holiday_Date& when);
// The list line of a holiday in a year, worked out; the empty text when the holiday does not
// exist that year. A line is a pure function of the two, so a list may keep them in its place.
std::string Holiday_List_Line(int holiday, std::int64_t year);

// What the calendar's holiday table keeps of one holiday in one year. The texts live as long as
// the program.
struct Holiday_Table_Entry {
  std::string_view name;
  std::string_view month_name;
  int date;
};

// ---- Deliveries -----------------------------------------------------------------------------

// The customer of the engine. Each receives only what its caller identity selects.
class Holiday_Receiver {
 public:
  virtual ~Holiday_Receiver() = default;
  // For the find-a-holiday window: the line of `holiday` (numbered as Holiday_Name numbers it)
  // in `year`, for the end of lstListHolidayDates. A receiver that keeps the pair overrides
  // this; by default the line is worked out and handed to Add_List_Line.
  virtual void Add_List_Entry(int holiday, int year);
  // For the find-a-holiday window: a line for the end of lstListHolidayDates.
  virtual void Add_List_Line(std::string line) { static_cast<void>(line); }
  // For the calendar: an entry for the first free place of the holiday table.
  virtual void Add_Table_Entry(const Holiday_Table_Entry& entry) { static_cast<void>(entry); }
};

// Receivers that simply collect, for callers that want a vector.
class Holiday_List_Collector : public Holiday_Receiver {
 public:
  std::vector<std::string> lines;
  void Add_List_Line(std::string line) override { lines.push_back(std::move(line)); }
};

class Holiday_Table_Collector : public Holiday_Receiver {
 public:
  std::vector<Holiday_Table_Entry> entries;
  void Add_Table_Entry(const Holiday_Table_Entry& entry) override { entries.push_back(entry); }
};

// The validation codes of the engine (E) and of the "Display All By Year" check.
enum Holiday_Error_Code : int {
  kHolidayNoError = 0,
  kNoHolidaySelected = 1,  // no holiday chosen
  kNoYearEntered = 2,      // the first year box is blank
  kInvalidYear = 3,        // a year box holds no whole year from the holiday's first year to 100100
  kNoSelectionsMade = 6,   // more than one of the above (the engine's check only)
};

// The message of a code of Display_Holiday_II, for the holiday the user chose; the empty message
// for a code without one. A line break in a text is the character 13.
Message Holiday_Error_Message(int error_code, std::string_view HolidaySelection);
// The message of a code of Check_Years_For_All_Holidays.
Message All_Holidays_Error_Message(int error_code);

// The find-a-holiday window's controls that the engine looks at.
struct Holiday_Window_Options {
  bool by_holiday = false;      // optByHoliday is set
  bool range_of_years = false;  // chkSelectRangeOfYears is checked
};

struct Holiday_Answer {
  int error_code = kHolidayNoError;
  // The window shows the message of error_code (the window in "By Holiday" mode only).
  bool message_wanted = false;
  // The count of lines of this call, one a year (what lblNew shows); 0 for a name the table does
  // not know. When error_code is 0 the window raises its InterFunction_Counter by 1, unknown
  // name or not.
  std::int64_t lines = 0;
};

// The rule engine. The years may be texts straight from the year boxes; a year that is not a
// whole number is refused as an invalid year, and nothing is delivered. Where the window asks
// for one year of a holiday, ToYear is overwritten with FromYear as the program does.
Holiday_Answer Display_Holiday_II(std::string_view HolidaySelection, const Value& FromYear, Value& ToYear,
                                  std::string_view Calling_Sub_Origin, Holiday_Window_Options window,
                                  Holiday_Receiver& receiver);

// All 25 holidays of one year in the fixed order; a holiday too young for the year is left out
// in silence. Answers how many holidays were delivered (what the window's counter sums).
// Only the "Display All By Year" mode and the calendar call this, so no message is ever wanted.
int Display_All_Holidays_For_Selected_Year(const Value& Year_, std::string_view Calling_Sub_Origin,
                                           Holiday_Receiver& receiver);

// ---- "Display All By Year" ------------------------------------------------------------------

struct All_Holidays_Years {
  int error_code = kHolidayNoError;  // 0, kNoYearEntered or kInvalidYear
  int from = 0;
  int to = 0;
};

// The window's own check of the year boxes in "Display All By Year" mode, with the one lower
// bound 1582 for every holiday. Without a range, or with an empty last box, the last year is
// the first.
All_Holidays_Years Check_Years_For_All_Holidays(const Value& FromYear, const Value& ToYear, bool range_of_years);

// Every holiday of every year from `from` to `to` (backward when from > to), to the window's
// list. Answers the holidays delivered, the sum the window shows as new. Years outside 1582 to
// 100100 deliver nothing.
std::int64_t Display_All_Holidays_For_Years(int from, int to, Holiday_Receiver& receiver);
// How many holidays Display_All_Holidays_For_Years(from, to, ...) delivers, without delivering
// them: a list can be sized once for a request.
std::int64_t All_Holidays_Line_Count(int from, int to);

// ---- The holiday table keeper ---------------------------------------------------------------

// Store_Holiday_Data_For_Year of the calendar: three parallel arrays of 51 entries, "Holiday
// Name", "Holiday Date" and "Holiday Month", driven by a verb. An entry is free while its month
// is the empty text. The window that owns the table owns one of these.
class Holiday_Data_Keeper {
 public:
  static constexpr int kEntries = 51;

  // Verbs "Set Equal To", "Add", "Subtract", "Multiply", "Divide" work on the addressed entry and
  // answer it after the operation; "View" (or any other verb) answers it as it stands. An index
  // outside 0 to 50 fails with subscript out of range (9). Another array name works on a
  // scratch value that is not kept. The arithmetic is on numbers: a text that is no number
  // fails with a type mismatch (13), a division by zero with 11 (0 / 0 with overflow, 6).
  Value Store_Holiday_Data_For_Year(std::string_view Array_Name, int Element_Number,
                                    std::string_view Action_To_Perform, const Value& value = {});

 private:
  std::array<Value, kEntries> names_{};
  std::array<Value, kEntries> dates_{};
  std::array<Value, kEntries> months_{};
};

// Sets month, date and name of the first free entry, scanning 0 to 50. The table is cleared
// before each use and never fills; should it, the scan runs past the end and fails with 9.
void Store_In_First_Free_Entry(Holiday_Data_Keeper& keeper, const Holiday_Table_Entry& entry);

// A receiver that stores each table entry straight into a keeper.
class Holiday_Keeper_Receiver : public Holiday_Receiver {
 public:
  explicit Holiday_Keeper_Receiver(Holiday_Data_Keeper& keeper) : keeper_(keeper) {}
  void Add_Table_Entry(const Holiday_Table_Entry& entry) override { Store_In_First_Free_Entry(keeper_, entry); }

 private:
  Holiday_Data_Keeper& keeper_;
};

}  // namespace orrivane::holidays
