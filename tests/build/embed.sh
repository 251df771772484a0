#!/usr/bin/env bash
# embed.sh ROOT BUILD WORK CMAKE: installs the build into an empty prefix, builds the examples against it with
# find_package, and runs them. The examples see the prefix and not the source tree.
set -euo pipefail
root=$1 build=$2 work=$3 cmake=$4
rm -rf "$work"
mkdir -p "$work"
"$cmake" --install "$build" --prefix "$work/prefix" >"$work/install.log"
cp -r "$root/examples" "$work/examples"
"$cmake" -G Ninja -S "$work/examples" -B "$work/build" -DCMAKE_PREFIX_PATH="$work/prefix" -DCMAKE_BUILD_TYPE=Release \
  -DCMAKE_CXX_FLAGS="-Wall -Wextra -Wpedantic -Werror" >"$work/configure.log"
"$cmake" --build "$work/build"
for example in "$work"/build/*_example; do
  echo "== $(basename "$example")"
  QT_QPA_PLATFORM=offscreen "$example" --quit
done
rm -rf "$work"
