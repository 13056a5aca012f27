#!/bin/bash
# Measures the real program: start, memory, processor time, the rate of its ticks. Prints every figure
# beside its goal, and fails only beyond a limit that leaves room for a loaded machine.
#   measure.sh PROGRAM SCREENSHOTS SCRIPT_PLAYER
set -u

# shellcheck source=tests/process/x_session.sh
. "$(dirname "$(realpath "$0")")/x_session.sh"
program=$(realpath "$1")
player=$(realpath "$3")
scale=2
keep_shots_in "$2"
bad=0
battle_period=15  # as a new game has it

# judge WHAT FOUND UNIT GOAL LIMIT
judge() {
  local verdict="within the goal"
  awk "BEGIN { exit !($2 > $4) }" && verdict="beyond the goal"
  awk "BEGIN { exit !($2 > $5) }" && verdict="BEYOND THE LIMIT" && bad=$((bad + 1))
  printf '%-44s %9s %-3s goal %6s, limit %6s: %s\n' "$1" "$2" "$3" "$4" "$5" "$verdict"
}

memory() { awk '/^VmRSS/ { printf "%.1f", $2 / 1024 }' "/proc/$game_pid/status"; }
# Processor time so far of all threads, in ns. The counts in stat are sampled, and miss a program that
# works for less than a sample at a time.
used() { cat "/proc/$game_pid/task/"*/schedstat | awk '{ sum += $1 } END { printf "%d", sum }'; }
# load_over SECONDS: per cent of one core.
load_over() {
  local before after
  before=$(used)
  sleep "$1"
  after=$(used)
  awk "BEGIN { printf \"%.2f\", ($after - $before) / 1e7 / $1 }"
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
    stop_game
  done
  echo "$best"
}

# tick_error NAME PERIOD: how far the median distance of a timer's ticks is from its period, in ms.
tick_error() {
  awk -v name="$1" -v period="$2" '$1 == name && $2 == period { if (last) print $3 - last; last = $3 }' \
    "$shots/ticks.txt" | sort -n |
    awk -v period="$2" '{ all[NR] = $1 }
      END { m = all[int((NR + 1) / 2)] - period; printf "%.2f", NR == 0 ? 999 : m < 0 ? -m : m }'
}

open_display 1400x1120
make_folder
judge "start to title, best of three" "$(start_time)" ms 60 1000
export ORVANE_TICKS=$shots/ticks.txt
start_game --folder "$folder" --scale "$scale" --seed 26
see_title
judge "memory on the title" "$(memory)" MB 50 160
judge "processor on the title" "$(load_over 3)" % 0.3 4
load_save 1
xdotool keydown Down
judge "processor while walking at 2x" "$(load_over 2)" % 2 25
xdotool keyup Down
meet_dragon
before=$(used)
strike
wait_for_command "his blow"
strike
wait_for_command "her blow and the dragon's answer"
work=$(($(used) - before))
stop_game
# The log is whole once the program has ended. A battle moves for parts of a second only.
moved=$(awk -v period=$battle_period '$1 == "Timer1" && $2 == period { sum += period } END { print sum + 0 }' \
  "$shots/ticks.txt")
[ "$moved" -ge 500 ] || fail "the battle moved for $moved ms only"
judge "processor in a battle at 2x, as it moves" "$(awk "BEGIN { printf \"%.2f\", $work / 1e4 / $moved }")" % 8 40
judge "walk's ticks off their period, median" "$(tick_error Timer1 33)" ms 2 6
judge "battle's ticks off their period, median" "$(tick_error Timer1 "$battle_period")" ms 2 6

[ "$bad" = 0 ]
