#!/bin/bash
# Lets the monkey play for long: actions by the million, by default from a seed that the clock gives. Prints actions a
# second and what was reached; what fails prints its seed and leaves a replay in build/monkey.
#   tools/monkey.sh [ACTIONS [SEED [BUILD-FOLDER]]]
# With the folder build-clang it plays under the sanitizers.
set -u
cd "$(dirname "$(realpath "$0")")/.." || exit 1
actions=${1:-1000000} seed=${2:-$(date +%s)} build=${3:-build}
[ -f "$build/build.ninja" ] || cmake --preset check || exit 1
cmake --build "$build" --target orvane-monkey orvane-game-folder || exit 1
mkdir -p "$build/monkey"
echo "from seed $seed on"
exec "$build/bin/orvane-monkey" --actions "$actions" --seed "$seed" --out "$build/monkey" "$build/bin/game"
