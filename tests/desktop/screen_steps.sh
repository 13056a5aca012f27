# Each screen opened, used and closed, in the order of screens.sh.
# shellcheck shell=bash disable=SC2154  # variables of the tests that source it

# A game folder of our own, into folder.
copy_folder() {
  folder=$run_folder/game
  cp -r "$(dirname "$program")/game" "$folder"
}

# The same with the saves of states.lua, and one that is no save.
make_folder() {
  copy_folder
  make_saves states.lua
  head -c 100 "$folder/Save01.sav" >"$folder/Save09.sav"
}

# make_saves SCRIPT: the saves that this script writes, into the game folder.
make_saves() {
  ORVANE_STATES=$folder ORVANE_PLAY=$here/../play "$player" "$here/$1" >"$log" 2>&1 ||
    fail "the saves could not be made"
}

# contents FOLDER: what stands in it, with checksums.
contents() { (cd "$1" && find . -type f -exec cksum {} + | sort); }

# number FILE OFFSET: a 16-bit number of a save.
number() { od -An -t d2 -j "$2" -N 2 "$folder/$1" | tr -d ' '; }
# bytes FILE OFFSET COUNT: in hexadecimal.
bytes() { od -An -v -t x1 -j "$2" -N "$3" "$folder/$1" | tr -d ' \n'; }

# menu TITLE_X ITEM: chooses the ITEM-th usable item of the menu at that place of the menu bar.
menu() {
  wait_for 5 "the focus before a menu" has_focus Orvane
  click Orvane "$1" -11
  sleep 0.2
  for _ in $(seq "$2"); do xdotool key --delay 20 Down; done
  [ -n "${3:-}" ] && shot "$3"
  xdotool key Return
}
file_menu=30 item_menu=83 info_menu=132

opens() {
  wait_for 5 "$1" has_window "$1"
  wait_for 5 "the focus of $1" has_focus "$1"
  sleep 0.2
}
closes() { wait_for 5 "the end of $1" lacks_window "$1"; }

# answer TITLE KEY: a message box comes and is answered.
answer() {
  opens "$1"
  [ -n "${3:-}" ] && keep "$3" "$1"
  xdotool key "$2"
  closes "$1"
  wait_for 5 "the focus after $1" a_window_has_focus
}
a_window_has_focus() { [ -n "$(xdotool getactivewindow getwindowname 2>/dev/null)" ]; }

# The window does not change any more.
rests() {
  local before
  before=$(sum "$@")
  sleep 0.5
  ! changes "$before" "$@"
}

load_broken_file() {
  menu $file_menu 1 01-file-menu
  opens ファイルのロード
  click ファイルのロード 190 68
  answer 警告 Return nothing-chosen
  # The list shows four rows; the keys go to the last but one, which Enter then chooses.
  click ファイルのロード 40 42
  sleep 0.2
  keep load ファイルのロード
  xdotool key --delay 30 End Up Return
  sleep 0.2
  shot 04-broken
}

# load_row ROW: loads a save, rows counted from 0.
load_row() {
  xdotool key Home
  click ファイルのロード 40 $((40 + $1 * 12))
  sleep 0.2
  click ファイルのロード 190 68
  closes ファイルのロード
  wait_for 10 "the field" menu_is_on $item_menu
  wait_for 5 "the party at rest" is_still
}

# load_save ROW: on the title.
load_save() {
  menu $file_menu 1
  opens ファイルのロード
  load_row "$1"
}

load_party() {
  load_row 0
  keep field Orvane
}

use_equipment() {
  menu $item_menu 1 06-item-menu
  opens 装備
  shot 07-equipment
  # Rows are 12 pixels high. The sword and his armour to him, by his tab.
  click 装備 60 $((56 + 12))
  click 装備 212 64
  click 装備 60 $((56 + 3 * 12))
  click 装備 212 64
  sleep 0.2
  keep his-things 装備
  click 装備 388 19
  sleep 0.2
  click 装備 60 $((56 + 2 * 12))
  click 装備 212 64
  click 装備 60 $((56 + 4 * 12))
  click 装備 212 64
  sleep 0.2
  keep her-things 装備
  click 装備 212 204
  closes 装備
}

use_items() {
  menu $item_menu 2
  opens アイテム
  shot 10-items
  # The coin goes, at the second thought.
  click アイテム 60 40
  click アイテム 212 96
  answer アイテム削除 Escape discard
  click アイテム 212 96
  answer アイテム削除 Return
  click アイテム 212 136
  sleep 0.2
  keep tidy アイテム
  # The fruit goes to him. The coin was the last; the list stands in the order of numbers now.
  click アイテム 60 $((40 + 6 * 12))
  sleep 0.2
  click アイテム 212 56
  opens アイテムの使用
  closes アイテム
  keep use アイテムの使用
  click アイテムの使用 48 164
  closes アイテムの使用
  wait_for 5 "the field" has_focus Orvane
  menu $item_menu 2
  opens アイテム
  shot 14-items-again
  xdotool key alt+F4
  closes アイテム
}

see_heroes() {
  menu $info_menu 1 15-info-menu
  opens キャラデータ
  keep him キャラデータ
  click キャラデータ 300 10
  sleep 0.2
  keep her キャラデータ
  click キャラデータ 192 412
  closes キャラデータ
}

change_settings() {
  menu $info_menu 2
  opens 環境設定
  shot 18-settings
  click 環境設定 120 41
  xdotool key ctrl+a
  xdotool type --delay 30 Gou
  # To the slider, and to its quick end.
  click 環境設定 48 176
  xdotool key Home
  sleep 0.2
  keep settings-changed 環境設定
  click 環境設定 336 32
  closes 環境設定
}

