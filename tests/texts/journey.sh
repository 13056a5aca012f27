#!/bin/bash
# Plays a whole journey and a tour of what a journey leaves out, notes all texts that they show, and looks at them in
# every language.
#   tests/texts/journey.sh PLAYER TEST...
set -eu
player=$1
shift
here=$(dirname "$(realpath "$0")")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export ORVANE_SHOWN=$work/shown ORVANE_FIRST=1 ORVANE_LAST=1
"$player" "$here/../play/playthrough.lua"
"$player" "$here/../play/texts/tour.lua"
failed=0
for test in "$@"; do "$test" || failed=1; done
exit "$failed"
