#!/bin/sh
# Checks the script player itself: run.sh PLAYER [GAME FOLDER]
# Scripts that must pass, scripts that must fail, and what the player says and returns each time.
player=$1
here=$(cd "$(dirname "$0")" && pwd) || exit 2
folder=${2:+--folder $2}
TMPDIR=$(mktemp -d) || exit 2
export TMPDIR
output=$TMPDIR/output
failures=0
cd "$here" || exit 2

complain() {
  echo "$1"
  sed 's/^/    /' "$output"
  failures=$((failures + 1))
}

# play STATUS LAST-LINE LINES-BEFORE ARGUMENTS...: runs the player and checks what it returns, its
# last line, and how many lines stand before it.
play() {
  status=$1 last=$2 before=$3
  shift 3
  # shellcheck disable=SC2086
  "$player" $folder "$@" >"$output" 2>"$output.errors"
  found=$?
  [ "$found" -eq "$status" ] || complain "$*: expected the exit status $status, found $found"
  [ "$(tail -n 1 "$output")" = "$last" ] || complain "$*: expected the last line $last"
  lines=$(($(wc -l <"$output") - 1))
  [ "$lines" -eq "$before" ] || complain "$*: expected $before lines before the last, found $lines"
  [ -s "$output.errors" ] && complain "$*: expected nothing on standard error"
  left=$(find "$TMPDIR" -maxdepth 1 -name "orvane-script-*" | wc -l)
  [ "$left" -eq 0 ] || complain "$*: expected no scratch folder to be left, found $left"
}

# says LINE: the output of the last run holds this line.
says() {
  grep -qxF -e "$1" "$output" || complain "expected the line $1"
}

for script in names player boxes time chance sound pictures files expect; do
  count=$(grep -c '^test(' $script.lua)
  play 0 "$count passed, 0 failed" 0 $script.lua
done

play 1 "2 passed, 1 failed" 1 failing/wrong_value.lua
says 'failing/wrong_value.lua:3: expected 5, found 4 (a note) [wrong]'

ways=$(grep -c '^test(' failing/every_way.lua)
play 1 "0 passed, $ways failed" "$ways" failing/every_way.lua
[ "$(grep -cE '^failing/every_way.lua:[0-9]+: .' "$output")" -eq "$ways" ] ||
  complain "expected a place on every line but the last"
says 'failing/every_way.lua:2: raised [a raised error]'
says 'failing/every_way.lua:5: one\ntwo [a text of several lines]'
says 'failing/every_way.lua:17: x [an error in an answer]'

# Whatever the path is, it stands in front of the failure as it was given.
long=$TMPDIR/$(printf '%080d' 0)
mkdir "$long" && cp failing/*.lua "$long"
play 1 "2 passed, 1 failed" 1 "$long/wrong_value.lua"
says "$long/wrong_value.lua:3: expected 5, found 4 (a note) [wrong]"
play 2 "0 passed, 0 failed" 1 "$long/no_lua.lua"
grep -qF "$long/no_lua.lua:2: " "$output" || complain "expected the place of the wrong line"

play 2 "0 passed, 0 failed" 1 failing/no_lua.lua
grep -q '^failing/no_lua.lua:2: ' "$output" || complain "expected the place of the wrong line"
play 2 "1 passed, 0 failed" 1 failing/breaks_off.lua
says 'failing/breaks_off.lua:3: outside any test'
play 2 "0 passed, 0 failed" 1 failing/not_there.lua

# Several files: each counts, and the worst of them decides.
play 1 "3 passed, 1 failed" 1 failing/passes.lua failing/wrong_value.lua
play 2 "4 passed, 1 failed" 2 failing/wrong_value.lua failing/breaks_off.lua failing/passes.lua

for arguments in "" "--folder" "--unknown failing/passes.lua"; do
  # shellcheck disable=SC2086
  "$player" $arguments >"$output" 2>&1
  [ $? -eq 2 ] || complain "expected the exit status 2 for: $arguments"
done
"$player" --folder "$TMPDIR/nowhere" failing/passes.lua >"$output" 2>&1
[ $? -eq 1 ] || complain "expected the exit status 1 without a game folder"
[ "$(tail -n 1 "$output")" = "0 passed, 1 failed" ] || complain "expected one failure"

rm -r "$TMPDIR"
[ "$failures" -eq 0 ] || { echo "$failures checks failed"; exit 1; }
echo "all checks of the player passed"
