#!/bin/bash
# Measures the game and writes what was found to docs/performance.md, whose text is kept in
# tools/performance_frame.md.
# usage: tools/performance.sh, from anywhere, after a build; best on a quiet machine.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
bin=$root/build/bin
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
  export XDG_RUNTIME_DIR=$work
fi

cmake --build "$root/build" --target orvane-bench >&2
"$bin/orvane-bench" >"$work/bench.txt" 2>"$work/bench.log"
"$bin/orvane-script" "$root/tests/play/playthrough.lua" >"$work/journeys.txt"
"$root/tests/process/measure.sh" "$bin/orvane" "$work/shots" "$bin/orvane-script" >"$work/window.txt"

# bench NAME: processor time of a benchmark, in its own unit.
bench() { awk -v name="$1" '$1 == name { print $4; found = 1 } END { exit !found }' "$work/bench.txt"; }
# window NAME: what measure.sh found.
window() { awk -v name="$1" 'index($0, name) == 1 { print $(NF - 8) ; found = 1 } END { exit !found }' "$work/window.txt"; }
# The median of the journeys' times, in seconds.
journey() {
  sed -nE 's/.*, ([0-9.]+) s$/\1/p' "$work/journeys.txt" | sort -n |
    awk '{ all[NR] = $1 } END { if (NR == 0) exit 1; print all[int((NR + 1) / 2)] }'
}

table=$work/table.md
row() { printf '| %s | %s | %s |\n' "$1" "$2" "$3" >>"$table"; }
printf '| What | Found | Goal |\n| --- | --- | --- |\n' >"$table"
row "a frame of the field, drawn and published" "$(bench FieldFrame) µs" "12 µs"
row "the map's 480 tiles by \`BitBlt\`" "$(bench FieldTilesBitBlt) µs" "1.5 times row copies"
row "the same by plain copies of rows" "$(bench FieldTilesRowCopies) µs" ""
row "the same by SDL's blit" "$(bench FieldTilesSdl) µs" ""
row "the same by QPainter" "$(bench FieldTilesQPainter) µs" ""
row "a frame of a battle" "$(bench BattleFrame) µs" ""
row "a thousand battles by sword" "$(bench ThousandBattles/iterations:1) s" "2.5 s"
row "a whole journey by the bot, median of ten" "$(journey) s" "1.5 s"
row "start to title" "$(window "start to title") ms" "60 ms"
row "memory on the title" "$(window "memory on the title") MB" "50 MB"
row "processor on the title" "$(window "processor on the title") %" "0.3 %"
row "processor while walking at 2x" "$(window "processor while walking") %" "2 %"
row "processor in a battle at 2x, as it moves" "$(window "processor in a battle") %" "8 %"

processor=$(awk -F': *' '/^model name/ { print $2; exit }' /proc/cpuinfo)
sed -e "/{table}/{r $table
d}" -e "s|{machine}|$(nproc) processors, $processor|" "$root/tools/performance_frame.md" >"$root/docs/performance.md"
