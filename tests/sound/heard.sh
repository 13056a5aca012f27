#!/bin/bash
# What the real program played during the desktop test was no silence.
#   heard.sh LISTEN RECORDING
# Ends with 77, which counts as skipped, where there is no recording because there was no desktop test.
set -u
[ -f "$2" ] || exit 77
report=$("$1" "$2" | head -n 1)
echo "$report"
level=$(echo "$report" | sed -nE 's/.*level (-?[0-9]+).*/\1/p')
[ -n "$level" ] && [ "$level" -gt -45 ]
