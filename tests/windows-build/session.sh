# The game for Windows in a real window: a system of its own under wine, on a display of our own. Sourced by the
# tests of it in place of x_session.sh; program is Orvane.exe.
# shellcheck shell=bash disable=SC2034  # variables for the files that are sourced

# shellcheck source=tests/process/x_session.sh
. "$(dirname "$(realpath "${BASH_SOURCE[0]}")")/../process/x_session.sh"
need_tools /usr/lib/wine/wine64 /usr/lib/wine/wineserver

# The menu bar is the system's, whatever the game's scale is.
scale=1
file_menu=26 item_menu=76 info_menu=118

# In place of the shell that runs it, so that its process is the program's.
wine() { exec /usr/lib/wine/wine64 "$@"; }

# in_registry KEY NAME TYPE VALUE: of the player.
in_registry() { (wine reg add "HKCU\\$1" /v "$2" /t "$3" /d "$4" /f) >/dev/null 2>&1 || fail "no registry"; }

# What the system calls its Japanese faces, and which of this machine's stand for them.
give_faces() {
  local name
  for name in "ＭＳ Ｐゴシック" "MS PGothic" "MS UI Gothic" Tahoma "Segoe UI"; do
    in_registry 'Software\Wine\Fonts\Replacements' "$name" REG_SZ IPAPGothic
  done
  for name in "ＭＳ Ｐ明朝" "MS PMincho"; do
    in_registry 'Software\Wine\Fonts\Replacements' "$name" REG_SZ IPAPMincho
  done
}

# make_system: a fresh one, with Japanese faces, and without a theme: what can be used is told by its colours.
make_system() {
  export WINEPREFIX=$run_folder/system WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree=;mshtml="
  (wine wineboot -i) >/dev/null 2>&1 || fail "wine does not start"
  in_registry 'Software\Microsoft\Windows\CurrentVersion\ThemeManager' ThemeActive REG_SZ 0
  give_faces
  trap end_system EXIT
}

end_system() {
  /usr/lib/wine/wineserver -k 2>/dev/null
  clean_up
}

# give_dots DPI: what the system takes the display for; before the first program, or after the last.
give_dots() {
  in_registry 'Control Panel\Desktop' LogPixels REG_DWORD "$1"
  /usr/lib/wine/wineserver -k
  /usr/lib/wine/wineserver -w
}

# A display, and the system on it.
eval "$(declare -f open_display | sed '1s/.*/open_bare_display ()/')"
open_display() {
  open_bare_display "$@"
  make_system
}

# install_game BUILT FOLDER: the program and its game folder, from where they were built.
install_game() {
  place=$2
  mkdir -p "$place"
  cp "$1/Orvane.exe" "$place/"
  cp -r "$1/game" "$place/"
  folder=$place/game
  program=$place/Orvane.exe
}

# start_game OPTIONS...
start_game() {
  wine "$program" "$@" >"$log" 2>&1 &
  game_pid=$!
}

# The window manager gives windows that belong to others no focus of its own accord, though for the system they have
# the keyboard already; so it is asked to.
has_focus() {
  [ "$(xdotool getactivewindow getwindowname 2>/dev/null)" = "$1" ] && return 0
  has_window "$1" && xdotool windowactivate "$(window "$1")" 2>/dev/null
  return 1
}

# The menu bar is white, and what is off in it grey.
menu_is_on() {
  local at_x at_y
  point Orvane $(($1 - 18)) -14
  [ "$(import -silent -window root -crop "36x8+$at_x+$at_y" -format '%[fx:minima < 0.2]' info:- 2>/dev/null)" = 1 ]
}
menu_is_off() { ! menu_is_on "$1"; }

# Small letters have no soft edges there, so that two colours are something to be seen.
is_painted() {
  local at_x at_y pixels size
  point "$1" "$2" "$3"
  zoomed "$4"
  size=$pixels
  zoomed "$5"
  [ "$(import -silent -window root -crop "${size}x$pixels+$at_x+$at_y" -format '%k' info:- 2>/dev/null || echo 0)" -gt 1 ]
}
