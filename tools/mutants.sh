#!/bin/bash
# Plants small faults in the rules, runs the tests on each, and lists those that no test finds.
# usage: tools/mutants.sh [MOST] [SEED] [FILE ...], from anywhere: so many faults, 450 if nothing is said, drawn by SEED;
# in these files or folders alone, as src/ui.
# All faults are in one build, and each is put in force when a test is run: a quarter of an hour on two processors.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."
# shellcheck source=tools/packages.sh
. tools/packages.sh
most=${1:-450}
seed=${2:-1}
shift $(($# < 2 ? $# : 2))
# Debian's own Python: it knows the package.
need_packages "${build_packages[@]}" "${play_packages[@]}" "${check_packages[@]}" "${mutants_packages[@]}"

# The sources as they are and with the faults, and what is built of them.
work=$PWD/build-mutants
mkdir -p "$work"
rm -f "$work/faults.json"
while true; do
  rm -rf "$work/new"
  mkdir "$work/new"
  git ls-files -z src tests tools content cmake bench share CMakeLists.txt CMakePresets.json LICENSE |
    xargs -0 cp --parents -t "$work/new"
  [ -e "$work/source" ] || cp -r "$work/new" "$work/source"
  cmake -S "$work/source" -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DORVANE_TESTS=ON -DORVANE_BENCH=OFF \
    -DORVANE_PAINT=OFF -DORVANE_DESKTOP=OFF -DORVANE_PRECOMPILE=OFF -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >"$work/configure.log"
  /usr/bin/python3 tools/mutants/plant.py "$work/new" "$work/source" "$work/build/compile_commands.json" "$most" "$seed" \
    "$work/faults.json" "$@"
  # What does not change keeps its time, and is not compiled again.
  rsync -rlpc --delete "$work/new/" "$work/source/"
  cmake --build "$work/build" -- -k 0 orvane-script orvane-unit orvane-game-folder >"$work/build.log" 2>&1 && break
  /usr/bin/python3 tools/mutants/refuse.py "$work/source" "$work/faults.json" "$work/build.log"
done
/usr/bin/python3 tools/mutants/run.py "$work/build" "$work/faults.json" tools/mutants/harmless.txt "$work/table.md"
