#pragma once
// The lines of the find-a-holiday list, kept compactly.
//
// A line the holiday rules made is a pure function of its holiday and its year, so it is kept as
// those two, four bytes, and formatted again whenever it is asked for: every holiday of the whole
// reach of years, about 2.5 million lines, costs 10 MB. A line read from a list file is kept as
// text, all of them in the one buffer the file was read into.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orrivane::holidays {

// What a list shows of a line at most: a line can be any length in a file (50 MB and more),
// and no list needs more than this to fill its width.
inline constexpr std::size_t kShownLineLength = 1000;

// The most bytes the texts of a list may take.
inline constexpr std::size_t kLongestTexts = UINT32_MAX;

// Texts one after the other in one buffer, and where each ends. The buffer is the one a file
// was read into, its bytes left as they came behind the last text; the texts keep to its first
// 4 GB, so that an end takes four bytes.
struct Holiday_List_Texts {
  std::string text;
  std::vector<std::uint32_t> ends;

  std::size_t Count() const { return ends.size(); }
  std::string_view Text(std::size_t index) const;
};

class Holiday_List {
 public:
  std::size_t Count() const { return rows_.size(); }
  // The line at `row` (from 0), whole.
  std::string Line(std::size_t row) const;
  // The line as a list shows it: no more than its first kShownLineLength characters.
  std::string Shown_Line(std::size_t row) const;

  // Makes room for `more` lines behind the ones kept, so that a long request is stored once.
  void Reserve(std::size_t more);
  // The line of `holiday` in `year`, which the rules know to exist.
  void Append_Entry(int holiday, int year);
  // The texts, in order. A list that keeps no text yet takes their buffer over as it is.
  void Append_Texts(Holiday_List_Texts&& texts);
  void Remove(std::size_t row);
  // Empties the list and gives its memory back.
  void Clear();

 private:
  void Append_Behind(Holiday_List_Texts&& texts);

  // A row is a holiday and a year, or (its top bit set) the number of a text.
  std::vector<std::uint32_t> rows_;
  Holiday_List_Texts texts_;
};

}  // namespace orrivane::holidays
