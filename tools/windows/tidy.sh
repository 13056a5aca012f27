#!/bin/bash
# Has clang-tidy read what only a build for Windows compiles, with the compiler's own headers for Windows.
#   tidy.sh CLANG-TIDY BUILD-FOLDER
set -eu
tidy=$1
build=$2
cd "$(dirname "$(realpath "$0")")/../.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# Without what g++ alone knows.
sed -E 's/-Winvalid-pch//g; s/-include [^ ]*cmake_pch\.hxx//g; s/-Wno-restrict//g' \
  "$build/compile_commands.json" >"$work/compile_commands.json"
words=(--extra-arg=--target=x86_64-w64-mingw32)
while read -r folder; do
  words+=("--extra-arg=-isystem$folder")
done < <(x86_64-w64-mingw32-g++-posix -xc++ -E -v - </dev/null 2>&1 | sed -n '/^#include </,/^End/s/^ //p' |
  grep -v -e '/include-fixed$' -e '-posix/include$')
find src/platform/windows src/sound/vorbis src/frontend/windows -name '*.cpp' | sort |
  xargs -P "$(nproc)" -n 4 "$tidy" --quiet -p "$work" "${words[@]}"
