#!/bin/bash
# Makes the game for Windows: installs what is missing for that, builds it and leaves, in the folder build-windows,
# orvane-VERSION-windows.zip and the installer orvane-VERSION-setup.exe.
#   windows.sh            both
#   windows.sh --build    the program and its game folder only, in build-windows/bin
set -u
cd "$(dirname "$(realpath "$0")")/.." || exit 1
# shellcheck source=tools/packages.sh
. tools/packages.sh

need_packages "${build_packages[@]}" "${sound_packages[@]}" "${windows_packages[@]}" || exit 1

# What makes the content runs here, so a build for this machine comes first.
if [ ! -f build/build.ninja ]; then
  cmake --preset release >/dev/null || exit 1
fi
cmake --build build --target orvane-tools orvane-windows-sounds || exit 1
if [ ! -f build-windows/build.ninja ]; then
  cmake --preset windows -DORVANE_TESTS=OFF >/dev/null || exit 1
fi
cmake --build build-windows --target orvane orvane-game-folder || exit 1
[ "${1:-}" = --build ] || tools/windows/pack.sh build-windows
