#include "organizer/task_list.h"

#include <cmath>
#include <utility>

#include "core/text.h"
#include "engine/calendar_engine.h"
#include "organizer/date_time_text.h"
#include "organizer/log_file.h"

namespace orrivane::organizer {

namespace {

constexpr char kGregorian[] = "Gregorian";
constexpr long long kYearsInCentury = 100;
constexpr char kAfterFreshMinute[] = "0";    // an After box left empty: the start of the hour
constexpr char kBeforeFreshMinute[] = "59";  // a Before box left empty: its last minute

// A text taken apart from the left, as the program's parsers do: each cut answers what stands
// left of the first occurrence of the separator and goes on with what stands right of it.
class TextCutter {
 public:
  explicit TextCutter(std::string whole) : rest_(std::move(whole)) {}

  // Without the separator the program asks text::Left for -1 characters: the failure 5.
  std::string Cut_At(std::string_view separator) {
    const long long at = text::InStr(rest_, separator);
    std::string left = text::Left(rest_, at - 1);
    rest_ = text::Mid(rest_, at + text::Len(separator));
    return left;
  }
  // The blank after a separator, skipped whatever it is.
  void Skip_One() { rest_ = text::Mid(rest_, 2); }
  const std::string& Rest() const { return rest_; }

 private:
  std::string rest_;
};

long long Month_Number(const Value& month) { return engine::Define_Month(month, "Get Month Number").whole(); }

Value Full_Year(const Value& century, const Value& year) {
  return century.number() * kYearsInCentury + year.number();
}

TaskMoment Moment_Of(const Value& month, const Value& date, const Value& century, const Value& year,
                     const Value& hour, const Value& minute) {
  return {Full_Year(century, year).whole(), Month_Number(month), date.whole(), hour.whole(), minute.whole()};
}

bool Within(const TaskMoment& moment, const TaskFilter& filter) {
  if (filter.After && moment < *filter.After) return false;
  if (filter.Before && moment > *filter.Before) return false;
  return true;
}

std::optional<TaskMoment> Bound_Of(const std::string& caption) {
  if (!Filter_Bound_Counts(caption)) return std::nullopt;
  return Parse_Filter_Bound(caption);
}

// Today and the present hour, from one reading of the clock.
struct Present {
  std::string Month;  // three letters
  Value Date;
  long long Year = 0;
  Value Hour;  // of the 24-hour clock
};

Present Present_Of(const std::string& System_Date, const std::string& System_Time) {
  Present now;
  now.Month = engine::Define_Month(Parse_Date(System_Date, "Month").plus_zero(), "Get Three Letter Month Name").text();
  now.Date = Parse_Date(System_Date, "Date");
  now.Year = Parse_Date(System_Date, "Year").whole();
  now.Hour = Convert_Hour_To_Military_Time(Parse_System_Time(System_Time, "Hour"),
                                           Parse_System_Time(System_Time, "Time Of Day"));
  return now;
}

void Fill_If_Empty(std::string& box, std::string present) {
  if (box.empty()) box = std::move(present);
}

// The full year of a side whose boxes are filled.
Value Year_Of_Boxes(const FilterBoxes& boxes) { return Full_Year(Value(boxes.Century), Value(boxes.Year)); }

bool Is_Valid_Side(const FilterBoxes& boxes) {
  return engine::Is_It_A_Valid_Date(boxes.Month, boxes.Date, Year_Of_Boxes(boxes), kGregorian) == Value(1);
}

std::string Bound_Of_Boxes(const std::optional<FilterBoxes>& boxes) {
  if (!boxes) return std::string(kNoDateSelected);
  return Filter_Bound_Text(Value(boxes->Hour), Value(boxes->Minute), boxes->Month, Value(boxes->Date),
                           Year_Of_Boxes(*boxes));
}

// The error bit of each side of the filter window: 1 After, 2 Before, so both make 3.
constexpr int Error_Bit(FilterSide side) { return side == kAfterSide ? 1 : 2; }

constexpr char kFebruary[] = "Feb";
constexpr char kOtherMonthEnd[] = " days in it.";

// For 1 and 2 the text is the end of the message in February, after the month's length; the
// missing word of the first is the program's own.
const CodedMessage kFilterDatesMessages[] = {
    {1, Exclamation_Message("Invalid Date", " days in for the year that is currently selected.")},
    {2, Exclamation_Message("Invalid Date", " days in it for the year that is currently selected.")},
    {3, Exclamation_Message("Invalid Dates", "The selected dates are invalid for the currently selected months.")},
};

constexpr int kMemberRow = 1;
constexpr int kEmptyRow = 2;
// For a row with a member the text is the head of the message, before the member's name.
const CodedMessage kNoEventMessages[] = {
    {kMemberRow, {"No Event Scheduled", "There is currently no event record available for ", vbOKOnly, vbNoIcon}},
    {kEmptyRow,
     {"No Event Scheduled", "There is currently no event record available for this person for this time period.",
      vbOKOnly, vbNoIcon}},
};
constexpr char kNoEventTail[] = " for this time period.";

}  // namespace

// ---- Entries ----------------------------------------------------------------------------------

std::string Task_List_Entry(const ScheduleRecord& record) {
  const std::string month_name = record.Start_Month.text();
  return Full_Year(record.Start_Century, record.Start_Year).text() + ", " +
         text::Pad_Zero(Month_Number(record.Start_Month), 2) + text::Left(month_name, 3) + " " +
         record.Start_Date.text() + ", " + record.Start_Hour.text() + ":" + record.Start_Minute.text() + " " +
         record.Task_Name.text() + ", #" + record.Record_Number.text();
}

std::string Record_Number_Of_Entry(std::string_view entry) {
  return text::Mid(entry, text::InStrRev(entry, "#") + 1);
}

// ---- Moments and the filter -----------------------------------------------------------------

TaskMoment Start_Moment(const ScheduleRecord& r) {
  return Moment_Of(r.Start_Month, r.Start_Date, r.Start_Century, r.Start_Year, r.Start_Hour, r.Start_Minute);
}

TaskMoment Finish_Moment(const ScheduleRecord& r) {
  return Moment_Of(r.Finish_Month, r.Finish_Date, r.Finish_Century, r.Finish_Year, r.Finish_Hour,
                   r.Finish_Minute);
}

bool Filter_Bound_Counts(std::string_view caption) { return !caption.empty() && caption != kNoDateSelected; }

TaskMoment Parse_Filter_Bound(const std::string& caption) {
  TextCutter bound(caption);
  const std::string hour = bound.Cut_At(":");
  const std::string minute = bound.Cut_At(",");
  bound.Skip_One();
  const std::string month = bound.Cut_At(".");
  bound.Skip_One();
  const std::string date = bound.Cut_At(",");
  bound.Skip_One();
  return {Value(bound.Rest()).whole(), Month_Number(month), Value(date).whole(), Value(hour).whole(),
          Value(minute).whole()};
}

std::string Filter_Bound_Text(const Value& Hour, const Value& Minute, const std::string& Month, const Value& Date,
                              const Value& Year) {
  return text::Pad_Zero(Hour.whole(), 2) + ":" + text::Pad_Zero(Minute.whole(), 2) + ", " + Month + ". " +
         Date.plus_zero().text() + ", " + Year.text();
}

TaskFilter Task_Filter_Of(const std::string& After_Caption, const std::string& Before_Caption, int Start_Check,
                          int Finish_Check) {
  TaskFilter filter;
  filter.After = Bound_Of(After_Caption);
  filter.Before = Bound_Of(Before_Caption);
  filter.Start_Applies = Start_Check == 1;
  filter.Finish_Applies = Finish_Check == 1;
  return filter;
}

bool Passes_Task_Filter(const ScheduleRecord& record, const TaskFilter& filter) {
  if (filter.Start_Applies && !Within(Start_Moment(record), filter)) return false;
  if (filter.Finish_Applies && !Within(Finish_Moment(record), filter)) return false;
  return true;
}

bool Is_Task_Of_Member(const ScheduleRecord& record, const std::string& member) {
  return record.Person_Name == Value(member) && Compare(record.Record_Number, Value(-1)) > 0;
}

std::vector<std::string> Member_Task_Entries(const std::string& log_path, const std::string& member,
                                             const std::optional<TaskFilter>& filter) {
  std::vector<std::string> entries;
  For_Each_Record(log_path, [&](const ScheduleRecord& record) {
    if (!Is_Task_Of_Member(record, member)) return;
    if (filter && !Passes_Task_Filter(record, *filter)) return;
    entries.push_back(Task_List_Entry(record));
  });
  return entries;
}

// ---- The fresh filter and the filter window ----------------------------------------------------

std::string Present_Hour_Bound(const std::string& System_Date, const std::string& System_Time,
                               const std::string& Minute) {
  const Present now = Present_Of(System_Date, System_Time);
  return Filter_Bound_Text(now.Hour, Value(Minute), now.Month, now.Date, now.Year);
}

void Fill_Empty_Filter_Boxes(FilterBoxes& boxes, FilterSide side, const std::string& System_Date,
                             const std::string& System_Time) {
  const Present now = Present_Of(System_Date, System_Time);
  Fill_If_Empty(boxes.Hour, now.Hour.text());
  Fill_If_Empty(boxes.Minute, side == kAfterSide ? kAfterFreshMinute : kBeforeFreshMinute);
  Fill_If_Empty(boxes.Month, now.Month);
  Fill_If_Empty(boxes.Date, now.Date.text());
  Fill_If_Empty(boxes.Century, std::to_string(now.Year / kYearsInCentury));
  Fill_If_Empty(boxes.Year, std::to_string(now.Year % kYearsInCentury));
}

FilterDatesResult Set_Date_Filters(std::optional<FilterBoxes> After, std::optional<FilterBoxes> Before,
                                   const std::string& System_Date, const std::string& System_Time) {
  FilterDatesResult result;
  const std::pair<std::optional<FilterBoxes>*, FilterSide> sides[] = {{&After, kAfterSide}, {&Before, kBeforeSide}};
  for (auto [boxes, side] : sides) {
    if (!*boxes) continue;
    Fill_Empty_Filter_Boxes(**boxes, side, System_Date, System_Time);
    if (Is_Valid_Side(**boxes)) continue;
    result.Error += Error_Bit(side);
    result.Month = (*boxes)->Month;
    result.Max_Days = engine::Is_It_A_Valid_Date(result.Month, "Get Max Days", Year_Of_Boxes(**boxes), kGregorian);
  }
  if (result.Error != 0) return result;
  result.After_Caption = Bound_Of_Boxes(After);
  result.Before_Caption = Bound_Of_Boxes(Before);
  return result;
}

Message Filter_Dates_Message(const FilterDatesResult& result) {
  Message message = Message_Of(kFilterDatesMessages, result.Error);
  if (result.Error == Error_Bit(kAfterSide) || result.Error == Error_Bit(kBeforeSide)) {
    const std::string end = result.Month == kFebruary ? message.text : kOtherMonthEnd;
    message.text = result.Month + " only has " + result.Max_Days.text() + end;
  }
  return message;
}

// ---- Finding and showing a task ----------------------------------------------------------------

ScheduleRecord Find_Task_Record(const std::string& log_path, const Value& Record_Number) {
  const double wanted = Record_Number.number();
  LogReader log(log_path);
  ScheduleRecord record;
  while (log.Next(record)) {
    if (record.Record_Number.number() == wanted) break;
  }
  return record;
}

Message No_Event_Record_Message(const std::string& member) {
  if (member.empty()) return Message_Of(kNoEventMessages, kEmptyRow);
  Message message = Message_Of(kNoEventMessages, kMemberRow);
  message.text += member + kNoEventTail;
  return message;
}

std::string Task_Date_Label(const Value& Month, const Value& Date, const Value& Century, const Value& Year) {
  return Month.text() + " " + Date.text() + ", " + Full_Year(Century, Year).text();
}

std::string Task_Time_Label(const Value& Hour, const Value& Minute) { return Hour.text() + ":" + Minute.text(); }

}  // namespace orrivane::organizer
