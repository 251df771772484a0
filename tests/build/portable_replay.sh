#!/usr/bin/env bash
# portable_replay.sh ROOT WORK CMAKE COMPILER FLAGS: the replay tool, built by that compiler with those flags, gives every
# golden transcript to the letter: numbers read, round and show alike, whichever standard library does it.
set -euo pipefail
root=$1 work=$2 cmake=$3 compiler=$4 flags=$5
rm -rf "$work"
mkdir -p "$work"
"$cmake" -G Ninja -S "$root" -B "$work" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags" -DCMAKE_BUILD_TYPE=None \
  -DCMAKE_UNITY_BUILD=ON -DBRIVANE_QT=OFF -DBRIVANE_BENCH=OFF -DBRIVANE_TESTS=OFF -DBRIVANE_PROGRAMS=ON >"$work/configure.log" || { cat "$work/configure.log" && exit 1; }
"$cmake" --build "$work" --target vrijekolom-replay >"$work/build.log" || { cat "$work/build.log" && exit 1; }
count=0
for document in "$root"/tests/golden/*.json; do
  "$work/bin/vrijekolom-replay" "$document" | diff "${document}l" -
  count=$((count + 1))
done
echo "$count golden sessions"
((count > 20))
rm -rf "$work"
