#!/bin/bash
# Packs the game for Windows twice, which must give the same bytes, looks into the .zip, and installs, renews and
# removes the game by its installer: saves stay, nothing else does.
#   package.sh BUILD-FOLDER
set -u
# shellcheck source=tests/faults.sh
. "$(dirname "$(realpath "$0")")/../faults.sh"
build=$1
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$here/../../tools/windows/pack.sh" "$build" || exit 1
zip=$(echo "$build"/orvane-*-windows.zip)
setup=$(echo "$build"/orvane-*-setup.exe)
cp "$zip" "$setup" "$work"
"$here/../../tools/windows/pack.sh" "$build" >/dev/null || exit 1
cmp "$zip" "$work/${zip##*/}" || fault "packed twice the .zip has other bytes"
cmp "$setup" "$work/${setup##*/}" || fault "packed twice the installer has other bytes"

unzip -q "$zip" -d "$work" || fault "the .zip cannot be unpacked"
for file in Orvane.exe readme.txt game/Item.dat game/Save01.sav game/Save10.sav game/Sound/Round1.mid \
  licences/orvane.txt licences/sdl2.txt licences/libstb-dev.txt licences/gcc-mingw-w64-base.txt \
  licences/mingw-w64-common.txt licences/fluidr3mono-gm-soundfont.txt; do
  [ -s "$work/Orvane/$file" ] || fault "$file is missing in the .zip"
done
[ "$(find "$work/Orvane/game/Mapdata" -name '*.dat' | wc -l)" -eq "$(find "$build/bin/game/Mapdata" -name '*.dat' | wc -l)" ] ||
  fault "maps are missing in the .zip"
diff -r -x '*.sav' "$work/Orvane/game" "$build/bin/game" || fault "the game folder in the .zip is another"
iconv -f UTF-8 -t UTF-16 "$work/Orvane/readme.txt" >/dev/null || fault "the readme is no UTF-8"

# How the installer is called silently; its folder stands last and unquoted, so without a space here.
place="$work/遊び"
install() { "$here/wine.sh" "$setup" /S "/D=Z:${place//\//\\}"; }
menu=$(find "$ORVANE_WINE/drive_c/users" -type d -name "Start Menu" | head -n 1)
install || fault "the installer fails"
diff -r "$work/Orvane" "$place" | grep -v ': uninstall.exe$' && fault "what is installed differs from the .zip"
[ -s "$place/uninstall.exe" ] || fault "there is nothing to uninstall with"
[ -s "$menu/Programs/Orvane.lnk" ] || fault "the start menu has no entry"

echo mine >"$place/game/Save01.sav"
echo old >"$place/game/Item.dat"
install || fault "the installer fails over an installed game"
[ "$(cat "$place/game/Save01.sav")" = mine ] || fault "the installer has overwritten a save"
cmp "$place/game/Item.dat" "$build/bin/game/Item.dat" || fault "the installer has not renewed Item.dat"

# What a game that is not this one keeps among the local data is not the uninstaller's.
local=$(find "$ORVANE_WINE/drive_c/users" -type d -path '*/AppData/Local' -not -path '*/Public/*' | head -n 1)
mkdir -p "$local/Orvane/game"
echo en >"$local/Orvane/language.txt"
echo other >"$local/Orvane/game/Save01.sav"

# Given its folder it removes the game by itself, not by a copy that goes on behind it.
cp "$place/uninstall.exe" "$work"
uninstall() { "$here/wine.sh" "$work/uninstall.exe" /S "_?=Z:${place//\//\\}"; }
uninstall || fault "the uninstaller fails"
left=$(cd "$place" && find . -type f | sort | tr '\n' ' ')
expected=$(for slot in 01 02 03 04 05 06 07 08 09 10; do echo -n "./game/Save$slot.sav "; done)
[ "${left/.\/uninstall.exe /}" = "$expected" ] || fault "uninstalled it leaves $left"
[ "$(cat "$place/game/Save01.sav")" = mine ] || fault "the uninstaller has touched a save"
[ ! -e "$menu/Programs/Orvane.lnk" ] || fault "the entry of the start menu stays"
[ ! -e "$local/Orvane/language.txt" ] || fault "the choice of the language stays"
[ "$(cat "$local/Orvane/game/Save01.sav")" = other ] || fault "the uninstaller has touched another game's save"
rm -r "$local/Orvane/game"
uninstall || fault "the uninstaller fails where little is left"
[ ! -e "$local/Orvane" ] || fault "an empty folder stays among the local data"
no_faults "packed, installed, renewed and removed"
