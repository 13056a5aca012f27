#!/bin/bash
# A minute of play in the real program, recorded: the field until its music has begun again, a chest, a
# battle with every technique and every spell, victory, and the field once more.
#   minute.sh PROGRAM RECORDING SCRIPT_PLAYER COMPILER SCORES [JUDGE...]
# Writes the file RECORDING and RECORDING.log beside it; keeps screenshots in the folder "minute" there.
# COMPILER makes the scores of the folder SCORES into pieces that are cut down to their first and last
# sections and played faster, so that the minute holds their ends. JUDGE is called with the recording and the game folder.
# ORVANE_SESSION is the file to source for another system than this machine's.
# Ends with 77, which counts as skipped, where a tool is missing.
set -u

# shellcheck source=tests/process/x_session.sh
. "${ORVANE_SESSION:-$(dirname "$(realpath "$0")")/x_session.sh}"
program=$(realpath "$1")
recording=$(realpath -m "$2")
player=$(realpath "$3")
compiler=$(realpath "$4")
scores=$(realpath "$5")
shift 5
judge=("$@")
scale=1
keep_shots_in "$(dirname "$recording")/minute"

# A game folder of our own: open ground with a chest two tiles to the left, the save, short pieces.
make_minute() {
  copy_folder
  awk 'BEGIN { for (i = 0; i < 480; i++) print i == 199 ? 36 : 7 }' >"$folder/Mapdata/map3-3.dat"
  make_saves minute.lua
  shorten Round3 1.5 intro turn
  shorten Battle1 1 hook turn
}

# shorten PIECE TIMES SECTIONS...: the piece made anew of these sections, so many times as fast.
shorten() {
  local piece=$1 times=$2 score=$run_folder/$1.score
  shift 2
  awk -v times="$times" -v form="$*" \
    '$1 == "form" { print "form", form; next } $1 == "tempo" { $2 *= times } { print }' \
    "$scores/$piece.score" >"$score"
  "$compiler" "$score" "$folder/Sound/$piece.mid" || fail "$piece could not be cut down"
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

open_display 640x560
make_minute
export ORVANE_RECORD=$recording
# With this seed the thirty-first step meets the big enemy of the third round, which stands it all.
start_game --scale 1 --seed 11 --folder "$folder"
see_title
sleep 3  # a quick hand would wait for the instruments instead
load_save 0
shot 1-field
hear_again bgm3
open_chest
find_battle
hear_again bgm4
fight
win_minute
quit_game
echo "desktop test: the minute is played"
[ ${#judge[@]} = 0 ] || "${judge[@]}" "$recording" "$folder"
