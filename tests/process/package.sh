#!/bin/bash
# Makes the Debian package of a build, looks at what is in it, and plays it unpacked: a new game, a
# save, and a second start that finds the save.
#   package.sh BUILD_FOLDER SCREENSHOTS
set -u

# shellcheck source=tests/process/x_session.sh
. "$(dirname "$(realpath "$0")")/x_session.sh"
need_tools cpack dpkg-deb dpkg-shlibdeps file desktop-file-validate appstreamcli
build=$(realpath "$1")
scale=1
keep_shots_in "$2"

make_package() {
  (cd "$run_folder" && cpack -G DEB --config "$build/CPackConfig.cmake" -B "$run_folder/packed") \
    >"$log" 2>&1 || fail "the package cannot be made"
  package=$(echo "$run_folder"/packed/*.deb)
  root=$run_folder/root
  dpkg-deb -x "$package" "$root" || fail "the package cannot be unpacked"
}

# field NAME: of the package's description.
field_of_package() { dpkg-deb -f "$package" "$1"; }

see_package() {
  local needed size file
  for needed in libqt6widgets6 libsdl2 libfluidsynth qt6-qpa-plugins qt6-wayland fonts-ipafont-gothic fonts-ipafont-mincho; do
    [[ $(field_of_package Depends) == *$needed* ]] || fail "the package does not ask for $needed"
  done
  [[ $(field_of_package Recommends) == *soundfont* ]] || fail "the package recommends no soundfont"
  for file in games/orvane share/orvane/game/Item.dat share/man/man6/orvane.6.gz \
    share/man/ja/man6/orvane.6.gz share/doc/orvane/copyright share/doc/orvane/changelog.gz; do
    [ -s "$root/usr/$file" ] || fail "the package lacks $file"
  done
  [ -e "$root/usr/bin" ] && fail "the package has a second folder of programs"
  gzip -dc "$root/usr/share/man/ja/man6/orvane.6.gz" | grep -q '^\.TH ORVANE 6' || fail "no manual page"
  for size in 16 24 32 48 64 128 256; do
    file=$root/usr/share/icons/hicolor/${size}x$size/apps/orvane.png
    [ "$(identify -format %wx%h "$file")" = "${size}x$size" ] || fail "no icon of $size pixels"
  done
  file=$root/usr/share/applications/orvane.desktop
  desktop-file-validate "$file" >>"$log" 2>&1 || fail "the desktop entry is wrong"
  ls "$root"/usr/share/metainfo/*.metainfo.xml >>"$log" 2>&1 || fail "there is no AppStream data"
  appstreamcli validate-tree --no-net "$root" >>"$log" 2>&1 || fail "the AppStream data is wrong"
}

play_and_save() {
  start_game --scale 1 --seed 26
  see_title
  [ "$(contents "$folder")" = "$(contents "$root/usr/share/orvane/game")" ] ||
    fail "the player's folder is not like the packed one"
  enter_names
  listen 30 "the opening"
  menu $file_menu 1
  opens ファイルのセーブ
  click ファイルのセーブ 40 $((40 + 2 * 12))
  click ファイルのセーブ 190 68
  answer ゲームのセーブ Return
  closes ファイルのセーブ
  [ "$(bytes Save03.sav 58 4)" = 476f7520 ] || fail "his name is not saved"
  quit_game
}

load_again() {
  start_game --scale 1 --seed 26
  see_title
  load_save 2
  quit_game
}

open_display 640x560
make_package
see_package
chmod -R a-w "$root/usr"
packed=$(contents "$root")
program=$root/usr/games/orvane
folder=$run_folder/.local/share/orvane/game
unset XDG_DATA_HOME
play_and_save
saved=$(contents "$folder")
load_again
[ "$(contents "$folder")" = "$saved" ] || fail "the second start has changed the player's folder"
[ "$(contents "$root")" = "$packed" ] || fail "the game has changed its own files"
chmod -R u+w "$root/usr"
echo "desktop test: packed, unpacked, played, saved and found again"
