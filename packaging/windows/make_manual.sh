#!/usr/bin/env bash
# make_manual.sh FOLDER: writes the documents for users as HTML, and FOLDER/ostrane-dat.1 as text. A
# link to a document for developers becomes plain text.
set -euo pipefail
to=$1
mkdir -p "$to/docs"

page() {
  local title=$1
  cat <<EOS
<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>$title</title><style>
body { font-family: sans-serif; line-height: 1.4; max-width: 50em; margin: 2em auto; padding: 0 1em; }
table { border-collapse: collapse } td, th { border: 1px solid #bbb; padding: 0.2em 0.6em }
pre, code { background: #f2f2f2 } img { max-width: 100% }
</style></head><body>
EOS
  sed -E -e 's/\]\(LICENSE\)/](LICENSE.txt)/g; s#\]\(packaging/copyright\)#](licences/ostrane-dat-tool.txt)#g' \
    -e 's#\[([^]]+)\]\((CONTRIBUTING.md|(../)?scripts/[^)]*|(docs/)?(architecture|performance|reliability)\.md[^)]*)\)#\1#g' \
    -e 's/\.md([#)])/.html\1/g' | cmark-gfm --unsafe -e table | awk '
    match($0, /^<h[1-6]>/) {
      id = tolower($0)
      gsub(/<[^>]*>|[^a-z0-9 -]/, "", id)
      gsub(/ /, "-", id)
      sub(/>/, " id=\"" id "\">")
    }
    { print }'
  echo '</body></html>'
}

page Ostrane.dat-tool <README.md >"$to/README.html"
page Changes <CHANGELOG.md >"$to/CHANGELOG.html"
page Files <docs/command.md >"$to/docs/command.html"
page Formats <docs/formats.md >"$to/docs/formats.html"
cp docs/*.png "$to/docs"
groff -man -Tutf8 -P-cbou "$to/ostrane-dat.1" | sed 's/$/\r/' >"$to/ostrane-dat.txt"
