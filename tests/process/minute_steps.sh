# The steps of the minute of play that is recorded. Sourced by the tests that play it; "recording" is the file with the
# sound, which has its log beside it.
# shellcheck shell=bash disable=SC2154  # variables of the tests that source it

# Into the game folder: open ground with a chest two tiles to the left, and the save.
make_ground() {
  awk 'BEGIN { for (i = 0; i < 480; i++) print i == 199 ? 36 : 7 }' >"$folder/Mapdata/map3-3.dat"
  make_saves minute.lua
}

# How often the program has noted this.
noted() { grep -c " $1" "$recording.log"; }
noted_more() { [ "$(noted "$1")" -gt "$2" ]; }
# hear_again CHANNEL: the piece has begun for the second time, and nothing sounds over it for a while.
hear_again() {
  wait_for 60 "the end of $1" noted_more "play $1" 1
  sleep 4.5
}

# To the left onto the chest.
open_chest() {
  local before
  xdotool keydown Left
  wait_for 10 "the chest's sound" noted_more "play snd1" 0
  xdotool keyup Left
  sleep 1.5
  click Orvane 40 150
  sleep 0.2
}

# within SECONDS COMMAND...: whether the command succeeds in that time.
within() {
  local end=$((SECONDS + $1 + 1))
  shift
  until "$@"; do
    [ $SECONDS -ge $end ] && return 1
    sleep 0.05
  done
}

# has_turn BUTTON: the hero whose button it is can be given a command. Between her action and the enemy's the
# buttons are on for a moment; nothing is painted for a while only when it is the heroes' turn.
has_turn() {
  local before
  command_is_on "$1" || return
  before=$(noted painted)
  sleep 0.15
  [ "$(noted painted)" = "$before" ] && command_is_on "$1"
}

# use BUTTON NUMBER [TARGET]: a technique or spell by the button of the battle and its number, on a row of
# the targets where it asks for one. The keys wait for the lists by themselves. On a slow machine the
# click may be lost; then it is tried again.
use() {
  local played way=(Home)
  # shellcheck disable=SC2207
  way+=($(printf 'Down %.0s' $(seq "$2")) Return)
  # shellcheck disable=SC2207
  [ -z "${3:-}" ] || way+=(Home $(printf 'Down %.0s' $(seq "$3")) Return)
  for _ in 1 2 3 4 5; do
    wait_for 60 "the turn of skill $2" has_turn "$1"
    played=$(noted "play snd")
    click "BATTLE !" "${button_x[$1]}" "${button_y[$1]}"
    xdotool key --delay 15 "${way[@]}"
    within 3 noted_more "play snd" "$played" && return
  done
  fail "skill $2 of button $1 is not heard after five tries"
}
technique() { use 3 "$1" 1; }
spell() { use 2 "$@"; }

fight() {
  local number target
  for number in 1 2 3 4 5 6 7 8 9 10; do
    target=
    [ "$number" -le 2 ] && target=1
    technique "$number"
    spell "$number" $target
  done
}

# turn_comes BUTTON: or the fanfare instead.
turn_comes() { has_turn "$1" || noted_more "play snd7" 0; }
is_won() {
  wait_for 30 "the end of a skill" turn_comes "$1"
  noted_more "play snd7" 0
}

# The strongest skills in turn, until there is the fanfare.
win_minute() {
  for _ in 1 2 3 4 5; do
    is_won 3 || technique 10
    is_won 2 || spell 10
  done
  is_won 3 || fail "the battle is not won"
  sleep 1.5
  shot 2-victory
  click "BATTLE !" 20 250
  wait_for 5 "the field after the battle" has_window Orvane
  wait_for 5 "the focus after the battle" has_focus Orvane
  sleep 2.5
}
