#!/usr/bin/env bash
# Builds Orrivane and its tests in build/ (installing what is missing) and runs the whole suite.
# Extra arguments go to ctest. ORRIVANE_BUILD_DIR and ORRIVANE_CMAKE_ARGS choose another build.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/setup.sh
orrivane_install_packages
build="${ORRIVANE_BUILD_DIR:-build}"
orrivane_use_compiler_cache
# shellcheck disable=SC2086
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORRIVANE_BUILD_TESTS=ON "${orrivane_launcher[@]}" ${ORRIVANE_CMAKE_ARGS:-}
cmake --build "$build" -j "$(orrivane_jobs)"
export QT_QPA_PLATFORM=offscreen
ctest --test-dir "$build" --output-on-failure -j "$(orrivane_jobs)" "$@"
