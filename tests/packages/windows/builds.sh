#!/usr/bin/env bash
# builds.sh FOLDER WORK CMAKE WINE: the sources of the unpacked folder make its programs, as README.txt tells, and the
# programs run.
set -euo pipefail
folder=$1 work=$2 cmake=$3 wine=$4
rm -rf "$work"
"$cmake" -S "$folder" -B "$work" -G Ninja -DCMAKE_SYSTEM_NAME=Windows -DCMAKE_CXX_FLAGS="-O0 -Wall -Wextra -Werror" \
  -DCMAKE_CXX_COMPILER=x86_64-w64-mingw32-g++-posix >"$work.log" || { cat "$work.log" && exit 1; }
"$cmake" --build "$work" >"$work.log" || { cat "$work.log" && exit 1; }
cd "$work/bin"
"$wine" ./unregistered_example.exe | tr -d '\r' | grep -x done
