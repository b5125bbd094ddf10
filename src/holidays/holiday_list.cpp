#include "holidays/holiday_list.h"

#include <algorithm>

#include "core/runtime_failure.h"
#include "holidays/holiday_rules.h"

namespace orrivane::holidays {

namespace {

constexpr std::uint32_t kTextRow = 1U << 31;
constexpr int kYearBits = 17;
constexpr std::uint32_t kYearMask = (1U << kYearBits) - 1;
static_assert(kHolidayYearLimit <= static_cast<int>(kYearMask), "a year fits its bits");
static_assert(kHolidayCount <= static_cast<int>(kTextRow >> kYearBits), "a holiday fits its bits");

bool Is_Text(std::uint32_t row) { return (row & kTextRow) != 0; }
std::uint32_t Entry_Row(int holiday, int year) {
  return (static_cast<std::uint32_t>(holiday) << kYearBits) | static_cast<std::uint32_t>(year);
}
int Holiday_Of(std::uint32_t row) { return static_cast<int>(row >> kYearBits); }
int Year_Of(std::uint32_t row) { return static_cast<int>(row & kYearMask); }

}  // namespace

std::string_view Holiday_List_Texts::Text(std::size_t index) const {
  const std::size_t start = index == 0 ? 0 : ends[index - 1];
  return std::string_view(text).substr(start, ends[index] - start);
}

std::string Holiday_List::Line(std::size_t row) const {
  const std::uint32_t kept = rows_[row];
  if (Is_Text(kept)) return std::string(texts_.Text(kept & ~kTextRow));
  return Holiday_List_Line(Holiday_Of(kept), Year_Of(kept));
}

std::string Holiday_List::Shown_Line(std::size_t row) const {
  const std::uint32_t kept = rows_[row];
  if (Is_Text(kept)) return std::string(texts_.Text(kept & ~kTextRow).substr(0, kShownLineLength));
  return Line(row);  // a line of the rules is short
}

void Holiday_List::Reserve(std::size_t more) { rows_.reserve(rows_.size() + more); }

void Holiday_List::Append_Entry(int holiday, int year) { rows_.push_back(Entry_Row(holiday, year)); }

void Holiday_List::Append_Texts(Holiday_List_Texts&& texts) {
  if (texts.Count() == 0) return;
  const std::size_t first = texts_.Count();
  // Beyond this no list could show its rows (they are counted in ints), and the file would be
  // some gigabytes of lines: the count overflows, as a list box's would.
  if (first + texts.Count() >= kTextRow) throw RuntimeFailure(kOverflow);
  if (first == 0) {
    texts_ = std::move(texts);
  } else {
    Append_Behind(std::move(texts));
  }
  Reserve(texts_.Count() - first);
  for (std::size_t index = first; index < texts_.Count(); ++index) {
    rows_.push_back(kTextRow | static_cast<std::uint32_t>(index));
  }
}

void Holiday_List::Append_Behind(Holiday_List_Texts&& texts) {
  const std::uint32_t shift = texts_.ends.back();
  const std::size_t length = texts.ends.back();
  if (std::size_t{shift} + length > kLongestTexts) throw RuntimeFailure(kOverflow);
  texts_.text.resize(shift);
  texts_.text.append(texts.text, 0, length);
  for (const std::uint32_t end : texts.ends) texts_.ends.push_back(shift + end);
}

void Holiday_List::Remove(std::size_t row) {
  // The text of a removed line stays in the buffer until the list is cleared: moving the texts
  // behind it would cost more than it frees.
  rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(row));
}

void Holiday_List::Clear() {
  // Taken out and dropped, so that their memory goes back at once: a string assigned an empty
  // one would keep its buffer.
  {
    const std::vector<std::uint32_t> gone_rows = std::move(rows_);
    const Holiday_List_Texts gone_texts = std::move(texts_);
  }
  rows_ = {};
  texts_ = {};
}

}  // namespace orrivane::holidays
