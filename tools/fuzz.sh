#!/bin/bash
# Lets fuzzers try the readers of the game's files, two at a time, for so long each. What they find is kept in
# tests/fuzz/found/TARGET, from where ./check plays it again; what they have learned is kept in the build folder, and
# the next run goes on there.
#   tools/fuzz.sh MINUTES [TARGET]...
# MINUTES may be a part of one, 0.5.
set -u
cd "$(dirname "$(realpath "$0")")/.." || exit 2
usage="usage: tools/fuzz.sh MINUTES [TARGET]..."
[[ ${1:-} =~ ^[0-9]+(\.[0-9]+)?$ ]] || { echo "$usage" >&2 && exit 2; }
seconds=$(awk -v minutes="$1" 'BEGIN { printf "%d", minutes * 60 + 0.5 }')
shift
build="build-clang"
if [ ! -f $build/build.ninja ]; then
  cmake --preset clang || exit 1
fi
cmake --build $build --target orvane-fuzzers || exit 1
if [ $# -eq 0 ]; then
  for target in tests/fuzz/targets/*.cpp; do set -- "$@" "$(basename "$target" .cpp)"; done
fi

# How large inputs get: most where a reader takes whole pieces.
largest_of() {
  case $1 in
    engine) echo 20000 ;;
    song | clip | map | replay) echo 8000 ;;
    *) echo 4000 ;;
  esac
}

# Runs one target. The last line says how it went.
fuzz() {
  local target=$1 learned=$build/tests/fuzz/learned/$1 found=tests/fuzz/found/$1 log executions
  mkdir -p "$learned" "$found"
  log=$(mktemp)
  # The synthesizer does without what malloc does not give.
  ASAN_OPTIONS=quarantine_size_mb=16:allocator_may_return_null=1 \
    nice "$build/bin/orvane-fuzz-$target" -max_total_time="$seconds" \
    -max_len="$(largest_of "$target")" -timeout=20 -rss_limit_mb=0 -malloc_limit_mb=256 -print_final_stats=1 \
    -artifact_prefix="$found/" "$learned" "$found" "$build/tests/fuzz/corpora/$target" >"$log" 2>&1
  local status=$?
  rmdir "$found" 2>/dev/null
  executions=$(sed -nE 's/^stat::number_of_executed_units: *([0-9]+).*/\1/p' "$log")
  if [ $status -eq 0 ] && [ "${executions:-0}" -gt 0 ]; then
    echo "$target: $executions inputs, nothing found"
  else
    echo "$target: FOUND after ${executions:-?} inputs"
    grep -vE '^#[0-9]+.(INITED|NEW|REDUCE|pulse)' "$log" | tail -n 60
    status=1
  fi
  rm -f "$log"
  return $status
}
export -f fuzz largest_of
export seconds build

# shellcheck disable=SC2016  # the inner shell expands it
printf '%s\n' "$@" | xargs -P 2 -I '{}' bash -c 'fuzz "$1"' fuzz '{}'
