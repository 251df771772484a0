#!/usr/bin/env bash
# unregister.sh WINE PREFIX: unregisters the library twice, and checks after each time that no key of it is left; then
# the same for the current user alone.
set -euo pipefail
wine=$1
export WINEPREFIX=$2
for time in first second; do
  "$wine" regsvr32 /s /u BrivaneVrijeKolom.dll
  "$wine" ./registry_check.exe gone
  echo "nothing is left after the $time time"
done
"$wine" regsvr32 /s /n /i:user BrivaneVrijeKolom.dll
"$wine" ./registry_check.exe user
"$wine" regsvr32 /s /u /n /i:user BrivaneVrijeKolom.dll
"$wine" ./registry_check.exe gone
