#!/usr/bin/env bash
# Installs the Debian packages the build and its checks need, when any is missing (the checks of
# the installation validate with desktop-file-utils and appstream). Sourced by the other scripts.
set -euo pipefail

ORRIVANE_PACKAGES=(
  build-essential cmake pkg-config
  qt6-base-dev qt6-base-dev-tools libqt6printsupport6 libgl-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  libical-dev python3-icalendar
  xvfb xauth
  desktop-file-utils appstream
)

orrivane_missing_packages() {
  local missing=()
  for p in "${ORRIVANE_PACKAGES[@]}" "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
  done
  echo "${missing[@]:-}"
}

orrivane_install_packages() {
  local missing
  missing=$(orrivane_missing_packages "$@")
  [ -z "$missing" ] && return 0
  echo "Installing: $missing"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update -qq
  # shellcheck disable=SC2086
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq $missing
}

orrivane_jobs() { nproc 2>/dev/null || echo 2; }

# Sets orrivane_launcher to the cmake arguments that compile through ccache where the machine
# has it (empty otherwise). The paths are taken relative to the checkout, so a fresh clone finds
# what another one compiled.
orrivane_use_compiler_cache() {
  orrivane_launcher=()
  command -v ccache >/dev/null 2>&1 || return 0
  export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=true
  orrivane_launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache)
}
