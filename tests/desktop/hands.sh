# A player's ways through menus, lists and boxes. Sourced after x_session.sh.

opens() {
  wait_for 10 "$1" has_window "$1"
  wait_for 10 "the focus of $1" has_focus "$1"
}

closes() { wait_for 10 "the end of $1" lacks_window "$1"; }

# menu X TITLE STEPS: opens a menu of the bar and takes the entry that many steps down, which must
# bring up the window TITLE.
menu() {
  local left top height step try
  for try in 1 2 3; do
    measure Orvane
    xdotool mousemove $((left + $1 * scale)) $((top + 9 * scale)) click 1
    sleep 0.2
    for step in $(seq "$3"); do xdotool key Down; sleep 0.03; done
    xdotool key Return
    for _ in $(seq 30); do
      has_window "$2" && { opens "$2"; return; }
      sleep 0.1
    done
    xdotool key Escape Escape
  done
  fail "the menu does not open $2"
}
file_menu() { menu 29 "$@"; }
item_menu() { menu 85 "$@"; }
info_menu() { menu 132 "$@"; }

# row TITLE LEFT TOP N: clicks row N of the list whose corner is there.
row() { click "$1" $(($2 + 30)) $(($3 + 8 + 13 * $4)); sleep 0.1; }

# close TITLE: by the window manager's own control.
close() {
  wait_for 10 "the focus of $1" has_focus "$1"
  xdotool key alt+F4
  closes "$1"
}

# box TITLE KEY: answers a box.
box() {
  opens "$1"
  xdotool key "$2"
  closes "$1"
}

# number FILE OFFSET: a 16-bit number of a save.
number() { od -An -t d2 -j "$2" -N 2 "$folder/$1" | tr -d ' '; }
# expect WHAT FOUND WANTED
expect() { [ "$2" = "$3" ] || fail "$1 is $2, not $3"; }

# load ROW: the save in a row of the load dialog.
load() {
  file_menu ファイルのロード 1
  row ファイルのロード 8 32 "$1"
  [ -z "${2:-}" ] || keep "$2" ファイルのロード
  click ファイルのロード 192 68
  closes ファイルのロード
  wait_for 5 "the focus after loading" has_focus Orvane
}

# end_game STATUS: waits for the program's end.
end_game() {
  local status=0
  for _ in $(seq 200); do
    kill -0 "$game_pid" 2>/dev/null || break
    sleep 0.1
  done
  kill -0 "$game_pid" 2>/dev/null && fail "the game did not end within 20 s"
  wait "$game_pid" || status=$?
  game_pid=
  expect "the status at the end" "$status" "$1"
}
