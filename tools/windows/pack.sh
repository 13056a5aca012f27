#!/bin/bash
# Packs a finished build for Windows, with the tools of the build for this machine, in the folder build or the one that
# ORVANE_HOST_BUILD names. The same build gives the same bytes, whenever it is packed.
#   pack.sh BUILD-FOLDER
set -eu
build=$(realpath "$1")
cd "$(dirname "$(realpath "$0")")/../.."
version=$(sed -nE 's/^project\(orvane VERSION ([0-9.]+).*/\1/p' CMakeLists.txt)
export TZ=UTC LC_ALL=C.UTF-8
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || echo 1767225600)}
export SOURCE_DATE_EPOCH

whole=$build/package/Orvane
rm -rf "$build/package"
mkdir -p "$whole/licences" "$whole/game"
cp "$build/bin/Orvane.exe" "$whole"
# The slots as they are before anybody plays; those of the build may have been played with.
cp -r "$build"/bin/game/{Item.dat,Mapdata,Sound} "$whole/game"
"${ORVANE_HOST_BUILD:-build}/bin/orvane-saves" "$whole/game"
# Editors there know a text by its mark and its ends of lines.
{
  printf '\xEF\xBB\xBF'
  sed -e "s/@VERSION@/$version/" -e 's/$/\r/' share/windows/readme.txt
} >"$whole/readme.txt"
# Of everything that is in the program, and of the instruments that its music was recorded from.
cp LICENSE "$whole/licences/orvane.txt"
cp "$build/sources/libsdl2/LICENSE.txt" "$whole/licences/sdl2.txt"
for package in libstb-dev gcc-mingw-w64-base mingw-w64-common fluidr3mono-gm-soundfont; do
  licence=/usr/share/doc/$package/copyright
  if [ -f "$licence" ]; then
    cp "$licence" "$whole/licences/$package.txt"
  else
    gzip -dc "$licence.gz" >"$whole/licences/$package.txt"
  fi
done
chmod -R u=rwX,go=rX "$build/package"
find "$whole" -exec touch -d "@$SOURCE_DATE_EPOCH" {} +

zip=$build/orvane-$version-windows.zip
rm -f "$zip"
(cd "$build/package" && find Orvane | sort | zip -X -9 -q "$zip" -@)
makensis -V2 -NOCD "-DVERSION=$version" "-DWHOLE=$whole" "-DSETUP=$build/orvane-$version-setup.exe" \
  tools/windows/installer.nsi
ls -l "$zip" "$build/orvane-$version-setup.exe"
