#!/bin/bash
# Installs the game, starts it as a player would, starts it twice, and ends it from outside on its
# title, in the field, in a battle and over a question.
#   lifecycle.sh BUILD_FOLDER SCREENSHOTS SCRIPT_PLAYER
set -u

# shellcheck source=tests/process/x_session.sh
. "$(dirname "$(realpath "$0")")/x_session.sh"
build=$(realpath "$1")
player=$(realpath "$3")
scale=1
keep_shots_in "$2"

install_game() {
  cmake --install "$build" --prefix "$run_folder/prefix" >"$log" 2>&1 || fail "the game cannot be installed"
  program=$run_folder/prefix/bin/orvane
  installed=$(contents "$run_folder/prefix")
  folder=$run_folder/.local/share/orvane/game
  unset XDG_DATA_HOME
}

# The player's own folder is there at the first start, and as it was installed.
see_own_folder() {
  [ "$(contents "$folder")" = "$(contents "$run_folder/prefix/share/orvane/game")" ] ||
    fail "the player's folder is not like the installed one"
}

see_icon() {
  local size
  for size in 16 24 32 48 64 128; do
    xprop -id "$(window Orvane)" _NET_WM_ICON | grep -aq "Icon ($size x $size)" || fail "no icon of $size pixels"
  done
}

start_twice() {
  local status=0 second
  timeout 20 "$program" || status=$?
  [ $status = 0 ] || fail "the second start ended with status $status"
  second=$(xdotool search --onlyvisible --name '^Orvane$' | wc -l)
  [ "$second" = 1 ] || fail "there are $second windows after the second start"
  wait_for 5 "the first game in front" has_focus Orvane
}

# ends WHERE SIGNAL: the program ends at once, in good order, and leaves no half-written file.
ends() {
  local before
  before=$(contents "$folder")
  kill -s "$2" "$game_pid"
  game_ends "$1"
  [ "$(contents "$folder")" = "$before" ] || fail "the game folder has changed $1"
}

# Where no folder can be made for the player, the box that says so goes away with the program.
end_over_an_error() {
  local status=0 end
  touch "$run_folder/no-folder"
  HOME=$run_folder/no-folder start_game --scale 1
  wait_for 20 "the box of an error" has_focus Orvane
  grep -q "cannot make the folder" "$log" || fail "the error is not told"
  kill -s TERM "$game_pid"
  end=$((SECONDS + 15))
  until game_is_gone; do
    [ $SECONDS -ge $end ] && kill -s KILL "$game_pid" && fail "the game goes on over an error"
    sleep 0.05
  done
  wait "$game_pid" || status=$?
  game_pid=
  [ $status = 1 ] || fail "the game ended with status $status over an error"
}

open_display 640x560
install_game
start_game --scale 1
see_title
see_own_folder
see_icon
start_twice
ends "on the title" TERM
end_over_an_error

# The first of these saves was made by the player, so to speak; the installed slots stay behind.
make_saves parties.lua
for where in field question battle; do
  start_game --scale 1 --seed 5
  see_title
  [ "$(stat -c %s "$folder/Save02.sav")" = 540 ] || fail "a save has gone"
  load_save 1
  case $where in
    field) ends "in the field" HUP ;;
    question)
      menu $file_menu 1
      opens ファイルのセーブ
      click ファイルのセーブ 40 $((40 + 2 * 12))
      click ファイルのセーブ 190 68
      opens ゲームのセーブ
      ends "over the question whether to save" TERM
      ;;
    battle)
      meet_dragon
      strike
      sleep 0.3
      ends "in a battle" INT
      ;;
  esac
done
[ "$(contents "$run_folder/prefix")" = "$installed" ] || fail "what was installed has changed"
echo "desktop test: installed, started twice, and ended from outside"
