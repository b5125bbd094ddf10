#include "holidays/kept_number.h"

#include "core/runtime_failure.h"

namespace orrivane::holidays {

double Kept_Number::Apply(std::string_view verb, double value) {
  if (verb == "Set Equal To") {
    number_ = value;
  } else if (verb == "Add") {
    number_ += value;
  } else if (verb == "Subtract") {
    number_ -= value;
  } else if (verb == "Multiply") {
    number_ *= value;
  } else if (verb == "Divide") {
    if (value == 0) throw RuntimeFailure(number_ == 0 ? kOverflow : kDivisionByZero);
    number_ /= value;
  }
  return number_;
}

}  // namespace orrivane::holidays
