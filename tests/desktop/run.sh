#!/bin/bash
# Plays the real program in a real window: names, opening, walk, a battle, the way out.
#   run.sh PROGRAM SCREENSHOTS [SCALE]
# Keeps a screenshot of each step in the folder SCREENSHOTS.
set -u

# shellcheck source=tests/desktop/x_session.sh
. "$(dirname "$(realpath "$0")")/x_session.sh"
program=$(realpath "$1")
scale=${3:-1}
keys_repeat=yes  # keys are held here, under boxes too
keep_shots_in "$2"

open_display $((640 * scale))x$((560 * scale))
# With this seed the first battle comes after some 170 steps, and one enemy alone.
start_game --scale "$scale" --seed 26
see_title
enter_names
click_through_opening
walk
hold_key_under_box
find_battle
win_battle
quit_game
echo "desktop test: all steps passed at scale $scale"
