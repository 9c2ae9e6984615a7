#!/usr/bin/env bash
# Installs into a temporary prefix and checks the desktop entry and the AppStream data
# the way distributions do.
set -euo pipefail
build_dir=$1
prefix=$(mktemp -d)
trap 'rm -rf -- "$prefix"' EXIT
cmake --install "$build_dir" --prefix "$prefix" > /dev/null
test -f "$prefix/share/icons/hicolor/scalable/apps/app.brackenhale.Quillmere.svg"
desktop-file-validate "$prefix/share/applications/app.brackenhale.Quillmere.desktop"
appstreamcli validate --no-net "$prefix/share/metainfo/app.brackenhale.Quillmere.metainfo.xml"
echo "desktop entry, metainfo and icon: valid"
