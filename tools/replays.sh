#!/bin/bash
# Makes the replays in tests/replays anew, where a rule or a map has changed on purpose: the first and the last part
# of the journey that seed 1 leads to, as the bot plays it.
#   tools/replays.sh [PLAYER]
set -u
cd "$(dirname "$(realpath "$0")")/.." || exit 1
player=$(realpath "${1:-build/bin/orvane-script}")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
(cd tests/play && ORVANE_FIRST=1 ORVANE_LAST=1 "$player" --record "$scratch/part" playthrough.lua) || exit 1
parts=("$scratch"/part*)
cp "$scratch/part" tests/replays/first_round.replay
cp "$scratch/part.${#parts[@]}" tests/replays/last_stage.replay
"$player" --replay tests/replays/*.replay
