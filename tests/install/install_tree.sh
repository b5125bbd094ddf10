#!/usr/bin/env bash
# Installs the build into a fresh temporary DESTDIR under the checks' own prefix, as a user's
# `DESTDIR=... cmake --install build --prefix ...` does.
# Usage: install_tree.sh LAYOUT CMAKE BUILD_DIR
source "$(dirname "$0")/check.bash"
cmake="$2"
build="$3"
rm -rf "$destdir"
DESTDIR="$destdir" "$cmake" --install "$build" --prefix "$prefix" >/dev/null
echo "installed into $root"
