#!/bin/bash
# Runs the unit tests of the windows under wine, on a display of their own.
#   units.sh PROGRAM SCREENSHOTS
set -u

# shellcheck source=tests/windows-build/session.sh
. "$(dirname "$(realpath "$0")")/session.sh"
tests=$(realpath "$1")
keep_shots_in "$2"
open_display 640x480
wine "$tests"
