#!/bin/sh
# Plays the whole game over many seeds and writes what it was like to docs/balance.md,
# whose text is kept in tools/balance_frame.md.
# usage: tools/balance.sh [SEEDS] [JOBS] [FIRST], from anywhere, after a build: so many seeds from FIRST on,
# 100 from 1 on; as many jobs as cores. The table has a column for each fifty seeds.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
seeds=${1:-100}
jobs=${2:-$(nproc)}
first=${3:-1}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# Each job plays its share of the seeds and leaves the logs; one more run makes the table of all.
job=0
pids=
while [ "$job" -lt "$jobs" ]; do
  ORVANE_FIRST=$((first + job * seeds / jobs)) \
    ORVANE_LAST=$((first + (job + 1) * seeds / jobs - 1)) \
    ORVANE_LOGS="$work/$job.lua" \
    "$root/build/bin/orvane-script" "$root/tests/play/playthrough.lua" >"$work/$job.txt" &
  pids="$pids $!"
  job=$((job + 1))
done
for pid in $pids; do wait "$pid" || failed=1; done
if [ "${failed:-0}" = 1 ]; then
  grep -hv '^|' "$work"/*.txt >&2
  exit 1
fi
ORVANE_READ=$(echo "$work"/*.lua) ORVANE_TABLE="$root/docs/balance.md" \
  ORVANE_FRAME="$root/tools/balance_frame.md" \
  "$root/build/bin/orvane-script" "$root/tests/play/playthrough.lua"
