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

# A battle that the heroes win: they strike until the scene can be left.
win_battle() {
  local end=$((SECONDS + 90))
  find_battle
  shot 08-battle
  while has_window "BATTLE !"; do
    [ $SECONDS -ge $end ] && fail "the battle does not end"
    if command_is_on 1; then
      press 1
      shot 09-targets
      row 1
    else
      click "BATTLE !" 200 150
    fi
    sleep 0.2
  done
  wait_for 10 "the field after the battle" menu_is_on $item_menu
}

# save_to ROW: in the field.
save_to() {
  menu $file_menu 2
  opens ファイルのセーブ
  click ファイルのセーブ 40 $((40 + $1 * 12))
  shot 10-save
  click ファイルのセーブ 190 68
  answer ゲームのセーブ Return
  closes ファイルのセーブ
}

# What is written stays, whatever becomes of the program.
save_and_kill() {
  local before
  before=$(cksum <"$folder/Save03.sav")
  save_to 2
  [ "$(cksum <"$folder/Save03.sav")" != "$before" ] || fail "the save was not written"
  kill -s KILL "$game_pid"
  wait "$game_pid" 2>/dev/null
  game_pid=
  [ -z "$(find "$folder" -name '*.tmp' -o -name '*.new')" ] || fail "a half-written file is left"
}

load_again() {
  start_game --scale 1 --seed 26
  see_title
  load_save 2
  menu $info_menu 1
  opens キャラデータ
  shot 11-loaded
  keys alt+F4
  closes キャラデータ
  wait_for 5 "the focus of the field" has_focus Orvane
}

# The second start brings the first to the front, and ends.
start_twice() {
  local status=0
  timeout 20 /usr/lib/wine/wine64 "$program" || status=$?
  [ $status = 0 ] || fail "the second start ended with status $status"
  [ "$(xdotool search --onlyvisible --name '^Orvane$' | wc -l)" = 1 ] || fail "there are two games"
  wait_for 5 "the first game in front" has_focus Orvane
}

open_display 1024x768
install_game "$built" "$run_folder/龍の 狭間"
start_game --scale 1 --seed 26
begin_game
walk
see_screens
quit_game
make_saves parties.lua
start_game --scale 1 --seed 26
see_title
load_save 0
win_battle
save_and_kill
load_again
start_twice
hold_under_question Left
quit_game
echo "under wine: named, walked, fought, saved, killed and loaded, every screen seen"
