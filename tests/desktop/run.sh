#!/bin/bash
# Plays the real program in a real window: names, opening, walk, a battle, the way out.
#   run.sh PROGRAM SCREENSHOTS [SCALE]
# Keeps a screenshot of each step in the folder SCREENSHOTS. Needs Xvfb, openbox, xdotool, xprop, xwininfo and
# ImageMagick. Ends with 77, which counts as skipped, where one of them is missing.
set -u

program=$(realpath "$1")
shots=$2
scale=${3:-1}
here=$(dirname "$(realpath "$0")")
mkdir -p "$shots"
shots=$(realpath "$shots")
log=$shots/game.log

for tool in Xvfb openbox xdotool xprop xwininfo import cksum; do
  command -v "$tool" >/dev/null || { echo "desktop test: $tool is missing" >&2; exit 77; }
done

# shellcheck source=tests/desktop/x_session.sh
. "$here/x_session.sh"
# shellcheck source=tests/desktop/steps.sh
. "$here/steps.sh"

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
