# The screens of the party, on a save with a full bag; all that they change is found in a new save.

party_screens() {
  start_game --folder "$folder" --scale "$scale" --seed 26
  wait_for 20 "the title" has_focus Orvane
  keep title Orvane
  click Orvane 252 200
  opens 名前の入力
  xdotool type --delay 20 Gou
  click 名前の入力 150 128
  xdotool type --delay 20 Rin
  keep names 名前の入力
  click 名前の入力 280 92
  closes 名前の入力
  end_by_force
  start_game --folder "$folder" --scale "$scale" --seed 26
  wait_for 20 "the title" has_focus Orvane
  load 0 load
  pickup
  wear
  data
  use_and_discard
  rename
  version
  save_all
  file_menu ゲームの終了 2
  keep box-quit ゲームの終了
  xdotool key Return
  end_game 0
}

# The party stands on a chest.
pickup() {
  keep pickup Orvane
  click Orvane 40 150
  sleep 0.3
  keep field Orvane
}

wear() {
  item_menu 装備 1
  row 装備 8 48 1
  sleep 0.1
  click 装備 212 64
  sleep 0.2
  keep wear 装備
  click 装備 212 204
  closes 装備
}

data() {
  info_menu キャラデータ 1
  keep data-man キャラデータ
  click キャラデータ 300 10
  sleep 0.2
  keep data-woman キャラデータ
  click キャラデータ 192 412
  closes キャラデータ
}

use_and_discard() {
  item_menu アイテム 2
  row アイテム 8 32 5
  click アイテム 212 56
  opens アイテムの使用
  keep use アイテムの使用
  click アイテムの使用 48 164
  closes アイテムの使用
  wait_for 5 "the field after the use" has_focus Orvane
  item_menu アイテム 2
  row アイテム 8 32 2
  click アイテム 212 96
  opens アイテム削除
  keep box-discard アイテム削除
  xdotool key Escape
  closes アイテム削除
  click アイテム 212 96
  box アイテム削除 Return
  click アイテム 212 136
  sleep 0.2
  keep bag アイテム
  close アイテム
}

rename() {
  info_menu 環境設定 2
  click 環境設定 140 41
  xdotool key ctrl+a
  xdotool type --delay 20 Ken
  click 環境設定 100 176
  sleep 0.2
  keep settings 環境設定
  click 環境設定 336 32
  closes 環境設定
}

version() {
  info_menu バージョン情報 3
  keep version バージョン情報
  click バージョン情報 134 115
  closes バージョン情報
}

save_all() {
  file_menu ファイルのセーブ 1
  click ファイルのセーブ 192 68
  opens 警告
  keep box-warning 警告
  xdotool key Return
  closes 警告
  row ファイルのセーブ 8 32 3
  keep save ファイルのセーブ
  click ファイルのセーブ 192 68
  box ゲームのセーブ Escape
  click ファイルのセーブ 192 68
  opens ゲームのセーブ
  keep box-save ゲームのセーブ
  xdotool key Return
  closes ゲームのセーブ
  closes ファイルのセーブ
  expect "the length of the save" "$(stat -c %s "$folder/Save04.sav")" 540
  expect "the new name" "$(head -c 66 "$folder/Save04.sav" | tail -c 8)" "Ken     "
  [ "$(number Save04.sav 112)" -gt 0 ] || fail "the weapon is not worn"
  [ "$(number Save04.sav 88)" -gt 300 ] || fail "the herb did not heal"
  # Seven and the chest's, less the herb and what was thrown away.
  expect "the count of the bag" "$(number Save04.sav 450)" 6
  expect "the first chest" "$(number Save04.sav 8)" 0
}

# A save of nonsense ends the game with its box, which has the title of the first window.
broken_file() {
  local first
  head -c 540 /dev/zero | tr '\0' '\177' >"$folder/Save03.sav"
  start_game --folder "$folder" --scale "$scale" --seed 26
  wait_for 20 "the title" has_focus Orvane
  first=$(window Orvane)
  file_menu ファイルのロード 1
  row ファイルのロード 8 32 2
  click ファイルのロード 192 68
  wait_for 10 "the error box" error_stands "$first"
  keep box-error "$(xdotool getactivewindow)"
  xdotool key Return
  end_game 1
}

# error_stands FIRST: another window than that one has the focus, and its title.
error_stands() { has_focus Orvane && [ "$(xdotool getactivewindow)" != "$1" ]; }

end_by_force() {
  kill "$game_pid"
  wait "$game_pid" 2>/dev/null
  game_pid=
}
