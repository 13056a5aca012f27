#!/bin/bash
# The real program on Wayland, under weston: its pictures, its scales, the full screen, a party that walks by
# the keys, windows that the compositor makes as large as it likes, and a desktop that cannot be reached.
# Weston shows itself in a display of our own, by which it has a keyboard; and once without any, to look at
# the pixels as they are handed over.
#   wayland.sh PROGRAM SCREENSHOTS SCRIPT_PLAYER
set -u

program=$(realpath "$1")
player=$(realpath "$3")
mkdir -p "$2"
shots=$(realpath "$2")
here=$(dirname "$(realpath "$0")")
log=$shots/game.log

for tool in weston weston-screenshooter Xvfb xdotool import convert cksum; do
  command -v $tool >/dev/null || { echo "wayland: $tool is missing" >&2; exit 77; }
done

screen_width=1280 screen_height=800
ground='#305070'  # of weston's desktop; nothing in the game has it
wide=496 high=303 menu_height=18  # the first screen, in pixels of the game
no_display=3                      # the status of a game that finds no display

run_folder=$(mktemp -d)
export XDG_RUNTIME_DIR=$run_folder HOME=$run_folder SDL_AUDIODRIVER=dummy LC_ALL=C.UTF-8
unset QT_SCALE_FACTOR QT_QPA_PLATFORM WAYLAND_DISPLAY DISPLAY XDG_SESSION_TYPE
display_pid='' weston_pid='' game_pid=''

clean_up() {
  for pid in $game_pid $weston_pid $display_pid; do kill "$pid" 2>/dev/null; done
  wait 2>/dev/null
  rm -rf "$run_folder"
}
trap clean_up EXIT
trap 'exit 1' INT TERM

fail() {
  echo "wayland: $*" >&2
  shot failure
  sed 's/^/  game: /' "$log" >&2
  exit 1
}

# grab: a picture of all that weston shows.
grab() {
  if [ "$backend" = x11 ]; then
    DISPLAY=$x_display import -silent -window root miff:-
  else
    rm -f "$run_folder"/wayland-screenshot*
    (cd "$run_folder" && WAYLAND_DISPLAY=wayland-test weston-screenshooter)
    convert "$run_folder"/wayland-screenshot*.png miff:-
  fi
}
shot() { grab | convert miff:- "$shots/$1.png"; }
keys() { DISPLAY=$x_display xdotool key --delay 40 "$@"; }

# wait_for SECONDS WHAT COMMAND...: until the command succeeds.
wait_for() {
  local what=$2 end=$((SECONDS + $1))
  shift 2
  until "$@"; do
    [ -z "$game_pid" ] || kill -0 "$game_pid" 2>/dev/null || fail "the game ended while waiting for $what"
    [ $SECONDS -ge $end ] && fail "$what did not come"
    sleep 0.05
  done
}

open_display() {
  mkfifo "$run_folder/number"
  Xvfb -displayfd 3 -screen 0 "${screen_width}x${screen_height}x24" -nolisten tcp -noreset -r \
    3>"$run_folder/number" >/dev/null 2>&1 &
  display_pid=$!
  local number
  read -r -t 20 number <"$run_folder/number" || { echo "wayland: no Xvfb" >&2; exit 1; }
  x_display=:$number
}

