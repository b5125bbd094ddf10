#include "reminders/non_task_entry.h"

#include <cstdint>

#include "core/colours.h"
#include "core/text.h"
#include "engine/vocabulary.h"
#include "organizer/date_time_text.h"

namespace orrivane::reminders {

namespace {

using organizer::Convert_Hour_From_Military_Time;
using organizer::Parse_Output_Style_Date;
using organizer::Parse_System_Time;

constexpr char kGregorian[] = "Gregorian";
constexpr char kFebruary[] = "February";
constexpr char kUntitled[] = "Message";  // the title of a reminder given none
constexpr std::int64_t kYearsInACentury = 100;

// A time and a date as the label joins them: "2:30 PM" + ", " + "March 5, 2001".
std::string Joined(const std::string& time, const std::string& date) { return time + ", " + date; }

// ---- The time half --------------------------------------------------------------------------------

struct TwelveHourTime {
  std::string hour;
  std::string minute;
  std::string half;  // "AM" or "PM"

  std::string Text() const { return hour + ":" + minute + " " + half; }
};

// "2:30 PM" read by the system time's parser, which wants seconds: ":00" goes before the blank.
TwelveHourTime Read_Label_Time(const std::string& time) {
  const long long blank = text::InStr(time, " ");
  const std::string with_seconds = text::Left(time, blank - 1) + ":00" + text::Mid(time, blank);
  return {Parse_System_Time(with_seconds, "Hour").text(), Parse_System_Time(with_seconds, "Minute").text(),
          Parse_System_Time(with_seconds, "Time Of Day").text()};
}

std::string Changed_Time(const std::string& time, std::string_view part, const std::string& choice) {
  TwelveHourTime changed = Read_Label_Time(time);
  if (part == "Hour") {
    changed.hour = Convert_Hour_From_Military_Time(choice, "Hour").text();
    changed.half = Convert_Hour_From_Military_Time(choice, "Time Of Day").text();
  } else {
    changed.minute = choice;
  }
  return changed.Text();
}

// ---- The date half --------------------------------------------------------------------------------

struct LabelDate {
  std::string month;  // the full name
  std::string day;
  Value century;
  Value year_in_century;

