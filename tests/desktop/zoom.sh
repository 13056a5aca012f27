#!/bin/bash
# The size of the real program's windows: what it starts with, the keys and the window manager's ways
# that change it, and what the windows look like in each size, held against what they look like in
# the size that they are drawn for.
#   zoom.sh PROGRAM SCREENSHOTS SCRIPT_PLAYER
set -u

# shellcheck source=tests/desktop/x_session.sh
. "$(dirname "$(realpath "$0")")/x_session.sh"
program=$(realpath "$1")
player=$(realpath "$3")
keep_shots_in "$2"
# shellcheck source=tests/desktop/looks.sh
. "$here/looks.sh"

# The windows' insides in pixels of the game; a menu bar stands above the first one's.
declare -A wide=([Orvane]=496 [装備]=473 [アイテム]=257 [キャラデータ]=403 ["BATTLE !"]=454)
declare -A high=([Orvane]=303 [装備]=241 [アイテム]=164 [キャラデータ]=444 ["BATTLE !"]=396)
menu_height=18

# has_size TITLE PERCENT: to a pixel, since the toolkit counts in whole pixels of its own.
has_size() {
  local left top width height wanted_width wanted_height=${high[$1]}
  measure "$1"
  [ "$1" = Orvane ] && wanted_height=$((wanted_height + menu_height))
  wanted_width=$((wide[$1] * $2 / 100)) wanted_height=$((wanted_height * $2 / 100))
  ((width - wanted_width <= 2 && wanted_width - width <= 2 && height - wanted_height <= 2 &&
    wanted_height - height <= 2))
}

# grows_to PERCENT [TITLE]: and the window with the keyboard has it still.
grows_to() {
  percent=$1
  wait_for 10 "the scale of $1 per cent" has_size "${2:-Orvane}" "$1"
  wait_for 5 "the focus at $1 per cent" has_focus "${2:-Orvane}"
}

# covers TITLE: the whole screen, without a frame.
covers() {
  local left top width height
  measure "$1"
  [ "$left $top $width $height" = "0 0 $screen_width $screen_height" ]
}

# has_title PERCENT: the title in that scale.
has_title() {
  grows_to "$1"
  look title Orvane
  is_crisp title Orvane 10 2 470 80
}

# Every scale that the keys can come to, and back to the best one.
grow_and_shrink() {
  keys ctrl+minus
  grows_to 150
  keys ctrl+minus
  has_title 100
  keys ctrl+minus ctrl+equal  # there is nothing smaller
  has_title 150
  for percent in 200 250 300 350; do
    keys ctrl+plus
    has_title $percent
  done
  keys ctrl+plus  # 400 per cent is too wide
  keys ctrl+minus
  grows_to 300
  keys ctrl+0
  grows_to 250
  keys ctrl+minus ctrl+minus ctrl+minus
  grows_to 100
}

# see_field PERCENT
see_field() {
  grows_to "$1"
  look field Orvane
  is_crisp field Orvane 10 2 470 240
}

# His things go to him and off again, the coin is nearly thrown away, her page is opened: each by a
# click in this size, and what it shows tells whether the click came to the right place.
look_around() {
  see_field "$percent"
  menu $item_menu 1
  opens 装備
  has_size 装備 "$percent" || fail "the equipment has not $percent per cent"
  click 装備 60 $((56 + 12))
  click 装備 212 64
  click 装備 60 $((56 + 3 * 12))
  click 装備 212 64
  look worn 装備
  click 装備 320 64
  click 装備 212 204
  closes 装備
  menu $item_menu 2
  opens アイテム
  click アイテム 60 40
  click アイテム 212 96
  opens アイテム削除
  look question アイテム削除
  xdotool key Escape
  closes アイテム削除
  look things アイテム
  xdotool key alt+F4
  closes アイテム
  menu $info_menu 1
  opens キャラデータ
  click キャラデータ 300 10
  look her キャラデータ
  is_crisp her キャラデータ 20 46 70 70
  click キャラデータ 192 412
  closes キャラデータ
  wait_for 5 "the focus of the field" has_focus Orvane
}

# What is beside the scene on the full screen, under the menu bar: black from the left edge to the
# right one but for the scene in the middle.
stands_on_black() {
  local side
  import -silent -window root "$shots/full.png"
  for side in West East; do
    [ "$(convert "$shots/full.png" -gravity $side -crop 20x900+0+0 +repage -format '%[fx:maxima]' info:)" = 0 ] ||
      fail "the full screen is not black in the $side"
  done
}

# goes_to LEFT TOP: the window's inside is moved there, to some pixels.
goes_to() {
  local left top width height
  measure Orvane
  ((left - $1 < 60 && $1 - left < 60 && top - $2 < 60 && $2 - top < 60))
}

