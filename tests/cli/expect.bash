# Shared by the orrivane-cal test scripts (sourced, not a test itself): runs the tool and
# compares its standard output, standard error and exit status exactly.
#
#   answers EXPECTED_OUTPUT ARGS...   status 0, the output (each line ended by a line feed), no error
#   refuses ERROR_LINE ARGS...        status 1, nothing on standard output, the one error line
#   expect STATUS OUTPUT ERROR ARGS...   (output_to=full or closed: no output to compare)
#   feeds INPUT EXPECTED_OUTPUT       "batch" with INPUT on standard input, status 0, no error
#   finish                            the script's verdict
# An empty expected text means no bytes at all.

tool="${1:?the path of orrivane-cal is the first argument}"
scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT
failures=0
checks=0

# The expected bytes of a text given without its last line feed.
lines_of() {
  if [[ -n "$1" ]]; then printf '%s\n' "$1"; fi
}

compare() {
  local what="$1" expected_text="$2" actual_file="$3" label="$4"
  lines_of "$expected_text" > "$scratch/expected"
  if ! cmp -s "$scratch/expected" "$actual_file"; then
    echo "FAIL: $label: $what differs" >&2
    diff -u "$scratch/expected" "$actual_file" | sed 's/^/    /' >&2 || true
    return 1
  fi
}

# Standard output goes to a file to compare, or with output_to=full to /dev/full, or with
# output_to=closed nowhere: it is closed.
run_tool() {
  local status=0
  case "${output_to:-}" in
    full) "$@" > /dev/full 2> "$scratch/err" < "${input_file:-/dev/null}" || status=$? ;;
    closed) "$@" >&- 2> "$scratch/err" < "${input_file:-/dev/null}" || status=$? ;;
    *) "$@" > "$scratch/out" 2> "$scratch/err" < "${input_file:-/dev/null}" || status=$? ;;
  esac
  echo "$status"
}

expect() {
  local status="$1" output="$2" error="$3"
  shift 3
  local label="orrivane-cal $*${output_to:+ to a $output_to output}"
  local actual_status
  actual_status="$(run_tool "$tool" "$@")"
  checks=$((checks + 1))
  local ok=0
  if [[ "$actual_status" != "$status" ]]; then
    echo "FAIL: $label: exit status $actual_status, expected $status" >&2
    ok=1
  fi
  if [[ -z "${output_to:-}" ]]; then compare "standard output" "$output" "$scratch/out" "$label" || ok=1; fi
  compare "standard error" "$error" "$scratch/err" "$label" || ok=1
  if ((ok != 0)); then failures=$((failures + 1)); fi
  return 0
}

answers() {
  local output="$1"
  shift
  expect 0 "$output" "" "$@"
}

refuses() {
  local error="$1"
  shift
  expect 1 "" "$error" "$@"
}

feeds() {
  printf '%s\n' "$1" > "$scratch/input"
  input_file="$scratch/input" expect 0 "$2" "" batch
}

finish() {
  if ((failures > 0)); then
    echo "$failures of $checks checks failed" >&2
    exit 1
  fi
  echo "$checks checks passed"
}
