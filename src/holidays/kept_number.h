#pragma once
// A number kept between calls and driven by a verb, as the program's keeper procedures keep
// theirs (InterFunction_Counter of the find-a-holiday window).
#include <string_view>

namespace orrivane::holidays {

class Kept_Number {
 public:
  // "Set Equal To", "Add", "Subtract", "Multiply" and "Divide" work on the number with `value`
  // and answer the result; any other verb answers the number unchanged. Dividing by 0 fails
  // with "Division by zero" (11), 0 by 0 with "Overflow" (6).
  double Apply(std::string_view verb, double value);

 private:
  double number_ = 0;
};

}  // namespace orrivane::holidays
