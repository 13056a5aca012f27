#!/bin/bash
# The game for Windows in English, under wine: by an option, by a variable, and chosen by a right click, which the next
# start remembers; the title, a dialog, a box, the field and a battle; and where no face has Japanese letters.
#   language.sh BUILT SCREENSHOTS SCRIPT_PLAYER
set -u

# shellcheck source=tests/windows-build/session.sh
. "$(dirname "$(realpath "$0")")/session.sh"
built=$(realpath "$1")
player=$(realpath "$3")
keep_shots_in "$2"

# names_are_asked_as TITLE: the first button opens the dialog for the names.
names_are_asked_as() {
  see_title
  click Orvane 252 200
  opens "$1"
  shot "$2"
  keys Escape
  closes "$1"
  wait_for 5 "the focus after $1" has_focus Orvane
}

# choose TITLE KEYS...: a right click on the window, and what to press in the menu that comes there.
choose() {
  local at_x at_y before title=$1
  shift
  before=$(sum "$title" 32 32 40 16)
  point "$title" 30 30
  xdotool mousemove "$at_x" "$at_y" click 3
  wait_for 5 "the menu of languages" changes "$before" "$title" 32 32 40 16
  sleep 0.3
  shot menu
  keys "$@"
}

quit_in_english() {
  keys alt+F4
  wait_for 10 "the question" has_focus "Quit Game"
  sleep 0.3
  shot box
  keys Return
  game_ends "after the question in English"
}

# is_wide WIDTH: the first window, or the box before it.
is_wide() {
  local left top width height
  measure Orvane
  [ "$width" = "$1" ]
}
is_box() { has_window Orvane && ! is_wide 496; }

# On a system whose faces have no Japanese letters a box says so, unless the game is in English.
lack_faces() {
  export FONTCONFIG_FILE=$run_folder/faces.conf
  cat >"$FONTCONFIG_FILE" <<END
<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig><dir>/usr/share/fonts/truetype/dejavu</dir><cachedir>$run_folder/faces</cachedir></fontconfig>
END
  /usr/lib/wine/wineserver -k
  /usr/lib/wine/wineserver -w
  WINEPREFIX=$run_folder/bare
  (wine wineboot -i) >/dev/null 2>&1 || fail "wine does not start without faces"
  start_game --scale 1
  wait_for 20 "the box about faces" is_box
  sleep 0.3
  shot no-faces
  keys Return
  wait_for 10 "the title without faces" is_wide 496
  stop_game
  start_game --scale 1 --language en
  wait_for 20 "the English title without faces" is_wide 496
  shot no-faces-english
  stop_game
}

# A save among the slots, and a battle in the field.
fight_in_english() {
  menu $file_menu 1
  opens "Load Game"
  click "Load Game" 40 40
  shot load
  click "Load Game" 190 68
  closes "Load Game"
  wait_for 5 "the focus of the field" has_focus Orvane
  sleep 1
  shot field
  walk_into "BATTLE!"
  wait_for 10 "the battle's buttons" is_on "BATTLE!" 48 328
  shot battle
  choose "BATTLE!" Down Return
  opens "BATTLE !"
  shot japanese-battle
}

open_display 1024x768
install_game "$built" "$run_folder/place"
start_game --scale 1 --language en
names_are_asked_as Names names
stop_game
ORVANE_LANGUAGE=en start_game --scale 1
names_are_asked_as Names by-variable
stop_game
start_game --scale 1
names_are_asked_as 名前の入力 japanese
choose Orvane Down Down Return
names_are_asked_as Names chosen
shot title
quit_in_english
make_saves parties.lua
start_game --scale 1 --seed 26
see_title
fight_in_english
stop_game
lack_faces
echo "under wine: in English by an option, a variable and a choice, which is remembered; Japanese by default"
