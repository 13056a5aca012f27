#!/bin/bash
# A minute of play in the real program, recorded: the field until its music has begun again, a chest, a
# battle with every technique and every spell, victory, and the field once more.
#   minute.sh PROGRAM RECORDING SCRIPT_PLAYER COMPILER SCORES [JUDGE...]
# Writes the file RECORDING and RECORDING.log beside it; keeps screenshots in the folder "minute" there.
# COMPILER makes the scores of the folder SCORES into pieces that are cut down to their first and last
# sections, so that the minute holds their ends. JUDGE is called with the recording and the game folder.
# Ends with 77, which counts as skipped, where a tool is missing.
set -u

# shellcheck source=tests/desktop/x_session.sh
. "$(dirname "$(realpath "$0")")/x_session.sh"
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
  shorten Round3 intro turn
  shorten Battle1 hook turn
}

# shorten PIECE SECTIONS...: the piece made anew of these sections.
shorten() {
  local piece=$1 score=$run_folder/$1.score
  shift
  sed "s/^form .*/form $*/" "$scores/$piece.score" >"$score"
  "$compiler" "$score" "$folder/Sound/$piece.mid" || fail "$piece could not be cut down"
}

# How often the program has noted this.
noted() { grep -c " $1" "$recording.log"; }
noted_more() { [ "$(noted "$1")" -gt "$2" ]; }
# Nothing has been painted or asked for in a while.
keeps_still() {
  local before
  before=$(stat -c %s "$recording.log")
  sleep 0.5
  [ "$(stat -c %s "$recording.log")" = "$before" ]
}

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
  shot 2-chest
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

# skill X Y NUMBER [ROW]: a technique or spell by its button, its number and the target's row. On a slow
# machine the click may come before its button can be pressed; then it is tried again.
skill() {
  local try painted played
  for try in 1 2 3 4 5; do
    wait_for 60 "the turn of skill $3" keeps_still
    painted=$(noted "painted Battle")
    played=$(noted "play snd")
    click "BATTLE !" "$1" "$2"
    within 2 noted_more "painted Battle" "$painted" || continue
    sleep 0.1
    # shellcheck disable=SC2046
    xdotool key --delay 15 Home $(printf 'Down %.0s' $(seq "$3")) Return
    if [ -n "${4:-}" ]; then
      sleep 0.2
      row "$4"
    fi
    within 3 noted_more "play snd" "$played" && return
  done
  fail "skill $3 is not heard after $try tries"
}
technique() { skill 48 360 "$1" 1; }
spell() { skill 112 328 "$@"; }

fight() {
  local number target
  for number in 1 2 3 4 5 6 7 8 9 10; do
    target=
    [ "$number" -le 2 ] && target=1
    technique "$number"
    spell "$number" $target
    shot "4-round-$number"
  done
}

is_won() {
  wait_for 30 "the end of a skill" keeps_still
  noted_more "play snd7" 0
}

# The strongest skills in turn, until there is the fanfare.
win_minute() {
  local number
  for number in 1 2 3 4 5; do
    is_won || technique 10
    is_won || spell 10
  done
  is_won || fail "the battle is not won"
  sleep 3
  shot 5-victory
  click "BATTLE !" 20 250
  wait_for 5 "the field after the battle" has_window Orvane
  wait_for 5 "the focus after the battle" has_focus Orvane
  sleep 4
  shot 6-field
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
