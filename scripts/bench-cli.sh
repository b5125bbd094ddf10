#!/usr/bin/env bash
# Times orrivane-cal's batch mode on 100,000 weekday queries (dates spread over both styles and
# the whole range of years) and prints the seconds taken and the queries per second.
# Usage: scripts/bench-cli.sh [path to orrivane-cal] [number of queries]
# Without a path it takes build-bench-cli/orrivane-cal, building it there (Release) first.
set -euo pipefail
cd "$(dirname "$0")/.."
tool="${1:-}"
queries="${2:-100000}"
if [[ -z "$tool" ]]; then
  log="$(mktemp)"
  if ! { cmake -S . -B build-bench-cli -DCMAKE_BUILD_TYPE=Release -DORRIVANE_BUILD_GUI=OFF -DORRIVANE_BUILD_TESTS=OFF &&
         cmake --build build-bench-cli --target orrivane-cal; } > "$log" 2>&1; then
    cat "$log" >&2
    exit 1
  fi
  rm -f "$log"
  tool=build-bench-cli/orrivane-cal
fi

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

# The queries, made before the clock starts: months by name, days 1 to 28, years 1583 to
# 1,000,000, every other one Julian.
awk -v n="$queries" 'BEGIN {
  split("January February March April May June July August September October November December", m, " ")
  srand(1582)
  for (i = 0; i < n; i++) {
    style = (i % 2) ? "--julian " : ""
    printf "weekday %s%s %d %d\n", style, m[1 + int(rand() * 12)], 1 + int(rand() * 28), 1583 + int(rand() * 998418)
  }
}' > "$work/queries"

# Wall-clock and processor seconds, so that a busy machine shows as such.
TIMEFORMAT='%R %U %S'
{ time "$tool" batch < "$work/queries" > "$work/answers"; } 2> "$work/time"
read -r real user system < "$work/time"

answers=$(grep -c -E '^(Sun|Mon|Tues|Wednes|Thurs|Fri|Satur)day$' "$work/answers" || true)
if [[ "$answers" -ne "$queries" ]]; then
  echo "bench-cli: $answers weekdays answered for $queries queries" >&2
  exit 1
fi
awk -v r="$real" -v u="$user" -v s="$system" -v n="$queries" 'BEGIN {
  printf "%d weekday queries in batch mode: %.3f s elapsed, %.3f s processor (%.0f queries/s elapsed)\n", n, r, u + s, n / r
}'
