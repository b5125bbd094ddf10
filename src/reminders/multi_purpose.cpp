#include "reminders/multi_purpose.h"

namespace orrivane::reminders {

const MultiPurpose* Multi_Purpose_Of(std::string_view Calling_Sub_Origin) {
  for (const MultiPurpose& purpose : kMultiPurposes) {
    if (purpose.origin == Calling_Sub_Origin) return &purpose;
  }
  return nullptr;
}

}  // namespace orrivane::reminders
