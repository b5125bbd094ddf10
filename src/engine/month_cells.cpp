#include "engine/month_cells.h"

#include "core/runtime_failure.h"

namespace orrivane::engine {

MonthGrid Draw_Month_Cells(int first_column, int length, int length_before, std::int64_t selected_date) {
  if (first_column < 1 || first_column > kGridColumns) throw RuntimeFailure(kSubscriptOutOfRange);
  MonthGrid grid;
  auto put = [&grid](int cell, std::int64_t caption, std::uint32_t colour) {
    if (cell < 0 || cell >= kGridCells) throw RuntimeFailure(kSubscriptOutOfRange);
    grid[static_cast<std::size_t>(cell)] = {std::to_string(caption), colour};
  };
  // The last days of the month before, up to the column before the first; counted in 64 bits, as
  // a length near the smallest int would leave the range of int.
  for (int k = 1; k <= first_column - 1; ++k) {
    put(k - 1, (std::int64_t{length_before} - (first_column - 1)) + k, colours::kGrayText);
  }
  // The month's own days, the selected one red.
  for (int d = 1; d <= length; ++d) {
    put((first_column - 1) + (d - 1), d, d == selected_date ? colours::kRed : colours::kButtonText);
  }
  // The first days of the month after, to the last cell.
  int next = 1;
  for (int cell = (first_column - 1) + length; cell < kGridCells; ++cell) put(cell, next++, colours::kGrayText);
  return grid;
}

}  // namespace orrivane::engine