# open_desktop BACKEND SHELL: weston, which covers the display, or is headless.
open_desktop() {
  backend=$1
  cat >"$run_folder/weston.ini" <<INI
[core]
idle-time=0
[shell]
panel-position=none
background-color=0xff${ground#\#}
animation=none
startup-animation=none
locking=false
[input-method]
path=
INI
  DISPLAY=$x_display weston --backend="$1-backend.so" --debug --use-pixman --shell="$2" --socket=wayland-test \
    --config="$run_folder/weston.ini" --width=$screen_width --height=$screen_height >"$shots/weston.log" 2>&1 &
  weston_pid=$!
  wait_for 10 "the compositor" test -S "$run_folder/wayland-test"
  [ "$backend" = headless ] || DISPLAY=$x_display xdotool mousemove 10 10 mousemove 2 2  # where measure leaves it out
}

close_desktop() {
  kill "$weston_pid"
  wait "$weston_pid" 2>/dev/null
  weston_pid=
}

# start_game OPTIONS...
start_game() {
  WAYLAND_DISPLAY=wayland-test "$program" --folder "$run_folder/game" --seed 5 "$@" >"$log" 2>&1 &
  game_pid=$!
}

# stop_game: as the end of a session does.
stop_game() {
  local status=0
  kill "$game_pid"
  wait "$game_pid" || status=$?
  game_pid=
  [ $status = 0 ] || fail "the game ended with status $status"
  [ -s "$log" ] && fail "the game complained"
}

# make_folder: the game's, with a party in the field in the first slot.
make_folder() {
  cp -r "$(dirname "$program")/game" "$run_folder/game"
  cat >"$run_folder/save.lua" <<'LUA'
package.path = package.path .. ";" .. os.getenv("ORVANE_PLAY") .. "/?.lua"
local steps = require "lib.steps"
local records = require "lib.records"
test("a party in the field", function()
  steps.field()
  records.save("Save01.sav")
  local file = assert(io.open(os.getenv("ORVANE_SAVE"), "wb"))
  file:write(read_file("Save01.sav"))
  file:close()
end)
LUA
  ORVANE_PLAY=$here/../play ORVANE_SAVE=$run_folder/game/Save01.sav "$player" "$run_folder/save.lua" \
    >"$log" 2>&1 || fail "no save was made"
}

# measure: what the windows cover of the desktop, frames and all, into width, height, left and top. In the
# first corner stands the mouse pointer.
measure() {
  local box
  box=$(grab |
    convert miff:- -fill black -opaque "$ground" -draw 'rectangle 0,0 40,40' -bordercolor black -border 1 -trim -format '%w %h %X %Y' info: 2>/dev/null)
  read -r width height left top <<<"${box//+/ }"
  ((left -= 1, top -= 1))
}

# fills PERCENT: there is one window, whose inside is the first screen in that scale; the compositor leaves
# its frame to the toolkit, some pixels on the sides and a title above.
fills() {
  local width height left top sides title
  measure
  sides=$((width - wide * $1 / 100)) title=$((height - (high + menu_height) * $1 / 100))
  ((sides >= 0 && sides <= 14 && title >= 20 && title <= 50)) || return 1
  inside_left=$((left + sides / 2)) inside_top=$((top + title - sides / 2)) percent=$1
}

covers_all() {
  local width height left top
  measure
  [ "$width $height $left $top" = "$screen_width $screen_height 0 0" ] || return 1
  percent=$((screen_height * 100 / (high + menu_height)))
  inside_left=$(((screen_width - wide * percent / 100) / 2)) inside_top=0
}

# part X Y WIDTH HEIGHT, in pixels of the game: a picture of that part of the first screen, on the output.
part() {
  local x=$((inside_left + $1 * percent / 100)) y=$((inside_top + ($2 + menu_height) * percent / 100))
  grab | convert miff:- -crop "$(($3 * percent / 100))x$(($4 * percent / 100))+$x+$y" +repage miff:-
}

# has_moon: the title's picture, with the moon where it must be: bright in a dark sky.
has_moon() {
  [ "$(part 152 33 20 20 | convert miff:- -format '%[fx:minima > 0.5]' info:)" = 1 ] &&
    [ "$(part 20 40 20 20 | convert miff:- -format '%[fx:mean < 0.5 && standard_deviation > 0.005]' info:)" = 1 ]
}
lacks_moon() { ! has_moon; }

# has_keyboard: the frame's title and signs are black, or no frame stands around.
has_keyboard() {
  [ "$inside_top" = 0 ] ||
    [ "$(grab | convert miff:- -crop "120x20+$((inside_left + wide * percent / 100 - 120))+$((inside_top - 25))" \
      +repage -format '%[fx:minima < 0.1]' info:)" = 1 ]
}

see_title() {
  wait_for 10 "the title" "$@"
  wait_for 5 "the title's picture" has_moon
  wait_for 5 "the keyboard" has_keyboard
  sleep 0.3  # until the window has heard of it
}

field() { part 8 0 480 250 | convert miff:- rgb:- | cksum; }
changes() { [ "$(field)" != "$1" ]; }
is_still() {
  local before
  before=$(field)
  sleep 0.3
  [ "$(field)" = "$before" ]
}

# The menu, the list and the button, by keys.
load() {
  keys F10 Return
  wait_for 5 "the dialog" lacks_moon
  sleep 0.3  # the compositor gives it the keyboard
  keys Home Return Tab Return
  wait_for 5 "the field" is_still
}

walk() {
  local before
  before=$(field)
  DISPLAY=$x_display xdotool keydown "$1"
  wait_for 5 "a step by the $1 key" changes "$before"
  DISPLAY=$x_display xdotool keyup "$1"
  wait_for 3 "the party's halt" is_still
}

# Windows as large as they ask to be, and the full screen.
see_sizes() {
  open_desktop x11 desktop-shell.so
  start_game --scale 2
  see_title fills 200
  shot 2x
  keys ctrl+minus
  see_title fills 150
  shot 1.5x
  keys F11
  see_title covers_all
  shot full
  load
  walk Right
  shot field
  keys F11
  wait_for 5 "the window" fills 150
  stop_game
  close_desktop
}

# A compositor that gives every window the whole screen.
see_given_sizes() {
  open_desktop x11 kiosk-shell.so
  start_game
  see_title covers_all
  shot given
  stop_game
  close_desktop
}

# The pixels themselves: what a window hands over for opaque must be so.
see_pixels() {
  open_desktop headless desktop-shell.so
  start_game --scale 1
  wait_for 10 "the title" fills 100
  wait_for 5 "the title's picture" has_moon
  shot pixels
  stop_game
  close_desktop
}

# Without a desktop that it can reach the game says so in one sentence of its own.
see_no_desktop() {
  local status=0
  WAYLAND_DISPLAY=nowhere "$program" --folder "$run_folder/game" >"$log" 2>&1 || status=$?
  [ $status = $no_display ] || fail "the status is $status where no desktop is"
  if [ "$(wc -l <"$log")" != 1 ] || ! grep -q '^orvane: the Wayland desktop cannot be reached' "$log"; then
    fail "no plain sentence where no desktop is"
  fi
}

open_display
make_folder
see_sizes
see_given_sizes
see_pixels
see_no_desktop
echo "wayland: played under weston"
