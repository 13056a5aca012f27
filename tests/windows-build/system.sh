#!/bin/bash
# Makes the system that wine.sh runs programs in, and keeps it running, so that each finds it awake; or ends it.
#   system.sh begin|end
set -u
export WINEPREFIX=${ORVANE_WINE:?} WINEDEBUG=-all LC_ALL=C.UTF-8
wine=/usr/lib/wine
case $1 in
  begin)
    [ ! -d "$WINEPREFIX" ] || "$0" end
    # Neither .NET nor a browser is asked for, nor menus for the desktop of who runs the tests.
    # What goes on running must not hold what this says open.
    mkdir -p "$WINEPREFIX" && "$wine/wineserver" -p >/dev/null 2>&1 &&
      WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=" "$wine/wine64" wineboot -i >/dev/null 2>&1
    ;;
  end)
    "$wine/wineserver" -k
    "$wine/wineserver" -w
    rm -rf "$WINEPREFIX"
    ;;
esac
