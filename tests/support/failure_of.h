#pragma once
// The number of the run-time failure an action ends in, 0 when it ends normally.
#include "core/runtime_failure.h"

namespace orrivane::testing {

int Failure_Of(const auto& action) {
  try {
    action();
  } catch (const RuntimeFailure& failure) {
    return failure.number();
  }
  return 0;
}

}  // namespace orrivane::testing
