# The steps of a play that several tests take. Each fails when what it waits for does not happen.
# shellcheck shell=bash disable=SC2154  # variables of the tests that source it

# Parts of the first window's client area.
field="8 0 480 250"
# Where the menus are in the menu bar, in pixels of the game from the left.
file_menu=30 item_menu=83 info_menu=132

see_title() {
  wait_for 20 "the title" has_window Orvane
  wait_for 10 "the focus" has_focus Orvane
  wait_for 10 "the title's picture" is_painted Orvane 8 0 480 100
}

enter_names() {
  click Orvane 252 200
  opens 名前の入力
  # The first field has the focus already.
  xdotool type --delay 20 Gou
  click 名前の入力 150 128
  xdotool type --delay 20 Rin
  click 名前の入力 280 92
  closes 名前の入力
}

# A menu of the first window is on: the party can walk. In a scene the menus are off.
menu_is_on() { is_on Orvane "$1" -11; }
menu_is_off() { is_off Orvane "$1" -11; }

# listen SECONDS SCENE: clicks on the lines of a scene until the party can walk.
listen() {
  local end=$((SECONDS + $1))
  wait_for 10 "$2" menu_is_off $info_menu
  until menu_is_on $info_menu; do
    [ $SECONDS -ge $end ] && fail "$2 does not end"
    click Orvane 40 150
  done
}

# The field does not change any more.
is_still() {
  local before
  # shellcheck disable=SC2086
  before=$(sum Orvane $field)
  sleep 0.2
  # shellcheck disable=SC2086
  ! changes "$before" Orvane $field
}

# hold KEY: walks that way until a step is seen, and the party has come to rest after the release.
hold() {
  local before
  # shellcheck disable=SC2086
  before=$(sum Orvane $field)
  xdotool keydown "$1"
  # shellcheck disable=SC2086
  wait_for 5 "a step by the $1 key" changes "$before" Orvane $field
  xdotool keyup "$1"
  wait_for 3 "the party's halt" is_still
}

# Asks the window manager to close the window that has the keyboard, until the game asks back. Not
# again soon: on a slow machine that would close the question.
ask_to_quit() {
  local end=$((SECONDS + 20)) again=0
  until has_window ゲームの終了; do
    [ $SECONDS -ge $end ] && fail "the game does not ask whether to quit"
    [ $SECONDS -ge $again ] && xdotool key alt+F4 && again=$((SECONDS + 6))
    sleep 0.05
  done
  wait_for 5 "the focus of the quit question" has_focus ゲームの終了
}

# hold_under_question KEY: a key that is released while a box has the keyboard does not leave the party walking.
hold_under_question() {
  local before
  # shellcheck disable=SC2086
  before=$(sum Orvane $field)
  xdotool keydown "$1"
  # shellcheck disable=SC2086
  wait_for 5 "a step before the question" changes "$before" Orvane $field
  ask_to_quit
  shot question
  xdotool keyup "$1"
  xdotool key Escape
  closes ゲームの終了
  wait_for 3 "the party's halt after the question" is_still
}

quit_game() {
  ask_to_quit
  xdotool key Return
  game_ends "after the quit question"
}

# walk_into TITLE: to and fro until a battle comes, in a window of that title.
walk_into() {
  local end=$((SECONDS + 120)) key
  while lacks_window "$1"; do
    [ $SECONDS -ge $end ] && fail "no battle came within 120 s of walking"
    for key in Left Right; do
      xdotool keydown $key
      sleep 0.6
      xdotool keyup $key
    done
  done
  wait_for 5 "the battle's focus" has_focus "$1"
}

find_battle() {
  walk_into "BATTLE !"
  wait_for 5 "the field's window away" lacks_window Orvane
  wait_for 10 "the battle's buttons" command_is_on 1
}

# A game folder of our own, into folder.
copy_folder() {
  folder=$run_folder/game
  cp -r "$(dirname "$program")/game" "$folder"
}

# The same with the saves of parties.lua.
make_folder() {
  copy_folder
  make_saves parties.lua
}

# make_saves SCRIPT: the saves that this script writes, into the game folder.
make_saves() {
  ORVANE_STATES=$folder ORVANE_PLAY=$here/../play "$player" "$here/../parties/$1" >"$log" 2>&1 ||
    fail "the saves could not be made"
}

# contents FOLDER: what stands in it, with checksums.
contents() { (cd "$1" && find . -type f -exec cksum {} + | sort); }

# bytes FILE OFFSET COUNT: in hexadecimal.
bytes() { od -An -v -t x1 -j "$2" -N "$3" "$folder/$1" | tr -d ' \n'; }

# menu TITLE_X ITEM: chooses the ITEM-th usable item of the menu at that place of the menu bar. The menu
# is open when what lies under it has changed.
menu() {
  local before
  wait_for 5 "the focus before a menu" has_focus Orvane
  before=$(sum Orvane "$1" 2 40 16)
  click Orvane "$1" -11
  wait_for 5 "the menu" changes "$before" Orvane "$1" 2 40 16
  for _ in $(seq "$2"); do xdotool key --delay 20 Down; done
  xdotool key Return
}

opens() {
  wait_for 5 "$1" has_window "$1"
  wait_for 5 "the focus of $1" has_focus "$1"
  wait_for 5 "the picture of $1" is_painted "$1" 0 0 120 60
}
closes() { wait_for 5 "the end of $1" lacks_window "$1"; }

# answer TITLE KEY: a message box comes and is answered.
answer() {
  opens "$1"
  xdotool key "$2"
  closes "$1"
  wait_for 5 "the focus after $1" a_window_has_focus
}
a_window_has_focus() { [ -n "$(xdotool getactivewindow getwindowname 2>/dev/null)" ]; }

# load_save ROW: loads a save on the title, rows counted from 0.
load_save() {
  menu $file_menu 1
  opens ファイルのロード
  click ファイルのロード 40 $((40 + $1 * 12))
  wait_for 5 "the save's names" is_painted ファイルのロード 16 172 60 12
  click ファイルのロード 190 68
  closes ファイルのロード
  wait_for 10 "the field" menu_is_on $item_menu
  wait_for 5 "the party at rest" is_still
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
