#pragma once
// The flags that keep the reminder timer and the rewriters of a reminder file out of each
// other's way (TRemin.tmp and NTRemin.dat each have one). There is one thread: a holder keeps a
// flag only while it runs straight through, so a flag is free whenever another event begins.
// A flag is taken by a FlagHold, which gives it back on every way out, a failure included; a
// flag found held where the program would wait for it can never come free, and is a failure
// instead of an endless wait.
#include <optional>
#include <string_view>

namespace orrivane::reminders {

class InUseFlag {
 public:
  // The keeper procedure: "Evaluate" answers the flag; any other verb (callers pass "") sets it
  // to `value` first.
  bool Keep(bool value, std::string_view Action_To_Perform);
  bool Held() const { return held_; }

 private:
  friend class FlagHold;
  bool held_ = false;
};

class FlagHold {
 public:
  // Waits for the flag and takes it: a held flag is the failure 55 (File already open).
  explicit FlagHold(InUseFlag& flag);
  // Takes the flag when it is free; nothing when it is held.
  static std::optional<FlagHold> Take_If_Free(InUseFlag& flag);
  ~FlagHold();
  FlagHold(FlagHold&& other) noexcept : flag_(other.flag_) { other.flag_ = nullptr; }
  FlagHold(const FlagHold&) = delete;
  FlagHold& operator=(const FlagHold&) = delete;
  FlagHold& operator=(FlagHold&&) = delete;

 private:
  struct Free {};
  FlagHold(InUseFlag& flag, Free);
  InUseFlag* flag_;
};

}  // namespace orrivane::reminders
