#!/usr/bin/env bash
# The desktop entry's command starts the installed program in the user's data folder for it:
# $XDG_DATA_HOME/orrivane, or ~/.local/share/orrivane when XDG_DATA_HOME is unset, empty or
# relative; made when missing. The program's first act, emptying Schedule.tmp in its current
# folder, shows where it runs.
source "$(dirname "$0")/check.bash"
launcher="$destdir$(desktop_value Exec)"
work=$(mktemp -d)
started=
trap 'if [ -n "$started" ]; then kill "$started" 2>/dev/null; fi; rm -rf "$work"' EXIT

# Starts the launcher with XDG_DATA_HOME as given (a value or "unset") from a folder of its
# own, and tells whether Schedule.tmp appeared in EXPECTED within half a minute.
starts_in() {
  local data_home="$1" expected="$2"
  local home="$work/home" elsewhere="$work/elsewhere"
  rm -rf "$home" "$elsewhere" "$work/data"
  mkdir -p "$home" "$elsewhere"
  local environment=(HOME="$home" QT_QPA_PLATFORM=offscreen)
  if [ "$data_home" != unset ]; then environment+=(XDG_DATA_HOME="$data_home"); fi
  (cd "$elsewhere" && exec env -u XDG_DATA_HOME "${environment[@]}" "$launcher" >"$work/log" 2>&1) &
  started=$!
  for _ in $(seq 300); do
    [ -f "$expected/Schedule.tmp" ] && break
    kill -0 "$started" 2>/dev/null || break
    sleep 0.1
  done
  kill "$started" 2>/dev/null || true
  wait "$started" 2>/dev/null || true
  started=
  if [ ! -f "$expected/Schedule.tmp" ]; then
    fail "XDG_DATA_HOME $data_home: no Schedule.tmp in $expected"
    cat "$work/log" >&2
    return
  fi
  [ -z "$(ls -A "$elsewhere")" ] || fail "XDG_DATA_HOME $data_home: files in the folder it was started from"
  [ "$(stat -c %a "$expected")" = 700 ] || fail "XDG_DATA_HOME $data_home: $expected is not the user's alone"
}

starts_in unset "$work/home/.local/share/orrivane"
starts_in "" "$work/home/.local/share/orrivane"
starts_in "relative/data" "$work/home/.local/share/orrivane"
starts_in "$work/data" "$work/data/orrivane"
finish
