#!/bin/bash
# The kept replays come out the same; told as scripts they pass. A play of a script can be recorded; what is no replay,
# or comes out otherwise, is told apart.
#   replays.sh PLAYER [LAUNCHER...]   a launcher starts the player where the system cannot
set -u
# shellcheck source=tests/faults.sh
. "$(dirname "$(realpath "$0")")/../faults.sh"
player=("${@:2}" "$1")
cd "$(dirname "$(realpath "$0")")" || exit 1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
# A path as the player reads it.
path_of() { if command -v winepath >/dev/null && [[ ${player[*]} == *.exe ]]; then winepath -w "$1"; else echo "$1"; fi; }
# Runs the player; fails unless it ends with a status.
expect_status() {
  local wanted=$1 status
  shift
  "${player[@]}" "$@" >"$scratch/out" 2>"$scratch/err"
  status=$?
  [ "$status" -eq "$wanted" ] || fault "$*: status $status for $wanted: $(tail -n 3 "$scratch/out" "$scratch/err")"
}

for replay in *.replay; do
  expect_status 0 --replay "$replay"
  cat "$scratch/out"
  expect_status 0 --to-lua "$replay"
  cp "$scratch/out" "$scratch/told.lua"
  expect_status 0 "$(path_of "$scratch/told.lua")"
done

cat >"$scratch/play.lua" <<'LUA'
test("boxes within boxes", function()
  seed(3)
  start()
  wait(300)
  answer(function()
    wait(200)
    return "Cancel"
  end)
  click("Main.m14")
  click("Main.Command1")
  enter("InputName.Text1(0)", "ab\"c")
  close("InputName")
end)
LUA
expect_status 0 --record "$(path_of "$scratch/play")" "$(path_of "$scratch/play.lua")"
expect_status 0 --replay "$(path_of "$scratch/play")"
expect_status 0 --to-lua "$(path_of "$scratch/play")"
cp "$scratch/out" "$scratch/told.lua"
expect_status 0 "$(path_of "$scratch/told.lua")"

# One byte of the sum at the end, or a tick more on the way.
head -c -1 "$scratch/play" >"$scratch/other"
printf '\x55' >>"$scratch/other"
expect_status 1 --replay "$(path_of "$scratch/other")"
echo "no replay" >"$scratch/other"
expect_status 2 --replay "$(path_of "$scratch/other")"
no_faults "replays: they come out the same"
