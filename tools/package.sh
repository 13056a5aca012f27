#!/bin/bash
# Makes the Debian package of the game: installs what is missing for that, builds the game and leaves
# orvane_VERSION_ARCHITECTURE.deb in the folder build.
set -u
cd "$(dirname "$(realpath "$0")")/.." || exit 1
# shellcheck source=tools/packages.sh
. tools/packages.sh

need_packages "${build_packages[@]}" "${package_packages[@]}" || exit 1
if [ ! -f build/build.ninja ]; then
  cmake --preset release >/dev/null || exit 1
fi
cmake --build build --target orvane orvane-game-folder || exit 1
cd build && cpack -G DEB