  std::string Text() const {
    const std::int64_t year = century.whole() * kYearsInACentury + year_in_century.whole();
    return month + " " + day + ", " + std::to_string(year);
  }
};

LabelDate Read_Label_Date(const std::string& date) {
  const std::int64_t year = Parse_Output_Style_Date(date, "Year").whole();
  return {Parse_Output_Style_Date(date, "Month").text(), Parse_Output_Style_Date(date, "Date").text(),
          year / kYearsInACentury, year % kYearsInACentury};
}

// "05" as the day 5; "10" and "5" stand.
std::string Without_Leading_Zero(const std::string& day) {
  if (day.size() == 2 && day.front() == '0') return day.substr(1);
  return day;
}

std::string Changed_Date(const std::string& date, std::string_view part, const std::string& choice) {
  LabelDate changed = Read_Label_Date(date);
  if (part == "Month") changed.month = engine::Define_Month(choice, "Get Month Name").text();
  if (part == "Date") changed.day = Without_Leading_Zero(choice);
  if (part == "Year") changed.year_in_century = choice;
  if (part == "Century") changed.century = choice;
  return changed.Text();
}

bool Is_Time_Part(std::string_view part) { return part == "Hour" || part == "Minute"; }

// ---- Messages ---------------------------------------------------------------------------------------

enum : int { kDayBeyondMonth = 1, kDayBeyondFebruary = 2, kReminderAdded = 3, kReminderUpdated = 4 };

// For the two invalid dates the text is the end of the message, after the month's length.
const CodedMessage kNonTaskMessages[] = {
    {kDayBeyondMonth, Exclamation_Message("Invalid Date", " days in it.")},
    {kDayBeyondFebruary, Exclamation_Message("Invalid Date", " days in it for the selected year.")},
    {kReminderAdded, Message{"Reminded Added", "Reminder has been added."}},
    {kReminderUpdated, Message{"Changes Saved", "Reminder has been updated."}},
};

struct SavedMode {
  std::string_view caption;
  int message;
};
constexpr SavedMode kSavedModes[] = {{kAddCaption, kReminderAdded}, {kUpdateCaption, kReminderUpdated}};

constexpr std::uint32_t kBlack = 0;
constexpr StatusLook kStatusOff{"Off", false, kBlack};
constexpr StatusLook kStatusOn{"ON", true, colours::kRed};

}  // namespace

std::string Present_Non_Task_Moment(const std::string& system_date, const std::string& system_time) {
  const TwelveHourTime now{Parse_System_Time(system_time, "Hour").text(), Parse_System_Time(system_time, "Minute").text(),
                           Parse_System_Time(system_time, "Time Of Day").text()};
  const std::string month =
      engine::Define_Month(organizer::Parse_Date(system_date, "Month"), "Get Month Name").text();
  const std::string today = month + " " + organizer::Parse_Date(system_date, "Date").text() + ", " +
                            organizer::Parse_Date(system_date, "Year").text();
  return Joined(now.Text(), today);
}

std::string Change_Full_String(const std::string& label, std::string_view Part_To_Change, const std::string& choice) {
  const TimeAndDate cut = Cut_Time_And_Date(label);
  if (Is_Time_Part(Part_To_Change)) return Joined(Changed_Time(cut.time, Part_To_Change, choice), cut.date);
  return Joined(cut.time, Changed_Date(cut.date, Part_To_Change, choice));
}

Message Non_Task_Date_Message(const std::string& label) {
  const std::string date = Cut_Time_And_Date(label).date;
  const Value day = Parse_Output_Style_Date(date, "Date");
  const Value month = Parse_Output_Style_Date(date, "Month");
  const Value year = Parse_Output_Style_Date(date, "Year");
  if (engine::Is_It_A_Valid_Date(month, day, year, kGregorian) == Value(1)) return {};
  const Value days = engine::Is_It_A_Valid_Date(month, "Get Max Days", year, kGregorian);
  Message message = Message_Of(kNonTaskMessages, month.text() == kFebruary ? kDayBeyondFebruary : kDayBeyondMonth);
  message.text = month.text() + " only has " + days.text() + message.text;
  return message;
}

NonTaskReminderRecord Non_Task_Reminder_Of(const Value& number, const NonTaskEntry& entry) {
  const std::string title = text::Trim(entry.title).empty() ? std::string(kUntitled) : entry.title;
  return {number, entry.status, title, entry.message, Cvrt_NTTimeDateStrg_To_24h_Tm(entry.label)};
}

Message Non_Task_Saved_Message(std::string_view button_caption) {
  for (const SavedMode& mode : kSavedModes) {
    if (mode.caption == button_caption) return Message_Of(kNonTaskMessages, mode.message);
  }
  return {};
}

Message Save_Non_Task_Reminder(const std::string& path, const std::string& scratch, std::string_view button_caption,
                               const Value& Selected_NT_Record_Number, const NonTaskEntry& entry) {
  // Both modes ask for a new number; an update keeps the number of the record it replaces.
  const NonTaskReminderRecord record = Non_Task_Reminder_Of(Generate_NTRemin_Record_Number(path), entry);
  if (button_caption == kAddCaption) Append_Non_Task_Reminder(path, record);
  if (button_caption == kUpdateCaption) Replace_Non_Task_Reminder(path, scratch, Selected_NT_Record_Number, record);
  return Non_Task_Saved_Message(button_caption);
}

StatusLook Non_Task_Status_Look(bool on) { return on ? kStatusOn : kStatusOff; }

std::string Non_Task_List_Item(const NonTaskReminderRecord& record) {
  return record.NT_Record_Number.text() + " - " + record.NT_Title.text() + ", " +
         Cvrt_NTTimeDateStrg_To_12h_Tm(record.NT_Time_String.text());
}

std::vector<std::string> Non_Task_List_Items(const std::string& path) {
  std::vector<std::string> items;
  For_Each_Non_Task_Reminder(path, [&items](const NonTaskReminderRecord& record) {
    items.push_back(Non_Task_List_Item(record));
  });
  return items;
}

Value Chosen_NT_Record_Number(const std::string& item) { return text::Left(item, text::InStr(item, " ") - 1); }

}  // namespace orrivane::reminders
