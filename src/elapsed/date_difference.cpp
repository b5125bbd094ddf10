#include "elapsed/date_difference.h"

#include <array>
#include <tuple>

#include "core/runtime_failure.h"
#include "core/text.h"
#include "core/whole_numbers.h"
#include "elapsed/decimal_text.h"
#include "engine/calendar_engine.h"

namespace orrivane::elapsed {

namespace {

// Far beyond the calendar's year 1,000,099, and near enough that every plain piece (years in
// days above all) stays an exact whole number, also as a loosely typed number.
constexpr long long kYearLimit = 1'000'000'000'000LL;

bool Within(long long value, long long low, long long high) { return value >= low && value <= high; }

void Check_Moment(const Moment& moment) {
  const bool fields_in_range = Within(moment.Minute, 0, 59) && Within(moment.Hour, 0, 23) &&
                               Within(moment.Date, 1, 31) && Within(moment.Month_Number, 1, 12);
  if (!fields_in_range) throw RuntimeFailure(kInvalidProcedureCall);
  if (!Within(moment.Four_Digit_Year, -kYearLimit, kYearLimit)) throw RuntimeFailure(kOverflow);
}

auto Order_Key(const Moment& m) { return std::tie(m.Four_Digit_Year, m.Month_Number, m.Date, m.Hour, m.Minute); }

// As Is_It_A_Valid_Date(month, "Get Max Days", year, Cal_Style) answers it.
long long Month_Length(engine::YearMonth month, const std::string& Cal_Style) {
  return engine::Days_In_Month(month, engine::Calendar_Style_Of(Cal_Style));
}

// The month of a moment: every field lies in its range once the moment is checked.
engine::YearMonth Month_Of(const Moment& moment) {
  return {moment.Four_Digit_Year, static_cast<int>(moment.Month_Number)};
}

// Field-wise subtraction of E from L with borrows. The day borrow takes the length of the month
// before L once and is not repeated, so Days can end below zero.
void Subtract_Fields(const std::string& Cal_Style, Moment later, const Moment& earlier, Time_Difference& pieces) {
  if (later.Minute < earlier.Minute) {
    later.Minute += 60;
    later.Hour -= 1;
  }
  pieces.Minutes = later.Minute - earlier.Minute;
  if (later.Hour < earlier.Hour) {
    later.Hour += 24;
    later.Date -= 1;
  }
  pieces.Hours = later.Hour - earlier.Hour;
  if (later.Date < earlier.Date) {
    later.Date += Month_Length(engine::Month_Before(Month_Of(later)), Cal_Style);
    later.Month_Number -= 1;  // a 0 left here is always corrected by the month borrow
  }
  pieces.Days = later.Date - earlier.Date;
  if (later.Month_Number < earlier.Month_Number) {
    later.Month_Number += 12;
    later.Four_Digit_Year -= 1;
  }
  pieces.Months = later.Month_Number - earlier.Month_Number;
  pieces.Years = later.Four_Digit_Year - earlier.Four_Digit_Year;
}

// The leap days within the whole years: a start in January or February still has its own
// February ahead of it.
long long Years_In_Days(const std::string& Cal_Style, const Moment& earlier, long long years) {
  const bool before_leap_day = earlier.Month_Number <= 2;
  const long long first_year = before_leap_day ? earlier.Four_Digit_Year : earlier.Four_Digit_Year + 1;
  return years * 365 + Count_Leap_Years(first_year, first_year + years - 1, Cal_Style);
}

// The remaining months are walked from E's month in the year of E's last anniversary before L.
long long Months_In_Days(const std::string& Cal_Style, const Moment& later, const Moment& earlier, long long months) {
  const bool past_anniversary = std::tie(later.Month_Number, later.Date, later.Hour, later.Minute) >=
                                std::tie(earlier.Month_Number, earlier.Date, earlier.Hour, earlier.Minute);
  engine::YearMonth month{past_anniversary ? later.Four_Digit_Year : later.Four_Digit_Year - 1,
                          static_cast<int>(earlier.Month_Number)};
  long long days = 0;
  for (long long walked = 0; walked < months; ++walked) {
    days += Month_Length(month, Cal_Style);
    month = engine::Month_After(month);
  }
  return days;
}

}  // namespace

long long Count_Leap_Years(long long First_Year, long long Last_Year, const std::string& Cal_Style) {
  if (Last_Year < First_Year) return 0;
  const long long fourth_years = Count_Multiples(First_Year, Last_Year, 4);
  // The same test as Is_It_A_Leap_Year: every style but "Julian" drops the centuries that 400
  // does not divide.
  if (Cal_Style == "Julian") return fourth_years;
  return fourth_years - Count_Multiples(First_Year, Last_Year, 100) + Count_Multiples(First_Year, Last_Year, 400);
}

Time_Difference Work_Out_Time_Difference(const std::string& Cal_Style, const Moment& Moment_1, const Moment& Moment_2) {
  Check_Moment(Moment_1);
  Check_Moment(Moment_2);
  const bool first_is_later = Order_Key(Moment_1) >= Order_Key(Moment_2);
  const Moment& later = first_is_later ? Moment_1 : Moment_2;
  const Moment& earlier = first_is_later ? Moment_2 : Moment_1;

  Time_Difference pieces;
  Subtract_Fields(Cal_Style, later, earlier, pieces);
  pieces.Years_In_Months = pieces.Years * 12;
  pieces.Years_In_Days = Years_In_Days(Cal_Style, earlier, pieces.Years);
  pieces.Years_In_Hours = Calculate("Multiply", std::to_string(pieces.Years_In_Days), "24");
  pieces.Years_In_Minutes = Calculate("Multiply", std::to_string(pieces.Years_In_Days), "1440");
  pieces.Months_In_Days = Months_In_Days(Cal_Style, later, earlier, pieces.Months);
  pieces.Months_In_Hours = pieces.Months_In_Days * 24;
  pieces.Months_In_Minutes = pieces.Months_In_Days * 24 * 60;
  pieces.Days_In_Hours = pieces.Days * 24;
  pieces.Days_In_Minutes = pieces.Days * 24 * 60;
  pieces.Hours_In_Minutes = pieces.Hours * 60;
  return pieces;
}

namespace {

// Sums in hours and minutes go through the text arithmetic; a negative day remainder makes
// some of their terms negative, hence the signed sum.
std::string Total_Hours(const Time_Difference& t) {
  return Add_Signed(Add_Signed(t.Years_In_Hours, t.Months_In_Hours), Add_Signed(t.Days_In_Hours, t.Hours));
}

std::string Total_Minutes(const Time_Difference& t) {
  std::string total = Add_Signed(t.Years_In_Minutes, t.Months_In_Minutes);
  total = Add_Signed(total, t.Days_In_Minutes);
  total = Add_Signed(total, t.Hours_In_Minutes);
  return Add_Signed(total, t.Minutes);
}

struct Answer_Row {
  const char* name;
  Value (*answer)(const Time_Difference&);
};

using T = const Time_Difference&;

const std::array<Answer_Row, 19> kAnswers{{
    {"Total Years In Years", [](T t) { return Value(t.Years); }},
    {"Total Years In Months", [](T t) { return Value(t.Years_In_Months); }},
    {"Total Years In Days", [](T t) { return Value(t.Years_In_Days); }},
    {"Total Years In Hours", [](T t) { return Value(t.Years_In_Hours); }},
    {"Total Years In Minutes", [](T t) { return Value(t.Years_In_Minutes); }},
    {"Total Months In Months", [](T t) { return Value(t.Years_In_Months + t.Months); }},
    {"Remaining Months In Months", [](T t) { return Value(t.Months); }},
    {"Remaining Months In Days", [](T t) { return Value(t.Months_In_Days); }},
    {"Remaining Months In Hours", [](T t) { return Value(t.Months_In_Hours); }},
    {"Remaining Months In Minutes", [](T t) { return Value(t.Months_In_Minutes); }},
    {"Total Days In Days", [](T t) { return Value(t.Years_In_Days + t.Months_In_Days + t.Days); }},
    {"Remaining Days In Days", [](T t) { return Value(t.Days); }},
    {"Remaining Days In Hours", [](T t) { return Value(t.Days_In_Hours); }},
    {"Remaining Days In Minutes", [](T t) { return Value(t.Days_In_Minutes); }},
    {"Total Hours In Hours", [](T t) { return Value(Total_Hours(t)); }},
    {"Remaining Hours In Hours", [](T t) { return Value(t.Hours); }},
    {"Remaining Hours In Minutes", [](T t) { return Value(t.Hours_In_Minutes); }},
    {"Total Minutes In Minutes", [](T t) { return Value(Total_Minutes(t)); }},
    {"Remaining Minutes In Minutes", [](T t) { return Value(t.Minutes); }},
}};

}  // namespace

Value Time_Difference_Answer(const Time_Difference& Pieces, const std::string& Value_To_Return) {
  for (const Answer_Row& row : kAnswers) {
    if (Value_To_Return == row.name) return row.answer(Pieces);
  }
  return {};
}

Value Date_Difference(const std::string& Value_To_Return, const std::string& Cal_Style, const Moment& Moment_1,
                      const Moment& Moment_2) {
  return Time_Difference_Answer(Work_Out_Time_Difference(Cal_Style, Moment_1, Moment_2), Value_To_Return);
}

namespace {

// Per unit, coarse to fine: the answer its row starts with in remaining mode, and what it adds,
// in its own unit, for each unticked unit above it, nearest first.
struct Remaining_Row {
  const char* own;
  std::array<const char*, kTimeUnits - 1> above;
};

constexpr std::array<Remaining_Row, kTimeUnits> kRemainingRows{{
    {"Total Years In Years", {}},
    {"Remaining Months In Months", {"Total Years In Months"}},
    {"Remaining Days In Days", {"Remaining Months In Days", "Total Years In Days"}},
    {"Remaining Hours In Hours", {"Remaining Days In Hours", "Remaining Months In Hours", "Total Years In Hours"}},
    {"Remaining Minutes In Minutes",
     {"Remaining Hours In Minutes", "Remaining Days In Minutes", "Remaining Months In Minutes",
      "Total Years In Minutes"}},
}};

constexpr std::array<const char*, kTimeUnits> kTotalRows{"Total Years In Years", "Total Months In Months",
                                                         "Total Days In Days", "Total Hours In Hours",
                                                         "Total Minutes In Minutes"};

std::string Answer_Text(const Time_Difference& pieces, const char* name) {
  return Time_Difference_Answer(pieces, name).text();
}

// The chain of additions stops at the first ticked unit above.
std::string Remaining_Row_Text(const Time_Difference& pieces, std::size_t unit, const Ticked_Units& ticked) {
  if (!ticked[unit]) return "N/A";
  const Remaining_Row& row = kRemainingRows[unit];
  std::string shown = Answer_Text(pieces, row.own);
  for (std::size_t step = 0; step < unit && !ticked[unit - 1 - step]; ++step) {
    shown = Add_Signed(shown, Answer_Text(pieces, row.above[step]));
  }
  return shown;
}

}  // namespace

std::optional<Time_Rows> Display_Time_Difference(const std::string& Cal_Style, const Moment& Moment_0,
                                                 const Moment& Moment_1, Display_Option Option,
                                                 const Ticked_Units& Ticked) {
  if (Option == Display_Option::Neither) return std::nullopt;
  const Time_Difference pieces = Work_Out_Time_Difference(Cal_Style, Moment_0, Moment_1);
  Time_Rows rows;
  for (std::size_t unit = 0; unit < kTimeUnits; ++unit) {
    rows[unit] = Option == Display_Option::Total ? Answer_Text(pieces, kTotalRows[unit])
                                                 : Remaining_Row_Text(pieces, unit, Ticked);
  }
  return rows;
}

std::string Parse_Out(const std::string& Time_String, const std::string& Value_To_Return) {
  using text::InStr;
  using text::Left;
  using text::Mid;
  // Cut in the order the parts stand: hour, minute, month name, date, year.
  std::string rest = Time_String;
  const std::string hour = Left(rest, InStr(rest, ":") - 1);
  rest = Mid(rest, InStr(rest, ":") + 1);
  const std::string minute = Left(rest, InStr(rest, ",") - 1);
  rest = Mid(rest, InStr(rest, ",") + 2);
  const std::string month = Left(rest, InStr(rest, " ") - 1);
  rest = Mid(rest, InStr(rest, " ") + 1);
  const std::string date = Left(rest, InStr(rest, ",") - 1);
  const std::string year = Mid(rest, InStr(rest, ",") + 2);
  if (Value_To_Return == "Hour") return hour;
  if (Value_To_Return == "Minute") return minute;
  if (Value_To_Return == "Month") return month;
  if (Value_To_Return == "Date") return date;
  if (Value_To_Return == "Year") return year;
  return {};
}

}  // namespace orrivane::elapsed
