#!/bin/bash
# Measures the real program: start, memory, processor time, the rate of its ticks. Prints every figure
# beside its goal, and fails only beyond a limit that leaves room for a loaded machine.
#   measure.sh PROGRAM SCRIPT_PLAYER GAME_FOLDER SCREENSHOTS
set -u

program=$(realpath "$1")
player=$(realpath "$2")
game=$(realpath "$3")
shots=$4
scale=2
here=$(dirname "$(realpath "$0")")
mkdir -p "$shots"
shots=$(realpath "$shots")
log=$shots/game.log
bad=0

for tool in Xvfb openbox xdotool xprop xwininfo import; do
  command -v "$tool" >/dev/null || { echo "desktop test: $tool is missing" >&2; exit 77; }
done
# shellcheck source=tests/desktop/x_session.sh
. "$here/x_session.sh"
# shellcheck source=tests/desktop/hands.sh
. "$here/hands.sh"

# judge WHAT FOUND UNIT GOAL LIMIT
judge() {
  local verdict="within the goal"
  awk "BEGIN { exit !($2 > $4) }" && verdict="beyond the goal"
  awk "BEGIN { exit !($2 > $5) }" && verdict="BEYOND THE LIMIT" && bad=$((bad + 1))
  printf '%-44s %9s %-3s goal %6s, limit %6s: %s\n' "$1" "$2" "$3" "$4" "$5" "$verdict"
}

memory() { awk '/^VmRSS/ { printf "%.1f", $2 / 1024 }' "/proc/$game_pid/status"; }
# Processor time so far, in hundredths of a second.
used() { awk '{ print $14 + $15 }' "/proc/$game_pid/stat"; }
# load_over SECONDS: per cent of one core.
load_over() {
  local before after
  before=$(used)
  sleep "$1"
  after=$(used)
  awk "BEGIN { printf \"%.2f\", ($after - $before) / $1 }"
}

# How long the program takes until its window is on the screen, in ms; the best of three starts.
start_time() {
  local best=999999 begin took
  for _ in 1 2 3; do
    begin=$(date +%s%N)
    start_game --folder "$folder" --scale "$scale" --seed 26
    until has_window Orvane; do sleep 0.005; done
    took=$((($(date +%s%N) - begin) / 1000000))
    [ "$took" -lt "$best" ] && best=$took
    kill "$game_pid"
    wait "$game_pid" 2>/dev/null
    game_pid=
  done
  echo "$best"
}

# Walks to and fro for some seconds.
stroll() {
  local end=$((SECONDS + $1)) key
  while [ $SECONDS -lt $end ]; do
    for key in Left Right; do
      xdotool keydown $key
      sleep 0.5
      xdotool keyup $key
      ! has_window "BATTLE !" || fight
    done
  done
}

# Strikes on through a battle that came by chance.
fight() {
  while has_window "BATTLE !"; do
    has_window 警告 && xdotool key Return
    click "BATTLE !" 48 328
    for row in 1 2 3 4; do row "BATTLE !" 8 280 $row; done
    click "BATTLE !" 20 250
  done
}

# How far the median distance of the walk's ticks is from its period, in ms.
tick_error() {
  awk '$1 == "Timer1" && $2 == 33 { if (last) print $3 - last; last = $3 }' "$shots/ticks.txt" |
    sort -n | awk '{ all[NR] = $1 } END { m = all[int((NR + 1) / 2)] - 33; printf "%.2f", m < 0 ? -m : m }'
}

open_display 1400x1120
folder=$run_folder/game
cp -a "$game" "$folder"
ORVANE_PLAY=$here/../play ORVANE_STATES=$folder "$player" --folder "$game" "$here/look_states.lua" \
  >"$log" 2>&1 || fail "the saves cannot be made"

judge "start to title, best of three" "$(start_time)" ms 150 1000
export ORVANE_TICKS=$shots/ticks.txt
start_game --folder "$folder" --scale "$scale" --seed 26
wait_for 20 "the title" has_focus Orvane
sleep 1
judge "memory on the title" "$(memory)" MB 60 160
judge "processor on the title" "$(load_over 4)" % 0.5 4
load 0
sleep 0.4
click Orvane 40 150
xdotool keydown Left
judge "processor while walking at 2x" "$(load_over 3)" % 4 25
xdotool keyup Left
kill "$game_pid"
wait "$game_pid" 2>/dev/null
game_pid=
# The log is whole once the program has ended.
judge "walk's ticks off their period, median" "$(tick_error)" ms 2 6

# As much of an hour as the processor plays in some seconds, with battles on the way.
ORVANE_SPEED=200 start_game --folder "$folder" --scale 1 --seed 26
scale=1
wait_for 20 "the title" has_focus Orvane
load 0
sleep 0.3
click Orvane 40 150
stroll 4
early=$(memory)
stroll 10
late=$(memory)
steps=$(grep -c '^Timer1' "$shots/ticks.txt")
echo "played $steps ticks, as many as $((steps * 33 / 60000)) minutes of walking have"
[ "$steps" -gt 1500 ] || fail "the hurried game hardly ran"
judge "growth of the memory in hurried play" "$(awk "BEGIN { printf \"%.1f\", $late - $early }")" MB 2 12
[ "$bad" = 0 ]
