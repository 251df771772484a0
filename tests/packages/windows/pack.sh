#!/usr/bin/env bash
# pack.sh BUILD WORK CPACK CMAKE: makes the zip for Windows of what is built, and unpacks it in a bare folder,
# whose name has a space as many a person's has: WORK/Een map.
set -euo pipefail
build=$1 work=$2 cpack=$3 cmake=$4
rm -rf "$work"
mkdir -p "$work/Een map"
(cd "$build" && "$cpack" -B "$work/packages" >"$work/pack.log") || {
  cat "$work/pack.log"
  echo "Is the library of 32 bits built? scripts/build windows32 zip_contents"
  exit 1
}
zips=("$work"/packages/*.zip)
((${#zips[@]} == 1)) || { echo "not one zip: ${zips[*]}" && exit 1; }
name=$(basename "${zips[0]}" .zip)
(cd "$work/Een map" && "$cmake" -E tar xf "${zips[0]}")
[[ $(ls "$work/Een map") == "$name" ]] || { echo "the zip holds more than the folder $name" && exit 1; }
echo "$name.zip: $(stat -c %s "${zips[0]}") bytes"
