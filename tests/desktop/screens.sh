#!/bin/bash
# Opens every screen of the real program in a real window, uses it once and closes it; the effect is
# read from the files that the game saves, and what it looks like is held against kept pictures.
#   screens.sh [--update] PROGRAM SCREENSHOTS SCRIPT_PLAYER [SCALE]
# With --update the kept pictures are made anew, which the build target orvane-keep-looks does for
# both scales. At scale 1 the credits run to their last card.
set -u

update=no
[ "${1:-}" = --update ] && update=yes && shift

# shellcheck source=tests/desktop/x_session.sh
. "$(dirname "$(realpath "$0")")/x_session.sh"
program=$(realpath "$1")
player=$(realpath "$3")
scale=${4:-1}
keep_shots_in "$2"
kept=$here/shots/${scale}x
mkdir -p "$kept"
wrong=0
screen_width=$((640 * scale)) screen_height=$((560 * scale))

# shellcheck source=tests/desktop/pictures.sh
. "$here/pictures.sh"

check_fonts
open_display "${screen_width}x$screen_height"
make_folder
start_game --scale "$scale" --seed 5 --folder "$folder"
see_title
load_broken_file
load_party
use_equipment
use_items
see_heroes
change_settings
see_version
save_party
load_before_dragon
fight_with_everything
hear_story
fight_last_dragon
see_ending
[ "$wrong" = 0 ] || { echo "desktop test: $wrong pictures differ" >&2; exit 1; }
echo "desktop test: every screen opened, used and closed at scale $scale"