# The full screen and back, by the key and by the window manager; the window has its place again.
fill_screen() {
  local way left top width height place
  xdotool windowmove "$(window Orvane)" 100 300
  wait_for 5 "the window's new place" goes_to 100 300
  measure Orvane
  place="$left $top $width $height"
  for way in "F11 F11" "F11 super+f" "super+m F11" "super+m super+f"; do
    keys "${way% *}"
    wait_for 10 "the full screen by ${way% *}" covers Orvane
    wait_for 5 "the focus on the full screen" has_focus Orvane
    stands_on_black
    keys "${way#* }"
    wait_for 10 "the window by ${way#* }" has_size Orvane 200
    wait_for 5 "the focus of the window" has_focus Orvane
    measure Orvane
    same "$left $top $width $height" "$place" "the place of the window after $way"
  done
}

# A window whose width is no whole number of pixels in this scale has its ground up to its last ones.
see_edges() {
  local strip
  keys ctrl+plus
  grows_to 250
  menu $info_menu 2
  opens 環境設定
  picture_of 環境設定 "$shots/edges.png"
  for strip in "East 1x0" "South 0x1"; do
    [ "$(convert "$shots/edges.png" -gravity "${strip% *}" -crop "${strip#* }+0+0" +repage \
      -format '%[fx:minima > 0.8]' info:)" = 1 ] || fail "the settings are not painted in the ${strip% *}"
  done
  xdotool key alt+F4
  closes 環境設定
  wait_for 5 "the focus of the field" has_focus Orvane
  keys ctrl+minus
  grows_to 200
}

# The keys walk and a menu opens by a click, in whatever scale the screen allows.
play_on_full_screen() {
  local before width height left top
  keys F11
  wait_for 10 "the full screen" covers Orvane
  percent=$((screen_height * 100 / (high[Orvane] + menu_height)))
  wait_for 5 "the field" menu_is_on $info_menu
  # shellcheck disable=SC2086
  before=$(sum Orvane $field)
  xdotool keydown Down
  # shellcheck disable=SC2086
  wait_for 5 "a step on the full screen" changes "$before" Orvane $field
  xdotool keyup Down
  menu $info_menu 1
  opens キャラデータ
  # It is higher than the field, and has a title.
  measure キャラデータ
  percent=$((width * 100 / wide[キャラデータ]))
  [ $percent = 263 ] || fail "a high window has $percent per cent on the full screen"
  covers Orvane || fail "the field does not cover the screen under a window"
  click キャラデータ 192 412
  closes キャラデータ
  wait_for 5 "the focus of the field" has_focus Orvane
  keys F11
  grows_to 200
}

# The battle in each size, with a list and without; a scene of its own on the full screen.
fight_in_all_sizes() {
  percent=200
  load_save 1
  meet_dragon
  keys ctrl+minus ctrl+minus
  for percent in 100 150 200; do
    [ $percent = 100 ] || keys ctrl+plus
    grows_to $percent "BATTLE !"
    look battle "BATTLE !"
    is_crisp battle "BATTLE !" 10 10 430 262
    press 3
    look techniques "BATTLE !"
    row 0
    wait_for_command "the list"
  done
  keys F11
  wait_for 10 "the battle on the full screen" covers "BATTLE !"
  keys super+f
  grows_to 200 "BATTLE !"
}

# start_at BEST PERCENT: with the best scale, and from there to another one by the keys.
start_at() {
  start_game --seed 5 --folder "$folder"
  wait_for 20 "the title" has_window Orvane
  wait_for 10 "the focus" has_focus Orvane
  grows_to "$1"
  [ "$2" = "$1" ] || keys ctrl+minus
  grows_to "$2"
}

screen_width=1920 screen_height=1200
open_display "${screen_width}x$screen_height"
make_folder
before=$(contents "$folder")
start_at 250 200
fill_screen
grow_and_shrink
load_save 0
look_around
keys ctrl+plus
grows_to 150
look_around
keys ctrl+plus
grows_to 200
look_around
see_edges
play_on_full_screen
stop_game
start_at 250 200
fight_in_all_sizes
stop_game
close_display

# One and a half times as large, by which the windows' scale stays what it is.
open_display "${screen_width}x$screen_height" 144
start_at 250 200
load_save 0
see_field 200
keys ctrl+minus
see_field 150
stop_game
close_display

# Twice as large, on a larger screen.
screen_width=2560 screen_height=1440
open_display "${screen_width}x$screen_height" 192
start_at 300 300
load_save 0
look_around
stop_game
same "$(contents "$folder")" "$before" "the game folder"
echo "desktop test: right in all sizes"
