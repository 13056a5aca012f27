#!/bin/bash
# Opens every screen of the real program in a real window, uses it once, sees that the use had its
# effect, and holds what it looks like against kept pictures.
#   looks.sh [--update] PROGRAM SCRIPT_PLAYER GAME_FOLDER SCREENSHOTS [SCALE]
# With --update the kept pictures (shots/1x, shots/2x) are made anew. Ends with 77, which counts as
# skipped, where a tool is missing.
set -u

update=no
[ "${1:-}" = --update ] && update=yes && shift
program=$(realpath "$1")
player=$(realpath "$2")
game=$(realpath "$3")
shots=$4
scale=${5:-1}
here=$(dirname "$(realpath "$0")")
kept=$here/shots/${scale}x
mkdir -p "$shots" "$kept"
shots=$(realpath "$shots")
log=$shots/game.log
wrong=0
screen_width=$((700 * scale))
screen_height=$((560 * scale))

for tool in Xvfb openbox xdotool xprop xwininfo import compare cksum fc-match; do
  command -v "$tool" >/dev/null || { echo "desktop test: $tool is missing" >&2; exit 77; }
done
for part in x_session pictures hands looks/party looks/ending; do
  # shellcheck source=/dev/null
  . "$here/$part.sh"
done

check_fonts
open_display "${screen_width}x$screen_height"
folder=$run_folder/game
cp -a "$game" "$folder"
ORVANE_PLAY=$here/../play ORVANE_STATES=$folder "$player" --folder "$game" "$here/look_states.lua" \
  >"$log" 2>&1 || fail "the saves cannot be made"

party_screens
broken_file
last_battles
[ "$wrong" = 0 ] || { echo "desktop test: $wrong pictures differ" >&2; exit 1; }
echo "desktop test: every screen passed at scale $scale ($SECONDS s)"
