#!/usr/bin/env bash
# The installed manual pages carry the project's version and render without complaint.
source "$(dirname "$0")/check.bash"
for page in orrivane orrivane-cal; do
  file="$root/$mandir/man1/$page.1"
  grep -q "^\.TH .*\"Orrivane $version\"" "$file" || fail "$page.1: title line without \"Orrivane $version\""
  if grep -q '@' "$file"; then fail "$page.1: a placeholder left: $(grep -m1 '@' "$file")"; fi
done
if ! command -v man >/dev/null 2>&1; then
  echo "man is missing (Debian package man-db): the pages are not rendered" >&2
  finish
  exit 77
fi
for page in orrivane orrivane-cal; do
  complaints=$(MANWIDTH=80 man --warnings -l "$root/$mandir/man1/$page.1" 2>&1 >/dev/null) ||
    fail "man could not render $page.1"
  [ -z "$complaints" ] || fail "$page.1: $complaints"
done
finish