see_version() {
  menu $info_menu 3
  opens バージョン情報
  keep version バージョン情報
  click バージョン情報 134 115
  closes バージョン情報
}

# wrote OFFSET VALUE WHAT: the number in the save that was written.
wrote() {
  local found
  found=$(number Save03.sav "$1")
  [ "$found" = "$2" ] || fail "$3: $found is saved, not $2"
}

# After the equipment, the use of things and the settings.
wrote_party() {
  wrote 82 19 "his level"
  wrote 88 521 "his HP after the fruit"
  wrote 450 8 "the number of things"
  wrote 112 18 "his sword"
  wrote 114 14 "her staff"
  wrote 118 34 "his armour"
  wrote 120 35 "her armour"
  same "$(bytes Save03.sav 58 4)" 476f7520 "his new name"
}

save_party() {
  menu $file_menu 1
  opens ファイルのセーブ
  click ファイルのセーブ 190 68
  answer 警告 Return
  click ファイルのセーブ 40 $((40 + 2 * 12))
  keep save ファイルのセーブ
  click ファイルのセーブ 190 68
  answer ゲームのセーブ Escape sure
  click ファイルのセーブ 190 68
  answer ゲームのセーブ Return
  closes ファイルのセーブ
  [ "$(stat -c %s "$folder/Save03.sav")" = 540 ] || fail "the save has not 540 bytes"
  wrote_party
}

# In the field there is no loading: a second run of the program.
load_before_dragon() {
  quit_game
  start_game --scale "$scale" --seed 5 --folder "$folder"
  see_title
  load_save 1
  keep before-dragon Orvane
}

# Where the buttons of a battle are. The fifth, which flees, is never on here.
button_x=(0 48 112 48 112) button_y=(0 328 328 360 360)
# command_is_on BUTTON: while an action runs or a list is open, and on the victory's panel, none is.
command_is_on() { is_on "BATTLE !" "${button_x[$1]}" "${button_y[$1]}"; }
command_is_off() { ! command_is_on "$1"; }
wait_for_command() { wait_for 60 "the end of $1" command_is_on 1; }

# press BUTTON: of the battle; a list comes.
press() {
  click "BATTLE !" "${button_x[$1]}" "${button_y[$1]}"
  wait_for 10 "the list of button $1" command_is_off 1
}

# Up into the strip before the dragon.
meet_dragon() {
  local end=$((SECONDS + 30))
  xdotool keydown Up
  while lacks_window "BATTLE !"; do
    [ $SECONDS -ge $end ] && fail "no dragon came"
    sleep 0.1
  done
  xdotool keyup Up
  wait_for 5 "the battle's focus" has_focus "BATTLE !"
  wait_for_command "the dragon's coming"
}

# The rows of a battle's lists, counted from 0: "キャンセル" is the first.
row() { click "BATTLE !" 60 $((288 + $1 * 13)); }

strike() {
  press 1
  row 1
}

# Every kind of command against the dragon: he uses the fifth technique, which stops the time for a
# moment, and she a spell on it; then both use a thing.
fight_with_everything() {
  meet_dragon
  keep dragon "BATTLE !"
  press 3
  keep techniques "BATTLE !"
  row 5
  sleep 0.3
  shot 26-targets
  row 1
  sleep 0.4
  shot 27-technique
  wait_for_command "the technique"
  press 2
  shot 28-spells
  row 4
  sleep 0.7
  shot 29-spell
  wait_for_command "the spell and the dragon's answer"
  press 4
  shot 30-things
  row 1
  sleep 0.3
  shot 31-for-whom
  row 1
  wait_for_command "the thing"
  win 32-victory
}

# He uses the last technique, she strikes, until the panel has come and the click beside it has led
# away from the battle.
win() {
  local end=$((SECONDS + 120))
  while has_window "BATTLE !"; do
    [ $SECONDS -ge $end ] && fail "the dragon does not fall"
    if command_is_on 3; then
      press 3
      xdotool key --delay 50 End Return
      sleep 0.3
      row 1
    elif command_is_on 2; then
      strike
    else
      shot "$1"
      click "BATTLE !" 20 250
      sleep 0.2
    fi
  done
  wait_for 5 "the focus after the battle" has_focus Orvane
}

# The lines after the dragon, to the last stage.
hear_story() {
  wait_for 10 "the story" menu_is_off $info_menu
  shot 33-story
  listen 60 "the story"
  keep last-stage Orvane
}

fight_last_dragon() {
  meet_dragon
  keep last-dragon "BATTLE !"
  strike
  wait_for_command "a blow"
  strike
  wait_for_command "a blow and the dragon's answer"
  win 36-last-victory
}

# The last card: as it is kept, or, for new pictures, the first words that stand still for a while,
# unlike the strips before them.
card="112 112 225 65"
last_card_stands() {
  if [ "$update" = no ] && [ "$compared" = yes ]; then
    looks_as_kept last-card ENDING
    return
  fi
  # shellcheck disable=SC2086
  changes "$bare" ENDING $card && rests ENDING $card && rests ENDING $card
}

see_ending() {
  local end=$((SECONDS + 60)) bare
  until has_window ENDING; do
    [ $SECONDS -ge $end ] && fail "the credits do not come"
    click Orvane 40 150
    sleep 0.15
  done
  sleep 2  # painted, and long before the first strip comes so high
  # shellcheck disable=SC2086
  bare=$(sum ENDING $card)
  sleep 3
  shot 37-credits
  if [ "$scale" = 1 ]; then
    wait_for 150 "the last card" last_card_stands
    keep last-card ENDING
    click ENDING 200 100
  else
    xdotool key alt+F4
  fi
  game_ends "after the credits"
}
