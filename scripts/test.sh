#!/usr/bin/env bash
# Builds Orrivane and its tests in build/ (installing what is missing) and runs the whole suite.
# Extra arguments go to ctest. ORRIVANE_BUILD_DIR and ORRIVANE_CMAKE_ARGS choose another build.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/setup.sh
orrivane_install_packages
build="${ORRIVANE_BUILD_DIR:-build}"
# A compiler cache, where the machine has one, serves every checkout of the project: the paths
# are taken relative to the checkout, so a fresh clone finds what another one compiled.
launcher=()
if command -v ccache >/dev/null 2>&1; then
  export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=true
  launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache)
fi
# shellcheck disable=SC2086
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORRIVANE_BUILD_TESTS=ON "${launcher[@]}" ${ORRIVANE_CMAKE_ARGS:-}
cmake --build "$build" -j "$(orrivane_jobs)"
export QT_QPA_PLATFORM=offscreen
ctest --test-dir "$build" --output-on-failure -j "$(orrivane_jobs)" "$@"
