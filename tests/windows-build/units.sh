#!/bin/bash
# Runs the unit tests of the windows under wine, on a display of their own.
#   units.sh PROGRAM SCREENSHOTS
set -u

# shellcheck source=tests/windows-build/session.sh
. "$(dirname "$(realpath "$0")")/session.sh"
tests=$(realpath "$1")
keep_shots_in "$2"
open_display 640x480
status=0
(wine "$tests" --gtest_filter=-*WhileAWindowIsMoved) || status=1
# Without a window manager it is the system that moves windows, in a loop of its own; all else takes longer.
kill "$manager_pid"
wait "$manager_pid" 2>/dev/null
manager_pid=
(wine "$tests" --gtest_filter=*WhileAWindowIsMoved) || status=1
exit $status
