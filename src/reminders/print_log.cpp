#include "reminders/print_log.h"

#include <algorithm>

#include "core/text.h"
#include "engine/vocabulary.h"
#include "organizer/date_time_text.h"
#include "organizer/log_file.h"
#include "organizer/task_list.h"

namespace orrivane::reminders {

namespace {

using organizer::DateAndTime;
using organizer::kTimePeriods;

const organizer::TimePeriod& Period_At(int index) { return kTimePeriods[static_cast<std::size_t>(index)]; }

// The 12-hour hour, ":", the minute as it stands, blank, "AM" or "PM".
std::string Twelve_Hour_Time(const Value& Hour, const Value& Minute) {
  using organizer::Convert_Hour_From_Military_Time;
  return Convert_Hour_From_Military_Time(Hour, "Hour").text() + ":" + Minute.text() + " " +
         Convert_Hour_From_Military_Time(Hour, "Time Of Day").text();
}

// A period's name as a part of a file name: "Early Morning" is "Early-Morning".
std::string Without_Blanks(std::string_view name) {
  std::string part(name);
  std::ranges::replace(part, ' ', '-');
  return part;
}

}  // namespace

// ---- The chart's period and date ----------------------------------------------------------------

std::string Output_Style_Date(const std::string& system_date) {
  using organizer::Parse_Date;
  return engine::Define_Month(Parse_Date(system_date, "Month").plus_zero(), "Get Month Name").text() + " " +
         Parse_Date(system_date, "Date").plus_zero().text() + ", " + Parse_Date(system_date, "Year").text();
}

PrintPeriod Print_Period_Of(const DateAndTime& moment) {
  const organizer::ChartView view = organizer::View_Of(moment);
  return {std::string(Period_At(view.period).name), Output_Style_Date(moment.date)};
}

std::optional<DateAndTime> Print_Chart_Moment(const std::string& output_date, std::string_view period) {
  using organizer::Parse_Output_Style_Date;
  const std::optional<int> named = organizer::Period_Named(period);
  if (!named) return std::nullopt;
  const Value date = organizer::Convert_To_Date_Format(Parse_Output_Style_Date(output_date, "Month"),
                                                       Parse_Output_Style_Date(output_date, "Date"),
                                                       Parse_Output_Style_Date(output_date, "Year"));
  return DateAndTime{date.text(), std::string(Period_At(*named).sample_time)};
}

// ---- Paging -------------------------------------------------------------------------------------

std::vector<Sheet> Sheets_Of(int items, int per_sheet) {
  std::vector<Sheet> sheets;
  for (int first = 0; first < items; first += per_sheet) sheets.push_back({first, std::min(per_sheet, items - first)});
  return sheets;
}

std::vector<organizer::ScheduleRecord> Member_Tasks(const std::string& log_path, const std::string& member) {
  std::vector<organizer::ScheduleRecord> tasks;
  const Value name(member);
  organizer::For_Each_Record(log_path, [&](const organizer::ScheduleRecord& record) {
    if (record.Person_Name == name && record.Record_Number.number() != -1) tasks.push_back(record);
  });
  return tasks;
}

// ---- A task list sheet --------------------------------------------------------------------------

std::string Task_List_Heading(const std::string& member) { return "Tasklist For: " + member; }

TaskListRow Task_List_Row(const organizer::ScheduleRecord& task) {
  using organizer::Task_Date_Label;
  return {static_cast<unsigned>(task.Color_Code.whole()),
          task.Task_Name.text(),
          task.Task_Description.text(),
          Task_Date_Label(task.Start_Month, task.Start_Date, task.Start_Century, task.Start_Year),
          Twelve_Hour_Time(task.Start_Hour, task.Start_Minute),
          Task_Date_Label(task.Finish_Month, task.Finish_Date, task.Finish_Century, task.Finish_Year),
          Twelve_Hour_Time(task.Finish_Hour, task.Finish_Minute)};
}

// ---- The print job ------------------------------------------------------------------------------

std::string Print_Log_Document_Name(const std::optional<DateAndTime>& chart_moment, bool task_lists) {
  std::string name = "Orrivane-log";
  if (chart_moment) {
    const organizer::ChartView view = organizer::View_Of(*chart_moment);
    name += "-chart-" + text::Pad_Zero(view.year, 4) + "-" + text::Pad_Zero(view.month, 2) + "-" +
            text::Pad_Zero(view.date, 2) + "-" + Without_Blanks(Period_At(view.period).name);
  }
  if (chart_moment && task_lists) name += "-and";
  if (task_lists) name += "-task-lists";
  return name;
}

}  // namespace orrivane::reminders
