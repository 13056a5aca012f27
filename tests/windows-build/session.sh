# The game for Windows in a real window: a system of its own under wine, on a display of our own. Sourced by the
# tests of it, which set what x_session.sh asks for but program, and:
#   built   the folder that has Orvane.exe and the game folder
# shellcheck shell=bash disable=SC2034  # variables for the files that are sourced

# shellcheck source=tests/process/x_session.sh
. "$(dirname "$(realpath "${BASH_SOURCE[0]}")")/../process/x_session.sh"
need_tools /usr/lib/wine/wine64 /usr/lib/wine/wineserver

# The menu bar is the system's, whatever the game's scale is.
scale=1
file_menu=26 item_menu=76 info_menu=118

wine() { /usr/lib/wine/wine64 "$@"; }

# in_registry KEY NAME TYPE VALUE: of the player.
in_registry() { wine reg add "HKCU\\$1" /v "$2" /t "$3" /d "$4" /f >/dev/null 2>&1 || fail "no registry"; }

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
  wine wineboot -i >/dev/null 2>&1 || fail "wine does not start"
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

# install_game FOLDER: the program and its game folder, in that folder.
install_game() {
  place=$1
  mkdir -p "$place"
  # shellcheck disable=SC2154  # whoever sources this names the folder of the build
  cp "$built/Orvane.exe" "$place/"
  cp -r "$built/game" "$place/"
  folder=$place/game
  program=$run_folder/play
  printf '#!/bin/sh\nexec /usr/lib/wine/wine64 "%s/Orvane.exe" "$@"\n' "$place" >"$program"
  chmod +x "$program"
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
