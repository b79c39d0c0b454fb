#!/usr/bin/env bash
# check_packaging.sh BUILD: checks what an installed program needs: the desktop entry, what software
# centres show, the manual, and the Debian package, which it makes. BUILD is a folder in which the
# project was built. What there is no tool for is not checked.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(cd "$1" && pwd)

is_there() {
  command -v "$1" >/dev/null || {
    echo "No $1 here, so it is not asked"
    return 1
  }
}

! is_there desktop-file-validate || desktop-file-validate packaging/ostrane-dat-tool.desktop
! is_there appstreamcli ||
  appstreamcli validate --no-net "$build"/packaging/example.ostrane.dat_tool.metainfo.xml

if is_there dpkg-shlibdeps; then
  packages=$build/package-check
  rm -rf "$packages"
  (cd "$build" && cpack -B "$packages")
  ! is_there lintian || lintian --allow-root --fail-on error,warning "$packages"/*.deb
fi
echo "Packaging is good"
