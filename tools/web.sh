#!/bin/bash
# Installs what is missing and builds the game as a page: build-web/site, a folder that any static host can serve
# from any path, and build-web/site.zip, the same in one file.
set -u
cd "$(dirname "$(realpath "$0")")/.." || exit 1
# shellcheck source=tools/packages.sh
. tools/packages.sh
need_packages "${web_packages[@]}" "${sound_packages[@]}" || exit 1

# The content is made by tools of this machine: those of its own build, or where there is none, of a small one.
host=build
if [ ! -f build/build.ninja ]; then
  host=build-web/host
  cmake -G Ninja -S . -B "$host" -DCMAKE_BUILD_TYPE=Release -DORVANE_DESKTOP=OFF -DORVANE_TESTS=OFF \
    -DORVANE_BENCH=OFF -DORVANE_PAINT=OFF >/dev/null || exit 1
fi
quietly() {
  "$@" | grep --line-buffered -vE 'no work to do|Re-checking globbed'
  [ "${PIPESTATUS[0]}" -eq 0 ]
}
cmake "$host" >/dev/null || exit 1 # the encoders may have come since
tools=(orvane-embed orvane-items orvane-maps orvane-music orvane-effects orvane-saves)
quietly cmake --build "$host" --target "${tools[@]}" orvane-game-folder orvane-web-sounds || exit 1
cmake --preset web "-DORVANE_HOST_BUILD=$PWD/$host" >/dev/null || exit 1
quietly cmake --build build-web --target orvane-site
