#include "calendar/task_overlay.h"

#include "engine/calendar_engine.h"

namespace orrivane::calendar {

namespace {

std::string Month_Name(long long month) {
  if (month == 0) month = 12;
  if (month == 13) month = 1;
  return engine::Define_Month(month, "Get Month Name").text();
}

void Add_If_On_Grid(std::vector<int>& cells, long long cell) {
  if (cell >= 0 && cell <= 41) cells.push_back(static_cast<int>(cell));
}

}  // namespace

std::vector<int> Task_Cells(const ShownMonth& shown, const std::string& start_month, long long start_date,
                            long long year) {
  std::vector<int> cells;
  if (start_month == Month_Name(shown.month) && year == shown.year) {
    Add_If_On_Grid(cells, shown.first_cell - 1 + start_date);
  }
  const long long prior_year = shown.month == 1 ? shown.year - 1 : shown.year;
  if (start_month == Month_Name(shown.month - 1) && year == prior_year && start_date >= shown.first_caption &&
      start_date > 7) {
    Add_If_On_Grid(cells, start_date - shown.first_caption);
  }
  const long long next_year = shown.month == 12 ? shown.year + 1 : shown.year;
  if (start_month == Month_Name(shown.month + 1) && year == next_year && start_date <= shown.last_caption) {
    Add_If_On_Grid(cells, start_date + shown.first_cell - 1 + shown.length);
  }
  return cells;
}

std::string Task_Item(const std::string& start_hour, const std::string& task_name, const std::string& record_number) {
  return start_hour + ", " + task_name + ", #" + record_number;
}

}  // namespace orrivane::calendar
