#pragma once
// The six boxes in which a window takes a moment, as texts, "" for an empty box: the month, the
// day ("01" to "31"), the century, the year within it, the 24-hour hour and the minute. Each
// window says which form of the month its box holds.
#include <string>

namespace orrivane::organizer {

struct MomentBoxes {
  std::string Month;
  std::string Date;
  std::string Century;
  std::string Year;
  std::string Hour;
  std::string Minute;
  friend bool operator==(const MomentBoxes&, const MomentBoxes&) = default;
};

}  // namespace orrivane::organizer
