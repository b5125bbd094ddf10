#pragma once
// The text of the GNU General Public License, version 2, as the licence window shows it: one
// row a line of the license's plain-text form, rows counted from 1.
#include <string_view>

namespace orrivane::shell {

// The rows the licence window holds: the license's lines, then empty rows up to this count, so
// that its last view (rows 330 to 345) ends on empty rows.
inline constexpr int kLicenceRows = 345;

// The number of lines of the license's text itself.
int Licence_Line_Count();

// Row `row` of the licence; the empty text for rows past its end, for row 0 and for any other
// number.
std::string_view Licence_Row(int row);

}  // namespace orrivane::shell
