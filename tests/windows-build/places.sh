#!/bin/bash
# The game for Windows, under wine, on displays of several resolutions, on the full screen, and in a folder that
# cannot be written.
#   places.sh BUILT SCREENSHOTS
set -u

# shellcheck source=tests/windows-build/session.sh
. "$(dirname "$(realpath "$0")")/session.sh"
built=$(realpath "$1")
keep_shots_in "$2"

# is_scaled TITLE WIDTH SCALE: the window's inside is its screen, so many times enlarged.
is_scaled() {
  local left top width height
  measure "$1"
  [ "$width" = $(($2 * $3)) ]
}

# see_at DPI: pictures in whole pixels, whatever the system's own controls are enlarged by; the zoom keys; a dialog
# and a box, which are looked at.
see_at() {
  give_dots "$1"
  start_game --seed 26
  wait_for 30 "the title at $1 dpi" has_window Orvane
  wait_for 10 "the size at $1 dpi" is_scaled Orvane 496 2
  wait_for 10 "the focus at $1 dpi" has_focus Orvane
  sleep 0.5
  shot "$1-title"
  keys ctrl+minus ctrl+minus
  wait_for 10 "the smaller size at $1 dpi" is_scaled Orvane 496 1
  keys ctrl+0
  wait_for 10 "the best size at $1 dpi" is_scaled Orvane 496 2
  keys Return
  opens 名前の入力
  shot "$1-names"
  keys Return
  wait_for 10 "the box at $1 dpi" has_focus "$names_box"
  sleep 0.3
  shot "$1-box"
  keys Escape
  closes "$names_box"
  wait_for 10 "the focus after the box" has_focus 名前の入力
  keys Escape
  closes 名前の入力
  keys F11
  wait_for 10 "the full screen at $1 dpi" covers Orvane
  sleep 0.3
  shot "$1-full"
  keys F11
  wait_for 10 "the window at $1 dpi" is_scaled Orvane 496 2
  quit_game
}

# As somebody who may not write where the game lies: root may everywhere.
as_guest() {
  if [ "$(id -u)" = 0 ]; then
    setpriv --reuid=65534 --regid=65534 --clear-groups env WINEPREFIX="$guest/system" HOME="$guest" "$@"
  else
    env WINEPREFIX="$guest/system" HOME="$guest" "$@"
  fi
}

# The player's own folder is made among the local data, like the one beside the program.
see_read_only() {
  local own=
  guest=$run_folder/guest
  mkdir "$guest"
  [ "$(id -u)" != 0 ] || chown 65534:65534 "$guest" "$run_folder"
  chmod -R a-w "$place"
  as_guest /usr/lib/wine/wine64 wineboot -i >/dev/null 2>&1 || fail "wine does not start for a guest"
  as_guest /usr/lib/wine/wine64 "$place/Orvane.exe" --scale 1 >"$log" 2>&1 &
  game_pid=$!
  wait_for 30 "the title for a guest" has_window Orvane
  own=$(find "$guest/system" -path '*/Local/Orvane/game' -type d)
  [ -n "$own" ] || fail "a guest has no folder"
  diff -r "$folder" "$own" >&2 || fail "the guest's folder is not like the installed one"
  shot guest
  stop_game
  as_guest /usr/lib/wine/wineserver -k
}

names_box=警告
screen_width=1920 screen_height=1080
open_display "${screen_width}x$screen_height"
in_registry 'Software\Microsoft\Windows\CurrentVersion\ThemeManager' ThemeActive REG_SZ 1
install_game "$built" "$run_folder/place"
for dots in 96 144 192; do see_at "$dots"; done
see_read_only
echo "under wine: at 96, 144 and 192 dots to the inch, on the full screen, and for a guest"
