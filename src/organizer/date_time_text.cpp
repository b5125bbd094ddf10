#include "organizer/date_time_text.h"

#include <array>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <string_view>
#include <utility>

#include "core/runtime_failure.h"
#include "core/text.h"

namespace orrivane::organizer {

namespace {

// What stands left of the first occurrence of a separator, and what stands right of it.
struct Cut {
  std::string left;
  std::string rest;
};

// Without the separator the position is 0 and text::Left is asked for -1 characters: the
// failure 5 is how a text of the wrong shape ends, and it is kept.
Cut Cut_At(const std::string& whole, std::string_view separator) {
  const long long at = text::InStr(whole, separator);
  std::string left = text::Left(whole, at - 1);
  return {std::move(left), text::Right(whole, text::Len(whole) - at)};
}

struct NamedPart {
  std::string_view name;
  const std::string& value;
};

// The part of that name as text, or empty when no part has it.
Value Pick(std::string_view wanted, std::initializer_list<NamedPart> parts) {
  for (const NamedPart& part : parts) {
    if (part.name == wanted) return Value(part.value);
  }
  return {};
}

// Row n accepts the number n and these texts, compared exactly; the rows are tried from
// January on. The spellings are the program's own ("fevier", "februaro", "juilliet", no Spanish
// word for August) and must stay as they are: they are what stored logs hold.
constexpr std::array<std::string_view, 12> kMonthForms{
    "01|Jan|January|enero|janvier",
    "02|Feb|February|fevier|februaro",
    "03|Mar|March|marzo|mars",
    "04|Apr|April|abril|avril",
    "05|May|Mayo|Mai",
    "06|Jun|June|junio|juin",
    "07|Jul|July|julio|juilliet",
    "08|Aug|August|aout",
    "09|Sep|September|septiembre|septembre",
    "Oct|October|octubre|octobre",
    "Nov|November|noviembre|novembre",
    "Dec|December|diciembre|decembre",
};

bool Is_One_Of(const Value& month, std::string_view forms) {
  while (!forms.empty()) {
    const std::size_t bar = forms.find('|');
    if (month == Value(forms.substr(0, bar))) return true;
    forms = bar == std::string_view::npos ? std::string_view() : forms.substr(bar + 1);
  }
  return false;
}

// The month's number as text, or "" when no row takes it.
std::string Month_Number_Text(const Value& month) {
  for (std::size_t row = 0; row < kMonthForms.size(); ++row) {
    const int number = static_cast<int>(row) + 1;
    if (month == Value(number) || Is_One_Of(month, kMonthForms[row])) return std::to_string(number);
  }
  return {};
}

// The hour arrives as a 16-bit whole number, converted as the program converts a loose value
// handed to such a parameter.
int Sixteen_Bit(const Value& hour) {
  const std::int64_t whole = hour.whole();
  if (whole < std::numeric_limits<std::int16_t>::min() || whole > std::numeric_limits<std::int16_t>::max()) {
    throw RuntimeFailure(kOverflow);
  }
  return static_cast<int>(whole);
}

}  // namespace

Value Parse_System_Time(const Value& Time_String, const std::string& Part_Of_Time_String_Returned) {
  const Cut hour = Cut_At(Time_String.text(), ":");
  const Cut minute = Cut_At(hour.rest, ":");
  const Cut second = Cut_At(minute.rest, " ");
  return Pick(Part_Of_Time_String_Returned, {{"Hour", hour.left},
                                             {"Minute", minute.left},
                                             {"Second", second.left},
                                             {"Time Of Day", second.rest}});
}

Value Parse_Output_Style_12h_Time(const Value& Time_String, const std::string& Part_Of_String_Returned) {
  const Cut hour = Cut_At(Time_String.text(), ":");
  const Cut minute = Cut_At(hour.rest, " ");
  return Pick(Part_Of_String_Returned, {{"Hour", hour.left}, {"Minute", minute.left}, {"Time Of Day", minute.rest}});
}

Value Parse_Output_Style_24h_Time(const Value& Time_String, const std::string& Part_Of_String_Returned) {
  const Cut hour = Cut_At(Time_String.text(), ":");
  return Pick(Part_Of_String_Returned, {{"Hour", hour.left}, {"Minute", hour.rest}});
}

Value Parse_Date(const Value& Date_String, const std::string& Part_Of_Date_Returned) {
  const std::string date_string = Date_String.text();
  const long long last_slash = text::InStrRev(date_string, "/");
  const std::string year = text::Right(date_string, text::Len(date_string) - last_slash);
  const Cut month = Cut_At(text::Left(date_string, last_slash - 1), "/");
  return Pick(Part_Of_Date_Returned, {{"Year", year}, {"Month", month.left}, {"Date", month.rest}});
}

Value Parse_Output_Style_Date(const Value& Date_String, const std::string& Part_Of_Date_Returned) {
  const Cut month = Cut_At(Date_String.text(), " ");
  const Cut date = Cut_At(month.rest, ",");
  // The year is taken to begin two characters after the comma, whatever the first one is.
  const std::string year = text::Right(date.rest, text::Len(date.rest) - 1);
  return Pick(Part_Of_Date_Returned, {{"Month", month.left}, {"Date", date.left}, {"Year", year}});
}

Value Convert_To_Date_Format(const Value& Month_, const Value& Date_, const Value& Four_Digit_Year_) {
  return Value(Month_Number_Text(Month_) + "/" + Date_.text() + "/" + Four_Digit_Year_.text());
}

Value Convert_Hour_To_Military_Time(const Value& Hour_To_Convert, const Value& Time_Of_Day) {
  const int hour = Sixteen_Bit(Hour_To_Convert);
  Value military;
  if (hour == 12) {
    military = 0;
  } else if (hour >= 1 && hour <= 11) {
    military = hour;
  }
  // Empty counts as 0 here: an hour the table doesn't know comes out as 12 in the afternoon.
  if (Time_Of_Day == Value("PM")) military = military.number() + 12;
  return military;
}

Value Convert_Hour_From_Military_Time(const Value& Hour_To_Convert, const std::string& Hour_Or_Time_Of_Day) {
  const int hour = Sixteen_Bit(Hour_To_Convert);
  if (hour < 0 || hour > 23) return {};
  if (Hour_Or_Time_Of_Day == "Hour") return hour == 0 ? 12 : (hour > 12 ? hour - 12 : hour);
  if (Hour_Or_Time_Of_Day == "Time Of Day") return hour < 12 ? "AM" : "PM";
  return {};
}

}  // namespace orrivane::organizer
