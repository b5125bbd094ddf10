#pragma once
// Where the large calendar lists a task: the cell of its start day among the 42, for the
// month on show, the days of the month before in the first row and of the month after in
// the last rows.
#include <functional>
#include <string>
#include <vector>

namespace orrivane::calendar {

struct ShownMonth {
  long long month = 0;       // 1 to 12
  long long year = 0;
  int first_cell = 0;        // index of the cell captioned "1" among the cells 0 to 6
  long long first_caption = 0;  // value of cell 0
  long long last_caption = 0;   // value of cell 41
  long long length = 0;      // days of the month on show
};

// The cells of a task that starts on `start_date` of the month named `start_month` in `year`.
// The test for the month before looks at the task's day and not at the cell's: when the month
// on show begins on a Sunday, a task from the 8th on of the month before lands among the days of
// the month on show. Cells outside the grid are left out.
std::vector<int> Task_Cells(const ShownMonth& shown, const std::string& start_month, long long start_date,
                            long long year);

// The item a task shows in its cell's list: "14, Dentist, #1".
std::string Task_Item(const std::string& start_hour, const std::string& task_name, const std::string& record_number);

// A task in its cell's list.
struct TaskOnGrid {
  int cell = 0;
  std::string item;
};

// Hands `show` the tasks of `member` in the log at `log_path` as it reads them, in the order of
// the log, each as often as it has cells on the grid; a truncated record ends the reading with
// the failure 62 after the tasks before it were shown. Marker records and records numbered
// below 0 are passed over.
void Show_Tasks_On_Grid(const std::string& log_path, const ShownMonth& shown, const std::string& member,
                        const std::function<void(const TaskOnGrid&)>& show);

}  // namespace orrivane::calendar
