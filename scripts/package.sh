#!/usr/bin/env bash
# Builds the Debian package of Orrivane in build-package/ (a Release build installed under /usr,
# installing what the build needs when missing) and prints the package's path, alone on
# standard output; the build's progress goes to standard error.
# ORRIVANE_BUILD_DIR and ORRIVANE_CMAKE_ARGS choose another build, as for test.sh.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/setup.sh
# dpkg-shlibdeps (dpkg-dev) and file find the libraries the package depends on.
orrivane_install_packages dpkg-dev file >&2
build="${ORRIVANE_BUILD_DIR:-build-package}"
# shellcheck disable=SC2086
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr -DORRIVANE_BUILD_TESTS=OFF \
  ${ORRIVANE_CMAKE_ARGS:-} >/dev/null
cmake --build "$build" -j "$(orrivane_jobs)" >&2
rm -f "$build"/orrivane_*.deb
(cd "$build" && cpack -G DEB) | tee /dev/stderr | sed -n 's/^CPack: - package: \(.*\) generated\.$/\1/p'
