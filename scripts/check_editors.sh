#!/usr/bin/env bash
# check_editors.sh BUILD: exports the icon files of the sample, saves them again with other programs and
# imports them. Prints for each way how many icons differ then, and fails if a way that keeps the
# colours changes one.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need editors
build=$(cd "$1" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
dat() { "$build/bin/ostrane-dat" "$@"; }
sample=$build/sample/ostrane.dat

# resave WAY FILE...: replaces files by what the program makes of them.
resave() {
  local way=$1
  shift
  case $way in
    'ImageMagick, indexed') mogrify "$@" ;;
    'ImageMagick, RGBA') mogrify -define png:color-type=6 "$@" ;;
    'ImageMagick, coalesced') mogrify -coalesce "$@" ;;
    'ImageMagick, optimised') mogrify -layers Optimize "$@" ;;
    'Pillow, indexed') pillow 'image.save(new, optimize=True)' "$@" ;;
    'Pillow, RGBA') pillow 'image.convert("RGBA").save(new)' "$@" ;;
    'Pillow, animation') pillow 'image.save(new, save_all=True, disposal=2)' "$@" ;;
  esac
}
pillow() {
  /usr/bin/python3 -c "
import os, sys
from PIL import GifImagePlugin, Image
# Otherwise Pillow reduces the colours of each picture.
GifImagePlugin.LOADING_STRATEGY = GifImagePlugin.LoadingStrategy.RGB_AFTER_DIFFERENT_PALETTE_ONLY
for name in sys.argv[1:]:
    image = Image.open(name)
    image.load()
    new = name + '.new' + name[-4:]
    $1
    os.replace(new, name)" "${@:2}"
}
prettify() { /usr/bin/python3 -m json.tool --sort-keys "$1" "$1.new" && mv "$1.new" "$1"; }

# try FORM WAY NAME: prints the number of icons that differ after the round.
try() {
  local stem=${3%.SHP} form=$1 source file like=()
  rm -rf "$work/round"
  dat export -q "$sample" "$3" --as "$form" -d "$work/round" 2>/dev/null || true
  [ "$form" = gif ] && resave "$2" "$work/round/"*.gif || resave "$2" "$work/round/"*.png
  for file in "$work/round/"*.json; do
    [ ! -e "$file" ] || prettify "$file"
  done
  source=$work/round
  [ "$form" != gif ] || {
    source=$work/round/$stem.gif
    dat extract "$sample" "$3" -o "$work/old.shp"
    like=(--like "$work/old.shp")
  }
  cp "$sample" "$work/new.dat"
  dat import -q "$source" -o "$work/$3" --palette "$sample" "${like[@]}" || true
  dat add -q "$work/new.dat" "$work/$3"
  { dat diff "$sample" "$work/new.dat" --json || true; } | /usr/bin/python3 -c '
import json, sys
print(sum(len(one["icons"] or []) for one in json.load(sys.stdin)))'
}

failed=0
row() { # FORM WAY
  local differing=0 name
  for name in CREST.SHP GEMS.SHP ODDITY.SHP ROCKET.SHP; do
    differing=$((differing + $(try "$1" "$2" "$name")))
  done
  printf '| %s | %s | %s |\n' "$2" "$1" "$differing"
  [ $differing -eq 0 ] || failed=1
}
printf '| Saved again by | Form | Icons that differ |\n|---|---|--:|\n'
for form in png sheet; do
  for way in 'ImageMagick, indexed' 'ImageMagick, RGBA' 'Pillow, indexed' 'Pillow, RGBA'; do
    row $form "$way"
  done
done
row gif 'ImageMagick, coalesced'
row gif 'ImageMagick, optimised'
row gif 'Pillow, animation'
exit $failed
