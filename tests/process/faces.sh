#!/bin/bash
# Starts the real program on a desktop without Japanese letters, which it must survive and tell what to
# install; and on this one, where it has nothing to say if there are some.
#   faces.sh PROGRAM SCREENSHOTS
set -u

# shellcheck source=tests/process/x_session.sh
. "$(dirname "$(realpath "$0")")/x_session.sh"
need_tools fc-list
program=$(realpath "$1")
scale=1
keep_shots_in "$2"

# told COUNT: that many lines of the messages name what to install.
told() {
  local found
  found=$(grep -c 'fonts-ipafont-gothic' "$log")
  [ "$found" = "$1" ] || fail "$found lines, not $1, tell which fonts to install"
}

open_display 640x560
copy_folder

mkdir "$run_folder/no-fonts"
cat >"$run_folder/fonts.conf" <<END
<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig><dir>$run_folder/no-fonts</dir><cachedir>$run_folder/cache</cachedir></fontconfig>
END
FONTCONFIG_FILE=$run_folder/fonts.conf start_game --scale 1 --folder "$folder"
see_title
stop_game
told 1
grep -q 'No installed font has Japanese letters' "$log" || fail "it is not told in English"
grep -q '日本語のフォントがない' "$log" || fail "it is not told in Japanese"

if [ -n "$(fc-list :lang=ja)" ]; then
  start_game --scale 1 --folder "$folder"
  see_title
  stop_game
  told 0
fi
echo "desktop test: told about missing fonts, and not about others"
