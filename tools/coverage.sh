#!/bin/bash
# Runs the tests of the rules with coverage counters and tells every line and branch of what every front end stands on
# that none of them comes to. Fails unless these are the ones that tools/coverage/left_out.txt names. The page
# build-coverage/coverage.html shows all.
#   tools/coverage.sh
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."
# shellcheck source=tools/packages.sh
. tools/packages.sh
need_packages "${build_packages[@]}" "${play_packages[@]}" "${check_packages[@]}" "${coverage_packages[@]}"
build="build-coverage"

cmake --preset coverage
cmake --build $build --target orvane-unit orvane-sound-unit orvane-script orvane-game-folder
# Each run counts for itself alone.
find $build -name '*.gcda' -delete
# The unit tests but the long ones of tools, and all scenarios; whole journeys come to nothing that these do not.
$build/bin/orvane-unit --gtest_brief=1 --gtest_filter='-MapCheck.*:*Effects*:Distances.*' &
unit=$!
# Those that ask how fast they are do not, which counting makes slow.
$build/bin/orvane-sound-unit --gtest_brief=1 --gtest_filter='-*.LeavingDoesNotWait*:*.ManyPatchesTakeNoTime'
wait $unit
(cd $build && ctest --output-on-failure -j"$(nproc)" --timeout 600 -R "^(replays|play-.*)\$" -E playthrough)

# Of a call's branches those to its exceptions are left out; they belong to nearly every call, and no test could throw
# out of each. So are those of lines that hold no code but what the compiler adds.
gcovr --root . --object-directory $build -j "$(nproc)" --gcov-executable "$PWD/tools/coverage/gcov.sh" \
  --exclude-throw-branches --exclude-unreachable-branches \
  --filter 'src/(base|platform|ui|core|field|battle|screens|ending|game|replay|sound|frontend/shared)/' \
  --json $build/coverage.json --html-details $build/coverage.html --print-summary $build
/usr/bin/python3 tools/coverage/judge.py $build/coverage.json tools/coverage/left_out.txt
