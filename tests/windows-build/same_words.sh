#!/bin/bash
# Plays a script by two players, that of this machine and another, and compares what they say, but for the seconds that
# a journey takes.
#   same_words.sh PLAYER OTHER-PLAYER... SCRIPT
set -u
player=$1
script=${*: -1}
other=("${@:2:$#-2}")
own=$("$player" "$script" 2>&1)
own_status=$?
others=$("${other[@]}" "$script" 2>&1)
status=$?
own=$(sed -E 's/, [0-9.]+ s$//' <<<"$own")
others=$(sed -E 's/, [0-9.]+ s$//' <<<"$others")
if [ "$own_status" -ne 0 ] || [ "$status" -ne 0 ] || [ "$own" != "$others" ]; then
  printf '%s\n' "here, with status $own_status:" "$own" "there, with status $status:" "$others"
  exit 1
fi
echo "$others"
