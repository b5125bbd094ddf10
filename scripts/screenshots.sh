#!/usr/bin/env bash
# Takes pictures of the windows, headless, at a fixed date (15 March 2024), into docs/screenshots/.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/setup.sh
orrivane_install_packages
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORRIVANE_BUILD_TESTS=ON >/dev/null
cmake --build build -j "$(orrivane_jobs)" --target window_tests
QT_QPA_PLATFORM=offscreen ORRIVANE_SCREENSHOT_DIR="$(pwd)/docs/screenshots" \
  ./build/tests/window_tests --gtest_filter='Screenshots.*'
ls docs/screenshots
