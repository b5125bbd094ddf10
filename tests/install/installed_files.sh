#!/usr/bin/env bash
# Every file an installation puts in place, and nothing else: the two programs, the menu
# entry's launcher, the manual pages, the desktop entry, the icon in every size, the metainfo
# and the copyright.
source "$(dirname "$0")/check.bash"

expected=(
  "$bindir/orrivane"
  "$bindir/orrivane-cal"
  "$libexecdir/orrivane/start-in-data-folder"
  "$mandir/man1/orrivane.1"
  "$mandir/man1/orrivane-cal.1"
  "$datadir/applications/$app_id.desktop"
  "$datadir/metainfo/$app_id.metainfo.xml"
  "$datadir/icons/hicolor/scalable/apps/$app_id.svg"
  "$datadir/doc/orrivane/copyright"
)
for size in 16 32 48 64 128 256; do
  expected+=("$datadir/icons/hicolor/${size}x${size}/apps/$app_id.png")
done

installed=$(cd "$root" && find . -type f -o -type l | sed 's|^\./||' | sort)
wanted=$(printf '%s\n' "${expected[@]}" | sort)
while read -r file; do
  grep -qxF "$file" <<<"$installed" || fail "not installed: $file"
done <<<"$wanted"
while read -r file; do
  grep -qxF "$file" <<<"$wanted" || fail "installed, but not expected: $file"
done <<<"$installed"

for program in "$bindir/orrivane" "$bindir/orrivane-cal" "$libexecdir/orrivane/start-in-data-folder"; do
  [ -x "$root/$program" ] || fail "not executable: $program"
done
# The installed tool runs where it is installed.
answer=$("$root/$bindir/orrivane-cal" weekday 1 1 2000) || fail "the installed orrivane-cal failed"
[ "$answer" = Saturday ] || fail "orrivane-cal weekday 1 1 2000 answered '$answer'"
finish
echo "${#expected[@]} files installed"
