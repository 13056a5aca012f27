# A display of our own with a window manager, and a player's hands on it. Sourced by run.sh, which
# sets: program, shots (folder), scale, log.

display_pid=
manager_pid=
game_pid=

fail() {
  echo "desktop test: $*" >&2
  shot failure
  [ -s "$log" ] && sed 's/^/  game: /' "$log" >&2
  exit 1
}

clean_up() {
  for pid in $game_pid $manager_pid $display_pid; do kill "$pid" 2>/dev/null; done
  wait 2>/dev/null
  rm -rf "$run_folder"
}

# open_display SIZE: Xvfb and openbox, on a number that the server finds free itself.
open_display() {
  run_folder=$(mktemp -d)
  trap clean_up EXIT
  trap 'exit 1' INT TERM
  export XDG_RUNTIME_DIR=$run_folder HOME=$run_folder SDL_AUDIODRIVER=dummy LC_ALL=C.UTF-8
  unset WAYLAND_DISPLAY QT_SCALE_FACTOR QT_QPA_PLATFORM
  mkfifo "$run_folder/number"
  Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset \
    3>"$run_folder/number" >/dev/null 2>&1 &
  display_pid=$!
  local number
  read -r -t 20 number <"$run_folder/number" || { echo "desktop test: no Xvfb" >&2; exit 1; }
  export DISPLAY=:$number
  openbox --sm-disable >/dev/null 2>&1 &
  manager_pid=$!
  wait_for 10 "the window manager" manager_runs
}

manager_runs() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

# start_game OPTIONS...: the program itself, its messages in the log.
start_game() {
  "$program" "$@" >"$log" 2>&1 &
  game_pid=$!
}

# wait_for SECONDS WHAT COMMAND...: until the command succeeds.
wait_for() {
  local seconds=$1 what=$2 end
  shift 2
  end=$((SECONDS + seconds))
  until "$@"; do
    if [ -n "$game_pid" ] && ! kill -0 "$game_pid" 2>/dev/null; then
      fail "the game ended while waiting for $what"
    fi
    [ $SECONDS -ge $end ] && fail "$what did not come within $seconds s"
    sleep 0.05
  done
}

# The id of the visible window with this title, or nothing.
window() { xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -n 1; }
has_window() { [ -n "$(window "$1")" ]; }
lacks_window() { [ -z "$(window "$1")" ]; }
has_focus() { [ "$(xdotool getactivewindow getwindowname 2>/dev/null)" = "$1" ]; }

# The corner and the height of a window's inside on the display, into left, top, height.
measure() {
  local id facts=
  id=$(window "$1")
  # Without a number it would wait for a click for ever.
  [ -z "$id" ] || facts=$(xwininfo -id "$id" 2>/dev/null)
  left=$(sed -n 's/.*Absolute upper-left X: *//p' <<<"$facts")
  top=$(sed -n 's/.*Absolute upper-left Y: *//p' <<<"$facts")
  height=$(sed -n 's/.*Height: *//p' <<<"$facts")
  : "${left:=0}" "${top:=0}" "${height:=0}"
}

# point TITLE X Y: where a point of a window's client area is on the display, into at_x, at_y. The
# first screen has a menu bar above its client area, which is 303 pixels high.
point() {
  local left top height
  measure "$1"
  [ "$1" = Orvane ] && top=$((top + height - 303 * scale))
  at_x=$((left + $2 * scale))
  at_y=$((top + $3 * scale))
}

# click TITLE X Y
click() {
  local at_x at_y
  point "$@"
  xdotool mousemove "$at_x" "$at_y" click 1
}

# A picture of the whole display.
shot() { import -silent -window root "$shots/$1.png"; }

# sum TITLE X Y WIDTH HEIGHT: a checksum of the pixels of a part of a client area.
sum() {
  local at_x at_y
  point "$1" "$2" "$3"
  import -silent -window root -crop "$(($4 * scale))x$(($5 * scale))+$at_x+$at_y" rgb:- | cksum
}

# changes BEFORE TITLE X Y WIDTH HEIGHT: whether that checksum has become another one.
changes() {
  local before=$1
  shift
  [ "$(sum "$@")" != "$before" ]
}
