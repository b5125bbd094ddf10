#!/usr/bin/env bash
# The installed desktop entry is valid, starts the installed launcher and shows the installed
# icon.
source "$(dirname "$0")/check.bash"
needs_tool desktop-file-validate desktop-file-utils
entry="$root/$datadir/applications/$app_id.desktop"

desktop-file-validate "$entry" || fail "desktop-file-validate found faults in $entry"

exec_line=$(desktop_value Exec)
launcher="$prefix/$libexecdir/orrivane/start-in-data-folder"
[ "$exec_line" = "$launcher" ] || fail "Exec is '$exec_line', not the launcher under the prefix, $launcher"
[ -x "$destdir$exec_line" ] || fail "Exec names no installed program: $exec_line"

[ "$(desktop_value Icon)" = "$app_id" ] || fail "Icon is '$(desktop_value Icon)', not $app_id"
[ "$(desktop_value Categories)" = "Office;Calendar;" ] || fail "Categories are '$(desktop_value Categories)'"
[ -n "$(desktop_value Keywords)" ] || fail "no Keywords"
finish
