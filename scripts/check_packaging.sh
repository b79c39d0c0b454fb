#!/usr/bin/env bash
# check_packaging.sh BUILD: checks the desktop entry and the data for software centres, and builds and
# checks the Debian package. BUILD is a folder with a finished build.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need package package-check
build=$(cd "$1" && pwd)

desktop-file-validate packaging/ostrane-dat-tool.desktop
appstreamcli validate --no-net "$build"/packaging/example.ostrane.dat_tool.metainfo.xml

# The files of the package must be the same under any umask.
rm -rf "$build/package-check"
for mask in 077 022; do
  folder=$build/package-check/$mask
  (umask $mask && cd "$build" && cpack -B "$folder" >/dev/null)
  package=$(echo "$folder"/*.deb)
  dpkg-deb --fsys-tarfile "$package" >"$folder/files.tar"
  dpkg-deb --ctrl-tarfile "$package" >"$folder/control.tar"
done
for part in files.tar control.tar; do
  cmp "$build/package-check/077/$part" "$build/package-check/022/$part"
done

# The links in its documents must lead to its files.
dpkg-deb -x "$package" "$folder/files"
links=$(grep -roP '\]\(\K[^)#]+' --include='*.md' "$folder/files")
while IFS=: read -r page link; do
  [ -e "${page%/*}/$link" ] || {
    echo "$page: $link does not exist" >&2
    exit 1
  }
done <<<"$links"

scripts/check_completion.sh "$folder/files/usr"
lintian --allow-root --fail-on error,warning "$package"
lintian --allow-root --fail-on info --tags hardening-no-bindnow,hardening-no-pie,hardening-no-relro \
  "$package"
echo "Packaging is good"
