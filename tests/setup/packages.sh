#!/bin/bash
# Whether what installs the packages asks the right ones of the right program, and says clearly why it
# cannot. Its programs are played by small ones: nothing is installed.
#   packages.sh TOOLS_FOLDER
set -u
tools=$(realpath "$1")
trial=$(mktemp -d)
trap 'rm -rf "$trial"' EXIT
faults=0

# plays NAME LINES...: a program that notes its words and does that.
plays() {
  local name=$1
  shift
  printf '%s\n' '#!/bin/bash' "echo $name \"\$@\" >>'$trial/asked'" "$@" >"$trial/bin/$name"
  chmod +x "$trial/bin/$name"
}

# A machine of Debian with one of two packages, for user number UID.
machine() {
  rm -rf "${trial:?}/bin"
  mkdir "$trial/bin"
  plays dpkg-query 'echo "here installed"' 'echo "gone config-files"' 'exit 1'
  plays id "echo $1"
  plays apt-get 'exit 0'
  plays env 'shift' '"$@"'
  plays sudo '"$@"'
}

# needs STATUS PACKAGES...: what need_packages ends with, its words in said and its deeds in asked.
needs() {
  local wanted=$1 status=0
  shift
  rm -f "$trial/asked"
  PATH=$trial/bin /bin/bash -c '. "$0/packages.sh" && need_packages "$@"' "$tools" "$@" >"$trial/said" 2>&1 || status=$?
  [ $status -eq "$wanted" ] || fault "ended with $status, not $wanted"
}

fault() {
  echo "$case: $1"
  sed 's/^/  said: /' "$trial/said"
  sed 's/^/  asked: /' "$trial/asked"
  faults=$((faults + 1))
}
asked() { grep -qE "$1" "$trial/asked" || fault "did not ask $1"; }
did_not_ask() { ! grep -qE "$1" "$trial/asked" || fault "asked $1"; }
said() { grep -qF "$1" "$trial/said" || fault "did not say $1"; }

case="nothing missing"
machine 1000
needs 0 here
did_not_ask '^(apt-get|sudo)'

case="root"
machine 0
needs 0 here gone never
asked '^apt-get update'
asked '^apt-get install .*--no-install-recommends gone never$'
did_not_ask '^sudo'

case="a user with sudo"
machine 1000
needs 0 gone
asked '^sudo apt-get update'
asked '^sudo env .*apt-get install .* gone$'

case="a user without sudo"
machine 1000
rm "$trial/bin/sudo"
needs 1 here gone never
said "neither root nor sudo"
said "apt-get install --no-install-recommends gone never"
did_not_ask '^apt-get'

case="a user whom sudo refuses"
machine 1000
plays sudo 'exit 1'
needs 1 gone
said "sudo does not let this user"
said "apt-get install --no-install-recommends gone"
[ "$(grep -c '^sudo' "$trial/asked")" = 1 ] || fault "asked sudo again"

case="a source that fails"
machine 1000
# shellcheck disable=SC2016  # that program's word, not this one's
plays apt-get '[ "$1" = install ] || exit 100'
needs 0 gone

case="no network"
machine 0
plays apt-get 'echo "E: Unable to locate package gone" >&2' 'exit 100'
needs 1 gone
said "E: Unable to locate"
said "apt-get could not install them"
said "apt-get install --no-install-recommends gone"

[ $faults -eq 0 ] && echo "packages: asked of root and of sudo, and missed in clear words"
[ $faults -eq 0 ]
