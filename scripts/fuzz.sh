#!/usr/bin/env bash
# Builds the fuzz targets of fuzz/ in fuzz-build/ (installing the distribution's clang and its
# fuzzer runtime when missing; CXX=clang++-NN chooses another clang) and runs each for SECONDS
# (default 60), one after another, on a working copy of its seed corpus. Exits non-zero when any
# target has a finding: a crash, a sanitizer report, an exception other than the program's
# RuntimeFailure, a broken rule, a timeout, a leak or too much memory. What a finding left behind
# is in fuzz-build/findings/<target>/.
#
#   ./scripts/fuzz.sh [SECONDS]
#   FUZZ_TARGETS="calculate_fuzzer cli_batch_line_fuzzer" ./scripts/fuzz.sh 30   # some targets only
set -euo pipefail
cd "$(dirname "$0")/.."

seconds="${1:-60}"
build=fuzz-build
per_input_timeout=10  # seconds; a hang of one input is a finding
memory_limit_mb=2048

# A clang chosen by CXX brings its own fuzzer runtime.
fuzz_packages=(cmake)
if [ -z "${CXX:-}" ]; then fuzz_packages+=(clang libclang-rt-dev); fi

install_missing_packages() {
  local missing=()
  for p in "${fuzz_packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}"
}

build_targets() {
  local generator=()
  command -v ninja >/dev/null 2>&1 && generator=(-G Ninja)
  # A folder configured once keeps its generator.
  [ -f "$build/CMakeCache.txt" ] && generator=()
  cmake -S fuzz -B "$build" "${generator[@]}" -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
  cmake --build "$build" -j 2
}

# "executions_per_second inputs_tried" from libFuzzer's final statistics.
final_stats() {
  local log="$1"
  local rate runs
  rate=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log" | tail -n 1)
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n 1)
  echo "${rate:-?} ${runs:-?}"
}

run_target() {
  local target="$1"
  local corpus="$build/corpus/$target"
  local findings="$build/findings/$target"
  local log="$build/logs/$target.log"
  mkdir -p "$corpus" "$findings" "$(dirname "$log")"
  # The working corpus grows run by run; the seeds kept in the repository are copied in afresh.
  [ -d "fuzz/corpus/$target" ] && cp -f fuzz/corpus/"$target"/* "$corpus"/
  local options=(-max_total_time="$seconds" -timeout="$per_input_timeout" -rss_limit_mb="$memory_limit_mb"
                 -artifact_prefix="$findings/" -print_final_stats=1)
  [ -f "fuzz/dict/$target.dict" ] && options+=(-dict="fuzz/dict/$target.dict")
  local status=0
  "./$build/$target" "${options[@]}" "$corpus" >"$log" 2>&1 || status=$?
  read -r rate runs < <(final_stats "$log")
  if [ "$status" -eq 0 ]; then
    printf '%-26s ok       %8s exec/s %12s inputs\n' "$target" "$rate" "$runs"
  else
    printf '%-26s FINDING  %8s exec/s %12s inputs  (exit %s, see %s)\n' "$target" "$rate" "$runs" "$status" "$log"
    grep -E "^==[0-9]+==|fuzz finding|runtime error|SUMMARY|Test unit written" "$log" | head -n 12 || true
  fi
  return "$status"
}

install_missing_packages
build_targets

export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1}"
export UBSAN_OPTIONS="${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}"
# The targets' scratch files, in memory where possible, removed however a run ends.
scratch_base=/dev/shm
[ -d "$scratch_base" ] && [ -w "$scratch_base" ] || scratch_base="${TMPDIR:-/tmp}"
ORRIVANE_FUZZ_SCRATCH=$(mktemp -d "$scratch_base/orrivane-fuzz.XXXXXX")
export ORRIVANE_FUZZ_SCRATCH
trap 'rm -rf "$ORRIVANE_FUZZ_SCRATCH"' EXIT

targets="${FUZZ_TARGETS:-$(cat "$build/targets.txt")}"
echo "Fuzzing each target for $seconds s:"
failed=0
for target in $targets; do
  run_target "$target" || failed=1
done
exit "$failed"
