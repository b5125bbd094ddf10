#pragma once
// Where the large calendar lists a task: the cell of its start day among the 42, for the
// month on show, the days of the month before in the first row and of the month after in
// the last rows.
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

}  // namespace orrivane::calendar
