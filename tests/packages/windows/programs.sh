#!/usr/bin/env bash
# programs.sh FOLDER KIND WINE: starts the programs of a kind (x64, x86) as they lie in the unpacked folder, in a fresh
# prefix: without registration, and then with it.
set -euo pipefail
folder=$1 kind=$2 wine=$3
work=$(mktemp -d)
export WINEPREFIX=$work/prefix
wineserver=$(command -v wineserver || ls /usr/lib/wine/wineserver* | head -n 1)
# What the server ends may write for a moment more.
trap '"$wineserver" -k 2>/dev/null || true; rm -rf "$work" || { sleep 1 && rm -rf "$work"; }' EXIT

expected=$(sed -n '/^It prints$/,/^A program/s/^    //p' "$folder/examples/windows/unregistered/README.md")
[[ -n $expected ]]
cd "$folder/$kind"
diff <(echo "$expected") <("$wine" ./unregistered_example.exe | tr -d '\r')
"$wine" ./container_example.exe --quit
echo "$kind: both programs make the editor, and nothing is registered"

# A library elsewhere, by its manifest's path.
mkdir "$work/alone"
cp container_example.exe unregistered_example.exe "$work/alone"
cd "$work/alone"
manifest=$("$wine" winepath -w "$folder/$kind/Brivane.VrijeKolom.manifest" | tr -d '\r')
diff <(echo "$expected") <("$wine" ./unregistered_example.exe "$manifest" | tr -d '\r')
# Without a manifest, nothing but the registry makes the editor known.
if "$wine" ./container_example.exe --quit; then echo "an editor out of nothing" && exit 1; fi
if "$wine" ./unregistered_example.exe >printed; then cat printed && exit 1; fi
grep -q '^no editor' printed
library=$("$wine" winepath -w "$folder/$kind/BrivaneVrijeKolom.dll" | tr -d '\r')
"$wine" regsvr32 /s "$library"
"$wine" ./container_example.exe --quit
said=$(sed -n '/^It prints$/,/^without the relay/s/^    //p' "$folder/examples/windows/script/README.md" | grep -v '^laid out')
diff <(echo "$said") <(cd "$folder/examples/windows/script" && "$wine" cscript //nologo host.vbs | tr -d '\r')
"$wine" regsvr32 /s /u "$library"
if "$wine" ./container_example.exe --quit; then echo "still registered" && exit 1; fi
echo "$kind: registered, used and taken away"
