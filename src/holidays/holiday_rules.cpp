#include "holidays/holiday_rules.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "core/runtime_failure.h"
#include "engine/calendar_engine.h"

namespace orrivane::holidays {

// The check values of the Easter rule, kept by the compiler.
static_assert(Easter_Month_And_Date(1583) == Month_And_Date{4, 10});
static_assert(Easter_Month_And_Date(2000) == Month_And_Date{4, 23});
static_assert(Easter_Month_And_Date(2003) == Month_And_Date{4, 20});
static_assert(Easter_Month_And_Date(2700) == Month_And_Date{4, 1});
static_assert(Easter_Month_And_Date(9000) == Month_And_Date{3, 23});
static_assert(Easter_Month_And_Date(100100) == Month_And_Date{4, 25});

Value Find_Easter(const Value& Yearr, std::string_view Return_Month_Or_Date) {
  const std::int64_t year = Yearr.whole();
  if (year < std::numeric_limits<std::int32_t>::min() || year > std::numeric_limits<std::int32_t>::max()) {
    throw RuntimeFailure(kOverflow);
  }
  const Month_And_Date easter = Easter_Month_And_Date(static_cast<std::int32_t>(year));
  if (Return_Month_Or_Date == "Get Month") return easter.month;
  if (Return_Month_Or_Date == "Get Date") return easter.date;
  return {};
}

namespace {

// ---- The rule table -------------------------------------------------------------------------

enum class Rule_Kind : unsigned char {
  None,                // an unused era
  Fixed_Date,          // "Fixed Date": day F of the month
  Beginning_Of_Month,  // "Beginning of Month": weekday T in week O + 1 counted from the 1st
  End_Of_Month,        // "End of Month": weekday T in week O + 1 counted back from the last day
  Days_Before_Easter,  // Easter itself, Good Friday, Palm Sunday: K days back, at most one month
  Count_Backward,      // "Count Backward": K days before Easter, day by day
  Count_Forward,       // "Count Forward": K days after Easter, day by day
};

enum Weekday : int { kWorkedOut = 0, kSunday = 1, kMonday, kTuesday, kWednesday, kThursday, kFriday, kSaturday };
enum Month : int { kJan = 1, kFeb, kMar, kApr, kMay, kJun, kJul, kAug, kSep, kOct, kNov, kDec };

struct Era {
  int from_year = std::numeric_limits<int>::max();
  Rule_Kind kind = Rule_Kind::None;
  int month = 0;        // month rules only
  int number = 0;       // F for a fixed date, T for a weekday rule, K for a count from Easter
  int week_offset = 0;  // n - 1 for an nth weekday
  int days_after = 0;   // days added after the weekday rule (Election Day)
  int weekday = kWorkedOut;  // the weekday the line names; a fixed date works its own out
};

constexpr Era Fixed(int from_year, int month, int day) {
  return {from_year, Rule_Kind::Fixed_Date, month, day, 0, 0, kWorkedOut};
}
constexpr Era Nth_Weekday(int from_year, int month, int weekday, int nth) {
  return {from_year, Rule_Kind::Beginning_Of_Month, month, weekday, nth - 1, 0, weekday};
}
constexpr Era Day_After_Nth_Weekday(int from_year, int month, int weekday, int nth) {
  return {from_year, Rule_Kind::Beginning_Of_Month, month, weekday, nth - 1, 1, weekday % 7 + 1};
}
constexpr Era Last_Weekday(int from_year, int month, int weekday, int weeks_before_last = 0) {
  return {from_year, Rule_Kind::End_Of_Month, month, weekday, weeks_before_last, 0, weekday};
}
constexpr Era Easter_Less(int from_year, int days, int weekday) {
  return {from_year, Rule_Kind::Days_Before_Easter, 0, days, 0, 0, weekday};
}
constexpr Era Count_Back(int from_year, int days, int weekday) {
  return {from_year, Rule_Kind::Count_Backward, 0, days, 0, 0, weekday};
}
constexpr Era Count_On(int from_year, int days, int weekday) {
  return {from_year, Rule_Kind::Count_Forward, 0, days, 0, 0, weekday};
}

// Which way the weekday of the 1st is found: holidays in January or February count the leap day
// of the base year 2000 on the other side of the base date.
enum Base_Side : bool { kMarchToDecember = false, kJanuaryOrFebruary = true };

struct Holiday_Rule {
  std::string_view name;
  int first_year;
  Base_Side side;
  std::array<Era, 3> eras;  // in order of their first years; the first begins at first_year
};

// One row per holiday, in the fixed order of Display_All_Holidays_For_Selected_Year.
constexpr std::array<Holiday_Rule, kHolidayCount> kHolidays{{
    {"New Years Day", 1583, kJanuaryOrFebruary, {Fixed(1583, kJan, 1)}},
    {"Martin Luther King Day", 1983, kJanuaryOrFebruary, {Nth_Weekday(1983, kJan, kMonday, 3)}},
    {"Valentine's Day", 1583, kJanuaryOrFebruary, {Fixed(1583, kFeb, 14)}},
    {"Presidents' Day", 1971, kJanuaryOrFebruary, {Nth_Weekday(1971, kFeb, kMonday, 3)}},
    {"Mardi Gras", 1583, kMarchToDecember, {Count_Back(1583, 47, kTuesday)}},
    {"Ash Wednesday", 1583, kMarchToDecember, {Count_Back(1583, 46, kWednesday)}},
    {"St. Patricks' Day", 1583, kMarchToDecember, {Fixed(1583, kMar, 17)}},
    {"Palm Sunday", 1583, kMarchToDecember, {Easter_Less(1583, 7, kSunday)}},
    {"Good Friday", 1583, kMarchToDecember, {Easter_Less(1583, 2, kFriday)}},
    {"Easter", 1583, kMarchToDecember, {Easter_Less(1583, 0, kSunday)}},
    {"Mother's Day", 1907, kMarchToDecember, {Nth_Weekday(1907, kMay, kSunday, 2)}},
    {"Ascension Day", 1583, kMarchToDecember, {Count_On(1583, 39, kThursday)}},
    {"The Day of Pentecost", 1583, kMarchToDecember, {Count_On(1583, 49, kSunday)}},
    {"Memorial Day", 1868, kMarchToDecember, {Fixed(1868, kMay, 30), Last_Weekday(1971, kMay, kMonday)}},
    {"Father's Day", 1966, kMarchToDecember, {Nth_Weekday(1966, kJun, kSunday, 3)}},
    {"Fourth of July", 1776, kMarchToDecember, {Fixed(1776, kJul, 4)}},
    {"Labor Day", 1882, kMarchToDecember, {Fixed(1882, kSep, 5), Nth_Weekday(1894, kSep, kMonday, 1)}},
    {"Columbus Day", 1792, kMarchToDecember, {Fixed(1792, kOct, 12), Nth_Weekday(1971, kOct, kMonday, 2)}},
    {"Halloween", 1582, kMarchToDecember, {Fixed(1582, kOct, 31)}},
    {"Election Day, U.S.", 1845, kMarchToDecember, {Day_After_Nth_Weekday(1845, kNov, kMonday, 1)}},
    {"Veterans Day", 1926, kMarchToDecember,
     {Fixed(1926, kNov, 11), Nth_Weekday(1968, kOct, kMonday, 4), Fixed(1978, kNov, 11)}},
    {"Thanksgiving", 1863, kMarchToDecember,
     {Last_Weekday(1863, kNov, kThursday), Last_Weekday(1939, kNov, kThursday, 1),
      Nth_Weekday(1942, kNov, kThursday, 4)}},
    {"Christmas Eve", 1582, kMarchToDecember, {Fixed(1582, kDec, 24)}},
    {"Christmas Day", 1582, kMarchToDecember, {Fixed(1582, kDec, 25)}},
    {"New Years Eve", 1582, kMarchToDecember, {Fixed(1582, kDec, 31)}},
}};

constexpr bool Table_Is_Consistent() {
  for (const Holiday_Rule& rule : kHolidays) {
    if (rule.eras[0].from_year != rule.first_year || rule.first_year < kEarliestHolidayYear) return false;
    for (std::size_t i = 1; i < rule.eras.size(); ++i) {
      if (rule.eras[i].kind == Rule_Kind::None) continue;
      if (rule.eras[i - 1].kind == Rule_Kind::None || rule.eras[i].from_year <= rule.eras[i - 1].from_year) return false;
    }
  }
  return true;
}
static_assert(Table_Is_Consistent());

const Era& Era_Of_Year(const Holiday_Rule& rule, int year) {
  const Era* era = &rule.eras[0];
  for (const Era& later : rule.eras) {
    if (later.kind != Rule_Kind::None && later.from_year <= year) era = &later;
  }
  return *era;
}

// ---- The calendar vocabulary, asked once ----------------------------------------------------

// The month and weekday facts come from the calendar engine; asking it once keeps the engine the
// one source of them and keeps a long list from asking millions of times.
struct Vocabulary {
  std::array<int, 13> base_weekday{};  // weekday of the 1st in the Gregorian year 2000
  std::array<std::string, 13> month_name{};
  std::array<std::string, 8> weekday_name{};
};

int Whole(const Value& value) { return value.is_number() ? static_cast<int>(value.number()) : 0; }

Vocabulary Ask_The_Calendar_Engine() {
  Vocabulary v;
  for (int m = 1; m <= 12; ++m) {
    v.month_name[m] = engine::Define_Month(m, "Get Month Name").text();
    v.base_weekday[m] = Whole(engine::Define_Month(v.month_name[m], "Get Base Date Weekday Greg 2000"));
  }
  for (int w = 1; w <= 7; ++w) v.weekday_name[w] = engine::Define_Weekday(w, "Get Weekday Name").text();
  return v;
}

const Vocabulary& Calendar_Words() {
  static const Vocabulary vocabulary = Ask_The_Calendar_Engine();
  return vocabulary;
}

// Month numbers wrap as the calendar's vocabulary lets them (0 is December, 13 January), so that
// a step past either end of the year stays a month.
int Month_In_Year(int month) { return static_cast<int>(((static_cast<std::int64_t>(month) - 1) % 12 + 12) % 12 + 1); }

int Month_Length(int month, bool leap) { return engine::Days_In_Month(Month_In_Year(month), leap); }

// ---- The month rules ------------------------------------------------------------------------

// The weekday of the 1st of a month, counted from the weekday it had in the year 2000. Where the
// leap day of 2000 falls against the base date decides between >= and >.
int Weekday_Of_First(int month, Base_Side side, int year) {
  const std::int64_t n = 2000 - static_cast<std::int64_t>(year);
  std::int64_t a = 0, b = 0, c = 0;
  if (side == kJanuaryOrFebruary) {
    a = Floor_Div(n, 4);
    b = Floor_Div(n, 100);
    c = Floor_Div(n, 400);
    if (year > 2000) ++b, ++c;
  } else {
    a = Floor_Div(n - 1, 4) + 1;
    b = Floor_Div(n - 1, 100);
    c = Floor_Div(n - 1, 400);
    if (year >= 2000) ++b, ++c;
  }
  const std::int64_t s = (n + a - b + c) % 7;  // truncating, so -6 to 6
  std::int64_t w = Calendar_Words().base_weekday[Month_In_Year(month)] - s;
  if (w < 1) w += 7;
  if (w > 7) w -= 7;
  return static_cast<int>(w);
}

// Counting day by day from the 1st to day F, the weekday steps along and wraps after Saturday.
Holiday_Date Fixed_Date(const Era& era, int first_weekday) {
  const int weekday = (first_weekday - 1 + era.number - 1) % 7 + 1;
  return {era.month, era.number, weekday};
}

Holiday_Date Beginning_Of_Month(const Era& era, int first_weekday) {
  const int target = era.number;
  const int w = first_weekday > target ? first_weekday - 7 : first_weekday;
  const int date = target - w + 1 + 7 * era.week_offset + era.days_after;
  return {era.month, date, era.weekday};
}

Holiday_Date End_Of_Month(const Era& era, int first_weekday, int last_day) {
  const int target = era.number;
  int w = first_weekday + (last_day - 29);  // the weekday of the last day
  if (w > 7) w -= 7;
  if (w < target) w += 7;
  const int date = last_day - (w - target) - 7 * era.week_offset;
  return {era.month, date, era.weekday};
}

// ---- The movable feasts ---------------------------------------------------------------------

Holiday_Date Days_Before_Easter(const Era& era, Month_And_Date easter, bool leap) {
  int month = easter.month;
  int date = easter.date;
  if (date <= era.number) {
    month -= 1;
    date += Month_Length(month, leap);
  }
  return {month, date - era.number, era.weekday};
}

// Steps back one day at a time from the last day of the month before Easter's; when the count
// is not positive nothing is counted and that last day is the answer.
Holiday_Date Count_Backward(const Era& era, Month_And_Date easter, bool leap) {
  int days = era.number - easter.date;
  int month = easter.month - 1;
  int date = Month_Length(month, leap);
  if (days <= 0) return {Month_In_Year(month), date, era.weekday};
  // Whole months at once: `date` more steps reach day 0, which becomes the previous month's end.
  while (days >= date) {
    days -= date;
    month -= 1;
    date = Month_Length(month, leap);
  }
  return {Month_In_Year(month), date - days, era.weekday};
}

// Steps forward one day at a time from day 0 of the month after Easter's; the days to count are
// K less the days left in Easter's month.
Holiday_Date Count_Forward(const Era& era, Month_And_Date easter, bool leap) {
  int days = era.number - (Month_Length(easter.month, leap) - easter.date);
  int month = easter.month + 1;
  int date = 0;
  if (days <= 0) return {Month_In_Year(month), date, era.weekday};
  // Whole months at once: reaching length + 1 turns into day 1 of the next month.
  while (days > Month_Length(month, leap) - date) {
    days -= Month_Length(month, leap) - date + 1;
    month += 1;
    date = 1;
  }
  return {Month_In_Year(month), date + days, era.weekday};
}

// What the movable feasts of a year share, worked out once for all of them.
struct Year_Facts {
  int year;
  bool leap;
  Month_And_Date easter;
};

Year_Facts Facts_Of(int year) {
  return {year, engine::Is_It_A_Leap_Year(year, "Gregorian"), Easter_Month_And_Date(year)};
}

Holiday_Date Work_Out(const Holiday_Rule& rule, const Year_Facts& facts) {
  const Era& era = Era_Of_Year(rule, facts.year);
  switch (era.kind) {
    case Rule_Kind::Fixed_Date:
      return Fixed_Date(era, Weekday_Of_First(era.month, rule.side, facts.year));
    case Rule_Kind::Beginning_Of_Month:
      return Beginning_Of_Month(era, Weekday_Of_First(era.month, rule.side, facts.year));
    case Rule_Kind::End_Of_Month:
      return End_Of_Month(era, Weekday_Of_First(era.month, rule.side, facts.year), Month_Length(era.month, false));
    case Rule_Kind::Days_Before_Easter:
      return Days_Before_Easter(era, facts.easter, facts.leap);
    case Rule_Kind::Count_Backward:
      return Count_Backward(era, facts.easter, facts.leap);
    case Rule_Kind::Count_Forward:
      return Count_Forward(era, facts.easter, facts.leap);
    case Rule_Kind::None:
      break;
  }
  return {};
}

bool Exists_In(const Holiday_Rule& rule, std::int64_t year) {
  return year >= rule.first_year && year <= kHolidayYearLimit;
}

// ---- Lines ----------------------------------------------------------------------------------

void Append_Number(std::string& out, std::int64_t number) {
  char digits[24];
  const auto [end, ec] = std::to_chars(digits, digits + sizeof digits, number);
  static_cast<void>(ec);  // 24 places hold every 64-bit number
  out.append(digits, end);
}

std::string List_Line(std::string_view name, const Holiday_Date& when, std::int64_t year) {
  const Vocabulary& words = Calendar_Words();
  const std::string_view weekday = words.weekday_name[static_cast<std::size_t>(when.weekday) % 8];
  const std::string_view month = words.month_name[static_cast<std::size_t>(Month_In_Year(when.month))];
  std::string line;
  line.reserve(name.size() + weekday.size() + month.size() + 24);
  line.append(name).append(", ").append(weekday).append(", ").append(month).append(" ");
  Append_Number(line, when.date);
  line.append(", ");
  Append_Number(line, year);
  return line;
}

// ---- The engine's run -----------------------------------------------------------------------

enum class Customer { Nobody, Find_A_Holiday_List, Calendar_Table };

Customer Customer_Of(std::string_view Calling_Sub_Origin) {
  if (Calling_Sub_Origin == kFindAHolidayCaller) return Customer::Find_A_Holiday_List;
  if (Calling_Sub_Origin == kCalendarHolidayTableCaller) return Customer::Calendar_Table;
  return Customer::Nobody;
}

int Number_Of(const Holiday_Rule& rule) { return static_cast<int>(&rule - kHolidays.data()); }

void Deliver(Customer customer, const Holiday_Rule& rule, const Year_Facts& facts, Holiday_Receiver& receiver) {
  if (customer == Customer::Nobody) return;
  if (customer == Customer::Find_A_Holiday_List) {
    // The receiver works the line out if it wants it now.
    receiver.Add_List_Entry(Number_Of(rule), facts.year);
    return;
  }
  const Holiday_Date when = Work_Out(rule, facts);
  const std::string_view month = Calendar_Words().month_name[static_cast<std::size_t>(Month_In_Year(when.month))];
  receiver.Add_Table_Entry({rule.name, month, when.date});
}

// Years from `from` to `to`, backward when `from` is the greater; both already checked.
std::int64_t Run_Years(const Holiday_Rule& rule, int from, int to, Customer customer, Holiday_Receiver& receiver) {
  const int step = from > to ? -1 : 1;
  std::int64_t lines = 0;
  for (int year = from;; year += step) {
    Deliver(customer, rule, Facts_Of(year), receiver);
    ++lines;
    if (year == to) break;
  }
  return lines;
}

bool Is_Blank_Entry(const Value& value) { return value.is_empty() || (value.is_text() && value.text().empty()); }

// A year the holiday work can take: a whole number no further out than 1582 to 100100. Anything
// else, a text that is no number included, is an invalid year.
std::optional<int> Year_In_Reach(const Value& year) {
  if (year.is_empty()) return std::nullopt;
  std::optional<double> number;
  if (year.is_number()) {
    number = year.number();
  } else {
    try {
      number = Parse_Number(year.text());
    } catch (const RuntimeFailure&) {
      return std::nullopt;  // a number too large to hold
    }
  }
  if (!number || std::trunc(*number) != *number) return std::nullopt;
  if (*number < kEarliestHolidayYear || *number > kHolidayYearLimit) return std::nullopt;
  return static_cast<int>(*number);
}

// The validation of the engine: a code and a count, the count deciding for the general message.
int Validate(std::string_view HolidaySelection, const Value& FromYear, const Value& ToYear, int first_year) {
  int code = kHolidayNoError;
  int count = 0;
  if (HolidaySelection.empty()) code = kNoHolidaySelected, ++count;
  if (Is_Blank_Entry(FromYear)) {
    code = kNoYearEntered, ++count;
  } else {
    const std::optional<int> from = Year_In_Reach(FromYear);
    const std::optional<int> to = Year_In_Reach(ToYear);
    if (!from || !to || *from < first_year || *to < first_year) code = kInvalidYear, ++count;
  }
  return count > 1 ? kNoSelectionsMade : code;
}

const Holiday_Rule* Rule_Named(std::string_view name) {
  const std::optional<int> holiday = Holiday_Number(name);
  return holiday ? &kHolidays[static_cast<std::size_t>(*holiday)] : nullptr;
}

std::string Number_Text_Of(int number) {
  std::string text;
  Append_Number(text, number);
  return text;
}

}  // namespace

// ---- Public procedures ----------------------------------------------------------------------

std::string_view Holiday_Name(int holiday) {
  if (holiday < 0 || holiday >= kHolidayCount) return {};
  return kHolidays[static_cast<std::size_t>(holiday)].name;
}

std::optional<int> Holiday_Number(std::string_view name) {
  for (int i = 0; i < kHolidayCount; ++i) {
    if (kHolidays[static_cast<std::size_t>(i)].name == name) return i;
  }
  return std::nullopt;
}

int First_Year_Of_Holiday(std::string_view name) {
  const Holiday_Rule* rule = Rule_Named(name);
  return rule != nullptr ? rule->first_year : kEarliestHolidayYear;
}

std::optional<Holiday_Date> Holiday_Date_In_Year(int holiday, std::int64_t year) {
  if (holiday < 0 || holiday >= kHolidayCount) return std::nullopt;
  const Holiday_Rule& rule = kHolidays[static_cast<std::size_t>(holiday)];
  if (!Exists_In(rule, year)) return std::nullopt;
  return Work_Out(rule, Facts_Of(static_cast<int>(year)));
}

std::string Holiday_List_Line(int holiday, std::int64_t year, const Holiday_Date& when) {
  return List_Line(Holiday_Name(holiday), when, year);
}

std::string Holiday_List_Line(int holiday, std::int64_t year) {
  const std::optional<Holiday_Date> when = Holiday_Date_In_Year(holiday, year);
  return when ? Holiday_List_Line(holiday, year, *when) : std::string();
}

void Holiday_Receiver::Add_List_Entry(int holiday, int year) { Add_List_Line(Holiday_List_Line(holiday, year)); }

namespace {

// The messages both checks give in the same words; each tells an invalid year in its own.
const CodedMessage kHolidayMessages[] = {
    {kNoHolidaySelected, Exclamation_Message("No Holiday Selected", "A holiday must be selected.")},
    {kNoYearEntered, Exclamation_Message("No Year Entered", "A year must be entered in the 'From' box.")},
    {kNoSelectionsMade, Exclamation_Message("No Selections Made", "Please specify a holiday and valid year.")},
};

// "1582 to 100100": the years a holiday may be asked for, from its first year on.
std::string Years_From(int first_year) {
  return Number_Text_Of(first_year) + " to " + Number_Text_Of(kHolidayYearLimit);
}

}  // namespace

Message Holiday_Error_Message(int error_code, std::string_view HolidaySelection) {
  if (error_code != kInvalidYear) return Message_Of(kHolidayMessages, error_code);
  // The name's own comma would read badly in the sentence.
  const std::string_view name = HolidaySelection == "Election Day, U.S." ? "Election Day" : HolidaySelection;
  return Exclamation_Message("Invalid Year", "For " + std::string(name) +
                                                 ", the year boxes may\rcontain only numeric values from " +
                                                 Years_From(First_Year_Of_Holiday(HolidaySelection)) + ".");
}

Message All_Holidays_Error_Message(int error_code) {
  if (error_code == kInvalidYear) {
    return Exclamation_Message("Invalid Year", "The year boxes may contain only numeric values\rfrom " +
                                                   Years_From(kEarliestHolidayYear) + ".");
  }
  return error_code == kNoYearEntered ? Message_Of(kHolidayMessages, error_code) : Message{};
}

Holiday_Answer Display_Holiday_II(std::string_view HolidaySelection, const Value& FromYear, Value& ToYear,
                                  std::string_view Calling_Sub_Origin, Holiday_Window_Options window,
                                  Holiday_Receiver& receiver) {
  const Customer customer = Customer_Of(Calling_Sub_Origin);
  const bool window_by_holiday = customer == Customer::Find_A_Holiday_List && window.by_holiday;
  if (window_by_holiday && (!window.range_of_years || Is_Blank_Entry(ToYear))) ToYear = FromYear;

  Holiday_Answer answer;
  answer.error_code = Validate(HolidaySelection, FromYear, ToYear, First_Year_Of_Holiday(HolidaySelection));
  answer.message_wanted = window_by_holiday && answer.error_code != kHolidayNoError;
  if (answer.error_code != kHolidayNoError) return answer;

  // A name the table does not know passes with the first year 1582 but has no rule to answer.
  const Holiday_Rule* rule = Rule_Named(HolidaySelection);
  if (rule == nullptr) return answer;
  answer.lines = Run_Years(*rule, *Year_In_Reach(FromYear), *Year_In_Reach(ToYear), customer, receiver);
  return answer;
}

int Display_All_Holidays_For_Selected_Year(const Value& Year_, std::string_view Calling_Sub_Origin,
                                           Holiday_Receiver& receiver) {
  const std::optional<int> year = Year_In_Reach(Year_);
  if (!year) return 0;
  const Customer customer = Customer_Of(Calling_Sub_Origin);
  const Year_Facts facts = Facts_Of(*year);
  int delivered = 0;
  for (const Holiday_Rule& rule : kHolidays) {
    if (!Exists_In(rule, *year)) continue;
    Deliver(customer, rule, facts, receiver);
    ++delivered;
  }
  return delivered;
}

All_Holidays_Years Check_Years_For_All_Holidays(const Value& FromYear, const Value& ToYear, bool range_of_years) {
  const Value& last = (!range_of_years || Is_Blank_Entry(ToYear)) ? FromYear : ToYear;
  if (Is_Blank_Entry(FromYear)) return {kNoYearEntered, 0, 0};
  const std::optional<int> from = Year_In_Reach(FromYear);
  const std::optional<int> to = Year_In_Reach(last);
  if (!from || !to) return {kInvalidYear, 0, 0};
  return {kHolidayNoError, *from, *to};
}

std::int64_t Display_All_Holidays_For_Years(int from, int to, Holiday_Receiver& receiver) {
  // Years out of reach deliver nothing, so the walk keeps to the reachable ones.
  const auto reach = [](int year) {
    return year < kEarliestHolidayYear ? kEarliestHolidayYear : (year > kHolidayYearLimit ? kHolidayYearLimit : year);
  };
  const bool backward = from > to;
  const int lowest = backward ? to : from;
  const int highest = backward ? from : to;
  if (highest < kEarliestHolidayYear || lowest > kHolidayYearLimit) return 0;
  const int first = reach(from);
  const int last = reach(to);
  const int step = backward ? -1 : 1;
  std::int64_t delivered = 0;
  for (int year = first;; year += step) {
    delivered += Display_All_Holidays_For_Selected_Year(year, kFindAHolidayCaller, receiver);
    if (year == last) break;
  }
  return delivered;
}

std::int64_t All_Holidays_Line_Count(int from, int to) {
  const int lowest = std::min(from, to);
  const int highest = std::min(std::max(from, to), kHolidayYearLimit);
  std::int64_t lines = 0;
  for (const Holiday_Rule& rule : kHolidays) {
    const int first = std::max(lowest, rule.first_year);
    if (first <= highest) lines += highest - first + 1;
  }
  return lines;
}

// ---- The holiday table keeper ---------------------------------------------------------------

namespace {

Value Divided(const Value& entry, const Value& by) {
  const double dividend = entry.number();
  const double divisor = by.number();
  if (divisor == 0) throw RuntimeFailure(dividend == 0 ? kOverflow : kDivisionByZero);
  return dividend / divisor;
}

Value Operate(Value& entry, std::string_view verb, const Value& value) {
  if (verb == "Set Equal To") entry = value;
  else if (verb == "Add") entry = entry.number() + value.number();
  else if (verb == "Subtract") entry = entry.number() - value.number();
  else if (verb == "Multiply") entry = entry.number() * value.number();
  else if (verb == "Divide") entry = Divided(entry, value);
  return entry;
}

}  // namespace

Value Holiday_Data_Keeper::Store_Holiday_Data_For_Year(std::string_view Array_Name, int Element_Number,
                                                       std::string_view Action_To_Perform, const Value& value) {
  std::array<Value, kEntries>* column = nullptr;
  if (Array_Name == "Holiday Name") column = &names_;
  else if (Array_Name == "Holiday Date") column = &dates_;
  else if (Array_Name == "Holiday Month") column = &months_;
  if (column == nullptr) {
    Value scratch;
    return Operate(scratch, Action_To_Perform, value);
  }
  if (Element_Number < 0 || Element_Number >= kEntries) throw RuntimeFailure(kSubscriptOutOfRange);
  return Operate((*column)[static_cast<std::size_t>(Element_Number)], Action_To_Perform, value);
}

void Store_In_First_Free_Entry(Holiday_Data_Keeper& keeper, const Holiday_Table_Entry& entry) {
  int i = 0;
  while (keeper.Store_Holiday_Data_For_Year("Holiday Month", i, "View") != Value("")) ++i;
  keeper.Store_Holiday_Data_For_Year("Holiday Month", i, "Set Equal To", std::string(entry.month_name));
  keeper.Store_Holiday_Data_For_Year("Holiday Date", i, "Set Equal To", entry.date);
  keeper.Store_Holiday_Data_For_Year("Holiday Name", i, "Set Equal To", std::string(entry.name));
}

}  // namespace orrivane::holidays
