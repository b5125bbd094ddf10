#pragma once
// The size of the Organizer's task chart: one row a group member, one column a ten-minute step
// of a six-hour period, a head over every three columns. The printed chart has more rows and the
// same columns.
namespace orrivane::organizer {

inline constexpr int kChartColumns = 36;    // six hours of ten minutes
inline constexpr int kMinutesPerColumn = 10;
inline constexpr int kColumnsPerHead = 3;   // a head each half hour
inline constexpr int kChartHeads = kChartColumns / kColumnsPerHead;
inline constexpr int kScreenChartRows = 11;
inline constexpr int kPrintChartRows = 32;
inline constexpr int kScreenChartCells = kScreenChartRows * kChartColumns;  // 396
inline constexpr int kPrintChartCells = kPrintChartRows * kChartColumns;    // 1152

// The cell of a row and a column: 36 x row + column.
constexpr int Chart_Cell(int row, int column) { return kChartColumns * row + column; }
constexpr int Chart_Row_Of_Cell(int cell) { return cell / kChartColumns; }

static_assert(kScreenChartCells == 396 && kPrintChartCells == 1152 && kChartHeads == 12);

}  // namespace orrivane::organizer
