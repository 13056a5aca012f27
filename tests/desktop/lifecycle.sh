#!/bin/bash
# Installs the game, starts it as a player would, starts it twice, and ends it from outside on its
# title, in the field, in a battle and over a question.
#   lifecycle.sh BUILD_FOLDER SCREENSHOTS SCRIPT_PLAYER
set -u

build=$(realpath "$1")
shots=$2
player=$(realpath "$3")
scale=1
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
# shellcheck source=tests/desktop/screen_steps.sh
. "$here/screen_steps.sh"

contents() { (cd "$1" && find . -type f -exec cksum {} + | sort); }

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

start_twice() {
  local status=0 second
  timeout 5 "$program" || status=$?
  [ $status = 0 ] || fail "the second start ended with status $status"
  second=$(xdotool search --onlyvisible --name '^Orvane$' | wc -l)
  [ "$second" = 1 ] || fail "there are $second windows after the second start"
  has_focus Orvane || fail "the first game is not in front"
}

# ends WHERE SIGNAL: the program ends at once, in good order, and leaves no half-written file.
ends() {
  local status=0 before
  before=$(contents "$folder")
  kill -s "$2" "$game_pid"
  for _ in $(seq 50); do
    kill -0 "$game_pid" 2>/dev/null || break
    sleep 0.1
  done
  kill -0 "$game_pid" 2>/dev/null && fail "the game goes on $1"
  wait "$game_pid" || status=$?
  game_pid=
  [ $status = 0 ] || fail "the game ended with status $status $1"
  [ "$(contents "$folder")" = "$before" ] || fail "the game folder has changed $1"
}

open_display 640x560
install_game
start_game --scale 1
see_title
see_own_folder
start_twice
ends "on the title" TERM

# The first of these saves was made by the player, so to speak; the installed slots stay behind.
ORVANE_STATES=$folder ORVANE_PLAY=$here/../play "$player" "$here/states.lua" >"$log" 2>&1 ||
  fail "the saves could not be made"
for where in field question battle; do
  start_game --scale 1 --seed 5
  see_title
  [ "$(stat -c %s "$folder/Save02.sav")" = 540 ] || fail "a save has gone"
  menu $file_menu 1
  opens ファイルのロード
  load_row 1
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
