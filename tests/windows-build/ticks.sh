#!/bin/bash
# What the game for Windows costs under wine, and that its ticks keep their pace: in the field, under an open menu,
# while the party walks and in a battle. Prints every figure; fails only beyond limits that leave room for a loaded machine.
#   ticks.sh BUILT SCREENSHOTS SCRIPT_PLAYER
set -u

# shellcheck source=tests/windows-build/session.sh
. "$(dirname "$(realpath "$0")")/session.sh"
# shellcheck source=tests/process/costs.sh
. "$here/costs.sh"
built=$(realpath "$1")
player=$(realpath "$3")
keep_shots_in "$2"
bad=0

lines() { wc -l <"$ticks"; }

# judge WHERE NAME PERIOD FROM LONGEST: the ticks of a timer since that line of the record. The median of their distances
# is the period, or up to 2 ms more, and none is longer than that.
judge() {
  distances <(tail -n "+$4" "$ticks") "$2" "$3" |
    awk -v where="$1" -v period="$3" -v longest="$5" '{ all[NR] = $1 }
      END {
        median = all[int((NR + 1) / 2)]
        printf "%-24s %4d ticks, median %.2f ms, middle nine tenths %.2f to %.2f, all %.2f to %.2f\n", where, NR,
          median, all[int(NR / 20) + 1], all[int(NR * 19 / 20)], all[1], all[NR]
        exit !(NR >= 50 && median >= period - 1 && median <= period + 2 && all[NR] < longest)
      }' || bad=$((bad + 1))
}

open_display 1400x1120
install_game "$built" "$run_folder/place"
make_saves parties.lua
echo "size: $(stat -c %s "$place/Orvane.exe") bytes; start: $(start_time --scale 2) ms"
ticks=$run_folder/ticks.txt
ORVANE_TICKS=Z:${ticks//\//\\} start_game --scale 1 --seed 26
see_title
load_save 1
echo "memory: $(memory) MB"
from=$(lines)
sleep 3
judge "in the field" Timer1 33 "$from" 500
click Orvane $info_menu -11
sleep 0.5
from=$(lines)
sleep 3
judge "under an open menu" Timer1 33 "$from" 500
shot menu
keys Escape Escape
sleep 0.5
from=$(lines)
xdotool keydown Down
sleep 2
xdotool keyup Down
judge "walking" Timer1 33 "$from" 500
meet_dragon
from=$(lines)
strike
wait_for_command "the blow"
strike
wait_for_command "the other blow"
# Between the blows nothing ticks.
judge "in a battle" Timer1 $battle_period "$from" 60000
stop_game
[ $bad = 0 ] || fail "$bad figures are beyond their limits"
