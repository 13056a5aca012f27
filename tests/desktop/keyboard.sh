#!/bin/bash
# Plays the real program by the keyboard alone: menus, every kind of control, a walk, a battle to its
# victory. What came of it is read from the files that the game saves.
#   keyboard.sh PROGRAM SCREENSHOTS SCRIPT_PLAYER
set -u

# shellcheck source=tests/desktop/x_session.sh
. "$(dirname "$(realpath "$0")")/x_session.sh"
program=$(realpath "$1")
player=$(realpath "$3")
scale=1
keep_shots_in "$2"
ticks=$shots/ticks.txt
saved=()

# choose MENU ITEM TITLE: the MENU-th menu that is on, its ITEM-th item, and the window that comes.
choose() {
  local way=(F10) step
  wait_for 5 "the focus before a menu" has_focus Orvane
  for ((step = 1; step < $1; ++step)); do way+=(Right); done
  for ((step = 1; step < $2; ++step)); do way+=(Down); done
  keys "${way[@]}" Return
  opens "$3"
}

# The highlight alone chooses nothing: without Enter no file is chosen.
load_by_keys() {
  choose 1 1 ファイルのロード
  keys End Up Down Tab Return
  answer 警告 Return
  keys shift+Tab Home Return Tab
  shot 1-load
  keys Return
  closes ファイルのロード
  wait_for 10 "the field" menu_is_on $item_menu
}

# His things go to him, by the list and the button beside it; hers to her on the other tab.
wear() {
  choose 2 1 装備
  keys Down Down Return Tab Tab
  shot 2-wear
  keys Return
  keys shift+Tab shift+Tab Down Down Return Tab Tab Return
  keys ctrl+Tab
  keys shift+Tab Up Return Tab Tab Return
  keys shift+Tab shift+Tab End Page_Up Home Down Down Down Down Return Tab Tab space
  shot 3-worn
  keys Tab Tab Return
  closes 装備
}

use_things() {
  choose 2 2 アイテム
  keys Down Return Tab Return
  answer アイテム削除 Return
  keys Tab Return
  keys shift+Tab Home Down Down Down Down Down Down Return Tab
  shot 4-things
  keys Return
  opens アイテムの使用
  keys Return
  closes アイテムの使用
}

look_up() {
  choose 3 1 キャラデータ
  keys Right
  shot 5-her
  keys Left Tab space
  closes キャラデータ
  choose 3 3 バージョン情報
  keys Return
  closes バージョン情報
}

battle_period=12  # milliseconds
change_by_keys() {
  choose 3 2 環境設定
  keys ctrl+a
  xdotool type --delay 40 Gou
  keys Tab Tab Home Page_Up Page_Up Right
  shot 6-settings
  keys Tab Return
  closes 環境設定
}

# From any button or the tabs these lead to his technique, or to her blow, as hers is off.
corner=(Down Left)

# act WHAT KEYS...: the keys lead from that button to another one, which Enter presses; a list comes.
act() {
  local what=$1
  shift
  wait_for_command "the turn before $what"
  keys "${corner[@]}" "$@" Return
  wait_for 10 "the list of $what" command_is_off 1
}

strike_by_keys() {
  local up=()
  command_is_on 3 && up=(Up)
  keys "${corner[@]}" "${up[@]}" Return Down Down Return
}

# A thing for him and a healing spell of hers, then a technique of his, then blows.
fight_by_keys() {
  local end=$((SECONDS + 90))
  act things Right
  keys Home Down Down Down Down Down Down Down Down Return
  shot 7-for-whom
  keys Down Down Return
  act spells Right
  keys Down Down Down Down Return
  act techniques
  keys Down Down Return
  keys Down Down Return
  until lacks_window "BATTLE !"; do
    [ $SECONDS -ge $end ] && fail "the battle is not won"
    if has_window 警告; then  # that enemy is dead already
      keys Return
      closes 警告
      keys Down Return
    elif command_is_on 1; then
      strike_by_keys
    else
      shot 8-victory
      # The panel of a victory is left by a click alone.
      click "BATTLE !" 20 250
    fi
    sleep 0.2
  done
}

save_by_keys() {
  choose 1 1 ファイルのセーブ
  keys Home Down Down Return Tab Return
  answer ゲームのセーブ Return
  closes ファイルのセーブ
}

see_saved() {
  wrote_party
  [ "$(number Save03.sav 2)" != "$(number Save01.sav 2)" ] || fail "the party has not walked"
  for field in 88 94 96 450 494; do saved[field]=$(number Save03.sav $field); done
}

# less FIELD WHAT
less() {
  [ "$(number Save03.sav "$1")" -lt "${saved[$1]}" ] || fail "$2 is not less than ${saved[$1]}"
}

see_saved_battle() {
  less 94 "his MP after a technique"
  less 96 "her MP after a spell"
  less 450 "the number of things after one was used"
  [ "$(bytes Save03.sav 494 4)" != "$(bytes Save01.sav 494 4)" ] || fail "no experience was gained"
}

quit_by_keys() {
  wait_for 5 "the focus before a menu" has_focus Orvane
  keys F10 Down
  shot 9-quit
  keys Return
  answer ゲームの終了 Escape
  keys F10 Down Return
  opens ゲームの終了
  keys Return
  game_ends "after the quit question"
}

open_display 640x560
make_folder
ORVANE_TICKS=$ticks start_game --scale 1 --seed 5 --folder "$folder"
see_title
load_by_keys
walk
# Farther than the steps to and fro may have left the party from where it stood.
hold Right 0.5
wear
use_things
look_up
change_by_keys
save_by_keys
see_saved
find_battle
fight_by_keys
save_by_keys
see_saved_battle
quit_by_keys
grep -q "^Timer1 $battle_period " "$ticks" || fail "the battle did not run at the speed of the slider"
echo "desktop test: played by the keyboard"
