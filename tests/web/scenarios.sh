#!/bin/bash
# The scenarios by the script player as WebAssembly in node, in one process: they come out as with the player of this
# machine, test for test. And the player's own test, and the kept replays.
#   scenarios.sh PLAYER NODE_PLAYER
set -u
player=$(realpath "$1") node_player=$(realpath "$2")
cd "$(dirname "$(realpath "$0")")/../play" || exit 1
mapfile -t files < <(ls ./{battle,field,program,saves,screens,skills,story}/*.lua)
here=$("$player" "${files[@]}") || exit 1
there=$("$node_player" "${files[@]}")
status=$?
echo "this machine: $(tail -n 1 <<<"$here")"
echo "node:         $(tail -n 1 <<<"$there")"
if [ "$status" -ne 0 ] || [ "$there" != "$here" ]; then
  diff <(echo "$here") <(echo "$there")
  exit 1
fi
../replays/replays.sh "$node_player" || exit 1
selftest/run.sh "$node_player"
