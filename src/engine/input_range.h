#pragma once
// The magnitude up to which the weekday arithmetic of the engine takes its inputs.
#include <cstdint>

#include "core/runtime_failure.h"

namespace orrivane::engine {

// Up to this magnitude the year is at most about 10^17 and every intermediate value of the
// weekday arithmetic about 1.3 * 10^17, far inside 64 bits.
inline constexpr std::int64_t kLargestInput = 1'000'000'000'000'000;

// Overflow (6) for a value beyond kLargestInput either way.
inline void Require_Input_Range(std::int64_t value) {
  if (value > kLargestInput || value < -kLargestInput) throw RuntimeFailure(kOverflow);
}

}  // namespace orrivane::engine
