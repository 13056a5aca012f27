#!/bin/bash
# Collects the texts of the game anew and merges them into the catalogues: content/texts/*.po. A new text has no
# translation then; a translation whose text is gone stands at the end, as a comment.
#   tools/texts.sh [BUILD]   with the programs of this build folder, build without it
set -eu
cd "$(dirname "$(realpath "$0")")/.." || exit 1
build=${1:-build}
cmake --build "$build" --target orvane-texts orvane-item-file orvane-map-files
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Names of faces and letters that are no texts, and hints that are told in both languages anyway.
mapfile -t sources < <({
  find src -name '*.cpp' -o -name '*.h'
  find src/frontend/web/page -name '*.mjs' -o -name '*.html'
} | grep -vE 'cp932_table|shared/faces|ui/control\.h|windows/paint|shared/texts/|frontend/script/' | sort)
"$build/bin/orvane-texts" "$build/bin/game" content/items/items.csv content/texts/composed.pot "${sources[@]}" \
  >"$work/found.pot"
msgcat --use-first --no-wrap "$work/found.pot" content/texts/composed.pot >"$work/all.pot"
for catalogue in content/texts/*.po; do
  msgmerge --quiet --update --backup=none --no-fuzzy-matching --no-wrap "$catalogue" "$work/all.pot"
  echo "$catalogue: $(msgfmt --check --statistics -o /dev/null "$catalogue" 2>&1 | tail -n 1)"
done
