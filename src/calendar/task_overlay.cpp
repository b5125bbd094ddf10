#include "calendar/task_overlay.h"

#include "core/value.h"
#include "engine/calendar_engine.h"
#include "organizer/log_file.h"

namespace orrivane::calendar {

namespace {

void Add_If_On_Grid(std::vector<int>& cells, long long cell) {
  if (cell >= 0 && cell <= engine::kLastGridCell) cells.push_back(static_cast<int>(cell));
}

bool Is_Month(const std::string& name, long long year, engine::YearMonth month) {
  return name == engine::Full_Month_Name(month.month) && year == month.year;
}

}  // namespace

std::vector<int> Task_Cells(const ShownMonth& shown, const std::string& start_month, long long start_date,
                            long long year) {
  std::vector<int> cells;
  const engine::YearMonth on_show{shown.year, static_cast<int>(shown.month)};
  if (Is_Month(start_month, year, on_show)) {
    Add_If_On_Grid(cells, shown.first_cell - 1 + start_date);
  }
  if (Is_Month(start_month, year, engine::Month_Before(on_show)) && start_date >= shown.first_caption &&
      start_date > 7) {
    Add_If_On_Grid(cells, start_date - shown.first_caption);
  }
  if (Is_Month(start_month, year, engine::Month_After(on_show)) && start_date <= shown.last_caption) {
    Add_If_On_Grid(cells, start_date + shown.first_cell - 1 + shown.length);
  }
  return cells;
}

std::string Task_Item(const std::string& start_hour, const std::string& task_name, const std::string& record_number) {
  return start_hour + ", " + task_name + ", #" + record_number;
}

void Show_Tasks_On_Grid(const std::string& log_path, const ShownMonth& shown, const std::string& member,
                        const std::function<void(const TaskOnGrid&)>& show) {
  organizer::For_Each_Record(log_path, [&](const organizer::ScheduleRecord& record) {
    if (record.Record_Number.number() <= -1 || record.Person_Name != Value(member)) return;
    const long long year = static_cast<long long>(record.Start_Century.number() * 100 + record.Start_Year.number());
    const long long date = static_cast<long long>(record.Start_Date.number());
    for (int cell : Task_Cells(shown, record.Start_Month.text(), date, year)) {
      show({cell, Task_Item(record.Start_Hour.text(), record.Task_Name.text(), record.Record_Number.text())});
    }
  });
}

}  // namespace orrivane::calendar
