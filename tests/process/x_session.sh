# A display of our own with a window manager, and a player's hands on it. Sourced by every test of the
# process, which sets:
#   program  the game
#   player   the script player, where the test makes saves of its own
#   scale    pixels of the screen to one of the game; percent says so where that is no whole number
# and, where held keys are to repeat, keys_repeat=yes; where the full screen is asked about, screen_width and screen_height.
# Ends with 77, which counts as skipped, where a tool is missing.
# shellcheck shell=bash disable=SC2154  # variables of the tests that source it

here=$(dirname "$(realpath "${BASH_SOURCE[0]}")")
# need_tools TOOLS...
need_tools() {
  local tool
  for tool in "$@"; do
    command -v "$tool" >/dev/null || { echo "desktop test: $tool is missing" >&2; exit 77; }
  done
}
need_tools Xvfb openbox xdotool xprop xwininfo import convert compare cksum fc-match
# shellcheck source=tests/process/steps.sh
. "$here/steps.sh"

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

# keep_shots_in FOLDER: where the screenshots go, and what the game says.
keep_shots_in() {
  mkdir -p "$1"
  shots=$(realpath "$1")
  log=$shots/game.log
}

# close_display: for another one. The run's own folder stays.
close_display() {
  kill "$manager_pid" "$display_pid" 2>/dev/null
  wait "$manager_pid" "$display_pid" 2>/dev/null
  manager_pid='' display_pid=''
}

# open_display SIZE [DPI]: Xvfb and openbox, on a number that the server finds free itself. DPI is
# what the desktop's settings say of the screen.
open_display() {
  [ -n "${run_folder:-}" ] || run_folder=$(mktemp -d)
  trap clean_up EXIT
  trap 'exit 1' INT TERM
  export XDG_RUNTIME_DIR=$run_folder HOME=$run_folder SDL_AUDIODRIVER=dummy LC_ALL=C.UTF-8
  unset WAYLAND_DISPLAY QT_SCALE_FACTOR QT_QPA_PLATFORM
  rm -f "$run_folder/number"
  mkfifo "$run_folder/number"
  # A short press must not begin to repeat because the machine is slow.
  local no_repeats=-r
  [ "${keys_repeat:-no}" = yes ] && no_repeats=
  Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset $no_repeats \
    3>"$run_folder/number" >/dev/null 2>&1 &
  display_pid=$!
  local number
  read -r -t 20 number <"$run_folder/number" || { echo "desktop test: no Xvfb" >&2; exit 1; }
  export DISPLAY=:$number
  [ -z "${2:-}" ] || xprop -root -f RESOURCE_MANAGER 8s -set RESOURCE_MANAGER $'Xft.dpi:\t'"$2"
  give_manager_keys
  openbox --sm-disable >/dev/null 2>&1 &
  manager_pid=$!
  wait_for 10 "the window manager" manager_runs
}

# The window manager's own ways to the full screen and to the largest size, by Super and F or M.
give_manager_keys() {
  local key
  mkdir -p "$run_folder/.config/openbox"
  key() { echo "<keybind key=\"$1\"><action name=\"$2\"\/><\/keybind>"; }
  sed "s/^<keyboard>/&$(key W-f ToggleFullscreen)$(key W-m ToggleMaximize)/" /etc/xdg/openbox/rc.xml \
    >"$run_folder/.config/openbox/rc.xml"
}

manager_runs() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

# start_game OPTIONS...: the program itself, its messages in the log.
start_game() {
  "$program" "$@" >"$log" 2>&1 &
  game_pid=$!
}

game_is_gone() { ! kill -0 "$game_pid" 2>/dev/null; }

# game_ends WHERE: the game ends by itself, and in good order.
game_ends() {
  local status=0 end=$((SECONDS + 15))
  until game_is_gone; do
    [ $SECONDS -ge $end ] && fail "the game goes on $1"
    sleep 0.05
  done
  wait "$game_pid" || status=$?
  game_pid=
  [ $status = 0 ] || fail "the game ended with status $status $1"
}

