#!/usr/bin/env bash
# register.sh WINE PREFIX LIBRARY: makes a fresh prefix and registers the library and the relay of the tests there, from
# the folder that holds them.
set -euo pipefail
wine=$1
export WINEPREFIX=$2
# What an earlier run left is still in use for a moment.
wineserver=$(command -v wineserver || ls /usr/lib/wine/wineserver* | head -n 1)
"$wineserver" -k 2>/dev/null || true
rm -rf "$WINEPREFIX"
"$wine" regsvr32 /s "$3"
"$wine" regsvr32 /s BrivaneTestRelay.dll
