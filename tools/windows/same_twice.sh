#!/bin/bash
# Builds the game for Windows twice, in two places and without a cache, and compares the program and both packages byte
# for byte. The sources are those of the last commit; the tools of this machine's build serve both.
#   same_twice.sh
set -eu
cd "$(dirname "$(realpath "$0")")/../.."
host=$(realpath build)
[ -d "$host/rendered" ] || {
  echo "same_twice.sh: there is no build for this machine; tools/windows.sh makes one" >&2
  exit 1
}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
commit=$(git rev-parse HEAD)
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct "$commit")
export SOURCE_DATE_EPOCH CCACHE_DISABLE=1
for place in one another; do
  mkdir "$work/$place"
  git archive "$commit" | tar -x -C "$work/$place"
  (
    cd "$work/$place"
    cmake --preset windows -DORVANE_TESTS=OFF -DORVANE_HOST_BUILD="$host"
    cmake --build build-windows --target orvane orvane-game-folder
    ORVANE_HOST_BUILD=$host tools/windows/pack.sh build-windows
  ) >"$work/$place.log" 2>&1 || {
    tail -n 50 "$work/$place.log"
    exit 1
  }
done
for file in "$work"/one/build-windows/{bin/Orvane.exe,orvane-*.zip,orvane-*-setup.exe}; do
  cmp "$file" "$work/another/${file#"$work/one/"}" && sha256sum "$file" | sed "s| .*/| |"
done
