#!/bin/bash
# The real program in a real window, as short as may be: it opens in the size that suits the screen, is
# clicked and typed at, walks while a key is held, asks back when it is to be closed, goes to the full
# screen and back in every way that the window manager knows, and ends in good order. What its windows
# show and do in detail is tests/windows' business.
#   window.sh PROGRAM SCREENSHOTS SCRIPT_PLAYER
set -u

# shellcheck source=tests/process/x_session.sh
. "$(dirname "$(realpath "$0")")/x_session.sh"
program=$(realpath "$1")
player=$(realpath "$3")
percent=250
keys_repeat=yes  # keys are held here, under boxes too
keep_shots_in "$2"

# has_size TITLE WIDTH HEIGHT PERCENT: in pixels of the game, to a pixel of the toolkit's.
has_size() {
  local left top width height wide=$(($2 * $4 / 100)) high=$(($3 * $4 / 100))
  measure "$1"
  ((width - wide <= 2 && wide - width <= 2 && height - high <= 2 && high - height <= 2))
}

# grows_to PERCENT: the first window, which has the keyboard still.
grows_to() {
  percent=$1
  wait_for 10 "the scale of $1 per cent" has_size Orvane 496 321 "$1"
  wait_for 5 "the focus at $1 per cent" has_focus Orvane
}

# What is beside the scene on the full screen is black from the left edge to the right one.
is_black_beside() {
  local side
  import -silent -window root "$shots/full.png"
  for side in West East; do
    [ "$(convert "$shots/full.png" -gravity $side -crop 20x900+0+0 +repage -format '%[fx:maxima]' info:)" = 0 ] ||
      return 1
  done
}

# is_at LEFT TOP: the window's inside, to some pixels for its frame.
is_at() {
  local left top width height
  measure Orvane
  ((left - $1 < 60 && $1 - left < 60 && top - $2 < 60 && $2 - top < 60))
}

is_back_at() {
  local left top width height
  measure Orvane
  [ "$left $top $width $height" = "$1" ]
}

# The full screen and back, by the key and by the window manager; the window has its place again.
fill_screen() {
  local way left top width height place
  xdotool windowmove "$(window Orvane)" 100 300
  wait_for 5 "the window's new place" is_at 100 300
  measure Orvane
  place="$left $top $width $height"
  for way in "F11 F11" "F11 super+f" "super+m F11" "super+m super+f"; do
    keys "${way% *}"
    wait_for 10 "the full screen by ${way% *}" covers Orvane
    wait_for 5 "the focus on the full screen" has_focus Orvane
    wait_for 5 "black beside the scene" is_black_beside
    keys "${way#* }"
    wait_for 10 "the window's place after $way" is_back_at "$place"
    wait_for 5 "the focus of the window" has_focus Orvane
  done
}

# A dialog comes up before the full screen, over what it was opened from.
open_over_full_screen() {
  keys F11
  wait_for 10 "the full screen" covers Orvane
  percent=$((screen_height * 100 / 321))
  wait_for 5 "the field" menu_is_on $info_menu
  menu $info_menu 1
  wait_for 5 "the heroes over the full screen" has_focus キャラデータ
  covers Orvane || fail "the field does not cover the screen under a window"
  keys alt+F4
  closes キャラデータ
  wait_for 5 "the focus of the field" has_focus Orvane
  keys F11
  grows_to 200
}

# A window whose width is no whole number of pixels in this scale has its ground up to its last ones.
see_edges() {
  local strip
  menu $info_menu 2
  opens 環境設定
  xdotool mousemove "$((screen_width - 1))" "$((screen_height - 1))"
  import -silent -window "$(window 環境設定)" "$shots/edges.png"
  for strip in "East 1x0" "South 0x1"; do
    [ "$(convert "$shots/edges.png" -gravity "${strip% *}" -crop "${strip#* }+0+0" +repage \
      -format '%[fx:minima > 0.8]' info:)" = 1 ] || fail "the settings are not painted in the ${strip% *}"
  done
  keys alt+F4
  closes 環境設定
  wait_for 5 "the focus of the field" has_focus Orvane
}

screen_width=1920 screen_height=1200
open_display "${screen_width}x$screen_height"
copy_folder
start_game --seed 26 --folder "$folder"
see_title
grows_to 250
shot 1-title
enter_names
listen 30 "the opening"
shot 2-field
hold Left
hold Right
hold_under_question Right
see_edges
keys ctrl+minus
grows_to 200
fill_screen
open_over_full_screen
quit_game
echo "the real window: opened, clicked, walked, filled the screen and closed"
