#!/bin/bash
# Has both players write the same saves, which must not differ in a byte.
#   saves.sh PLAYER OTHER-PLAYER...
set -u
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
player=$1
shift
mkdir "$work/here" "$work/there"
export ORVANE_PLAY=$here/../play
ORVANE_STATES=$work/here "$player" "$here/../parties/parties.lua" || exit 1
ORVANE_STATES=$work/there "$@" "$here/../parties/parties.lua" || exit 1
[ "$(find "$work/here" -name '*.sav' -size +0 | wc -l)" -ge 2 ] || {
  echo "no saves were written"
  exit 1
}
diff -r "$work/here" "$work/there" && echo "both write the same saves"