# stop_game: without asking.
stop_game() {
  kill "$game_pid"
  wait "$game_pid" 2>/dev/null
  game_pid=
}

# wait_for SECONDS WHAT COMMAND...: until the command succeeds.
wait_for() {
  local seconds=$1 what=$2 end
  shift 2
  end=$((SECONDS + seconds))
  until "$@"; do
    if [ -n "$game_pid" ] && game_is_gone; then
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

# The corner and the size of a window's inside on the display, into left, top, width, height.
measure() {
  local id facts=
  id=$(window "$1")
  # Without a number it would wait for a click for ever.
  [ -z "$id" ] || facts=$(xwininfo -id "$id" 2>/dev/null)
  left=$(sed -n 's/.*Absolute upper-left X: *//p' <<<"$facts")
  top=$(sed -n 's/.*Absolute upper-left Y: *//p' <<<"$facts")
  width=$(sed -n 's/.*Width: *//p' <<<"$facts")
  height=$(sed -n 's/.*Height: *//p' <<<"$facts")
  : "${left:=0}" "${top:=0}" "${width:=0}" "${height:=0}"
}

# covers TITLE: the whole screen of screen_width and screen_height, without a frame.
covers() {
  local left top width height
  measure "$1"
  [ "$left $top $width $height" = "0 0 $screen_width $screen_height" ]
}

# The height of the first screen, which has a menu bar above.
field_height=303

# zoomed N: so many pixels of the game on the screen, into pixels.
zoomed() { pixels=$(($1 * ${percent:-$((scale * 100))} / 100)); }

# point TITLE X Y: where a point of a window's client area is on the display, into at_x, at_y.
point() {
  local left top width height pixels
  measure "$1"
  zoomed $field_height
  [ "$1" = Orvane ] && top=$((top + height - pixels))
  zoomed "$2"
  at_x=$((left + pixels))
  zoomed "$3"
  at_y=$((top + pixels))
}

# click TITLE X Y
click() {
  local at_x at_y
  point "$@"
  xdotool mousemove "$at_x" "$at_y" click 1
}

# Keys for whatever has the keyboard, one after the other.
keys() { xdotool key --delay 40 "$@"; }

# same FOUND WANTED WHAT
same() { [ "$1" = "$2" ] || fail "$3: $1, not $2"; }

# A picture of the whole display.
shot() { import -silent -window root "$shots/$1.png"; }

# sum TITLE X Y WIDTH HEIGHT: a checksum of the pixels of a part of a client area.
sum() {
  local at_x at_y pixels size
  point "$1" "$2" "$3"
  zoomed "$4"
  size=$pixels
  zoomed "$5"
  import -silent -window root -crop "${size}x$pixels+$at_x+$at_y" rgb:- | cksum
}

# changes BEFORE TITLE X Y WIDTH HEIGHT: whether that checksum has become another one.
changes() {
  local before=$1
  shift
  [ "$(sum "$@")" != "$before" ]
}

# is_painted TITLE X Y WIDTH HEIGHT: there is something to be seen in that part of a client area: neither one
# colour nor one more, such as a bare ground with a line on it.
is_painted() {
  local at_x at_y pixels size
  point "$1" "$2" "$3"
  zoomed "$4"
  size=$pixels
  zoomed "$5"
  [ "$(import -silent -window root -crop "${size}x$pixels+$at_x+$at_y" -format '%k' info:- 2>/dev/null || echo 0)" -gt 3 ]
}

# is_on TITLE X Y: whether what has its caption at that place can be used: a button or a menu, with
# black writing on grey. What is off has grey writing, a list in its place stands on white, and a
# window that has not been painted yet is all black.
is_on() {
  local at_x at_y pixels size
  zoomed 40
  size=$pixels
  zoomed 8
  point "$1" $(($2 - 20)) $(($3 - 4))
  [ "$(import -silent -window root -crop "${size}x$pixels+$at_x+$at_y" \
    -format '%[fx:minima < 0.2 && maxima > 0.8 && maxima < 0.999]' info:- 2>/dev/null)" = 1 ]
}
is_off() { ! is_on "$@"; }
