#!/bin/bash
# A player's way through the game for Windows, under wine: names, the opening, walking, every screen, a battle,
# saving and loading, and the end.
#   tour.sh BUILT SCREENSHOTS SCRIPT_PLAYER
set -u

# shellcheck source=tests/windows-build/session.sh
. "$(dirname "$(realpath "$0")")/session.sh"
built=$(realpath "$1")
player=$(realpath "$3")
keys_repeat=yes
keep_shots_in "$2"

begin_game() {
  see_title
  shot 01-title
  enter_names
  listen 30 "the opening"
  shot 02-field
}

walk() {
  hold Left
  hold Right
}

# see MENU ITEM TITLE SHOT: opens a screen, keeps a picture of it, and closes it.
see() {
  menu "$1" "$2"
  opens "$3"
  shot "$4"
  keys alt+F4
  closes "$3"
  wait_for 5 "the focus after $3" has_focus Orvane
}

see_screens() {
  see $info_menu 1 キャラデータ 03-heroes
  see $info_menu 2 環境設定 04-settings
  see $info_menu 3 バージョン情報 05-version
  see $item_menu 1 装備 06-equipment
  see $item_menu 2 アイテム 07-bag
}

open_display 1024x768
make_system
install_game "$run_folder/place"
start_game --scale 1 --seed 26
begin_game
walk
see_screens
quit_game
