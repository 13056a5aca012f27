#!/bin/bash
# Runs a program for Windows, with the folder ORVANE_WINE as the system that it finds, and with the folder for temporary
# files that TMPDIR names, if it does. Its lines end as those of other programs.
#   wine.sh PROGRAM ARGUMENTS...
export WINEPREFIX=${ORVANE_WINE:?} WINEDEBUG=${WINEDEBUG:--all} LC_ALL=C.UTF-8
if [ -n "${TMPDIR:-}" ]; then
  TEMP=Z:${TMPDIR//\//\\}
  export TEMP TMP=$TEMP
fi
set -o pipefail
/usr/lib/wine/wine64 "$@" | tr -d '\r'
