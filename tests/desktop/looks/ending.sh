# From the last round's dragon to the last card, in hurried time.

last_battles() {
  local clicks
  rm -f "$shots/ticks.txt"
  ORVANE_SPEED=6 ORVANE_TICKS=$shots/ticks.txt \
    start_game --folder "$folder" --scale "$scale" --seed 3
  wait_for 20 "the title" has_focus Orvane
  load 1
  info_menu 環境設定 2
  click 環境設定 150 176
  xdotool key Home
  sleep 0.1
  click 環境設定 336 32
  closes 環境設定
  wait_for 5 "the focus on the field" has_focus Orvane
  meet
  commands
  win
  grep -q '^Timer1 10 ' "$shots/ticks.txt" || fail "the slider does not set the battle's speed"
  grep -q '^Timer1 15 ' "$shots/ticks.txt" && fail "the battle keeps its old speed"
  story 3
  meet
  keep battle-last "BATTLE !"
  win
  clicks=0
  while lacks_window ENDING; do
    [ $((clicks++)) -lt 60 ] || fail "the closing story does not end"
    click Orvane 40 150
    sleep 0.1
  done
  # The card stands when the credits' timer is off, so that the window rests.
  wait_for 60 "the last card" card_stands
  keep ending ENDING
  click ENDING 100 100
  end_game 0
}

card_stands() {
  local before
  before=$(sum ENDING 0 0 451 295)
  sleep 0.4
  ! changes "$before" ENDING 0 0 451 295
}

# Walks up until a battle begins.
meet() {
  xdotool keydown Up
  wait_for 20 "the dragon" has_window "BATTLE !"
  xdotool keyup Up
  wait_for 5 "the battle's focus" has_focus "BATTLE !"
  sleep 0.3
}

# The first line of the closing story shows, and clicks lead on to the last stage.
story() {
  local line
  wait_for 5 "the focus after the battle" has_focus Orvane
  for line in $(seq "$1"); do
    sleep 0.4
    click Orvane 40 150
  done
  sleep 0.4
  keep last-stage Orvane
}

# Waits until no action plays: the scene rests.
scene_rests() {
  local before
  before=$(sum "BATTLE !" 8 8 436 380)
  sleep 0.35
  ! changes "$before" "BATTLE !" 8 8 436 380
}

# Every list of the battle, an item, a spell and a technique with a pause.
commands() {
  keep battle "BATTLE !"
  click "BATTLE !" 112 360
  sleep 0.2
  keep battle-items "BATTLE !"
  row "BATTLE !" 8 280 1
  row "BATTLE !" 8 280 1
  wait_for 30 "the end of the item's action" scene_rests
  click "BATTLE !" 112 328
  sleep 0.2
  keep battle-spells "BATTLE !"
  row "BATTLE !" 8 280 3
  wait_for 60 "the end of the round" scene_rests
  has_window "BATTLE !" || fail "the spell ended the battle"
  click "BATTLE !" 48 360
  sleep 0.2
  keep battle-techniques "BATTLE !"
  row "BATTLE !" 8 280 5
  row "BATTLE !" 8 280 1
  wait_for 30 "the end of the technique" scene_rests
}

# Strikes until the panel has come and a click on the scene leads out.
win() {
  local end=$((SECONDS + 90))
  while has_window "BATTLE !"; do
    [ $SECONDS -ge $end ] && fail "the battle was not won within 90 s"
    has_window 警告 && xdotool key Return
    click "BATTLE !" 48 328
    sleep 0.1
    row "BATTLE !" 8 280 1
    wait_for 30 "the end of a stroke" scene_rests_or_gone
    has_window "GAME OVER" && fail "the party lost"
    click "BATTLE !" 20 250
    sleep 0.3
  done
}
scene_rests_or_gone() { lacks_window "BATTLE !" || scene_rests; }
