#include "holidays/holiday_cells.h"

#include <utility>

#include "core/text.h"
#include "engine/calendar_engine.h"

namespace orrivane::holidays {

namespace {

constexpr std::pair<std::string_view, std::string_view> kShortNames[] = {
    {"Martin Luther King Day", "M L King Day"},
    {"The Day of Pentecost", "Day of Pentecost"},
};

// The month on show with its neighbours, and where the grid places their days.
struct Layout {
  std::string month, prior_month, next_month;
  std::int64_t year = 0, prior_year = 0, next_year = 0;
  int first_cell = 0;       // F: the cell of the 1st of the month on show
  std::int64_t first_date = 0;  // A: the date in cell 0
  int next_first_cell = 0;  // N: the cell of the 1st of the next month
  std::int64_t last_date = 0;   // Z: the date in cell 41
};

int First_Cell_With_One(const Holiday_Cells& captions, int from, int to) {
  for (int cell = from; cell <= to; ++cell) {
    if (text::Val(captions[static_cast<std::size_t>(cell)]) == 1) return cell;
  }
  return 0;
}

Layout Layout_Of(const std::string& month_name, const Value& year, const Holiday_Cells& captions) {
  Layout shown;
  shown.month = month_name;
  shown.year = year.whole();
  const engine::YearMonth on_show{shown.year,
                                  static_cast<int>(engine::Define_Month(month_name, "Get Month Number").number())};
  const engine::YearMonth prior = engine::Month_Before(on_show);
  const engine::YearMonth next = engine::Month_After(on_show);
  shown.prior_month = engine::Full_Month_Name(prior.month);
  shown.prior_year = prior.year;
  shown.next_month = engine::Full_Month_Name(next.month);
  shown.next_year = next.year;
  shown.first_cell = First_Cell_With_One(captions, 0, engine::kGridColumns - 1);
  shown.first_date = static_cast<std::int64_t>(text::Val(captions[0]));
  shown.next_first_cell = First_Cell_With_One(captions, 28, engine::kLastGridCell);
  shown.last_date = static_cast<std::int64_t>(text::Val(captions[engine::kLastGridCell]));
  return shown;
}

// One entry of the holiday table.
struct Entry {
  std::string month;
  std::int64_t date = 0;
  std::string name;
};

Entry Entry_At(Holiday_Data_Keeper& table, int i) {
  Entry entry;
  entry.month = table.Store_Holiday_Data_For_Year("Holiday Month", i, "View").text();
  if (entry.month.empty()) return entry;  // a free entry: its date and name are left-overs
  entry.date = table.Store_Holiday_Data_For_Year("Holiday Date", i, "View").whole();
  entry.name = table.Store_Holiday_Data_For_Year("Holiday Name", i, "View").text();
  return entry;
}

void Empty_Table(Holiday_Data_Keeper& table) {
  for (int i = 0; i < Holiday_Data_Keeper::kEntries; ++i) {
    table.Store_Holiday_Data_For_Year("Holiday Month", i, "Set Equal To", "");
  }
}

void Add_Year_To_Table(Holiday_Data_Keeper& table, std::int64_t year) {
  Holiday_Keeper_Receiver receiver(table);
  Display_All_Holidays_For_Selected_Year(Value(year), kCalendarHolidayTableCaller, receiver);
}

void Show(Holiday_Cells& cells, std::int64_t cell, std::string_view name) {
  if (cell < 0 || cell >= static_cast<std::int64_t>(cells.size())) return;
  cells[static_cast<std::size_t>(cell)] = Holiday_Cell_Text(name);
}

// A day of the month before, in the first row: only when that row does not start with a 1st.
void Show_Prior_Month_Day(Holiday_Cells& cells, const Layout& shown, const Entry& entry) {
  if (entry.month == shown.prior_month && entry.date >= shown.first_date) {
    Show(cells, entry.date - shown.first_date, entry.name);
  }
}

void Show_Next_Month_Day(Holiday_Cells& cells, const Layout& shown, const Entry& entry) {
  if (entry.month == shown.next_month && entry.date <= shown.last_date) {
    Show(cells, shown.next_first_cell + entry.date - 1, entry.name);
  }
}

}  // namespace

std::string_view Holiday_Cell_Text(std::string_view name) {
  for (const auto& [whole, shortened] : kShortNames) {
    if (name == whole) return shortened;
  }
  return name;
}

Holiday_Cells Holidays_On_Calendar_Cells(Holiday_Data_Keeper& table, std::string_view CalStyle,
                                         const std::string& month_name, const Value& year,
                                         const Holiday_Cells& date_captions) {
  Holiday_Cells cells{};
  if (CalStyle == "Julian") return cells;
  const Layout shown = Layout_Of(month_name, year, date_captions);
  const bool prior_days_shown = shown.first_date != 1;

  Empty_Table(table);
  Add_Year_To_Table(table, shown.year);
  for (int i = 0; i < Holiday_Data_Keeper::kEntries; ++i) {
    const Entry entry = Entry_At(table, i);
    if (prior_days_shown && shown.prior_year == shown.year) Show_Prior_Month_Day(cells, shown, entry);
    if (entry.month == shown.month) Show(cells, shown.first_cell + entry.date - 1, entry.name);
    if (shown.next_year == shown.year) Show_Next_Month_Day(cells, shown, entry);
  }

  // January and December: the neighbouring year joins the table (at most two years of 25
  // holidays, which the 51 entries hold). The year of an entry is not looked at: the days of
  // December in a January's first row, and of January in a December's last row, can only hold
  // fixed holidays, which fall alike in both years.
  if (shown.prior_year != shown.year && prior_days_shown) {
    Add_Year_To_Table(table, shown.prior_year);
    for (int i = 0; i < Holiday_Data_Keeper::kEntries; ++i) Show_Prior_Month_Day(cells, shown, Entry_At(table, i));
  }
  if (shown.next_year != shown.year) {
    Add_Year_To_Table(table, shown.next_year);
    for (int i = 0; i < Holiday_Data_Keeper::kEntries; ++i) Show_Next_Month_Day(cells, shown, Entry_At(table, i));
  }
  return cells;
}

}  // namespace orrivane::holidays
