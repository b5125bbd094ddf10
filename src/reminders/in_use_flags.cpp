#include "reminders/in_use_flags.h"

#include "core/runtime_failure.h"

namespace orrivane::reminders {

bool InUseFlag::Keep(bool value, std::string_view Action_To_Perform) {
  if (Action_To_Perform != "Evaluate") held_ = value;
  return held_;
}

FlagHold::FlagHold(InUseFlag& flag, Free) : flag_(&flag) { flag.held_ = true; }

namespace {

// Nothing can free a held flag while the waiter runs: waiting would never end.
InUseFlag& Free_Or_Fail(InUseFlag& flag) {
  if (flag.Held()) throw RuntimeFailure(kFileAlreadyOpen);
  return flag;
}

}  // namespace

FlagHold::FlagHold(InUseFlag& flag) : FlagHold(Free_Or_Fail(flag), Free{}) {}

std::optional<FlagHold> FlagHold::Take_If_Free(InUseFlag& flag) {
  if (flag.Held()) return std::nullopt;
  return FlagHold(flag, Free{});
}

FlagHold::~FlagHold() {
  if (flag_ != nullptr) flag_->held_ = false;
}

}  // namespace orrivane::reminders
