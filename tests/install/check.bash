# What the checks of the installation share: the layout CMake wrote (the first argument), the
# count of failures and the way a check says it cannot run.
set -euo pipefail
# shellcheck disable=SC1090
source "$1"
failures=0

fail() {
  echo "FAIL: $*" >&2
  failures=$((failures + 1))
}

# A tool the check needs; without it the check is skipped (ctest shows it so).
needs_tool() {
  local tool="$1" package="$2"
  if ! command -v "$tool" >/dev/null 2>&1; then
    echo "$tool is missing: install the Debian package $package (scripts/setup.sh does)" >&2
    exit 77
  fi
}

# The installed desktop entry's value of KEY.
desktop_value() {
  sed -n "s/^$1=//p" "$root/$datadir/applications/$app_id.desktop"
}

finish() {
  if [ "$failures" -ne 0 ]; then
    echo "$failures failure(s)" >&2
    exit 1
  fi
}
