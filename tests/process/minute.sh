#!/bin/bash
# A minute of play in the real program, recorded: the field until its music has begun again, a chest, a
# battle with every technique and every spell, victory, and the field once more.
#   minute.sh PROGRAM RECORDING SCRIPT_PLAYER COMPILER SCORES [JUDGE...]
# Writes the file RECORDING and RECORDING.log beside it; keeps screenshots in the folder "minute" there.
# COMPILER makes the scores of the folder SCORES into pieces that are cut down to their first and last
# sections and played faster, so that the minute holds their ends. JUDGE is called with the recording and the game folder.
# Ends with 77, which counts as skipped, where a tool is missing.
set -u

# shellcheck source=tests/process/x_session.sh
. "$(dirname "$(realpath "$0")")/x_session.sh"
# shellcheck source=tests/process/minute_steps.sh
. "$here/minute_steps.sh"
program=$(realpath "$1")
recording=$(realpath -m "$2")
player=$(realpath "$3")
compiler=$(realpath "$4")
scores=$(realpath "$5")
shift 5
judge=("$@")
scale=1
keep_shots_in "$(dirname "$recording")/minute"

# A game folder of our own, with short pieces.
make_minute() {
  copy_folder
  make_ground
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
