#!/bin/bash
# Measures the real program: start, memory, processor time, the rate of its ticks. Prints every figure
# beside its goal, and fails only beyond a limit that leaves room for a loaded machine.
#   measure.sh PROGRAM SCREENSHOTS SCRIPT_PLAYER
set -u

# shellcheck source=tests/process/x_session.sh
. "$(dirname "$(realpath "$0")")/x_session.sh"
# shellcheck source=tests/process/costs.sh
. "$here/costs.sh"
program=$(realpath "$1")
player=$(realpath "$3")
scale=2
keep_shots_in "$2"
bad=0

# judge WHAT FOUND UNIT GOAL LIMIT
judge() {
  local verdict="within the goal"
  awk "BEGIN { exit !($2 > $4) }" && verdict="beyond the goal"
  awk "BEGIN { exit !($2 > $5) }" && verdict="BEYOND THE LIMIT" && bad=$((bad + 1))
  printf '%-44s %9s %-3s goal %6s, limit %6s: %s\n' "$1" "$2" "$3" "$4" "$5" "$verdict"
}

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

# tick_error NAME PERIOD: how far the median distance of a timer's ticks is from its period, in ms.
tick_error() {
  distances "$shots/ticks.txt" "$1" "$2" |
    awk -v period="$2" '{ all[NR] = $1 }
      END { m = all[int((NR + 1) / 2)] - period; printf "%.2f", NR == 0 ? 999 : m < 0 ? -m : m }'
}

open_display 1400x1120
make_folder
judge "start to title, best of five" "$(start_time --folder "$folder" --scale "$scale")" ms 60 1000
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
