#!/bin/bash
# What the real program played during the desktop test was no silence; from the first note on, through
# field, battle, victory and field again, nothing was missing for longer than music may rest between
# two pieces, and nothing clicked.
#   heard.sh LISTEN RECORDING
# Ends with 77, which counts as skipped, where there is no recording because there was no desktop test.
set -u
[ -f "$2" ] || exit 77
report=$("$1" "$2" --gap 0.12)
echo "$report"
# The title is silent.
if grep -E '^(gap|click)' <<<"$report" | grep -qv ' at 0 s$'; then exit 1; fi
level=$(head -n 1 <<<"$report" | sed -nE 's/.*level (-?[0-9]+).*/\1/p')
[ -n "$level" ] && [ "$level" -gt -45 ]
