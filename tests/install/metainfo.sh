#!/usr/bin/env bash
# The installed AppStream metainfo is valid, names the desktop entry that is installed and
# tells the project's version.
source "$(dirname "$0")/check.bash"
needs_tool appstreamcli appstream
metainfo="$root/$datadir/metainfo/$app_id.metainfo.xml"

appstreamcli validate --no-net "$metainfo" || fail "appstreamcli found faults in $metainfo"
grep -qF "<launchable type=\"desktop-id\">$app_id.desktop</launchable>" "$metainfo" ||
  fail "the metainfo launches no $app_id.desktop"
grep -qF "<release version=\"$version\"" "$metainfo" || fail "no release $version in the metainfo"
grep -qF "<project_license>GPL-2.0-or-later</project_license>" "$metainfo" || fail "licence not GPL-2.0-or-later"
finish
