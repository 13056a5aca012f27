# What the program costs. Sourced by the tests that measure it.
# shellcheck shell=bash disable=SC2034,SC2154  # variables for the tests that source it, and of theirs

battle_period=15  # ms, as a new game has it

# start_time OPTIONS...: how long the program takes until its window is on the screen, in ms; the best of five starts.
# The window manager tells of each new window, so that nothing has to be asked again and again meanwhile.
start_time() {
  local best=999999 begin took
  coproc new_windows { exec stdbuf -oL xprop -root -spy _NET_CLIENT_LIST; }
  for _ in 1 2 3 4 5; do
    while read -r -t 0.3 -u "${new_windows[0]}" _; do :; done
    begin=$(date +%s%N)
    start_game --seed 26 "$@"
    while
      read -r -t 20 -u "${new_windows[0]}" _ || fail "no window has come"
      took=$((($(date +%s%N) - begin) / 1000000))
      ! has_window Orvane
    do :; done
    [ "$took" -lt "$best" ] && best=$took
    stop_game
  done
  kill "$new_windows_PID"
  echo "$best"
}

# In MB.
memory() { awk '/^VmRSS/ { printf "%.1f", $2 / 1024 }' "/proc/$game_pid/status"; }

# distances FILE NAME PERIOD: those between the ticks of a timer in a record of them, in ms, shortest first.
distances() {
  tr -d '\r' <"$1" |
    awk -v name="$2" -v period="$3" '$1 == name && $2 == period { if (last) print $3 - last; last = $3 }' | sort -n
}
