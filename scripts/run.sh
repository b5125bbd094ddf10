#!/usr/bin/env bash
# Builds Orrivane in build/ (installing what is missing) and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/setup.sh
orrivane_install_packages
orrivane_use_compiler_cache
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORRIVANE_BUILD_TESTS=OFF "${orrivane_launcher[@]}"
cmake --build build -j "$(orrivane_jobs)"
exec ./build/orrivane "$@"
