# The steps of a play, in the order of run.sh. Each fails when what it waits for does not happen.
# shellcheck shell=bash disable=SC2154  # variables of the tests that source it

# Parts of the first window's client area.
field="8 0 480 250"
message="72 8 338 66"

see_title() {
  wait_for 20 "the title" has_window Orvane
  wait_for 10 "the focus" has_focus Orvane
  sleep 0.3
  shot 1-title
}

enter_names() {
  click Orvane 252 200
  wait_for 10 "the name entry" has_window 名前の入力
  wait_for 10 "the focus of the name entry" has_focus 名前の入力
  # The first field has the focus already.
  xdotool type --delay 30 Gou
  click 名前の入力 150 128
  xdotool type --delay 30 Rin
  sleep 0.2
  shot 2-names
  click 名前の入力 280 92
  wait_for 10 "the end of the name entry" lacks_window 名前の入力
  sleep 0.5
  shot 3-opening
}

# A menu of the first window is on: the party can walk. In a scene the menus are off.
menu_is_on() { is_on Orvane "$1" -11; }
menu_is_off() { is_off Orvane "$1" -11; }

# listen SECONDS SCENE: clicks on the lines of a scene until the party can walk.
listen() {
  local end=$((SECONDS + $1))
  wait_for 10 "$2" menu_is_off "$info_menu"
  until menu_is_on "$info_menu"; do
    [ $SECONDS -ge $end ] && fail "$2 does not end"
    click Orvane 40 150
    sleep 0.1
  done
}

# Each click changes the line of the message; after the last the message goes.
click_through_opening() {
  local line before
  for line in $(seq 1 19); do
    # shellcheck disable=SC2086
    before=$(sum Orvane $message)
    click Orvane 40 150
    # shellcheck disable=SC2086
    wait_for 5 "line $line of the opening" changes "$before" Orvane $message
    sleep 0.1
  done
  listen 20 "the opening"
  shot 4-field
}

# The field does not change any more.
is_still() {
  local before
  # shellcheck disable=SC2086
  before=$(sum Orvane $field)
  sleep 0.4
  # shellcheck disable=SC2086
  ! changes "$before" Orvane $field
}

# hold KEY SECONDS: walks that way until the key is released, and has come to rest.
hold() {
  local before
  # shellcheck disable=SC2086
  before=$(sum Orvane $field)
  xdotool keydown "$1"
  # shellcheck disable=SC2086
  wait_for 5 "a step by the $1 key" changes "$before" Orvane $field
  sleep "$2"
  xdotool keyup "$1"
  wait_for 3 "the party's halt" is_still
}

walk() {
  wait_for 5 "a field at rest" is_still
  hold Left 0.3
  hold Right 0.3
  shot 5-walk
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

# A key that is released while a box has the keyboard does not leave the party walking.
hold_key_under_box() {
  xdotool keydown Right
  sleep 0.1
  ask_to_quit
  shot 6-question
  xdotool keyup Right
  sleep 0.1
  xdotool key Escape
  wait_for 5 "the end of the quit question" lacks_window ゲームの終了
  wait_for 3 "the party's halt after the box" is_still
}

find_battle() {
  local end=$((SECONDS + 120)) key
  while lacks_window "BATTLE !"; do
    [ $SECONDS -ge $end ] && fail "no battle came within 120 s of walking"
    for key in Left Right; do
      xdotool keydown $key
      sleep 0.6
      xdotool keyup $key
    done
  done
  wait_for 5 "the battle's focus" has_focus "BATTLE !"
  wait_for 5 "the field's window away" lacks_window Orvane
  wait_for 10 "the battle's buttons" command_is_on 1
  shot 7-battle
}

# Both heroes strike the first enemy that lives, until the panel has come and a click beside it
# leads back to the field.
win_battle() {
  local end=$((SECONDS + 240)) row=1 listed=no acted=no
  while has_window "BATTLE !"; do
    [ $SECONDS -ge $end ] && fail "the battle was not won within 240 s"
    game_is_gone && fail "the game ended in the battle"
    if has_window 警告; then
      xdotool key Return  # that enemy is dead already
      row=$((row % 4 + 1))
      continue
    fi
    click "BATTLE !" 48 328
    sleep 0.15
    [ $listed = no ] && shot 8-targets && listed=yes
    click "BATTLE !" 60 $((290 + row * 16))
    sleep 0.3
    [ $acted = no ] && shot 9-action && acted=yes
    # Only the victory's panel makes the scene take clicks; a shot before each keeps the last one.
    shot 10-victory
    click "BATTLE !" 20 250
    sleep 0.1
  done
  wait_for 5 "the field after the battle" has_window Orvane
  wait_for 5 "the focus after the battle" has_focus Orvane
  wait_for 5 "the party at rest after the battle" is_still
  shot 11-field-again
}

quit_game() {
  ask_to_quit
  xdotool key Return
  game_ends "after the quit question"
}
