#!/bin/bash
# The minute of play that is recorded on the desktop, in the game for Windows under wine: by the same steps, and judged
# by the same judge, but that the pieces are whole, since it has recordings of those alone.
#   sound.sh BUILT RECORDING SCRIPT_PLAYER
set -u

# shellcheck source=tests/windows-build/session.sh
. "$(dirname "$(realpath "$0")")/session.sh"
# shellcheck source=tests/process/minute_steps.sh
. "$here/minute_steps.sh"
built=$(realpath "$1")
recording=$(realpath -m "$2")
player=$(realpath "$3")
keep_shots_in "$(dirname "$recording")/sound"

open_display 640x560
install_game "$built" "$run_folder/place"
make_ground
export ORVANE_RECORD=Z:${recording//\//\\}
# With this seed the thirty-first step meets the big enemy of the third round, which stands it all.
start_game --scale 1 --seed 11
see_title
load_save 0
shot 1-field
sleep 3
open_chest
find_battle
sleep 3
fight
win_minute
quit_game
echo "under wine: the minute is played"
(wine "$built/orvane-minute.exe" --once "$recording" "$folder")
